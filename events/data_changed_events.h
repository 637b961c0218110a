// Device data-changed events: the change sets of a unit's stored settings.
#pragma once

#include "core/event_output.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

render::colour properties_modified(payload_cursor& in, ui::event::text_output& out);
void falcon_data_changed(payload_cursor& in, ui::event::xml_output& out);
void osprey_data_changed(payload_cursor& in, ui::event::xml_output& out);
void osprey_data_changed_v2(payload_cursor& in, ui::event::xml_output& out);
void heron_unit_data_changed(payload_cursor& in, ui::event::xml_output& out);
void heron_device_data_changed(payload_cursor& in, ui::event::xml_output& out);
