#include "circle_arcs.h"

using namespace space;

namespace {
struct Hits
{
    int code;
    TUVect3D p[2];
    double onA[2];
    double onB[2];
    int flags;
};

Hits Hit(SpaceArc const & a, SpaceArc const & b)
{
    CMathematics math;
    Hits h = {};
    h.code = math.ArcIntersectionParameters(a.start, a.end, a.arcVector, a.bulge, b.start, b.end, b.arcVector,
                                            b.bulge, h.p[0], h.p[1], h.onA[0], h.onB[1], h.onB[0], h.onA[1],
                                            h.flags);
    return h;
}

int Code(SpaceArc const & a, SpaceArc const & b)
{
    CMathematics math;
    TUVect3D p1;
    TUVect3D p2;
    return math.ArcIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end, b.arcVector, b.bulge,
                                p1, p2);
}

struct Extended
{
    int count;
    TUVect3D p[2];
    int classA[2];
    int classB[2];
};

Extended Extend(SpaceArc const & a, SpaceArc const & b)
{
    CMathematics math;
    Extended e = {};
    e.count = math.ExtendedArcIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end, b.arcVector,
                                           b.bulge, e.p[0], e.p[1], e.classA[0], e.classB[0], e.classA[1],
                                           e.classB[1]);
    return e;
}

/// The unit circle's arc between two angles in degrees.
SpaceArc Degrees(double from, double to)
{
    return kUnitCircle.Cut(from * kPi / 180.0, (to - from) * kPi / 180.0);
}

/// The upper half of the circle about (x, 0) with the radius 1.
SpaceArc HalfAt(double x)
{
    return {P(x - 1, 0, 0), P(x + 1, 0, 0), P(0, 1, 0), 1.0};
}

/// The circle about (0, 0, 0) with the radius 1 in the plane y = 0.
Circle const kUpright = {P(0, 0, 0), P(1, 0, 0), P(0, 0, 1), 1.0};
}  // namespace

TEST(TwoArcs, CrossInOnePlane)
{
    // Circles of radius 1 about 0 and 1.2: they cross at (0.6, 0.8), of which the upper halves keep one.
    Hits const h = Hit(HalfAt(0.0), HalfAt(1.2));
    EXPECT_EQ(h.code, 1);
    ExpectPoint(h.p[0], P(0.6, 0.8, 0));
    // (1 - (0.6, 0.8) . (-1, 0)) / 2 on A and (1 - (-0.6, 0.8) . (-1, 0)) / 2 on B.
    EXPECT_NEAR(h.onA[0], 0.8, 1e-12);
    EXPECT_NEAR(h.onB[0], 0.2, 1e-12);
    EXPECT_EQ(h.flags, 5);
}

TEST(TwoArcs, SurvivorComesFirst)
{
    SpaceArc const lowerA = {P(-1, 0, 0), P(1, 0, 0), P(0, -1, 0), 1.0};
    SpaceArc const lowerB = {P(0.2, 0, 0), P(2.2, 0, 0), P(0, 1, 0), -1.0};
    Hits const h = Hit(lowerA, lowerB);
    EXPECT_EQ(h.code, 1);
    ExpectPoint(h.p[0], P(0.6, -0.8, 0));
    EXPECT_NEAR(h.onA[0], 0.8, 1e-12);
    EXPECT_NEAR(h.onB[0], 0.2, 1e-12);
    EXPECT_EQ(h.onA[1], -1.0);
}

TEST(TwoArcs, TwoPointsInOnePlane)
{
    Circle const right = {P(1.2, 0, 0), P(1, 0, 0), P(0, 1, 0), 1.0};
    Hits const h = Hit(Degrees(-120, 120), right.Cut(kPi / 3.0, 4.0 * kPi / 3.0));
    EXPECT_EQ(h.code, 2);
    EXPECT_NEAR(h.p[0].x, 0.6, 1e-12);
    EXPECT_NEAR(h.p[0].y, -h.p[1].y, 1e-12);
    EXPECT_NEAR(std::fabs(h.p[0].y), 0.8, 1e-12);
}

