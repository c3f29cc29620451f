#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "arc_samples.h"

using namespace arc_samples;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

double AngleAbout(TUVect3D const & normal, TUVect3D const & a, TUVect3D const & b)
{
    CMathematics math;
    double angle = -7.0;
    EXPECT_EQ(math.GetOrientAngle(a, b, normal, angle), 1);
    return angle;
}

TEST(GetArcLength, HalfCircleOfRadiusOneIsPi)
{
    CMathematics math;
    EXPECT_NEAR(math.GetArcLength(At(0, 0), At(2, 0), 1.0), kPi, 1e-15);
}

TEST(GetArcLength, EndsInOnePlaceHaveNone)
{
    CMathematics math;
    EXPECT_EQ(math.GetArcLength(At(1, 1), At(1, 1 + 0.9e-6), 5.0), 0.0);
}

TEST(GetArcLength, VanishingBulgeGivesTheChord)
{
    CMathematics math;
    EXPECT_EQ(math.GetArcLength(At(0, 0), At(3, 4), 0.9e-14), 5.0);
    EXPECT_EQ(math.GetArcLength(At(0, 0), At(3, 4), 0.0), 5.0);
}

TEST(GetArcLength, BulgeBelowMinusOneIsMeasuredAsTheSmallerArc)
{
    // Chord 8, bulge 2: R = 5, half angle of the smaller arc asin(0.8).
    CMathematics math;
    double const smaller = 2.0 * std::asin(0.8);
    EXPECT_NEAR(math.GetArcLength(At(0, 0), At(8, 0), 2.0), 5.0 * (2.0 * kPi - smaller), 1e-13);
    EXPECT_NEAR(math.GetArcLength(At(0, 0), At(8, 0), -2.0), 5.0 * smaller, 1e-13);
    EXPECT_NEAR(math.GetArcLength(At(0, 0), At(8, 0), -0.5), 5.0 * smaller, 1e-13);
}

TEST(GetArcLength, IsRadiusTimesAngleForAnyBulgeInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random));
        ASSERT_NEAR(math.GetArcLength(sample.edge.start, sample.edge.end, sample.edge.bulge), sample.Length(),
                    1e-7 * sample.Length())
            << sample.edge.bulge;
    }
}

TEST(GetAngleOfArc, GivesTheSmallerArc)
{
    CMathematics math;
    double angle;
    EXPECT_EQ(math.GetAngleOfArc(At(0, 0), At(8, 0), 5.0, angle), 1);
    EXPECT_NEAR(angle, 2.0 * std::asin(0.8), 1e-15);
}

TEST(GetAngleOfArc, ChordLongerThanTheDiameterWithinTheToleranceIsAHalfCircle)
{
    CMathematics math;
    double angle;
    EXPECT_EQ(math.GetAngleOfArc(At(0, 0), At(2.0000001, 0), 1.0, angle), 1);
    EXPECT_NEAR(angle, kPi, 1e-15);
}

TEST(GetAngleOfArc, ChordThatDoesntFitGivesZero)
{
    CMathematics math;
    double angle = -7.0;
    EXPECT_EQ(math.GetAngleOfArc(At(0, 0), At(2.00001, 0), 1.0, angle), 0);
    EXPECT_EQ(angle, 0.0);
    angle = -7.0;
    EXPECT_EQ(math.GetAngleOfArc(At(0, 0), At(0, 0), 0.0, angle), 0);
    EXPECT_EQ(angle, 0.0);
    EXPECT_EQ(math.GetAngleOfArc(At(0, 0), At(1, 0), kNaN, angle), 0);
}

TEST(GetOrientAngle, RightAnglesComeOutRounded)
{
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(1, 0), At(0, 1)), 1.5707963);
    EXPECT_EQ(AngleAbout(At(0, 0, -1), At(1, 0), At(0, 1)), 3.0 * 1.5707963);
    EXPECT_NEAR(AngleAbout(At(0, 0, -1), At(1, 0), At(0, 1)), 4.7123889, 1e-12);
}

TEST(GetOrientAngle, OppositeVectorsAreHalfATurnRoundedDown)
{
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(1, 0), At(-2, 0)), 3.1415926);
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(3, 4), At(-3, -4)), 3.1415926);
}

TEST(GetOrientAngle, VectorWithItselfIsZero)
{
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(1, 0), At(1, 0)), 0.0);
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(3, -4, 2), At(3, -4, 2)), 0.0);
}

TEST(GetOrientAngle, VectorToTheLeftWithItselfIsHalfATurn)
{
    // The sign of the second vector's x alone turns a vanishing angle into half a turn.
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(-1, 0), At(-1, 0)), 3.1415927);
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(-3, 4), At(-3, 4)), 3.1415927);
}

TEST(GetOrientAngle, OppositeSignsOfTwoTinyPartsTurnAVanishingAngle)
{
    // The sine 8e-9 is above 1e-9, the angle below 1e-8, and the y or z parts have opposite signs.
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(1, -4e-9), At(1, 4e-9)), 3.1415927);
    EXPECT_EQ(AngleAbout(At(0, -1, 0), At(1, 0, -4e-9), At(1, 0, 4e-9)), 3.1415927);
    EXPECT_NEAR(AngleAbout(At(0, 0, 1), At(1, 0), At(1, 8e-9)), 8e-9, 1e-15);
}

TEST(GetOrientAngle, EachQuadrantAddsTheRoundedHalfTurn)
{
    double const eighth = std::atan(1.0);
    EXPECT_NEAR(AngleAbout(At(0, 0, 1), At(1, 0), At(1, 1)), eighth, 1e-15);
    EXPECT_NEAR(AngleAbout(At(0, 0, 1), At(1, 0), At(-1, 1)), 3.1415927 - eighth, 1e-15);
    EXPECT_NEAR(AngleAbout(At(0, 0, 1), At(1, 0), At(-1, -1)), 3.1415927 + eighth, 1e-15);
    EXPECT_NEAR(AngleAbout(At(0, 0, 1), At(1, 0), At(1, -1)), 2.0 * 3.1415927 - eighth, 1e-15);
}

TEST(GetOrientAngle, ShortVectorsHaveNone)
{
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(0.9e-7, 0), At(0, 1)), 0.0);
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(1, 0), At(0, 0.9e-7)), 0.0);
    EXPECT_EQ(AngleAbout(At(0, 0, 1), At(1.1e-7, 0), At(0, 1)), 1.5707963);
}

TEST(GetOrientAngle, AgreesWithTheAngleOfTheMakingInAnyPlane)
{
    std::mt19937 random(2);
    std::uniform_real_distribution<double> turn(0.01, 2.0 * kPi - 0.01);
    for (int i = 0; i < 2000; ++i) {
        Frame const frame = RandomFrame(random);
        double const angle = turn(random);
        TUVect3D const b = Combined(At(0, 0), 3 * std::cos(angle), frame.e1, 3 * std::sin(angle), frame.e2);
        ASSERT_NEAR(AngleAbout(frame.e3, frame.e1, b), angle, 3e-7);
    }
}
}  // namespace
