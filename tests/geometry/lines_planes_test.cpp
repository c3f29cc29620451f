#include "geometry/mathematics.h"
#include "space_samples.h"

using namespace space;

namespace {
TSPlane const kNowhere = {P(9, 9, 9), P(9, 9, 9)};
}

TEST(DefinePlane, TakesTheFirstPointAndAUnitNormal)
{
    CMathematics math;
    TSPlane plane = kNowhere;
    EXPECT_EQ(math.DefinePlane(P(1, 1, 1), P(4, 1, 1), P(1, 6, 1), plane), 1);
    ExpectPoint(plane.origin, P(1, 1, 1), 0.0);
    ExpectPoint(plane.normal, P(0, 0, 1), 0.0);
    TUVect3D points[] = {P(1, 1, 1), P(1, 6, 1), P(4, 1, 1)};
    EXPECT_EQ(math.DefinePlane(points, plane), 1);
    ExpectPoint(plane.normal, P(0, 0, -1), 0.0);
}

TEST(DefinePlane, PointsOnOneLineFail)
{
    CMathematics math;
    TSPlane plane = kNowhere;
    EXPECT_EQ(math.DefinePlane(P(0, 0, 0), P(1, 1, 1), P(3, 3, 3), plane), 0);
    EXPECT_EQ(plane.origin.x, 9.0);
}

TEST(DefinePlane, NearlyParallelSidesGiveAZeroNormal)
{
    CMathematics math;
    TSPlane plane = kNowhere;
    // The third point is 0.0004 * 100 off the line: too far for a point on it, too near for a vector product.
    EXPECT_EQ(math.DefinePlane(P(0, 0, 0), P(1, 0, 0), P(100, 0.04, 0), plane), 1);
    EXPECT_EQ(PlainLength(plane.normal), 0.0);
}

TEST(PointLiesOnLine, CountsTheInfiniteLine)
{
    CMathematics math;
    EXPECT_EQ(math.PointLiesOnLine(P(0, 0, 0), P(1, 2, 3), P(-5, -10, -15)), 1);
    EXPECT_EQ(math.PointLiesOnLine(P(0, 0, 0), P(1, 2, 3), P(0.5, 1, 1.5)), 1);
    EXPECT_EQ(math.PointLiesOnLine(P(0, 0, 0), P(1, 2, 3), P(1, 2, 4)), 0);
    EXPECT_EQ(math.PointLiesOnLine(P(0, 0, 0), P(1, 0, 0), P(1, 0, 1e-7)), 1);
}

TEST(PointLiesOnLine, LineWithoutLengthHasNoPoints)
{
    CMathematics math;
    EXPECT_EQ(math.PointLiesOnLine(P(1, 1, 1), P(1, 1, 1), P(1, 1, 1)), 0);
}

TEST(PointLiesOnLine, SquaredSineLetsFarPointsStandOff)
{
    CMathematics math;
    // At the distance 100 a sine of 9e-5 gives 8.1e-9 * 100 < 1e-6, though the point is 9e-3 off the line.
    EXPECT_EQ(math.PointLiesOnLine(P(0, 0, 0), P(1, 0, 0), P(100, 9e-3, 0)), 1);
    EXPECT_EQ(math.PointLiesOnLine(P(0, 0, 0), P(1, 0, 0), P(100, 1.1e-2, 0)), 0);
}

TEST(PointLiesInPlane, TestsTheAngleNotTheDistance)
{
    CMathematics math;
    TSPlane const plane = {P(1, 1, 1), P(0, 0, 1)};
    EXPECT_EQ(math.PointLiesInPlane(plane, P(5, -3, 1)), 1);
    EXPECT_EQ(math.PointLiesInPlane(plane, P(1, 1, 1 + 0.9e-6)), 1);
    // 100 away, a height of 9e-5 is an angle below the tolerance; 1 away it isn't.
    EXPECT_EQ(math.PointLiesInPlane(plane, P(101, 1, 1 + 9e-5)), 1);
    EXPECT_EQ(math.PointLiesInPlane(plane, P(2, 1, 1 + 9e-5)), 0);
    EXPECT_EQ(math.PointLiesInPlane(plane.origin, plane.normal, P(2, 1, 2)), 0);
}

