#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "arc_samples.h"

using namespace arc_samples;

namespace {
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
TSPlaneEdge3D const kOther = {{{-7, -7, -7}}, {{-7, -7, -7}}, {{-7, -7, -7}}, -7.0, -7};

TEST(StretchLine3D, WritesEndsAndTypeOnly)
{
    CMathematics math;
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.StretchLine3D(At(1, 1), At(4, 5), 10.0, result), 1);
    ExpectNear(result.start, At(1, 1), 0.0);
    ExpectNear(result.end, At(7, 9), 1e-14);
    EXPECT_EQ(result.type, EDGE_LINE);
    EXPECT_EQ(result.bulge, -7.0);
    EXPECT_EQ(result.arcVector.x, -7.0);
}

TEST(StretchArc3D, QuarterCircleBecomesAHalfCircle)
{
    CMathematics math;
    TSPlaneEdge3D result = kOther;
    // From (-1, 0) over the top about the origin.
    EXPECT_EQ(math.StretchArc3D(At(-1, 0), At(0, 1), At(-1, 1), std::tan(kPi / 8.0), kPi, result), 1);
    ExpectNear(result.start, At(-1, 0), 0.0);
    ExpectNear(result.end, At(1, 0), 1e-14);
    ExpectNear(result.arcVector, At(0, 1), 1e-14);
    EXPECT_NEAR(result.bulge, 1.0, 1e-12);
    EXPECT_EQ(result.type, EDGE_ARC);
}

TEST(StretchArc3D, AngleFromOnePointNineFivePiOnFails)
{
    CMathematics math;
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.StretchArc3D(At(-1, 0), At(1, 0), At(0, 1), 1.0, 6.2, result), 0);
    EXPECT_EQ(math.StretchArc3D(At(-1, 0), At(1, 0), At(0, 1), 1.0, 6.1261057, result), 0);
    EXPECT_EQ(result.type, -7);
    EXPECT_EQ(math.StretchArc3D(At(-1, 0), At(1, 0), At(0, 1), 1.0, 6.126, result), 1);
}

TEST(StretchArc3D, FlatArcIsStretchedAsALine)
{
    CMathematics math;
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.StretchArc3D(At(0, 0), At(2, 0), At(0, 1), 0.9e-5, 3.0, result), 1);
    ExpectNear(result.end, At(3, 0), 1e-15);
    EXPECT_EQ(result.type, EDGE_LINE);
    EXPECT_EQ(result.bulge, -7.0);
}

TEST(StretchArc3D, LengthOfNothingFailsUntouched)
{
    CMathematics math;
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.StretchArc3D(At(-1, 0), At(1, 0), At(0, 1), 1.0, 0.0, result), 0);
    EXPECT_EQ(math.StretchArc3D(At(-1, 0), At(1, 0), At(0, 1), 1.0, kNaN, result), 0);
    EXPECT_EQ(result.type, -7);
}

TEST(StretchArc3D, StaysOnTheCircleWithTheNewLengthInAnyPlane)
{
    CMathematics math;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> turn(0.1, 6.1);
    for (int i = 0; i < 1000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random, 0.01, 50.0));
        double const angle = turn(random);
        for (TSPlaneEdge3D const & edge : {sample.edge, WithNegativeBulge(sample.edge)}) {
            TSPlaneEdge3D result = kOther;
            ASSERT_EQ(math.StretchEdge3D(edge, angle * sample.radius, result), 1);
            ASSERT_LT(Distance(result.start, sample.Point(0.0)), 1e-15 + 1e-12 * sample.radius);
            ASSERT_LT(Distance(result.end, sample.Point(angle)), 1e-9 * sample.radius + 1e-9);
            ASSERT_NEAR(math.GetLengthEdge3D(&result), angle * sample.radius, 1e-5 * sample.radius);
            TUVect3D middle;
            ASSERT_EQ(math.Get3DPointOnEdge3D(result, 0.5, 1, middle), 1);
            ASSERT_LT(Distance(middle, sample.Point(angle / 2.0)), 1e-4 * sample.radius);
        }
    }
}

TEST(StretchEdge3D, ChoosesByTheType)
{
    CMathematics math;
    TSPlaneEdge3D edge = {At(0, 0), At(2, 0), At(0, 1), 1.0, EDGE_LINE};
    TSPlaneEdge3D result = kOther;
    EXPECT_EQ(math.StretchEdge3D(edge, 3.0, result), 1);
    EXPECT_EQ(result.type, EDGE_LINE);
    edge.type = EDGE_ARC;
    EXPECT_EQ(math.StretchEdge3D(edge, 3.0, result), 1);
    EXPECT_EQ(result.type, EDGE_ARC);
    edge.type = EDGE_POINT;
    EXPECT_EQ(math.StretchEdge3D(edge, 3.0, result), 1);
    EXPECT_EQ(result.type, EDGE_POINT);
    EXPECT_EQ(result.end.x, 2.0);
    edge.type = 3;
    EXPECT_EQ(math.StretchEdge3D(edge, 3.0, result), 0);
}
}  // namespace
