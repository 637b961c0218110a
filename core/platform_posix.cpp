// The native build's side of the platform seam: Windows-1252 stands in for
// the ANSI code page, and the thread's error object is a thread-local
// stand-in (core/error_info.h) that the tests and tools read back.
#include "core/platform.h"

#include <cstdio>
#include <cstdlib>

namespace platform {
namespace {

// Windows-1252 0x80-0x9F; the undefined positions map to themselves, as the
// system's converter does.
constexpr char16_t cp1252_high[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

thread_local com_ptr<com::error_info> current;

}   // namespace

void widen_ansi(const char* text, std::size_t n, wchar* out) noexcept
{
    // Every byte is its own unit but 0x80 to 0x9F: widen all of them in one
    // pass the compiler can vectorise (the two never overlap), and mend those
    // few only if any came.
    const auto* __restrict bytes = reinterpret_cast<const unsigned char*>(text);
    wchar* __restrict units = out;
    unsigned char high = 0;
    for (std::size_t i = 0; i < n; ++i) {
        units[i] = bytes[i];
        high |= static_cast<unsigned char>(bytes[i] - 0x80) < 0x20;
    }
    if (high == 0)
        return;
    for (std::size_t i = 0; i < n; ++i)
        if (static_cast<unsigned char>(bytes[i] - 0x80) < 0x20)
            units[i] = cp1252_high[bytes[i] - 0x80];
}

std::size_t utf8_to_utf16(std::string_view text, wchar* out, std::size_t size) noexcept
{
    if (size == 0)
        return 0;
    std::size_t written = 0;
    auto put = [&](char32_t c) {
        const std::size_t units = c >= 0x10000 ? 2 : 1;
        if (written + units >= size)
            return false;
        if (units == 2) {
            c -= 0x10000;
            out[written++] = static_cast<wchar>(0xD800 + (c >> 10));
            out[written++] = static_cast<wchar>(0xDC00 + (c & 0x3FF));
        } else {
            out[written++] = static_cast<wchar>(c);
        }
        return true;
    };
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 0;
        char32_t c = 0xFFFD;
        if (length == 1) {
            c = lead;
        } else if (length != 0 && i + length <= text.size()) {
            c = lead & (0x3F >> (length - 1));
            for (std::size_t k = 1; k < length; ++k)
                c = (c << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
        }
        if (!put(c))
            break;
        i += length == 0 ? 1 : length;
    }
    out[written] = 0;
    return written;
}

std::string utf16_to_utf8(wstring_view text, std::size_t limit)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = text[i];
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < text.size() && text[i + 1] >= 0xDC00 && text[i + 1] < 0xE000)
            c = 0x10000 + ((c - 0xD800) << 10) + (text[++i] - 0xDC00);
        std::string piece;
        if (c < 0x80) {
            piece += static_cast<char>(c);
        } else if (c < 0x800) {
            piece += static_cast<char>(0xC0 | (c >> 6));
            piece += static_cast<char>(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            piece += static_cast<char>(0xE0 | (c >> 12));
            piece += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            piece += static_cast<char>(0x80 | (c & 0x3F));
        } else {
            piece += static_cast<char>(0xF0 | (c >> 18));
            piece += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
            piece += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
            piece += static_cast<char>(0x80 | (c & 0x3F));
        }
        if (result.size() + piece.size() > limit)
            break;
        result += piece;
    }
    return result;
}

std::string system_message(HRESULT)
{
    return {};
}

com::error_info* create_error_info(wstring_view description) noexcept
{
    try {
        return new com::error_info(description);
    } catch (...) {
        return nullptr;
    }
}

std::string error_info_description(com::error_info* info)
{
    return info ? utf16_to_utf8(info->description(), 260) : std::string();
}

void set_error_info(com::error_info* info) noexcept
{
    current = com_ptr<com::error_info>::share(info);
}

com::error_info* take_error_info() noexcept
{
    return current.detach();
}

void* task_alloc(std::size_t bytes) noexcept
{
    return std::malloc(bytes);
}

void task_free(void* block) noexcept
{
    std::free(block);
}

}   // namespace platform
