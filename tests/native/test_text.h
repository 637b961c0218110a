// Test helpers: wide text as UTF-8 for readable comparisons and messages.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/xml_writer.h"
#include "core/platform.h"
#include "core/wide.h"

inline std::string utf8(wstring_view text)
{
    return platform::utf16_to_utf8(text, std::string::npos);
}

inline std::string utf8(const wchar* text)
{
    return utf8(wstring_view(text));
}

// ASCII test data as UTF-16.
inline wstring wide(std::string_view ascii)
{
    return wstring(ascii.begin(), ascii.end());
}

// What `write` puts into a fresh stream of the given kind, as UTF-8.
template <class Stream = output::text, class Write>
std::string written(Write&& write)
{
    std::array<wchar, 1024> buffer{};
    Stream out(buffer.data(), buffer.size());
    write(out);
    return utf8(out.view());
}
