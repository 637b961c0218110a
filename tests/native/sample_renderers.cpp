// The native tests take the renderers straight from the event type table.
#include "core/event_types.h"
#include "core/guid.h"
#include "events/alarm_type_map.h"
#include "tests/common/sample_check.h"
#include "tests/native/test_text.h"

namespace sample_check {

std::string take_error_description()
{
    return ::take_error_description();
}

void register_alarm_types()
{
    samples::register_alarm_types(&RegisterAlarmTypeMap);
}

renderers find_renderers(const GUID& id)
{
    for (const event_type_row& row : event_types())
        if (same_guid(*row.eventType, id))
            return {row.xmlRenderer, row.textRenderer};
    return {};
}

} // namespace sample_check
