#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "arc_samples.h"

using namespace arc_samples;

namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
TUVect3D const kUntouched = At(-7, -7, -7);

TEST(Get3DArcCenter, HalfCircleHasItInTheMiddleOfTheChord)
{
    CMathematics math;
    TUVect3D centre;
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(0, 1), 1.0, centre), 1);
    ExpectNear(centre, At(1, 0), 1e-15);
}

TEST(Get3DArcCenter, SmallArcHasItAcrossTheChordAndLargeArcOnTheApexSide)
{
    // Chord 8, sagitta 2: R = (4 + 16) / 4 = 5, centre 3 below the chord. Sagitta 8: R = 5, centre 3 above.
    CMathematics math;
    TUVect3D centre;
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(8, 0), At(0, 1), 0.5, centre), 1);
    ExpectNear(centre, At(4, -3), 1e-14);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(8, 0), At(0, 1), 2.0, centre), 1);
    ExpectNear(centre, At(4, 3), 1e-14);
}

TEST(Get3DArcCenter, NegativeBulgeMirrorsItAcrossTheChord)
{
    CMathematics math;
    TUVect3D centre;
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(8, 0), At(0, 1), -0.5, centre), 1);
    ExpectNear(centre, At(4, 3), 1e-14);
}

TEST(Get3DArcCenter, OnlyTheVectorsPartAcrossTheChordCounts)
{
    CMathematics math;
    TUVect3D centre;
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(8, 0), At(-70, 3), 0.5, centre), 1);
    ExpectNear(centre, At(4, -3), 1e-13);
}

TEST(Get3DArcCenter, FlatArcHasNone)
{
    CMathematics math;
    TUVect3D centre = kUntouched;
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(0, 1), 0.000009, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(0, 1), -0.000009, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(0, 1), kNaN, centre), 0);
    EXPECT_EQ(centre.x, kUntouched.x);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(0, 1), 0.00001, centre), 1);
}

TEST(Get3DArcCenter, VectorAlongTheChordHasNone)
{
    CMathematics math;
    TUVect3D centre;
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(1, 0), 1.0, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(1, 0.0004), 1.0, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(1, 0.0006), 1.0, centre), 1);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(0, 0), 1.0, centre), 0);
}

TEST(Get3DArcCenter, DegenerateInputHasNone)
{
    CMathematics math;
    TUVect3D centre = kUntouched;
    EXPECT_EQ(math.Get3DArcCenter(At(1, 1), At(1, 1), At(0, 1), 1.0, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(1e200, 0), At(0, 1), 1.0, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(kInfinity, 0), At(0, 1), 1.0, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(kNaN, 0), At(2, 0), At(0, 1), 1.0, centre), 0);
    EXPECT_EQ(math.Get3DArcCenter(At(0, 0), At(2, 0), At(0, 1), kInfinity, centre), 0);
    EXPECT_EQ(centre.x, kUntouched.x);
}

TEST(Get3DArcCenter, AgreesWithTheCircleForAnyBulgeInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random));
        for (TSPlaneEdge3D const & edge : {sample.edge, WithNegativeBulge(sample.edge)}) {
            TUVect3D centre;
            ASSERT_EQ(math.Get3DArcCenter(edge.start, edge.end, edge.arcVector, edge.bulge, centre), 1);
            ASSERT_LT(Distance(centre, sample.centre), 1e-11 * sample.radius + 1e-10) << edge.bulge;
        }
    }
}

TEST(GetArcCentre, TakesBulgesThatGet3DArcCenterRefuses)
{
    CMathematics math;
    TUVect3D centre;
    double radius;
    EXPECT_EQ(math.GetArcCentre(At(0, 0), At(2, 0), At(0, 1), 0.000009, centre, radius), 1);
    // R = (h^2 + 1) / 2 / h with h = 9e-6.
    EXPECT_NEAR(radius, (81e-12 + 1.0) / 18e-6, 1e-6);
    EXPECT_EQ(math.GetArcCentre(At(0, 0), At(2, 0), At(0, 1), 0.9e-10, centre, radius), 0);
}

