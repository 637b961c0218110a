#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>

#include "core/com_ptr.h"
#include "core/errors.h"
#include "tests/native/test_text.h"

namespace {

// Messages spelled as they have always been, whatever the compiler, token
// names included. Those of display names and payloads are checked where hosts
// read them: in the parse failures (kor_name_test.cpp) and the samples.
TEST(Errors, MessagesAndTokenNames)
{
    const struct {
        std::string message;
        const char* expected;
    } cases[] = {
        {not_expected().what(), "Catastrophic failure"},
        {io::expected_type<integer<unsigned long long, 16, 1000, default_tag>>().what(),
         "Expected a integer<unsigned long long, 16, 1000, default_tag>."},
        {io::expected_value<char[12]>("-").what(), "Expected a char [12] with a value of '-'."},
        {io::unexpected_value<identifier<wchar_t>>('-').what(),
         "Encountered a identifier<wchar_t> with an enexpected value of '-'."},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.message, c.expected);
}

TEST(Errors, WideMessageIsCutToTheBuffer)
{
    const io::expected_value<char> error("-");
    struct test_case {
        std::size_t size;
        const char* expected;
    };
    for (const test_case& c : std::initializer_list<test_case>{
             {5, "Expe"}, {2, "E"}, {13, "Expected a c"}, {64, "Expected a char with a value of '-'."}}) {
        std::array<wchar, 80> buffer;
        buffer.fill(0xCCCC);
        error.format(buffer.data(), c.size);
        EXPECT_EQ(utf8(buffer.data()), c.expected) << c.size;
        EXPECT_EQ(buffer[c.size], 0xCCCC) << "wrote past " << c.size;
    }
    for (std::size_t size : {0u, 1u}) {
        wchar unit = 0xCCCC;
        error.format(&unit, size);
        EXPECT_EQ(unit, 0xCCCC) << "a buffer of " << size << " is left alone";
    }
}

TEST(Errors, ComErrorMessage)
{
    // Without an error object and without system messages (the native build
    // has none) the code itself is named.
    const com::error unknown(static_cast<HRESULT>(0x80041234));
    EXPECT_STREQ(unknown.what(), "unknown error (0x80041234) occurred");
    EXPECT_EQ(unknown.code(), static_cast<HRESULT>(0x80041234));

    // The error and each copy of it hold a reference of their own (the
    // sanitizer build sees a use after the object went otherwise).
    com_ptr<com::error_info> info(platform::create_error_info("disk on fire"_w));
    com::error_info* const object = info.get();
    std::optional<com::error> described(std::in_place, E_FAIL, object);
    info.reset();
    EXPECT_STREQ(described->what(), "disk on fire");
    EXPECT_EQ(described->info(), object);
    const com::error copy(*described);
    described.reset();
    EXPECT_EQ(copy.info(), object);
    EXPECT_EQ(platform::error_info_description(copy.info()), "disk on fire");

    const com_ptr<com::error_info> empty(platform::create_error_info(""_w));
    const com::error undescribed(E_FAIL, empty.get());
    EXPECT_STREQ(undescribed.what(), "unknown error (0x80004005) occurred");
}

}   // namespace
