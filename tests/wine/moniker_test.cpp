// The "kor:" moniker through the real module: its class object from
// DllGetClassObject, the platform's streams, bind contexts and composites,
// and a host's binder played by fakes.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include <objidl.h>

#include "core/com_ptr.h"
#include "korps/korps_interfaces.h"
#include "tests/wine/com_fakes.h"
#include "tests/wine/module_fixture.h"
#include "core/platform.h"

namespace {

using byte_list = std::vector<BYTE>;

template <class Interface>
com_ptr<Interface> query(IUnknown* object)
{
    com_ptr<Interface> result;
    EXPECT_EQ(object->QueryInterface(__uuidof(Interface), result.put_void()), S_OK);
    return result;
}

class Moniker : public testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(SUCCEEDED(CoInitializeEx(nullptr, COINIT_MULTITHREADED)));
        SetErrorInfo(0, nullptr);
    }

    void TearDown() override
    {
        EXPECT_EQ(korps_module::get().DllCanUnloadNow(), S_OK) << "an object of the test is still alive";
        CoUninitialize();
    }

    template <class Interface>
    static com_ptr<Interface> class_object()
    {
        return korps_module::get().class_object<Interface>();
    }

    static com_ptr<IMoniker> parse(const wchar_t* text)
    {
        ULONG eaten = 0;
        com_ptr<IMoniker> moniker;
        EXPECT_EQ(class_object<IParseDisplayName>()->ParseDisplayName(nullptr, const_cast<LPOLESTR>(text), &eaten,
                                                                      moniker.put()),
                  S_OK)
            << platform::take_error_description();
        return moniker;
    }

    static std::wstring display_name(IMoniker* moniker)
    {
        com_ptr<IBindCtx> context;
        EXPECT_EQ(CreateBindCtx(0, context.put()), S_OK);
        LPOLESTR text = nullptr;
        EXPECT_EQ(moniker->GetDisplayName(context.get(), nullptr, &text), S_OK);
        std::wstring result = text ? text : L"(none)";
        CoTaskMemFree(text);
        return result;
    }

    static byte_list stream_bytes(IStream* stream)
    {
        STATSTG stat{};
        stream->Stat(&stat, STATFLAG_NONAME);
        byte_list bytes(static_cast<std::size_t>(stat.cbSize.QuadPart));
        stream->Seek({}, STREAM_SEEK_SET, nullptr);
        ULONG got = 0;
        stream->Read(bytes.data(), static_cast<ULONG>(bytes.size()), &got);
        return bytes;
    }

    static com_ptr<IStream> stream_of(const byte_list& bytes)
    {
        com_ptr<IStream> stream;
        EXPECT_EQ(CreateStreamOnHGlobal(nullptr, TRUE, stream.put()), S_OK);
        ULONG written = 0;
        stream->Write(bytes.data(), static_cast<ULONG>(bytes.size()), &written);
        stream->Seek({}, STREAM_SEEK_SET, nullptr);
        return stream;
    }
};

// One name of each kind, and what every part of the moniker makes of it. The
// native tests cover the grammar, hashing and equality in depth; here the
// same four names go through each COM method.
struct name_case {
    const wchar_t* text;   // as a client might spell it
    const wchar_t* canonical;   // as the moniker prints it
    ULONG kind;
    const char* getters;   // those that answer: Mac, Device, Extension, Transponder
    byte_list bytes;   // stream form
    DWORD hash;
    const char* bind;   // the binder call it makes
};

const name_case names[] = {
    {L"kor:mac-0006b0-1a2b3c", L"kor:mac-0006B0-1A2B3C", 0, "M",
     byte_list{0, 0, 0, 0, 0x00, 0x06, 0xB0, 0x1A, 0x2B, 0x3C}, 0xB01A2B3A, "BindMac 3C 2B 1A B0 06 00 IDispatch;"},
    {L"kor:FCN1L-010.0.0.1", L"kor:fcn1l-10.0.0.1", 1, "D", byte_list{1, 0, 0, 0, 52, 0, 0, 0, 1, 0, 0, 10}, 0x0A000035,
     "BindDevice 52 0A000001 IDispatch;"},
    {L"kor:fcn1l-10.0.0.1,+7,3", L"kor:fcn1l-10.0.0.1,7,3", 2, "DE",
     byte_list{2, 0, 0, 0, 52, 0, 0, 0, 1, 0, 0, 10, 3, 0, 0, 0, 7, 0, 0, 0}, 4,
     "BindDeviceEx 52 0A000001 3 7 IDispatch;"},
    {L"kor:transponder-12", L"kor:transponder-12", 3, "T", byte_list{3, 0, 0, 0, 12, 0, 0, 0}, 12,
     "BindTransponder 12 IDispatch;"},
};

