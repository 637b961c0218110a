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
    text,   // u16 count and UTF-16 units, below 260
    number,   // u32, decimal
    temperature,   // u8, a signed byte of degrees Celsius
    option,   // u8 through the layout's value table
    scaled,   // i32 or u32 through a field scale (see `is_signed`)
    time_stamp,   // u32 seconds since 1970, UTC
    address,   // u32, dotted
    mac,   // u64, decimal
};

// Where a layout keeps a field: its section and group, or nowhere.
struct slot {
    bool carried = false;
    section in = section::unit;
    std::uint8_t group = 0;
};

inline constexpr slot no{};
constexpr slot unit(std::uint8_t group)
{
    return {true, section::unit, group};
}
constexpr slot demod(std::uint8_t group)
{
    return {true, section::demodulator, group};
}

struct field {
    wide_literal::text key;   // XML `id`
    wstring_view display;   // text form
    value kind;
    std::span<const OptionEntry> demod_value_tables::*table = nullptr;   // for `option`
    field_scale scale{};   // for `scaled`
    bool isSigned = false;   // for `scaled`
    std::array<slot, layouts> at{};   // R1, R2, R3
};

using tables = demod_value_tables;

// Scaled readings that go below zero on the wire.
inline constexpr bool signed_reading = true;

constexpr field opt(wide_literal::text key, wstring_view display, std::span<const OptionEntry> tables::*table,
                    std::array<slot, layouts> at)
{
    return {key, display, value::option, table, {}, false, at};
}

constexpr field plain(wide_literal::text key, wstring_view display, value kind, std::array<slot, layouts> at)
{
    return {key, display, kind, nullptr, {}, false, at};
}

constexpr field scaled(wide_literal::text key, wstring_view display, const field_scale& scale, bool is_signed,
                       std::array<slot, layouts> at)
{
    return {key, display, value::scaled, nullptr, scale, is_signed, at};
}

