// The decimal fixed-point value: its digits, and the division that keeps every
// digit up to the scale limit, against a place-by-place reference.
#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>

#include "devices/decimal_value.h"
#include "tests/native/decimal_reference.h"
#include "tests/native/test_text.h"

namespace {

constexpr std::int64_t limit = 14411518807585587;

std::string shown(decimal_value value)
{
    return utf8(value.digits().view());
}

// The wide text of the "decimal overflow" error that `f` raises, or "" when
// it raises nothing.
template <class F>
std::string overflow_text(F f)
{
    try {
        f();
    } catch (const generic_error& e) {
        return utf8(wstring_view(e.text()));
    }
    return "";
}

TEST(DecimalValue, DigitsDropTrailingZerosAndKeepEverySignificantOne)
{
    struct row {
        std::int64_t mantissa;
        unsigned places;
        std::string text;
    };
    // Anchors of the place-by-place reference, which checks every mantissa
    // at every place (DigitsAndMagnitudeAgreeWithThePlaceByPlaceReference).
    const row rows[] = {
        {0, 7, "0"},
        {-15, 1, "-1.5"},
        {1500, 3, "1.5"},
        {-5, 3, "-0.005"},
        {-10, 1, "-1"},
        {decimal_value::mantissa_min, 18, "-0.144115188075855872"},
        {1, 63, "0." + std::string(62, '0') + "1"},
    };
    for (const row& r : rows)
        EXPECT_EQ(shown(decimal_value::from(r.mantissa, r.places)), r.text) << r.mantissa << "/" << r.places;
}

TEST(DecimalValue, DivisionKeepsEveryDigitTheMantissaCanHold)
{
    struct row {
        std::int64_t mantissa;
        unsigned places;
        std::uint64_t divisor;
        std::string text;
    };
    // Anchors of the place-by-place reference, which checks a grid of
    // mantissas, places and divisors (DivisionAgreesWithThePlaceByPlaceReference).
    const row rows[] = {
        {70000000, 0, 1000000, "70"},
        {-125, 1, 1000, "-0.0125"},
        // At and beyond the scale limit the point moves instead of the digits.
        {decimal_value::mantissa_max, 0, 10, "14411518807585587.1"},
        {limit, 0, 100, "144115188075855.87"},
        // Divisors that are not powers of ten: raised until they divide, or
        // as far as the limit allows and then cut toward zero.
        {1, 0, 2048, "0.00048828125"},
        {-2, 0, 3, "-0.6666666666666666"},
        {limit - 1, 0, 3, "4803839602528528.6"},
        // Trailing zeros make room for the divisor's places.
        {1000, 62, 1000, "0." + std::string(61, '0') + "1"},
    };
    for (const row& r : rows)
        EXPECT_EQ(shown(decimal_value::from(r.mantissa, r.places).divided_by(r.divisor)), r.text)
            << r.mantissa << "/" << r.places << " by " << r.divisor;
}

// The quotient, or the overflow, exactly as working place by place gives it.
TEST(DecimalValue, DivisionAgreesWithThePlaceByPlaceReference)
{
    const unsigned places[] = {0, 1, 2, 3, 4, 6, 9, 12, 17, 18, 19, 20, 31, 44, 45, 46, 51, 52, 55, 60, 61, 62, 63};
    const std::vector<std::uint64_t> divisors = reference::divisors();
    for (const std::int64_t m : reference::mantissas())
        for (const unsigned p : places)
            for (const std::uint64_t divisor : divisors)
                ASSERT_EQ(reference::outcome([&] { return decimal_value::from(m, p).divided_by(divisor); }),
                          reference::shown(reference::divided_by({m, p}, divisor)))
                    << m << "e-" << p << " by " << divisor;
}

TEST(DecimalValue, MovingThePointIsDividingByThePowerOfTen)
{
    for (const std::int64_t m : reference::mantissas())
        for (unsigned p = 0; p <= decimal_value::max_places; ++p)
            for (unsigned e = 0; e <= 19; ++e)
                ASSERT_EQ(reference::outcome([&] { return decimal_value::from(m, p).divided_by_ten_to(e); }),
                          reference::shown(reference::divided_by({m, p}, reference::ten_to(e))))
                    << m << "e-" << p << " by 10^" << e;
    EXPECT_EQ(overflow_text([] { decimal_value::from(1).divided_by_ten_to(UINT_MAX); }), "decimal overflow");
}

TEST(DecimalValue, DigitsAndMagnitudeAgreeWithThePlaceByPlaceReference)
{
    for (const std::int64_t m : reference::mantissas())
        for (unsigned p = 0; p <= decimal_value::max_places; ++p) {
            const decimal_value v = decimal_value::from(m, p);
            ASSERT_EQ(shown(v), reference::digits({m, p})) << m << "e-" << p;
            const std::uint64_t whole = reference::whole_magnitude({m, p});
            ASSERT_EQ(v.whole_digits(), whole == 0 ? 0 : std::to_string(whole).size()) << m << "e-" << p;
        }
}

TEST(DecimalValue, WhatDoesNotFitTheWordIsRefused)
{
    const std::function<void()> refused[] = {
        [] { decimal_value::from(decimal_value::mantissa_max + 1); },
        [] { decimal_value::from(decimal_value::mantissa_min - 1); },
        [] { decimal_value::from(INT64_MAX); },
        [] { decimal_value::from(0, 64); },
        [] { decimal_value::from(1).divided_by(0); },
        [] { decimal_value::from(1, 62).divided_by(100); },
        [] { decimal_value::from(-7, 60).divided_by(1000000); },
    };
    for (std::size_t i = 0; i < std::size(refused); ++i)
        EXPECT_EQ(overflow_text(refused[i]), "decimal overflow") << "case " << i;
}

}   // namespace
