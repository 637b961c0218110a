// Scaled quantities: which unit row a value takes, and the text it makes
// through the field scales of the parameter records.
#include <gtest/gtest.h>

#include <string>

#include "devices/field_scales.h"
#include "devices/scaled_value.h"
#include "devices/value_formats.h"
#include "tests/native/test_text.h"

namespace {

TEST(ScaledValue, UnitRowIsTheLargestMultiplierTheMagnitudeReaches)
{
    struct row {
        std::int64_t mantissa;
        unsigned places;
        const char* unit;
    };
    const row rows[] = {
        {0, 0, "Hz"},
        {999, 0, "Hz"},
        {1000, 0, "KHz"},
        {999999, 0, "KHz"},
        {1000000, 0, "MHz"},
        {70000000, 0, "MHz"},
        {-1500, 0, "KHz"},
        {9999, 1, "Hz"},   // 999.9
        {10000, 1, "KHz"},
        {999999999999, 0, "GHz"},
        {1000000000000, 0, "THz"},
        {decimal_value::mantissa_max, 0, "THz"},
    };
    for (const row& r : rows)
        EXPECT_STREQ(unit_row(units::frequency, decimal_value::from(r.mantissa, r.places)).narrow, r.unit)
            << r.mantissa << "/" << r.places;
}

TEST(ScaledValue, AnEmptyUnitTableIsRefused)
{
    EXPECT_THROW(unit_row({}, decimal_value()), not_expected);
}

TEST(ScaledValue, FieldsReadTheirPlacesAndShowTheirUnit)
{
    struct row {
        field_scale scale;
        std::int64_t raw;
        const char* text;
    };
    const row rows[] = {
        {scales::frequency, 70000000, "70 MHz"},
        {scales::frequency, 999999, "999.999 KHz"},
        {scales::frequency, 1000000, "1 MHz"},
        {scales::frequency, 4294967295, "4.294967295 GHz"},
        {scales::frequency, -2500, "-2.5 KHz"},
        {scales::frequency, 0, "0 Hz"},
        {scales::data_rate, 2048000, "2.048 Mbps"},
        {scales::symbol_rate, 30000000, "30 Msps"},
        {scales::signal_level, -655, "-65.5 dBm"},
        {scales::ebno, 123, "12.3 dB"},
        {scales::ebno, 0, "0 dB"},
        {scales::lnb_current, 450, "450 mA"},
        {scales::lnb_lo_frequency, 10750, "10750 MHz"},
    };
    for (const row& r : rows) {
        const std::string text = written([&](auto& out) {
            if (r.raw < 0)
                formats::scaled{r.scale}(out, static_cast<std::int32_t>(r.raw));
            else
                formats::scaled{r.scale}(out, static_cast<std::uint32_t>(r.raw));
        });
        EXPECT_EQ(text, r.text) << r.raw;
    }
}

} // namespace
