#include <gtest/gtest.h>

#include <array>
#include <set>

#include "core/event_types.h"
#include "core/guid.h"
#include "tests/native/test_text.h"

namespace {

const event_type_row& row(std::size_t index)
{
    return event_types()[index];
}

TEST(EventTypes, TableShape)
{
    const auto rows = event_types();
    ASSERT_EQ(rows.size(), 40u);

    std::set<std::string> guids;
    for (const event_type_row& r : rows) {
        EXPECT_NE(r.textRenderer, nullptr);
        EXPECT_EQ(r.reserved, 0u);
        guids.insert(std::string(reinterpret_cast<const char*>(r.eventType), sizeof(GUID)));
    }
    EXPECT_EQ(guids.size(), 40u) << "every event type has its own GUID";

    // The data-changed events share one text renderer and nothing else.
    for (std::size_t i = 1; i <= 4; ++i) {
        EXPECT_EQ(row(i).textRenderer, row(0).textRenderer);
        EXPECT_NE(row(i).xmlRenderer, row(0).xmlRenderer);
    }
    EXPECT_NE(row(5).textRenderer, row(0).textRenderer);
    // Unit inserted and removed share their XML renderer only.
    EXPECT_EQ(row(7).xmlRenderer, row(8).xmlRenderer);
    EXPECT_NE(row(7).textRenderer, row(8).textRenderer);
    // Only these two have no XML form.
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(rows[i].xmlRenderer == nullptr, i == 23 || i == 39) << "row " << i;

    std::set<const void*> xml, text;
    for (const event_type_row& r : rows) {
        if (r.xmlRenderer)
            xml.insert(reinterpret_cast<const void*>(r.xmlRenderer));
        text.insert(reinterpret_cast<const void*>(r.textRenderer));
    }
    EXPECT_EQ(xml.size(), 37u) << "38 XML slots, one shared";
    EXPECT_EQ(text.size(), 36u) << "40 text slots, five of them one renderer";
}

TEST(EventTypes, NamesAndIdentifiers)
{
    struct Case {
        std::size_t index;
        const char* name;
        GUID id;
    };
    const Case cases[] = {
        {0, "FALCON Data Changed", make_guid("9f74e20a-4198-4269-bdc7-c0a02be22131")},
        {1, "OSPREY Data Changed", make_guid("91286a63-5ea9-412a-8021-e9132460f87e")},
        {2, "OSPREY Data Changed", make_guid("6e66e529-ac7c-40dd-bc1d-6a8678996824")},
        {9, "Corvane Unit Properties Saved", make_guid("074642cd-0303-4304-8261-598d4c2a00f9")},
        {11, "GULL Properties Saved", make_guid("e0d95762-1203-7506-a177-f59cbbb8952a")},
        {20, "Auto Home-state Timeout Changed", make_guid("e0d95762-1203-6506-a327-f59cbbb89529")},
        {33, "Corvane Global Reinitialize", make_guid("074642cb-c9ad-4304-8261-598d4c2a00f9")},
        {34, "Corvane Scan Network", make_guid("074642ca-c9ad-4304-8261-598d4c2a00f9")},
        {36, "Corvane Unit Properties Saved Orrin 3.2", make_guid("074642cd-c9ad-4304-8261-598d4c2a00f9")},
        {39, "Demodulator Failed Event", make_guid("074642d0-c9ad-4304-8261-598d4c2a00f9")},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(utf8(row(c.index).name), c.name) << c.index;
        EXPECT_TRUE(same_guid(*row(c.index).eventType, c.id)) << c.index;
    }
    // Little-endian memory layout, as the host compares it.
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(row(0).eventType);
    EXPECT_EQ(bytes[0], 0x0a);
    EXPECT_EQ(bytes[3], 0x9f);
    EXPECT_EQ(bytes[4], 0x98);
    EXPECT_EQ(bytes[8], 0xbd);
}

TEST(EventTypes, FixedTextRenderers)
{
    struct Case {
        std::size_t index;
        const char* text;
        std::uint32_t colour;
    };
    for (const Case& c : {Case{0, "Properties were modified.", 0xFFFF80},
                          Case{3, "Properties were modified.", 0xFFFF80},
                          Case{39, "Device marked as unavailable due to switching error.", 0x0080FF}}) {
        std::array<wchar, 128> buffer{};
        std::uint32_t colour = 0;
        EXPECT_EQ(row(c.index).textRenderer(nullptr, 0, nullptr, buffer.data(), buffer.size(), &colour), S_OK);
        EXPECT_EQ(utf8(buffer.data()), c.text);
        EXPECT_EQ(colour, c.colour);
    }
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
