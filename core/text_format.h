// Number shapes shared by every renderer: decimal integers, hexadecimal
// bytes and dotted IPv4 addresses, written straight into a stream without
// allocating.
#pragma once

#include <cstdint>
#include <string_view>
#include <type_traits>

#include "core/output_stream.h"

// A signed or unsigned integer in decimal: no padding, "-" when negative,
// "0" for zero.
struct decimal {
    template <class Int>
    constexpr explicit decimal(Int v) noexcept : negative(v < 0), magnitude(magnitude_of(v))
    {
    }

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
    char digits[21];
    char* p = digits + sizeof digits;
    std::uint64_t m = d.magnitude;
    do {
        *--p = static_cast<char>('0' + m % 10);
        m /= 10;
    } while (m != 0);
    if (d.negative)
        *--p = '-';
    return out << std::string_view(p, static_cast<std::size_t>(digits + sizeof digits - p));
}

template <text_sink Out>
Out& operator<<(Out& out, hex_byte h)
{
    constexpr char digits[] = "0123456789ABCDEF";
    const char text[2] = {digits[h.value >> 4], digits[h.value & 0xF]};
    return out << std::string_view(text, 2);
}

template <text_sink Out>
Out& operator<<(Out& out, dotted_ipv4 ip)
{
    return out << decimal(ip.address >> 24) << "." << decimal(ip.address >> 16 & 0xFF) << "."
               << decimal(ip.address >> 8 & 0xFF) << "." << decimal(ip.address & 0xFF);
}
