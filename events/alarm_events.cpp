#include "events/alarm_events.h"

#include "core/text_format.h"

void alarm_status_changed_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour alarm_status_changed_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_status_xml(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

render::colour unit_status_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}

void unit_alarm_state_changed_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour unit_alarm_state_changed_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}
