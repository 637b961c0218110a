// Text that arrives narrow at run time: a payload's 8-bit text or a name the
// host registered. It is written through the ANSI code page, one unit per
// byte; the module's own literals are never narrow (they are "..."_w).
#pragma once

#include <string_view>

struct ansi_text {
    std::string_view bytes;

    constexpr ansi_text() noexcept = default;
    explicit constexpr ansi_text(std::string_view s) noexcept : bytes(s) {}
    explicit constexpr ansi_text(const char* s) noexcept : bytes(s) {}
};
