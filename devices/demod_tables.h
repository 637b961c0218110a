// Value-text tables of the demodulator parameter records.
//
// The record comes in three layouts: R1 and R2 from the older units, R3 from
// the units with Turbo/NimbleFEC, quad band and L-band options. Each layout
// sees its own set of tables through `demod_value_tables`; the sets differ only
// in FEC type, FEC rate and LNB power, and in which tables a layout uses at all
// (a table a layout has no field for is an empty span there, so every code
// shows as "(invalid)").
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>

#include "core/option_entry.h"

namespace demod_options {

inline constexpr OptionEntry alarm_state[] = {
    OPTION("OK", 0),
    OPTION("Alarmed", 1),
};

inline constexpr OptionEntry enable[] = {
    OPTION("Disable", 0),
    OPTION("Enable", 1),
};

inline constexpr OptionEntry alarm_mask[] = {
    OPTION("Unmasked", 0),
    OPTION("Masked", 1),
};

inline constexpr OptionEntry unread_flag[] = {
    OPTION("None", 0),
    OPTION("Unread Items Exist", 1),
};

inline constexpr OptionEntry installed[] = {
    OPTION("Not Installed", 0),
    OPTION("Installed", 1),
};

inline constexpr OptionEntry lock_state[] = {
    OPTION("Unlocked", 0),
    OPTION("Locked", 1),
};

inline constexpr OptionEntry inversion[] = {
    OPTION("Normal", 0),
    OPTION("Inverted", 1),
};

inline constexpr OptionEntry modulation[] = {
    OPTION("BPSK", 0), OPTION("QPSK", 1),   OPTION("OQPSK", 2),
    OPTION("8PSK", 3), OPTION("16-QAM", 4), OPTION("8-QAM", 5),
};

// R3 lists; the older layouts know only the leading part (see below).
inline constexpr OptionEntry fec_type[] = {
    OPTION("None", 0),          OPTION("Viterbi", 1),       OPTION("Viterbi+RS", 2), OPTION("Sequential", 3),
    OPTION("Sequential+RS", 4), OPTION("TCM+RS", 5),        OPTION("Turbo", 6),      OPTION("Reserved", 7),
    OPTION("NimbleFEC CCM", 8), OPTION("NimbleFEC ULL", 9),
};

inline constexpr OptionEntry fec_rate[] = {
    OPTION("5/16 Rate", 0),
    OPTION("21/44 Rate", 1),
    OPTION("1/2 Rate", 2),
    OPTION("2/3 Rate", 3),
    OPTION("3/4 Rate", 4),
    OPTION("7/8 Rate", 5),
    OPTION("0.95 Rate", 6),
    OPTION("1/1 Rate", 7),
    OPTION("Reserved", 8),
    OPTION("Reserved", 9),
    OPTION("NimbleFEC BPSK 0.488", 10),
    OPTION("NimbleFEC QPSK 0.533", 11),
    OPTION("NimbleFEC QPSK 0.631", 12),
    OPTION("NimbleFEC QPSK 0.706", 13),
    OPTION("NimbleFEC QPSK 0.803", 14),
    OPTION("NimbleFEC 8QAM 0.576", 15),
    OPTION("NimbleFEC 8QAM 0.642", 16),
    OPTION("NimbleFEC 8QAM 0.711", 17),
    OPTION("NimbleFEC 8QAM 0.780", 18),
    OPTION("NimbleFEC 16QAM 0.644", 19),
    OPTION("NimbleFEC 16QAM 0.731", 20),
    OPTION("NimbleFEC 16QAM 0.780", 21),
    OPTION("NimbleFEC 16QAM 0.829", 22),
    OPTION("NimbleFEC 16QAM 0.853", 23),
    OPTION("ULL BPSK 0.493", 24),
    OPTION("ULL QPSK 0.493", 25),
    OPTION("ULL QPSK 0.654", 26),
    OPTION("ULL QPSK 0.734", 27),
};

inline constexpr OptionEntry scrambler[] = {
    OPTION("Disabled", 0),
    OPTION("On (default type)", 1),
    OPTION("On, IESS-315 (Turbo Only)", 2),
};

// R1/R2 list; R3 units have no 23 V supply and drop the last row.
inline constexpr OptionEntry lnb_power[] = {
    OPTION("Disabled", 0),
    OPTION("13Vdc", 1),
    OPTION("18Vdc", 2),
    OPTION("23Vdc", 3),
};

inline constexpr OptionEntry config_slot[] = {
    OPTION("Config 0", 0), OPTION("Config 1", 1), OPTION("Config 2", 2), OPTION("Config 3", 3), OPTION("Config 4", 4),
    OPTION("Config 5", 5), OPTION("Config 6", 6), OPTION("Config 7", 7), OPTION("Config 8", 8), OPTION("Config 9", 9),
};

inline constexpr OptionEntry sample_interval[] = {
    OPTION("Off", 0),        OPTION("10 minutes", 1), OPTION("20 minutes", 2), OPTION("30 minutes", 3),
    OPTION("40 minutes", 4), OPTION("50 minutes", 5), OPTION("60 minutes", 6), OPTION("70 minutes", 7),
    OPTION("80 minutes", 8), OPTION("90 minutes", 9),
};

inline constexpr OptionEntry external_reference[] = {
    OPTION("Internal", 0), OPTION("1.0MHz", 1),  OPTION("2.0MHz", 2),
    OPTION("5.0MHz", 3),   OPTION("10.0MHz", 4), OPTION("20.0MHz", 5),
};

// Quad band first: the units report it that way and the order is kept.
inline constexpr OptionEntry band[] = {
    OPTION("Quad Band", 1),
    OPTION("Dual Band", 0),
};

inline constexpr OptionEntry unit_kind[] = {
    OPTION("IF unit", 0),
    OPTION("L-BAND unit", 1),
};

inline constexpr OptionEntry roll_off[] = {
    OPTION("35%", 0), OPTION("25%", 1), OPTION("20%", 2), OPTION("15%", 3), OPTION("10%", 4), OPTION("5%", 5),
};

// The rows of `table` up to and including the one that names `last`: an older
// layout's view of a list that newer units extended at the end. Naming the
// last value rather than a row count keeps the cut right if rows are edited;
// a value not in the table stops the build.
consteval std::span<const OptionEntry> rows_through(std::span<const OptionEntry> table, std::uint32_t last)
{
    for (std::size_t i = 0; i < table.size(); ++i)
        if (table[i].value == last)
            return table.first(i + 1);
    throw std::logic_error("rows_through: value not in table");
}

// Lookup takes the first match, so no row may hide another.
static_assert(values_unique(alarm_state));
static_assert(values_unique(enable));
static_assert(values_unique(alarm_mask));
static_assert(values_unique(unread_flag));
static_assert(values_unique(installed));
static_assert(values_unique(lock_state));
static_assert(values_unique(inversion));
static_assert(values_unique(modulation));
static_assert(values_unique(fec_type));
static_assert(values_unique(fec_rate));
static_assert(values_unique(scrambler));
static_assert(values_unique(lnb_power));
static_assert(values_unique(config_slot));
static_assert(values_unique(sample_interval));
static_assert(values_unique(external_reference));
static_assert(values_unique(band));
static_assert(values_unique(unit_kind));
static_assert(values_unique(roll_off));

}   // namespace demod_options

