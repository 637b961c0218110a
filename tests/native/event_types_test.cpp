// The event table against the published list, and what every renderer
// refuses before it looks at a payload. Sizes, short payloads and every
// capacity are covered by the samples.
#include <gtest/gtest.h>

#include <array>
#include <iterator>
#include <string_view>

#include "core/guid.h"
#include "module/event_types.h"

namespace {

struct listed_event {
    korps_event symbol;
    GUID id;
    std::u16string_view name;
};

// The rows of include/korps/korps_event_list.h as a host reads them.
constexpr listed_event listed[] = {
#define LISTED_EVENT(symbol, name, l, w1, w2, b1, b2, b3, b4, b5, b6, b7, b8)                                          \
    {korps_event::symbol, GUID{l, w1, w2, {b1, b2, b3, b4, b5, b6, b7, b8}}, u"" name},
    KORPS_EVENT_TYPES(LISTED_EVENT)
#undef LISTED_EVENT
};

TEST(EventTypes, TheTableIsTheListInOrder)
{
    const auto rows = event_types();
    ASSERT_EQ(rows.size(), std::size(listed));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const listed_event& entry = listed[i];
        EXPECT_TRUE(same_guid(*rows[i].eventType, entry.id)) << i;
        EXPECT_EQ(std::u16string_view(rows[i].name), entry.name) << i;
        EXPECT_EQ(&event_type(entry.symbol), &rows[i]) << i;
        // Looked up by identifier, each type finds its own row: no
        // identifier is listed twice.
        EXPECT_EQ(find_event_type(entry.id), &rows[i]) << i;
        EXPECT_NE(rows[i].textRenderer, nullptr) << i;
        EXPECT_EQ(rows[i].xmlRenderer == nullptr, rows[i].xmlRoom == nullptr) << i;
    }
    EXPECT_EQ(find_event_type(GUID{}), nullptr);
}

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
