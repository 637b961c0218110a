// Registration of the real korps.dll in the test prefix's registry, the
// "kor" scheme through the platform, and a moniker called across apartments
// through the module's own proxy/stub.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include <objidl.h>

#include "core/com_ptr.h"
#include "korps/korps_interfaces.h"
#include "tests/wine/module_fixture.h"
#include "tests/wine/parse_through_platform.h"
#include "tests/wine/registry_text.h"

namespace {

const std::wstring clsid = L"CLSID\\{DE8AB314-CDD2-4600-8139-6285F46937AC}";
const std::wstring app_id = L"{E5693989-AC7B-424D-B28F-89CB8FA28587}";
const std::wstring proxy_clsid = L"{5B0C3D52-6F0A-4C41-9E7B-3A1D2C4F8E61}";

bool key_exists(const std::wstring& key)
{
    HKEY k = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key.c_str(), 0, KEY_READ, &k) != ERROR_SUCCESS)
        return false;
    RegCloseKey(k);
    return true;
}

struct expected_value {
    std::wstring key;
    const wchar_t* name;   // null: the default value
    std::wstring data;
};

// Every key and value of both scripts is checked on the registrar itself
// (tests/native/registrar_test.cpp); here, keys of each script and every value
// the module fills in when it registers: its AppID and its path.
std::vector<expected_value> registered_values()
{
    const std::wstring id = L"{DE8AB314-CDD2-4600-8139-6285F46937AC}";
    return {
        {L"AppID\\" + app_id, nullptr, L"KORPS"},
        {L"AppID\\KORPS.DLL", L"AppID", app_id},
        {L"kor", nullptr, L"Kor Moniker"},
        {L"kor\\CLSID", nullptr, id},
        {L"Corvane.Tarn.Moniker.1\\CLSID", nullptr, id},
        {clsid, L"AppID", app_id},
        {clsid + L"\\InprocServer32", nullptr, korps_module::get().path()},
        {clsid + L"\\InprocServer32", L"ThreadingModel", L"both"},
    };
}

