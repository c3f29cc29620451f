#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
struct RectangleHit
{
    int result;
    TUVect3D point = P(-77, -77, -77);
};

/// A line against the rectangle 0..4 by 0..2 in the plane z = 1.
RectangleHit AgainstRectangle(TUVect3D const & point, TUVect3D const & direction)
{
    CMathematics math;
    RectangleHit hit = {};
    hit.point = P(-77, -77, -77);
    hit.result =
        math.LineRectangleIntersection(point, direction, P(0, 0, 1), P(4, 0, 0), P(0, 2, 0), hit.point);
    return hit;
}

struct PatchHits
{
    int count;
    TUVect3D p[2];
    double r[2];
    double s[2];
};

PatchHits AgainstPatch(TUVect3D const & q0, TUVect3D const & q1, TUVect3D const & q2, TUVect3D const & q3,
                       TUVect3D const & point, TUVect3D const & direction)
{
    CMathematics math;
    PatchHits h = {};
    h.count = math.GetLineQuadIntersectionParameters(q0, q1, q2, q3, point, direction, h.p[0], h.p[1], h.r[0],
                                                     h.s[0], h.r[1], h.s[1]);
    return h;
}

/// The patch's point at its parameters, in plain arithmetic.
TUVect3D PatchPoint(TUVect3D const & q0, TUVect3D const & q1, TUVect3D const & q2, TUVect3D const & q3,
                    double r, double s)
{
    TUVect3D const near0 = Plus(Times(1 - r, q0), Times(r, q1));
    TUVect3D const near1 = Plus(Times(1 - r, q3), Times(r, q2));
    return Plus(Times(1 - s, near0), Times(s, near1));
}

// z = x y over the unit square.
TUVect3D const kS0 = P(0, 0, 0);
TUVect3D const kS1 = P(1, 0, 0);
TUVect3D const kS2 = P(1, 1, 1);
TUVect3D const kS3 = P(0, 1, 0);
}  // namespace

TEST(LineAgainstRectangle, CrossesWithinBothSides)
{
    RectangleHit const hit = AgainstRectangle(P(3, 1, 5), P(0, 0, -1));
    EXPECT_EQ(hit.result, 1);
    ExpectPoint(hit.point, P(3, 1, 1));
    EXPECT_EQ(AgainstRectangle(P(3, 1, 5), P(0, 0, 1)).result, 1);
    EXPECT_EQ(AgainstRectangle(P(3, 1, 5), P(0.5, 0, -1)).result, 0);
    EXPECT_EQ(AgainstRectangle(P(3, 3, 5), P(0, 0, -1)).result, 0);
    EXPECT_EQ(AgainstRectangle(P(-1, 1, 5), P(0, 0, -1)).point.x, -77.0);
}

TEST(LineAgainstRectangle, BorderReachesByTheTolerance)
{
    EXPECT_EQ(AgainstRectangle(P(4 + 0.9e-6, 1, 5), P(0, 0, -1)).result, 1);
    EXPECT_EQ(AgainstRectangle(P(4 + 1.1e-6, 1, 5), P(0, 0, -1)).result, 0);
    EXPECT_EQ(AgainstRectangle(P(1, -0.9e-6, 5), P(0, 0, -1)).result, 1);
    EXPECT_EQ(AgainstRectangle(P(1, -1.1e-6, 5), P(0, 0, -1)).result, 0);
}

TEST(LineAgainstRectangle, LineInItsPlane)
{
    RectangleHit hit = AgainstRectangle(P(-10, 1, 1), P(1, 0, 0));
    EXPECT_EQ(hit.result, 1);
    ExpectPoint(hit.point, P(2, 1, 1));
    hit = AgainstRectangle(P(-1, -1, 1), P(1, 1, 0));
    EXPECT_EQ(hit.result, 1);
    ExpectPoint(hit.point, P(1, 1, 1));
    EXPECT_EQ(AgainstRectangle(P(-10, 3, 1), P(1, 0, 0)).result, 0);
    EXPECT_EQ(AgainstRectangle(P(-10, 1, 2), P(1, 0, 0)).result, 0);
    EXPECT_EQ(AgainstRectangle(P(5, 0, 1), P(1, 1, 0)).result, 0);
}

