// The class object of the "kor:" moniker, which hosts reach through
// DllGetClassObject or the "kor" scheme.
#pragma once

#include "moniker/kor_moniker.h"
#include "moniker/moniker_factory.h"

class CKorMoniker::CFactory final : public CMonikerFactory<CKorMoniker>, public ICreateKorMoniker {
public:
    // The module's one instance.
    static CFactory& Instance() noexcept;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return CMonikerFactory::AddRef(); }
    ULONG STDMETHODCALLTYPE Release() override { return CMonikerFactory::Release(); }

    // ICreateKorMoniker
    HRESULT STDMETHODCALLTYPE CreateMacMoniker(const BYTE address[6], IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE CreateDeviceMoniker(ULONG deviceType, ULONG address, IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE CreateDeviceMonikerEx(ULONG deviceType, ULONG address, ULONG subIndex, ULONG idValue,
                                                    IMoniker** moniker) override;
    HRESULT STDMETHODCALLTYPE CreateTransponderMoniker(ULONG transponder, IMoniker** moniker) override;

private:
    CFactory() noexcept = default;

    // A new moniker naming `name`, as IMoniker.
    static HRESULT Create(const KorName& name, IMoniker** moniker) noexcept;
};
