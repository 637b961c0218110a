// Number shapes shared by every renderer: decimal integers, hexadecimal
// bytes and dotted IPv4 addresses, each made as one short text of UTF-16
// digits without allocating.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <type_traits>

#include "core/digits.h"
#include "core/short_text.h"

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

inline short_text<digits::max_decimal> text_of(decimal d) noexcept
{
    short_text<digits::max_decimal> text;
    text.first =
        static_cast<std::size_t>(digits::decimal_before(text.units + digits::max_decimal, d.magnitude) - text.units);
    if (d.negative)
        text.prepend(wchar('-'));
    return text;
}

inline short_text<2> text_of(hex_byte h) noexcept
{
    return {{digits::hex[h.value >> 4], digits::hex[h.value & 0xF]}, 0};
}

namespace digits {

// The 256 values of a byte in decimal, each right-aligned in four units.
struct octet {
    wchar units[4];
    std::size_t length;
};

inline constexpr std::array<octet, 256> octets = [] {
    std::array<octet, 256> all{};
    for (unsigned value = 0; value < 256; ++value) {
        octet& o = all[value];
        wchar* const begin = decimal_before(o.units + 4, value);
        o.length = static_cast<std::size_t>(o.units + 4 - begin);
    }
    return all;
}();

}   // namespace digits

// An address built back to front from the table of bytes, ending just
// before `end`; returns where it starts. Each byte's four units go in whole,
// and what lies in front of its digits is written over by the dot and the
// byte before it: up to three units before the start are written too.
inline wchar* dotted_before(wchar* end, dotted_ipv4 ip) noexcept
{
    wchar* p = end;
    for (int shift = 0; shift < 32; shift += 8) {
        if (shift)
            *--p = '.';
        const digits::octet& byte = digits::octets[ip.address >> shift & 0xFF];
        std::memcpy(p - 4, byte.units, sizeof byte.units);
        p -= byte.length;
    }
    return p;
}

inline short_text<16> text_of(dotted_ipv4 ip) noexcept
{
    short_text<16> text;   // 15 units, and one more for the first byte's lead
    text.first = static_cast<std::size_t>(dotted_before(text.units + 16, ip) - text.units);
    return text;
}

template <text_sink Out, class Shape>
requires std::is_same_v<Shape, decimal> || std::is_same_v<Shape, hex_byte> || std::is_same_v<Shape, dotted_ipv4> Out&
operator<<(Out& out, Shape shape)
{
    return out << text_of(shape);
}
