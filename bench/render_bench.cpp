// How fast the module renders, measured against two peers on the same events
// in the same run: the floor (copying the known output into the same buffer)
// and {fmt} (the same text formatted by a fast general formatter).
//
// Google Benchmark times each event family, the five {fmt} peers, display
// names, the stream form and a replay of the whole sample log from one and
// two threads. A summary follows: every sample's ratio to the floor
// (geometric mean and worst), the ratios to {fmt}, allocations per rendering
// and the two-thread scaling.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>
#include <string>

#include "bench/allocation_counter.h"
#include "bench/fmt_peers.h"
#include "bench/sample_set.h"
#include "events/alarm_type_map.h"
#include "moniker/kor_name_parser.h"
#include "moniker/kor_name_printer.h"
#include "moniker/kor_name_stream.h"

namespace {

using bench::rendering;

constexpr std::uint32_t capacity = 4096;

std::vector<samples::sample> all_samples;
std::vector<rendering> renderings;

// Round robin over the renderings of one family and form.
std::vector<const rendering*> family(const std::string& name, bool text)
{
    std::vector<const rendering*> out;
    for (const rendering& r : renderings)
        if (r.text == text && r.family() == name)
            out.push_back(&r);
    return out;
}

void ours(benchmark::State& state, std::vector<const rendering*> set)
{
    std::array<wchar, capacity> buffer;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(set[i]->run(buffer.data(), capacity));
        benchmark::ClobberMemory();
        i = i + 1 == set.size() ? 0 : i + 1;
    }
    state.SetItemsProcessed(state.iterations());
}

void floor(benchmark::State& state, std::vector<const rendering*> set)
{
    std::array<wchar, capacity> buffer;
    std::size_t i = 0;
    for (auto _ : state) {
        set[i]->copy_expected(buffer.data());
        benchmark::ClobberMemory();
        i = i + 1 == set.size() ? 0 : i + 1;
    }
    state.SetItemsProcessed(state.iterations());
}

void with_fmt(benchmark::State& state, const fmt_peers::peer& peer, const samples::sample& s)
{
    std::array<wchar_t, capacity> buffer;
    for (auto _ : state) {
        benchmark::DoNotOptimize(peer.render(s.payload, buffer.data(), capacity));
        benchmark::ClobberMemory();
    }
}

// The whole log, every successful rendering in turn, from each thread.
void replay(benchmark::State& state)
{
    std::array<wchar, capacity> buffer;
    std::size_t i = static_cast<std::size_t>(state.thread_index()) * 37 % renderings.size();
    for (auto _ : state) {
        benchmark::DoNotOptimize(renderings[i].run(buffer.data(), capacity));
        i = i + 1 == renderings.size() ? 0 : i + 1;
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(replay)->Threads(1)->Threads(2)->UseRealTime();

const wchar* const names[] = {"kor:FCN1L-10.0.0.1"_w.data(), "kor:fcn1l-010.000.000.001,+7,3"_w.data(),
                              "kor:mac-0006b0-1a2b3c"_w.data(), "kor:transponder-12"_w.data()};

void name_parse(benchmark::State& state)
{
    KorName name;
    std::size_t eaten = 0, i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(parse_kor_name(names[i], name, eaten));
        i = (i + 1) % std::size(names);
    }
}
BENCHMARK(name_parse);

void name_print(benchmark::State& state)
{
    std::vector<KorName> parsed(std::size(names));
    std::size_t eaten = 0;
    for (std::size_t i = 0; i < parsed.size(); ++i)
        parse_kor_name(names[i], parsed[i], eaten);
    std::array<wchar, kor_name_capacity> buffer;
    std::size_t i = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(print_kor_name(parsed[i], buffer.data(), buffer.size()));
        i = (i + 1) % parsed.size();
    }
}
BENCHMARK(name_print);

struct memory_bytes final : byte_sink, byte_source {
    std::array<std::uint8_t, kor_name_stream_max> bytes{};
    std::size_t written = 0, read_at = 0;
    void write(const std::uint8_t* data, std::size_t count) override
    {
        std::copy_n(data, count, bytes.begin() + static_cast<std::ptrdiff_t>(written));
        written += count;
    }
    void read(std::uint8_t* data, std::size_t count) override
    {
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(read_at), count, data);
        read_at += count;
    }
};

