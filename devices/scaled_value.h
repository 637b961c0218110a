// Scaled quantities: a decimal value shown in the unit of its size, chosen
// from the field's unit table ("70 MHz" rather than "70000000 Hz").
#pragma once

#include <span>

#include "devices/decimal_value.h"
#include "devices/unit_entry.h"

// The row a value is shown in: the last row, walking up from the first, whose
// multiplier the value's magnitude reaches. Zero and anything below the
// second row's multiplier take the first row. An empty table is a defect of
// the caller and is refused.
const UnitEntry& unit_row(std::span<const UnitEntry> units, decimal_value value);

// A value and the unit table it is shown with.
struct scaled_value {
    decimal_value value;
    std::span<const UnitEntry> units;
};

// The value converted into its unit row: the decimal point moved by the unit's
// power of ten (decimal_value::divided_by_ten_to).
struct unit_amount {
    decimal_value amount;
    const UnitEntry& unit;
};

unit_amount in_unit(const scaled_value& scaled);

// The number, one blank, the unit: "70 MHz", "-12.5 dBm", "0 Hz".
using scaled_text = short_text<decimal_value::max_digits + 1 + max_unit_length>;
scaled_text text_of(const scaled_value& scaled);

template <text_sink Out>
Out& operator<<(Out& out, const scaled_value& scaled)
{
    return out << text_of(scaled);
}
