#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "dxf/dxf_out_basic.h"
#include "geometry/mathematics.h"
#include "platform/base/file_choice.h"
#include "recording_reader.h"

namespace {
CMathematics g_kernel;

// The bytes that a writer hands over between Create and its end.
template <class Write>
std::string Written(Write write)
{
    CMemFile file;
    {
        CDXFOutBasic writer(&g_kernel);
        EXPECT_EQ(writer.Create(&file), 0);
        write(writer);
    }
    auto const bytes = file.View();
    return {bytes.begin(), bytes.end()};
}

std::string InFile(std::vector<std::string> lines)
{
    lines.insert(lines.end(), {"  0", "EOF"});
    return Lines(lines, "\r\n");
}

CArray<TUVect3D, TUVect3D &> & Points(CArray<TUVect3D, TUVect3D &> & points, std::vector<TUVect3D> values)
{
    points.RemoveAll();
    for (TUVect3D & value : values)
        points.Add(value);
    return points;
}

TEST(DrawingWriter, EndsTheFileOnce)
{
    EXPECT_EQ(Written([](CDXFOutBasic &) {}), "  0\r\nEOF\r\n");
    EXPECT_EQ(Written([](CDXFOutBasic & writer) { EXPECT_EQ(writer.WriteEOF(), 0); }), "  0\r\nEOF\r\n");
}

TEST(DrawingWriter, NamesEachSection)
{
    EXPECT_EQ(
        Written([](CDXFOutBasic & writer) {
            EXPECT_EQ(writer.WriteBeginSectionHEADERS(), 0);
            EXPECT_EQ(writer.WriteBeginSectionCLASSES(), 0);
            EXPECT_EQ(writer.WriteBeginSectionTABLES(), 0);
            EXPECT_EQ(writer.WriteBeginSectionBLOCKS(), 0);
            EXPECT_EQ(writer.WriteBeginSectionENTITIES(), 0);
            EXPECT_EQ(writer.WriteBeginSectionOBJECTS(), 0);
            EXPECT_EQ(writer.WriteEndSection(), 0);
        }),
        InFile({"  0", "SECTION", "  2", "HEADER",  "  0", "ENDSEC",  "  0", "SECTION",  "  2", "CLASSES",
                "  0", "ENDSEC",  "  0", "SECTION", "  2", "TABLES",  "  0", "ENDSEC",   "  0", "SECTION",
                "  2", "BLOCKS",  "  0", "ENDSEC",  "  0", "SECTION", "  2", "ENTITIES", "  0", "ENDSEC",
                "  0", "SECTION", "  2", "OBJECTS", "  0", "ENDSEC"}));
}

TEST(DrawingWriter, LeavesAnOpenSectionOpenAtTheEnd)
{
    EXPECT_EQ(Written([](CDXFOutBasic & writer) { writer.WriteBeginSectionENTITIES(); }),
              InFile({"  0", "SECTION", "  2", "ENTITIES"}));
}

TEST(DrawingWriter, EndsASectionAsOftenAsItIsTold)
{
    EXPECT_EQ(Written([](CDXFOutBasic & writer) {
                  writer.WriteEndSection();
                  writer.WriteEndSection();
                  writer.WriteBeginSectionTABLES();
              }),
              InFile({"  0", "ENDSEC", "  0", "ENDSEC", "  0", "SECTION", "  2", "TABLES"}));
}

TEST(DrawingWriter, WritesALineWithColourAndThicknessAlways)
{
    int colour = 0;
    double thickness = 0;
    EXPECT_EQ(
        Written([&](CDXFOutBasic & writer) {
            EXPECT_EQ(writer.WriteEntLine({{1, 2.5, -3}}, {{0.001, 1e6, 0}}, colour, "A b.c", thickness), 0);
        }),
        InFile({"  0", "LINE",  " 62", "0",      "  8", "A-b_c",   " 39", "0.000",       " 10", "1.000",
                " 20", "2.500", " 30", "-3.000", " 11", "1.0e-03", " 21", "1000000.000", " 31", "0.000"}));
}

TEST(DrawingWriter, WritesAFaceWithoutItsEdges)
{
    int colour = 7;
    TUVect3D p1 = {{1, 0, 0}}, p2 = {{2, 0, 0}}, p3 = {{3, 0, 0}}, p4 = {{4, 0, 0}};
    EXPECT_EQ(Written([&](CDXFOutBasic & writer) {
                  CString const layer;
                  EXPECT_EQ(writer.WriteEnt3DFace(p1, p2, p3, p4, colour, layer, 1, 1, 1, 1), 0);
                  EXPECT_TRUE(layer.IsEmpty());
              }),
              InFile({"  0", "3DFACE", " 62", "7",     "  8", "0",     " 10", "1.000", " 20", "0.000",
                      " 30", "0.000",  " 11", "2.000", " 21", "0.000", " 31", "0.000", " 12", "3.000",
                      " 22", "0.000",  " 32", "0.000", " 13", "4.000", " 23", "0.000", " 33", "0.000"}));
}

TEST(DrawingWriter, WritesAPointsCodesByItsIndex)
{
    EXPECT_EQ(Written([](CDXFOutBasic & writer) {
                  EXPECT_EQ(writer.WritePoint({{1, 2, 3}}, 3), 0);
                  writer.WritePoint({{1, 2, 3}}, 4);
                  writer.WritePoint({{1, 2, 3}}, -1);
              }),
              InFile({" 13", "1.000", " 23", "2.000", " 33", "3.000", " 10", "1.000", " 20", "2.000", " 30",
                      "3.000", " 10", "1.000", " 20", "2.000", " 30", "3.000"}));
}

TEST(DrawingWriter, WritesAVertexWithBulgeOrFlags)
{
    TUVect3D point = {{1, 2, 3}};
    EXPECT_EQ(
        Written([&](CDXFOutBasic & writer) {
            EXPECT_EQ(writer.WriteEntVertex(point, "a b", 0.5, 0), 0);
            EXPECT_EQ(writer.WriteEntVertex(point, "", 0.5, 32), 0);
        }),
        InFile({"  0", "VERTEX", "  8", "a b", " 10", "1.000", " 20", "2.000", " 30", "3.000", " 42", "0.500",
                "  0", "VERTEX", "  8", "",    " 10", "1.000", " 20", "2.000", " 30", "3.000", " 70", "32"}));
}

TEST(DrawingWriter, WritesAPlanePolylineInObjectCoordinates)
{
    CArray<TUVect3D, TUVect3D &> points;
    CArray<double, double &> bulges;
    double bulge = 1;
    bulges.Add(bulge);
    EXPECT_EQ(Written([&](CDXFOutBasic & writer) {
                  EXPECT_EQ(writer.WriteEntPolyLine(2, Points(points, {{{1, 2, 9}}, {{3, 4, 9}}}), bulges, 1,
                                                    1.5, {{0, 0, -1}}, 3, -2, "A.b"),
                            0);
              }),
              InFile({"  0", "POLYLINE", "  8", "A_b",   " 66", "     1", " 10", "0.000",  " 20", "0.000",
                      " 30", "1.500",    "210", "0.000", "220", "0.000",  "230", "-1.000", " 62", "3",
                      " 39", "-2.000",   " 70", "1",     "  0", "VERTEX", "  8", "A_b",    " 10", "-1.000",
                      " 20", "2.000",    " 30", "1.500", " 42", "1.000",  "  0", "VERTEX", "  8", "A_b",
                      " 10", "-3.000",   " 20", "4.000", " 30", "1.500",  " 42", "0.000",  "  0", "SEQEND"}));
}

TEST(DrawingWriter, WritesAPolylineWithoutWhatIsNothing)
{
    CArray<TUVect3D, TUVect3D &> points;
    CArray<double, double &> bulges;
    // Without an extrusion the vertices are transformed with a zero axis.
    EXPECT_EQ(Written([&](CDXFOutBasic & writer) {
                  writer.WriteEntPolyLine(1, Points(points, {{{1, 2, 9}}}), bulges, 0, 0, {}, 0, 1e-9, "");
              }),
              InFile({"  0",   "POLYLINE", "  8",   "0",     " 66",    "     1", " 10", "0.000", " 20",
                      "0.000", " 30",      "0.000", "  0",   "VERTEX", "  8",    "0",   " 10",   "0.000",
                      " 20",   "0.000",    " 30",   "0.000", " 42",    "0.000",  "  0", "SEQEND"}));
}

TEST(DrawingWriter, WritesAPolylineInSpaceAsItStands)
{
    CArray<TUVect3D, TUVect3D &> points;
    CArray<double, double &> bulges;
    double bulge = 1;
    bulges.Add(bulge);
    for (int flags : {8, 9})
        EXPECT_EQ(
            Written([&](CDXFOutBasic & writer) {
                writer.WriteEntPolyLine(1, Points(points, {{{1, 2, 9}}}), bulges, flags, 0, {}, 0, 0, "L");
            }),
            InFile({"  0",   "POLYLINE", "  8",   "L",   " 66",   "     1", " 10",
                    "0.000", " 20",      "0.000", " 30", "0.000", " 70",    std::to_string(flags),
                    "  0",   "VERTEX",   "  8",   "L",   " 10",   "1.000",  " 20",
                    "2.000", " 30",      "9.000", " 70", "32",    "  0",    "SEQEND"}));
}

TEST(DrawingWriter, WritesASpacePolylineByItsOwnOperation)
{
    CArray<TUVect3D, TUVect3D &> points;
    EXPECT_EQ(
        Written([&](CDXFOutBasic & writer) {
            EXPECT_EQ(writer.WriteEnt3DPolyLine(1, Points(points, {{{1, 2, 9}}}), 0, 1.5, 4, 2, "L"), 0);
            EXPECT_EQ(writer.WriteEnt3DPolyLine(0, points, 5, 0, -4, 0, "L"), 0);
        }),
        InFile({"  0", "POLYLINE", "  8", "L",        " 66", "     1", " 10", "0.000",  " 20", "0.000",
                " 30", "1.500",    " 62", "4",        " 39", "2.000",  " 70", "8",      "  0", "VERTEX",
                "  8", "L",        " 10", "1.000",    " 20", "2.000",  " 30", "9.000",  " 70", "32",
                "  0", "SEQEND",   "  0", "POLYLINE", "  8", "L",      " 66", "     1", " 10", "0.000",
                " 20", "0.000",    " 30", "0.000",    " 70", "9",      "  0", "SEQEND"}));
}

TEST(DrawingWriter, WritesNoMorePointsThanThereAre)
{
    CArray<TUVect3D, TUVect3D &> points;
    CArray<double, double &> bulges;
    std::string const bytes = Written([&](CDXFOutBasic & writer) {
        Points(points, {{{1, 2, 9}}});
        EXPECT_EQ(writer.WriteEntPolyLine(100, points, bulges, 0, 0, {{0, 0, 1}}, 0, 0, "L"), 0);
        EXPECT_EQ(writer.WriteEnt3DPolyLine(100, points, 0, 0, 0, 0, "L"), 0);
    });
    RecordingReader reader;
    ReadDrawing(reader, Groups("0|SECTION; 2|ENTITIES") + bytes);
    EXPECT_EQ(reader.counts["VERTEX"], 2);
}

TEST(DrawingWriter, WritesATextWithItsHeightIfItHasOne)
{
    TUVect3D point = {{1, 2, 3}};
    CString text(" a b ");
    std::vector<std::string> const head = {"  0", "TEXT",  " 62", "-1",    "  8", "L-1",
                                           " 10", "1.000", " 20", "2.000", " 30", "3.000"};
    auto const written = [&](double height) {
        return Written([&](CDXFOutBasic & writer) {
            EXPECT_EQ(writer.WriteEntText(point, height, text, -1, "L 1", "DASHED", 45, 2, 1, 1, nullptr), 0);
        });
    };
    auto const expected = [&](std::vector<std::string> const & tail) {
        std::vector<std::string> lines = head;
        lines.insert(lines.end(), tail.begin(), tail.end());
        return InFile(lines);
    };
    EXPECT_EQ(written(2.5), expected({" 40", "2.5", "  1", " a b "}));
    EXPECT_EQ(written(0), expected({"  1", " a b "}));
    EXPECT_EQ(written(-1), expected({"  1", " a b "}));
    EXPECT_EQ(written(1234567), expected({" 40", "1.23457e+06", "  1", " a b "}));
    EXPECT_EQ(written(0.1), expected({" 40", "0.1", "  1", " a b "}));
}

TEST(DrawingWriter, CleansALayersName)
{
    CDXFOutBasic writer(&g_kernel);
    auto const cleaned = [&](char const * name, int expected) {
        CString layer(name);
        EXPECT_EQ(writer.UpravLayer(&layer), expected);
        return std::string(layer);
    };
    EXPECT_EQ(cleaned("", 1), "0");
    EXPECT_EQ(cleaned(" a.b ", 1), "-a_b-");
    EXPECT_EQ(cleaned("a.", 1), "a_");
    EXPECT_EQ(cleaned("Zdi-\xE8\t", 0), "Zdi-\xE8\t");
}

TEST(DrawingWriterOpening, RefusesNoStreamAndNoKernel)
{
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    CDXFOutBasic writer(&g_kernel);
    EXPECT_EQ(writer.Create(static_cast<CArchive *>(nullptr)), 1);
    EXPECT_EQ(writer.Create(static_cast<CFile *>(nullptr)), 1);
    EXPECT_EQ(writer.Create(CString("no such folder/file.dxf")), 1);
    CDXFOutBasic withoutKernel(nullptr);
    EXPECT_EQ(withoutKernel.Create(&archive), 6);
    EXPECT_EQ(withoutKernel.Create(&file), 6);
    EXPECT_EQ(withoutKernel.Create(static_cast<CArchive *>(nullptr)), 1);
}

TEST(DrawingWriterOpening, LeavesAHostsArchiveOpen)
{
    CMemFile file;
    {
        CArchive archive(&file, CArchive::store);
        {
            CDXFOutBasic writer(&g_kernel);
            EXPECT_EQ(writer.Create(&archive), 0);
            writer.WriteBeginSectionENTITIES();
            archive.WriteString("  0\r\nPOINT\r\n");
        }
        archive.WriteString("behind");
    }
    std::string const bytes(file.View().begin(), file.View().end());
    EXPECT_EQ(bytes, InFile({"  0", "SECTION", "  2", "ENTITIES", "  0", "POINT"}) + "behind");
}

// A file in the system's folder for such, removed at the end.
class TemporaryFile
{
  public:
    TemporaryFile() : m_path((std::filesystem::temp_directory_path() / "kx7_writer_test.dxf").string())
    {
        std::filesystem::remove(m_path);
    }
    ~TemporaryFile() { std::filesystem::remove(m_path); }
    char const * Path() const { return m_path.c_str(); }

