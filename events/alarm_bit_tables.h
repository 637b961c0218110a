// The names of the alarm bits that units report in their alarm masks.
//
// Each table lists the bits of one group of a mask in the order the unit
// documents them; a table is walked in that order. Bits that a unit leaves
// undefined have no row (hence the gaps), and the names stand exactly as the
// units' front panels print them.
#pragma once

#include <cstdint>

struct alarm_bit {
    std::int32_t bit;   // counted from the group's first byte, bit 0 lowest
    const char* name;
};

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

// The packet modem ('X').
inline constexpr alarm_bit packet_unit[] = {
    {0, "+5V"},
    {1, "+12V"},
    {2, "-5V"},
    {4, "-12V"},
    {5, "Tx Synthesizer"},
    {6, "Rx 1st LO synth"},
    {7, "Rx 2nd LO synth"},
    {8, "Ext Ref PLL"},
    {9, "EEPROM Checksum"},
};

inline constexpr alarm_bit packet_transmit[] = {
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
    {11, "G.703 Signal Loss"},
    {12, "Tx PaP Ethernet"},
};

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

// The receive-only chassis ('^').
inline constexpr alarm_bit receiver_unit[] = {
    {0, "+5V"},
    {1, "+12V"},
    {2, "-5V"},
    {4, "-12V"},
    {6, "Rx 1st LO synth"},
    {7, "Rx 2nd LO synth"},
};

inline constexpr alarm_bit receiver_demodulator[] = {
    {0, "Demod Lock"},
    {1, "AGC"},
    {4, "Buffer Underflow"},
    {5, "Buffer Overflow"},
    {6, "EbNo"},
    {7, "AIS"},
    {8, "LNB Current"},
    {9, "LNB Voltage"},
};

} // namespace alarm_bits