TEST(GetArcCentre, NeedsAHalfChordAboveTheTolerance)
{
    CMathematics math;
    TUVect3D centre = kUntouched;
    double radius = -7.0;
    EXPECT_EQ(math.GetArcCentre(At(0, 0), At(1.9e-6, 0), At(0, 1), 1.0, centre, radius), 0);
    EXPECT_EQ(centre.x, kUntouched.x);
    EXPECT_EQ(radius, -7.0);
    EXPECT_EQ(math.GetArcCentre(At(0, 0), At(2.1e-6, 0), At(0, 1), 1.0, centre, radius), 1);
}

TEST(GetArcCentre, NegativeBulgeKeepsTheSideAndTurnsTheRadius)
{
    CMathematics math;
    TUVect3D centre;
    double radius;
    EXPECT_EQ(math.GetArcCentre(At(0, 0), At(8, 0), At(1, 1), 0.5, centre, radius), 1);
    ExpectNear(centre, At(4, -3), 1e-14);
    EXPECT_NEAR(radius, 5.0, 1e-14);
    // (h - R) w with h = -2, R = -5 and w = (0, -1): 3 * (0, -1).
    EXPECT_EQ(math.GetArcCentre(At(0, 0), At(8, 0), At(1, 1), -0.5, centre, radius), 1);
    ExpectNear(centre, At(4, -3), 1e-14);
    EXPECT_NEAR(radius, -5.0, 1e-14);
}

TEST(GetArcCentre, VectorAlongTheChordGivesTheMiddle)
{
    CMathematics math;
    TUVect3D centre;
    double radius;
    EXPECT_EQ(math.GetArcCentre(At(0, 0), At(8, 0), At(3, 0), 0.5, centre, radius), 1);
    ExpectNear(centre, At(4, 0), 1e-14);
    EXPECT_NEAR(radius, 5.0, 1e-14);
}

TEST(GetArcCentre, AgreesWithTheCircleForAnyBulgeInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(2);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random));
        TUVect3D centre;
        double radius;
        TSPlaneEdge3D const & edge = sample.edge;
        ASSERT_EQ(math.GetArcCentre(edge.start, edge.end, edge.arcVector, edge.bulge, centre, radius), 1);
        ASSERT_LT(Distance(centre, sample.centre), 1e-11 * sample.radius + 1e-10) << edge.bulge;
        ASSERT_NEAR(radius, sample.radius, 1e-11 * sample.radius);
    }
}

TEST(GetArcCentreVectorBulge, ApexIsOnTheLeftForAPositiveBulge)
{
    CMathematics math;
    TUVect2D centre;
    TUVect2D direction;
    double radius;
    double absBulge;
    EXPECT_EQ(math.GetArcCentreVectorBulge(At2D(0, 0), At2D(2, 0), 1.0, centre, radius, direction, absBulge),
              1);
    ExpectNear(direction, At2D(0, 1), 0.0);
    ExpectNear(centre, At2D(1, 0), 0.0);
    EXPECT_EQ(radius, 1.0);
    EXPECT_EQ(math.GetArcCentreVectorBulge(At2D(0, 0), At2D(2, 0), -1.0, centre, radius, direction, absBulge),
              1);
    ExpectNear(direction, At2D(0, -1), 0.0);
    EXPECT_EQ(absBulge, 1.0);
}

TEST(GetArcCentreVectorBulge, ZeroBulgeOrChordWritesOnlyTheAbsoluteBulge)
{
    CMathematics math;
    TUVect2D centre = At2D(-7, -7);
    TUVect2D direction = At2D(-7, -7);
    double radius = -7.0;
    double absBulge = -7.0;
    EXPECT_EQ(math.GetArcCentreVectorBulge(At2D(0, 0), At2D(2, 0), 0.0, centre, radius, direction, absBulge),
              0);
    EXPECT_EQ(absBulge, 0.0);
    EXPECT_EQ(math.GetArcCentreVectorBulge(At2D(2, 0), At2D(2, 0), -3.0, centre, radius, direction, absBulge),
              0);
    EXPECT_EQ(absBulge, 3.0);
    EXPECT_EQ(math.GetArcCentreVectorBulge(At2D(0, 0), At2D(2, 0), kNaN, centre, radius, direction, absBulge),
              0);
    EXPECT_EQ(centre.x, -7.0);
    EXPECT_EQ(direction.x, -7.0);
    EXPECT_EQ(radius, -7.0);
}

