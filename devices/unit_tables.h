// Unit tables for scaled values.
//
// The formatters pick the largest row whose multiplier the value reaches, so
// rows rise by multiplier. All three demodulator record layouts print their
// scaled fields with identical units, so one set serves them all; only R3 has
// a symbol rate field.
#pragma once

#include "devices/unit_entry.h"

namespace units {

inline constexpr UnitEntry frequency[] = {
    UNIT("Hz", 1),
    UNIT("KHz", 1'000),
    UNIT("MHz", 1'000'000),
    UNIT("GHz", 1'000'000'000),
    UNIT("THz", 1'000'000'000'000),
};

inline constexpr UnitEntry data_rate[] = {
    UNIT("bps", 1),
    UNIT("Kbps", 1'000),
    UNIT("Mbps", 1'000'000),
    UNIT("Gbps", 1'000'000'000),
    UNIT("Tbps", 1'000'000'000'000),
};

inline constexpr UnitEntry symbol_rate[] = {
    UNIT("sps", 1),
    UNIT("Ksps", 1'000),
    UNIT("Msps", 1'000'000),
};

// Single-row tables: the value is printed as it stands, with its unit.
inline constexpr UnitEntry level[] = {UNIT("dBm", 1)};
inline constexpr UnitEntry ratio[] = {UNIT("dB", 1)};
inline constexpr UnitEntry current[] = {UNIT("mA", 1)};
// For the LNB LO frequency: always shown in megahertz, however large.
inline constexpr UnitEntry fixed_megahertz[] = {UNIT("MHz", 1)};

static_assert(rising_from_one(frequency) && rising_from_one(data_rate) && rising_from_one(symbol_rate) &&
              rising_from_one(level) && rising_from_one(ratio) && rising_from_one(current) &&
              rising_from_one(fixed_megahertz));
static_assert(short_units(frequency) && short_units(data_rate) && short_units(symbol_rate) && short_units(level) &&
              short_units(ratio) && short_units(current) && short_units(fixed_megahertz));

}   // namespace units
