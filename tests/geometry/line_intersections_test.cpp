#include <vector>

#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
struct Meeting
{
    int result;
    TUVect3D p1 = P(-77, -77, -77);
    TUVect3D p2 = P(-77, -77, -77);
    int kind = -77;
    double t = -77.0;
    double u = -77.0;
    int hit = -77;
};

Meeting MeetParameters(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1, TUVect3D const & b2,
                       int mode)
{
    CMathematics math;
    Meeting m = {};
    m.result = math.LineIntersectionParameters(a1, a2, b1, b2, mode, m.p1, m.p2, m.kind, m.t, m.u, m.hit);
    return m;
}

Meeting Meet(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1, TUVect3D const & b2, int mode)
{
    CMathematics math;
    Meeting m = {};
    m.p1 = m.p2 = P(-77, -77, -77);
    m.result = math.LineIntersection(a1, a2, b1, b2, mode, m.p1, m.p2, m.kind);
    return m;
}

/// The line from x = 0 to 1 on the x axis against one on the same axis.
Meeting MeetOnAxis(double from, double to, int mode = 1)
{
    return MeetParameters(P(0, 0, 0), P(1, 0, 0), P(from, 0, 0), P(to, 0, 0), mode);
}

/// The kind of the segment 0-1 on the x axis against the vertical one at `x` from `low` to `high`.
int KindAt(double x, double low, double high)
{
    return Meet(P(0, 0, 0), P(1, 0, 0), P(x, low, 0), P(x, high, 0), 0).kind;
}
}  // namespace

TEST(LineMeeting, CrossingSegments)
{
    Meeting const m = MeetParameters(P(0, 0, 0), P(1, 0, 0), P(0.5, -1, 0), P(0.5, 1, 0), 1);
    EXPECT_EQ(m.result, 1);
    EXPECT_EQ(m.t, 0.5);
    EXPECT_EQ(m.u, 0.5);
    EXPECT_EQ(m.hit, 1);
    EXPECT_EQ(m.kind, 0);
    ExpectPoint(m.p1, P(0.5, 0, 0));
    ExpectPoint(m.p2, P(0.5, 0, 0));
}

TEST(LineMeeting, OutsideTheSegmentsStaysFilled)
{
    Meeting m = MeetParameters(P(0, 0, 0), P(1, 0, 0), P(3, 1, 0), P(3, 2, 0), 1);
    EXPECT_EQ(m.result, 0);
    EXPECT_EQ(m.hit, 1);
    EXPECT_EQ(m.t, 3.0);
    EXPECT_EQ(m.u, -1.0);
    ExpectPoint(m.p1, P(3, 0, 0));
    m = MeetParameters(P(0, 0, 0), P(1, 0, 0), P(3, 1, 0), P(3, 2, 0), 0);
    EXPECT_EQ(m.result, 1);
}

TEST(LineMeeting, LinesThatPassEachOtherGiveTheirNearestPoints)
{
    Meeting const m = MeetParameters(P(0, 0, 0), P(2, 0, 0), P(1, -1, 3), P(1, 1, 3), 0);
    EXPECT_EQ(m.result, 0);
    EXPECT_EQ(m.kind, 0);
    EXPECT_EQ(m.hit, 1);
    ExpectPoint(m.p1, P(1, 0, 0));
    ExpectPoint(m.p2, P(1, 0, 3));
    // The tolerance itself is too far.
    CMathematics math;
    Meeting n = {};
    math.SetOkoli(3.0);
    EXPECT_EQ(math.LineIntersectionParameters(P(0, 0, 0), P(20, 0, 0), P(10, -10, 3), P(10, 10, 3), 0, n.p1,
                                              n.p2, n.kind, n.t, n.u, n.hit),
              0);
}

