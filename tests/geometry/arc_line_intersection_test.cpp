#include "circle_arcs.h"

using namespace space;

namespace {
struct Hits
{
    int code;
    TUVect3D p[2];
    double arcT[2];
    double lineT[2];
    int flags;
};

Hits Hit(SpaceArc const & arc, TUVect3D const & l1, TUVect3D const & l2, int mode)
{
    CMathematics math;
    Hits h = {};
    h.code = math.ArcLineIntersectionParameters(arc.start, arc.end, arc.arcVector, arc.bulge, l1, l2, h.p[0],
                                                h.p[1], mode, h.arcT[0], h.lineT[0], h.arcT[1], h.lineT[1],
                                                h.flags);
    return h;
}

int Code(SpaceArc const & arc, TUVect3D const & l1, TUVect3D const & l2, int mode)
{
    CMathematics math;
    TUVect3D p1;
    TUVect3D p2;
    return math.ArcLineIntersection(arc.start, arc.end, arc.arcVector, arc.bulge, l1, l2, p1, p2, mode);
}

int PlusCode(SpaceArc const & arc, TUVect3D const & l1, TUVect3D const & l2, int mode)
{
    CMathematics math;
    TUVect3D p1;
    TUVect3D p2;
    return math.ArcLineIntersectionPlus(arc.start, arc.end, arc.arcVector, arc.bulge, l1, l2, p1, p2, mode);
}

struct Extended
{
    int count;
    TUVect3D p[2];
    int arcClass[2] = {-77, -77};
    int lineClass[2] = {-77, -77};
};

Extended Extend(SpaceArc const & arc, TUVect3D const & l1, TUVect3D const & l2)
{
    CMathematics math;
    Extended e = {};
    e.arcClass[0] = e.arcClass[1] = e.lineClass[0] = e.lineClass[1] = -77;
    e.count =
        math.ExtendedLineArcIntersection(arc.start, arc.end, arc.arcVector, arc.bulge, l1, l2, e.p[0], e.p[1],
                                         e.arcClass[0], e.lineClass[0], e.arcClass[1], e.lineClass[1]);
    return e;
}
}  // namespace

TEST(ArcAndLine, OnlyThePointOnTheArcSurvives)
{
    Hits const h = Hit(kHalf, P(1, -1, 0), P(1, 2, 0), 1);
    EXPECT_EQ(h.code, 1);
    ExpectPoint(h.p[0], P(1, 1, 0));
    EXPECT_NEAR(h.arcT[0], 0.5, 1e-12);
    EXPECT_NEAR(h.lineT[0], 2.0 / 3.0, 1e-12);
}

TEST(ArcAndLine, SurvivorOfTwoComesFirst)
{
    // Downward the point across the chord has the larger line parameter and is found first.
    Hits const h = Hit(kHalf, P(1, 2, 0), P(1, -1, 0), 1);
    EXPECT_EQ(h.code, 1);
    ExpectPoint(h.p[0], P(1, 1, 0));
    EXPECT_NEAR(h.lineT[0], 1.0 / 3.0, 1e-12);
    EXPECT_EQ(h.arcT[1], -1.0);
}

TEST(ArcAndLine, TwoPointsTheFartherAlongTheLineFirst)
{
    Hits const h = Hit(kHalf, P(-1, 0.6, 0), P(3, 0.6, 0), 1);
    EXPECT_EQ(h.code, 2);
    ExpectPoint(h.p[0], P(1.8, 0.6, 0));
    ExpectPoint(h.p[1], P(0.2, 0.6, 0));
    EXPECT_NEAR(h.lineT[0], 0.7, 1e-12);
    EXPECT_NEAR(h.lineT[1], 0.3, 1e-12);
    // (1 - unit(0.8, 0.6) . (-1, 0)) / 2 and its mirror image.
    EXPECT_NEAR(h.arcT[0], 0.9, 1e-12);
    EXPECT_NEAR(h.arcT[1], 0.1, 1e-12);
    EXPECT_EQ(h.flags, 1 | 2 | 4 | 8);
}

