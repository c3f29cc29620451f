#include "outlines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {
using outlines::BuildOutlines;
using outlines::OutlineSet;
using outlines::Path;

constexpr double kTolerance = 1e-4;

Path Line(double x1, double y1, double x2, double y2)
{
    return {{{{x1, y1}}, {{x2, y2}}, 0.0}};
}

Path Rectangle(double x1, double y1, double x2, double y2)
{
    Path path = Line(x1, y1, x2, y1);
    path.push_back({{{x2, y1}}, {{x2, y2}}, 0.0});
    path.push_back({{{x2, y2}}, {{x1, y2}}, 0.0});
    path.push_back({{{x1, y2}}, {{x1, y1}}, 0.0});
    return path;
}

std::vector<Path> Loose(Path const & path)
{
    std::vector<Path> paths;
    for (TSPlaneEdge2D const & side : path)
        paths.push_back({side});
    return paths;
}

void Append(std::vector<Path> & to, std::vector<Path> const & from)
{
    to.insert(to.end(), from.begin(), from.end());
}

class OutlinesTest : public testing::Test
{
  protected:
    OutlineSet Build(std::vector<Path> const & paths) { return BuildOutlines(m_kernel, paths, kTolerance); }

    CMathematics m_kernel;
};

TEST_F(OutlinesTest, ClosedPathIsAnOutline)
{
    OutlineSet const set = Build({Rectangle(0, 0, 2, 1)});
    ASSERT_EQ(set.outlines.size(), 1U);
    EXPECT_DOUBLE_EQ(set.outlines[0].area, 2.0);
    EXPECT_FALSE(set.outlines[0].IsHole());
    EXPECT_TRUE(set.gaps.empty());
    EXPECT_EQ(set.duplicates, 0);
}

TEST_F(OutlinesTest, ClockwisePathIsTurned)
{
    OutlineSet const set = Build({outlines::Reversed(Rectangle(0, 0, 2, 1))});
    ASSERT_EQ(set.outlines.size(), 1U);
    EXPECT_DOUBLE_EQ(outlines::SignedArea(m_kernel, set.outlines[0].sides), 2.0);
}

TEST_F(OutlinesTest, LooseSidesInAnyOrderAndDirectionAreChained)
{
    Path circleTop = {{{{3, 0}}, {{-3, 0}}, -1.0}}, circleBottom = {{{{-3, 0}}, {{3, 0}}, -1.0}};
    std::mt19937 random(5);
    for (int run = 0; run < 50; ++run) {
        std::vector<Path> paths = Loose(Rectangle(-1, -1, 1, 1));
        paths.push_back(circleTop);
        paths.push_back(circleBottom);
        std::shuffle(paths.begin(), paths.end(), random);
        for (Path & path : paths)
            if (random() % 2)
                path = outlines::Reversed(path);
        OutlineSet const set = Build(paths);
        ASSERT_EQ(set.outlines.size(), 2U);
        EXPECT_NEAR(set.outlines[0].area, 9 * std::acos(-1.0), 1e-12);
        EXPECT_TRUE(set.outlines[1].IsHole());
        EXPECT_EQ(set.outlines[1].parent, 0);
        EXPECT_NEAR(set.outlines[1].area, 4.0, 1e-12);
    }
}

TEST_F(OutlinesTest, EndsWithinTheToleranceMeet)
{
    std::vector<Path> paths = Loose(Rectangle(0, 0, 1, 1));
    paths[0][0].end.x += 0.7 * kTolerance;
    paths[2][0].start.y -= 0.7 * kTolerance;
    OutlineSet const set = Build(paths);
    ASSERT_EQ(set.outlines.size(), 1U);
    Path const & sides = set.outlines[0].sides;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        EXPECT_EQ(sides[i].end.x, sides[(i + 1) % sides.size()].start.x);
        EXPECT_EQ(sides[i].end.y, sides[(i + 1) % sides.size()].start.y);
    }
}

