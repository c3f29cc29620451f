#include <gmock/gmock.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

#include "dxf/dxf_out_basic.h"
#include "geometry/mathematics.h"
#include "recording_reader.h"
#include "test_paths.h"

namespace {
CMathematics g_kernel;

using Points = CArray<TUVect3D, TUVect3D &>;
using Bulges = CArray<double, double &>;

// What the writer's numbers keep of a value: three decimals, or eight digits of a large one.
void ExpectNear(double actual, double expected)
{
    EXPECT_NEAR(actual, expected, 0.00051 + 1e-7 * std::abs(expected));
}

void ExpectNear(TUVect3D const & actual, TUVect3D const & expected)
{
    for (int i = 0; i < 3; ++i)
        ExpectNear(actual.a[i], expected.a[i]);
}

// One entity as it was written; which members count depends on its kind.
struct Entity
{
    std::string kind = {};
    std::string layer = {};
    int colour = 0;
    double thickness = 0;
    double size = 0;  // height of a text, elevation of a polyline
    int flags = 0;
    std::string text = {};
    TUVect3D extrusion = {{0, 0, 1}};
    std::vector<TUVect3D> points = {};
    std::vector<double> bulges = {};
};

// Compares each entity that comes with the next one of those that were written.
class ComparingReader : public DrawingInMemory, public CDXFInBasic
{
  public:
    explicit ComparingReader(std::vector<Entity> const & written) : m_written(written) {}

    std::size_t Count() const { return m_next; }

    int SetEntLINE(TUVect3D & start, TUVect3D & end, int & colour, double & thickness, char * layer, char *,
                   TUVect3D &) override
    {
        Entity const & entity = Next("LINE");
        ExpectNear(start, entity.points.at(0));
        ExpectNear(end, entity.points.at(1));
        ExpectNear(thickness, entity.thickness);
        EXPECT_EQ(colour, entity.colour);
        EXPECT_EQ(layer, entity.layer);
        return 0;
    }

    int SetEnt3DFACE(TUVect3D & corner1, TUVect3D & corner2, TUVect3D & corner3, TUVect3D & corner4,
                     int & colour, double &, char * layer, char *, int, int, int, int, CString &) override
    {
        Entity const & entity = Next("3DFACE");
        std::size_t i = 0;
        for (TUVect3D const * corner : {&corner1, &corner2, &corner3, &corner4})
            ExpectNear(*corner, entity.points.at(i++));
        EXPECT_EQ(colour, entity.colour);
        EXPECT_EQ(layer, entity.layer);
        return 0;
    }

    int SetEntTEXT(TUVect3D & point, double & height, CString & text, int &, CString &, CString &, double &,
                   double &, int &, int &, TUVect3D &) override
    {
        Entity const & entity = Next("TEXT");
        ExpectNear(point, entity.points.at(0));
        EXPECT_NEAR(height, entity.size, 1e-5 * entity.size);
        EXPECT_EQ(std::string(text), entity.text);
        return 0;
    }

    int SetEntPOLYLINE(int & count, Points & points, Bulges & bulges, int & flags, int & colour,
                       double & elevation, double & thickness, char * layer, char *, double &, double &,
                       TUVect3D & extrusion) override
    {
        Entity const & entity = Next("POLYLINE");
        EXPECT_EQ(static_cast<std::size_t>(count), entity.points.size());
        bool const isIn3D = flags == 8 || flags == 9;
        for (int i = 0; i < count; ++i) {
            TUVect3D world = points[i];
            if (!isIn3D)
                TranOCStoWCS(points[i], world, elevation, extrusion);
            ExpectNear(world, entity.points.at(static_cast<std::size_t>(i)));
            ExpectNear(bulges[i], isIn3D ? 0 : entity.bulges.at(static_cast<std::size_t>(i)));
        }
        EXPECT_EQ(flags, entity.flags);
        EXPECT_EQ(colour, entity.colour);
        ExpectNear(elevation, entity.size);
        ExpectNear(thickness, entity.thickness);
        EXPECT_EQ(layer, entity.layer);
        return 0;
    }

