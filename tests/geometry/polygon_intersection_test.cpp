#include <cmath>
#include <numbers>

#include "gmock/gmock.h"
#include "gtest/gtest.h"
#include "tests/geometry/outlines.h"

using namespace outlines;

namespace {
constexpr double kPi = std::numbers::pi;

Intersection Common(Outline const & a, Outline const & b)
{
    CMathematics math;
    return Intersect(math, a, b);
}

std::vector<TSGeneralSet> MembersOf(Intersection const & common, int kind)
{
    std::vector<TSGeneralSet> members;
    if (common.sets)
        std::copy_if(common.sets->begin(), common.sets->end(), std::back_inserter(members),
                     [kind](TSGeneralSet const & set) { return set.kind == kind; });
    return members;
}

double CommonSurface(Intersection const & common)
{
    double sum = 0.0;
    for (TSGeneralSet const & set : MembersOf(common, 2))
        sum += OutlineSurface(RecordsOf(set));
    return sum;
}

MATCHER_P2(At, x, y, "")
{
    return std::fabs(arg.x - x) < 1e-9 && std::fabs(arg.y - y) < 1e-9;
}

MATCHER_P(Bulge, bulge, "")
{
    return arg.x == ARC_MARKER && std::fabs(arg.y - bulge) < 1e-9;
}

bool SameRecords(Outline const & a, Outline const & b)
{
    return a.size() == b.size() &&
           std::equal(a.begin(), a.end(), b.begin(),
                      [](auto const & p, auto const & q) { return p.x == q.x && p.y == q.y; });
}

/// The single member is a copy of the outline, record by record.
void ExpectCopy(Intersection const & common, Outline const & outline)
{
    ASSERT_TRUE(common.sets);
    ASSERT_EQ(common.sets->GetSize(), 1);
    EXPECT_EQ((*common.sets)[0].kind, 2);
    EXPECT_TRUE(SameRecords(RecordsOf((*common.sets)[0]), outline));
}

void ExpectClosed(TSGeneralSet const & set)
{
    Outline const records = RecordsOf(set);
    ASSERT_GE(records.size(), 3u);
    EXPECT_NEAR(records.front().x, records.back().x, 1e-6);
    EXPECT_NEAR(records.front().y, records.back().y, 1e-6);
    EXPECT_GT(OutlineSurface(records), 0.0);
}

using testing::ElementsAre;

Outline const kSquare = Rectangle(0, 0, 4, 4);
}  // namespace

TEST(CommonPart, ApartIsNothingAndLeavesTheResultAlone)
{
    CMathematics math;
    MadeArea const a(kSquare);
    MadeArea const b(Rectangle(9, 9, 10, 10));
    SetArray mark;
    SetArray * result = &mark;
    EXPECT_EQ(math.PolygonIntersection(&a, &b, result), 0);
    EXPECT_EQ(result, &mark);
}

TEST(CommonPart, EqualSquaresCoincide)
{
    Intersection const common = Common(kSquare, kSquare);
    EXPECT_EQ(common.code, 11);
    ExpectCopy(common, kSquare);
}

TEST(CommonPart, CoincidingWhateverTheDirection)
{
    EXPECT_EQ(Common(kSquare, Reversed(kSquare)).code, 11);
    Intersection const common = Common(Reversed(kSquare), kSquare);
    EXPECT_EQ(common.code, 11);
    ExpectCopy(common, Reversed(kSquare));
}

TEST(CommonPart, CoincidingCirclesCutAtOtherPlaces)
{
    Outline const quartered = Closed({V(0, -1), Arc(-1.0), V(0, 1), Arc(-1.0)});
    EXPECT_EQ(Common(Circle(0, 0, 1), quartered).code, 11);
}

TEST(CommonPart, AInsideB)
{
    Outline const small = Rectangle(1, 1, 2, 2);
    Intersection const common = Common(small, kSquare);
    EXPECT_EQ(common.code, 1);
    ExpectCopy(common, small);
}

