#include <climits>
#include <type_traits>

#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

TEST(Kernel, HasRunTimeClassInformation)
{
    CMathematics math;
    EXPECT_STREQ(math.GetRuntimeClass()->m_lpszClassName, "CMathematics");
    EXPECT_TRUE(math.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(math.IsSerializable());
    EXPECT_TRUE(std::has_virtual_destructor_v<CMathematics>);
}

TEST(Kernel, StartsWithItsToleranceAndPen)
{
    CMathematics const math;
    EXPECT_EQ(math.GetOkoli(), 1e-6);
    EXPECT_EQ(math.m_iPenX, 0);
    EXPECT_EQ(math.m_iPenY, 0);
    EXPECT_EQ(PlainLength(math.m_PenPoint3D), 0.0);
}

TEST(Tolerance, SetReturnsThePreviousOne)
{
    CMathematics math;
    EXPECT_EQ(math.SetOkoli(0.01), 1e-6);
    EXPECT_EQ(math.GetOkoli(), 0.01);
    EXPECT_EQ(math.SetOkoli(1.0), 0.01);
}

TEST(Rounding, HalvesGoAwayFromZero)
{
    CMathematics math;
    EXPECT_EQ(math.Round(2.5), 3.0);
    EXPECT_EQ(math.Round(-2.5), -3.0);
    EXPECT_EQ(math.Round(2.4), 2.0);
    EXPECT_EQ(math.Round(-2.4), -2.0);
    EXPECT_EQ(math.Round(0.0), 0.0);
}

TEST(Rounding, ToIntStaysWithinAnInt)
{
    CMathematics math;
    EXPECT_EQ(math.RoundToInt(-2.5), -3);
    EXPECT_EQ(math.RoundToInt(7.49), 7);
    EXPECT_EQ(math.RoundToInt(1e300), INT_MAX);
    EXPECT_EQ(math.RoundToInt(-kInfinity), INT_MIN);
    EXPECT_EQ(math.RoundToInt(kNan), 0);
}

TEST(Rounding, WithPrecisionHalvesGoUpward)
{
    CMathematics math;
    EXPECT_EQ(math.GetValWithPrecision(-2.5, 1.0), -2.0);
    EXPECT_EQ(math.GetValWithPrecision(2.5, 1.0), 3.0);
    EXPECT_EQ(math.GetValWithPrecision(-2.6, 1.0), -3.0);
    EXPECT_EQ(math.GetValWithPrecision(2.3, 0.5), 2.5);
    EXPECT_EQ(math.GetValWithPrecision(2.2, 0.5), 2.0);
    EXPECT_EQ(math.GetValWithPrecision(4.0, 2.0), 4.0);
}

TEST(Angles, ConvertInTheirOrderOfOperations)
{
    CMathematics math;
    for (double const value : {0.1, 1.0, 45.0, 360.0, -17.3}) {
        EXPECT_EQ(math.RadiansToDegrees(value), 180.0 * value / 3.141592653589793);
        EXPECT_EQ(math.DegreesToRadians(value), value * 3.141592653589793 / 180.0);
    }
}

TEST(Angles, OrientedAddsOneTurnToNegatives)
{
    CMathematics math;
    EXPECT_DOUBLE_EQ(math.GetOrientedAngle(-1.0), 2.0 * kPi - 1.0);
    EXPECT_EQ(math.GetOrientedAngle(0.0), 0.0);
    EXPECT_EQ(math.GetOrientedAngle(9.0), 9.0);
    EXPECT_DOUBLE_EQ(math.GetOrientedAngle(-9.0), 2.0 * kPi - 9.0);
}

TEST(Angles, DirectionInAllQuadrants)
{
    CMathematics math;
    TUVect2D const base = Q(1.0, 2.0);
    for (double angle = 0.05; angle < 2.0 * kPi; angle += 0.1)
        EXPECT_NEAR(math.GetAlfa(base, Q(1.0 + 3.0 * std::cos(angle), 2.0 + 3.0 * std::sin(angle))), angle,
                    1e-14);
    EXPECT_EQ(math.GetAlfa(base, Q(5.0, 2.0)), 0.0);
    EXPECT_DOUBLE_EQ(math.GetAlfa(base, Q(-5.0, 2.0)), kPi);
}

TEST(Angles, VerticalDirectionsAreExact)
{
    CMathematics math;
    EXPECT_EQ(math.GetAlfa(Q(1.0, 2.0), Q(1.0, 5.0)), kPi / 2.0);
    EXPECT_EQ(math.GetAlfa(Q(1.0, 2.0), Q(1.0, 1.0)), 3.0 * kPi / 2.0);
    EXPECT_EQ(math.GetAlfa(Q(0.0, 2.0), Q(1e-14, 1.0)), 3.0 * kPi / 2.0);
    EXPECT_EQ(math.GetAlfa(Q(1.0, 2.0), Q(1.0, 2.0)), kPi / 2.0);
}

TEST(Polar, GoesFromTheBaseInTheDirection)
{
    CMathematics math;
    TUVect2D result;
    math.Polar(Q(1.0, 1.0), kPi / 6.0, 2.0, result);
    ExpectPoint(result, Q(1.0 + std::sqrt(3.0), 2.0));
}

TEST(Rotate, TurnsAnticlockwise)
{
    CMathematics math;
    ExpectPoint(math.rotate(Q(2.0, 0.0), kPi / 2.0), Q(0.0, 2.0));
    ExpectPoint(math.rotate(Q(0.0, 1.0), kPi / 2.0), Q(-1.0, 0.0));
}

TEST(VectorLength, IsThePlainRoot)
{
    CMathematics math;
    TUVect3D const v = P(2.0, 3.0, 6.0);
    EXPECT_EQ(math.GetSizeOfVector(&v), 7.0);
    EXPECT_EQ(math.GetDistance(Q(1.0, 1.0), Q(4.0, 5.0)), 5.0);
    EXPECT_EQ(math.GetDistance(P(1.0, 1.0, 1.0), P(3.0, 4.0, 7.0)), 7.0);
}

TEST(VectorLength, Distance3DIsTheSnappedDifference)
{
    CMathematics math;
    TUVect3D result;
    EXPECT_EQ(math.GetDistance3D(P(0.3, 1.0, 2.0), P(0.1 + 0.2, 5.0, 1.0), result), 1);
    EXPECT_EQ(result.x, 0.0);
    EXPECT_EQ(result.y, 4.0);
    EXPECT_EQ(result.z, -1.0);
}

TEST(Normalising, MakesAUnitVector)
{
    CMathematics math;
    TUVect3D v = P(0.0, 3.0, 4.0);
    EXPECT_EQ(math.NormOfVector(&v), 1);
    ExpectPoint(v, P(0.0, 0.6, 0.8), 1e-16);
    TUVect2D w = Q(-3.0, 4.0);
    EXPECT_EQ(math.NormOfVector(&w), 1);
    ExpectPoint(w, Q(-0.6, 0.8), 1e-16);
}

TEST(Normalising, ShortVectorsStay)
{
    CMathematics math;
    for (double const x : {1e-8, 1e-7, 0.0}) {
        TUVect3D v = P(x, 0.0, 0.0);
        EXPECT_EQ(math.NormOfVector(&v), 0);
        EXPECT_EQ(v.x, x);
        TUVect2D w = Q(x, 0.0);
        EXPECT_EQ(math.NormOfVector(&w), 0);
        EXPECT_EQ(w.x, x);
    }
    TUVect3D v = P(1.01e-7, 0.0, 0.0);
    EXPECT_EQ(math.NormOfVector(&v), 1);
}

TEST(Normalising, PlaneVectorLosesNoiseAgainstItsLength)
{
    CMathematics math;
    // 1e-13 / 10 = 1e-14 stays, relative to the length 10 it is noise.
    TUVect2D w = Q(10.0, 1e-13);
    EXPECT_EQ(math.NormOfVector(&w), 1);
    EXPECT_EQ(w.y, 0.0);
    TUVect3D v = P(10.0, 1e-13, 0.0);
    EXPECT_EQ(math.NormOfVector(&v), 1);
    EXPECT_NE(v.y, 0.0);
}

TEST(Normalising, WhatIsNotFiniteFails)
{
    CMathematics math;
    for (double const bad : {kNan, kInfinity, 1e200}) {
        TUVect3D v = P(bad, 1.0, 0.0);
        EXPECT_EQ(math.NormOfVector(&v), 0);
        EXPECT_EQ(v.y, 1.0);
    }
}

TEST(VectorProduct, IsAUnitNormalAndNormalisesItsArguments)
{
    CMathematics math;
    TUVect3D a = P(2.0, 0.0, 0.0);
    TUVect3D b = P(0.0, 3.0, 0.0);
    TUVect3D result;
    EXPECT_EQ(math.VectorProduct(&a, &b, &result), 1);
    ExpectPoint(result, P(0.0, 0.0, 1.0), 0.0);
    ExpectPoint(a, P(1.0, 0.0, 0.0), 0.0);
    ExpectPoint(b, P(0.0, 1.0, 0.0), 0.0);
}

TEST(VectorProduct, NearlyParallelVectorsFailButAreNormalised)
{
    CMathematics math;
    TUVect3D a = P(4.0, 0.0, 0.0);
    TUVect3D b = P(1.0, 0.0004, 0.0);
    TUVect3D result = P(9.0, 9.0, 9.0);
    EXPECT_EQ(math.VectorProduct(&a, &b, &result), 0);
    ExpectPoint(result, P(0.0, 0.0, 0.0), 0.0);
    EXPECT_EQ(a.x, 1.0);
    EXPECT_LT(b.x, 1.0);
}

TEST(VectorProduct, ShortVectorsFailAndNothingElseChanges)
{
    CMathematics math;
    TUVect3D a = P(4.0, 0.0, 0.0);
    TUVect3D b = P(0.0, 1e-7, 0.0);
    TUVect3D result = P(9.0, 9.0, 9.0);
    EXPECT_EQ(math.VectorProduct(&a, &b, &result), 0);
    EXPECT_EQ(math.VectorProduct(&b, &a, &result), 0);
    ExpectPoint(result, P(0.0, 0.0, 0.0), 0.0);
    EXPECT_EQ(a.x, 4.0);
    EXPECT_EQ(b.y, 1e-7);
}

TEST(VectorProduct, LimitIsTheSine)
{
    CMathematics math;
    for (auto const & [sine, expected] : {std::pair(0.000499, 0), std::pair(0.000501, 1)}) {
        TUVect3D a = P(1.0, 0.0, 0.0);
        TUVect3D b = P(std::sqrt(1.0 - sine * sine), 0.0, sine);
        TUVect3D result;
        EXPECT_EQ(math.VectorProduct(&a, &b, &result), expected);
    }
}

TEST(VectorProduct, OddNumbersFailOrGiveAUnitVector)
{
    CMathematics math;
    Random random(2);
    for (int i = 0; i < 20000; ++i) {
        TUVect3D a = random.OddPoint();
        TUVect3D b = random.OddPoint();
        TUVect3D result;
        if (math.VectorProduct(&a, &b, &result))
            ASSERT_NEAR(PlainLength(result), 1.0, 1e-12);
        else
            ASSERT_EQ(PlainLength(result), 0.0);
    }
}

TEST(ScalarProduct, IsPlain)
{
    CMathematics math;
    TUVect3D a = P(0.1, 0.7, 0.0);
    TUVect3D b = P(7.0, -1.0, 0.0);
    double result;
    EXPECT_EQ(math.ScalarProduct(&a, &b, result), 1);
    EXPECT_EQ(result, 0.1 * 7.0 + 0.7 * -1.0);
}

TEST(SinOfVectors, IsTheSineOrZeroForShortOnes)
{
    CMathematics math;
    TUVect3D a = P(2.0, 0.0, 0.0);
    TUVect3D b = P(3.0, 3.0, 0.0);
    double sine;
    math.SinOfVectors(&a, &b, &sine);
    EXPECT_NEAR(sine, std::sqrt(0.5), 1e-15);
    EXPECT_EQ(a.x, 2.0);
    TUVect3D shortOne = P(0.0, 1e-10, 0.0);
    math.SinOfVectors(&a, &shortOne, &sine);
    EXPECT_EQ(sine, 0.0);
    shortOne.y = 1.01e-10;
    math.SinOfVectors(&a, &shortOne, &sine);
    EXPECT_NEAR(sine, 1.0, 1e-15);
}

TEST(SetPoint, FillsThePoint)
{
    CMathematics math;
    ExpectPoint(math.SetPoint3D(1.0, 2.0, 3.0), P(1.0, 2.0, 3.0), 0.0);
}
