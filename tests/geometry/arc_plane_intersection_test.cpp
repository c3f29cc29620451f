#include "circle_arcs.h"

using namespace space;

namespace {
struct Hits
{
    int code;
    TUVect3D p[2];
    int count;
};

Hits Hit(SpaceArc const & arc, TUVect3D const & origin, TUVect3D const & normal)
{
    CMathematics math;
    Hits h = {};
    h.code = math.ArcPlaneIntersectionParameters(arc.start, arc.end, arc.arcVector, arc.bulge, origin, normal,
                                                 h.p[0], h.p[1], h.count);
    EXPECT_EQ(math.ArcPlaneIntersection(arc.start, arc.end, arc.arcVector, arc.bulge, origin, normal),
              h.code);
    return h;
}

SpaceArc const kFlat = {P(0, 0, -1), P(0, 0, 3), P(0, 1, 0), 9e-6};
}  // namespace

TEST(ArcAndPlane, ArcInThePlane)
{
    EXPECT_EQ(Hit(kHalf, P(9, 9, 0), P(0, 0, 1)).code, 33);
    EXPECT_EQ(Hit(kHalf, P(9, 9, 0.9e-6), P(0, 0, -1)).code, 33);
    EXPECT_EQ(Hit(kHalf, P(9, 9, 0), P(0, 0, 1)).count, 0);
}

TEST(ArcAndPlane, ArcParallelToThePlane)
{
    EXPECT_EQ(Hit(kHalf, P(9, 9, -2), P(0, 0, 1)).code, 16);
    EXPECT_EQ(Hit(kHalf, P(9, 9, -2), P(0, 0, -1)).code, 0);
    EXPECT_EQ(Hit(kHalf, P(9, 9, 2), P(0, 0, 1)).code, 0);
}

TEST(ArcAndPlane, ArcOnOneSide)
{
    EXPECT_EQ(Hit(kHalf, P(-1, 0, 0), P(1, 0, 0)).code, 16);
    EXPECT_EQ(Hit(kHalf, P(-1, 0, 0), P(-1, 0, 0)).code, 0);
    // The plane y = -0.5 cuts the circle, not the arc.
    EXPECT_EQ(Hit(kHalf, P(0, -0.5, 0), P(0, 1, 0)).code, 16);
    EXPECT_EQ(Hit(kHalf, P(0, -0.5, 0), P(0, -1, 0)).code, 0);
}

TEST(ArcAndPlane, OnePointTwoPointsAndATangent)
{
    Hits h = Hit(kHalf, P(1, 0, 0), P(1, 0, 0));
    EXPECT_EQ(h.code, 1);
    EXPECT_EQ(h.count, 1);
    ExpectPoint(h.p[0], P(1, 1, 0));
    h = Hit(kHalf, P(0, 0.6, 0), P(0, 2, 0));
    EXPECT_EQ(h.code, 2);
    EXPECT_EQ(h.count, 2);
    EXPECT_NEAR(h.p[0].y, 0.6, 1e-12);
    EXPECT_NEAR(std::fabs(h.p[0].x - h.p[1].x), 1.6, 1e-12);
    h = Hit(kHalf, P(0, 1, 0), P(0, 1, 0));
    EXPECT_EQ(h.code, 17);
    EXPECT_EQ(h.count, 1);
    ExpectPoint(h.p[0], P(1, 1, 0));
}

TEST(ArcAndPlane, FlatArcIsItsChord)
{
    Hits h = Hit(kFlat, P(5, 5, 0), P(0, 0, 1));
    EXPECT_EQ(h.code, 1);
    EXPECT_EQ(h.count, 1);
    ExpectPoint(h.p[0], P(0, 0, 0));
    EXPECT_EQ(Hit(kFlat, P(5, 5, -2), P(0, 0, 1)).code, 16);
    EXPECT_EQ(Hit(kFlat, P(5, 5, -2), P(0, 0, -1)).code, 0);
    EXPECT_EQ(Hit(kFlat, P(0, 0, 0), P(1, 0, 0)).code, 0);
}

TEST(ArcAndPlane, RandomPlanesCutWhereTheArcChangesSides)
{
    Random random(23);
    for (int i = 0; i < 2000; ++i) {
        Circle const circle = RandomCircle(random);
        double const sweep = random.Between(0.2, 6.0);
        SpaceArc const arc = circle.Cut(0.0, sweep, random.Below(2) == 1);
        TUVect3D const normal = random.Direction();
        TUVect3D const origin = Plus(circle.centre, random.Point(2.0));
        // Changes of sides along the arc, on a fine grid; near touches are left out.
        int changes = 0;
        double nearest = 1e9;
        constexpr int kSteps = 400;
        double previous = 0.0;
        for (int k = 0; k <= kSteps; ++k) {
            double const height = PlainDot(Minus(circle.At(sweep * k / kSteps), origin), normal);
            nearest = std::min(nearest, k % kSteps == 0 ? std::fabs(height) : 1e9);
            changes += k > 0 && (height > 0.0) != (previous > 0.0) ? 1 : 0;
            previous = height;
        }
        TUVect3D const across = PlainCross(circle.Axis(), normal);
        double const reach = circle.radius * PlainLength(across);
        double const off = std::fabs(PlainDot(Minus(circle.centre, origin), normal));
        if (nearest < 1e-4 || std::fabs(reach - off) < 1e-2)
            continue;
        Hits const h = Hit(arc, origin, normal);
        ASSERT_EQ(h.count, changes);
        if (changes == 0) {
            ASSERT_EQ(h.code, previous > 0.0 ? 16 : 0);
        }
        for (int k = 0; k < h.count; ++k) {
            ASSERT_NEAR(PlainDot(Minus(h.p[k], origin), normal), 0.0, 1e-7);
            ASSERT_NEAR(Apart(h.p[k], circle.centre), circle.radius, 1e-7);
        }
    }
}

TEST(ArcAndPlane, OddNumbersEnd)
{
    CMathematics math;
    Random random(24);
    for (int i = 0; i < 20000; ++i) {
        TUVect3D p1;
        TUVect3D p2;
        int count;
        TUVect3D const start = random.OddPoint();
        TUVect3D const end = random.OddPoint();
        TUVect3D const arcVector = random.OddPoint();
        int const code = math.ArcPlaneIntersectionParameters(
            start, end, arcVector, random.OddValue(), random.OddPoint(), random.OddPoint(), p1, p2, count);
        ASSERT_TRUE((code >= 0 && code <= 2) || code == 16 || code == 17 || code == 33);
        ASSERT_TRUE(count >= 0 && count <= 2);
    }
}