TEST(LineMeeting, ParametersSnapToTheEnds)
{
    Meeting const m =
        MeetParameters(P(0, 0, 0), P(1, 0, 0), P(1 + 0.5e-6, 0.5e-6, 0), P(1 + 0.5e-6, 5, 0), 1);
    EXPECT_EQ(m.result, 1);
    EXPECT_EQ(m.t, 1.0);
    EXPECT_EQ(m.u, 0.0);
    Meeting const n = MeetParameters(P(0, 0, 0), P(1, 0, 0), P(-0.5e-6, -5, 0), P(-0.5e-6, -0.5e-6, 0), 1);
    EXPECT_EQ(n.result, 1);
    EXPECT_EQ(n.t, 0.0);
    EXPECT_EQ(n.u, 1.0);
}

TEST(LineMeeting, SegmentsWithoutLengthGiveNothing)
{
    for (int const mode : {0, 1}) {
        Meeting m = MeetParameters(P(1, 0, 0), P(1, 0, 0), P(0, 0, 0), P(2, 0, 0), mode);
        EXPECT_EQ(m.result, 0);
        EXPECT_EQ(m.kind, 0);
        EXPECT_EQ(m.hit, 0);
        EXPECT_EQ(m.t, 0.0);
        ExpectPoint(m.p1, P(0, 0, 0), 0.0);
        m = MeetParameters(P(0, 0, 0), P(2, 0, 0), P(1, 0, 0), P(1, 0, 0), mode);
        EXPECT_EQ(m.result, 0);
    }
}

TEST(LineMeeting, ParallelLinesApart)
{
    Meeting const m = MeetParameters(P(0, 0, 0), P(2, 0, 0), P(5, 1, 0), P(9, 1, 0), 1);
    EXPECT_EQ(m.result, 0);
    EXPECT_EQ(m.kind, 11);
    EXPECT_EQ(m.hit, 0);
    ExpectPoint(m.p1, P(2, 0, 0));
    ExpectPoint(m.p2, P(2, 1, 0));
}

TEST(LineMeeting, SecondLengthAloneScalesTheParallelLimit)
{
    // A sine of 1e-6: the limit 2e-6 / length lets a second line of 1 count as parallel, one of 10 not.
    Meeting const shortSecond = MeetParameters(P(0, 0, 0), P(10, 0, 0), P(5, 0, 0), P(6, 1e-6, 0), 0);
    EXPECT_EQ(shortSecond.kind, 10);
    Meeting const longSecond = MeetParameters(P(5, 0, 0), P(6, 1e-6, 0), P(0, 0, 0), P(10, 0, 0), 0);
    EXPECT_EQ(longSecond.kind, 0);
    EXPECT_EQ(longSecond.hit, 1);
}

TEST(LineMeeting, OverlappingSegmentsOfOneLine)
{
    Meeting const m = MeetParameters(P(0, 0, 0), P(2, 0, 0), P(1, 0, 0), P(3, 0, 0), 1);
    EXPECT_EQ(m.result, 1);
    EXPECT_EQ(m.kind, 10);
    EXPECT_EQ(m.hit, 1);
    EXPECT_EQ(m.t, 0.5);
    EXPECT_EQ(m.u, 1.5);
    ExpectPoint(m.p1, P(2, 0, 0));
    ExpectPoint(m.p2, P(1, 0, 0));
}

TEST(LineMeeting, OneLineWithoutACommonStretch)
{
    for (auto const & [from, to] : {std::pair(2.0, 3.0), std::pair(3.0, 2.0), std::pair(-2.0, -1.0)}) {
        Meeting const limited = MeetOnAxis(from, to, 1);
        EXPECT_EQ(limited.result, 0);
        EXPECT_EQ(limited.kind, 10);
        EXPECT_EQ(limited.hit, 0);
        Meeting const unlimited = MeetOnAxis(from, to, 0);
        EXPECT_EQ(unlimited.result, 1);
        EXPECT_EQ(unlimited.hit, 0);
    }
}

