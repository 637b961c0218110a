// Any payload into any buffer, through every renderer of the event table.
//
// Input: byte 0 picks the event type and the form, bytes 1-2 the capacity
// (bit 4 of byte 2 puts the registered alarm into the payload), the rest is
// the payload, copied into an allocation of its own size so that a read past
// it is caught. Canaries after the buffer catch writes past `capacity`.
//
// Invariants: the result is one a renderer documents; an error description is
// left with every DISP_E_EXCEPTION and never with S_OK or E_UNEXPECTED; a
// success holds a
// terminated text identical to the rendering into an ample buffer; a failure
// leaves a terminated prefix of that rendering; the counting form measures
// exactly what the ample rendering wrote, or fails as it did.
#include <algorithm>
#include <cstdint>
#include <memory>
#include <vector>

#include "core/platform.h"
#include "events/alarm_type_map.h"
#include "fuzz/fuzz_check.h"
#include "module/event_types.h"

namespace {

// An alarm registered under the all-zero identifier, so that alarm status
// payloads reach their named path, not only "bad alarm id".
const bool alarm_registered = [] {
    static const alarm_type_record link{GUID{}, "Link"};
    alarm_types::register_records(1, &link);
    return true;
}();

constexpr wchar canary = 0xA5A5;
constexpr std::size_t guard = 4;
constexpr std::size_t ample = 8192;   // above any capacity the input can pick

struct rendering {
    HRESULT result;
    std::vector<wchar> buffer;
    bool described;
};

rendering render_into(const event_type_row& row, bool text, const std::uint8_t* payload, std::size_t bytes,
                      std::size_t capacity)
{
    rendering r{S_OK, std::vector<wchar>(capacity + guard, canary), false};
    std::uint32_t colour = 0;
    const auto size = static_cast<std::uint32_t>(bytes);
    const auto units = static_cast<std::uint32_t>(capacity);
    r.result = text ? row.textRenderer(nullptr, size, payload, r.buffer.data(), units, &colour)
                    : row.xmlRenderer(nullptr, size, payload, r.buffer.data(), units);
    r.described = !platform::take_error_description().empty();
    for (std::size_t i = capacity; i < r.buffer.size(); ++i)
        FUZZ_REQUIRE(r.buffer[i] == canary);
    return r;
}

bool documented(HRESULT result)
{
    return result == S_OK || result == E_UNEXPECTED || result == E_NOTIMPL || result == E_OUTOFMEMORY ||
           result == DISP_E_EXCEPTION;
}

std::size_t terminated_length(const std::vector<wchar>& buffer, std::size_t capacity)
{
    const auto end = std::find(buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(capacity), wchar(0));
    return static_cast<std::size_t>(end - buffer.begin());
}

}   // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 3)
        return 0;
    const auto rows = event_types();
    const event_type_row& row = rows[data[0] % rows.size()];
    const bool text = (data[0] / rows.size()) % 2 == 0 || !row.xmlRenderer;
    const std::size_t capacity = data[1] | (data[2] & 0x0F) << 8;

    const std::size_t bytes = size - 3;
    const auto payload = std::make_unique<std::uint8_t[]>(bytes);
    std::copy(data + 3, data + size, payload.get());
    if (alarm_registered && (data[2] & 0x10) && bytes >= 18)
        std::fill(payload.get() + 2, payload.get() + 18, 0);

    const rendering r = render_into(row, text, payload.get(), bytes, capacity);
    FUZZ_REQUIRE(documented(r.result));
    // A DISP_E_EXCEPTION always says why; success and a refused size never
    // leave an error object. (E_NOTIMPL names the unit family it refuses.)
    if (r.result == DISP_E_EXCEPTION)
        FUZZ_REQUIRE(r.described);
    if (r.result == S_OK || r.result == E_UNEXPECTED)
        FUZZ_REQUIRE(!r.described);
    if (r.result == E_UNEXPECTED) {
        FUZZ_REQUIRE(capacity == 0 || r.buffer[0] == canary);   // refused before anything was written
        return 0;
    }

    const rendering full = render_into(row, text, payload.get(), bytes, ample);
    const std::size_t full_length = terminated_length(full.buffer, ample);
    std::size_t needed = 0;
    const render::room_function room = text ? row.textRoom : row.xmlRoom;
    const HRESULT measured = room(static_cast<std::uint32_t>(bytes), payload.get(), &needed);
    platform::take_error_description();
    if (full.result == S_OK) {
        // A payload text may hold NULs of its own: the measure counts every
        // unit written, and the terminator stands right after the last.
        FUZZ_REQUIRE(measured == S_OK && needed > full_length && needed <= ample);
        FUZZ_REQUIRE(full.buffer[needed - 1] == 0);
    } else if (measured == S_OK)
        FUZZ_REQUIRE(needed > ample);   // only want of room stopped the ample rendering
    else
        FUZZ_REQUIRE(measured == full.result);
    if (capacity == 0) {
        FUZZ_REQUIRE(r.result != S_OK);
        return 0;
    }
    const std::size_t length = terminated_length(r.buffer, capacity);
    FUZZ_REQUIRE(length < capacity);
    FUZZ_REQUIRE(length <= full_length);
    FUZZ_REQUIRE(
        std::equal(r.buffer.begin(), r.buffer.begin() + static_cast<std::ptrdiff_t>(length), full.buffer.begin()));
    if (r.result == S_OK) {
        FUZZ_REQUIRE(full.result == S_OK);
        FUZZ_REQUIRE(length == full_length);
    }
    return 0;
}