TEST_F(OutlinesTest, GapIsToldOnceWithItsPlaceAndWidth)
{
    std::vector<Path> paths = Loose(Rectangle(0, 0, 1, 1));
    paths[3][0].end.y = 0.25;  // the left side stops short of the lower left corner
    OutlineSet const set = Build(paths);
    EXPECT_TRUE(set.outlines.empty());
    ASSERT_EQ(set.gaps.size(), 1U);
    EXPECT_NEAR(set.gaps[0].distance, 0.25, 1e-12);
    EXPECT_NEAR(std::fabs(set.gaps[0].at.y - set.gaps[0].nearest.y), 0.25, 1e-12);
}

TEST_F(OutlinesTest, LineThatHangsOnAnOutlineIsLeftOver)
{
    std::vector<Path> paths = Loose(Rectangle(0, 0, 1, 1));
    paths.push_back(Line(1, 1, 2, 2));
    paths.push_back(Line(2, 2, 3, 2));
    OutlineSet const set = Build(paths);
    ASSERT_EQ(set.outlines.size(), 1U);
    EXPECT_DOUBLE_EQ(set.outlines[0].area, 1.0);
    ASSERT_EQ(set.gaps.size(), 1U);
    EXPECT_EQ(set.gaps[0].at.x, 3.0);
    EXPECT_EQ(set.gaps[0].distance, 0.0);
}

TEST_F(OutlinesTest, SideDrawnTwiceIsDropped)
{
    std::vector<Path> paths = Loose(Rectangle(0, 0, 1, 1));
    paths.push_back(paths[1]);
    paths.push_back(outlines::Reversed(paths[2]));
    OutlineSet const set = Build(paths);
    ASSERT_EQ(set.outlines.size(), 1U);
    EXPECT_EQ(set.duplicates, 2);
}

TEST_F(OutlinesTest, SidesWithTheSameEndsButOtherCourseStay)
{
    // A circle of two arcs over one chord.
    OutlineSet const set = Build({{{{{-1, 0}}, {{1, 0}}, 1.0}}, {{{{-1, 0}}, {{1, 0}}, -1.0}}});
    ASSERT_EQ(set.outlines.size(), 1U);
    EXPECT_NEAR(set.outlines[0].area, std::acos(-1.0), 1e-12);
    EXPECT_EQ(set.duplicates, 0);
}

TEST_F(OutlinesTest, OutlineDrawnTwiceIsDroppedWhateverItsStart)
{
    Path again = Rectangle(0, 0, 2, 1);
    std::rotate(again.begin(), again.begin() + 2, again.end());
    OutlineSet const set = Build({Rectangle(0, 0, 2, 1), outlines::Reversed(again), Rectangle(5, 0, 7, 1)});
    EXPECT_EQ(set.outlines.size(), 2U);
    EXPECT_EQ(set.duplicates, 1);
}

TEST_F(OutlinesTest, OutlinesThatTouchInACornerStayApart)
{
    for (bool reversed : {false, true}) {
        std::vector<Path> paths = Loose(Rectangle(0, 0, 1, 1));
        Append(paths, Loose(Rectangle(1, 1, 3, 3)));
        if (reversed)
            for (Path & path : paths)
                path = outlines::Reversed(path);
        OutlineSet const set = Build(paths);
        ASSERT_EQ(set.outlines.size(), 2U);
        EXPECT_DOUBLE_EQ(set.outlines[0].area, 4.0);
        EXPECT_DOUBLE_EQ(set.outlines[1].area, 1.0);
        EXPECT_FALSE(set.outlines[1].IsHole());
    }
}

TEST_F(OutlinesTest, NestingAlternatesBodiesAndHoles)
{
    OutlineSet const set = Build({Rectangle(3, 3, 4, 4), Rectangle(0, 0, 10, 10), Rectangle(2, 2, 6, 6),
                                  Rectangle(1, 1, 9, 9), Rectangle(20, 0, 21, 1)});
    ASSERT_EQ(set.outlines.size(), 5U);
    int const depths[] = {0, 1, 2, 3, 0};
    int const parents[] = {-1, 0, 1, 2, -1};
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(set.outlines[i].depth, depths[i]) << i;
        EXPECT_EQ(set.outlines[i].parent, parents[i]) << i;
    }
}

