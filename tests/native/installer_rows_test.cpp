// Registry scripts as an installer package's rows: what each kind of key
// becomes, how text is kept literal in the installer's formatted text, and
// which keys a package cannot express.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "module/installer_rows.h"
#include "tests/native/test_text.h"

namespace {

const wstring marker(1, registry::module_path_marker);
const registry::replacement replacements[] = {{"MODULE", marker}};

// The rows of a script, one "key | name | data" line each.
std::string rows_of(const char* script)
{
    std::string lines;
    for (const registry::installer_row& row :
         registry::installer_rows(registry::parse_script(wide(script), replacements), "korps.dll.x64"_w))
        lines += utf8(row.key) + " | " + utf8(row.name) + " | " + utf8(row.data) + "\n";
    return lines;
}

TEST(InstallerRows, EachKindOfKey)
{
    const struct {
        const char* script;
        const char* rows;
    } cases[] = {
        // NoRemove roots have no row; the keys below them bring them along.
        {"HKCR { NoRemove CLSID { ForceRemove {A} = s 'Class' { InprocServer32 = s '%MODULE%' "
         "{ val ThreadingModel = s 'both' } } } }",
         "CLSID\\{A} |  | Class\n"
         "CLSID\\{A}\\InprocServer32 |  | [#korps.dll.x64]\n"
         "CLSID\\{A}\\InprocServer32 | ThreadingModel | both\n"},
        // A key without values of its own is made by the key below it.
        {"HKCR { Outer { Inner = s 'x' } }", "Outer\\Inner |  | x\n"},
        // The default value first, then the named ones, as the script gives them.
        {"HKCR { AppID { val AppID = s '{B}' } }", "AppID | AppID | {B}\n"},
        // Square brackets stay literal; the module path may sit inside text.
        {"HKCR { K = s '[x] \"%MODULE%\",0' }", "K |  | [\\[]x[\\]] \"[#korps.dll.x64]\",0\n"},
        {"HKCR { 'K[1]' { val 'N[2]' = s 'v' } }", "K[\\[]1[\\]] | N[\\[]2[\\]] | v\n"},
        // A leading "#" would make a number of the value.
        {"HKCR { K = s '#1' }", "K |  | ##1\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(rows_of(c.script), c.rows) << c.script;
}

TEST(InstallerRows, KeysAPackageCannotWriteAreRefusedWithTheirLine)
{
    const struct {
        const char* script;
        const char* message;
    } cases[] = {
        {"HKCR\n{\n  Empty\n}", "line 3: Empty holds no value and no key"},
        {"HKCR\n{\n  K = s ''\n}", "line 3: K has an empty value"},
        {"HKCR\n{\n  NoRemove K = s 'kept'\n}", "line 3: K keeps its values at removal"},
    };
    for (const auto& c : cases) {
        try {
            rows_of(c.script);
            ADD_FAILURE() << c.script << " was accepted";
        } catch (const registry::script_error& e) {
            EXPECT_NE(std::string(e.what()).find(c.message), std::string::npos) << e.what();
        }
    }
}

TEST(InstallerRows, WixIncludeQuotesItsAttributes)
{
    const std::vector<registry::installer_row> rows = {{wstring("A&B"_w), wstring(), wstring("<\"x\">"_w)},
                                                       {wstring("K"_w), wstring("N"_w), wstring("v"_w)}};
    const std::string text = registry::wix_include(rows, "a test");
    EXPECT_NE(
        text.find("<RegistryValue Root=\"HKCR\" Key=\"A&amp;B\" Type=\"string\" Value=\"&lt;&quot;x&quot;&gt;\"/>"),
        std::string::npos)
        << text;
    EXPECT_NE(text.find("<RegistryValue Root=\"HKCR\" Key=\"K\" Name=\"N\" Type=\"string\" Value=\"v\"/>"),
              std::string::npos)
        << text;
    EXPECT_TRUE(text.starts_with("<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<!-- Made from a test"));
    EXPECT_TRUE(text.ends_with("</Include>\n"));
}

}   // namespace