  private:
    Entity const & Next(char const * kind)
    {
        Entity const & entity = m_written.at(m_next++);
        EXPECT_EQ(entity.kind, kind);
        return entity;
    }

    std::vector<Entity> const & m_written;
    std::size_t m_next = 0;
};

class RandomEntities
{
  public:
    explicit RandomEntities(unsigned seed) : m_random(seed) {}

    Entity Next()
    {
        switch (m_random() % 4) {
            case 0:
                return With("LINE", 2);
            case 1:
                return With("3DFACE", 4);
            case 2:
                return Text();
            default:
                return Polyline();
        }
    }

  private:
    // From tenths of a millimetre to large site coordinates.
    double Number()
    {
        double const magnitude = std::pow(10, std::uniform_real_distribution<double>(-4, 8)(m_random));
        return m_random() % 8 == 0 ? 0 : m_random() % 2 ? magnitude : -magnitude;
    }

    Entity With(char const * kind, std::size_t points)
    {
        Entity entity;
        entity.kind = kind;
        entity.layer = "Layer" + std::to_string(m_random() % 5);
        entity.colour = static_cast<int>(1 + m_random() % 255);
        entity.thickness = Number();
        for (std::size_t i = 0; i < points; ++i)
            entity.points.push_back({{Number(), Number(), Number()}});
        return entity;
    }

    Entity Text()
    {
        Entity entity = With("TEXT", 1);
        entity.size = std::abs(Number()) + 0.5;
        entity.text = "Pos. " + std::to_string(m_random()) + " \xE8\xE1st ";
        return entity;
    }

    Entity Polyline()
    {
        constexpr std::array kFlags = {1, 0, 8, 9};
        constexpr std::array<TUVect3D, 4> kExtrusions = {TUVect3D{{0, 0, 1}}, TUVect3D{{0, 0, -1}},
                                                         TUVect3D{{1, 0, 0}}, TUVect3D{{0, -1, 0}}};
        Entity entity = With("POLYLINE", m_random() % 6);
        entity.flags = kFlags[m_random() % kFlags.size()];
        entity.extrusion = kExtrusions[m_random() % kExtrusions.size()];
        entity.size = Number();
        CDXFInBasic transformer;
        for (TUVect3D & point : entity.points) {
            entity.bulges.push_back(Number());
            if (entity.flags < 8)
                transformer.TranOCStoWCS(point, point, entity.size, entity.extrusion);
        }
        return entity;
    }