TEST_F(OutlinesTest, HoleThatTouchesItsBodyIsAHole)
{
    OutlineSet const set = Build({Rectangle(0, 0, 4, 4), Rectangle(0, 1, 2, 2)});
    ASSERT_EQ(set.outlines.size(), 2U);
    EXPECT_TRUE(set.outlines[1].IsHole());
}

TEST_F(OutlinesTest, ShortSidesAndOutlinesWithoutAreaAreDropped)
{
    Path withStub = Rectangle(0, 0, 1, 1);
    withStub.insert(withStub.begin() + 1, {{{1, 0}}, {{1, 0.5 * kTolerance}}, 0.0});
    Path thereAndBack = Line(5, 0, 6, 0);
    thereAndBack.push_back({{{6, 0}}, {{5, 0}}, 0.0});
    OutlineSet const set = Build({withStub, thereAndBack});
    ASSERT_EQ(set.outlines.size(), 1U);
    EXPECT_EQ(set.outlines[0].sides.size(), 4U);
}

TEST_F(OutlinesTest, NothingGivesNothing)
{
    EXPECT_TRUE(Build({}).outlines.empty());
    EXPECT_TRUE(Build({{}, Line(1, 1, 1, 1)}).outlines.empty());
}

TEST_F(OutlinesTest, CrossingIsFoundWithinAndBetweenOutlines)
{
    // A bow tie that crosses itself at (1, 1).
    Path bowTie = Line(0, 0, 2, 2);
    bowTie.push_back({{{2, 2}}, {{2, 0}}, 0.0});
    bowTie.push_back({{{2, 0}}, {{0, 3}}, 0.0});
    bowTie.push_back({{{0, 3}}, {{0, 0}}, 0.0});
    auto const self = outlines::FindCrossing(m_kernel, Build({bowTie}).outlines);
    ASSERT_TRUE(self.has_value());
    // y = x meets y = 3 - 1.5 x at x = 1.2.
    EXPECT_NEAR(self->x, 1.2, 1e-9);
    EXPECT_NEAR(self->y, 1.2, 1e-9);
    auto const between =
        outlines::FindCrossing(m_kernel, Build({Rectangle(0, 0, 2, 2), Rectangle(1, 1, 3, 3)}).outlines);
    EXPECT_TRUE(between.has_value());
}

TEST_F(OutlinesTest, TouchingIsNoCrossing)
{
    Path const circle = {{{{3, 1}}, {{1, 1}}, -1.0}, {{{1, 1}}, {{3, 1}}, -1.0}};
    EXPECT_FALSE(outlines::FindCrossing(m_kernel, Build({Rectangle(0, 0, 4, 4), circle}).outlines));
    EXPECT_FALSE(
        outlines::FindCrossing(m_kernel, Build({Rectangle(0, 0, 1, 1), Rectangle(1, 0, 2, 1)}).outlines));
    EXPECT_FALSE(
        outlines::FindCrossing(m_kernel, Build({Rectangle(0, 0, 1, 1), Rectangle(1, 1, 2, 2)}).outlines));
}

TEST_F(OutlinesTest, ManyLooseLinesTakeNoQuadraticTime)
{
    std::mt19937 random(9);
    std::uniform_real_distribution<double> place(-1e4, 1e4);
    std::vector<Path> paths;
    for (int i = 0; i < 50000; ++i)
        paths.push_back(Line(place(random), place(random), place(random), place(random)));
    Append(paths, Loose(Rectangle(20000, 0, 20001, 1)));
    OutlineSet const set = Build(paths);
    EXPECT_EQ(set.outlines.size(), 1U);
    EXPECT_GE(set.gaps.size(), 50000U);
}
}  // namespace