TEST(LineAgainstRectangle, DegenerateInputFails)
{
    CMathematics math;
    TUVect3D point;
    EXPECT_EQ(AgainstRectangle(P(1, 1, 1), P(0, 0, 0)).result, 0);
    EXPECT_EQ(
        math.LineRectangleIntersection(P(0, 0, 1), P(0, 0, 1), P(0, 0, 0), P(0, 0, 0), P(0, 1, 0), point), 0);
    EXPECT_EQ(
        math.LineRectangleIntersection(P(0, 0, 1), P(0, 0, 1), P(0, 0, 0), P(1, 0, 0), P(2, 0, 0), point), 0);
    Random random(9);
    for (int i = 0; i < 20000; ++i) {
        TUVect3D const p = random.OddPoint();
        TUVect3D const d = random.OddPoint();
        TUVect3D const corner = random.OddPoint();
        TUVect3D const side = random.OddPoint();
        int const result = math.LineRectangleIntersection(p, d, corner, side, random.OddPoint(), point);
        ASSERT_TRUE(result == 0 || result == 1);
    }
}

TEST(LineAgainstRectangle, RandomLinesInAnyPlace)
{
    CMathematics math;
    Random random(10);
    for (int i = 0; i < 2000; ++i) {
        double const a = random.Between(-0.5, 1.5);
        double const b = random.Between(-0.5, 1.5);
        TUVect3D const target = P(4 * a, 2 * b, 1);
        TUVect3D const d = random.Direction();
        if (std::fabs(d.z) < 0.05)
            continue;
        RigidMotion const moved(random);
        TUVect3D const from = moved(Plus(target, Times(random.Between(-9, 9), d)));
        TUVect3D hit;
        int const result =
            math.LineRectangleIntersection(from, moved.Turned(d), moved(P(0, 0, 1)), moved.Turned(P(4, 0, 0)),
                                           moved.Turned(P(0, 2, 0)), hit);
        bool const within = a >= 0.0 && a <= 1.0 && b >= 0.0 && b <= 1.0;
        ASSERT_EQ(result, within ? 1 : 0);
        if (result) {
            ASSERT_LT(Apart(hit, moved(target)), 1e-8);
        }
    }
}

TEST(LineAgainstPatch, FlatPatchHasOneCrossing)
{
    PatchHits const h =
        AgainstPatch(P(0, 0, 0), P(2, 0, 0), P(2, 4, 0), P(0, 4, 0), P(0.5, 1, 3), P(0, 0, -1));
    EXPECT_EQ(h.count, 1);
    ExpectPoint(h.p[0], P(0.5, 1, 0));
    EXPECT_NEAR(h.r[0], 0.25, 1e-12);
    EXPECT_NEAR(h.s[0], 0.25, 1e-12);
}

TEST(LineAgainstPatch, BordersReachByTheTolerance)
{
    auto const count = [](double x, double y) {
        return AgainstPatch(P(0, 0, 0), P(2, 0, 0), P(2, 4, 0), P(0, 4, 0), P(x, y, 3), P(0, 0, -1)).count;
    };
    EXPECT_EQ(count(2 + 0.9e-6, 1), 1);
    EXPECT_EQ(count(2 + 1.1e-6, 1), 0);
    EXPECT_EQ(count(1, 4 + 0.9e-6), 1);
    EXPECT_EQ(count(1, 4 + 1.1e-6), 0);
    EXPECT_EQ(count(-0.9e-6, -0.9e-6), 1);
}

TEST(LineAgainstPatch, SaddleIsCrossedTwice)
{
    // On x = y the saddle is z = x^2; a line rising along it cuts it where x^2 = 1.2 x - 0.3, at
    // 0.6 -+ sqrt(0.06). The quadratic's leading coefficient is -1 here, so the smaller one comes first.
    PatchHits const h = AgainstPatch(kS0, kS1, kS2, kS3, P(0, 0, -0.3), P(1, 1, 1.2));
    ASSERT_EQ(h.count, 2);
    for (int i = 0; i < 2; ++i) {
        double const expected = 0.6 + (i == 0 ? -1 : 1) * std::sqrt(0.06);
        EXPECT_NEAR(h.r[i], expected, 1e-12);
        EXPECT_NEAR(h.s[i], expected, 1e-12);
        ExpectPoint(h.p[i], P(expected, expected, expected * expected));
    }
}

