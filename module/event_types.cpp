#include "module/event_types.h"

#include <array>

#include "core/guid.h"
#include "devices/data_changed_events.h"
#include "devices/device_parameters_event.h"
#include "events/alarm_events.h"
#include "events/command_events.h"
#include "events/config_events.h"
#include "events/inventory_events.h"

namespace {

using render::exact_size;
using render::text_renderer;
using render::xml_renderer;

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
constexpr EventTextRenderer properties_modified_renderer = text_renderer<properties_modified>;
// Insertion and removal of a unit describe it the same way in XML.
constexpr EventXmlRenderer unit_membership_renderer = xml_renderer<unit_membership_xml, exact_size<5>>;

constexpr std::array<event_type_row, 40> table{{
    {&falcon_data_changed_id, xml_renderer<falcon_data_changed>, 0, properties_modified_renderer,
     WSTR("FALCON Data Changed")},
    {&osprey_data_changed_id, xml_renderer<osprey_data_changed>, 0, properties_modified_renderer,
     WSTR("OSPREY Data Changed")},
    {&osprey_data_changed_v2_id, xml_renderer<osprey_data_changed_v2>, 0, properties_modified_renderer,
     WSTR("OSPREY Data Changed")},
    {&heron_unit_data_changed_id, xml_renderer<heron_unit_data_changed>, 0, properties_modified_renderer,
     WSTR("HERON Unit Data Changed")},
    {&heron_device_data_changed_id, xml_renderer<heron_device_data_changed>, 0, properties_modified_renderer,
     WSTR("HERON Device Data Changed")},
    {&alarm_status_changed_id, xml_renderer<alarm_status_changed_xml>, 0, text_renderer<alarm_status_changed_text>,
     WSTR("Alarm Status Changed")},
    {&unit_destroy_id, xml_renderer<unit_destroy_xml>, 0, text_renderer<unit_destroy_text>,
     WSTR("Corvane Unit Destroy")},
    {&unit_inserted_id, unit_membership_renderer, 0, text_renderer<unit_inserted_text, exact_size<5>>,
     WSTR("Corvane Unit Inserted")},
    {&unit_removed_id, unit_membership_renderer, 0, text_renderer<unit_removed_text, exact_size<5>>,
     WSTR("Corvane Unit Removed")},
    {&corvane_unit_properties_saved_id, xml_renderer<corvane_unit_properties_saved_xml>, 0,
     text_renderer<corvane_unit_properties_saved_text>, WSTR("Corvane Unit Properties Saved")},
    {&unit_properties_saved_id, xml_renderer<unit_properties_saved_xml>, 0, text_renderer<unit_properties_saved_text>,
     WSTR("Unit Properties Saved")},
    {&gull_properties_saved_id, xml_renderer<gull_properties_saved_xml>, 0, text_renderer<gull_properties_saved_text>,
     WSTR("GULL Properties Saved")},
    {&unit_alarm_state_changed_id, xml_renderer<unit_alarm_state_changed_xml>, 0,
     text_renderer<unit_alarm_state_changed_text>, WSTR("Corvane Unit Alarm State Changed")},
    {&device_parameters_changed_id, xml_renderer<device_parameters_changed_xml>, 0,
     text_renderer<device_parameters_changed_text>, WSTR("Corvane Device Parameters Changed")},
    {&register_network_id_id, xml_renderer<register_network_id_xml>, 0, text_renderer<register_network_id_text>,
     WSTR("Corvane Register Network ID")},
    {&paramfile_write_id, xml_renderer<paramfile_write_xml>, 0, text_renderer<paramfile_write_text>,
     WSTR("Corvane Unit Paramfile Write")},
    {&paramfile_autosave_id, xml_renderer<paramfile_autosave_xml>, 0, text_renderer<paramfile_autosave_text>,
     WSTR("Corvane Unit Paramfile Autosave")},
    {&unit_upgrade_id, xml_renderer<unit_upgrade_xml>, 0, text_renderer<unit_upgrade_text>,
     WSTR("Corvane Unit Upgrade")},
    {&multiple_unit_upgrade_id, xml_renderer<multiple_unit_upgrade_xml>, 0, text_renderer<multiple_unit_upgrade_text>,
     WSTR("Corvane Multiple Unit Upgrade")},
    {&heartbeat_toggled_id, xml_renderer<heartbeat_toggled_xml>, 0, text_renderer<heartbeat_toggled_text>,
     WSTR("Heartbeat Toggled")},
    {&home_state_timeout_changed_id, xml_renderer<home_state_timeout_changed_xml>, 0,
     text_renderer<home_state_timeout_changed_text>, WSTR("Auto Home-state Timeout Changed")},
    {&unit_registration_id, xml_renderer<unit_registration_xml>, 0, text_renderer<unit_registration_text>,
     WSTR("Corvane Unit Registration")},
    {&unit_status_id, xml_renderer<unit_status_xml, exact_size<8>>, 0, text_renderer<unit_status_text, exact_size<8>>,
     WSTR("Unit Status")},
    {&multicast_port_failure_id, nullptr, 0, text_renderer<multicast_port_failure_text, counted_message_size>,
     WSTR("Multicast Port Failure")},
    {&unit_reset_id, xml_renderer<unit_reset_xml>, 0, text_renderer<unit_reset_text>, WSTR("Corvane Unit Reset")},
    {&subnet_reset_id, xml_renderer<subnet_reset_xml>, 0, text_renderer<subnet_reset_text>, WSTR("Subnet Reset")},
    {&save_to_flash_id, xml_renderer<save_to_flash_xml>, 0, text_renderer<save_to_flash_text>,
     WSTR("Corvane Unit Save to Flash")},
    {&force_registration_id, xml_renderer<force_registration_xml>, 0, text_renderer<force_registration_text>,
     WSTR("Corvane Unit Force Registration")},
    {&unit_removed_v32_id, xml_renderer<unit_removed_v32_xml>, 0, text_renderer<unit_removed_v32_text>,
     WSTR("Corvane Unit Removed Orrin 3.2")},
    {&unit_declared_id, xml_renderer<unit_declared_xml>, 0, text_renderer<unit_declared_text>,
     WSTR("Corvane Unit Declared")},
    {&unit_inserted_v32_id, xml_renderer<unit_inserted_v32_xml>, 0, text_renderer<unit_inserted_v32_text>,
     WSTR("Corvane Unit Inserted Orrin 3.2")},
    {&network_id_inserted_id, xml_renderer<network_notice_renderers<network_id_inserted_notice>::xml>, 0,
     text_renderer<network_notice_renderers<network_id_inserted_notice>::text>, WSTR("Network ID Inserted")},
    {&network_id_removed_id, xml_renderer<network_notice_renderers<network_id_removed_notice>::xml>, 0,
     text_renderer<network_notice_renderers<network_id_removed_notice>::text>, WSTR("Network ID Removed")},
    {&global_reinitialize_id, xml_renderer<network_notice_renderers<global_reinitialize_notice>::xml>, 0,
     text_renderer<network_notice_renderers<global_reinitialize_notice>::text>, WSTR("Corvane Global Reinitialize")},
    {&scan_network_id, xml_renderer<network_notice_renderers<scan_network_notice>::xml>, 0,
     text_renderer<network_notice_renderers<scan_network_notice>::text>, WSTR("Corvane Scan Network")},
    {&manager_properties_saved_id, xml_renderer<manager_properties_saved_xml>, 0,
     text_renderer<manager_properties_saved_text>, WSTR("Corvane Manager Properties Saved")},
    {&unit_properties_saved_v32_id, xml_renderer<unit_properties_saved_v32_xml>, 0,
     text_renderer<unit_properties_saved_v32_text>, WSTR("Corvane Unit Properties Saved Orrin 3.2")},
    {&device_properties_saved_id, xml_renderer<device_properties_saved_xml>, 0,
     text_renderer<device_properties_saved_text>, WSTR("Corvane Device Properties Saved")},
    {&modem_flag_id, xml_renderer<modem_flag_xml>, 0, text_renderer<modem_flag_text>, WSTR("Corvane Modem Flag")},
    {&demodulator_failed_id, nullptr, 0, text_renderer<demodulator_failed_text>, WSTR("Demodulator Failed Event")},
}};

} // namespace

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