TEST(DistancePointToLine, GivesFootAndUnlimitedParameter)
{
    CMathematics math;
    double distance;
    double t;
    TUVect3D foot;
    EXPECT_EQ(math.GetDistancePointToLine(P(6, 3, 4), P(0, 0, 0), P(2, 0, 0), distance, foot, t), 1);
    EXPECT_EQ(distance, 5.0);
    EXPECT_EQ(t, 3.0);
    ExpectPoint(foot, P(6, 0, 0), 0.0);
}

TEST(DistancePointToLine, LimitIsTheSquaredLength)
{
    CMathematics math;
    double distance = 9.0;
    double t = 9.0;
    TUVect3D foot;
    EXPECT_EQ(math.GetDistancePointToLine(P(6, 3, 4), P(0, 0, 0), P(0.99e-10, 0, 0), distance, foot, t), 0);
    EXPECT_EQ(distance, 9.0);
    EXPECT_EQ(math.GetDistancePointToLine(P(6, 3, 4), P(0, 0, 0), P(1.01e-10, 0, 0), distance, foot, t), 1);
}

TEST(PointOnExtendedLine, TellsWhereItStands)
{
    CMathematics math;
    TUVect3D const a = P(0, 0, 0);
    TUVect3D const b = P(0, 4, 0);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(0, -1, 0)), -1);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(0, 1, 0)), 1);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(0, 5, 0)), 2);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(2e-6, 1, 0)), 0);
}

TEST(PointOnExtendedLine, EndsReachByTheTolerance)
{
    CMathematics math;
    TUVect3D const a = P(0, 0, 0);
    TUVect3D const b = P(0, 4, 0);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(0, 4 + 0.9e-6, 0)), 1);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(0, 4 + 1.1e-6, 0)), 2);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(0, -0.9e-6, 0)), 1);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, b, P(0, -1.1e-6, 0)), -1);
    EXPECT_EQ(math.IsPointOnExtendedLine(a, a, a), 0);
}

TEST(PointCastOnLine, WritesTheFootInAllCases)
{
    CMathematics math;
    TUVect3D foot;
    EXPECT_EQ(math.PointCastOnLine(P(0, 0, 0), P(2, 0, 0), P(1, 5, 7), foot), 1);
    ExpectPoint(foot, P(1, 0, 0));
    EXPECT_EQ(math.PointCastOnLine(P(0, 0, 0), P(2, 0, 0), P(3, 5, 7), foot), 0);
    ExpectPoint(foot, P(3, 0, 0));
    EXPECT_EQ(math.PointCastOnLine(P(0, 0, 0), P(2, 0, 0), P(-1, 5, 7), foot), 0);
    ExpectPoint(foot, P(-1, 0, 0));
    EXPECT_EQ(math.PointCastOnLine(P(0, 0, 0), P(2, 0, 0), P(2 + 0.9e-6, 5, 7), foot), 1);
    EXPECT_EQ(math.PointCastOnLine(P(0, 0, 0), P(2, 0, 0), P(-0.9e-6, 5, 7), foot), 1);
}

TEST(Point3DInLine, MeasuresFromTheStart)
{
    CMathematics math;
    double distance = 9.0;
    EXPECT_EQ(math.IsPoint3DInLine(P(1, 0, 0), P(5, 0, 0), P(4, 0, 0), distance), 1);
    EXPECT_EQ(distance, 3.0);
    EXPECT_EQ(math.IsPoint3DInLine(P(1, 0, 0), P(5, 0, 0), P(1, 0, 0.9e-6), distance), 1);
    EXPECT_EQ(distance, 0.0);
    EXPECT_EQ(math.IsPoint3DInLine(P(1, 0, 0), P(5, 0, 0), P(5, 0, 0.9e-6), distance), 1);
    EXPECT_EQ(distance, 4.0);
}

TEST(Point3DInLine, RefusesWhatIsOffTheSegment)
{
    CMathematics math;
    double distance = 9.0;
    EXPECT_EQ(math.IsPoint3DInLine(P(1, 0, 0), P(5, 0, 0), P(3, 1e-5, 0), distance), 0);
    EXPECT_EQ(distance, 0.0);
    EXPECT_EQ(math.IsPoint3DInLine(P(1, 0, 0), P(5, 0, 0), P(6, 0, 0), distance), 0);
    EXPECT_EQ(math.IsPoint3DInLine(P(1, 0, 0), P(5, 0, 0), P(0, 0, 0), distance), 0);
    EXPECT_EQ(math.IsPoint3DInLine(P(1, 0, 0), P(1, 0, 0), P(2, 0, 0), distance), 0);
}

