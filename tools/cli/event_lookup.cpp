#include "tools/cli/event_lookup.h"

#include <algorithm>
#include <cctype>
#include <cstdio>

#include "core/platform.h"
#include "tools/cli/cli_error.h"
#include "tools/sample_file.h"

namespace cli {
namespace {

std::string lower(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

}   // namespace

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

std::size_t index_of(const event_type_row& row)
{
    return static_cast<std::size_t>(&row - event_types().data());
}

const event_type_row& find_event(const std::string& which)
{
    const auto rows = event_types();
    if (!which.empty() && std::all_of(which.begin(), which.end(), [](unsigned char c) { return std::isdigit(c); })) {
        const unsigned long index = which.size() > 3 ? rows.size() : std::stoul(which);
        if (index >= rows.size())
            throw usage_error("event index " + which + " is out of range: the indexes go from 0 to " +
                              std::to_string(rows.size() - 1) + " (see 'korps list')");
        return rows[index];
    }
    std::vector<const event_type_row*> named;
    for (const event_type_row& row : rows)
        if (lower(utf8(row.name)) == lower(which))
            named.push_back(&row);
    if (named.size() == 1)
        return *named.front();
    if (named.size() > 1) {
        std::string candidates;
        for (const event_type_row* row : named)
            candidates += "\n  " + std::to_string(index_of(*row)) + "  " + guid_text(*row->eventType);
        throw usage_error("event name '" + which + "' is ambiguous; use an index or a GUID:" + candidates);
    }
    try {
        if (const event_type_row* row = find_event_type(samples::parse_event_id(which)))
            return *row;
        throw usage_error("no event type has the GUID " + which + " (see 'korps list')");
    } catch (const samples::format_error&) {
        throw usage_error("no event type is called '" + which + "' (see 'korps list')");
    }
}

}   // namespace cli
