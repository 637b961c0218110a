// The output buffer and its forms in isolation. How every renderer behaves at
// every capacity, and that the counting form measures each of them exactly,
// is checked by the samples.
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/xml_writer.h"
#include "core/text_format.h"
#include "tests/native/test_text.h"

namespace {

constexpr wchar canary = 0xCCCC;

static_assert("a\tb"_w == wstring_view(std::array<wchar, 3>{'a', '\t', 'b'}.data(), 3),
              "literals are UTF-16 when compiled");
static_assert("a\0b"_w.size() == 3, "a literal keeps the units it spells, NULs included");
static_assert("a\n"_w.endsLine && !"a\n"_w.breaksInside && "a\nb"_w.breaksInside && !"a\nb"_w.endsLine,
              "a literal knows its line feeds when compiled");

template <std::size_t N>
struct guarded_buffer {
    std::array<wchar, N + 1> units;
    guarded_buffer() { units.fill(canary); }
    wchar* data() { return units.data(); }
};

TEST(OutputBuffer, PieceFitsOnlyWithRoomForTheTerminator)
{
    struct test_case {
        std::size_t capacity;
        const char* piece;
        bool fits;
    };
    for (const test_case& c : std::initializer_list<test_case>{
             {4, "abc", true}, {4, "abcd", false}, {1, "", true}, {1, "a", false}, {2, "a", true}, {10, "", true}}) {
        guarded_buffer<16> buffer;
        {
            output::text out(buffer.data(), c.capacity);
            if (c.fits)
                out << wide(c.piece);
            else
                EXPECT_THROW(out << wide(c.piece), io::overflow);
        }
        EXPECT_EQ(utf8(buffer.data()), c.fits ? c.piece : "") << "a refused piece leaves the buffer as it was";
        EXPECT_EQ(buffer.units[c.capacity], canary) << "capacity " << c.capacity;
    }
}

TEST(OutputBuffer, NoRoomEvenForTheTerminatorIsAnOverflow)
{
    wchar unit = canary;
    EXPECT_THROW(output::text(&unit, 0), io::overflow);
    EXPECT_EQ(unit, canary);
}

TEST(OutputBuffer, RunTimeNarrowTextIsWidenedWithTheAnsiCodePage)
{
    std::array<wchar, 8> buffer{};
    output::text out(buffer.data(), buffer.size());
    out << ansi_text("\x80\xE9");   // euro sign and e acute in Windows-1252
    EXPECT_EQ(buffer[0], 0x20AC);
    EXPECT_EQ(buffer[1], 0x00E9);
}

TEST(PrefixedLines, PrefixGoesOutWithEachLinesFirstUnit)
{
    const std::string xml = written<output::xml>([](output::xml& out) {
        out << "a\nb\n"_w
            << ""_w
            << "\n"_w;
        out << ansi_text("c\nd") << wide("\ne\n") << "f"_w;
    });
    EXPECT_EQ(xml, "   a\n   b\n   \n   c\n   d\n   e\n   f");
}

TEST(XmlWriter, AttributeAfterTheTagClosedIsRefused)
{
    std::array<wchar, 64> buffer{};
    output::xml out(buffer.data(), buffer.size());
    out.open_element("a"_tag);
    out << "text"_w;
    try {
        out.attribute("late"_w, "1"_w);
        FAIL() << "attribute accepted after content";
    } catch (const io::error& e) {
        EXPECT_STREQ(e.what(), "unexpected attribute");
    }
}

// An element line goes out as one item when its value holds no line feed,
// and through the prefixed lines when it does: the same text either way.
TEST(XmlWriter, ElementLinesAreTheSameWhicheverWayTheyGoOut)
{
    const std::string xml = written<output::xml>([](output::xml& out) {
        out.element_line("a"_tag, "one"_w);
        out.element_line("b"_tag, wide("two\nlines"));
        out.open_element("c"_tag);
        out.open_element("d"_tag, "k"_w, "v"_w);
        out.close_line_with(decimal(-7));
        out.open_element("e"_tag, "k"_w, wide("v\nw"));
        out.close_line_with(""_w);
        out.open_line("g"_tag, "k"_w, decimal(3));
        out.close_line();
        out.close_line();
        out.open_element("f"_tag);
        out.close_element();
    });
    EXPECT_EQ(xml, "   <a>one</a>\n"
                   "   <b>two\n   lines</b>\n"
                   "   <c><d k=\"v\">-7</d>\n"
                   "   <e k=\"v\n   w\"></e>\n"
                   "   <g k=\"3\">\n"
                   "   </g>\n"
                   "   </c>\n"
                   "   <f/>");
}

// The counting form takes every write the writing forms take, and counts
// what they would have written, prefix and closing of start tags included,
// however small its scratch area.
TEST(CountingForm, MeasuresWhatTheSameWritesWrite)
{
    const auto write = [](output::xml& out) {
        out.open_element("a"_tag);
        out.attribute("n"_w, decimal(-42));
        out << "\n"_w << ansi_text("x\ny") << dotted_ipv4{0x0A000001};
        out.element_line("b"_tag, hex_byte{0xAB});
        out << wide("a longer run-time text than the scratch area");
        out.close_element();
    };
    std::array<wchar, 256> buffer{};
    output::xml written(buffer.data(), buffer.size());
    write(written);
    const std::string expected = "   <a n=\"-42\">\n   x\n   y10.0.0.1<b>AB</b>\n"
                                 "   a longer run-time text than the scratch area</a>";
    EXPECT_EQ(utf8(written.view()), expected);
    for (const std::size_t scratch : {std::size_t(24), output::counting_scratch}) {
        std::vector<wchar> area(scratch);
        output::xml counted(output::counting, area);
        write(counted);
        EXPECT_EQ(counted.size(), expected.size()) << "scratch " << scratch;
    }
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
