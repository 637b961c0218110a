#include "module/installer_rows.h"

#include <algorithm>

#include "core/platform.h"

namespace registry {
namespace {

// Text as the installer's formatted text: square brackets are escaped; the
// module marker becomes [#file_id].
wstring formatted(wstring_view text, wstring_view file_id)
{
    wstring out;
    for (const wchar c : text) {
        if (c == '[' || c == ']') {
            out += "[\\"_w;
            out += c;
            out += ']';
        } else if (c == module_path_marker) {
            out += "[#"_w;
            out += file_id;
            out += ']';
        } else {
            out += c;
        }
    }
    return out;
}

// A value the installer reads as a string: one that starts with "#" would be
// a number, unless the "#" is doubled.
wstring string_value(wstring_view text, wstring_view file_id)
{
    wstring data = formatted(text, file_id);
    if (!data.empty() && data[0] == '#')
        data.insert(data.begin(), '#');
    return data;
}

bool has_subkey(const script& keys, const key& parent)
{
    return std::any_of(keys.begin(), keys.end(), [&](const key& k) {
        return k.path.size() > parent.path.size() && k.path.starts_with(parent.path) &&
               k.path[parent.path.size()] == '\\';
    });
}

[[noreturn]] void refuse(const key& k, const std::string& why)
{
    throw script_error("registry script, line " + std::to_string(k.line) + ": " +
                       platform::utf16_to_utf8(k.path, k.path.size() * 3) + " " + why);
}

std::string xml_attribute(wstring_view text)
{
    std::string out;
    for (const char c : platform::utf16_to_utf8(text, text.size() * 3)) {
        switch (c) {
        case '&':
            out += "&amp;";
            break;
        case '<':
            out += "&lt;";
            break;
        case '>':
            out += "&gt;";
            break;
        case '"':
            out += "&quot;";
            break;
        default:
            out += c;
        }
    }
    return out;
}

}   // namespace

std::vector<installer_row> installer_rows(const script& keys, wstring_view file_id)
{
    std::vector<installer_row> rows;
    for (const key& k : keys) {
        if (k.values.empty()) {
            if (k.removal != flag::no_remove && !has_subkey(keys, k))
                refuse(k, "holds no value and no key, so a package cannot write it");
            continue;
        }
        if (k.removal == flag::no_remove)
            refuse(k, "keeps its values at removal, which a package cannot do");
        for (const value& v : k.values) {
            if (v.data.empty())
                refuse(k, "has an empty value, which a package cannot write");
            rows.push_back({formatted(k.path, file_id), formatted(v.name, file_id), string_value(v.data, file_id)});
        }
    }
    return rows;
}

std::string wix_include(const std::vector<installer_row>& rows, std::string_view source)
{
    std::string out = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!-- Made from ";
    out += source;
    out += " at build time: the registry rows of the module's component. Not to be edited. -->\n<Include>\n";
    for (const installer_row& row : rows) {
        out += "  <RegistryValue Root=\"HKCR\" Key=\"" + xml_attribute(row.key) + "\"";
        if (!row.name.empty())
            out += " Name=\"" + xml_attribute(row.name) + "\"";
        out += " Type=\"string\" Value=\"" + xml_attribute(row.data) + "\"/>\n";
    }
    out += "</Include>\n";
    return out;
}

}   // namespace registry
