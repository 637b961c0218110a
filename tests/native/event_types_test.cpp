// What every renderer refuses before it looks at a payload. Sizes, short
// payloads and every capacity are covered by the samples.
#include <gtest/gtest.h>

#include <array>

#include "module/event_types.h"

namespace {

TEST(EventTypes, NullArgumentsAreRefused)
{
    const auto text = event_types()[0].textRenderer;
    std::array<wchar, 8> buffer;
    buffer.fill(0xCCCC);
    std::uint32_t colour = 7;

    EXPECT_EQ(text(nullptr, 0, nullptr, nullptr, 8, &colour), E_POINTER);
    EXPECT_EQ(text(nullptr, 0, nullptr, buffer.data(), 8, nullptr), E_POINTER);
    EXPECT_EQ(text(nullptr, 1, nullptr, buffer.data(), 8, &colour), E_POINTER);
    EXPECT_EQ(buffer[0], 0xCCCC);
    EXPECT_EQ(colour, 7u);
}

}   // namespace
