#include "module/win32_hive.h"

#include <windows.h>

namespace registry {
namespace {

// Registry calls want NUL-terminated text.
wstring terminated(wstring_view text)
{
    return wstring(text);
}

HRESULT from_status(LONG status) noexcept
{
    return status == ERROR_SUCCESS ? S_OK : HRESULT_FROM_WIN32(status);
}

bool absent(LONG status) noexcept
{
    return status == ERROR_FILE_NOT_FOUND || status == ERROR_PATH_NOT_FOUND;
}

// An open key that closes itself.
class open_key {
public:
    LONG open(wstring_view path, REGSAM access)
    {
        return RegOpenKeyExW(HKEY_CLASSES_ROOT, terminated(path).c_str(), 0, access, &key_);
    }
    ~open_key()
    {
        if (key_)
            RegCloseKey(key_);
    }
    HKEY get() const noexcept { return key_; }

private:
    HKEY key_ = nullptr;
};

}   // namespace

HRESULT classes_root::create_key(wstring_view path)
{
    HKEY key = nullptr;
    const LONG status =
        RegCreateKeyExW(HKEY_CLASSES_ROOT, terminated(path).c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
    if (key)
        RegCloseKey(key);
    return from_status(status);
}

HRESULT classes_root::set_value(wstring_view path, wstring_view name, wstring_view data)
{
    const wstring text = terminated(data);
    const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar));
    return from_status(RegSetKeyValueW(HKEY_CLASSES_ROOT, terminated(path).c_str(),
                                       name.empty() ? nullptr : terminated(name).c_str(), REG_SZ, text.c_str(), bytes));
}

HRESULT classes_root::delete_value(wstring_view path, wstring_view name)
{
    open_key key;
    LONG status = key.open(path, KEY_SET_VALUE);
    if (status == ERROR_SUCCESS)
        status = RegDeleteValueW(key.get(), name.empty() ? nullptr : terminated(name).c_str());
    return absent(status) ? S_OK : from_status(status);
}

HRESULT classes_root::delete_tree(wstring_view path)
{
    // With a subkey named, the key itself goes as well.
    const LONG status = RegDeleteTreeW(HKEY_CLASSES_ROOT, terminated(path).c_str());
    return absent(status) ? S_OK : from_status(status);
}

HRESULT classes_root::delete_if_empty(wstring_view path)
{
    DWORD subkeys = 0, values = 0;
    {
        open_key key;
        const LONG status = key.open(path, KEY_QUERY_VALUE);
        if (absent(status))
            return S_OK;
        if (status != ERROR_SUCCESS)
            return from_status(status);
        const LONG query = RegQueryInfoKeyW(key.get(), nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values,
                                            nullptr, nullptr, nullptr, nullptr);
        if (query != ERROR_SUCCESS)
            return from_status(query);
    }
    if (subkeys != 0 || values != 0)
        return S_OK;
    const LONG status = RegDeleteKeyW(HKEY_CLASSES_ROOT, terminated(path).c_str());
    return absent(status) ? S_OK : from_status(status);
}

}   // namespace registry
