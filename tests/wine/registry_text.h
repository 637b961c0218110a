// A string value as a test reads it back from the registry.
#pragma once

#include <string>

#include <windows.h>

// The value `name` (null: the default value) of `key` below `root`, in the
// given registry view (0: the program's own, or KEY_WOW64_32KEY and
// KEY_WOW64_64KEY); "(absent)" when there is no such string value.
inline std::wstring registry_text(HKEY root, const std::wstring& key, const wchar_t* name = nullptr, REGSAM view = 0)
{
    HKEY opened = nullptr;
    if (RegOpenKeyExW(root, key.c_str(), 0, KEY_READ | view, &opened) != ERROR_SUCCESS)
        return L"(absent)";
    wchar_t text[512];
    DWORD bytes = sizeof text;
    const LSTATUS status = RegGetValueW(opened, nullptr, name, RRF_RT_REG_SZ, nullptr, text, &bytes);
    RegCloseKey(opened);
    return status == ERROR_SUCCESS ? text : L"(absent)";
}

// The same below HKEY_CLASSES_ROOT, where registration writes.
inline std::wstring classes_text(const std::wstring& key, const wchar_t* name = nullptr, REGSAM view = 0)
{
    return registry_text(HKEY_CLASSES_ROOT, key, name, view);
}
