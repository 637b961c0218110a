#include "devices/data_changed_events.h"

#include "core/text_format.h"

render::colour properties_modified(payload_cursor&, ui::event::text_output& out)
{
    out << "Properties were modified.";
    return render::colours::inventory;
}

void falcon_data_changed(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

void osprey_data_changed(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

void osprey_data_changed_v2(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

void heron_unit_data_changed(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}

void heron_device_data_changed(payload_cursor&, ui::event::xml_output&)
{
    throw not_implemented();
}
