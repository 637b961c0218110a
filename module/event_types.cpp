#include "module/event_types.h"

#include <array>

#include "core/guid.h"
#include "events/alarm_events.h"
#include "events/command_events.h"
#include "events/config_events.h"
#include "events/data_changed_events.h"
#include "events/device_parameters_event.h"
#include "events/inventory_events.h"
#ifdef _WIN32
#include "module/published_event_ids.h"
#endif

namespace {

using render::exact_size;
using render::no_xml_form;
using render::text_form;
using render::xml_form;

// The two XML dialects: fixed literals exactly as they stand, or elements.
using verbatim = ui::event::verbatim_xml_output;
using elements = ui::event::xml_output;

// "Multicast Port Failure" carries a count and exactly that many characters.
struct counted_message_size {
    static constexpr bool accepts(std::span<const std::uint8_t> payload) noexcept
    {
        return payload.size() >= 2 && payload.size() == 2 + 2 * std::size_t(payload[0] | payload[1] << 8);
    }
};

constexpr GUID falcon_data_changed_id = make_guid("9f74e20a-4198-4269-bdc7-c0a02be22131");
constexpr GUID osprey_data_changed_id = make_guid("91286a63-5ea9-412a-8021-e9132460f87e");
constexpr GUID osprey_data_changed_v2_id = make_guid("6e66e529-ac7c-40dd-bc1d-6a8678996824");
constexpr GUID heron_unit_data_changed_id = make_guid("68eb0d69-c91c-4046-bbef-086e313dfe19");
constexpr GUID heron_device_data_changed_id = make_guid("a6a1a409-42d5-4c10-83a3-40bbaaa25dc6");
constexpr GUID alarm_status_changed_id = make_guid("b2ece055-145c-4686-9f1d-2c3577e541dd");
constexpr GUID unit_destroy_id = make_guid("074642c4-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID unit_inserted_id = make_guid("69d511f1-fa5e-4cbe-a7ce-b568a245acb2");
constexpr GUID unit_removed_id = make_guid("f835cf20-07da-47c6-a6f2-a05f09a50727");
constexpr GUID corvane_unit_properties_saved_id = make_guid("074642cd-0303-4304-8261-598d4c2a00f9");
constexpr GUID unit_properties_saved_id = make_guid("e0d95762-1203-4506-a177-f59cbbb89527");
constexpr GUID gull_properties_saved_id = make_guid("e0d95762-1203-7506-a177-f59cbbb8952a");
constexpr GUID unit_alarm_state_changed_id = make_guid("020ae2b4-ea5b-4888-9b2a-260e7c48ff38");
constexpr GUID device_parameters_changed_id = make_guid("36128035-bd8d-4511-8270-d9bb9e71b402");
constexpr GUID register_network_id_id = make_guid("ae106691-48bd-4c47-9d79-6b4defa68e96");
constexpr GUID paramfile_write_id = make_guid("2b1f337e-a155-44b1-8e81-353a9d5aa586");
constexpr GUID paramfile_autosave_id = make_guid("e47945c9-6de8-4246-beac-908dd1bccbb2");
constexpr GUID unit_upgrade_id = make_guid("e0d959dc-7282-4a9b-a177-f59cbbb89527");
constexpr GUID multiple_unit_upgrade_id = make_guid("74c7d9db-0afd-400b-9471-1289e394280d");
constexpr GUID heartbeat_toggled_id = make_guid("e0d95762-1203-5506-a311-f59cbbb89528");
constexpr GUID home_state_timeout_changed_id = make_guid("e0d95762-1203-6506-a327-f59cbbb89529");
constexpr GUID unit_registration_id = make_guid("2434a14f-af04-497e-9ca8-6156d2fae8f4");
constexpr GUID unit_status_id = make_guid("88268fe2-8741-43cb-b521-ec2fb6ba202e");
constexpr GUID multicast_port_failure_id = make_guid("d115012c-6627-4006-95a6-2e10c12b2945");
constexpr GUID unit_reset_id = make_guid("074642c0-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID subnet_reset_id = make_guid("074642c1-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID save_to_flash_id = make_guid("074642c2-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID force_registration_id = make_guid("074642c3-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID unit_removed_v32_id = make_guid("074642c5-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID unit_declared_id = make_guid("074642c6-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID unit_inserted_v32_id = make_guid("074642c7-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID network_id_inserted_id = make_guid("074642c8-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID network_id_removed_id = make_guid("074642c9-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID global_reinitialize_id = make_guid("074642cb-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID scan_network_id = make_guid("074642ca-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID manager_properties_saved_id = make_guid("074642cc-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID unit_properties_saved_v32_id = make_guid("074642cd-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID device_properties_saved_id = make_guid("074642ce-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID modem_flag_id = make_guid("074642cf-c9ad-4304-8261-598d4c2a00f9");
constexpr GUID demodulator_failed_id = make_guid("074642d0-c9ad-4304-8261-598d4c2a00f9");

// One text renderer serves every data-changed event.
constexpr auto properties_modified_form = text_form<properties_modified>;
// Insertion and removal of a unit describe it the same way in XML.
constexpr auto unit_membership_form = xml_form<elements, unit_membership_xml, exact_size<5>>;

constexpr std::array<event_type_row, 40> table{{
    make_event_type_row(falcon_data_changed_id, xml_form<elements, falcon_data_changed>, properties_modified_form,
                        WSTR("FALCON Data Changed")),
    make_event_type_row(osprey_data_changed_id, xml_form<elements, osprey_data_changed>, properties_modified_form,
                        WSTR("OSPREY Data Changed")),
    make_event_type_row(osprey_data_changed_v2_id, xml_form<elements, osprey_data_changed_v2>, properties_modified_form,
                        WSTR("OSPREY Data Changed")),
    make_event_type_row(heron_unit_data_changed_id, xml_form<elements, heron_unit_data_changed>,
                        properties_modified_form, WSTR("HERON Unit Data Changed")),
    make_event_type_row(heron_device_data_changed_id, xml_form<elements, heron_device_data_changed>,
                        properties_modified_form, WSTR("HERON Device Data Changed")),
    make_event_type_row(alarm_status_changed_id, xml_form<elements, alarm_status_changed_xml>,
                        text_form<alarm_status_changed_text>, WSTR("Alarm Status Changed")),
    make_event_type_row(unit_destroy_id, xml_form<elements, unit_destroy_xml>, text_form<unit_destroy_text>,
                        WSTR("Corvane Unit Destroy")),
    make_event_type_row(unit_inserted_id, unit_membership_form, text_form<unit_inserted_text, exact_size<5>>,
                        WSTR("Corvane Unit Inserted")),
    make_event_type_row(unit_removed_id, unit_membership_form, text_form<unit_removed_text, exact_size<5>>,
                        WSTR("Corvane Unit Removed")),
    make_event_type_row(corvane_unit_properties_saved_id, xml_form<elements, corvane_unit_properties_saved_xml>,
                        text_form<corvane_unit_properties_saved_text>, WSTR("Corvane Unit Properties Saved")),
    make_event_type_row(unit_properties_saved_id, xml_form<elements, unit_properties_saved_xml>,
                        text_form<unit_properties_saved_text>, WSTR("Unit Properties Saved")),
    make_event_type_row(gull_properties_saved_id, xml_form<elements, gull_properties_saved_xml>,
                        text_form<gull_properties_saved_text>, WSTR("GULL Properties Saved")),
    make_event_type_row(unit_alarm_state_changed_id, xml_form<elements, unit_alarm_state_changed_xml>,
                        text_form<unit_alarm_state_changed_text>, WSTR("Corvane Unit Alarm State Changed")),
    make_event_type_row(device_parameters_changed_id, xml_form<elements, device_parameters_changed_xml>,
                        text_form<device_parameters_changed_text>, WSTR("Corvane Device Parameters Changed")),
    make_event_type_row(register_network_id_id, xml_form<elements, register_network_id_xml>,
                        text_form<register_network_id_text>, WSTR("Corvane Register Network ID")),
    make_event_type_row(paramfile_write_id, xml_form<elements, paramfile_write_xml>, text_form<paramfile_write_text>,
                        WSTR("Corvane Unit Paramfile Write")),
    make_event_type_row(paramfile_autosave_id, xml_form<elements, paramfile_autosave_xml>,
                        text_form<paramfile_autosave_text>, WSTR("Corvane Unit Paramfile Autosave")),
    make_event_type_row(unit_upgrade_id, xml_form<elements, unit_upgrade_xml>, text_form<unit_upgrade_text>,
                        WSTR("Corvane Unit Upgrade")),
    make_event_type_row(multiple_unit_upgrade_id, xml_form<elements, multiple_unit_upgrade_xml>,
                        text_form<multiple_unit_upgrade_text>, WSTR("Corvane Multiple Unit Upgrade")),
    make_event_type_row(heartbeat_toggled_id, xml_form<elements, heartbeat_toggled_xml>,
                        text_form<heartbeat_toggled_text>, WSTR("Heartbeat Toggled")),
    make_event_type_row(home_state_timeout_changed_id, xml_form<elements, home_state_timeout_changed_xml>,
                        text_form<home_state_timeout_changed_text>, WSTR("Auto Home-state Timeout Changed")),
    make_event_type_row(unit_registration_id, xml_form<elements, unit_registration_xml>,
                        text_form<unit_registration_text>, WSTR("Corvane Unit Registration")),
    make_event_type_row(unit_status_id, xml_form<verbatim, unit_status_xml, exact_size<8>>,
                        text_form<unit_status_text, exact_size<8>>, WSTR("Unit Status")),
    make_event_type_row(multicast_port_failure_id, no_xml_form,
                        text_form<multicast_port_failure_text, counted_message_size>, WSTR("Multicast Port Failure")),
    make_event_type_row(unit_reset_id, xml_form<verbatim, unit_reset_xml>, text_form<unit_reset_text>,
                        WSTR("Corvane Unit Reset")),
    make_event_type_row(subnet_reset_id, xml_form<verbatim, subnet_reset_xml>, text_form<subnet_reset_text>,
                        WSTR("Subnet Reset")),
    make_event_type_row(save_to_flash_id, xml_form<verbatim, save_to_flash_xml>, text_form<save_to_flash_text>,
                        WSTR("Corvane Unit Save to Flash")),
    make_event_type_row(force_registration_id, xml_form<verbatim, force_registration_xml>,
                        text_form<force_registration_text>, WSTR("Corvane Unit Force Registration")),
    make_event_type_row(unit_removed_v32_id, xml_form<verbatim, unit_removed_v32_xml>, text_form<unit_removed_v32_text>,
                        WSTR("Corvane Unit Removed Orrin 3.2")),
    make_event_type_row(unit_declared_id, xml_form<verbatim, unit_declared_xml>, text_form<unit_declared_text>,
                        WSTR("Corvane Unit Declared")),
    make_event_type_row(unit_inserted_v32_id, xml_form<verbatim, unit_inserted_v32_xml>,
                        text_form<unit_inserted_v32_text>, WSTR("Corvane Unit Inserted Orrin 3.2")),
    make_event_type_row(
        network_id_inserted_id, xml_form<verbatim, network_notice_renderers<network_id_inserted_notice>::xml>,
        text_form<network_notice_renderers<network_id_inserted_notice>::text>, WSTR("Network ID Inserted")),
    make_event_type_row(
        network_id_removed_id, xml_form<verbatim, network_notice_renderers<network_id_removed_notice>::xml>,
        text_form<network_notice_renderers<network_id_removed_notice>::text>, WSTR("Network ID Removed")),
    make_event_type_row(
        global_reinitialize_id, xml_form<verbatim, network_notice_renderers<global_reinitialize_notice>::xml>,
        text_form<network_notice_renderers<global_reinitialize_notice>::text>, WSTR("Corvane Global Reinitialize")),
    make_event_type_row(scan_network_id, xml_form<verbatim, network_notice_renderers<scan_network_notice>::xml>,
                        text_form<network_notice_renderers<scan_network_notice>::text>, WSTR("Corvane Scan Network")),
    make_event_type_row(manager_properties_saved_id, xml_form<verbatim, manager_properties_saved_xml>,
                        text_form<manager_properties_saved_text>, WSTR("Corvane Manager Properties Saved")),
    make_event_type_row(unit_properties_saved_v32_id, xml_form<verbatim, unit_properties_saved_v32_xml>,
                        text_form<unit_properties_saved_v32_text>, WSTR("Corvane Unit Properties Saved Orrin 3.2")),
    make_event_type_row(device_properties_saved_id, xml_form<verbatim, device_properties_saved_xml>,
                        text_form<device_properties_saved_text>, WSTR("Corvane Device Properties Saved")),
    make_event_type_row(modem_flag_id, xml_form<verbatim, modem_flag_xml>, text_form<modem_flag_text>,
                        WSTR("Corvane Modem Flag")),
    make_event_type_row(demodulator_failed_id, no_xml_form, text_form<demodulator_failed_text>,
                        WSTR("Demodulator Failed Event")),
}};

#ifdef _WIN32
// Hosts name the event types by the identifiers of korps/korps_events.h; the
// module does not build unless the header lists exactly these, in this order.
static_assert(published_event_ids.count == table.size(), "korps_events.h lists another number of event types");
static_assert(
    [] {
        for (std::size_t i = 0; i < table.size(); ++i)
            if (!same_guid(published_event_ids.ids[i], *table[i].eventType))
                return false;
        return true;
    }(),
    "korps_events.h and the event table disagree on an identifier or the order");
#endif

}   // namespace

std::span<const event_type_row> event_types() noexcept
{
    return table;
}

const event_type_row* find_event_type(const GUID& id) noexcept
{
    for (const event_type_row& row : table)
        if (same_guid(*row.eventType, id))
            return &row;
    return nullptr;
}
