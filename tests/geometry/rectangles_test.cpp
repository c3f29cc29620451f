#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
double const kFromAbove[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
// u = y, v = z: seen along x.
double const kFromFront[3][3] = {{0, 1, 0}, {0, 0, 1}, {1, 0, 0}};

// The rectangle 0..10 by 0..4, corners in both orders.
struct Corners
{
    double left, top, right, bottom;
};
constexpr Corners kOrders[] = {{0, 0, 10, 4}, {10, 4, 0, 0}, {0, 4, 10, 0}, {10, 0, 0, 4}};

void ExpectSegment(double x1, double y1, double x2, double y2, int inside, int meets)
{
    CMathematics math;
    for (Corners const & c : kOrders) {
        for (int turn = 0; turn < 2; ++turn) {
            EXPECT_EQ(math.LineInRectangle(x1, y1, x2, y2, c.left, c.top, c.right, c.bottom), inside);
            EXPECT_EQ(math.LineIntersectsRectangle(x1, y1, x2, y2, c.left, c.top, c.right, c.bottom), meets);
            int const code = math.LineRectIntersection(P(x1, y1, 7), P(x2, y2, -3), c.left, c.top, c.right,
                                                       c.bottom, kFromAbove);
            EXPECT_EQ(code, inside ? 1 : meets ? 2 : 0);
            std::swap(x1, x2);
            std::swap(y1, y2);
        }
    }
}
}  // namespace

TEST(SegmentAndRectangle, WithinCountsTheBorders)
{
    ExpectSegment(1, 1, 9, 3, 1, 1);
    ExpectSegment(0, 0, 10, 4, 1, 1);
}

TEST(SegmentAndRectangle, Crossing)
{
    ExpectSegment(-1, 2, 11, 2, 0, 1);   // across
    ExpectSegment(5, 2, 20, 9, 0, 1);    // from inside
    ExpectSegment(-2, 2, 3, 6, 0, 1);    // over a corner, one end above the rectangle
    ExpectSegment(-2, -1, 12, 5, 0, 1);  // diagonal
}

TEST(SegmentAndRectangle, Apart)
{
    ExpectSegment(-1, 5, 11, 5, 0, 0);
    ExpectSegment(-5, 1, -1, 3, 0, 0);
    ExpectSegment(11, 1, 15, 3, 0, 0);
    ExpectSegment(5, 20, 6, 30, 0, 0);  // its line would cross
    ExpectSegment(-2, 3, 1, 9, 0, 0);   // past the corner
}

TEST(SegmentAndRectangle, Vertical)
{
    ExpectSegment(5, -1, 5, 9, 0, 1);
    ExpectSegment(5, 1, 5, 9, 0, 1);
    ExpectSegment(5, -1, 5, 3, 0, 1);
    ExpectSegment(5, 5, 5, 9, 0, 0);
    ExpectSegment(11, -1, 11, 9, 0, 0);
    ExpectSegment(3, 3, 3, 3, 1, 1);
}

TEST(SegmentAndRectangle, IsSeenThroughTheMatrix)
{
    CMathematics math;
    EXPECT_EQ(math.LineRectIntersection(P(99, 1, 1), P(-99, 2, 2), 0, 0, 10, 4, kFromFront), 1);
    EXPECT_EQ(math.LineInRectangle(P(99, 1, 1), P(-99, 2, 2), 0, 0, 10, 4, kFromFront), 1);
    EXPECT_EQ(math.LineIntersectsRectangle(P(99, 1, 1), P(-99, 2, 9), 0, 0, 10, 4, kFromFront), 1);
    EXPECT_EQ(math.LineRectIntersection(P(99, 1, 1), P(-99, 2, 9), 0, 0, 10, 4, kFromAbove), 2);
    EXPECT_EQ(math.LineRectIntersection(P(99, 1, 8), P(-99, 2, 9), 0, 0, 10, 4, kFromFront), 0);
}

