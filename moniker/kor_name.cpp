#include "moniker/kor_name.h"

#include <iterator>

namespace {

constexpr std::uint32_t little_endian(std::uint8_t b0, std::uint8_t b1, std::uint8_t b2 = 0,
                                      std::uint8_t b3 = 0) noexcept
{
    return std::uint32_t(b0) | std::uint32_t(b1) << 8 | std::uint32_t(b2) << 16 | std::uint32_t(b3) << 24;
}

std::uint32_t mac_hash(const KorName& n) noexcept
{
    const auto& m = n.mac;
    return little_endian(m[0], m[1], m[2], m[3]) ^ little_endian(m[4], m[5]);
}

std::uint32_t device_hash(const KorName& n) noexcept
{
    return n.address ^ n.deviceType;
}

// AND where the plain device form has XOR: the extended form has always
// hashed this way, and hosts keep these values.
std::uint32_t device_ex_hash(const KorName& n) noexcept
{
    return (n.address & n.deviceType) ^ n.idValue ^ n.subIndex;
}

std::uint32_t transponder_hash(const KorName& n) noexcept
{
    return n.transponder;
}

constexpr KorWord device_words[] = {&KorName::deviceType, &KorName::address};
constexpr KorWord device_ex_words[] = {&KorName::deviceType, &KorName::address, &KorName::subIndex,
                                       &KorName::idValue};
constexpr KorWord transponder_words[] = {&KorName::transponder};

struct kind_form {
    std::span<const KorWord> words;
    std::uint32_t (*hash)(const KorName&) noexcept;
};

// Indexed by kind.
constexpr kind_form forms[] = {
    {{}, mac_hash},
    {device_words, device_hash},
    {device_ex_words, device_ex_hash},
    {transponder_words, transponder_hash},
};
static_assert(std::size(forms) == KorName::Transponder + 1);

} // namespace

std::span<const KorWord> kor_name_words(std::uint32_t kind) noexcept
{
    return is_valid_kind(kind) ? forms[kind].words : std::span<const KorWord>();
}

bool operator==(const KorName& a, const KorName& b) noexcept
{
    if (a.kind != b.kind)
        return false;
    if (a.kind == KorName::MacAddress && a.mac != b.mac)
        return false;
    for (const KorWord word : kor_name_words(a.kind))
        if (a.*word != b.*word)
            return false;
    return true;
}

std::optional<std::uint32_t> kor_name_hash(const KorName& name) noexcept
{
    if (!is_valid_kind(name.kind))
        return std::nullopt;
    return forms[name.kind].hash(name);
}
