// Short texts made on the stack and written as one piece: a number as it is
// shown, built back to front into a fixed array. They never hold a line
// feed, so the element writer takes them with their tags as one item.
//
// `text_of(value)` is the text a value is shown as, where it can be had
// before it is written: a short text, or a view of units that already
// exist. `line_free` says whether it may go out with its tags at once.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

#include "core/output_buffer.h"

template <std::size_t N>
struct short_text {
    wchar units[N];
    std::size_t first = N;   // the text is units[first] to the end

    wstring_view view() const noexcept { return {units + first, N - first}; }
    const wchar* data() const noexcept { return units + first; }
    std::size_t size() const noexcept { return N - first; }
    operator wstring_view() const noexcept { return view(); }

    // Puts `s` before what the text holds; there must be room.
    void prepend(wstring_view s) noexcept
    {
        first -= s.size();
        std::copy(s.begin(), s.end(), units + first);
    }
    void prepend(wchar unit) noexcept { units[--first] = unit; }
};

template <std::size_t N>
constexpr bool line_free(const short_text<N>&) noexcept
{
    return true;
}

inline bool line_free(wstring_view text) noexcept
{
    return std::find(text.begin(), text.end(), wchar('\n')) == text.end();
}

inline wstring_view text_of(wstring_view text) noexcept
{
    return text;
}

// A literal of the module knows its line feeds: nothing to scan.
constexpr bool line_free(const wide_literal::text& text) noexcept
{
    return !text.endsLine && !text.breaksInside;
}

constexpr const wide_literal::text& text_of(const wide_literal::text& text) noexcept
{
    return text;
}

template <std::size_t N>
const short_text<N>& text_of(const short_text<N>& text) noexcept
{
    return text;
}

template <text_sink Out, std::size_t N>
Out& operator<<(Out& out, const short_text<N>& text)
{
    const wstring_view units = text.view();
    out.write_inline(units.data(), units.size());
    return out;
}
