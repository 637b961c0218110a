// Alarm events: alarm status, unit status and unit alarm state changes.
#pragma once

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void alarm_status_changed_xml(payload_cursor& in, output::xml& out);
render::colour alarm_status_changed_text(payload_cursor& in, output::text& out);
void unit_status_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour unit_status_text(payload_cursor& in, output::text& out);
void unit_alarm_state_changed_xml(payload_cursor& in, output::xml& out);
render::colour unit_alarm_state_changed_text(payload_cursor& in, output::text& out);
