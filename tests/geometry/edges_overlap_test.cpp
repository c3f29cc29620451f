#include <gtest/gtest.h>

#include <cmath>

#include "edge_samples.h"

using namespace arc_samples;

namespace {
/// The common stretches of two edges of one type.
struct Overlap : Edges
{
    Overlap(TSPlaneEdge3D a, TSPlaneEdge3D b)
    {
        CMathematics math;
        result = math.Edge3DLiesOnEdge3D(&a, &b, array, count);
    }
};

void ExpectNoOverlap(TSPlaneEdge3D const & a, TSPlaneEdge3D const & b)
{
    Overlap const overlap(a, b);
    EXPECT_EQ(overlap.result, 0);
    EXPECT_EQ(overlap.count, 0);
    EXPECT_EQ(overlap.array, nullptr);
}

void ExpectOneOverlap(TSPlaneEdge3D const & a, TSPlaneEdge3D const & b, int type, TUVect3D const & start,
                      TUVect3D const & end)
{
    Overlap overlap(a, b);
    ASSERT_EQ(overlap.result, 1);
    ASSERT_EQ(overlap.count, 1);
    ExpectEdge(overlap[0], type, start, end);
}

/// Expects an arc of the unit circle about the origin, by its ends and its middle in degrees.
void ExpectUnitArc(TSPlaneEdge3D const & edge, double from, double to)
{
    ExpectEdge(edge, EDGE_ARC, OnUnitCircle(from), OnUnitCircle(to));
    CMathematics math;
    TUVect3D middle;
    ASSERT_EQ(math.Get3DPointOnEdge3D(edge, 0.5, 1, middle), 1);
    ExpectNear(middle, OnUnitCircle((from + to) / 2.0), 1e-7);
}

// ---- lines ----------------------------------------------------------------------------------------------

TEST(LineLiesOnLine, SameLineInEitherDirectionGivesTheFirst)
{
    CMathematics math;
    TUVect3D a1 = At(0, 0);
    TUVect3D a2 = At(4, 0);
    TUVect3D p1;
    TUVect3D p2;
    EXPECT_EQ(math.LineLiesOnLine(a1, a2, a2, a1, p1, p2), 1);
    ExpectNear(p1, a1, 0.0);
    ExpectNear(p2, a2, 0.0);
}

TEST(LineLiesOnLine, GivesTheEndsThatLieOnTheOtherLine)
{
    CMathematics math;
    struct
    {
        double a1, a2, b1, b2, p1, p2;
    } const rows[] = {
        {0, 9, 3, 5, 3, 5},  // both ends of b on a
        {0, 9, 5, 3, 5, 3},  // in their own order
        {3, 5, 0, 9, 3, 5},  // both ends of a on b
        {0, 5, 3, 9, 3, 5},  // one of each: b's end, then a's
        {0, 5, 9, 3, 3, 5},  //
        {3, 9, 5, 0, 5, 3},  //
        {0, 5, 5, 9, 5, 5},  // a common end
        {0, 9, 0, 5, 0, 5},  // a common end and one inside
    };
    for (auto const & row : rows) {
        TUVect3D a1 = At(row.a1, 0);
        TUVect3D a2 = At(row.a2, 0);
        TUVect3D b1 = At(row.b1, 0);
        TUVect3D b2 = At(row.b2, 0);
        TUVect3D p1;
        TUVect3D p2;
        EXPECT_EQ(math.LineLiesOnLine(a1, a2, b1, b2, p1, p2), 1);
        EXPECT_EQ(p1.x, row.p1);
        EXPECT_EQ(p2.x, row.p2);
    }
}

TEST(LineLiesOnLine, LinesWithoutACommonEndOrStretchFail)
{
    CMathematics math;
    TUVect3D a1 = At(0, 0);
    TUVect3D a2 = At(4, 0);
    TUVect3D const others[][2] = {
        {At(2, -1), At(2, 1)}, {At(2, 0), At(2, 1)}, {At(5, 0), At(9, 0)}, {At(0, 1), At(4, 1)}};
    for (auto const & other : others) {
        TUVect3D b1 = other[0];
        TUVect3D b2 = other[1];
        TUVect3D p1;
        TUVect3D p2;
        EXPECT_EQ(math.LineLiesOnLine(a1, a2, b1, b2, p1, p2), 0);
    }
}

TEST(Edge3DLiesOnEdge3D, LinesGiveALineOrAPoint)
{
    ExpectOneOverlap(Line(At(0, 0), At(5, 0)), Line(At(3, 0), At(9, 0)), EDGE_LINE, At(3, 0), At(5, 0));
    ExpectOneOverlap(Line(At(0, 0), At(5, 0)), Line(At(9, 0), At(5, 0)), EDGE_POINT, At(5, 0), At(5, 0));
    ExpectNoOverlap(Line(At(0, 0), At(5, 0)), Line(At(6, 0), At(9, 0)));
    ExpectNoOverlap(Line(At(0, 0), At(5, 0)), Line(At(3, -1), At(3, 1)));
}

TEST(Edge3DLiesOnEdge3D, PointsMustBeEqualAndTypesTheSame)
{
    ExpectOneOverlap(Point(At(1, 2)), Point(At(1, 2)), EDGE_POINT, At(1, 2), At(1, 2));
    ExpectNoOverlap(Point(At(1, 2)), Point(At(1, 3)));
    ExpectNoOverlap(Point(At(1, 0)), Line(At(0, 0), At(5, 0)));
    TSPlaneEdge3D unknown = Line(At(0, 0), At(5, 0));
    unknown.type = 3;
    ExpectNoOverlap(unknown, unknown);
}

TEST(Edge3DLiesOnEdge3D, FreesWhatTheResultHeld)
{
    CMathematics math;
    TSPlaneEdge3D a = Line(At(0, 0), At(5, 0));
    TSPlaneEdge3D b = Line(At(3, 0), At(9, 0));
    Edges edges;
    edges.array = new TSPlaneEdge3D[3]{};
    EXPECT_EQ(math.Edge3DLiesOnEdge3D(&a, &b, edges.array, edges.count), 1);
    EXPECT_EQ(math.Edge3DLiesOnEdge3D(&a, nullptr, edges.array, edges.count), 0);
    EXPECT_EQ(edges.array, nullptr);
}

// ---- arcs -----------------------------------------------------------------------------------------------

TEST(ArcLiesOnArc, SameArcIsACopyOfTheFirst)
{
    CMathematics math;
    TSPlaneEdge3D a = UnitArc(10, 200);
    TSPlaneEdge3D b = Reversed(a);
    Edges edges;
    EXPECT_EQ(math.ArcLiesOnArc(&a, &b, edges.array, edges.count), 1);
    ASSERT_EQ(edges.count, 1);
    ExpectEdge(edges[0], EDGE_ARC, a.start, a.end);
    EXPECT_EQ(edges[0].bulge, a.bulge);
}

TEST(ArcLiesOnArc, ContainedArcIsGivenInItsOwnDirection)
{
    for (bool const secondInside : {true, false})
        for (bool const backward : {true, false}) {
            TSPlaneEdge3D const outer = UnitArc(0, 270);
            TSPlaneEdge3D const inner = backward ? UnitArc(200, 30) : UnitArc(30, 200);
            Overlap overlap(secondInside ? outer : inner, secondInside ? inner : outer);
            ASSERT_EQ(overlap.result, 1);
            ASSERT_EQ(overlap.count, 1);
            ExpectUnitArc(overlap[0], backward ? 200 : 30, backward ? 30 : 200);
        }
}

TEST(ArcLiesOnArc, ContainedArcMayShareAnEnd)
{
    for (bool const backward : {true, false}) {
        Overlap overlap(UnitArc(0, 270), backward ? UnitArc(90, 0) : UnitArc(0, 90));
        ASSERT_EQ(overlap.count, 1);
        ExpectUnitArc(overlap[0], backward ? 90 : 0, backward ? 0 : 90);
    }
}

TEST(ArcLiesOnArc, OneEndOfEachGivesTheStretchBetweenThem)
{
    struct
    {
        double a1, a2, b1, b2, from, to;
    } const rows[] = {{0, 100, 60, 200, 60, 100}, {0, 100, 200, 60, 60, 100},   {60, 200, 0, 100, 60, 100},
                      {200, 60, 0, 100, 100, 60}, {0, 250, 200, 355, 200, 250}, {0, 190, -170, 5, 0, 5}};
    for (auto const & row : rows) {
        SCOPED_TRACE(testing::Message() << row.a1 << ' ' << row.a2 << ' ' << row.b1 << ' ' << row.b2);
        Overlap overlap(UnitArc(row.a1, row.a2), UnitArc(row.b1, row.b2));
        ASSERT_EQ(overlap.result, 1);
        if (overlap.count == 1)
            ExpectUnitArc(overlap[0], row.from, row.to);
        else
            EXPECT_EQ(row.a2, 190);  // also meets at 190 = -170
    }
}

TEST(ArcLiesOnArc, ArcsThatTouchGiveAPoint)
{
    ExpectOneOverlap(UnitArc(0, 100), UnitArc(100, 200), EDGE_POINT, OnUnitCircle(100), OnUnitCircle(100));
    ExpectOneOverlap(UnitArc(100, 0), UnitArc(-50, 0), EDGE_POINT, OnUnitCircle(0), OnUnitCircle(0));
}

TEST(ArcLiesOnArc, ArcsThatCoverTheCircleShareBothEnds)
{
    Overlap overlap(UnitArc(0, 270), UnitArc(200, 430));
    ASSERT_EQ(overlap.result, 1);
    ASSERT_EQ(overlap.count, 2);
    ExpectUnitArc(overlap[0], 0, 70);
    ExpectUnitArc(overlap[1], 200, 270);
}

TEST(ArcLiesOnArc, NearlyFullCirclesShareBothEnds)
{
    // The second starts and ends inside the first and covers its gap.
    Overlap overlap(UnitArc(0, 300), UnitArc(290, 630));
    ASSERT_EQ(overlap.count, 2);
    ExpectUnitArc(overlap[0], 0, 270);
    ExpectUnitArc(overlap[1], 290, 300);
}

TEST(ArcLiesOnArc, HalfCircleRoundTheGapSharesBothEnds)
{
    Overlap around(UnitArc(0, 270), UnitArc(180, 360));
    ASSERT_EQ(around.count, 2);
    ExpectEdge(around[0], EDGE_POINT, OnUnitCircle(0), OnUnitCircle(0));
    ExpectUnitArc(around[1], 180, 270);
    Overlap along(UnitArc(0, 270), UnitArc(0, 180));
    ASSERT_EQ(along.count, 1);
    ExpectUnitArc(along[0], 0, 180);
}

TEST(ArcLiesOnArc, ComplementsShareTwoPoints)
{
    Overlap overlap(UnitArc(0, 100), UnitArc(100, 360));
    ASSERT_EQ(overlap.result, 1);
    ASSERT_EQ(overlap.count, 2);
    ExpectEdge(overlap[0], EDGE_POINT, OnUnitCircle(0), OnUnitCircle(0));
    ExpectEdge(overlap[1], EDGE_POINT, OnUnitCircle(100), OnUnitCircle(100));
}

TEST(ArcLiesOnArc, NeedsOnePlaneCentreAndRadius)
{
    TSPlaneEdge3D const arc = UnitArc(0, 180);
    ExpectNoOverlap(arc, UnitArc(200, 300));
    ExpectNoOverlap(arc, PlaneSample(At(2e-6, 0), 1.0, 0.5, 2.0).edge);
    ExpectNoOverlap(arc, PlaneSample(At(0, 0), 1.000002, 0.5, 2.0).edge);
    ExpectNoOverlap(arc, Arc(At(1, 0), At(-1, 0), At(0, 0, 1), 1.0));
    ExpectNoOverlap(arc, Arc(At(1, 0), At(-1, 0), At(0, 1), 0.9e-5));
    ExpectNoOverlap(arc, PlaneSample(At(0, 0, 1), 1.0, 0.5, 2.0).edge);
    CMathematics math;
    TSPlaneEdge3D a = arc;
    TSPlaneEdge3D line = Line(At(1, 0), At(-1, 0));
    Edges edges;
    EXPECT_EQ(math.ArcLiesOnArc(&a, &line, edges.array, edges.count), 0);
    EXPECT_EQ(math.ArcLiesOnArc(&line, &a, edges.array, edges.count), 0);
}

/// The share of [0, 1] of the circle that an arc covers, as up to two spans.
double SharedAngle(double a1, double a2, double b1, double b2)
{
    double shared = 0.0;
    for (double const turn : {-2.0 * kPi, 0.0, 2.0 * kPi})
        shared += std::max(0.0, std::min(a2, b2 + turn) - std::max(a1, b1 + turn));
    return shared;
}

TEST(ArcLiesOnArc, StretchesAddUpToTheSharedAngleForAnyTwoArcsOfACircle)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> turn(0.0, 2.0 * kPi);
    std::uniform_real_distribution<double> sweep(0.05, 6.2);
    CMathematics math;
    for (int i = 0; i < 3000; ++i) {
        Frame const frame = RandomFrame(random);
        double const a1 = turn(random);
        double const b1 = turn(random);
        double const a2 = a1 + sweep(random);
        double const b2 = b1 + sweep(random);
        TSPlaneEdge3D const a = SampleOf(frame, At(1, 2, 3), 2.0, a1, a2 - a1).edge;
        TSPlaneEdge3D const b = SampleOf(frame, At(1, 2, 3), 2.0, b1, b2 - b1).edge;
        Overlap overlap(i % 2 ? Reversed(a) : a, i % 3 ? Reversed(b) : b);
        double length = 0.0;
        for (int k = 0; k < overlap.count; ++k)
            length += math.GetLengthEdge3D(&overlap[k]);
        ASSERT_NEAR(length, 2.0 * SharedAngle(a1, a2, b1, b2), 1e-5)
            << a1 << ' ' << a2 << ' ' << b1 << ' ' << b2;
    }
}

