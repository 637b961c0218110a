#include <gtest/gtest.h>

#include <vector>

#include "core/payload_cursor.h"
#include "tests/native/test_text.h"

namespace {

// Only a big-endian host swaps the bytes it loads; no host the tests run on
// does, so the swap is checked here.
static_assert(swap_bytes(std::uint8_t{0xAB}) == 0xAB);
static_assert(swap_bytes(std::uint16_t{0x1234}) == 0x3412);
static_assert(swap_bytes(std::uint32_t{0x12345678}) == 0x78563412);
static_assert(swap_bytes(std::uint64_t{0x0102030405060708}) == 0x0807060504030201);
static_assert(swap_bytes(std::int32_t{-2}) == std::int32_t{-16777217});   // FFFFFFFE, FEFFFFFF

std::vector<std::uint8_t> counted_text(std::size_t count, std::size_t units_present)
{
    std::vector<std::uint8_t> bytes{static_cast<std::uint8_t>(count), static_cast<std::uint8_t>(count >> 8)};
    for (std::size_t i = 0; i < units_present; ++i) {
        bytes.push_back(static_cast<std::uint8_t>('a' + i % 26));
        bytes.push_back(0);
    }
    return bytes;
}

TEST(PayloadCursor, ReadsLittleEndianUnaligned)
{
    const std::uint8_t bytes[] = {0xAA, 0x01, 0x02, 0x03, 0x04, 0x05, 0xFF, 0xFF, 0xFF, 0xFF, 0x34, 0x12};
    payload_cursor in(bytes, sizeof bytes);
    EXPECT_EQ(in.read_u8(), 0xAA);
    EXPECT_EQ(in.read_u32(), 0x04030201u);
    EXPECT_EQ(in.read_u8(), 0x05);
    EXPECT_EQ(in.read_i32(), -1);
    EXPECT_EQ(in.read_u16(), 0x1234);
    EXPECT_EQ(in.remaining(), 0u);
    EXPECT_THROW(in.read_u8(), io::underflow);
}

TEST(PayloadCursor, ShortReadsUnderflowWithoutConsuming)
{
    const std::uint8_t bytes[] = {1, 2, 3};
    const struct {
        const char* what;
        void (*read)(payload_cursor&);
    } cases[] = {
        {"u32 from 3 bytes", [](payload_cursor& in) { in.read_u32(); }},
        {"i32 from 3 bytes", [](payload_cursor& in) { in.read_i32(); }},
        {"u64 from 3 bytes", [](payload_cursor& in) { in.read_u64(); }},
        {"4 bytes from 3", [](payload_cursor& in) { in.take(4); }},
    };
    for (const auto& c : cases) {
        payload_cursor in(bytes, sizeof bytes);
        EXPECT_THROW(c.read(in), io::underflow) << c.what;
        EXPECT_EQ(in.remaining(), 3u) << c.what;
    }
    payload_cursor one(bytes, 1);
    EXPECT_THROW(one.read_u16(), io::underflow);
}

TEST(PayloadCursor, WideStringLimits)
{
    const struct {
        std::size_t count;
        std::size_t present;   // units of text that follow the count
        const char* outcome;
    } cases[] = {
        {0, 0, "ok"},
        {3, 3, "ok"},
        {259, 259, "ok"},
        {260, 260, "overflow"},
        {260, 0, "overflow"},   // the count is checked first
        {0xFFFF, 0, "overflow"},
        {2, 1, "underflow"},   // with a byte of the second unit
    };
    for (const auto& c : cases) {
        auto bytes = counted_text(c.count, c.present);
        if (c.count == 2)
            bytes.push_back('x');
        payload_cursor in(bytes.data(), bytes.size());
        try {
            const payload_text text = in.read_wstring();
            EXPECT_STREQ(c.outcome, "ok") << c.count;
            EXPECT_EQ(text.size(), c.count);
            EXPECT_EQ(text.c_str()[c.count], 0);
            EXPECT_EQ(in.remaining(), 0u);
        } catch (const io::overflow&) {
            EXPECT_STREQ(c.outcome, "overflow") << c.count;
        } catch (const io::underflow&) {
            EXPECT_STREQ(c.outcome, "underflow") << c.count;
        }
    }
}

}   // namespace
