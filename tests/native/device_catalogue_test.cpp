// The constant catalogue as lookups see it: device type keys and the
// demodulator value texts of each record layout. The tables' own invariants
// are checked where they are defined, when the module is compiled.
#include <gtest/gtest.h>

#include <cstdint>
#include <span>

#include "devices/demod_tables.h"
#include "devices/device_types.h"

namespace {

wstring text(wstring_view v)
{
    return wstring(v);
}

constexpr wstring_view invalid = "(invalid)"_w;

TEST(DeviceTypeKeys, NameOfTypeByte)
{
    const struct {
        std::uint8_t type;
        wstring_view key;
    } cases[] = {
        {0, "none"_w}, {128, "gull"_w}, {180, "fcn2l"_w}, {109, "kt-pro"_w}, {62, invalid}, {255, invalid},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(device_type_name(c.type)), text(c.key)) << "type " << int(c.type);
}

using table_of = std::span<const OptionEntry> demod_value_tables::*;

TEST(DemodTables, LayoutSpecificTexts)
{
    const demod_value_tables* layouts[] = {nullptr, &demod_tables_r1, &demod_tables_r2, &demod_tables_r3};
    constexpr int r1 = 1, r2 = 2, r3 = 3;
    const table_of fec_rate = &demod_value_tables::fecRate, fec_type = &demod_value_tables::fecType,
                   lnb = &demod_value_tables::lnbPower, band = &demod_value_tables::band;
    const struct {
        int layout;
        table_of table;
        std::uint8_t value;
        wstring_view expected;
    } cases[] = {
        {r1, fec_rate, 7, "1/1 Rate"_w},
        {r1, fec_rate, 8, invalid},
        {r2, fec_rate, 8, invalid},
        {r3, fec_rate, 8, "Reserved"_w},
        {r2, fec_rate, 12, invalid},
        {r3, fec_rate, 12, "NimbleFEC QPSK 0.631"_w},
        {r3, fec_rate, 27, "ULL QPSK 0.734"_w},
        {r3, fec_rate, 28, invalid},
        {r2, fec_type, 6, "Turbo"_w},
        {r2, fec_type, 7, invalid},
        {r3, fec_type, 9, "NimbleFEC ULL"_w},
        {r1, lnb, 3, "23Vdc"_w},
        {r2, lnb, 3, "23Vdc"_w},
        {r3, lnb, 2, "18Vdc"_w},
        {r3, lnb, 3, invalid},
        {r3, band, 0, "Dual Band"_w},
        {r3, band, 1, "Quad Band"_w},
        {r1, &demod_value_tables::externalReference, 5, "20.0MHz"_w},
        {r1, &demod_value_tables::configSlot, 9, "Config 9"_w},
        {r3, &demod_value_tables::sampleInterval, 9, "90 minutes"_w},
        {r3, &demod_value_tables::rollOff, 5, "5%"_w},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(lookup_option(layouts[c.layout]->*c.table, c.value)), text(c.expected))
            << "layout " << c.layout << ", value " << int(c.value);
}

}   // namespace