TEST(TwoArcs, TouchInOnePlane)
{
    Hits const h = Hit(Degrees(-90, 90), SpaceArc{P(2, -1, 0), P(2, 1, 0), P(-1, 0, 0), 1.0});
    EXPECT_EQ(h.code, 1);
    ExpectPoint(h.p[0], P(1, 0, 0));
    // From inside.
    Circle const inner = {P(0.5, 0, 0), P(1, 0, 0), P(0, 1, 0), 0.5};
    EXPECT_EQ(Hit(Degrees(-90, 90), inner.Cut(-1.0, 2.0)).code, 1);
}

TEST(TwoArcs, CirclesThatDoNotMeet)
{
    EXPECT_EQ(Hit(HalfAt(0.0), HalfAt(2.1)).code, 0);
    Circle const inner = {P(0.1, 0, 0), P(1, 0, 0), P(0, 1, 0), 0.5};
    EXPECT_EQ(Hit(Degrees(-90, 90), inner.Cut(-1.0, 2.0)).code, 0);
    Circle const concentric = {P(0, 0, 0), P(1, 0, 0), P(0, 1, 0), 0.5};
    EXPECT_EQ(Hit(Degrees(-90, 90), concentric.Cut(-1.0, 2.0)).code, 0);
    // Parallel planes.
    EXPECT_EQ(Hit(kHalf, {P(0, 0, 1), P(2, 0, 1), P(0, 1, 0), 1.0}).code, 0);
}

TEST(TwoArcs, OfOneCircle)
{
    EXPECT_EQ(Hit(Degrees(10, 80), Degrees(100, 170)).code, 0);
    EXPECT_EQ(Hit(Degrees(10, 80), Degrees(60, 170)).code, 3);
    EXPECT_EQ(Hit(Degrees(10, 170), Degrees(60, 80)).code, 3);
    EXPECT_EQ(Hit(Degrees(60, 80), Degrees(10, 170)).code, 3);
    EXPECT_EQ(Hit(Degrees(10, 80), Degrees(10, 80)).code, 3);
    EXPECT_EQ(Hit(Degrees(10, 80), Degrees(10, 80)).flags, 15);
}

TEST(TwoArcs, EndsOfEachArePlacedOnTheOtherForOneCircle)
{
    // Half a turn up to (-1, 0), and a quarter from (0, 1) over it.
    Hits const h = Hit(Degrees(0, 180), Degrees(90, 225));
    EXPECT_EQ(h.code, 3);
    EXPECT_NEAR(h.onA[0], 0.5, 1e-12);  // B's start is A's apex
    EXPECT_EQ(h.onA[1], -1.0);          // B's end is off A
    EXPECT_EQ(h.onB[0], -1.0);          // A's start is off B
    EXPECT_GT(h.onB[1], 0.5);           // A's end is on B
    ExpectPoint(h.p[0], P(0, 1, 0));
}

TEST(TwoArcs, HalvesOfOneCircleMeetInTwoPoints)
{
    SpaceArc const lower = {P(2, 0, 0), P(0, 0, 0), P(0, -1, 0), 1.0};
    Hits const h = Hit(kHalf, lower);
    EXPECT_EQ(h.code, 2);
    ExpectPoint(h.p[0], P(2, 0, 0), 0.0);
    ExpectPoint(h.p[1], P(0, 0, 0), 0.0);
    EXPECT_EQ(Code(kHalf, lower), 2);
    // The same with a negative bulge.
    EXPECT_EQ(Hit(kHalf, {P(2, 0, 0), P(0, 0, 0), P(0, 1, 0), -1.0}).code, 2);
}

TEST(TwoArcs, ComplementsMeetInTwoPoints)
{
    SpaceArc const part = Degrees(20, 130);
    SpaceArc const rest = {part.start, part.end, Times(-1.0, part.arcVector), 1.0 / part.bulge};
    EXPECT_EQ(Hit(part, rest).code, 2);
}

