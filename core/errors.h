// The module's exception family. Every failure inside the module is one of
// these (or another std::exception); the renderer and COM method boundaries
// turn them into HRESULTs and error objects, so none ever leaves the module.
#pragma once

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/com_ptr.h"
#include "core/error_info.h"
#include "core/messages.h"
#include "core/text_tokens.h"
#include "core/win_types.h"
#include "core/wide.h"

namespace io {

class error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class overflow : public error {
public:
    overflow() : error(messages::overflow) {}
};

class underflow : public error {
public:
    underflow() : error(messages::underflow) {}
};

}   // namespace io

namespace com {

// A failure that already carries its HRESULT and, optionally, the error object
// that describes it; both are handed back to the caller unchanged.
class error : public std::runtime_error {
public:
    // Keeps a reference of its own to `info`.
    explicit error(HRESULT code, error_info* info = nullptr);
    error(const error& other) noexcept;
    error& operator=(const error&) = delete;

    HRESULT code() const noexcept { return code_; }
    error_info* info() const noexcept { return info_.get(); }

private:
    HRESULT code_;
    com_ptr<error_info> info_;
};

}   // namespace com

class not_expected : public std::logic_error {
public:
    not_expected() : std::logic_error(messages::catastrophic_failure) {}
};

namespace text {

class integer_overflow : public std::overflow_error {
public:
    integer_overflow() : std::overflow_error(messages::integer_overflow) {}
};

}   // namespace text

// The errors that carry a wide message, made from its pieces on demand and
// cut to the room of the buffer it is written to. The boundary writes it
// straight into the thread's error object, at most 259 units; what() is the
// same text as UTF-8, for the module's own tools.
class wide_message_error : public std::exception {
public:
    wide_message_error() = default;
    wide_message_error(const wide_message_error&) {}
    wide_message_error& operator=(const wide_message_error&)
    {
        cache_.reset();
        return *this;
    }

    // Writes the message into `buffer` (room for `size` units, NUL included).
    virtual void format(wchar* buffer, std::size_t size) const noexcept = 0;

    const char* what() const noexcept override;

private:
    mutable std::unique_ptr<char[]> cache_;   // UTF-8, filled on first what()
};

// Appends message pieces into a bounded wide buffer, each cut to the room left.
class message_writer {
public:
    message_writer(wchar* buffer, std::size_t size) noexcept;
    message_writer& operator<<(std::string_view narrow) noexcept;
    message_writer& operator<<(wstring_view wide) noexcept;

private:
    wchar* cur_;
    std::size_t room_;   // units left, NUL included; 0 when nothing may be written
};

// A message given whole.
class generic_error : public wide_message_error {
public:
    explicit generic_error(wstring_view text) : text_(text) {}
    void format(wchar* buffer, std::size_t size) const noexcept override
    {
        message_writer(buffer, size) << wstring_view(text_);
    }
    const wstring& text() const noexcept { return text_; }

private:
    wstring text_;
};

// The failed reads of a text reader; each names the token expected or met by
// its token_name (core/text_tokens.h).
namespace io {

template <class T>
class expected_type : public wide_message_error {
public:
    void format(wchar* buffer, std::size_t size) const noexcept override
    {
        message_writer(buffer, size) << messages::expected_a << token_name<T> << messages::end_of_sentence;
    }
};

// A literal: a character or a short string such as "-".
template <class T>
class expected_value : public wide_message_error {
public:
    explicit expected_value(std::string value) : value_(std::move(value)) {}
    void format(wchar* buffer, std::size_t size) const noexcept override
    {
        message_writer(buffer, size) << messages::expected_a << token_name<T> << messages::with_a_value_of
                                     << std::string_view(value_) << messages::end_of_value;
    }

private:
    std::string value_;
};

template <class T>
class unexpected_value : public wide_message_error {
public:
    explicit unexpected_value(char value) : value_(value) {}
    void format(wchar* buffer, std::size_t size) const noexcept override
    {
        message_writer(buffer, size) << messages::encountered_a
                                     << token_name<T> << messages::with_an_unexpected_value_of
                                     << std::string_view(&value_, 1) << messages::end_of_value;
    }

private:
    char value_;
};

}   // namespace io
