#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "geometry/mathematics.h"
#include "geometry/section_levels.h"
#include "section_shapes.h"

namespace {
using detail::BuildSectionTable;
using detail::SectionIntegrator;
using detail::SectionLevel;
using detail::SectionTable;
using shapes::Outline;
using shapes::Point;
constexpr double kPi = std::numbers::pi;
constexpr double kUnwritten = -77.0;

// The plastic modulus, or kUnwritten for a failure.
double PlasticModulus(Outline const & outline)
{
    CMathematics mathematics;
    shapes::OutlineArray array;
    shapes::Fill(array, outline);
    double modulus = kUnwritten;
    int const result = mathematics.ComputePlastMoment(array, modulus);
    EXPECT_EQ(result, modulus == kUnwritten ? 0 : 1);
    return modulus;
}

double ShearCoefficient(Outline const & outline)
{
    CMathematics mathematics;
    shapes::OutlineArray array;
    shapes::Fill(array, outline);
    double coefficient = kUnwritten;
    mathematics.ComputeShearCoef(array, coefficient);
    return coefficient;
}

// A stack of rectangles from the top down, for oracles of their own: heights and widths.
struct Layer
{
    double top, bottom, width;
};

// Ix^2 / (A * integral of S^2 / b), with S and b exact at the three Gauss points of each layer, which
// integrate its polynomial of degree 4 exactly.
double ShearCoefficientOfLayers(std::vector<Layer> const & layers)
{
    double area = 0.0;
    double inertia = 0.0;
    double integral = 0.0;
    double momentAbove = 0.0;
    for (Layer const & layer : layers) {
        double const height = layer.top - layer.bottom;
        area += layer.width * height;
        inertia += layer.width * (std::pow(layer.top, 3) - std::pow(layer.bottom, 3)) / 3.0;
        double const root = std::sqrt(0.6);
        for (auto const & [at, weight] :
             {std::array{-root, 5.0 / 9.0}, std::array{0.0, 8.0 / 9.0}, std::array{root, 5.0 / 9.0}}) {
            double const y = (layer.top + layer.bottom) / 2.0 + at * height / 2.0;
            double const s = momentAbove + layer.width * (layer.top * layer.top - y * y) / 2.0;
            integral += weight * height / 2.0 * s * s / layer.width;
        }
        momentAbove += layer.width * (layer.top * layer.top - layer.bottom * layer.bottom) / 2.0;
    }
    return inertia * inertia / (area * integral);
}

std::vector<double> Heights(Outline const & outline)
{
    std::vector<double> heights;
    for (SectionLevel const & level : BuildSectionTable(outline).levels)
        heights.push_back(level.y);
    return heights;
}
}  // namespace

TEST(SectionTable, RectangleHasAHundredEqualIntervals)
{
    std::vector<double> const heights = Heights(shapes::CentredRectangle(3.0, 10.0));
    // The gap is a rounding wider than 100 steps at most, which the level lowered at the top takes away.
    ASSERT_EQ(heights.size(), 101u);
    EXPECT_EQ(heights.front(), 5.0 - 0.1 / 1e10);
    EXPECT_NEAR(heights[50], 0.0, 1e-9);
    EXPECT_EQ(heights.back(), -5.0 + 0.1 / 1e10);
}

TEST(SectionTable, LowestHorizontalSideLeavesOneRaisedLevel)
{
    // The trapezium's lower side has two vertices; its apex above is one.
    std::vector<double> const heights = Heights(shapes::Closed({Point(0, 5), Point(-3, -5), Point(3, -5)}));
    EXPECT_EQ(heights.back(), -5.0 + 0.1 / 1e10);
    EXPECT_GT(heights[heights.size() - 2], -5.0 + 0.05);
}

TEST(SectionTable, SingleLowestVertexStaysAtItsHeight)
{
    EXPECT_EQ(Heights(shapes::Closed({Point(3, 5), Point(-3, 5), Point(0, -5)})).back(), -5.0);
}

TEST(SectionTable, HorizontalSideWithinGetsALevelOnBothSides)
{
    // Height 10, step 0.1. The T's flange ends at the height 3 with four vertices.
    Outline const outline = shapes::Closed({Point(-1, -5), Point(1, -5), Point(1, 3), Point(4, 3),
                                            Point(4, 5), Point(-4, 5), Point(-4, 3), Point(-1, 3)});
    std::vector<double> const heights = Heights(outline);
    std::vector<double> beside;
    for (double const y : heights)
        if (std::fabs(y - 3.0) < 1e-6)
            beside.push_back(y);
    EXPECT_EQ(beside, (std::vector<double>{3.0 + 0.1 / 1e10, 3.0 - 0.1 / 1e10}));
    EXPECT_GE(heights.size(), 101u);
}

