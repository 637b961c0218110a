// Route tables in change sets: the routes removed, modified and added, in
// that order, each list a u16 count and its entries.
//
// A removed or added entry holds every field of its layout, in layout order,
// with no presence mask. A modified entry holds the route's key (network and
// mask, u32 each), a u16 mask of the fields that changed (bit k for field k of
// the layout), and the old and new value of each of them in bit order.
// Enumerations are one byte, addresses a u32.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "core/option_entry.h"

namespace routes {

inline constexpr OptionEntry switch_states[] = {
    OPTION("Disabled", 0),
    OPTION("Enabled", 1),
};

inline constexpr OptionEntry interfaces[] = {
    OPTION("Ethernet", 0),
    OPTION("Satellite", 1),
};

static_assert(values_unique(switch_states) && values_unique(interfaces));

// One field of a route: an address when `table` is empty, else an
// enumeration shown through `table`.
struct field {
    wide_literal::text name;
    std::span<const OptionEntry> table;
};

inline constexpr field layout_a[] = {
    {"Enabled"_w, switch_states}, {"Network"_w, {}}, {"Mask"_w, {}}, {"Gateway"_w, {}}, {"Interface"_w, interfaces},
};

inline constexpr field layout_b[] = {
    {"Enabled"_w, switch_states},
    {"Network"_w, {}},
    {"Mask"_w, {}},
    {"Gateway"_w, {}},
    {"Interface"_w, interfaces},
    {"HeaderComp"_w, switch_states},
    {"PayloadComp"_w, switch_states},
    {"Encrypt"_w, switch_states},
};

static_assert(std::size(layout_b) <= 16, "a modified route's field mask has 16 bits");

// Writes the three lists of a route table of the given layout.
void write_route_lists(payload_cursor& in, output::xml& out, std::span<const field> layout);

}   // namespace routes
