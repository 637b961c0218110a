#include "events/inventory_events.h"

#include "core/text_format.h"

void unit_destroy_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour unit_destroy_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_membership_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour unit_inserted_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour unit_removed_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_removed_v32_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour unit_removed_v32_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_declared_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour unit_declared_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_inserted_v32_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour unit_inserted_v32_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void network_id_inserted_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour network_id_inserted_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void network_id_removed_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour network_id_removed_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void global_reinitialize_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour global_reinitialize_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void scan_network_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour scan_network_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}
