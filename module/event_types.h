// The event types this module renders, in the order the host receives them.
#pragma once

#include <span>

#include "events/event_type_row.h"

// All 40 rows; the table is constant and lives as long as the module.
std::span<const event_type_row> event_types() noexcept;

// The row of an event type, or null for a type the module does not render.
const event_type_row* find_event_type(const GUID& id) noexcept;
