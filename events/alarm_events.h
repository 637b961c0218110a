// Alarm events: alarm status, unit status and unit alarm state changes.
#pragma once

#include "core/event_output.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void alarm_status_changed_xml(payload_cursor& in, ui::event::xml_output& out);
render::colour alarm_status_changed_text(payload_cursor& in, ui::event::text_output& out);
void unit_status_xml(payload_cursor& in, ui::event::verbatim_xml_output& out);
render::colour unit_status_text(payload_cursor& in, ui::event::text_output& out);
void unit_alarm_state_changed_xml(payload_cursor& in, ui::event::xml_output& out);
render::colour unit_alarm_state_changed_text(payload_cursor& in, ui::event::text_output& out);
