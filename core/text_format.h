// Number shapes shared by every renderer: decimal integers, hexadecimal
// bytes and dotted IPv4 addresses, each written as one piece of UTF-16
// digits without allocating.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "core/digits.h"
#include "core/output_stream.h"

// A signed or unsigned integer in decimal: no padding, "-" when negative,
// "0" for zero.
struct decimal {
    template <class Int>
    constexpr explicit decimal(Int v) noexcept : negative(v < 0), magnitude(magnitude_of(v))
    {}

    bool negative;
    std::uint64_t magnitude;

private:
    template <class Int>
    static constexpr std::uint64_t magnitude_of(Int v) noexcept
    {
        if constexpr (std::is_signed_v<Int>)
            return v < 0 ? std::uint64_t(0) - static_cast<std::uint64_t>(v) : static_cast<std::uint64_t>(v);
        else
            return v;
    }
};

// A byte as two upper-case hexadecimal digits: 11 is "0B".
struct hex_byte {
    std::uint8_t value;
};

// An IPv4 address held as a number whose most significant byte is printed
// first: 167837696 is 10.1.0.0.
struct dotted_ipv4 {
    std::uint32_t address;
};

template <text_sink Out>
Out& operator<<(Out& out, decimal d)
{
    wchar units[digits::max_decimal];
    wchar* const end = units + std::size(units);
    wchar* p = digits::decimal_before(end, d.magnitude);
    if (d.negative)
        *--p = '-';
    out.write(p, static_cast<std::size_t>(end - p));
    return out;
}

template <text_sink Out>
Out& operator<<(Out& out, hex_byte h)
{
    const wchar units[2] = {digits::hex[h.value >> 4], digits::hex[h.value & 0xF]};
    out.write(units, 2);
    return out;
}

template <text_sink Out>
Out& operator<<(Out& out, dotted_ipv4 ip)
{
    // Built back to front, the four numbers and their dots as one piece.
    wchar units[15];
    wchar* const end = units + std::size(units);
    wchar* p = end;
    for (int shift = 0; shift < 32; shift += 8) {
        if (shift)
            *--p = '.';
        p = digits::decimal_before(p, ip.address >> shift & 0xFF);
    }
    out.write(p, static_cast<std::size_t>(end - p));
    return out;
}
