// One row of the event type table: what the enumerator copies into an
// EVENTUI record, and what the module's own tools ask beyond it.
#pragma once

#include <cstdint>

#include "core/renderer.h"
#include "core/wide.h"
#include "core/win_types.h"

struct event_type_row {
    const GUID* eventType;
    EventXmlRenderer xmlRenderer;   // null where the type has no XML form
    std::uint32_t reserved;   // always 0
    EventTextRenderer textRenderer;
    const wchar* name;
    // Not part of the host's record: the room each form needs.
    render::room_function xmlRoom;   // null with xmlRenderer
    render::room_function textRoom;
};

// A row from the two forms of an event type.
constexpr event_type_row make_event_type_row(const GUID& id, render::form<EventXmlRenderer> xml,
                                             render::form<EventTextRenderer> text, const wchar* name) noexcept
{
    return {&id, xml.render, 0, text.render, name, xml.room, text.room};
}
