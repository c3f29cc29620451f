#include <gtest/gtest.h>

#include <cmath>

#include "arc_samples.h"

using namespace arc_samples;

namespace {
TEST(GetArcTangentVectors, BothPointToTheApexSide)
{
    // Chord 8, bulge 0.5: centre (4, -3), so the tangents at the ends are (3, 4) / 5 and (-3, 4) / 5.
    CMathematics math;
    TUVect2D t1;
    TUVect2D t2;
    EXPECT_EQ(math.GetArcTangentVectors(At2D(0, 0), At2D(8, 0), 0.5, t1, t2), 1);
    ExpectNear(t1, At2D(0.6, 0.8), 1e-15);
    ExpectNear(t2, At2D(-0.6, 0.8), 1e-15);
    EXPECT_EQ(math.GetArcTangentVectors(At2D(0, 0), At2D(8, 0), -2.0, t1, t2), 1);
    ExpectNear(t1, At2D(-0.6, -0.8), 1e-15);
    ExpectNear(t2, At2D(0.6, -0.8), 1e-15);
}

TEST(GetArcTangentVectors, ZeroBulgeFails)
{
    CMathematics math;
    TUVect2D t1 = At2D(-7, -7);
    TUVect2D t2 = At2D(-7, -7);
    EXPECT_EQ(math.GetArcTangentVectors(At2D(0, 0), At2D(8, 0), 0.0, t1, t2), 0);
    EXPECT_EQ(t1.x, -7.0);
}

TEST(GetArcTangentVectors, StandOnTheRadiiForAnyBulge)
{
    CMathematics math;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> place(-10.0, 10.0);
    for (int i = 0; i < 1000; ++i) {
        TUVect2D const start = At2D(place(random), place(random));
        TUVect2D const end = At2D(place(random), place(random));
        double const bulge = RandomBulge(random) * (i % 2 ? 1.0 : -1.0);
        TUVect2D centre;
        TUVect2D t1;
        TUVect2D t2;
        double radius;
        ASSERT_EQ(math.GetArcCentre(start, end, bulge, centre, radius), 1);
        ASSERT_EQ(math.GetArcTangentVectors(start, end, bulge, t1, t2), 1);
        ASSERT_NEAR((start.x - centre.x) * t1.x + (start.y - centre.y) * t1.y, 0.0, 1e-9);
        ASSERT_NEAR((end.x - centre.x) * t2.x + (end.y - centre.y) * t2.y, 0.0, 1e-9);
        // Left of the chord for a positive bulge.
        double const across = (end.x - start.x) * t1.y - (end.y - start.y) * t1.x;
        ASSERT_GT(across * bulge, 0.0);
        ASSERT_NEAR(std::hypot(t1.x, t1.y), 1.0, 1e-12);
    }
}

TEST(GetArcTanAngle, AddsHalfTheIncludedAngleToTheChord)
{
    CMathematics math;
    EXPECT_NEAR(math.GetArcTanAngle(At2D(0, 0), At2D(8, 0), 0.5), std::atan2(4.0, 3.0), 1e-15);
    EXPECT_NEAR(math.GetArcTanAngle(At2D(0, 0), At2D(8, 0), 1.0), kPi / 2.0, 1e-15);
    // Not reduced to 0 to 2*pi on either side.
    EXPECT_NEAR(math.GetArcTanAngle(At2D(0, 0), At2D(8, 0), -1.0), -kPi / 2.0, 1e-15);
    EXPECT_NEAR(math.GetArcTanAngle(At2D(0, 0), At2D(0, -8), 1.0), 2.0 * kPi, 1e-15);
}

TEST(Get3DArcTangentPoints, HandlesAreHalfAChordLong)
{
    CMathematics math;
    TUVect3D p1;
    TUVect3D p2;
    EXPECT_EQ(math.Get3DArcTangentPoints(At(0, 0), At(8, 0), At(0, 0, -1), At(0, 1), 0.5, p1, p2), 1);
    ExpectNear(p1, At(2.4, 3.2), 1e-14);
    ExpectNear(p2, At(8 - 2.4, 3.2), 1e-14);
}

TEST(Get3DArcTangentPoints, FlatArcFailsUntouched)
{
    CMathematics math;
    TUVect3D p1 = At(-7, -7);
    TUVect3D p2 = At(-7, -7);
    EXPECT_EQ(math.Get3DArcTangentPoints(At(0, 0), At(8, 0), At(0, 0, -1), At(0, 1), 0.9e-5, p1, p2), 0);
    EXPECT_EQ(p1.x, -7.0);
    EXPECT_EQ(p2.x, -7.0);
}

TEST(Get3DArcTangentPoints, TouchTheArcInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(2);
    for (int i = 0; i < 1000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random));
        TSPlaneEdge3D const & edge = sample.edge;
        TUVect3D p1;
        TUVect3D p2;
        ASSERT_EQ(math.Get3DArcTangentPoints(edge.start, edge.end, sample.frame.e3, edge.arcVector,
                                             edge.bulge, p1, p2),
                  1);
        double const handle = Distance(edge.start, edge.end) / 2.0;
        TUVect3D const ahead = Minus(sample.Point(1e-6), sample.Point(-1e-6));
        TUVect3D const back = Minus(sample.Point(sample.sweep - 1e-6), sample.Point(sample.sweep + 1e-6));
        ASSERT_NEAR(PlainDot(Minus(p1, edge.start), ahead) / Size(ahead), handle, 1e-7);
        ASSERT_NEAR(PlainDot(Minus(p2, edge.end), back) / Size(back), handle, 1e-7);
    }
}

TEST(MovePtTo3DArcCenter, SlidesAlongTheChordToItsMiddle)
{
    CMathematics math;
    TUVect3D point = At(7, 3, 0);
    EXPECT_EQ(math.MovePtTo3DArcCenter(At(0, 0), At(8, 0), &point), 1);
    ExpectNear(point, At(4, 3), 1e-15);
    point = At(-5, 0, -2);
    EXPECT_EQ(math.MovePtTo3DArcCenter(At(0, 0), At(8, 0), &point), 1);
    ExpectNear(point, At(4, 0, -2), 1e-15);
}

TEST(MovePtTo3DArcCenter, PointOnTheChordsLineFailsUntouched)
{
    CMathematics math;
    for (TUVect3D const & place : {At(3, 0), At(-5, 0), At(0, 0), At(4, 0.0015)}) {
        TUVect3D point = place;
        EXPECT_EQ(math.MovePtTo3DArcCenter(At(0, 0), At(8, 0), &point), 0);
        EXPECT_EQ(point.x, place.x);
    }
}
}  // namespace
