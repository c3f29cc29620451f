#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "geometry/mathematics.h"
#include "section_shapes.h"

namespace {
using shapes::Outline;
constexpr double kPi = std::numbers::pi;
constexpr unsigned int kCircle = 32767;

struct Group
{
    double Ix = 0.0, Iy = 0.0, Ixc = 0.0, Iyc = 0.0, I1 = 0.0, I2 = 0.0, A = 0.0, Ixy = 0.0, Ixyc = 0.0,
           Sx = 0.0, Sy = 0.0, Xc = 0.0, Yc = 0.0, alpha = 0.0;
};

class Section
{
  public:
    Group weighted;
    Group plain;
    int direction = -1;

    Section & Add(Outline outline, int hole = 0, double weight = 1.0)
    {
        return Add(outline, static_cast<unsigned int>(outline.size() - 1), hole, weight);
    }

    Section & AddCircle(double radius, double x, double y, int hole = 0)
    {
        return Add({shapes::Point(radius, 0.0), shapes::Point(x, y)}, kCircle, hole, 1.0);
    }

  private:
    Section & Add(Outline points, unsigned int count, int hole, double weight)
    {
        CMathematics mathematics;
        Group & w = weighted;
        Group & p = plain;
        EXPECT_EQ(mathematics.GetThoseCharacteristics(
                      points.data(), hole, direction, count, weight, w.Ix, w.Iy, w.Ixc, w.Iyc, w.I1, w.I2,
                      w.A, w.Ixy, w.Ixyc, w.Sx, w.Sy, w.Xc, w.Yc, w.alpha, p.Ix, p.Iy, p.Ixc, p.Iyc, p.I1,
                      p.I2, p.A, p.Ixy, p.Ixyc, p.Sx, p.Sy, p.Xc, p.Yc, p.alpha),
                  1);
        return *this;
    }
};

// Sums of rectangles by the parallel axis theorem: an oracle that knows no boundary integrals.
struct Rectangles
{
    double A = 0.0, Sx = 0.0, Sy = 0.0, Ix = 0.0, Iy = 0.0, Ixy = 0.0;

    Rectangles & Add(double left, double bottom, double width, double height, double sign = 1.0)
    {
        double const area = sign * width * height;
        double const x = left + width / 2.0;
        double const y = bottom + height / 2.0;
        A += area;
        Sx += area * y;
        Sy += area * x;
        Ix += area * (height * height / 12.0 + y * y);
        Iy += area * (width * width / 12.0 + x * x);
        Ixy += area * x * y;
        return *this;
    }
};

void ExpectRelative(double actual, double expected, double margin, char const * what)
{
    EXPECT_NEAR(actual, expected, margin * std::max(1.0, std::fabs(expected))) << what;
}

void ExpectGroup(Group const & group, Rectangles const & r)
{
    ExpectRelative(group.A, r.A, 1e-12, "A");
    ExpectRelative(group.Sx, r.Sx, 1e-12, "Sx");
    ExpectRelative(group.Sy, r.Sy, 1e-12, "Sy");
    ExpectRelative(group.Ix, r.Ix, 1e-12, "Ix");
    ExpectRelative(group.Iy, r.Iy, 1e-12, "Iy");
    ExpectRelative(group.Ixy, r.Ixy, 1e-12, "Ixy");
    ExpectRelative(group.Xc, r.Sy / r.A, 1e-12, "Xc");
    ExpectRelative(group.Yc, r.Sx / r.A, 1e-12, "Yc");
    ExpectRelative(group.Ixc, r.Ix - r.Sx * r.Sx / r.A, 1e-11, "Ixc");
    ExpectRelative(group.Iyc, r.Iy - r.Sy * r.Sy / r.A, 1e-11, "Iyc");
    ExpectRelative(group.Ixyc, r.Ixy - r.Sx * r.Sy / r.A, 1e-11, "Ixyc");
}

void ExpectBoth(Section const & section, Rectangles const & rectangles)
{
    ExpectGroup(section.weighted, rectangles);
    ExpectGroup(section.plain, rectangles);
}

void ExpectSameAccumulators(Group const & a, Group const & b)
{
    EXPECT_DOUBLE_EQ(a.A, b.A);
    EXPECT_DOUBLE_EQ(a.Ix, b.Ix);
    EXPECT_DOUBLE_EQ(a.Iy, b.Iy);
    EXPECT_DOUBLE_EQ(a.Ixy, b.Ixy);
    EXPECT_DOUBLE_EQ(a.Sx, b.Sx);
    EXPECT_DOUBLE_EQ(a.Sy, b.Sy);
}
}  // namespace

