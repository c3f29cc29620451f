#include <cmath>
#include <limits>
#include <numbers>

#include "gmock/gmock.h"
#include "gtest/gtest.h"
#include "tests/geometry/outlines.h"

using namespace outlines;

namespace {
constexpr double kPi = std::numbers::pi;

struct Cut
{
    int flags;
    std::vector<TSInterval> intervals;
};

TSelem Line(double x1, double y1, double x2, double y2)
{
    return {EDGE_LINE, 0, {{x1, y1}}, {{x2, y2}}, 0.0};
}

TSelem ArcElem(double x1, double y1, double x2, double y2, double bulge)
{
    return {EDGE_ARC, 0, {{x1, y1}}, {{x2, y2}}, bulge};
}

Cut CutBy(TSelem const & e, Outline const & outline)
{
    CMathematics math;
    MadeArea const area(outline);
    CArray<TSInterval, TSInterval &> intervals;
    TSInterval leftOver{};
    intervals.Add(leftOver);
    int const flags = math.EdgeAreaIntersection(e, *area, 0, intervals);
    return {flags, {intervals.begin(), intervals.end()}};
}

MATCHER_P4(Is, t1, t2, side, kind, "")
{
    return std::fabs(arg.t1 - t1) < 1e-9 && std::fabs(arg.t2 - t2) < 1e-9 && arg.side == side &&
           arg.kind == kind;
}

using testing::ElementsAre;
using testing::IsEmpty;

// Sides 0 to 3: bottom, right, top, left.
Outline const kSquare = Rectangle(0, 0, 4, 4);

/// A comb: base at y = 0 to 1, teeth from x = 0 to 1, 2 to 3, 4 to 5 up to y = 3.
Outline Comb()
{
    return Closed({V(0, 0), V(5, 0), V(5, 3), V(4, 3), V(4, 1), V(3, 1), V(3, 3), V(2, 3), V(2, 1), V(1, 1),
                   V(1, 3), V(0, 3)});
}
}  // namespace

TEST(CutElement, OutsideWithoutContact)
{
    Cut const cut = CutBy(Line(5, 0, 6, 3), kSquare);
    EXPECT_EQ(cut.flags, 0);
    EXPECT_THAT(cut.intervals, IsEmpty());
}

TEST(CutElement, InsideWithoutContact)
{
    Cut const cut = CutBy(Line(1, 1, 1, 3), kSquare);
    EXPECT_EQ(cut.flags, 1);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, 2, -1, 0)));
}

TEST(CutElement, CrossingOneSide)
{
    Cut const cut = CutBy(Line(2, 2, 6, 2), kSquare);
    EXPECT_EQ(cut.flags, 5);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, 2, -1, 0)));
}

TEST(CutElement, CrossingTwoSides)
{
    Cut const cut = CutBy(Line(-1, 2, 6, 2), kSquare);
    EXPECT_EQ(cut.flags, 5);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(1, 5, -1, 0)));
}

TEST(CutElement, BothEndsOnTheBoundaryAndTheMiddleInside)
{
    Cut const cut = CutBy(Line(0, 2, 4, 3), kSquare);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, std::sqrt(17.0), -1, 0)));
    EXPECT_EQ(cut.flags, 3);  // the end itself is on the boundary
}

TEST(CutElement, TouchAtOneInnerPointIsSeenThroughTheIntervalOnly)
{
    // The line touches the corner (4, 4) and stays outside.
    Cut const cut = CutBy(Line(3, 5, 5, 3), kSquare);
    EXPECT_EQ(cut.flags, 4);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(std::sqrt(2.0), std::sqrt(2.0), -1, 2)));
}

TEST(CutElement, TouchCarriesTheSideAssembledBefore)
{
    // Two triangles standing on y = 0 with their tops at (1, 1) and (3, 1), seen from above: both touches are
    // points outside, and neither carries a side.
    Outline const tops = Closed({V(0, 0), V(4, 0), V(3, 1), V(2, 0.5), V(1, 1)});
    Cut const cut = CutBy(Line(0, 1, 4, 1), tops);
    EXPECT_EQ(cut.flags, 4);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(1, 1, -1, 2), Is(3, 3, -1, 2)));
}

TEST(CutElement, SideOfTheArea)
{
    Cut const same = CutBy(Line(4, 0, 4, 4), kSquare);
    EXPECT_EQ(same.flags, 26);
    EXPECT_THAT(same.intervals, ElementsAre(Is(0, 4, 1, 3)));
    Cut const reversed = CutBy(Line(4, 4, 4, 0), kSquare);
    EXPECT_EQ(reversed.flags, 26);
}

TEST(CutElement, WhollyWithinASide)
{
    Cut const cut = CutBy(Line(1, 0, 3, 0), kSquare);
    EXPECT_EQ(cut.flags, 18);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, 2, 0, 3)));
    EXPECT_EQ(CutBy(Line(3, 0, 1, 0), kSquare).flags, 18);
}

TEST(CutElement, LongerThanTheSideItLiesOn)
{
    Cut const cut = CutBy(Line(-1, 0, 6, 0), kSquare);
    EXPECT_EQ(cut.flags, 4);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(1, 5, 0, 1)));
}

