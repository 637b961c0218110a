#include "events/inventory_events.h"

#include "core/text_format.h"
#include "events/event_text.h"

namespace {

using render::colours::inventory;

// "[fcn1l-10.0.0.1] ", the opening of the console's inventory sentences.
template <text_sink Out>
void write_bracketed(Out& out, designation unit)
{
    out << "["_w << unit << "] "_w;
}

// --- Units joining or leaving the network (5-byte payloads) -----------------

render::colour write_membership_text(payload_cursor& in, output::text& out, wstring_view change)
{
    const designation unit = read_designation(in);
    out << "The node '"_w << unit << "' was "_w << change << " the network."_w;
    return inventory;
}

// --- Units moved between networks: network ID, then the unit ----------------

struct unit_move {
    std::uint8_t network;
    designation unit;
};

unit_move read_unit_move(payload_cursor& in)
{
    const std::uint8_t network = in.read_u8();
    return {network, read_designation(in)};
}

// The two XML forms differ in their comment and in how far their lines are
// indented.
struct unit_move_form {
    wstring_view comment;
    wstring_view indent;
};

// Deliberate: three tabs when removed, one when inserted.
constexpr unit_move_form unit_removed_form{"<!-- Unit Removed -->\n"_w, "\t\t\t"_w};
constexpr unit_move_form unit_inserted_form{"<!-- Unit Inserted -->\n"_w, "\t"_w};

void write_unit_move_xml(payload_cursor& in, output::verbatim_xml& out, const unit_move_form& form)
{
    out << form.comment;
    const unit_move move = read_unit_move(in);
    out << form.indent << "<node>"_w << move.unit << "</node>\n"_w;
    out << form.indent << "<transponder>"_w << decimal(move.network) << "</transponder>\n"_w;
}

}   // namespace

void unit_destroy_xml(payload_cursor& in, output::xml& out)
{
    out.element_line("node"_tag, read_designation(in));
    out.element_line("result"_tag, in.read_wstring().view());
}

render::colour unit_destroy_text(payload_cursor& in, output::text& out)
{
    write_bracketed(out, read_designation(in));
    out << "removal requested from Orrin console"_w;
    write_if_any(out, ": "_w, in.read_wstring());
    return inventory;
}

void unit_membership_xml(payload_cursor& in, output::xml& out)
{
    // Character data of whatever element the host has open around it.
    out << read_designation(in);
}

render::colour unit_inserted_text(payload_cursor& in, output::text& out)
{
    return write_membership_text(in, out, "inserted into"_w);
}

render::colour unit_removed_text(payload_cursor& in, output::text& out)
{
    return write_membership_text(in, out, "removed from"_w);
}

void unit_removed_v32_xml(payload_cursor& in, output::verbatim_xml& out)
{
    write_unit_move_xml(in, out, unit_removed_form);
}

render::colour unit_removed_v32_text(payload_cursor& in, output::text& out)
{
    const unit_move move = read_unit_move(in);
    write_bracketed(out, move.unit);
    out << "removed from Network "_w << decimal(move.network);
    return inventory;
}

void unit_declared_xml(payload_cursor& in, output::verbatim_xml& out)
{
    // Deliberate: the doubled blank before "-->".
    out << "<!-- Declare Modem  -->\n"_w;
    const designation unit = read_designation(in);
    out << "\t<type>"_w << device_type_name(unit.type) << "</type>\n"_w;
    out << "\t<address>"_w << dotted_ipv4{unit.address} << "</address>\n"_w;
    write_result_element_if_any(out, in.read_wstring());
}

render::colour unit_declared_text(payload_cursor& in, output::text& out)
{
    const designation unit = read_designation(in);
    out << "New unit ["_w << unit << "] declared from Orrin console"_w;
    // Deliberate: no blank after the colon.
    write_if_any(out, ":"_w, in.read_wstring());
    return inventory;
}

void unit_inserted_v32_xml(payload_cursor& in, output::verbatim_xml& out)
{
    write_unit_move_xml(in, out, unit_inserted_form);
}

render::colour unit_inserted_v32_text(payload_cursor& in, output::text& out)
{
    const unit_move move = read_unit_move(in);
    write_bracketed(out, move.unit);
    out << "created in "_w;
    // Network 0 is the pool of units that no network has registered yet.
    if (move.network == 0)
        out << "Unregistered Modems"_w;
    else
        out << "Network "_w << decimal(move.network);
    return inventory;
}

// --- Network-wide notices: a sentence and an optional result text -----------

struct network_notice {
    wstring_view sentence;
    render::colour colour;
    wstring_view comment;
    bool namesNetwork;   // the payload starts with a network ID
    wstring_view networkIndent;
};

// Deliberate, in every row: the doubled blank before "-->"; "from" missing in
// the removal comment; one tab before <Network ID> when added, two when removed.
constexpr network_notice network_id_inserted_notice{
    "Network ID added to Orrin"_w, inventory, "<!-- New Network ID added to Orrin registry  -->\n"_w, true, "\t"_w};
constexpr network_notice network_id_removed_notice{"Network ID removed from Orrin"_w, inventory,
                                                   "<!-- New Network ID removed Orrin registry  -->\n"_w, true,
                                                   "\t\t"_w};
constexpr network_notice global_reinitialize_notice{"Global Re-Initialize command sent to network"_w,
                                                    render::colours::command, "<!-- Global Re-initialize  -->\n"_w,
                                                    false, ""_w};
constexpr network_notice scan_network_notice{"Scan Network command sent to network"_w, render::colours::command,
                                             "<!-- Scan Network  -->\n"_w, false, ""_w};

template <const network_notice& Notice>
void network_notice_renderers<Notice>::xml(payload_cursor& in, output::verbatim_xml& out)
{
    out << Notice.comment;
    if (Notice.namesNetwork) {
        const std::uint8_t network = in.read_u8();
        // Deliberate: the element name holds a blank.
        out << Notice.networkIndent << "<Network ID>"_w << decimal(network) << "</Network ID>\n"_w;
    }
    write_result_element_if_any(out, in.read_wstring());
}

template <const network_notice& Notice>
render::colour network_notice_renderers<Notice>::text(payload_cursor& in, output::text& out)
{
    // The sentence does not name the network; only the XML form shows it.
    if (Notice.namesNetwork)
        in.read_u8();
    out << Notice.sentence;
    write_if_any(out, ": "_w, in.read_wstring());
    return Notice.colour;
}

template struct network_notice_renderers<network_id_inserted_notice>;
template struct network_notice_renderers<network_id_removed_notice>;
template struct network_notice_renderers<global_reinitialize_notice>;
template struct network_notice_renderers<scan_network_notice>;