TEST(ArcAndLine, ModeOneLimitsTheLine)
{
    EXPECT_EQ(Hit(kHalf, P(-1, 0.6, 0), P(1, 0.6, 0), 1).code, 1);
    EXPECT_EQ(Hit(kHalf, P(-1, 0.6, 0), P(1, 0.6, 0), 0).code, 2);
    EXPECT_EQ(Hit(kHalf, P(0.5, 0.6, 0), P(1, 0.6, 0), 1).code, 0);
    EXPECT_EQ(Hit(kHalf, P(0.5, 0.6, 0), P(1, 0.6, 0), 2).code, 2);
}

TEST(ArcAndLine, TangentHasItsCode)
{
    Hits const h = Hit(kHalf, P(0, 1, 0), P(3, 1, 0), 1);
    EXPECT_EQ(h.code, 17);
    EXPECT_EQ(h.flags & 3, 3);
    EXPECT_EQ(h.flags & 8, 0);
    ExpectPoint(h.p[0], P(1, 1, 0));
    EXPECT_NEAR(h.lineT[0], 1.0 / 3.0, 1e-12);
    EXPECT_EQ(Hit(kHalf, P(0, 1 + 0.9e-6, 0), P(3, 1 + 0.9e-6, 0), 1).code, 17);
    EXPECT_EQ(Hit(kHalf, P(0, 1 + 1.1e-6, 0), P(3, 1 + 1.1e-6, 0), 1).code, 0);
    EXPECT_EQ(Hit(kHalf, P(0, -1, 0), P(3, -1, 0), 1).code, 0);  // touches the other half
}

TEST(ArcAndLine, SquaredToleranceStandsAgainstThePlainDifference)
{
    // 1e-9 inside the circle is a tangent within the tolerance, but well above its square: two points.
    EXPECT_EQ(Hit(kHalf, P(0, 1 - 1e-9, 0), P(3, 1 - 1e-9, 0), 1).code, 2);
    EXPECT_EQ(Hit(kHalf, P(0, 1 - 1e-13, 0), P(3, 1 - 1e-13, 0), 1).code, 17);
}

TEST(ArcAndLine, PiercingTheArcsPlane)
{
    Hits const h = Hit(kHalf, P(1, 1, -1), P(1, 1, 3), 1);
    EXPECT_EQ(h.code, 1);
    EXPECT_NEAR(h.lineT[0], 0.25, 1e-12);
    EXPECT_NEAR(h.arcT[0], 0.5, 1e-12);
    EXPECT_EQ(Hit(kHalf, P(1, 1, 1), P(1, 1, 3), 1).code, 0);
    EXPECT_EQ(Hit(kHalf, P(1, 1, 1), P(1, 1, 3), 0).code, 1);
    EXPECT_EQ(Hit(kHalf, P(1, 0.5, -1), P(1, 0.5, 3), 1).code, 0);
    EXPECT_EQ(Hit(kHalf, P(1, -1, -1), P(1, -1, 3), 1).code, 0);
}

TEST(ArcAndLine, LineBesideTheArcsPlane)
{
    EXPECT_EQ(Hit(kHalf, P(-1, 0.6, 0.9e-6), P(3, 0.6, 0.9e-6), 1).code, 2);
    EXPECT_EQ(Hit(kHalf, P(-1, 0.6, 1.1e-6), P(3, 0.6, 1.1e-6), 1).code, 0);
}

TEST(ArcAndLine, ParametersSnapToTheEnds)
{
    Hits const h = Hit(kHalf, P(0, 0.5e-6, 0), P(5, 0.5e-6, 0), 1);
    EXPECT_EQ(h.code, 2);
    EXPECT_EQ(h.arcT[0], 1.0);
    EXPECT_EQ(h.arcT[1], 0.0);
    EXPECT_EQ(h.lineT[1], 0.0);
}

TEST(ArcAndLine, EndOfTheArcCountsAcrossTheChordToo)
{
    // A little below the chord the line still passes the ends within the tolerance.
    EXPECT_EQ(Hit(kHalf, P(-1, -0.5e-6, 0), P(5, -0.5e-6, 0), 1).code, 2);
    EXPECT_EQ(Hit(kHalf, P(-1, -2e-6, 0), P(5, -2e-6, 0), 1).code, 0);
}

