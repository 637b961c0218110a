// Digits written straight into UTF-16: decimal two digits at a time from a
// table of the hundred pairs, hexadecimal from a table of the sixteen.
// Writers fill a caller's small array, which then goes out as one piece.
#pragma once

#include <array>
#include <cstdint>

#include "core/wide.h"

namespace digits {

inline constexpr std::array<wchar, 200> decimal_pairs = [] {
    std::array<wchar, 200> pairs{};
    for (int i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<wchar>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<wchar>('0' + i % 10);
    }
    return pairs;
}();

inline constexpr std::array<wchar, 16> hex = {'0', '1', '2', '3', '4', '5', '6', '7',
                                              '8', '9', 'A', 'B', 'C', 'D', 'E', 'F'};

// The longest decimal a 64-bit magnitude takes, and its sign.
inline constexpr std::size_t max_decimal = 21;

// `value` in decimal, without padding, ending just before `end`; returns
// where it starts.
constexpr wchar* decimal_before(wchar* end, std::uint64_t value) noexcept
{
    while (value >= 100) {
        const auto pair = static_cast<std::size_t>(value % 100) * 2;
        value /= 100;
        end -= 2;
        end[0] = decimal_pairs[pair];
        end[1] = decimal_pairs[pair + 1];
    }
    if (value >= 10) {
        end -= 2;
        end[0] = decimal_pairs[value * 2];
        end[1] = decimal_pairs[value * 2 + 1];
    } else {
        *--end = static_cast<wchar>('0' + value);
    }
    return end;
}

// `value` as exactly `width` digits, zero-padded (higher digits dropped);
// returns the end.
constexpr wchar* fixed_width(wchar* p, std::uint32_t value, unsigned width) noexcept
{
    for (unsigned i = width; i >= 2; i -= 2) {
        const auto pair = static_cast<std::size_t>(value % 100) * 2;
        value /= 100;
        p[i - 2] = decimal_pairs[pair];
        p[i - 1] = decimal_pairs[pair + 1];
    }
    if (width % 2)
        p[0] = static_cast<wchar>('0' + value % 10);
    return p + width;
}

}   // namespace digits
