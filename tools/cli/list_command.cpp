#include <cstdio>

#include <nlohmann/json.hpp>

#include "tools/cli/cli_error.h"
#include "tools/cli/commands.h"
#include "tools/cli/event_lookup.h"

namespace cli {

void add_list(CLI::App& app, int& exit_code)
{
    auto* list = app.add_subcommand("list", "The event types the module renders, in the order it hands them out");
    static bool json = false;
    list->add_flag("--json", json, "One JSON array of the event types");
    list->callback([&exit_code] {
        const auto rows = event_types();
        if (json) {
            nlohmann::ordered_json all = nlohmann::ordered_json::array();
            for (const event_type_row& row : rows)
                all.push_back({{"index", index_of(row)},
                               {"guid", guid_text(*row.eventType)},
                               {"xml", row.xmlRenderer != nullptr},
                               {"name", utf8(row.name)}});
            std::printf("%s\n", all.dump(2).c_str());
        } else {
            std::printf("%-5s %-38s %-3s  %s\n", "index", "guid", "xml", "name");
            for (const event_type_row& row : rows)
                std::printf("%-5zu %-38s %-3s  %s\n", index_of(row), guid_text(*row.eventType).c_str(),
                            row.xmlRenderer ? "yes" : "no", utf8(row.name).c_str());
        }
        exit_code = success;
    });
}

}   // namespace cli
