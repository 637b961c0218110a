// The "Corvane Device Parameters Changed" event: a unit's parameter records before and after.
#pragma once

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void device_parameters_changed_xml(payload_cursor& in, output::xml& out);
render::colour device_parameters_changed_text(payload_cursor& in, output::text& out);
