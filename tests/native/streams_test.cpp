// The output buffer and its forms in isolation. How every renderer behaves at
// every capacity, and that the counting form measures each of them exactly,
// is checked by the samples.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>

#include "core/event_output.h"
#include "core/text_format.h"
#include "tests/native/test_text.h"

namespace {

constexpr wchar canary = 0xCCCC;

static_assert("a\tb"_w == wstring_view(std::array<wchar, 3>{'a', '\t', 'b'}.data(), 3),
              "literals are UTF-16 when compiled");
static_assert("a\0b"_w.size() == 3, "a literal keeps the units it spells, NULs included");

template <std::size_t N>
struct guarded_buffer {
    std::array<wchar, N + 1> units;
    guarded_buffer() { units.fill(canary); }
    wchar* data() { return units.data(); }
};

TEST(OutputStream, PieceFitsOnlyWithRoomForTheTerminator)
{
    struct test_case {
        std::size_t capacity;
        const char* piece;
        bool fits;
    };
    for (const test_case& c : std::initializer_list<test_case>{
             {4, "abc", true}, {4, "abcd", false}, {1, "", true}, {1, "a", false}, {2, "a", true}, {10, "", true}}) {
        guarded_buffer<16> buffer;
        ui::event::text_output out(buffer.data(), c.capacity);
        if (c.fits) {
            out << wide(c.piece);
            EXPECT_EQ(utf8(buffer.data()), c.piece);
        } else {
            EXPECT_THROW(out << wide(c.piece), io::overflow);
            EXPECT_EQ(buffer.units[0], 0) << "a refused piece leaves the buffer as it was";
        }
        EXPECT_EQ(buffer.units[c.capacity], canary) << "capacity " << c.capacity;
    }
}

TEST(OutputStream, NoRoomEvenForTheTerminatorIsAnOverflow)
{
    wchar unit = canary;
    EXPECT_THROW(ui::event::text_output(&unit, 0), io::overflow);
    EXPECT_EQ(unit, canary);
}

TEST(OutputStream, RunTimeNarrowTextIsWidenedWithTheAnsiCodePage)
{
    std::array<wchar, 8> buffer{};
    ui::event::text_output out(buffer.data(), buffer.size());
    out << ansi_text("\x80\xE9");   // euro sign and e acute in Windows-1252
    EXPECT_EQ(buffer[0], 0x20AC);
    EXPECT_EQ(buffer[1], 0x00E9);
}

TEST(IndentedStream, FillIsWrittenLazilyWithEachLine)
{
    std::array<wchar, 64> buffer{};
    ui::event::xml_output out(buffer.data(), buffer.size());
    out.indent_by(3);
    out << "a\nb\n"_w;
    out << ""_w;
    EXPECT_EQ(utf8(buffer.data()), "   a\n   b\n");
    out << ansi_text("c\nd");
    EXPECT_EQ(utf8(buffer.data()), "   a\n   b\n   c\n   d");
}

TEST(XmlStream, AttributeAfterTheTagClosedIsRefused)
{
    std::array<wchar, 64> buffer{};
    ui::event::xml_output out(buffer.data(), buffer.size());
    out.open_element("a"_w);
    out << "text"_w;
    try {
        out.attribute("late"_w, "1"_w);
        FAIL() << "attribute accepted after content";
    } catch (const io::error& e) {
        EXPECT_STREQ(e.what(), "unexpected attribute");
    }
}

// The counting form takes every write the writing forms take, and counts
// what they would have written: fill, closing of start tags and all.
TEST(CountingForm, MeasuresWhatTheSameWritesWrite)
{
    const auto write = [](auto& out) {
        out.indent_by(2);
        out.open_element("a"_w);
        out.attribute("n"_w, decimal(-42));
        out << "\n"_w << ansi_text("x\ny") << dotted_ipv4{0x0A000001};
        out.element("b"_w, hex_byte{0xAB}, "\n"_w);
        out.close_element();
    };
    std::array<wchar, 256> buffer{};
    ui::event::xml_output written(buffer.data(), buffer.size());
    write(written);
    ui::event::xml_output counted(io::text::counting);
    write(counted);
    EXPECT_EQ(utf8(buffer.data()), "  <a n=\"-42\">\n  x\n  y10.0.0.1<b>AB</b>\n  </a>");
    EXPECT_EQ(counted.size(), written.size());
    EXPECT_EQ(counted.data(), nullptr) << "the counting form has no buffer";
}

TEST(NumberShapes, DigitsAsTheyAreShown)
{
    const auto shown = [](auto value) { return written([&](auto& out) { out << value; }); };
    for (const auto& [text, expected] : std::initializer_list<std::pair<std::string, const char*>>{
             {shown(decimal(0)), "0"},
             {shown(decimal(7)), "7"},
             {shown(decimal(10)), "10"},
             {shown(decimal(99)), "99"},
             {shown(decimal(100)), "100"},
             {shown(decimal(-1005)), "-1005"},
             {shown(decimal(std::numeric_limits<std::uint64_t>::max())), "18446744073709551615"},
             {shown(decimal(std::numeric_limits<std::int64_t>::min())), "-9223372036854775808"},
             {shown(hex_byte{0x0B}), "0B"},
             {shown(hex_byte{0xF0}), "F0"},
             {shown(dotted_ipv4{0}), "0.0.0.0"},
             {shown(dotted_ipv4{167837696}), "10.1.0.0"},
             {shown(dotted_ipv4{0xFFFFFFFF}), "255.255.255.255"},
         })
        EXPECT_EQ(text, expected);
}

}   // namespace