TEST(LineMeeting, CommonStretchByTable)
{
    struct Row
    {
        double from, to, p1, p2;
    };
    Row const rows[] = {
        {0.0, -1.0, 0.0, 0.0},     // t = 0, u < 0
        {-1.0, 0.0, 0.0, 0.0},     // u = 0, t < 0
        {1.0, 2.0, 1.0, 1.0},      // t = 1, u > 1
        {2.0, 1.0, 1.0, 1.0},      // u = 1, t > 1
        {-1.0, 2.0, 0.0, 1.0},     // t <= 0, u >= 1
        {2.0, -1.0, 0.0, 1.0},     // u <= 0, t >= 1
        {0.0, 3.0, 0.0, 1.0},      // t = 0, u > 1
        {0.25, 0.75, 0.25, 0.75},  // both within
        {0.75, 0.25, 0.75, 0.25},  // both within, reversed
        {0.0, 1.0, 0.0, 1.0},      // the same
        {1.0, 0.0, 1.0, 0.0},      // the same, reversed: b1, b2 win over a1, a2
        {0.5, -1.0, 0.0, 0.5},     // t within, u < 0
        {-1.0, 0.5, 0.0, 0.5},     // u within, t < 0
        {0.5, 2.0, 1.0, 0.5},      // t within, u > 1
        {2.0, 0.5, 1.0, 0.5},      // u within, t > 1
    };
    for (Row const & row : rows) {
        Meeting const m = MeetOnAxis(row.from, row.to);
        EXPECT_EQ(m.result, 1) << row.from << ' ' << row.to;
        EXPECT_EQ(m.hit, 1);
        EXPECT_EQ(m.p1.x, row.p1) << row.from << ' ' << row.to;
        EXPECT_EQ(m.p2.x, row.p2) << row.from << ' ' << row.to;
    }
}

TEST(LineMeeting, OutputsMayBeTheInputs)
{
    CMathematics math;
    TUVect3D a = P(0, 0, 0);
    TUVect3D b = P(2, 0, 0);
    int kind;
    int hit;
    double t;
    double u;
    EXPECT_EQ(math.LineIntersectionParameters(a, b, P(1, 0, 0), P(3, 0, 0), 1, a, b, kind, t, u, hit), 1);
    EXPECT_EQ(a.x, 2.0);
    EXPECT_EQ(b.x, 1.0);
}

TEST(LineKinds, ByTable)
{
    EXPECT_EQ(KindAt(2.0, 1.0, 2.0), 1);
    EXPECT_EQ(KindAt(0.5, -1.0, 2.0), 2);
    EXPECT_EQ(KindAt(2.0, -1.0, 2.0), 3);
    EXPECT_EQ(KindAt(0.5, 1.0, 2.0), 4);
    EXPECT_EQ(KindAt(0.0, -1.0, 2.0), 5);
    EXPECT_EQ(KindAt(1.0, -1.0, 2.0), 5);
    EXPECT_EQ(KindAt(0.5, 0.0, 2.0), 6);
    EXPECT_EQ(KindAt(0.5, -2.0, 0.0), 6);
    EXPECT_EQ(KindAt(2.0, 0.0, 2.0), 7);
    EXPECT_EQ(KindAt(1.0, 1.0, 2.0), 8);
    EXPECT_EQ(KindAt(1.0, 0.0, 2.0), 9);
}

TEST(LineKinds, SegmentsKeepTheirPointInP1Alone)
{
    Meeting const m = Meet(P(0, 0, 0), P(1, 0, 0), P(0.5, -1, 0.5e-6), P(0.5, 1, 0.5e-6), 1);
    EXPECT_EQ(m.result, 1);
    EXPECT_EQ(m.kind, 2);
    ExpectPoint(m.p1, P(0.5, 0, 0.25e-6));
    ExpectPoint(m.p2, P(-77, -77, -77), 0.0);
}

