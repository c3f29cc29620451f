#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "geometry/mathematics.h"
#include "platform/base/rect.h"

namespace {
constexpr double kPi = std::numbers::pi;

struct View
{
    double m[3][3] = {};
    double inverse[3][3] = {};
    TUVect3D direction = {};
    TUVect3D angles = {};
};

View ViewOfDirection(double x, double y, double z, int handed = 1)
{
    CMathematics mathematics;
    View view;
    mathematics.DefineView(x, y, z, 1, handed, &view.direction, &view.angles, view.m, view.inverse);
    return view;
}

View ViewOfAngles(double a, double b, double c, int handed = 1)
{
    CMathematics mathematics;
    View view;
    mathematics.DefineView(a, b, c, 0, handed, &view.direction, &view.angles, view.m, view.inverse);
    return view;
}

double (*Identity())[3]
{
    static double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    return m;
}

void ExpectPoint(TUVect3D const & actual, double x, double y, double z, double margin = 1e-12)
{
    EXPECT_NEAR(actual.x, x, margin);
    EXPECT_NEAR(actual.y, y, margin);
    EXPECT_NEAR(actual.z, z, margin);
}
}  // namespace

TEST(ComputeViewMatrix, FollowsTheTableOfElements)
{
    double const a = 0.3;
    double const b = -0.7;
    double const c = 1.1;
    for (int const handed : {0, 1, 5}) {
        double const s = handed != 0 ? 1.0 : -1.0;
        View const view = ViewOfAngles(a, b, c, handed);
        double const expected[3][3] = {
            {std::cos(a) * std::cos(c) - std::sin(a) * std::sin(b) * std::sin(c) * s,
             -std::sin(a) * std::cos(c) - std::cos(a) * std::sin(b) * std::sin(c) * s,
             std::cos(b) * std::sin(c) * s},
            {-std::cos(a) * std::sin(c) - std::sin(a) * std::sin(b) * std::cos(c) * s,
             std::sin(a) * std::sin(c) - std::cos(a) * std::sin(b) * std::cos(c) * s,
             std::cos(b) * std::cos(c) * s},
            {-std::sin(a) * std::cos(b) * s, -std::cos(a) * std::cos(b) * s, -std::sin(b) * s}};
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j)
                EXPECT_DOUBLE_EQ(view.m[i][j], expected[i][j]) << i << j;
    }
}

TEST(ComputeViewMatrix, InverseTimesMatrixIsIdentity)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> angle(-kPi, kPi);
    for (int run = 0; run < 200; ++run) {
        View const view = ViewOfAngles(angle(random), angle(random), angle(random), run % 2);
        for (int i = 0; i < 3; ++i)
            for (int j = 0; j < 3; ++j) {
                double sum = 0.0;
                for (int k = 0; k < 3; ++k)
                    sum += view.inverse[i][k] * view.m[k][j];
                EXPECT_NEAR(sum, i == j ? 1.0 : 0.0, 1e-12);
            }
    }
}

TEST(ComputeViewMatrix, HandednessTurnsTheTermsWithTheSign)
{
    // With a = c = 0 only the terms with s are left off the diagonal and in the last row.
    View const right = ViewOfAngles(0.0, 0.4, 0.0, 1);
    View const left = ViewOfAngles(0.0, 0.4, 0.0, 0);
    EXPECT_DOUBLE_EQ(right.m[0][0], left.m[0][0]);
    EXPECT_DOUBLE_EQ(right.m[1][1], -left.m[1][1]);
    EXPECT_DOUBLE_EQ(right.m[1][2], -left.m[1][2]);
    EXPECT_DOUBLE_EQ(right.m[2][1], -left.m[2][1]);
    EXPECT_DOUBLE_EQ(right.m[2][2], -left.m[2][2]);
}

TEST(DefineView, StraightDownGivesUnitDirectionAndRightAngle)
{
    View const view = ViewOfDirection(0.0, 0.0, 5.0);
    ExpectPoint(view.direction, 0.0, 0.0, 1.0, 0.0);
    EXPECT_EQ(view.angles.x, 0.0);
    EXPECT_DOUBLE_EQ(view.angles.y, kPi / 2.0);
    EXPECT_EQ(view.angles.z, 0.0);
    EXPECT_DOUBLE_EQ(ViewOfDirection(0.0, 0.0, -2.0).angles.y, -kPi / 2.0);
}