    std::mt19937 m_random;
};

void Write(CDXFOutBasic & writer, Entity entity)
{
    CString const layer(entity.layer.c_str());
    Points points;
    for (TUVect3D & point : entity.points)
        points.Add(point);
    Bulges bulges;
    for (double & bulge : entity.bulges)
        bulges.Add(bulge);
    CString text(entity.text.c_str());
    int const count = points.GetSize();
    if (entity.kind == "LINE")
        writer.WriteEntLine(points[0], points[1], entity.colour, layer, entity.thickness);
    else if (entity.kind == "3DFACE")
        writer.WriteEnt3DFace(points[0], points[1], points[2], points[3], entity.colour, layer, 1, 1, 1, 1);
    else if (entity.kind == "TEXT")
        writer.WriteEntText(points[0], entity.size, text, entity.colour, layer, "", 0, 0, 0, 0, nullptr);
    else if (entity.flags >= 8)
        writer.WriteEnt3DPolyLine(count, points, entity.flags == 9, entity.size, entity.colour,
                                  entity.thickness, layer);
    else
        writer.WriteEntPolyLine(count, points, bulges, entity.flags, entity.size, entity.extrusion,
                                entity.colour, entity.thickness, layer);
}

std::string DrawingOf(std::vector<Entity> const & entities)
{
    CMemFile file;
    {
        CDXFOutBasic writer(&g_kernel);
        writer.Create(&file);
        writer.WriteBeginSectionENTITIES();
        for (Entity const & entity : entities)
            Write(writer, entity);
        writer.WriteEndSection();
    }
    return {file.View().begin(), file.View().end()};
}

TEST(WrittenDrawing, ReadsBackAsItWas)
{
    RandomEntities random(20260601);
    std::vector<Entity> entities;
    for (int i = 0; i < 3000; ++i)
        entities.push_back(random.Next());
    ComparingReader reader(entities);
    EXPECT_EQ(ReadDrawing(reader, DrawingOf(entities)).status, 0);
    EXPECT_EQ(reader.Count(), entities.size());
}

#if !defined(_WIN32)
// A drawing with each entity that the writer knows.
std::vector<Entity> OneOfEach()
{
    Entity line{.kind = "LINE", .layer = "Walls", .colour = 5, .thickness = 2.5};
    line.points = {{{1, 2, 3}}, {{-4, 5.5, 0.25}}};
    Entity face{.kind = "3DFACE", .layer = "Faces", .colour = 6};
    face.points = {{{0, 0, 0}}, {{1, 0, 0}}, {{1, 1, 0}}, {{0, 1, 2}}};
    Entity text{.kind = "TEXT", .layer = "Texts", .colour = 7, .size = 2.5, .text = "Pos. 12"};
    text.points = {{{10, 20, 0}}};
    Entity plane{.kind = "POLYLINE", .layer = "Outline", .colour = 3, .size = 1.5, .flags = 1};
    plane.points = {{{0, 0, 1.5}}, {{4, 0, 1.5}}, {{4, 4, 1.5}}};
    plane.bulges = {0, 1, -0.5};
    Entity space{.kind = "POLYLINE", .layer = "Space", .colour = 2, .flags = 9};
    space.points = {{{0, 0, 1}}, {{4, 0, 2}}};
    return {line, face, text, plane, space};
}

std::string OutputOf(std::string const & command, int & exitCode)
{
    std::string output;
    std::FILE * const pipe = popen(command.c_str(), "r");
    for (int c; (c = std::fgetc(pipe)) != EOF;)
        output += static_cast<char>(c);
    exitCode = WEXITSTATUS(pclose(pipe));
    return output;
}

TEST(WrittenDrawing, OpensInAnIndependentReader)
{
    constexpr int kNoReader = 9;
    constexpr int kNoPython = 127;
    std::string const path = std::string(kBuildDir) + "/written_drawing.dxf";
    std::ofstream(path, std::ios::binary) << DrawingOf(OneOfEach());
    int exitCode = -1;
    std::string const output = OutputOf(
        "/usr/bin/python3 " + std::string(kSourceDir) + "/tests/dxf/read_with_peer.py " + path, exitCode);
    if (exitCode == kNoReader || exitCode == kNoPython)
        GTEST_SKIP() << "no /usr/bin/python3 with ezdxf (package python3-ezdxf) on this machine";
    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(
        output,
        "LINE Walls 5 (1.000 2.000 3.000) (-4.000 5.500 0.250) 2.500\n"
        "3DFACE Faces 6 (0.000 0.000 0.000) (1.000 0.000 0.000) (1.000 1.000 0.000) (0.000 1.000 2.000)\n"
        "TEXT Texts 7 (10.000 20.000 0.000) 2.5 Pos. 12\n"
        "POLYLINE Outline 3 1 (0.000 0.000 1.000) (0.000 0.000 1.500) (0.000 0.000 1.500) 0.000 0 "
        "(4.000 0.000 1.500) 1.000 0 (4.000 4.000 1.500) -0.500 0\n"
        "POLYLINE Space 2 9 (0.000 0.000 1.000) (0.000 0.000 0.000) (0.000 0.000 1.000) 0.000 32 "
        "(4.000 0.000 2.000) 0.000 32\n");
}
#endif
}  // namespace
