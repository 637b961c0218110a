// Renderers keep no state: the whole sample set rendered from eight threads at
// once, with the alarm names registered before the threads start as a host
// registers them, gives every thread the expected outputs.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

#include "tests/common/sample_check.h"

namespace {

TEST(Concurrency, EverySampleFromEightThreadsAtOnce)
{
    struct job {
        sample_check::renderers renderers;
        bool text;
        const samples::sample* sample;
        const samples::expectation* expected;
    };
    const std::vector<samples::sample> all = samples::load_folder(KORPS_SAMPLES_DIR);
    std::vector<job> jobs;
    for (const samples::sample& s : all) {
        const sample_check::renderers r = sample_check::find_renderers(s.event);
        if (s.text)
            jobs.push_back({r, true, &s, &*s.text});
        if (s.xml && r.xml)
            jobs.push_back({r, false, &s, &*s.xml});
    }
    ASSERT_FALSE(jobs.empty());

    constexpr int threads = 8, rounds = 10;
    std::atomic<int> wrong{0};
    std::vector<std::thread> running;
    for (int t = 0; t < threads; ++t) {
        running.emplace_back([&, t] {
            // Each thread starts elsewhere in the list, so that different
            // renderers run side by side.
            for (std::size_t i = 0; i < rounds * jobs.size(); ++i) {
                const job& j = jobs[(i + t * jobs.size() / threads) % jobs.size()];
                const sample_check::outcome o =
                    sample_check::render(j.renderers, j.text, j.sample->payload, j.sample->capacity.value_or(8192));
                if (o.result != j.expected->result || o.output != j.expected->output || !o.intact ||
                    (j.expected->error && o.error != *j.expected->error))
                    ++wrong;
            }
        });
    }
    for (std::thread& t : running)
        t.join();
    EXPECT_EQ(wrong.load(), 0) << "renderings that differed from the samples";
}

}   // namespace
