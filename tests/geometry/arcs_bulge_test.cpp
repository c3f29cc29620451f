#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "arc_samples.h"

using namespace arc_samples;

namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TSPlaneEdge2D PlaneEdge(TUVect2D const & start, TUVect2D const & end, double bulge)
{
    return {start, end, bulge};
}

// ---- two points and centre ------------------------------------------------------------------------------

TEST(CalcBulgeOf3DArc2PtsAndCenter, SmallerArcHasItsApexAwayFromTheCentre)
{
    CMathematics math;
    TUVect3D centre = At(4, -3);
    TUVect3D vector;
    double bulge;
    EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndCenter(At(0, 0), At(8, 0), centre, &vector, bulge, 1), 1);
    EXPECT_NEAR(bulge, 0.5, 1e-15);
    ExpectNear(vector, At(0, 3), 1e-15);
}

TEST(CalcBulgeOf3DArc2PtsAndCenter, AnyOtherValueGivesTheArcRoundTheCentre)
{
    CMathematics math;
    TUVect3D centre = At(4, -3);
    for (int const smaller : {0, 2, -1}) {
        TUVect3D vector;
        double bulge;
        EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndCenter(At(0, 0), At(8, 0), centre, &vector, bulge, smaller), 1);
        EXPECT_NEAR(bulge, 2.0, 1e-15);
        ExpectNear(vector, At(0, -3), 1e-15);
    }
}

TEST(CalcBulgeOf3DArc2PtsAndCenter, HalfCircleGivesZeroWithItsBulge)
{
    CMathematics math;
    TUVect3D centre = At(1, 0);
    TUVect3D vector = At(-7, -7);
    double bulge = -7.0;
    EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndCenter(At(0, 0), At(2, 0), centre, &vector, bulge, 1), 0);
    EXPECT_EQ(bulge, 1.0);
    ExpectNear(vector, At(0, 0), 0.0);
}

TEST(CalcBulgeOf3DArc2PtsAndCenter, ZeroChordFailsWithBulgeZero)
{
    CMathematics math;
    TUVect3D centre = At(1, 0);
    TUVect3D vector;
    double bulge = -7.0;
    EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndCenter(At(0, 0), At(0, 0), centre, &vector, bulge, 1), 0);
    EXPECT_EQ(bulge, 0.0);
    EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndCenter(At(kNaN, 0), At(0, 0), centre, &vector, bulge, 1), 0);
}

// ---- two points and radius ------------------------------------------------------------------------------

TEST(CalcBulgeOf3DArc2PtsAndRadius, GivesTheSmallerArc)
{
    CMathematics math;
    double bulge;
    EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndRadius(At(0, 0), At(8, 0), 5.0, bulge), 1);
    EXPECT_NEAR(bulge, 0.5, 1e-15);
}

TEST(CalcBulgeOf3DArc2PtsAndRadius, ZeroChordFailsWithBulgeZero)
{
    CMathematics math;
    double bulge = -7.0;
    EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndRadius(At(3, 3), At(3, 3), 5.0, bulge), 0);
    EXPECT_EQ(bulge, 0.0);
}

TEST(CalcBulgeOf3DArc2PtsAndRadius, TooSmallARadiusIsTakenByItsSize)
{
    // t = |25 - 100| and so bulge = (5 - sqrt 75) / 10.
    CMathematics math;
    double bulge;
    EXPECT_EQ(math.CalcBulgeOf3DArc2PtsAndRadius(At(0, 0), At(20, 0), 5.0, bulge), 1);
    EXPECT_NEAR(bulge, (5.0 - std::sqrt(75.0)) / 10.0, 1e-15);
}

// ---- three points ---------------------------------------------------------------------------------------

TEST(CalcBulgeOf3DArc3Points, ObtuseAngleAtTheMiddlePointMakesTheSmallerArc)
{
    CMathematics math;
    TUVect3D vector;
    double bulge;
    EXPECT_EQ(math.CalcBulgeOf3DArc3Points(At(0, 0), At(8, 0), At(4, 2), &vector, bulge), 1);
    EXPECT_NEAR(bulge, 0.5, 1e-14);
    ExpectNear(vector, At(0, 1), 1e-15);
}

TEST(CalcBulgeOf3DArc3Points, AcuteAngleMakesTheLargerArc)
{
    CMathematics math;
    TUVect3D vector;
    double bulge;
    EXPECT_EQ(math.CalcBulgeOf3DArc3Points(At(0, 0), At(8, 0), At(4, -8), &vector, bulge), 1);
    EXPECT_NEAR(bulge, 2.0, 1e-14);
    ExpectNear(vector, At(0, -1), 1e-15);
}