TEST(Point3DOnLine, ByDistanceFractionAndPercentage)
{
    CMathematics math;
    TUVect3D point;
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, 1.0, 0), 1);
    ExpectPoint(point, P(2, 0, 0));
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, 0.5, 1), 1);
    ExpectPoint(point, P(3, 0, 0));
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, 75.0, 2), 1);
    ExpectPoint(point, P(4, 0, 0));
}

TEST(Point3DOnLine, OutsideIsWrittenButFails)
{
    CMathematics math;
    TUVect3D point;
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, 5.0, 0), 0);
    ExpectPoint(point, P(6, 0, 0));
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, -1.0, 0), 0);
    ExpectPoint(point, P(0, 0, 0));
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, 4.0 + 0.9e-6, 0), 1);
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, -0.9e-6, 0), 1);
}

TEST(Point3DOnLine, UnknownModeAndZeroLengthLeaveThePoint)
{
    CMathematics math;
    TUVect3D point = P(9, 9, 9);
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, 1.0, 3), 0);
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(5, 0, 0), point, 1.0, -1), 0);
    EXPECT_EQ(math.GetPoint3DOnLine(P(1, 0, 0), P(1 + 0.9e-14, 0, 0), point, 0.0, 0), 0);
    ExpectPoint(point, P(9, 9, 9), 0.0);
}

TEST(PointsAndLines, AgreeOnRandomLines)
{
    CMathematics math;
    Random random(4);
    for (int i = 0; i < 2000; ++i) {
        TUVect3D const a = random.Point();
        TUVect3D const b = Plus(a, Times(random.Between(0.5, 9.0), random.Direction()));
        double const length = Apart(a, b);
        double const along = random.Between(0.01, 0.99) * length;
        TUVect3D const across = random.Across(Minus(b, a));
        double const away = random.Between(0.1, 5.0);
        TUVect3D on;
        ASSERT_EQ(math.GetPoint3DOnLine(a, b, on, along, 0), 1);
        TUVect3D const off = Plus(on, Times(away, across));
        double value;
        ASSERT_EQ(math.IsPoint3DInLine(a, b, on, value), 1);
        ASSERT_NEAR(value, along, 1e-9);
        ASSERT_EQ(math.IsPoint3DInLine(a, b, off, value), 0);
        TUVect3D foot;
        double t;
        ASSERT_EQ(math.GetDistancePointToLine(off, a, b, value, foot, t), 1);
        ASSERT_NEAR(value, away, 1e-9);
        ASSERT_NEAR(t * length, along, 1e-9);
        ASSERT_LT(Apart(foot, on), 1e-9);
        ASSERT_EQ(math.PointCastOnLine(a, b, off, foot), 1);
        ASSERT_LT(Apart(foot, on), 1e-9);
        ASSERT_EQ(math.IsPointOnExtendedLine(a, b, on), 1);
        ASSERT_EQ(math.IsPointOnExtendedLine(a, b, off), 0);
        ASSERT_EQ(math.PointLiesOnLine(a, b, on), 1);
    }
}

TEST(PointsAndLines, OddNumbersEnd)
{
    CMathematics math;
    Random random(5);
    for (int i = 0; i < 20000; ++i) {
        TUVect3D const a = random.OddPoint();
        TUVect3D const b = random.OddPoint();
        TUVect3D const p = random.OddPoint();
        TUVect3D out;
        TSPlane plane;
        double value;
        double t;
        math.DefinePlane(a, b, p, plane);
        math.PointLiesOnLine(a, b, p);
        math.PointLiesInPlane(a, b, p);
        if (math.GetDistancePointToLine(p, a, b, value, out, t)) {
            ASSERT_TRUE(std::isfinite(value));
        }
        int const where = math.IsPointOnExtendedLine(a, b, p);
        ASSERT_TRUE(where >= -1 && where <= 2);
        math.PointCastOnLine(a, b, p, out);
        math.IsPoint3DInLine(a, b, p, value);
        math.GetPoint3DOnLine(a, b, out, random.OddValue(), random.Below(4));
    }
}
