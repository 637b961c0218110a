// Bounded text output over a caller's buffer.
//
// The buffer always holds a NUL at `cur`. A piece is written only when it fits
// with one unit to spare for that NUL; a piece that does not fit throws
// io::overflow and leaves the buffer exactly as it was.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <string_view>

#include "core/errors.h"
#include "core/platform.h"
#include "core/wide.h"

namespace io::text {

// A text sink over a raw buffer of Char, reached through Iterator.
template <class Char, class Iterator>
class stream {
public:
    virtual ~stream() = default;
};

template <class Char>
class output_stream : public stream<Char, Char*> {
public:
    output_stream(Char* buffer, std::size_t capacity) : begin_(buffer), cur_(buffer), end_(buffer + capacity)
    {
        // No room even for the terminator: nothing can ever be written.
        if (capacity == 0)
            throw io::overflow();
        *cur_ = 0;
    }

    output_stream(const output_stream&) = delete;
    output_stream& operator=(const output_stream&) = delete;

    void write(const Char* s, std::size_t n)
    {
        reserve(n);
        std::copy_n(s, n, cur_);
        advance(n);
    }

    // Narrow text, widened with the ANSI code page; one unit per source byte.
    // ASCII is the same in every code page and is widened here, so that the
    // module's own literals never reach the code-page converter.
    void write(const char* s, std::size_t n)
    {
        reserve(n);
        std::size_t i = 0;
        for (; i < n && static_cast<unsigned char>(s[i]) < 0x80; ++i)
            cur_[i] = static_cast<Char>(s[i]);
        if (i < n)
            platform::widen_ansi(s + i, n - i, cur_ + i);
        advance(n);
    }

    const Char* data() const noexcept { return begin_; }
    std::size_t size() const noexcept { return static_cast<std::size_t>(cur_ - begin_); }

protected:
    std::size_t avail() const noexcept { return static_cast<std::size_t>(end_ - cur_); }

    void reserve(std::size_t n) const
    {
        if (n >= avail())
            throw io::overflow();
    }

    void advance(std::size_t n) noexcept
    {
        cur_ += n;
        *cur_ = 0;
    }

    Char* begin_;
    Char* cur_;
    Char* end_;
};

} // namespace io::text

// Every stream of the family takes text with <<, narrow or wide, as views,
// literals or NUL-terminated strings.
template <class Out>
concept text_sink = std::derived_from<Out, io::text::output_stream<wchar>>;

template <text_sink Out>
Out& operator<<(Out& out, std::string_view s)
{
    out.write(s.data(), s.size());
    return out;
}

template <text_sink Out>
Out& operator<<(Out& out, wstring_view s)
{
    out.write(s.data(), s.size());
    return out;
}

template <text_sink Out>
Out& operator<<(Out& out, const char* s)
{
    return out << std::string_view(s);
}

template <text_sink Out>
Out& operator<<(Out& out, const wchar* s)
{
    return out << wstring_view(s);
}
