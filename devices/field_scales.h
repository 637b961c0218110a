// How the raw scaled fields of the parameter records are read: each field is
// an integer count of 10^-places of its unit table's first unit, and is shown
// through that table. The places are fixed per kind of quantity, here and
// nowhere else.
#pragma once

#include <span>

#include "devices/unit_entry.h"
#include "devices/unit_tables.h"

struct field_scale {
    std::span<const UnitEntry> units;
    unsigned places;
};

namespace scales {

inline constexpr unsigned frequency_places = 0;   // whole hertz
inline constexpr unsigned data_rate_places = 0;   // whole bits per second
inline constexpr unsigned symbol_rate_places = 0;   // whole symbols per second
inline constexpr unsigned signal_level_places = 1;   // tenths of a dBm
inline constexpr unsigned ebno_places = 1;   // tenths of a dB
inline constexpr unsigned lnb_current_places = 0;   // whole milliamperes
inline constexpr unsigned lnb_lo_frequency_places = 0;   // whole megahertz

// Frequencies, frequency offsets and sweep ranges.
inline constexpr field_scale frequency{units::frequency, frequency_places};
inline constexpr field_scale data_rate{units::data_rate, data_rate_places};
inline constexpr field_scale symbol_rate{units::symbol_rate, symbol_rate_places};
inline constexpr field_scale signal_level{units::level, signal_level_places};
// Eb/No readings, their logged minimum and average, and the alarm point.
inline constexpr field_scale ebno{units::ratio, ebno_places};
inline constexpr field_scale lnb_current{units::current, lnb_current_places};
inline constexpr field_scale lnb_lo_frequency{units::fixed_megahertz, lnb_lo_frequency_places};

}   // namespace scales
