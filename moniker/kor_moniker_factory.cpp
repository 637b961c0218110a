#include "moniker/kor_moniker_factory.h"

#include "core/interface_map.h"

namespace {

using CFactory = CKorMoniker::CFactory;

constexpr interface_entry<CFactory> interfaces[] = {
    interface_row<CFactory, IClassFromStreamFactory>(IID_IClassFromStreamFactory),
    interface_row<CFactory, IParseDisplayName>(IID_IParseDisplayName),
    interface_row<CFactory, IClassFactory>(IID_IClassFactory),
    interface_row<CFactory, ICreateKorMoniker>(IID_ICreateKorMoniker),
};

} // namespace

CFactory& CFactory::Instance() noexcept
{
    static CFactory instance;
    return instance;
}

HRESULT CFactory::QueryInterface(REFIID riid, void** ppv)
{
    return query_interface(this, interfaces, riid, ppv);
}

HRESULT CFactory::Create(const KorName& name, IMoniker** moniker) noexcept
{
    if (!moniker)
        return E_POINTER;
    *moniker = nullptr;
    return Hand(CKorMoniker::New(name), IID_IMoniker, reinterpret_cast<void**>(moniker));
}

// Hosts name units by MAC address only by parsing "kor:mac-..." names.
HRESULT CFactory::CreateMacMoniker(const BYTE*, IMoniker**)
{
    return E_NOTIMPL;
}

HRESULT CFactory::CreateDeviceMoniker(ULONG deviceType, ULONG address, IMoniker** moniker)
{
    KorName name;
    name.kind = KorName::DeviceAtAddress;
    name.deviceType = deviceType;
    name.address = address;
    return Create(name, moniker);
}

HRESULT CFactory::CreateDeviceMonikerEx(ULONG deviceType, ULONG address, ULONG subIndex, ULONG idValue,
                                        IMoniker** moniker)
{
    KorName name;
    name.kind = KorName::DeviceAtAddressExtended;
    name.deviceType = deviceType;
    name.address = address;
    name.subIndex = subIndex;
    name.idValue = idValue;
    return Create(name, moniker);
}

HRESULT CFactory::CreateTransponderMoniker(ULONG transponder, IMoniker** moniker)
{
    KorName name;
    name.kind = KorName::Transponder;
    name.transponder = transponder;
    return Create(name, moniker);
}
