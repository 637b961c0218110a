// The subcommands of `korps`; each adds itself to the application and runs
// when chosen. A run returns the exit code (cli_error.h).
#pragma once

#include <CLI/CLI.hpp>

namespace cli {

void add_list(CLI::App& app, int& exit_code);
void add_render(CLI::App& app, int& exit_code);
void add_log(CLI::App& app, int& exit_code);
void add_name(CLI::App& app, int& exit_code);

// Registers the alarm names of a file: one "{GUID} Name" pair a line, blank
// lines and lines starting with "#" ignored.
void register_alarm_file(const std::string& path);

}   // namespace cli
