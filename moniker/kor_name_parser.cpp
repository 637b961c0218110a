#include "moniker/kor_name_parser.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

#include "core/boundary.h"
#include "core/messages.h"
#include "core/text_reader.h"
#include "devices/device_types.h"
#include "moniker/kor_name_kinds.h"

namespace {

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

// The head of the name and the "-" after it: a device type key, whose type
// the name takes, or an identifier. Sets the kind that starts with that head.
void read_head(text_reader& in, KorName& name)
{
    wstring_view identifier;   // none for a device type key
    if (const key_match key = match_device_key(in.rest()); key.row) {
        in.advance(key.length);
        name.deviceType = key.row->value;
    } else {
        identifier = in.read_identifier();
    }
    in.expect<char[2]>("-");
    const auto kinds = kor_name_kinds();
    const auto kind =
        std::ranges::find_if(kinds, [&](const kor_name_kind& k) { return !k.extends && k.identifier == identifier; });
    if (kind == kinds.end())
        throw std::runtime_error(messages::unrecognized_moniker_string);
    name.kind = static_cast<std::uint32_t>(kind - kinds.begin());
}

// The fields of the kind the head started, and of each kind extending it
// whose tail follows.
void read_fields(text_reader& in, KorName& name)
{
    const auto kinds = kor_name_kinds();
    kinds[name.kind].read(in, name);
    for (std::uint32_t kind = 0; kind < kinds.size(); ++kind) {
        const kor_name_kind& extension = kinds[kind];
        if (extension.extends == name.kind && in.rest().starts_with(extension.tail)) {
            in.advance(extension.tail.size());
            name.kind = kind;
            extension.read(in, name);
        }
    }
}

}   // namespace

std::optional<parsed_kor_name> read_kor_name(wstring_view text, std::size_t* stopped)
{
    text_reader in(text);
    if (!in.skip("kor:"))
        return std::nullopt;

    parsed_kor_name parsed{};
    try {
        read_head(in, parsed.name);
        read_fields(in, parsed.name);
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
