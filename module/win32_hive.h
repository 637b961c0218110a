// The registrar's registry on Windows: keys below HKEY_CLASSES_ROOT.
#pragma once

#include "module/registrar.h"

namespace registry {

class classes_root final : public hive {
public:
    HRESULT create_key(wstring_view path) override;
    HRESULT set_value(wstring_view path, wstring_view name, wstring_view data) override;
    HRESULT delete_value(wstring_view path, wstring_view name) override;
    HRESULT delete_tree(wstring_view path) override;
    HRESULT delete_if_empty(wstring_view path) override;
};

}   // namespace registry
