// One row of the event type table: what the enumerator copies into an
// EVENTUI record.
#pragma once

#include <cstdint>

#include "core/renderer.h"
#include "core/wide.h"
#include "core/win_types.h"

struct event_type_row {
    const GUID* eventType;
    EventXmlRenderer xmlRenderer;   // null where the type has no XML form
    std::uint32_t reserved;         // always 0
    EventTextRenderer textRenderer;
    const wchar* name;
};
