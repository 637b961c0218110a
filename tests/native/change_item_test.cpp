// Change lists: which phrases and elements a run of fields produces, from
// the presence bits alone, with the text list's separator after its first
// written item only.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "devices/change_item.h"
#include "devices/demod_tables.h"
#include "devices/value_formats.h"
#include "tests/native/test_text.h"

namespace {

struct field {
    const char* name;
    bool hasOld;
    std::uint8_t oldValue;
    bool hasNew;
    std::uint8_t newValue;
};

const formats::option modulation{demod_options::modulation};

struct run {
    std::vector<field> fields;   // added to one fresh list
    const char* text;   // the text items
    const char* xml;   // the XML items
};

// A key made at run time, as the field tables hold theirs: a literal with no
// line feed.
wide_literal::text key(const wstring& k)
{
    return {{k}};
}

// The XML items as the fragment shows them: every line three blanks in.
std::string prefixed(std::string_view xml)
{
    std::string lines;
    for (std::size_t start = 0; start < xml.size();) {
        const std::size_t end = std::min(xml.find('\n', start), xml.size() - 1) + 1;
        lines += "   ";
        lines += xml.substr(start, end - start);
        start = end;
    }
    return lines;
}

const run runs[] = {
    {{{"A", true, 1, true, 3}},
     "A was changed from QPSK to 8PSK",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n\t<new>8PSK</new>\n</parameter>\n"},
    {{{"A", false, 0, true, 3}}, "A was changed to 8PSK", "<parameter id=\"A\">\n\t<new>8PSK</new>\n</parameter>\n"},
    {{{"A", true, 1, false, 0}}, "A was changed from QPSK", "<parameter id=\"A\">\n\t<old>QPSK</old>\n</parameter>\n"},
    {{{"A", false, 1, false, 3}}, "", ""},
    // Equal values are still shown when the event marks the field.
    {{{"A", true, 1, true, 1}},
     "A was changed from QPSK to QPSK",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n\t<new>QPSK</new>\n</parameter>\n"},
    {{{"A", true, 1, true, 3}, {"B", true, 0, true, 200}},
     "A was changed from QPSK to 8PSK, B was changed from BPSK to (invalid)",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n\t<new>8PSK</new>\n</parameter>\n"
     "<parameter id=\"B\">\n\t<old>BPSK</old>\n\t<new>(invalid)</new>\n</parameter>\n"},
    // A field present in neither copy writes nothing and leaves the next
    // item first.
    {{{"A", false, 0, false, 0}, {"B", false, 0, true, 2}},
     "B was changed to OQPSK",
     "<parameter id=\"B\">\n\t<new>OQPSK</new>\n</parameter>\n"},
    {{{"A", true, 1, false, 0}, {"B", false, 0, false, 0}, {"C", true, 2, false, 0}},
     "A was changed from QPSK, C was changed from OQPSK",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n</parameter>\n"
     "<parameter id=\"C\">\n\t<old>OQPSK</old>\n</parameter>\n"},
};

// Each form shows its own name: the text the display name, XML the key.
TEST(ChangeList, TextItemsRunOnOneLine)
{
    for (const run& r : runs) {
        const std::string text = written([&](output::text& out) {
            text_change_list list(out);
            for (const field& f : r.fields)
                list.add({key(wide(std::string("key-") + f.name)), wide(f.name)}, f.hasOld, f.oldValue, f.hasNew,
                         f.newValue, modulation);
        });
        EXPECT_EQ(text, r.text);
    }
}

TEST(ChangeList, XmlItemsAreParameterElements)
{
    for (const run& r : runs) {
        const std::string xml = written<output::xml>([&](output::xml& out) {
            xml_change_list list(out);
            for (const field& f : r.fields)
                list.add({key(wide(f.name)), wide(std::string("display-") + f.name)}, f.hasOld, f.oldValue, f.hasNew,
                         f.newValue, modulation);
        });
        EXPECT_EQ(xml, prefixed(r.xml));
    }
}

TEST(ChangeList, XmlItemClosesAPendingStartTagAndTakesTheIndentation)
{
    const std::string xml = written<output::xml>([&](output::xml& out) {
        out.open_element("changes"_tag);
        xml_change_list list(out);
        list.add({"RxFrequency"_w, "Rx Frequency"_w}, true, std::uint32_t(70000000), true, std::uint32_t(999999),
                 formats::scaled{scales::frequency});
    });
    EXPECT_EQ(xml, "   <changes>"
                   "<parameter id=\"RxFrequency\">\n"
                   "   \t<old>70 MHz</old>\n"
                   "   \t<new>999.999 KHz</new>\n"
                   "   </parameter>\n");
}

}   // namespace
