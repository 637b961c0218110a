#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "core/boundary.h"
#include "core/com_ptr.h"
#include "core/errors.h"
#include "core/platform.h"

namespace {

// Error types made from the module's own, as a later one would be: each keeps
// the result of the error it is made from.
class derived_com_error : public com::error {
public:
    using com::error::error;
};

class derived_not_expected : public not_expected {};

// 300 units, none of them ASCII, surrogate pairs among them: longer than the
// 259 units an error object takes, and twice as long again as UTF-8.
wstring wide_message()
{
    wstring text;
    while (text.size() < 300)
        text += {0x00E9, 0xD83D, 0xDE00};   // U+00E9, then U+1F600 as its surrogate pair
    return text;
}

com_ptr<com::error_info> error_object(wstring_view description)
{
    return com_ptr<com::error_info>(platform::create_error_info(description));
}

TEST(Boundary, ResultAndErrorObjectFollowTheErrorsType)
{
    const com_ptr<com::error_info> carried = error_object("from the stream"_w);
    const com_ptr<com::error_info> stale = error_object("left by an earlier call"_w);
    const wstring long_text = wide_message();
    struct test_case {
        const char* name;
        std::function<void()> raise;
        HRESULT result;
        std::optional<wstring> description;   // none: no error object
    };
    const test_case cases[] = {
        {"com::error", [&] { throw com::error(STG_E_INCOMPLETE, carried.get()); }, STG_E_INCOMPLETE,
         wstring("from the stream"_w)},
        {"derived from com::error", [&] { throw derived_com_error(STG_E_INCOMPLETE, carried.get()); }, STG_E_INCOMPLETE,
         wstring("from the stream"_w)},
        {"com::error without an error object", [] { throw com::error(E_OUTOFMEMORY); }, E_OUTOFMEMORY, std::nullopt},
        {"not_expected", [] { throw not_expected(); }, E_UNEXPECTED, std::nullopt},
        {"derived from not_expected", [] { throw derived_not_expected(); }, E_UNEXPECTED, std::nullopt},
        {"io::overflow", [] { throw io::overflow(); }, DISP_E_EXCEPTION, wstring("an overflow occured"_w)},
        {"io::underflow", [] { throw io::underflow(); }, DISP_E_EXCEPTION, wstring("an underflow occured"_w)},
        {"wide message", [] { throw io::expected_value<char>("."); }, DISP_E_EXCEPTION,
         wstring("Expected a char with a value of '.'."_w)},
        {"wide message beyond ASCII, unit for unit up to 259", [&] { throw generic_error(long_text); },
         DISP_E_EXCEPTION, long_text.substr(0, 259)},
        {"runtime_error", [] { throw std::runtime_error("bad alarm id"); }, DISP_E_EXCEPTION,
         wstring("bad alarm id"_w)},
        {"runtime_error in UTF-8", [] { throw std::runtime_error("caf\xC3\xA9"); }, DISP_E_EXCEPTION,
         wstring("caf"_w) + wchar(0x00E9)},
        {"plain exception", [] { throw std::exception(); }, DISP_E_EXCEPTION, wstring("std::exception"_w)},
        {"not an exception", [] { throw 42; }, E_UNEXPECTED, std::nullopt},
    };
    for (const test_case& c : cases) {
        platform::set_error_info(stale.get());
        const HRESULT result = guarded([&] {
            c.raise();
            return S_OK;
        });
        EXPECT_EQ(result, c.result) << c.name;
        const com_ptr<com::error_info> info(platform::take_error_info());
        if (c.description) {
            ASSERT_TRUE(info) << c.name;
            EXPECT_EQ(wstring(info->description()), *c.description) << c.name;
        } else {
            EXPECT_FALSE(info) << c.name << ": the stale error object must go too";
        }
    }
}

TEST(Boundary, SuccessPassesThroughAndLeavesTheErrorObjectAlone)
{
    const com_ptr<com::error_info> earlier = error_object("earlier"_w);
    platform::set_error_info(earlier.get());
    EXPECT_EQ(guarded([] { return S_FALSE; }), S_FALSE);
    const com_ptr<com::error_info> left(platform::take_error_info());
    EXPECT_EQ(left.get(), earlier.get());
}

}   // namespace
