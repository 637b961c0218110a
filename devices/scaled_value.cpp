#include "devices/scaled_value.h"

#include "core/errors.h"

const UnitEntry& unit_row(std::span<const UnitEntry> units, decimal_value value)
{
    if (units.empty())
        throw not_expected();
    // The rows' multipliers are whole numbers, so comparing them with the
    // integer part of the magnitude decides exactly as the full value would.
    const std::uint64_t whole = value.whole_magnitude();
    std::size_t chosen = 0;
    for (std::size_t i = 1; i < units.size() && units[i].multiplier <= whole; ++i)
        chosen = i;
    return units[chosen];
}

unit_amount in_unit(const scaled_value& scaled)
{
    const UnitEntry& unit = unit_row(scaled.units, scaled.value);
    return {scaled.value.divided_by(unit.multiplier), unit};
}
