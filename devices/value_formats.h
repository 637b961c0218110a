// How the value of one parameter-record field is written: one function
// object per kind of value, called as format(out, value) by the change items.
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

    template <text_sink Out, std::integral Value>
    void operator()(Out& out, Value value) const
    {
        out << lookup_option(table, value);
    }
};

// Plain decimal digits, "-" when negative, "0" for zero.
struct integer {
    template <text_sink Out, std::integral Value>
    void operator()(Out& out, Value value) const
    {
        out << decimal(value);
    }
};

// The unit's Ethernet address as the units report it: the whole 64-bit word
// (low 32-bit word first on the wire) in decimal, not as hexadecimal bytes.
using mac_address = integer;

// The unit's temperature: a signed byte of whole degrees Celsius, in decimal
// without a unit ("-5" for 0xFB).
struct temperature {
    template <text_sink Out>
    void operator()(Out& out, std::uint8_t value) const
    {
        out << decimal(static_cast<std::int8_t>(value));
    }
};

// A raw field of 32 bits at most, read as the scale says and shown in the
// unit of its size.
struct scaled {
    field_scale scale;

    template <text_sink Out, std::integral Value>
    requires(sizeof(Value) <= 4) void operator()(Out& out, Value raw) const
    {
        out << scaled_value{decimal_value::from(raw, scale.places), scale.units};
    }
};

// Seconds since 1970 in UTC: "2024-03-01 12:00:00".
struct time_stamp {
    template <text_sink Out>
    void operator()(Out& out, std::uint32_t seconds) const
    {
        out << utc_time{seconds};
    }
};

// IPv4 addresses and masks, most significant byte first: "10.0.0.1".
struct address {
    template <text_sink Out>
    void operator()(Out& out, std::uint32_t value) const
    {
        out << dotted_ipv4{value};
    }
};

// Text fields (model numbers, versions, circuit names) as they stand.
struct text {
    template <text_sink Out>
    void operator()(Out& out, wstring_view value) const
    {
        out << value;
    }
};

}   // namespace formats
