// Powers of ten, and the factors of five and ten a number holds, from tables
// made when the module is compiled: a decimal moves its point by looking up
// 10^k, and finds the zeros it ends with by a few multiplications, never by
// dividing by ten once per place.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>

namespace tens {

// 10^0 to 10^19: every power of ten a 64-bit word holds.
inline constexpr std::array<std::uint64_t, 20> power = [] {
    std::array<std::uint64_t, 20> p{};
    p[0] = 1;
    for (std::size_t i = 1; i < p.size(); ++i)
        p[i] = p[i - 1] * 10;
    return p;
}();

// How many decimal digits `value` has, 0 for zero: its bit width times
// 1233/4096 (just below log10 2) is the count or one less, and one comparison
// with the table tells which.
constexpr unsigned decimal_width(std::uint64_t value) noexcept
{
    const unsigned below = static_cast<unsigned>(std::bit_width(value)) * 1233 >> 12;
    return below + (value >= power[below] ? 1 : 0);
}

namespace detail {

// Dividing by 5^k without a division: 5^k is odd, so it has an inverse
// modulo 2^64, and n is a multiple of 5^k exactly when n times that inverse
// (modulo 2^64) is at most (2^64 - 1) / 5^k; the product is then n / 5^k.
struct power_of_five {
    unsigned exponent;
    std::uint64_t inverse;
    std::uint64_t most_quotient;
};

// 5^16, 5^8, 5^4, 5^2, 5^1: halving steps that take out up to 31 factors,
// more than a 64-bit word holds (5^27).
inline constexpr std::array<power_of_five, 5> halving_fives = [] {
    std::array<power_of_five, 5> steps{};
    unsigned exponent = 16;
    for (power_of_five& step : steps) {
        std::uint64_t five = 1;
        for (unsigned i = 0; i < exponent; ++i)
            five *= 5;
        // Newton's step doubles the correct low bits of an inverse; an odd
        // number is its own inverse to three bits, so five steps give 96.
        std::uint64_t inverse = five;
        for (int i = 0; i < 5; ++i)
            inverse *= 2 - five * inverse;
        step = {exponent, inverse, UINT64_MAX / five};
        exponent /= 2;
    }
    return steps;
}();

}   // namespace detail

// A count of factors above any a 64-bit word holds: take every one.
inline constexpr unsigned every = 64;

// A number with some of its factors taken out, and how many were.
struct reduced {
    std::uint64_t value;
    unsigned count;
};

// A nonzero `value` divided by the largest power of five that divides it,
// taking at most `most` factors of five.
constexpr reduced without_fives(std::uint64_t value, unsigned most) noexcept
{
    reduced r{value, 0};
    for (const detail::power_of_five& step : detail::halving_fives) {
        const std::uint64_t quotient = r.value * step.inverse;
        if (step.exponent <= most - r.count && quotient <= step.most_quotient)
            r = {quotient, r.count + step.exponent};
    }
    return r;
}

// `value` without the decimal zeros it ends with, taking at most `most` of
// them; zero counts as ending with `most` zeros.
constexpr reduced without_zeros(std::uint64_t value, unsigned most) noexcept
{
    if (value == 0)
        return {0, most};
    // Each zero is a factor of two, which the low bits show, and one of five.
    const unsigned twos = std::min(most, static_cast<unsigned>(std::countr_zero(value)));
    if (twos == 0)
        return {value, 0};
    const reduced odd = without_fives(value >> twos, twos);
    return {odd.value << (twos - odd.count), odd.count};
}

}   // namespace tens
