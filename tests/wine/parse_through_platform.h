// A "kor:" display name parsed by the platform (MkParseDisplayName), which
// finds the moniker class through the registered "kor" scheme, in a
// multithreaded apartment of its own.
#pragma once

#include <string>

#include <objidl.h>

#include "core/com_ptr.h"

struct platform_parse {
    HRESULT result = E_FAIL;
    ULONG eaten = 0;
    std::wstring displayName;   // the moniker's own
    std::wstring loadedFrom;   // the korps.dll the class came from
};

inline platform_parse parse_through_platform(const wchar_t* name)
{
    platform_parse parsed;
    if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)))
        return parsed;
    {
        com_ptr<IBindCtx> context;
        com_ptr<IMoniker> moniker;
        parsed.result = CreateBindCtx(0, context.put());
        if (SUCCEEDED(parsed.result))
            parsed.result = MkParseDisplayName(context.get(), name, &parsed.eaten, moniker.put());
        LPOLESTR display = nullptr;
        if (SUCCEEDED(parsed.result) && SUCCEEDED(moniker->GetDisplayName(context.get(), nullptr, &display))) {
            parsed.displayName = display;
            CoTaskMemFree(display);
        }
        wchar_t path[MAX_PATH];
        if (const HMODULE korps = GetModuleHandleW(L"korps.dll"))
            parsed.loadedFrom.assign(path, GetModuleFileNameW(korps, path, MAX_PATH));
    }
    CoUninitialize();
    return parsed;
}
