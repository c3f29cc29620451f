#include "circle_arcs.h"

using namespace space;

namespace {
int Where(SpaceArc const & arc, TUVect3D const & p)
{
    CMathematics math;
    return math.IsPointOnExtendedArc(arc.start, arc.end, arc.arcVector, arc.bulge, p);
}

struct Along
{
    int result;
    double distance;
};

Along Measure(SpaceArc const & arc, TUVect3D const & p)
{
    CMathematics math;
    Along along = {0, -77.0};
    along.result = math.IsPoint3DInArc(arc.start, arc.end, arc.arcVector, arc.bulge, p, along.distance);
    return along;
}

struct Found
{
    int count;
    TUVect3D p[2];
    int pointClass[2];
    int onCircle;
};

Found Cast(SpaceArc const & arc, TUVect3D const & p)
{
    CMathematics math;
    Found f = {};
    f.count = math.PointCastOnArc(arc.start, arc.end, arc.arcVector, arc.bulge, p, f.p[0], f.p[1],
                                  f.pointClass[0], f.pointClass[1]);
    return f;
}

Found Tangents(SpaceArc const & arc, TUVect3D const & p)
{
    CMathematics math;
    Found f = {};
    f.count = math.Arc3DTangentPoints(arc.start, arc.end, arc.arcVector, arc.bulge, p, f.p[0], f.p[1],
                                      f.onCircle, f.pointClass[0], f.pointClass[1]);
    return f;
}

SpaceArc const kFlat = {P(0, 0, 0), P(2, 0, 0), P(0, 1, 0), 9e-6};
}  // namespace

TEST(PointOnExtendedArc, TellsArcFromCircle)
{
    EXPECT_EQ(Where(kHalf, P(1, 1, 0)), 2);
    EXPECT_EQ(Where(kHalf, P(1, -1, 0)), 1);
    EXPECT_EQ(Where(kHalf, P(0, 0, 0)), 2);
    EXPECT_EQ(Where(kHalf, P(2, 0, 0)), 2);
    EXPECT_EQ(Where(kHalf, P(1, 0.5, 0)), 0);
    EXPECT_EQ(Where(kHalf, P(1, 1, 2e-6)), 0);
    EXPECT_EQ(Where(kHalf, P(1, 1 + 0.9e-6, 0)), 2);
    EXPECT_EQ(Where(kHalf, P(1, 1 + 1.1e-6, 0)), 0);
    EXPECT_EQ(Where(kHalf, P(0, -0.9e-6, 0)), 2);
}

TEST(PointOnExtendedArc, FlatArcAnswersAsALine)
{
    EXPECT_EQ(Where(kFlat, P(1, 0, 0)), 1);
    EXPECT_EQ(Where(kFlat, P(-1, 0, 0)), -1);
    EXPECT_EQ(Where(kFlat, P(3, 0, 0)), 2);
    EXPECT_EQ(Where(kFlat, P(1, 1, 0)), 0);
    EXPECT_EQ(Where(kFlat, P(1, 0, 1)), 0);
}

TEST(PointInArc, MeasuresAlongTheArc)
{
    EXPECT_EQ(Measure(kHalf, P(0, 0, 0)).result, 1);
    EXPECT_EQ(Measure(kHalf, P(0, 0, 0)).distance, 0.0);
    EXPECT_EQ(Measure(kHalf, P(2, 0, 0)).result, 1);
    EXPECT_NEAR(Measure(kHalf, P(2, 0, 0)).distance, kPi, 1e-12);
    EXPECT_EQ(Measure(kHalf, P(1, 1, 0)).result, 1);
    EXPECT_NEAR(Measure(kHalf, P(1, 1, 0)).distance, kPi / 2.0, 1e-12);
}

TEST(PointInArc, RefusesWhatIsOffTheArc)
{
    EXPECT_EQ(Measure(kHalf, P(1, -1, 0)).result, 0);
    EXPECT_EQ(Measure(kHalf, P(1, 0.9, 0)).result, 0);
    EXPECT_EQ(Measure(kHalf, P(1, 1, 2e-6)).result, 0);
}

TEST(PointInArc, MeasuresPastHalfATurn)
{
    SpaceArc const large = kUnitCircle.Cut(0.0, 1.9 * kPi);
    EXPECT_EQ(Measure(large, kUnitCircle.At(1.5 * kPi)).result, 1);
    EXPECT_NEAR(Measure(large, kUnitCircle.At(1.5 * kPi)).distance, 1.5 * kPi, 1e-9);
    EXPECT_EQ(Measure(large, kUnitCircle.At(1.95 * kPi)).result, 0);
}

