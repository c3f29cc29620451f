// Drawings that many CAD programs made, against the counts that an independent reader found in them
// (counts.tsv: a row for each drawing, a column for each count).
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "recording_reader.h"
#include "test_paths.h"

namespace {
std::string DrawingsFolder()
{
    char const * const shared = std::getenv("KX7_SHARED_DIR");
    return std::string(shared ? shared : kSharedDir) + "/data/dxf/";
}

std::vector<std::string> Cells(std::string line)
{
    if (line.ends_with('\r'))
        line.pop_back();
    std::istringstream row(line);
    std::vector<std::string> cells;
    for (std::string cell; std::getline(row, cell, '\t');)
        cells.push_back(cell);
    return cells;
}

// The counts of each drawing by the column's name; empty where the drawings are missing.
std::map<std::string, std::map<std::string, int>> ExpectedCounts()
{
    constexpr std::size_t kFirstCount = 7;  // in front of it stand the file, its origin and its form
    std::map<std::string, std::map<std::string, int>> expected;
    std::ifstream table(DrawingsFolder() + "counts.tsv");
    std::string line;
    std::getline(table, line);
    std::vector<std::string> const names = Cells(line);
    while (std::getline(table, line)) {
        std::vector<std::string> const cells = Cells(line);
        for (std::size_t i = kFirstCount; i < std::min(names.size(), cells.size()); ++i)
            expected[cells[0]][names[i]] = std::stoi(cells[i]);
    }
    return expected;
}

// Counts what the peer counts: entities of the ENTITIES section, and the names of blocks and layers.
class CountingReader : public RecordingReader
{
  public:
    std::map<std::string, int> inDrawing;

    int SetEntLWPOLYLINE(int count, TUVect2D * points, double * bulges, int closed, int & colour,
                         double & elevation, double & thickness, char * layer, char * linetype,
                         double & constantWidth, double & startWidth, double & endWidth,
                         TUVect3D & extrusion) override
    {
        CountBulges(std::span(bulges, static_cast<std::size_t>(count)));
        return RecordingReader::SetEntLWPOLYLINE(count, points, bulges, closed, colour, elevation, thickness,
                                                 layer, linetype, constantWidth, startWidth, endWidth,
                                                 extrusion);
    }

    int SetEntPOLYLINE(int & count, CArray<TUVect3D, TUVect3D &> & points, CArray<double, double &> & bulges,
                       int & flags, int & colour, double & elevation, double & thickness, char * layer,
                       char * linetype, double & startWidth, double & endWidth, TUVect3D & extrusion) override
    {
        CountBulges(bulges.View());
        return RecordingReader::SetEntPOLYLINE(count, points, bulges, flags, colour, elevation, thickness,
                                               layer, linetype, startWidth, endWidth, extrusion);
    }

    int SetBeginBlock(char *, TUVect3D &, char * name, char *, int) override
    {
        m_blocks.insert(Lower(name));
        return 0;
    }

    int SetTableLayer(char * name) override
    {
        m_layers.insert(Lower(name));
        return 0;
    }

    // What was counted before belongs to blocks.
    int ReadEntities() override
    {
        counts.clear();
        m_bulges = 0;
        int const status = RecordingReader::ReadEntities();
        inDrawing = counts;
        inDrawing["bulged_vertices"] = m_bulges;
        return status;
    }

    /// The peer doesn't count the spaces of model and paper among the blocks.
    int Blocks() const
    {
        auto const isSpace = [](std::string const & name) {
            return name.substr(std::min<std::size_t>(1, name.size())) == "model_space" ||
                   name.substr(std::min<std::size_t>(1, name.size())) == "paper_space";
        };
        return static_cast<int>(m_blocks.size()) - static_cast<int>(std::ranges::count_if(m_blocks, isSpace));
    }

    /// The peer adds the layers "0" and "Defpoints" to each drawing that hasn't got them.
    int Layers() const
    {
        std::set<std::string> layers = m_layers;
        layers.insert({"0", "defpoints"});
        return static_cast<int>(layers.size());
    }

