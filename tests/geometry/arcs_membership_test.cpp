#include <gtest/gtest.h>

#include <limits>

#include "edge_samples.h"

using namespace arc_samples;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

int OnArc(TSPlaneEdge3D const & arc, TUVect3D const & point)
{
    CMathematics math;
    return math.PointOnArc(arc.start, arc.end, arc.arcVector, arc.bulge, point);
}

int OnCircle(TSPlaneEdge3D const & arc, TUVect3D const & point)
{
    CMathematics math;
    return math.PointOnCircle(arc.start, arc.end, arc.arcVector, arc.bulge, point);
}

TEST(PointOnArc, TellsTheArcFromTheRestOfItsCircle)
{
    TSPlaneEdge3D const arc = UnitArc(0, 250);
    for (double const degrees : {0.0, 10.0, 125.0, 240.0, 250.0}) {
        EXPECT_EQ(OnArc(arc, OnUnitCircle(degrees)), 1) << degrees;
        EXPECT_EQ(OnCircle(arc, OnUnitCircle(degrees)), 1) << degrees;
    }
    for (double const degrees : {251.0, 300.0, 359.0}) {
        EXPECT_EQ(OnArc(arc, OnUnitCircle(degrees)), 0) << degrees;
        EXPECT_EQ(OnCircle(arc, OnUnitCircle(degrees)), 1) << degrees;
    }
}

TEST(PointOnArc, PointsOffTheCircleOrItsPlaneAreRefused)
{
    TSPlaneEdge3D const arc = UnitArc(0, 250);
    for (TUVect3D const & point : {At(0, 0), At(0, 1.00001), At(0, 1, 0.00001), At(0, 2), At(kNaN, 1)}) {
        EXPECT_EQ(OnArc(arc, point), 0);
        EXPECT_EQ(OnCircle(arc, point), 0);
    }
}

TEST(PointOnArc, TheToleranceActsBesideAndAboveTheArc)
{
    TSPlaneEdge3D const arc = UnitArc(0, 250);
    EXPECT_EQ(OnArc(arc, At(0, 1.0000009)), 1);
    EXPECT_EQ(OnArc(arc, At(0, 1, 0.9e-6)), 1);
}

TEST(PointOnArc, HoldsForEveryPointForAnyBulgeInAnyPlane)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> share(0.02, 0.98);
    for (int i = 0; i < 1000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random, 1e-3, 50.0));
        TUVect3D const on = sample.Point(share(random) * sample.sweep);
        TUVect3D const off = sample.Point(sample.sweep + share(random) * (2.0 * kPi - sample.sweep));
        for (TSPlaneEdge3D const & edge : {sample.edge, WithNegativeBulge(sample.edge)}) {
            ASSERT_EQ(OnArc(edge, on), 1) << edge.bulge;
            ASSERT_EQ(OnArc(edge, off), 0) << edge.bulge;
            ASSERT_EQ(OnCircle(edge, off), 1) << edge.bulge;
        }
    }
}

TEST(MovePointAlongArc, PositiveDistanceWalksTowardTheEnd)
{
    CMathematics math;
    TUVect3D result;
    for (TSPlaneEdge3D const & arc : {UnitArc(0, 250), WithNegativeBulge(UnitArc(0, 250))}) {
        ASSERT_EQ(math.MovePointAlongArc(arc.start, arc.end, arc.arcVector, arc.bulge, OnUnitCircle(90),
                                         kPi / 2.0, result),
                  1);
        ExpectNear(result, OnUnitCircle(180), 1e-14);
        ASSERT_EQ(math.MovePointAlongArc(arc.start, arc.end, arc.arcVector, arc.bulge, OnUnitCircle(90), -kPi,
                                         result),
                  1);
        ExpectNear(result, OnUnitCircle(270), 1e-14);
    }
}

TEST(MovePointAlongArc, NeedsAPointOfTheArc)
{
    CMathematics math;
    TSPlaneEdge3D const arc = UnitArc(0, 180);
    TUVect3D result = At(-7, -7);
    EXPECT_EQ(
        math.MovePointAlongArc(arc.start, arc.end, arc.arcVector, arc.bulge, OnUnitCircle(190), 1.0, result),
        0);
    EXPECT_EQ(
        math.MovePointAlongArc(arc.start, arc.end, arc.arcVector, arc.bulge, OnUnitCircle(90), kNaN, result),
        0);
    EXPECT_EQ(result.x, -7.0);
}
}  // namespace
