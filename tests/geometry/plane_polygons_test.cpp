#include <vector>

#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
using Outline = std::vector<TUVect2D>;

/// The answer for a closed outline.
int Inside(TUVect2D const & p, Outline outline, int boundaryCounts = 0)
{
    CMathematics math;
    return math.PointLiesInPolygon(p, outline.data(), static_cast<int>(outline.size()), boundaryCounts);
}

Outline const kSquare = {Q(0, 0), Q(4, 0), Q(4, 4), Q(0, 4), Q(0, 0)};
// An L: the square without its upper right quarter.
Outline const kCorner = {Q(0, 0), Q(4, 0), Q(4, 2), Q(2, 2), Q(2, 4), Q(0, 4), Q(0, 0)};

/// Turns of the outline around the point, an answer of its own kind.
bool Winds(TUVect2D const & p, Outline const & outline)
{
    double angle = 0.0;
    for (size_t i = 0; i + 1 < outline.size(); ++i) {
        TUVect2D const a = Q(outline[i].x - p.x, outline[i].y - p.y);
        TUVect2D const b = Q(outline[i + 1].x - p.x, outline[i + 1].y - p.y);
        angle += std::atan2(a.x * b.y - a.y * b.x, a.x * b.x + a.y * b.y);
    }
    return std::fabs(angle) > kPi;
}
}  // namespace

TEST(PointOnSegment, WithinTheTolerance)
{
    CMathematics math;
    EXPECT_EQ(math.PointLiesOnSegment(Q(0, 0), Q(4, 0), Q(2, 0.9e-6)), 1);
    EXPECT_EQ(math.PointLiesOnSegment(Q(0, 0), Q(4, 0), Q(2, 1.1e-6)), 0);
    EXPECT_EQ(math.PointLiesOnSegment(Q(0, 0), Q(4, 0), Q(-0.9e-6, 0)), 1);
    EXPECT_EQ(math.PointLiesOnSegment(Q(0, 0), Q(4, 0), Q(4 + 0.9e-6, 0)), 1);
    EXPECT_EQ(math.PointLiesOnSegment(Q(0, 0), Q(4, 0), Q(4 + 1.1e-6, 0)), 0);
    EXPECT_EQ(math.PointLiesOnSegment(Q(0, 0), Q(4, 0), Q(-1, 0)), 0);
    EXPECT_EQ(math.PointLiesOnSegment(Q(0, 0), Q(4, 0), Q(5, 0)), 0);
    EXPECT_EQ(math.PointLiesOnSegment(Q(1, 1), Q(5, 4), Q(3, 2.5)), 1);
}

TEST(PointOnSegment, SegmentWithoutLengthHasItsPointOnly)
{
    CMathematics math;
    EXPECT_EQ(math.PointLiesOnSegment(Q(1, 1), Q(1, 1), Q(1, 1)), 1);
    EXPECT_EQ(math.PointLiesOnSegment(Q(1, 1), Q(1, 1), Q(2, 1)), 0);
    EXPECT_EQ(math.PointLiesOnSegment(Q(1, 1), Q(1, 1), Q(kNan, 1)), 0);
}

TEST(PointAtVertex, LooksAtAllButTheLast)
{
    CMathematics math;
    TUVect2D const points[] = {Q(0, 0), Q(1, 0), Q(5, 5)};
    EXPECT_EQ(math.PointLiesAtVertex(Q(0.9e-6, -0.9e-6), points, 3), 1);
    EXPECT_EQ(math.PointLiesAtVertex(Q(1e-6, 0), points, 3), 0);
    EXPECT_EQ(math.PointLiesAtVertex(Q(1, 0), points, 3), 1);
    EXPECT_EQ(math.PointLiesAtVertex(Q(5, 5), points, 3), 0);
    EXPECT_EQ(math.PointLiesAtVertex(Q(0, 0), points, 0), 0);
}

TEST(VerticalCrossing, GivesItsHeight)
{
    CMathematics math;
    double y = -77;
    EXPECT_EQ(math.IntersectsY(Q(0, 0), Q(4, 2), 1.0, y), 1);
    EXPECT_EQ(y, 0.5);
    EXPECT_EQ(math.IntersectsY(Q(4, 2), Q(0, 0), 4.0, y), 1);
    EXPECT_EQ(y, 2.0);
    y = -77;
    EXPECT_EQ(math.IntersectsY(Q(0, 0), Q(4, 2), 4.1, y), 0);
    EXPECT_EQ(math.IntersectsY(Q(1, 0), Q(1, 2), 1.0, y), 0);
    EXPECT_EQ(math.IntersectsY(Q(0, 0), Q(4, 2), kNan, y), 0);
    EXPECT_EQ(y, -77.0);
}

