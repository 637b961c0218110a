// Configuration events: properties saved, parameter files, upgrades and unit flags.
#pragma once

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void corvane_unit_properties_saved_xml(payload_cursor& in, output::xml& out);
render::colour corvane_unit_properties_saved_text(payload_cursor& in, output::text& out);
void unit_properties_saved_xml(payload_cursor& in, output::xml& out);
render::colour unit_properties_saved_text(payload_cursor& in, output::text& out);
void gull_properties_saved_xml(payload_cursor& in, output::xml& out);
render::colour gull_properties_saved_text(payload_cursor& in, output::text& out);
void register_network_id_xml(payload_cursor& in, output::xml& out);
render::colour register_network_id_text(payload_cursor& in, output::text& out);
void paramfile_write_xml(payload_cursor& in, output::xml& out);
render::colour paramfile_write_text(payload_cursor& in, output::text& out);
void paramfile_autosave_xml(payload_cursor& in, output::xml& out);
render::colour paramfile_autosave_text(payload_cursor& in, output::text& out);
void unit_upgrade_xml(payload_cursor& in, output::xml& out);
render::colour unit_upgrade_text(payload_cursor& in, output::text& out);
void multiple_unit_upgrade_xml(payload_cursor& in, output::xml& out);
render::colour multiple_unit_upgrade_text(payload_cursor& in, output::text& out);
void heartbeat_toggled_xml(payload_cursor& in, output::xml& out);
render::colour heartbeat_toggled_text(payload_cursor& in, output::text& out);
void home_state_timeout_changed_xml(payload_cursor& in, output::xml& out);
render::colour home_state_timeout_changed_text(payload_cursor& in, output::text& out);
void manager_properties_saved_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour manager_properties_saved_text(payload_cursor& in, output::text& out);
void unit_properties_saved_v32_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour unit_properties_saved_v32_text(payload_cursor& in, output::text& out);
void device_properties_saved_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour device_properties_saved_text(payload_cursor& in, output::text& out);
void modem_flag_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour modem_flag_text(payload_cursor& in, output::text& out);
render::colour demodulator_failed_text(payload_cursor& in, output::text& out);
