#include "events/unit_alarm_record.h"

#include <algorithm>
#include <span>

namespace {

void read_mask(payload_cursor& in, std::uint32_t length, unit_alarm_record::mask& into)
{
    const std::span<const std::uint8_t> bytes = in.take(length);
    std::copy(bytes.begin(), bytes.end(), into.begin());
}

bool bit_of(const unit_alarm_record::mask& mask, std::size_t offset, std::int32_t bit) noexcept
{
    if (bit < 0)
        return false;
    const std::size_t byte = offset + static_cast<std::size_t>(bit) / 8;
    return byte < mask.size() && (mask[byte] >> (bit % 8) & 1) != 0;
}

}   // namespace

unit_alarm_record unit_alarm_record::read(payload_cursor& in)
{
    unit_alarm_record record;
    record.deviceType = in.read_u8();
    record.oldState = static_cast<render::alarm_state>(in.read_u32());
    record.newState = static_cast<render::alarm_state>(in.read_u32());
    record.maskLength = in.read_u32();
    if (record.maskLength > mask_capacity)
        throw io::underflow();
    read_mask(in, record.maskLength, record.oldMask);
    read_mask(in, record.maskLength, record.newMask);
    return record;
}

bool unit_alarm_record::changed(std::size_t offset, std::int32_t bit) const noexcept
{
    return bit_of(oldMask, offset, bit) != bit_of(newMask, offset, bit);
}

bool unit_alarm_record::raised(std::size_t offset, std::int32_t bit) const noexcept
{
    return bit_of(newMask, offset, bit);
}

bool unit_alarm_record::bytes_changed(std::size_t offset, std::size_t count) const noexcept
{
    for (std::size_t i = offset; i < offset + count && i < mask_capacity; ++i)
        if (oldMask[i] != newMask[i])
            return true;
    return false;
}
