// korps: the event renderers on the command line, for the people who debug
// what the console shows.
//
//   korps list                          the event types, in table order
//   korps render EVENT HEX [CAPACITY]   one payload through both renderers
//   korps log PATH                      a sample file or folder as an event log
//
// EVENT is a table index, a GUID or an event name; HEX the payload bytes.
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "core/platform.h"
#include "events/alarm_type_map.h"
#include "module/event_types.h"
#include "tools/sample_file.h"

namespace {

std::string utf8(wstring_view text)
{
    return platform::utf16_to_utf8(text, std::string::npos);
}

std::string guid_text(const GUID& id)
{
    char text[40];
    std::snprintf(text, sizeof text, "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                  static_cast<unsigned>(id.Data1), id.Data2, id.Data3, id.Data4[0], id.Data4[1], id.Data4[2],
                  id.Data4[3], id.Data4[4], id.Data4[5], id.Data4[6], id.Data4[7]);
    return text;
}

const event_type_row* find_event(const std::string& which)
{
    const auto rows = event_types();
    char* end = nullptr;
    const unsigned long index = std::strtoul(which.c_str(), &end, 10);
    if (!which.empty() && *end == '\0')
        return index < rows.size() ? &rows[index] : nullptr;
    for (const event_type_row& row : rows)
        if (utf8(row.name) == which)
            return &row;
    try {
        return find_event_type(samples::parse_event_id(which));
    } catch (const samples::format_error&) {
        return nullptr;
    }
}

// Renders the payload both ways; false when either renderer failed.
bool render_event(const event_type_row& row, const std::vector<std::uint8_t>& payload, std::size_t capacity)
{
    std::vector<wchar> buffer(capacity == 0 ? 1 : capacity);
    const auto bytes = static_cast<std::uint32_t>(payload.size());
    const auto units = static_cast<std::uint32_t>(capacity);
    bool ok = true;

    std::uint32_t colour = 0;
    HRESULT result = row.textRenderer(nullptr, bytes, payload.data(), buffer.data(), units, &colour);
    std::printf("%s\n", utf8(row.name).c_str());
    if (SUCCEEDED(result)) {
        std::printf("text   [0x%06X] %s\n", colour, utf8(buffer.data()).c_str());
    } else {
        std::printf("text   failed with 0x%08X %s\n", static_cast<unsigned>(result), platform::take_error_description().c_str());
        ok = false;
    }
    if (!row.xmlRenderer) {
        std::printf("xml    (this event type has no XML form)\n");
        return ok;
    }
    result = row.xmlRenderer(nullptr, bytes, payload.data(), buffer.data(), units);
    if (SUCCEEDED(result)) {
        std::printf("xml\n%s\n", utf8(buffer.data()).c_str());
    } else {
        std::printf("xml    failed with 0x%08X %s\n", static_cast<unsigned>(result), platform::take_error_description().c_str());
        ok = false;
    }
    return ok;
}

int list()
{
    const auto rows = event_types();
    for (std::size_t i = 0; i < rows.size(); ++i)
        std::printf("%-3zu %s %-3s %s\n", i, guid_text(*rows[i].eventType).c_str(), rows[i].xmlRenderer ? "xml" : "",
                    utf8(rows[i].name).c_str());
    return 0;
}

int usage()
{
    std::fprintf(stderr, "usage: korps list\n"
                         "       korps render EVENT HEX [CAPACITY]\n"
                         "       korps log PATH\n"
                         "EVENT is a table index, a GUID or an event name; HEX the payload bytes.\n");
    return 2;
}

} // namespace

int main(int argc, char** argv)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    if (args.empty())
        return usage();

    // The alarm names the samples use, as a host would register its own.
    for (const samples::alarm_type& alarm : samples::alarm_types) {
        const alarm_type_record record{alarm.id, alarm.name};
        RegisterAlarmTypeMap(1, &record);
    }

    try {
        if (args[0] == "list" && args.size() == 1)
            return list();
        if (args[0] == "render" && (args.size() == 3 || args.size() == 4)) {
            const event_type_row* row = find_event(args[1]);
            if (!row) {
                std::fprintf(stderr, "korps: no event type '%s' (see 'korps list')\n", args[1].c_str());
                return 1;
            }
            char* end = nullptr;
            const std::size_t capacity = args.size() == 4 ? std::strtoul(args[3].c_str(), &end, 10) : 8192;
            if (args.size() == 4 && (*end != '\0' || args[3].empty())) {
                std::fprintf(stderr, "korps: capacity '%s' is not a number\n", args[3].c_str());
                return 1;
            }
            return render_event(*row, samples::parse_hex_bytes(args[2]), capacity) ? 0 : 1;
        }
        if (args[0] == "log" && args.size() == 2) {
            const std::string& path = args[1];
            const auto events = path.ends_with(".samples") ? samples::load(path) : samples::load_folder(path);
            bool ok = true;
            for (const samples::sample& event : events) {
                const event_type_row* row = find_event_type(event.event);
                if (!row) {
                    std::printf("%s:%d: unknown event type %s\n", event.file.c_str(), event.line,
                                guid_text(event.event).c_str());
                    ok = false;
                    continue;
                }
                std::printf("-- %s: %s\n", event.file.c_str(), event.name.c_str());
                render_event(*row, event.payload, 8192);
            }
            return ok ? 0 : 1;
        }
    } catch (const std::exception& e) {
        std::fprintf(stderr, "korps: %s\n", e.what());
        return 1;
    }
    return usage();
}
