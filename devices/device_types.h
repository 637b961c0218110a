// Device type codes and their keys.
//
// Every event that names a unit carries its type as one byte. The key is both
// what the operator reads and the type word of a "kor:" display name, so keys
// stay lower case and no two rows share a code or a key.
#pragma once

#include <cstdint>
#include <iterator>

#include "devices/option_entry.h"

// Rows stand in the order the management server has always listed them;
// lookup takes the first match, so the order is kept as it is.
inline constexpr OptionEntry DeviceTypeKeys[] = {
    OPTION("none", 0),
    OPTION("fcn1l", 52),
    OPTION("fcn1i", 53),
    OPTION("fcn2l", 180),
    OPTION("fcn2i", 181),
    OPTION("fcn3i", 54),
    OPTION("fcn3l", 55),
    OPTION("fcn4i", 57),
    OPTION("fcn4l", 56),
    OPTION("fcn1al", 88),
    OPTION("fcn3al", 94),
    OPTION("osprey", 58),
    OPTION("hrn1", 59),
    OPTION("hrn2", 89),
    OPTION("hrn3", 60),
    OPTION("hrn4", 91),
    OPTION("hrn0", 61),
    OPTION("kt1", 97),
    OPTION("kts", 99),
    OPTION("ktm", 100),
    OPTION("kt4", 102),
    OPTION("kt8", 103),
    OPTION("kt16", 104),
    OPTION("kt32", 105),
    OPTION("kt64", 106),
    OPTION("kt-pro", 109),
    OPTION("kt-plus", 118),
    OPTION("kt-mini", 120),
    OPTION("gull", 128),
};
static_assert(std::size(DeviceTypeKeys) == 29, "one row per known device type");

// The key of an event's device type byte, or "(invalid)" for a code we do not know.
constexpr const wchar* device_type_name(std::uint8_t type) noexcept
{
    return lookup_option(DeviceTypeKeys, type);
}
