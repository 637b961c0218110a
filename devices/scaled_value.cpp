#include "devices/scaled_value.h"

#include "core/errors.h"

const UnitEntry& unit_row(std::span<const UnitEntry> units, decimal_value value)
{
    if (units.empty())
        throw not_expected();
    if (units.size() == 1)
        return units[0];
    const unsigned digits = value.whole_digits();
    std::size_t chosen = 0;
    for (std::size_t i = 1; i < units.size() && units[i].exponent < digits; ++i)
        chosen = i;
    return units[chosen];
}

unit_amount in_unit(const scaled_value& scaled)
{
    const UnitEntry& unit = unit_row(scaled.units, scaled.value);
    return {scaled.value.divided_by_ten_to(unit.exponent), unit};
}

scaled_text text_of(const scaled_value& scaled)
{
    // The unit at the end, the blank, and the number made in place before it.
    const unit_amount converted = in_unit(scaled);
    scaled_text text;
    text.prepend(wstring_view(converted.unit.wide));
    text.prepend(wchar(' '));
    text.first = static_cast<std::size_t>(converted.amount.digits_before(text.units + text.first) - text.units);
    return text;
}