TEST_F(Moniker, ClassObjectComesFromTheModule)
{
    auto& module = korps_module::get();
    com_ptr<IUnknown> identity = class_object<IUnknown>();
    for (const IID* iid :
         {&IID_IClassFactory, &IID_IParseDisplayName, &IID_IClassFromStreamFactory, &IID_ICreateKorMoniker}) {
        com_ptr<IUnknown> part;
        ASSERT_EQ(module.DllGetClassObject(CLSID_KorMoniker, *iid, part.put_void()), S_OK);
        EXPECT_EQ(query<IUnknown>(part.get()).get(), identity.get()) << "one object answers them all";
    }
    EXPECT_EQ(module.DllCanUnloadNow(), S_FALSE) << "a held class object keeps the module";

    void* none = &none;
    EXPECT_EQ(module.DllGetClassObject(IID_IKorMoniker, IID_IClassFactory, &none), CLASS_E_CLASSNOTAVAILABLE);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(module.DllGetClassObject(CLSID_KorMoniker, IID_IMoniker, &none), E_NOINTERFACE);
    EXPECT_EQ(module.DllGetClassObject(CLSID_KorMoniker, IID_IClassFactory, nullptr), E_POINTER);

    identity.reset();
    EXPECT_EQ(module.DllCanUnloadNow(), S_OK);
    com_ptr<IClassFactory> factory = class_object<IClassFactory>();
    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
    factory.reset();
    EXPECT_EQ(module.DllCanUnloadNow(), S_FALSE) << "LockServer keeps the module";
    EXPECT_EQ(class_object<IClassFactory>()->LockServer(FALSE), S_OK);
}

TEST_F(Moniker, CreateInstance)
{
    com_ptr<IClassFactory> factory = class_object<IClassFactory>();
    com_ptr<IMoniker> moniker;
    ASSERT_EQ(factory->CreateInstance(nullptr, IID_IMoniker, moniker.put_void()), S_OK);
    EXPECT_EQ(display_name(moniker.get()), L"kor:mac-000000-000000") << "a new moniker is a zeroed MAC name";

    fake_object outer;
    void* none = &none;
    EXPECT_EQ(factory->CreateInstance(&outer, IID_IUnknown, &none), CLASS_E_NOAGGREGATION);
    EXPECT_EQ(none, nullptr);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IClassFactory, &none), E_NOINTERFACE);
    EXPECT_EQ(factory->CreateInstance(nullptr, IID_IMoniker, nullptr), E_POINTER);
    EXPECT_EQ(outer.refs, 1);
}

TEST_F(Moniker, ParseDisplayName)
{
    struct test_case {
        const wchar_t* text;
        HRESULT result;
        ULONG eaten;
        const wchar_t* canonical;   // on success
        const char* description;   // of the error object on failure
    };
    const test_case cases[] = {
        {L"kor:FCN1L-10.0.0.1", S_OK, 18, L"kor:fcn1l-10.0.0.1", ""},
        {L"kor:none-1.2.3.4!item", S_OK, 16, L"kor:none-1.2.3.4", ""},
        {L"KOR:transponder-5", E_UNEXPECTED, 0, nullptr, ""},
        {L"kor:xyz-1", DISP_E_EXCEPTION, 0, nullptr, "unrecognized moniker string"},
        {L"kor:fcn1l-1.2.3", DISP_E_EXCEPTION, 0, nullptr, "Expected a char with a value of '.'."},
        {L"kor:mac-AABBCC-DDEE", DISP_E_EXCEPTION, 0, nullptr,
         "Expected a integer<unsigned char, 16, 2, default_tag>."},
    };
    com_ptr<IParseDisplayName> parser = class_object<IParseDisplayName>();
    for (const test_case& c : cases) {
        SetErrorInfo(0, nullptr);
        ULONG eaten = 0;
        IMoniker* moniker = reinterpret_cast<IMoniker*>(&eaten);
        EXPECT_EQ(parser->ParseDisplayName(nullptr, const_cast<LPOLESTR>(c.text), &eaten, &moniker), c.result);
        EXPECT_EQ(platform::take_error_description(), c.description) << c.text;
        EXPECT_EQ(eaten, c.eaten) << c.text;
        com_ptr<IMoniker> parsed(moniker);
        if (c.canonical) {
            EXPECT_EQ(display_name(parsed.get()), c.canonical);
        } else {
            EXPECT_EQ(moniker, nullptr) << c.text;
        }
    }
    ULONG eaten = 0;
    IMoniker* moniker = nullptr;
    EXPECT_EQ(parser->ParseDisplayName(nullptr, nullptr, &eaten, &moniker), E_POINTER);
}