TEST(SectionCharacteristics, RectangleAtTheOrigin)
{
    Section section;
    section.Add(shapes::CentredRectangle(3.0, 5.0));
    EXPECT_EQ(section.direction, 1);
    for (Group const & group : {section.weighted, section.plain}) {
        EXPECT_DOUBLE_EQ(group.A, 15.0);
        EXPECT_DOUBLE_EQ(group.Ixc, 3.0 * 125.0 / 12.0);
        EXPECT_DOUBLE_EQ(group.Iyc, 5.0 * 27.0 / 12.0);
        EXPECT_EQ(group.Xc, 0.0);
        EXPECT_EQ(group.Yc, 0.0);
        EXPECT_EQ(group.alpha, 0.0);
        EXPECT_DOUBLE_EQ(group.I1, group.Ixc);
        EXPECT_DOUBLE_EQ(group.I2, group.Iyc);
    }
}

TEST(SectionCharacteristics, TriangleAboutItsCentroid)
{
    // Base b, height h, apex over the left end: Ixc = b h^3 / 36, Iyc = h b^3 / 36, Ixyc = -b^2 h^2 / 72.
    Section section;
    section.Add(shapes::Closed({shapes::Point(1.0, 2.0), shapes::Point(7.0, 2.0), shapes::Point(1.0, 5.0)}));
    EXPECT_DOUBLE_EQ(section.plain.A, 9.0);
    EXPECT_DOUBLE_EQ(section.plain.Xc, 3.0);
    EXPECT_DOUBLE_EQ(section.plain.Yc, 3.0);
    EXPECT_NEAR(section.plain.Ixc, 6.0 * 27.0 / 36.0, 1e-12);
    EXPECT_NEAR(section.plain.Iyc, 3.0 * 216.0 / 36.0, 1e-12);
    EXPECT_NEAR(section.plain.Ixyc, -36.0 * 9.0 / 72.0, 1e-12);
}

TEST(SectionCharacteristics, CircleByItsRadius)
{
    Section section;
    section.AddCircle(2.0, 3.0, -4.0);
    EXPECT_EQ(section.direction, 1);
    for (Group const & group : {section.weighted, section.plain}) {
        EXPECT_DOUBLE_EQ(group.A, 4.0 * kPi);
        EXPECT_DOUBLE_EQ(group.Sx, -16.0 * kPi);
        EXPECT_DOUBLE_EQ(group.Sy, 12.0 * kPi);
        EXPECT_DOUBLE_EQ(group.Ixy, -48.0 * kPi);
        EXPECT_DOUBLE_EQ(group.Ix, 68.0 * kPi);  // 16 * 4 pi + 16 pi / 4
        EXPECT_DOUBLE_EQ(group.Iy, 40.0 * kPi);
        EXPECT_NEAR(group.Ixc, 4.0 * kPi, 1e-12);
        EXPECT_NEAR(group.Iyc, 4.0 * kPi, 1e-12);
    }
}

TEST(SectionCharacteristics, AnnulusIsCircleWithRoundHole)
{
    Section section;
    section.AddCircle(3.0, 0.0, 0.0).AddCircle(2.0, 0.0, 0.0, 1);
    EXPECT_DOUBLE_EQ(section.plain.A, 5.0 * kPi);
    EXPECT_DOUBLE_EQ(section.plain.Ixc, (81.0 - 16.0) * kPi / 4.0);
    EXPECT_DOUBLE_EQ(section.weighted.Iyc, (81.0 - 16.0) * kPi / 4.0);
}

TEST(SectionCharacteristics, EllipseByManySides)
{
    Section section;
    section.Add(shapes::Ellipse(3.0, 2.0, 4000));
    EXPECT_NEAR(section.plain.A, 6.0 * kPi, 1e-4);
    EXPECT_NEAR(section.plain.Ixc, 3.0 * 8.0 * kPi / 4.0, 1e-4);
    EXPECT_NEAR(section.plain.Iyc, 2.0 * 27.0 * kPi / 4.0, 1e-4);
}

