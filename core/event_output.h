// The three forms of the output buffer a renderer body writes through, one
// per kind of output; a body names its form in its parameter, and the event
// type table names it again for every XML renderer (render::xml_form).
//
//   text_output           the one line of text
//   verbatim_xml_output   an XML fragment written as fixed literals: tabs,
//                         line breaks and their quirks exactly as they stand
//   xml_output            an XML fragment written as elements, indented
#pragma once

#include "core/xml_stream.h"

namespace ui::event {

class text_output : public io::text::output_stream<wchar> {
public:
    using output_stream::output_stream;
};

class verbatim_xml_output : public io::text::output_stream<wchar> {
public:
    using output_stream::output_stream;
};

using indented_output = io::text::indented::output_stream<wchar, ' ', 1, io::text::output_stream<wchar>>;

class xml_output : public io::xml::output::stream<wchar, indented_output> {
public:
    using stream::stream;
};

}   // namespace ui::event

// An element on a line of its own in the structured dialect:
// <name>value</name> and a line break.
template <class Value>
void write_element_line(ui::event::xml_output& out, wstring_view name, const Value& value)
{
    out.element(name, value, "\n"_w);
}