// The marshalled interfaces with their IIDs and method counts, IUnknown's
// three included.
const struct {
    const wchar_t* name;
    const wchar_t* iid;
    int methods;
} interfaces[] = {
    {L"IHERONUnit", L"{66c91805-0d39-4813-98b1-416cd6e22b63}", 12},
    {L"IHERONDeviceEvents", L"{ec548407-6baf-4239-a067-47f0643e66da}", 5},
    {L"ITriMuxEvents", L"{c9fd700c-7423-49f9-81d5-ee325e014ed3}", 4},
    {L"IKorBinder", L"{371e1311-86e6-4a7e-888e-c5da1d069943}", 7},
    {L"IUnitConfigEx", L"{62299815-5819-4af7-9839-5bb16ce1e8b1}", 18},
    {L"IUnitImage", L"{d80d6c21-9c7d-4803-8b60-59a535226b7c}", 9},
    {L"IFaultStatusFilter", L"{81c6b722-c5a4-4af7-b01e-776913486906}", 3},
    {L"IOSPREYModulatorEvents", L"{6f985925-5555-4da1-8ed0-b4f55e8f9d69}", 5},
    {L"IProgress", L"{989a7b25-296f-4e6a-9b9e-69bca08aa2aa}", 4},
    {L"ICreateKorMoniker", L"{fc34d42e-01fe-4982-b085-0e9d6efd6380}", 7},
    {L"IActiveConfig", L"{779e6731-f555-4a4f-85f2-ec8d2862cbb5}", 9},
    {L"IEnumGullLogEvent", L"{d2968433-7f11-474c-afb4-4cfa879603c4}", 7},
    {L"IGullEvents", L"{285a9f47-b165-46f4-b90a-983a133e684a}", 5},
    {L"IUnitConfigs", L"{ec2a394b-5b42-41a6-bec9-94edbd5e8223}", 9},
    {L"IUnitCommand", L"{d69fc64c-d4ed-4cf7-b51e-710d2efa3223}", 11},
    {L"IGull", L"{8259d858-3bc7-451e-a507-f31df35e62f6}", 13},
    {L"IDeviceParameterAccess", L"{34457063-06b2-4e53-9a68-6d51dce47d42}", 6},
    {L"ITriMux", L"{60b30f64-2443-4009-ad29-8e259420a2e9}", 6},
    {L"ITransponderX", L"{fb3b7074-6991-4f15-8733-aa6e4c9434e6}", 9},
    {L"IFalconModem", L"{8388e874-79a0-4eba-9ba8-94cdfa8077dd}", 7},
    {L"IOSPREYModulator", L"{07881e7b-f5c0-45b8-b228-b797c91b99f8}", 7},
    {L"IOSPREYUnit", L"{fe1fc77c-42f4-4353-86f5-21ddca5bcb36}", 11},
    {L"IHERONDevice", L"{ab9c7682-06a6-4d94-ab29-b9f2a0ef4193}", 7},
    {L"IModemX", L"{e14c628a-fde9-46f1-a575-345d964fce96}", 5},
    {L"IKorMoniker", L"{b4083890-ff23-43b8-a879-ea85dc4e6256}", 8},
    {L"IFalconUnit", L"{4b990895-bba4-4056-9d4a-8b243f0285d4}", 6},
    {L"IAddressFilter", L"{b166179b-f55c-495b-bbad-391e5df2fa7a}", 6},
    {L"IUnitConfig", L"{e4751fa7-69bb-41ad-a592-21c87b3699d3}", 14},
    {L"IImage", L"{58ed8aab-bdfc-4c4d-b81b-07113c5d5470}", 5},
    {L"IRoamingEvents", L"{4e9dffb0-52d1-41b2-8b89-ed82d81d2f8e}", 4},
    {L"IImageEvents", L"{811a3fb4-ef0e-45c6-a733-b5a71635bd1a}", 4},
    {L"IGullInfoEvents", L"{4af0f0b4-af21-4c91-bcf4-c0cd8352b1cb}", 4},
    {L"IOSPREYUnitEvents", L"{945e5ab5-e016-4937-9b6e-de047b3d115f}", 5},
    {L"IConfig", L"{8a1a2db7-d720-475e-b19d-8861fa97b4d2}", 7},
    {L"IDeviceX", L"{558541b8-c51f-40ea-bb05-2b9852a9d7dd}", 7},
    {L"ITarnPropertyEvents", L"{06b6c5c0-7950-11d2-be43-00105a202838}", 6},
    {L"ITarnActivityEvents", L"{06b6c5c1-7950-11d2-be43-00105a202838}", 4},
    {L"IDeviceEvents", L"{06b6c5c2-7950-11d2-be43-00105a202838}", 7},
    {L"IManagerX", L"{aa21eccb-4d85-4c66-ad64-049ee41b4b3f}", 19},
    {L"IRoaming", L"{dfee13d8-5097-4c96-9b65-7bfe564c426e}", 7},
    {L"ITarnCommands", L"{6a1442e2-b966-42cd-8f2d-94b079870815}", 9},
    {L"ITarnX", L"{a18dcde3-2747-44f4-971a-21e37e243ecd}", 9},
    {L"IHERONUnitEvents", L"{84e42be9-22f2-4815-a762-b5e870d7402a}", 4},
    {L"IOSPREYDemodulatorEvents", L"{d544fbef-1073-4601-a512-791fe6ded864}", 5},
    {L"IOSPREYDemodulator", L"{23e44ff9-5f6d-4c12-a6f8-fb8679749022}", 7},
    {L"IGullInfo", L"{c7c18dfd-5cd0-4818-899e-d3184bf61da8}", 4},
};

class Registration : public testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(module().DllRegisterServer(), S_OK); }
    static korps_module& module() { return korps_module::get(); }
};

TEST_F(Registration, WritesBothScriptsWithTheModulesAppIdAndPath)
{
    for (const expected_value& v : registered_values())
        EXPECT_EQ(classes_text(v.key, v.name), v.data) << v.key << " " << (v.name ? v.name : L"(default)");
    // Registering again leaves the same keys.
    ASSERT_EQ(module().DllRegisterServer(), S_OK);
    for (const expected_value& v : registered_values())
        EXPECT_EQ(classes_text(v.key, v.name), v.data) << v.key;
}

TEST_F(Registration, EveryMarshalledInterfaceWithItsMethodCount)
{
    static_assert(std::size(interfaces) == 46);
    for (const auto& i : interfaces) {
        const std::wstring key = std::wstring(L"Interface\\") + i.iid;
        EXPECT_EQ(classes_text(key + L"\\ProxyStubClsid32"), proxy_clsid) << i.name;
        EXPECT_EQ(classes_text(key + L"\\NumMethods"), std::to_wstring(i.methods)) << i.name;
        EXPECT_EQ(classes_text(key), i.name);
    }
    EXPECT_EQ(classes_text(L"CLSID\\" + proxy_clsid + L"\\InprocServer32"), module().path());
}