TEST(LineKinds, SegmentsThatDoNotMeetHaveNone)
{
    for (auto const & m : {Meet(P(0, 0, 0), P(1, 0, 0), P(2, 1, 0), P(2, 2, 0), 1),
                           Meet(P(0, 0, 0), P(1, 0, 0), P(0, 1, 0), P(1, 1, 0), 0),
                           Meet(P(0, 0, 0), P(1, 0, 0), P(0, 1, 5), P(1, 3, 5), 0),
                           Meet(P(0, 0, 0), P(0, 0, 0), P(0, 1, 5), P(1, 3, 5), 0)}) {
        EXPECT_EQ(m.result, 0);
        EXPECT_EQ(m.kind, 0);
        EXPECT_EQ(m.p1.x, -77.0);
    }
}

TEST(LineKinds, OneLineKeepsItsKindUnlessItTouches)
{
    Meeting m = Meet(P(0, 0, 0), P(2, 0, 0), P(1, 0, 0), P(3, 0, 0), 1);
    EXPECT_EQ(m.result, 1);
    EXPECT_EQ(m.kind, 10);
    EXPECT_EQ(m.p1.x, 2.0);
    EXPECT_EQ(m.p2.x, 1.0);
    m = Meet(P(0, 0, 0), P(2, 0, 0), P(2, 0, 0), P(3, 0, 0), 1);
    EXPECT_EQ(m.result, 1);
    EXPECT_EQ(m.kind, 9);
    EXPECT_EQ(m.p1.x, 2.0);
    EXPECT_EQ(m.p2.x, 2.0);
    // Without a common point it stays one line.
    m = Meet(P(0, 0, 0), P(2, 0, 0), P(3, 0, 0), P(4, 0, 0), 0);
    EXPECT_EQ(m.result, 1);
    EXPECT_EQ(m.kind, 10);
}

TEST(LineMeeting, RandomCrossingsLieOnBothLinesInAnyOrderAndPlace)
{
    CMathematics math;
    Random random(6);
    for (int i = 0; i < 2000; ++i) {
        TUVect3D const crossing = random.Point();
        TUVect3D const d = random.Direction();
        TUVect3D const e = random.Direction();
        if (PlainLength(PlainCross(d, e)) < 0.05)
            continue;
        TUVect3D const a1 = Plus(crossing, Times(random.Between(-5, 5), d));
        TUVect3D const a2 = Plus(a1, Times(random.Between(0.5, 5), d));
        TUVect3D const b1 = Plus(crossing, Times(random.Between(-5, 5), e));
        TUVect3D const b2 = Plus(b1, Times(random.Between(0.5, 5), e));
        Meeting const m = MeetParameters(a1, a2, b1, b2, 0);
        ASSERT_EQ(m.result, 1);
        ASSERT_LT(Apart(m.p1, crossing), 1e-9);
        ASSERT_LT(Apart(m.p2, crossing), 1e-9);
        ASSERT_LT(Apart(Plus(a1, Times(m.t, Minus(a2, a1))), crossing), 1e-6);
        ASSERT_LT(Apart(Plus(b1, Times(m.u, Minus(b2, b1))), crossing), 1e-6);
        Meeting const swapped = MeetParameters(b1, b2, a1, a2, 0);
        ASSERT_EQ(swapped.result, 1);
        ASSERT_NEAR(swapped.t, m.u, 1e-9);
        ASSERT_NEAR(swapped.u, m.t, 1e-9);
        RigidMotion const moved(random);
        Meeting const elsewhere = MeetParameters(moved(a1), moved(a2), moved(b1), moved(b2), 0);
        ASSERT_EQ(elsewhere.result, 1);
        ASSERT_LT(Apart(elsewhere.p1, moved(crossing)), 1e-8);
        ASSERT_EQ(Meet(a1, a2, b1, b2, 0).kind, Meet(moved(a1), moved(a2), moved(b1), moved(b2), 0).kind);
        ASSERT_EQ(Meet(a1, a2, b1, b2, 1).result, Meet(b1, b2, a1, a2, 1).result);
    }
}

