// Any text through the registry-script parser, and what parses through the
// registrar on a registry held in memory.
//
// Input: bytes taken as ASCII script text. Invariants: the parser either
// yields keys or throws its script error naming a line; registration
// succeeds; removal afterwards succeeds and leaves only the keys the script
// marks NoRemove (and the keys above them, which registration created).
#include <algorithm>
#include <cstdint>
#include <string>

#include "fuzz/fuzz_check.h"
#include "module/registrar.h"
#include "tests/common/memory_hive.h"

namespace {

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
        FUZZ_REQUIRE(hive.has(k.path));
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
