// Every object of the module, created and released in each way the module
// allows, with its reference counts read from AddRef and Release and the
// module's answer to DllCanUnloadNow; the same from eight threads at once; and
// what the module does when the task allocator has nothing to give.
#include <gtest/gtest.h>

#include <functional>
#include <thread>
#include <vector>

#include <objidl.h>

#include "core/com_ptr.h"
#include "core/platform.h"
#include "korps/korps_interfaces.h"
#include "tests/wine/module_fixture.h"

namespace {

korps_module& module()
{
    return korps_module::get();
}

// Checks one reference owner: the object answers AddRef and Release with the
// counts a single owner implies, and the module stays loaded until the last
// Release, which answers 0.
void release_checked(IUnknown* object, const char* what)
{
    EXPECT_EQ(object->AddRef(), 2u) << what;
    EXPECT_EQ(object->Release(), 1u) << what;
    EXPECT_EQ(module().DllCanUnloadNow(), S_FALSE) << what << " keeps the module";
    EXPECT_EQ(object->Release(), 0u) << what;
}

class Lifetime : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)));
        ASSERT_EQ(module().DllCanUnloadNow(), S_OK) << "an earlier test left an object alive";
    }
    void TearDown() override
    {
        EXPECT_EQ(module().DllCanUnloadNow(), S_OK);
        CoUninitialize();
    }
};

TEST_F(Lifetime, EveryObjectInEveryWayItIsMade)
{
    const std::function<IUnknown*()> makers[] = {
        [] {
            IEnumEVENTUI* e = nullptr;
            module().UI_EnumEVENTUI(&e);
            return e;
        },
        [] {
            IEnumEVENTUI *e = nullptr, *clone = nullptr;
            module().UI_EnumEVENTUI(&e);
            e->Clone(&clone);
            e->Release();
            return clone;
        },
        [] {
            IUnknown* moniker = nullptr;
            module().class_object<IClassFactory>()->CreateInstance(nullptr, IID_IMoniker,
                                                                   reinterpret_cast<void**>(&moniker));
            return moniker;
        },
        [] {
            ULONG eaten = 0;
            IMoniker* moniker = nullptr;
            module().class_object<IParseDisplayName>()->ParseDisplayName(
                nullptr, const_cast<LPOLESTR>(L"kor:transponder-3"), &eaten, &moniker);
            return moniker;
        },
        [] {
            IMoniker* moniker = nullptr;
            module().class_object<ICreateKorMoniker>()->CreateDeviceMonikerEx(52, 0x0A000001, 3, 7, &moniker);
            // Another of its interfaces holds the same single reference.
            IKorMoniker* kor = nullptr;
            moniker->QueryInterface(IID_IKorMoniker, reinterpret_cast<void**>(&kor));
            moniker->Release();
            return kor;
        },
        [] {
            com_ptr<IStream> stream;
            CreateStreamOnHGlobal(nullptr, TRUE, stream.put());
            const BYTE bytes[] = {3, 0, 0, 0, 12, 0, 0, 0};
            stream->Write(bytes, sizeof bytes, nullptr);
            stream->Seek({}, STREAM_SEEK_SET, nullptr);
            IUnknown* moniker = nullptr;
            module().class_object<IClassFromStreamFactory>()->CreateFromStream(stream.get(), IID_IPersistStream,
                                                                               reinterpret_cast<void**>(&moniker));
            return moniker;
        },
        // The class object lives with the module; holding it keeps the module.
        [] { return static_cast<IUnknown*>(module().class_object<IClassFactory>().detach()); },
    };
    for (std::size_t i = 0; i < std::size(makers); ++i) {
        IUnknown* object = makers[i]();
        ASSERT_NE(object, nullptr) << "maker " << i;
        release_checked(object, ("object of maker " + std::to_string(i)).c_str());
        EXPECT_EQ(module().DllCanUnloadNow(), S_OK) << "maker " << i;
    }
}

// The proxy/stub's class object and a stub it makes. By design the module's
// own lock count alone answers DllCanUnloadNow: the proxy/stub's objects do
// not keep the module.
TEST_F(Lifetime, ProxyStubObjects)
{
    const CLSID proxy_stub = {0x5b0c3d52, 0x6f0a, 0x4c41, {0x9e, 0x7b, 0x3a, 0x1d, 0x2c, 0x4f, 0x8e, 0x61}};
    IPSFactoryBuffer* factory = nullptr;
    ASSERT_EQ(module().DllGetClassObject(proxy_stub, IID_IPSFactoryBuffer, reinterpret_cast<void**>(&factory)), S_OK);
    IMoniker* moniker = nullptr;
    module().class_object<ICreateKorMoniker>()->CreateTransponderMoniker(5, &moniker);
    IRpcStubBuffer* stub = nullptr;
    ASSERT_EQ(factory->CreateStub(IID_IKorMoniker, moniker, &stub), S_OK);
    EXPECT_EQ(stub->AddRef(), 2u);
    EXPECT_EQ(stub->Release(), 1u);
    EXPECT_EQ(stub->Release(), 0u);
    EXPECT_EQ(moniker->Release(), 0u) << "the stub let go of the moniker";
    EXPECT_EQ(module().DllCanUnloadNow(), S_OK);
    factory->Release();
}

