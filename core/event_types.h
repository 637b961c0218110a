// The event types this module renders, in the order the host receives them.
#pragma once

#include <cstdint>
#include <span>

#include "core/renderer.h"
#include "core/win_types.h"
#include "core/wide.h"

struct event_type_row {
    const GUID* eventType;
    EventXmlRenderer xmlRenderer;   // null where the type has no XML form
    std::uint32_t reserved;         // always 0
    EventTextRenderer textRenderer;
    const wchar* name;
};

// All 40 rows; the table is constant and lives as long as the module.
std::span<const event_type_row> event_types() noexcept;

// The row of an event type, or null for a type the module does not render.
const event_type_row* find_event_type(const GUID& id) noexcept;
