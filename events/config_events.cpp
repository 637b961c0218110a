#include "events/config_events.h"

#include <array>
#include <string_view>

#include "core/text_format.h"
#include "devices/decimal_value.h"
#include "devices/option_entry.h"
#include "events/command_text.h"
#include "events/event_text.h"

namespace {

using render::colour;
using namespace render::colours;
using ui::event::text_output;
using ui::event::xml_output;

// Each event's fields are read in full before anything is written, so a short
// payload leaves an empty buffer. Braced initialisers run left to right, so
// the readers below take the fields in payload order.

// --- Outcomes ---------------------------------------------------------------

// The newer events end in a result code and, after a failure, its error text.
using outcome = command_result<payload_text>;

outcome read_outcome(payload_cursor& in)
{
    return read_command_result(in);
}

// In text, ": " and the error text after a failure (even an empty one).
constexpr outcome_wording failure_tail{"", ": ", ""};

// Ends a sentence with its outcome and gives its colour: failures show in the
// failure colour, whatever the event.
colour end_with_outcome(text_output& out, const outcome& result, colour success)
{
    write_outcome(out, result, failure_tail);
    return result.failed() ? failure : success;
}

// The `Result` element of the XML stream forms: "Ok", or the error text.
void write_result_line(xml_output& out, const outcome& result)
{
    write_element_line(out, "Result", result.failed() ? result.error.view() : wstring_view(WSTR("Ok")));
}

// The upgrades' `Failure` element, only after a failure.
void write_failure_line(xml_output& out, const outcome& result)
{
    if (result.failed())
        write_element_line(out, "Failure", result.error.view());
}

// --- Unit property switches -------------------------------------------------

// The four switches of a unit's properties, in payload order, with the label
// of the text form and the element of the XML form.
struct property_switch {
    std::string_view label;
    std::string_view element;
};

constexpr std::array<property_switch, 4> unit_switches{{
    {"Front Panel Lock Out", "FrontPanelLockout"},
    {"Unlock Alarm Mask", "UnlockAlarmMask"},
    {"Enable Heartbeat", "EnableHeartbeat"},
    {"Auto Home State Timeout", "AutoHomeStateTimeout"},
}};

// Each switch is a u32 that counts only as zero or not zero.
std::array<bool, unit_switches.size()> read_unit_switches(payload_cursor& in)
{
    std::array<bool, unit_switches.size()> on{};
    for (bool& flag : on)
        flag = in.read_u32() != 0;
    return on;
}

// --- Upgrades ---------------------------------------------------------------

// The image sent to the units and the transfer rate, shown divided by 1000.
struct upgrade {
    payload_text image;
    decimal_value rate;

    static upgrade read(payload_cursor& in)
    {
        return {in.read_wstring(), decimal_value::from(in.read_u32()).divided_by(1000)};
    }

    // "<image>, <rate>", after the event's own lead-in.
    void write_text(text_output& out) const { out << image.view() << ", " << rate; }

    void write_xml(xml_output& out) const
    {
        write_element_line(out, "Image", image.view());
        write_element_line(out, "Rate", rate);
    }
};

// --- Carrier modes ----------------------------------------------------------

constexpr std::uint32_t carrier_mode_bits = 0xF0;

constexpr OptionEntry carrier_modes[] = {
    OPTION("None", 0x00),
    OPTION("SCPC", 0x10),
    OPTION("STDMA", 0x20),
};
static_assert(values_unique(carrier_modes));

struct device_properties {
    payload_text name;
    std::uint32_t carrier;   // already masked
    payload_text result;

    static device_properties read(payload_cursor& in)
    {
        return {in.read_wstring(), in.read_u32() & carrier_mode_bits, in.read_wstring()};
    }

    const OptionEntry* carrier_row() const noexcept { return find_option(carrier_modes, carrier); }
};

// --- Property records of the newer units ------------------------------------

struct unit_properties {
    std::uint32_t address;
    bool lockout;
    bool unlock_mask;
    bool heartbeat;
    std::int32_t home_state_timeout;   // seconds
    outcome result;

