// Reading "kor:" display names.
//
//   kor:<device type key>-<a>.<b>.<c>.<d>           a device at an IPv4 address
//   kor:<device type key>-<a>.<b>.<c>.<d>,<id>,<sub> the same, extended
//   kor:transponder-<n>                              a transponder
//   kor:mac-<hh><hh><hh>-<hh><hh><hh>                a unit by MAC address
//
// A name ends where this grammar ends: what follows is left to the caller,
// who may go on parsing a composite name from there.
#pragma once

#include <cstddef>
#include <optional>

#include "core/wide.h"
#include "core/win_types.h"
#include "moniker/kor_name.h"

struct parsed_kor_name {
    KorName name;
    std::size_t eaten;   // units from the start of the text, "kor:" included
};

// Reads the name at the start of `text`: nothing when the text does not begin
// with "kor:"; the error of the first piece that does not fit otherwise, with
// the units read before it in *stopped when asked.
std::optional<parsed_kor_name> read_kor_name(wstring_view text, std::size_t* stopped = nullptr);

// The same for a NUL-terminated text at the COM boundary: S_OK with `name`
// and `eaten` set; E_UNEXPECTED, quietly, for a text without the scheme;
// otherwise the failure's HRESULT with the thread's error object describing
// it. `name` and `eaten` are written only on success.
HRESULT parse_kor_name(const wchar* text, KorName& name, std::size_t& eaten) noexcept;
