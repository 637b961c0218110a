// The XML fragments written as elements, on prefixed lines.
//
// Every element goes through one path: its start tag is opened (left without
// its ">" while attributes may follow), the first write of anything else
// closes it, and closing the element writes "/>" when nothing was written
// inside, the end tag otherwise. An element name is a literal of the module
// ("source"_tag), whose tags are made when the module is compiled: the start
// tag with the line prefix before it, the end tag with a line feed after it.
//
// Nothing is escaped: the fragments are built from known literals and from
// payload text taken as it stands.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "core/messages.h"
#include "core/prefixed_lines.h"
#include "core/short_text.h"

namespace output {

// An element name and its two tags: "   <name>" and "</name>\n".
struct element_name {
    wstring_view startTag;   // the line prefix, "<", the name, ">"
    wstring_view endTag;   // "</", the name, ">", a line feed
};

namespace detail {

template <wide_literal::ascii Name>
struct element_tags {
    static constexpr std::size_t prefix = prefixed_lines::prefix.size();
    static constexpr std::size_t length = std::size(Name.units) - 1;

    static constexpr auto start = [] {
        std::array<wchar, prefix + length + 2> tag{};
        std::fill_n(tag.begin(), prefix, wchar(' '));
        tag[prefix] = '<';
        std::copy_n(Name.units, length, tag.begin() + prefix + 1);
        tag[prefix + 1 + length] = '>';
        return tag;
    }();
    static constexpr auto end = [] {
        std::array<wchar, length + 4> tag{};
        tag[0] = '<';
        tag[1] = '/';
        std::copy_n(Name.units, length, tag.begin() + 2);
        tag[length + 2] = '>';
        tag[length + 3] = '\n';
        return tag;
    }();
    static constexpr element_name name{{start.data(), start.size()}, {end.data(), end.size()}};
};

}   // namespace detail

class xml {
public:
    template <class... Args>
    explicit xml(Args&&... args) : lines_(std::forward<Args>(args)...)
    {}

    // Text inside the current element (closing a start tag left open).
    void write(const wchar* s, std::size_t n)
    {
        close_start_tag();
        lines_.write(s, n);
    }
    void write_inline(const wchar* s, std::size_t n)
    {
        close_start_tag();
        lines_.write_inline(s, n);
    }
    void write_ansi(const char* s, std::size_t n)
    {
        close_start_tag();
        lines_.write_ansi(s, n);
    }
    void write(const wide_literal::text& t)
    {
        close_start_tag();
        lines_.write(t);
    }

    std::size_t size() const noexcept { return lines_.size(); }
    wstring_view view() const noexcept { return lines_.view(); }

    // "<name", left open for attributes.
    void open_element(const element_name& name)
    {
        if (depth_ == open_.size())
            throw io::error(messages::elements_nested_too_deeply);
        close_start_tag();
        const wstring_view tag = name.startTag.substr(prefix_width);
        lines_.write_inline(tag.data(), tag.size() - 1);
        open_[depth_++] = &name;
        tagClosed_ = false;
    }

    // "<name attribute="value"", left open, as one item when the value holds
    // no line feed.
    void open_element(const element_name& name, wstring_view attribute_name, wstring_view attribute_value)
    {
        if (!line_free(attribute_value) || depth_ == open_.size()) {
            open_element(name);
            return attribute(attribute_name, attribute_value);
        }
        close_start_tag();
        const wstring_view tag = name.startTag.substr(0, name.startTag.size() - 1);
        const wstring_view start = lines_.at_line_start() ? tag : tag.substr(prefix_width);
        wchar* p = lines_.reserve(start.size() + attribute_name.size() + attribute_value.size() + 4);
        p = std::copy(start.begin(), start.end(), p);
        lines_.commit(write_attribute(p, {attribute_name, attribute_value}), false);
        open_[depth_++] = &name;
        tagClosed_ = false;
    }

    // ` name="value"` in the open start tag, as one item when the value
    // holds no line feed.
    template <class Value>
    void attribute(wstring_view name, const Value& value)
    {
        if (tagClosed_)
            throw io::error(messages::unexpected_attribute);
        const auto& text = text_of(value);
        const wstring_view units = text;
        if (!line_free(text)) {
            lines_.write_inline(" "_w.data(), 1);
            lines_.write_inline(name.data(), name.size());
            lines_.write_inline("=\""_w.data(), 2);
            lines_.write(units.data(), units.size());
            lines_.write_inline("\""_w.data(), 1);
            return;
        }
        lines_.commit(write_attribute(lines_.reserve(name.size() + units.size() + 4), {name, units}), false);
    }

    // "/>" when nothing was written inside, else the end tag.
    void close_element() { close(false); }

    // The same, then a line feed.
    void close_line() { close(true); }

    // `<name>` or `<name attribute="value">`, then a line feed.
    void open_line(const element_name& name)
    {
        open_element(name);
        write("\n"_w);
    }
    template <class Value>
    void open_line(const element_name& name, wstring_view attribute_name, const Value& value)
    {
        if constexpr (std::is_convertible_v<const Value&, wstring_view>) {
            open_element(name, attribute_name, value);
        } else {
            open_element(name);
            attribute(attribute_name, value);
        }
        write("\n"_w);
    }

