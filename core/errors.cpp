#include "core/errors.h"

#include <cstdio>

#include "core/platform.h"

namespace com {
namespace {

std::string message_for(HRESULT code, error_info* info)
{
    std::string text = platform::error_info_description(info);
    if (!text.empty())
        return text;
    text = platform::system_message(code);
    if (!text.empty())
        return text;
    char fallback[64];
    std::snprintf(fallback, sizeof fallback, "unknown error (0x%08X) occurred", static_cast<unsigned>(code));
    return fallback;
}

}   // namespace

error::error(HRESULT code, error_info* info)
    : std::runtime_error(message_for(code, info)), code_(code), info_(com_ptr<error_info>::share(info))
{}

error::error(const error& other) noexcept
    : std::runtime_error(other), code_(other.code_), info_(com_ptr<error_info>::share(other.info()))
{}

}   // namespace com

const char* wide_message_error::what() const noexcept
{
    if (!cache_) {
        try {
            wchar message[260];
            format(message, std::size(message));
            const std::string text = platform::utf16_to_utf8(message, 259);
            auto cache = std::make_unique<char[]>(260);
            text.copy(cache.get(), text.size());
            cache[text.size()] = '\0';
            cache_ = std::move(cache);
        } catch (...) {
            return messages::unknown_exception;
        }
    }
    return cache_.get();
}

message_writer::message_writer(wchar* buffer, std::size_t size) noexcept : cur_(buffer), room_(size > 1 ? size : 0)
{
    if (room_)
        *cur_ = 0;
}

message_writer& message_writer::operator<<(std::string_view narrow) noexcept
{
    if (room_ > 1) {
        const std::size_t n = std::min(narrow.size(), room_ - 1);
        platform::widen_ansi(narrow.data(), n, cur_);
        cur_ += n;
        room_ -= n;
        *cur_ = 0;
    }
    return *this;
}

message_writer& message_writer::operator<<(wstring_view wide) noexcept
{
    if (room_ > 1) {
        const std::size_t n = std::min(wide.size(), room_ - 1);
        wide.copy(cur_, n);
        cur_ += n;
        room_ -= n;
        *cur_ = 0;
    }
    return *this;
}
