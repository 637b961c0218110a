// The persistent form of a "kor:" device name: the kind as a little-endian
// 32-bit word, then the fields of that kind, with no header and no version.
//
//   kind 0  6 bytes   the MAC address in the order it prints (byte 5 first)
//   kind 1  8 bytes   deviceType, address
//   kind 2  16 bytes  deviceType, address, subIndex, idValue
//   kind 3  4 bytes   transponder
//
// Every field but the MAC is a little-endian 32-bit word.
#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>

#include "moniker/kor_name.h"
#include "moniker/kor_name_kinds.h"

// The most any name takes, promised to hosts that size their storage.
inline constexpr std::size_t kor_name_stream_max = 24;

inline constexpr std::size_t kor_name_word_bytes = 4;

// The bytes a name of `kind` takes, its kind word included.
constexpr std::size_t kor_name_stream_bytes(const kor_name_kind& kind) noexcept
{
    return kor_name_word_bytes + (kind.mac ? std::tuple_size_v<decltype(KorName::mac)> : 0) +
           kind.words.size() * kor_name_word_bytes;
}

// Where the bytes go and come from. A sink writes all or throws; a source
// fills all or throws.
class byte_sink {
public:
    virtual void write(const std::uint8_t* bytes, std::size_t count) = 0;

protected:
    ~byte_sink() = default;
};

class byte_source {
public:
    virtual void read(std::uint8_t* bytes, std::size_t count) = 0;

protected:
    ~byte_source() = default;
};

// Writes the name in one piece; not_expected, with nothing written, for a kind
// that is not a form.
void save_kor_name(const KorName& name, byte_sink& out);

// Reads the kind, then that kind's fields, and only then sets `name`:
// not_expected for a kind that is not a form. After a failure `name` is as it
// was.
void load_kor_name(KorName& name, byte_source& in);