TEST_F(Moniker, AnswersItsInterfaces)
{
    com_ptr<IMoniker> moniker = parse(L"kor:transponder-3");
    const com_ptr<IUnknown> identity = query<IUnknown>(moniker.get());
    EXPECT_EQ(query<IPersist>(moniker.get()).get(), static_cast<IPersist*>(moniker.get()))
        << "IPersist is served by the IMoniker part";
    EXPECT_EQ(query<IPersistStream>(moniker.get()).get(), static_cast<IPersistStream*>(moniker.get()));
    EXPECT_EQ(query<IUnknown>(query<IKorMoniker>(moniker.get()).get()).get(), identity.get());
    void* none = &none;
    EXPECT_EQ(moniker->QueryInterface(IID_IClassFactory, &none), E_NOINTERFACE);
    EXPECT_EQ(none, nullptr);

    CLSID clsid{};
    EXPECT_EQ(moniker->GetClassID(&clsid), S_OK);
    EXPECT_TRUE(IsEqualCLSID(clsid, CLSID_KorMoniker));
    EXPECT_EQ(moniker->GetClassID(nullptr), E_POINTER);
    EXPECT_EQ(moniker->IsDirty(), S_FALSE);
    ULARGE_INTEGER size{};
    EXPECT_EQ(moniker->GetSizeMax(&size), S_OK);
    EXPECT_EQ(size.QuadPart, 24u);
    DWORD mksys = 1234;
    EXPECT_EQ(moniker->IsSystemMoniker(&mksys), S_FALSE);
    EXPECT_EQ(mksys, 1234u);
}

TEST_F(Moniker, GettersOfEachKind)
{
    for (const name_case& c : names) {
        const com_ptr<IMoniker> moniker = parse(c.text);
        EXPECT_EQ(display_name(moniker.get()), c.canonical);
        const com_ptr<IKorMoniker> kor = query<IKorMoniker>(moniker.get());
        ULONG kind = 99, a = 0, b = 0;
        BYTE mac[6] = {};
        EXPECT_EQ(kor->GetKind(&kind), S_OK);
        EXPECT_EQ(kind, c.kind) << c.text;
        const auto answer = [&](char getter) { return std::strchr(c.getters, getter) ? S_OK : E_UNEXPECTED; };
        EXPECT_EQ(kor->GetMacAddress(mac), answer('M')) << c.text;
        EXPECT_EQ(kor->GetDeviceAddress(&a, &b), answer('D')) << c.text;
        EXPECT_EQ(kor->GetExtension(&a, &b), answer('E')) << c.text;
        EXPECT_EQ(kor->GetTransponder(&a), answer('T')) << c.text;
        EXPECT_EQ(kor->GetKind(nullptr), E_POINTER);
        EXPECT_EQ(kor->GetDeviceAddress(&a, nullptr), E_POINTER);
        EXPECT_EQ(kor->GetExtension(nullptr, &b), E_POINTER);
    }
}

