#include "events/config_events.h"

#include <array>
#include <string_view>

#include "core/text_format.h"
#include "devices/decimal_value.h"
#include "core/option_entry.h"
#include "events/command_text.h"
#include "events/event_text.h"

namespace {

using render::colour;
using namespace render::colours;

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
constexpr outcome_wording failure_tail{""_w, ": "_w, ""_w};

// Ends a sentence with its outcome and gives its colour: failures show in the
// failure colour, whatever the event.
colour end_with_outcome(output::text& out, const outcome& result, colour success)
{
    write_outcome(out, result, failure_tail);
    return result.failed() ? failure : success;
}

// The `Result` element of the XML stream forms: "Ok", or the error text.
void write_result_line(output::xml& out, const outcome& result)
{
    out.element_line("Result"_tag, result.failed() ? result.error.view() : "Ok"_w);
}

// The upgrades' `Failure` element, only after a failure.
void write_failure_line(output::xml& out, const outcome& result)
{
    if (result.failed())
        out.element_line("Failure"_tag, result.error.view());
}

// --- Unit property switches -------------------------------------------------

// The four switches of a unit's properties, in payload order, with the label
// of the text form and the element of the XML form.
struct property_switch {
    wstring_view label;
    const output::element_name* element;
};

constexpr std::array<property_switch, 4> unit_switches{{
    {"Front Panel Lock Out"_w, &"FrontPanelLockout"_tag},
    {"Unlock Alarm Mask"_w, &"UnlockAlarmMask"_tag},
    {"Enable Heartbeat"_w, &"EnableHeartbeat"_tag},
    {"Auto Home State Timeout"_w, &"AutoHomeStateTimeout"_tag},
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
    void write_text(output::text& out) const { out << image.view() << ", "_w << rate; }

    void write_xml(output::xml& out) const
    {
        out.element_line("Image"_tag, image.view());
        out.element_line("Rate"_tag, rate);
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

    const OptionEntry* carrier_row() const noexcept { return find_row(carrier_modes, carrier); }
};

// --- Property records of the newer units ------------------------------------

struct unit_properties {
    std::uint32_t address;
    bool lockout;
    bool unlockMask;
    bool heartbeat;
    std::int32_t homeStateTimeout;   // seconds
    outcome result;

    static unit_properties read(payload_cursor& in)
    {
        return {in.read_u32(),     in.read_u8() != 0, in.read_u8() != 0,
                in.read_u8() != 0, in.read_i32(),     read_outcome(in)};
    }
};

struct gull_properties {
    std::uint32_t address;
    payload_text name;
    outcome result;

    static gull_properties read(payload_cursor& in) { return {in.read_u32(), in.read_wstring(), read_outcome(in)}; }
};

// --- Timer settings ---------------------------------------------------------

struct heartbeat_change {
    bool enabled;
    std::int32_t timeout;   // milliseconds
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
    std::int32_t unlockMask;
    payload_text result;

    static unit_properties_v32 read(payload_cursor& in)
    {
        return {in.read_u32(), in.read_i32(), in.read_i32(), in.read_wstring()};
    }
};

}   // namespace

// --- Corvane Unit Properties Saved ------------------------------------------

void corvane_unit_properties_saved_xml(payload_cursor& in, output::xml& out)
{
    const auto on = read_unit_switches(in);
    // The result text is optional here: the switches alone make a complete event.
    const payload_text result = in.remaining() > 0 ? in.read_wstring() : payload_text{};
    for (std::size_t i = 0; i < unit_switches.size(); ++i)
        out.element_line(*unit_switches[i].element, lowercase_true_false(on[i]));
    if (!result.empty())
        out.element_line("result"_tag, result.view());
}

colour corvane_unit_properties_saved_text(payload_cursor& in, output::text& out)
{
    const auto on = read_unit_switches(in);
    out << "Unit Properties Saved, "_w;
    for (std::size_t i = 0; i < unit_switches.size(); ++i)
        out << (i == 0 ? ""_w : ", "_w) << unit_switches[i].label << ": ("_w << lowercase_true_false(on[i]) << ")"_w;
    return inventory;
}

// --- Unit Properties Saved --------------------------------------------------

void unit_properties_saved_xml(payload_cursor& in, output::xml& out)
{
    const unit_properties p = unit_properties::read(in);
    out.element_line("IpAddress"_tag, dotted_ipv4{p.address});
    out.element_line("FrontPanelLockout"_tag, lowercase_true_false(p.lockout));
    out.element_line("UnlockAlarmMask"_tag, lowercase_true_false(p.unlockMask));
    out.element_line("EnableHeartbeat"_tag, lowercase_true_false(p.heartbeat));
    out.element_line("AutoHomeStateTimeout"_tag, decimal(p.homeStateTimeout));
    write_result_line(out, p.result);
}

colour unit_properties_saved_text(payload_cursor& in, output::text& out)
{
    const unit_properties p = unit_properties::read(in);
    // Deliberate: no blank after "IP:".
    out << "Unit properties saved - IP:"_w << dotted_ipv4{p.address} << ", Front Panel Lock Out: "_w
        << on_off(p.lockout) << ", Unlock Alarm Mask: "_w << on_off(p.unlockMask) << ", Heartbeat: "_w
        << on_off(p.heartbeat) << ", Auto Home-state Timeout: "_w << decimal(p.homeStateTimeout) << "s"_w;
    return end_with_outcome(out, p.result, inventory);
}

// --- GULL Properties Saved --------------------------------------------------

void gull_properties_saved_xml(payload_cursor& in, output::xml& out)
{
    const gull_properties p = gull_properties::read(in);
    out.element_line("IpAddress"_tag, dotted_ipv4{p.address});
    out.element_line("Name"_tag, p.name.view());
    write_result_line(out, p.result);
}

colour gull_properties_saved_text(payload_cursor& in, output::text& out)
{
    const gull_properties p = gull_properties::read(in);
    // Deliberate: no blank after "IP:".
    out << "GULL properties saved - IP:"_w << dotted_ipv4{p.address} << ", Name: "_w << p.name.view();
    return end_with_outcome(out, p.result, inventory);
}

// --- Corvane Register Network ID --------------------------------------------

void register_network_id_xml(payload_cursor& in, output::xml& out)
{
    out.element_line("network-id"_tag, decimal(in.read_u8()));
}

colour register_network_id_text(payload_cursor& in, output::text& out)
{
    const std::uint8_t network = in.read_u8();
    out << "A network wide registration was issued for the network with the id of "_w << decimal(network) << "."_w;
    return command;
}

// --- Corvane Unit Paramfile Write -------------------------------------------

void paramfile_write_xml(payload_cursor& in, output::xml& out)
{
    out.element_line("save"_tag, lowercase_true_false(in.read_u8() != 0));
}

colour paramfile_write_text(payload_cursor& in, output::text& out)
{
    const bool saved = in.read_u8() != 0;
    out << "A param file was written to the unit."_w;
    if (saved)
        out << " The new configuration was saved to flash."_w;
    return command;
}

// --- Corvane Unit Paramfile Autosave ----------------------------------------

void paramfile_autosave_xml(payload_cursor& in, output::xml& out)
{
    out.element_line("result"_tag, wstring_view(in.read_u8() != 0 ? "failed"_w : "succeeded"_w));
}

colour paramfile_autosave_text(payload_cursor& in, output::text& out)
{
    const bool failed = in.read_u8() != 0;
    // Deliberate: a doubled blank after "backup" and a final line break.
    out << "An automatic configuration backup "_w << (failed ? " failed.\n"_w : " succeeded.\n"_w);
    return failed ? failure : green;
}

// --- Corvane Unit Upgrade, Corvane Multiple Unit Upgrade --------------------

void unit_upgrade_xml(payload_cursor& in, output::xml& out)
{
    const upgrade u = upgrade::read(in);
    const outcome result = read_outcome(in);
    u.write_xml(out);
    write_failure_line(out, result);
}

colour unit_upgrade_text(payload_cursor& in, output::text& out)
{
    const upgrade u = upgrade::read(in);
    const outcome result = read_outcome(in);
    out << "Unit Upgrade: "_w;
    u.write_text(out);
    return end_with_outcome(out, result, command);
}

void multiple_unit_upgrade_xml(payload_cursor& in, output::xml& out)
{
    const upgrade u = upgrade::read(in);
    const std::uint32_t units = in.read_u32();
    const outcome result = read_outcome(in);
    u.write_xml(out);
    out.element_line("Units"_tag, decimal(units));
    write_failure_line(out, result);
}

colour multiple_unit_upgrade_text(payload_cursor& in, output::text& out)
{
    const upgrade u = upgrade::read(in);
    const std::uint32_t units = in.read_u32();
    const outcome result = read_outcome(in);
    out << "Multiple Unit Upgrade: "_w;
    u.write_text(out);
    out << ", Units: "_w << decimal(units);
    return end_with_outcome(out, result, command);
}

// --- Heartbeat Toggled ------------------------------------------------------

void heartbeat_toggled_xml(payload_cursor& in, output::xml& out)
{
    const heartbeat_change h = heartbeat_change::read(in);
    out.element_line("Enabled"_tag, lowercase_true_false(h.enabled));
    out.element_line("Timeout"_tag, decimal(h.timeout));
    out.element_line("Interval"_tag, decimal(h.interval));
    write_result_line(out, h.result);
}

colour heartbeat_toggled_text(payload_cursor& in, output::text& out)
{
    const heartbeat_change h = heartbeat_change::read(in);
    // Deliberate: no blank after "Enabled:".
    out << "Unit Heartbeat Toggled - Enabled:"_w << lowercase_true_false(h.enabled) << ", Timeout: "_w
        << decimal(h.timeout) << "ms, Interval: "_w << decimal(h.interval) << "ms"_w;
    return end_with_outcome(out, h.result, command);
}

// --- Auto Home-state Timeout Changed ----------------------------------------

void home_state_timeout_changed_xml(payload_cursor& in, output::xml& out)
{
    const home_state_change h = home_state_change::read(in);
    out.element_line("Interval"_tag, decimal(h.interval));
    write_result_line(out, h.result);
}

colour home_state_timeout_changed_text(payload_cursor& in, output::text& out)
{
    const home_state_change h = home_state_change::read(in);
    out << "Interval: "_w << decimal(h.interval) << "s"_w;
    return end_with_outcome(out, h.result, command);
}

// --- Corvane Manager Properties Saved ---------------------------------------

void manager_properties_saved_xml(payload_cursor& in, output::verbatim_xml& out)
{
    const std::int32_t force_restart = in.read_i32();
    const payload_text result = in.read_wstring();
    // Deliberate: the doubled blank before "-->".
    out << "<!-- Corvane Manager Properties Saved  -->\n"_w
        << "\t\t<ForceRestart>"_w << decimal(force_restart) << "</ForceRestart>\n"_w;
    write_result_element_if_any(out, result);
}

colour manager_properties_saved_text(payload_cursor& in, output::text& out)
{
    const bool restarted = in.read_i32() != 0;
    const payload_text result = in.read_wstring();
    out << "Configuration properties saved"_w;
    if (restarted)
        out << " and communications restarted"_w;
    write_if_any(out, ": "_w, result);
    return inventory;
}

// --- Corvane Unit Properties Saved Orrin 3.2 --------------------------------

void unit_properties_saved_v32_xml(payload_cursor& in, output::verbatim_xml& out)
{
    const unit_properties_v32 p = unit_properties_v32::read(in);
    // Deliberate: the doubled blank before "-->".
    out << "<!-- Unit Properties Saved  -->\n"_w
        << "\t\t<IpAddress>"_w << dotted_ipv4{p.address} << "</IpAddress>\n"_w
        << "\t\t<FrontPanelLockOut>"_w << decimal(p.lockout) << "</FrontPanelLockOut>\n"_w
        << "\t\t<UnlockAlarmMask>"_w << decimal(p.unlockMask) << "</UnlockAlarmMask>\n"_w;
    write_result_element_if_any(out, p.result);
}

colour unit_properties_saved_v32_text(payload_cursor& in, output::text& out)
{
    const unit_properties_v32 p = unit_properties_v32::read(in);
    // Deliberate: no blank after "IP:".
    out << "Unit properties saved - IP:"_w << dotted_ipv4{p.address} << ", "_w
        << "Front Panel Lock Out: "_w << on_off(p.lockout != 0) << ", "_w
        << "Unlock Alarm Mask: "_w << on_off(p.unlockMask != 0);
    write_if_any(out, ": "_w, p.result);
    return inventory;
}

// --- Corvane Device Properties Saved ----------------------------------------

void device_properties_saved_xml(payload_cursor& in, output::verbatim_xml& out)
{
    const device_properties p = device_properties::read(in);
    // Deliberate: a tab before </DeviceName> and no line break after it.
    out << "<!-- Device Configuration Saved -->\n"_w
        << "\t\t<DeviceName>"_w << p.name.view() << "\t</DeviceName>"_w
        << "\t\t<Carrier>"_w;
    if (const OptionEntry* row = p.carrier_row())
        out << option_text(*row) << "</Carrier>\n"_w;
    else
        // Deliberate: no "(" before the value and no line break after </Carrier>.
        out << "unknown"_w << decimal(p.carrier) << ")</Carrier>"_w;
    write_result_element_if_any(out, p.result);
}

colour device_properties_saved_text(payload_cursor& in, output::text& out)
{
    const device_properties p = device_properties::read(in);
    out << "Device properties saved. Name: "_w << p.name.view() << ", Carrier: "_w;
    if (const OptionEntry* row = p.carrier_row())
        out << option_text(*row);
    write_if_any(out, ": "_w, p.result);
    return inventory;
}

// --- Corvane Modem Flag -----------------------------------------------------

// The two forms read the payload differently, and each is kept as servers
// already record it: the text form takes a result code after the two leading
// words and an error text only when that code is negative; the XML form takes
// a text directly after the two words. A payload written for one form is
// misread by the other.

void modem_flag_xml(payload_cursor& in, output::verbatim_xml& out)
{
    in.read_u32();
    in.read_u32();
    const payload_text result = in.read_wstring();
    // Deliberate: the doubled blank before "-->", and the result line is indented here alone.
    out << "<!-- Modem Flag Toggled  -->\n"_w;
    write_result_element_if_any(out, result, "\t\t"_w);
}

colour modem_flag_text(payload_cursor& in, output::text& out)
{
    in.read_u32();
    in.read_u32();
    write_outcome(out, read_outcome(in), failure_tail);
    return inventory;
}

// --- Demodulator Failed Event -----------------------------------------------

colour demodulator_failed_text(payload_cursor&, output::text& out)
{
    out << "Device marked as unavailable due to switching error."_w;
    return failure;
}
