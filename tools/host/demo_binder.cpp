#include "tools/host/demo_binder.h"

#include <cstdio>

namespace {

// A device of the demo network: an object with nothing but IUnknown.
class demo_device final : public IUnknown {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override
    {
        *ppv = IsEqualIID(riid, IID_IUnknown) ? this : nullptr;
        if (!*ppv)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++refs_; }
    ULONG STDMETHODCALLTYPE Release() override
    {
        const ULONG count = --refs_;
        if (count == 0)
            delete this;
        return count;
    }

private:
    ULONG refs_ = 0;
};

std::string dotted(ULONG a)
{
    return std::to_string(a >> 24) + "." + std::to_string(a >> 16 & 0xFF) + "." + std::to_string(a >> 8 & 0xFF) + "." +
           std::to_string(a & 0xFF);
}

}   // namespace

HRESULT demo_binder::QueryInterface(REFIID riid, void** ppv)
{
    if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IServiceProvider))
        *ppv = static_cast<IServiceProvider*>(this);
    else if (IsEqualIID(riid, IID_IKorBinder))
        *ppv = static_cast<IKorBinder*>(this);
    else
        *ppv = nullptr;
    return *ppv ? S_OK : E_NOINTERFACE;
}

HRESULT demo_binder::QueryService(REFGUID service, REFIID riid, void** ppv)
{
    if (!IsEqualGUID(service, SID_KorBinder)) {
        *ppv = nullptr;
        return E_NOINTERFACE;
    }
    return QueryInterface(riid, ppv);
}

HRESULT demo_binder::Device(std::string request, REFIID riid, void** object)
{
    last_request = std::move(request);
    auto* device = new demo_device;
    device->AddRef();
    const HRESULT result = device->QueryInterface(riid, object);
    device->Release();
    return result;
}

HRESULT demo_binder::BindMac(const BYTE address[6], REFIID riid, void** object)
{
    char text[32];
    std::snprintf(text, sizeof text, "%02X%02X%02X-%02X%02X%02X", address[5], address[4], address[3], address[2],
                  address[1], address[0]);
    return Device(std::string("the unit with MAC address ") + text, riid, object);
}

HRESULT demo_binder::BindDevice(ULONG deviceType, ULONG address, REFIID riid, void** object)
{
    return Device("device type " + std::to_string(deviceType) + " at " + dotted(address), riid, object);
}

HRESULT demo_binder::BindDeviceEx(ULONG deviceType, ULONG address, ULONG subIndex, ULONG idValue, REFIID riid,
                                  void** object)
{
    return Device("device type " + std::to_string(deviceType) + " at " + dotted(address) + ", sub-index " +
                      std::to_string(subIndex) + ", id " + std::to_string(idValue),
                  riid, object);
}

HRESULT demo_binder::BindTransponder(ULONG transponder, REFIID riid, void** object)
{
    return Device("transponder " + std::to_string(transponder), riid, object);
}
