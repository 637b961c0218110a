// The summary status of a unit, as "Unit Status" reports it: a signed count
// of active alarms, with negative values for units out of reach.
#pragma once

#include <cstdint>

#include "core/text_format.h"
#include "events/colours.h"

struct unit_status {
    std::int32_t value;
};

inline constexpr std::int32_t unit_disabled = -2;

// "Disabled", "Disconnected", "OK", "Alarmed", or the number of alarms.
template <text_sink Out>
Out& operator<<(Out& out, unit_status status)
{
    if (status.value == unit_disabled)
        return out << "Disabled"_w;
    if (status.value < 0)
        return out << "Disconnected"_w;
    if (status.value == 0)
        return out << "OK"_w;
    if (status.value == 1)
        return out << "Alarmed"_w;
    return out << decimal(status.value) << " Alarms"_w;
}

// Grey while the unit is out of reach, green when it is clear, red while
// anything is alarmed.
constexpr render::colour colour_of(unit_status status) noexcept
{
    return status.value < 0 ? render::colours::grey : status.value == 0 ? render::colours::green : render::colours::red;
}
