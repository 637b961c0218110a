// Runs the fuzz target without libFuzzer: a set number of pseudo-random
// inputs, the same ones on every run unless told otherwise, so that the
// ASan build can check them like any other test.
// Usage: korps_render_fuzz_smoke [inputs] [start]
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    const long iterations = argc > 1 ? std::atol(argv[1]) : 100000;
    const unsigned start = argc > 2 ? static_cast<unsigned>(std::atol(argv[2])) : 1u;
    std::mt19937 random(start);
    std::vector<std::uint8_t> input;
    for (long i = 0; i < iterations; ++i) {
        // Mostly short payloads with small counts, where the layouts live.
        input.resize(3 + random() % 96);
        for (auto& byte : input)
            byte = static_cast<std::uint8_t>(random() % 4 == 0 ? random() % 256 : random() % 8);
        input[1] = static_cast<std::uint8_t>(random());
        input[2] = static_cast<std::uint8_t>(random() % 2 | (random() % 2) << 4);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%ld inputs rendered\n", iterations);
    return 0;
}
