// Any text through the registry-script parser, and what parses through the
// registrar on a registry held in memory.
//
// Input: bytes taken as ASCII script text. Invariants: the parser either
// yields keys or throws its script error naming a line; registration
// succeeds; removal afterwards succeeds and leaves only the keys the script
// marks NoRemove (and the keys above them, which registration created).
#include <algorithm>
#include <cstdint>
#include <map>
#include <string>

#include "fuzz/fuzz_check.h"
#include "module/registrar.h"

namespace {

class memory_hive final : public registry::hive {
public:
    std::map<wstring, std::map<wstring, wstring>> keys;

    HRESULT create_key(wstring_view path) override
    {
        for (std::size_t cut = 0; cut != wstring_view::npos;) {
            cut = path.find(wchar('\\'), cut + 1);
            keys[wstring(path.substr(0, cut))];
        }
        return S_OK;
    }
    HRESULT set_value(wstring_view path, wstring_view name, wstring_view data) override
    {
        keys[wstring(path)][wstring(name)] = data;
        return S_OK;
    }
    HRESULT delete_value(wstring_view path, wstring_view name) override
    {
        if (const auto k = keys.find(wstring(path)); k != keys.end())
            k->second.erase(wstring(name));
        return S_OK;
    }
    HRESULT delete_tree(wstring_view path) override
    {
        const wstring top(path), below = top + WSTR("\\");
        std::erase_if(keys, [&](const auto& k) { return k.first == top || k.first.starts_with(below); });
        return S_OK;
    }
    HRESULT delete_if_empty(wstring_view path) override
    {
        const wstring top(path), below = top + WSTR("\\");
        const auto k = keys.find(top);
        const bool has_subkeys =
            std::any_of(keys.begin(), keys.end(), [&](const auto& other) { return other.first.starts_with(below); });
        if (k != keys.end() && k->second.empty() && !has_subkeys)
            keys.erase(k);
        return S_OK;
    }
};

const wstring app_id = WSTR("{E5693989-AC7B-424D-B28F-89CB8FA28587}");
const wstring module_path = WSTR("C:\\korps.dll");
const registry::replacement replacements[] = {{"APPID", app_id}, {"MODULE", module_path}};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const wstring text(data, data + size);
    registry::script keys;
    try {
        keys = registry::parse_script(text, replacements);
    } catch (const registry::script_error& e) {
        FUZZ_REQUIRE(std::string(e.what()).starts_with("registry script, line "));
        return 0;
    }
    memory_hive hive;
    FUZZ_REQUIRE(registry::register_script(keys, hive) == S_OK);
    for (const registry::key& k : keys)
        FUZZ_REQUIRE(hive.keys.count(k.path) == 1);
    FUZZ_REQUIRE(registry::unregister_script(keys, hive) == S_OK);
    // What stays: NoRemove keys and the keys above them.
    for (const auto& entry : hive.keys) {
        const wstring& path = entry.first;
        const bool kept = std::any_of(keys.begin(), keys.end(), [&](const registry::key& k) {
            return k.removal == registry::flag::no_remove && (k.path == path || k.path.starts_with(path + WSTR("\\")));
        });
        FUZZ_REQUIRE(kept);
    }
    return 0;
}