TEST(LineMeeting, OddNumbersEnd)
{
    Random random(7);
    for (int i = 0; i < 20000; ++i) {
        TUVect3D const a1 = random.OddPoint();
        TUVect3D const a2 = random.OddPoint();
        TUVect3D const b1 = random.OddPoint();
        TUVect3D const b2 = random.OddPoint();
        Meeting const m = Meet(a1, a2, b1, b2, random.Below(2));
        ASSERT_TRUE(m.result == 0 || m.result == 1);
        ASSERT_TRUE(m.kind >= 0 && m.kind <= 10);
    }
    EXPECT_EQ(Meet(P(kNan, 0, 0), P(1, 0, 0), P(0, 0, 0), P(0, 1, 0), 0).result, 0);
    EXPECT_EQ(Meet(P(0, 0, 0), P(kInfinity, 0, 0), P(0, 0, 0), P(0, 1, 0), 0).result, 0);
    EXPECT_EQ(Meet(P(0, 0, 0), P(1e200, 0, 0), P(0, 0, 0), P(0, 1e200, 0), 0).result, 0);
}

TEST(LineAgainstPlane, CrossesAlsoBeyondItsEnds)
{
    CMathematics math;
    TSPlane const plane = {P(0, 0, 2), P(0, 0, 7)};
    TUVect3D point;
    EXPECT_EQ(math.LineTSPlaneIntersection(P(1, 1, 0), P(1, 1, 4), plane, point), 1);
    ExpectPoint(point, P(1, 1, 2));
    EXPECT_EQ(math.LineTSPlaneIntersection(P(0, 0, 0), P(1, 0, 1), plane, point), 1);
    ExpectPoint(point, P(2, 0, 2));
    EXPECT_EQ(math.LineTSPlaneIntersection(P(0, 0, 6), P(1, 0, 5), plane, point), 1);
    ExpectPoint(point, P(4, 0, 2));
    EXPECT_EQ(math.LineTSPlaneIntersection(P(0, 0, 2), P(1, 0, 5), plane, point), 1);
    ExpectPoint(point, P(0, 0, 2));
}

TEST(LineAgainstPlane, ParallelAndContained)
{
    CMathematics math;
    TSPlane const plane = {P(0, 0, 2), P(0, 0, 1)};
    TUVect3D point = P(9, 9, 9);
    EXPECT_EQ(math.LineTSPlaneIntersection(P(0, 0, 3), P(5, 1, 3), plane, point), 0);
    EXPECT_EQ(math.LineTSPlaneIntersection(P(0, 0, 1), P(5, 1, 1), plane, point), 0);
    EXPECT_EQ(math.LineTSPlaneIntersection(P(0, 0, 2), P(5, 1, 2 + 0.9e-6), plane, point), 2);
    EXPECT_EQ(math.LineTSPlaneIntersection(P(0, 0, 3), P(0, 0, 3), plane, point), 0);
    EXPECT_EQ(math.LineTSPlaneIntersection(P(kNan, 0, 3), P(0, 0, 1), plane, point), 0);
    ExpectPoint(point, P(9, 9, 9), 0.0);
}

TEST(LineAgainstPlane, RandomCrossingsLieOnBoth)
{
    CMathematics math;
    Random random(8);
    for (int i = 0; i < 2000; ++i) {
        TSPlane const plane = {random.Point(), random.Direction()};
        TUVect3D const a = random.Point();
        TUVect3D const d = random.Direction();
        if (std::fabs(PlainDot(d, plane.normal)) < 0.05)
            continue;
        TUVect3D const b = Plus(a, Times(random.Between(0.5, 5), d));
        TUVect3D point;
        ASSERT_EQ(math.LineTSPlaneIntersection(a, b, plane, point), 1);
        ASSERT_NEAR(PlainDot(Minus(point, plane.origin), plane.normal), 0.0, 1e-8);
        ASSERT_LT(PlainLength(PlainCross(Minus(point, a), d)), 1e-8);
    }
}