TEST_F(Moniker, CreatedFromValues)
{
    com_ptr<ICreateKorMoniker> create = class_object<ICreateKorMoniker>();
    com_ptr<IMoniker> moniker;
    const BYTE mac[6] = {1, 2, 3, 4, 5, 6};
    EXPECT_EQ(create->CreateMacMoniker(mac, moniker.put()), E_NOTIMPL);

    ASSERT_EQ(create->CreateDeviceMoniker(0x100 + 128, 0xC0A80001, moniker.put()), S_OK);
    EXPECT_EQ(display_name(moniker.get()), L"kor:gull-192.168.0.1");
    ULONG type = 0, address = 0;
    query<IKorMoniker>(moniker.get())->GetDeviceAddress(&type, &address);
    EXPECT_EQ(type, 0x100u + 128) << "all 32 bits are kept";

    ASSERT_EQ(create->CreateDeviceMonikerEx(62, 0x01020304, 4000000000u, 9, moniker.put()), S_OK);
    EXPECT_EQ(display_name(moniker.get()), L"kor:(invalid)-1.2.3.4,9,4000000000");
    ASSERT_EQ(create->CreateTransponderMoniker(300, moniker.put()), S_OK);
    EXPECT_EQ(display_name(moniker.get()), L"kor:transponder-300");
    EXPECT_EQ(create->CreateTransponderMoniker(1, nullptr), E_POINTER);
}

TEST_F(Moniker, SavesAndLoadsThroughStreams)
{
    com_ptr<IClassFromStreamFactory> factory = class_object<IClassFromStreamFactory>();
    for (const name_case& c : names) {
        com_ptr<IStream> out = stream_of({});
        EXPECT_EQ(parse(c.text)->Save(out.get(), TRUE), S_OK);
        EXPECT_EQ(stream_bytes(out.get()), c.bytes) << c.text;

        com_ptr<IStream> stream = stream_of(c.bytes);
        com_ptr<IMoniker> loaded;
        ASSERT_EQ(factory->CreateFromStream(stream.get(), IID_IMoniker, loaded.put_void()), S_OK) << c.text;
        EXPECT_EQ(display_name(loaded.get()), c.canonical);

        // Every shorter stream is incomplete, and the moniker is discarded;
        // a moniker parsed before, of another kind, keeps its name.
        const name_case& other = names[(&c - names + 1) % std::size(names)];
        const com_ptr<IMoniker> earlier = parse(other.text);
        for (std::size_t size = 0; size < c.bytes.size(); ++size) {
            const byte_list bytes(c.bytes.begin(), c.bytes.begin() + static_cast<std::ptrdiff_t>(size));
            void* none = &none;
            EXPECT_EQ(factory->CreateFromStream(stream_of(bytes).get(), IID_IMoniker, &none), STG_E_INCOMPLETE)
                << c.text << " cut to " << size;
            EXPECT_EQ(none, nullptr);
            EXPECT_EQ(earlier->Load(stream_of(bytes).get()), STG_E_INCOMPLETE) << c.text << " cut to " << size;
            EXPECT_EQ(display_name(earlier.get()), other.canonical) << c.text << " cut to " << size;
        }
    }
    void* none = nullptr;
    com_ptr<IStream> stream = stream_of(names[0].bytes);
    EXPECT_EQ(factory->CreateFromStream(stream.get(), IID_IClassFactory, &none), E_NOINTERFACE);
    EXPECT_EQ(factory->CreateFromStream(nullptr, IID_IMoniker, &none), E_POINTER);
}

TEST_F(Moniker, UnknownKindInAStream)
{
    com_ptr<IStream> stream = stream_of({4, 0, 0, 0, 1, 2, 3, 4});
    void* none = &none;
    EXPECT_EQ(class_object<IClassFromStreamFactory>()->CreateFromStream(stream.get(), IID_IMoniker, &none),
              E_UNEXPECTED);
    EXPECT_EQ(none, nullptr);

    // A moniker that fails to load an unknown kind stays what it was.
    com_ptr<IMoniker> moniker = parse(L"kor:transponder-1");
    stream = stream_of({0xFF, 0xFF, 0xFF, 0xFF});
    EXPECT_EQ(moniker->Load(stream.get()), E_UNEXPECTED);
    EXPECT_EQ(display_name(moniker.get()), L"kor:transponder-1");
    DWORD hash = 0;
    EXPECT_EQ(moniker->Hash(&hash), S_OK);
    EXPECT_EQ(hash, 1u);
}

