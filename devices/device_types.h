// Device type codes and their keys.
//
// Every event that names a unit carries its type as one byte. The key is both
// what the operator reads and the type word of a "kor:" display name, so keys
// stay lower case and no two rows share a code or a key.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "core/option_entry.h"

// Every known device type, once: its name in code, its key, its code. Rows
// stand in the order the management server has always listed them; lookup
// takes the first match, so the order is kept as it is.
#define KORPS_DEVICE_TYPES(row)                                                                                        \
    row(none, "none", 0) row(fcn1l, "fcn1l", 52) row(fcn1i, "fcn1i", 53) row(fcn2l, "fcn2l", 180)                      \
        row(fcn2i, "fcn2i", 181) row(fcn3i, "fcn3i", 54) row(fcn3l, "fcn3l", 55) row(fcn4i, "fcn4i", 57)               \
            row(fcn4l, "fcn4l", 56) row(fcn1al, "fcn1al", 88) row(fcn3al, "fcn3al", 94) row(osprey, "osprey", 58)      \
                row(hrn1, "hrn1", 59) row(hrn2, "hrn2", 89) row(hrn3, "hrn3", 60) row(hrn4, "hrn4", 91)                \
                    row(hrn0, "hrn0", 61) row(kt1, "kt1", 97) row(kts, "kts", 99) row(ktm, "ktm", 100)                 \
                        row(kt4, "kt4", 102) row(kt8, "kt8", 103) row(kt16, "kt16", 104) row(kt32, "kt32", 105)        \
                            row(kt64, "kt64", 106) row(kt_pro, "kt-pro", 109) row(kt_plus, "kt-plus", 118)             \
                                row(kt_mini, "kt-mini", 120) row(gull, "gull", 128)

namespace device_types {

// The codes by name, as the type byte of an event carries them.
enum code : std::uint8_t {
#define KORPS_DEVICE_TYPE_CODE(name, key, value) name = value,
    KORPS_DEVICE_TYPES(KORPS_DEVICE_TYPE_CODE)
#undef KORPS_DEVICE_TYPE_CODE
};

}   // namespace device_types

inline constexpr OptionEntry DeviceTypeKeys[] = {
#define KORPS_DEVICE_TYPE_KEY(name, key, value) OPTION(key, device_types::name),
    KORPS_DEVICE_TYPES(KORPS_DEVICE_TYPE_KEY)
#undef KORPS_DEVICE_TYPE_KEY
};
static_assert(std::size(DeviceTypeKeys) == 29, "one row per known device type");
static_assert(values_unique(DeviceTypeKeys), "one row per code");
static_assert(texts_unique_lower_case(DeviceTypeKeys), "keys are display-name type words");

// The keys indexed by code, every other code "(invalid)": an event names its
// unit's type on every rendering, so the lookup is one load.
inline constexpr auto device_type_names_by_code = [] {
    std::array<wstring_view, 256> names;
    names.fill(invalid_option_text);
    for (const OptionEntry& row : DeviceTypeKeys)
        names[row.value] = option_text(row);
    return names;
}();

// The longest key, or "(invalid)".
inline constexpr std::size_t max_device_type_name = [] {
    std::size_t longest = 0;
    for (const wstring_view name : device_type_names_by_code)
        longest = std::max(longest, name.size());
    return longest;
}();

// The key of an event's device type byte, or "(invalid)" for a code we do not know.
constexpr wstring_view device_type_name(std::uint8_t type) noexcept
{
    return device_type_names_by_code[type];
}
