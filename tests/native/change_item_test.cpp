// Change items: which phrases and elements a run of fields produces, from
// the presence bits alone, with the first-item flag shared across the run.
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
    bool has_old;
    std::uint8_t old_value;
    bool has_new;
    std::uint8_t new_value;
};

const formats::option modulation{demod_options::modulation};

struct run {
    std::vector<field> fields;
    bool first;             // the flag before the run
    const char* text;       // the text items
    const char* xml;        // the XML items
    bool first_after;       // the flag after the run
};

const run runs[] = {
    {{{"A", true, 1, true, 3}}, true, "A was changed from QPSK to 8PSK",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n\t<new>8PSK</new>\n</parameter>\n", false},
    {{{"A", false, 0, true, 3}}, true, "A was changed to 8PSK",
     "<parameter id=\"A\">\n\t<new>8PSK</new>\n</parameter>\n", false},
    {{{"A", true, 1, false, 0}}, true, "A was changed from QPSK",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n</parameter>\n", false},
    {{{"A", false, 1, false, 3}}, true, "", "", true},
    {{{"A", false, 1, false, 3}}, false, "", "", false},
    // Equal values are still shown when the event marks the field.
    {{{"A", true, 1, true, 1}}, true, "A was changed from QPSK to QPSK",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n\t<new>QPSK</new>\n</parameter>\n", false},
    {{{"A", true, 1, true, 3}, {"B", true, 0, true, 200}}, true,
     "A was changed from QPSK to 8PSK, B was changed from BPSK to (invalid)",
     "<parameter id=\"A\">\n\t<old>QPSK</old>\n\t<new>8PSK</new>\n</parameter>\n"
     "<parameter id=\"B\">\n\t<old>BPSK</old>\n\t<new>(invalid)</new>\n</parameter>\n",
     false},
    // A field present in neither copy neither writes nor clears the flag.
    {{{"A", false, 0, false, 0}, {"B", false, 0, true, 2}}, true, "B was changed to OQPSK",
     "<parameter id=\"B\">\n\t<new>OQPSK</new>\n</parameter>\n", false},
    {{{"B", true, 2, false, 0}}, false, ", B was changed from OQPSK",
     "<parameter id=\"B\">\n\t<old>OQPSK</old>\n</parameter>\n", false},
};

TEST(ChangeItem, TextItemsRunOnOneLine)
{
    for (const run& r : runs) {
        bool first = r.first;
        const std::string text = written([&](auto& out) {
            for (const field& f : r.fields)
                write_change_text(first, out, wide(f.name), f.has_old, f.old_value, f.has_new, f.new_value, modulation);
        });
        EXPECT_EQ(text, r.text);
        EXPECT_EQ(first, r.first_after) << r.text;
    }
}

TEST(ChangeItem, XmlItemsAreParameterElements)
{
    for (const run& r : runs) {
        bool first = r.first;
        const std::string xml = written<ui::event::xml_output>([&](auto& out) {
            for (const field& f : r.fields)
                write_change_xml(first, out, wide(f.name), f.has_old, f.old_value, f.has_new, f.new_value, modulation);
        });
        EXPECT_EQ(xml, r.xml);
        EXPECT_EQ(first, r.first_after) << r.xml;
    }
}

TEST(ChangeItem, XmlItemClosesAPendingStartTagAndTakesTheIndentation)
{
    bool first = true;
    const std::string xml = written<ui::event::xml_output>([&](ui::event::xml_output& out) {
        out.indent_by(3);
        out.open_element("changes"_w);
        write_change_xml(first, out, "RxFrequency"_w, true, std::uint32_t(70000000), true, std::uint32_t(999999),
                         formats::scaled{scales::frequency});
    });
    EXPECT_EQ(xml, "   <changes>"
                   "<parameter id=\"RxFrequency\">\n"
                   "   \t<old>70 MHz</old>\n"
                   "   \t<new>999.999 KHz</new>\n"
                   "   </parameter>\n");
}

} // namespace
