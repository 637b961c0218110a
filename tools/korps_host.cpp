// A small host: loads korps.dll the way the management console does, lists
// the event types it offers, renders an event log (the sample files) with the
// renderers it handed out, and turns a few device names into monikers.
#include <cstdio>
#include <io.h>
#include <cstring>
#include <map>
#include <string>

#include "include/korps/korps.h"
#include "korps/korps_interfaces.h"
#include "tools/sample_file.h"

namespace {

std::string utf8(const wchar_t* text)
{
    const int length = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    std::string result(length > 0 ? static_cast<std::size_t>(length - 1) : 0, '\0');
    if (length > 1)
        WideCharToMultiByte(CP_UTF8, 0, text, -1, result.data(), length, nullptr, nullptr);
    return result;
}

std::string guid_text(const GUID& id)
{
    wchar_t text[40];
    StringFromGUID2(id, text, 40);
    return utf8(text);
}

struct guid_less {
    bool operator()(const GUID& a, const GUID& b) const { return std::memcmp(&a, &b, sizeof(GUID)) < 0; }
};

using event_map = std::map<GUID, EVENTUI, guid_less>;

// What the console does once at start-up: copy every record, keyed by GUID.
event_map enumerate(UI_EnumEVENTUI_t enumerate_types, bool list)
{
    event_map events;
    IEnumEVENTUI* types = nullptr;
    const HRESULT result = enumerate_types(&types);
    if (FAILED(result)) {
        std::fprintf(stderr, "korps-host: UI_EnumEVENTUI failed with 0x%08lX\n", static_cast<unsigned long>(result));
        return events;
    }
    if (list)
        std::printf("%-3s %-38s %-4s %s\n", "#", "event type", "xml", "name");
    EVENTUI batch[8];
    ULONG fetched = 0;
    int index = 0;
    do {
        types->Next(8, batch, &fetched);
        for (ULONG i = 0; i < fetched; ++i, ++index) {
            events[batch[i].eventType] = batch[i];
            if (list)
                std::printf("%-3d %-38s %-4s %s\n", index, guid_text(batch[i].eventType).c_str(),
                            batch[i].xmlRenderer ? "yes" : "no", utf8(batch[i].name).c_str());
        }
    } while (fetched == 8);
    types->Release();
    if (list)
        std::printf("%d event types\n\n", index);
    return events;
}

// One event of the log: its text line in its colour, then its XML fragment.
void show(const EVENTUI& type, const samples::sample& event, bool colour)
{
    wchar_t buffer[4096];
    UINT rgb = 0;
    const auto bytes = static_cast<UINT>(event.payload.size());
    HRESULT result = type.textRenderer(nullptr, bytes, event.payload.data(), buffer, 4096, &rgb);
    std::printf("%s: ", utf8(type.name).c_str());
    if (FAILED(result)) {
        std::printf("(not rendered: 0x%08lX)\n", static_cast<unsigned long>(result));
    } else if (colour) {
        std::printf("\x1b[38;2;%u;%u;%um%s\x1b[0m\n", rgb & 0xFF, rgb >> 8 & 0xFF, rgb >> 16 & 0xFF,
                    utf8(buffer).c_str());
    } else {
        std::printf("%s [colour 0x%06X]\n", utf8(buffer).c_str(), rgb);
    }
    if (type.xmlRenderer) {
        result = type.xmlRenderer(nullptr, bytes, event.payload.data(), buffer, 4096);
        if (SUCCEEDED(result) && buffer[0])
            std::printf("%s\n", utf8(buffer).c_str());
    }
}

// Device names as a client meets them: the module's class object parses a
// "kor:" name into a moniker, which prints itself back in canonical form.
void show_device_names(HMODULE module)
{
    using get_class_object_t = HRESULT(__stdcall*)(REFCLSID, REFIID, void**);
    auto get_class_object =
        reinterpret_cast<get_class_object_t>(reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    IParseDisplayName* parser = nullptr;
    if (!get_class_object || FAILED(get_class_object(CLSID_KorMoniker, IID_IParseDisplayName,
                                                     reinterpret_cast<void**>(&parser))))
        return;
    std::printf("\ndevice names\n");
    const wchar_t* names[] = {L"kor:FCN1L-10.0.0.1", L"kor:fcn1l-010.000.000.001,+7,3", L"kor:mac-0006B0-1A2B3C",
                              L"kor:transponder-12", L"kor:fcn1l-1.2.3.256"};
    for (const wchar_t* name : names) {
        ULONG eaten = 0;
        IMoniker* moniker = nullptr;
        const HRESULT result = parser->ParseDisplayName(nullptr, const_cast<LPOLESTR>(name), &eaten, &moniker);
        if (FAILED(result)) {
            IErrorInfo* info = nullptr;
            BSTR why = nullptr;
            if (GetErrorInfo(0, &info) == S_OK && info && SUCCEEDED(info->GetDescription(&why)) && why)
                std::printf("%-34s refused: %s\n", utf8(name).c_str(), utf8(why).c_str());
            SysFreeString(why);
            if (info)
                info->Release();
            continue;
        }
        LPOLESTR canonical = nullptr;
        if (SUCCEEDED(moniker->GetDisplayName(nullptr, nullptr, &canonical))) {
            std::printf("%-34s -> %s\n", utf8(name).c_str(), utf8(canonical).c_str());
            CoTaskMemFree(canonical);
        }
        moniker->Release();
    }
    parser->Release();
}

} // namespace

int main(int argc, char** argv)
{
    const char* path = "korps.dll";
    const char* log = nullptr;
    bool colour = _isatty(_fileno(stdout)) != 0;   // escape codes only for a terminal
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--no-colour") == 0)
            colour = false;
        else if (std::strcmp(argv[i], "--log") == 0 && i + 1 < argc)
            log = argv[++i];
        else if (argv[i][0] != '-')
            path = argv[i];
        else {
            std::fprintf(stderr, "usage: korps-host [korps.dll] [--log samples-folder-or-file] [--no-colour]\n");
            return 2;
        }
    }

