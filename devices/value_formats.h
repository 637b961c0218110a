// How the value of one parameter-record field is shown: one function object
// per kind of value, whose `shown(value)` the change items write (a short
// text made on the stack, or a view of a table's or the payload's text).
#pragma once

#include <concepts>
#include <cstdint>
#include <span>

#include "core/text_format.h"
#include "devices/decimal_value.h"
#include "devices/field_scales.h"
#include "core/option_entry.h"
#include "devices/scaled_value.h"
#include "devices/time_stamp.h"

namespace formats {

// A coded value through its value-text table; "(invalid)" for a code the
// table does not know.
struct option {
    std::span<const OptionEntry> table;

    template <std::integral Value>
    wstring_view shown(Value value) const
    {
        return lookup_option(table, value);
    }
};

// Plain decimal digits, "-" when negative, "0" for zero.
struct integer {
    template <std::integral Value>
    auto shown(Value value) const noexcept
    {
        return text_of(decimal(value));
    }
};

// The unit's Ethernet address as the units report it: the whole 64-bit word
// (low 32-bit word first on the wire) in decimal, not as hexadecimal bytes.
using mac_address = integer;

// The unit's temperature: a signed byte of whole degrees Celsius, in decimal
// without a unit ("-5" for 0xFB).
struct temperature {
    auto shown(std::uint8_t value) const noexcept { return text_of(decimal(static_cast<std::int8_t>(value))); }
};

// A raw field of 32 bits at most, read as the scale says and shown in the
// unit of its size.
struct scaled {
    field_scale scale;

    template <std::integral Value>
    requires(sizeof(Value) <= 4) scaled_text shown(Value raw)
    const { return text_of(scaled_value{decimal_value::from(raw, scale.places), scale.units}); }
};

// Seconds since 1970 in UTC: "2024-03-01 12:00:00".
struct time_stamp {
    utc_time::text shown(std::uint32_t seconds) const noexcept { return text_of(utc_time{seconds}); }
};

// IPv4 addresses and masks, most significant byte first: "10.0.0.1".
struct address {
    auto shown(std::uint32_t value) const noexcept { return text_of(dotted_ipv4{value}); }
};

// Text fields (model numbers, versions, circuit names) as they stand.
struct text {
    wstring_view shown(wstring_view value) const noexcept { return value; }
};

}   // namespace formats
