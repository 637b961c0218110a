// XML output: element writing on top of the indented stream.
//
// Opening an element writes its start tag without the closing ">", so that
// attributes can still follow; the first write of anything else closes it.
// Nothing is escaped: the fragments are built from known literals and from
// payload text taken as it stands.
#pragma once

#include <array>
#include <string_view>

#include "core/indented_stream.h"

namespace io::xml::output {

template <class Char, class Base>
class stream : public Base {
public:
    using Base::Base;

    void write(const char* s, std::size_t n)
    {
        close_start_tag();
        Base::write(s, n);
    }

    void write(const Char* s, std::size_t n)
    {
        close_start_tag();
        Base::write(s, n);
    }

    // Writes "<name" and leaves the start tag open.
    void open_element(std::string_view name)
    {
        if (depth_ == elements_.size())
            throw io::error("elements nested too deeply");
        write("<", 1);
        Base::write(name.data(), name.size());
        elements_[depth_++] = name;
        tagClosed = false;
    }

    // Adds ` name="value"` to the open start tag.
    template <class Value>
    void attribute(std::string_view name, const Value& value)
    {
        if (tagClosed)
            throw io::error("unexpected attribute");
        Base::write(" ", 1);
        Base::write(name.data(), name.size());
        Base::write("=\"", 2);
        static_cast<Base&>(*this) << value;   // bypasses the closing of the tag
        Base::write("\"", 1);
    }

    // "/>" when the start tag is still open, else the end tag.
    void close_element()
    {
        if (depth_ == 0)
            throw io::error("no open element");
        const std::string_view top = elements_[depth_ - 1];
        if (!tagClosed) {
            Base::write("/>", 2);
            tagClosed = true;
        } else {
            Base::write("</", 2);
            Base::write(top.data(), top.size());
            Base::write(">", 1);
        }
        --depth_;
    }

    // An element holding one value as text: <name>value</name>, and `after`
    // behind it. The tags go out in one piece each.
    template <class Value>
    void element(std::string_view name, const Value& value, std::string_view after = {})
    {
        char tag[96];
        if (name.size() + after.size() + 3 > sizeof tag) {
            open_element(name);
            close_start_tag();
            *this << value;
            close_element();
            *this << after;
            return;
        }
        tag[0] = '<';
        name.copy(tag + 1, name.size());
        tag[name.size() + 1] = '>';
        write(tag, name.size() + 2);
        *this << value;
        tag[0] = '<';
        tag[1] = '/';
        name.copy(tag + 2, name.size());
        tag[name.size() + 2] = '>';
        after.copy(tag + name.size() + 3, after.size());
        Base::write(tag, name.size() + 3 + after.size());
    }

    bool tagClosed = true;

private:

    void close_start_tag()
    {
        if (!tagClosed) {
            Base::write(">", 1);
            tagClosed = true;
        }
    }

    // The names of the open elements, literals of the module; no fragment
    // nests deeper than this.
    std::array<std::string_view, 16> elements_{};
    std::size_t depth_ = 0;
};

} // namespace io::xml::output
