// The element shapes of change sets, written once: an element whose start tag
// ends its line, and an old and new value pair.
#pragma once

#include <string_view>

#include "core/event_output.h"

namespace change_sets {

// `<name attribute="value">` and a line break; close it with close_line.
template <class Value>
void open_line(ui::event::xml_output& out, wstring_view name, wstring_view attribute, const Value& value)
{
    out.open_element(name);
    out.attribute(attribute, value);
    out << "\n"_w;
}

inline void open_line(ui::event::xml_output& out, wstring_view name)
{
    out.open_element(name);
    out << "\n"_w;
}

// The end tag (or "/>" when nothing was written inside) and a line break.
inline void close_line(ui::event::xml_output& out)
{
    out.close_element();
    out << "\n"_w;
}

// `<name>` with what `write_value` writes, `<name/>` when it writes nothing,
// on a line of its own.
template <class WriteValue>
void value_line(ui::event::xml_output& out, wstring_view name, WriteValue&& write_value)
{
    out.open_element(name);
    write_value();
    close_line(out);
}

// The same with an attribute: `<name attribute="value">...</name>`.
template <class WriteValue>
void value_line(ui::event::xml_output& out, wstring_view name, wstring_view attribute, wstring_view attribute_value,
                WriteValue&& write_value)
{
    out.open_element(name);
    out.attribute(attribute, attribute_value);
    write_value();
    close_line(out);
}

// The old and the new value, each read just before it is written.
template <class WriteValue>
void old_and_new(ui::event::xml_output& out, WriteValue&& write_value)
{
    value_line(out, "old-value"_w, write_value);
    value_line(out, "new-value"_w, write_value);
}

}   // namespace change_sets
