#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "edge_samples.h"
#include "geometry/edges_set.h"

using namespace arc_samples;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// What two edges have in common.
struct Common : Edges
{
    Common(TSPlaneEdge3D a, TSPlaneEdge3D b)
    {
        CMathematics math;
        result = math.EdgeIntersection(&a, &b, array, count, how);
    }
};

void ExpectNothing(TSPlaneEdge3D const & a, TSPlaneEdge3D const & b)
{
    for (bool const swapped : {false, true}) {
        Common const common(swapped ? b : a, swapped ? a : b);
        EXPECT_EQ(common.result, 0);
        EXPECT_EQ(common.count, 0);
        EXPECT_EQ(common.array, nullptr);
    }
}

/// Expects one record in both orders of arguments.
void ExpectOne(TSPlaneEdge3D const & a, TSPlaneEdge3D const & b, int how, int type, TUVect3D const & start,
               TUVect3D const & end)
{
    for (bool const swapped : {false, true}) {
        Common common(swapped ? b : a, swapped ? a : b);
        ASSERT_EQ(common.result, 1);
        ASSERT_EQ(common.count, 1);
        EXPECT_EQ(common.how, how);
        ExpectEdge(common[0], type, start, end);
    }
}

void ExpectPoint(TSPlaneEdge3D const & a, TSPlaneEdge3D const & b, TUVect3D const & point)
{
    ExpectOne(a, b, 2, EDGE_POINT, point, point);
}

// ---- records --------------------------------------------------------------------------------------------

TEST(EdgeRecords, AreClearedButForTheirFields)
{
    CMathematics math;
    TUVect3D start = At(1, 2, 3);
    TUVect3D end = At(4, 5, 6);
    TUVect3D vector = At(0, 0, 1);
    TSPlaneEdge3D const point = math.GetEdgeFromPoint(&start);
    ExpectEdge(point, EDGE_POINT, start, start);
    EXPECT_EQ(point.bulge, 0.0);
    ExpectNear(point.arcVector, At(0, 0), 0.0);
    TSPlaneEdge3D const line = math.GetEdgeFromLine(&start, &end);
    ExpectEdge(line, EDGE_LINE, start, end);
    EXPECT_EQ(line.bulge, 0.0);
    ExpectNear(line.arcVector, At(0, 0), 0.0);
    TSPlaneEdge3D const arc = math.GetEdgeFromArc(&start, &end, &vector, -0.5);
    ExpectEdge(arc, EDGE_ARC, start, end);
    EXPECT_EQ(arc.bulge, -0.5);
    ExpectNear(arc.arcVector, vector, 0.0);
}

TEST(CompareEdge, DirectionDoesntMatter)
{
    CMathematics math;
    for (TSPlaneEdge3D edge : {Point(At(1, 2)), Line(At(0, 0), At(1, 2)), UnitArc(10, 250)}) {
        TSPlaneEdge3D other = edge;
        EXPECT_EQ(math.CompareEdge(&edge, &other), 1);
        other = Reversed(edge);
        EXPECT_EQ(math.CompareEdge(&edge, &other), 1);
        other.end.z += 2e-6;
        other.start.z += 2e-6;
        EXPECT_EQ(math.CompareEdge(&edge, &other), 0);
    }
}

TEST(CompareEdge, TypesMustBeEqualAndKnown)
{
    CMathematics math;
    TSPlaneEdge3D line = Line(At(0, 0), At(1, 0));
    TSPlaneEdge3D arc = Arc(At(0, 0), At(1, 0), At(0, 1), 0.5);
    EXPECT_EQ(math.CompareEdge(&line, &arc), 0);
    line.type = arc.type = 3;
    EXPECT_EQ(math.CompareEdge(&line, &arc), 0);
}