TEST(TwoArcs, AcrossPlanes)
{
    Hits h = Hit(Degrees(-90, 90), kUpright.Cut(-1.0, 2.0));
    EXPECT_EQ(h.code, 1);
    ExpectPoint(h.p[0], P(1, 0, 0));
    EXPECT_NEAR(h.onA[0], 0.5, 1e-12);
    EXPECT_NEAR(h.onB[0], 0.5, 1e-12);
    EXPECT_EQ(h.flags, 5);
    h = Hit(Degrees(-10, 190), kUpright.Cut(-0.2, kPi + 0.4));
    EXPECT_EQ(h.code, 2);
    EXPECT_EQ(h.flags, 15);
    // The line in which the planes meet misses one of the arcs.
    EXPECT_EQ(Hit(Degrees(10, 80), kUpright.Cut(-1.0, 2.0)).code, 0);
    EXPECT_EQ(Hit(Degrees(-90, 90), kUpright.Cut(1.0, 1.0)).code, 0);
}

TEST(TwoArcs, FlatOneIsALine)
{
    // Read the wrong way round: a chord that meets the arc as its line meets it.
    SpaceArc const flat = {P(1, 0.5, 0), P(1, 2, 0), P(1, 0, 0), 1e-6};
    Hits const second = Hit(kHalf, flat);
    EXPECT_EQ(second.code, 1);
    ExpectPoint(second.p[0], P(1, 1, 0));
    EXPECT_NEAR(second.onA[0], 0.5, 1e-12);
    EXPECT_NEAR(second.onB[0], 1.0 / 3.0, 1e-12);
    Hits const first = Hit(flat, kHalf);
    EXPECT_EQ(first.code, 1);
    EXPECT_NEAR(first.onA[0], 1.0 / 3.0, 1e-12);
    EXPECT_NEAR(first.onB[0], 0.5, 1e-12);
}

TEST(TwoArcs, SharedEndIsNoIntersection)
{
    SpaceArc const neighbour = {P(2, 0, 0), P(4, 0, 0), P(0, 1, 0), 1.0};
    EXPECT_EQ(Hit(kHalf, neighbour).code, 1);
    EXPECT_EQ(Code(kHalf, neighbour), 0);
    EXPECT_EQ(Code(HalfAt(0.0), HalfAt(1.2)), 1);
}

TEST(TwoArcs, OneCircleNeedsATrueStretch)
{
    EXPECT_EQ(Code(Degrees(10, 80), Degrees(60, 170)), 3);
    // They touch at 80 degrees.
    EXPECT_EQ(Hit(Degrees(10, 80), Degrees(80, 170)).code, 3);
    EXPECT_EQ(Code(Degrees(10, 80), Degrees(80, 170)), 0);
    EXPECT_EQ(Code(Degrees(10, 80), Degrees(100, 170)), 0);
}

TEST(TwoArcs, ExtendedCountsWholeCircles)
{
    Extended e = Extend(HalfAt(0.0), HalfAt(1.2));
    EXPECT_EQ(e.count, 2);
    ExpectPoint(e.p[0], P(0.6, 0.8, 0));
    EXPECT_EQ(e.classA[0], 2);
    EXPECT_EQ(e.classB[0], 2);
    EXPECT_EQ(e.classA[1], 1);
    EXPECT_EQ(e.classB[1], 1);
    e = Extend(Degrees(10, 80), kUpright.Cut(-1.0, 2.0));
    EXPECT_EQ(e.count, 2);
    EXPECT_EQ(e.classA[0], 1);
    EXPECT_EQ(e.classA[1], 1);
}

TEST(TwoArcs, ExtendedOfOneCircle)
{
    EXPECT_EQ(Extend(Degrees(10, 80), Degrees(60, 170)).count, 3);
    EXPECT_EQ(Extend(Degrees(10, 80), Degrees(100, 170)).count, 0);
    EXPECT_EQ(Extend(HalfAt(0.0), HalfAt(3.0)).count, 0);
}

