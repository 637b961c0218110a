// The UTF-16 code unit and wide literals.
//
// Windows keeps UTF-16 in wchar_t; elsewhere wchar_t is 32 bits wide, so the
// native build uses char16_t. Everything that handles host-visible text uses
// the `wchar` alias and writes its literals as "..."_w (below).
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#ifdef _WIN32
using wchar = wchar_t;
#else
using wchar = char16_t;
#endif

static_assert(sizeof(wchar) == 2, "the host's text is UTF-16");

using wstring = std::basic_string<wchar>;
using wstring_view = std::basic_string_view<wchar>;

// The module's own literals, made UTF-16 when the module is compiled:
// "Alarm"_w is a view of static UTF-16 units. Only ASCII is taken, so
// that no literal depends on the ANSI code page of the machine it runs on; a
// literal with any other byte does not compile. The units are made, and
// checked, when the literal's template argument is formed, which is always at
// compile time; the operator itself only hands out a view of them.
namespace wide_literal {

template <std::size_t N>
struct ascii {
    wchar units[N]{};

    consteval ascii(const char (&text)[N])
    {
        for (std::size_t i = 0; i < N; ++i) {
            if (static_cast<unsigned char>(text[i]) >= 0x80)
                throw "a literal of the module must be ASCII";
            units[i] = static_cast<wchar>(text[i]);
        }
    }
};

// A literal as the output sees it: its units, and whether a line feed ends
// it or stands inside it, so that a writer that starts lines with a prefix
// never scans a literal for line feeds.
struct text : wstring_view {
    bool endsLine = false;   // its last unit is a line feed
    bool breaksInside = false;   // a line feed stands before its last unit
};

template <std::size_t N>
consteval text describe(const ascii<N>& literal)
{
    text t{{literal.units, N - 1}};
    for (std::size_t i = 0; i + 1 < N; ++i)
        if (literal.units[i] == '\n') {
            if (i + 2 == N)
                t.endsLine = true;
            else
                t.breaksInside = true;
        }
    return t;
}

template <ascii Text>
inline constexpr text described = describe(Text);

}   // namespace wide_literal

template <wide_literal::ascii Text>
constexpr wide_literal::text operator""_w()
{
    return wide_literal::described<Text>;
}
