// Any text through the registry-script parser, and what parses through the
// registrar on a registry held in memory.
//
// Input: bytes taken as ASCII script text. Invariants: the parser either
// yields keys or throws its script error naming a line; registration
// succeeds and writes every key (but those a later ForceRemove key of the
// same script deletes again); removal afterwards succeeds and leaves only the
// keys the script marks NoRemove and the keys above them.
#include <algorithm>
#include <cstdint>
#include <string>

#include "fuzz/fuzz_check.h"
#include "module/registrar.h"
#include "tests/common/memory_hive.h"

namespace {

constexpr wstring_view app_id = "{E5693989-AC7B-424D-B28F-89CB8FA28587}"_w;
constexpr wstring_view module_path = "C:\\korps.dll"_w;
const registry::replacement replacements[] = {{"APPID", app_id}, {"MODULE", module_path}};

}   // namespace

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
    // Every key is there, unless a later ForceRemove key of the script took
    // it away again with its own subtree.
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const std::string path = memory_hive::lower(keys[i].path);
        const bool rebuilt_later =
            std::any_of(keys.begin() + static_cast<std::ptrdiff_t>(i) + 1, keys.end(), [&](const registry::key& later) {
                const std::string top = memory_hive::lower(later.path);
                return later.removal == registry::flag::force_remove && (path == top || path.starts_with(top + "\\"));
            });
        FUZZ_REQUIRE(hive.has(keys[i].path) || rebuilt_later);
    }
    FUZZ_REQUIRE(registry::unregister_script(keys, hive) == S_OK);
    // What stays: NoRemove keys and the keys above them.
    for (const auto& entry : hive.keys) {
        const std::string& path = entry.first;
        const bool kept = std::any_of(keys.begin(), keys.end(), [&](const registry::key& k) {
            const std::string key = memory_hive::lower(k.path);
            return k.removal == registry::flag::no_remove && (key == path || key.starts_with(path + "\\"));
        });
        FUZZ_REQUIRE(kept);
    }
    return 0;
}