    static unit_properties read(payload_cursor& in)
    {
        return {in.read_u32(), in.read_u8() != 0, in.read_u8() != 0, in.read_u8() != 0, in.read_i32(),
                read_outcome(in)};
    }
};

struct gull_properties {
    std::uint32_t address;
    payload_text name;
    outcome result;

    static gull_properties read(payload_cursor& in)
    {
        return {in.read_u32(), in.read_wstring(), read_outcome(in)};
    }
};

// --- Timer settings ---------------------------------------------------------

struct heartbeat_change {
    bool enabled;
    std::int32_t timeout;    // milliseconds
    std::int32_t interval;   // milliseconds
    outcome result;

    static heartbeat_change read(payload_cursor& in)
    {
        return {in.read_u8() != 0, in.read_i32(), in.read_i32(), read_outcome(in)};
    }
};

struct home_state_change {
    std::int32_t interval;   // seconds
    outcome result;

    static home_state_change read(payload_cursor& in) { return {in.read_i32(), read_outcome(in)}; }
};

// --- Property records of the older units ------------------------------------

struct unit_properties_v32 {
    std::uint32_t address;
    std::int32_t lockout;
    std::int32_t unlock_mask;
    payload_text result;

    static unit_properties_v32 read(payload_cursor& in)
    {
        return {in.read_u32(), in.read_i32(), in.read_i32(), in.read_wstring()};
    }
};

} // namespace

// --- Corvane Unit Properties Saved ------------------------------------------

void corvane_unit_properties_saved_xml(payload_cursor& in, xml_output& out)
{
    const auto on = read_unit_switches(in);
    // The result text is optional here: the switches alone make a complete event.
    const payload_text result = in.remaining() > 0 ? in.read_wstring() : payload_text{};
    for (std::size_t i = 0; i < unit_switches.size(); ++i)
        write_element_line(out, unit_switches[i].element, lowercase_true_false(on[i]));
    if (!result.empty())
        write_element_line(out, "result", result.view());
}

colour corvane_unit_properties_saved_text(payload_cursor& in, text_output& out)
{
    const auto on = read_unit_switches(in);
    out << "Unit Properties Saved, ";
    for (std::size_t i = 0; i < unit_switches.size(); ++i)
        out << (i == 0 ? "" : ", ") << unit_switches[i].label << ": (" << lowercase_true_false(on[i]) << ")";
    return inventory;
}

// --- Unit Properties Saved --------------------------------------------------

void unit_properties_saved_xml(payload_cursor& in, xml_output& out)
{
    const unit_properties p = unit_properties::read(in);
    write_element_line(out, "IpAddress", dotted_ipv4{p.address});
    write_element_line(out, "FrontPanelLockout", lowercase_true_false(p.lockout));
    write_element_line(out, "UnlockAlarmMask", lowercase_true_false(p.unlock_mask));
    write_element_line(out, "EnableHeartbeat", lowercase_true_false(p.heartbeat));
    write_element_line(out, "AutoHomeStateTimeout", decimal(p.home_state_timeout));
    write_result_line(out, p.result);
}

colour unit_properties_saved_text(payload_cursor& in, text_output& out)
{
    const unit_properties p = unit_properties::read(in);
    out << "Unit properties saved - IP:" << dotted_ipv4{p.address} << ", Front Panel Lock Out: " << on_off(p.lockout)
        << ", Unlock Alarm Mask: " << on_off(p.unlock_mask) << ", Heartbeat: " << on_off(p.heartbeat)
        << ", Auto Home-state Timeout: " << decimal(p.home_state_timeout) << "s";
    return end_with_outcome(out, p.result, inventory);
}

// --- GULL Properties Saved --------------------------------------------------

void gull_properties_saved_xml(payload_cursor& in, xml_output& out)
{
    const gull_properties p = gull_properties::read(in);
    write_element_line(out, "IpAddress", dotted_ipv4{p.address});
    write_element_line(out, "Name", p.name.view());
    write_result_line(out, p.result);
}

