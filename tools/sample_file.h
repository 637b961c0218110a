// Sample event payloads with their expected renderings, as kept in
// samples/*.samples (the format is described in docs/samples.md).
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/guid.h"
#include "core/win_types.h"

namespace samples {

// What one renderer is expected to do with the payload.
struct expectation {
    HRESULT result = S_OK;
    std::u16string output;   // the buffer afterwards
    std::optional<std::uint32_t> colour;   // text renderers, on success
    std::optional<std::string> error;   // the error object's description
};

struct sample {
    std::string name;
    std::string file;   // where it came from, for messages
    int line = 0;
    GUID event{};
    std::vector<std::uint8_t> payload;
    std::optional<std::size_t> capacity;   // the host's buffer, when not ample
    std::optional<expectation> text;
    std::optional<expectation> xml;
};

class format_error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

std::vector<sample> parse(const std::string& content, const std::string& file);

// The two field forms on their own: hexadecimal bytes (blanks ignored) and a
// GUID with or without braces. Both throw format_error.
std::vector<std::uint8_t> parse_hex_bytes(const std::string& text);
GUID parse_event_id(const std::string& text);
std::vector<sample> load(const std::filesystem::path& path);
// Every *.samples file of a folder, in name order.
std::vector<sample> load_folder(const std::filesystem::path& folder);

// The quoted form that the files use for a text: C escapes for control
// characters, quotes and backslashes, \uXXXX beyond ASCII.
std::string quote(const std::u16string& text);

// The alarm types that samples may name: "Alarm Status Changed" refuses any
// identifier the host has not registered.
struct alarm_type {
    GUID id;
    const char* name;
};

inline constexpr alarm_type alarm_types[] = {
    {make_guid("00000000-0000-0000-0000-000000000001"), "Link"},
};

// Registers alarm_types, as a host does before it renders anything, through
// `register_map`: the module's RegisterAlarmTypeMap export from outside the
// module, or alarm_types::register_records from inside. The module keeps the names, which are
// static, not the records.
template <class Record>
int register_alarm_types(int(KORPS_CDECL* register_map)(int, const Record*))
{
    Record records[std::size(alarm_types)];
    for (std::size_t i = 0; i < std::size(alarm_types); ++i)
        records[i] = {alarm_types[i].id, alarm_types[i].name};
    return register_map(static_cast<int>(std::size(records)), records);
}

}   // namespace samples