TEST(SectionTable, DescendsWithNoGapAboveTheStep)
{
    std::mt19937 random(1);
    for (int run = 0; run < 300; ++run) {
        SectionTable const table = BuildSectionTable(shapes::Random(random));
        for (std::size_t k = 0; k + 1 < table.levels.size(); ++k) {
            double const gap = table.levels[k].y - table.levels[k + 1].y;
            EXPECT_GT(gap, -table.step / 1e9);
            EXPECT_LT(gap, table.step * (1.0 + 1e-9));
        }
    }
}

TEST(SectionTable, HeightsThatAreNoNumbersGiveNone)
{
    Outline outline = shapes::CentredRectangle(3.0, 10.0);
    outline[1].y = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(BuildSectionTable(outline).levels.empty());
    outline[1].y = std::numeric_limits<double>::infinity();
    EXPECT_TRUE(BuildSectionTable(outline).levels.empty());
    EXPECT_TRUE(BuildSectionTable({}).levels.empty());
    EXPECT_TRUE(BuildSectionTable(Outline{Point(0, 1e308), Point(0, -1e308)}).levels.empty());
}

TEST(SectionIntegrator, GivesWhatLiesAboveALevel)
{
    Outline const outline = {Point(0, 0), Point(6, 0), Point(6, 4), Point(5, 4),
                             Point(5, 1), Point(2, 1), Point(2, 4), Point(0, 4)};
    std::vector<SectionLevel> levels = {{2.0}, {0.5}};
    ASSERT_TRUE(SectionIntegrator(outline, -1.0).Integrate(levels));
    // Legs of 2 and 1 from 2 to 4; then the rest of them and the bottom from 0.5 to 1.
    EXPECT_DOUBLE_EQ(levels[0].area, 6.0);
    EXPECT_DOUBLE_EQ(levels[0].staticMoment, 18.0);
    EXPECT_DOUBLE_EQ(levels[0].width, 3.0);
    EXPECT_DOUBLE_EQ(levels[1].area, 12.0);
    EXPECT_DOUBLE_EQ(levels[1].staticMoment, 9.0 * 2.5 + 3.0 * 0.75);
    EXPECT_DOUBLE_EQ(levels[1].width, 6.0);
}

TEST(SectionIntegrator, LevelWithoutAVertexAboveFails)
{
    std::vector<SectionLevel> levels = {{4.0}, {5.1}};
    EXPECT_FALSE(SectionIntegrator(shapes::CentredRectangle(3.0, 10.0), -1.0).Integrate(levels));
    EXPECT_FALSE(SectionIntegrator(shapes::CentredRectangle(3.0, 10.0), -1.0).IntegratePlainly(levels));
}

TEST(SectionIntegrator, SideAlongALevelIsNoCrossingWhenNear)
{
    // The upper side falls by 2e-9 through the level: a crossing for a nearness below 0 only.
    Outline const outline =
        shapes::Closed({Point(0, 0), Point(2, 0), Point(2, 2.0 + 1e-9), Point(0, 2.0 - 1e-9)});
    std::vector<SectionLevel> crossing = {{2.0}};
    std::vector<SectionLevel> along = {{2.0}};
    ASSERT_TRUE(SectionIntegrator(outline, -1.0).Integrate(crossing));
    ASSERT_TRUE(SectionIntegrator(outline, 1e-8).Integrate(along));
    EXPECT_NEAR(crossing[0].width, 1.0, 1e-6);
    // The walk stays above along the upper side and goes below on the left one.
    EXPECT_NEAR(along[0].width, 2.0, 1e-6);
}

