// Reading a large drawing: MB of the file per second. Input: the 60 MB drawing that
// ../shared/tools/gen_big_dxf.py writes (300,000 LINE, 50,000 LWPOLYLINE with bulges, ARC, TEXT, INSERT ...),
// with both line ends. Peer: dxflib. What is counted: entities and vertices that reached a hook (the peer
// also hands over the one insertion inside of a block), and how far the peak of the process's memory grew.
#include <benchmark/benchmark.h>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <sys/resource.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <string>

#include "dxf/dxf_in_basic.h"
#include "test_paths.h"

namespace {
enum LineEnd
{
    kLineFeed,
    kReturnAndLineFeed
};

// The drawing's path, made at the first call; empty where that isn't possible.
std::string BigDrawing(LineEnd lineEnd)
{
    char const * const given = std::getenv("KX7_SHARED_DIR");
    std::string const tool = std::string(given ? given : kSharedDir) + "/tools/gen_big_dxf.py";
    bool const isPlain = lineEnd == kLineFeed;
    std::string const path = std::string(kBuildDir) + (isPlain ? "/big_lf.dxf" : "/big_crlf.dxf");
    if (std::filesystem::exists(path))
        return path;
    std::string const command = "python3 " + tool + " " + path + ".part" + (isPlain ? "" : " --crlf");
    if (!std::filesystem::exists(tool) || std::system(command.c_str()) != 0)
        return {};
    std::filesystem::rename(path + ".part", path);
    return path;
}

std::string BytesOf(std::string const & path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class CountingReader : public CDXFInBasic
{
  public:
    long long entities = 0;
    long long vertices = 0;

    int SetEntLINE(TUVect3D &, TUVect3D &, int &, double &, char *, char *, TUVect3D &) override
    {
        return Count();
    }
    int SetEntARC(TUVect3D &, double &, double &, double &, int &, double &, char *, char *,
                  TUVect3D &) override
    {
        return Count();
    }
    int SetEntCIRCLE(TUVect3D &, double &, int &, double &, char *, char *, TUVect3D &) override
    {
        return Count();
    }
    int SetEntLWPOLYLINE(int count, TUVect2D *, double *, int, int &, double &, double &, char *, char *,
                         double &, double &, double &, TUVect3D &) override
    {
        vertices += count;
        return Count();
    }
    int SetEntTEXT(TUVect3D &, double &, CString &, int &, CString &, CString &, double &, double &, int &,
                   int &, TUVect3D &) override
    {
        return Count();
    }
    int SetInsertedBlock(char *, TUVect3D &, TUVect3D &, double &, int &, int &, double &, double &,
                         TUVect3D &) override
    {
        return Count();
    }

  private:
    int Count()
    {
        ++entities;
        return 0;
    }
};

class CountingPeer : public DL_CreationAdapter
{
  public:
    long long entities = 0;
    long long vertices = 0;

    void addLine(DL_LineData const &) override { ++entities; }
    void addArc(DL_ArcData const &) override { ++entities; }
    void addCircle(DL_CircleData const &) override { ++entities; }
    void addPolyline(DL_PolylineData const &) override { ++entities; }
    void addVertex(DL_VertexData const &) override { ++vertices; }
    void addText(DL_TextData const &) override { ++entities; }
    void addInsert(DL_InsertData const &) override { ++entities; }
};

long PeakMemory()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;  // KiB
}

// Opens the drawing and reads it once an iteration.
template <class Read>
void ReadDrawing(benchmark::State & state)
{
    std::string const path = BigDrawing(static_cast<LineEnd>(state.range(0)));
    if (path.empty()) {
        state.SkipWithError("no generator of the large drawing in ../shared/tools");
        return;
    }
    Read read(path);
    long const before = PeakMemory();
    for (auto _ : state)
        read.Once(state);
    state.counters["growth_KiB"] = static_cast<double>(PeakMemory() - before);
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(std::filesystem::file_size(path)));
}

// Notes what a reading came to.
template <class Reader>
void Note(benchmark::State & state, bool isRead, Reader const & reader)
{
    if (!isRead)
        state.SkipWithError("not read");
    state.counters["entities"] = static_cast<double>(reader.entities);
    state.counters["vertices"] = static_cast<double>(reader.vertices);
}

class FromDisk
{
  public:
    explicit FromDisk(std::string const & path) : m_path(path.c_str()) {}
    void Once(benchmark::State & state)
    {
        CountingReader reader;
        bool const isRead = reader.Create(m_path) == 0 && reader.ReadDXF() == 0;
        Note(state, isRead, reader);
    }

  private:
    CString m_path;
};

class FromMemory
{
  public:
    explicit FromMemory(std::string const & path)
    {
        std::string const bytes = BytesOf(path);
        m_file = std::make_unique<CMemFile>(bytes.data(), bytes.size());
    }
    void Once(benchmark::State & state)
    {
        m_file->SeekToBegin();
        CountingReader reader;
        bool const isRead = reader.Create(m_file.get()) == 0 && reader.ReadDXF() == 0;
        Note(state, isRead, reader);
    }

  private:
    std::unique_ptr<CMemFile> m_file;
};

class BoxFromDisk
{
  public:
    explicit BoxFromDisk(std::string const & path) : m_path(path.c_str()) {}
    void Once(benchmark::State & state)
    {
        CountingReader reader;
        double box[6] = {};
        bool const isRead =
            reader.Create(m_path) == 0 &&
            reader.GetBoundingBox(box[0], box[1], box[2], box[3], box[4], box[5], 0, 1, 1) == 0;
        benchmark::DoNotOptimize(box);
        Note(state, isRead, reader);
    }

  private:
    CString m_path;
};

class PeerFromDisk
{
  public:
    explicit PeerFromDisk(std::string const & path) : m_path(path) {}
    void Once(benchmark::State & state)
    {
        CountingPeer counter;
        DL_Dxf dxf;
        bool const isRead = dxf.in(m_path, &counter);
        Note(state, isRead, counter);
    }

  private:
    std::string m_path;
};

class PeerFromMemory
{
  public:
    explicit PeerFromMemory(std::string const & path) : m_stream(BytesOf(path)) {}
    void Once(benchmark::State & state)
    {
        m_stream.clear();
        m_stream.seekg(0);
        CountingPeer counter;
        DL_Dxf dxf;
        bool const isRead = dxf.in(m_stream, &counter);
        Note(state, isRead, counter);
    }

  private:
    std::stringstream m_stream;
};

void BothLineEnds(benchmark::internal::Benchmark * benchmark)
{
    benchmark->ArgName("crlf")->Arg(kLineFeed)->Arg(kReturnAndLineFeed)->Unit(benchmark::kMillisecond);
}

BENCHMARK(ReadDrawing<FromDisk>)->Apply(BothLineEnds);
BENCHMARK(ReadDrawing<BoxFromDisk>)->Apply(BothLineEnds);
BENCHMARK(ReadDrawing<PeerFromDisk>)->Apply(BothLineEnds);
BENCHMARK(ReadDrawing<FromMemory>)->Apply(BothLineEnds);
BENCHMARK(ReadDrawing<PeerFromMemory>)->Apply(BothLineEnds);
}  // namespace
