// The module's exported entry points. None lets an exception out.
#define KORPS_MODULE_BUILD   // the module defines the exports with its own types
#include <cstddef>
#include <type_traits>

#include "module/enum_eventui.h"
#include "events/alarm_type_map.h"
#include "module/event_types.h"
#include "module/korps_module.h"

static_assert(std::is_same_v<::EventXmlRenderer, decltype(EVENTUI::xmlRenderer)>,
              "the core's renderer shape is the host's");
static_assert(std::is_same_v<::EventTextRenderer, decltype(EVENTUI::textRenderer)>,
              "the core's renderer shape is the host's");
// RegisterAlarmTypeMap is defined with the core's record; hosts pass ALARMTYPE.
static_assert(sizeof(ALARMTYPE) == sizeof(alarm_type_record) &&
                  offsetof(ALARMTYPE, id) == offsetof(alarm_type_record, id) &&
                  offsetof(ALARMTYPE, name) == offsetof(alarm_type_record, name),
              "the core's alarm type record is the host's");

extern "C" {

HRESULT __stdcall UI_EnumEVENTUI(IEnumEVENTUI** ppEnum)
{
    const auto rows = event_types();
    return CEnumEVENTUI::Create(rows.data(), rows.data() + rows.size(), ppEnum);
}

int __cdecl RegisterAlarmTypeMap(int count, const alarm_type_record* records)
{
    return alarm_types::register_records(count, records);
}

HRESULT __stdcall DllGetClassObject(REFCLSID clsid, REFIID iid, void** ppv)
{
    return CKORPSModule::Instance().GetClassObject(clsid, iid, ppv);
}

HRESULT __stdcall DllCanUnloadNow()
{
    return CKORPSModule::Instance().CanUnloadNow();
}

HRESULT __stdcall DllRegisterServer()
{
    return CKORPSModule::Instance().RegisterServer();
}

HRESULT __stdcall DllUnregisterServer()
{
    return CKORPSModule::Instance().UnregisterServer();
}

BOOL __stdcall DllMain(HINSTANCE instance, DWORD reason, void*)
{
    if (reason == DLL_PROCESS_ATTACH)
        DisableThreadLibraryCalls(instance);
    return TRUE;
}

}   // extern "C"
