// A minimal host: loads korps.dll the way the management console does and
// lists the event types it offers.
#include <cstdio>
#include <string>

#include "include/korps/korps.h"

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

} // namespace

int main(int argc, char** argv)
{
    const char* path = argc > 1 ? argv[1] : "korps.dll";
    HMODULE module = LoadLibraryA(path);
    if (!module) {
        std::fprintf(stderr, "korps-host: cannot load %s (error %lu)\n", path, GetLastError());
        return 1;
    }
    auto enumerate = reinterpret_cast<UI_EnumEVENTUI_t>(reinterpret_cast<void*>(GetProcAddress(module, "UI_EnumEVENTUI")));
    if (!enumerate) {
        std::fprintf(stderr, "korps-host: %s exports no UI_EnumEVENTUI\n", path);
        return 1;
    }

    IEnumEVENTUI* types = nullptr;
    const HRESULT result = enumerate(&types);
    if (FAILED(result)) {
        std::fprintf(stderr, "korps-host: UI_EnumEVENTUI failed with 0x%08lX\n", static_cast<unsigned long>(result));
        return 1;
    }

    // The console pulls the table in batches and keeps the records.
    EVENTUI batch[8];
    ULONG fetched = 0;
    int index = 0;
    std::printf("%-3s %-38s %-4s %s\n", "#", "event type", "xml", "name");
    do {
        types->Next(8, batch, &fetched);
        for (ULONG i = 0; i < fetched; ++i, ++index)
            std::printf("%-3d %-38s %-4s %s\n", index, guid_text(batch[i].eventType).c_str(),
                        batch[i].xmlRenderer ? "yes" : "no", utf8(batch[i].name).c_str());
    } while (fetched == 8);
    types->Release();
    std::printf("%d event types\n", index);
    FreeLibrary(module);
    return 0;
}
