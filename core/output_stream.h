// The one output buffer every rendering writes through: a caller's UTF-16
// buffer seen as begin, current position and end.
//
// The buffer always holds a NUL at `cur`. Each piece costs one room check and
// one copy; a piece is written only when it fits with one unit to spare for
// the NUL. A piece that does not fit throws io::overflow and leaves the
// buffer exactly as it was, NUL-terminated.
//
// The counting form (constructed with io::text::counting) has no buffer at
// all: every piece takes the refusal path, which there adds the piece's
// length instead of throwing. A rendering into it measures the room the same
// rendering needs, without writing a unit. The writing path pays nothing for
// it: the count is kept on the path that otherwise throws.
//
// The indented and XML forms (indented_stream.h, xml_stream.h) are layers
// that hold this buffer; nothing here is virtual.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/ansi_text.h"
#include "core/errors.h"
#include "core/platform.h"
#include "core/wide.h"

namespace io::text {

struct counting_t {
    explicit counting_t() = default;
};
inline constexpr counting_t counting{};

template <class Char>
class output_stream {
public:
    output_stream(Char* buffer, std::size_t capacity) : begin_(buffer), cur_(buffer), end_(buffer + capacity)
    {
        // No room even for the terminator: nothing can ever be written.
        if (capacity == 0)
            throw io::overflow();
        *cur_ = 0;
    }

    explicit output_stream(counting_t) noexcept {}

    output_stream(const output_stream&) = delete;
    output_stream& operator=(const output_stream&) = delete;

    void write(const Char* s, std::size_t n)
    {
        if (n >= avail()) [[unlikely]]
            return refuse(n);
        std::char_traits<Char>::copy(cur_, s, n);
        advance(n);
    }

    // Text that arrives narrow at run time, widened with the ANSI code page:
    // one unit per source byte.
    void write_ansi(const char* s, std::size_t n)
    {
        if (n >= avail()) [[unlikely]]
            return refuse(n);
        platform::widen_ansi(s, n, cur_);
        advance(n);
    }

    // The units written so far; in the counting form, the units a buffer
    // would have needed for them (the terminator not included).
    std::size_t size() const noexcept { return static_cast<std::size_t>(cur_ - begin_) + counted_; }
    const Char* data() const noexcept { return begin_; }

private:
    std::size_t avail() const noexcept { return static_cast<std::size_t>(end_ - cur_); }

    void advance(std::size_t n) noexcept
    {
        cur_ += n;
        *cur_ = 0;
    }

    [[gnu::cold, gnu::noinline]] void refuse(std::size_t n)
    {
        if (begin_)
            throw io::overflow();
        counted_ += n;
    }

    Char* begin_ = nullptr;
    Char* cur_ = nullptr;
    Char* end_ = nullptr;
    std::size_t counted_ = 0;   // the counting form only
};

}   // namespace io::text

// Every form of the buffer takes text with <<: UTF-16 views, NUL-terminated
// UTF-16 and run-time narrow text. A narrow literal does not compile.
template <class Out>
concept text_sink = requires(Out& out, const wchar* s, const char* a, std::size_t n)
{
    out.write(s, n);
    out.write_ansi(a, n);
};

template <text_sink Out>
Out& operator<<(Out& out, wstring_view s)
{
    out.write(s.data(), s.size());
    return out;
}

template <text_sink Out>
Out& operator<<(Out& out, const wchar* s)
{
    return out << wstring_view(s);
}

template <text_sink Out>
Out& operator<<(Out& out, ansi_text s)
{
    out.write_ansi(s.bytes.data(), s.bytes.size());
    return out;
}

template <text_sink Out>
Out& operator<<(Out& out, std::string_view) = delete;
template <text_sink Out>
Out& operator<<(Out& out, const char*) = delete;
