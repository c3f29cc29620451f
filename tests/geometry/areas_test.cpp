#include <cmath>
#include <numbers>

#include "gtest/gtest.h"
#include "tests/geometry/outlines.h"

using namespace outlines;

namespace {
constexpr double kPi = std::numbers::pi;

double Surface(Outline const & outline)
{
    CMathematics math;
    MadeArea const area(outline);
    return math.GetAreaSurface(&area);
}

/// The class of a point; the result has to fit it.
int ClassOf(Outline const & outline, double x, double y, int depth = 1)
{
    CMathematics math;
    MadeArea const area(outline);
    int pointClass = depth;
    int const result = math.IsPointInArea({{x, y}}, &area, 0, pointClass);
    EXPECT_EQ(result, pointClass > 0 ? 1 : 0);
    return pointClass;
}

int ClassInPolygon(std::vector<TUVect2D> vertices, double x, double y)
{
    CMathematics math;
    int pointClass = -1;
    int const result =
        math.IsPointInPolygon({{x, y}}, vertices.data(), static_cast<unsigned>(vertices.size()), pointClass);
    EXPECT_EQ(result, pointClass > 0 ? 1 : 0);
    return pointClass;
}

int Separated(Outline const & a, Outline const & b)
{
    CMathematics math;
    MadeArea const areaA(a);
    MadeArea const areaB(b);
    EXPECT_EQ(math.ArePolygonsSeparated(&areaA, &areaB), math.ArePolygonsSeparated(&areaB, &areaA));
    return math.ArePolygonsSeparated(&areaA, &areaB);
}

Outline const kSquare = Rectangle(0, 0, 2, 2);
std::vector<TUVect2D> const kSquareVertices = {{{0, 0}}, {{2, 0}}, {{2, 2}}, {{0, 2}}};

/// A square whose top side bulges outward by a half circle of radius 1.
Outline RoofedSquare()
{
    return Closed({V(0, 0), V(2, 0), V(2, 2), Arc(-1.0), V(0, 2)});
}

/// A square into whose top side a half circle of radius 1 is cut.
Outline NotchedSquare()
{
    return Closed({V(0, 0), V(2, 0), V(2, 2), Arc(1.0), V(0, 2)});
}
}  // namespace

TEST(PolygonSurface, IsSignedByTheDirection)
{
    CMathematics math;
    CArray<TUVect2D, TUVect2D &> square;
    for (TUVect2D v : kSquareVertices)
        square.Add(v);
    EXPECT_DOUBLE_EQ(math.GetArea(square), 4.0);
    std::reverse(square.begin(), square.end());
    EXPECT_DOUBLE_EQ(math.GetArea(square), -4.0);
    square.RemoveAll();
    EXPECT_EQ(math.GetArea(square), 0.0);
}

TEST(AreaSurface, IsSignedByTheDirection)
{
    EXPECT_DOUBLE_EQ(Surface(kSquare), 4.0);
    EXPECT_DOUBLE_EQ(Surface(Reversed(kSquare)), -4.0);
    EXPECT_EQ(Surface({}), 0.0);
}

TEST(AreaSurface, FullCircleOfTwoHalves)
{
    EXPECT_NEAR(Surface(Circle(3, 4, 2)), 4 * kPi, 1e-12);
    EXPECT_NEAR(Surface(Reversed(Circle(3, 4, 2))), -4 * kPi, 1e-12);
}

TEST(AreaSurface, ArcsAddOutsideAndTakeInside)
{
    EXPECT_NEAR(Surface(RoofedSquare()), 4 + kPi / 2, 1e-12);
    EXPECT_NEAR(Surface(NotchedSquare()), 4 - kPi / 2, 1e-12);
    EXPECT_NEAR(Surface(Reversed(RoofedSquare())), -4 - kPi / 2, 1e-12);
}

TEST(AreaSurface, ArcLargerThanAHalfCircle)
{
    // Three quarters of the unit circle above the chord from (c, -c) to (-c, -c), closed by the chord:
    // three quarters of the disc and the triangle of 1/2 below the centre. tan(270 / 4) = 2.414.
    double const c = std::sqrt(0.5);
    Outline const outline = Closed({V(c, -c), Arc(-std::tan(3 * kPi / 8)), V(-c, -c)});
    EXPECT_NEAR(Surface(outline), 0.75 * kPi + 0.5, 1e-12);
}

TEST(AreaSurface, TakesAnOpenOutlineWithTheClosingArcInFront)
{
    Outline open = {Arc(-1.0), V(0, 0), V(2, 0), V(2, 2), V(0, 2)};  // the arc runs from (0, 2) to (0, 0)
    EXPECT_NEAR(Surface(open), 4 + kPi / 2, 1e-12);
}

TEST(AreaSurface, MarkersWithoutAVertexBehindDoNoHarm)
{
    EXPECT_EQ(Surface({Arc(1.0)}), 0.0);
    EXPECT_EQ(Surface({Arc(1.0), Arc(2.0), Arc(3.0)}), 0.0);
    EXPECT_DOUBLE_EQ(Surface({V(0, 0), V(2, 0), V(2, 2), V(0, 2), V(0, 0), Arc(0.3), Arc(0.5)}), 4.0);
}

TEST(PointInPolygon, Classes)
{
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 1, 1), 1);
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 3, 1), 0);
    EXPECT_EQ(ClassInPolygon(kSquareVertices, -1, -1), 0);
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 1, 2), 2);
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 0, 1), 2);  // the closing side
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 2, 2), 3);
}

