// What differs between Windows and the native build. One source file per
// platform implements this seam; everything else is shared.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/com_ptr.h"
#include "core/error_info.h"
#include "core/wide.h"

namespace platform {

// Widens `n` narrow characters with the ANSI code page into `out`, which has
// room for exactly `n` units (one unit per source byte).
void widen_ansi(const char* text, std::size_t n, wchar* out) noexcept;

// Converts UTF-8 into `out` (room for `size` units, NUL included), cutting
// what does not fit. Returns the units written before the NUL.
std::size_t utf8_to_utf16(std::string_view text, wchar* out, std::size_t size) noexcept;

// Converts UTF-16 into UTF-8, at most `limit` bytes before the terminator.
std::string utf16_to_utf8(wstring_view text, std::size_t limit);

// The system's message for `code`, without trailing line breaks; empty when
// the system has none.
std::string system_message(HRESULT code);

// Error objects: a new one with the given description, holding its first
// reference (null when it cannot be created), and its description as UTF-8.
com::error_info* create_error_info(wstring_view description) noexcept;
std::string error_info_description(com::error_info* info);

// Hands `info` (or none) to the calling thread, as the object describing the
// failure that is about to be returned.
void set_error_info(com::error_info* info) noexcept;

// The calling thread's current error object with a reference of its own, or
// null. The thread no longer holds it afterwards.
com::error_info* take_error_info() noexcept;

// The description of the calling thread's error object as UTF-8, taking the
// object from the thread; empty when there is none.
inline std::string take_error_description()
{
    const com_ptr<com::error_info> info(take_error_info());
    return error_info_description(info.get());
}

// Task memory: what the host frees with its own task allocator.
void* task_alloc(std::size_t bytes) noexcept;
void task_free(void* block) noexcept;

}   // namespace platform
