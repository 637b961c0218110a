// The value-to-text vocabulary: one row names one coded value, and every
// table that maps a value to a text (and perhaps more) is looked up the same
// way, by the row's `value` member.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/wide.h"

// The common row: a coded value and its text, narrow and wide.
struct OptionEntry {
    const char* narrow;
    const wchar* wide;
    std::uint32_t size;   // characters of the text, terminating NUL included
    std::uint32_t value;
};

// One row from a single literal, so the narrow and wide texts cannot drift.
#define OPTION(text, value) (OptionEntry{text, text##_w.data(), sizeof(text), (value)})

// The row's text, its length known.
constexpr wstring_view option_text(const OptionEntry& row) noexcept
{
    return {row.wide, row.size - 1};
}

constexpr std::string_view option_narrow(const OptionEntry& row) noexcept
{
    return {row.narrow, row.size - 1};
}

// --- Lookups, named by what a miss gives ------------------------------------

// The first row whose value matches, compared at the width of the value
// given; none (null) on a miss.
template <class Row, class Value>
constexpr const Row* find_row(std::span<const Row> table, Value value) noexcept
{
    for (const Row& row : table)
        if (static_cast<Value>(row.value) == value)
            return &row;
    return nullptr;
}

template <class Row, std::size_t N, class Value>
constexpr const Row* find_row(const Row (&table)[N], Value value) noexcept
{
    return find_row(std::span<const Row>(table), value);
}

// The first matching row, or `fallback` on a miss.
template <class Row, class Value>
constexpr const Row& row_or(std::span<const Row> table, Value value, const Row& fallback) noexcept
{
    const Row* row = find_row(table, value);
    return row ? *row : fallback;
}

template <class Row, std::size_t N, class Value>
constexpr const Row& row_or(const Row (&table)[N], Value value, const Row& fallback) noexcept
{
    return row_or(std::span<const Row>(table), value, fallback);
}

inline constexpr wstring_view invalid_option_text = "(invalid)"_w;

// The option lookup: the text of the first matching row, "(invalid)" on a
// miss.
template <class Value>
constexpr wstring_view lookup_option(std::span<const OptionEntry> table, Value value) noexcept
{
    const OptionEntry* row = find_row(table, value);
    return row ? option_text(*row) : invalid_option_text;
}

// --- Checks of constant tables, for static_assert next to each table --------

// No row is shadowed by an earlier one with the same value: lookups take the
// first match.
template <class Row>
consteval bool values_unique(std::span<const Row> table)
{
    for (std::size_t i = 0; i < table.size(); ++i)
        for (std::size_t j = i + 1; j < table.size(); ++j)
            if (table[i].value == table[j].value)
                return false;
    return true;
}

template <class Row, std::size_t N>
consteval bool values_unique(const Row (&table)[N])
{
    return values_unique(std::span<const Row>(table));
}

// Row i holds value i: for tables that are also indexed by position.
template <class Row>
consteval bool values_are_positions(std::span<const Row> table)
{
    for (std::size_t i = 0; i < table.size(); ++i)
        if (table[i].value != i)
            return false;
    return true;
}

template <class Row, std::size_t N>
consteval bool values_are_positions(const Row (&table)[N])
{
    return values_are_positions(std::span<const Row>(table));
}

// Row i belongs to enumerator i, and the last row to `last`: for tables of
// behaviour indexed by an enumeration through the rows' `key`.
template <class Row, std::size_t N, class Enum>
consteval bool one_row_per_enumerator(const Row (&table)[N], Enum Row::*key, Enum last)
{
    for (std::size_t i = 0; i < N; ++i)
        if (table[i].*key != static_cast<Enum>(i))
            return false;
    return N == static_cast<std::size_t>(last) + 1;
}

// Texts differ from row to row and contain no upper-case letter.
consteval bool texts_unique_lower_case(std::span<const OptionEntry> table)
{
    for (std::size_t i = 0; i < table.size(); ++i) {
        const std::string_view text = option_narrow(table[i]);
        for (char ch : text)
            if (ch >= 'A' && ch <= 'Z')
                return false;
        for (std::size_t j = i + 1; j < table.size(); ++j)
            if (text == option_narrow(table[j]))
                return false;
    }
    return true;
}
