#include "events/data_changed_events.h"

#include "core/text_format.h"
#include "devices/change_set.h"

namespace {

using change_sets::body;
using change_sets::change_set;
using change_sets::section;

// The section lists, bit 0 first, with each event's own spelling of its
// fields ("Demodualtors" and the two forms of the home state timeout are what
// the consoles match on).
constexpr section falcon_sections[] = {
    {"Name"_w, body::wide_text},
    {"Address"_w, body::ipv4},
    {"Routes"_w, body::routes_b},
    {"QosEnable"_w, body::signed32},
    {"EnableHeartbeat"_w, body::signed32},
    {"UnlockAlarmMask"_w, body::signed32},
    {"FrontPanelLockout"_w, body::signed32},
    {"AutoHomeStateTimeout"_w, body::unsigned32},
};

constexpr section osprey_sections[] = {
    {"Name"_w, body::wide_text},
    {"FIPS Rate"_w, body::byte},
    {"Network Id"_w, body::unsigned32},
    {"IP Address"_w, body::unsigned32},
    {"SubnetMask"_w, body::unsigned32},
    {"Heart Beat Enabled"_w, body::unsigned32},
    {"Auto Home State Timeout"_w, body::unsigned32},
    {"Management Enabled"_w, body::unsigned32},
    {"Routes"_w, body::routes_a},
};

constexpr section heron_unit_sections[] = {
    {"Name"_w, body::wide_text},
    {"Network Id"_w, body::unsigned32},
    {"IP Address"_w, body::unsigned32},
    {"SubnetMask"_w, body::unsigned32},
    {"Show All Demodualtors"_w, body::signed32},
    {"Heart Beat Enabled"_w, body::unsigned32},
    {"Auto Home State Timeout"_w, body::unsigned32},
    {"Management Enabled"_w, body::unsigned32},
};

constexpr section heron_device_sections[] = {
    {"Name"_w, body::wide_text},
    {"ECM Controller"_w, body::signed32},
};

// The second OSPREY row is the first one's list without its last two
// sections, under a one-byte mask.
constexpr std::size_t osprey_v2_sections = 7;

constexpr change_set falcon{1, falcon_sections};
constexpr change_set osprey{2, osprey_sections};
constexpr change_set osprey_v2{1, std::span(osprey_sections).first(osprey_v2_sections)};
constexpr change_set heron_unit{1, heron_unit_sections};
constexpr change_set heron_device{1, heron_device_sections};

static_assert(std::size(falcon_sections) <= 8 && std::size(heron_unit_sections) <= 8 &&
                  std::size(heron_device_sections) <= 8 && osprey_v2_sections <= 8,
              "a one-byte mask names eight sections at most");
static_assert(std::size(osprey_sections) <= 16);

}   // namespace

render::colour properties_modified(payload_cursor&, output::text& out)
{
    out << "Properties were modified."_w;
    return render::colours::inventory;
}

void falcon_data_changed(payload_cursor& in, output::xml& out)
{
    change_sets::write(in, out, falcon);
}

void osprey_data_changed(payload_cursor& in, output::xml& out)
{
    change_sets::write(in, out, osprey);
}

void osprey_data_changed_v2(payload_cursor& in, output::xml& out)
{
    change_sets::write(in, out, osprey_v2);
}

void heron_unit_data_changed(payload_cursor& in, output::xml& out)
{
    change_sets::write(in, out, heron_unit);
}

void heron_device_data_changed(payload_cursor& in, output::xml& out)
{
    change_sets::write(in, out, heron_device);
}
