// Every sample payload of samples/ through its renderers: the exact output,
// colour and result, and then every buffer size from nothing up to the full
// output, where the renderer must either produce the whole output or fail
// with an overflow, leaving a terminated prefix and nothing past the buffer.
#include <gtest/gtest.h>

#include <vector>

#include "core/event_types.h"
#include "core/guid.h"
#include "events/alarm_type_map.h"
#include "tests/native/test_text.h"
#include "tools/sample_file.h"

namespace {

constexpr wchar canary = 0xCCCC;
constexpr std::size_t guard = 8;

struct outcome {
    HRESULT result;
    std::u16string output;
    std::uint32_t colour;
    std::string error;
    bool intact;
};

const event_type_row* find_row(const GUID& id)
{
    for (const event_type_row& row : event_types())
        if (same_guid(*row.eventType, id))
            return &row;
    return nullptr;
}

outcome render(const event_type_row& row, bool text, const std::vector<std::uint8_t>& payload,
               std::size_t capacity)
{
    std::vector<wchar> buffer(capacity + guard, canary);
    std::uint32_t colour = 0xDEADBEEF;
    const HRESULT result =
        text ? row.textRenderer(nullptr, payload.size(), payload.data(), buffer.data(), capacity, &colour)
             : row.xmlRenderer(nullptr, payload.size(), payload.data(), buffer.data(), capacity);
    outcome o{result, {}, colour, take_error_description(), true};
    for (std::size_t i = capacity; i < buffer.size(); ++i)
        o.intact = o.intact && buffer[i] == canary;
    if (capacity > 0 && buffer[0] != canary) {
        const auto end = std::find(buffer.begin(), buffer.begin() + capacity, wchar(0));
        o.output.assign(buffer.begin(), end);
    }
    return o;
}

// The alarm type that samples may name, registered as a host would before
// any event is rendered.
class registered_alarm_types : public testing::Environment {
public:
    void SetUp() override
    {
        static const alarm_type_record link[] = {{make_guid("00000000-0000-0000-0000-000000000001"), "Link"}};
        RegisterAlarmTypeMap(1, link);
    }
};

testing::Environment* const alarm_types_environment = testing::AddGlobalTestEnvironment(new registered_alarm_types);

class Samples : public testing::TestWithParam<samples::sample> {};

void check(const samples::sample& s, const event_type_row& row, bool text, const samples::expectation& e)
{
    const char* form = text ? "text" : "xml";
    const outcome full = render(row, text, s.payload, 8192);
    EXPECT_EQ(full.result, e.result) << form;
    EXPECT_EQ(samples::quote(full.output), samples::quote(e.output)) << form;
    if (e.colour) {
        EXPECT_EQ(full.colour, *e.colour) << form;
    }
    if (e.error) {
        EXPECT_EQ(full.error, *e.error) << form;
    }
    if (e.result != S_OK)
        return;

    for (std::size_t capacity = 0; capacity <= e.output.size() + 1; ++capacity) {
        const outcome o = render(row, text, s.payload, capacity);
        ASSERT_TRUE(o.intact) << form << ": wrote past a buffer of " << capacity;
        if (capacity > e.output.size()) {
            ASSERT_EQ(o.result, S_OK) << form << " with room for all of it";
            ASSERT_EQ(o.output, e.output) << form;
            continue;
        }
        ASSERT_EQ(o.result, DISP_E_EXCEPTION) << form << ", capacity " << capacity;
        ASSERT_EQ(o.error, "an overflow occured") << form << ", capacity " << capacity;
        ASSERT_EQ(o.colour, 0xDEADBEEFu) << form << ": a failure stores no colour";
        ASSERT_EQ(e.output.compare(0, o.output.size(), o.output), 0)
            << form << ", capacity " << capacity << ": " << samples::quote(o.output) << " is no prefix";
    }
}

TEST_P(Samples, RenderExactlyAndWithinEveryBuffer)
{
    const samples::sample& s = GetParam();
    const event_type_row* row = find_row(s.event);
    ASSERT_NE(row, nullptr) << s.file << ":" << s.line << ": no such event type";
    if (s.text)
        check(s, *row, true, *s.text);
    if (s.xml) {
        ASSERT_NE(row->xmlRenderer, nullptr) << "this event type has no XML form";
        check(s, *row, false, *s.xml);
    }
}

std::string test_name(const testing::TestParamInfo<samples::sample>& info)
{
    std::string name = info.param.file.substr(0, info.param.file.find('.')) + "_" + info.param.name;
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, Samples, testing::ValuesIn(samples::load_folder(KORPS_SAMPLES_DIR)), test_name);

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
