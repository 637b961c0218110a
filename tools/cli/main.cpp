// korps: the event renderers and "kor:" names on the command line, for the
// people who integrate, operate and debug the console.
//
//   korps list                 the event types
//   korps render EVENT [HEX]   one payload, both forms, as a host renders it
//   korps log FILE|-           an event log, with --check against expectations
//   korps name TEXT            a "kor:" device name taken apart
//
// Exit codes: 0 success; 1 a rendering, parse or check failed; 2 a usage error.
#include <algorithm>
#include <cstdio>

#include "korps_version.h"
#include "tools/cli/cli_error.h"
#include "tools/cli/commands.h"

int main(int argc, char** argv)
{
    CLI::App app{"korps: render management-server event payloads and take kor: device names apart"};
    app.require_subcommand(1);
    app.set_help_all_flag("--help-all", "Help on every command");
    app.set_version_flag("--version", "korps " KORPS_VERSION_TEXT);
    int exit_code = cli::success;
    cli::add_list(app, exit_code);
    cli::add_render(app, exit_code);
    cli::add_log(app, exit_code);
    cli::add_name(app, exit_code);
    const auto commands = app.get_subcommands({});
    if (argc > 1 && argv[1][0] != '-' &&
        std::none_of(commands.begin(), commands.end(), [&](const CLI::App* c) { return c->get_name() == argv[1]; })) {
        std::fprintf(stderr, "korps: no command '%s'; the commands are list, render, log and name (korps --help)\n",
                     argv[1]);
        return cli::usage;
    }
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForAllHelp& e) {
        return app.exit(e);
    } catch (const CLI::CallForVersion& e) {
        return app.exit(e);
    } catch (const CLI::ParseError& e) {
        app.exit(e);
        return cli::usage;
    } catch (const cli::usage_error& e) {
        std::fprintf(stderr, "korps: %s\n", e.what());
        return cli::usage;
    }
    return exit_code;
}
