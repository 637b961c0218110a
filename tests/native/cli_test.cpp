// The korps command line as its users call it: arguments, messages and exit
// codes, and JSON that parses back.
#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

#include <nlohmann/json.hpp>

#include "korps_version.h"

namespace {

struct run_result {
    int exitCode;
    std::string output;
};

// What korps prints: standard output, and standard error too unless told not to.
run_result korps(const std::string& arguments, bool errors_too = true)
{
    const std::string command = std::string(KORPS_CLI) + " " + arguments + (errors_too ? " 2>&1" : " 2>/dev/null");
    FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    std::array<char, 4096> chunk;
    while (const std::size_t n = std::fread(chunk.data(), 1, chunk.size(), pipe))
        output.append(chunk.data(), n);
    const int status = pclose(pipe);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, output};
}

const std::string samples = KORPS_SAMPLES_DIR;

TEST(CommandLine, ArgumentsMessagesAndExitCodes)
{
    const struct {
        std::string arguments;
        int exitCode;
        std::string says;   // a piece of what it prints
    } cases[] = {
        {"--help", 0, "Subcommands:"},
        {"--version", 0, "korps " KORPS_VERSION_TEXT},
        {"render --help", 0, "--capacity"},
        {"log --help", 0, "--check"},
        {"name --help", 0, "--from-stream"},
        {"list --help", 0, "--json"},
        {"", 2, "A subcommand is required"},
        {"frobnicate", 2, "no command 'frobnicate'"},
        {"list", 0, "39    {074642D0-C9AD-4304-8261-598D4C2A00F9} no   Demodulator Failed Event"},
        {"render 24 01000000 01000000 00000000 --color=never", 0, "Soft reset command  in blind mode succeeded."},
        {"render 'corvane unit RESET' 01000000 01000000 00000000 --text --color=never", 0,
         "#FFFF80 (COLORREF 0x80FFFF)"},
        {"render 074642c0-c9ad-4304-8261-598d4c2a00f9 '01000000 01000000 00000000' --xml", 0, "<reset-type>Soft"},
        {"render 'OSPREY Data Changed' 00", 2, "ambiguous; use an index or a GUID:\n  1  {91286A63"},
        {"render 'No Such Event'", 2, "no event type is called 'No Such Event'"},
        {"render 40", 2, "event index 40 is out of range"},
        {"render {00000000-0000-0000-0000-000000000009}", 2, "no event type has the GUID"},
        {"render 24 0g", 2, "'g' is not a hexadecimal digit"},
        {"render 24 012", 2, "an odd number of hexadecimal digits (3)"},
        {"render 24 @/no/such/file", 2, "cannot read '/no/such/file'"},
        {"render 24 01", 1, "DISP_E_EXCEPTION (0x80020009): an underflow occured"},
        {"render 22 0102", 1, "E_UNEXPECTED (0x8000FFFF)"},
        {"render 24 01000000 01000000 00000000 --text --capacity 20 --color=never", 1,
         "the buffer holds: \"Soft reset command \"\n  the whole text needs 45 units"},
        {"render 24 01000000 01000000 00000000 --xml --capacity 20 --json", 1, "\"needed\": 92"},
        {"render 24 00 --capacity -5", 2, "--capacity"},
        {"render 24 00 --capacity 0", 2, "--capacity"},
        {"render 13 '00 34'", 1, "E_NOTIMPL (0x80004001): the parameter records of this unit family are not supported"},
        {"render 24 00 --text --xml", 2, "excludes"},
        {"render 24 00 --color=sometimes", 2, "--color"},
        {"log /no/such/log", 2, "cannot read '/no/such/log'"},
        {"log " + samples + "/event-log.samples --check --color=never", 0, "every output as expected"},
        {"name kor:FCN1L-10.0.0.1", 0, "canonical    kor:fcn1l-10.0.0.1"},
        {"name kor:fcn1l-1.2.3", 1,
         "Expected a char with a value of '.'.\n  kor:fcn1l-1.2.3\n                 ^ at unit 15"},
        {"name transponder-5", 1, "does not start with \"kor:\""},
        {"name --from-stream '03000000 0C000000'", 0, "canonical    kor:transponder-12"},
        {"name --from-stream '03000000 0C00'", 1, "the stream holds no name: an underflow occured"},
        {"name --from-stream 09000000", 1, "an unknown kind"},
    };
    for (const auto& c : cases) {
        const run_result r = korps(c.arguments);
        EXPECT_EQ(r.exitCode, c.exitCode) << "korps " << c.arguments << "\n" << r.output;
        EXPECT_NE(r.output.find(c.says), std::string::npos) << "korps " << c.arguments << "\n" << r.output;
    }
}

TEST(CommandLine, JsonParsesBack)
{
    const auto list = nlohmann::json::parse(korps("list --json").output);
    ASSERT_EQ(list.size(), 40u);
    EXPECT_EQ(list[13]["name"], "Corvane Device Parameters Changed");
    EXPECT_EQ(list[23]["xml"], false);

    const auto render = nlohmann::json::parse(korps("render 24 01000000 01000000 00000000 --json").output);
    EXPECT_EQ(render["text"]["result_name"], "S_OK");
    EXPECT_EQ(render["text"]["rgb"], "#FFFF80");   // COLORREF 0x80FFFF
    EXPECT_EQ(render["text"]["output"], "Soft reset command  in blind mode succeeded.");
    EXPECT_EQ(render["xml"]["result"], 0);

    const auto name = nlohmann::json::parse(korps("name kor:fcn1l-10.0.0.1,7,3 --json").output);
    EXPECT_EQ(name["canonical"], "kor:fcn1l-10.0.0.1,7,3");
    EXPECT_EQ(name["stream"], "02000000 34000000 0100000A 03000000 07000000");

    // One object a line for the log; the summary goes to standard error.
    const std::string log = korps("log --json " + samples + "/event-log.samples", false).output;
    std::size_t lines = 0;
    for (std::size_t start = 0, end; (end = log.find('\n', start)) != std::string::npos; start = end + 1, ++lines)
        EXPECT_TRUE(nlohmann::json::accept(log.substr(start, end - start))) << lines;
    EXPECT_EQ(lines, 44u);
}

}   // namespace
