// The module as a host sees it: korps.dll loaded with LoadLibrary and its
// exports resolved by name.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "core/com_ptr.h"
#include "include/korps/korps.h"
#include "korps/korps_interfaces.h"

class korps_module {
public:
    static korps_module& get();   // loaded once for the whole test run

    template <class Function>
    Function export_named(const char* name) const
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }

    UI_EnumEVENTUI_t UI_EnumEVENTUI;
    RegisterAlarmTypeMap_t RegisterAlarmTypeMap;
    HRESULT(__stdcall* DllCanUnloadNow)();
    HRESULT(__stdcall* DllGetClassObject)(REFCLSID clsid, REFIID iid, void** ppv);
    HRESULT(__stdcall* DllRegisterServer)();
    HRESULT(__stdcall* DllUnregisterServer)();

    // The moniker's class object through the given interface.
    template <class Interface>
    com_ptr<Interface> class_object() const
    {
        com_ptr<Interface> object;
        EXPECT_EQ(DllGetClassObject(CLSID_KorMoniker, __uuidof(Interface), object.put_void()), S_OK);
        return object;
    }

    // Where the module was loaded from, as registration writes it.
    std::wstring path() const;

private:
    korps_module();
    HMODULE module_;
};