    // <name>value</name> and a line feed; the end tag follows even when the
    // value is empty (<name></name>, never <name/>). A value that holds no
    // line feed goes out with its tags as one item.
    template <class Value>
    void element_line(const element_name& name, const Value& value)
    {
        element_line(name, {}, value);
    }

    // The same with one attribute: <name attribute="value">value</name>.
    template <class Value>
    void element_line(const element_name& name, wstring_view attribute_name, wstring_view attribute_value,
                      const Value& value)
    {
        element_line(name, {attribute_name, attribute_value}, value);
    }

    // The rest of an element line whose start tag is open: the value, the end
    // tag and a line feed, as one item when the value holds no line feed.
    template <class Value>
    void close_line_with(const Value& value)
    {
        if constexpr (requires { text_of(value); }) {
            const auto& text = text_of(value);
            if (line_free(text) && !tagClosed_ && depth_ > 0) {
                const wstring_view units = text;
                const wstring_view end = open_[--depth_]->endTag;
                wchar* p = lines_.reserve(1 + units.size() + end.size());
                *p++ = '>';
                p = std::copy(units.begin(), units.end(), p);
                lines_.commit(std::copy(end.begin(), end.end(), p), true);
                tagClosed_ = true;
                return;
            }
        }
        *this << value;
        close_line();
    }

    // The same with whatever `content` writes between the tags.
    template <class Content>
    void element_line_with(const element_name& name, Content&& content)
    {
        open_element(name);
        close_start_tag();
        content();
        close_line();
    }

private:
    static constexpr std::size_t prefix_width = prefixed_lines::prefix.size();

    struct attribute_text {
        wstring_view name;   // none when empty
        wstring_view value;
    };

    template <class Value>
    void element_line(const element_name& name, const attribute_text& attribute, const Value& value)
    {
        if constexpr (requires { text_of(value); }) {
            const auto& text = text_of(value);
            if (line_free(text) && line_free(attribute.value))
                return write_element_item(name, attribute, text);
        }
        open_element(name);
        if (!attribute.name.empty())
            this->attribute(attribute.name, attribute.value);
        close_start_tag();
        *this << value;
        close_line();
    }

    // ">" of a start tag left open, a start tag with its attribute, the
    // value, the end tag and its line feed: one room check for all of them.
    void write_element_item(const element_name& name, const attribute_text& attribute, wstring_view value)
    {
        const bool pending = !tagClosed_;
        const wstring_view start =
            pending || !lines_.at_line_start() ? name.startTag.substr(prefix_width) : name.startTag;
        const std::size_t attribute_units =
            attribute.name.empty() ? 0 : attribute.name.size() + attribute.value.size() + 4;
        wchar* p = lines_.reserve(pending + start.size() + attribute_units + value.size() + name.endTag.size());
        if (pending)
            *p++ = '>';
        if (attribute_units) {
            p = std::copy(start.begin(), start.end() - 1, p);
            p = write_attribute(p, attribute);
            *p++ = '>';
        } else {
            p = std::copy(start.begin(), start.end(), p);
        }
        p = std::copy(value.begin(), value.end(), p);
        lines_.commit(std::copy(name.endTag.begin(), name.endTag.end(), p), true);
        tagClosed_ = true;
    }

    static wchar* write_attribute(wchar* p, const attribute_text& attribute) noexcept
    {
        *p++ = ' ';
        p = std::copy(attribute.name.begin(), attribute.name.end(), p);
        *p++ = '=';
        *p++ = '"';
        p = std::copy(attribute.value.begin(), attribute.value.end(), p);
        *p++ = '"';
        return p;
    }

    void close(bool endLine)
    {
        if (depth_ == 0)
            throw io::error(messages::no_open_element);
        const element_name& name = *open_[--depth_];
        if (!tagClosed_) {
            tagClosed_ = true;
            const wstring_view empty = endLine ? "/>\n"_w : "/>"_w;
            lines_.write_inline(empty.data(), empty.size(), endLine);
        } else {
            lines_.write_inline(name.endTag.data(), name.endTag.size() - !endLine, endLine);
        }
    }

    void close_start_tag()
    {
        if (!tagClosed_) {
            lines_.write_inline(">"_w.data(), 1);
            tagClosed_ = true;
        }
    }

    prefixed_lines lines_;
    // Whether the last start tag has its ">" (or "/>") yet; while it has not,
    // attributes may follow.
    bool tagClosed_ = true;
    // The open elements; no fragment nests deeper than this.
    std::array<const element_name*, 16> open_{};
    std::size_t depth_ = 0;
};

}   // namespace output

// An element name of the module, with its tags made when it is compiled.
template <wide_literal::ascii Name>
constexpr const output::element_name& operator""_tag()
{
    return output::detail::element_tags<Name>::name;
}

template <text_sink Out>
requires std::is_same_v<Out, output::xml> || std::is_base_of_v<output::buffer, Out> Out&
operator<<(Out& out, const wide_literal::text& t)
{
    if constexpr (std::is_same_v<Out, output::xml>)
        out.write(t);
    else
        out.write(t.data(), t.size());
    return out;
}
