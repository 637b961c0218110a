// The class object of the "kor:" moniker, which hosts reach through
// DllGetClassObject or the "kor" scheme. It lives as long as the module and
// holds a module lock only while somebody outside holds it.
#pragma once

#include "core/ref_count.h"
#include "moniker/kor_moniker.h"

class CKorMoniker::CFactory final : public IClassFromStreamFactory,
                                    public IParseDisplayName,
                                    public IClassFactory,
                                    public ICreateKorMoniker {
public:
    // The module's one instance.
    static CFactory& Instance() noexcept;

    // IUnknown
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    // IClassFactory: a moniker of the class's initial value.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppvObject) override;
    HRESULT STDMETHODCALLTYPE LockServer(BOOL fLock) override;

    // IParseDisplayName: a moniker for the name at the start of the text.
    HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx* pbc, LPOLESTR pszDisplayName, ULONG* pchEaten,
                                               IMoniker** ppmkOut) override;

    // IClassFromStreamFactory: a moniker loaded from the stream.
    HRESULT STDMETHODCALLTYPE CreateFromStream(IStream* stream, REFIID riid, void** object) override;

    // ICreateKorMoniker
    HRESULT STDMETHODCALLTYPE CreateMacMoniker(const BYTE address[6], IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE CreateDeviceMoniker(ULONG deviceType, ULONG address, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE CreateDeviceMonikerEx(ULONG deviceType, ULONG address, ULONG subIndex, ULONG idValue,
                                                    IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE CreateTransponderMoniker(ULONG transponder, IMoniker** moniker) override;

private:
    CFactory() noexcept = default;

    // Hands out `riid` of a new moniker; the moniker goes again when the
    // interface is refused.
    static HRESULT Hand(com_ptr<CKorMoniker> moniker, REFIID riid, void** ppv) noexcept;

    // A new moniker naming `name`, as IMoniker.
    static HRESULT Create(const KorName& name, IMoniker** moniker) noexcept;

    lifetime::ref_count refs_{0};   // outside references only: the object lives as long as the module
};
