// The kinds of "kor:" name, one row a kind, in kind order. A row holds all
// that the parser, the printer, the stream form, equality, the hash and the
// moniker know of its kind, so a new kind is a new row here (and its fields
// in KorName).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "core/output_buffer.h"
#include "core/text_reader.h"
#include "core/wide.h"
#include "core/win_types.h"
#include "moniker/kor_name.h"

// The host's interfaces, which only korps.dll has (korps/korps_interfaces.h).
struct IKorBinder;
struct IKorMoniker;

// One 32-bit field of a name.
using KorWord = std::uint32_t KorName::*;

struct kor_name_kind {
    // What the kind names, as people say it.
    std::string_view form;

    // The display name after "kor:" is `identifier` "-" fields; without an
    // identifier, a device type key "-" fields; and for a kind that extends
    // another, that kind's display name, `tail`, then this kind's fields.
    wstring_view identifier{};
    std::optional<std::uint32_t> extends{};
    wstring_view tail{};
    // This kind's own fields of the display name, read into the name and
    // printed from it.
    void (*read)(text_reader& in, KorName& name);
    void (*write)(output::buffer& out, const KorName& name);

    // The fields as stored and compared, in order: the six MAC bytes when
    // `mac`, then `words`.
    bool mac = false;
    std::span<const KorWord> words{};

    // The hash hosts keep in their tables.
    std::uint32_t (*hash)(const KorName& name) noexcept;

    // In korps.dll, the binder call that binds a name of this kind, and the
    // getters that read its fields from another moniker of the class; null in
    // a build without the host's interfaces.
    HRESULT (*bind)(IKorBinder* binder, const KorName& name, const GUID& riid, void** ppv);
    HRESULT (*readFrom)(IKorMoniker* other, KorName& name);
};

// Every kind; a name's kind is its row's index.
std::span<const kor_name_kind> kor_name_kinds() noexcept;

// The row of `kind`; null for a number that is not a kind, which may arrive
// from a stream or a host.
const kor_name_kind* find_kor_name_kind(std::uint32_t kind) noexcept;
