#include <cstdio>
#include <sstream>

#include "events/alarm_type_map.h"
#include "tools/cli/cli_error.h"
#include "tools/cli/commands.h"
#include "tools/cli/event_lookup.h"
#include "tools/cli/payload_input.h"
#include "tools/cli/rendering.h"
#include "tools/cli/terminal.h"
#include "tools/sample_file.h"

namespace cli {

void register_alarm_file(const std::string& path)
{
    // The module keeps the name pointers: the names live as long as the program.
    static std::vector<std::unique_ptr<std::string>> names;
    std::istringstream lines(read_all(path));
    std::vector<alarm_type_record> records;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (line.empty() || line[0] == '#' || line.find_first_not_of(" \t\r") == std::string::npos)
            continue;
        const std::size_t blank = line.find_first_of(" \t");
        if (blank == std::string::npos)
            throw usage_error(path + ":" + std::to_string(number) + ": expected '{GUID} Name'");
        GUID id;
        try {
            id = samples::parse_event_id(line.substr(0, blank));
        } catch (const samples::format_error&) {
            throw usage_error(path + ":" + std::to_string(number) + ": '" + line.substr(0, blank) + "' is not a GUID");
        }
        std::string name = line.substr(line.find_first_not_of(" \t", blank));
        while (!name.empty() && (name.back() == '\r' || name.back() == ' '))
            name.pop_back();
        names.push_back(std::make_unique<std::string>(name));
        records.push_back({id, names.back()->c_str()});
    }
    alarm_types::register_records(static_cast<int>(records.size()), records.data());
}

void add_render(CLI::App& app, int& exit_code)
{
    auto* render = app.add_subcommand("render", "Renders one payload as the console would");
    static std::string event, alarms, colour = "auto";
    static std::vector<std::string> hex;
    static bool text_only = false, xml_only = false, json = false;
    static std::size_t capacity = ample_capacity;
    render->add_option("EVENT", event, "Event type: index, GUID or name (see 'korps list')")->required();
    render->add_option("PAYLOAD", hex,
                       "Payload bytes in hexadecimal (blanks allowed), @FILE for raw bytes, "
                       "- for raw bytes from standard input; none for an empty payload");
    auto* t = render->add_flag("--text", text_only, "Only the text form");
    render->add_flag("--xml", xml_only, "Only the XML form")->excludes(t);
    render->add_option("--capacity", capacity, "Render into a buffer of this many UTF-16 units, as a host would")
        ->check(CLI::Range(std::size_t(1), ample_capacity));
    render->add_option("--alarms", alarms, "Register alarm names first: a file of '{GUID} Name' lines")
        ->check(CLI::ExistingFile);
    render->add_flag("--json", json, "One JSON object");
    render->add_option("--color", colour, "Text in its display colour")
        ->check(CLI::IsMember({"auto", "always", "never"}));
    render->callback([&exit_code] {
        samples::register_alarm_types(&alarm_types::register_records);
        if (!alarms.empty())
            register_alarm_file(alarms);
        const event_type_row& row = find_event(event);
        const std::vector<std::uint8_t> payload = read_payload(hex);
        std::vector<form_result> forms;
        if (!xml_only)
            forms.push_back(render_form(row, true, payload, capacity));
        if (!text_only && row.xmlRenderer)
            forms.push_back(render_form(row, false, payload, capacity));
        bool ok = true;
        for (const form_result& f : forms)
            ok = ok && f.result == S_OK;
        if (json) {
            nlohmann::ordered_json j{{"index", index_of(row)},
                                     {"guid", guid_text(*row.eventType)},
                                     {"name", utf8(row.name)},
                                     {"payload_bytes", payload.size()}};
            for (const form_result& f : forms)
                j[f.text ? "text" : "xml"] = to_json(f);
            std::printf("%s\n", j.dump(2).c_str());
        } else {
            std::printf("%s  (index %zu, %s)\n", utf8(row.name).c_str(), index_of(row),
                        guid_text(*row.eventType).c_str());
            for (const form_result& f : forms)
                print(f, use_colour(colour));
            if (!text_only && !row.xmlRenderer)
                std::printf("xml   (this event type has no XML form)\n");
        }
        exit_code = ok ? success : failed;
    });
}

}   // namespace cli
