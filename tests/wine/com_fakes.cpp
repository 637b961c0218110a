#include "tests/wine/com_fakes.h"

#include <cstdio>

namespace {

std::string guid_name(REFGUID id)
{
    if (IsEqualGUID(id, SID_KorBinder))
        return "SID_KorBinder";
    if (IsEqualGUID(id, IID_IKorBinder))
        return "IKorBinder";
    if (IsEqualGUID(id, IID_IUnknown))
        return "IUnknown";
    if (IsEqualGUID(id, IID_IDispatch))
        return "IDispatch";
    return "other";
}

std::string format(const char* pattern, unsigned long a, unsigned long b = 0, unsigned long c = 0, unsigned long d = 0,
                   unsigned long e = 0, unsigned long f = 0)
{
    char text[128];
    std::snprintf(text, sizeof text, pattern, a, b, c, d, e, f);
    return text;
}

}   // namespace

HRESULT fake_binder::record(const std::string& call, REFIID riid, void** object)
{
    calls += call + " " + guid_name(riid) + ";";
    lastOut = object;
    return result;
}

HRESULT fake_binder::BindMac(const BYTE a[6], REFIID riid, void** object)
{
    return record(format("BindMac %02lX %02lX %02lX %02lX %02lX %02lX", a[0], a[1], a[2], a[3], a[4], a[5]), riid,
                  object);
}

HRESULT fake_binder::BindDevice(ULONG deviceType, ULONG address, REFIID riid, void** object)
{
    return record(format("BindDevice %lu %08lX", deviceType, address), riid, object);
}

HRESULT fake_binder::BindDeviceEx(ULONG deviceType, ULONG address, ULONG subIndex, ULONG idValue, REFIID riid,
                                  void** object)
{
    return record(format("BindDeviceEx %lu %08lX %lu %lu", deviceType, address, subIndex, idValue), riid, object);
}

HRESULT fake_binder::BindTransponder(ULONG transponder, REFIID riid, void** object)
{
    return record(format("BindTransponder %lu", transponder), riid, object);
}

HRESULT fake_provider::QueryService(REFGUID service, REFIID riid, void** object)
{
    calls += guid_name(service) + " " + guid_name(riid) + ";";
    *object = nullptr;
    if (!binder || !IsEqualGUID(service, SID_KorBinder))
        return E_NOINTERFACE;
    return binder->QueryInterface(riid, object);
}