TEST_F(Lifetime, ObjectsMadeAndReleasedFromEightThreads)
{
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t)
        threads.emplace_back([] {
            CoInitializeEx(nullptr, COINIT_MULTITHREADED);
            for (int i = 0; i < 200; ++i) {
                IEnumEVENTUI *e = nullptr, *clone = nullptr;
                module().UI_EnumEVENTUI(&e);
                e->Clone(&clone);
                EVENTUI record;
                clone->Next(1, &record, nullptr);
                e->Release();
                clone->Release();
                ULONG eaten = 0;
                IMoniker* moniker = nullptr;
                module().class_object<IParseDisplayName>()->ParseDisplayName(
                    nullptr, const_cast<LPOLESTR>(L"kor:fcn1l-10.0.0.1"), &eaten, &moniker);
                IMoniker* copy = nullptr;
                moniker->QueryInterface(IID_IMoniker, reinterpret_cast<void**>(&copy));
                copy->Release();
                moniker->Release();
            }
            CoUninitialize();
        });
    for (std::thread& t : threads)
        t.join();
    EXPECT_EQ(module().DllCanUnloadNow(), S_OK);
}

// A task allocator that has nothing to give once armed, through the
// platform's own spy interface.
class failing_allocator final : public IMallocSpy {
public:
    bool armed = false;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppv) override
    {
        *ppv = IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IMallocSpy) ? this : nullptr;
        return *ppv ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    SIZE_T STDMETHODCALLTYPE PreAlloc(SIZE_T cbRequest) override { return armed ? 0 : cbRequest; }
    void* STDMETHODCALLTYPE PostAlloc(void* pActual) override { return pActual; }
    void* STDMETHODCALLTYPE PreFree(void* pRequest, BOOL) override { return pRequest; }
    void STDMETHODCALLTYPE PostFree(BOOL) override {}
    SIZE_T STDMETHODCALLTYPE PreRealloc(void* pRequest, SIZE_T cbRequest, void** ppNewRequest, BOOL) override
    {
        *ppNewRequest = pRequest;
        return armed ? 0 : cbRequest;
    }
    void* STDMETHODCALLTYPE PostRealloc(void* pActual, BOOL) override { return pActual; }
    void* STDMETHODCALLTYPE PreGetSize(void* pRequest, BOOL) override { return pRequest; }
    SIZE_T STDMETHODCALLTYPE PostGetSize(SIZE_T cbActual, BOOL) override { return cbActual; }
    void* STDMETHODCALLTYPE PreDidAlloc(void* pRequest, BOOL) override { return pRequest; }
    int STDMETHODCALLTYPE PostDidAlloc(void*, BOOL, int fActual) override { return fActual; }
    void STDMETHODCALLTYPE PreHeapMinimize() override {}
    void STDMETHODCALLTYPE PostHeapMinimize() override {}
};

TEST_F(Lifetime, NoTaskMemory)
{
    failing_allocator spy;
    ASSERT_EQ(CoRegisterMallocSpy(&spy), S_OK);

    // A data-changed name passes through task memory.
    IEnumEVENTUI* e = nullptr;
    module().UI_EnumEVENTUI(&e);
    EVENTUI falcon;
    e->Next(1, &falcon, nullptr);
    e->Release();
    const BYTE payload[] = {0x01, 0x01, 0x00, 'A', 0x00, 0x01, 0x00, 'B', 0x00};
    WCHAR buffer[256];
    spy.armed = true;
    SetErrorInfo(0, nullptr);
    EXPECT_EQ(falcon.xmlRenderer(nullptr, sizeof payload, payload, buffer, 256), E_OUTOFMEMORY);
    EXPECT_EQ(platform::take_error_description(), "") << "no error object";

    // So does a display name handed to a client.
    spy.armed = false;
    IMoniker* moniker = nullptr;
    module().class_object<ICreateKorMoniker>()->CreateTransponderMoniker(5, &moniker);
    spy.armed = true;
    LPOLESTR name = reinterpret_cast<LPOLESTR>(&name);
    EXPECT_EQ(moniker->GetDisplayName(nullptr, nullptr, &name), E_OUTOFMEMORY);
    EXPECT_EQ(name, nullptr);
    spy.armed = false;
    EXPECT_EQ(moniker->Release(), 0u);
    EXPECT_EQ(falcon.xmlRenderer(nullptr, sizeof payload, payload, buffer, 256), S_OK) << "and all is well again";
    EXPECT_EQ(CoRevokeMallocSpy(), S_OK);
}

}   // namespace
