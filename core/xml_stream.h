// A layer on the indented stream that writes XML elements: the structured
// dialect of the XML fragments.
//
// Opening an element writes its start tag without the closing ">", so that
// attributes can still follow; the first write of anything else closes it.
// Nothing is escaped: the fragments are built from known literals and from
// payload text taken as it stands.
#pragma once

#include <array>
#include <cstdint>
#include <utility>

#include "core/indented_stream.h"

namespace io::xml::output {

template <class Char, class Lines>
class stream {
public:
    template <class... Args>
    explicit stream(Args&&... args) : lines_(std::forward<Args>(args)...)
    {}

    void write(const Char* s, std::size_t n)
    {
        close_start_tag();
        lines_.write(s, n);
    }

    void write_ansi(const char* s, std::size_t n)
    {
        close_start_tag();
        lines_.write_ansi(s, n);
    }

    std::size_t size() const noexcept { return lines_.size(); }
    const Char* data() const noexcept { return lines_.data(); }

    // Every line from here on starts `units` further in.
    void indent_by(std::uint32_t units) noexcept { lines_.indent += units; }

    // Writes "<name" and leaves the start tag open.
    void open_element(wstring_view name)
    {
        if (depth_ == elements_.size())
            throw io::error(messages::elements_nested_too_deeply);
        close_start_tag();
        lines_ << "<"_w << name;
        elements_[depth_++] = name;
        tagClosed = false;
    }

    // Adds ` name="value"` to the open start tag; the value goes straight to
    // the lines beneath, so it does not close the tag.
    template <class Value>
    void attribute(wstring_view name, const Value& value)
    {
        if (tagClosed)
            throw io::error(messages::unexpected_attribute);
        lines_ << " "_w << name << "=\""_w << value << "\""_w;
    }

    // "/>" when the start tag is still open, else the end tag.
    void close_element()
    {
        if (depth_ == 0)
            throw io::error(messages::no_open_element);
        const wstring_view top = elements_[--depth_];
        if (!tagClosed) {
            lines_ << "/>"_w;
            tagClosed = true;
        } else {
            lines_ << "</"_w << top << ">"_w;
        }
    }

    // An element holding one value as text, <name>value</name>, with `after`
    // behind it: each tag goes out in one piece.
    template <class Value>
    void element(wstring_view name, const Value& value, wstring_view after = {})
    {
        element_with(
            name, [&] { *this << value; }, after);
    }

    // The same with whatever `content` writes between the tags; the end tag
    // follows even when it writes nothing (<name></name>, never <name/>).
    template <class Content>
    void element_with(wstring_view name, Content&& content, wstring_view after = {})
    {
        Char tag[96];
        if (name.size() + after.size() + 3 > std::size(tag)) {
            open_element(name);
            close_start_tag();
            content();
            close_element();
            *this << after;
            return;
        }
        tag[0] = '<';
        name.copy(tag + 1, name.size());
        tag[name.size() + 1] = '>';
        write(tag, name.size() + 2);
        content();
        tag[0] = '<';
        tag[1] = '/';
        name.copy(tag + 2, name.size());
        tag[name.size() + 2] = '>';
        after.copy(tag + name.size() + 3, after.size());
        lines_.write(tag, name.size() + 3 + after.size());
    }

private:
    void close_start_tag()
    {
        if (!tagClosed) {
            lines_ << ">"_w;
            tagClosed = true;
        }
    }

    Lines lines_;
    // Whether the last start tag has its ">" (or "/>") yet; while it has not,
    // attributes may follow.
    bool tagClosed = true;
    // The names of the open elements, literals of the module; no fragment
    // nests deeper than this.
    std::array<wstring_view, 16> elements_{};
    std::size_t depth_ = 0;
};

}   // namespace io::xml::output