colour gull_properties_saved_text(payload_cursor& in, text_output& out)
{
    const gull_properties p = gull_properties::read(in);
    out << "GULL properties saved - IP:" << dotted_ipv4{p.address} << ", Name: " << p.name.view();
    return end_with_outcome(out, p.result, inventory);
}

// --- Corvane Register Network ID --------------------------------------------

void register_network_id_xml(payload_cursor& in, xml_output& out)
{
    write_element_line(out, "network-id", decimal(in.read_u8()));
}

colour register_network_id_text(payload_cursor& in, text_output& out)
{
    const std::uint8_t network = in.read_u8();
    out << "A network wide registration was issued for the network with the id of " << decimal(network) << ".";
    return command;
}

// --- Corvane Unit Paramfile Write -------------------------------------------

void paramfile_write_xml(payload_cursor& in, xml_output& out)
{
    write_element_line(out, "save", lowercase_true_false(in.read_u8() != 0));
}

colour paramfile_write_text(payload_cursor& in, text_output& out)
{
    const bool saved = in.read_u8() != 0;
    out << "A param file was written to the unit.";
    if (saved)
        out << " The new configuration was saved to flash.";
    return command;
}

// --- Corvane Unit Paramfile Autosave ----------------------------------------

void paramfile_autosave_xml(payload_cursor& in, xml_output& out)
{
    write_element_line(out, "result", std::string_view(in.read_u8() != 0 ? "failed" : "succeeded"));
}

colour paramfile_autosave_text(payload_cursor& in, text_output& out)
{
    const bool failed = in.read_u8() != 0;
    out << "An automatic configuration backup " << (failed ? " failed.\n" : " succeeded.\n");
    return failed ? failure : green;
}

// --- Corvane Unit Upgrade, Corvane Multiple Unit Upgrade --------------------

void unit_upgrade_xml(payload_cursor& in, xml_output& out)
{
    const upgrade u = upgrade::read(in);
    const outcome result = read_outcome(in);
    u.write_xml(out);
    write_failure_line(out, result);
}

colour unit_upgrade_text(payload_cursor& in, text_output& out)
{
    const upgrade u = upgrade::read(in);
    const outcome result = read_outcome(in);
    out << "Unit Upgrade: ";
    u.write_text(out);
    return end_with_outcome(out, result, command);
}

void multiple_unit_upgrade_xml(payload_cursor& in, xml_output& out)
{
    const upgrade u = upgrade::read(in);
    const std::uint32_t units = in.read_u32();
    const outcome result = read_outcome(in);
    u.write_xml(out);
    write_element_line(out, "Units", decimal(units));
    write_failure_line(out, result);
}

colour multiple_unit_upgrade_text(payload_cursor& in, text_output& out)
{
    const upgrade u = upgrade::read(in);
    const std::uint32_t units = in.read_u32();
    const outcome result = read_outcome(in);
    out << "Multiple Unit Upgrade: ";
    u.write_text(out);
    out << ", Units: " << decimal(units);
    return end_with_outcome(out, result, command);
}

// --- Heartbeat Toggled ------------------------------------------------------

void heartbeat_toggled_xml(payload_cursor& in, xml_output& out)
{
    const heartbeat_change h = heartbeat_change::read(in);
    write_element_line(out, "Enabled", lowercase_true_false(h.enabled));
    write_element_line(out, "Timeout", decimal(h.timeout));
    write_element_line(out, "Interval", decimal(h.interval));
    write_result_line(out, h.result);
}

colour heartbeat_toggled_text(payload_cursor& in, text_output& out)
{
    const heartbeat_change h = heartbeat_change::read(in);
    out << "Unit Heartbeat Toggled - Enabled:" << lowercase_true_false(h.enabled)
        << ", Timeout: " << decimal(h.timeout) << "ms, Interval: " << decimal(h.interval) << "ms";
    return end_with_outcome(out, h.result, command);
}

// --- Auto Home-state Timeout Changed ----------------------------------------

void home_state_timeout_changed_xml(payload_cursor& in, xml_output& out)
{
    const home_state_change h = home_state_change::read(in);
    write_element_line(out, "Interval", decimal(h.interval));
    write_result_line(out, h.result);
}