TEST(SectionIntegrator, TogetherIsTheSameAsOneByOne)
{
    std::mt19937 random(99);
    for (int run = 0; run < 2000; ++run) {
        Outline const outline = run % 3 ? shapes::Random(random) : shapes::RandomStar(random);
        SectionTable table = BuildSectionTable(outline);
        // Every other run a nearness wide enough that sides run along levels.
        double const nearLevel = run % 2 ? table.step * static_cast<double>(random() % 100) / 10.0 : -1.0;
        std::vector<SectionLevel> plain = table.levels;
        SectionIntegrator const integrator(outline, nearLevel);
        ASSERT_EQ(integrator.Integrate(table.levels), integrator.IntegratePlainly(plain));
        for (std::size_t k = 0; k < plain.size(); ++k) {
            ASSERT_EQ(table.levels[k].staticMoment, plain[k].staticMoment) << run << ' ' << k;
            ASSERT_EQ(table.levels[k].area, plain[k].area) << run << ' ' << k;
            ASSERT_EQ(table.levels[k].width, plain[k].width) << run << ' ' << k;
        }
    }
}

TEST(PlasticModulus, Rectangle)
{
    EXPECT_NEAR(PlasticModulus(shapes::CentredRectangle(3.0, 10.0)), 3.0 * 100.0 / 4.0, 1e-2);
}

TEST(PlasticModulus, Box)
{
    // (B H^2 - b h^2) / 4
    EXPECT_NEAR(PlasticModulus(shapes::CentredBox(6.0, 8.0, 1.0)), (6.0 * 64.0 - 4.0 * 36.0) / 4.0, 1e-2);
}

TEST(PlasticModulus, DoublySymmetricI)
{
    // B tf (H - tf) + tw (H - 2 tf)^2 / 4
    EXPECT_NEAR(PlasticModulus(shapes::CentredI(8.0, 10.0, 1.0, 0.5)), 8.0 * 9.0 + 0.5 * 64.0 / 4.0, 1e-2);
}

TEST(PlasticModulus, TWithItsNeutralAxisInTheFlange)
{
    // Flange 6 x 2, web 1 x 4: half of the area of 16 is the upper 8 / 6 of the flange.
    double const flange = 8.0 / 6.0;
    double const lowerFlange = 2.0 - flange;
    double const expected =
        8.0 * flange / 2.0 + 6.0 * lowerFlange * lowerFlange / 2.0 + 4.0 * (lowerFlange + 2.0);
    EXPECT_NEAR(PlasticModulus(shapes::CentredT(6.0, 6.0, 2.0, 1.0)), expected, 1e-2);
}

TEST(PlasticModulus, Circle)
{
    // d^3 / 6
    EXPECT_NEAR(PlasticModulus(shapes::Ellipse(2.0, 2.0, 2000)), 64.0 / 6.0, 1e-3);
}

TEST(PlasticModulus, Triangle)
{
    // The upper half has the height h / sqrt 2 and its centroid 2 h / 3 (1 - 1 / sqrt 2) above the whole's,
    // so twice its static moment is b h^2 (2 - sqrt 2) / 6.
    double const h = 6.0;
    Outline const outline =
        shapes::Closed({Point(-2, -h / 3.0), Point(2, -h / 3.0), Point(0, 2.0 * h / 3.0)});
    EXPECT_NEAR(PlasticModulus(outline), 4.0 * h * h * (2.0 - std::sqrt(2.0)) / 6.0, 1e-2);
}

TEST(PlasticModulus, FailsUnwrittenWithoutPositiveArea)
{
    EXPECT_EQ(PlasticModulus(shapes::Reversed(shapes::CentredRectangle(3.0, 10.0))), kUnwritten);
    EXPECT_EQ(PlasticModulus(shapes::Closed({Point(0, 0), Point(3, 0)})), kUnwritten);
    EXPECT_EQ(PlasticModulus({Point(1, 1)}), kUnwritten);
    EXPECT_EQ(PlasticModulus({}), kUnwritten);
    double const none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(PlasticModulus(shapes::Closed({Point(0, 0), Point(3, none), Point(0, 3)})), kUnwritten);
    EXPECT_EQ(PlasticModulus(shapes::Closed({Point(0, 0), Point(none, 1), Point(0, 3)})), kUnwritten);
}

TEST(PlasticModulus, DoesNotDependOnTheFirstVertex)
{
    std::mt19937 random(12);
    for (int run = 0; run < 100; ++run) {
        Outline outline = shapes::RandomStar(random);
        double const first = PlasticModulus(outline);
        outline.pop_back();
        std::rotate(outline.begin(), outline.begin() + static_cast<std::ptrdiff_t>(random() % outline.size()),
                    outline.end());
        EXPECT_NEAR(PlasticModulus(shapes::Closed(outline)), first, 1e-6);
    }
}

