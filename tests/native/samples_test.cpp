// Every sample payload of samples/ through the renderers of the event table.
#include <gtest/gtest.h>


#include "core/event_types.h"
#include "core/guid.h"
#include "tests/common/sample_check.h"
#include "tests/native/test_text.h"

namespace sample_check {
std::string take_error_description()
{
    return ::take_error_description();
}
} // namespace sample_check

namespace {

sample_check::renderers find_renderers(const GUID& id)
{
    for (const event_type_row& row : event_types())
        if (same_guid(*row.eventType, id))
            return {row.xmlRenderer, row.textRenderer};
    return {};
}

class Samples : public testing::TestWithParam<samples::sample> {};

TEST_P(Samples, RenderExactlyAndWithinEveryBuffer)
{
    sample_check::check(find_renderers(GetParam().event), GetParam());
}

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::ValuesIn(samples::load_folder(KORPS_SAMPLES_DIR)),
                         sample_check::test_name);

TEST(SampleFile, RejectsMalformedRecords)
{
    const char* bad[] = {
        "payload: 00\n",                                                          // no record
        "sample: a\ntext: \"x\"\n",                                               // no event
        "sample: a\nevent: {074642c0-c9ad-4304-8261-598d4c2a00f9}\n",             // expects nothing
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

} // namespace
