// The Windows side of the platform seam, with the system's own code pages,
// message table and error objects.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "core/boundary.h"
#include "core/errors.h"
#include "core/xml_writer.h"
#include "core/platform.h"
#include "tests/wine/module_fixture.h"

namespace {

TEST(Platform, ComErrorNamesTheSystemsMessage)
{
    EXPECT_STRNE(com::error(E_FAIL).what(), "");
    EXPECT_STRNE(com::error(E_FAIL).what(), "unknown error (0x80004005) occurred");
    EXPECT_STREQ(com::error(static_cast<HRESULT>(0x80041234)).what(), "unknown error (0x80041234) occurred");
}

TEST(Platform, NarrowTextIsWidenedWithTheAnsiCodePage)
{
    std::array<wchar_t, 8> buffer{};
    output::text out(buffer.data(), buffer.size());
    out << ansi_text("a\xE9");
    wchar_t expected[2];
    MultiByteToWideChar(CP_ACP, 0, "a\xE9", 2, expected, 2);
    EXPECT_EQ(buffer[0], L'a');
    EXPECT_EQ(buffer[1], expected[1]);
}

TEST(Platform, Utf8ConversionStaysInItsBuffer)
{
    struct test_case {
        std::size_t size;
        const wchar_t* expected;
    };
    for (const test_case& c : {test_case{1, L""}, test_case{2, L"c"}, test_case{4, L"caf"}, test_case{5, L"caf\u00E9"},
                               test_case{9, L"caf\u00E9"}}) {
        std::array<wchar_t, 10> buffer;
        buffer.fill(0xCCCC);
        platform::utf8_to_utf16("caf\xC3\xA9", buffer.data(), c.size);
        EXPECT_STREQ(buffer.data(), c.expected) << c.size;
        EXPECT_EQ(buffer[c.size], 0xCCCC) << "wrote past " << c.size;
    }
}

TEST(Platform, DescriptionsAreUtf8)
{
    EXPECT_EQ(guarded([]() -> HRESULT { throw std::runtime_error("caf\xC3\xA9"); }), DISP_E_EXCEPTION);
    EXPECT_EQ(platform::take_error_description(), "caf\xC3\xA9");
}

// A wide message reaches the host as its own units, cut to 259 of them, with
// no narrow text on the way: none of these is ASCII and the surrogate pairs
// stay whole.
TEST(Platform, WideMessagesReachTheHostUnitForUnit)
{
    std::wstring text;
    while (text.size() < 300)
        text += L"\u00E9\U0001F600";
    EXPECT_EQ(guarded([&]() -> HRESULT { throw generic_error(text); }), DISP_E_EXCEPTION);
    IErrorInfo* info = nullptr;
    ASSERT_EQ(GetErrorInfo(0, &info), S_OK);
    BSTR description = nullptr;
    EXPECT_EQ(info->GetDescription(&description), S_OK);
    info->Release();
    EXPECT_EQ(std::wstring(description, SysStringLen(description)), text.substr(0, 259));
    SysFreeString(description);
}

}   // namespace
