// The streams as the event renderers construct them.
#pragma once

#include <string_view>

#include "core/xml_stream.h"

namespace ui::event {

using indented_output = io::text::indented::output_stream<wchar, ' ', 1, io::text::output_stream<wchar>>;

class xml_output : public io::xml::output::stream<wchar, indented_output> {
public:
    using stream::stream;
};

class text_output : public io::text::output_stream<wchar> {
public:
    using output_stream::output_stream;
};

} // namespace ui::event

// An element on a line of its own on the XML stream: <name>value</name> and
// a line break.
template <class Value>
void write_element_line(ui::event::xml_output& out, std::string_view name, const Value& value)
{
    out.element(name, value, "\n");
}
