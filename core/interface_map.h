// QueryInterface from a table: one row per interface an object answers, in
// the order it answers them. The first row also stands for IUnknown, so the
// object's identity is always the same pointer.
#pragma once

#include <cstddef>

#include "core/win_types.h"

template <class Object>
struct interface_entry {
    const IID* iid;
    IUnknown* (*cast)(Object*) noexcept;
};

// The row for `Interface`, reached through the base `Via` where the object
// holds it more than once (IPersist through IMoniker, for instance).
template <class Object, class Interface, class Via = Interface>
constexpr interface_entry<Object> interface_row(const IID& iid) noexcept
{
    return {&iid,
            [](Object* object) noexcept -> IUnknown* { return static_cast<Interface*>(static_cast<Via*>(object)); }};
}

template <class Object, std::size_t Rows>
HRESULT query_interface(Object* object, const interface_entry<Object> (&map)[Rows], REFIID riid, void** ppv) noexcept
{
    if (!ppv)
        return E_POINTER;
    IUnknown* found = nullptr;
    if (IsEqualIID(riid, IID_IUnknown))
        found = map[0].cast(object);
    for (std::size_t i = 0; !found && i < Rows; ++i)
        if (IsEqualIID(riid, *map[i].iid))
            found = map[i].cast(object);
    *ppv = found;
    if (!found)
        return E_NOINTERFACE;
    found->AddRef();
    return S_OK;
}
