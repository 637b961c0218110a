// Runs a fuzz target without libFuzzer, for the ordinary test runs of every
// build: each file named (or found in a folder named) on the command line is
// one input; `--random N` adds N pseudo-random inputs, the same on every run.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::size_t replay(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    const std::vector<std::uint8_t> input{std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    LLVMFuzzerTestOneInput(input.data(), input.size());
    return 1;
}

// Mostly short inputs of small values, where the layouts live.
std::size_t random_inputs(long count)
{
    std::mt19937 random(1);
    std::vector<std::uint8_t> input;
    for (long i = 0; i < count; ++i) {
        input.resize(random() % 100);
        for (auto& byte : input)
            byte = static_cast<std::uint8_t>(random() % 4 == 0 ? random() % 256 : random() % 8);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    return static_cast<std::size_t>(count);
}

}   // namespace

int main(int argc, char** argv)
{
    std::size_t inputs = 0;
    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        if (arg == "--random" && i + 1 < argc) {
            inputs += random_inputs(std::atol(argv[++i]));
            continue;
        }
        const std::filesystem::path path(arg);
        if (!std::filesystem::exists(path)) {
            std::fprintf(stderr, "%s: no such file or folder\n", arg.c_str());
            return 2;
        }
        if (std::filesystem::is_directory(path)) {
            for (const auto& entry : std::filesystem::recursive_directory_iterator(path))
                if (entry.is_regular_file())
                    inputs += replay(entry.path());
        } else {
            inputs += replay(path);
        }
    }
    std::printf("%zu inputs replayed\n", inputs);
    return 0;
}