colour home_state_timeout_changed_text(payload_cursor& in, text_output& out)
{
    const home_state_change h = home_state_change::read(in);
    out << "Interval: " << decimal(h.interval) << "s";
    return end_with_outcome(out, h.result, command);
}

// --- Corvane Manager Properties Saved ---------------------------------------

void manager_properties_saved_xml(payload_cursor& in, text_output& out)
{
    const std::int32_t force_restart = in.read_i32();
    const payload_text result = in.read_wstring();
    out << "<!-- Corvane Manager Properties Saved  -->\n"
        << "\t\t<ForceRestart>" << decimal(force_restart) << "</ForceRestart>\n";
    write_result_element_if_any(out, result);
}

colour manager_properties_saved_text(payload_cursor& in, text_output& out)
{
    const bool restarted = in.read_i32() != 0;
    const payload_text result = in.read_wstring();
    out << "Configuration properties saved";
    if (restarted)
        out << " and communications restarted";
    write_if_any(out, ": ", result);
    return inventory;
}

// --- Corvane Unit Properties Saved Orrin 3.2 --------------------------------

void unit_properties_saved_v32_xml(payload_cursor& in, text_output& out)
{
    const unit_properties_v32 p = unit_properties_v32::read(in);
    out << "<!-- Unit Properties Saved  -->\n"
        << "\t\t<IpAddress>" << dotted_ipv4{p.address} << "</IpAddress>\n"
        << "\t\t<FrontPanelLockOut>" << decimal(p.lockout) << "</FrontPanelLockOut>\n"
        << "\t\t<UnlockAlarmMask>" << decimal(p.unlock_mask) << "</UnlockAlarmMask>\n";
    write_result_element_if_any(out, p.result);
}

colour unit_properties_saved_v32_text(payload_cursor& in, text_output& out)
{
    const unit_properties_v32 p = unit_properties_v32::read(in);
    out << "Unit properties saved - IP:" << dotted_ipv4{p.address} << ", "
        << "Front Panel Lock Out: " << on_off(p.lockout != 0) << ", "
        << "Unlock Alarm Mask: " << on_off(p.unlock_mask != 0);
    write_if_any(out, ": ", p.result);
    return inventory;
}

// --- Corvane Device Properties Saved ----------------------------------------

void device_properties_saved_xml(payload_cursor& in, text_output& out)
{
    const device_properties p = device_properties::read(in);
    out << "<!-- Device Configuration Saved -->\n"
        << "\t\t<DeviceName>" << p.name.view() << "\t</DeviceName>"
        << "\t\t<Carrier>";
    if (const OptionEntry* row = p.carrier_row())
        out << row->wide << "</Carrier>\n";
    else
        out << "unknown" << decimal(p.carrier) << ")</Carrier>";
    write_result_element_if_any(out, p.result);
}

colour device_properties_saved_text(payload_cursor& in, text_output& out)
{
    const device_properties p = device_properties::read(in);
    out << "Device properties saved. Name: " << p.name.view() << ", Carrier: ";
    if (const OptionEntry* row = p.carrier_row())
        out << row->wide;
    write_if_any(out, ": ", p.result);
    return inventory;
}

// --- Corvane Modem Flag -----------------------------------------------------

// The two forms read the payload differently, and each is kept as servers
// already record it: the text form takes a result code after the two leading
// words and an error text only when that code is negative; the XML form takes
// a text directly after the two words. A payload written for one form is
// misread by the other.

void modem_flag_xml(payload_cursor& in, text_output& out)
{
    in.read_u32();
    in.read_u32();
    const payload_text result = in.read_wstring();
    out << "<!-- Modem Flag Toggled  -->\n";
    write_result_element_if_any(out, result, "\t\t");
}

colour modem_flag_text(payload_cursor& in, text_output& out)
{
    in.read_u32();
    in.read_u32();
    write_outcome(out, read_outcome(in), failure_tail);
    return inventory;
}

// --- Demodulator Failed Event -----------------------------------------------

colour demodulator_failed_text(payload_cursor&, text_output& out)
{
    out << "Device marked as unavailable due to switching error.";
    return failure;
}
