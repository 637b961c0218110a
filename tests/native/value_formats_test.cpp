// The value formatters of the parameter records, one kind at a time.
#include <gtest/gtest.h>

#include <string>

#include "devices/value_formats.h"
#include "tests/native/test_text.h"

namespace {

template <class Format, class Value>
std::string shown(const Format& format, const Value& value)
{
    return written([&](auto& out) { format(out, value); });
}

TEST(ValueFormats, TimeStampsAreUtcSecondsSince1970)
{
    struct row {
        std::uint32_t seconds;
        const char* text;
    };
    const row rows[] = {
        {0, "1970-01-01 00:00:00"},
        {86399, "1970-01-01 23:59:59"},
        {951782400, "2000-02-29 00:00:00"},
        {1709294400, "2024-03-01 12:00:00"},
        {4294967295, "2106-02-07 06:28:15"},
    };
    for (const row& r : rows)
        EXPECT_EQ(shown(formats::time_stamp{}, r.seconds), r.text) << r.seconds;
}

TEST(ValueFormats, MacAddressesAndTemperaturesInDecimal)
{
    EXPECT_EQ(shown(formats::mac_address{}, UINT64_MAX), "18446744073709551615");
    EXPECT_EQ(shown(formats::mac_address{}, std::uint64_t(0x0000'0012'3456'789A)), "78187493530");
    EXPECT_EQ(shown(formats::temperature{}, std::uint8_t(0xFB)), "-5");
    EXPECT_EQ(shown(formats::temperature{}, std::uint8_t(45)), "45");
}

} // namespace
