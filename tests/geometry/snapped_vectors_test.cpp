#include "geometry/snapped_vectors.h"

#include "space_samples.h"

using namespace detail;
using space::P;

namespace {
/// The rule itself, without the shortcut in front of its division.
double SnapByRule(double value, double scale)
{
    return std::fabs(scale) > 1e-14 && std::fabs(value / scale) < 1e-14 ? 0.0 : value;
}

bool SameDouble(double a, double b)
{
    return a == b ? std::signbit(a) == std::signbit(b) : std::isnan(a) && std::isnan(b);
}
}  // namespace

TEST(SnapNoise, TakesNoiseAgainstItsScale)
{
    EXPECT_EQ(SnapNoise(0.9e-14, 1.0), 0.0);
    EXPECT_EQ(SnapNoise(-0.9e-14, 1.0), 0.0);
    EXPECT_EQ(SnapNoise(0.9e-14, -1.0), 0.0);
    EXPECT_EQ(SnapNoise(1.1e-14, 1.0), 1.1e-14);
    EXPECT_EQ(SnapNoise(1e-14, 1.0), 1e-14);
}

TEST(SnapNoise, LeavesTinyScalesAlone)
{
    EXPECT_EQ(SnapNoise(1e-30, 1e-14), 1e-30);
    EXPECT_EQ(SnapNoise(1e-30, 1.1e-14), 0.0);
    EXPECT_EQ(SnapNoise(1e-30, 0.0), 1e-30);
}

TEST(SnapNoise, GivesWhatTheRuleGives)
{
    for (double const value : space::kOddValues)
        for (double const scale : space::kOddValues)
            EXPECT_TRUE(SameDouble(SnapNoise(value, scale), SnapByRule(value, scale)))
                << value << ' ' << scale;
    space::Random random(1);
    for (int i = 0; i < 100000; ++i) {
        double const scale = std::pow(10.0, random.Between(-20.0, 20.0));
        double const value = scale * random.Between(-4e-14, 4e-14);
        ASSERT_EQ(SnapNoise(value, scale), SnapByRule(value, scale)) << value << ' ' << scale;
    }
}

TEST(SnappedVectors, SumAndDifferenceLoseNoise)
{
    // 0.1 + 0.2 - 0.3 leaves 5.6e-17 in plain arithmetic.
    TUVect3D const sum = P(0.1 + 0.2, 1.0, 1.0) - P(0.3, 1.0, 0.5);
    EXPECT_EQ(sum.x, 0.0);
    EXPECT_EQ(sum.y, 0.0);
    EXPECT_EQ(sum.z, 0.5);
    TUVect2D const plane = TUVect2D{{0.1 + 0.2, 1.0}} + TUVect2D{{-0.3, 1.0}};
    EXPECT_EQ(plane.x, 0.0);
    EXPECT_EQ(plane.y, 2.0);
}

TEST(SnappedVectors, ProductWithANumberIsPlain)
{
    EXPECT_EQ((P(1e-20, 2.0, 3.0) * 2.0).x, 2e-20);
    EXPECT_EQ((2.0 * P(1e-20, 2.0, 3.0)).z, 6.0);
    EXPECT_EQ((-P(1.0, -2.0, 3.0)).y, 2.0);
}

TEST(SnappedVectors, DotLosesNoise)
{
    // (0.1, 0.7) . (7, -1) is 1.1e-16 in plain arithmetic.
    EXPECT_EQ(Dot(P(0.1, 0.7), P(7.0, -1.0)), 0.0);
    EXPECT_EQ(Dot(TUVect2D{{0.1, 0.7}}, TUVect2D{{7.0, -1.0}}), 0.0);
    EXPECT_EQ(Dot(P(1.0, 2.0, 3.0), P(4.0, 5.0, 6.0)), 32.0);
}

TEST(SnappedVectors, CrossLosesNoiseByComponent)
{
    TUVect3D const cross = Cross(P(0.1, 0.7, 1.0), P(1.0, 7.0, 0.0));
    EXPECT_EQ(cross.z, 0.0);  // 0.1 * 7 - 0.7 * 1
    EXPECT_EQ(cross.x, -7.0);
    EXPECT_EQ(cross.y, 1.0);
}

TEST(SnappedVectors, UnitOfZeroIsZero)
{
    EXPECT_EQ(Length(Unit(P(0.0, 0.0, 0.0))), 0.0);
    EXPECT_EQ(Length(Unit(TUVect2D{})), 0.0);
    space::ExpectPoint(Unit(P(0.0, 3.0, 4.0)), P(0.0, 0.6, 0.8));
    space::ExpectPoint(Unit(TUVect2D{{3.0, 4.0}}), TUVect2D{{0.6, 0.8}});
    EXPECT_EQ(Length(P(2.0, 3.0, 6.0)), 7.0);
}

TEST(SnappedVectors, WidenedHasNoHeight)
{
    TUVect3D const wide = Widened(TUVect2D{{1.0, 2.0}});
    EXPECT_EQ(wide.x, 1.0);
    EXPECT_EQ(wide.y, 2.0);
    EXPECT_EQ(wide.z, 0.0);
}
