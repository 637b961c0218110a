#include <gtest/gtest.h>

#include <functional>

#include "core/boundary.h"
#include "core/com_ptr.h"
#include "core/errors.h"
#include "tests/native/test_text.h"

namespace {

class derived_not_expected : public not_expected {};

TEST(Boundary, MapsByExactType)
{
    const com_ptr<com::error_info> carried(platform::create_error_info(WSTR("from the stream")));
    struct test_case {
        const char* name;
        std::function<void()> raise;
        HRESULT result;
        const char* description;   // null: no error object
    };
    const test_case cases[] = {
        {"com::error", [&] { throw com::error(static_cast<HRESULT>(0x80030201), carried.get()); },
         static_cast<HRESULT>(0x80030201), "from the stream"},
        {"not_expected", [] { throw not_expected(); }, E_UNEXPECTED, nullptr},
        {"io::overflow", [] { throw io::overflow(); }, DISP_E_EXCEPTION, "an overflow occured"},
        {"io::underflow", [] { throw io::underflow(); }, DISP_E_EXCEPTION, "an underflow occured"},
        {"wide_message_error", [] { throw io::expected_value<char>("."); }, DISP_E_EXCEPTION,
         "Expected a char with a value of '.'."},
        {"runtime_error", [] { throw std::runtime_error("bad alarm id"); }, DISP_E_EXCEPTION, "bad alarm id"},
        {"plain exception", [] { throw std::exception(); }, DISP_E_EXCEPTION, "std::exception"},
        {"derived from not_expected", [] { throw derived_not_expected(); }, DISP_E_EXCEPTION, "Catastrophic failure"},
    };
    for (const test_case& c : cases) {
        const HRESULT result = guarded([&] {
            c.raise();
            return S_OK;
        });
        EXPECT_EQ(result, c.result) << c.name;
        const com_ptr<com::error_info> info(platform::take_error_info());
        if (c.description) {
            ASSERT_TRUE(info) << c.name;
            EXPECT_EQ(platform::error_info_description(info.get()), c.description) << c.name;
        } else {
            EXPECT_FALSE(info) << c.name;
        }
    }
}

TEST(Boundary, AnythingElseIsUnexpectedWithoutAStaleErrorObject)
{
    EXPECT_EQ(guarded([]() -> HRESULT { throw io::overflow(); }), DISP_E_EXCEPTION);   // leaves one behind
    EXPECT_EQ(guarded([]() -> HRESULT { throw 42; }), E_UNEXPECTED);
    EXPECT_EQ(platform::take_error_info(), nullptr);
}

TEST(Boundary, SuccessPassesThrough)
{
    EXPECT_EQ(guarded([] { return S_FALSE; }), S_FALSE);
}

}   // namespace
