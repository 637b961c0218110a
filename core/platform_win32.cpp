// The Windows side of the platform seam: the system's code pages, message
// table, error objects and task allocator.
#include "core/platform.h"

#include <oleauto.h>

#include <algorithm>

#include <utility>

namespace platform {

void widen_ansi(const char* text, std::size_t n, wchar* out) noexcept
{
    // Plain ASCII is the same in every ANSI code page; only the rest needs
    // the system's converter. All of it is widened in one pass the compiler
    // can vectorise (the two never overlap), and the converter takes over
    // from the first byte that is not ASCII, if any came.
    const auto* __restrict bytes = reinterpret_cast<const unsigned char*>(text);
    wchar* __restrict units = out;
    unsigned char high = 0;
    for (std::size_t k = 0; k < n; ++k) {
        units[k] = bytes[k];
        high |= bytes[k];
    }
    if (high < 0x80)
        return;
    std::size_t i = 0;
    while (bytes[i] < 0x80)
        ++i;
    const int done =
        MultiByteToWideChar(CP_ACP, 0, text + i, static_cast<int>(n - i), out + i, static_cast<int>(n - i));
    for (std::size_t k = i + (done > 0 ? static_cast<std::size_t>(done) : 0); k < n; ++k)
        out[k] = L'?';
}

std::size_t utf8_to_utf16(std::string_view text, wchar* out, std::size_t size) noexcept
{
    if (size == 0)
        return 0;
    out[0] = 0;
    if (size == 1 || text.empty())
        return 0;
    const int length = static_cast<int>(text.size());
    int written = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, out, static_cast<int>(size - 1));
    if (written <= 0) {
        // Too long for the buffer: convert the whole and keep what fits.
        try {
            const int needed = MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0);
            wstring whole(static_cast<std::size_t>(std::max(needed, 0)), L'\0');
            if (needed > 0)
                MultiByteToWideChar(CP_UTF8, 0, text.data(), length, whole.data(), needed);
            written = static_cast<int>(std::min<std::size_t>(whole.size(), size - 1));
            whole.copy(out, static_cast<std::size_t>(written));
        } catch (...) {
            written = 0;
        }
    }
    out[written] = 0;
    return static_cast<std::size_t>(written);
}

std::string utf16_to_utf8(wstring_view text, std::size_t limit)
{
    if (text.empty())
        return {};
    const int needed =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), nullptr, 0, nullptr, nullptr);
    if (needed <= 0)
        return {};
    std::string result(static_cast<std::size_t>(needed), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), result.data(), needed, nullptr,
                        nullptr);
    if (result.size() > limit) {
        // Cut at a character boundary.
        std::size_t cut = limit;
        while (cut > 0 && (static_cast<unsigned char>(result[cut]) & 0xC0) == 0x80)
            --cut;
        result.resize(cut);
    }
    return result;
}

std::string system_message(HRESULT code)
{
    // The system's own text, cut to 260 bytes like every message of the
    // module, without its trailing line break.
    char* text = nullptr;
    const DWORD length =
        FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_ALLOCATE_BUFFER,
                       nullptr, static_cast<DWORD>(code), 0, reinterpret_cast<char*>(&text), 0, nullptr);
    std::string message(text ? text : "", text ? std::min<DWORD>(length, 259) : 0);
    LocalFree(text);
    while (!message.empty() && (message.back() == '\n' || message.back() == '\r'))
        message.pop_back();
    return message;
}

com::error_info* create_error_info(wstring_view description) noexcept
{
    ICreateErrorInfo* creator = nullptr;
    if (FAILED(CreateErrorInfo(&creator)))
        return nullptr;
    wchar text[1024];
    const std::size_t length = std::min<std::size_t>(description.size(), std::size(text) - 1);
    description.copy(text, length);
    text[length] = 0;
    creator->SetDescription(text);
    IErrorInfo* info = nullptr;
    creator->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info));
    creator->Release();
    return info;
}

std::string error_info_description(com::error_info* info)
{
    if (!info)
        return {};
    BSTR description = nullptr;
    if (FAILED(info->GetDescription(&description)) || !description)
        return {};
    std::string text = utf16_to_utf8(wstring_view(description, SysStringLen(description)), 260);
    SysFreeString(description);
    return text;
}

void set_error_info(com::error_info* info) noexcept
{
    SetErrorInfo(0, info);
}

com::error_info* take_error_info() noexcept
{
    IErrorInfo* info = nullptr;
    return GetErrorInfo(0, &info) == S_OK ? info : nullptr;
}

void* task_alloc(std::size_t bytes) noexcept
{
    return CoTaskMemAlloc(bytes);
}

void task_free(void* block) noexcept
{
    CoTaskMemFree(block);
}

}   // namespace platform
