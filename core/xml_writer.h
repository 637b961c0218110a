// The XML fragments written as elements, on prefixed lines.
//
// Every element goes through one path: its start tag is opened (left without
// its ">" while attributes may follow), the first write of anything else
// closes it, and closing the element writes "/>" when nothing was written
// inside, the end tag otherwise. An element name is a literal of the module
// ("source"_tag), whose tags are made when the module is compiled: the start
// tag with the line prefix before it, the end tag with a line feed after it.
// Tabs or blanks before the name ("\told"_tag) stand between the prefix and
// the start tag.
//
// The shapes the fragments are made of (a start tag and a line feed, an
// element and its value on a line, an end tag and a line feed) each go out
// as one item with one room check, when their run-time parts hold no line
// feed; otherwise they take the same path piece by piece.
//
// Nothing is escaped: the fragments are built from known literals and from
// payload text taken as it stands.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "core/messages.h"
#include "core/prefixed_lines.h"
#include "core/short_text.h"

namespace output {

// An element name and its two tags: "   <name>" and "</name>\n".
struct element_name {
    wstring_view startTag;   // the line prefix, any lead, "<", the name, ">"
    wstring_view endTag;   // "</", the name, ">", a line feed
};

namespace detail {

template <wide_literal::ascii Literal>
struct element_tags {
    static constexpr std::size_t prefix = prefixed_lines::prefix.size();
    static constexpr std::size_t size = std::size(Literal.units) - 1;
    static constexpr std::size_t lead = [] {
        std::size_t n = 0;
        while (n < size && (Literal.units[n] == '\t' || Literal.units[n] == ' '))
            ++n;
        return n;
    }();
    static constexpr std::size_t length = size - lead;
    static_assert(length > 0, "an element has a name");

