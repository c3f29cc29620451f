#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <random>

#include "dxf/dxf_in_basic.h"
#include "dxf/dxf_out_basic.h"
#include "geometry/mathematics.h"

namespace {
constexpr double kClose = 1e-12;

void ExpectPoint(TUVect3D const & point, double x, double y, double z, double bound = kClose)
{
    EXPECT_NEAR(point.x, x, bound);
    EXPECT_NEAR(point.y, y, bound);
    EXPECT_NEAR(point.z, z, bound);
}

TUVect3D World(TUVect3D point, double elevation, TUVect3D extrusion)
{
    CDXFInBasic reader;
    TUVect3D result;
    EXPECT_EQ(reader.TranOCStoWCS(point, result, elevation, extrusion), 1);
    return result;
}

TUVect3D Object(TUVect3D point, double elevation, TUVect3D extrusion)
{
    CMathematics kernel;
    CDXFOutBasic writer(&kernel);
    TUVect3D result;
    EXPECT_EQ(writer.TranWCStoOCS(point, result, elevation, extrusion), 1);
    return result;
}

TEST(ObjectCoordinates, OfTheUsualExtrusionAreTheWorlds)
{
    ExpectPoint(World({{1, 2, 77}}, 3, {{0, 0, 5}}), 1, 2, 3);
}

TEST(ObjectCoordinates, OfAReversedExtrusionAreMirrored)
{
    // Az = (0,0,-1), Ax = Y x Az = (-1,0,0), Ay = Az x Ax = (0,1,0).
    ExpectPoint(World({{1, 2, 0}}, 3, {{0, 0, -1}}), -1, 2, -3);
}

TEST(ObjectCoordinates, OfASidewaysExtrusionTurnAroundTheWorldsZ)
{
    // Az = (1,0,0), Ax = Z x Az = (0,1,0), Ay = (0,0,1).
    ExpectPoint(World({{1, 2, 0}}, 3, {{2, 0, 0}}), 3, 1, 2);
}

TEST(ObjectCoordinates, ChangeTheirRuleAtASixtyFourth)
{
    // Just inside both limits Ax lies in the xz plane, just outside in the xy plane.
    double const inside = 0.0156;
    double const outside = 0.0157;
    EXPECT_EQ(World({{1, 0, 0}}, 0, {{0, inside, std::sqrt(1 - inside * inside)}}).y, 0);
    EXPECT_NEAR(World({{1, 0, 0}}, 0, {{0, outside, std::sqrt(1 - outside * outside)}}).x, -1, kClose);
}

TEST(ObjectCoordinates, OfNoExtrusionAreZero)
{
    ExpectPoint(World({{1, 2, 3}}, 4, {}), 0, 0, 0);
    ExpectPoint(Object({{1, 2, 3}}, 4, {}), 0, 0, 4);
}

TEST(ObjectCoordinates, ComeBackFromTheWorld)
{
    std::mt19937 random(20260501);
    std::uniform_real_distribution<double> coordinate(-100, 100);
    for (int i = 0; i < 2000; ++i) {
        TUVect3D const extrusion = {{coordinate(random), coordinate(random), coordinate(random)}};
        TUVect3D const point = {{coordinate(random), coordinate(random), 0}};
        double const elevation = coordinate(random);
        TUVect3D const world = World(point, elevation, extrusion);
        ExpectPoint(Object(world, elevation, extrusion), point.x, point.y, elevation, 1e-11);
        double const length =
            std::sqrt(extrusion.x * extrusion.x + extrusion.y * extrusion.y + extrusion.z * extrusion.z);
        double const along = (world.x * extrusion.x + world.y * extrusion.y + world.z * extrusion.z) / length;
        EXPECT_NEAR(along, elevation, 1e-11);
    }
}

struct ArcPoints
{
    int status;
    TUVect3D start, end, middle;
    double bulge;
};

constexpr double kUnset = -77;

ArcPoints PointsOf(TUVect3D centre, double radius, double startAngle, double endAngle,
                   TUVect3D extrusion = {{0, 0, 1}})
{
    CDXFInBasic reader;
    ArcPoints arc{0, {{kUnset, 0, 0}}, {{kUnset, 0, 0}}, {{kUnset, 0, 0}}, kUnset};
    arc.status = reader.GetARCEndPoints(centre, radius, startAngle, endAngle, extrusion, &arc.start, &arc.end,
                                        &arc.middle, &arc.bulge);
    return arc;
}

TEST(ArcPoints, OfAQuarterCircle)
{
    ArcPoints const arc = PointsOf({{10, 20, 30}}, 2, 0, 90);
    EXPECT_EQ(arc.status, 0);
    ExpectPoint(arc.start, 12, 20, 30);
    ExpectPoint(arc.end, 10, 22, 30);
    ExpectPoint(arc.middle, 10 + std::numbers::sqrt2, 20 + std::numbers::sqrt2, 30);
    EXPECT_NEAR(arc.bulge, std::tan(std::numbers::pi / 8), kClose);
}

TEST(ArcPoints, BulgeIsTheTangentOfAQuarterOfTheSpan)
{
    for (double span = 1; span < 360; span += 7.25)
        EXPECT_NEAR(PointsOf({}, 3, 25, 25 + span).bulge, std::tan(span * std::numbers::pi / 720), 1e-9)
            << span;
}

TEST(ArcPoints, OfAnArcOverZeroDegreesTakeTheShortWay)
{
    ArcPoints const arc = PointsOf({}, 1, 350, 10);
    ExpectPoint(arc.middle, 1, 0, 0);
    EXPECT_NEAR(arc.bulge, std::tan(5 * std::numbers::pi / 180), kClose);
}

TEST(ArcPoints, TurnWithTheExtrusionAroundTheCentreAsItStands)
{
    ArcPoints const arc = PointsOf({{10, 20, 30}}, 2, 0, 90, {{0, 0, -1}});
    ExpectPoint(arc.start, 8, 20, 30);
    ExpectPoint(arc.end, 10, 22, 30);
    EXPECT_GT(arc.bulge, 0);
}

TEST(ArcPoints, NeedARadius)
{
    EXPECT_EQ(PointsOf({}, 0.9e-8, 0, 90).status, 8);
    EXPECT_EQ(PointsOf({}, -1, 0, 90).status, 8);
    EXPECT_EQ(PointsOf({}, 0.9e-8, 0, 90).start.x, kUnset);
}

TEST(ArcPoints, NeedASpan)
{
    EXPECT_EQ(PointsOf({}, 1, 90, 90).status, 9);
    EXPECT_EQ(PointsOf({}, 1, 90, 90 + 0.9e-8).status, 9);
    EXPECT_EQ(PointsOf({}, 1, 90, 90).start.x, kUnset);
}

TEST(ArcPoints, NeedEndsApart)
{
    ArcPoints const arc = PointsOf({}, 1, 0, 360);
    EXPECT_EQ(arc.status, 9);
    ExpectPoint(arc.start, 1, 0, 0);
    ExpectPoint(arc.middle, -1, 0, 0);
    EXPECT_EQ(arc.bulge, kUnset);
}
}  // namespace
