#include "module/korps_module.h"

#include <cstring>
#include <string>
#include <vector>

#include "core/boundary.h"
#include "core/errors.h"
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
    {&CLSID_KorMoniker, moniker_class_object, IDR_REGISTRY_KOR_MONIKER},
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

// The text of a REGISTRY resource of `module`, widened from its UTF-8 bytes.
std::wstring script_text(HMODULE module, UINT resource)
{
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

// The REGISTRY resources registration runs, in its order: the AppID's, then
// each class's. Removal runs them the other way round.
std::vector<UINT> registry_scripts()
{
    std::vector<UINT> scripts{CKORPSModule::app_id_script};
    for (const CKORPSModule::class_entry& c : object_map)
        scripts.push_back(c.script);
    return scripts;
}

// The keys of one REGISTRY resource, for the module at `path`.
registry::script script_keys(HMODULE resources, UINT resource, const std::wstring& path)
{
    const registry::replacement replacements[] = {{"APPID", CKORPSModule::app_id}, {"MODULE", path}};
    try {
        return registry::parse_script(script_text(resources, resource), replacements);
    } catch (const registry::script_error& e) {
        throw registry::script_error("REGISTRY " + std::to_string(resource) + ": " + e.what());
    }
}

std::wstring guid_text(const GUID& guid)
{
    wchar_t text[39];
    StringFromGUID2(guid, text, 39);
    return text;
}

struct marshalled_interface {
    IID iid;
    std::wstring name;
    unsigned long methods;
};

std::vector<marshalled_interface> marshalled_interfaces()
{
    std::vector<marshalled_interface> all;
    korps_proxy_interfaces(
        [](void* list, const IID* iid, const char* name, unsigned long methods) {
            static_cast<std::vector<marshalled_interface>*>(list)->push_back(
                {*iid, std::wstring(name, name + std::strlen(name)), methods});
        },
        &all);
    return all;
}

// What the platform's proxy registration writes for the merged proxy/stub:
// each interface under its IID, pointing at the proxy/stub class, and that
// class served by the module. Its removal takes each of these keys whole.
registry::script proxy_keys(const std::wstring& path)
{
    using registry::flag;
    const std::wstring proxy_class = guid_text(*korps_proxy_class());
    registry::script keys;
    for (const marshalled_interface& i : marshalled_interfaces()) {
        const std::wstring key = L"Interface\\" + guid_text(i.iid);
        keys.push_back({key, flag::force_remove, {{L"", i.name}}});
        keys.push_back({key + L"\\NumMethods", flag::none, {{L"", std::to_wstring(i.methods)}}});
        keys.push_back({key + L"\\ProxyStubClsid32", flag::none, {{L"", proxy_class}}});
    }
    const std::wstring class_key = L"CLSID\\" + proxy_class;
    keys.push_back({class_key, flag::force_remove, {{L"", L"PSFactoryBuffer"}}});
    keys.push_back({class_key + L"\\InprocServer32", flag::none, {{L"", path}, {L"ThreadingModel", L"Both"}}});
    return keys;
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

registry::script CKORPSModule::RegistryKeys(HMODULE resources, const std::wstring& path)
{
    registry::script keys;
    for (const UINT resource : registry_scripts()) {
        registry::script more = script_keys(resources, resource, path);
        keys.insert(keys.end(), more.begin(), more.end());
    }
    registry::script proxies = proxy_keys(path);
    keys.insert(keys.end(), proxies.begin(), proxies.end());
    return keys;
}

void CKORPSModule::RunScript(UINT resource, bool install)
{
    const registry::script keys = script_keys(this_module(), resource, module_path());
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
        // The moniker class declares no component categories, so there are
        // none to register after its script.
        for (const UINT resource : registry_scripts())
            RunScript(resource, true);
        return korps_proxy_register(this_module());
    });
}

HRESULT CKORPSModule::UnregisterServer() noexcept
{
    const thread_locale_scope locale(LOCALE_SYSTEM_DEFAULT);
    return guarded([&] {
        HRESULT result = korps_proxy_unregister(this_module());
        const std::vector<UINT> scripts = registry_scripts();
        for (auto resource = scripts.rbegin(); resource != scripts.rend(); ++resource)
            RunScript(*resource, false);
        return result;
    });
}