TEST(SectionCharacteristics, ProfilesAgreeWithTheirRectangles)
{
    ExpectBoth(Section().Add(shapes::Moved(shapes::CentredI(8.0, 10.0, 1.0, 0.5), 20.0, 30.0)),
               Rectangles().Add(16.0, 25.0, 8.0, 1.0).Add(16.0, 34.0, 8.0, 1.0).Add(19.75, 26.0, 0.5, 8.0));
    ExpectBoth(Section().Add(shapes::Closed({shapes::Point(0, 0), shapes::Point(4, 0), shapes::Point(4, 1),
                                             shapes::Point(1, 1), shapes::Point(1, 6), shapes::Point(0, 6)})),
               Rectangles().Add(0.0, 0.0, 4.0, 1.0).Add(0.0, 1.0, 1.0, 5.0));
    ExpectBoth(Section().Add(shapes::Closed({shapes::Point(0, 0), shapes::Point(6, 0), shapes::Point(6, 4),
                                             shapes::Point(5, 4), shapes::Point(5, 1), shapes::Point(1, 1),
                                             shapes::Point(1, 4), shapes::Point(0, 4)})),
               Rectangles().Add(0.0, 0.0, 6.0, 1.0).Add(0.0, 1.0, 1.0, 3.0).Add(5.0, 1.0, 1.0, 3.0));
    ExpectBoth(Section().Add(shapes::CentredT(6.0, 8.0, 1.0, 2.0)), [] {
        double const centroid = (6.0 * 7.5 + 14.0 * 3.5) / 20.0;
        return Rectangles().Add(-1.0, -centroid, 2.0, 7.0).Add(-3.0, 7.0 - centroid, 6.0, 1.0);
    }());
}

TEST(SectionCharacteristics, HollowBoxAsHoleAndAsSlit)
{
    Rectangles const expected = Rectangles().Add(-3.0, -4.0, 6.0, 8.0).Add(-2.0, -3.0, 4.0, 6.0, -1.0);
    ExpectBoth(Section().Add(shapes::CentredRectangle(6.0, 8.0)).Add(shapes::CentredRectangle(4.0, 6.0), 1),
               expected);
    ExpectBoth(Section().Add(shapes::CentredBox(6.0, 8.0, 1.0)), expected);
}

TEST(SectionCharacteristics, ClockwiseGivesTheSameAndSaysSo)
{
    Outline const outline = shapes::Moved(shapes::CentredI(8.0, 10.0, 1.0, 0.5), 2.0, 3.0);
    Section const section = Section().Add(outline);
    Section const reversed = Section().Add(shapes::Reversed(outline));
    EXPECT_EQ(section.direction, 1);
    EXPECT_EQ(reversed.direction, 0);
    ExpectSameAccumulators(section.plain, reversed.plain);
    ExpectSameAccumulators(section.weighted, reversed.weighted);
}

TEST(SectionCharacteristics, HoleSubtractsWhicheverWayItRuns)
{
    Outline const hole = shapes::Rectangle(1.0, 1.0, 2.0, 1.0);
    Section const a = Section().Add(shapes::Rectangle(0, 0, 6, 4)).Add(hole, 1);
    Section const b = Section().Add(shapes::Rectangle(0, 0, 6, 4)).Add(shapes::Reversed(hole), 1);
    EXPECT_DOUBLE_EQ(a.plain.A, 22.0);
    ExpectSameAccumulators(a.plain, b.plain);
    EXPECT_EQ(a.direction, 1);
    EXPECT_EQ(b.direction, 0);
}

TEST(SectionCharacteristics, OnlyHoleOneSubtracts)
{
    EXPECT_DOUBLE_EQ(Section().Add(shapes::Rectangle(0, 0, 6, 4), 2).plain.A, 24.0);
}

TEST(SectionCharacteristics, WeightCountsInTheFirstGroupOnly)
{
    Section section;
    section.Add(shapes::Rectangle(0, 0, 2, 2), 0, 1.0).Add(shapes::Rectangle(2, 0, 2, 2), 0, 3.0);
    EXPECT_DOUBLE_EQ(section.plain.A, 8.0);
    EXPECT_DOUBLE_EQ(section.plain.Xc, 2.0);
    EXPECT_DOUBLE_EQ(section.weighted.A, 16.0);
    EXPECT_DOUBLE_EQ(section.weighted.Xc, 2.5);  // (4 * 1 + 12 * 3) / 16
}

TEST(SectionCharacteristics, WeightZeroLeavesThePolygonOut)
{
    Section section;
    section.Add(shapes::Rectangle(0, 0, 2, 2)).Add(shapes::Rectangle(2, 0, 2, 2), 0, 0.0);
    EXPECT_DOUBLE_EQ(section.weighted.A, 4.0);
    EXPECT_DOUBLE_EQ(section.weighted.Xc, 1.0);
    EXPECT_DOUBLE_EQ(section.plain.A, 8.0);
}

