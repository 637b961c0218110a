// Device data-changed events: the change sets of a unit's stored settings.
#pragma once

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

render::colour properties_modified(payload_cursor& in, output::text& out);
void falcon_data_changed(payload_cursor& in, output::xml& out);
void osprey_data_changed(payload_cursor& in, output::xml& out);
void osprey_data_changed_v2(payload_cursor& in, output::xml& out);
void heron_unit_data_changed(payload_cursor& in, output::xml& out);
void heron_device_data_changed(payload_cursor& in, output::xml& out);
