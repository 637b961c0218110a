// The module: its lock count, its AppID, the classes it serves and their
// registration. One instance lives from load to unload.
#pragma once

#include <span>
#include <string>

#include <objbase.h>

#include "module/registrar.h"
#include "module/resource_ids.h"

class CKORPSModule {
public:
    static constexpr const wchar_t* app_id = L"{E5693989-AC7B-424D-B28F-89CB8FA28587}";
    static constexpr UINT app_id_script = IDR_REGISTRY_APPID;

    // One creatable class: its cached class object and its registry script.
    struct class_entry {
        const CLSID* clsid;
        IUnknown* (*class_object)() noexcept;
        UINT script;   // REGISTRY resource
    };

    static CKORPSModule& Instance() noexcept;

    // The merged proxy/stub's class objects first, then the object map's.
    HRESULT GetClassObject(REFCLSID clsid, REFIID iid, void** ppv) noexcept;

    // S_OK when no object of the module is alive and no lock is held; a
    // failure of the proxy/stub is passed on.
    HRESULT CanUnloadNow() noexcept;

    HRESULT RegisterServer() noexcept;
    HRESULT UnregisterServer() noexcept;

    static std::span<const class_entry> ObjectMap() noexcept;

    // Every key that registration writes for the module at `path`, in the
    // order it writes them: the scripts that `resources` (a korps.dll)
    // carries, then what the platform's proxy registration writes for the
    // merged proxy/stub. Installer packages are made from these.
    static registry::script RegistryKeys(HMODULE resources, const std::wstring& path);

private:
    CKORPSModule() = default;

    // Runs one REGISTRY resource in either direction.
    void RunScript(UINT resource, bool install);
};