TEST(CommonPart, BInsideA)
{
    Outline const small = Reversed(Rectangle(1, 1, 2, 2));
    Intersection const common = Common(kSquare, small);
    EXPECT_EQ(common.code, 2);
    ExpectCopy(common, small);
}

TEST(CommonPart, InsideAndTouchingASide)
{
    Outline const small = Rectangle(1, 0, 2, 2);
    Intersection const inner = Common(small, kSquare);
    EXPECT_EQ(inner.code, 3);
    ExpectCopy(inner, small);
    Intersection const outer = Common(kSquare, small);
    EXPECT_EQ(outer.code, 4);
    ExpectCopy(outer, small);
}

TEST(CommonPart, SharedPartOfASideFromOutside)
{
    Intersection const common = Common(kSquare, Rectangle(4, 1, 6, 3));
    EXPECT_EQ(common.code, 5);
    ASSERT_EQ(common.sets->GetSize(), 1);
    EXPECT_EQ((*common.sets)[0].kind, 1);
    EXPECT_THAT(RecordsOf((*common.sets)[0]), ElementsAre(At(4, 1), At(4, 3)));  // as a runs
}

TEST(CommonPart, SharedArcFromOutside)
{
    // A half disc on the left of x = 0 pushed into a notch of the same shape.
    Outline const disc = Closed({V(0, -1), V(0, 1), Arc(-1.0)});
    Outline const notched = Closed({V(0, 1), V(0, 3), V(-4, 3), V(-4, -3), V(0, -3), V(0, -1), Arc(1.0)});
    Intersection const common = Common(disc, notched);
    EXPECT_EQ(common.code, 5);
    ASSERT_EQ(MembersOf(common, 1).size(), 1u);
    EXPECT_THAT(RecordsOf(MembersOf(common, 1)[0]), ElementsAre(At(0, 1), Bulge(-1.0), At(0, -1)));
}

TEST(CommonPart, TouchAtOneCorner)
{
    Intersection const common = Common(kSquare, Rectangle(4, 4, 6, 6));
    EXPECT_EQ(common.code, 5);
    ASSERT_EQ(common.sets->GetSize(), 1);
    EXPECT_EQ((*common.sets)[0].kind, 0);
    EXPECT_THAT(RecordsOf((*common.sets)[0]), ElementsAre(At(4, 4)));
}

TEST(CommonPart, CrossingSquares)
{
    Intersection const common = Common(kSquare, Rectangle(2, 2, 6, 6));
    EXPECT_EQ(common.code, 6);
    ASSERT_EQ(common.sets->GetSize(), 1);
    EXPECT_EQ((*common.sets)[0].kind, 2);
    ExpectClosed((*common.sets)[0]);
    EXPECT_NEAR(CommonSurface(common), 4.0, 1e-12);
    EXPECT_THAT(RecordsOf((*common.sets)[0]), ElementsAre(At(4, 2), At(4, 4), At(2, 4), At(2, 2), At(4, 2)));
}

TEST(CommonPart, TwoOutlinesOfAUShapeOverABar)
{
    Outline const u = Closed({V(0, 0), V(5, 0), V(5, 5), V(4, 5), V(4, 1), V(1, 1), V(1, 5), V(0, 5)});
    Intersection const common = Common(u, Rectangle(-1, 2, 6, 3));
    EXPECT_EQ(common.code, 6);
    ASSERT_EQ(MembersOf(common, 2).size(), 2u);
    EXPECT_NEAR(CommonSurface(common), 2.0, 1e-12);
}

