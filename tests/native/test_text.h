// Test helpers: wide text as UTF-8 for readable comparisons and messages.
#pragma once

#include <string>
#include <string_view>

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

// The description of the calling thread's error object, taken from the thread.
inline std::string take_error_description()
{
    com::error_info* info = platform::take_error_info();
    std::string text = platform::error_info_description(info);
    platform::release(info);
    return text;
}
