#include "events/command_events.h"

#include "core/text_format.h"

void unit_registration_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour unit_registration_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour multicast_port_failure_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_reset_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour unit_reset_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void subnet_reset_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour subnet_reset_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void save_to_flash_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour save_to_flash_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void force_registration_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour force_registration_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}
