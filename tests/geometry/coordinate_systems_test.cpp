#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "geometry/mathematics.h"

namespace {
constexpr double kPi = std::numbers::pi;

// A plane system turned and moved against the global one; the vectors aren't unit vectors yet.
struct System
{
    TSPlane plane = {{{1.0, 2.0, 3.0}}, {{0.0, 0.0, 5.0}}};
    TUVect3D axisX = {{0.0, 2.0, 0.0}};
    TUVect3D axisY = {{-3.0, 0.0, 0.0}};
};

System GlobalSystem()
{
    return {{{}, {{0.0, 0.0, 1.0}}}, {{1.0, 0.0, 0.0}}, {{0.0, 1.0, 0.0}}};
}

void ExpectPoint(TUVect3D const & actual, double x, double y, double z, double margin = 1e-12)
{
    EXPECT_NEAR(actual.x, x, margin);
    EXPECT_NEAR(actual.y, y, margin);
    EXPECT_NEAR(actual.z, z, margin);
}

TUVect3D ToGlobal(System system, int mode, TUVect3D point)
{
    CMathematics mathematics;
    mathematics.TransUSS_GSS(&system.plane, &system.axisX, &system.axisY, mode, &point);
    return point;
}

TUVect3D ToPlane(System system, int mode, TUVect3D point)
{
    CMathematics mathematics;
    mathematics.TransGSS_USS(&system.plane, &system.axisX, &system.axisY, mode, &point);
    return point;
}

TUVect3D ToMember(TUVect3D origin, TUVect3D direction, double angle, TUVect3D point)
{
    CMathematics mathematics;
    TUVect3D result = {};
    EXPECT_EQ(mathematics.TransGssToLss(&origin, &direction, angle, &point, &result), 1);
    return result;
}
}  // namespace

TEST(PlaneSystem, VectorsAreNormalisedInPlace)
{
    CMathematics mathematics;
    for (int const direction : {0, 1}) {
        System system;
        TUVect3D point = {};
        if (direction == 0)
            mathematics.TransGSS_USS(&system.plane, &system.axisX, &system.axisY, 0, &point);
        else
            mathematics.TransUSS_GSS(&system.plane, &system.axisX, &system.axisY, 0, &point);
        ExpectPoint(system.plane.normal, 0.0, 0.0, 1.0, 0.0);
        ExpectPoint(system.axisX, 0.0, 1.0, 0.0, 0.0);
        ExpectPoint(system.axisY, -1.0, 0.0, 0.0, 0.0);
    }
}

TEST(PlaneSystem, RectangularCoordinatesToGlobal)
{
    // origin + 10 (0, 1, 0) + 20 (-1, 0, 0) + 30 (0, 0, 1)
    ExpectPoint(ToGlobal({}, 0, {{10.0, 20.0, 30.0}}), -19.0, 12.0, 33.0);
}

TEST(PlaneSystem, CylindricalCoordinatesToGlobal)
{
    // radius 2 at a right angle from X is along Y = (-1, 0, 0); y = 7 along the normal.
    ExpectPoint(ToGlobal({}, 1, {{2.0, 7.0, kPi / 2.0}}), -1.0, 2.0, 10.0);
}

TEST(PlaneSystem, SphericalCoordinatesToGlobal)
{
    // Angle 0 in the plane, a right angle above it: straight along the normal.
    ExpectPoint(ToGlobal({}, 2, {{2.0, 0.0, kPi / 2.0}}), 1.0, 2.0, 5.0);
    ExpectPoint(ToGlobal({}, 2, {{2.0, kPi / 2.0, 0.0}}), -1.0, 2.0, 3.0);
}

TEST(PlaneSystem, OriginComesOffAfterTheProjection)
{
    // (point . X, point . Y, point . N) = (5, -4, 6), then minus (1, 2, 3).
    ExpectPoint(ToPlane({}, 0, {{4.0, 5.0, 6.0}}), 4.0, -6.0, 3.0);
}

TEST(PlaneSystem, CylindricalFromGlobalGivesCodeAndAngle)
{
    TUVect3D const point = ToPlane(GlobalSystem(), 1, {{0.0, 3.0, 8.0}});
    EXPECT_EQ(point.x, 0.0);  // stays rectangular
    EXPECT_EQ(point.y, 1.0);  // the code of the normalisation
    EXPECT_NEAR(point.z, kPi / 2.0, 1e-6);
    EXPECT_EQ(ToPlane(GlobalSystem(), 1, {{0.0, 0.0, 8.0}}).y, 0.0);
}