  private:
    static std::string Lower(std::string text)
    {
        std::ranges::transform(text, text.begin(),
                               [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
        return text;
    }

    void CountBulges(std::span<double const> bulges)
    {
        m_bulges += static_cast<int>(std::ranges::count_if(bulges, [](double bulge) { return bulge != 0; }));
    }

    std::set<std::string> m_blocks;
    std::set<std::string> m_layers;
    int m_bulges = 0;
};

// How each of the peer's counts is to be compared with ours. The entities agree one by one; where the peer
// counts something else, the reason stands here.
struct CountRule
{
    char const * column;
    char const * reason;  // of a difference; empty for none
    int (*ours)(CountingReader & reader);
};

constexpr std::array kCountRules = {
    CountRule{"LINE", "LINE and 3DLINE come to one hook",
              [](CountingReader & r) { return r.inDrawing["LINE"]; }},
    CountRule{"ARC", "", [](CountingReader & r) { return r.inDrawing["ARC"]; }},
    CountRule{"CIRCLE", "", [](CountingReader & r) { return r.inDrawing["CIRCLE"]; }},
    CountRule{"LWPOLYLINE", "", [](CountingReader & r) { return r.inDrawing["LWPOLYLINE"]; }},
    CountRule{"POLYLINE", "", [](CountingReader & r) { return r.inDrawing["POLYLINE"]; }},
    CountRule{"VERTEX", "", [](CountingReader & r) { return r.inDrawing["VERTEX"]; }},
    CountRule{"TEXT", "", [](CountingReader & r) { return r.inDrawing["TEXT"]; }},
    CountRule{"MTEXT", "", [](CountingReader & r) { return r.inDrawing["MTEXT"]; }},
    CountRule{"SOLID", "", [](CountingReader & r) { return r.inDrawing["SOLID"]; }},
    CountRule{"3DFACE", "", [](CountingReader & r) { return r.inDrawing["3DFACE"]; }},
    CountRule{"INSERT", "", [](CountingReader & r) { return r.inDrawing["INSERT"]; }},
    CountRule{"bulged_vertices", "", [](CountingReader & r) { return r.inDrawing["bulged_vertices"]; }},
    CountRule{"n_blocks", "the peer leaves out the spaces of model and paper",
              [](CountingReader & r) { return r.Blocks(); }},
    CountRule{"n_layers", "the peer adds the layers 0 and Defpoints",
              [](CountingReader & r) { return r.Layers(); }},
};

TEST(RealDrawings, HaveTheCountsOfAnIndependentReader)
{
    auto const expected = ExpectedCounts();
    if (expected.empty())
        GTEST_SKIP() << "no drawings in " << DrawingsFolder();
    for (auto const & [name, counts] : expected) {
        SCOPED_TRACE(name);
        CFile file((DrawingsFolder() + name).c_str(), CFile::modeRead);
        CountingReader reader;
        Reading const reading = ReadDrawing(reader, file);
        EXPECT_EQ(reading.status, 0);
        for (CountRule const & rule : kCountRules) {
            int const lines3D = std::string(rule.column) == "LINE" ? counts.at("3DLINE") : 0;
            EXPECT_EQ(rule.ours(reader), counts.at(rule.column) + lines3D)
                << rule.column << " " << rule.reason;
        }
        reader.Create(static_cast<CArchive *>(nullptr));  // lets go of the file ahead of its end
    }
}

TEST(RealDrawings, AreAllInTheTable)
{
    auto const expected = ExpectedCounts();
    if (expected.empty())
        GTEST_SKIP() << "no drawings in " << DrawingsFolder();
    std::set<std::string> missing;
    for (auto const & entry : std::filesystem::directory_iterator(DrawingsFolder()))
        missing.insert(entry.path().filename().string());
    for (auto const & [name, counts] : expected)
        missing.erase(name);
    EXPECT_EQ(missing, std::set<std::string>{"counts.tsv"});
}
}  // namespace
