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

#include "core/output_stream.h"

namespace change_item_detail {

template <text_sink Out, class Value, class Format>
void write_value(Out& out, bool present, std::string_view before, const Value& value, const Format& format,
                 std::string_view after)
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
void write_change_text(bool& first, Out& out, std::string_view display, bool has_old, const Value& old_value,
                       bool has_new, const Value& new_value, const Format& format)
{
    if (!has_old && !has_new)
        return;
    if (!first)
        out << ", ";
    out << display << " was changed";
    change_item_detail::write_value(out, has_old, " from ", old_value, format, "");
    change_item_detail::write_value(out, has_new, " to ", new_value, format, "");
    first = false;
}

// <parameter id="RxModulation">, a tab-led <old> and <new> line for the values
// present, </parameter>; every line ends in a line feed. On the XML stream a
// start tag left open by the caller is closed before the item.
template <text_sink Out, class Value, class Format>
void write_change_xml(bool& first, Out& out, std::string_view key, bool has_old, const Value& old_value,
                      bool has_new, const Value& new_value, const Format& format)
{
    if (!has_old && !has_new)
        return;
    out << "<parameter id=\"" << key << "\">\n";
    change_item_detail::write_value(out, has_old, "\t<old>", old_value, format, "</old>\n");
    change_item_detail::write_value(out, has_new, "\t<new>", new_value, format, "</new>\n");
    out << "</parameter>\n";
    first = false;
}
