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

struct alarm_bit {
    std::int32_t bit;   // counted from the group's first byte, bit 0 lowest
    const char* name;
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
    {0, "+5V"},
    {1, "+12V"},
    {2, "-5V"},
    {3, "+23V"},
    {4, "-12V"},
    {5, "Tx Synthesizer"},
    {6, "Rx 1st LO synth"},
    {7, "Rx 2nd LO synth"},
    {8, "Ext Ref PLL"},
    {9, "EEPROM Checksum"},
};

inline constexpr alarm_bit modem_transmit[] = {
    {0, "Clock"},
    {1, "FIFO Slip"},
    {2, "AIS"},
    {3, "AUPC Upper Limit"},
    {4, "External Reference Lost"},
    {5, "BUC Current Window"},
    {6, "BUC Voltage Threshold"},
    {7, "BUC Checksum"},
    {8, "BUC PLL lock"},
    {9, "BUC Temperature"},
    {10, "G.703 Bipolar Violation"},
};

inline constexpr alarm_bit modem_receive[] = {
    {0, "Demod Lock"},
    {1, "AGC"},
    {2, "RS Frame Sync"},
    {3, "Xlink Frame Sync"},
    {4, "Buffer Underflow"},
    {5, "Buffer Overflow"},
    {6, "EbNo"},
    {7, "AIS"},
    {8, "Current"},
    {9, "Voltage"},
};

inline constexpr alarm_bit chassis_demodulator[] = {
    {0, "Rx Demod Lock"},
    {1, "Rx AGC"},
    {4, "Rx Buffer Underflow"},
    {5, "Rx Buffer Overflow"},
    {6, "Rx EbNo"},
    {8, "LNB Current"},
    {9, "LNB Voltage"},
};

// The FPGA-based modem (':').
inline constexpr alarm_bit fpga_unit[] = {
    {0, "+5V"},
    {1, "+33V"},
    {2, "+25V"},
    {3, "+15V"},
    {4, "+12V"},
    {5, "-12V"},
    {6, "+18V"},
    {7, "Cooling Fan"},
    {8, "Ext Ref Activity"},
    {9, "Unlocked 192Mhz Clock"},
    {10, "Unlocked 10MHz Clock"},
    {11, "M&C FPGA Not Loaded"},
    {12, "Mod FPGA Not Loaded"},
    {13, "Demod FPGA Not Loaded"},
    {14, "Decoder FPGA Not Loaded"},
    {15, "Tx Intf FPGA Not Loaded"},
    {16, "Rx Intf FPGA Not Loaded"},
    {17, "FEC1 FPGA Not Loaded"},
    {18, "FEC2 FPGA Not Loaded"},
    {19, "OPC FPGA Not Loaded"},
    {20, "FPGA DCM Not Locked"},
};

inline constexpr alarm_bit fpga_transmit[] = {
    {0, "Symbol Clock Not Locked"},
    {1, "RF Synthisizer Not Locked"},
    {2, "No IQ Activity"},
    {3, "Nyquist Filter Clipping"},
    {4, "Intf Clock PLL Not Locked"},
    {5, "Intf Teres Clock No Activity"},
    {6, "Intf SCT PLL Not Locked"},
    {7, "Intf No Data Activity"},
};

inline constexpr alarm_bit fpga_receive[] = {
    {0, "IF Unlock"},
    {1, "Data Decoder Unlock"},
    {2, "RF Synth Unlock"},
    {3, "IQ No Activity"},
    {4, "Intf Demux Unlock"},
    {5, "Intf Buffer Fault"},
    {6, "Intf Buffer PreSlip"},
    {7, "Intf Buffer Overflow"},
    {8, "Intf Buffer Underflow"},
    {9, "Intf Buffer Clock PLL Unlock"},
    {10, "Intf Buffer Clock Ref No Act"},
    {11, "Intf Data AIS"},
    {12, "Intf EbNo Alm"},
    {13, "Power > 40dBc"},
    {14, "Power > 20dBm"},
};

// The packet modem ('X'): the modem's alarms, less the +23V rail, plus two
// transmit alarms.
inline constexpr auto packet_unit = without(modem_unit, {3});

inline constexpr auto packet_transmit = followed_by(modem_transmit, {
    {11, "G.703 Signal Loss"},
    {12, "Tx PaP Ethernet"},
});

inline constexpr alarm_bit packet_receive[] = {
    {0, "Demod Lock"},
    {1, "AGC"},
    {3, "Xlink Frame Sync"},
    {4, "Buffer Underflow"},
    {5, "Buffer Overflow"},
    {6, "EbNo"},
    {7, "AIS"},
    {8, "LNB Current"},
    {9, "LNB Voltage"},
};

// The receive-only chassis ('^'): no transmitter, +23V rail, external
// reference or EEPROM alarm.
inline constexpr auto receiver_unit = without(modem_unit, {3, 5, 8, 9});

// Each of its demodulators reports the packet modem's receive alarms, less
// the Xlink framing.
inline constexpr auto receiver_demodulator = without(packet_receive, {3});

} // namespace alarm_bits
