#include "module/event_types.h"

#include <array>
#include <iterator>

#include "core/guid.h"
#include "core/option_entry.h"
#include "events/alarm_events.h"
#include "events/command_events.h"
#include "events/config_events.h"
#include "events/data_changed_events.h"
#include "events/device_parameters_event.h"
#include "events/inventory_events.h"

namespace {

using render::exact_size;
using render::no_xml_form;
using render::text_form;
using render::xml_form;

// The two XML dialects: fixed literals exactly as they stand, or elements.
using verbatim = output::verbatim_xml;
using elements = output::xml;

// "Multicast Port Failure" carries a count and exactly that many characters.
struct counted_message_size {
    static constexpr bool accepts(std::span<const std::uint8_t> payload) noexcept
    {
        return payload.size() >= 2 && payload.size() == 2 + 2 * std::size_t(payload[0] | payload[1] << 8);
    }
};

// Each listed type's identifier and display name, in the list's order.
constexpr GUID listed_ids[] = {
#define KORPS_EVENT_ID(symbol, name, l, w1, w2, b1, b2, b3, b4, b5, b6, b7, b8)                                        \
    GUID{l, w1, w2, {b1, b2, b3, b4, b5, b6, b7, b8}},
    KORPS_EVENT_TYPES(KORPS_EVENT_ID)
#undef KORPS_EVENT_ID
};

constexpr const wchar* listed_names[] = {
#define KORPS_EVENT_NAME(symbol, name, ...) name##_w.data(),
    KORPS_EVENT_TYPES(KORPS_EVENT_NAME)
#undef KORPS_EVENT_NAME
};

// One text renderer serves every data-changed event.
constexpr auto properties_modified_form = text_form<properties_modified>;
// Insertion and removal of a unit describe it the same way in XML.
constexpr auto unit_membership_form = xml_form<elements, unit_membership_xml, exact_size<5>>;

// What renders each listed type.
struct event_forms {
    korps_event type;
    render::form<EventXmlRenderer> xml;
    render::form<EventTextRenderer> text;
};

constexpr event_forms forms[] = {
    {korps_event::FALCON_DATA_CHANGED, xml_form<elements, falcon_data_changed>, properties_modified_form},
    {korps_event::OSPREY_DATA_CHANGED, xml_form<elements, osprey_data_changed>, properties_modified_form},
    {korps_event::OSPREY_DATA_CHANGED_V2, xml_form<elements, osprey_data_changed_v2>, properties_modified_form},
    {korps_event::HERON_UNIT_DATA_CHANGED, xml_form<elements, heron_unit_data_changed>, properties_modified_form},
    {korps_event::HERON_DEVICE_DATA_CHANGED, xml_form<elements, heron_device_data_changed>, properties_modified_form},
    {korps_event::ALARM_STATUS_CHANGED, xml_form<elements, alarm_status_changed_xml>,
     text_form<alarm_status_changed_text>},
    {korps_event::UNIT_DESTROY, xml_form<elements, unit_destroy_xml>, text_form<unit_destroy_text>},
    {korps_event::UNIT_INSERTED, unit_membership_form, text_form<unit_inserted_text, exact_size<5>>},
    {korps_event::UNIT_REMOVED, unit_membership_form, text_form<unit_removed_text, exact_size<5>>},
    {korps_event::CORVANE_UNIT_PROPERTIES_SAVED, xml_form<elements, corvane_unit_properties_saved_xml>,
     text_form<corvane_unit_properties_saved_text>},
    {korps_event::UNIT_PROPERTIES_SAVED, xml_form<elements, unit_properties_saved_xml>,
     text_form<unit_properties_saved_text>},
    {korps_event::GULL_PROPERTIES_SAVED, xml_form<elements, gull_properties_saved_xml>,
     text_form<gull_properties_saved_text>},
    {korps_event::UNIT_ALARM_STATE_CHANGED, xml_form<elements, unit_alarm_state_changed_xml>,
     text_form<unit_alarm_state_changed_text>},
    {korps_event::DEVICE_PARAMETERS_CHANGED, xml_form<elements, device_parameters_changed_xml>,
     text_form<device_parameters_changed_text>},
    {korps_event::REGISTER_NETWORK_ID, xml_form<elements, register_network_id_xml>,
     text_form<register_network_id_text>},
    {korps_event::PARAMFILE_WRITE, xml_form<elements, paramfile_write_xml>, text_form<paramfile_write_text>},
    {korps_event::PARAMFILE_AUTOSAVE, xml_form<elements, paramfile_autosave_xml>, text_form<paramfile_autosave_text>},
    {korps_event::UNIT_UPGRADE, xml_form<elements, unit_upgrade_xml>, text_form<unit_upgrade_text>},
    {korps_event::MULTIPLE_UNIT_UPGRADE, xml_form<elements, multiple_unit_upgrade_xml>,
     text_form<multiple_unit_upgrade_text>},
    {korps_event::HEARTBEAT_TOGGLED, xml_form<elements, heartbeat_toggled_xml>, text_form<heartbeat_toggled_text>},
    {korps_event::HOME_STATE_TIMEOUT_CHANGED, xml_form<elements, home_state_timeout_changed_xml>,
     text_form<home_state_timeout_changed_text>},
    {korps_event::UNIT_REGISTRATION, xml_form<elements, unit_registration_xml>, text_form<unit_registration_text>},
    {korps_event::UNIT_STATUS, xml_form<verbatim, unit_status_xml, exact_size<8>>,
     text_form<unit_status_text, exact_size<8>>},
    {korps_event::MULTICAST_PORT_FAILURE, no_xml_form, text_form<multicast_port_failure_text, counted_message_size>},
    {korps_event::UNIT_RESET, xml_form<verbatim, unit_reset_xml>, text_form<unit_reset_text>},
    {korps_event::SUBNET_RESET, xml_form<verbatim, subnet_reset_xml>, text_form<subnet_reset_text>},
    {korps_event::SAVE_TO_FLASH, xml_form<verbatim, save_to_flash_xml>, text_form<save_to_flash_text>},
    {korps_event::FORCE_REGISTRATION, xml_form<verbatim, force_registration_xml>, text_form<force_registration_text>},
    {korps_event::UNIT_REMOVED_V32, xml_form<verbatim, unit_removed_v32_xml>, text_form<unit_removed_v32_text>},
    {korps_event::UNIT_DECLARED, xml_form<verbatim, unit_declared_xml>, text_form<unit_declared_text>},
    {korps_event::UNIT_INSERTED_V32, xml_form<verbatim, unit_inserted_v32_xml>, text_form<unit_inserted_v32_text>},
    {korps_event::NETWORK_ID_INSERTED, xml_form<verbatim, network_notice_renderers<network_id_inserted_notice>::xml>,
     text_form<network_notice_renderers<network_id_inserted_notice>::text>},
    {korps_event::NETWORK_ID_REMOVED, xml_form<verbatim, network_notice_renderers<network_id_removed_notice>::xml>,
     text_form<network_notice_renderers<network_id_removed_notice>::text>},
    {korps_event::GLOBAL_REINITIALIZE, xml_form<verbatim, network_notice_renderers<global_reinitialize_notice>::xml>,
     text_form<network_notice_renderers<global_reinitialize_notice>::text>},
    {korps_event::SCAN_NETWORK, xml_form<verbatim, network_notice_renderers<scan_network_notice>::xml>,
     text_form<network_notice_renderers<scan_network_notice>::text>},
    {korps_event::MANAGER_PROPERTIES_SAVED, xml_form<verbatim, manager_properties_saved_xml>,
     text_form<manager_properties_saved_text>},
    {korps_event::UNIT_PROPERTIES_SAVED_V32, xml_form<verbatim, unit_properties_saved_v32_xml>,
     text_form<unit_properties_saved_v32_text>},
    {korps_event::DEVICE_PROPERTIES_SAVED, xml_form<verbatim, device_properties_saved_xml>,
     text_form<device_properties_saved_text>},
    {korps_event::MODEM_FLAG, xml_form<verbatim, modem_flag_xml>, text_form<modem_flag_text>},
    {korps_event::DEMODULATOR_FAILED, no_xml_form, text_form<demodulator_failed_text>},
};
static_assert(one_row_per_enumerator(forms, &event_forms::type, korps_event(std::size(listed_ids) - 1)),
              "one row of forms per listed event type, in the list's order");

constexpr auto table = [] {
    std::array<event_type_row, std::size(forms)> rows{};
    for (std::size_t i = 0; i < rows.size(); ++i)
        rows[i] = make_event_type_row(listed_ids[i], forms[i].xml, forms[i].text, listed_names[i]);
    return rows;
}();

}   // namespace

std::span<const event_type_row> event_types() noexcept
{
    return table;
}

const event_type_row& event_type(korps_event which) noexcept
{
    return table[static_cast<std::size_t>(which)];
}

const event_type_row* find_event_type(const GUID& id) noexcept
{
    for (const event_type_row& row : table)
        if (same_guid(*row.eventType, id))
            return &row;
    return nullptr;
}