TEST(ArcAndLine, NegativeBulgeTurnsTheSide)
{
    SpaceArc const lower = {P(0, 0, 0), P(2, 0, 0), P(0, 1, 0), -1.0};
    Hits const h = Hit(lower, P(1, -2, 0), P(1, 2, 0), 1);
    EXPECT_EQ(h.code, 1);
    ExpectPoint(h.p[0], P(1, -1, 0));
}

TEST(ArcAndLine, MoreThanHalfACircle)
{
    // Three quarters of the unit circle, from -45 over 90 to 225 degrees; its ends stand at y = -0.707.
    SpaceArc const large = kUnitCircle.Cut(-kPi / 4.0, 1.5 * kPi);
    EXPECT_EQ(Hit(large, P(-2, -0.5, 0), P(2, -0.5, 0), 1).code, 2);
    EXPECT_EQ(Hit(large, P(-2, -0.8, 0), P(2, -0.8, 0), 1).code, 0);
}

TEST(ArcAndLine, FlatArcIsReadTheWrongWayRound)
{
    SpaceArc const flat = {P(0, 0, 0), P(2, 0, 0), P(0, 1, 0), 9e-6};
    // The line meets the chord: nothing.
    EXPECT_EQ(Hit(flat, P(1, -1, 0), P(1, 1, 0), 1).code, 0);
    // It misses the chord, and goes on against the circle about the coordinate origin through the start, here
    // a circle without radius: what passes the origin is a hit.
    EXPECT_EQ(Hit(flat, P(5, 5, 0), P(6, 6, 0), 0).code, 17);
    EXPECT_EQ(Hit(flat, P(5, 5, 0), P(6, 7, 0), 0).code, 0);
}

TEST(ArcAndLine, SharedEndIsNoIntersectionButForPlus)
{
    TUVect3D const end = P(0, 0, 0);
    TUVect3D const away = P(-5, -3, 4);
    EXPECT_EQ(Code(kHalf, away, end, 1), 0);
    EXPECT_EQ(Code(kHalf, end, away, 1), 0);
    EXPECT_EQ(PlusCode(kHalf, away, end, 1), 1);
    EXPECT_EQ(PlusCode(kHalf, end, away, 1), 1);
    // Passing through the end is one.
    EXPECT_EQ(Code(kHalf, away, P(5, 3, -4), 1), 1);
    // Two points stay two.
    EXPECT_EQ(Code(kHalf, P(0, 0, 0), P(2, 0, 0), 1), 2);
}

TEST(ArcAndLine, ExtendedCountsTheWholeCircleAndLine)
{
    Extended e = Extend(kHalf, P(1, 3, 0), P(1, 2, 0));
    EXPECT_EQ(e.count, 2);
    ExpectPoint(e.p[0], P(1, 1, 0));
    EXPECT_EQ(e.arcClass[0], 2);
    EXPECT_EQ(e.lineClass[0], 1);
    ExpectPoint(e.p[1], P(1, -1, 0));
    EXPECT_EQ(e.arcClass[1], 1);
    EXPECT_EQ(e.lineClass[1], 1);
    e = Extend(kHalf, P(1, 2, 0), P(1, 3, 0));
    EXPECT_EQ(e.lineClass[0], -1);
    e = Extend(kHalf, P(1, 0, 0), P(1, 3, 0));
    EXPECT_EQ(e.lineClass[0], 2);
    EXPECT_EQ(e.lineClass[1], -1);
}

TEST(ArcAndLine, ExtendedNeverCountsAPointThatIsNotThere)
{
    Extended e = Extend(kHalf, P(1, 1, 1), P(1, 1, 2));
    EXPECT_EQ(e.count, 1);
    EXPECT_EQ(e.arcClass[0], 2);
    EXPECT_EQ(e.lineClass[0], -1);
    EXPECT_EQ(e.arcClass[1], -77);
    e = Extend(kHalf, P(0, 1, 0), P(3, 1, 0));
    EXPECT_EQ(e.count, 1);
    e = Extend(kHalf, P(0, 2, 0), P(3, 2, 0));
    EXPECT_EQ(e.count, 0);
    EXPECT_EQ(e.arcClass[0], -77);
}

