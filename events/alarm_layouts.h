// Where each unit type keeps which alarms in its alarm masks.
//
// A unit's masks hold groups of alarm bits at fixed byte offsets: the unit's
// own alarms, then transmit and receive, or, on the chassis types, one group
// of two bytes per demodulator slot after the unit group. A unit type without
// a row here reports no alarm bits that the module can name.
#pragma once

#include <cstdint>
#include <span>

#include "devices/device_types.h"
#include "events/alarm_bit_tables.h"
#include "events/unit_alarm_record.h"

struct alarm_group {
    std::span<const alarm_bit> bits;
    std::uint32_t offset;   // mask byte in which the group's bit 0 lies
};

struct alarm_layout {
    std::uint8_t deviceType;
    std::span<const alarm_group> groups;   // walked in this order
    std::span<const alarm_bit> demodulator;
    std::uint32_t demodulators;   // slots, each with a `demodulator` group
    bool inXml;   // whether the XML form lists the bits at all

    // Demodulator slot i (from 0) occupies these two bytes of the masks.
    static constexpr std::uint32_t first_slot_offset = 2;
    static constexpr std::uint32_t slot_bytes = 2;
    static constexpr std::uint32_t slot_offset(std::uint32_t i) noexcept { return first_slot_offset + slot_bytes * i; }
};

namespace alarm_layouts {

using namespace alarm_bits;

inline constexpr alarm_group modem[] = {{modem_unit, 0}, {modem_transmit, 2}, {modem_receive, 4}};
inline constexpr alarm_group chassis[] = {{modem_unit, 0}};
inline constexpr alarm_group fpga[] = {{fpga_unit, 0}, {fpga_transmit, 4}, {fpga_receive, 8}};
inline constexpr alarm_group packet[] = {{packet_unit, 0}, {packet_transmit, 2}, {packet_receive, 4}};
inline constexpr alarm_group receiver[] = {{receiver_unit, 0}};

// The XML form of the receive-only chassis (fcn3al) lists no alarm bits, only
// the state change: consumers of the XML read that unit's alarms from the
// text, and the form stays as they know it.
inline constexpr alarm_layout rows[] = {
    {device_types::fcn1l, modem, {}, 0, true},
    {device_types::fcn1i, modem, {}, 0, true},
    {device_types::fcn3l, chassis, chassis_demodulator, 4, true},
    {device_types::fcn4l, chassis, chassis_demodulator, 2, true},
    {device_types::osprey, fpga, {}, 0, true},
    {device_types::fcn1al, packet, {}, 0, true},
    {device_types::fcn3al, receiver, receiver_demodulator, 4, false},
};

// Every named bit lies inside the mask buffers, so no walk can reach past them.
consteval bool inside_masks(std::span<const alarm_bit> bits, std::uint32_t offset)
{
    for (const alarm_bit& b : bits)
        if (b.bit < 0 || offset + static_cast<std::uint32_t>(b.bit) / 8 >= unit_alarm_record::mask_capacity)
            return false;
    return true;
}

consteval bool all_inside_masks()
{
    for (const alarm_layout& layout : rows) {
        for (const alarm_group& group : layout.groups)
            if (!inside_masks(group.bits, group.offset))
                return false;
        if (layout.demodulators > 0 &&
            !inside_masks(layout.demodulator, alarm_layout::slot_offset(layout.demodulators - 1)))
            return false;
    }
    return true;
}
static_assert(all_inside_masks());

}   // namespace alarm_layouts

// The layout of a device type, or null when the type reports no named bits.
constexpr const alarm_layout* find_alarm_layout(std::uint8_t device_type) noexcept
{
    for (const alarm_layout& layout : alarm_layouts::rows)
        if (layout.deviceType == device_type)
            return &layout;
    return nullptr;
}
