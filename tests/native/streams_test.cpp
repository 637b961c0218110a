// The bounded streams in isolation. How every renderer behaves at every
// capacity is checked by the samples.
#include <gtest/gtest.h>

#include <array>

#include "core/event_output.h"
#include "core/text_format.h"
#include "tests/native/test_text.h"

namespace {

constexpr wchar canary = 0xCCCC;

template <std::size_t N>
struct guarded_buffer {
    std::array<wchar, N + 1> units;
    guarded_buffer() { units.fill(canary); }
    wchar* data() { return units.data(); }
    bool intact() const { return units[N] == canary; }
};

TEST(OutputStream, PieceFitsOnlyWithRoomForTheTerminator)
{
    struct test_case {
        std::size_t capacity;
        std::string_view piece;
        bool fits;
    };
    for (const test_case& c : std::initializer_list<test_case>{
             {4, "abc", true}, {4, "abcd", false}, {1, "", true}, {1, "a", false}, {2, "a", true}, {10, "", true}}) {
        guarded_buffer<16> buffer;
        ui::event::text_output out(buffer.data(), c.capacity);
        out << "";
        if (c.fits) {
            out << c.piece;
            EXPECT_EQ(utf8(buffer.data()), c.piece);
        } else {
            EXPECT_THROW(out << c.piece, io::overflow);
            EXPECT_EQ(buffer.units[0], 0) << "a refused piece leaves the buffer as it was";
        }
        EXPECT_EQ(buffer.units[c.capacity], canary) << "capacity " << c.capacity;
    }
}

TEST(OutputStream, NarrowTextIsWidenedWithTheAnsiCodePage)
{
    std::array<wchar, 8> buffer{};
    ui::event::text_output out(buffer.data(), buffer.size());
    out << "\x80\xE9";   // euro sign and e acute in Windows-1252
    EXPECT_EQ(buffer[0], 0x20AC);
    EXPECT_EQ(buffer[1], 0x00E9);
}

TEST(IndentedStream, FillIsWrittenLazilyWithEachLine)
{
    std::array<wchar, 64> buffer{};
    ui::event::xml_output out(buffer.data(), buffer.size());
    out.indent = 3;
    out << "a\nb\n";
    out << "";
    EXPECT_EQ(utf8(buffer.data()), "   a\n   b\n");
    out << WSTR("c");
    EXPECT_EQ(utf8(buffer.data()), "   a\n   b\n   c");
}

TEST(XmlStream, AttributeAfterTheTagClosedIsRefused)
{
    std::array<wchar, 64> buffer{};
    ui::event::xml_output out(buffer.data(), buffer.size());
    out.open_element("a");
    out << "text";
    try {
        out.attribute("late", "1");
        FAIL() << "attribute accepted after content";
    } catch (const io::error& e) {
        EXPECT_STREQ(e.what(), "unexpected attribute");
    }
}

} // namespace