TEST(ArcAndLine, RandomHitsLieOnBothInAnyPlaceAndDirection)
{
    Random random(20);
    int twoPoints = 0;
    for (int i = 0; i < 3000; ++i) {
        Circle const circle = RandomCircle(random);
        double const sweep = random.Between(0.2, 6.0);
        SpaceArc const arc = circle.Cut(0.0, sweep, random.Below(2) == 1);
        // A chord of the circle, or a line through one of its points.
        double const angle1 = random.Between(0.0, 2.0 * kPi);
        double const angle2 = angle1 + random.Between(0.3, 5.9);
        bool const inPlane = random.Below(2) == 1;
        TUVect3D const on = circle.At(angle1);
        TUVect3D const toward =
            inPlane ? circle.At(angle2) : Plus(on, Plus(random.Point(1.0), Times(3.0, circle.Axis())));
        TUVect3D const l1 = Plus(on, Times(-random.Between(0.1, 3.0), Minus(toward, on)));
        TUVect3D const l2 = Plus(on, Times(random.Between(0.1, 3.0), Minus(toward, on)));
        bool const first = Ahead(0.0, angle1) <= sweep;
        bool const second = inPlane && Ahead(0.0, angle2) <= sweep;
        Hits const h = Hit(arc, l1, l2, 0);
        int const expected = static_cast<int>(first) + static_cast<int>(second);
        ASSERT_EQ(h.code, expected) << i;
        twoPoints += expected == 2 ? 1 : 0;
        for (int k = 0; k < expected; ++k) {
            ASSERT_NEAR(Apart(h.p[k], circle.centre), circle.radius, 1e-7);
            ASSERT_NEAR(PlainDot(Minus(h.p[k], circle.centre), circle.Axis()), 0.0, 1e-7);
            ASSERT_LT(Apart(h.p[k], Plus(l1, Times(h.lineT[k], Minus(l2, l1)))), 1e-6);
            ASSERT_TRUE(h.arcT[k] >= 0.0 && h.arcT[k] <= 1.0);
        }
        RigidMotion const motion(random);
        ASSERT_EQ(Hit(Moved(motion, arc), motion(l1), motion(l2), 0).code, expected);
        ASSERT_EQ(Hit(arc, l2, l1, 0).code, expected);
        ASSERT_EQ(Hit({arc.end, arc.start, arc.arcVector, arc.bulge}, l1, l2, 0).code, expected);
        ASSERT_EQ(Extend(arc, l1, l2).count, inPlane ? 2 : 1);
    }
    EXPECT_GT(twoPoints, 200);
}

TEST(ArcAndLine, ParameterGrowsAlongTheArc)
{
    Random random(21);
    for (int i = 0; i < 200; ++i) {
        Circle const circle = RandomCircle(random);
        double const sweep = random.Between(0.3, 6.0);
        SpaceArc const arc = circle.Cut(1.0, sweep);
        double previous = -0.5;
        for (int k = 0; k <= 20; ++k) {
            TUVect3D const p = circle.At(1.0 + sweep * k / 20);
            Hits const h = Hit(arc, p, Plus(p, circle.Axis()), 0);
            ASSERT_EQ(h.code, 1);
            ASSERT_GT(h.arcT[0], previous);
            previous = h.arcT[0];
        }
        EXPECT_EQ(previous, 1.0);
    }
}

TEST(ArcAndLine, OddNumbersEnd)
{
    Random random(22);
    for (int i = 0; i < 20000; ++i) {
        SpaceArc const arc = {random.OddPoint(), random.OddPoint(), random.OddPoint(), random.OddValue()};
        TUVect3D const l1 = random.OddPoint();
        TUVect3D const l2 = random.OddPoint();
        int const code = Hit(arc, l1, l2, random.Below(2)).code;
        ASSERT_TRUE((code >= 0 && code <= 2) || code == 17);
        int const count = Extend(arc, l1, l2).count;
        ASSERT_TRUE(count >= 0 && count <= 2);
    }
    EXPECT_EQ(Hit(kHalf, P(1, 1, 0), P(1, 1, 0), 0).code, 0);
    EXPECT_EQ(Hit({P(0, 0, 0), P(0, 0, 0), P(0, 1, 0), 1.0}, P(0, 0, -1), P(0, 0, 1), 0).code, 0);
}
