// Runs the fuzz target without libFuzzer: a fixed number of pseudo-random
// inputs from a fixed seed, so that the sanitizer build can run it as an
// ordinary test. Usage: korps_render_fuzz_smoke [iterations] [seed]
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    const long iterations = argc > 1 ? std::atol(argv[1]) : 100000;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atol(argv[2])) : 20261121u;
    std::mt19937 random(seed);
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
