#include "events/unit_alarm_record.h"

#include <cstring>
#include <span>

unit_alarm_record unit_alarm_record::read(payload_cursor& in)
{
    // The fixed fields in one piece: type, old and new state, mask length.
    const std::uint8_t* const fields = in.take(1 + 3 * sizeof(std::uint32_t)).data();
    unit_alarm_record record;
    record.deviceType = fields[0];
    record.oldState = static_cast<render::alarm_state>(load_le<std::uint32_t>(fields + 1));
    record.newState = static_cast<render::alarm_state>(load_le<std::uint32_t>(fields + 5));
    record.maskLength = load_le<std::uint32_t>(fields + 9);
    if (record.maskLength > mask_capacity)
        throw io::underflow();
    // The old mask, then the new.
    const std::uint8_t* const masks = in.take(2 * std::size_t(record.maskLength)).data();
    const std::uint8_t* const new_mask = masks + record.maskLength;
    // Byte by byte over the mask alone: the bytes past it stay clear in both,
    // and a short mask costs a few stores.
    for (std::size_t i = 0; i < record.maskLength; ++i) {
        record.newMask[i] = new_mask[i];
        record.flips[i] = masks[i] ^ new_mask[i];
    }
    return record;
}
