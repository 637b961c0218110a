// Any payload, any buffer: every renderer must either render or fail with a
// result, and never read past the payload or write past the buffer. Under
// AddressSanitizer a stray access is a crash; the canary after the buffer
// catches writes that stay inside the allocation.
//
// Input: byte 0 picks the event type and the form, bytes 1-2 the capacity
// (and bit 4 of byte 2 names a registered alarm in the payload), the rest is
// the payload.
#include <cstdint>
#include <algorithm>
#include <cstdlib>
#include <vector>

#include "events/alarm_type_map.h"
#include "module/event_types.h"

namespace {

// An alarm registered under the all-zero identifier, so that alarm status
// payloads reach their named path, not only "bad alarm id".
const bool alarm_registered = [] {
    static const alarm_type_record link{GUID{}, "Link"};
    RegisterAlarmTypeMap(1, &link);
    return true;
}();

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 3)
        return 0;
    const auto rows = event_types();
    const event_type_row& row = rows[data[0] % rows.size()];
    const bool text = (data[0] / rows.size()) % 2 == 0 || !row.xmlRenderer;
    const std::size_t capacity = data[1] | (data[2] & 0x0F) << 8;

    // The payload in an allocation of its own, so that reading one byte past
    // it is caught.
    std::vector<std::uint8_t> payload(data + 3, data + size);
    if (alarm_registered && (data[2] & 0x10) && payload.size() >= 18)
        std::fill(payload.begin() + 2, payload.begin() + 18, 0);
    constexpr wchar canary = 0xA5A5;
    std::vector<wchar> buffer(capacity + 4, canary);
    std::uint32_t colour = 0;
    const auto bytes = static_cast<std::uint32_t>(payload.size());
    const auto units = static_cast<std::uint32_t>(capacity);
    const HRESULT result = text ? row.textRenderer(nullptr, bytes, payload.data(), buffer.data(), units, &colour)
                                : row.xmlRenderer(nullptr, bytes, payload.data(), buffer.data(), units);
    for (std::size_t i = capacity; i < buffer.size(); ++i)
        if (buffer[i] != canary)
            std::abort();
    // A success leaves a terminated text inside the buffer.
    if (result == S_OK) {
        bool terminated = false;
        for (std::size_t i = 0; i < capacity && !terminated; ++i)
            terminated = buffer[i] == 0;
        if (!terminated)
            std::abort();
    }
    return 0;
}
