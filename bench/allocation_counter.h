// Counts the allocations of the benchmark process: the global allocation
// functions are replaced in allocation_counter.cpp.
#pragma once

#include <cstdint>

namespace allocations {

// Allocations so far, from every thread.
std::uint64_t count() noexcept;

}   // namespace allocations
