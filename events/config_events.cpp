#include "events/config_events.h"

#include "core/text_format.h"

void corvane_unit_properties_saved_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour corvane_unit_properties_saved_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_properties_saved_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour unit_properties_saved_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void gull_properties_saved_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour gull_properties_saved_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void register_network_id_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour register_network_id_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void paramfile_write_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour paramfile_write_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void paramfile_autosave_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour paramfile_autosave_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_upgrade_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour unit_upgrade_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void multiple_unit_upgrade_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour multiple_unit_upgrade_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void heartbeat_toggled_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour heartbeat_toggled_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void home_state_timeout_changed_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour home_state_timeout_changed_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void manager_properties_saved_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour manager_properties_saved_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_properties_saved_v32_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour unit_properties_saved_v32_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void device_properties_saved_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour device_properties_saved_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void modem_flag_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour modem_flag_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour demodulator_failed_text(payload_cursor&, ui::event::text_output& out)
{
    out << "Device marked as unavailable due to switching error.";
    return render::colours::failure;
}
