// The alarm type map: the names under which the host knows its alarm types.
//
// The host registers its alarm identifiers and names once, before any event
// is rendered; "Alarm Status Changed" events then name their alarm through
// it. The map is process-wide, only ever grows, and takes no lock: the host
// finishes registering before it starts rendering.
#pragma once

#include "core/win_types.h"

// One alarm type as the host hands it over. The module keeps the name
// pointer, not a copy, so the host keeps the text alive while it renders.
struct alarm_type_record {
    GUID id;
    const char* name;
};

#if defined(_WIN64)
static_assert(sizeof(alarm_type_record) == 24, "an alarm type crosses the 64-bit module boundary as 24 bytes");
#elif defined(_WIN32)
static_assert(sizeof(alarm_type_record) == 20, "an alarm type crosses the 32-bit module boundary as 20 bytes");
#endif

namespace alarm_types {

// Registers `count` records in array order: a new identifier is added, a known
// one takes the record's name, so the last record of an identifier wins.
// Nothing happens for a count of 0 or less or for a null array. Always 0: the
// contract of the RegisterAlarmTypeMap export (module/exports.cpp), which
// hands its arguments straight here; the module's own tools register the same
// way a host does.
int register_records(int count, const alarm_type_record* records) noexcept;

// The map's order: the 16 identifier bytes as they lie in memory, compared
// as unsigned bytes.
struct id_order {
    bool operator()(const GUID& a, const GUID& b) const noexcept;
};

// The registered name of `id`; throws std::runtime_error "bad alarm id" when
// the identifier is unknown or was registered without a name.
const char* name_of(const GUID& id);

}   // namespace alarm_types
