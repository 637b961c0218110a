#include "tests/wine/module_fixture.h"

#include <gtest/gtest.h>

#include <oleauto.h>

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
}

std::string take_error_description()
{
    IErrorInfo* info = nullptr;
    if (GetErrorInfo(0, &info) != S_OK || !info)
        return {};
    BSTR description = nullptr;
    std::string text;
    if (SUCCEEDED(info->GetDescription(&description)) && description) {
        const int length = WideCharToMultiByte(CP_UTF8, 0, description, -1, nullptr, 0, nullptr, nullptr);
        if (length > 1) {
            text.resize(static_cast<std::size_t>(length - 1));
            WideCharToMultiByte(CP_UTF8, 0, description, -1, text.data(), length, nullptr, nullptr);
        }
        SysFreeString(description);
    }
    info->Release();
    return text;
}
