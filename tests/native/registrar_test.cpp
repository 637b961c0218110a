// The module's registry scripts through the registrar, on a registry held in
// memory: what registration writes, what removal leaves, and how malformed
// scripts and failing registries are reported.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "module/registrar.h"
#include "tests/common/memory_hive.h"
#include "tests/native/test_text.h"

namespace {

wstring file_text(const char* name)
{
    std::ifstream in(std::string(KORPS_MODULE_DIR) + "/" + name);
    std::stringstream text;
    text << in.rdbuf();
    const std::string bytes = text.str();
    return wstring(bytes.begin(), bytes.end());
}

constexpr wstring_view app_id = "{E5693989-AC7B-424D-B28F-89CB8FA28587}"_w;
constexpr wstring_view module_path = "C:\\Program Files\\Orrin\\korps.dll"_w;
const registry::replacement replacements[] = {{"APPID", app_id}, {"MODULE", module_path}};

registry::script script_of(const char* file)
{
    return registry::parse_script(file_text(file), replacements);
}

constexpr const char* clsid = "clsid\\{de8ab314-cdd2-4600-8139-6285f46937ac}";

TEST(Registrar, RegistrationWritesEveryKeyOfBothScripts)
{
    memory_hive hive;
    ASSERT_EQ(registry::register_script(script_of("korps_appid.rgs"), hive), S_OK);
    ASSERT_EQ(registry::register_script(script_of("kor_moniker.rgs"), hive), S_OK);
    const std::string c = clsid;
    EXPECT_EQ(hive.dump(), "appid\n"
                           "appid\\korps.dll\n"
                           "appid\\korps.dll [AppID] = {E5693989-AC7B-424D-B28F-89CB8FA28587}\n"
                           "appid\\{e5693989-ac7b-424d-b28f-89cb8fa28587}\n"
                           "appid\\{e5693989-ac7b-424d-b28f-89cb8fa28587} [] = KORPS\n"
                           "clsid\n" +
                               c + "\n" + c + " [] = Corvane Tarn Moniker\n" + c +
                               " [AppID] = {E5693989-AC7B-424D-B28F-89CB8FA28587}\n" + c + "\\inprocserver32\n" + c +
                               "\\inprocserver32 [] = C:\\Program Files\\Orrin\\korps.dll\n" + c +
                               "\\inprocserver32 [ThreadingModel] = both\n" + c + "\\progid\n" + c +
                               "\\progid [] = Corvane.Tarn.Moniker.1\n" + c + "\\typelib\n" + c +
                               "\\typelib [] = {06b6c5a0-7950-11d2-be43-00105a202838}\n" + c +
                               "\\versionindependentprogid\n" + c +
                               "\\versionindependentprogid [] = Corvane.Tarn.Moniker\n"
                               "corvane.tarn.moniker\n"
                               "corvane.tarn.moniker [] = Corvane Tarn Moniker\n"
                               "corvane.tarn.moniker.1\n"
                               "corvane.tarn.moniker.1 [] = Corvane Tarn Moniker\n"
                               "corvane.tarn.moniker.1\\clsid\n"
                               "corvane.tarn.moniker.1\\clsid [] = {DE8AB314-CDD2-4600-8139-6285F46937AC}\n"
                               "corvane.tarn.moniker\\clsid\n"
                               "corvane.tarn.moniker\\clsid [] = {DE8AB314-CDD2-4600-8139-6285F46937AC}\n"
                               "corvane.tarn.moniker\\curver\n"
                               "corvane.tarn.moniker\\curver [] = Corvane.Tarn.Moniker.1\n"
                               "kor\n"
                               "kor [] = Kor Moniker\n"
                               "kor\\clsid\n"
                               "kor\\clsid [] = {DE8AB314-CDD2-4600-8139-6285F46937AC}\n"
                               "kor\\curver\n"
                               "kor\\curver [] = Corvane.Tarn.Moniker.1\n");
}

TEST(Registrar, ReRegistrationRebuildsTheClassAndRemovalKeepsWhatIsNotOurs)
{
    memory_hive hive;
    hive.create_key("CLSID\\{00000000-0000-0000-0000-000000000001}"_w);   // another class
    hive.create_key("kor\\HostNotes"_w);   // a host's own subkey
    const registry::script scripts[] = {script_of("korps_appid.rgs"), script_of("kor_moniker.rgs")};
    for (const auto& s : scripts)
        ASSERT_EQ(registry::register_script(s, hive), S_OK);
    const std::string registered = hive.dump();

    // A stale subkey of the class goes with the next registration (ForceRemove).
    hive.create_key("CLSID\\{DE8AB314-CDD2-4600-8139-6285F46937AC}\\Stale"_w);
    for (const auto& s : scripts)
        ASSERT_EQ(registry::register_script(s, hive), S_OK);
    EXPECT_EQ(hive.dump(), registered);

    for (const auto& s : scripts)
        ASSERT_EQ(registry::unregister_script(s, hive), S_OK);
    EXPECT_EQ(hive.dump(), "appid\n"
                           "clsid\n"
                           "clsid\\{00000000-0000-0000-0000-000000000001}\n"
                           "kor\n"
                           "kor\\hostnotes\n");
}

// A write fails at step 1, 2, 3 ... of the registration, until the script
// has room to finish: every failed registration leaves nothing behind.
TEST(Registrar, AFailingRegistryLeavesNothingOfTheScriptBehind)
{
    const registry::script moniker = script_of("kor_moniker.rgs");
    memory_hive whole;
    whole.create_key("CLSID"_w);
    ASSERT_EQ(registry::register_script(moniker, whole), S_OK);

    int writes = 0;
    for (;; ++writes) {
        ASSERT_LT(writes, 1000) << "registration never finishes";
        memory_hive hive;
        hive.create_key("CLSID"_w);
        hive.writesBeforeFailure = writes;
        const HRESULT result = registry::register_script(moniker, hive);
        if (result == S_OK) {
            EXPECT_EQ(hive.dump(), whole.dump()) << "with room for " << writes << " writes";
            break;
        }
        EXPECT_EQ(result, E_FAIL) << writes;
        EXPECT_EQ(hive.dump(), "clsid\n") << "after " << writes << " writes";
    }
    EXPECT_GT(writes, 0) << "no fault was ever injected";
}

TEST(RegistryScript, MalformedScriptsNameTheirLine)
{
    const struct {
        const char* text;
        const char* message;
    } cases[] = {
        {"HKLM\n{\n}", "registry script, line 1: unsupported root key 'HKLM'"},
        {"HKCR\n{\n  kor = s 'Kor\n}", "registry script, line 3: unterminated string"},
        {"HKCR\n{\n  kor = d '1'\n}", "registry script, line 3: unsupported value type 'd'"},
        {"HKCR\n{\n  kor = s '%NOPE%'\n}", "registry script, line 3: unknown variable %NOPE%"},
        {"HKCR\n{\n  kor\n  {\n    val Name = s 'x'\n", "registry script, line 4: missing '}'"},
        {"HKCR\n{\n  val Name = s 'x'\n}", "registry script, line 3: a value outside any key"},
        {"HKCR\n{\n  kor = s\n}", "registry script, line 3: expected a quoted value"},
        {"HKCR kor", "registry script, line 1: expected '{'"},
        {"HKCR\n{\n  NoRemove\n}", "registry script, line 4: expected a name"},
    };
    for (const auto& c : cases) {
        const std::string text = c.text;
        try {
            registry::parse_script(wstring(text.begin(), text.end()), replacements);
            ADD_FAILURE() << "accepted: " << c.text;
        } catch (const registry::script_error& e) {
            EXPECT_STREQ(e.what(), c.message) << c.text;
        }
    }
}

TEST(RegistryScript, QuotesAndPercentSigns)
{
    const std::string text = "HKCR { 'it''s' = s '100%% %APPID%' }";
    const registry::script keys = registry::parse_script(wstring(text.begin(), text.end()), replacements);
    ASSERT_EQ(keys.size(), 1u);
    EXPECT_EQ(utf8(keys[0].path), "it's");
    EXPECT_EQ(utf8(keys[0].values.at(0).data), "100% {E5693989-AC7B-424D-B28F-89CB8FA28587}");
}

}   // namespace
