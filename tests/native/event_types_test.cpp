// What every renderer does before it reads a payload: refuse bad
// arguments, a buffer with no room, and fixed-size payloads of another size.
#include <gtest/gtest.h>

#include <array>

#include "module/event_types.h"
#include "tests/native/test_text.h"

namespace {

const event_type_row& row(std::size_t index)
{
    return event_types()[index];
}

TEST(EventTypes, RendererArgumentsAreChecked)
{
    const auto text = row(0).textRenderer;
    std::array<wchar, 8> buffer;
    buffer.fill(0xCCCC);
    std::uint32_t colour = 7;
    const std::uint8_t payload[1] = {};

    EXPECT_EQ(text(nullptr, 0, nullptr, nullptr, 8, &colour), E_POINTER);
    EXPECT_EQ(text(nullptr, 0, nullptr, buffer.data(), 8, nullptr), E_POINTER);
    EXPECT_EQ(text(nullptr, 1, nullptr, buffer.data(), 8, &colour), E_POINTER);
    EXPECT_EQ(buffer[0], 0xCCCC);

    EXPECT_EQ(text(nullptr, 1, payload, buffer.data(), 0, &colour), DISP_E_EXCEPTION);
    EXPECT_EQ(take_error_description(), "an overflow occured");
    EXPECT_EQ(buffer[0], 0xCCCC) << "capacity 0 writes nothing";

    EXPECT_EQ(text(nullptr, 1, payload, buffer.data(), 1, &colour), DISP_E_EXCEPTION);
    EXPECT_EQ(take_error_description(), "an overflow occured");
    EXPECT_EQ(buffer[0], 0);
    EXPECT_EQ(buffer[1], 0xCCCC);
    EXPECT_EQ(colour, 7u) << "no colour on failure";
}

TEST(EventTypes, FixedSizePayloadsAreCheckedFirst)
{
    // "Unit Status" demands 8 bytes, unit insertion 5.
    const std::uint8_t payload[9] = {};
    struct Case {
        std::size_t index;
        std::size_t bytes;
    };
    for (const Case& c : {Case{22, 7}, Case{22, 9}, Case{22, 0}, Case{7, 4}, Case{8, 6}}) {
        std::array<wchar, 64> buffer;
        buffer.fill(0xCCCC);
        std::uint32_t colour = 0;
        EXPECT_EQ(row(c.index).textRenderer(nullptr, c.bytes, payload, buffer.data(), 64, &colour), E_UNEXPECTED);
        EXPECT_EQ(row(c.index).xmlRenderer(nullptr, c.bytes, payload, buffer.data(), 64), E_UNEXPECTED);
        EXPECT_EQ(buffer[0], 0xCCCC) << "nothing written, not even the terminator";
    }
}

} // namespace