TEST(CalcBulgeOf3DArc3Points, RightAngleMakesAHalfCircle)
{
    CMathematics math;
    TUVect3D vector;
    double bulge;
    EXPECT_EQ(math.CalcBulgeOf3DArc3Points(At(0, 0), At(2, 0), At(1, 1), &vector, bulge), 1);
    EXPECT_NEAR(bulge, 1.0, 1e-12);
}

TEST(CalcBulgeOf3DArc3Points, PointsOnOneLineFailWithBothCleared)
{
    CMathematics math;
    TUVect3D vector = At(-7, -7);
    double bulge = -7.0;
    EXPECT_EQ(math.CalcBulgeOf3DArc3Points(At(0, 0), At(2, 0), At(1, 0), &vector, bulge), 0);
    EXPECT_EQ(bulge, 0.0);
    ExpectNear(vector, At(0, 0), 0.0);
    // Within the limit of parallel vectors.
    EXPECT_EQ(math.CalcBulgeOf3DArc3Points(At(0, 0), At(2, 0), At(1, 0.0004), &vector, bulge), 0);
    EXPECT_EQ(math.CalcBulgeOf3DArc3Points(At(0, 0), At(2, 0), At(0, 0), &vector, bulge), 0);
    EXPECT_EQ(math.CalcBulgeOf3DArc3Points(At(0, 0), At(2, 0), At(kNaN, 1), &vector, bulge), 0);
}

TEST(CalcBulgeOf3DArc3Points, FindsTheArcAgainFromAnyPointOfIt)
{
    CMathematics math;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> share(0.2, 0.8);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random, 0.01, 20.0));
        TUVect3D const through = sample.Point(sample.sweep * share(random));
        TUVect3D vector;
        double bulge;
        ASSERT_EQ(math.CalcBulgeOf3DArc3Points(sample.edge.start, sample.edge.end, through, &vector, bulge),
                  1);
        ASSERT_NEAR(bulge, sample.edge.bulge, 1e-4 * sample.edge.bulge);
        TUVect3D const toApex = Minus(sample.Apex(), sample.centre);
        ASSERT_NEAR(PlainDot(vector, toApex), sample.radius, 1e-9 * sample.radius);
    }
}

// ---- numbers --------------------------------------------------------------------------------------------

TEST(CalcBulgeLengthAndRadius, DiameterGivesOneForBothSizes)
{
    CMathematics math;
    double bulge;
    EXPECT_EQ(math.CalcBulgeLengthAndRadius(2.0, 1.0, bulge, 0), 1);
    EXPECT_EQ(bulge, 1.0);
    EXPECT_EQ(math.CalcBulgeLengthAndRadius(2.0, 1.0, bulge, 1), 1);
    EXPECT_EQ(bulge, 1.0);
}

TEST(CalcBulgeLengthAndRadius, SizeChoosesTheRoot)
{
    CMathematics math;
    double bulge;
    EXPECT_EQ(math.CalcBulgeLengthAndRadius(8.0, 5.0, bulge, 0), 1);
    EXPECT_NEAR(bulge, 0.5, 1e-15);
    EXPECT_EQ(math.CalcBulgeLengthAndRadius(8.0, 5.0, bulge, 3), 1);
    EXPECT_NEAR(bulge, 2.0, 1e-15);
}

TEST(CalcBulgeLengthAndRadius, ImpossibleNumbersFailWithBulgeZero)
{
    CMathematics math;
    double const cases[][2] = {{8.0, 0.0}, {1e-14, 1.0}, {-1e-14, 1.0}, {8.0, 3.9}, {8.0, kNaN}, {kNaN, 1.0}};
    for (auto const & [chord, radius] : cases) {
        double bulge = -7.0;
        EXPECT_EQ(math.CalcBulgeLengthAndRadius(chord, radius, bulge, 0), 0) << chord << ' ' << radius;
        EXPECT_EQ(bulge, 0.0);
    }
}

TEST(CalcRadiusFromBulgeAndLength, SignTurnsRadiusAndSize)
{
    CMathematics math;
    struct
    {
        double bulge, radius;
        int big;
    } const cases[] = {{0.5, 5.0, 0}, {2.0, 5.0, 1}, {1.0, 4.0, 0}, {-0.5, -5.0, 1}, {-2.0, -5.0, 0}};
    for (auto const & row : cases) {
        double radius;
        int big = -7;
        EXPECT_EQ(math.CalcRadiusFromBulgeAndLength(row.bulge, 8.0, radius, big), 1);
        EXPECT_NEAR(radius, row.radius, 1e-14);
        EXPECT_EQ(big, row.big) << row.bulge;
    }
}

