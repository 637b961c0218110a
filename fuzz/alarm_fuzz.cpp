// Alarm names registered by a host, then an "Alarm Status Changed" payload
// that may name them.
//
// Input: byte 0 counts the records to register (up to 7); each record is an
// identifier byte and a name length byte followed by that many name bytes;
// the rest is the payload, rendered in both forms into ample buffers and into
// one cut at byte 1 of the input. Identifiers come from a space of 256 (the
// identifier byte in the first GUID byte, the rest clear) so that the map,
// which only grows, stays small over millions of inputs; each identifier has
// one name store, kept alive as the map requires.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <vector>

#include "core/platform.h"
#include "events/alarm_type_map.h"
#include "fuzz/fuzz_check.h"
#include "module/event_types.h"

namespace {

constexpr std::size_t name_room = 64;
char names[256][name_room];

constexpr wchar canary = 0xA5A5;

void check(const event_type_row& row, bool text, const std::uint8_t* payload, std::size_t bytes, std::size_t capacity)
{
    std::vector<wchar> buffer(capacity + 4, canary);
    std::uint32_t colour = 0;
    const auto size = static_cast<std::uint32_t>(bytes);
    const auto units = static_cast<std::uint32_t>(capacity);
    const HRESULT result = text ? row.textRenderer(nullptr, size, payload, buffer.data(), units, &colour)
                                : row.xmlRenderer(nullptr, size, payload, buffer.data(), units);
    const bool described = !platform::take_error_description().empty();
    FUZZ_REQUIRE(result == S_OK || result == E_UNEXPECTED || result == DISP_E_EXCEPTION);
    FUZZ_REQUIRE(described == (result == DISP_E_EXCEPTION));
    for (std::size_t i = capacity; i < buffer.size(); ++i)
        FUZZ_REQUIRE(buffer[i] == canary);
}

}   // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2)
        return 0;
    const std::size_t count = data[0] % 8;
    const std::size_t cut = data[1];
    std::size_t at = 2;
    alarm_type_record records[8];
    std::size_t registered = 0;
    for (; registered < count && at + 2 <= size; ++registered) {
        const std::uint8_t id = data[at];
        const std::size_t length = std::min<std::size_t>({data[at + 1], name_room - 1, size - at - 2});
        std::memcpy(names[id], data + at + 2, length);
        names[id][length] = 0;
        records[registered] = {GUID{}, names[id]};
        reinterpret_cast<std::uint8_t*>(&records[registered].id)[15] = id;
        at += 2 + length;
    }
    alarm_types::register_records(static_cast<int>(registered), records);

    const event_type_row& row = event_type(korps_event::ALARM_STATUS_CHANGED);
    const std::size_t bytes = size - at;
    const auto payload = std::make_unique<std::uint8_t[]>(bytes);
    std::copy(data + at, data + size, payload.get());
    for (const bool text : {true, false}) {
        check(row, text, payload.get(), bytes, 4096);
        check(row, text, payload.get(), bytes, cut);
    }
    return 0;
}
