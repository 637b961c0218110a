// The constant catalogue: device type keys, demodulator value texts per
// record layout, and unit tables.
#include <gtest/gtest.h>

#include <cctype>
#include <cstdint>
#include <set>
#include <span>
#include <string>

#include "devices/demod_tables.h"
#include "devices/device_types.h"
#include "devices/unit_tables.h"

namespace {

wstring text(const wchar* p) { return wstring(p); }

const wchar* const invalid = WSTR("(invalid)");

TEST(DeviceTypeKeys, NameOfTypeByte)
{
    const struct { std::uint8_t type; const wchar* key; } cases[] = {
        {0, WSTR("none")},     {128, WSTR("gull")}, {180, WSTR("fcn2l")},
        {109, WSTR("kt-pro")}, {62, invalid},       {255, invalid},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(device_type_name(c.type)), text(c.key)) << "type " << int(c.type);
}

// Keys double as the type word of a display name: lower case, one per code.
TEST(DeviceTypeKeys, KeysLowerCaseCodesAndKeysUnique)
{
    std::set<std::uint32_t> codes;
    std::set<std::string> keys;
    for (const OptionEntry& row : DeviceTypeKeys) {
        const std::string key = row.narrow;
        for (char ch : key)
            EXPECT_FALSE(std::isupper(static_cast<unsigned char>(ch))) << key;
        EXPECT_LE(row.value, 0xFFu) << key;
        EXPECT_TRUE(codes.insert(row.value).second) << key;
        EXPECT_TRUE(keys.insert(key).second) << key;
    }
}

using table_of = std::span<const OptionEntry> demod_value_tables::*;

TEST(DemodTables, LayoutSpecificTexts)
{
    const demod_value_tables *r1 = &demod_tables_r1, *r2 = &demod_tables_r2, *r3 = &demod_tables_r3;
    const table_of fec_rate = &demod_value_tables::fec_rate, fec_type = &demod_value_tables::fec_type,
                   lnb = &demod_value_tables::lnb_power, band = &demod_value_tables::band;
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
        {r1, &demod_value_tables::external_reference, 5, WSTR("20.0MHz")},
        {r1, &demod_value_tables::config_slot, 9, WSTR("Config 9")},
        {r3, &demod_value_tables::sample_interval, 9, WSTR("90 minutes")},
        {r3, &demod_value_tables::roll_off, 5, WSTR("5%")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(text(lookup_option(c.layout->*c.table, c.value)), text(c.expected))
            << "layout " << (c.layout == r1 ? 1 : c.layout == r2 ? 2 : 3) << ", value " << int(c.value);
}

const std::span<const OptionEntry> all_option_tables[] = {
    DeviceTypeKeys,
    demod_options::alarm_state,
    demod_options::enable,
    demod_options::alarm_mask,
    demod_options::unread_flag,
    demod_options::installed,
    demod_options::lock_state,
    demod_options::inversion,
    demod_options::modulation,
    demod_options::fec_type,
    demod_options::fec_rate,
    demod_options::scrambler,
    demod_options::lnb_power,
    demod_options::config_slot,
    demod_options::sample_interval,
    demod_options::external_reference,
    demod_options::band,
    demod_options::unit_kind,
    demod_options::roll_off,
};

// No row is shadowed by an earlier one with the same value (lookup takes
// the first match).
TEST(OptionTables, EveryValueOnce)
{
    for (const auto& table : all_option_tables) {
        std::set<std::uint32_t> values;
        for (const OptionEntry& row : table)
            EXPECT_TRUE(values.insert(row.value).second) << row.narrow;
    }
}

TEST(UnitTables, RisingMultipliersFromOne)
{
    const std::span<const UnitEntry> tables[] = {
        units::frequency, units::data_rate, units::symbol_rate,    units::level,
        units::ratio,     units::current,   units::fixed_megahertz,
    };
    for (const auto& table : tables) {
        ASSERT_FALSE(table.empty());
        EXPECT_EQ(table.front().multiplier, 1u) << table.front().narrow;
        for (std::size_t i = 1; i < table.size(); ++i)
            EXPECT_GT(table[i].multiplier, table[i - 1].multiplier) << table[i].narrow;
    }
    EXPECT_EQ(units::frequency[4].multiplier, 1'000'000'000'000u);
}

} // namespace
