#include "events/alarm_type_map.h"

#include <cstring>
#include <exception>
#include <map>
#include <stdexcept>

#include "core/messages.h"

namespace alarm_types {

bool id_order::operator()(const GUID& a, const GUID& b) const noexcept
{
    return std::memcmp(&a, &b, sizeof(GUID)) < 0;
}

namespace {

using map = std::map<GUID, const char*, id_order>;

// Built on first use, so that a host (or a test) registering from its own
// static initialisers never finds it unconstructed.
map& the_map()
{
    static map names;
    return names;
}

}   // namespace

const char* name_of(const GUID& id)
{
    const map& names = the_map();
    const auto found = names.find(id);
    if (found == names.end() || !found->second)
        throw std::runtime_error(messages::bad_alarm_id);
    return found->second;
}

int register_records(int count, const alarm_type_record* records) noexcept
{
    if (count <= 0 || !records)
        return 0;
    map& names = the_map();
    try {
        for (int i = 0; i < count; ++i)
            names[records[i].id] = records[i].name;
    } catch (const std::exception&) {
        // Out of memory: the call has no failure result to report it with.
        // What was registered stays; an identifier that did not make it is
        // refused as "bad alarm id" when an event names it.
    }
    return 0;
}

}   // namespace alarm_types
