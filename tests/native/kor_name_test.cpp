// "kor:" device names: parsing, the canonical print, the stream form, hashes
// and equality.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/boundary.h"
#include "core/text_tokens.h"
#include "moniker/kor_name.h"
#include "moniker/kor_name_kinds.h"
#include "moniker/kor_name_parser.h"
#include "moniker/kor_name_printer.h"
#include "moniker/kor_name_stream.h"
#include "tests/common/memory_bytes.h"
#include "tests/native/test_text.h"

namespace {

// MAC bytes in the order they print: byte 5 first.
KorName mac(std::array<std::uint8_t, 6> printed)
{
    KorName n{.kind = KorName::MacAddress};
    std::reverse_copy(printed.begin(), printed.end(), n.mac.begin());
    return n;
}

KorName device(std::uint32_t type, std::uint32_t address)
{
    return {.kind = KorName::DeviceAtAddress, .deviceType = type, .address = address};
}

KorName device_ex(std::uint32_t type, std::uint32_t address, std::uint32_t idValue, std::uint32_t subIndex)
{
    return {.kind = KorName::DeviceAtAddressExtended,
            .deviceType = type,
            .address = address,
            .subIndex = subIndex,
            .idValue = idValue};
}

KorName transponder(std::uint32_t number)
{
    return {.kind = KorName::Transponder, .transponder = number};
}

std::string printed(const KorName& name)
{
    wchar buffer[kor_name_capacity];
    EXPECT_EQ(print_kor_name(name, buffer, std::size(buffer)), S_OK);
    return utf8(buffer);
}

struct parsed {
    std::string text;
    KorName name;
    std::size_t eaten;
    std::string canonical;
};

const std::vector<parsed>& parsed_names()
{
    static const std::vector<parsed> names = {
        {"kor:mac-0006B0-1A2B3C", mac({0x00, 0x06, 0xB0, 0x1A, 0x2B, 0x3C}), 21, "kor:mac-0006B0-1A2B3C"},
        {"kor:mac-aabbcc-ddeeff", mac({0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF}), 21, "kor:mac-AABBCC-DDEEFF"},
        // One digit before the "-" or at the end is a whole byte.
        {"kor:mac-AABB1-CCDDE", mac({0xAA, 0xBB, 0x01, 0xCC, 0xDD, 0x0E}), 19, "kor:mac-AABB01-CCDD0E"},
        {"kor:mac-+1+2+3-+4+5+6", mac({1, 2, 3, 4, 5, 6}), 21, "kor:mac-010203-040506"},
        // Two digits end a byte: the seventh is left over.
        {"kor:mac-000000-0000007", mac({}), 21, "kor:mac-000000-000000"},
        {"kor:FCN1L-10.0.0.1", device(52, 0x0A000001), 18, "kor:fcn1l-10.0.0.1"},
        {"kor:none-1.2.3.4", device(0, 0x01020304), 16, "kor:none-1.2.3.4"},
        {"kor:gull-0.0.0.0", device(128, 0), 16, "kor:gull-0.0.0.0"},
        // The key need not be whole: the longest common start wins, the
        // earlier row on a tie.
        {"kor:f-1.2.3.4", device(52, 0x01020304), 13, "kor:fcn1l-1.2.3.4"},
        {"kor:fcn1a-1.2.3.4", device(88, 0x01020304), 17, "kor:fcn1al-1.2.3.4"},
        {"kor:fcn3-1.2.3.4", device(54, 0x01020304), 16, "kor:fcn3i-1.2.3.4"},
        {"kor:fcn4-1.2.3.4", device(57, 0x01020304), 16, "kor:fcn4i-1.2.3.4"},
        {"kor:Kt-PLUS-192.168.0.10", device(118, 0xC0A8000A), 24, "kor:kt-plus-192.168.0.10"},
        {"kor:hrn3-1.2.3.4)!", device(60, 0x01020304), 16, "kor:hrn3-1.2.3.4"},
        {"kor:fcn1l-010.000.000.001,+7,3", device_ex(52, 0x0A000001, 7, 3), 30, "kor:fcn1l-10.0.0.1,7,3"},
        {"kor:kt-pro-255.255.255.255,4294967295,255 and more", device_ex(109, 0xFFFFFFFF, 4294967295u, 255), 41,
         "kor:kt-pro-255.255.255.255,4294967295,255"},
        {"kor:osprey-1.2.3.4,0,0", device_ex(58, 0x01020304, 0, 0), 22, "kor:osprey-1.2.3.4,0,0"},
        {"kor:transponder-12", transponder(12), 18, "kor:transponder-12"},
        {"kor:transponder-5xyz", transponder(5), 17, "kor:transponder-5"},
        {"kor:transponder-+255", transponder(255), 20, "kor:transponder-255"},
        // A number takes at most a thousand digits; leading zeros count.
        {"kor:transponder-" + std::string(999, '0') + "7", transponder(7), 1016, "kor:transponder-7"},
        {"kor:transponder-" + std::string(1000, '0') + "7", transponder(0), 1016, "kor:transponder-0"},
    };
    return names;
}

TEST(KorNameParse, ValidNames)
{
    for (const parsed& c : parsed_names()) {
        const wstring text = wide(c.text);
        KorName name = transponder(99);
        std::size_t eaten = 12345;
        ASSERT_EQ(parse_kor_name(text.c_str(), name, eaten), S_OK)
            << c.text << ": " << platform::take_error_description();
        EXPECT_EQ(name, c.name) << c.text;
        EXPECT_EQ(eaten, c.eaten) << c.text;
        EXPECT_EQ(printed(name), c.canonical) << c.text;

        // The canonical print reads back, whole, to the same name.
        const auto again = read_kor_name(wide(c.canonical));
        ASSERT_TRUE(again) << c.canonical;
        EXPECT_EQ(again->name, c.name) << c.canonical;
        EXPECT_EQ(again->eaten, c.canonical.size()) << c.canonical;
    }
}

TEST(KorNameParse, Failures)
{
    const std::string integer_u8 = "integer<unsigned char, 10, 0, default_tag>";
    const std::string integer_u32 = "integer<unsigned int, 10, 0, default_tag>";
    const std::string hex_u8 = "integer<unsigned char, 16, 2, default_tag>";
    const std::string dash = "Expected a char [2] with a value of '-'.";
    const std::string sign = "Encountered a char with an enexpected value of '-'.";
    const std::string overflow = "integer overflow";
    struct test_case {
        std::string text;
        HRESULT result;
        std::string description;   // empty: no error object
    };
    const test_case cases[] = {
        // Not "kor:" at all: refused quietly.
        {"KOR:transponder-5", E_UNEXPECTED, ""},
        {"", E_UNEXPECTED, ""},
        {" kor:transponder-5", E_UNEXPECTED, ""},
        {"kor:", DISP_E_EXCEPTION, "Expected a identifier<wchar_t>."},
        {"kor:1.2.3.4", DISP_E_EXCEPTION, "Expected a identifier<wchar_t>."},
        {"kor:xyz-1", DISP_E_EXCEPTION, "unrecognized moniker string"},
        {"kor:Mac-001122-334455", DISP_E_EXCEPTION, "unrecognized moniker string"},
        {"kor:xyz", DISP_E_EXCEPTION, dash},
        {"kor:transponder5", DISP_E_EXCEPTION, dash},
        // A first letter that starts some key makes a device name, which then
        // fails where the key stops matching.
        {"kor:Fxyz-1.2.3.4", DISP_E_EXCEPTION, dash},
        {"kor:foo-1", DISP_E_EXCEPTION, dash},
        {"kor:kt-1.2.3.4", DISP_E_EXCEPTION, dash},
        {"kor:fcn1l", DISP_E_EXCEPTION, dash},
        {"kor:fcn1l-1.2.3", DISP_E_EXCEPTION, "Expected a char with a value of '.'."},
        {"kor:fcn1l-1.2.3.256", DISP_E_EXCEPTION, overflow},
        {"kor:fcn1l-1.2..4", DISP_E_EXCEPTION, "Expected a " + integer_u8 + "."},
        {"kor:fcn1l--1.2.3.4", DISP_E_EXCEPTION, sign},
        {"kor:fcn1l-1.2.3.4,", DISP_E_EXCEPTION, "Expected a " + integer_u32 + "."},
        {"kor:fcn1l-1.2.3.4,4294967296,1", DISP_E_EXCEPTION, overflow},
        {"kor:fcn1l-1.2.3.4,-1,1", DISP_E_EXCEPTION, sign},
        {"kor:fcn1l-1.2.3.4,7", DISP_E_EXCEPTION, "Expected a char with a value of ','."},
        {"kor:fcn1l-1.2.3.4,7,", DISP_E_EXCEPTION, "Expected a " + integer_u8 + "."},
        {"kor:fcn1l-1.2.3.4,7,256", DISP_E_EXCEPTION, overflow},
        {"kor:transponder-", DISP_E_EXCEPTION, "Expected a " + integer_u8 + "."},
        {"kor:transponder-+-1", DISP_E_EXCEPTION, "Expected a " + integer_u8 + "."},
        {"kor:transponder--5", DISP_E_EXCEPTION, sign},
        {"kor:transponder-256", DISP_E_EXCEPTION, overflow},
        {"kor:mac-", DISP_E_EXCEPTION, "Expected a " + hex_u8 + "."},
        {"kor:mac-GG0000-000000", DISP_E_EXCEPTION, "Expected a " + hex_u8 + "."},
        {"kor:mac-AA-BBCCDD", DISP_E_EXCEPTION, sign},
        {"kor:mac-AABBCCDD-EEFF00", DISP_E_EXCEPTION, "Expected a char with a value of '-'."},
        {"kor:mac-AABBCC-DDEE", DISP_E_EXCEPTION, "Expected a " + hex_u8 + "."},
    };
    for (const test_case& c : cases) {
        const wstring text = wide(c.text);
        const KorName untouched = transponder(42);
        KorName name = untouched;
        std::size_t eaten = 12345;
        platform::set_error_info(nullptr);
        EXPECT_EQ(parse_kor_name(text.c_str(), name, eaten), c.result) << c.text;
        EXPECT_EQ(platform::take_error_description(), c.description) << c.text;
        EXPECT_EQ(name, untouched) << c.text;
        EXPECT_EQ(eaten, 12345u) << c.text;
    }
    KorName name;
    std::size_t eaten = 0;
    EXPECT_EQ(parse_kor_name(nullptr, name, eaten), E_POINTER);
}

TEST(KorNamePrint, ValuesNoParseMakes)
{
    struct test_case {
        KorName name;
        const char* canonical;
    };
    const test_case cases[] = {
        // Hosts may create names with any 32-bit values; the key is that of
        // the type's low byte.
        {device(0x100 + 52, 0x7F000001), "kor:fcn1l-127.0.0.1"},
        {device(62, 0x01020304), "kor:(invalid)-1.2.3.4"},
        {device_ex(0xFFFFFFFF, 0xFFFFFFFF, 4294967295u, 4294967295u),
         "kor:(invalid)-255.255.255.255,4294967295,4294967295"},
        {transponder(4294967295u), "kor:transponder-4294967295"},
    };
    for (const test_case& c : cases)
        EXPECT_EQ(printed(c.name), c.canonical);

    // "(invalid)" is not a key: such a name does not read back.
    EXPECT_THROW(read_kor_name(wide("kor:(invalid)-1.2.3.4")), io::expected_type<identifier<wchar_t>>);
}

TEST(KorNamePrint, InvalidKindWritesNothing)
{
    for (std::uint32_t kind : {4u, 0xFFFFFFFFu}) {
        wchar buffer[8] = {'x', 'x', 0};
        EXPECT_EQ(print_kor_name(KorName{.kind = kind}, buffer, std::size(buffer)), E_UNEXPECTED) << kind;
        EXPECT_EQ(utf8(buffer), "xx");
    }
    EXPECT_EQ(print_kor_name(transponder(1), nullptr, 10), E_POINTER);
}

TEST(KorNamePrint, StaysWithinEveryBuffer)
{
    const KorName longest = device_ex(0xFF, 0xFFFFFFFF, 4294967295u, 4294967295u);
    const std::string full = "kor:(invalid)-255.255.255.255,4294967295,4294967295";
    static_assert(kor_name_capacity > 52);
    for (std::size_t capacity = 0; capacity <= full.size() + 1; ++capacity) {
        std::vector<wchar> buffer(capacity + 1, 0xCCCC);
        const HRESULT result = print_kor_name(longest, buffer.data(), capacity);
        platform::take_error_description();
        EXPECT_EQ(buffer[capacity], 0xCCCC) << "wrote past " << capacity;
        if (capacity > full.size()) {
            EXPECT_EQ(result, S_OK);
            EXPECT_EQ(utf8(buffer.data()), full);
        } else {
            EXPECT_EQ(result, DISP_E_EXCEPTION) << capacity;
            if (capacity > 0) {
                EXPECT_EQ(full.rfind(utf8(buffer.data()), 0), 0u) << "a prefix at " << capacity;
            }
        }
    }
}

struct stored {
    KorName name;
    std::vector<std::uint8_t> bytes;
};

const stored stored_names[] = {
    {mac({0x00, 0x06, 0xB0, 0x1A, 0x2B, 0x3C}), {0, 0, 0, 0, 0x00, 0x06, 0xB0, 0x1A, 0x2B, 0x3C}},
    {device(52, 0x0A000001), {1, 0, 0, 0, 52, 0, 0, 0, 0x01, 0x00, 0x00, 0x0A}},
    {device_ex(0x12345678, 0xC0A80001, 0xDEADBEEF, 3),
     {2, 0, 0, 0, 0x78, 0x56, 0x34, 0x12, 0x01, 0x00, 0xA8, 0xC0, 3, 0, 0, 0, 0xEF, 0xBE, 0xAD, 0xDE}},
    {transponder(0x01020304), {3, 0, 0, 0, 4, 3, 2, 1}},
};

TEST(KorNameStream, BytesOfEachKind)
{
    for (const stored& c : stored_names) {
        memory_sink out;
        save_kor_name(c.name, out);
        EXPECT_EQ(out.bytes, c.bytes) << printed(c.name);
        EXPECT_LE(out.bytes.size(), kor_name_stream_max);

        std::vector<std::uint8_t> bytes = c.bytes;
        bytes.push_back(0x77);   // what follows belongs to someone else
        memory_source in(bytes.data(), bytes.size());
        KorName loaded = transponder(9);
        load_kor_name(loaded, in);
        EXPECT_EQ(loaded, c.name) << printed(c.name);
        EXPECT_EQ(in.at, c.bytes.size());
    }
}

// Every shorter stream fails, an unknown kind too, and the name read into
// is left as it was, whether the kind was read or not.
TEST(KorNameStream, AFailedLoadChangesNothing)
{
    ASSERT_EQ(std::size(stored_names), kor_name_kinds().size()) << "a stored name of every kind";
    std::vector<std::vector<std::uint8_t>> failing = {{4, 0, 0, 0, 1, 2, 3, 4}, {0xFF, 0xFF, 0xFF, 0xFF}};
    for (const stored& c : stored_names)
        for (std::size_t size = 0; size < c.bytes.size(); ++size)
            failing.emplace_back(c.bytes.begin(), c.bytes.begin() + static_cast<std::ptrdiff_t>(size));
    const KorName before = device_ex(52, 0x0A000001, 7, 3);
    for (const std::vector<std::uint8_t>& bytes : failing) {
        memory_source in(bytes.data(), bytes.size());
        KorName name = before;
        EXPECT_ANY_THROW(load_kor_name(name, in)) << testing::PrintToString(bytes);
        EXPECT_EQ(name, before) << testing::PrintToString(bytes);
    }
}

TEST(KorNameHash, ValueOfEachKind)
{
    struct test_case {
        KorName name;
        std::uint32_t hash;
    };
    const test_case cases[] = {
        // Stored bytes 00 06 B0 1A 2B 3C are bytes 5..0: word 0xB01A2B3C (bytes 3..0) XOR 0x0006 (bytes 5, 4).
        {mac({0x00, 0x06, 0xB0, 0x1A, 0x2B, 0x3C}), 0xB01A2B3Au},
        // Bytes 5, 4 are FF, EE and bytes 3..0 zero: 0 XOR 0xFFEE.
        {mac({0xFF, 0xEE, 0x00, 0x00, 0x00, 0x00}), 0x0000FFEEu},
        // 0x0A000001 XOR 52 (0x34).
        {device(52, 0x0A000001), 0x0A000035u},
        // All 32 bits of the type count: 0x7F000001 XOR 0x134.
        {device(0x100 + 52, 0x7F000001), 0x7F000135u},
        // 0x0A000001 AND 0x34 is 0, then XOR 7 XOR 3 is 4.
        {device_ex(52, 0x0A000001, 7, 3), 4u},
        // 0x0A0000F1 AND 0xFF is 0xF1; XOR 0x100 gives 0x1F1; XOR 0x1000 gives 0x11F1.
        {device_ex(0xFF, 0x0A0000F1, 0x100, 0x1000), 0x000011F1u},
        // The number itself.
        {transponder(12), 12u},
    };
    for (const test_case& c : cases)
        EXPECT_EQ(kor_name_hash(c.name), c.hash) << printed(c.name);
    EXPECT_EQ(kor_name_hash(KorName{.kind = 4}), std::nullopt);
}

TEST(KorNameEquality, ComparesTheFieldsOfTheKind)
{
    KorName other_fields = transponder(5);
    other_fields.deviceType = 52;
    other_fields.mac[0] = 1;
    struct test_case {
        KorName a, b;
        bool equal;
    };
    const test_case cases[] = {
        {transponder(5), other_fields, true},
        {transponder(5), transponder(6), false},
        {device(52, 1), device_ex(52, 1, 0, 0), false},
        {device_ex(52, 1, 7, 3), device_ex(52, 1, 7, 4), false},
        {device_ex(52, 1, 7, 3), device_ex(52, 1, 8, 3), false},
        {device(52, 1), device(53, 1), false},
        {device(52, 1), device(52, 2), false},
        {mac({1, 2, 3, 4, 5, 6}), mac({1, 2, 3, 4, 5, 6}), true},
        {mac({1, 2, 3, 4, 5, 6}), mac({1, 2, 3, 4, 5, 7}), false},
        {mac({1, 2, 3, 4, 5, 6}), mac({0, 2, 3, 4, 5, 6}), false},
    };
    for (const test_case& c : cases) {
        EXPECT_EQ(c.a == c.b, c.equal) << printed(c.a) << " vs " << printed(c.b);
        EXPECT_EQ(c.b == c.a, c.equal) << printed(c.b) << " vs " << printed(c.a);
    }
}

}   // namespace
