// The alarm state of a unit, as "Corvane Unit Alarm State Changed" reports it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

#include "core/errors.h"
#include "core/option_entry.h"

namespace render {

enum class alarm_state : std::uint32_t {
    ok = 0,
    hard_reset = 1,
    reinitialize = 2,
    limit_fault = 3,
};

// The display names. "Reinitalize" is spelled as operators have always read it.
inline constexpr OptionEntry alarm_state_options[] = {
    OPTION("Ok", 0),
    OPTION("Hard Reset", 1),
    OPTION("Reinitalize", 2),
    OPTION("Limit Fault", 3),
};
static_assert(std::size(alarm_state_options) == 4, "one row per alarm state");
static_assert(values_are_positions(alarm_state_options), "states are looked up by value and by position");

// The row at `position`; a position past the table is an invalid option.
inline const OptionEntry& alarm_state_option(std::size_t position)
{
    if (position >= std::size(alarm_state_options))
        throw data::invalid_option_t<alarm_state>();
    return alarm_state_options[position];
}

// The name of a state, or "(invalid)" for a value no row holds.
constexpr wstring_view alarm_state_name(alarm_state state) noexcept
{
    return lookup_option(alarm_state_options, static_cast<std::uint32_t>(state));
}

} // namespace render
