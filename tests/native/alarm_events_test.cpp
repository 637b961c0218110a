// Unit alarm state changes bit by bit: which mask bit names which alarm on
// which unit type, and the shapes that the sample files show only once.
#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/renderer.h"
#include "devices/device_types.h"
#include "events/alarm_events.h"
#include "events/alarm_state.h"
#include "events/unit_alarm_record.h"
#include "tests/native/test_text.h"

namespace {

struct rendered {
    HRESULT result;
    std::string text;
    std::uint32_t colour;
};

std::vector<std::uint8_t> alarm_payload(std::uint8_t type, const std::vector<std::uint8_t>& old_mask,
                                        const std::vector<std::uint8_t>& new_mask)
{
    std::vector<std::uint8_t> p = {type, 0, 0, 0, 0, 0, 0, 0, 0, static_cast<std::uint8_t>(old_mask.size()), 0, 0, 0};
    p.insert(p.end(), old_mask.begin(), old_mask.end());
    p.insert(p.end(), new_mask.begin(), new_mask.end());
    return p;
}

rendered text_of(const std::vector<std::uint8_t>& payload)
{
    wchar buffer[2048];
    std::uint32_t colour = 0;
    const HRESULT result = render::text_renderer<unit_alarm_state_changed_text>(
        nullptr, static_cast<std::uint32_t>(payload.size()), payload.data(), buffer, 2048, &colour);
    return {result, utf8(buffer), colour};
}

// One bit raised in an otherwise clear ten-byte mask.
std::vector<std::uint8_t> one_bit(std::size_t byte, int bit)
{
    std::vector<std::uint8_t> mask(10, 0);
    mask[byte] = static_cast<std::uint8_t>(1 << bit);
    return mask;
}

TEST(UnitAlarmBits, EachBitNamesItsAlarm)
{
    const struct {
        std::uint8_t type;
        std::size_t byte;
        int bit;
        const char* text;   // what raising the bit reads as
    } cases[] = {
        {device_types::fcn1l, 0, 3, "+23V alarmed"},
        {device_types::fcn1i, 3, 2, "G.703 Bipolar Violation alarmed"},
        {device_types::fcn1l, 5, 1, "Voltage alarmed"},
        {device_types::fcn1l, 6, 0, ""},   // past the receive group
        {device_types::osprey, 2, 4, "FPGA DCM Not Locked alarmed"},
        {device_types::osprey, 4, 5, "Intf Teres Clock No Activity alarmed"},
        {device_types::osprey, 9, 6, "Power > 20dBm alarmed"},
        {device_types::fcn1al, 0, 3, ""},   // the packet modem has no +23V rail
        {device_types::fcn1al, 3, 4, "Tx PaP Ethernet alarmed"},
        {device_types::fcn1al, 4, 2, ""},
        {device_types::fcn1al, 5, 0, "LNB Current alarmed"},
        {device_types::fcn3l, 1, 1, "EEPROM Checksum alarmed"},
        {device_types::fcn3l, 2, 2, "Device 1: "},   // a slot bit without a name still names the slot
        {device_types::fcn3l, 6, 4, "Device 3: Rx Buffer Underflow alarmed"},
        {device_types::fcn3l, 9, 1, "Device 4: LNB Voltage alarmed"},
        {device_types::fcn4l, 6, 0, ""},   // this chassis has two slots
        {device_types::fcn4l, 5, 0, "Device 2: LNB Current alarmed"},
        {device_types::fcn3al, 0, 5, ""},
        {device_types::fcn3al, 0, 7, "Rx 2nd LO synth alarmed"},
        {device_types::fcn3al, 8, 7, "Device 4: AIS alarmed"},
        {device_types::fcn3i, 0, 0, ""},   // no named alarm bits
    };
    for (const auto& c : cases) {
        const rendered r = text_of(alarm_payload(c.type, std::vector<std::uint8_t>(10, 0), one_bit(c.byte, c.bit)));
        EXPECT_EQ(r.result, S_OK);
        EXPECT_EQ(r.text, c.text) << "type " << int(c.type) << ", byte " << c.byte << ", bit " << c.bit;
    }
}

TEST(UnitAlarmRecord, RefusesMasksLongerThanItsBuffers)
{
    for (const std::uint32_t length : {65u, 0x100u, 0xFFFFFFFFu}) {
        std::vector<std::uint8_t> payload = {device_types::fcn1l, 0, 0, 0, 0, 0, 0, 0, 0};
        for (int i = 0; i < 4; ++i)
            payload.push_back(static_cast<std::uint8_t>(length >> 8 * i));
        payload.resize(payload.size() + 2 * 0x100, 0);
        payload_cursor in(payload.data(), payload.size());
        EXPECT_THROW(unit_alarm_record::read(in), io::underflow) << length;
    }
}

}   // namespace