TEST_F(Moniker, StreamFailures)
{
    com_ptr<IMoniker> moniker = parse(L"kor:transponder-12");
    fake_stream stream;

    // The stream's own failure, with the error object it left on the thread.
    const auto fail_with_description = [](HRESULT result, const wchar_t* description) {
        ICreateErrorInfo* creator = nullptr;
        CreateErrorInfo(&creator);
        creator->SetDescription(const_cast<LPOLESTR>(description));
        IErrorInfo* info = nullptr;
        creator->QueryInterface(IID_IErrorInfo, reinterpret_cast<void**>(&info));
        SetErrorInfo(0, info);
        info->Release();
        creator->Release();
        return result;
    };
    stream.read = [&](void*, ULONG, ULONG*) { return fail_with_description(STG_E_READFAULT, L"the disk went away"); };
    EXPECT_EQ(moniker->Load(&stream), STG_E_READFAULT);
    EXPECT_EQ(platform::take_error_description(), "the disk went away");
    stream.write = [&](const void*, ULONG, ULONG*) {
        return fail_with_description(STG_E_ACCESSDENIED, L"no write access");
    };
    EXPECT_EQ(moniker->Save(&stream, TRUE), STG_E_ACCESSDENIED);
    EXPECT_EQ(platform::take_error_description(), "no write access");

    // Short transfers that the stream calls success.
    stream.read = [](void*, ULONG cb, ULONG* got) {
        *got = cb - 1;
        return S_FALSE;
    };
    EXPECT_EQ(moniker->Load(&stream), STG_E_INCOMPLETE);
    byte_list written;
    stream.write = [&](const void* pv, ULONG cb, ULONG* done) {
        written.assign(static_cast<const BYTE*>(pv), static_cast<const BYTE*>(pv) + cb);
        *done = cb - 1;
        return S_OK;
    };
    EXPECT_EQ(moniker->Save(&stream, TRUE), STG_E_MEDIUMFULL);
    EXPECT_EQ(written, names[3].bytes) << "the whole name is offered in one write";
    EXPECT_EQ(stream.refs, 1) << "the stream is held only during the call";
    EXPECT_EQ(moniker->Load(nullptr), E_POINTER);

    // A stream that fails half-way, after the kind: its failure comes back.
    int reads = 0;
    stream.read = [&](void* pv, ULONG cb, ULONG* got) {
        if (reads++ > 0)
            return STG_E_READFAULT;
        *static_cast<DWORD*>(pv) = 1;   // a device name follows
        *got = cb;
        return S_OK;
    };
    EXPECT_EQ(moniker->Load(&stream), STG_E_READFAULT);
    EXPECT_EQ(reads, 2);
    EXPECT_EQ(display_name(moniker.get()), L"kor:transponder-12") << "the kind read is not kept";
}

TEST_F(Moniker, IsEqualAndHash)
{
    for (const name_case& a : names) {
        const com_ptr<IMoniker> moniker = parse(a.text);
        for (const name_case& b : names)
            EXPECT_EQ(moniker->IsEqual(parse(b.canonical).get()), &a == &b ? S_OK : S_FALSE) << a.text << " " << b.text;
        DWORD hash = 0;
        EXPECT_EQ(moniker->Hash(&hash), S_OK);
        EXPECT_EQ(hash, a.hash) << a.text;
    }

    com_ptr<IMoniker> moniker = parse(L"kor:transponder-12");
    com_ptr<IMoniker> item;
    ASSERT_EQ(CreateItemMoniker(L"!", L"transponder-12", item.put()), S_OK);
    EXPECT_EQ(moniker->IsEqual(item.get()), S_FALSE) << "a moniker of another class";
    EXPECT_EQ(moniker->IsEqual(nullptr), E_POINTER);
    EXPECT_EQ(moniker->Hash(nullptr), E_POINTER);
}

// What a host sets up for binding: a bind context whose "ServiceProvider"
// object hands out the host's binder.
struct host_services {
    fake_binder binder;
    fake_provider provider;
    com_ptr<IBindCtx> context;

    host_services()
    {
        provider.binder = &binder;
        EXPECT_EQ(CreateBindCtx(0, context.put()), S_OK);
        offer(static_cast<IServiceProvider*>(&provider));
    }
    void offer(IUnknown* object) { context->RegisterObjectParam(const_cast<LPOLESTR>(L"ServiceProvider"), object); }
};

