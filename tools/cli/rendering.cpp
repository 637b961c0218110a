#include "tools/cli/rendering.h"

#include <cstdio>
#include <vector>

#include "core/platform.h"
#include "tools/cli/event_lookup.h"
#include "tools/cli/terminal.h"
#include "tools/result_names.h"

namespace cli {
namespace {

std::string utf8_of(const std::u16string& text)
{
    return utf8(wstring_view(reinterpret_cast<const wchar*>(text.data()), text.size()));
}

}   // namespace

form_result render_form(const event_type_row& row, bool text, std::span<const std::uint8_t> payload,
                        std::size_t capacity)
{
    form_result r;
    r.text = text;
    std::vector<wchar> buffer(capacity + 1, 0);
    const auto bytes = static_cast<std::uint32_t>(payload.size());
    const auto units = static_cast<std::uint32_t>(capacity);
    r.result = text ? row.textRenderer(nullptr, bytes, payload.data(), buffer.data(), units, &r.colour)
                    : row.xmlRenderer(nullptr, bytes, payload.data(), buffer.data(), units);
    r.error = platform::take_error_description();
    for (std::size_t i = 0; i < capacity && buffer[i]; ++i)
        r.output += static_cast<char16_t>(buffer[i]);
    // The room the whole output needs, measured by the same renderer body
    // writing nothing; a payload it refuses has no such measure.
    // (It sets the count only on success, so a refusal leaves 0.)
    const render::room_function room = text ? row.textRoom : row.xmlRoom;
    room(bytes, payload.data(), &r.needed);
    platform::take_error_description();
    return r;
}

std::string rgb(std::uint32_t colour)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
    return text;
}

nlohmann::ordered_json to_json(const form_result& r)
{
    nlohmann::ordered_json j;
    j["result"] = static_cast<std::uint32_t>(r.result);
    j["result_name"] = results::name(r.result);
    j["output"] = utf8_of(r.output);
    if (r.text && r.result == S_OK) {
        j["colour"] = r.colour;
        j["rgb"] = rgb(r.colour);
    }
    if (!r.error.empty())
        j["error"] = r.error;
    if (r.needed)
        j["needed"] = r.needed;
    return j;
}

void print(const form_result& r, bool colour_text)
{
    const char* form = r.text ? "text" : "xml";
    if (r.result == S_OK) {
        if (r.text) {
            char colour[16];
            std::snprintf(colour, sizeof colour, "0x%06X", static_cast<unsigned>(r.colour));
            std::printf("%-5s S_OK, needs %zu units, colour %s (COLORREF %s)\n", form, r.needed, rgb(r.colour).c_str(),
                        colour);
            std::printf("  %s\n", coloured(utf8_of(r.output), r.colour, colour_text).c_str());
        } else {
            std::printf("%-5s S_OK, needs %zu units\n%s\n", form, r.needed, utf8_of(r.output).c_str());
        }
        return;
    }
    std::printf("%-5s %s%s%s\n", form, results::describe(r.result).c_str(), r.error.empty() ? "" : ": ",
                r.error.c_str());
    std::printf("  the buffer holds: \"%s\"\n", utf8_of(r.output).c_str());
    if (r.needed > r.output.size() + 1)
        std::printf("  the whole %s needs %zu units with its terminator\n", form, r.needed);
}

}   // namespace cli
