// Device type codes and their keys.
//
// Every event that names a unit carries its type as one byte. The key is both
// what the operator reads and the type word of a "kor:" display name, so keys
// stay lower case and no two rows share a code or a key.
#pragma once

#include <cstdint>
#include <iterator>

#include "core/option_entry.h"

namespace device_types {

// The codes by name, as the type byte of an event carries them.
enum code : std::uint8_t {
    none = 0,
    fcn1l = 52,
    fcn1i = 53,
    fcn2l = 180,
    fcn2i = 181,
    fcn3i = 54,
    fcn3l = 55,
    fcn4i = 57,
    fcn4l = 56,
    fcn1al = 88,
    fcn3al = 94,
    osprey = 58,
    hrn1 = 59,
    hrn2 = 89,
    hrn3 = 60,
    hrn4 = 91,
    hrn0 = 61,
    kt1 = 97,
    kts = 99,
    ktm = 100,
    kt4 = 102,
    kt8 = 103,
    kt16 = 104,
    kt32 = 105,
    kt64 = 106,
    kt_pro = 109,
    kt_plus = 118,
    kt_mini = 120,
    gull = 128,
};

} // namespace device_types

// Rows stand in the order the management server has always listed them;
// lookup takes the first match, so the order is kept as it is.
inline constexpr OptionEntry DeviceTypeKeys[] = {
    OPTION("none", device_types::none),
    OPTION("fcn1l", device_types::fcn1l),
    OPTION("fcn1i", device_types::fcn1i),
    OPTION("fcn2l", device_types::fcn2l),
    OPTION("fcn2i", device_types::fcn2i),
    OPTION("fcn3i", device_types::fcn3i),
    OPTION("fcn3l", device_types::fcn3l),
    OPTION("fcn4i", device_types::fcn4i),
    OPTION("fcn4l", device_types::fcn4l),
    OPTION("fcn1al", device_types::fcn1al),
    OPTION("fcn3al", device_types::fcn3al),
    OPTION("osprey", device_types::osprey),
    OPTION("hrn1", device_types::hrn1),
    OPTION("hrn2", device_types::hrn2),
    OPTION("hrn3", device_types::hrn3),
    OPTION("hrn4", device_types::hrn4),
    OPTION("hrn0", device_types::hrn0),
    OPTION("kt1", device_types::kt1),
    OPTION("kts", device_types::kts),
    OPTION("ktm", device_types::ktm),
    OPTION("kt4", device_types::kt4),
    OPTION("kt8", device_types::kt8),
    OPTION("kt16", device_types::kt16),
    OPTION("kt32", device_types::kt32),
    OPTION("kt64", device_types::kt64),
    OPTION("kt-pro", device_types::kt_pro),
    OPTION("kt-plus", device_types::kt_plus),
    OPTION("kt-mini", device_types::kt_mini),
    OPTION("gull", device_types::gull),
};
static_assert(std::size(DeviceTypeKeys) == 29, "one row per known device type");
static_assert(values_unique(DeviceTypeKeys), "one row per code");
static_assert(texts_unique_lower_case(DeviceTypeKeys), "keys are display-name type words");

// The key of an event's device type byte, or "(invalid)" for a code we do not know.
constexpr wstring_view device_type_name(std::uint8_t type) noexcept
{
    return lookup_option(DeviceTypeKeys, type);
}