// Unit section groups: 0 identity, 1 status, 2 and 3 options, 4 supply and
// synthesizer alarms, 5 reference, 6 event log, 7 logged item, 8 network.
// Demodulator section groups: 0 status and readings, 1 alarms, 2 alarm masks,
// 3 receive settings, 4 coding, 5 LNB.
inline constexpr field fields[] = {
    plain("ModelNumber"_w, "Unit Model Number"_w, value::text, {unit(0), no, unit(0)}),
    plain("SerialNumber"_w, "Unit Serial Number"_w, value::number, {unit(0), no, unit(0)}),
    plain("Version"_w, "Unit Software Version Number"_w, value::text, {unit(0), no, no}),
    plain("CircuitID"_w, "Unit Circuit ID"_w, value::text, {unit(0), no, no}),
    opt("UnitStatus"_w, "Unit Alarm Status"_w, &tables::alarmState, {unit(1), no, unit(1)}),
    opt("RxStatus"_w, "Rx Alarm Status"_w, &tables::alarmState, {demod(0), demod(0), unit(1)}),
    opt("LnbStatus"_w, "LNB Alarm Status"_w, &tables::alarmState, {demod(0), demod(0), unit(1)}),
    plain("UnitTemp"_w, "Unit Temperature"_w, value::temperature, {unit(0), no, unit(0)}),
    opt("Ref2E7Opt"_w, "Reference 2E7 option Installed"_w, &tables::installed, {unit(2), no, no}),
    opt("Ref2E8Opt"_w, "Reference 2E8 option Installed"_w, &tables::installed, {unit(2), no, no}),
    opt("TurInst"_w, "Turbo Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("Tur095Inst"_w, "Turbo 0.95 Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("NFECOpt"_w, "NimbleFEC Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("Qam8Psk"_w, "Qam8 or 8PSK Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("Qam16"_w, "Qam16 Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("DR512kOpt"_w, "Data Rate 512kbps Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("DR1100kOpt"_w, "Datarate 1100kbps Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("DR2500kOpt"_w, "Datarate 2500kbps Installed"_w, &tables::installed, {no, no, unit(2)}),
    opt("DR5000kOpt"_w, "Datarate 5000kbps Installed"_w, &tables::installed, {no, no, unit(3)}),
    opt("DR10239kbpsOpt"_w, "Datarate 10239kbps Installed"_w, &tables::installed, {no, no, unit(3)}),
    opt("OFRInst"_w, "Optimized Filter Rolloff"_w, &tables::installed, {no, no, unit(3)}),
    opt("HeaderCompOpt"_w, "Header Compression Installed"_w, &tables::installed, {no, no, unit(3)}),
    opt("PayloadCompOpt"_w, "Payload Compression Installed"_w, &tables::installed, {no, no, unit(3)}),
    opt("CFSOpt"_w, "Corvane File Streamer Installed"_w, &tables::installed, {no, no, unit(3)}),
    opt("QuadBandUnit"_w, "Quad Band Unit"_w, &tables::band, {no, no, unit(3)}),
    opt("LBandUnit"_w, "L-Band Unit"_w, &tables::unitKind, {no, no, unit(3)}),
    opt("XrefStatus"_w, "Ext Reference Alarm Status"_w, &tables::alarmState, {unit(1), no, no}),
    plain("UnitType"_w, "Unit Type"_w, value::number, {unit(0), no, unit(0)}),
    opt("P5Alm"_w, "+5V Alarm"_w, &tables::alarmState, {unit(4), no, unit(4)}),
    opt("P12Alm"_w, "+12V Alarm"_w, &tables::alarmState, {unit(4), no, unit(4)}),
    opt("N5Alm"_w, "-5V Alarm"_w, &tables::alarmState, {unit(4), no, unit(4)}),
    opt("P23Alm"_w, "+23V Alarm"_w, &tables::alarmState, {unit(4), no, no}),
    opt("N12Alm"_w, "-12V Alarm"_w, &tables::alarmState, {unit(4), no, unit(4)}),
    opt("TxSynth"_w, "Tx Synthesizer Alarm"_w, &tables::alarmState, {unit(4), no, no}),
    opt("Rx1stLOSynth"_w, "Rx 1st LO synth Alarm"_w, &tables::alarmState, {unit(4), no, unit(4)}),
    opt("Rx2ndLOSynth"_w, "Rx 2nd LO synth Alarm"_w, &tables::alarmState, {unit(4), no, unit(4)}),
    opt("RefPLL"_w, "Ext Ref PLL Alarm"_w, &tables::alarmState, {unit(5), no, no}),
    opt("EEcksum"_w, "EEPROM Checksum Alarm"_w, &tables::alarmState, {unit(5), no, no}),
    opt("StoreLocation"_w, "Configuration Store Location"_w, &tables::configSlot, {unit(6), no, unit(6)}),
    opt("LoadLocation"_w, "Configuration Load Location"_w, &tables::configSlot, {unit(6), no, unit(6)}),
    opt("UnreadEvent"_w, "Unread Events Flag"_w, &tables::unreadFlag, {unit(6), no, unit(6)}),
    plain("EventLogItem"_w, "Event Log Item"_w, value::number, {unit(6), no, unit(6)}),
    opt("UnreadStat"_w, "Unread Statistics Flag"_w, &tables::unreadFlag, {unit(6), no, unit(6)}),
    opt("SampleInterval"_w, "Statistics Sample Interval"_w, &tables::sampleInterval, {unit(6), no, unit(6)}),
    scaled("LogMinEbNo"_w, "Log Item, Minimum EbNo"_w, scales::ebno, signed_reading, {unit(7), no, unit(7)}),
    scaled("LogAveEbNo"_w, "Log Item, Average EbNo"_w, scales::ebno, signed_reading, {unit(7), no, unit(7)}),
    plain("LogMaxPLI"_w, "Log Item, Max Tx Power Level Increase"_w, value::number, {unit(7), no, unit(7)}),
    plain("LogAvePLI"_w, "Log Item, Ave Tx Power Level Increase"_w, value::number, {unit(7), no, unit(7)}),
    plain("LogDateTime"_w, "Log Item, Date/Time Stamp"_w, value::time_stamp, {unit(7), no, unit(7)}),
    opt("XrefFrequency"_w, "Ext Ref Frequency"_w, &tables::externalReference, {unit(5), no, no}),
    opt("XrefAlarmMask"_w, "Ext Ref Alarm Mask"_w, &tables::alarmMask, {unit(5), no, no}),
    plain("IpAddress"_w, "Unit IP Address"_w, value::address, {unit(8), no, unit(8)}),
    plain("IpMask"_w, "Unit IP Mask"_w, value::address, {unit(8), no, unit(8)}),
    plain("MacAddress"_w, "Unit Ethernet MAC Address"_w, value::mac, {unit(8), no, unit(8)}),
    opt("DemLck"_w, "Demodulator Lock State"_w, &tables::lockState, {demod(0), demod(0), demod(0)}),
    scaled("RxEbNo"_w, "Rx EbNo"_w, scales::ebno, signed_reading, {demod(0), demod(0), demod(0)}),
    plain("EstBER"_w, "Rx Estimated Bit-Error-Rate"_w, value::number, {demod(0), demod(0), demod(0)}),
    scaled("RxFreqOffset"_w, "Rx Frequency Offset"_w, scales::frequency, signed_reading,
           {demod(0), demod(0), demod(0)}),
    plain("BufFillState"_w, "Buffer Fill State"_w, value::number, {demod(0), demod(0), demod(0)}),
    opt("AGC"_w, "Rx AGC Alarm"_w, &tables::alarmState, {demod(1), demod(1), demod(1)}),
    opt("BufUnder"_w, "Rx Buffer Underflow Alarm"_w, &tables::alarmState, {demod(1), demod(1), demod(1)}),
    opt("BufOver"_w, "Rx Buffer Overflow Alarm"_w, &tables::alarmState, {demod(1), demod(1), demod(1)}),
    opt("EbNoAlm"_w, "Rx EbNo Alarm"_w, &tables::alarmState, {demod(1), demod(1), demod(1)}),
    opt("DemodLock"_w, "Rx Demod Lock Alarm"_w, &tables::alarmState, {demod(1), demod(1), demod(1)}),
    opt("LnbCurrent"_w, "LNB Current Alarm"_w, &tables::alarmState, {demod(1), demod(1), demod(1)}),
    opt("LnbVoltage"_w, "LNB Voltage Alarm"_w, &tables::alarmState, {demod(1), demod(1), demod(1)}),
    opt("AgcMsk"_w, "Rx AGC Alarm Mask"_w, &tables::alarmMask, {demod(2), demod(2), demod(2)}),
    opt("EbMsk"_w, "Rx EbNo Alarm Mask"_w, &tables::alarmMask, {demod(2), demod(2), demod(2)}),
    opt("LnbMsk"_w, "LNB Alarm Mask"_w, &tables::alarmMask, {demod(2), demod(2), demod(2)}),
    opt("DmdMsk"_w, "Rx Unlock Alarm Mask"_w, &tables::alarmMask, {demod(2), demod(2), demod(2)}),
    scaled("RxFrequency"_w, "Rx Frequency"_w, scales::frequency, false, {demod(3), demod(3), demod(3)}),
    opt("RxSpcInv"_w, "Rx Spectral Inversion"_w, &tables::inversion, {demod(3), demod(3), demod(3)}),
    scaled("RxSweepRange"_w, "Rx Sweep Range"_w, scales::frequency, false, {demod(3), demod(3), demod(3)}),
    scaled("RxEbNoAlarm"_w, "Rx EbNo Alarm Point"_w, scales::ebno, signed_reading, {demod(3), demod(3), demod(3)}),
    scaled("RxSignalLevel"_w, "Rx Signal Level"_w, scales::signal_level, signed_reading,
           {demod(3), demod(3), demod(3)}),
    opt("RxROF"_w, "Rx Roll Off Factor"_w, &tables::rollOff, {no, no, demod(3)}),
    scaled("RxDatarate"_w, "Rx Data Rate"_w, scales::data_rate, false, {demod(3), demod(3), demod(3)}),
    opt("RxModulation"_w, "Rx Modulation"_w, &tables::modulation, {demod(4), demod(4), demod(4)}),
    opt("RxFecType"_w, "Rx FEC Type"_w, &tables::fecType, {demod(4), demod(4), demod(4)}),
    opt("RxFecRate"_w, "Rx FEC Rate"_w, &tables::fecRate, {demod(4), demod(4), demod(4)}),
    opt("RxScram"_w, "Rx Scrambler"_w, &tables::scrambler, {demod(4), demod(4), demod(4)}),
    opt("RxDataInvert"_w, "Rx Data Invert"_w, &tables::inversion, {demod(4), demod(4), demod(4)}),
    opt("RxClockInvert"_w, "Rx Clock Invert"_w, &tables::inversion, {no, no, demod(4)}),
    scaled("RxSymbolRate"_w, "Rx Symbol Rate"_w, scales::symbol_rate, false, {no, no, demod(4)}),
    opt("LnbPowerControl"_w, "LNB Power Control"_w, &tables::lnbPower, {demod(5), demod(5), demod(5)}),
    opt("LnbRefEnable"_w, "LNB Reference Enable"_w, &tables::enable, {demod(5), demod(5), demod(5)}),
    scaled("LnbCurrentLimitHigh"_w, "LNB High Current Limit"_w, scales::lnb_current, false,
           {demod(5), demod(5), demod(5)}),
    scaled("LnbCurrentLimitLow"_w, "LNB Low Current Limit"_w, scales::lnb_current, false,
           {demod(5), demod(5), demod(5)}),
    scaled("LnbFreqLO"_w, "LNB LO Frequency"_w, scales::lnb_lo_frequency, false, {demod(5), demod(5), demod(5)}),
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
    std::array<std::uint8_t, 8> fieldIndex{};   // into `fields`, bit order
    std::uint8_t count = 0;   // 0: the layout has no such group

    constexpr std::span<const std::uint8_t> members() const { return {fieldIndex.data(), count}; }
};

using section_groups = std::array<group, groups_per_section>;

consteval section_groups groups_of(layout l, section s)
{
    section_groups groups{};
    for (std::size_t i = 0; i < std::size(fields); ++i) {
        const slot at = fields[i].at[l];
        if (at.carried && at.in == s) {
            group& g = groups[at.group];
            g.fieldIndex[g.count++] = static_cast<std::uint8_t>(i);
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

}   // namespace family_a