TEST(DefineView, AngleOfDirectionFollowsItsQuadrant)
{
    EXPECT_DOUBLE_EQ(ViewOfDirection(1.0, 1.0, 0.0).angles.x, kPi / 4.0);
    EXPECT_DOUBLE_EQ(ViewOfDirection(-1.0, 1.0, 0.0).angles.x, -kPi / 4.0);
    EXPECT_DOUBLE_EQ(ViewOfDirection(0.0, -1.0, 0.0).angles.x, kPi);
    // d.y below 0: -atan(d.y / d.x) + sign(d.x) * pi / 2.
    EXPECT_DOUBLE_EQ(ViewOfDirection(1.0, -1.0, 0.0).angles.x, 3.0 * kPi / 4.0);
    EXPECT_DOUBLE_EQ(ViewOfDirection(-1.0, -1.0, 0.0).angles.x, -3.0 * kPi / 4.0);
    EXPECT_DOUBLE_EQ(ViewOfDirection(2.0, 0.0, 0.0).angles.x, kPi / 2.0);
    EXPECT_DOUBLE_EQ(ViewOfDirection(-2.0, 0.0, 0.0).angles.x, -kPi / 2.0);
    EXPECT_DOUBLE_EQ(ViewOfDirection(0.0, 1.0, 1.0).angles.y, kPi / 4.0);
}

TEST(DefineView, TinyComponentsOfTheDirectionBecomeZero)
{
    View const view = ViewOfDirection(4e-9, 1.0, -4e-9);
    EXPECT_EQ(view.direction.x, 0.0);
    EXPECT_EQ(view.direction.z, 0.0);
    EXPECT_NE(ViewOfDirection(6e-9, 1.0, 0.0).direction.x, 0.0);
}

TEST(DefineView, NoDirectionChangesNothing)
{
    CMathematics mathematics;
    View view;
    view.m[1][1] = 7.0;
    view.angles.x = 8.0;
    view.direction.y = 9.0;
    mathematics.DefineView(0.0, 9e-11, 0.0, 1, 1, &view.direction, &view.angles, view.m, view.inverse);
    EXPECT_EQ(view.m[1][1], 7.0);
    EXPECT_EQ(view.angles.x, 8.0);
    EXPECT_EQ(view.direction.y, 9.0);
}

TEST(DefineView, AnglesGiveTheDirection)
{
    // cos b in the plane toward a, sin b upward.
    View const view = ViewOfAngles(0.5, 0.25, 0.75);
    ExpectPoint(view.direction, std::cos(0.25) * std::cos(0.5), std::cos(0.25) * std::sin(0.5),
                std::sin(0.25));
    ExpectPoint(view.angles, 0.5, 0.25, 0.75, 0.0);
    EXPECT_NEAR(ViewOfAngles(0.5, -0.25, 0.0).direction.z, -std::sin(0.25), 1e-12);
    ExpectPoint(ViewOfAngles(0.5, kPi / 2.0, 0.0).direction, 0.0, 0.0, 1.0, 0.0);
}

TEST(DefineView, FirstAngleOfMinusARightAngleLooksAlongZ)
{
    // The second limit stands on the first angle: a = -pi/2 takes the sign of b alone.
    ExpectPoint(ViewOfAngles(-kPi / 2.0, -0.25, 0.0).direction, 0.0, 0.0, -1.0, 0.0);
    ExpectPoint(ViewOfAngles(-kPi / 2.0, 0.25, 0.0).direction, 0.0, 0.0, 1.0, 0.0);
}

TEST(DefineView, ViewedDirectionProjectsToOnePoint)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<double> coordinate(-1.0, 1.0);
    CMathematics mathematics;
    for (int run = 0; run < 200; ++run) {
        View const view = ViewOfDirection(coordinate(random), coordinate(random), coordinate(random));
        TUVect3D const & d = view.direction;
        EXPECT_NEAR(mathematics.u3D(d.x, d.y, d.z, view.m), 0.0, 1e-9);
        EXPECT_NEAR(mathematics.v3D(d.x, d.y, d.z, view.m), 0.0, 1e-9);
    }
}