TEST(PointInPolygon, InsideAndOutside)
{
    EXPECT_EQ(Inside(Q(1, 1), kSquare), 1);
    EXPECT_EQ(Inside(Q(1, 5), kSquare), 0);
    EXPECT_EQ(Inside(Q(1, -1), kSquare), 0);
    EXPECT_EQ(Inside(Q(5, 1), kSquare), 0);
    EXPECT_EQ(Inside(Q(3, 1), kCorner), 1);
    EXPECT_EQ(Inside(Q(3, 3), kCorner), 0);
    EXPECT_EQ(Inside(Q(1, 3), kCorner), 1);
}

TEST(PointInPolygon, BoundaryCountsAsTold)
{
    EXPECT_EQ(Inside(Q(2, 0), kSquare, 1), 1);
    EXPECT_EQ(Inside(Q(2, 0), kSquare, 5), 1);
    EXPECT_EQ(Inside(Q(2, 0), kSquare, 0), 0);
    EXPECT_EQ(Inside(Q(4, 4), kSquare, 1), 1);
    EXPECT_EQ(Inside(Q(4, 4), kSquare, 0), 0);
}

TEST(PointInPolygon, VertexOnTheVerticalIsCountedOnce)
{
    Outline const diamond = {Q(2, 0), Q(4, 2), Q(2, 4), Q(0, 2), Q(2, 0)};
    EXPECT_EQ(Inside(Q(2, 2), diamond), 1);
    EXPECT_EQ(Inside(Q(2, -1), diamond), 0);
    EXPECT_EQ(Inside(Q(2, 5), diamond), 0);
}

TEST(PointInPolygon, OpenOutlineIsClosedInTheCallersArray)
{
    CMathematics math;
    TUVect2D outline[] = {Q(0, 0), Q(4, 0), Q(4, 4), Q(0, 4), Q(-77, -77)};
    EXPECT_EQ(math.PointLiesInPolygon(Q(1, 1), outline, 4, 0), 1);
    ExpectPoint(outline[4], Q(0, 0), 0.0);
    EXPECT_EQ(math.PointLiesInPolygon(Q(0, 2), outline, 5, 1), 1);
}

TEST(PointInPolygon, ManyCrossingsOnOneVertical)
{
    // A comb with 700 teeth one above the other, reaching over x = 5; the vertical at 5 crosses 1400 sides.
    Outline comb = {Q(0, 0)};
    for (int i = 0; i < 700; ++i) {
        comb.push_back(Q(10, 2 * i));
        comb.push_back(Q(10, 2 * i + 1));
        comb.push_back(Q(1, 2 * i + 1));
        comb.push_back(Q(1, 2 * i + 2));
    }
    comb.push_back(Q(0, 1400));
    comb.push_back(Q(0, 0));
    EXPECT_EQ(Inside(Q(5, 800.5), comb), 1);
    EXPECT_EQ(Inside(Q(5, 801.5), comb), 0);
}

TEST(PointInPolygon, AgreesWithTheWindingOfRandomStars)
{
    Random random(14);
    for (int i = 0; i < 500; ++i) {
        Outline star;
        int const corners = 3 + random.Below(12);
        for (int k = 0; k < corners; ++k) {
            double const radius = random.Between(1.0, 5.0);
            double const angle = 2.0 * kPi * (k + random.Between(0.1, 0.9)) / corners;
            star.push_back(Q(radius * std::cos(angle), radius * std::sin(angle)));
        }
        star.push_back(star.front());
        for (int k = 0; k < 20; ++k) {
            TUVect2D const p = Q(random.Between(-5, 5), random.Between(-5, 5));
            ASSERT_EQ(Inside(p, star), Winds(p, star) ? 1 : 0);
        }
    }
}

TEST(PointInPolygon, OddInputEnds)
{
    CMathematics math;
    EXPECT_EQ(math.PointLiesInPolygon(Q(0, 0), nullptr, 0, 1), 0);
    EXPECT_EQ(math.PointLiesInPolygon(Q(0, 0), nullptr, -5, 1), 0);
    Random random(15);
    for (int i = 0; i < 5000; ++i) {
        TUVect2D outline[6];
        for (TUVect2D & point : outline)
            point = Q(random.OddValue(), random.OddValue());
        int const answer =
            math.PointLiesInPolygon(Q(random.OddValue(), random.OddValue()), outline, 1 + random.Below(5), 1);
        ASSERT_TRUE(answer == 0 || answer == 1);
    }
}