// ---- containment ----------------------------------------------------------------------------------------

TEST(IsEdgeInEdge, FollowsTheTypes)
{
    CMathematics math;
    TSPlaneEdge3D point = Point(At(1, 0));
    TSPlaneEdge3D line = Line(At(0, 0), At(2, 0));
    TSPlaneEdge3D part = Line(At(1, 0), At(0.5, 0));
    TSPlaneEdge3D beyond = Line(At(1, 0), At(2.5, 0));
    TSPlaneEdge3D arc = UnitArc(0, 270);
    TSPlaneEdge3D arcPart = UnitArc(90, 30);
    TSPlaneEdge3D unknown = line;
    unknown.type = 3;
    EXPECT_EQ(math.IsEdgeInEdge(&point, &point), 1);
    EXPECT_EQ(math.IsEdgeInEdge(&line, &point), 1);
    EXPECT_EQ(math.IsEdgeInEdge(&arc, &point), 1);
    EXPECT_EQ(math.IsEdgeInEdge(&line, &part), 1);
    EXPECT_EQ(math.IsEdgeInEdge(&arc, &arcPart), 1);
    EXPECT_EQ(math.IsEdgeInEdge(&part, &line), 0);
    EXPECT_EQ(math.IsEdgeInEdge(&line, &beyond), 0);
    EXPECT_EQ(math.IsEdgeInEdge(&arcPart, &arc), 0);
    EXPECT_EQ(math.IsEdgeInEdge(&point, &line), 0);
    EXPECT_EQ(math.IsEdgeInEdge(&line, &arc), 0);
    EXPECT_EQ(math.IsEdgeInEdge(&arc, &line), 0);
    EXPECT_EQ(math.IsEdgeInEdge(&unknown, &point), 0);
    EXPECT_EQ(math.IsEdgeInEdge(&unknown, &unknown), 0);
}

TEST(IsArcInArc, ArcRoundTheGapIsntInside)
{
    CMathematics math;
    TSPlaneEdge3D arc = UnitArc(0, 270);
    TSPlaneEdge3D along = UnitArc(10, 260);
    TSPlaneEdge3D around = UnitArc(260, 370);
    TSPlaneEdge3D rest = UnitArc(270, 360);
    EXPECT_EQ(math.IsArcInArc(&arc, &along), 1);
    EXPECT_EQ(math.IsArcInArc(&arc, &arc), 1);
    EXPECT_EQ(math.IsArcInArc(&arc, &around), 0);
    EXPECT_EQ(math.IsArcInArc(&arc, &rest), 0);
}

TEST(IsLineInLine, NeedsBothEnds)
{
    CMathematics math;
    EXPECT_EQ(math.IsLineInLine(At(0, 0), At(2, 0), At(2, 0), At(0, 0)), 1);
    EXPECT_EQ(math.IsLineInLine(At(0, 0), At(2, 0), At(1, 0), At(2.1, 0)), 0);
    EXPECT_EQ(math.IsLineInLine(At(0, 0), At(2, 0), At(-1, 0), At(1, 0)), 0);
}
}  // namespace
