// The class object of a moniker class: makes monikers plain, from display
// names and from streams. It lives as long as the module and holds a module
// lock only while somebody outside holds it.
//
// `Moniker` provides New() (a new moniker with one reference, or null),
// Parse(text, eaten) and IPersistStream::Load.
#pragma once

#include <atomic>

#include <objidl.h>

#include "core/com_ptr.h"
#include "korps/korps_interfaces.h"
#include "module/module_lock.h"

template <class Moniker>
class CMonikerFactory : public IClassFromStreamFactory, public IParseDisplayName, public IClassFactory {
public:
    ULONG STDMETHODCALLTYPE AddRef() override
    {
        const ULONG count = refs_.fetch_add(1, std::memory_order_relaxed) + 1;
        if (count == 1)
            module::lock();
        return count;
    }

    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG count = refs_.fetch_sub(1, std::memory_order_acq_rel) - 1;
        if (count == 0)
            module::unlock();
        return count;
    }

    // IClassFactory: a moniker of the class's initial value.
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* pUnkOuter, REFIID riid, void** ppvObject) override
    {
        if (!ppvObject)
            return E_POINTER;
        *ppvObject = nullptr;
        if (pUnkOuter)
            return CLASS_E_NOAGGREGATION;
        return Hand(Moniker::New(), riid, ppvObject);
    }

    HRESULT STDMETHODCALLTYPE LockServer(BOOL fLock) override
    {
        if (fLock)
            module::lock();
        else
            module::unlock();
        return S_OK;
    }

    // IParseDisplayName: a moniker for the name at the start of the text.
    HRESULT STDMETHODCALLTYPE ParseDisplayName(IBindCtx*, LPOLESTR pszDisplayName, ULONG* pchEaten,
                                               IMoniker** ppmkOut) override
    {
        if (!pchEaten || !ppmkOut)
            return E_POINTER;
        *ppmkOut = nullptr;
        com_ptr<Moniker> moniker = Moniker::New();
        if (!moniker)
            return E_OUTOFMEMORY;
        ULONG eaten = 0;
        HRESULT result = moniker->Parse(pszDisplayName, &eaten);
        if (FAILED(result))
            return result;
        result = moniker->QueryInterface(IID_IMoniker, reinterpret_cast<void**>(ppmkOut));
        if (SUCCEEDED(result))
            *pchEaten = eaten;
        return result;
    }

    // IClassFromStreamFactory: a moniker loaded from the stream.
    HRESULT STDMETHODCALLTYPE CreateFromStream(IStream* stream, REFIID riid, void** object) override
    {
        if (!object)
            return E_POINTER;
        *object = nullptr;
        com_ptr<Moniker> moniker = Moniker::New();
        if (!moniker)
            return E_OUTOFMEMORY;
        const HRESULT result = moniker->Load(stream);
        if (FAILED(result))
            return result;
        return moniker->QueryInterface(riid, object);
    }

protected:
    CMonikerFactory() noexcept = default;
    ~CMonikerFactory() = default;

    // Hands out `riid` of a new moniker; the moniker goes again when the
    // interface is refused.
    static HRESULT Hand(com_ptr<Moniker> moniker, REFIID riid, void** ppv) noexcept
    {
        if (!moniker)
            return E_OUTOFMEMORY;
        return moniker->QueryInterface(riid, ppv);
    }

private:
    std::atomic<ULONG> refs_{0};
};