TEST(CalcRadiusFromBulgeAndLength, FlatBulgeFailsWithRadiusZero)
{
    CMathematics math;
    double radius = -7.0;
    int big = -7;
    EXPECT_EQ(math.CalcRadiusFromBulgeAndLength(0.9e-5, 8.0, radius, big), 0);
    EXPECT_EQ(radius, 0.0);
    EXPECT_EQ(big, -7);
    EXPECT_EQ(math.CalcRadiusFromBulgeAndLength(kNaN, 8.0, radius, big), 0);
}

TEST(BulgeNumbers, RadiusAndBulgeGiveEachOtherBack)
{
    CMathematics math;
    std::mt19937 random(2);
    for (int i = 0; i < 2000; ++i) {
        double const bulge = RandomBulge(random);
        double radius;
        int big;
        double again;
        ASSERT_EQ(math.CalcRadiusFromBulgeAndLength(bulge, 3.0, radius, big), 1);
        ASSERT_EQ(math.CalcBulgeLengthAndRadius(3.0, radius, again, big), 1);
        ASSERT_NEAR(again, bulge, 1e-6 * bulge);
    }
}

// ---- complement -----------------------------------------------------------------------------------------

TEST(GetArcComplement, IsTheOtherArcOfTheCircle)
{
    CMathematics math;
    TUVect3D vector;
    double bulge;
    EXPECT_EQ(math.GetArcComplement(At(0, 0), At(8, 0), At(0, 1), 0.5, vector, bulge), 1);
    EXPECT_NEAR(bulge, 2.0, 1e-15);
    ExpectNear(vector, At(0, -1), 0.0);
}

TEST(GetArcComplement, SharesTheCircleAndFillsItForAnyBulge)
{
    CMathematics math;
    std::mt19937 random(3);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random, 1e-3, 50.0));
        TSPlaneEdge3D const & edge = sample.edge;
        TUVect3D vector;
        double bulge;
        TUVect3D centre;
        ASSERT_EQ(math.GetArcComplement(edge.start, edge.end, edge.arcVector, edge.bulge, vector, bulge), 1);
        ASSERT_NEAR(bulge * edge.bulge, 1.0, 1e-9);
        ASSERT_EQ(math.Get3DArcCenter(edge.start, edge.end, vector, bulge, centre), 1);
        ASSERT_LT(Distance(centre, sample.centre), 1e-9 * sample.radius + 1e-9);
        double const around = math.GetArcLength(edge.start, edge.end, edge.bulge) +
                              math.GetArcLength(edge.start, edge.end, bulge);
        ASSERT_NEAR(around, 2.0 * kPi * sample.radius, 1e-8 * sample.radius);
    }
}

// ---- edges beside an arc --------------------------------------------------------------------------------

TEST(ReduceBulge, LongerChordGoesOutsideAndShorterInside)
{
    // Chord 8, bulge 0.5: R = 5. Outside R = 6, chord 9.6: sagitta 6 - sqrt(36 - 23.04) = 2.4, bulge 0.5.
    // Inside R = 4, chord 6.4: sagitta 4 - 2.4 = 1.6, bulge 0.5.
    CMathematics math;
    TSPlaneEdge2D const old = PlaneEdge(At2D(0, 0), At2D(8, 0), 0.5);
    TSPlaneEdge2D a = PlaneEdge(At2D(0, 0), At2D(9.6, 0), -7.0);
    TSPlaneEdge2D b = PlaneEdge(At2D(0, 0), At2D(6.4, 0), -7.0);
    EXPECT_EQ(math.ReduceBulge(old, a, b, 1.0), 1);
    EXPECT_NEAR(a.bulge, 0.5, 1e-14);
    EXPECT_NEAR(b.bulge, 0.5, 1e-14);
    EXPECT_EQ(a.end.x, 9.6);
}

TEST(ReduceBulge, LargerArcTakesTheOtherRootAndNegativeBulgeTurnsBoth)
{
    CMathematics math;
    for (double const side : {1.0, -1.0}) {
        TSPlaneEdge2D const old = PlaneEdge(At2D(0, 0), At2D(8, 0), side * 2.0);
        TSPlaneEdge2D a = PlaneEdge(At2D(0, 0), At2D(9.6, 0), 0.0);
        TSPlaneEdge2D b = PlaneEdge(At2D(0, 0), At2D(6.4, 0), 0.0);
        EXPECT_EQ(math.ReduceBulge(old, a, b, 1.0), 1);
        EXPECT_NEAR(a.bulge, side * 2.0, 1e-14);
        EXPECT_NEAR(b.bulge, side * 2.0, 1e-14);
    }
}

