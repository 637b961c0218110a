// One changed parameter, as a phrase of the one-line text or as a
// `parameter` element of the XML fragment.
//
// Whether an item appears is decided by the record's presence bits alone:
// the values are never compared, so a field the event marks is shown even
// when its old and new values are equal. `first` is shared by every item of
// one rendering; it is true until the first item has been written, which is
// what keeps the ", " separator off the front of the text.
#pragma once

#include <string_view>

#include "core/event_output.h"

namespace change_item_detail {

template <text_sink Out, class Value, class Format>
void write_value(Out& out, bool present, wstring_view before, const Value& value, const Format& format,
                 wstring_view after)
{
    if (!present)
        return;
    out << before;
    format(out, value);
    out << after;
}

} // namespace change_item_detail

// "Rx Modulation was changed from QPSK to 8PSK", led by ", " unless it is
// the first item; " from ..." and " to ..." only for the values present.
template <text_sink Out, class Value, class Format>
void write_change_text(bool& first, Out& out, wstring_view display, bool has_old, const Value& old_value,
                       bool has_new, const Value& new_value, const Format& format)
{
    if (!has_old && !has_new)
        return;
    if (!first)
        out << ", "_w;
    out << display << " was changed"_w;
    change_item_detail::write_value(out, has_old, " from "_w, old_value, format, ""_w);
    change_item_detail::write_value(out, has_new, " to "_w, new_value, format, ""_w);
    first = false;
}

// <parameter id="RxModulation">, a tab-led <old> and <new> line for the values
// present, </parameter>; every line ends in a line feed. A start tag left open
// by the caller is closed before the item.
template <class Value, class Format>
void write_change_xml(bool& first, ui::event::xml_output& out, wstring_view key, bool has_old,
                      const Value& old_value, bool has_new, const Value& new_value, const Format& format)
{
    if (!has_old && !has_new)
        return;
    out.open_element("parameter"_w);
    out.attribute("id"_w, key);
    out << "\n"_w;
    const auto value_line = [&](bool present, wstring_view name, const Value& value) {
        if (!present)
            return;
        out << "\t"_w;
        out.element_with(name, [&] { format(out, value); }, "\n"_w);
    };
    value_line(has_old, "old"_w, old_value);
    value_line(has_new, "new"_w, new_value);
    out.close_element();
    out << "\n"_w;
    first = false;
}
