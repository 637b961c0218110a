// What a fuzz target asserts: a broken invariant names itself and stops the
// run, so that libFuzzer keeps the input and the replay test fails on it.
#pragma once

#include <cstdio>
#include <cstdlib>

#define FUZZ_REQUIRE(condition)                                                                                        \
    do {                                                                                                               \
        if (!(condition)) {                                                                                            \
            std::fprintf(stderr, "%s:%d: invariant broken: %s\n", __FILE__, __LINE__, #condition);                     \
            std::abort();                                                                                              \
        }                                                                                                              \
    } while (false)