TEST(CutElement, PartlyAlongASideAndThenOutside)
{
    Cut const cut = CutBy(Line(2, 0, 6, 0), kSquare);
    EXPECT_EQ(cut.flags, 4);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, 2, 0, 1)));
}

TEST(CutElement, AlongASideAndInside)
{
    // The bottom of the notch of an L, prolonged into the L.
    Outline const l = Closed({V(0, 0), V(4, 0), V(4, 2), V(2, 2), V(2, 4), V(0, 4)});
    Cut const cut = CutBy(Line(4, 2, 1, 2), l);
    EXPECT_EQ(cut.flags, 1);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, 2, 2, 1), Is(2, 3, -1, 0)));
}

TEST(CutElement, ThroughAVertexIsOneContact)
{
    // Along the diagonal: in at (0, 0), out at (4, 4); each vertex is an end of two sides.
    Cut const cut = CutBy(Line(-1, -1, 5, 5), kSquare);
    EXPECT_EQ(cut.flags, 5);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(std::sqrt(2.0), 5 * std::sqrt(2.0), -1, 0)));
}

TEST(CutElement, SeveralStretchesInside)
{
    Cut const cut = CutBy(Line(-1, 2, 6, 2), Comb());
    EXPECT_EQ(cut.flags, 5);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(1, 2, -1, 0), Is(3, 4, -1, 0), Is(5, 6, -1, 0)));
}

TEST(CutElement, AlongTheTopsOfAComb)
{
    Cut const cut = CutBy(Line(-1, 3, 6, 3), Comb());
    EXPECT_EQ(cut.flags, 4);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(1, 2, 10, 1), Is(3, 4, 6, 1), Is(5, 6, 2, 1)));
}

TEST(CutElement, StretchBetweenTwoTouchesOnTheBoundaryCountsAsInside)
{
    // A flat roof point: sides from (0, 0) up to (2, 5e-7) and down to (4, 0) stay within the tolerance of
    // the line y = 0 without being parallel to it for the intersection.
    Outline const almostFlat = Closed({V(0, 0), V(2, -8e-7), V(4, 0), V(4, 3), V(0, 3)});
    Cut const cut = CutBy(Line(-1, 0, 5, 0), almostFlat);
    EXPECT_NE(cut.flags, 0);
    for (TSInterval const & interval : cut.intervals)
        EXPECT_LE(interval.t1, interval.t2);
}

TEST(CutElement, SkippedSideWithoutLengthStillCounts)
{
    Outline const outline = Closed({V(0, 0), V(0, 0), V(4, 0), V(4, 4), V(0, 4)});
    Cut const cut = CutBy(Line(4, 0, 4, 4), outline);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, 4, 2, 3)));
}

TEST(CutElement, OpenOutlineIsClosedByItsLastSide)
{
    Outline const open = {V(0, 0), V(4, 0), V(4, 4), V(0, 4)};
    EXPECT_EQ(CutBy(Line(0, 0, 0, 4), open).flags, 26);
    EXPECT_EQ(CutBy(Line(0, 0, 0, 4), open).intervals.at(0).side, 3);
}

TEST(CutElement, OpenOutlineWithTheClosingArcInFront)
{
    Outline const open = {Arc(-1.0), V(0, 0), V(4, 0), V(4, 4), V(0, 4)};  // bulges to x = -2
    Cut const cut = CutBy(Line(-3, 2, 3, 2), open);
    EXPECT_EQ(cut.flags, 5);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(1, 6, -1, 0)));
}

TEST(CutElement, ArcAcrossASide)
{
    // Upper half circle of radius 2 about (4, 2): it runs from (2, 2) inside to (6, 2) outside and leaves at
    // its apex (4, 4), the corner.
    Cut const cut = CutBy(ArcElem(2, 2, 6, 2, 1.0), kSquare);
    EXPECT_EQ(cut.flags, 5);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(0, kPi, -1, 0)));
}

TEST(CutElement, ArcOnAnArcOfTheArea)
{
    Outline const circle = Circle(0, 0, 1);
    EXPECT_EQ(CutBy(ArcElem(-1, 0, 1, 0, -1.0), circle).flags, 26);
    double const c = std::sqrt(0.5);
    Cut const part = CutBy(ArcElem(-c, -c, c, -c, -std::tan(kPi / 8)), circle);
    EXPECT_EQ(part.flags, 18);
    EXPECT_THAT(part.intervals, ElementsAre(Is(0, kPi / 2, 0, 3)));
}

TEST(CutElement, LineTangentToACircle)
{
    Cut const cut = CutBy(Line(-2, 1, 2, 1), Circle(0, 0, 1));
    EXPECT_EQ(cut.flags, 4);
    EXPECT_THAT(cut.intervals, ElementsAre(Is(2, 2, -1, 2)));
}

TEST(CutElement, TooFewRecordsLeaveTheResultAlone)
{
    EXPECT_EQ(CutBy(Line(0, 0, 1, 0), {V(0, 0)}).flags, 0);
    EXPECT_EQ(CutBy(Line(0, 0, 1, 0), {V(0, 0)}).intervals.size(), 1u);
}

TEST(CutElement, ElementThatIsNoNumberEnds)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    Cut const cut = CutBy(Line(nan, 0, 1, nan), kSquare);
    EXPECT_GE(cut.flags, 0);
}
