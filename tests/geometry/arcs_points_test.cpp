#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "arc_samples.h"

using namespace arc_samples;

namespace {
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// A polyline as Make3dArc gives it, freed at the end.
struct Polyline
{
    std::unique_ptr<TUVect3D[]> points;
    long count = -7;
    int result;

    Polyline(TUVect3D const & start, TUVect3D const & end, TUVect3D & arcVector, double bulge)
    {
        CMathematics math;
        TUVect3D * made = nullptr;
        result = math.Make3dArc(start, end, arcVector, bulge, count, made);
        points.reset(made);
    }
};

// ---- turn about an axis ---------------------------------------------------------------------------------

TEST(RotateVectorAroundAxis, TurnsPositivelyAboutTheAxis)
{
    CMathematics math;
    TUVect3D vector = At(2, 0, 5);
    EXPECT_EQ(math.RotateVectorAroundAxis(vector, At(0, 0, 3), kPi / 2.0), 1);
    ExpectNear(vector, At(0, 2, 5), 1e-15);
}

TEST(RotateVectorAroundAxis, VectorAlongTheAxisStays)
{
    CMathematics math;
    TUVect3D vector = At(0, 0, -5);
    EXPECT_EQ(math.RotateVectorAroundAxis(vector, At(0, 0, 3), 1.0), 1);
    ExpectNear(vector, At(0, 0, -5), 1e-15);
}

TEST(RotateVectorAroundAxis, ShortVectorStays)
{
    CMathematics math;
    TUVect3D vector = At(0.9e-8, 0);
    EXPECT_EQ(math.RotateVectorAroundAxis(vector, At(0, 0, 0), 1.0), 1);
    EXPECT_EQ(vector.x, 0.9e-8);
}

TEST(RotateVectorAroundAxis, ShortAxisFailsWithTheVectorNormalised)
{
    CMathematics math;
    TUVect3D vector = At(3, 4);
    EXPECT_EQ(math.RotateVectorAroundAxis(vector, At(0, 0, 0.9e-8), 1.0), 0);
    ExpectNear(vector, At(0.6, 0.8), 1e-15);
    EXPECT_EQ(math.RotateVectorAroundAxis(vector, At(0, kNaN, 0), 1.0), 0);
}

TEST(RotateVectorAroundAxis, KeepsLengthAndAngleToTheAxis)
{
    CMathematics math;
    std::mt19937 random(1);
    std::uniform_real_distribution<double> angle(-10.0, 10.0);
    for (int i = 0; i < 1000; ++i) {
        Frame const frame = RandomFrame(random);
        TUVect3D vector = Combined(At(1, 2, 3), 4.0, frame.e1, 5.0, frame.e2);
        double const size = Size(vector);
        double const along = PlainDot(vector, frame.e3);
        ASSERT_EQ(math.RotateVectorAroundAxis(vector, frame.e3, angle(random)), 1);
        ASSERT_NEAR(Size(vector), size, 1e-13);
        ASSERT_NEAR(PlainDot(vector, frame.e3), along, 1e-13);
    }
}

// ---- points along the arc -------------------------------------------------------------------------------

TEST(Get3DPointOnArc, TakesALengthAFractionOrAPercentage)
{
    CMathematics math;
    TUVect3D point;
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, kPi / 2.0, 0, point), 1);
    ExpectNear(point, At(1, 1), 1e-15);
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, 0.5, 1, point), 1);
    ExpectNear(point, At(1, 1), 1e-15);
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, 50.0, 2, point), 1);
    ExpectNear(point, At(1, 1), 1e-15);
}

TEST(Get3DPointOnArc, OtherModesFailUntouched)
{
    CMathematics math;
    TUVect3D point = At(-7, -7);
    for (int const mode : {3, -1})
        EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, 0.5, mode, point), 0);
    EXPECT_EQ(point.x, -7.0);
}

TEST(Get3DPointOnArc, EndsAtTheLengthPlusTheTolerance)
{
    CMathematics math;
    TUVect3D point = At(-7, -7);
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, kPi + 1.1e-6, 0, point), 0);
    EXPECT_EQ(point.x, -7.0);
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, kPi + 0.9e-6, 0, point), 1);
    ExpectNear(point, At(2, -0.9e-6), 1e-11);
}

TEST(Get3DPointOnArc, NegativeDistanceGoesBackFromTheStart)
{
    CMathematics math;
    TUVect3D point;
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, -kPi / 2.0, 0, point), 1);
    ExpectNear(point, At(1, -1), 1e-15);
}

TEST(Get3DPointOnArc, FlatArcIsALine)
{
    CMathematics math;
    TUVect3D point;
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 0.9e-5, 0.25, 1, point), 1);
    ExpectNear(point, At(0.5, 0), 1e-9);
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 0.0, -3.0, 0, point), 1);
    ExpectNear(point, At(-3, 0), 1e-15);
}

TEST(Get3DPointOnArc, ValuesThatAreNoNumbersFailUntouched)
{
    CMathematics math;
    TUVect3D point = At(-7, -7);
    for (double const value : {kNaN, kInfinity, -kInfinity})
        EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(2, 0), At(0, 1), 1.0, value, 0, point), 0);
    EXPECT_EQ(math.Get3DPointOnArc(At(0, 0), At(kNaN, 0), At(0, 1), 1.0, 0.5, 1, point), 0);
    EXPECT_EQ(point.x, -7.0);
}

