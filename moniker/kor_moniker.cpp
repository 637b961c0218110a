#include "moniker/kor_moniker.h"

#include <algorithm>
#include <utility>

#include "core/boundary.h"
#include "core/interface_map.h"
#include "core/module_lock.h"
#include "moniker/kor_name_kinds.h"
#include "moniker/kor_name_parser.h"
#include "moniker/kor_name_printer.h"
#include "moniker/kor_name_stream.h"
#include "moniker/stream_bytes.h"

namespace {

// The bind context's object under which the host leaves its service provider.
wchar_t service_provider_key[] = L"ServiceProvider";

constexpr interface_entry<CKorMoniker> interfaces[] = {
    interface_row<CKorMoniker, IPersist, IMoniker>(IID_IPersist),
    interface_row<CKorMoniker, IMoniker>(IID_IMoniker),
    interface_row<CKorMoniker, IKorMoniker>(IID_IKorMoniker),
    interface_row<CKorMoniker, IPersistStream, IMoniker>(IID_IPersistStream),
};

}   // namespace

CKorMoniker::CKorMoniker(const KorName& name) noexcept : name_(name)
{
    lifetime::lock();
}

CKorMoniker::~CKorMoniker()
{
    lifetime::unlock();
}

HRESULT CKorMoniker::Parse(LPCOLESTR text, ULONG* eaten) noexcept
{
    if (!eaten)
        return E_POINTER;
    std::size_t count = 0;
    const HRESULT result = parse_kor_name(text, name_, count);
    if (result == S_OK)
        *eaten = static_cast<ULONG>(count);
    return result;
}

HRESULT CKorMoniker::QueryInterface(REFIID riid, void** ppv)
{
    return query_interface(this, interfaces, riid, ppv);
}

ULONG CKorMoniker::AddRef()
{
    return refs_.add();
}

ULONG CKorMoniker::Release()
{
    return refs_.release([this] { delete this; });
}

HRESULT CKorMoniker::GetClassID(CLSID* pClassID)
{
    if (!pClassID)
        return E_POINTER;
    *pClassID = CLSID_KorMoniker;
    return S_OK;
}

HRESULT CKorMoniker::IsDirty()
{
    return S_FALSE;
}

HRESULT CKorMoniker::Load(IStream* pStm)
{
    if (!pStm)
        return E_POINTER;
    return guarded([&] {
        stream_bytes in(pStm);
        load_kor_name(name_, in);   // whole or not at all: a Load that fails leaves the moniker as it was
        return S_OK;
    });
}

HRESULT CKorMoniker::Save(IStream* pStm, BOOL)
{
    if (!pStm)
        return E_POINTER;
    return guarded([&] {
        stream_bytes out(pStm);
        save_kor_name(name_, out);
        return S_OK;
    });
}

HRESULT CKorMoniker::GetSizeMax(ULARGE_INTEGER* pcbSize)
{
    if (!pcbSize)
        return E_POINTER;
    pcbSize->QuadPart = kor_name_stream_max;
    return S_OK;
}

HRESULT CKorMoniker::FindServiceProvider(IBindCtx* pbc, IMoniker* pmkToLeft, com_ptr<IServiceProvider>& provider)
{
    if (pmkToLeft)
        return pmkToLeft->BindToObject(pbc, nullptr, IID_IServiceProvider, provider.put_void());
    if (!pbc)
        return E_UNEXPECTED;
    com_ptr<IUnknown> object;
    const HRESULT result = pbc->GetObjectParam(service_provider_key, object.put());
    if (FAILED(result))
        return result;
    if (!object)
        return E_UNEXPECTED;
    com_query<IServiceProvider> found = object.query<IServiceProvider>();
    provider = std::move(found.ptr);
    return found.result;
}

HRESULT CKorMoniker::BindToObject(IBindCtx* pbc, IMoniker* pmkToLeft, REFIID riidResult, void** ppvResult)
{
    com_ptr<IServiceProvider> provider;
    HRESULT result = FindServiceProvider(pbc, pmkToLeft, provider);
    if (FAILED(result))
        return result;
    if (!provider)
        return E_UNEXPECTED;
    com_ptr<IKorBinder> binder;
    result = provider->QueryService(SID_KorBinder, IID_IKorBinder, binder.put_void());
    if (FAILED(result))
        return result;
    if (!binder)
        return E_UNEXPECTED;
    const kor_name_kind* kind = find_kor_name_kind(name_.kind);
    if (!kind)
        return E_UNEXPECTED;
    return kind->bind(binder.get(), name_, riidResult, ppvResult);
}

