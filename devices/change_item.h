// The changed parameters of one rendering, as the phrases of the one-line
// text or as `parameter` elements of the XML fragment: one list object per
// rendering, one `add` per changed parameter.
//
// Whether an item appears is decided by the record's presence bits alone:
// the values are never compared, so a field the event marks is shown even
// when its old and new values are equal.
#pragma once

#include <string_view>

#include "core/xml_writer.h"

// The two names of a parameter: the key is the XML `id`, the display name
// what the text shows.
struct change_name {
    wide_literal::text key;
    wstring_view display;
};

// "Rx Modulation was changed from QPSK to 8PSK, Rx Frequency was changed to
// 70 MHz": " from ..." and " to ..." only for the values present. The list
// keeps ", " off the front of its first item.
class text_change_list {
public:
    explicit text_change_list(output::text& out) noexcept : out_(out) {}

    // The whole phrase, its separator included, is one item.
    template <class Value, class Format>
    void add(const change_name& name, bool has_old, const Value& old_value, bool has_new, const Value& new_value,
             const Format& format)
    {
        if (!has_old && !has_new)
            return;
        using text = decltype(format.shown(old_value));
        const text old_text = has_old ? format.shown(old_value) : text();
        const text new_text = has_new ? format.shown(new_value) : text();
        out_.put(first_ ? wstring_view() : ", "_w, name.display, " was changed"_w,
                 has_old ? " from "_w : wstring_view(), wstring_view(old_text), has_new ? " to "_w : wstring_view(),
                 wstring_view(new_text));
        first_ = false;
    }

private:
    output::text& out_;
    bool first_ = true;
};

// <parameter id="RxModulation">, a tab-led <old> and <new> line for the values
// present, </parameter>; every line ends in a line feed. A start tag left open
// by the caller is closed before the first item.
class xml_change_list {
public:
    explicit xml_change_list(output::xml& out) noexcept : out_(out) {}

    template <class Value, class Format>
    void add(const change_name& name, bool has_old, const Value& old_value, bool has_new, const Value& new_value,
             const Format& format)
    {
        if (!has_old && !has_new)
            return;
        out_.open_line("parameter"_tag, "id"_w, name.key);
        write_value(has_old, "\told"_tag, old_value, format);
        write_value(has_new, "\tnew"_tag, new_value, format);
        out_.close_line();
    }

private:
    template <class Value, class Format>
    void write_value(bool present, const output::element_name& element, const Value& value, const Format& format)
    {
        if (!present)
            return;
        out_.element_line(element, format.shown(value));
    }

    output::xml& out_;
};
