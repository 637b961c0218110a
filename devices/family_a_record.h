// Walking an old and a new family A record side by side: one change item per
// field that either copy marks present, in record order.
#pragma once

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "devices/change_item.h"
#include "devices/family_a_fields.h"

namespace family_a {

// The record a selection names: one section of one layout.
struct record_kind {
    layout which;
    section part;
};

// Adds one item to `list` for every field either copy marks present. `in`
// stands at the old copy, which the new copy follows.
void write_changes(payload_cursor& in, text_change_list& list, record_kind record);
void write_changes(payload_cursor& in, xml_change_list& list, record_kind record);

}   // namespace family_a
