// Unit rows for scaling a value: the unit's text and the power of ten of base
// units it stands for.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "core/powers_of_ten.h"
#include "core/wide.h"

struct UnitEntry {
    const char* narrow;
    const wchar* wide;
    unsigned exponent;   // the unit is 10^exponent base units
};

// Every unit is a power of ten of its table's base unit, so bringing a value
// into its unit only moves the decimal point. A row is written with its
// multiplier; one that is not a power of ten does not compile.
consteval unsigned exponent_of(std::uint64_t multiplier)
{
    for (unsigned exponent = 0; exponent < tens::power.size(); ++exponent)
        if (tens::power[exponent] == multiplier)
            return exponent;
    throw "a unit's multiplier is a power of ten";
}

#define UNIT(text, multiplier) (UnitEntry{text, text##_w.data(), exponent_of(multiplier)})

// A unit's text is short: a scaled value is made on the stack with room for
// this many units after its number.
inline constexpr std::size_t max_unit_length = 8;

consteval bool short_units(std::span<const UnitEntry> table)
{
    for (const UnitEntry& unit : table)
        if (std::char_traits<char>::length(unit.narrow) > max_unit_length)
            return false;
    return true;
}

// Unit rows go from the base unit (multiplier 1) upward.
consteval bool rising_from_one(std::span<const UnitEntry> table)
{
    if (table.empty() || table.front().exponent != 0)
        return false;
    for (std::size_t i = 1; i < table.size(); ++i)
        if (table[i].exponent <= table[i - 1].exponent)
            return false;
    return true;
}
