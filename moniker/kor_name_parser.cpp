#include "moniker/kor_name_parser.h"

#include <stdexcept>
#include <string_view>

#include "core/boundary.h"
#include "core/text_reader.h"
#include "devices/device_types.h"

namespace {

std::uint8_t read_decimal_byte(text_reader& in)
{
    return in.read_integer<unsigned char, 10, 0>();
}

// Four decimal bytes joined by "."; the first is the most significant.
std::uint32_t read_ipv4(text_reader& in)
{
    std::uint32_t address = read_decimal_byte(in);
    for (int i = 1; i < 4; ++i) {
        in.expect<char>(".");
        address = address << 8 | read_decimal_byte(in);
    }
    return address;
}

// After the device type key: "-", the address, and the extension when a ","
// follows the address.
void read_device(text_reader& in, KorName& name)
{
    in.expect<char[2]>("-");
    name.address = read_ipv4(in);
    if (!in.skip(",")) {
        name.kind = KorName::DeviceAtAddress;
        return;
    }
    name.kind = KorName::DeviceAtAddressExtended;
    name.idValue = in.read_integer<unsigned int, 10, 0>();
    in.expect<char>(",");
    name.subIndex = read_decimal_byte(in);
}

void read_transponder(text_reader& in, KorName& name)
{
    name.kind = KorName::Transponder;
    name.transponder = read_decimal_byte(in);
}

// Three bytes, "-", three bytes: the order in which they print, so the
// first lands in byte 5.
void read_mac(text_reader& in, KorName& name)
{
    name.kind = KorName::MacAddress;
    for (std::size_t i = 0; i < name.mac.size(); ++i) {
        if (i == name.mac.size() / 2)
            in.expect<char>("-");
        name.mac[name.mac.size() - 1 - i] = in.read_integer<unsigned char, 16, 2>();
    }
}

struct identifier_form {
    std::string_view identifier;   // matched case-sensitively and whole
    void (*read)(text_reader&, KorName&);
};

constexpr identifier_form identifier_forms[] = {
    {"transponder", read_transponder},
    {"mac", read_mac},
};

void read_identifier_form(text_reader& in, KorName& name)
{
    const wstring_view identifier = in.read_identifier();
    in.expect<char[2]>("-");
    for (const identifier_form& form : identifier_forms) {
        if (ascii_equal(identifier, form.identifier)) {
            form.read(in, name);
            return;
        }
    }
    throw std::runtime_error(messages::unrecognized_moniker_string);
}

constexpr wchar fold(wchar c) noexcept
{
    return c >= 'a' && c <= 'z' ? wchar(c - 'a' + 'A') : c;
}

// How many leading units of `text` spell the start of `key`, letters folded.
std::size_t common_prefix(wstring_view text, std::string_view key) noexcept
{
    std::size_t n = 0;
    while (n < text.size() && n < key.size() && fold(text[n]) == fold(wchar(key[n])))
        ++n;
    return n;
}

struct key_match {
    const OptionEntry* row = nullptr;
    std::size_t length = 0;
};

// The device type whose key shares the longest start with the text; an
// earlier row keeps a tie. A single character is enough, so an abbreviated
// or misspelt key still names a device, and then fails where it goes wrong.
key_match match_device_key(wstring_view text) noexcept
{
    key_match best;
    for (const OptionEntry& row : DeviceTypeKeys) {
        const std::size_t length = common_prefix(text, std::string_view(row.narrow, row.size - 1));
        if (length > best.length)
            best = {&row, length};
    }
    return best;
}

} // namespace

std::optional<parsed_kor_name> read_kor_name(wstring_view text, std::size_t* stopped)
{
    text_reader in(text);
    if (!in.skip("kor:"))
        return std::nullopt;

    parsed_kor_name parsed{};
    try {
        const key_match key = match_device_key(in.rest());
        if (key.row) {
            in.advance(key.length);
            parsed.name.deviceType = key.row->value;
            read_device(in, parsed.name);
        } else {
            read_identifier_form(in, parsed.name);
        }
    } catch (...) {
        if (stopped)
            *stopped = in.position();
        throw;
    }
    parsed.eaten = in.position();
    return parsed;
}

HRESULT parse_kor_name(const wchar* text, KorName& name, std::size_t& eaten) noexcept
{
    if (!text)
        return E_POINTER;
    return guarded([&] {
        const std::optional<parsed_kor_name> parsed = read_kor_name(text);
        if (!parsed)
            return E_UNEXPECTED;
        name = parsed->name;
        eaten = parsed->eaten;
        return S_OK;
    });
}
