// The status of a named alarm, as "Alarm Status Changed" reports it, with
// the colour in which a change into that status is shown.
#pragma once

#include <cstdint>

#include "core/option_entry.h"
#include "core/wide.h"
#include "events/colours.h"

struct alarm_status_row {
    std::uint8_t value;
    wstring_view name;
    render::colour colour;
};

inline constexpr alarm_status_row alarm_statuses[] = {
    {0, "Unknown"_w, render::colours::grey},
    {1, "OK"_w, render::colours::green},
    {2, "Latched"_w, render::colours::yellow},
    {3, "Alarmed"_w, render::colours::red},
};
static_assert(values_unique(alarm_statuses));

// What a status byte outside the table shows as.
inline constexpr alarm_status_row bad_alarm_status = {0, "<bad value>"_w, render::colours::grey};

constexpr const alarm_status_row& alarm_status(std::uint8_t value) noexcept
{
    return row_or(alarm_statuses, value, bad_alarm_status);
}
