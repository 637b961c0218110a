#include "tools/cli/payload_input.h"

#include <cctype>
#include <fstream>
#include <iostream>
#include <iterator>
#include <sstream>

#include "tools/cli/cli_error.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace cli {

std::string read_all(const std::string& path)
{
    if (path == "-") {
#ifdef _WIN32
        _setmode(_fileno(stdin), _O_BINARY);
#endif
        return std::string(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
    }
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw usage_error("cannot read '" + path + "': no such file, or not readable");
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::uint8_t> hex_bytes(const std::string& text, const std::string& what)
{
    std::string digits;
    for (const char c : text) {
        if (std::isspace(static_cast<unsigned char>(c)))
            continue;
        if (!std::isxdigit(static_cast<unsigned char>(c)))
            throw usage_error(what + ": '" + std::string(1, c) + "' is not a hexadecimal digit");
        digits += c;
    }
    if (digits.size() % 2 != 0)
        throw usage_error(what + ": an odd number of hexadecimal digits (" + std::to_string(digits.size()) +
                          "); every byte takes two");
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes.push_back(static_cast<std::uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    return bytes;
}

std::vector<std::uint8_t> read_payload(const std::vector<std::string>& arguments)
{
    if (arguments.size() == 1 && (arguments[0] == "-" || arguments[0].starts_with("@"))) {
        const std::string bytes = read_all(arguments[0] == "-" ? "-" : arguments[0].substr(1));
        return std::vector<std::uint8_t>(bytes.begin(), bytes.end());
    }
    std::string text;
    for (const std::string& a : arguments)
        text += a + " ";
    return hex_bytes(text, "the payload");
}

}   // namespace cli
