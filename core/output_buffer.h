// The one output buffer every rendering writes through: a caller's UTF-16
// buffer seen as begin, cursor and end.
//
// A piece is written only when it fits with one unit to spare for the
// terminator; the terminator itself is written once, when the buffer goes
// away, so a rendering that stops half-way (a refused piece, a payload cut
// short) leaves what it wrote NUL-terminated and nothing past it. A piece
// that does not fit is refused whole: io::overflow, and the buffer keeps
// exactly what it held.
//
// An item whose pieces are known before it is written (a phrase, a tag and
// its value) goes out with `put`, one room check for all its pieces; a layer
// that adds pieces of its own asks for the room with `reserve` and fills it
// without further checks.
//
// The counting form (constructed with output::counting over a scratch area)
// writes into the scratch area and, where the writing form would refuse,
// counts what the scratch holds and starts it over: a rendering into it
// measures the room the same rendering needs. The writing path pays nothing
// for it: the count is kept on the path that otherwise throws.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/ansi_text.h"
#include "core/errors.h"
#include "core/platform.h"
#include "core/wide.h"

namespace output {

struct counting_t {
    explicit counting_t() = default;
};
inline constexpr counting_t counting{};

// The scratch area a counting buffer needs: room for the longest item a
// rendering reserves at once.
inline constexpr std::size_t counting_scratch = 2048;

// Copies `n` units and returns the end.
inline wchar* copy_units(wchar* to, const wchar* from, std::size_t n) noexcept
{
    std::char_traits<wchar>::copy(to, from, n);
    return to + n;
}

inline wchar* copy_units(wchar* to, wstring_view from) noexcept
{
    return copy_units(to, from.data(), from.size());
}

class buffer {
public:
    buffer(wchar* units, std::size_t capacity) : begin_(units), cur_(units), end_(units + capacity)
    {
        // No room even for the terminator: nothing can ever be written.
        if (capacity == 0)
            throw io::overflow();
    }

    buffer(counting_t, std::span<wchar> scratch) noexcept
        : begin_(scratch.data()), cur_(begin_), end_(begin_ + scratch.size()), counting_(true)
    {}

    ~buffer() { *cur_ = 0; }

    buffer(const buffer&) = delete;
    buffer& operator=(const buffer&) = delete;

    void write(const wchar* s, std::size_t n)
    {
        if (n >= avail() && !make_room(n)) [[unlikely]]
            return;
        cur_ = copy_units(cur_, s, n);
    }

    // Text known to hold no line feed; the same as write here.
    void write_inline(const wchar* s, std::size_t n) { write(s, n); }

    // Text that arrives narrow at run time, widened with the ANSI code page:
    // one unit per source byte.
    void write_ansi(const char* s, std::size_t n)
    {
        if (n >= avail() && !make_room(n)) [[unlikely]]
            return;
        platform::widen_ansi(s, n, cur_);
        cur_ += n;
    }

    // The pieces of one item (views, literals, short texts), with one room
    // check for all of them.
    template <class... Pieces>
    [[gnu::always_inline]] void put(const Pieces&... pieces)
    {
        wchar* p = reserve((std::size_t(0) + ... + pieces.size()));
        ((p = copy_units(p, pieces.data(), pieces.size())), ...);
        cur_ = p;
    }

    // Room for the `n` units of one item, checked once; the item is written
    // from the returned position and ends with `commit`. The counting form
    // takes at most counting_scratch - 1 units at once.
    wchar* reserve(std::size_t n)
    {
        if (n >= avail() && !make_room(n)) [[unlikely]]
            throw io::overflow();
        return cur_;
    }
    void commit(wchar* end) noexcept { cur_ = end; }

    // The units written so far; in the counting form, the units a buffer
    // would have needed for them (the terminator not included).
    std::size_t size() const noexcept { return static_cast<std::size_t>(cur_ - begin_) + counted_; }
    wstring_view view() const noexcept { return {begin_, static_cast<std::size_t>(cur_ - begin_)}; }

private:
    std::size_t avail() const noexcept { return static_cast<std::size_t>(end_ - cur_); }

    // The refusal: the writing form throws; the counting form counts the
    // scratch area and starts it over, and says whether the piece now fits
    // (a piece longer than the whole area is counted and not written).
    [[gnu::cold, gnu::noinline]] bool make_room(std::size_t n)
    {
        if (!counting_)
            throw io::overflow();
        counted_ += static_cast<std::size_t>(cur_ - begin_);
        cur_ = begin_;
        if (n < avail())
            return true;
        counted_ += n;
        return false;
    }

    wchar* begin_;
    wchar* cur_;
    wchar* end_;
    std::size_t counted_ = 0;
    bool counting_ = false;
};

// The one line of text, and the XML fragments written as fixed literals:
// tabs, line breaks and their quirks exactly as they stand. Both are the
// buffer itself; the names tell a body which output it writes.
class text : public buffer {
public:
    using buffer::buffer;
};

class verbatim_xml : public buffer {
public:
    using buffer::buffer;
};

}   // namespace output

// Every form of the output takes text with <<: UTF-16 views, NUL-terminated
// UTF-16 and run-time narrow text. A narrow literal does not compile.
template <class Out>
concept text_sink = requires(Out& out, const wchar* s, const char* a, std::size_t n)
{
    out.write(s, n);
    out.write_inline(s, n);
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
