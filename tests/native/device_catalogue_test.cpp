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

const wchar* const invalid = WSTR("(invalid)");

TEST(DeviceTypeKeys, NameOfTypeByte)
{
    const struct {
        std::uint8_t type;
        const wchar* key;
    } cases[] = {
        {0, WSTR("none")},     {128, WSTR("gull")}, {180, WSTR("fcn2l")},
        {109, WSTR("kt-pro")}, {62, invalid},       {255, invalid},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(device_type_name(c.type)), text(c.key)) << "type " << int(c.type);
}

using table_of = std::span<const OptionEntry> demod_value_tables::*;

TEST(DemodTables, LayoutSpecificTexts)
{
    const demod_value_tables *r1 = &demod_tables_r1, *r2 = &demod_tables_r2, *r3 = &demod_tables_r3;
    const table_of fec_rate = &demod_value_tables::fecRate, fec_type = &demod_value_tables::fecType,
                   lnb = &demod_value_tables::lnbPower, band = &demod_value_tables::band;
    const struct {
        const demod_value_tables* layout;
        table_of table;
        std::uint8_t value;
        const wchar* expected;
    } cases[] = {
        {r1, fec_rate, 7, WSTR("1/1 Rate")},
        {r1, fec_rate, 8, invalid},
        {r2, fec_rate, 8, invalid},
        {r3, fec_rate, 8, WSTR("Reserved")},
        {r2, fec_rate, 12, invalid},
        {r3, fec_rate, 12, WSTR("NimbleFEC QPSK 0.631")},
        {r3, fec_rate, 27, WSTR("ULL QPSK 0.734")},
        {r3, fec_rate, 28, invalid},
        {r2, fec_type, 6, WSTR("Turbo")},
        {r2, fec_type, 7, invalid},
        {r3, fec_type, 9, WSTR("NimbleFEC ULL")},
        {r1, lnb, 3, WSTR("23Vdc")},
        {r2, lnb, 3, WSTR("23Vdc")},
        {r3, lnb, 2, WSTR("18Vdc")},
        {r3, lnb, 3, invalid},
        {r3, band, 0, WSTR("Dual Band")},
        {r3, band, 1, WSTR("Quad Band")},
        {r1, &demod_value_tables::externalReference, 5, WSTR("20.0MHz")},
        {r1, &demod_value_tables::configSlot, 9, WSTR("Config 9")},
        {r3, &demod_value_tables::sampleInterval, 9, WSTR("90 minutes")},
        {r3, &demod_value_tables::rollOff, 5, WSTR("5%")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(lookup_option(c.layout->*c.table, c.value)), text(c.expected)) << "layout "
                                                                                      << (c.layout == r1   ? 1
                                                                                          : c.layout == r2 ? 2
                                                                                                           : 3)
                                                                                      << ", value " << int(c.value);
}

}   // namespace