TEST(CompareArc, TheMiddleTellsArcsOfOneChordApart)
{
    CMathematics math;
    TSPlaneEdge3D arc = Arc(At(0, 0), At(2, 0), At(0, 1), 1.0);
    TSPlaneEdge3D below = Arc(At(0, 0), At(2, 0), At(0, -1), 1.0);
    TSPlaneEdge3D flatter = Arc(At(0, 0), At(2, 0), At(0, 1), 1.0 - 3e-6);
    TSPlaneEdge3D leaning = Arc(At(2, 0), At(0, 0), At(5, 3), 1.0);
    TSPlaneEdge3D line = Line(At(0, 0), At(2, 0));
    EXPECT_EQ(math.CompareArc(&arc, &below), 0);
    EXPECT_EQ(math.CompareArc(&arc, &flatter), 0);
    EXPECT_EQ(math.CompareArc(&arc, &leaning), 1);
    EXPECT_EQ(math.CompareArc(&arc, &line), 0);
    EXPECT_EQ(math.CompareArc(&line, &line), 0);
}

// ---- points ---------------------------------------------------------------------------------------------

TEST(EdgeIntersection, EqualPointsAreTheSameEdge)
{
    ExpectOne(Point(At(1, 2, 3)), Point(At(1, 2, 3)), 0, EDGE_POINT, At(1, 2, 3), At(1, 2, 3));
    ExpectNothing(Point(At(1, 2, 3)), Point(At(1, 2, 3.000002)));
}

TEST(EdgeIntersection, PointOnALineIsThePoint)
{
    TSPlaneEdge3D const line = Line(At(0, 0), At(4, 4));
    ExpectPoint(Point(At(1, 1)), line, At(1, 1));
    ExpectPoint(Point(At(4, 4)), line, At(4, 4));
    ExpectNothing(Point(At(5, 5)), line);
    ExpectNothing(Point(At(1, 1, 0.1)), line);
}

TEST(EdgeIntersection, PointOnAnArcIsThePointInEitherOrder)
{
    TSPlaneEdge3D const arc = UnitArc(0, 270);
    ExpectPoint(Point(OnUnitCircle(120)), arc, OnUnitCircle(120));
    ExpectPoint(Point(OnUnitCircle(270)), arc, OnUnitCircle(270));
    ExpectNothing(Point(OnUnitCircle(300)), arc);
    ExpectNothing(Point(At(0, 0)), arc);
}

// ---- lines ----------------------------------------------------------------------------------------------

TEST(EdgeIntersection, LineWithItselfReversedIsTheSameEdge)
{
    TSPlaneEdge3D const line = Line(At(0, 0), At(4, 1));
    Common common(line, Reversed(line));
    ASSERT_EQ(common.result, 1);
    EXPECT_EQ(common.count, 1);
    EXPECT_EQ(common.how, 0);
    ExpectEdge(common[0], EDGE_LINE, At(0, 0), At(4, 1));
}

TEST(EdgeIntersection, CrossingLinesMeetInAPoint)
{
    ExpectPoint(Line(At(0, 0), At(2, 2)), Line(At(0, 2), At(2, 0)), At(1, 1));
    ExpectPoint(Line(At(0, 0), At(2, 0)), Line(At(1, 0), At(1, 5)), At(1, 0));
    ExpectPoint(Line(At(0, 0), At(2, 0)), Line(At(2, 0), At(2, 5)), At(2, 0));
}

TEST(EdgeIntersection, LinesThatPassEachOtherHaveNothingInCommon)
{
    ExpectNothing(Line(At(0, 0), At(2, 2)), Line(At(0, 2, 1), At(2, 0, 1)));
    ExpectNothing(Line(At(0, 0), At(1, 1)), Line(At(3, 0), At(0, 3)));
    ExpectNothing(Line(At(0, 0), At(2, 0)), Line(At(0, 1), At(2, 1)));
    ExpectNothing(Line(At(0, 0), At(2, 0)), Line(At(3, 0), At(5, 0)));
}

