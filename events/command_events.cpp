#include "events/command_events.h"

#include "core/option_entry.h"
#include "core/text_format.h"
#include "core/utf16le.h"
#include "events/command_text.h"
#include "events/event_text.h"

namespace {

using render::colours::command;

constexpr OptionEntry registration_sources[] = {
    OPTION("system", 0),
    OPTION("unit", 1),
    OPTION("user", 2),
};
static_assert(values_are_positions(registration_sources));

wstring_view registration_source(std::uint8_t code) noexcept
{
    const OptionEntry* name = find_row(registration_sources, code);
    return name ? option_text(*name) : "unknown"_w;
}

// Unit and subnet resets word their type differently in each form; the
// blanks and tabs of each row are part of its output.
constexpr reset_wording unit_reset_sentence{" reset command "_w, "Unknown reset command ("_w, ") "_w};
constexpr reset_wording subnet_reset_sentence{" Reset"_w, "Unknown reset command ("_w, ")"_w};
constexpr reset_wording unit_reset_element{""_w, "Unknown("_w, ")"_w};
// Deliberate: the two tabs stand inside the element, before "Unknown(".
constexpr reset_wording subnet_reset_element{""_w, "\t\tUnknown("_w, ")"_w};

constexpr outcome_wording registration_outcome{"succeeded."_w, "failed: "_w, ""_w};
constexpr outcome_wording reset_outcome{"succeeded."_w, "failed with an error of '"_w, "'."_w};
// Only the subnet reset ends its success element with a line break.
// Deliberate: no line break after the success element of the unit reset.
constexpr outcome_wording unit_reset_result_element{"\t\t<result code='success'/>"_w, failed_result_element_open,
                                                    failed_result_element_close};
constexpr outcome_wording subnet_reset_result_element{"\t\t<result code='success'/>\n"_w, failed_result_element_open,
                                                      failed_result_element_close};

// Subnet address and mask, as "10.1.0.0:255.255.0.0" in the sentence and as
// two elements in XML.
struct subnet {
    std::uint32_t address;
    std::uint32_t mask;
};

subnet read_subnet(payload_cursor& in)
{
    const std::uint32_t address = in.read_u32();
    return {address, in.read_u32()};
}

}   // namespace

void unit_registration_xml(payload_cursor& in, output::xml& out)
{
    const wstring_view source = registration_source(in.read_u8());
    out.element_line("source"_tag, source);
    const auto result = read_command_result<&payload_cursor::read_string>(in);
    if (result.failed())
        out.element_line("result"_tag, result.error);
    else
        out.element_line("result"_tag, "succeeded"_w);
}

render::colour unit_registration_text(payload_cursor& in, output::text& out)
{
    const wstring_view source = registration_source(in.read_u8());
    out << "A "_w << source << " generated registration "_w;
    const auto result = read_command_result<&payload_cursor::read_string>(in);
    write_outcome(out, result, registration_outcome);
    return result.failed() ? render::colours::red : render::colours::green;
}

render::colour multicast_port_failure_text(payload_cursor& in, output::text& out)
{
    const std::uint16_t count = in.read_u16();
    out << "Multicast Port Failure: "_w;
    // The size rule of the event has already matched the count against the
    // payload, so the message may be as long as it says.
    write_utf16le(out, in.take(2 * std::size_t(count)));
    return render::colours::failure;
}

void unit_reset_xml(payload_cursor& in, output::verbatim_xml& out)
{
    const std::int32_t type = in.read_i32();
    // Deliberate: three tabs, one more than every other line of the fragment.
    out << "\t\t\t<reset-type>"_w << reset_type{type, unit_reset_element} << "</reset-type>\n"_w;
    write_blind_mode_element(out, read_blind_mode(in));
    write_outcome(out, read_command_result(in), unit_reset_result_element);
}

render::colour unit_reset_text(payload_cursor& in, output::text& out)
{
    // The type is a u32 that the sentence has always shown signed.
    out << reset_type{in.read_i32(), unit_reset_sentence};
    if (read_blind_mode(in))
        // Deliberate: both blanks stay, so the sentence holds two in a row ("command  in").
        out << " in blind mode "_w;
    write_outcome(out, read_command_result(in), reset_outcome);
    return command;
}

void subnet_reset_xml(payload_cursor& in, output::verbatim_xml& out)
{
    const std::uint8_t type = in.read_u8();
    out << "\t\t<reset-type>"_w << reset_type{type, subnet_reset_element} << "</reset-type>\n"_w;
    const subnet net = read_subnet(in);
    out << "\t\t<Address>"_w << dotted_ipv4{net.address} << "</Address>\n"_w;
    out << "\t\t<Mask>"_w << dotted_ipv4{net.mask} << "</Mask>\n"_w;
    write_outcome(out, read_command_result(in), subnet_reset_result_element);
}

render::colour subnet_reset_text(payload_cursor& in, output::text& out)
{
    out << reset_type{in.read_u8(), subnet_reset_sentence};
    const subnet net = read_subnet(in);
    out << " on subnet "_w << dotted_ipv4{net.address} << ":"_w << dotted_ipv4{net.mask} << " "_w;
    write_outcome(out, read_command_result(in), reset_outcome);
    return command;
}

void save_to_flash_xml(payload_cursor& in, output::verbatim_xml& out)
{
    out << "\t\t<!-- Save EEPROM -->\n"_w;
    write_blind_mode_element(out, read_blind_mode(in));
    const payload_text result = in.read_wstring();
    write_result_element(out, result.empty() ? "success"_w : result.view());
}

render::colour save_to_flash_text(payload_cursor& in, output::text& out)
{
    const bool blind = read_blind_mode(in);
    // The unit reports trouble only in the text that follows; the sentence
    // stands either way.
    out << "Unit's configuration successfully saved to flash."_w;
    if (blind)
        out << " in blind mode"_w;
    out << in.read_wstring();
    return command;
}

void force_registration_xml(payload_cursor& in, output::verbatim_xml& out)
{
    out << "\t\t<!-- Force Registration -->\n"_w;
    write_result_element_if_any(out, in.read_wstring(), "\t\t"_w);
}

render::colour force_registration_text(payload_cursor& in, output::text& out)
{
    out << "Force Registration"_w;
    const payload_text result = in.read_wstring();
    if (result.empty())
        out << " command sent"_w;
    else
        out << " failed: "_w << result;
    return command;
}
