// Command result events: what became of a command sent to a unit or a subnet.
#pragma once

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void unit_registration_xml(payload_cursor& in, output::xml& out);
render::colour unit_registration_text(payload_cursor& in, output::text& out);
render::colour multicast_port_failure_text(payload_cursor& in, output::text& out);
void unit_reset_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour unit_reset_text(payload_cursor& in, output::text& out);
void subnet_reset_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour subnet_reset_text(payload_cursor& in, output::text& out);
void save_to_flash_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour save_to_flash_text(payload_cursor& in, output::text& out);
void force_registration_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour force_registration_text(payload_cursor& in, output::text& out);
