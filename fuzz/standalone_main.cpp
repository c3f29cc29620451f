// Drives a fuzz entry without libFuzzer: every seed file of the folder given on the command line, then a
// fixed number of inputs made from the seeds (or from nothing) by random changes with a fixed seed.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size);

namespace {
using Bytes = std::vector<std::uint8_t>;

constexpr int kRandomInputs = 3000;               // inputs per run: a second or two under the sanitizers
constexpr std::size_t kLargestRandomInput = 512;  // bytes of an input made from nothing

std::vector<Bytes> ReadSeeds(char const * folder)
{
    std::vector<Bytes> seeds;
    if (!folder || !std::filesystem::is_directory(folder))
        return seeds;
    for (auto const & entry : std::filesystem::directory_iterator(folder)) {
        std::ifstream file(entry.path(), std::ios::binary);
        seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
    }
    return seeds;
}

Bytes RandomBytes(std::mt19937 & random)
{
    Bytes bytes(random() % kLargestRandomInput);
    for (auto & byte : bytes)
        byte = static_cast<std::uint8_t>(random());
    return bytes;
}

Bytes Mutate(Bytes bytes, std::mt19937 & random)
{
    auto const changes = 1 + random() % 8;
    for (unsigned change = 0; change < changes && !bytes.empty(); ++change) {
        auto const at = static_cast<std::ptrdiff_t>(random() % bytes.size());
        switch (random() % 4) {
            case 0:
                bytes[static_cast<std::size_t>(at)] = static_cast<std::uint8_t>(random());
                break;
            case 1:
                bytes.erase(bytes.begin() + at);
                break;
            case 2:
                bytes.insert(bytes.begin() + at, static_cast<std::uint8_t>(random()));
                break;
            default:
                bytes.resize(static_cast<std::size_t>(at));
                break;
        }
    }
    return bytes;
}
}  // namespace

int main(int argc, char ** argv)
{
    auto const seeds = ReadSeeds(argc > 1 ? argv[1] : nullptr);
    for (auto const & seed : seeds)
        LLVMFuzzerTestOneInput(seed.data(), seed.size());
    std::mt19937 random(20260101);
    for (int i = 0; i < kRandomInputs; ++i) {
        bool const fromSeed = !seeds.empty() && random() % 4 != 0;
        Bytes const input = fromSeed ? Mutate(seeds[random() % seeds.size()], random) : RandomBytes(random);
        LLVMFuzzerTestOneInput(input.data(), input.size());
    }
    std::printf("%zu seeds and %d random inputs ran\n", seeds.size(), kRandomInputs);
    return 0;
}
