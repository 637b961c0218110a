// The parameter record of the demodulator-class units (family A), in its
// three layouts, as one table of fields.
//
// A record holds one section, the unit section or the demodulator section,
// as a run of groups. Each group is a presence byte followed by the fields it
// marks present, in bit order; bit k stands for the k-th field of the group
// in the order of this table. A group that a layout does not carry at all has
// no presence byte in that layout. The wire format is in
// docs/device-parameters.md.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "devices/demod_tables.h"
#include "devices/field_scales.h"

namespace family_a {

enum layout : std::uint8_t { r1, r2, r3 };
inline constexpr std::size_t layouts = 3;

enum class section : std::uint8_t { unit, demodulator };

// What a field holds on the wire and how it is shown.
enum class value : std::uint8_t {
    text,         // u16 count and UTF-16 units, below 260
    number,       // u32, decimal
    temperature,  // u8, a signed byte of degrees Celsius
    option,       // u8 through the layout's value table
    scaled,       // i32 or u32 through a field scale (see `is_signed`)
    time_stamp,   // u32 seconds since 1970, UTC
    address,      // u32, dotted
    mac,          // u64, decimal
};

// Where a layout keeps a field: its section and group, or nowhere.
struct slot {
    bool carried = false;
    section in = section::unit;
    std::uint8_t group = 0;
};

inline constexpr slot no{};
constexpr slot unit(std::uint8_t group) { return {true, section::unit, group}; }
constexpr slot demod(std::uint8_t group) { return {true, section::demodulator, group}; }

struct field {
    std::string_view key;       // XML `id`
    std::string_view display;   // text form
    value kind;
    std::span<const OptionEntry> demod_value_tables::*table = nullptr;   // for `option`
    field_scale scale{};                                                  // for `scaled`
    bool is_signed = false;                                               // for `scaled`
    std::array<slot, layouts> at{};                                       // R1, R2, R3
};

using tables = demod_value_tables;

// Scaled readings that go below zero on the wire.
inline constexpr bool signed_reading = true;

constexpr field opt(std::string_view key, std::string_view display,
                    std::span<const OptionEntry> tables::*table, std::array<slot, layouts> at)
{
    return {key, display, value::option, table, {}, false, at};
}

constexpr field plain(std::string_view key, std::string_view display, value kind, std::array<slot, layouts> at)
{
    return {key, display, kind, nullptr, {}, false, at};
}

constexpr field scaled(std::string_view key, std::string_view display, const field_scale& scale, bool is_signed,
                       std::array<slot, layouts> at)
{
    return {key, display, value::scaled, nullptr, scale, is_signed, at};
}

// Unit section groups: 0 identity, 1 status, 2 and 3 options, 4 supply and
// synthesizer alarms, 5 reference, 6 event log, 7 logged item, 8 network.
// Demodulator section groups: 0 status and readings, 1 alarms, 2 alarm masks,
// 3 receive settings, 4 coding, 5 LNB.
inline constexpr field fields[] = {
    plain("ModelNumber", "Unit Model Number", value::text, {unit(0), no, unit(0)}),
    plain("SerialNumber", "Unit Serial Number", value::number, {unit(0), no, unit(0)}),
    plain("Version", "Unit Software Version Number", value::text, {unit(0), no, no}),
    plain("CircuitID", "Unit Circuit ID", value::text, {unit(0), no, no}),
    opt("UnitStatus", "Unit Alarm Status", &tables::alarm_state, {unit(1), no, unit(1)}),
    opt("RxStatus", "Rx Alarm Status", &tables::alarm_state, {demod(0), demod(0), unit(1)}),
    opt("LnbStatus", "LNB Alarm Status", &tables::alarm_state, {demod(0), demod(0), unit(1)}),
    plain("UnitTemp", "Unit Temperature", value::temperature, {unit(0), no, unit(0)}),
    opt("Ref2E7Opt", "Reference 2E7 option Installed", &tables::installed, {unit(2), no, no}),
    opt("Ref2E8Opt", "Reference 2E8 option Installed", &tables::installed, {unit(2), no, no}),
    opt("TurInst", "Turbo Installed", &tables::installed, {no, no, unit(2)}),
    opt("Tur095Inst", "Turbo 0.95 Installed", &tables::installed, {no, no, unit(2)}),
    opt("NFECOpt", "NimbleFEC Installed", &tables::installed, {no, no, unit(2)}),
    opt("Qam8Psk", "Qam8 or 8PSK Installed", &tables::installed, {no, no, unit(2)}),
    opt("Qam16", "Qam16 Installed", &tables::installed, {no, no, unit(2)}),
    opt("DR512kOpt", "Data Rate 512kbps Installed", &tables::installed, {no, no, unit(2)}),
    opt("DR1100kOpt", "Datarate 1100kbps Installed", &tables::installed, {no, no, unit(2)}),
    opt("DR2500kOpt", "Datarate 2500kbps Installed", &tables::installed, {no, no, unit(2)}),
    opt("DR5000kOpt", "Datarate 5000kbps Installed", &tables::installed, {no, no, unit(3)}),
    opt("DR10239kbpsOpt", "Datarate 10239kbps Installed", &tables::installed, {no, no, unit(3)}),
    opt("OFRInst", "Optimized Filter Rolloff", &tables::installed, {no, no, unit(3)}),
    opt("HeaderCompOpt", "Header Compression Installed", &tables::installed, {no, no, unit(3)}),
    opt("PayloadCompOpt", "Payload Compression Installed", &tables::installed, {no, no, unit(3)}),
    opt("CFSOpt", "Corvane File Streamer Installed", &tables::installed, {no, no, unit(3)}),
    opt("QuadBandUnit", "Quad Band Unit", &tables::band, {no, no, unit(3)}),
    opt("LBandUnit", "L-Band Unit", &tables::unit_kind, {no, no, unit(3)}),
    opt("XrefStatus", "Ext Reference Alarm Status", &tables::alarm_state, {unit(1), no, no}),
    plain("UnitType", "Unit Type", value::number, {unit(0), no, unit(0)}),
    opt("P5Alm", "+5V Alarm", &tables::alarm_state, {unit(4), no, unit(4)}),
    opt("P12Alm", "+12V Alarm", &tables::alarm_state, {unit(4), no, unit(4)}),
    opt("N5Alm", "-5V Alarm", &tables::alarm_state, {unit(4), no, unit(4)}),
    opt("P23Alm", "+23V Alarm", &tables::alarm_state, {unit(4), no, no}),
    opt("N12Alm", "-12V Alarm", &tables::alarm_state, {unit(4), no, unit(4)}),
    opt("TxSynth", "Tx Synthesizer Alarm", &tables::alarm_state, {unit(4), no, no}),
    opt("Rx1stLOSynth", "Rx 1st LO synth Alarm", &tables::alarm_state, {unit(4), no, unit(4)}),
    opt("Rx2ndLOSynth", "Rx 2nd LO synth Alarm", &tables::alarm_state, {unit(4), no, unit(4)}),
    opt("RefPLL", "Ext Ref PLL Alarm", &tables::alarm_state, {unit(5), no, no}),
    opt("EEcksum", "EEPROM Checksum Alarm", &tables::alarm_state, {unit(5), no, no}),
    opt("StoreLocation", "Configuration Store Location", &tables::config_slot, {unit(6), no, unit(6)}),
    opt("LoadLocation", "Configuration Load Location", &tables::config_slot, {unit(6), no, unit(6)}),
    opt("UnreadEvent", "Unread Events Flag", &tables::unread_flag, {unit(6), no, unit(6)}),
    plain("EventLogItem", "Event Log Item", value::number, {unit(6), no, unit(6)}),
    opt("UnreadStat", "Unread Statistics Flag", &tables::unread_flag, {unit(6), no, unit(6)}),
    opt("SampleInterval", "Statistics Sample Interval", &tables::sample_interval, {unit(6), no, unit(6)}),
    scaled("LogMinEbNo", "Log Item, Minimum EbNo", scales::ebno, signed_reading, {unit(7), no, unit(7)}),
    scaled("LogAveEbNo", "Log Item, Average EbNo", scales::ebno, signed_reading, {unit(7), no, unit(7)}),
    plain("LogMaxPLI", "Log Item, Max Tx Power Level Increase", value::number, {unit(7), no, unit(7)}),
    plain("LogAvePLI", "Log Item, Ave Tx Power Level Increase", value::number, {unit(7), no, unit(7)}),
    plain("LogDateTime", "Log Item, Date/Time Stamp", value::time_stamp, {unit(7), no, unit(7)}),
    opt("XrefFrequency", "Ext Ref Frequency", &tables::external_reference, {unit(5), no, no}),
    opt("XrefAlarmMask", "Ext Ref Alarm Mask", &tables::alarm_mask, {unit(5), no, no}),
    plain("IpAddress", "Unit IP Address", value::address, {unit(8), no, unit(8)}),
    plain("IpMask", "Unit IP Mask", value::address, {unit(8), no, unit(8)}),
    plain("MacAddress", "Unit Ethernet MAC Address", value::mac, {unit(8), no, unit(8)}),
    opt("DemLck", "Demodulator Lock State", &tables::lock_state, {demod(0), demod(0), demod(0)}),
    scaled("RxEbNo", "Rx EbNo", scales::ebno, signed_reading, {demod(0), demod(0), demod(0)}),
    plain("EstBER", "Rx Estimated Bit-Error-Rate", value::number, {demod(0), demod(0), demod(0)}),
    scaled("RxFreqOffset", "Rx Frequency Offset", scales::frequency, signed_reading, {demod(0), demod(0), demod(0)}),
    plain("BufFillState", "Buffer Fill State", value::number, {demod(0), demod(0), demod(0)}),
    opt("AGC", "Rx AGC Alarm", &tables::alarm_state, {demod(1), demod(1), demod(1)}),
    opt("BufUnder", "Rx Buffer Underflow Alarm", &tables::alarm_state, {demod(1), demod(1), demod(1)}),
    opt("BufOver", "Rx Buffer Overflow Alarm", &tables::alarm_state, {demod(1), demod(1), demod(1)}),
    opt("EbNoAlm", "Rx EbNo Alarm", &tables::alarm_state, {demod(1), demod(1), demod(1)}),
    opt("DemodLock", "Rx Demod Lock Alarm", &tables::alarm_state, {demod(1), demod(1), demod(1)}),
    opt("LnbCurrent", "LNB Current Alarm", &tables::alarm_state, {demod(1), demod(1), demod(1)}),
    opt("LnbVoltage", "LNB Voltage Alarm", &tables::alarm_state, {demod(1), demod(1), demod(1)}),
    opt("AgcMsk", "Rx AGC Alarm Mask", &tables::alarm_mask, {demod(2), demod(2), demod(2)}),
    opt("EbMsk", "Rx EbNo Alarm Mask", &tables::alarm_mask, {demod(2), demod(2), demod(2)}),
    opt("LnbMsk", "LNB Alarm Mask", &tables::alarm_mask, {demod(2), demod(2), demod(2)}),
    opt("DmdMsk", "Rx Unlock Alarm Mask", &tables::alarm_mask, {demod(2), demod(2), demod(2)}),
    scaled("RxFrequency", "Rx Frequency", scales::frequency, false, {demod(3), demod(3), demod(3)}),
    opt("RxSpcInv", "Rx Spectral Inversion", &tables::inversion, {demod(3), demod(3), demod(3)}),
    scaled("RxSweepRange", "Rx Sweep Range", scales::frequency, false, {demod(3), demod(3), demod(3)}),
    scaled("RxEbNoAlarm", "Rx EbNo Alarm Point", scales::ebno, signed_reading, {demod(3), demod(3), demod(3)}),
    scaled("RxSignalLevel", "Rx Signal Level", scales::signal_level, signed_reading,
           {demod(3), demod(3), demod(3)}),
    opt("RxROF", "Rx Roll Off Factor", &tables::roll_off, {no, no, demod(3)}),
    scaled("RxDatarate", "Rx Data Rate", scales::data_rate, false, {demod(3), demod(3), demod(3)}),
    opt("RxModulation", "Rx Modulation", &tables::modulation, {demod(4), demod(4), demod(4)}),
    opt("RxFecType", "Rx FEC Type", &tables::fec_type, {demod(4), demod(4), demod(4)}),
    opt("RxFecRate", "Rx FEC Rate", &tables::fec_rate, {demod(4), demod(4), demod(4)}),
    opt("RxScram", "Rx Scrambler", &tables::scrambler, {demod(4), demod(4), demod(4)}),
    opt("RxDataInvert", "Rx Data Invert", &tables::inversion, {demod(4), demod(4), demod(4)}),
    opt("RxClockInvert", "Rx Clock Invert", &tables::inversion, {no, no, demod(4)}),
    scaled("RxSymbolRate", "Rx Symbol Rate", scales::symbol_rate, false, {no, no, demod(4)}),
    opt("LnbPowerControl", "LNB Power Control", &tables::lnb_power, {demod(5), demod(5), demod(5)}),
    opt("LnbRefEnable", "LNB Reference Enable", &tables::enable, {demod(5), demod(5), demod(5)}),
    scaled("LnbCurrentLimitHigh", "LNB High Current Limit", scales::lnb_current, false,
           {demod(5), demod(5), demod(5)}),
    scaled("LnbCurrentLimitLow", "LNB Low Current Limit", scales::lnb_current, false,
           {demod(5), demod(5), demod(5)}),
    scaled("LnbFreqLO", "LNB LO Frequency", scales::lnb_lo_frequency, false, {demod(5), demod(5), demod(5)}),
};

inline constexpr std::uint8_t groups_per_section = 9;

// The value tables of each layout, in layout order.
inline constexpr const demod_value_tables* value_tables[layouts] = {&demod_tables_r1, &demod_tables_r2,
                                                                     &demod_tables_r3};

// --- Checks of the table ------------------------------------------------------

consteval std::size_t group_size(layout l, section s, std::uint8_t g)
{
    std::size_t n = 0;
    for (const field& f : fields)
        if (f.at[l].carried && f.at[l].in == s && f.at[l].group == g)
            ++n;
    return n;
}

consteval bool well_formed()
{
    for (std::uint8_t l = 0; l < layouts; ++l)
        for (const section s : {section::unit, section::demodulator})
            for (std::uint8_t g = 0; g < groups_per_section; ++g)
                if (group_size(layout(l), s, g) > 8)
                    return false;
    for (const field& f : fields) {
        for (std::uint8_t l = 0; l < layouts; ++l) {
            if (!f.at[l].carried)
                continue;
            if (f.at[l].group >= groups_per_section)
                return false;
            // Every coded field has a value table in each layout that carries it.
            if (f.kind == value::option && (value_tables[l]->*f.table).empty())
                return false;
        }
        if ((f.kind == value::option) != (f.table != nullptr) || (f.kind == value::scaled) != !f.scale.units.empty())
            return false;
    }
    return true;
}
static_assert(well_formed(), "a group holds at most eight fields, each with what its kind needs");
static_assert(group_size(r2, section::unit, 0) == 0, "R2 has no unit section");

// --- The groups of each layout and section, as lists of fields ---------------

struct group {
    std::array<std::uint8_t, 8> field_index{};   // into `fields`, bit order
    std::uint8_t count = 0;                       // 0: the layout has no such group

    constexpr std::span<const std::uint8_t> members() const { return {field_index.data(), count}; }
};

using section_groups = std::array<group, groups_per_section>;

consteval section_groups groups_of(layout l, section s)
{
    section_groups groups{};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        const slot at = fields[i].at[l];
        if (at.carried && at.in == s) {
            group& g = groups[at.group];
            g.field_index[g.count++] = static_cast<std::uint8_t>(i);
        }
    }
    return groups;
}

// Indexed by layout, then by section.
inline constexpr section_groups record_groups[layouts][2] = {
    {groups_of(r1, section::unit), groups_of(r1, section::demodulator)},
    {groups_of(r2, section::unit), groups_of(r2, section::demodulator)},
    {groups_of(r3, section::unit), groups_of(r3, section::demodulator)},
};

static_assert(std::size(fields) < 256, "groups index fields with a byte");

} // namespace family_a
