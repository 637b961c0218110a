// Unit rows for scaling a value: the unit's text and how many base units it
// stands for.
#pragma once

#include <cstdint>
#include <span>

#include "core/wide.h"

struct UnitEntry {
    const char* narrow;
    const wchar* wide;
    std::uint64_t multiplier;
};

#define UNIT(text, multiplier) (UnitEntry{text, WSTR(text), (multiplier)})

// Unit rows go from the base unit (multiplier 1) upward.
consteval bool rising_from_one(std::span<const UnitEntry> table)
{
    if (table.empty() || table.front().multiplier != 1)
        return false;
    for (std::size_t i = 1; i < table.size(); ++i)
        if (table[i].multiplier <= table[i - 1].multiplier)
            return false;
    return true;
}