TEST(PlaneSystem, SphericalFromGlobalGivesAngleAboveThePlane)
{
    TUVect3D const above = ToPlane(GlobalSystem(), 2, {{3.0, 0.0, 3.0}});
    EXPECT_EQ(above.x, 3.0);
    EXPECT_EQ(above.y, 1.0);
    EXPECT_NEAR(above.z, kPi / 4.0, 1e-6);
    EXPECT_NEAR(ToPlane(GlobalSystem(), 2, {{3.0, 0.0, -3.0}}).z, 7.0 * kPi / 4.0, 1e-6);
    TUVect3D const onNormal = ToPlane(GlobalSystem(), 2, {{0.0, 0.0, 3.0}});
    EXPECT_EQ(onNormal.y, 0.0);
    EXPECT_EQ(onNormal.z, 0.0);
}

TEST(PlaneSystem, RectangularWaysAreInverseWithoutOrigin)
{
    System system;
    system.plane.origin = {};
    TUVect3D const point = {{4.0, 5.0, 6.0}};
    ExpectPoint(ToPlane(system, 0, ToGlobal(system, 0, point)), 4.0, 5.0, 6.0);
}

TEST(MemberSystem, LevelMemberHasItsAxisAsThirdCoordinate)
{
    // Along x: e1 = z x d = (0, 1, 0), e2 = d x e1 = (0, 0, 1), e3 = (1, 0, 0).
    ExpectPoint(ToMember({{1.0, 1.0, 1.0}}, {{2.0, 0.0, 0.0}}, 0.0, {{4.0, 6.0, 8.0}}), 5.0, 7.0, 3.0);
}

TEST(MemberSystem, UprightMemberUsesTheGlobalAxes)
{
    ExpectPoint(ToMember({}, {{0.0, 0.0, 2.0}}, 0.0, {{4.0, 6.0, 8.0}}), 4.0, 6.0, 8.0);
    // Downward as well: the axes don't turn with the sign.
    ExpectPoint(ToMember({}, {{0.0, 0.0, -2.0}}, 0.0, {{4.0, 6.0, 8.0}}), 4.0, 6.0, 8.0);
}

TEST(MemberSystem, LevelPartBelowTheLimitCountsAsUpright)
{
    ExpectPoint(ToMember({}, {{9e-6, 0.0, 1.0}}, 0.0, {{4.0, 6.0, 8.0}}), 4.0, 6.0, 8.0, 0.0);
    // Just above the limit e1 = (0, 1, 0).
    EXPECT_NEAR(ToMember({}, {{1.1e-5, 0.0, 1.0}}, 0.0, {{4.0, 6.0, 8.0}}).x, 6.0, 1e-9);
}

TEST(MemberSystem, TurnAboutTheMember)
{
    // A quarter turn brings e1 onto the old e2 and e2 onto minus the old e1.
    ExpectPoint(ToMember({}, {{1.0, 0.0, 0.0}}, kPi / 2.0, {{3.0, 4.0, 5.0}}), 5.0, -4.0, 3.0);
    // A turn of no more than 1e-5 is none.
    ExpectPoint(ToMember({}, {{1.0, 0.0, 0.0}}, 1e-5, {{3.0, 4.0, 5.0}}), 4.0, 5.0, 3.0, 0.0);
}

TEST(MemberSystem, BothWaysAreInverse)
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> coordinate(-10.0, 10.0);
    auto const randomPoint = [&] {
        return TUVect3D{{coordinate(random), coordinate(random), coordinate(random)}};
    };
    CMathematics mathematics;
    for (int run = 0; run < 300; ++run) {
        TUVect3D origin = randomPoint();
        TUVect3D direction = run % 3 == 0 ? TUVect3D{{0.0, 0.0, coordinate(random)}} : randomPoint();
        double const angle = coordinate(random);
        TUVect3D point = randomPoint();
        TUVect3D local = ToMember(origin, direction, angle, point);
        TUVect3D back = {};
        EXPECT_EQ(mathematics.TransLssToGss(&origin, &direction, angle, &local, &back), 1);
        ExpectPoint(back, point.x, point.y, point.z, 1e-9);
    }
}