    static constexpr auto start = [] {
        std::array<wchar, prefix + size + 2> tag{};
        std::fill_n(tag.begin(), prefix, wchar(' '));
        std::copy_n(Literal.units, lead, tag.begin() + prefix);
        tag[prefix + lead] = '<';
        std::copy_n(Literal.units + lead, length, tag.begin() + prefix + lead + 1);
        tag[prefix + size + 1] = '>';
        return tag;
    }();
    static constexpr auto end = [] {
        std::array<wchar, length + 4> tag{};
        tag[0] = '<';
        tag[1] = '/';
        std::copy_n(Literal.units + lead, length, tag.begin() + 2);
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

    // "<name", or "<name attribute="value"", left open for attributes.
    void open_element(const element_name& name)
    {
        push(name);
        put(false, true, pending(), start_of(name, false));
        tagClosed_ = false;
    }
    template <class Value>
    void open_element(const element_name& name, wstring_view attribute_name, const Value& attribute_value)
    {
        const auto& text = text_of(attribute_value);
        if (!line_free(text)) {
            open_element(name);
            return attribute(attribute_name, text);
        }
        push(name);
        put(false, true, pending(), start_of(name, false), " "_w, attribute_name, "=\""_w, wstring_view(text), "\""_w);
        tagClosed_ = false;
    }

    // ` name="value"` in the open start tag.
    template <class Value>
    void attribute(wstring_view name, const Value& value)
    {
        if (tagClosed_)
            throw io::error(messages::unexpected_attribute);
        const auto& text = text_of(value);
        if (line_free(text))
            return put(false, false, " "_w, name, "=\""_w, wstring_view(text), "\""_w);
        put(false, false, " "_w, name, "=\""_w);
        lines_.write(text.data(), text.size());
        put(false, false, "\""_w);
    }

    // "/>" when nothing was written inside, else the end tag.
    void close_element() { close(false); }

    // The same, then a line feed.
    void close_line() { close(true); }

    // `<name>` or `<name attribute="value">`, then a line feed.
    void open_line(const element_name& name)
    {
        push(name);
        put(true, true, pending(), start_of(name, true), "\n"_w);
    }
    template <class Value>
    void open_line(const element_name& name, wstring_view attribute_name, const Value& value)
    {
        const auto& text = text_of(value);
        if (!line_free(text)) {
            open_element(name, attribute_name, text);
            return write("\n"_w);
        }
        push(name);
        put(true, true, pending(), start_of(name, false), " "_w, attribute_name, "=\""_w, wstring_view(text),
            "\">\n"_w);
    }

    // <name>value</name> and a line feed; the end tag follows even when the
    // value is empty (<name></name>, never <name/>).
    template <class Value>
    void element_line(const element_name& name, const Value& value)
    {
        if constexpr (requires { text_of(value); }) {
            const auto& text = text_of(value);
            if (line_free(text))
                return put(true, true, pending(), start_of(name, true), wstring_view(text), name.endTag);
        }
        open_element(name);
        close_start_tag();
        *this << value;
        close_line();
    }

    // The rest of an element line whose start tag is open: the value, the end
    // tag and a line feed.
    template <class Value>
    void close_line_with(const Value& value)
    {
        if constexpr (requires { text_of(value); }) {
            const auto& text = text_of(value);
            if (line_free(text) && !tagClosed_ && depth_ > 0) {
                put(true, false, ">"_w, wstring_view(text), open_[--depth_]->endTag);
                tagClosed_ = true;
                return;
            }
        }
        *this << value;
        close_line();
    }

private:
    static constexpr std::size_t prefix_width = prefixed_lines::prefix.size();

    // The pieces of one item, written with one room check, the line prefix
    // before them when they start a line and do not carry it (`prefixed`).
    // Always in line, so that a literal piece's length is a constant there
    // and its copy a few moves.
    template <class... Pieces>
    [[gnu::always_inline]] void put(bool endsLine, bool prefixed, const Pieces&... pieces)
    {
        const bool prefix = !prefixed && lines_.at_line_start();
        wchar* p = lines_.reserve(((prefix ? prefixed_lines::prefix.size() : 0) + ... + pieces.size()));
        if (prefix)
            p = copy_units(p, prefixed_lines::prefix);
        ((p = copy_units(p, pieces.data(), pieces.size())), ...);
        lines_.commit(p, endsLine);
    }

    // ">" of a start tag left open, which the next item closes.
    wstring_view pending() noexcept
    {
        const bool open = !tagClosed_;
        tagClosed_ = true;
        return open ? ">"_w : wstring_view();
    }

    // The start tag, with the prefix when it starts a line, and with its ">"
    // when `closed`. (A start tag left open means the line has begun, so the
    // prefix never goes with a pending ">".)
    wstring_view start_of(const element_name& name, bool closed) const noexcept
    {
        const wstring_view tag = name.startTag.substr(0, name.startTag.size() - !closed);
        return lines_.at_line_start() ? tag : tag.substr(prefix_width);
    }

    void push(const element_name& name)
    {
        if (depth_ == open_.size())
            throw io::error(messages::elements_nested_too_deeply);
        open_[depth_++] = &name;
    }

    void close(bool endLine)
    {
        if (depth_ == 0)
            throw io::error(messages::no_open_element);
        const element_name& name = *open_[--depth_];
        if (!tagClosed_) {
            tagClosed_ = true;
            put(endLine, false, endLine ? "/>\n"_w : "/>"_w);
        } else {
            put(endLine, false, name.endTag.substr(0, name.endTag.size() - !endLine));
        }
    }

    void close_start_tag()
    {
        if (!tagClosed_) {
            put(false, false, ">"_w);
            tagClosed_ = true;
        }
    }

    prefixed_lines lines_;
    // Whether the last start tag has its ">" (or "/>") yet; while it has not,
    // attributes may follow.
    bool tagClosed_ = true;
    // The open elements; no fragment nests deeper than this.
    std::array<const element_name*, 16> open_;   // the first depth_ are set
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