TEST(SectionCharacteristics, NoAreaLeavesYcOfTheFirstGroupAlone)
{
    Section section;
    section.weighted.Xc = 5.0;
    section.weighted.Yc = 6.0;
    section.plain.Xc = 7.0;
    section.plain.Yc = 8.0;
    section.Add(shapes::Closed({shapes::Point(0, 0), shapes::Point(4, 0)}));
    EXPECT_EQ(section.weighted.Xc, 0.0);
    EXPECT_EQ(section.weighted.Yc, 6.0);
    EXPECT_EQ(section.plain.Xc, 0.0);
    EXPECT_EQ(section.plain.Yc, 0.0);
}

TEST(SectionCharacteristics, SquareHasNoAngle)
{
    Section section;
    section.Add(shapes::CentredRectangle(4.0, 4.0));
    EXPECT_EQ(section.plain.Ixy, 0.0);
    EXPECT_EQ(section.plain.alpha, 0.0);
    EXPECT_EQ(section.weighted.alpha, 0.0);
    EXPECT_EQ(section.plain.Ixc, section.plain.Iyc);
}

TEST(SectionCharacteristics, EqualLegAngleTurnsByAnEighth)
{
    Section section;
    section.Add(shapes::Closed({shapes::Point(0, 0), shapes::Point(4, 0), shapes::Point(4, 1),
                                shapes::Point(1, 1), shapes::Point(1, 4), shapes::Point(0, 4)}));
    EXPECT_EQ(section.weighted.alpha, kPi / 4.0);
    // Ixyc is negative, so I1 = (Ixc + Iyc) / 2 - Ixyc is the larger one.
    EXPECT_NEAR(section.weighted.I1, section.weighted.Ixc - section.weighted.Ixyc, 1e-12);
    EXPECT_NEAR(section.weighted.I2, section.weighted.Ixc + section.weighted.Ixyc, 1e-12);
}

TEST(SectionCharacteristics, EqualMomentsOfAMovedSquareHaveNoAngle)
{
    // Ixy about the axes isn't 0, but about the centroid it is.
    Section section;
    section.Add(shapes::Rectangle(1.0, 1.0, 2.0, 2.0));
    EXPECT_NE(section.weighted.Ixy, 0.0);
    EXPECT_EQ(section.weighted.alpha, 0.0);
}

TEST(SectionCharacteristics, NearlyEqualMomentsDifferByGroup)
{
    // Sides 1 and 1 + 1e-12: equal moments for the weighted group, different ones for the plain group.
    Section section;
    section.Add(shapes::Moved(shapes::CentredRectangle(1.0, 1.0 + 1e-12), 0.0, 0.0));
    EXPECT_EQ(section.weighted.alpha, 0.0);
    section = Section();
    Outline const skew =
        shapes::Closed({shapes::Point(0, 0), shapes::Point(4, 0), shapes::Point(4, 1), shapes::Point(1, 1),
                        shapes::Point(1, 4.0 + 1e-11), shapes::Point(0, 4.0 + 1e-11)});
    section.Add(skew);
    EXPECT_EQ(section.weighted.alpha, kPi / 4.0);
    EXPECT_NE(section.plain.alpha, kPi / 4.0);
    EXPECT_NEAR(std::fabs(section.plain.alpha), kPi / 4.0, 1e-6);
}

TEST(SectionCharacteristics, StaticMomentsThatAreNoiseBecomeZeroInTheFirstGroup)
{
    // Thirds don't cancel exactly: what is left is noise against sqrt((Ix + Iy) A).
    double const third = 1.0 / 3.0;
    Section section;
    section.Add(shapes::Turned(shapes::CentredRectangle(third, 0.7), 0.3));
    EXPECT_EQ(section.weighted.Sx, 0.0);
    EXPECT_EQ(section.weighted.Sy, 0.0);
    EXPECT_EQ(section.weighted.Xc, 0.0);
    EXPECT_EQ(section.weighted.Yc, 0.0);
    EXPECT_NEAR(section.plain.Sx, 0.0, 1e-15);
}

TEST(SectionCharacteristics, OneVariableServesForUnwantedOutputs)
{
    Outline outline = shapes::Closed({shapes::Point(0, 0), shapes::Point(4, 0), shapes::Point(4, 1),
                                      shapes::Point(1, 1), shapes::Point(1, 6), shapes::Point(0, 6)});
    Group g;
    double x = 0.0;
    double none[6] = {};
    int direction = 0;
    CMathematics mathematics;
    mathematics.GetThoseCharacteristics(outline.data(), 0, direction, 6, 1.0, none[0], none[1], x, x, x, x,
                                        none[2], none[3], x, none[4], none[5], x, x, x, g.Ix, g.Iy, x, x,
                                        g.I1, g.I2, g.A, g.Ixy, x, g.Sx, g.Sy, g.Xc, g.Yc, g.alpha);
    Section const section = Section().Add(outline);
    EXPECT_EQ(g.I1, section.plain.I1);
    EXPECT_EQ(g.I2, section.plain.I2);
    EXPECT_EQ(g.alpha, section.plain.alpha);
}

