// The native tests take the renderers straight from the event type table.
#include "events/alarm_type_map.h"
#include "module/event_types.h"
#include "tests/common/sample_check.h"
#include "tests/native/test_text.h"

namespace sample_check {

void register_alarm_types()
{
    samples::register_alarm_types(&alarm_types::register_records);
}

renderers find_renderers(const GUID& id)
{
    const event_type_row* row = find_event_type(id);
    return row ? renderers{row->xmlRenderer, row->textRenderer} : renderers{};
}

}   // namespace sample_check
