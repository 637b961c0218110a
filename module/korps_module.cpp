#include "module/korps_module.h"

#include <string>

#include "core/boundary.h"
#include "core/module_lock.h"
#include "core/platform.h"
#include "module/proxy_stub.h"
#include "module/thread_locale.h"
#include "module/win32_hive.h"
#include "moniker/kor_moniker_factory.h"

namespace {

IUnknown* moniker_class_object() noexcept
{
    return static_cast<IClassFactory*>(&CKorMoniker::CFactory::Instance());
}

constexpr CKORPSModule::class_entry object_map[] = {
    {&CLSID_KorMoniker, moniker_class_object, 102},
};

// This module, found by an address inside it.
HMODULE this_module() noexcept
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCWSTR>(&this_module), &module);
    return module;
}

std::wstring module_path()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD n = GetModuleFileNameW(this_module(), path.data(), static_cast<DWORD>(path.size()));
        if (n == 0)
            throw com::error(HRESULT_FROM_WIN32(GetLastError()));
        if (n < path.size()) {
            path.resize(n);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

// The text of a REGISTRY resource, widened from its UTF-8 bytes.
std::wstring script_text(UINT resource)
{
    const HMODULE module = this_module();
    HRSRC found = FindResourceW(module, MAKEINTRESOURCEW(resource), L"REGISTRY");
    HGLOBAL loaded = found ? LoadResource(module, found) : nullptr;
    const char* bytes = loaded ? static_cast<const char*>(LockResource(loaded)) : nullptr;
    if (!bytes)
        throw com::error(HRESULT_FROM_WIN32(ERROR_RESOURCE_DATA_NOT_FOUND));
    const std::string_view text(bytes, SizeofResource(module, found));
    std::wstring wide(text.size() + 1, L'\0');
    wide.resize(platform::utf8_to_utf16(text, wide.data(), wide.size()));
    return wide;
}

}   // namespace

CKORPSModule& CKORPSModule::Instance() noexcept
{
    static CKORPSModule module;
    return module;
}

std::span<const CKORPSModule::class_entry> CKORPSModule::ObjectMap() noexcept
{
    return object_map;
}

HRESULT CKORPSModule::GetClassObject(REFCLSID clsid, REFIID iid, void** ppv) noexcept
{
    if (!ppv)
        return E_POINTER;
    *ppv = nullptr;
    if (korps_proxy_DllGetClassObject(clsid, iid, ppv) == S_OK)
        return S_OK;
    *ppv = nullptr;
    for (const class_entry& c : object_map)
        if (IsEqualCLSID(clsid, *c.clsid))
            return c.class_object()->QueryInterface(iid, ppv);
    return CLASS_E_CLASSNOTAVAILABLE;
}

HRESULT CKORPSModule::CanUnloadNow() noexcept
{
    // The proxy/stub's S_FALSE does not keep the module: only its failure
    // counts, and otherwise the module's own lock count decides.
    const HRESULT proxies = korps_proxy_DllCanUnloadNow();
    if (FAILED(proxies))
        return proxies;
    return lifetime::lock_count() == 0 ? S_OK : S_FALSE;
}

void CKORPSModule::RunScript(UINT resource, bool install)
{
    const std::wstring path = module_path();
    const registry::replacement replacements[] = {{"APPID", app_id}, {"MODULE", path}};
    registry::script keys;
    try {
        keys = registry::parse_script(script_text(resource), replacements);
    } catch (const registry::script_error& e) {
        throw registry::script_error("REGISTRY " + std::to_string(resource) + ": " + e.what());
    }
    registry::classes_root classes;
    const HRESULT result =
        install ? registry::register_script(keys, classes) : registry::unregister_script(keys, classes);
    if (FAILED(result))
        throw com::error(result);
}

HRESULT CKORPSModule::RegisterServer() noexcept
{
    const thread_locale_scope locale(LOCALE_SYSTEM_DEFAULT);
    return guarded([&] {
        RunScript(app_id_script, true);
        // The moniker class declares no component categories, so there are
        // none to register after its script.
        for (const class_entry& c : object_map)
            RunScript(c.script, true);
        return korps_proxy_register(this_module());
    });
}

HRESULT CKORPSModule::UnregisterServer() noexcept
{
    const thread_locale_scope locale(LOCALE_SYSTEM_DEFAULT);
    return guarded([&] {
        HRESULT result = korps_proxy_unregister(this_module());
        for (const class_entry& c : object_map)
            RunScript(c.script, false);
        RunScript(app_id_script, false);
        return result;
    });
}