HRESULT CKorMoniker::BindToStorage(IBindCtx*, IMoniker*, REFIID, void**)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::Reduce(IBindCtx*, DWORD, IMoniker**, IMoniker**)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::ComposeWith(IMoniker* pmkRight, BOOL fOnlyIfNotGeneric, IMoniker** ppmkComposite)
{
    if (!ppmkComposite)
        return E_POINTER;
    if (fOnlyIfNotGeneric) {
        *ppmkComposite = nullptr;
        return MK_E_NEEDGENERIC;
    }
    return CreateGenericComposite(this, pmkRight, ppmkComposite);
}

HRESULT CKorMoniker::Enum(BOOL, IEnumMoniker**)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::IsEqual(IMoniker* pmkOtherMoniker)
{
    if (!pmkOtherMoniker)
        return E_POINTER;
    com_ptr<IKorMoniker> other;
    if (FAILED(pmkOtherMoniker->QueryInterface(IID_IKorMoniker, other.put_void())) || !other)
        return S_FALSE;
    ULONG kind = 0;
    if (FAILED(other->GetKind(&kind)))
        return E_UNEXPECTED;
    if (kind != name_.kind)
        return S_FALSE;
    const kor_name_kind* row = find_kor_name_kind(kind);
    if (!row)
        return E_UNEXPECTED;
    KorName theirs;
    theirs.kind = kind;
    if (FAILED(row->readFrom(other.get(), theirs)))
        return E_UNEXPECTED;
    return theirs == name_ ? S_OK : S_FALSE;
}

HRESULT CKorMoniker::Hash(DWORD* pdwHash)
{
    if (!pdwHash)
        return E_POINTER;
    const std::optional<std::uint32_t> hash = kor_name_hash(name_);
    if (!hash)
        return E_UNEXPECTED;
    *pdwHash = *hash;
    return S_OK;
}

HRESULT CKorMoniker::IsRunning(IBindCtx*, IMoniker*, IMoniker*)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::GetTimeOfLastChange(IBindCtx*, IMoniker*, FILETIME*)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::Inverse(IMoniker**)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::CommonPrefixWith(IMoniker*, IMoniker**)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::RelativePathTo(IMoniker*, IMoniker**)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::GetDisplayName(IBindCtx*, IMoniker*, LPOLESTR* ppszDisplayName)
{
    if (!ppszDisplayName)
        return E_POINTER;
    *ppszDisplayName = nullptr;   // whatever the outcome, no stale pointer
    auto* text = static_cast<LPOLESTR>(CoTaskMemAlloc(kor_name_capacity * sizeof(OLECHAR)));
    if (!text)
        return E_OUTOFMEMORY;
    const HRESULT result = print_kor_name(name_, text, kor_name_capacity);
    if (FAILED(result)) {
        CoTaskMemFree(text);
        return result;
    }
    *ppszDisplayName = text;
    return S_OK;
}

// A "kor:" name ends the display name as far as this moniker is concerned.
HRESULT CKorMoniker::ParseDisplayName(IBindCtx*, IMoniker*, LPOLESTR, ULONG*, IMoniker**)
{
    return E_NOTIMPL;
}

HRESULT CKorMoniker::IsSystemMoniker(DWORD*)
{
    return S_FALSE;
}

HRESULT CKorMoniker::GetKind(ULONG* kind)
{
    if (!kind)
        return E_POINTER;
    *kind = name_.kind;
    return S_OK;
}

HRESULT CKorMoniker::GetMacAddress(BYTE address[6])
{
    if (!address)
        return E_POINTER;
    if (name_.kind != KorName::MacAddress)
        return E_UNEXPECTED;
    std::copy(name_.mac.begin(), name_.mac.end(), address);
    return S_OK;
}

HRESULT CKorMoniker::GetDeviceAddress(ULONG* deviceType, ULONG* address)
{
    if (!deviceType || !address)
        return E_POINTER;
    if (name_.kind != KorName::DeviceAtAddress && name_.kind != KorName::DeviceAtAddressExtended)
        return E_UNEXPECTED;
    *deviceType = name_.deviceType;
    *address = name_.address;
    return S_OK;
}

HRESULT CKorMoniker::GetExtension(ULONG* subIndex, ULONG* idValue)
{
    if (!subIndex || !idValue)
        return E_POINTER;
    if (name_.kind != KorName::DeviceAtAddressExtended)
        return E_UNEXPECTED;
    *subIndex = name_.subIndex;
    *idValue = name_.idValue;
    return S_OK;
}

HRESULT CKorMoniker::GetTransponder(ULONG* transponder)
{
    if (!transponder)
        return E_POINTER;
    if (name_.kind != KorName::Transponder)
        return E_UNEXPECTED;
    *transponder = name_.transponder;
    return S_OK;
}
