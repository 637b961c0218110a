// The UTF-16 code unit and wide literals.
//
// Windows keeps UTF-16 in wchar_t; elsewhere wchar_t is 32 bits wide, so the
// native build uses char16_t. Everything that handles host-visible text uses
// the `wchar` alias and writes its literals with WSTR("...").
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#ifdef _WIN32
using wchar = wchar_t;
#define KORPS_WIDEN_(s) L##s
#else
using wchar = char16_t;
#define KORPS_WIDEN_(s) u##s
#endif
#define WSTR(s) KORPS_WIDEN_(s)

static_assert(sizeof(wchar) == 2, "the host's text is UTF-16");

using wstring = std::basic_string<wchar>;
using wstring_view = std::basic_string_view<wchar>;

// The module's own literals, made UTF-16 when the module is compiled:
// "Alarm"_w is a wstring_view of static UTF-16 units. Only ASCII is taken, so
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

}   // namespace wide_literal

template <wide_literal::ascii Text>
constexpr wstring_view operator""_w()
{
    return {Text.units, std::size(Text.units) - 1};
}
