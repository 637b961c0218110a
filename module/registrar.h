// Carries a registry script out: writes its keys at registration and takes
// them away again at removal, through whatever registry it is given.
#pragma once

#include "core/win_types.h"
#include "module/registry_script.h"

namespace registry {

// What the registrar needs of a registry: keys below HKEY_CLASSES_ROOT by
// path. Every call answers S_OK or the failure of the registry.
class hive {
public:
    virtual HRESULT create_key(wstring_view path) = 0;
    virtual HRESULT set_value(wstring_view path, wstring_view name, wstring_view data) = 0;
    // S_OK also when the value or key is not there.
    virtual HRESULT delete_value(wstring_view path, wstring_view name) = 0;
    // The key and everything below it; S_OK also when there is no such key.
    virtual HRESULT delete_tree(wstring_view path) = 0;
    // The key only when it holds no subkeys and no values; S_OK otherwise too.
    virtual HRESULT delete_if_empty(wstring_view path) = 0;

protected:
    ~hive() = default;
};

// Registration: keys in script order, a ForceRemove key's old subtree deleted
// first. On a failure what this script wrote so far is removed again, and the
// failure is returned.
HRESULT register_script(const script& keys, hive& registry);

// Removal, children before their parents: NoRemove keys stay; ForceRemove keys
// go with their subtree; other keys lose the values the script gives them and
// go when nothing else is left in them. The first failure is returned, after
// every key has been tried.
HRESULT unregister_script(const script& keys, hive& registry);

}   // namespace registry
