// The line prefix of the element fragments: every line starts three blanks
// in, inside the host's own document. The blanks go out with a line's first
// unit, so a text that ends in a line feed has no trailing blanks and an
// empty write adds nothing.
//
// Only text that arrives at run time is scanned for line feeds; a literal
// says where its own are (wide_literal::text), and numbers hold none.
#pragma once

#include <algorithm>
#include <cstddef>
#include <utility>

#include "core/output_buffer.h"

namespace output {

class prefixed_lines {
public:
    static constexpr wstring_view prefix = "   "_w;

    template <class... Args>
    explicit prefixed_lines(Args&&... args) : out_(std::forward<Args>(args)...)
    {}

    // Run-time text, line by line.
    void write(const wchar* s, std::size_t n)
    {
        write_lines(s, n, [this](const wchar* p, std::size_t k) { out_.write(p, k); });
    }
    void write_ansi(const char* s, std::size_t n)
    {
        write_lines(s, n, [this](const char* p, std::size_t k) { out_.write_ansi(p, k); });
    }

    // Text with no line feed, or one only as its last unit (`endsLine`):
    // prefix and text as one piece.
    void write_inline(const wchar* s, std::size_t n, bool endsLine = false)
    {
        if (n == 0)
            return;
        if (atLineStart_)
            out_.put(prefix, wstring_view(s, n));
        else
            out_.write(s, n);
        atLineStart_ = endsLine;
    }

    void write(const wide_literal::text& t)
    {
        if (t.breaksInside)
            write(t.data(), t.size());
        else
            write_inline(t.data(), t.size(), t.endsLine);
    }

    // For an item written at once: whether it starts a line (and so carries
    // the prefix), the room for it, and its end.
    wchar* reserve(std::size_t n) { return out_.reserve(n); }
    void commit(wchar* end, bool endsLine) noexcept
    {
        out_.commit(end);
        atLineStart_ = endsLine;
    }
    bool at_line_start() const noexcept { return atLineStart_; }

    std::size_t size() const noexcept { return out_.size(); }
    wstring_view view() const noexcept { return out_.view(); }

private:
    template <class Unit, class Write>
    void write_lines(const Unit* s, std::size_t n, Write&& write)
    {
        while (n > 0) {
            if (atLineStart_) {
                out_.write(prefix.data(), prefix.size());
                atLineStart_ = false;
            }
            const Unit* newline = std::find(s, s + n, Unit('\n'));
            const std::size_t piece = newline == s + n ? n : static_cast<std::size_t>(newline - s) + 1;
            write(s, piece);
            if (newline != s + n)
                atLineStart_ = true;
            s += piece;
            n -= piece;
        }
    }

    buffer out_;
    bool atLineStart_ = true;
};

}   // namespace output