TEST(PointInPolygon, VertexWinsOverEdgeWithinTheTolerance)
{
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 5e-7, 0), 3);
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 2e-6, 0), 2);
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 1, -0.9e-6), 2);
    EXPECT_EQ(ClassInPolygon(kSquareVertices, 1, -1.1e-6), 0);
}

TEST(PointInPolygon, NoVerticesHoldNothing)
{
    EXPECT_EQ(ClassInPolygon({}, 0, 0), 0);
}

TEST(PointInArea, Classes)
{
    for (Outline const & outline : {kSquare, Reversed(kSquare)}) {
        EXPECT_EQ(ClassOf(outline, 1, 1), 1);
        EXPECT_EQ(ClassOf(outline, 3, 1), 0);
        EXPECT_EQ(ClassOf(outline, 1, 0), 2);
        EXPECT_EQ(ClassOf(outline, 0, 1), 2);
        EXPECT_EQ(ClassOf(outline, 0, 0), 3);
        EXPECT_EQ(ClassOf(outline, 5e-7, 0), 3);
    }
}

TEST(PointInArea, ClassZeroOnEntryAsksForTheBoundaryAlone)
{
    EXPECT_EQ(ClassOf(kSquare, 1, 1, 0), 0);
    EXPECT_EQ(ClassOf(kSquare, 1, 0, 0), 2);
    EXPECT_EQ(ClassOf(kSquare, 2, 2, 0), 3);
}

TEST(PointInArea, LensBetweenChordAndArcBelongsToTheArc)
{
    for (bool const reversed : {false, true}) {
        auto const turned = [&](Outline const & o) { return reversed ? Reversed(o) : o; };
        EXPECT_EQ(ClassOf(turned(RoofedSquare()), 1, 2.5), 1);
        EXPECT_EQ(ClassOf(turned(RoofedSquare()), 1, 3.5), 0);
        EXPECT_EQ(ClassOf(turned(RoofedSquare()), 1.9, 2.9), 0);
        EXPECT_EQ(ClassOf(turned(NotchedSquare()), 1, 1.5), 0);
        EXPECT_EQ(ClassOf(turned(NotchedSquare()), 1, 0.5), 1);
        EXPECT_EQ(ClassOf(turned(RoofedSquare()), 1, 3), 2);
        EXPECT_EQ(ClassOf(turned(NotchedSquare()), 1, 1), 2);
    }
}

TEST(PointInArea, PointOnTheChordOfAnArcIsNotOnTheBoundary)
{
    EXPECT_EQ(ClassOf(RoofedSquare(), 1, 2), 1);
    EXPECT_EQ(ClassOf(NotchedSquare(), 1, 2), 0);
    EXPECT_EQ(ClassOf(Circle(0, 0, 1), 0.3, 0), 1);
    EXPECT_EQ(ClassOf(Reversed(Circle(0, 0, 1)), 0.3, 0), 1);
}

TEST(PointInArea, ArcLargerThanAHalfCircle)
{
    double const c = std::sqrt(0.5);
    Outline const outline = Closed({V(c, -c), Arc(-std::tan(3 * kPi / 8)), V(-c, -c)});
    EXPECT_EQ(ClassOf(outline, 0, 0), 1);
    EXPECT_EQ(ClassOf(outline, 0.95, 0), 1);
    EXPECT_EQ(ClassOf(outline, 0, -0.8), 0);
    EXPECT_EQ(ClassOf(outline, 1, 0), 2);
}

TEST(PointInArea, NoRecordsHoldNothing)
{
    EXPECT_EQ(ClassOf({}, 0, 0), 0);
    EXPECT_EQ(ClassOf({Arc(1.0), Arc(1.0)}, 0, 0), 0);
}

TEST(Separated, InEachOfTheEightDirections)
{
    Outline const b = Rectangle(0, 0, 1, 1);
    EXPECT_EQ(Separated(b, Rectangle(3, 0, 4, 1)), 1);
    EXPECT_EQ(Separated(b, Rectangle(0, 3, 1, 4)), 1);
    // Extents in x and y overlap, those in x + y (up to 2 here, from 2.5 there) don't.
    EXPECT_EQ(Separated(b, Closed({V(2, 0.5), V(2, 2), V(0.5, 2)})), 1);
    // The same in y - x: 1 at most here, from 1.5 there.
    EXPECT_EQ(Separated(b, Closed({V(-1, 0.5), V(0.5, 2), V(-1, 2)})), 1);
    EXPECT_EQ(Separated(b, Rectangle(0.5, 0.5, 3, 3)), 0);
}

TEST(Separated, ToleranceIsTheMargin)
{
    Outline const b = Rectangle(0, 0, 1, 1);
    EXPECT_EQ(Separated(b, Rectangle(1 + 0.9e-6, 0, 2, 1)), 0);
    EXPECT_EQ(Separated(b, Rectangle(1 + 1.1e-6, 0, 2, 1)), 1);
}

TEST(Separated, SagittaWidensTheMargin)
{
    // The roof reaches 1 above y = 2; its sagitta counts in all directions, also where no arc is.
    EXPECT_EQ(Separated(RoofedSquare(), Rectangle(0, 2.9, 2, 4)), 0);
    EXPECT_EQ(Separated(RoofedSquare(), Rectangle(0, 3.1, 2, 4)), 1);
    EXPECT_EQ(Separated(RoofedSquare(), Rectangle(2.9, 0, 4, 2)), 0);
    EXPECT_EQ(Separated(Circle(0, 0, 1), Rectangle(1.5, -1, 3, 1)), 0);
}

TEST(Separated, NothingIsApartFromEverything)
{
    EXPECT_EQ(Separated({}, kSquare), 1);
}
