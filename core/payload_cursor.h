// Reads an event payload: little-endian, packed, unaligned, and never past
// its end. Every read checks what remains first and throws io::underflow
// when the payload is too short.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/ansi_text.h"
#include "core/errors.h"
#include "core/wide.h"

// A UTF-16 text read from a payload, NUL-terminated in a fixed buffer.
class payload_text {
public:
    static constexpr std::size_t capacity = 260;   // units, terminator included

    // Empty. Only the units of a text and its terminator are ever written:
    // clearing the whole buffer would cost more than reading most texts.
    payload_text() noexcept { units_[0] = 0; }

    wstring_view view() const noexcept { return {units_.data(), size_}; }
    const wchar* c_str() const noexcept { return units_.data(); }
    std::size_t size() const noexcept { return size_; }
    bool empty() const noexcept { return size_ == 0; }
    operator wstring_view() const noexcept { return view(); }

private:
    friend class payload_cursor;
    std::array<wchar, capacity> units_;
    std::size_t size_ = 0;
};

class payload_cursor {
public:
    payload_cursor(const void* payload, std::size_t bytes) noexcept
        : begin(static_cast<const std::uint8_t*>(payload)), cur(begin), end(begin + bytes)
    {}

    std::size_t remaining() const noexcept { return static_cast<std::size_t>(end - cur); }

    std::uint8_t read_u8() { return static_cast<std::uint8_t>(read_le(1)); }
    std::uint16_t read_u16() { return static_cast<std::uint16_t>(read_le(2)); }
    std::uint32_t read_u32() { return static_cast<std::uint32_t>(read_le(4)); }
    std::int32_t read_i32() { return static_cast<std::int32_t>(read_u32()); }
    std::uint64_t read_u64() { return read_le(8); }

    // A u16 count N, then N UTF-16 units. N of 260 or more is refused as an
    // overflow before the bytes are even looked at.
    payload_text read_wstring()
    {
        const std::size_t count = read_count();
        const std::span<const std::uint8_t> bytes = take(2 * count);
        payload_text text;
        for (std::size_t i = 0; i < count; ++i)
            text.units_[i] = static_cast<wchar>(bytes[2 * i] | bytes[2 * i + 1] << 8);
        text.units_[count] = 0;
        text.size_ = count;
        return text;
    }

    // A u16 count N, then N 8-bit characters, with the same limit.
    ansi_text read_string()
    {
        const std::size_t count = read_count();
        const std::span<const std::uint8_t> bytes = take(count);
        return ansi_text(std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
    }

    // The next `n` bytes as they stand.
    std::span<const std::uint8_t> take(std::size_t n)
    {
        if (n > remaining())
            throw io::underflow();
        const std::span<const std::uint8_t> bytes(cur, n);
        cur += n;
        return bytes;
    }

    const std::uint8_t* begin;
    const std::uint8_t* cur;
    const std::uint8_t* end;

private:
    std::size_t read_count()
    {
        const std::size_t count = read_u16();
        if (count >= payload_text::capacity)
            throw io::overflow();
        return count;
    }

    std::uint64_t read_le(std::size_t n)
    {
        const std::span<const std::uint8_t> bytes = take(n);
        std::uint64_t value = 0;
        for (std::size_t i = n; i-- > 0;)
            value = value << 8 | bytes[i];
        return value;
    }
};