TEST(CommonPart, SharedSideOfTheSameDirectionStandsOnce)
{
    // Both stand on y = 0 from 0 to 4; b is lower and longer.
    Intersection const common = Common(kSquare, Closed({V(0, 0), V(4, 0), V(6, 2), V(0, 2)}));
    EXPECT_EQ(common.code, 6);
    ASSERT_EQ(common.sets->GetSize(), 1);
    ExpectClosed((*common.sets)[0]);
    EXPECT_NEAR(CommonSurface(common), 8.0, 1e-12);
    EXPECT_EQ(RecordsOf((*common.sets)[0]).size(), 5u);
}

TEST(CommonPart, CircleOverASquareKeepsItsArcs)
{
    // A quarter of the disc about the corner (4, 4) lies inside.
    Intersection const common = Common(kSquare, Circle(4, 4, 2));
    EXPECT_EQ(common.code, 6);
    ASSERT_EQ(common.sets->GetSize(), 1);
    ExpectClosed((*common.sets)[0]);
    EXPECT_NEAR(CommonSurface(common), kPi, 1e-9);
    Outline const records = RecordsOf((*common.sets)[0]);
    EXPECT_TRUE(std::any_of(records.begin(), records.end(), IsMarker));
}

TEST(CommonPart, ShapesWithinTheSagittaOfAnArcButApart)
{
    EXPECT_EQ(Common(Circle(0, 0, 1), Rectangle(1.2, -1, 3, 1)).code, 0);
}

TEST(CommonPart, OverlapAndTouchElsewhere)
{
    // b overlaps the foot of a and touches its head at (4, 3) with a corner.
    Outline const a = Closed({V(0, 0), V(6, 0), V(6, 1), V(4, 1), V(4, 4), V(0, 4)});
    Outline const b = Closed({V(5, 0.5), V(7, 0.5), V(7, 3), V(4, 3)});
    Intersection const common = Common(a, b);
    EXPECT_EQ(common.code, 6);
    ASSERT_EQ(MembersOf(common, 0).size(), 1u);
    EXPECT_THAT(RecordsOf(MembersOf(common, 0)[0]), ElementsAre(At(4, 3)));
    ASSERT_EQ(MembersOf(common, 2).size(), 1u);
}

TEST(CommonPart, DirectionOfEitherAreaDoesNotMatter)
{
    Outline const b = Circle(3, 3, 2);
    double const expected = CommonSurface(Common(kSquare, b));
    EXPECT_GT(expected, 1.0);
    EXPECT_NEAR(CommonSurface(Common(Reversed(kSquare), b)), expected, 1e-12);
    EXPECT_NEAR(CommonSurface(Common(kSquare, Reversed(b))), expected, 1e-12);
    EXPECT_NEAR(CommonSurface(Common(Reversed(kSquare), Reversed(b))), expected, 1e-12);
}

TEST(CommonPart, HoleReachedByASlit)
{
    // A square ring, its outer and inner outline joined along the slit from (0, 0) to (1, 1).
    Outline const ring =
        Closed({V(0, 0), V(4, 0), V(4, 4), V(0, 4), V(0, 0), V(1, 1), V(1, 3), V(3, 3), V(3, 1), V(1, 1)});
    EXPECT_NEAR(OutlineSurface(ring), 12.0, 1e-12);
    Intersection const common = Common(ring, Rectangle(2, -1, 5, 5));
    EXPECT_EQ(common.code, 6);
    EXPECT_NEAR(CommonSurface(common), 6.0, 1e-9);
}

TEST(CommonPart, FarFromTheOrigin)
{
    double const d = 5e6;
    Intersection const common = Common(Rectangle(d, d, d + 4, d + 4), Rectangle(d + 2, d + 2, d + 6, d + 6));
    EXPECT_EQ(common.code, 6);
    ASSERT_EQ(common.sets->GetSize(), 1);
}

TEST(CommonPart, NothingAgainstSomething)
{
    EXPECT_EQ(Common({}, kSquare).code, 0);
    EXPECT_EQ(Common(kSquare, {}).code, 0);
    EXPECT_EQ(Common({}, {}).code, 0);
}