    void Write(std::string const & bytes) const { std::ofstream(m_path, std::ios::binary) << bytes; }
    std::string Bytes() const
    {
        std::ifstream in(m_path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

  private:
    std::string m_path;
};

TEST(DrawingWriterOpening, OfAPathNeedsTheFileAndLeavesItsTail)
{
    TemporaryFile const file;
    {
        CDXFOutBasic writer(&g_kernel);
        EXPECT_EQ(writer.Create(CString(file.Path())), 1);
    }
    file.Write("an old text that is longer");
    {
        CDXFOutBasic writer(&g_kernel);
        EXPECT_EQ(writer.Create(CString(file.Path())), 0);
    }
    EXPECT_EQ(file.Bytes(), "  0\r\nEOF\r\nt that is longer");
}

CString g_chosenPath;
DWORD g_flags = 0;

TEST(DrawingWriterOpening, OfAChosenPathMakesTheFileNew)
{
    TemporaryFile const file;
    file.Write("an old text that is longer");
    g_chosenPath = file.Path();
    FileChoiceHandler const before = SetFileChoiceHandler([](TSFileChoice const & choice, CString & path) {
        EXPECT_TRUE(choice.save);
        EXPECT_EQ(choice.title, "Save");
        g_flags = choice.flags;
        path = g_chosenPath;
        return g_chosenPath.IsEmpty() ? 0 : 1;
    });
    {
        CDXFOutBasic writer(&g_kernel);
        EXPECT_EQ(writer.Create("Save", "name", "dxf", ""), 0);
    }
    EXPECT_EQ(file.Bytes(), "  0\r\nEOF\r\n");
    EXPECT_EQ(g_flags, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
    g_chosenPath.Empty();
    CDXFOutBasic writer(&g_kernel);
    EXPECT_EQ(writer.Create("Save", "name", "dxf", ""), 1);
    SetFileChoiceHandler(before);
}

TEST(DrawingWriterOpening, EndsTheStreamBefore)
{
    CMemFile first;
    CMemFile second;
    CDXFOutBasic writer(&g_kernel);
    EXPECT_EQ(writer.Create(&first), 0);
    writer.WriteBeginSectionENTITIES();
    EXPECT_EQ(writer.Create(&second), 0);
    EXPECT_EQ(std::string(first.View().begin(), first.View().end()),
              InFile({"  0", "SECTION", "  2", "ENTITIES"}));
    writer.WriteBeginSectionTABLES();
    EXPECT_EQ(writer.Create(static_cast<CFile *>(nullptr)), 1);
    EXPECT_EQ(std::string(second.View().begin(), second.View().end()),
              InFile({"  0", "SECTION", "  2", "TABLES"}));
}
}  // namespace