TEST(PlaneArcCentres, AllRoadsAgreeForAnyBulge)
{
    CMathematics math;
    std::mt19937 random(3);
    std::uniform_real_distribution<double> place(-10.0, 10.0);
    for (int i = 0; i < 2000; ++i) {
        TUVect2D const start = At2D(place(random), place(random));
        TUVect2D const end = At2D(place(random), place(random));
        double const bulge = RandomBulge(random) * (i % 2 ? 1.0 : -1.0);
        TUVect2D centres[3];
        TUVect2D direction;
        double radii[3];
        double absBulge;
        ASSERT_EQ(math.GetArcCentreVectorBulge(start, end, bulge, centres[0], radii[0], direction, absBulge),
                  1);
        ASSERT_EQ(math.GetArcCentre(start, end, bulge, centres[1], radii[1]), 1);
        ASSERT_EQ(math.GetArcCentre2D(start, end, bulge, centres[2], radii[2]), 1);
        for (int road = 0; road < 3; ++road) {
            TUVect2D const & centre = centres[road];
            double const size = 1e-11 * radii[0] + 1e-11;
            ASSERT_NEAR(radii[road], radii[0], size);
            ASSERT_NEAR(std::hypot(start.x - centre.x, start.y - centre.y), radii[0], size);
            ASSERT_NEAR(std::hypot(end.x - centre.x, end.y - centre.y), radii[0], size);
            // The apex, a sagitta beside the chord to the left for a positive bulge, is on the circle too.
            double const apexX = (start.x + end.x) / 2 - bulge * (end.y - start.y) / 2;
            double const apexY = (start.y + end.y) / 2 + bulge * (end.x - start.x) / 2;
            ASSERT_NEAR(std::hypot(apexX - centre.x, apexY - centre.y), radii[0], size);
        }
    }
}

TEST(GetArcCentre2D, HalfCircleHasItInTheMiddleOfTheChord)
{
    CMathematics math;
    TUVect2D centre;
    double radius;
    for (double const bulge : {1.0, -1.0}) {
        EXPECT_EQ(math.GetArcCentre2D(At2D(0, 0), At2D(2, 0), bulge, centre, radius), 1);
        ExpectNear(centre, At2D(1, 0), 0.0);
        EXPECT_EQ(radius, 1.0);
    }
}

TEST(GetArcCentre2D, ZeroBulgeIsntGuarded)
{
    CMathematics math;
    TUVect2D centre;
    double radius = 0.0;
    EXPECT_EQ(math.GetArcCentre2D(At2D(0, 0), At2D(2, 0), 0.0, centre, radius), 1);
    EXPECT_EQ(radius, kInfinity);
}

TEST(GetRadiusOf3DArcFromTwoPointsAndBulge, HasTheSignOfTheBulge)
{
    CMathematics math;
    double radius;
    EXPECT_EQ(math.GetRadiusOf3DArcFromTwoPointsAndBulge(At(0, 0), At(8, 0), 0.5, radius), 1);
    EXPECT_NEAR(radius, 5.0, 1e-14);
    EXPECT_EQ(math.GetRadiusOf3DArcFromTwoPointsAndBulge(At(0, 0), At(8, 0), -2.0, radius), 1);
    EXPECT_NEAR(radius, -5.0, 1e-14);
}

TEST(GetRadiusOf3DArcFromTwoPointsAndBulge, ZeroBulgeIsntGuarded)
{
    CMathematics math;
    double radius;
    EXPECT_EQ(math.GetRadiusOf3DArcFromTwoPointsAndBulge(At(0, 0), At(8, 0), 0.0, radius), 1);
    EXPECT_EQ(radius, kInfinity);
}
}  // namespace