TEST(DefineProjection, SlideCarriesPlanePointsOntoTheTargetPlane)
{
    // Viewed along z, the projection plane is horizontal. `result` is row 2 of the inverse of (U, V, -c), so
    // its product with c is -1 and with the plane's own axes 0.
    CMathematics mathematics;
    View const view = ViewOfDirection(0.2, -0.4, 0.9);
    TUVect3D const c = {{0.3, 0.1, 0.8}};
    TUVect3D slide = {};
    ASSERT_EQ(mathematics.DefineProjection(1, {}, view.direction, c, &slide), 1);
    EXPECT_NEAR(slide.x * c.x + slide.y * c.y + slide.z * c.z, -1.0, 1e-12);
    for (int column = 0; column < 2; ++column)
        EXPECT_NEAR(slide.x * view.inverse[0][column] + slide.y * view.inverse[1][column] +
                        slide.z * view.inverse[2][column],
                    0.0, 1e-12);
}

TEST(DefineProjection, FailsWithinThePlaneAndWithoutDirection)
{
    CMathematics mathematics;
    TUVect3D slide = {{4.0, 5.0, 6.0}};
    EXPECT_EQ(mathematics.DefineProjection(1, {}, {{0.0, 0.0, 1.0}}, {{1.0, 0.0, 0.0}}, &slide), 0);
    EXPECT_EQ(mathematics.DefineProjection(1, {}, {}, {{1.0, 0.0, 0.0}}, &slide), 0);
    ExpectPoint(slide, 4.0, 5.0, 6.0, 0.0);
}

TEST(PRtoUS, UndoesTheProjection)
{
    CMathematics mathematics;
    View const view = ViewOfDirection(0.3, 0.7, -0.2);
    TUVect3D point = {};
    mathematics.PRtoUS(1.5, -2.5, &point, view.inverse);
    EXPECT_NEAR(mathematics.u3D(point.x, point.y, point.z, view.m), 1.5, 1e-12);
    EXPECT_NEAR(mathematics.v3D(point.x, point.y, point.z, view.m), -2.5, 1e-12);
}

TEST(PRtoPR, MovesByTheDistanceAlongTheSlide)
{
    // In the identity view (2, 3) is (2, 3, 0); n . (r - origin) = -4, so it moves by -4 slides.
    CMathematics mathematics;
    TUVect3D result = {};
    mathematics.PRtoPR(2.0, 3.0, &result, Identity(), {{0.5, 0.0, -1.0}}, {{0.0, 0.0, 4.0}},
                       {{0.0, 0.0, 1.0}});
    ExpectPoint(result, 0.0, 3.0, 4.0, 0.0);
}

TEST(Projection, RoundingRulesDiffer)
{
    CMathematics mathematics;
    mathematics.SetViewParams(100, 200, Identity(), 1.0);
    TUVect3D const point = {{1.5, -2.5, 9.0}};

    int x = 0;
    int y = 0;
    mathematics.GetInt2DCoord(100, 200, Identity(), 1.0, point, x, y);
    EXPECT_EQ(x, 102);
    EXPECT_EQ(y, 203);

    TUVect2D stored = {};
    mathematics.Get2DCoord(&point, &stored);
    EXPECT_EQ(stored.x, 101.0);
    EXPECT_EQ(stored.y, 202.0);

    TUVect2D scaled = {};
    mathematics.Point3DToView2D(Identity(), 1.0, point, scaled);
    EXPECT_EQ(scaled.x, 1.0);
    EXPECT_EQ(scaled.y, -3.0);

    TUVect2D plain = {};
    mathematics.Get2DCoord(Identity(), point, plain);
    EXPECT_EQ(plain.x, 1.5);
    EXPECT_EQ(plain.y, -2.5);
}

