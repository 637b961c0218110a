// Walking an old and a new family A record side by side: one change item per
// field that either copy marks present, in record order.
#pragma once

#include "core/event_output.h"
#include "core/payload_cursor.h"
#include "devices/family_a_fields.h"

namespace family_a {

// The record a selection names: one section of one layout.
struct record_kind {
    layout which;
    section part;
};

// `in` stands at the old copy, which the new copy follows. `first` is the
// first-item flag of the rendering.
void write_changes(payload_cursor& in, ui::event::text_output& out, record_kind record, bool& first);
void write_changes(payload_cursor& in, ui::event::xml_output& out, record_kind record, bool& first);

} // namespace family_a