TEST(TwoArcs, RandomCrossingsInOnePlane)
{
    Random random(25);
    int found = 0;
    for (int i = 0; i < 3000; ++i) {
        Circle const c = RandomCircle(random);
        double const apart = random.Between(0.2, 1.8) * c.radius;
        // Two circles of one radius, whose centres lie on e1, cross where cos(angle) = apart / 2 / radius.
        Circle const d = {Plus(c.centre, Times(apart, c.e1)), c.e1, c.e2, c.radius};
        double const half = std::acos(apart / 2.0 / c.radius);
        double const fromA = random.Between(0, 2 * kPi);
        double const fromB = random.Between(0, 2 * kPi);
        double const sweepA = random.Between(0.3, 6.0);
        double const sweepB = random.Between(0.3, 6.0);
        auto const on = [&](double sign) {
            return Ahead(fromA, sign * half) <= sweepA && Ahead(fromB, kPi - sign * half) <= sweepB;
        };
        int const expected = (on(1.0) ? 1 : 0) + (on(-1.0) ? 1 : 0);
        SpaceArc const a = c.Cut(fromA, sweepA, random.Below(2) == 1);
        SpaceArc const b = d.Cut(fromB, sweepB, random.Below(2) == 1);
        Hits const h = Hit(a, b);
        ASSERT_EQ(h.code, expected) << i;
        ASSERT_EQ(Hit(b, a).code, expected);
        RigidMotion const motion(random);
        ASSERT_EQ(Hit(Moved(motion, a), Moved(motion, b)).code, expected);
        for (int k = 0; k < expected; ++k) {
            ASSERT_NEAR(Apart(h.p[k], c.centre), c.radius, 1e-7);
            ASSERT_NEAR(Apart(h.p[k], d.centre), d.radius, 1e-7);
        }
        ASSERT_EQ(Extend(a, b).count, 2);
        found += expected;
    }
    EXPECT_GT(found, 500);
}

TEST(TwoArcs, RandomCrossingsAcrossPlanes)
{
    Random random(26);
    int found = 0;
    for (int i = 0; i < 3000; ++i) {
        // Two circles through one point, in planes of their own.
        Circle const c = RandomCircle(random);
        double const angle = random.Between(0, 2 * kPi);
        TUVect3D const common = c.At(angle);
        TUVect3D const toCentre = random.Direction();
        TUVect3D const other = random.Across(toCentre);
        if (PlainLength(PlainCross(c.Axis(), PlainCross(toCentre, other))) < 0.1)
            continue;
        double const radius = random.Between(0.5, 5.0);
        Circle const d = {Plus(common, Times(radius, toCentre)), Times(-1.0, toCentre), other, radius};
        double const sweepA = random.Between(0.3, 6.0);
        double const sweepB = random.Between(0.3, 6.0);
        double const fromA = random.Between(0, 2 * kPi);
        double const fromB = random.Between(0, 2 * kPi);
        bool const expected = Ahead(fromA, angle) <= sweepA && Ahead(fromB, 0.0) <= sweepB;
        SpaceArc const a = c.Cut(fromA, sweepA, random.Below(2) == 1);
        SpaceArc const b = d.Cut(fromB, sweepB, random.Below(2) == 1);
        Hits const h = Hit(a, b);
        bool const hit =
            (h.code >= 1 && Apart(h.p[0], common) < 1e-6) || (h.code == 2 && Apart(h.p[1], common) < 1e-6);
        ASSERT_EQ(hit, expected) << i;
        ASSERT_EQ(Hit(b, a).code, h.code);
        RigidMotion const motion(random);
        ASSERT_EQ(Hit(Moved(motion, a), Moved(motion, b)).code, h.code);
        ASSERT_GE(Extend(a, b).count, 1);
        found += hit ? 1 : 0;
    }
    EXPECT_GT(found, 500);
}

TEST(TwoArcs, OddNumbersEnd)
{
    Random random(27);
    for (int i = 0; i < 20000; ++i) {
        SpaceArc const a = {random.OddPoint(), random.OddPoint(), random.OddPoint(), random.OddValue()};
        SpaceArc const b = {random.OddPoint(), random.OddPoint(), random.OddPoint(), random.OddValue()};
        int const code = Hit(a, b).code;
        ASSERT_TRUE((code >= 0 && code <= 3) || code == 17);
        Code(a, b);
        int const count = Extend(a, b).count;
        ASSERT_TRUE(count >= 0 && count <= 3);
    }
}
