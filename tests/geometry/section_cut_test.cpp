#include <gtest/gtest.h>

#include <random>

#include "geometry/mathematics.h"
#include "section_shapes.h"

namespace {
using shapes::Outline;
using shapes::Point;

// The part of the outline toward `direction` of the line through `axisPoint`; `result` is the code.
Outline Cut(Outline const & outline, TUVect2D axisPoint, TUVect2D direction, int & result)
{
    CMathematics mathematics;
    shapes::OutlineArray given;
    shapes::OutlineArray part;
    TUVect2D old = Point(99.0, 99.0);
    part.Add(old);
    shapes::Fill(given, outline);
    result = mathematics.GetPartOfPolygonAboveNeutralAxis(given, axisPoint, direction, part);
    return {part.begin(), part.end()};
}

double AreaOf(Outline const & outline)
{
    double sum = 0.0;
    for (std::size_t i = 0; i + 1 < outline.size(); ++i)
        sum += (outline[i].x * outline[i + 1].y - outline[i].y * outline[i + 1].x) / 2.0;
    return sum;
}

void ExpectOutline(Outline const & actual, Outline const & expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        EXPECT_NEAR(actual[i].x, expected[i].x, 1e-12) << i;
        EXPECT_NEAR(actual[i].y, expected[i].y, 1e-12) << i;
    }
}

Outline OpenSquare()
{
    return {Point(0, 0), Point(2, 0), Point(2, 2), Point(0, 2)};
}
}  // namespace

TEST(NeutralAxisCut, KeepsTheSideOfTheDirection)
{
    int result = 0;
    ExpectOutline(Cut(OpenSquare(), Point(0, 0.5), Point(0, 3), result),
                  {Point(2, 0.5), Point(2, 2), Point(0, 2), Point(0, 0.5), Point(2, 0.5)});
    EXPECT_EQ(result, 1);
    ExpectOutline(Cut(OpenSquare(), Point(0, 0.5), Point(0, -3), result),
                  {Point(2, 0), Point(2, 0.5), Point(0, 0.5), Point(0, 0), Point(2, 0)});
    EXPECT_EQ(result, 1);
}

TEST(NeutralAxisCut, WholeOutlineOnTheNearSideIsReturnedClosed)
{
    int result = 0;
    ExpectOutline(Cut(OpenSquare(), Point(0, -1), Point(0, 1), result),
                  {Point(2, 0), Point(2, 2), Point(0, 2), Point(0, 0), Point(2, 0)});
    EXPECT_EQ(result, 1);
}

TEST(NeutralAxisCut, WholeOutlineOnTheFarSideIsEmpty)
{
    int result = 1;
    EXPECT_TRUE(Cut(OpenSquare(), Point(0, 3), Point(0, 1), result).empty());
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(Cut({}, Point(0, 3), Point(0, 1), result).empty());
    EXPECT_EQ(result, 0);
}

TEST(NeutralAxisCut, VerticesWithinTheMarginCountAsOnTheAxis)
{
    int result = 0;
    // The upper side lies 5e-11 behind the axis: kept, with no crossing toward it; the lower side is cut off.
    Outline const part = Cut(OpenSquare(), Point(0, 2.0 + 5e-11), Point(0, 1), result);
    EXPECT_EQ(result, 1);
    EXPECT_EQ(part.size(), 5u);
    EXPECT_NEAR(AreaOf(part), 0.0, 1e-9);
}

TEST(NeutralAxisCut, BothPartsMakeTheWhole)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<double> coordinate(-1.0, 1.0);
    for (int run = 0; run < 300; ++run) {
        Outline const outline = shapes::RandomStar(random);
        TUVect2D const axisPoint = Point(coordinate(random), coordinate(random));
        TUVect2D const direction = Point(coordinate(random), coordinate(random));
        int result = 0;
        double const above = AreaOf(Cut(outline, axisPoint, direction, result));
        double const below = AreaOf(Cut(outline, axisPoint, Point(-direction.x, -direction.y), result));
        EXPECT_NEAR(above + below, AreaOf(outline), 1e-9);
        EXPECT_GE(above, -1e-9);
        EXPECT_GE(below, -1e-9);
    }
}
