// Value-text tables: one row names one coded value of a field.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

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

inline constexpr wstring_view invalid_option_text = "(invalid)"_w;

// The row's text, its length known.
constexpr wstring_view option_text(const OptionEntry& row) noexcept
{
    return {row.wide, row.size - 1};
}

// First row whose value matches, compared at the width of the field shown;
// "(invalid)" when no row does.
template <class Value>
constexpr wstring_view lookup_option(std::span<const OptionEntry> table, Value value) noexcept
{
    for (const OptionEntry& row : table)
        if (static_cast<Value>(row.value) == value)
            return option_text(row);
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

// Checks of constant tables, for static_assert next to each table.

// No row is shadowed by an earlier one with the same value: lookup takes the
// first match.
consteval bool values_unique(std::span<const OptionEntry> table)
{
    for (std::size_t i = 0; i < table.size(); ++i)
        for (std::size_t j = i + 1; j < table.size(); ++j)
            if (table[i].value == table[j].value)
                return false;
    return true;
}

// Row i holds value i: for tables that are also indexed by position.
consteval bool values_are_positions(std::span<const OptionEntry> table)
{
    for (std::size_t i = 0; i < table.size(); ++i)
        if (table[i].value != i)
            return false;
    return true;
}

// Texts differ from row to row and contain no upper-case letter.
consteval bool texts_unique_lower_case(std::span<const OptionEntry> table)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::string_view text = table[i].narrow;
        for (char ch : text)
            if (ch >= 'A' && ch <= 'Z')
                return false;
        for (std::size_t j = i + 1; j < table.size(); ++j)
            if (text == table[j].narrow)
                return false;
    }
    return true;
}

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