TEST(PointInArc, FlatArcIsASegment)
{
    EXPECT_EQ(Measure(kFlat, P(0.5, 0, 0)).result, 1);
    EXPECT_EQ(Measure(kFlat, P(0.5, 0, 0)).distance, 0.5);
    EXPECT_EQ(Measure(kFlat, P(0.5, 0.1, 0)).result, 0);
}

TEST(PointInArc, TakesAnEdgeToo)
{
    CMathematics math;
    TSPlaneEdge3D edge = {kHalf.start, kHalf.end, kHalf.arcVector, kHalf.bulge, EDGE_ARC};
    double distance = 0.0;
    EXPECT_EQ(math.IsPoint3DInArc(edge, P(1, 1, 0), distance), 1);
    EXPECT_NEAR(distance, kPi / 2.0, 1e-12);
}

TEST(PointInArc, AgreesWithTheAngleOfRandomArcs)
{
    Random random(28);
    for (int i = 0; i < 3000; ++i) {
        Circle const circle = RandomCircle(random);
        double const sweep = random.Between(0.2, 6.1);
        SpaceArc const arc = circle.Cut(0.5, sweep, random.Below(2) == 1);
        double const ahead = random.Between(0.0, 2.0 * kPi);
        TUVect3D const p = circle.At(0.5 + ahead);
        bool const on = ahead <= sweep;
        ASSERT_EQ(Measure(arc, p).result, on ? 1 : 0);
        if (on) {
            ASSERT_NEAR(Measure(arc, p).distance, circle.radius * ahead, 1e-6);
        }
        ASSERT_EQ(Where(arc, p), on ? 2 : 1);
        ASSERT_EQ(Measure(arc, Plus(p, Times(1e-4, circle.Axis()))).result, 0);
    }
}

TEST(PointCastOnArc, GivesFeetOnTheArcWithTheirClasses)
{
    Found f = Cast(kHalf, P(1, 5, 3));
    EXPECT_EQ(f.count, 1);
    ExpectPoint(f.p[0], P(1, 1, 0));
    ExpectPoint(f.p[1], P(1, -1, 0));
    EXPECT_EQ(f.pointClass[0], 2);
    EXPECT_EQ(f.pointClass[1], 1);
    // The nearer foot is off the arc: the other one comes first.
    f = Cast(kHalf, P(1, -5, 0));
    EXPECT_EQ(f.count, 1);
    ExpectPoint(f.p[0], P(1, 1, 0));
    SpaceArc const large = kUnitCircle.Cut(0.0, 1.9 * kPi);
    f = Cast(large, P(0, 3, 1));
    EXPECT_EQ(f.count, 2);
    ExpectPoint(f.p[0], P(0, 1, 0));
    ExpectPoint(f.p[1], P(0, -1, 0));
}

TEST(PointCastOnArc, NoneFromTheAxisNorOffTheArc)
{
    EXPECT_EQ(Cast(kHalf, P(1, 0, 7)).count, 0);
    EXPECT_EQ(Cast(kHalf, P(1, 0, 7)).pointClass[0], 0);
    SpaceArc const small = kUnitCircle.Cut(0.0, 0.5);
    Found const f = Cast(small, P(0, 3, 0));
    EXPECT_EQ(f.count, 0);
    EXPECT_EQ(f.pointClass[0], 1);
    EXPECT_EQ(f.pointClass[1], 1);
}

TEST(PointCastOnArc, FlatArcHasAFootOnItsChord)
{
    Found f = Cast(kFlat, P(1, 4, 0));
    EXPECT_EQ(f.count, 1);
    ExpectPoint(f.p[0], P(1, 0, 0));
    EXPECT_EQ(f.pointClass[0], 2);
    EXPECT_EQ(f.pointClass[1], 0);
    f = Cast(kFlat, P(3, 4, 0));
    EXPECT_EQ(f.count, 0);
    EXPECT_EQ(f.pointClass[0], 1);
}

