// GUIDs written as the text everybody reads them in.
#pragma once

#include <cstdint>

#include "core/win_types.h"

namespace detail {

consteval std::uint32_t hex_digit(char c)
{
    return c >= '0' && c <= '9'   ? std::uint32_t(c - '0')
           : c >= 'a' && c <= 'f' ? std::uint32_t(c - 'a' + 10)
           : c >= 'A' && c <= 'F' ? std::uint32_t(c - 'A' + 10)
                                  : throw "not a hexadecimal digit";
}

consteval std::uint32_t hex_field(const char* text, int digits)
{
    std::uint32_t value = 0;
    for (int i = 0; i < digits; ++i)
        value = value << 4 | hex_digit(text[i]);
    return value;
}

}   // namespace detail

// "9f74e20a-4198-4269-bdc7-c0a02be22131", without braces.
consteval GUID make_guid(const char (&text)[37])
{
    using detail::hex_field;
    if (text[8] != '-' || text[13] != '-' || text[18] != '-' || text[23] != '-')
        throw "malformed GUID";
    GUID guid{};
    guid.Data1 = static_cast<decltype(guid.Data1)>(hex_field(text, 8));
    guid.Data2 = static_cast<decltype(guid.Data2)>(hex_field(text + 9, 4));
    guid.Data3 = static_cast<decltype(guid.Data3)>(hex_field(text + 14, 4));
    guid.Data4[0] = static_cast<unsigned char>(hex_field(text + 19, 2));
    guid.Data4[1] = static_cast<unsigned char>(hex_field(text + 21, 2));
    for (int i = 0; i < 6; ++i)
        guid.Data4[2 + i] = static_cast<unsigned char>(hex_field(text + 24 + 2 * i, 2));
    return guid;
}

constexpr bool same_guid(const GUID& a, const GUID& b) noexcept
{
    if (a.Data1 != b.Data1 || a.Data2 != b.Data2 || a.Data3 != b.Data3)
        return false;
    for (int i = 0; i < 8; ++i)
        if (a.Data4[i] != b.Data4[i])
            return false;
    return true;
}
