// A unit's alarm state change: its state before and after, and its alarm
// masks before and after, as "Corvane Unit Alarm State Changed" carries them.
// The record keeps the new mask and the bits that changed.
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

    // A mask with clear bytes after it, so that 64 bits may be loaded at once
    // from any of its bytes.
    using mask = std::array<std::uint8_t, mask_capacity + sizeof(std::uint64_t) - 1>;

    std::uint8_t deviceType = 0;
    render::alarm_state oldState{};
    render::alarm_state newState{};
    std::uint32_t maskLength = 0;
    mask newMask{};   // bytes past maskLength stay clear
    mask flips{};   // the old mask XOR the new

    // Reads type, states, mask length and both masks; a mask longer than
    // mask_capacity or a payload too short for its fields is io::underflow.
    static unit_alarm_record read(payload_cursor& in);

    // The 64 bits from byte `offset` on, bit i being bit i of the group whose
    // bit 0 lies in that byte: those that changed, and those now raised. Bits
    // past mask_capacity read as clear.
    std::uint64_t changes_from(std::size_t offset) const noexcept { return bits_from(flips, offset); }
    std::uint64_t raised_from(std::size_t offset) const noexcept { return bits_from(newMask, offset); }

    // Bit `bit` of the group whose bit 0 lies in byte `offset`. Bits past the
    // mask buffers read as clear, and negative bits are never set.
    bool changed(std::size_t offset, std::int32_t bit) const noexcept { return bit_of(flips, offset, bit); }
    bool raised(std::size_t offset, std::int32_t bit) const noexcept { return bit_of(newMask, offset, bit); }

private:
    static std::uint64_t bits_from(const mask& m, std::size_t offset) noexcept
    {
        return offset < mask_capacity ? load_le<std::uint64_t>(m.data() + offset) : 0;
    }

    static bool bit_of(const mask& m, std::size_t offset, std::int32_t bit) noexcept
    {
        if (bit < 0)
            return false;
        const std::size_t byte = offset + static_cast<std::size_t>(bit) / 8;
        return byte < mask_capacity && (m[byte] >> (bit % 8) & 1) != 0;
    }
};
