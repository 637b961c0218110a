// Network inventory events: units and network IDs coming and going, network-wide commands.
#pragma once

#include "core/xml_writer.h"
#include "core/payload_cursor.h"
#include "events/colours.h"

void unit_destroy_xml(payload_cursor& in, output::xml& out);
render::colour unit_destroy_text(payload_cursor& in, output::text& out);
void unit_membership_xml(payload_cursor& in, output::xml& out);
render::colour unit_inserted_text(payload_cursor& in, output::text& out);
render::colour unit_removed_text(payload_cursor& in, output::text& out);
void unit_removed_v32_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour unit_removed_v32_text(payload_cursor& in, output::text& out);
void unit_declared_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour unit_declared_text(payload_cursor& in, output::text& out);
void unit_inserted_v32_xml(payload_cursor& in, output::verbatim_xml& out);
render::colour unit_inserted_v32_text(payload_cursor& in, output::text& out);

// The network-wide notices (a network ID added or removed, a global
// re-initialize, a network scan) differ only in their wording: each is a row,
// and one pair of bodies renders every row.
struct network_notice;
extern const network_notice network_id_inserted_notice;
extern const network_notice network_id_removed_notice;
extern const network_notice global_reinitialize_notice;
extern const network_notice scan_network_notice;

template <const network_notice& Notice>
struct network_notice_renderers {
    static void xml(payload_cursor& in, output::verbatim_xml& out);
    static render::colour text(payload_cursor& in, output::text& out);
};