void stream_save_load(benchmark::State& state)
{
    KorName name, loaded;
    std::size_t eaten = 0;
    parse_kor_name(names[1], name, eaten);
    for (auto _ : state) {
        memory_bytes memory;
        save_kor_name(name, memory);
        load_kor_name(loaded, memory);
        benchmark::DoNotOptimize(loaded);
    }
}
BENCHMARK(stream_save_load);

// --- The summary --------------------------------------------------------------

// Times of the registered benchmarks, by name, as they are reported.
class capture final : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> ns;   // per iteration
    std::map<std::string, double> items_per_second;

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            ns[run.benchmark_name()] = run.GetAdjustedRealTime();
            if (const auto found = run.counters.find("items_per_second"); found != run.counters.end())
                items_per_second[run.benchmark_name()] = found->second;
        }
        ConsoleReporter::ReportRuns(runs);
    }
};

// Best of `rounds` runs of `calls` calls, in ns per call.
template <class Call>
double best_ns(Call call, int rounds = 5, int calls = 1000)
{
    double best = 1e30;
    for (int r = 0; r < rounds; ++r) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < calls; ++i)
            call();
        const std::chrono::duration<double, std::nano> took = std::chrono::steady_clock::now() - start;
        best = std::min(best, took.count() / calls);
    }
    return best;
}

void summarise(const capture& c)
{
    std::array<wchar, capacity> buffer;
    struct sums {
        double log = 0;
        int n = 0;
        double worst = 0;
        std::string worst_name;
    } text, xml;
    std::uint64_t most_allocations = 0;
    std::map<std::string, std::pair<double, double>> per_family;   // ns ours, ns floor (sums)
    std::map<std::string, int> counts;
    struct sample_ratio {
        double ratio, ours, floor;
        const rendering* r;
    };
    std::vector<sample_ratio> ratios;
    for (const rendering& r : renderings) {
        const double ours = best_ns([&] {
            benchmark::DoNotOptimize(r.run(buffer.data(), capacity));
            benchmark::ClobberMemory();
        });
        const double floor = best_ns([&] {
            r.copy_expected(buffer.data());
            benchmark::ClobberMemory();
        });
        const std::uint64_t before = allocations::count();
        r.run(buffer.data(), capacity);
        most_allocations = std::max(most_allocations, allocations::count() - before);
        sums& s = r.text ? text : xml;
        const double ratio = ours / floor;
        ratios.push_back({ratio, ours, floor, &r});
        s.log += std::log(ratio);
        ++s.n;
        if (ratio > s.worst) {
            s.worst = ratio;
            s.worst_name = r.sample->name;
        }
        const std::string key = (r.text ? "text/" : "xml/") + r.family();
        per_family[key].first += ours;
        per_family[key].second += floor;
        ++counts[key];
    }
    std::printf("\nRatios to the floor (best of 5 x 1000 calls per sample)\n");
    for (const auto& [name, t] : per_family)
        std::printf("  %-26s %7.1f ns per rendering, %5.2fx the floor\n", name.c_str(), t.first / counts.at(name),
                    t.first / t.second);
    for (const auto& [form, s] : {std::pair{"text", &text}, std::pair{"xml", &xml}})
        std::printf("  %-4s geometric mean %.2fx over %d samples; worst %.2fx (%s)\n", form,
                    std::exp(s->log / std::max(1, s->n)), s->n, s->worst, s->worst_name.c_str());

    std::sort(ratios.begin(), ratios.end(), [](const auto& a, const auto& b) { return a.ratio > b.ratio; });
    std::printf("  the ten highest ratios:\n");
    for (std::size_t i = 0; i < std::min<std::size_t>(10, ratios.size()); ++i)
        std::printf("    %6.2fx  %5.1f ns / %4.1f ns  %-4s %s\n", ratios[i].ratio, ratios[i].ours, ratios[i].floor,
                    ratios[i].r->text ? "text" : "xml", ratios[i].r->sample->name.c_str());

    std::printf("\nAgainst {fmt} (the same text; ns per rendering)\n");
    for (const fmt_peers::peer& p : fmt_peers::all()) {
        const std::string key(p.sample);
        if (!c.ns.count("ours/" + key) || !c.ns.count("fmt/" + key) || !c.ns.count("floor/" + key))
            continue;   // not selected by --benchmark_filter
        const double o = c.ns.at("ours/" + key), f = c.ns.at("fmt/" + key), fl = c.ns.at("floor/" + key);
        std::printf("  %-46s ours %6.1f  fmt %6.1f  floor %6.1f   ours/fmt %.2f  ours/floor %.2f\n", key.c_str(), o, f,
                    fl, o / f, o / fl);
    }

    const auto one = c.items_per_second.find("replay/real_time/threads:1");
    const auto two = c.items_per_second.find("replay/real_time/threads:2");
    if (one != c.items_per_second.end() && two != c.items_per_second.end())
        std::printf("\nReplay of the sample log: %.0f events/s on one thread, %.0f on two (%.2fx)\n", one->second,
                    two->second, two->second / one->second);
    std::printf("Allocations per rendering: %llu at most\n", static_cast<unsigned long long>(most_allocations));
}

