// A registry held in memory, for the registrar's tests and fuzz target: keys
// by path, compared without regard to case as the registry does, and a way to
// make writes fail after a number of them.
#pragma once

#include <algorithm>
#include <cctype>
#include <map>
#include <string>

#include "core/platform.h"
#include "module/registrar.h"

class memory_hive final : public registry::hive {
public:
    // Lower-case path -> value name -> data, all UTF-8.
    std::map<std::string, std::map<std::string, std::string>> keys;
    int writesBeforeFailure = -1;   // -1: never fail

    HRESULT create_key(wstring_view path) override
    {
        if (!write())
            return E_FAIL;
        for (std::size_t cut = 0; cut != wstring_view::npos;) {
            cut = path.find(wchar('\\'), cut + 1);
            keys[lower(path.substr(0, cut))];
        }
        return S_OK;
    }
    HRESULT set_value(wstring_view path, wstring_view name, wstring_view data) override
    {
        if (!write())
            return E_FAIL;
        keys[lower(path)][utf8(name)] = utf8(data);
        return S_OK;
    }
    HRESULT delete_value(wstring_view path, wstring_view name) override
    {
        if (const auto k = keys.find(lower(path)); k != keys.end())
            k->second.erase(utf8(name));
        return S_OK;
    }
    HRESULT delete_tree(wstring_view path) override
    {
        const std::string top = lower(path);
        std::erase_if(keys, [&](const auto& k) { return k.first == top || k.first.starts_with(top + "\\"); });
        return S_OK;
    }
    HRESULT delete_if_empty(wstring_view path) override
    {
        const std::string top = lower(path);
        const auto k = keys.find(top);
        const bool has_subkeys = std::any_of(keys.begin(), keys.end(),
                                             [&](const auto& other) { return other.first.starts_with(top + "\\"); });
        if (k != keys.end() && k->second.empty() && !has_subkeys)
            keys.erase(k);
        return S_OK;
    }

    bool has(wstring_view path) const { return keys.count(lower(path)) == 1; }

    // Every key and value, one a line, for comparisons.
    std::string dump() const
    {
        std::string out;
        for (const auto& [path, values] : keys) {
            out += path + "\n";
            for (const auto& [name, data] : values)
                out += path + " [" + name + "] = " + data + "\n";
        }
        return out;
    }

    static std::string lower(wstring_view path)
    {
        std::string text = utf8(path);
        for (char& c : text)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        return text;
    }

private:
    bool write() { return writesBeforeFailure < 0 || writesBeforeFailure-- > 0; }
    static std::string utf8(wstring_view text) { return platform::utf16_to_utf8(text, std::string::npos); }
};
