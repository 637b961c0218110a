// Network inventory events: units and network IDs coming and going, network-wide commands.
#pragma once

#include "core/renderer.h"

void unit_destroy_xml(payload_cursor& in, ui::event::xml_output& out);
render::colour unit_destroy_text(payload_cursor& in, ui::event::text_output& out);
void unit_membership_xml(payload_cursor& in, ui::event::xml_output& out);
render::colour unit_inserted_text(payload_cursor& in, ui::event::text_output& out);
render::colour unit_removed_text(payload_cursor& in, ui::event::text_output& out);
void unit_removed_v32_xml(payload_cursor& in, ui::event::text_output& out);
render::colour unit_removed_v32_text(payload_cursor& in, ui::event::text_output& out);
void unit_declared_xml(payload_cursor& in, ui::event::text_output& out);
render::colour unit_declared_text(payload_cursor& in, ui::event::text_output& out);
void unit_inserted_v32_xml(payload_cursor& in, ui::event::text_output& out);
render::colour unit_inserted_v32_text(payload_cursor& in, ui::event::text_output& out);
void network_id_inserted_xml(payload_cursor& in, ui::event::text_output& out);
render::colour network_id_inserted_text(payload_cursor& in, ui::event::text_output& out);
void network_id_removed_xml(payload_cursor& in, ui::event::text_output& out);
render::colour network_id_removed_text(payload_cursor& in, ui::event::text_output& out);
void global_reinitialize_xml(payload_cursor& in, ui::event::text_output& out);
render::colour global_reinitialize_text(payload_cursor& in, ui::event::text_output& out);
void scan_network_xml(payload_cursor& in, ui::event::text_output& out);
render::colour scan_network_text(payload_cursor& in, ui::event::text_output& out);
