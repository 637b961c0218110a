// The alarm state of a unit, as "Corvane Unit Alarm State Changed" reports it.
#pragma once

#include <cstdint>
#include <iterator>

#include "core/option_entry.h"

namespace render {

// Every state, once: its name in code, its display name, its value.
// "Reinitalize" is spelled as operators have always read it.
#define KORPS_ALARM_STATES(row)                                                                                        \
    row(ok, "Ok", 0) row(hard_reset, "Hard Reset", 1) row(reinitialize, "Reinitalize", 2)                              \
        row(limit_fault, "Limit Fault", 3)

enum class alarm_state : std::uint32_t {
#define KORPS_ALARM_STATE_VALUE(name, text, value) name = value,
    KORPS_ALARM_STATES(KORPS_ALARM_STATE_VALUE)
#undef KORPS_ALARM_STATE_VALUE
};

inline constexpr OptionEntry alarm_state_options[] = {
#define KORPS_ALARM_STATE_OPTION(name, text, value) OPTION(text, value),
    KORPS_ALARM_STATES(KORPS_ALARM_STATE_OPTION)
#undef KORPS_ALARM_STATE_OPTION
};
static_assert(values_unique(alarm_state_options), "one row per state");

// The name of a state, or "(invalid)" for a value no row holds.
constexpr wstring_view alarm_state_name(alarm_state state) noexcept
{
    return lookup_option(alarm_state_options, static_cast<std::uint32_t>(state));
}

}   // namespace render