// The tables one record layout shows its coded fields with.
struct demod_value_tables {
    std::span<const OptionEntry> alarmState;
    std::span<const OptionEntry> enable;
    std::span<const OptionEntry> alarmMask;
    std::span<const OptionEntry> unreadFlag;
    std::span<const OptionEntry> installed;
    std::span<const OptionEntry> lockState;
    std::span<const OptionEntry> inversion;
    std::span<const OptionEntry> modulation;
    std::span<const OptionEntry> fecType;
    std::span<const OptionEntry> fecRate;
    std::span<const OptionEntry> scrambler;
    std::span<const OptionEntry> lnbPower;
    std::span<const OptionEntry> configSlot;
    std::span<const OptionEntry> sampleInterval;
    std::span<const OptionEntry> externalReference;
    std::span<const OptionEntry> band;
    std::span<const OptionEntry> unitKind;
    std::span<const OptionEntry> rollOff;
};

// R1: unit and demodulator sections of the older units, external reference
// included; FEC lists end at Turbo and "1/1 Rate".
inline constexpr demod_value_tables demod_tables_r1 = {
    .alarmState = demod_options::alarm_state,
    .enable = demod_options::enable,
    .alarmMask = demod_options::alarm_mask,
    .unreadFlag = demod_options::unread_flag,
    .installed = demod_options::installed,
    .lockState = demod_options::lock_state,
    .inversion = demod_options::inversion,
    .modulation = demod_options::modulation,
    .fecType = demod_options::rows_through(demod_options::fec_type, 6),
    .fecRate = demod_options::rows_through(demod_options::fec_rate, 7),
    .scrambler = demod_options::scrambler,
    .lnbPower = demod_options::lnb_power,
    .configSlot = demod_options::config_slot,
    .sampleInterval = demod_options::sample_interval,
    .externalReference = demod_options::external_reference,
    .band = {},
    .unitKind = {},
    .rollOff = {},
};

// R2: a demodulator section only, with the same lists as R1.
inline constexpr demod_value_tables demod_tables_r2 = {
    .alarmState = demod_options::alarm_state,
    .enable = demod_options::enable,
    .alarmMask = demod_options::alarm_mask,
    .unreadFlag = {},
    .installed = {},
    .lockState = demod_options::lock_state,
    .inversion = demod_options::inversion,
    .modulation = demod_options::modulation,
    .fecType = demod_tables_r1.fecType,
    .fecRate = demod_tables_r1.fecRate,
    .scrambler = demod_options::scrambler,
    .lnbPower = demod_options::lnb_power,
    .configSlot = {},
    .sampleInterval = {},
    .externalReference = {},
    .band = {},
    .unitKind = {},
    .rollOff = {},
};

// R3: the newer units; full FEC lists, no 23 V LNB supply, no external
// reference, and the band, unit kind and roll-off fields.
inline constexpr demod_value_tables demod_tables_r3 = {
    .alarmState = demod_options::alarm_state,
    .enable = demod_options::enable,
    .alarmMask = demod_options::alarm_mask,
    .unreadFlag = demod_options::unread_flag,
    .installed = demod_options::installed,
    .lockState = demod_options::lock_state,
    .inversion = demod_options::inversion,
    .modulation = demod_options::modulation,
    .fecType = demod_options::fec_type,
    .fecRate = demod_options::fec_rate,
    .scrambler = demod_options::scrambler,
    .lnbPower = demod_options::rows_through(demod_options::lnb_power, 2),
    .configSlot = demod_options::config_slot,
    .sampleInterval = demod_options::sample_interval,
    .externalReference = {},
    .band = demod_options::band,
    .unitKind = demod_options::unit_kind,
    .rollOff = demod_options::roll_off,
};
