// Decimal division, magnitude and digits worked place by place, one division
// by ten at a time: slow and plain, the reference the table-driven ones are
// checked against, with the values they are checked on.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/errors.h"
#include "devices/decimal_value.h"
#include "tests/native/test_text.h"

namespace reference {

struct decimal {
    std::int64_t mantissa;
    unsigned places;
};

// "mantissa e-places", or the error raised instead.
inline std::string shown(const std::optional<decimal>& v)
{
    return v ? std::to_string(v->mantissa) + "e-" + std::to_string(v->places) : "decimal overflow";
}

// What `f` gives, shown the same way.
template <class F>
std::string outcome(F f)
{
    try {
        const decimal_value v = f();
        return shown(decimal{v.mantissa(), v.places()});
    } catch (const generic_error& e) {
        return utf8(wstring_view(e.text()));
    }
}

inline std::uint64_t magnitude(std::int64_t m)
{
    return m < 0 ? std::uint64_t(0) - static_cast<std::uint64_t>(m) : static_cast<std::uint64_t>(m);
}

inline std::uint64_t ten_to(unsigned exponent)
{
    std::uint64_t power = 1;
    for (unsigned i = 0; i < exponent; ++i)
        power *= 10;
    return power;
}

// The quotient; none where "decimal overflow" is raised.
inline std::optional<decimal> divided_by(decimal v, std::uint64_t divisor)
{
    constexpr std::int64_t limit = decimal_value::scale_limit;
    if (divisor == 0)
        return std::nullopt;
    std::int64_t m = v.mantissa;
    unsigned p = v.places;
    while (p > 0 && m % 10 == 0) {
        m /= 10;
        --p;
    }
    while (divisor % 10 == 0) {
        divisor /= 10;
        if (++p > decimal_value::max_places)
            return std::nullopt;
    }
    while (magnitude(m) % divisor != 0 && m > -limit && m < limit && p < decimal_value::max_places) {
        m *= 10;
        ++p;
    }
    const auto q = static_cast<std::int64_t>(magnitude(m) / divisor);
    return decimal{m < 0 ? -q : q, p};
}

inline std::uint64_t whole_magnitude(decimal v)
{
    std::uint64_t whole = magnitude(v.mantissa);
    for (unsigned p = v.places; p > 0 && whole != 0; --p)
        whole /= 10;
    return whole;
}

inline std::string digits(decimal v)
{
    std::uint64_t m = magnitude(v.mantissa);
    unsigned fraction = v.places;
    while (fraction > 0 && m % 10 == 0) {
        m /= 10;
        --fraction;
    }
    std::string text;
    for (unsigned i = 0; i < fraction; ++i) {
        text.insert(text.begin(), static_cast<char>('0' + m % 10));
        m /= 10;
    }
    if (fraction > 0)
        text.insert(text.begin(), '.');
    text.insert(0, std::to_string(m));
    if (v.mantissa < 0)
        text.insert(text.begin(), '-');
    return text;
}

// Mantissas of every length, with and without trailing zeros, at the edges
// of the scale limit and of the word, both signs.
inline std::vector<std::int64_t> mantissas()
{
    constexpr std::int64_t limit = decimal_value::scale_limit;
    constexpr std::int64_t max = decimal_value::mantissa_max;
    std::vector<std::int64_t> magnitudes = {0, 1, 2, 3, 7, 9, 1024, 1500, 2048, 999999, 70000000, 4294967295};
    magnitudes.insert(magnitudes.end(), {limit - 1, limit, limit + 1, limit / 10, limit * 10 - 1, limit * 10});
    magnitudes.insert(magnitudes.end(), {max - 1, max});
    for (unsigned k = 0; k <= 17; ++k) {
        const auto power = static_cast<std::int64_t>(ten_to(k));
        for (const std::int64_t m : {power, power - 1, power + 1, 3 * power, 25 * power})
            magnitudes.push_back(m);
    }
    for (std::int64_t five = 5; five <= max; five *= 5)
        magnitudes.push_back(five);
    for (unsigned k = 1; k < decimal_value::mantissa_bits - 1; ++k)
        magnitudes.push_back(std::int64_t(1) << k);
    // Pseudo-random digits, ending in a varying number of zeros.
    std::uint64_t state = 0x9E3779B97F4A7C15;
    for (unsigned i = 0; i < 64; ++i) {
        state = state * 6364136223846793005 + 1442695040888963407;
        const std::uint64_t zeros = ten_to(i % 13);
        const std::uint64_t m = (state >> 7) % (std::uint64_t(max) / zeros) * zeros;
        magnitudes.push_back(static_cast<std::int64_t>(m));
    }
    std::vector<std::int64_t> all;
    for (const std::int64_t m : magnitudes)
        if (m <= max) {
            all.push_back(m);
            all.push_back(-m);
        }
    all.push_back(decimal_value::mantissa_min);
    return all;
}

// Every power of ten a 64-bit word holds and twice and three times most of
// them, powers of two and of five, divisors that leave a remainder, and the
// largest words.
inline std::vector<std::uint64_t> divisors()
{
    std::vector<std::uint64_t> all = {0,  2,  3,  4,  5,  6,  7,   8,   9,    11,   12,   15,
                                      16, 25, 40, 48, 64, 75, 125, 625, 1024, 2048, 3125, 4096};
    all.insert(all.end(), {6250, 9765625, 3ull * 1024 * 1000, 1ull << 40, 1ull << 63});
    all.insert(all.end(), {7450580596923828125ull, UINT64_MAX - 1, UINT64_MAX});   // 5^27 and the top
    for (unsigned k = 0; k <= 19; ++k)
        all.push_back(ten_to(k));
    for (unsigned k = 0; k <= 17; ++k) {
        all.push_back(2 * ten_to(k));
        all.push_back(3 * ten_to(k));
    }
    return all;
}

}   // namespace reference
