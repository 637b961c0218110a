// The canonical text of a "kor:" device name: what GetDisplayName hands out.
#pragma once

#include <cstddef>

#include "core/wide.h"
#include "core/win_types.h"
#include "moniker/kor_name.h"

// Room for the longest canonical name with its terminator, with margin: a
// host's display-name buffer is this many units.
inline constexpr std::size_t kor_name_capacity = 96;

// Writes the canonical name into `buffer` (room for `capacity` units, NUL
// included). S_OK; E_UNEXPECTED, with nothing written, for a kind that is not
// a form; E_POINTER for a null buffer; the overflow's failure when the buffer
// is too small, the text then cut where the piece did not fit.
HRESULT print_kor_name(const KorName& name, wchar* buffer, std::size_t capacity) noexcept;
