#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numbers>
#include <random>

#include "geometry/mathematics.h"
#include "section_shapes.h"

namespace {
using shapes::Outline;
using shapes::Point;

double WidthOf(Outline const & outline, double y)
{
    CMathematics mathematics;
    shapes::OutlineArray array;
    shapes::Fill(array, outline);
    double width = -1.0;
    mathematics.GetWidthInPosition(array, y, width);
    return width;
}

double LeastWidth(Outline const & outline, double top, double bottom, double angle)
{
    CMathematics mathematics;
    shapes::OutlineArray array;
    shapes::Fill(array, outline);
    double width = -1.0;
    mathematics.FindMinimalB0(array, top, bottom, angle, width);
    return width;
}

// The least width by one walk round the whole outline for each candidate height.
double LeastWidthPlainly(Outline const & outline, double top, double bottom, double angle)
{
    CMathematics mathematics;
    Outline turned;
    for (TUVect2D const & vertex : outline)
        turned.push_back(mathematics.rotate(vertex, angle));
    double low = turned.front().y;
    double high = low;
    for (TUVect2D const & vertex : turned) {
        low = std::min(low, vertex.y);
        high = std::max(high, vertex.y);
    }
    low += bottom;
    high -= top;
    std::vector<double> heights = {low - 1e-10, low + 1e-10, high - 1e-10, high + 1e-10};
    for (TUVect2D const & vertex : turned)
        if (low < vertex.y && vertex.y < high)
            heights.insert(heights.end(), {vertex.y + 1e-10, vertex.y - 1e-10});
    double best = 1e100;
    for (double const height : heights) {
        double const width = WidthOf(turned, height);
        if (width < best && width > 0.0)
            best = width;
    }
    return best < 1e99 ? best : 0.0;
}

Outline U()
{
    return shapes::Closed({Point(0, 0), Point(6, 0), Point(6, 4), Point(5, 4), Point(5, 1), Point(2, 1),
                           Point(2, 4), Point(0, 4)});
}
}  // namespace

TEST(WidthInPosition, AddsTheChordsOfTheHeight)
{
    EXPECT_DOUBLE_EQ(WidthOf(U(), 0.5), 6.0);
    EXPECT_DOUBLE_EQ(WidthOf(U(), 2.0), 3.0);  // legs of 2 and 1
    EXPECT_DOUBLE_EQ(WidthOf(U(), 5.0), 0.0);
    EXPECT_DOUBLE_EQ(WidthOf(U(), -1.0), 0.0);
}

TEST(WidthInPosition, WrapsAnOpenOutline)
{
    Outline const open = {Point(0, 0), Point(4, 0), Point(0, 4)};
    EXPECT_DOUBLE_EQ(WidthOf(open, 1.0), 3.0);
    EXPECT_EQ(WidthOf({}, 1.0), 0.0);
}

TEST(WidthInPosition, HeightOfAHorizontalSideSeesTheUpperPart)
{
    // A vertex at the height counts as above it: at y = 1 the bottom of the U has ended, at y = 0 it has
    // begun.
    EXPECT_DOUBLE_EQ(WidthOf(U(), 1.0), 6.0);
    EXPECT_DOUBLE_EQ(WidthOf(U(), 1.0 + 1e-10), 3.0);
    EXPECT_DOUBLE_EQ(WidthOf(U(), 0.0), 0.0);
    EXPECT_DOUBLE_EQ(WidthOf(U(), 4.0), 3.0);
}

TEST(WidthInPosition, SidesFlatterThanTheLimitArePassedOver)
{
    // The right side climbs in one step of 4e-11, which doesn't count, so the line finds its crossing on the
    // next side, extended.
    Outline const outline =
        shapes::Closed({Point(0, 0), Point(4, 0), Point(4, 4e-11), Point(4, 3), Point(0, 3)});
    EXPECT_NEAR(WidthOf(outline, 2e-11), 4.0, 1e-9);
}

TEST(WidthInPosition, ClockwiseOutlineHasNegativeWidth)
{
    EXPECT_DOUBLE_EQ(WidthOf(shapes::Reversed(U()), 2.0), -3.0);
}

TEST(MinimalWidth, IsTheWeb)
{
    EXPECT_NEAR(LeastWidth(shapes::CentredI(8.0, 10.0, 1.0, 0.5), 0.0, 0.0, 0.0), 0.5, 1e-9);
}

TEST(MinimalWidth, MarginsShutOutTheEnds)
{
    // A wedge, 1 wide at the bottom and 5 at the top: within the band from 2 up it is 1 + 4 * 2 / 8 wide.
    Outline const wedge = shapes::Closed({Point(0, 0), Point(1, 0), Point(5, 8), Point(0, 8)});
    EXPECT_NEAR(LeastWidth(wedge, 1.0, 2.0, 0.0), 2.0, 1e-9);
    // Turned upside down the other margin counts.
    EXPECT_NEAR(LeastWidth(wedge, 2.0, 1.0, std::numbers::pi), 2.0, 1e-9);
}

TEST(MinimalWidth, IsMeasuredAcrossTheDirection)
{
    Outline const rectangle = shapes::CentredRectangle(3.0, 7.0);
    EXPECT_NEAR(LeastWidth(rectangle, 1.0, 1.0, 0.0), 3.0, 1e-9);
    EXPECT_NEAR(LeastWidth(rectangle, 1.0, 1.0, std::numbers::pi / 2.0), 7.0, 1e-9);
}

TEST(MinimalWidth, WithoutABandComparesItsEndsOnly)
{
    // Margins of 4 in a height of 5 cross over: the ends are at 4 and 1, both 2 wide.
    EXPECT_NEAR(LeastWidth(shapes::Rectangle(0, 0, 2, 5), 4.0, 4.0, 0.0), 2.0, 1e-9);
    // Margins beyond the outline find no width at all.
    EXPECT_EQ(LeastWidth(shapes::Rectangle(0, 0, 2, 5), 9.0, 9.0, 0.0), 0.0);
    EXPECT_EQ(LeastWidth({}, 0.0, 0.0, 0.0), 0.0);
}

TEST(MinimalWidth, IsTheSameAsByPlainWalks)
{
    std::mt19937 random(77);
    std::uniform_real_distribution<double> angle(-3.0, 3.0);
    std::uniform_real_distribution<double> margin(-0.5, 6.0);
    for (int run = 0; run < 2000; ++run) {
        Outline const outline = run % 2 ? shapes::Random(random) : shapes::RandomStar(random);
        double const turn = run % 5 ? angle(random) : 0.0;
        double const top = margin(random);
        double const bottom = margin(random);
        EXPECT_EQ(LeastWidth(outline, top, bottom, turn), LeastWidthPlainly(outline, top, bottom, turn))
            << run;
    }
}

TEST(MinimalWidth, CoordinatesThatAreNoNumbersEndWithSomeWidth)
{
    double const bad[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                          1e308};
    for (double const value : bad) {
        Outline outline = U();
        outline[3].y = value;
        EXPECT_EQ(LeastWidth(outline, 0.0, 0.0, 0.0), LeastWidthPlainly(outline, 0.0, 0.0, 0.0));
    }
}