TEST_F(Moniker, BindsThroughTheHostsBinder)
{
    for (const name_case& c : names) {
        host_services host;
        host.binder.result = static_cast<HRESULT>(0x80041234);
        void* object = nullptr;
        EXPECT_EQ(parse(c.text)->BindToObject(host.context.get(), nullptr, IID_IDispatch, &object), host.binder.result)
            << "the binder's answer, unchanged";
        EXPECT_EQ(host.binder.calls, c.bind);
        EXPECT_EQ(host.binder.lastOut, &object) << "the caller's out pointer goes to the binder";
        EXPECT_EQ(host.provider.calls, "SID_KorBinder IKorBinder;");
        host.context.reset();
        EXPECT_EQ(host.binder.refs, 1) << c.text;
        EXPECT_EQ(host.provider.refs, 1) << c.text;
    }

    // A moniker to the left supplies the provider instead of the bind context.
    host_services host;
    fake_provider left_provider;
    left_provider.binder = &host.binder;
    com_ptr<IMoniker> left;
    ASSERT_EQ(CreatePointerMoniker(static_cast<IServiceProvider*>(&left_provider), left.put()), S_OK);
    void* object = nullptr;
    EXPECT_EQ(parse(L"kor:transponder-7")->BindToObject(host.context.get(), left.get(), IID_IUnknown, &object), S_OK);
    EXPECT_EQ(host.binder.calls, "BindTransponder 7 IUnknown;");
    EXPECT_EQ(left_provider.calls, "SID_KorBinder IKorBinder;");
    EXPECT_EQ(host.provider.calls, "");
    left.reset();
    EXPECT_EQ(left_provider.refs, 1);
}

TEST_F(Moniker, BindFailures)
{
    com_ptr<IMoniker> moniker = parse(L"kor:transponder-7");
    void* object = nullptr;
    EXPECT_EQ(moniker->BindToObject(nullptr, nullptr, IID_IUnknown, &object), E_UNEXPECTED) << "no bind context";

    host_services host;
    host.context->RevokeObjectParam(const_cast<LPOLESTR>(L"ServiceProvider"));
    com_ptr<IUnknown> missing;
    const HRESULT not_registered =
        host.context->GetObjectParam(const_cast<LPOLESTR>(L"ServiceProvider"), missing.put());
    ASSERT_TRUE(FAILED(not_registered));
    EXPECT_EQ(moniker->BindToObject(host.context.get(), nullptr, IID_IUnknown, &object), not_registered)
        << "the bind context's own failure";

    fake_object not_a_provider;
    host.offer(&not_a_provider);
    EXPECT_EQ(moniker->BindToObject(host.context.get(), nullptr, IID_IUnknown, &object), E_NOINTERFACE);

    host.provider.binder = nullptr;
    host.offer(static_cast<IServiceProvider*>(&host.provider));
    EXPECT_EQ(moniker->BindToObject(host.context.get(), nullptr, IID_IUnknown, &object), E_NOINTERFACE)
        << "QueryService's failure";

    com_ptr<IMoniker> left;
    ASSERT_EQ(CreatePointerMoniker(&not_a_provider, left.put()), S_OK);
    EXPECT_EQ(moniker->BindToObject(host.context.get(), left.get(), IID_IUnknown, &object), E_NOINTERFACE)
        << "the left moniker's failure";

    left.reset();
    host.context.reset();
    EXPECT_EQ(host.binder.calls, "");
    EXPECT_EQ(not_a_provider.refs, 1);
    EXPECT_EQ(host.provider.refs, 1);
}

TEST_F(Moniker, ComposeWith)
{
    com_ptr<IMoniker> moniker = parse(L"kor:transponder-7");
    com_ptr<IMoniker> item;
    ASSERT_EQ(CreateItemMoniker(L"!", L"port1", item.put()), S_OK);

    IMoniker* composite = moniker.get();
    EXPECT_EQ(moniker->ComposeWith(item.get(), TRUE, &composite), MK_E_NEEDGENERIC);
    EXPECT_EQ(composite, nullptr);

    com_ptr<IMoniker> generic;
    ASSERT_EQ(moniker->ComposeWith(item.get(), FALSE, generic.put()), S_OK);
    EXPECT_EQ(display_name(generic.get()), L"kor:transponder-7!port1");
    DWORD mksys = 0;
    EXPECT_EQ(generic->IsSystemMoniker(&mksys), S_OK);
    EXPECT_EQ(mksys, static_cast<DWORD>(MKSYS_GENERICCOMPOSITE));
}

}   // namespace