TEST(SectionCharacteristics, MomentsThatAreNoNumbersHaveNoAngle)
{
    double const none = std::numeric_limits<double>::quiet_NaN();
    Section section;
    section.Add(shapes::Closed({shapes::Point(0, 0), shapes::Point(4, none), shapes::Point(0, 3)}));
    EXPECT_TRUE(std::isnan(section.weighted.alpha));
    EXPECT_TRUE(std::isnan(section.plain.alpha));
}

TEST(SectionCharacteristicsProperties, ParallelAxisTheorem)
{
    std::mt19937 random(42);
    std::uniform_real_distribution<double> shift(-50.0, 50.0);
    for (int run = 0; run < 300; ++run) {
        Outline const outline = shapes::RandomStar(random);
        double const dx = shift(random);
        double const dy = shift(random);
        Group const a = Section().Add(outline).plain;
        Group const b = Section().Add(shapes::Moved(outline, dx, dy)).plain;
        EXPECT_NEAR(b.A, a.A, 1e-9);
        EXPECT_NEAR(b.Xc, a.Xc + dx, 1e-9);
        EXPECT_NEAR(b.Yc, a.Yc + dy, 1e-9);
        EXPECT_NEAR(b.Ixc, a.Ixc, 1e-7);
        EXPECT_NEAR(b.Iyc, a.Iyc, 1e-7);
        EXPECT_NEAR(b.Ixyc, a.Ixyc, 1e-7);
        EXPECT_NEAR(b.Ix, a.Ixc + a.A * b.Yc * b.Yc, 1e-7);
        EXPECT_NEAR(b.Ixy, a.Ixyc + a.A * b.Xc * b.Yc, 1e-7);
    }
}

TEST(SectionCharacteristicsProperties, RotationOfAxes)
{
    std::mt19937 random(43);
    std::uniform_real_distribution<double> turn(-kPi, kPi);
    for (int run = 0; run < 300; ++run) {
        Outline const outline = shapes::RandomStar(random);
        double const angle = turn(random);
        double const c = std::cos(angle);
        double const s = std::sin(angle);
        Group const a = Section().Add(outline).plain;
        Group const b = Section().Add(shapes::Turned(outline, angle)).plain;
        // y' = x s + y c, x' = x c - y s.
        EXPECT_NEAR(b.Ix, a.Iy * s * s + a.Ix * c * c + 2.0 * a.Ixy * s * c, 1e-9);
        EXPECT_NEAR(b.Ixy, (a.Iy - a.Ix) * s * c + a.Ixy * (c * c - s * s), 1e-9);
        EXPECT_NEAR(std::min(b.I1, b.I2), std::min(a.I1, a.I2), 1e-9);
        EXPECT_NEAR(std::max(b.I1, b.I2), std::max(a.I1, a.I2), 1e-9);
    }
}

TEST(SectionCharacteristicsProperties, PrincipalAxesHaveNoProductMoment)
{
    std::mt19937 random(44);
    for (int run = 0; run < 300; ++run) {
        Outline const outline = shapes::RandomStar(random);
        Group const a = Section().Add(outline).plain;
        Group const b = Section().Add(shapes::Turned(outline, -a.alpha)).plain;
        EXPECT_NEAR(b.Ixyc, 0.0, 1e-9);
        EXPECT_NEAR(a.I1 + a.I2, a.Ixc + a.Iyc, 1e-9);
        EXPECT_NEAR(a.I1 * a.I2, a.Ixc * a.Iyc - a.Ixyc * a.Ixyc, 1e-6);
    }
}

TEST(SectionCharacteristicsProperties, UnitsScaleByTheirPowers)
{
    std::mt19937 random(45);
    for (double const factor : {1e-3, 1e3}) {
        Outline const outline = shapes::RandomStar(random);
        Group const a = Section().Add(outline).plain;
        Group const b = Section().Add(shapes::Scaled(outline, factor)).plain;
        EXPECT_NEAR(b.A / std::pow(factor, 2), a.A, 1e-9);
        EXPECT_NEAR(b.Ixc / std::pow(factor, 4), a.Ixc, 1e-9);
        EXPECT_NEAR(b.alpha, a.alpha, 1e-9);
    }
}
