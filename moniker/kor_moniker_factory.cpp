#include "moniker/kor_moniker_factory.h"

#include "core/interface_map.h"
#include "core/module_lock.h"

namespace {

using CFactory = CKorMoniker::CFactory;

constexpr interface_entry<CFactory> interfaces[] = {
    interface_row<CFactory, IClassFromStreamFactory>(IID_IClassFromStreamFactory),
    interface_row<CFactory, IParseDisplayName>(IID_IParseDisplayName),
    interface_row<CFactory, IClassFactory>(IID_IClassFactory),
    interface_row<CFactory, ICreateKorMoniker>(IID_ICreateKorMoniker),
};

}   // namespace

CFactory& CFactory::Instance() noexcept
{
    static CFactory instance;
    return instance;
}

HRESULT CFactory::QueryInterface(REFIID riid, void** ppv)
{
    return query_interface(this, interfaces, riid, ppv);
}

// The first outside reference locks the module, the last unlocks it; the
// object itself is never deleted.
ULONG CFactory::AddRef()
{
    const ULONG count = refs_.add();
    if (count == 1)
        lifetime::lock();
    return count;
}

ULONG CFactory::Release()
{
    return refs_.release([] { lifetime::unlock(); });
}

HRESULT CFactory::CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppvObject)
{
    if (!ppvObject)
        return E_POINTER;
    *ppvObject = nullptr;
    if (pUnkOuter)
        return CLASS_E_NOAGGREGATION;
    return Hand(make_com<CKorMoniker>(), riid, ppvObject);
}

HRESULT CFactory::LockServer(BOOL fLock)
{
    if (fLock)
        lifetime::lock();
    else
        lifetime::unlock();
    return S_OK;
}

HRESULT CFactory::ParseDisplayName(IBindCtx*, LPOLESTR pszDisplayName, ULONG* pchEaten, IMoniker** ppmkOut)
{
    if (!pchEaten || !ppmkOut)
        return E_POINTER;
    *ppmkOut = nullptr;
    com_ptr<CKorMoniker> moniker = make_com<CKorMoniker>();
    if (!moniker)
        return E_OUTOFMEMORY;
    ULONG eaten = 0;
    const HRESULT result = moniker->Parse(pszDisplayName, &eaten);
    if (FAILED(result))
        return result;
    *pchEaten = eaten;
    *ppmkOut = moniker.detach();
    return S_OK;
}

HRESULT CFactory::CreateFromStream(IStream* stream, REFIID riid, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    com_ptr<CKorMoniker> moniker = make_com<CKorMoniker>();
    if (!moniker)
        return E_OUTOFMEMORY;
    const HRESULT result = moniker->Load(stream);
    if (FAILED(result))
        return result;
    return moniker->QueryInterface(riid, object);
}

HRESULT CFactory::Hand(com_ptr<CKorMoniker> moniker, REFIID riid, void** ppv) noexcept
{
    if (!moniker)
        return E_OUTOFMEMORY;
    return moniker->QueryInterface(riid, ppv);
}

HRESULT CFactory::Create(const KorName& name, IMoniker** moniker) noexcept
{
    if (!moniker)
        return E_POINTER;
    *moniker = nullptr;
    com_ptr<CKorMoniker> made = make_com<CKorMoniker>(name);
    if (!made)
        return E_OUTOFMEMORY;
    *moniker = made.detach();
    return S_OK;
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
