// The event types this module renders, in the order the host receives them:
// the rows of include/korps/korps_event_list.h, each with its renderers.
#pragma once

#include <cstddef>
#include <span>

#include "events/event_type_row.h"
#include "include/korps/korps_event_list.h"

// The event types by their symbol in the list (the host's KORPS_EVENT_...
// without the prefix); the value is the row's index.
enum class korps_event : std::size_t {
#define KORPS_EVENT_ENUMERATOR(symbol, ...) symbol,
    KORPS_EVENT_TYPES(KORPS_EVENT_ENUMERATOR)
#undef KORPS_EVENT_ENUMERATOR
};

// Every row; the table is constant and lives as long as the module.
std::span<const event_type_row> event_types() noexcept;

// The row of a listed event type.
const event_type_row& event_type(korps_event which) noexcept;

// The row of an event type, or null for a type the module does not render.
const event_type_row* find_event_type(const GUID& id) noexcept;