TEST(SegmentAndRectangle, AgreesWithManyPointsAlongTheSegment)
{
    CMathematics math;
    Random random(13);
    for (int i = 0; i < 2000; ++i) {
        TUVect2D const a = Q(random.Between(-5, 15), random.Between(-4, 8));
        TUVect2D const b = Q(random.Between(-5, 15), random.Between(-4, 8));
        int inside = 0;
        constexpr int kSteps = 500;
        for (int k = 0; k <= kSteps; ++k) {
            double const x = a.x + (b.x - a.x) * k / kSteps;
            double const y = a.y + (b.y - a.y) * k / kSteps;
            inside += x >= 0 && x <= 10 && y >= 0 && y <= 4 ? 1 : 0;
        }
        // One sample inside may be all there is of a short cut over a corner; none needn't mean none.
        if (inside > 0)
            ASSERT_EQ(math.LineIntersectsRectangle(a.x, a.y, b.x, b.y, 0, 0, 10, 4), 1);
        else if (math.LineIntersectsRectangle(a.x, a.y, b.x, b.y, 0.1, 0.1, 9.9, 3.9))
            ADD_FAILURE() << "no point inside of " << a.x << ' ' << a.y << ' ' << b.x << ' ' << b.y;
    }
}

TEST(PointAndRectangle, HasHalfTheToleranceAsMargin)
{
    CMathematics math;
    for (Corners const & c : kOrders) {
        TUVect2D const c1 = Q(c.left, c.top);
        TUVect2D const c2 = Q(c.right, c.bottom);
        EXPECT_EQ(math.PointInRectangle(Q(5, 2), c1, c2), 1);
        EXPECT_EQ(math.PointInRectangle(Q(10.0 + 0.49e-6, 4.0 + 0.49e-6), c1, c2), 1);
        EXPECT_EQ(math.PointInRectangle(Q(10.0 + 0.51e-6, 2), c1, c2), 0);
        EXPECT_EQ(math.PointInRectangle(Q(-0.51e-6, 2), c1, c2), 0);
        EXPECT_EQ(math.PointInRectangle(Q(2, -0.51e-6), c1, c2), 0);
        EXPECT_EQ(math.PointInRectangle(Q(kNan, 2), c1, c2), 0);
        EXPECT_EQ(math.IsPointInRectangle(P(5, 2, 99), c.left, c.top, c.right, c.bottom, kFromAbove), 1);
        EXPECT_EQ(math.IsPointInRectangle(P(5, 9, 99), c.left, c.top, c.right, c.bottom, kFromAbove), 0);
        EXPECT_EQ(math.IsPointInRectangle(P(99, 5, 3), c.left, c.top, c.right, c.bottom, kFromFront), 1);
    }
}

TEST(PointAndRectangle, LetterTellsTheBorder)
{
    CMathematics math;
    auto const letter = [&](double x, double y, Corners const & c) {
        return math.PointInRectangle(x, y, c.left, c.top, c.right, c.bottom);
    };
    for (Corners const & c : kOrders) {
        EXPECT_EQ(letter(5, 2, c), 'I');
        EXPECT_EQ(letter(11, 2, c), 'O');
        EXPECT_EQ(letter(10, 2, c), 'B');
        EXPECT_EQ(letter(10 + 0.9e-6, 2, c), 'B');
        EXPECT_EQ(letter(10 - 0.9e-6, 2, c), 'B');
        EXPECT_EQ(letter(10 + 1.1e-6, 2, c), 'O');
        EXPECT_EQ(letter(10 - 1.1e-6, 2, c), 'I');
        EXPECT_EQ(letter(3, 4, c), 'B');
        EXPECT_EQ(letter(0, 0, c), 'B');
        EXPECT_EQ(letter(10, 5, c), 'O');
        EXPECT_EQ(letter(kNan, 2, c), 'O');
    }
}