TEST(ReduceBulge, EqualChordCountsAsOutside)
{
    CMathematics math;
    TSPlaneEdge2D const old = PlaneEdge(At2D(0, 0), At2D(8, 0), 0.5);
    TSPlaneEdge2D a = PlaneEdge(At2D(0, 0), At2D(8, 0), 0.0);
    TSPlaneEdge2D b = a;
    EXPECT_EQ(math.ReduceBulge(old, a, b, 1.0), 1);
    double const expected = (6.0 - std::sqrt(20.0)) / 4.0;
    EXPECT_NEAR(a.bulge, expected, 1e-14);
    EXPECT_NEAR(b.bulge, expected, 1e-14);
}

TEST(ReduceBulge, BesideAHalfCircleTheEdgesGoToOppositeBranches)
{
    // R = 4, offset 1; a: chord 9, R 5, t = 25 - 20.25 = 4.75; b: chord 5, R 3, t = 9 - 6.25 = 2.75.
    CMathematics math;
    TSPlaneEdge2D a = PlaneEdge(At2D(0, 0), At2D(9, 0), 0.0);
    TSPlaneEdge2D b = PlaneEdge(At2D(0, 0), At2D(5, 0), 0.0);
    EXPECT_EQ(math.ReduceBulge(PlaneEdge(At2D(0, 0), At2D(8, 0), 1.0), a, b, 1.0), 1);
    EXPECT_NEAR(a.bulge, (5.0 + std::sqrt(4.75)) / 4.5, 1e-14);
    EXPECT_NEAR(b.bulge, (3.0 - std::sqrt(2.75)) / 2.5, 1e-14);
}

TEST(ReduceBulge, BesideANegativeHalfCircleBothTakeTheRootOfTheFirst)
{
    CMathematics math;
    TSPlaneEdge2D a = PlaneEdge(At2D(0, 0), At2D(9, 0), 0.0);
    TSPlaneEdge2D b = PlaneEdge(At2D(0, 0), At2D(5, 0), 0.0);
    EXPECT_EQ(math.ReduceBulge(PlaneEdge(At2D(0, 0), At2D(8, 0), -1.0), a, b, 1.0), 1);
    EXPECT_NEAR(a.bulge, -(5.0 - std::sqrt(4.75)) / 4.5, 1e-14);
    EXPECT_NEAR(b.bulge, -(3.0 + std::sqrt(4.75)) / 2.5, 1e-14);
}

TEST(ReduceBulge, ArcTooSmallForTheOffsetFailsUntouched)
{
    // Inside R = 5 - 3 = 2 is less than the half chord 3.2.
    CMathematics math;
    TSPlaneEdge2D a = PlaneEdge(At2D(0, 0), At2D(9.6, 0), -7.0);
    TSPlaneEdge2D b = PlaneEdge(At2D(0, 0), At2D(6.4, 0), -7.0);
    EXPECT_EQ(math.ReduceBulge(PlaneEdge(At2D(0, 0), At2D(8, 0), 0.5), a, b, 3.0), 0);
    EXPECT_EQ(a.bulge, -7.0);
    EXPECT_EQ(b.bulge, -7.0);
}

TEST(ReduceBulge, WithoutARadiusItFailsUntouched)
{
    CMathematics math;
    TSPlaneEdge2D const straight = PlaneEdge(At2D(0, 0), At2D(8, 0), 0.0);
    TSPlaneEdge2D const point = PlaneEdge(At2D(0, 0), At2D(0, 0), 0.5);
    TSPlaneEdge2D const huge = PlaneEdge(At2D(0, 0), At2D(kInfinity, 0), 0.5);
    for (TSPlaneEdge2D const & old : {straight, point, huge}) {
        TSPlaneEdge2D a = PlaneEdge(At2D(0, 0), At2D(0, 0), -7.0);
        TSPlaneEdge2D b = PlaneEdge(At2D(0, 0), At2D(6, 0), -7.0);
        EXPECT_EQ(math.ReduceBulge(old, a, b, 1.0), 0);
        EXPECT_EQ(a.bulge, -7.0);
        EXPECT_EQ(b.bulge, -7.0);
    }
}
}  // namespace