TEST_F(Registration, UnregistrationRemovesTheClassAndKeepsTheRoots)
{
    ASSERT_EQ(module().DllUnregisterServer(), S_OK);
    const std::wstring removed[] = {L"kor",
                                    L"Corvane.Tarn.Moniker",
                                    L"Corvane.Tarn.Moniker.1",
                                    clsid,
                                    L"AppID\\" + app_id,
                                    L"AppID\\KORPS.DLL",
                                    std::wstring(L"Interface\\") + interfaces[0].iid,
                                    L"CLSID\\" + proxy_clsid};
    for (const std::wstring& gone : removed)
        EXPECT_FALSE(key_exists(gone)) << gone;
    EXPECT_TRUE(key_exists(L"AppID"));
    EXPECT_TRUE(key_exists(L"CLSID"));
    ASSERT_EQ(module().DllUnregisterServer(), S_OK) << "removing what is not there";
}

TEST_F(Registration, TheThreadLocaleSurvives)
{
    const LCID german = MAKELCID(MAKELANGID(LANG_GERMAN, SUBLANG_GERMAN), SORT_DEFAULT);
    const LCID before = GetThreadLocale();
    ASSERT_TRUE(SetThreadLocale(german));
    EXPECT_EQ(module().DllRegisterServer(), S_OK);
    EXPECT_EQ(GetThreadLocale(), german);
    EXPECT_EQ(module().DllUnregisterServer(), S_OK);
    EXPECT_EQ(GetThreadLocale(), german);
    SetThreadLocale(before);
}

TEST_F(Registration, ThePlatformParsesKorNamesThroughTheScheme)
{
    const platform_parse parsed = parse_through_platform(L"kor:fcn1l-10.0.0.1");
    ASSERT_EQ(parsed.result, S_OK);
    EXPECT_EQ(parsed.eaten, 18u);
    EXPECT_EQ(parsed.displayName, L"kor:fcn1l-10.0.0.1");
}

// A moniker made in one single-threaded apartment and called from another
// through the proxy and stub that the module registered.
TEST_F(Registration, AMonikerAnswersAcrossApartments)
{
    ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED)));
    {
        com_ptr<ICreateKorMoniker> create;
        ASSERT_EQ(
            CoGetClassObject(CLSID_KorMoniker, CLSCTX_INPROC_SERVER, nullptr, IID_ICreateKorMoniker, create.put_void()),
            S_OK);
        com_ptr<IMoniker> moniker;
        ASSERT_EQ(create->CreateDeviceMoniker(52, 0x0A000001, moniker.put()), S_OK);
        IStream* stream = nullptr;
        ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(IID_IKorMoniker, moniker.get(), &stream), S_OK);

        ULONG kind = 99, type = 0, address = 0;
        HRESULT unmarshalled = E_FAIL, kind_result = E_FAIL, address_result = E_FAIL;
        bool direct = true;
        std::atomic<bool> finished{false};
        std::thread other([&] {
            CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
            IKorMoniker* proxy = nullptr;
            unmarshalled = CoGetInterfaceAndReleaseStream(stream, IID_IKorMoniker, reinterpret_cast<void**>(&proxy));
            if (proxy) {
                direct = static_cast<void*>(proxy) == static_cast<void*>(moniker.get());
                kind_result = proxy->GetKind(&kind);
                address_result = proxy->GetDeviceAddress(&type, &address);
                proxy->Release();
            }
            CoUninitialize();
            finished = true;
        });
        // The moniker's apartment serves the calls while the other thread runs.
        while (!finished) {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                DispatchMessageW(&message);
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
        }
        other.join();
        ASSERT_EQ(unmarshalled, S_OK);
        EXPECT_FALSE(direct) << "the other apartment holds a proxy, not the object";
        EXPECT_EQ(kind_result, S_OK);
        EXPECT_EQ(kind, 1u);
        EXPECT_EQ(address_result, S_OK);
        EXPECT_EQ(type, 52u);
        EXPECT_EQ(address, 0x0A000001u);
    }
    CoUninitialize();
}

}   // namespace