TEST(LineAgainstPatch, TouchingLineHasOneCrossing)
{
    // z = x^2 is touched at x = 0.5 by z = x - 0.25.
    PatchHits const h = AgainstPatch(kS0, kS1, kS2, kS3, P(0, 0, -0.25), P(1, 1, 1));
    EXPECT_EQ(h.count, 1);
    ExpectPoint(h.p[0], P(0.5, 0.5, 0.25), 1e-6);
}

TEST(LineAgainstPatch, PassingLineHasNone)
{
    EXPECT_EQ(AgainstPatch(kS0, kS1, kS2, kS3, P(0, 0, -0.5), P(1, 1, 1)).count, 0);
    EXPECT_EQ(AgainstPatch(kS0, kS1, kS2, kS3, P(3, 3, 0), P(0, 0, 1)).count, 0);
}

TEST(LineAgainstPatch, LineInAFlatPatchHasItsOwnCode)
{
    EXPECT_EQ(AgainstPatch(P(0, 0, 0), P(2, 0, 0), P(2, 4, 0), P(0, 4, 0), P(0.5, 1, 0), P(1, 2, 0)).count,
              16);
    EXPECT_EQ(AgainstPatch(P(0, 0, 0), P(2, 0, 0), P(2, 4, 0), P(0, 4, 0), P(0.5, 1, 1), P(1, 2, 0)).count,
              0);
}

TEST(LineAgainstPatch, DropsTheParametersOnRequest)
{
    CMathematics math;
    TUVect3D p1;
    TUVect3D p2;
    EXPECT_EQ(math.GetLineQuadIntersection(kS0, kS1, kS2, kS3, P(0.5, 0.5, 9), P(0, 0, 1), p1, p2), 1);
    ExpectPoint(p1, P(0.5, 0.5, 0.25));
}

TEST(LineAgainstPatch, RandomLinesHitTheirTarget)
{
    CMathematics math;
    Random random(11);
    for (int i = 0; i < 2000; ++i) {
        RigidMotion const moved(random);
        TUVect3D const q0 = moved(P(0, 0, random.Between(-1, 1)));
        TUVect3D const q1 = moved(P(3, 0, random.Between(-1, 1)));
        TUVect3D const q2 = moved(P(3, 3, random.Between(-1, 1)));
        TUVect3D const q3 = moved(P(0, 3, random.Between(-1, 1)));
        double const r = random.Between(0.05, 0.95);
        double const s = random.Between(0.05, 0.95);
        TUVect3D const target = PatchPoint(q0, q1, q2, q3, r, s);
        TUVect3D const d = moved.Turned(PlainUnit(P(random.Between(-1, 1), random.Between(-1, 1), 3)));
        PatchHits const h = AgainstPatch(q0, q1, q2, q3, Plus(target, Times(random.Between(-9, 9), d)), d);
        ASSERT_GE(h.count, 1);
        bool found = false;
        for (int k = 0; k < h.count; ++k) {
            ASSERT_LT(Apart(h.p[k], PatchPoint(q0, q1, q2, q3, h.r[k], h.s[k])), 1e-8);
            found = found || Apart(h.p[k], target) < 1e-7;
        }
        ASSERT_TRUE(found);
    }
}

TEST(LineAgainstPatch, OddNumbersEnd)
{
    Random random(12);
    for (int i = 0; i < 20000; ++i) {
        TUVect3D q[6];
        for (TUVect3D & point : q)
            point = random.OddPoint();
        int const count = AgainstPatch(q[0], q[1], q[2], q[3], q[4], q[5]).count;
        ASSERT_TRUE((count >= 0 && count <= 2) || count == 16);
    }
}