    HMODULE module = LoadLibraryA(path);
    if (!module) {
        std::fprintf(stderr, "korps-host: cannot load %s (error %lu)\n", path, GetLastError());
        return 1;
    }
    auto enumerate_types =
        reinterpret_cast<UI_EnumEVENTUI_t>(reinterpret_cast<void*>(GetProcAddress(module, "UI_EnumEVENTUI")));
    if (!enumerate_types) {
        std::fprintf(stderr, "korps-host: %s exports no UI_EnumEVENTUI\n", path);
        return 1;
    }
    // The console names its alarm types before it renders anything; the
    // event log here is the sample files, so it names theirs.
    const auto register_alarm_types = reinterpret_cast<RegisterAlarmTypeMap_t>(
        reinterpret_cast<void*>(GetProcAddress(module, "RegisterAlarmTypeMap")));
    if (!register_alarm_types) {
        std::fprintf(stderr, "korps-host: %s exports no RegisterAlarmTypeMap\n", path);
        return 1;
    }
    samples::register_alarm_types(register_alarm_types);
    const event_map events = enumerate(enumerate_types, true);

    int status = events.size() == 40 ? 0 : 1;
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    show_device_names(module);
    if (log) {
        try {
            const std::string where = log;
            const auto entries = where.size() > 8 && where.substr(where.size() - 8) == ".samples"
                                     ? samples::load(where)
                                     : samples::load_folder(where);
            for (const samples::sample& event : entries) {
                const auto type = events.find(event.event);
                if (type == events.end())
                    std::printf("unknown event type %s\n", guid_text(event.event).c_str());
                else
                    show(type->second, event, colour);
            }
        } catch (const std::exception& e) {
            std::fprintf(stderr, "korps-host: %s\n", e.what());
            status = 1;
        }
    }
    CoUninitialize();
    FreeLibrary(module);
    return status;
}
