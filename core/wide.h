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
#  define KORPS_WIDEN_(s) L##s
#else
using wchar = char16_t;
#  define KORPS_WIDEN_(s) u##s
#endif
#define WSTR(s) KORPS_WIDEN_(s)

static_assert(sizeof(wchar) == 2, "the host's text is UTF-16");

using wstring = std::basic_string<wchar>;
using wstring_view = std::basic_string_view<wchar>;
