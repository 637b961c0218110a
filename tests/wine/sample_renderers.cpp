// The Windows tests take the renderers from the real module, as the host
// does: by GUID, from the enumerator's records.
#include <cstring>

#include "tests/common/sample_check.h"
#include "tests/wine/module_fixture.h"

namespace sample_check {

void register_alarm_types()
{
    samples::register_alarm_types(korps_module::get().RegisterAlarmTypeMap);
}

renderers find_renderers(const GUID& id)
{
    IEnumEVENTUI* types = nullptr;
    if (FAILED(korps_module::get().UI_EnumEVENTUI(&types)))
        return {};
    renderers found;
    EVENTUI record;
    while (types->Next(1, &record, nullptr) == S_OK)
        if (std::memcmp(&record.eventType, &id, sizeof id) == 0)
            found = {record.xmlRenderer, record.textRenderer};
    types->Release();
    return found;
}

}   // namespace sample_check
