// Stand-ins for the objects a host hands the module: they count their
// references and record what they were asked, so that tests can check both.
#pragma once

#include <functional>
#include <string>

#include <objidl.h>
#include <servprov.h>

#include "korps/korps_interfaces.h"

// Lives on the test's stack; its count starts at the test's own reference
// and must be back there when the test ends.
template <class First, class... Rest>
class fake : public First, public Rest... {
public:
    LONG refs = 1;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override
    {
        *ppv = nullptr;
        const bool found = IsEqualIID(riid, IID_IUnknown)
                               ? answer<First>(ppv)
                               : (answers<First>(riid, ppv) || ... || answers<Rest>(riid, ppv));
        if (!found)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return static_cast<ULONG>(++refs); }
    ULONG STDMETHODCALLTYPE Release() override { return static_cast<ULONG>(--refs); }

private:
    template <class Interface>
    bool answer(void** ppv)
    {
        *ppv = static_cast<Interface*>(this);
        return true;
    }
    template <class Interface>
    bool answers(REFIID riid, void** ppv)
    {
        return IsEqualIID(riid, __uuidof(Interface)) && answer<Interface>(ppv);
    }
};

// An object that answers nothing but IUnknown.
class fake_object : public fake<IUnknown> {};

// A binder that writes each call into `calls` and answers `result`.
class fake_binder : public fake<IKorBinder> {
public:
    HRESULT result = S_OK;
    std::string calls;
    void** lastOut = nullptr;

    HRESULT STDMETHODCALLTYPE BindMac(const BYTE address[6], REFIID riid, void** object) override;
    HRESULT STDMETHODCALLTYPE BindDevice(ULONG deviceType, ULONG address, REFIID riid, void** object) override;
    HRESULT STDMETHODCALLTYPE BindDeviceEx(ULONG deviceType, ULONG address, ULONG subIndex, ULONG idValue, REFIID riid,
                                           void** object) override;
    HRESULT STDMETHODCALLTYPE BindTransponder(ULONG transponder, REFIID riid, void** object) override;

private:
    HRESULT record(const std::string& call, REFIID riid, void** object);
};

// A service provider that hands out `binder` for SID_KorBinder and records
// each request.
class fake_provider : public fake<IServiceProvider> {
public:
    IUnknown* binder = nullptr;
    std::string calls;

    HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID riid, void** object) override;
};

// A stream whose reads and writes do what the test says.
class fake_stream : public fake<IStream> {
public:
    std::function<HRESULT(void*, ULONG, ULONG*)> read;
    std::function<HRESULT(const void*, ULONG, ULONG*)> write;

    HRESULT STDMETHODCALLTYPE Read(void* pv, ULONG cb, ULONG* pcbRead) override { return read(pv, cb, pcbRead); }
    HRESULT STDMETHODCALLTYPE Write(const void* pv, ULONG cb, ULONG* pcbWritten) override
    {
        return write(pv, cb, pcbWritten);
    }
    HRESULT STDMETHODCALLTYPE Seek(LARGE_INTEGER, DWORD, ULARGE_INTEGER*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE SetSize(ULARGE_INTEGER) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE CopyTo(IStream*, ULARGE_INTEGER, ULARGE_INTEGER*, ULARGE_INTEGER*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Commit(DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Revert() override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE LockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE UnlockRegion(ULARGE_INTEGER, ULARGE_INTEGER, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Stat(STATSTG*, DWORD) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE Clone(IStream**) override { return E_NOTIMPL; }
};
