#include "moniker/kor_name.h"

#include <algorithm>

#include "moniker/kor_name_kinds.h"

bool operator==(const KorName& a, const KorName& b) noexcept
{
    if (a.kind != b.kind)
        return false;
    const kor_name_kind* kind = find_kor_name_kind(a.kind);
    if (!kind)
        return true;
    if (kind->mac && a.mac != b.mac)
        return false;
    return std::ranges::all_of(kind->words, [&](KorWord word) { return a.*word == b.*word; });
}

std::optional<std::uint32_t> kor_name_hash(const KorName& name) noexcept
{
    const kor_name_kind* kind = find_kor_name_kind(name.kind);
    if (!kind)
        return std::nullopt;
    return kind->hash(name);
}