TEST(Get3DPointOnArc, EveryWritingOfAnArcGivesThePointsOfItsCircle)
{
    CMathematics math;
    std::mt19937 random(2);
    std::uniform_real_distribution<double> share(0.0, 1.0);
    for (int i = 0; i < 2000; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random));
        double const fraction = share(random);
        TUVect3D const expected = sample.Point(fraction * sample.sweep);
        TUVect3D point;
        ASSERT_EQ(math.Get3DPointOnEdge3D(sample.edge, fraction, 1, point), 1);
        // The length comes through an arc sine, which is worst near a half circle.
        ASSERT_LT(Distance(point, expected), 2e-7) << sample.edge.bulge;
        // A negative bulge means the same arc up to a half circle; above, its length is that of the smaller
        // arc, so that only distances up to there are taken.
        TSPlaneEdge3D const negative = WithNegativeBulge(sample.edge);
        double const reach = std::min(sample.sweep, 2.0 * kPi - sample.sweep) * fraction;
        ASSERT_EQ(math.Get3DPointOnEdge3D(negative, reach * sample.radius, 0, point), 1);
        ASSERT_LT(Distance(point, sample.Point(reach)), 2e-7) << negative.bulge;
    }
}

// ---- polylines ------------------------------------------------------------------------------------------

TEST(Make3dArc, HalfCircleHasSeventeenPoints)
{
    TUVect3D vector = At(-3, 4);
    Polyline const polyline(At(0, 0), At(2, 0), vector, 1.0);
    ASSERT_EQ(polyline.result, 1);
    ASSERT_EQ(polyline.count, 17);
    ExpectNear(polyline.points[0], At(0, 0), 0.0);
    ExpectNear(polyline.points[8], At(1, 1), 1e-7);
    // Computed by the rounded half turn 3.1415926 and not copied from the end.
    ExpectNear(polyline.points[16], At(2, 0), 1e-7);
    EXPECT_NE(polyline.points[16].y, 0.0);
}

TEST(Make3dArc, SmallArcHasSixPoints)
{
    TUVect3D vector = At(0, 1);
    Polyline const polyline(At(0, 0), At(2, 0), vector, std::tan(0.1 / 4.0));
    EXPECT_EQ(polyline.result, 1);
    EXPECT_EQ(polyline.count, 6);
}

TEST(Make3dArc, NearlyFullCircleHasAboutThirty)
{
    // 6.2 / 0.20667 = 30 segments.
    TUVect3D vector = At(0, 1);
    Polyline const polyline(At(0, 0), At(2, 0), vector, std::tan(6.19 / 4.0));
    EXPECT_EQ(polyline.result, 1);
    EXPECT_EQ(polyline.count, 31);
}

TEST(Make3dArc, VectorBecomesItsUnitPartAcrossTheChord)
{
    TUVect3D vector = At(-3, 4);
    Polyline const polyline(At(0, 0), At(2, 0), vector, 1.0);
    ExpectNear(vector, At(0, 1), 1e-15);
}

TEST(Make3dArc, FlatArcIsItsChord)
{
    TUVect3D vector = At(-3, 4);
    Polyline const polyline(At(0, 0), At(2, 0), vector, -0.9e-5);
    EXPECT_EQ(polyline.result, 1);
    ASSERT_EQ(polyline.count, 2);
    ExpectNear(polyline.points[0], At(0, 0), 0.0);
    ExpectNear(polyline.points[1], At(2, 0), 0.0);
    EXPECT_EQ(vector.x, -3.0);
}

TEST(Make3dArc, WithoutACentreItFailsUntouched)
{
    TUVect3D along = At(3, 0);
    TUVect3D across = At(0, 1);
    Polyline const parallel(At(0, 0), At(2, 0), along, 1.0);
    Polyline const point(At(0, 0), At(0, 0), across, 1.0);
    Polyline const noNumber(At(0, 0), At(kNaN, 0), across, 1.0);
    Polyline const huge(At(0, 0), At(1e200, 0), across, 1.0);
    Polyline const full(At(0, 0), At(2, 0), across, kInfinity);
    for (Polyline const * polyline : {&parallel, &point, &noNumber, &huge, &full}) {
        EXPECT_EQ(polyline->result, 0);
        EXPECT_EQ(polyline->count, -7);
        EXPECT_EQ(polyline->points, nullptr);
    }
}

TEST(Make3dArc, AngleThatVanishesGivesOneUntouched)
{
    // With bulge 1e10 the ends are seen from the centre under 4e-10 radians.
    TUVect3D vector = At(0, 1);
    Polyline const polyline(At(0, 0), At(2, 0), vector, 1e10);
    EXPECT_EQ(polyline.result, 1);
    EXPECT_EQ(polyline.count, -7);
    EXPECT_EQ(polyline.points, nullptr);
}

TEST(Make3dArc, PointsLieOnTheArcInEvenStepsForAnyBulgeInAnyPlane)
{
    std::mt19937 random(3);
    for (int i = 0; i < 300; ++i) {
        Sample const sample = RandomSample(random, RandomBulge(random));
        for (TSPlaneEdge3D edge : {sample.edge, WithNegativeBulge(sample.edge)}) {
            Polyline const polyline(edge.start, edge.end, edge.arcVector, edge.bulge);
            ASSERT_EQ(polyline.result, 1);
            ASSERT_GE(polyline.count, 6);
            for (long k = 0; k < polyline.count; ++k) {
                double const t =
                    sample.sweep * static_cast<double>(k) / static_cast<double>(polyline.count - 1);
                ASSERT_LT(Distance(polyline.points[k], sample.Point(t)), 4e-7 * sample.radius + 1e-6)
                    << edge.bulge << ' ' << k;
            }
        }
    }
}
}  // namespace
