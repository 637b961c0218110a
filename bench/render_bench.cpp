// How fast the renderers turn payloads into text: every sample event through
// its text and XML renderer, into a buffer on the stack, as the host calls.
#include <benchmark/benchmark.h>

#include <array>

#include "events/alarm_type_map.h"
#include "module/event_types.h"
#include "tools/sample_file.h"

namespace {

void render_text(benchmark::State& state, const samples::sample& s, const event_type_row& row)
{
    std::array<wchar, 1024> buffer;
    std::uint32_t colour = 0;
    const auto bytes = static_cast<std::uint32_t>(s.payload.size());
    for (auto _ : state) {
        benchmark::DoNotOptimize(row.textRenderer(nullptr, bytes, s.payload.data(), buffer.data(), buffer.size(), &colour));
        benchmark::ClobberMemory();
    }
}

void render_xml(benchmark::State& state, const samples::sample& s, const event_type_row& row)
{
    std::array<wchar, 4096> buffer;
    const auto bytes = static_cast<std::uint32_t>(s.payload.size());
    for (auto _ : state) {
        benchmark::DoNotOptimize(row.xmlRenderer(nullptr, bytes, s.payload.data(), buffer.data(), buffer.size()));
        benchmark::ClobberMemory();
    }
}

// The host's own lookup before every rendering: the event type by GUID.
void find_event_type(benchmark::State& state)
{
    const GUID last = *event_types().back().eventType;
    for (auto _ : state)
        benchmark::DoNotOptimize(find_event_type(last));
}
BENCHMARK(find_event_type);

} // namespace

int main(int argc, char** argv)
{
    samples::register_alarm_types(&RegisterAlarmTypeMap);
    static const auto all = samples::load_folder(KORPS_SAMPLES_DIR);
    for (const samples::sample& s : all) {
        const event_type_row* row = find_event_type(s.event);
        if (!row)
            continue;
        // Only successful renderings tell how fast the renderers are.
        if (s.text && s.text->result == S_OK)
            benchmark::RegisterBenchmark(("text/" + s.file + "/" + s.name).c_str(),
                                         [&s, row](benchmark::State& st) { render_text(st, s, *row); });
        if (s.xml && s.xml->result == S_OK && row->xmlRenderer)
            benchmark::RegisterBenchmark(("xml/" + s.file + "/" + s.name).c_str(),
                                         [&s, row](benchmark::State& st) { render_xml(st, s, *row); });
    }
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
