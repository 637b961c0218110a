// Command result events: what became of a command sent to a unit or a subnet.
#pragma once

#include "core/event_output.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void unit_registration_xml(payload_cursor& in, ui::event::xml_output& out);
render::colour unit_registration_text(payload_cursor& in, ui::event::text_output& out);
render::colour multicast_port_failure_text(payload_cursor& in, ui::event::text_output& out);
void unit_reset_xml(payload_cursor& in, ui::event::verbatim_xml_output& out);
render::colour unit_reset_text(payload_cursor& in, ui::event::text_output& out);
void subnet_reset_xml(payload_cursor& in, ui::event::verbatim_xml_output& out);
render::colour subnet_reset_text(payload_cursor& in, ui::event::text_output& out);
void save_to_flash_xml(payload_cursor& in, ui::event::verbatim_xml_output& out);
render::colour save_to_flash_text(payload_cursor& in, ui::event::text_output& out);
void force_registration_xml(payload_cursor& in, ui::event::verbatim_xml_output& out);
render::colour force_registration_text(payload_cursor& in, ui::event::text_output& out);
