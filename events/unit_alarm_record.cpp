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

} // namespace

unit_alarm_record unit_alarm_record::read(payload_cursor& in)
{
    unit_alarm_record record;
    record.device_type = in.read_u8();
    record.old_state = static_cast<render::alarm_state>(in.read_u32());
    record.new_state = static_cast<render::alarm_state>(in.read_u32());
    record.mask_length = in.read_u32();
    if (record.mask_length > mask_capacity)
        throw io::underflow();
    read_mask(in, record.mask_length, record.old_mask);
    read_mask(in, record.mask_length, record.new_mask);
    return record;
}

bool unit_alarm_record::changed(std::size_t offset, std::int32_t bit) const noexcept
{
    return bit_of(old_mask, offset, bit) != bit_of(new_mask, offset, bit);
}

bool unit_alarm_record::raised(std::size_t offset, std::int32_t bit) const noexcept
{
    return bit_of(new_mask, offset, bit);
}

bool unit_alarm_record::bytes_changed(std::size_t offset, std::size_t count) const noexcept
{
    for (std::size_t i = offset; i < offset + count && i < mask_capacity; ++i)
        if (old_mask[i] != new_mask[i])
            return true;
    return false;
}
