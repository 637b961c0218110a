/*
 * The identifiers of the event types korps.dll renders, one GUID constant
 * KORPS_EVENT_<SYMBOL> a row of korps_event_list.h, which also gives each
 * type's display name and its place in the order UI_EnumEVENTUI hands them
 * out. Compiles as C and as C++. As with the platform's own GUIDs, one source
 * file of the host defines them by including <initguid.h> first
 * (korps/korps_guids.cpp does).
 */
#ifndef KORPS_KORPS_EVENTS_H
#define KORPS_KORPS_EVENTS_H

#include <windows.h>

#include "korps_event_list.h"

#define KORPS_EVENT_DEFINE_GUID_(symbol, name, l, w1, w2, b1, b2, b3, b4, b5, b6, b7, b8)                              \
    DEFINE_GUID(KORPS_EVENT_##symbol, l, w1, w2, b1, b2, b3, b4, b5, b6, b7, b8);
KORPS_EVENT_TYPES(KORPS_EVENT_DEFINE_GUID_)
#undef KORPS_EVENT_DEFINE_GUID_

#endif /* KORPS_KORPS_EVENTS_H */
