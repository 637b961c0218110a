// The module's exception family. Every failure inside the module is one of
// these (or another std::exception); the renderer and COM method boundaries
// turn them into HRESULTs and error objects, so none ever leaves the module.
#pragma once

#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "core/type_name.h"
#include "core/win_types.h"
#include "core/wide.h"

namespace io {

class error : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class overflow : public error {
public:
    overflow() : error("an overflow occured") {}
};

class underflow : public error {
public:
    underflow() : error("an underflow occured") {}
};

} // namespace io

namespace com {

#ifdef _WIN32
using error_info = IErrorInfo;
#else
struct error_info;   // the native build's stand-in for the thread's error object
#endif

// A failure that already carries its HRESULT and, optionally, the error object
// that describes it; both are handed back to the caller unchanged.
class error : public std::runtime_error {
public:
    explicit error(HRESULT code, error_info* info = nullptr);
    error(const error& other);
    error& operator=(const error&) = delete;
    ~error() override;

    HRESULT code() const noexcept { return code_; }
    error_info* info() const noexcept { return info_; }

private:
    HRESULT code_;
    error_info* info_;
};

} // namespace com

namespace win32 {

class error : public std::exception {
public:
    explicit error(std::uint32_t code) noexcept : code_(code) {}
    std::uint32_t code() const noexcept { return code_; }
    const char* what() const noexcept override { return "system error"; }

private:
    std::uint32_t code_;
};

} // namespace win32

class bad_pointer : public std::exception {
public:
    const char* what() const noexcept override { return "invalid pointer"; }
};

class not_implemented : public std::exception {
public:
    const char* what() const noexcept override { return "not implemented"; }
};

class not_expected : public std::logic_error {
public:
    not_expected() : std::logic_error("Catastrophic failure") {}
};

namespace text {

class integer_overflow : public std::overflow_error {
public:
    integer_overflow() : std::overflow_error("integer overflow") {}
};

} // namespace text

// The older error family: messages are built from pieces on demand, into a
// wide buffer of the caller's size, truncating rather than refusing.
class old_error : public std::exception {
public:
    old_error() = default;
    old_error(const old_error&) {}
    old_error& operator=(const old_error&) { cache_.reset(); return *this; }

    // Writes the message into `buffer` (room for `size` units, NUL included).
    virtual void format(wchar* buffer, std::size_t size) const = 0;

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

template <class Char>
class generic_error_t;

template <>
class generic_error_t<wchar_t> : public old_error {
public:
    explicit generic_error_t(wstring text) : text_(std::move(text)) {}
    void format(wchar* buffer, std::size_t size) const override
    {
        message_writer(buffer, size) << wstring_view(text_);
    }
    const wstring& text() const noexcept { return text_; }

private:
    wstring text_;
};

template <class Derived>
class error_impl : public old_error {};

namespace io {

class end_of_file : public error_impl<end_of_file> {
public:
    void format(wchar* buffer, std::size_t size) const override
    {
        message_writer(buffer, size) << "The end of file was reached durring an IO operation.";
    }
};

template <class T>
class expected_type : public error_impl<expected_type<T>> {
public:
    void format(wchar* buffer, std::size_t size) const override
    {
        message_writer(buffer, size) << "Expected a " << type_name<T>() << ".";
    }
};

template <class T>
class expected_value;

// A literal: a character or a short string such as "-".
template <class T>
class expected_value : public error_impl<expected_value<T>> {
public:
    explicit expected_value(std::string value) : value_(std::move(value)) {}
    void format(wchar* buffer, std::size_t size) const override
    {
        message_writer(buffer, size) << "Expected a " << type_name<T>() << " with a value of '"
                                     << std::string_view(value_) << "'.";
    }

private:
    std::string value_;
};

template <class T>
class unexpected_value : public error_impl<unexpected_value<T>> {
public:
    explicit unexpected_value(char value) : value_(value) {}
    void format(wchar* buffer, std::size_t size) const override
    {
        message_writer(buffer, size) << "Encountered a " << type_name<T>()
                                     << " with an enexpected value of '"
                                     << std::string_view(&value_, 1) << "'.";
    }

private:
    char value_;
};

} // namespace io