void register_benchmarks()
{
    std::vector<std::string> families;
    for (const rendering& r : renderings)
        if (std::find(families.begin(), families.end(), r.family()) == families.end())
            families.push_back(r.family());
    for (const std::string& f : families)
        for (const bool text : {true, false}) {
            const auto set = family(f, text);
            if (set.empty())
                continue;
            const std::string form = text ? "text/" : "xml/";
            benchmark::RegisterBenchmark((form + f).c_str(), ours, set);
            benchmark::RegisterBenchmark(("floor/" + form + f).c_str(), floor, set);
        }
    for (const fmt_peers::peer& p : fmt_peers::all()) {
        const auto found = std::find_if(renderings.begin(), renderings.end(),
                                        [&](const rendering& r) { return r.text && r.sample->name == p.sample; });
        if (found == renderings.end()) {
            std::fprintf(stderr, "no sample '%.*s' for a peer\n", int(p.sample.size()), p.sample.data());
            std::exit(1);
        }
        // The peer must make exactly the module's text.
        std::array<wchar_t, capacity> text;
        const std::size_t n = p.render(found->sample->payload, text.data(), capacity);
        if (std::u16string(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(n)) != *found->expected) {
            std::fprintf(stderr, "the {fmt} peer of '%.*s' writes another text\n", int(p.sample.size()),
                         p.sample.data());
            std::exit(1);
        }
        const std::string key(p.sample);
        benchmark::RegisterBenchmark(("ours/" + key).c_str(), ours, std::vector<const rendering*>{&*found});
        benchmark::RegisterBenchmark(("floor/" + key).c_str(), floor, std::vector<const rendering*>{&*found});
        benchmark::RegisterBenchmark(("fmt/" + key).c_str(), with_fmt, p, *found->sample);
    }
}

// A fixed workload for instruction counting (scripts/instructions): `calls`
// renderings of one sample, inside this function alone.
[[gnu::noinline]] void workload(const rendering& r, long calls)
{
    std::array<wchar, capacity> buffer;
    for (long i = 0; i < calls; ++i) {
        benchmark::DoNotOptimize(r.run(buffer.data(), capacity));
        benchmark::ClobberMemory();
    }
}

// korps_bench --workload text|xml "sample name" calls
int run_workload(const std::string& form, const std::string& name, long calls)
{
    for (const rendering& r : renderings)
        if (r.text == (form == "text") && r.sample->name == name) {
            workload(r, calls);
            return 0;
        }
    std::fprintf(stderr, "korps_bench: no successful %s rendering of '%s'\n", form.c_str(), name.c_str());
    return 2;
}

}   // namespace

int main(int argc, char** argv)
{
    samples::register_alarm_types(&alarm_types::register_records);
    all_samples = samples::load_folder(KORPS_SAMPLES_DIR);
    renderings = bench::successful_renderings(all_samples);
    if (argc == 5 && std::string(argv[1]) == "--workload")
        return run_workload(argv[2], argv[3], std::atol(argv[4]));
    register_benchmarks();
    benchmark::Initialize(&argc, argv);
    capture reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    summarise(reporter);
    benchmark::Shutdown();
    return 0;
}