TEST(PlasticModulus, ScalesWithTheCubeOfTheLength)
{
    Outline const outline = shapes::CentredI(8.0, 10.0, 1.0, 0.5);
    double const modulus = PlasticModulus(outline);
    EXPECT_NEAR(PlasticModulus(shapes::Scaled(outline, 1e3)) / 1e9, modulus, 1e-6);
    EXPECT_NEAR(PlasticModulus(shapes::Scaled(outline, 1e-3)) * 1e9, modulus, 1e-6);
}

TEST(ShearCoefficient, Rectangle)
{
    EXPECT_NEAR(ShearCoefficient(shapes::CentredRectangle(3.0, 10.0)), 5.0 / 6.0, 1e-3);
    EXPECT_NEAR(ShearCoefficient(shapes::CentredRectangle(10.0, 3.0)), 5.0 / 6.0, 1e-3);
}

TEST(ShearCoefficient, Circle)
{
    // S = 2/3 (R^2 - y^2)^(3/2), b = 2 (R^2 - y^2)^(1/2): the integral of S^2 / b is 5 pi R^6 / 72.
    EXPECT_NEAR(ShearCoefficient(shapes::Ellipse(2.0, 2.0, 2000)), 0.9, 1e-3);
}

TEST(ShearCoefficient, Box)
{
    double const expected = ShearCoefficientOfLayers({{4.0, 3.0, 6.0}, {3.0, -3.0, 2.0}, {-3.0, -4.0, 6.0}});
    EXPECT_NEAR(ShearCoefficient(shapes::CentredBox(6.0, 8.0, 1.0)), expected, 1e-3);
}

TEST(ShearCoefficient, DoublySymmetricI)
{
    double const expected = ShearCoefficientOfLayers({{5.0, 4.0, 8.0}, {4.0, -4.0, 0.5}, {-4.0, -5.0, 8.0}});
    EXPECT_NEAR(ShearCoefficient(shapes::CentredI(8.0, 10.0, 1.0, 0.5)), expected, 1e-3);
}

TEST(ShearCoefficient, T)
{
    double const centroid = (6.0 * 7.5 + 14.0 * 3.5) / 20.0;
    double const expected =
        ShearCoefficientOfLayers({{8.0 - centroid, 7.0 - centroid, 6.0}, {7.0 - centroid, -centroid, 2.0}});
    EXPECT_NEAR(ShearCoefficient(shapes::CentredT(6.0, 8.0, 1.0, 2.0)), expected, 1e-3);
}

TEST(ShearCoefficient, SameForBothDirectionsOfTheOutline)
{
    Outline const outline = shapes::CentredI(8.0, 10.0, 1.0, 0.5);
    EXPECT_NEAR(ShearCoefficient(shapes::Reversed(outline)), ShearCoefficient(outline), 1e-9);
}

TEST(ShearCoefficient, OutOfRangeCountsAsOne)
{
    EXPECT_EQ(ShearCoefficient(shapes::Closed({Point(0, 0), Point(3, 0)})), 1.0);  // no number
    // Far above the centroid's axis Ix^2 grows against the integral of S^2 / b.
    EXPECT_EQ(ShearCoefficient(shapes::Moved(shapes::CentredRectangle(1.0, 1.0), 0.0, 5.0)), 1.0);
    // A web of a millionth carries nothing: the ratio falls below the smallest that counts.
    EXPECT_EQ(ShearCoefficient(shapes::CentredI(8.0, 10.0, 1.0, 1e-4)), 1.0);
}

TEST(ShearCoefficient, StaysUnwrittenForHeightsThatAreNoNumbers)
{
    double const none = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(ShearCoefficient(shapes::Closed({Point(0, 0), Point(3, none), Point(0, 3)})), kUnwritten);
    EXPECT_EQ(ShearCoefficient({}), kUnwritten);
}

TEST(ShearCoefficient, DoesNotDependOnUnitsOrPlaceAlongX)
{
    Outline const outline = shapes::CentredT(6.0, 8.0, 1.0, 2.0);
    double const coefficient = ShearCoefficient(outline);
    EXPECT_NEAR(ShearCoefficient(shapes::Scaled(outline, 1e3)), coefficient, 1e-9);
    EXPECT_NEAR(ShearCoefficient(shapes::Scaled(outline, 1e-3)), coefficient, 1e-9);
    EXPECT_NEAR(ShearCoefficient(shapes::Moved(outline, 1e6, 0.0)), coefficient, 1e-5);
}
