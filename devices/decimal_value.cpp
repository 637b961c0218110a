#include "devices/decimal_value.h"

#include <algorithm>
#include <array>
#include <bit>
#include <climits>

#include "core/digits.h"
#include "core/errors.h"
#include "core/powers_of_ten.h"

namespace {

[[noreturn]] void overflow()
{
    throw generic_error(messages::decimal_overflow);
}

std::int64_t signed_as(bool negative, std::uint64_t magnitude) noexcept
{
    const auto m = static_cast<std::int64_t>(magnitude);   // magnitudes here stay within 58 bits
    return negative ? -m : m;
}

// A mantissa times 10^j stays below the scale limit exactly when it is below
// the limit divided by 10^j and rounded up; 10^17 is beyond the limit.
constexpr std::array<std::uint64_t, 18> below_scale_limit = [] {
    std::array<std::uint64_t, 18> thresholds{};
    for (std::size_t j = 0; j < thresholds.size(); ++j)
        thresholds[j] = (decimal_value::scale_limit + tens::power[j] - 1) / tens::power[j];
    return thresholds;
}();
static_assert(below_scale_limit.back() == 1);

// The places a mantissa of magnitude `m` can be raised by, one factor of ten
// at a time, while it is below the scale limit.
unsigned raises_below_scale_limit(std::uint64_t m) noexcept
{
    const auto first_reached =
        std::ranges::partition_point(below_scale_limit, [m](std::uint64_t threshold) { return m < threshold; });
    return static_cast<unsigned>(first_reached - below_scale_limit.begin());
}

// The places a magnitude `m` must be raised by before `divisor` (no multiple
// of ten) divides it; more than any mantissa takes when no count does.
unsigned places_to_divide(std::uint64_t m, std::uint64_t divisor) noexcept
{
    constexpr unsigned never = UINT_MAX;
    if (m == 0)
        return 0;
    // The divisor is 2^twos 5^fives rest, with rest prime to ten: m 10^k is
    // a multiple of it when rest divides m and k makes up the twos and the
    // fives m lacks.
    const auto twos = static_cast<unsigned>(std::countr_zero(divisor));
    const tens::reduced rest = tens::without_fives(divisor >> twos, tens::every);
    const unsigned fives = rest.count;
    if (m % rest.value != 0)
        return never;
    const unsigned twos_in_m = std::min(twos, static_cast<unsigned>(std::countr_zero(m)));
    const unsigned fives_in_m = tens::without_fives(m, fives).count;
    return std::max(twos - twos_in_m, fives - fives_in_m);
}

// The quotient by what is left of a divisor once its factors of ten are
// gone: the mantissa raised until the divisor divides it, as far as the
// scale limit and the places allow, then divided, cut toward zero.
decimal_value cut_quotient(decimal_value value, std::uint64_t divisor)
{
    const std::uint64_t m = value.magnitude();
    const unsigned raised = std::min(
        {places_to_divide(m, divisor), decimal_value::max_places - value.places(), raises_below_scale_limit(m)});
    return decimal_value::from(signed_as(value.mantissa() < 0, m * tens::power[raised] / divisor),
                               value.places() + raised);
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

decimal_value decimal_value::divided_by(std::uint64_t divisor) const
{
    if (divisor == 0)
        overflow();
    const tens::reduced rest = tens::without_zeros(divisor, tens::every);
    const decimal_value moved = divided_by_ten_to(rest.count);
    return rest.value == 1 ? moved : cut_quotient(moved, rest.value);
}

decimal_value decimal_value::divided_by_ten_to(unsigned exponent) const
{
    // Trailing zeros carry no digits; dropping them first leaves the most
    // room for the places the divisor adds.
    const tens::reduced m = tens::without_zeros(magnitude(), places());
    const unsigned p = places() - m.count;
    if (exponent > max_places - p)
        overflow();
    if (m.count == 0)   // the mantissa stays; only the places grow
        return decimal_value(bits_ + (std::uint64_t(exponent) << mantissa_bits));
    return from(signed_as(mantissa() < 0, m.value), p + exponent);
}

decimal_value::text decimal_value::digits() const noexcept
{
    text t;
    t.first = static_cast<std::size_t>(digits_before(t.units + max_digits) - t.units);
    return t;
}

wchar* decimal_value::digits_before(wchar* const end) const noexcept
{
    // Built from the right: the significant fractional digits, the point,
    // the integer part, the sign. One division splits the digits at the
    // point; past the table's last power (10^19) a mantissa, below 10^18, is
    // all fraction.
    const std::uint64_t m = magnitude();
    const bool split = places() < tens::power.size();
    const std::uint64_t whole = split ? m / tens::power[places()] : 0;
    const std::uint64_t part = split ? m % tens::power[places()] : m;
    wchar* p = end;
    if (part != 0) {
        // The fraction's own trailing zeros are the mantissa's.
        const tens::reduced fraction = tens::without_zeros(part, places());
        wchar* const point = end - (places() - fraction.count);
        // Zeros between the point and the fraction's first digit.
        std::fill(point, digits::decimal_before(end, fraction.value), wchar('0'));
        p = point - 1;
        *p = '.';
    }
    p = digits::decimal_before(p, whole);
    if (mantissa() < 0)
        *--p = '-';
    return p;
}
