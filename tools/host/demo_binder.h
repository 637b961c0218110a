// The host's side of binding a "kor:" name: a service provider, registered in
// the bind context as "ServiceProvider", that hands out the host's binder;
// the binder resolves a name's fields to a live object. The demo's devices
// are plain objects that only say who they are.
#pragma once

#include <string>

#include <servprov.h>

#include "korps/korps_interfaces.h"

class demo_binder final : public IServiceProvider, public IKorBinder {
public:
    // What the last bind asked for, for the demo to show.
    std::string last_request;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }   // lives on the host's stack
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    // IServiceProvider
    HRESULT STDMETHODCALLTYPE QueryService(REFGUID service, REFIID riid, void** ppv) override;

    // IKorBinder
    HRESULT STDMETHODCALLTYPE BindMac(const BYTE address[6], REFIID riid, void** object) override;
    HRESULT STDMETHODCALLTYPE BindDevice(ULONG deviceType, ULONG address, REFIID riid, void** object) override;
    HRESULT STDMETHODCALLTYPE BindDeviceEx(ULONG deviceType, ULONG address, ULONG subIndex, ULONG idValue, REFIID riid,
                                           void** object) override;
    HRESULT STDMETHODCALLTYPE BindTransponder(ULONG transponder, REFIID riid, void** object) override;

private:
    HRESULT Device(std::string request, REFIID riid, void** object);
};