TEST(EdgeIntersection, CollinearLinesThatTouchMeetInAPoint)
{
    ExpectPoint(Line(At(0, 0), At(2, 0)), Line(At(2, 0), At(5, 0)), At(2, 0));
    ExpectPoint(Line(At(0, 0), At(2, 0)), Line(At(5, 0), At(2, 0)), At(2, 0));
}

TEST(EdgeIntersection, CollinearLinesShareTheirStretch)
{
    Common overlap(Line(At(0, 0), At(2, 0)), Line(At(1, 0), At(3, 0)));
    ASSERT_EQ(overlap.result, 1);
    EXPECT_EQ(overlap.count, 1);
    EXPECT_EQ(overlap.how, 1);
    // The end of the second line, then that of the first.
    ExpectEdge(overlap[0], EDGE_LINE, At(1, 0), At(2, 0));
    Common inside(Line(At(0, 0), At(5, 0)), Line(At(3, 0), At(1, 0)));
    ASSERT_EQ(inside.result, 1);
    EXPECT_EQ(inside.how, 1);
    ExpectEdge(inside[0], EDGE_LINE, At(3, 0), At(1, 0));
    Common around(Line(At(3, 0), At(1, 0)), Line(At(0, 0), At(5, 0)));
    ASSERT_EQ(around.result, 1);
    EXPECT_EQ(around.how, 1);
    ExpectEdge(around[0], EDGE_LINE, At(3, 0), At(1, 0));
}

// ---- line and arc ---------------------------------------------------------------------------------------

TEST(EdgeIntersection, LineThroughAnArcMeetsItOnceOrTwice)
{
    TSPlaneEdge3D const arc = UnitArc(0, 180);
    ExpectPoint(Line(At(0, -2), At(0, 2)), arc, At(0, 1));
    double const x = std::sqrt(0.75);
    Common common(arc, Line(At(-2, 0.5), At(2, 0.5)));
    ASSERT_EQ(common.result, 1);
    ASSERT_EQ(common.count, 2);
    EXPECT_EQ(common.how, 2);
    ExpectEdge(common[0], EDGE_POINT, At(x, 0.5), At(x, 0.5));
    ExpectEdge(common[1], EDGE_POINT, At(-x, 0.5), At(-x, 0.5));
}

TEST(EdgeIntersection, TangentLineMeetsTheArcOnce)
{
    ExpectPoint(Line(At(-2, 1), At(2, 1)), UnitArc(0, 180), At(0, 1));
    ExpectNothing(Line(At(1, 1), At(2, 1)), UnitArc(0, 180));
}

TEST(EdgeIntersection, SharedEndOfLineAndArcCounts)
{
    ExpectPoint(Line(At(1, 0), At(3, 0)), UnitArc(0, 180), At(1, 0));
}

TEST(EdgeIntersection, LineThroughTheArcsPlaneMeetsItInAPoint)
{
    ExpectPoint(Line(At(0, 1, -1), At(0, 1, 1)), UnitArc(0, 180), At(0, 1));
    ExpectNothing(Line(At(0, -1, -1), At(0, -1, 1)), UnitArc(0, 180));
    ExpectNothing(Line(At(0, 1, 1), At(0, 1, 2)), UnitArc(0, 180));
}

TEST(EdgeIntersection, LineAndArcApartHaveNothingInCommon)
{
    ExpectNothing(Line(At(-2, 5), At(2, 5)), UnitArc(0, 180));
    ExpectNothing(Line(At(-2, -0.5), At(2, -0.5)), UnitArc(0, 180));
    ExpectNothing(Line(At(2, 0.5), At(4, 0.5)), UnitArc(0, 180));
}

// ---- arcs -----------------------------------------------------------------------------------------------

TEST(EdgeIntersection, ArcWithItselfReversedIsTheSameEdge)
{
    TSPlaneEdge3D const arc = UnitArc(20, 250);
    Common common(arc, Reversed(arc));
    ASSERT_EQ(common.result, 1);
    EXPECT_EQ(common.count, 1);
    EXPECT_EQ(common.how, 0);
    ExpectEdge(common[0], EDGE_ARC, arc.start, arc.end);
    EXPECT_EQ(common[0].bulge, arc.bulge);
}

