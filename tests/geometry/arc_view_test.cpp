#include "circle_arcs.h"

using namespace space;

namespace {
double const kFromAbove[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
// u = x, v = z: the arcs of the plane z = 0 are seen edge-on.
double const kEdgeOn[3][3] = {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}};
// u = x, v = (y + z) / 2: seen from a slant and not to scale.
double const kSlanting[3][3] = {{1, 0, 0}, {0, 0.5, 0.5}, {0, -1, 1}};

int Crosses(SpaceArc const & arc, double x1, double y1, double x2, double y2, double const (*matrix)[3])
{
    CMathematics math;
    return math.ArcLineIntersection(arc.start, arc.end, arc.arcVector, arc.bulge, x1, y1, x2, y2, matrix);
}

int AgainstRectangle(SpaceArc const & arc, double left, double top, double right, double bottom,
                     double const (*matrix)[3])
{
    CMathematics math;
    return math.ArcRectIntersection(arc.start, arc.end, arc.arcVector, arc.bulge, left, top, right, bottom,
                                    matrix);
}
}  // namespace

TEST(ArcSeen, AgainstASegment)
{
    EXPECT_EQ(Crosses(kHalf, 1, 0, 1, 2, kFromAbove), 1);
    EXPECT_EQ(Crosses(kHalf, 1, 0, 1, 0.9, kFromAbove), 0);
    EXPECT_EQ(Crosses(kHalf, 1, -2, 1, 0, kFromAbove), 0);
    EXPECT_EQ(Crosses(kHalf, -1, 0.5, 3, 0.5, kFromAbove), 1);
    EXPECT_EQ(Crosses(kHalf, -1, 1, 3, 1, kFromAbove), 1);
}

TEST(ArcSeen, AlongTheView)
{
    // The apex stands at v = 0.5.
    EXPECT_EQ(Crosses(kHalf, 1, 0, 1, 0.51, kSlanting), 1);
    EXPECT_EQ(Crosses(kHalf, 1, 0, 1, 0.49, kSlanting), 0);
    SpaceArc const lifted = {P(0, 0, 4), P(2, 0, 4), P(0, 1, 0), 1.0};
    EXPECT_EQ(Crosses(lifted, 1, 2, 1, 2.51, kSlanting), 1);
    EXPECT_EQ(Crosses(lifted, 1, 2, 1, 2.49, kSlanting), 0);
}

TEST(ArcSeen, EdgeOn)
{
    EXPECT_EQ(Crosses(kHalf, 1, -1, 1, 1, kEdgeOn), 1);
    EXPECT_EQ(Crosses(kHalf, 3, -1, 3, 1, kEdgeOn), 0);
    EXPECT_EQ(Crosses(kHalf, 1, 1, 1, 2, kEdgeOn), 0);
    // In one line with it.
    EXPECT_EQ(Crosses(kHalf, 1.5, 0, 5, 0, kEdgeOn), 1);
    EXPECT_EQ(Crosses(kHalf, 2.5, 0, 5, 0, kEdgeOn), 0);
    EXPECT_EQ(Crosses(kHalf, -5, 0, 5, 0, kEdgeOn), 1);
}

TEST(ArcSeen, EdgeOnReachesBeyondItsEnds)
{
    // Three quarters of the unit circle reach to u = -1 and 1, its ends to +-0.7 only.
    SpaceArc const large = kUnitCircle.Cut(-kPi / 4.0, 1.5 * kPi);
    EXPECT_EQ(Crosses(large, 0.9, 0, 5, 0, kEdgeOn), 1);
    EXPECT_EQ(Crosses(large, 1.1, 0, 5, 0, kEdgeOn), 0);
    SpaceArc const small = kUnitCircle.Cut(kPi / 4.0, kPi / 2.0);
    EXPECT_EQ(Crosses(small, 0.9, 0, 5, 0, kEdgeOn), 0);
}

