// An archive of 100,000 objects (an int and a double each, all of one class) in a file, beside plain fwrite
// and fread of the same number of bytes in blocks of the archive's buffer size, and of one record after the
// other.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <vector>

#include "platform/base/archive.h"
#include "platform/base/collections.h"

namespace {
constexpr int kObjects = 100000;
constexpr int kBuffer = 4096;            // bytes, of archive and peer
constexpr std::size_t kRecord = 2 + 12;  // bytes of an object in the archive: its tag, the int, the double

class Sample : public CObject
{
    DECLARE_SERIAL(Sample)

    void Serialize(CArchive & archive) override
    {
        if (archive.IsStoring())
            archive << m_number << m_value;
        else
            archive >> m_number >> m_value;
    }

    int m_number = 0;
    double m_value = 0.0;
};

IMPLEMENT_SERIAL(Sample, CObject, 1)

CString FilePath()
{
    return TextOfSystemPath(std::filesystem::temp_directory_path() / "kx7_archive_benchmark");
}

struct Samples
{
    Samples()
    {
        for (int i = 0; i < kObjects; ++i)
            array.Add(&objects.emplace_back());
    }
    std::vector<Sample> objects = [] {
        std::vector<Sample> made;
        made.reserve(kObjects);
        return made;
    }();
    CObArray array;
};

void Store(CObArray & array)
{
    CFile file(FilePath(), CFile::modeCreate | CFile::modeWrite);
    CArchive archive(&file, CArchive::store, kBuffer);
    array.Serialize(archive);
    archive.Close();
}

void CountRecords(benchmark::State & state)
{
    state.SetItemsProcessed(state.iterations() * kObjects);
    state.SetBytesProcessed(state.iterations() * static_cast<long>(kObjects * kRecord));
    std::filesystem::remove(SystemPath(FilePath()));
}

void StoreObjects(benchmark::State & state)
{
    Samples samples;
    for (auto _ : state)
        Store(samples.array);
    CountRecords(state);
}

void LoadObjects(benchmark::State & state)
{
    Samples samples;
    Store(samples.array);
    for (auto _ : state) {
        CFile file(FilePath(), CFile::modeRead);
        CArchive archive(&file, CArchive::load, kBuffer);
        CObArray array;
        array.Serialize(archive);
        for (CObject const * object : array)
            delete object;
    }
    CountRecords(state);
}

// The peers: the same number of bytes through the C library, `piece` bytes at a time.
void WriteBytes(std::size_t piece)
{
    std::vector<char> const bytes(piece, 'x');
    std::unique_ptr<std::FILE, int (*)(std::FILE *)> const file(std::fopen(FilePath(), "wb"), std::fclose);
    for (std::size_t left = kObjects * kRecord; left > 0; left -= std::min(left, piece))
        std::fwrite(bytes.data(), 1, std::min(left, piece), file.get());
}

void PlainWrite(benchmark::State & state)
{
    for (auto _ : state)
        WriteBytes(static_cast<std::size_t>(state.range(0)));
    CountRecords(state);
}

void PlainRead(benchmark::State & state)
{
    auto const piece = static_cast<std::size_t>(state.range(0));
    WriteBytes(kBuffer);
    std::vector<char> bytes(piece);
    for (auto _ : state) {
        std::unique_ptr<std::FILE, int (*)(std::FILE *)> const file(std::fopen(FilePath(), "rb"),
                                                                    std::fclose);
        while (std::fread(bytes.data(), 1, piece, file.get()) > 0)
            benchmark::DoNotOptimize(bytes.data());
    }
    CountRecords(state);
}

BENCHMARK(StoreObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainWrite)->Arg(kBuffer)->Arg(kRecord)->Unit(benchmark::kMillisecond);
BENCHMARK(LoadObjects)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainRead)->Arg(kBuffer)->Arg(kRecord)->Unit(benchmark::kMillisecond);
}  // namespace
