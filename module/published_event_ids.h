// The event type identifiers exactly as korps/korps_events.h publishes them
// to hosts, in its order, as constant data for the event table to be checked
// against when the module is built. Windows builds only: the header is the
// platform's kind of header.
#pragma once

#include <cstddef>

#include <windows.h>

struct published_event_list {
    GUID ids[64]{};
    std::size_t count = 0;
};

// Each `DEFINE_GUID(...);` line of the header becomes one statement that
// appends its identifier.
consteval published_event_list read_published_event_ids()
{
    published_event_list list;
#pragma push_macro("DEFINE_GUID")
#undef DEFINE_GUID
#define DEFINE_GUID(name, l, w1, w2, b1, b2, b3, b4, b5, b6, b7, b8)                                                   \
    list.ids[list.count++] = (GUID{l, w1, w2, {b1, b2, b3, b4, b5, b6, b7, b8}})
#include "include/korps/korps_events.h"
#pragma pop_macro("DEFINE_GUID")
    return list;
}

inline constexpr published_event_list published_event_ids = read_published_event_ids();