TEST(ArcSeen, FlatArcIsItsChord)
{
    SpaceArc const flat = {P(0, 0, 0), P(2, 0, 0), P(0, 1, 0), 9e-6};
    EXPECT_EQ(Crosses(flat, 1, -1, 1, 1, kFromAbove), 1);
    EXPECT_EQ(Crosses(flat, 3, -1, 3, 1, kFromAbove), 0);
    EXPECT_EQ(AgainstRectangle(flat, -1, -1, 3, 1, kFromAbove), 1);
    EXPECT_EQ(AgainstRectangle(flat, 1, -1, 3, 1, kFromAbove), 2);
}

TEST(ArcSeen, AgainstARectangle)
{
    EXPECT_EQ(AgainstRectangle(kHalf, -1, -1, 3, 2, kFromAbove), 1);
    EXPECT_EQ(AgainstRectangle(kHalf, 3, 2, -1, -1, kFromAbove), 1);
    EXPECT_EQ(AgainstRectangle(kHalf, -1, -1, 3, 0.5, kFromAbove), 2);
    EXPECT_EQ(AgainstRectangle(kHalf, 0.5, 0.9, 1.5, 2, kFromAbove), 2);
    EXPECT_EQ(AgainstRectangle(kHalf, 0.5, 0.1, 1.5, 0.5, kFromAbove), 0);
    EXPECT_EQ(AgainstRectangle(kHalf, 5, 5, 6, 6, kFromAbove), 0);
    EXPECT_EQ(AgainstRectangle(kHalf, -1, -1, 3, 1, kEdgeOn), 1);
    EXPECT_EQ(AgainstRectangle(kHalf, 1, -1, 3, 1, kEdgeOn), 2);
}

TEST(ArcSeen, AgreesWithManyPointsAlongTheArc)
{
    Random random(32);
    for (int i = 0; i < 1000; ++i) {
        Circle const circle = RandomCircle(random);
        double const sweep = random.Between(0.3, 6.0);
        SpaceArc const arc = circle.Cut(0.0, sweep);
        TUVect3D const u = random.Direction();
        TUVect3D const v = random.Across(u);
        double const matrix[3][3] = {{u.x, u.y, u.z}, {v.x, v.y, v.z}, {0, 0, 0}};
        double const left = random.Between(-8, 6);
        double const bottom = random.Between(-8, 6);
        double const right = left + random.Between(1, 8);
        double const top = bottom + random.Between(1, 8);
        int inside = 0;
        int nearBorder = 0;
        constexpr int kSteps = 1000;
        for (int k = 0; k <= kSteps; ++k) {
            TUVect3D const p = circle.At(sweep * k / kSteps);
            double const x = PlainDot(u, p);
            double const y = PlainDot(v, p);
            double const depth = std::min({x - left, right - x, y - bottom, top - y});
            inside += depth >= 0.0 ? 1 : 0;
            nearBorder += std::fabs(depth) < 0.05 ? 1 : 0;
        }
        int const code = AgainstRectangle(arc, left, top, right, bottom, matrix);
        if (inside > 0 && inside <= kSteps) {
            ASSERT_EQ(code, 2);
        } else if (nearBorder == 0) {
            ASSERT_EQ(code, inside == 0 ? 0 : 1);
        }
    }
}

TEST(ArcSeen, OddNumbersEnd)
{
    Random random(33);
    for (int i = 0; i < 20000; ++i) {
        SpaceArc const arc = {random.OddPoint(), random.OddPoint(), random.OddPoint(), random.OddValue()};
        double const matrix[3][3] = {
            {random.OddValue(), 0, random.OddValue()}, {0, random.OddValue(), 1}, {0, 0, 1}};
        int const code = AgainstRectangle(arc, random.OddValue(), 0, 1, random.OddValue(), matrix);
        ASSERT_TRUE(code >= 0 && code <= 2);
    }
}
