// The command line's names of results: each name stands for the module's own
// value, both ways.
#include <gtest/gtest.h>

#include "tools/result_names.h"

namespace {

TEST(ResultNames, NamesAndValues)
{
    const struct {
        std::uint32_t value;
        const char* name;   // null: a value the table does not name
        const char* description;
    } cases[] = {
        {0x00000000, "S_OK", "S_OK (0x00000000)"},
        {0x80020009, "DISP_E_EXCEPTION", "DISP_E_EXCEPTION (0x80020009)"},
        {0x80030201, "STG_E_INCOMPLETE", "STG_E_INCOMPLETE (0x80030201)"},
        {0x80030070, "STG_E_MEDIUMFULL", "STG_E_MEDIUMFULL (0x80030070)"},
        {0x800401E2, "MK_E_NEEDGENERIC", "MK_E_NEEDGENERIC (0x800401E2)"},
        {0x80040110, "CLASS_E_NOAGGREGATION", "CLASS_E_NOAGGREGATION (0x80040110)"},
        {0x80030103, nullptr, "0x80030103"},   // STG_E_CANTSAVE: never the module's
        {0x80041234, nullptr, "0x80041234"},
    };
    for (const auto& c : cases) {
        const auto result = static_cast<std::int32_t>(c.value);
        EXPECT_EQ(results::name(result), c.name ? c.name : c.description) << c.description;
        EXPECT_EQ(results::describe(result), c.description);
        if (c.name) {
            EXPECT_EQ(results::named(c.name), result) << c.name;
        }
    }
    EXPECT_EQ(results::named("STG_E_CANTSAVE"), std::nullopt);
    EXPECT_EQ(results::named("s_ok"), std::nullopt) << "names are matched exactly";
}

}   // namespace
