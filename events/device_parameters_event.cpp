#include "events/device_parameters_event.h"

#include <optional>
#include <stdexcept>

#include "core/com_ptr.h"
#include "core/errors.h"
#include "core/platform.h"
#include "core/text_format.h"
#include "devices/device_types.h"
#include "devices/family_a_record.h"

namespace {

using family_a::record_kind;
using family_a::section;

// What the head of the payload selects: a family A record, or a record of a
// unit family this module does not render.
struct selection {
    bool deviceRecord;
    std::uint8_t deviceType;
    std::uint8_t address;   // device records only
    std::optional<record_kind> record;
};

constexpr std::nullopt_t other_family = std::nullopt;
constexpr record_kind r1_unit{family_a::r1, section::unit};
constexpr record_kind r1_demodulator{family_a::r1, section::demodulator};
constexpr record_kind r2{family_a::r2, section::demodulator};
constexpr record_kind r3_unit{family_a::r3, section::unit};
constexpr record_kind r3_demodulator{family_a::r3, section::demodulator};

using namespace device_types;

constexpr selection selections[] = {
    {false, fcn3l, 0, r1_unit},
    {false, fcn4l, 0, r1_unit},
    {false, fcn3al, 0, r3_unit},
    {true, fcn3l, 207, r1_demodulator},
    {true, fcn4l, 207, r1_demodulator},
    {true, fcn3l, 205, r2},
    {true, fcn4l, 205, r2},
    {true, fcn3al, 207, r3_demodulator},
    {false, fcn1l, 0, other_family},
    {false, fcn1i, 0, other_family},
    {false, osprey, 0, other_family},
    {false, fcn1al, 0, other_family},
    {true, fcn1l, 202, other_family},
    {true, fcn1l, 203, other_family},
    {true, fcn1i, 200, other_family},
    {true, fcn1i, 201, other_family},
    {true, osprey, 1, other_family},
    {true, osprey, 2, other_family},
    {true, fcn1al, 222, other_family},
    {true, fcn1al, 223, other_family},
    {true, fcn3al, 227, other_family},
};

[[noreturn]] void refuse_other_family()
{
    const com_ptr<com::error_info> info(platform::create_error_info(messages::unit_family_not_supported));
    throw com::error(E_NOTIMPL, info.get());
}

// Reads the record kind, the device type and, for a device record, the
// device address, and names the record that follows.
record_kind select(payload_cursor& in)
{
    const bool device_record = in.read_u8() != 0;
    const std::uint8_t type = in.read_u8();
    const std::uint8_t address = device_record ? in.read_u8() : 0;
    bool type_known = false;
    for (const selection& s : selections) {
        if (s.deviceRecord != device_record || s.deviceType != type)
            continue;
        type_known = true;
        if (device_record && s.address != address)
            continue;
        if (!s.record)
            refuse_other_family();
        return *s.record;
    }
    if (!device_record)
        throw std::runtime_error(messages::invalid_unit_type);
    if (type_known && type == osprey)
        throw std::runtime_error(messages::invalid_osprey_device_address);
    throw std::runtime_error(messages::invalid_device_type);
}

}   // namespace

void device_parameters_changed_xml(payload_cursor& in, output::xml& out)
{
    xml_change_list changes(out);
    family_a::write_changes(in, changes, select(in));
}

render::colour device_parameters_changed_text(payload_cursor& in, output::text& out)
{
    text_change_list changes(out);
    family_a::write_changes(in, changes, select(in));
    out << "."_w;
    return render::colours::command;
}
