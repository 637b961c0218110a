// Value-text tables: one row names one coded value of a field.
#pragma once

#include <cstdint>
#include <span>

#include "core/wide.h"

struct OptionEntry {
    const char* narrow;
    const wchar* wide;
    std::uint32_t size;   // characters of the text, terminating NUL included
    std::uint32_t value;
};

struct UnitEntry {
    const char* narrow;
    const wchar* wide;
    std::uint64_t multiplier;
};

// One row from a single literal, so the narrow and wide texts cannot drift.
#define OPTION(text, value) OptionEntry{text, WSTR(text), sizeof(text), (value)}
#define UNIT(text, multiplier) UnitEntry{text, WSTR(text), (multiplier)}

inline constexpr const wchar* invalid_option_text = WSTR("(invalid)");

// First row whose value matches, compared at the width of the field shown;
// "(invalid)" when no row does.
template <class Value>
constexpr const wchar* lookup_option(std::span<const OptionEntry> table, Value value) noexcept
{
    for (const OptionEntry& row : table)
        if (static_cast<Value>(row.value) == value)
            return row.wide;
    return invalid_option_text;
}

// The row itself, or null: for callers that need more than the wide text.
template <class Value>
constexpr const OptionEntry* find_option(std::span<const OptionEntry> table, Value value) noexcept
{
    for (const OptionEntry& row : table)
        if (static_cast<Value>(row.value) == value)
            return &row;
    return nullptr;
}
