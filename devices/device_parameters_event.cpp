#include "devices/device_parameters_event.h"

#include "core/text_format.h"

void device_parameters_changed_xml(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

render::colour device_parameters_changed_text(payload_cursor&, ui::event::text_output&)
{
    throw not_implemented();
}