TEST(EdgeIntersection, ArcsOfTwoCirclesMeetOnceOrTwice)
{
    // Unit circles about (0, 0) and (1, 0) meet at (0.5, +-sqrt 0.75).
    double const y = std::sqrt(0.75);
    TSPlaneEdge3D const moved = PlaneSample(At(1, 0), 1.0, kPi / 2.0, kPi).edge;
    Common both(UnitArc(-90, 90), moved);
    ASSERT_EQ(both.result, 1);
    ASSERT_EQ(both.count, 2);
    EXPECT_EQ(both.how, 2);
    EXPECT_NEAR(both[0].start.x, 0.5, 1e-12);
    EXPECT_NEAR(both[0].start.y * both[1].start.y, -0.75, 1e-12);
    ExpectPoint(UnitArc(0, 90), moved, At(0.5, y));
    ExpectNothing(UnitArc(100, 200), moved);
}

TEST(EdgeIntersection, ArcsOfOneCircleShareTheirStretch)
{
    ExpectOne(UnitArc(0, 90), UnitArc(45, 180), 1, EDGE_ARC, OnUnitCircle(45), OnUnitCircle(90));
}

TEST(EdgeIntersection, ArcsThatTouchOnOneCircleKeepHowOne)
{
    ExpectOne(UnitArc(0, 90), UnitArc(90, 180), 1, EDGE_POINT, OnUnitCircle(90), OnUnitCircle(90));
}

TEST(EdgeIntersection, ArcsApartOnOneCircleHaveNothingInCommon)
{
    ExpectNothing(UnitArc(0, 90), UnitArc(100, 180));
}

TEST(EdgeIntersection, TwoHalvesOfACircleMeetInTheirEnds)
{
    Common common(Arc(At(1, 0), At(-1, 0), At(0, 1), 1.0), Arc(At(-1, 0), At(1, 0), At(0, -1), 1.0));
    ASSERT_EQ(common.result, 1);
    ASSERT_EQ(common.count, 2);
    EXPECT_EQ(common.how, 2);
    EXPECT_EQ(common[0].type, EDGE_POINT);
    EXPECT_NEAR(std::fabs(common[0].start.x - common[1].start.x), 2.0, 1e-9);
    EXPECT_NEAR(common[0].start.y, 0.0, 1e-9);
}

TEST(EdgeIntersection, ArcsInPlanesAtRightAnglesMeetOnTheirCommonLine)
{
    TSPlaneEdge3D const upright = Arc(At(-1, 0), At(1, 0), At(0, 0, 1), 1.0);
    Common common(UnitArc(-10, 190), upright);
    ASSERT_EQ(common.result, 1);
    EXPECT_EQ(common.count, 2);
    EXPECT_EQ(common.how, 2);
    ExpectPoint(UnitArc(-10, 90), upright, At(1, 0));
    ExpectNothing(UnitArc(10, 170), upright);
}

// ---- calling --------------------------------------------------------------------------------------------

TEST(EdgeIntersection, FreesWhatTheResultHeld)
{
    CMathematics math;
    TSPlaneEdge3D a = Line(At(0, 0), At(2, 2));
    TSPlaneEdge3D b = Line(At(0, 2), At(2, 0));
    Edges edges;
    edges.array = new TSPlaneEdge3D[5]{};
    EXPECT_EQ(math.EdgeIntersection(&a, &b, edges.array, edges.count, edges.how), 1);
    b.start.z = b.end.z = 1.0;
    EXPECT_EQ(math.EdgeIntersection(&a, &b, edges.array, edges.count, edges.how), 0);
    EXPECT_EQ(edges.array, nullptr);
    EXPECT_EQ(edges.count, 0);
    EXPECT_EQ(edges.how, 0);
}

