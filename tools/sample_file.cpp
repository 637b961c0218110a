#include "tools/sample_file.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <optional>
#include <sstream>

#include "tools/result_names.h"

namespace samples {
namespace {

[[noreturn]] void fail(const std::string& file, int line, const std::string& what)
{
    throw format_error(file + ":" + std::to_string(line) + ": " + what);
}

int hex_value(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

// A count of UTF-16 units, in decimal, 1 or more.
std::size_t parse_units(const std::string& value, const std::string& file, int line)
{
    const auto digit = [](char c) { return c >= '0' && c <= '9'; };
    if (value.empty() || value.size() > 7 || !std::all_of(value.begin(), value.end(), digit) || std::stoul(value) == 0)
        fail(file, line, "expected a capacity of 1 to 9999999 units, got '" + value + "'");
    return std::stoul(value);
}

std::uint32_t parse_hex_number(const std::string& value, const std::string& file, int line)
{
    std::size_t used = 0;
    unsigned long number = 0;
    try {
        number = std::stoul(value, &used, 16);
    } catch (const std::exception&) {
        used = 0;
    }
    if (used == 0 || used != value.size() || number > 0xFFFFFFFFul)
        fail(file, line, "expected a hexadecimal number, got '" + value + "'");
    return static_cast<std::uint32_t>(number);
}

HRESULT parse_result(const std::string& value, const std::string& file, int line)
{
    if (const std::optional<HRESULT> named = results::named(value))
        return *named;
    return static_cast<HRESULT>(parse_hex_number(value, file, line));
}

std::vector<std::uint8_t> parse_bytes(const std::string& value, const std::string& file, int line)
{
    std::vector<std::uint8_t> bytes;
    int high = -1;
    for (char c : value) {
        if (std::isspace(static_cast<unsigned char>(c)))
            continue;
        const int digit = hex_value(c);
        if (digit < 0)
            fail(file, line, std::string("not a hexadecimal digit: '") + c + "'");
        if (high < 0) {
            high = digit;
        } else {
            bytes.push_back(static_cast<std::uint8_t>(high << 4 | digit));
            high = -1;
        }
    }
    if (high >= 0)
        fail(file, line, "odd number of hexadecimal digits");
    return bytes;
}

GUID parse_guid(std::string value, const std::string& file, int line)
{
    value.erase(std::remove_if(value.begin(), value.end(), [](char c) { return c == '{' || c == '}'; }), value.end());
    std::string digits;
    for (std::size_t i = 0; i < value.size(); ++i)
        if (value[i] != '-')
            digits += value[i];
    if (value.size() != 36 || digits.size() != 32)
        fail(file, line, "expected a GUID such as {074642c0-c9ad-4304-8261-598d4c2a00f9}");
    const std::vector<std::uint8_t> b = parse_bytes(digits, file, line);
    GUID guid{};
    guid.Data1 = static_cast<decltype(guid.Data1)>(b[0] << 24 | b[1] << 16 | b[2] << 8 | b[3]);
    guid.Data2 = static_cast<decltype(guid.Data2)>(b[4] << 8 | b[5]);
    guid.Data3 = static_cast<decltype(guid.Data3)>(b[6] << 8 | b[7]);
    std::copy(b.begin() + 8, b.end(), guid.Data4);
    return guid;
}

void append_utf8(std::u16string& out, const std::string& text, std::size_t& i)
{
    const auto lead = static_cast<unsigned char>(text[i]);
    const int length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    char32_t c = length == 1 ? lead : lead & (0x3F >> (length - 1));
    for (int k = 1; k < length && i + k < text.size(); ++k)
        c = c << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3F);
    i += length;
    if (c >= 0x10000) {
        c -= 0x10000;
        out += static_cast<char16_t>(0xD800 + (c >> 10));
        out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
    } else {
        out += static_cast<char16_t>(c);
    }
}

std::u16string parse_quoted(const std::string& value, const std::string& file, int line)
{
    if (value.size() < 2 || value.front() != '"' || value.back() != '"')
        fail(file, line, "expected a text in double quotes");
    const std::string body = value.substr(1, value.size() - 2);
    std::u16string text;
    for (std::size_t i = 0; i < body.size();) {
        if (body[i] != '\\') {
            append_utf8(text, body, i);
            continue;
        }
        if (i + 1 >= body.size())
            fail(file, line, "dangling backslash");
        const char e = body[i + 1];
        i += 2;
        switch (e) {
        case 'n':
            text += u'\n';
            break;
        case 't':
            text += u'\t';
            break;
        case 'r':
            text += u'\r';
            break;
        case '"':
            text += u'"';
            break;
        case '\\':
            text += u'\\';
            break;
        case 'u': {
            if (i + 4 > body.size())
                fail(file, line, "\\u needs four hexadecimal digits");
            text += static_cast<char16_t>(parse_hex_number(body.substr(i, 4), file, line));
            i += 4;
            break;
        }
        default:
            fail(file, line, std::string("unknown escape \\") + e);
        }
    }
    return text;
}

std::string trim(const std::string& s)
{
    const auto first = s.find_first_not_of(" \t\r");
    if (first == std::string::npos)
        return {};
    const auto last = s.find_last_not_of(" \t\r");
    return s.substr(first, last - first + 1);
}

}   // namespace

std::vector<std::uint8_t> parse_hex_bytes(const std::string& text)
{
    return parse_bytes(text, "payload", 0);
}

GUID parse_event_id(const std::string& text)
{
    return parse_guid(text, "event", 0);
}

std::vector<sample> parse(const std::string& content, const std::string& file)
{
    std::vector<sample> result;
    std::istringstream lines(content);
    std::string raw;
    int number = 0;
    bool has_event = false;

    auto finish = [&] {
        if (result.empty())
            return;
        const sample& s = result.back();
        if (!has_event)
            fail(file, s.line, "sample '" + s.name + "' names no event");
        if (!s.text && !s.xml)
            fail(file, s.line, "sample '" + s.name + "' expects nothing");
    };

    while (std::getline(lines, raw)) {
        ++number;
        const std::string line = trim(raw);
        if (line.empty() || line[0] == '#')
            continue;
        const auto colon = line.find(':');
        if (colon == std::string::npos)
            fail(file, number, "expected 'key: value'");
        const std::string key = trim(line.substr(0, colon));
        const std::string value = trim(line.substr(colon + 1));

        if (key == "sample") {
            finish();
            result.push_back({});
            result.back().name = value;
            result.back().file = file;
            result.back().line = number;
            has_event = false;
            continue;
        }
        if (result.empty())
            fail(file, number, "a record begins with 'sample:'");
        sample& s = result.back();
        const bool is_text = key.rfind("text", 0) == 0 || key == "colour";
        const bool is_xml = key.rfind("xml", 0) == 0;
        std::optional<expectation>& target = is_text ? s.text : s.xml;
        if ((is_text || is_xml) && !target)
            target.emplace();

        if (key == "event") {
            s.event = parse_guid(value, file, number);
            has_event = true;
        } else if (key == "payload") {
            const auto bytes = parse_bytes(value, file, number);
            s.payload.insert(s.payload.end(), bytes.begin(), bytes.end());
        } else if (key == "text" || key == "xml") {
            target->output += parse_quoted(value, file, number);
        } else if (key == "capacity") {
            s.capacity = parse_units(value, file, number);
        } else if (key == "colour") {
            target->colour = parse_hex_number(value, file, number);
        } else if (key == "text-result" || key == "xml-result") {
            target->result = parse_result(value, file, number);
        } else if (key == "text-error" || key == "xml-error") {
            const std::u16string error = parse_quoted(value, file, number);
            target->error = std::string(error.begin(), error.end());
        } else {
            fail(file, number, "unknown key '" + key + "'");
        }
    }
    finish();
    return result;
}

std::vector<sample> load(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw format_error(path.string() + ": cannot be read");
    std::ostringstream content;
    content << in.rdbuf();
    return parse(content.str(), path.filename().string());
}

std::vector<sample> load_folder(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".samples")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<sample> all;
    for (const auto& file : files) {
        auto some = load(file);
        all.insert(all.end(), some.begin(), some.end());
    }
    return all;
}

std::string quote(const std::u16string& text)
{
    std::string out = "\"";
    for (char16_t c : text) {
        switch (c) {
        case u'\n':
            out += "\\n";
            break;
        case u'\t':
            out += "\\t";
            break;
        case u'\r':
            out += "\\r";
            break;
        case u'"':
            out += "\\\"";
            break;
        case u'\\':
            out += "\\\\";
            break;
        default:
            if (c >= 0x20 && c < 0x7F) {
                out += static_cast<char>(c);
            } else {
                char escape[8];
                std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(c));
                out += escape;
            }
        }
    }
    return out + "\"";
}

}   // namespace samples
