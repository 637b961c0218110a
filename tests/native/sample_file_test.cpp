// The sample file format itself: malformed records are refused with their
// place, and quoting survives a round trip.
#include <gtest/gtest.h>

#include "tools/sample_file.h"

namespace {

TEST(SampleFile, RejectsMalformedRecords)
{
    const char* bad[] = {
        "payload: 00\n",   // no record
        "sample: a\ntext: \"x\"\n",   // no event
        "sample: a\nevent: {074642c0-c9ad-4304-8261-598d4c2a00f9}\n",   // expects nothing
        "sample: a\nevent: {074642c0-c9ad-4304-8261-598d4c2a00f9}\npayload: 0\ntext: \"\"\n",
        "sample: a\nevent: {074642c0-c9ad-4304-8261}\ntext: \"\"\n",
        "sample: a\nevent: {074642c0-c9ad-4304-8261-598d4c2a00f9}\ntext: unquoted\n",
        "sample: a\nevent: {074642c0-c9ad-4304-8261-598d4c2a00f9}\ntext: \"\\q\"\n",
        "sample: a\nevent: {074642c0-c9ad-4304-8261-598d4c2a00f9}\ncolor: 0\n",
    };
    for (const char* content : bad)
        EXPECT_THROW(samples::parse(content, "bad"), samples::format_error) << content;
}

TEST(SampleFile, QuotingRoundTrips)
{
    const std::u16string text = u"\t\"a\\b\"\n\u20AC";
    const auto parsed = samples::parse(
        "sample: q\nevent: {074642c0-c9ad-4304-8261-598d4c2a00f9}\ntext: " + samples::quote(text) + "\n", "q");
    ASSERT_EQ(parsed.size(), 1u);
    EXPECT_EQ(parsed[0].text->output, text);
}

}   // namespace