TEST(PointCastOnArc, RandomFeetArePerpendicular)
{
    Random random(29);
    for (int i = 0; i < 2000; ++i) {
        Circle const circle = RandomCircle(random);
        SpaceArc const arc = circle.Cut(0.0, random.Between(0.2, 6.1), random.Below(2) == 1);
        TUVect3D const p = Plus(circle.centre, random.Point(8.0));
        Found const f = Cast(arc, p);
        ASSERT_NE(f.pointClass[1], 0);
        for (int k = 0; k < 2; ++k) {
            TUVect3D const tangent = PlainCross(circle.Axis(), Minus(f.p[k], circle.centre));
            ASSERT_NEAR(PlainDot(tangent, Minus(p, f.p[k])) / circle.radius, 0.0, 1e-7);
            ASSERT_EQ(Where(arc, f.p[k]), f.pointClass[k]);
            ASSERT_EQ(f.pointClass[k] == 2, k < f.count);
        }
        if (f.count != 1) {
            ASSERT_LE(Apart(p, f.p[0]), Apart(p, f.p[1]));
        }
    }
}

TEST(ArcTangents, FromAPointOutside)
{
    // From (0, 2) the unit circle is touched at 30 and 150 degrees.
    Found f = Tangents(kUnitCircle.Cut(0.0, kPi), P(0, 2, 0));
    EXPECT_EQ(f.count, 2);
    EXPECT_EQ(f.onCircle, 2);
    for (TUVect3D const & p : f.p) {
        EXPECT_NEAR(p.y, 0.5, 1e-12);
        EXPECT_NEAR(std::fabs(p.x), std::sqrt(0.75), 1e-12);
    }
    f = Tangents(kUnitCircle.Cut(0.0, kPi / 2.0), P(0, 2, 0));
    EXPECT_EQ(f.count, 1);
    EXPECT_EQ(f.onCircle, 2);
    EXPECT_GT(f.p[0].x, 0.0);
    EXPECT_EQ(f.pointClass[1], 1);
    EXPECT_EQ(Tangents(kUnitCircle.Cut(0.0, kPi), P(0, -2, 0)).count, 0);
}

TEST(ArcTangents, FromTheCircleInsideAndOffThePlane)
{
    Found const f = Tangents(kHalf, P(1, 1, 0));
    EXPECT_EQ(f.count, 1);
    EXPECT_EQ(f.onCircle, 1);
    ExpectPoint(f.p[0], P(1, 1, 0));
    EXPECT_EQ(Tangents(kHalf, P(1, -1, 0)).count, 0);
    EXPECT_EQ(Tangents(kHalf, P(1, -1, 0)).onCircle, 1);
    EXPECT_EQ(Tangents(kHalf, P(1, 0.5, 0)).count, 0);
    EXPECT_EQ(Tangents(kHalf, P(1, 0.5, 0)).onCircle, 0);
    EXPECT_EQ(Tangents(kHalf, P(1, 5, 1)).count, 0);
    EXPECT_EQ(Tangents(kFlat, P(1, 5, 0)).count, 0);
}

TEST(ArcTangents, RandomTangentsTouch)
{
    Random random(30);
    for (int i = 0; i < 2000; ++i) {
        Circle const circle = RandomCircle(random);
        SpaceArc const arc = circle.Cut(0.0, random.Between(0.2, 6.1));
        double const angle = random.Between(0, 2 * kPi);
        double const reach = random.Between(1.05, 5.0);
        TUVect3D const p = Plus(circle.centre, Times(reach, Minus(circle.At(angle), circle.centre)));
        Found const f = Tangents(arc, p);
        ASSERT_EQ(f.onCircle, 2);
        for (int k = 0; k < 2; ++k) {
            ASSERT_NEAR(PlainDot(Minus(f.p[k], circle.centre), Minus(p, f.p[k])), 0.0, 1e-7);
            ASSERT_EQ(Where(arc, f.p[k]), f.pointClass[k]);
            ASSERT_EQ(f.pointClass[k] == 2, k < f.count);
        }
    }
}

TEST(PointsAndArcs, OddNumbersEnd)
{
    Random random(31);
    for (int i = 0; i < 20000; ++i) {
        SpaceArc const arc = {random.OddPoint(), random.OddPoint(), random.OddPoint(), random.OddValue()};
        TUVect3D const p = random.OddPoint();
        ASSERT_LE(std::abs(Where(arc, p)), 2);
        Measure(arc, p);
        ASSERT_LE(Cast(arc, p).count, 2);
        ASSERT_LE(Tangents(arc, p).count, 2);
    }
}
