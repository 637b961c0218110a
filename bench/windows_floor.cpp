// The floor comparison for korps.dll itself, run under Wine: every sample
// rendered through the module's own EVENTUI pointers, as the console calls
// them, against copying the known output into the same buffer.
//   korps_floor.exe <samples folder>
#include <windows.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "include/korps/korps.h"
#include "tools/sample_file.h"

namespace {

double now_ns()
{
    static const double ns_per_tick = [] {
        LARGE_INTEGER f;
        QueryPerformanceFrequency(&f);
        return 1e9 / static_cast<double>(f.QuadPart);
    }();
    LARGE_INTEGER t;
    QueryPerformanceCounter(&t);
    return static_cast<double>(t.QuadPart) * ns_per_tick;
}

template <class Call>
double best_ns(Call call)
{
    double best = 1e30;
    for (int round = 0; round < 5; ++round) {
        const double start = now_ns();
        for (int i = 0; i < 1000; ++i)
            call();
        best = std::min(best, (now_ns() - start) / 1000);
    }
    return best;
}

volatile WCHAR sink;

}   // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: korps_floor <samples folder>\n");
        return 2;
    }
    HMODULE module = LoadLibraryW(L"korps.dll");
    if (!module) {
        std::fprintf(stderr, "korps_floor: korps.dll did not load\n");
        return 1;
    }
    const auto enumerate =
        reinterpret_cast<UI_EnumEVENTUI_t>(reinterpret_cast<void*>(GetProcAddress(module, "UI_EnumEVENTUI")));
    const auto register_alarms = reinterpret_cast<RegisterAlarmTypeMap_t>(
        reinterpret_cast<void*>(GetProcAddress(module, "RegisterAlarmTypeMap")));
    samples::register_alarm_types(register_alarms);
    std::map<std::string, EVENTUI> types;
    IEnumEVENTUI* e = nullptr;
    enumerate(&e);
    EVENTUI record;
    while (e->Next(1, &record, nullptr) == S_OK)
        types[std::string(reinterpret_cast<const char*>(&record.eventType), sizeof(GUID))] = record;
    e->Release();

    const std::vector<samples::sample> all = samples::load_folder(argv[1]);
    std::vector<WCHAR> buffer(4096);
    struct sums {
        double log = 0;
        int n = 0;
        double worst = 0;
    } text, xml;
    double total_ours = 0;
    int renderings = 0;
    for (const samples::sample& s : all) {
        const auto found = types.find(std::string(reinterpret_cast<const char*>(&s.event), sizeof(GUID)));
        // The event log repeats samples of the other files.
        if (found == types.end() || s.file.find("event-log") != std::string::npos)
            continue;
        const EVENTUI& t = found->second;
        const auto bytes = static_cast<UINT>(s.payload.size());
        for (const bool is_text : {true, false}) {
            const auto& expected = is_text ? s.text : s.xml;
            if (!expected || expected->result != S_OK || (!is_text && !t.xmlRenderer))
                continue;
            UINT colour = 0;
            const double ours = best_ns([&] {
                is_text ? t.textRenderer(nullptr, bytes, s.payload.data(), buffer.data(), 4096, &colour)
                        : t.xmlRenderer(nullptr, bytes, s.payload.data(), buffer.data(), 4096);
                sink = buffer[0];
            });
            const double floor = best_ns([&] {
                std::copy(expected->output.begin(), expected->output.end(), buffer.begin());
                buffer[expected->output.size()] = 0;
                sink = buffer[0];
            });
            sums& into = is_text ? text : xml;
            into.log += std::log(ours / floor);
            into.worst = std::max(into.worst, ours / floor);
            ++into.n;
            total_ours += ours;
            ++renderings;
        }
    }
    std::printf("korps.dll under Wine (best of 5 x 1000 calls per sample)\n");
    std::printf("  text geometric mean %.2fx the floor over %d samples; worst %.2fx\n", std::exp(text.log / text.n),
                text.n, text.worst);
    std::printf("  xml  geometric mean %.2fx the floor over %d samples; worst %.2fx\n", std::exp(xml.log / xml.n),
                xml.n, xml.worst);
    std::printf("  %.1f ns per rendering on average, %.0f renderings/s\n", total_ours / renderings,
                1e9 * renderings / total_ours);
    return 0;
}
