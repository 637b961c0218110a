#include "moniker/kor_name_stream.h"

#include <algorithm>

#include "core/errors.h"

namespace {

void put_word(std::uint8_t* out, std::uint32_t value) noexcept
{
    for (std::size_t i = 0; i < kor_name_word_bytes; ++i)
        out[i] = static_cast<std::uint8_t>(value >> (8 * i));
}

std::uint32_t get_word(const std::uint8_t* in) noexcept
{
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < kor_name_word_bytes; ++i)
        value |= std::uint32_t(in[i]) << (8 * i);
    return value;
}

const kor_name_kind& stored_kind(std::uint32_t kind)
{
    const kor_name_kind* found = find_kor_name_kind(kind);
    if (!found)
        throw not_expected();
    return *found;
}

}   // namespace

void save_kor_name(const KorName& name, byte_sink& out)
{
    const kor_name_kind& kind = stored_kind(name.kind);
    std::uint8_t bytes[kor_name_stream_max];
    put_word(bytes, name.kind);
    std::uint8_t* field = bytes + kor_name_word_bytes;
    if (kind.mac)
        field = std::reverse_copy(name.mac.begin(), name.mac.end(), field);
    for (const KorWord word : kind.words) {
        put_word(field, name.*word);
        field += kor_name_word_bytes;
    }
    out.write(bytes, kor_name_stream_bytes(kind));
}

void load_kor_name(KorName& name, byte_source& in)
{
    std::uint8_t bytes[kor_name_stream_max];
    in.read(bytes, kor_name_word_bytes);
    KorName loaded;
    loaded.kind = get_word(bytes);
    const kor_name_kind& kind = stored_kind(loaded.kind);
    in.read(bytes, kor_name_stream_bytes(kind) - kor_name_word_bytes);
    const std::uint8_t* field = bytes;
    if (kind.mac) {
        std::reverse_copy(field, field + loaded.mac.size(), loaded.mac.begin());
        field += loaded.mac.size();
    }
    for (const KorWord word : kind.words) {
        loaded.*word = get_word(field);
        field += kor_name_word_bytes;
    }
    name = loaded;
}
