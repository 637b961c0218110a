// The names of the alarm bits that units report in their alarm masks.
//
// Each table lists the bits of one group of a mask in the order the unit
// documents them; a table is walked in that order. Bits that a unit leaves
// undefined have no row (hence the gaps), and the names stand exactly as the
// units' front panels print them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/wide.h"

struct alarm_bit {
    std::int32_t bit;   // counted from the group's first byte, bit 0 lowest
    wstring_view name;
};

// Later units reuse the alarm groups of earlier ones, with a few bits more or
// fewer; their tables are written that way, so a shared name is fixed once.

// `table` and then `more`.
template <std::size_t N, std::size_t M>
consteval std::array<alarm_bit, N + M> followed_by(const alarm_bit (&table)[N], const alarm_bit (&more)[M])
{
    std::array<alarm_bit, N + M> rows{};
    for (std::size_t i = 0; i < N; ++i)
        rows[i] = table[i];
    for (std::size_t i = 0; i < M; ++i)
        rows[N + i] = more[i];
    return rows;
}

// `table` without the rows of `bits`, each of which it must have.
template <std::size_t N, std::size_t K>
consteval std::array<alarm_bit, N - K> without(const alarm_bit (&table)[N], const std::int32_t (&bits)[K])
{
    std::array<alarm_bit, N - K> rows{};
    std::size_t kept = 0;
    for (const alarm_bit& row : table) {
        bool dropped = false;
        for (const std::int32_t bit : bits)
            dropped = dropped || row.bit == bit;
        if (!dropped) {
            if (kept == rows.size())
                throw "a bit to drop is not in the table";
            rows[kept++] = row;
        }
    }
    if (kept != rows.size())
        throw "a bit to drop stands in the table twice";
    return rows;
}

namespace alarm_bits {

// Modems with one demodulator ('4', '5') and the multi-demodulator chassis ('7', '8').
inline constexpr alarm_bit modem_unit[] = {
    {0, "+5V"_w},
    {1, "+12V"_w},
    {2, "-5V"_w},
    {3, "+23V"_w},
    {4, "-12V"_w},
    {5, "Tx Synthesizer"_w},
    {6, "Rx 1st LO synth"_w},
    {7, "Rx 2nd LO synth"_w},
    {8, "Ext Ref PLL"_w},
    {9, "EEPROM Checksum"_w},
};

inline constexpr alarm_bit modem_transmit[] = {
    {0, "Clock"_w},
    {1, "FIFO Slip"_w},
    {2, "AIS"_w},
    {3, "AUPC Upper Limit"_w},
    {4, "External Reference Lost"_w},
    {5, "BUC Current Window"_w},
    {6, "BUC Voltage Threshold"_w},
    {7, "BUC Checksum"_w},
    {8, "BUC PLL lock"_w},
    {9, "BUC Temperature"_w},
    {10, "G.703 Bipolar Violation"_w},
};

inline constexpr alarm_bit modem_receive[] = {
    {0, "Demod Lock"_w},
    {1, "AGC"_w},
    {2, "RS Frame Sync"_w},
    {3, "Xlink Frame Sync"_w},
    {4, "Buffer Underflow"_w},
    {5, "Buffer Overflow"_w},
    {6, "EbNo"_w},
    {7, "AIS"_w},
    {8, "Current"_w},
    {9, "Voltage"_w},
};

inline constexpr alarm_bit chassis_demodulator[] = {
    {0, "Rx Demod Lock"_w}, {1, "Rx AGC"_w},      {4, "Rx Buffer Underflow"_w}, {5, "Rx Buffer Overflow"_w},
    {6, "Rx EbNo"_w},       {8, "LNB Current"_w}, {9, "LNB Voltage"_w},
};

// The FPGA-based modem (':').
inline constexpr alarm_bit fpga_unit[] = {
    {0, "+5V"_w},
    {1, "+33V"_w},
    {2, "+25V"_w},
    {3, "+15V"_w},
    {4, "+12V"_w},
    {5, "-12V"_w},
    {6, "+18V"_w},
    {7, "Cooling Fan"_w},
    {8, "Ext Ref Activity"_w},
    {9, "Unlocked 192Mhz Clock"_w},
    {10, "Unlocked 10MHz Clock"_w},
    {11, "M&C FPGA Not Loaded"_w},
    {12, "Mod FPGA Not Loaded"_w},
    {13, "Demod FPGA Not Loaded"_w},
    {14, "Decoder FPGA Not Loaded"_w},
    {15, "Tx Intf FPGA Not Loaded"_w},
    {16, "Rx Intf FPGA Not Loaded"_w},
    {17, "FEC1 FPGA Not Loaded"_w},
    {18, "FEC2 FPGA Not Loaded"_w},
    {19, "OPC FPGA Not Loaded"_w},
    {20, "FPGA DCM Not Locked"_w},
};

inline constexpr alarm_bit fpga_transmit[] = {
    {0, "Symbol Clock Not Locked"_w}, {1, "RF Synthisizer Not Locked"_w}, {2, "No IQ Activity"_w},
    {3, "Nyquist Filter Clipping"_w}, {4, "Intf Clock PLL Not Locked"_w}, {5, "Intf Teres Clock No Activity"_w},
    {6, "Intf SCT PLL Not Locked"_w}, {7, "Intf No Data Activity"_w},
};

inline constexpr alarm_bit fpga_receive[] = {
    {0, "IF Unlock"_w},
    {1, "Data Decoder Unlock"_w},
    {2, "RF Synth Unlock"_w},
    {3, "IQ No Activity"_w},
    {4, "Intf Demux Unlock"_w},
    {5, "Intf Buffer Fault"_w},
    {6, "Intf Buffer PreSlip"_w},
    {7, "Intf Buffer Overflow"_w},
    {8, "Intf Buffer Underflow"_w},
    {9, "Intf Buffer Clock PLL Unlock"_w},
    {10, "Intf Buffer Clock Ref No Act"_w},
    {11, "Intf Data AIS"_w},
    {12, "Intf EbNo Alm"_w},
    {13, "Power > 40dBc"_w},
    {14, "Power > 20dBm"_w},
};

// The packet modem ('X'): the modem's alarms, less the +23V rail, plus two
// transmit alarms.
inline constexpr auto packet_unit = without(modem_unit, {3});

inline constexpr auto packet_transmit = followed_by(modem_transmit, {
                                                                        {11, "G.703 Signal Loss"_w},
                                                                        {12, "Tx PaP Ethernet"_w},
                                                                    });

inline constexpr alarm_bit packet_receive[] = {
    {0, "Demod Lock"_w}, {1, "AGC"_w}, {3, "Xlink Frame Sync"_w}, {4, "Buffer Underflow"_w}, {5, "Buffer Overflow"_w},
    {6, "EbNo"_w},       {7, "AIS"_w}, {8, "LNB Current"_w},      {9, "LNB Voltage"_w},
};

// The receive-only chassis ('^'): no transmitter, +23V rail, external
// reference or EEPROM alarm.
inline constexpr auto receiver_unit = without(modem_unit, {3, 5, 8, 9});

// Each of its demodulators reports the packet modem's receive alarms, less
// the Xlink framing.
inline constexpr auto receiver_demodulator = without(packet_receive, {3});

}   // namespace alarm_bits
