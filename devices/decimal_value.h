// A signed decimal fixed-point number in one 64-bit word.
//
// The low 58 bits hold a two's-complement mantissa, the top 6 bits the count
// of decimal places, and the value is mantissa / 10^places. Arithmetic that
// would not fit these bits is refused with the wide error "decimal overflow"
// rather than letting a digit fall off silently.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/short_text.h"
#include "core/powers_of_ten.h"

class decimal_value {
public:
    static constexpr unsigned mantissa_bits = 58;
    static constexpr unsigned max_places = 63;
    static constexpr std::int64_t mantissa_max = (std::int64_t(1) << (mantissa_bits - 1)) - 1;
    static constexpr std::int64_t mantissa_min = -(std::int64_t(1) << (mantissa_bits - 1));
    // A mantissa whose magnitude is below this still has room for one more
    // factor of ten: 14411518807585587.
    static constexpr std::int64_t scale_limit = (std::int64_t(1) << (mantissa_bits - 1)) / 10;

    constexpr decimal_value() noexcept = default;   // zero

    // mantissa / 10^places; "decimal overflow" when the mantissa needs more
    // than 58 bits or the count of places more than 63.
    static decimal_value from(std::int64_t mantissa, unsigned places = 0);

    constexpr std::int64_t mantissa() const noexcept
    {
        // Shift the sign bit of the 58-bit field to the top and back down again.
        return static_cast<std::int64_t>(bits_ << (64 - mantissa_bits)) >> (64 - mantissa_bits);
    }
    constexpr unsigned places() const noexcept { return static_cast<unsigned>(bits_ >> mantissa_bits); }
    // The mantissa without its sign: 123456 for -1234.56.
    constexpr std::uint64_t magnitude() const noexcept
    {
        const std::int64_t m = mantissa();
        return m < 0 ? std::uint64_t(0) - static_cast<std::uint64_t>(m) : static_cast<std::uint64_t>(m);
    }

    // The quotient, with no digit lost where the mantissa can hold them all.
    //
    // Factors of ten in the divisor only move the decimal point. What is left
    // of the divisor (nothing, for a power of ten) is divided into the
    // mantissa after raising it by as many places as make it a multiple, as
    // far as the scale limit and the places allow; a quotient that does not
    // terminate within the mantissa is cut toward zero at its last digit.
    // "decimal overflow" for a zero divisor or when the places run out.
    decimal_value divided_by(std::uint64_t divisor) const;

    // The quotient by 10^exponent, as divided_by gives it: trailing zeros of
    // the mantissa are dropped and the point moves; "decimal overflow" when
    // the places run out.
    decimal_value divided_by_ten_to(unsigned exponent) const;

    // The count of digits in the integer part of the magnitude: 4 for
    // -1234.56, 0 below one. A value reaches 10^e exactly when it has more
    // than e of them.
    constexpr unsigned whole_digits() const noexcept
    {
        const unsigned width = tens::decimal_width(magnitude());
        return width > places() ? width - places() : 0;
    }

    // The digits as a person writes them: "-" when negative, the integer part
    // (at least "0"), then "." and the fractional digits when any of them is
    // not zero; trailing zeros are dropped, so 1.500 reads "1.5" and 2.000 "2".
    static constexpr std::size_t max_digits = 2 + max_places + 20;   // sign, "0.", places, digits
    using text = short_text<max_digits>;
    text digits() const noexcept;

    // The same digits ending just before `end`, with room for max_digits
    // before it; returns where they start.
    wchar* digits_before(wchar* end) const noexcept;

private:
    constexpr explicit decimal_value(std::uint64_t bits) noexcept : bits_(bits) {}

    std::uint64_t bits_ = 0;
};

inline decimal_value::text text_of(decimal_value value) noexcept
{
    return value.digits();
}

template <text_sink Out>
Out& operator<<(Out& out, decimal_value value)
{
    return out << value.digits();
}
