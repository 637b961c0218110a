// A unit's alarm state change: its state before and after, and its alarm
// masks before and after, as "Corvane Unit Alarm State Changed" carries them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/payload_cursor.h"
#include "events/alarm_state.h"

struct unit_alarm_record {
    // No unit reports more than 64 bytes of alarm mask; a longer mask is a
    // malformed payload.
    static constexpr std::size_t mask_capacity = 64;
    using mask = std::array<std::uint8_t, mask_capacity>;

    std::uint8_t deviceType = 0;
    render::alarm_state oldState{};
    render::alarm_state newState{};
    std::uint32_t maskLength = 0;
    mask oldMask{};   // bytes past mask_length stay clear
    mask newMask{};

    // Reads type, states, mask length and both masks; a mask longer than
    // mask_capacity or a payload too short for its fields is io::underflow.
    static unit_alarm_record read(payload_cursor& in);

    // Bit `bit` of the group whose bit 0 lies in byte `offset`. Bits past the
    // mask buffers read as clear.
    bool changed(std::size_t offset, std::int32_t bit) const noexcept;
    bool raised(std::size_t offset, std::int32_t bit) const noexcept;

    // Whether any of the `count` bytes from `offset` differ between the masks.
    bool bytes_changed(std::size_t offset, std::size_t count) const noexcept;
};
