#include "tests/wine/module_fixture.h"

#include <gtest/gtest.h>

korps_module& korps_module::get()
{
    static korps_module module;
    return module;
}

korps_module::korps_module() : module_(LoadLibraryW(L"korps.dll"))
{
    if (!module_)
        throw std::runtime_error("korps.dll did not load");
    UI_EnumEVENTUI = export_named<UI_EnumEVENTUI_t>("UI_EnumEVENTUI");
    RegisterAlarmTypeMap = export_named<RegisterAlarmTypeMap_t>("RegisterAlarmTypeMap");
    DllCanUnloadNow = export_named<HRESULT(__stdcall*)()>("DllCanUnloadNow");
    DllGetClassObject = export_named<decltype(DllGetClassObject)>("DllGetClassObject");
    DllRegisterServer = export_named<HRESULT(__stdcall*)()>("DllRegisterServer");
    DllUnregisterServer = export_named<HRESULT(__stdcall*)()>("DllUnregisterServer");
}

std::wstring korps_module::path() const
{
    wchar_t text[MAX_PATH];
    const DWORD n = GetModuleFileNameW(module_, text, MAX_PATH);
    return std::wstring(text, n);
}
