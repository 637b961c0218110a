#include "moniker/kor_name_stream.h"

#include <algorithm>
#include <iterator>

#include "core/errors.h"

namespace {

constexpr std::size_t word_bytes = 4;

void put_word(std::uint8_t* out, std::uint32_t value) noexcept
{
    for (std::size_t i = 0; i < word_bytes; ++i)
        out[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint32_t get_word(const std::uint8_t* in) noexcept
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < word_bytes; ++i)
        value |= std::uint32_t(in[i]) << (8 * i);
    return value;
}

// The bytes of the kind's fields, following the kind word.
std::size_t field_bytes(std::uint32_t kind)
{
    if (!is_valid_kind(kind))
        throw not_expected();
    return kind == KorName::MacAddress ? std::tuple_size_v<decltype(KorName::mac)>
                                       : kor_name_words(kind).size() * word_bytes;
}

} // namespace

void save_kor_name(const KorName& name, byte_sink& out)
{
    std::uint8_t bytes[kor_name_stream_max];
    const std::size_t size = word_bytes + field_bytes(name.kind);
    put_word(bytes, name.kind);
    std::uint8_t* field = bytes + word_bytes;
    if (name.kind == KorName::MacAddress)
        std::reverse_copy(name.mac.begin(), name.mac.end(), field);
    for (const KorWord word : kor_name_words(name.kind)) {
        put_word(field, name.*word);
        field += word_bytes;
    }
    out.write(bytes, size);
}

void load_kor_name(KorName& name, byte_source& in)
{
    std::uint8_t bytes[kor_name_stream_max];
    in.read(bytes, word_bytes);
    name.kind = get_word(bytes);
    const std::size_t size = field_bytes(name.kind);
    in.read(bytes, size);
    const std::uint8_t* field = bytes;
    if (name.kind == KorName::MacAddress)
        std::reverse_copy(field, field + size, name.mac.begin());
    for (const KorWord word : kor_name_words(name.kind)) {
        name.*word = get_word(field);
        field += word_bytes;
    }
}