TEST(Projection, StoredViewServesTheShortForms)
{
    CMathematics mathematics;
    double m[3][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}};
    mathematics.SetViewParams(10, 20, m, 0.5);
    EXPECT_EQ(mathematics.m_iOriginX, 10);
    EXPECT_EQ(mathematics.m_iOriginY, 20);
    EXPECT_EQ(mathematics.m_dScale, 0.5);
    TUVect3D const point = {{1.0, 10.0, 100.0}};
    EXPECT_EQ(mathematics.u3D(&point), 321.0);
    EXPECT_EQ(mathematics.v3D(&point), 654.0);
}

TEST(Projection, HugeCoordinatesStayInts)
{
    CMathematics mathematics;
    int x = 0;
    int y = 0;
    mathematics.GetInt2DCoord(100, -100, Identity(), 1.0, {{1e300, 1e300, 0.0}}, x, y);
    EXPECT_EQ(x, 2147483647);
    EXPECT_EQ(y, -2147483647 - 1);
}

TEST(GetWorld2DCoord, IsTheWayBackFromPixels)
{
    CMathematics mathematics;
    double u = 9.0;
    double v = 9.0;
    mathematics.GetWorld2DCoord(100, 200, 4.0, 110, 194, u, v);
    EXPECT_EQ(u, 2.5);
    EXPECT_EQ(v, 1.5);
    mathematics.GetWorld2DCoord(100, 200, 9e-23, 110, 194, u, v);
    EXPECT_EQ(u, 0.0);
    EXPECT_EQ(v, 0.0);
}

TEST(Midpoints, AreProjectedAfterHalving)
{
    CMathematics mathematics;
    TUVect3D a = {{1.0, 2.0, 3.0}};
    TUVect3D b = {{4.0, 6.0, 5.0}};
    TUVect3D centre = {};
    mathematics.GetCenterPoint(a, b, centre);
    ExpectPoint(centre, 2.5, 4.0, 4.0, 0.0);

    TUVect2D projected = {};
    mathematics.Get2DCenterPoint(Identity(), a, b, projected);
    EXPECT_EQ(projected.x, 2.5);
    EXPECT_EQ(projected.y, 4.0);

    int x = 0;
    int y = 0;
    mathematics.GetInt2DCenterPoint(10, 10, Identity(), 1.0, a, b, x, y);
    EXPECT_EQ(x, 13);
    EXPECT_EQ(y, 6);
}

TEST(GetWorldWindowCorners, GivesLowerLeftAndUpperRight)
{
    // A window of 40 by 20 pixels at (110, 190), 4 pixels a unit, the model origin at (100, 200).
    CMathematics mathematics;
    double u1 = 0.0;
    double v1 = 0.0;
    double u2 = 0.0;
    double v2 = 0.0;
    mathematics.GetWorldWindowCorners(CPoint(110, 190), CRect(5, 6, 45, 26), 100, 200, 4.0, u1, v1, u2, v2);
    EXPECT_EQ(u1, 2.5);
    EXPECT_EQ(v1, -2.5);
    EXPECT_EQ(u2, 12.5);
    EXPECT_EQ(v2, 2.5);
}

TEST(GetWorldWindowCorners, SizesBeyondAnIntAreCutOff)
{
    CMathematics mathematics;
    double u1 = 0.0;
    double v1 = 0.0;
    double u2 = 0.0;
    double v2 = 0.0;
    CRect const endless(-2147483647, -2147483647, 2147483647, 2147483647);
    mathematics.GetWorldWindowCorners(CPoint(1, 1), endless, 0, 0, 1.0, u1, v1, u2, v2);
    EXPECT_EQ(u2, 2147483647.0);
    EXPECT_EQ(v1, -2147483647.0);
}

TEST(ScissorTest, CountsAllFourBorders)
{
    CMathematics mathematics;
    CRect const rect(10, 20, 30, 40);
    EXPECT_EQ(mathematics.ScissorTest(rect, 10, 20), 1);
    EXPECT_EQ(mathematics.ScissorTest(rect, 30, 40), 1);
    EXPECT_EQ(mathematics.ScissorTest(rect, 9, 30), 0);
    EXPECT_EQ(mathematics.ScissorTest(rect, 31, 30), 0);
    EXPECT_EQ(mathematics.ScissorTest(rect, 20, 19), 0);
    EXPECT_EQ(mathematics.ScissorTest(rect, 20, 41), 0);
}
