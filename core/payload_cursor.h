// Reads an event payload: little-endian, packed, unaligned, and never past
// its end. Every read checks what remains first and throws io::underflow
// when the payload is too short.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <type_traits>

#include "core/ansi_text.h"
#include "core/errors.h"
#include "core/wide.h"

static_assert(std::endian::native == std::endian::little || std::endian::native == std::endian::big,
              "payloads are read on little- or big-endian hosts only");

// `value` with its bytes in the opposite order.
template <class Int>
constexpr Int swap_bytes(Int value) noexcept
{
    using bits = std::make_unsigned_t<Int>;
    bits from = static_cast<bits>(value);
    bits to = 0;
    for (std::size_t i = 0; i < sizeof(Int); ++i) {
        to = static_cast<bits>(to << 8 | (from & 0xFF));
        from = static_cast<bits>(from >> 8);
    }
    return static_cast<Int>(to);
}

// The integer stored little-endian at `bytes`, however they are aligned: one
// load, and a swap on a big-endian host.
template <class Int>
Int load_le(const std::uint8_t* bytes) noexcept
{
    Int value;
    std::memcpy(&value, bytes, sizeof value);
    if constexpr (std::endian::native == std::endian::big)
        value = swap_bytes(value);
    return value;
}

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
        : cur_(static_cast<const std::uint8_t*>(payload)), end_(cur_ + bytes)
    {}

    std::size_t remaining() const noexcept { return static_cast<std::size_t>(end_ - cur_); }

    std::uint8_t read_u8() { return read_le<std::uint8_t>(); }
    std::uint16_t read_u16() { return read_le<std::uint16_t>(); }
    std::uint32_t read_u32() { return read_le<std::uint32_t>(); }
    std::int32_t read_i32() { return static_cast<std::int32_t>(read_u32()); }
    std::uint64_t read_u64() { return read_le<std::uint64_t>(); }

    // A u16 count N, then N UTF-16 units. N of 260 or more is refused as an
    // overflow before the bytes are even looked at.
    payload_text read_wstring()
    {
        const std::size_t count = read_count();
        const std::span<const std::uint8_t> bytes = take(2 * count);
        payload_text text;
        if constexpr (std::endian::native == std::endian::little) {
            std::memcpy(text.units_.data(), bytes.data(), bytes.size());
        } else {
            for (std::size_t i = 0; i < count; ++i)
                text.units_[i] = static_cast<wchar>(load_le<std::uint16_t>(bytes.data() + 2 * i));
        }
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
        const std::span<const std::uint8_t> bytes(cur_, n);
        cur_ += n;
        return bytes;
    }

private:
    std::size_t read_count()
    {
        const std::size_t count = read_u16();
        if (count >= payload_text::capacity)
            throw io::overflow();
        return count;
    }

    template <class Int>
    Int read_le()
    {
        return load_le<Int>(take(sizeof(Int)).data());
    }

    const std::uint8_t* cur_;
    const std::uint8_t* end_;
};
