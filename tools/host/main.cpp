// The demo host: loads korps.dll as the management console does and shows
// what it does with it.
//
//   1. names its alarm types (RegisterAlarmTypeMap), takes the event type
//      table once (UI_EnumEVENTUI, in batches) and keys it by GUID;
//   2. renders an event log with the renderers it was handed: each text in
//      its colour, each XML fragment in a buffer of its own, each failure
//      with its result and the error object's description;
//   3. registers the module and turns a "kor:" device name into a moniker
//      through the platform, binding it through the host's own binder.
//
//   korps-host [korps.dll] [--log FILE] [--no-colour]
#include <windows.h>

#include <cstdio>
#include <cstring>
#include <io.h>
#include <map>
#include <string>
#include <vector>

#include "include/korps/korps.h"
#include "korps/korps_interfaces.h"
#include "tools/host/demo_binder.h"
#include "tools/result_names.h"
#include "tools/sample_file.h"

namespace {

std::string utf8(const wchar_t* text, int length = -1)
{
    const int n = WideCharToMultiByte(CP_UTF8, 0, text, length, nullptr, 0, nullptr, nullptr);
    std::string out(n > 0 ? static_cast<std::size_t>(n) : 0, '\0');
    if (n > 0)
        WideCharToMultiByte(CP_UTF8, 0, text, length, out.data(), n, nullptr, nullptr);
    if (length < 0 && !out.empty())
        out.pop_back();
    return out;
}

// The description of the thread's error object, as GetErrorInfo hands it over.
std::string error_description()
{
    IErrorInfo* info = nullptr;
    std::string text;
    if (GetErrorInfo(0, &info) == S_OK && info) {
        BSTR description = nullptr;
        if (SUCCEEDED(info->GetDescription(&description)) && description)
            text = utf8(description);
        SysFreeString(description);
        info->Release();
    }
    return text;
}

template <class Function>
Function export_of(HMODULE module, const char* name)
{
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

struct guid_less {
    bool operator()(const GUID& a, const GUID& b) const { return std::memcmp(&a, &b, sizeof a) < 0; }
};
using event_map = std::map<GUID, EVENTUI, guid_less>;

// Once at start-up, as the console does: every record, keyed by GUID.
event_map take_event_types(UI_EnumEVENTUI_t enumerate)
{
    event_map events;
    IEnumEVENTUI* types = nullptr;
    if (FAILED(enumerate(&types)))
        return events;
    std::printf("%-3s %-38s %-3s %s\n", "#", "event type", "xml", "name");
    EVENTUI batch[8];
    ULONG fetched = 0;
    int index = 0;
    do {
        types->Next(8, batch, &fetched);
        for (ULONG i = 0; i < fetched; ++i, ++index) {
            wchar_t id[40];
            StringFromGUID2(batch[i].eventType, id, 40);
            std::printf("%-3d %-38s %-3s %s\n", index, utf8(id).c_str(), batch[i].xmlRenderer ? "yes" : "no",
                        utf8(batch[i].name).c_str());
            events[batch[i].eventType] = batch[i];
        }
    } while (fetched == 8);
    types->Release();
    return events;
}

struct tally {
    int events = 0, rendered = 0, expected_failures = 0, unexpected = 0;
};

// One form of one event: its output or its failure, checked against what the
// log expects.
void render_form(const EVENTUI& type, const samples::sample& s, bool text, bool colour, tally& t)
{
    const auto& expected = text ? s.text : s.xml;
    std::vector<wchar_t> buffer(s.capacity.value_or(8192));
    UINT rgb = 0;
    const auto bytes = static_cast<UINT>(s.payload.size());
    const auto capacity = static_cast<UINT>(buffer.size());
    const HRESULT result = text ? type.textRenderer(nullptr, bytes, s.payload.data(), buffer.data(), capacity, &rgb)
                                : type.xmlRenderer(nullptr, bytes, s.payload.data(), buffer.data(), capacity);
    const std::string output = utf8(buffer.data());
    const bool as_expected = expected && expected->result == result &&
                             std::u16string(buffer.data(), buffer.data() + wcslen(buffer.data())) == expected->output;
    if (SUCCEEDED(result)) {
        ++t.rendered;
        if (!text)
            std::printf("%s\n", output.c_str());
        else if (colour)
            std::printf("  \x1b[38;2;%u;%u;%um%s\x1b[0m\n", rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF,
                        output.c_str());
        else
            std::printf("  %s  [#%02X%02X%02X]\n", output.c_str(), rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF);
    } else {
        const std::string why = error_description();
        std::printf("  %s %s%s%s, the buffer holds \"%s\"%s\n", text ? "text" : "xml",
                    results::describe(result).c_str(), why.empty() ? "" : ": ", why.c_str(), output.c_str(),
                    as_expected ? "  (expected)" : "");
        if (as_expected)
            ++t.expected_failures;
    }
    if (expected && !as_expected) {
        ++t.unexpected;
        std::printf("  ** %s differs from what the log expects\n", text ? "text" : "xml");
    }
}

tally render_log(const event_map& events, const char* log, bool colour)
{
    tally t;
    for (const samples::sample& s : samples::load(log)) {
        ++t.events;
        const auto type = events.find(s.event);
        if (type == events.end()) {
            ++t.unexpected;
            std::printf("%s: no renderer for this event type\n", s.name.c_str());
            continue;
        }
        std::printf("%s: %s\n", utf8(type->second.name).c_str(), s.name.c_str());
        if (s.text)
            render_form(type->second, s, true, colour, t);
        if (s.xml && type->second.xmlRenderer)
            render_form(type->second, s, false, colour, t);
    }
    return t;
}

// A client's way to a device: the platform parses the "kor:" name through the
// registered scheme, and the moniker binds through the host's binder.
bool bind_device_name(const wchar_t* name)
{
    demo_binder binder;
    IBindCtx* context = nullptr;
    CreateBindCtx(0, &context);
    context->RegisterObjectParam(const_cast<LPOLESTR>(L"ServiceProvider"), static_cast<IServiceProvider*>(&binder));
    ULONG eaten = 0;
    IMoniker* moniker = nullptr;
    HRESULT result = MkParseDisplayName(context, name, &eaten, &moniker);
    bool ok = SUCCEEDED(result);
    if (!ok) {
        std::printf("  %s: %s %s\n", utf8(name).c_str(), results::describe(result).c_str(),
                    error_description().c_str());
    } else {
        LPOLESTR canonical = nullptr;
        moniker->GetDisplayName(context, nullptr, &canonical);
        IUnknown* device = nullptr;
        result = moniker->BindToObject(context, nullptr, IID_IUnknown, reinterpret_cast<void**>(&device));
        std::printf("  %s is %s; bound to %s: %s\n", utf8(name).c_str(), utf8(canonical).c_str(),
                    binder.last_request.c_str(), results::describe(result).c_str());
        ok = SUCCEEDED(result);
        CoTaskMemFree(canonical);
        if (device)
            device->Release();
        moniker->Release();
    }
    context->Release();
    return ok;
}

}   // namespace

int main(int argc, char** argv)
{
    const char* path = "korps.dll";
    const char* log = nullptr;
    bool colour = _isatty(_fileno(stdout)) != 0;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--no-colour") == 0)
            colour = false;
        else if (std::strcmp(argv[i], "--log") == 0 && i + 1 < argc)
            log = argv[++i];
        else if (argv[i][0] != '-')
            path = argv[i];
        else {
            std::fprintf(stderr, "usage: korps-host [korps.dll] [--log FILE] [--no-colour]\n");
            return 2;
        }
    }
    const HMODULE module = LoadLibraryA(path);
    if (!module) {
        std::fprintf(stderr, "korps-host: cannot load %s (error %lu)\n", path, GetLastError());
        return 1;
    }
    const auto enumerate = export_of<UI_EnumEVENTUI_t>(module, "UI_EnumEVENTUI");
    const auto register_alarms = export_of<RegisterAlarmTypeMap_t>(module, "RegisterAlarmTypeMap");
    const auto register_server = export_of<HRESULT(__stdcall*)()>(module, "DllRegisterServer");
    const auto unregister_server = export_of<HRESULT(__stdcall*)()>(module, "DllUnregisterServer");
    if (!enumerate || !register_alarms || !register_server || !unregister_server) {
        std::fprintf(stderr, "korps-host: %s lacks the module's exports\n", path);
        return 1;
    }

    samples::register_alarm_types(register_alarms);
    const event_map events = take_event_types(enumerate);
    std::printf("%zu event types\n\n", events.size());

    tally t;
    if (log) {
        try {
            t = render_log(events, log, colour);
        } catch (const std::exception& e) {
            std::fprintf(stderr, "korps-host: %s\n", e.what());
            return 1;
        }
    }

    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    std::printf("\ndevice names\n");
    const HRESULT registered = register_server();
    std::printf("  DllRegisterServer: %s\n", results::describe(registered).c_str());
    const bool bound = SUCCEEDED(registered) && bind_device_name(L"kor:FCN1L-10.0.0.1");
    bind_device_name(L"kor:fcn1l-1.2.3.256");   // refused, with the parser's reason
    std::printf("  DllUnregisterServer: %s\n", results::describe(unregister_server()).c_str());
    CoUninitialize();

    std::printf("\n%zu event types; %d events: %d renderings, %d failures as expected, %d unexpected; "
                "kor: name %s\n",
                events.size(), t.events, t.rendered, t.expected_failures, t.unexpected,
                bound ? "parsed and bound" : "NOT bound");
    FreeLibrary(module);
    return events.size() == 40 && t.unexpected == 0 && bound ? 0 : 1;
}
