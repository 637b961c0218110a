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
    std::memcpy(record.flips.data(), masks, record.maskLength);
    std::memcpy(record.newMask.data(), masks + record.maskLength, record.maskLength);
    // Over the full capacity, a fixed count the compiler turns into a few
    // wide XORs: the bytes past the masks are clear in both.
    for (std::size_t i = 0; i < mask_capacity; ++i)
        record.flips[i] ^= record.newMask[i];
    return record;
}
