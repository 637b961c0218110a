#include <cstdio>
#include <map>
#include <sstream>

#include "events/alarm_type_map.h"
#include "tools/cli/cli_error.h"
#include "tools/cli/commands.h"
#include "tools/cli/event_lookup.h"
#include "tools/cli/payload_input.h"
#include "tools/cli/rendering.h"
#include "tools/cli/terminal.h"
#include "tools/result_names.h"
#include "tools/sample_file.h"

namespace cli {
namespace {

// A line of the plain log: EVENT, then the payload in hexadecimal. EVENT is an
// index, a GUID or a name in double quotes.
samples::sample plain_event(const std::string& line, const std::string& file, int number)
{
    std::string event, rest;
    if (line[0] == '"') {
        const std::size_t end = line.find('"', 1);
        if (end == std::string::npos)
            throw usage_error(file + ":" + std::to_string(number) + ": the event name has no closing quote");
        event = line.substr(1, end - 1);
        rest = line.substr(end + 1);
    } else {
        const std::size_t blank = line.find_first_of(" \t");
        event = line.substr(0, blank);
        rest = blank == std::string::npos ? "" : line.substr(blank);
    }
    const std::string where = file + ":" + std::to_string(number);
    samples::sample s;
    s.file = file;
    s.line = number;
    s.name = event;
    try {
        s.event = *find_event(event).eventType;
    } catch (const usage_error& e) {
        throw usage_error(where + ": " + e.what());
    }
    s.payload = hex_bytes(rest, where);
    return s;
}

std::vector<samples::sample> read_log(const std::string& path)
{
    const std::string content = read_all(path);
    const std::string file = path == "-" ? "(standard input)" : path;
    if (content.starts_with("sample:") || content.find("\nsample:") != std::string::npos) {
        try {
            return samples::parse(content, file);
        } catch (const samples::format_error& e) {
            throw usage_error(e.what());
        }
    }
    std::vector<samples::sample> events;
    std::istringstream lines(content);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.find_first_not_of(" \t") == std::string::npos || line[line.find_first_not_of(" \t")] == '#')
            continue;
        events.push_back(plain_event(line.substr(line.find_first_not_of(" \t")), file, number));
    }
    return events;
}

// The first unit at which two texts differ, as "unit N".
std::string first_difference(const std::u16string& expected, const std::u16string& got)
{
    std::size_t i = 0;
    while (i < expected.size() && i < got.size() && expected[i] == got[i])
        ++i;
    return "unit " + std::to_string(i);
}

// What differs from the sample's expectation, or "".
std::string difference(const form_result& r, const samples::expectation& e)
{
    if (r.result != e.result)
        return "result " + results::name(r.result) + ", expected " + results::name(e.result);
    if (r.output != e.output)
        return "output differs from the expected at " + first_difference(e.output, r.output) + ": got \"" +
               samples::quote(r.output) + "\", expected \"" + samples::quote(e.output) + "\"";
    if (e.colour && r.result == S_OK && r.colour != *e.colour)
        return "colour " + rgb(r.colour) + ", expected " + rgb(*e.colour);
    if (e.error && r.error != *e.error)
        return "error \"" + r.error + "\", expected \"" + *e.error + "\"";
    return "";
}

}   // namespace

void add_log(CLI::App& app, int& exit_code)
{
    auto* log = app.add_subcommand("log", "Renders an event log: a samples file, or one event a line");
    static std::string path, colour = "auto";
    static bool json = false, check = false;
    log->add_option("FILE", path, "The log: a file, or - for standard input")->required();
    log->add_flag("--json", json, "One JSON object a line");
    log->add_flag("--check", check, "Compare each sample with its expected outputs");
    log->add_option("--color", colour, "Texts in their display colour")
        ->check(CLI::IsMember({"auto", "always", "never"}));
    log->callback([&exit_code] {
        samples::register_alarm_types(&alarm_types::register_records);
        const std::vector<samples::sample> events = read_log(path);
        if (check && std::none_of(events.begin(), events.end(), [](const auto& s) { return s.text || s.xml; }))
            throw usage_error("--check needs a samples file, whose records say what to expect");
        int rendered = 0, failed_expectedly = 0, failed_unexpectedly = 0, differing = 0;
        std::map<std::string, int> by_result;
        for (const samples::sample& s : events) {
            const event_type_row* row = find_event_type(s.event);
            if (!row)
                throw usage_error(s.file + ":" + std::to_string(s.line) + ": the module renders no event type " +
                                  guid_text(s.event));
            nlohmann::ordered_json j{{"file", s.file},           {"line", s.line},
                                     {"sample", s.name},         {"index", index_of(*row)},
                                     {"event", utf8(row->name)}, {"guid", guid_text(*row->eventType)}};
            if (!json)
                std::printf("-- %s:%d  %s  [%zu %s]\n", s.file.c_str(), s.line, s.name.c_str(), index_of(*row),
                            utf8(row->name).c_str());
            for (const bool text : {true, false}) {
                const auto& expected = text ? s.text : s.xml;
                // A sample renders the forms it describes; a plain line both.
                if ((!text && !row->xmlRenderer) || ((s.text || s.xml) && !expected))
                    continue;
                const form_result r = render_form(*row, text, s.payload, s.capacity.value_or(ample_capacity));
                const bool as_expected = expected && r.result == expected->result;
                if (r.result == S_OK) {
                    ++rendered;
                } else {
                    ++by_result[results::name(r.result)];
                    ++(as_expected ? failed_expectedly : failed_unexpectedly);
                }
                const std::string diff = check && expected ? difference(r, *expected) : "";
                if (!diff.empty())
                    ++differing;
                if (json) {
                    j[text ? "text" : "xml"] = to_json(r);
                    if (!diff.empty())
                        j[text ? "text" : "xml"]["difference"] = diff;
                    continue;
                }
                print(r, use_colour(colour));
                if (r.result != S_OK && as_expected)
                    std::printf("  (this failure is expected)\n");
                if (!diff.empty())
                    std::printf("  DIFFERENT: %s\n", diff.c_str());
            }
            if (json)
                std::printf("%s\n", j.dump().c_str());
        }
        std::string failures;
        for (const auto& [name, count] : by_result)
            failures += (failures.empty() ? ": " : ", ") + name + " " + std::to_string(count);
        std::fprintf(
            json ? stderr : stdout, "%zu events: %d renderings succeeded, %d failed (%d as expected%s)%s\n",
            events.size(), rendered, failed_expectedly + failed_unexpectedly, failed_expectedly, failures.c_str(),
            check ? (differing ? (", " + std::to_string(differing) + " differ from the expected outputs").c_str()
                               : ", every output as expected")
                  : "");
        exit_code = failed_unexpectedly || differing ? failed : success;
    });
}

}   // namespace cli