TEST(EdgeIntersection, EdgesMayLieInTheResult)
{
    CMathematics math;
    Edges edges;
    edges.array = new TSPlaneEdge3D[2]{Line(At(0, 0), At(2, 2)), Line(At(0, 2), At(2, 0))};
    EXPECT_EQ(math.EdgeIntersection(&edges.array[0], &edges.array[1], edges.array, edges.count, edges.how),
              1);
    ASSERT_EQ(edges.count, 1);
    ExpectEdge(edges[0], EDGE_POINT, At(1, 1), At(1, 1));
}

TEST(EdgeIntersection, UnknownTypesAndNullGiveNothing)
{
    TSPlaneEdge3D unknown = Line(At(0, 0), At(1, 0));
    for (int const type : {3, -1}) {
        unknown.type = type;
        ExpectNothing(unknown, unknown);
        ExpectNothing(unknown, Line(At(0, 0), At(1, 0)));
    }
    CMathematics math;
    Edges edges;
    EXPECT_EQ(math.EdgeIntersection(nullptr, &unknown, edges.array, edges.count, edges.how), 0);
    EXPECT_EQ(edges.count, 0);
}

TEST(EdgeIntersection, SingleCasesAnswerAsTheWhole)
{
    CMathematics math;
    TSPlaneEdge3D point = Point(At(0, 1));
    TSPlaneEdge3D line = Line(At(0, -2), At(0, 2));
    TSPlaneEdge3D other = Line(At(-1, 1), At(1, 1));
    TSPlaneEdge3D arc = UnitArc(0, 180);
    TSPlaneEdge3D otherArc = PlaneSample(At(0, 2), 1.0, kPi, kPi).edge;
    using Case =
        int (CMathematics::*)(TSPlaneEdge3D * const, TSPlaneEdge3D * const, TSPlaneEdge3D *&, int &, int &);
    struct
    {
        Case function;
        TSPlaneEdge3D *a, *b;
    } const cases[] = {{&CMathematics::EdgePointPointIntersection, &point, &point},
                       {&CMathematics::EdgePointLineIntersection, &point, &line},
                       {&CMathematics::EdgePointArcIntersection, &point, &arc},
                       {&CMathematics::EdgeLineLineIntersection, &line, &other},
                       {&CMathematics::EdgeLineArcIntersection, &line, &arc},
                       {&CMathematics::EdgeArcArcIntersection, &arc, &otherArc}};
    for (auto const & row : cases) {
        Edges edges;
        ASSERT_EQ((math.*row.function)(row.a, row.b, edges.array, edges.count, edges.how), 1);
        ASSERT_EQ(edges.count, 1);
        EXPECT_EQ(edges.how, row.a == row.b ? 0 : 2);
        ExpectEdge(edges[0], EDGE_POINT, At(0, 1), At(0, 1));
    }
    // Not freed on entry: the pointer may hold anything.
    line = Line(At(5, 5), At(6, 6));
    TSPlaneEdge3D * anything = &point;
    int count;
    int how;
    EXPECT_EQ(math.EdgePointLineIntersection(&point, &line, anything, count, how), 0);
    EXPECT_EQ(anything, nullptr);
    EXPECT_EQ(count, 0);
}

TEST(EdgeIntersection, DegenerateNumbersEndWithoutHarm)
{
    double const numbers[] = {0.0, kNaN, kInfinity, -kInfinity, 1e300, -1e300, 1e-300, 1e-7, 1.0};
    for (double const x : numbers)
        for (double const y : numbers)
            for (double const bulge : numbers)
                for (int type = EDGE_POINT; type <= EDGE_ARC; ++type) {
                    TSPlaneEdge3D edge = Arc(At(x, y), At(y, x), At(0, 1), bulge);
                    edge.type = type;
                    for (TSPlaneEdge3D const & other : {UnitArc(0, 200), Line(At(x, 0), At(1, y)), edge}) {
                        Common const common(edge, other);
                        ASSERT_LE(common.count, 2);
                        ASSERT_EQ(common.result == 1, common.count > 0);
                    }
                }
}
}  // namespace
