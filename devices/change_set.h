// Change sets: what the data-changed events carry. A mask says which sections
// of the event's list changed; each changed section follows in bit order with
// its old and new value, in the body layout of its kind.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/xml_writer.h"
#include "core/payload_cursor.h"

namespace change_sets {

// How a section's old and new value lie in the payload.
enum class body : std::uint8_t {
    wide_text,   // i16 count, then that many UTF-16 units; 0 or less is empty
    byte,   // u8, in decimal
    unsigned32,   // u32, in decimal
    signed32,   // i32, in decimal
    ipv4,   // u32, dotted, most significant byte first
    routes_a,   // route list of layout A (no old and new value: see routes.h)
    routes_b,   // route list of layout B
};

struct section {
    wide_literal::text field;   // the `field` attribute, as the event spells it
    body kind;
};

// The two elements of a changed value, each on its line: the old value,
// then the new, both read just before they are written.
inline constexpr std::array<const output::element_name*, 2> old_and_new{&"old-value"_tag, &"new-value"_tag};

struct change_set {
    std::size_t maskBytes;   // 1 or 2
    std::span<const section> sections;
};

// Reads the mask, then writes a `changed` element for every section whose bit
// is set, in bit order. Bits past the last section read nothing.
void write(payload_cursor& in, output::xml& out, const change_set& set);

}   // namespace change_sets
