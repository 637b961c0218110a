// The value formatters of the parameter records: scaled quantities with the
// unit row their magnitude reaches, time stamps, MAC addresses, temperatures.
#include <gtest/gtest.h>

#include <string>

#include "devices/field_scales.h"
#include "devices/value_formats.h"
#include "tests/native/test_text.h"

namespace {

using show = std::string (*)(std::int64_t raw);

template <const field_scale& Scale>
std::string scaled(std::int64_t raw)
{
    if (raw < 0)
        return utf8(formats::scaled{Scale}.shown(static_cast<std::int32_t>(raw)));
    return utf8(formats::scaled{Scale}.shown(static_cast<std::uint32_t>(raw)));
}

template <class Format, class Value>
std::string shown(std::int64_t raw)
{
    return utf8(Format{}.shown(static_cast<Value>(raw)));
}

TEST(ValueFormats, RawValuesAsTheyAreShown)
{
    const show frequency = scaled<scales::frequency>;
    const show time_stamp = shown<formats::time_stamp, std::uint32_t>;
    const show temperature = shown<formats::temperature, std::uint8_t>;
    const show mac = shown<formats::mac_address, std::uint64_t>;
    const struct {
        show format;
        std::int64_t raw;
        const char* text;
    } rows[] = {
        // The largest unit whose multiplier the magnitude reaches.
        {frequency, 0, "0 Hz"},
        {frequency, 999, "999 Hz"},
        {frequency, 1000, "1 KHz"},
        {frequency, 999999, "999.999 KHz"},
        {frequency, 1000000, "1 MHz"},
        {frequency, 70000000, "70 MHz"},
        {frequency, -2500, "-2.5 KHz"},
        {frequency, 4294967295, "4.294967295 GHz"},
        {scaled<scales::data_rate>, 2048000, "2.048 Mbps"},
        {scaled<scales::symbol_rate>, 30000000, "30 Msps"},
        {scaled<scales::signal_level>, -655, "-65.5 dBm"},
        {scaled<scales::ebno>, 123, "12.3 dB"},
        {scaled<scales::ebno>, 0, "0 dB"},
        {scaled<scales::lnb_current>, 450, "450 mA"},
        {scaled<scales::lnb_lo_frequency>, 10750, "10750 MHz"},
        // UTC seconds since 1970.
        {time_stamp, 0, "1970-01-01 00:00:00"},
        {time_stamp, 86399, "1970-01-01 23:59:59"},
        {time_stamp, 951782400, "2000-02-29 00:00:00"},
        {time_stamp, 1709294400, "2024-03-01 12:00:00"},
        {time_stamp, 4294967295, "2106-02-07 06:28:15"},
        {temperature, 0xFB, "-5"},
        {temperature, 45, "45"},
        {mac, -1, "18446744073709551615"},
        {mac, 0x0000'0012'3456'789A, "78187493530"},
    };
    for (const auto& r : rows)
        EXPECT_EQ(r.format(r.raw), r.text) << r.raw;
}

TEST(ValueFormats, AnEmptyUnitTableIsRefused)
{
    EXPECT_THROW(unit_row({}, decimal_value()), not_expected);
}

}   // namespace
