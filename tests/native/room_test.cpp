// The room a rendering needs, measured by the counting form of its output:
// for every sample exactly the length of what the renderer writes, plus its
// terminator, and the renderer's own result where the payload is refused.
#include <gtest/gtest.h>

#include "module/event_types.h"
#include "tests/common/sample_check.h"

namespace {

class Room : public testing::TestWithParam<samples::sample> {};

void check(render::room_function room, const samples::sample& s, const samples::expectation& e, const char* form)
{
    ASSERT_NE(room, nullptr) << form;
    std::size_t units = 0;
    const HRESULT result = room(static_cast<std::uint32_t>(s.payload.size()), s.payload.data(), &units);
    if (e.result == S_OK) {
        EXPECT_EQ(result, S_OK) << form;
        EXPECT_EQ(units, e.output.size() + 1) << form;
    } else if (!s.capacity) {
        // Refused for what the payload holds, not for want of room.
        EXPECT_EQ(result, e.result) << form;
    } else if (result == S_OK) {
        EXPECT_GT(units, *s.capacity) << form << ": measured to fit where the sample overflows";
    }
    platform::take_error_description();
}

TEST_P(Room, IsWhatTheRendererWritesAndItsTerminator)
{
    const samples::sample& s = GetParam();
    const event_type_row* row = find_event_type(s.event);
    ASSERT_NE(row, nullptr);
    if (s.text)
        check(row->textRoom, s, *s.text, "text");
    if (s.xml)
        check(row->xmlRoom, s, *s.xml, "xml");
}

INSTANTIATE_TEST_SUITE_P(All, Room, testing::ValuesIn(samples::load_folder(KORPS_SAMPLES_DIR)),
                         sample_check::test_name);

}   // namespace
