#include "module/registrar.h"

namespace registry {

HRESULT register_script(const script& keys, hive& registry)
{
    for (const key& k : keys) {
        HRESULT result = k.removal == flag::force_remove ? registry.delete_tree(k.path) : S_OK;
        if (SUCCEEDED(result))
            result = registry.create_key(k.path);
        for (auto v = k.values.begin(); SUCCEEDED(result) && v != k.values.end(); ++v)
            result = registry.set_value(k.path, v->name, v->data);
        if (FAILED(result)) {
            unregister_script(keys, registry);
            return result;
        }
    }
    return S_OK;
}

HRESULT unregister_script(const script& keys, hive& registry)
{
    HRESULT first_failure = S_OK;
    const auto note = [&](HRESULT result) {
        if (FAILED(result) && SUCCEEDED(first_failure))
            first_failure = result;
    };
    for (auto k = keys.rbegin(); k != keys.rend(); ++k) {
        switch (k->removal) {
        case flag::no_remove:
            break;
        case flag::force_remove:
            note(registry.delete_tree(k->path));
            break;
        case flag::none:
            for (const value& v : k->values)
                note(registry.delete_value(k->path, v.name));
            note(registry.delete_if_empty(k->path));
            break;
        }
    }
    return first_failure;
}

}   // namespace registry
