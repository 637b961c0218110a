// The "Corvane Device Parameters Changed" event: a unit's parameter records before and after.
#pragma once

#include "core/event_output.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void device_parameters_changed_xml(payload_cursor& in, ui::event::xml_output& out);
render::colour device_parameters_changed_text(payload_cursor& in, ui::event::text_output& out);
