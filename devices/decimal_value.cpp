#include "devices/decimal_value.h"

#include "core/digits.h"
#include "core/errors.h"

namespace {

[[noreturn]] void overflow()
{
    throw generic_error(messages::decimal_overflow);
}

std::uint64_t magnitude_of(std::int64_t mantissa) noexcept
{
    return mantissa < 0 ? std::uint64_t(0) - static_cast<std::uint64_t>(mantissa)
                        : static_cast<std::uint64_t>(mantissa);
}

std::int64_t signed_as(bool negative, std::uint64_t magnitude) noexcept
{
    const auto m = static_cast<std::int64_t>(magnitude);   // magnitudes here stay within 58 bits
    return negative ? -m : m;
}

}   // namespace

decimal_value decimal_value::from(std::int64_t mantissa, unsigned places)
{
    if (mantissa < mantissa_min || mantissa > mantissa_max || places > max_places)
        overflow();
    constexpr std::uint64_t mantissa_mask = (std::uint64_t(1) << mantissa_bits) - 1;
    const std::uint64_t low = static_cast<std::uint64_t>(mantissa) & mantissa_mask;
    return decimal_value(std::uint64_t(places) << mantissa_bits | low);
}

decimal_value decimal_value::with_extra_place() const
{
    const std::int64_t m = mantissa();
    if (m <= -scale_limit || m >= scale_limit)
        overflow();
    return from(m * 10, places() + 1);
}

decimal_value decimal_value::divided_by(std::uint64_t divisor) const
{
    if (divisor == 0)
        overflow();
    std::int64_t m = mantissa();
    unsigned p = places();
    // Trailing zeros carry no digits; dropping them first leaves the most
    // room for the places the divisor adds.
    while (p > 0 && m % 10 == 0) {
        m /= 10;
        --p;
    }
    while (divisor % 10 == 0) {
        divisor /= 10;
        if (++p > max_places)
            overflow();
    }
    while (magnitude_of(m) % divisor != 0 && m > -scale_limit && m < scale_limit && p < max_places) {
        m *= 10;
        ++p;
    }
    return from(signed_as(m < 0, magnitude_of(m) / divisor), p);
}

std::uint64_t decimal_value::whole_magnitude() const noexcept
{
    std::uint64_t whole = magnitude_of(mantissa());
    for (unsigned p = places(); p > 0 && whole != 0; --p)
        whole /= 10;
    return whole;
}

decimal_value::text decimal_value::digits() const noexcept
{
    // Built from the right: the significant fractional digits, the point,
    // the integer part, the sign.
    text t;
    wchar* const end = t.units + text::capacity;
    wchar* p = end;
    std::uint64_t m = magnitude_of(mantissa());
    unsigned fraction = places();
    while (fraction > 0 && m % 10 == 0) {
        m /= 10;
        --fraction;
    }
    for (unsigned i = 0; i < fraction; ++i) {
        *--p = static_cast<wchar>('0' + m % 10);
        m /= 10;
    }
    if (fraction > 0)
        *--p = '.';
    p = digits::decimal_before(p, m);
    if (mantissa() < 0)
        *--p = '-';
    t.first = static_cast<std::size_t>(p - t.units);
    return t;
}
