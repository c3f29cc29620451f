#include "geometry/mat_point.h"

#include <array>
#include <string>

#include "circle_arcs.h"
#include "platform/base/message_box.h"

using namespace space;

namespace {
using Matrix = std::array<TUVect3D, 3>;

TUVect3D Mapped(Matrix const & m, TUVect3D const & v)
{
    return P(PlainDot(m[0], v), PlainDot(m[1], v), PlainDot(m[2], v));
}

/// The rotation by `angle` about the unit vector `n`, anticlockwise seen from its tip.
Matrix RotationMatrix(TUVect3D const & n, double angle)
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    return {P(c + n.x * n.x * (1 - c), n.x * n.y * (1 - c) - n.z * s, n.x * n.z * (1 - c) + n.y * s),
            P(n.y * n.x * (1 - c) + n.z * s, c + n.y * n.y * (1 - c), n.y * n.z * (1 - c) - n.x * s),
            P(n.z * n.x * (1 - c) - n.y * s, n.z * n.y * (1 - c) + n.x * s, c + n.z * n.z * (1 - c))};
}

/// The mirror in the plane through the origin (`weight` 2), or the cast on it (1).
Matrix PlaneMatrix(TUVect3D const & n, double weight)
{
    return {P(1 - weight * n.x * n.x, -weight * n.x * n.y, -weight * n.x * n.z),
            P(-weight * n.y * n.x, 1 - weight * n.y * n.y, -weight * n.y * n.z),
            P(-weight * n.z * n.x, -weight * n.z * n.y, 1 - weight * n.z * n.z)};
}

TUVect3D About(TUVect3D const & origin, Matrix const & m, TUVect3D const & p)
{
    return Plus(origin, Mapped(m, Minus(p, origin)));
}

class Mover : public testing::Test
{
  protected:
    TUVect3D Move(TUVect3D const & p, int repeat = 1)
    {
        TUVect3D result;
        EXPECT_EQ(mover.GetNewPoint(p, result, repeat), 1);
        EXPECT_EQ(mover.GetLastError(), 0);
        return result;
    }

    CMathematics math;
    CMatPoint mover{&math};
    TUVect3D origin = P(1, 2, 3);
    TUVect3D zAxis = P(0, 0, 2);
};

std::string g_shown;

int Record(char const * text, unsigned int)
{
    g_shown = text;
    return 1;
}
}  // namespace

TEST_F(Mover, StartsWithoutAnAction)
{
    TUVect3D p = P(1, 1, 1);
    EXPECT_EQ(mover.GetActionMode(), -1);
    EXPECT_EQ(mover.GetLastError(), 0);
    EXPECT_EQ(mover.GetNewPoint(p, 1), 0);
    EXPECT_EQ(mover.GetLastError(), 8);
    ExpectPoint(p, P(1, 1, 1), 0.0);
}

TEST_F(Mover, WithoutAKernelEverythingFails)
{
    CMatPoint lost(nullptr);
    TUVect3D p = P(1, 1, 1);
    EXPECT_EQ(lost.SetupActionMoveByDirection(p), 0);
    EXPECT_EQ(lost.GetLastError(), 7);
    EXPECT_EQ(lost.SetupActionMoveByRotation(p, p, 1.0, 0.0), 0);
    EXPECT_EQ(lost.SetupActionMoveByMirror(p, p), 0);
    EXPECT_EQ(lost.SetupActionMoveByStretch(p, p, p, 0), 0);
    EXPECT_EQ(lost.SetupActionMoveByScale(p, p), 0);
    EXPECT_EQ(lost.SetupActionMoveToPlane(p, p), 0);
    EXPECT_EQ(lost.SetupActionMoveToPoint(p), 0);
    EXPECT_EQ(lost.GetNewPoint(p, 1), 0);
    EXPECT_EQ(lost.GetLastError(), 7);
    EXPECT_EQ(lost.GetAngle(p, p), 0.0);
    EXPECT_EQ(lost.RotateVectorAroundAxis(p, 1), 0);
    EXPECT_EQ(lost.GetActionMode(), -1);
}

TEST_F(Mover, SetUpsTellWhatIsWrong)
{
    TUVect3D tiny = P(0.9e-4, 0, 0);
    TUVect3D b = P(5, 2, 3);
    TUVect3D c = P(1, 9, 3);
    EXPECT_EQ(mover.SetupActionMoveByDirection(tiny), 0);
    EXPECT_EQ(mover.GetLastError(), 3);
    EXPECT_EQ(mover.SetupActionMoveByRotation(origin, tiny, 1.0, 0.0), 0);
    EXPECT_EQ(mover.GetLastError(), 1);
    EXPECT_EQ(mover.SetupActionMoveByRotation(origin, zAxis, 0.9e-4, 0.0), 0);
    EXPECT_EQ(mover.GetLastError(), 2);
    EXPECT_EQ(mover.SetupActionMoveByMirror(origin, tiny), 0);
    EXPECT_EQ(mover.GetLastError(), 1);
    EXPECT_EQ(mover.SetupActionMoveToPlane(origin, tiny), 0);
    EXPECT_EQ(mover.GetLastError(), 1);
    EXPECT_EQ(mover.SetupActionMoveByStretch(b, b, c, 0), 0);
    EXPECT_EQ(mover.GetLastError(), 4);
    EXPECT_EQ(mover.SetupActionMoveByStretch(c, b, b, 0), 0);
    EXPECT_EQ(mover.GetLastError(), 5);
    EXPECT_EQ(mover.GetActionMode(), -1);
    EXPECT_EQ(mover.SetupActionMoveToPoint(b), 1);
    EXPECT_EQ(mover.GetLastError(), 0);
}

TEST_F(Mover, ScaleRefusesSmallAndNegativeFactors)
{
    for (TUVect3D factors : {P(1, 1, 0), P(1, -1, 1), P(0.9e-4, 1, 1), P(kNan, 1, 1)}) {
        EXPECT_EQ(mover.SetupActionMoveByScale(origin, factors), 0);
        EXPECT_EQ(mover.GetLastError(), 6);
    }
    TUVect3D good = P(1, 2, 3);
    EXPECT_EQ(mover.SetupActionMoveByScale(origin, good), 1);
    EXPECT_EQ(mover.GetLastError(), 0);
}

TEST_F(Mover, RepeatBelowOneFails)
{
    TUVect3D direction = P(1, 2, 3);
    ASSERT_EQ(mover.SetupActionMoveByDirection(direction), 1);
    for (int const repeat : {0, -5}) {
        TUVect3D result = P(9, 9, 9);
        EXPECT_EQ(mover.GetNewPoint(P(4, 5, 6), result, repeat), 0);
        EXPECT_EQ(mover.GetLastError(), 9);
        ExpectPoint(result, P(4, 5, 6), 0.0);
    }
}

TEST_F(Mover, ByADirection)
{
    TUVect3D direction = P(1, 2, 3);
    ASSERT_EQ(mover.SetupActionMoveByDirection(direction), 1);
    EXPECT_EQ(mover.GetActionMode(), 0);
    ExpectPoint(Move(P(1, 1, 1)), P(2, 3, 4));
    ExpectPoint(Move(P(1, 1, 1), 3), P(4, 7, 10));
    TUVect3D inPlace = P(0, 0, 0);
    EXPECT_EQ(mover.GetNewPoint(inPlace, 2), 1);
    ExpectPoint(inPlace, P(2, 4, 6));
}

TEST_F(Mover, ByARotationAnticlockwise)
{
    ASSERT_EQ(mover.SetupActionMoveByRotation(origin, zAxis, kPi / 2.0, 0.0), 1);
    EXPECT_EQ(mover.GetActionMode(), 1);
    ExpectPoint(Move(P(2, 2, 7)), P(1, 3, 7));
    ExpectPoint(Move(P(2, 2, 7), 2), P(0, 2, 7));
}

TEST_F(Mover, ByARotationWithAShiftAlongTheAxis)
{
    ASSERT_EQ(mover.SetupActionMoveByRotation(origin, zAxis, kPi / 2.0, 0.5), 1);
    ExpectPoint(Move(P(2, 2, 7), 2), P(0, 2, 8));
    ExpectPoint(Move(P(1, 2, 9)), P(1, 2, 9.5));  // on the axis
    ExpectPoint(Move(origin), P(1, 2, 3.5));
    ASSERT_EQ(mover.SetupActionMoveByRotation(origin, zAxis, kPi / 2.0, 0.9e-4), 1);
    ExpectPoint(Move(P(1, 2, 9)), P(1, 2, 9));
}

TEST_F(Mover, ByRandomRotations)
{
    Random random(40);
    for (int i = 0; i < 2000; ++i) {
        TUVect3D centre = random.Point();
        TUVect3D axis = Times(random.Between(0.1, 9.0), random.Direction());
        double const angle = random.Between(-3.0, 3.0);
        double const shift = random.Between(-2.0, 2.0);
        int const repeat = 1 + random.Below(4);
        ASSERT_EQ(mover.SetupActionMoveByRotation(centre, axis, angle, shift), 1);
        TUVect3D const p = random.Point();
        TUVect3D const unit = PlainUnit(axis);
        TUVect3D const expected =
            Plus(About(centre, RotationMatrix(unit, repeat * angle), p), Times(repeat * shift, unit));
        ASSERT_LT(Apart(Move(p, repeat), expected), 1e-9);
    }
}

TEST_F(Mover, ByAMirror)
{
    ASSERT_EQ(mover.SetupActionMoveByMirror(origin, zAxis), 1);
    ExpectPoint(Move(P(7, 8, 5)), P(7, 8, 1));
    // A point of the plane stays.
    ExpectPoint(Move(P(7, 8, 3)), P(7, 8, 3));
    ExpectPoint(Move(origin), origin);
    Random random(41);
    for (int i = 0; i < 500; ++i) {
        TUVect3D centre = random.Point();
        TUVect3D normal = Times(random.Between(0.1, 9.0), random.Direction());
        ASSERT_EQ(mover.SetupActionMoveByMirror(centre, normal), 1);
        TUVect3D const p = random.Point();
        ASSERT_LT(Apart(Move(p), About(centre, PlaneMatrix(PlainUnit(normal), 2.0), p)), 1e-9);
        ASSERT_LT(Apart(Move(Move(p)), p), 1e-9);
    }
}

TEST_F(Mover, ToAPlane)
{
    Random random(42);
    for (int i = 0; i < 500; ++i) {
        TUVect3D centre = random.Point();
        TUVect3D normal = Times(random.Between(0.1, 9.0), random.Direction());
        ASSERT_EQ(mover.SetupActionMoveToPlane(centre, normal), 1);
        TUVect3D const p = random.Point();
        ASSERT_LT(Apart(Move(p), About(centre, PlaneMatrix(PlainUnit(normal), 1.0), p)), 1e-9);
    }
}

TEST_F(Mover, ByAScale)
{
    TUVect3D factors = P(2, 0.5, 3);
    ASSERT_EQ(mover.SetupActionMoveByScale(origin, factors), 1);
    ExpectPoint(Move(P(2, 4, 2)), P(3, 3, 0));
    ExpectPoint(Move(origin), origin);
}

TEST_F(Mover, ToAPoint)
{
    ASSERT_EQ(mover.SetupActionMoveToPoint(origin), 1);
    ExpectPoint(Move(P(9, 9, 9)), origin, 0.0);
}

TEST_F(Mover, FullStretchTakesTheFirstLegToTheSecond)
{
    Random random(43);
    for (int i = 0; i < 1000; ++i) {
        TUVect3D a = random.Point();
        TUVect3D const first = random.Direction();
        // Legs at an acute angle.
        TUVect3D const second = PlainUnit(Plus(Times(random.Between(0.2, 3.0), first), random.Across(first)));
        double const length = random.Between(0.5, 5.0);
        double const newLength = random.Between(0.5, 5.0);
        TUVect3D b = Plus(a, Times(length, first));
        TUVect3D c = Plus(a, Times(newLength, second));
        ASSERT_EQ(mover.SetupActionMoveByStretch(a, b, c, 0), 1);
        ASSERT_LT(Apart(Move(b), c), 1e-9);
        ASSERT_LT(Apart(Move(a), a), 1e-9);
        // Any point turns, and its share along the second leg grows by the ratio of the lengths.
        TUVect3D const axis = PlainUnit(PlainCross(first, second));
        double const angle = std::asin(PlainLength(PlainCross(first, second)));
        TUVect3D const p = random.Point();
        TUVect3D const turned = About(a, RotationMatrix(axis, angle), p);
        double const share = PlainDot(Minus(turned, a), second);
        ASSERT_LT(Apart(Move(p), Plus(turned, Times(share * (newLength / length - 1), second))), 1e-8);
        // Turning alone keeps the distances.
        ASSERT_EQ(mover.SetupActionMoveByStretch(a, b, c, 1), 1);
        ASSERT_LT(Apart(Move(p), turned), 1e-8);
    }
}

TEST_F(Mover, StretchAlongOneLineOnlyScales)
{
    TUVect3D a = P(1, 0, 0);
    TUVect3D b = P(3, 0, 0);
    TUVect3D c = P(5, 0, 0);
    ASSERT_EQ(mover.SetupActionMoveByStretch(a, b, c, 0), 1);
    ExpectPoint(Move(P(3, 0, 0)), P(5, 0, 0));
    ExpectPoint(Move(P(2, 7, -1)), P(3, 7, -1));
    ExpectPoint(Move(a), a);
}

TEST_F(Mover, ObtuseStretchIsTakenInTheFirstQuadrant)
{
    // The legs stand at 135 degrees, of which the sine knows 45.
    TUVect3D a = P(0, 0, 0);
    TUVect3D b = P(1, 0, 0);
    TUVect3D c = P(-1, 1, 0);
    ASSERT_EQ(mover.SetupActionMoveByStretch(a, b, c, 1), 1);
    ExpectPoint(Move(b), P(std::sqrt(0.5), std::sqrt(0.5), 0));
}

TEST_F(Mover, ForeignActionShowsItsMessage)
{
    MessageBoxHandler const old = SetMessageBoxHandler(Record);
    g_shown.clear();
    mover.SetActionMode(12);
    TUVect3D p = P(1, 2, 3);
    EXPECT_EQ(mover.GetNewPoint(p, 1), 0);
    ExpectPoint(p, P(1, 2, 3), 0.0);
    EXPECT_EQ(g_shown, "EMPTY_BODY:\n\nCMatPoint::GetNewPoint");
    SetMessageBoxHandler(old);
}

TEST_F(Mover, AngleIsInTheFirstQuadrant)
{
    TUVect3D a = P(2, 0, 0);
    TUVect3D b = P(-3, 3, 0);
    EXPECT_NEAR(mover.GetAngle(a, b), kPi / 4.0, 1e-12);
    b = P(0, 0, 5);
    EXPECT_NEAR(mover.GetAngle(a, b), kPi / 2.0, 1e-12);
    EXPECT_EQ(a.x, 2.0);
}

TEST_F(Mover, AxisBelongsToTurningMirroringAndCasting)
{
    TUVect3D axis;
    int action = -77;
    ASSERT_EQ(mover.SetupActionMoveByRotation(origin, zAxis, 1.0, 0.0), 1);
    EXPECT_EQ(mover.GetAxis(axis, action), 1);
    EXPECT_EQ(action, 1);
    ExpectPoint(axis, P(0, 0, 1));
    ASSERT_EQ(mover.SetupActionMoveByMirror(origin, zAxis), 1);
    EXPECT_EQ(mover.GetAxis(axis, action), 1);
    ASSERT_EQ(mover.SetupActionMoveToPlane(origin, zAxis), 1);
    EXPECT_EQ(mover.GetAxis(axis, action), 1);
    EXPECT_EQ(action, 5);
    ASSERT_EQ(mover.SetupActionMoveByDirection(zAxis), 1);
    EXPECT_EQ(mover.GetAxis(axis, action), 0);
    EXPECT_EQ(action, 0);
}

TEST_F(Mover, VectorsTurnWithARotationAlone)
{
    TUVect3D v = P(2, 0, 1);
    ASSERT_EQ(mover.SetupActionMoveByRotation(origin, zAxis, kPi / 4.0, 3.0), 1);
    EXPECT_EQ(mover.RotateVectorAroundAxis(v, 2), 1);
    ExpectPoint(v, P(0, 2, 1));
    ASSERT_EQ(mover.SetupActionMoveByMirror(origin, zAxis), 1);
    EXPECT_EQ(mover.RotateVectorAroundAxis(v, 1), 0);
    ExpectPoint(v, P(0, 2, 1));
}

TEST_F(Mover, EdgesWithoutAnActionFail)
{
    TSPlaneEdge3D edge = {P(0, 0, 0), P(1, 0, 0), {}, 0.0, EDGE_LINE};
    EXPECT_EQ(mover.GetNewEdge3D(edge, 1), 0);
    ASSERT_EQ(mover.SetupActionMoveToPoint(origin), 1);
    edge.type = 9;
    EXPECT_EQ(mover.GetNewEdge3D(edge, 1), 0);
    ExpectPoint(edge.end, P(1, 0, 0), 0.0);
}

TEST_F(Mover, PointsAndLinesMoveTheirEnds)
{
    TUVect3D direction = P(0, 0, 5);
    ASSERT_EQ(mover.SetupActionMoveByDirection(direction), 1);
    TSPlaneEdge3D edge = {P(0, 0, 0), P(1, 0, 0), {}, 0.0, EDGE_LINE};
    EXPECT_EQ(mover.GetNewEdge3D(edge, 2), 1);
    ExpectPoint(edge.start, P(0, 0, 10));
    ExpectPoint(edge.end, P(1, 0, 10));
    edge = {P(1, 1, 1), P(1, 1, 1), {}, 0.0, EDGE_POINT};
    EXPECT_EQ(mover.GetNewEdge3D(edge, 1), 1);
    ExpectPoint(edge.start, P(1, 1, 6));
    ExpectPoint(edge.end, P(1, 1, 6));
}

TEST_F(Mover, ArcsAreRebuiltFromThreePoints)
{
    Random random(44);
    for (int i = 0; i < 500; ++i) {
        Circle const circle = RandomCircle(random);
        double const sweep = random.Between(0.3, 5.5);
        SpaceArc const arc = circle.Cut(0.0, sweep);
        TSPlaneEdge3D edge = {arc.start, arc.end, arc.arcVector, arc.bulge, EDGE_ARC};
        TUVect3D centre = random.Point();
        TUVect3D axis = random.Direction();
        double const angle = random.Between(0.1, 3.0);
        ASSERT_EQ(mover.SetupActionMoveByRotation(centre, axis, angle, 0.0), 1);
        ASSERT_EQ(mover.GetNewEdge3D(edge, 1), 1);
        ASSERT_NEAR(edge.bulge, arc.bulge, 1e-6 * (1 + arc.bulge));
        Matrix const turn = RotationMatrix(axis, angle);
        for (double const share : {0.0, 0.3, 0.7, 1.0}) {
            TUVect3D p;
            ASSERT_EQ(math.Get3DPointOnArc(edge.start, edge.end, edge.arcVector, edge.bulge, share, 1, p), 1);
            ASSERT_LT(Apart(p, About(centre, turn, circle.At(share * sweep))), 1e-6);
        }
    }
}

TEST_F(Mover, ArcCastEdgeOnBecomesItsChord)
{
    TUVect3D yAxis = P(0, 1, 0);
    ASSERT_EQ(mover.SetupActionMoveToPlane(origin, yAxis), 1);
    TSPlaneEdge3D edge = {kHalf.start, kHalf.end, kHalf.arcVector, kHalf.bulge, EDGE_ARC};
    EXPECT_EQ(mover.GetNewEdge3D(edge, 1), 1);
    ExpectPoint(edge.start, P(0, 2, 0));
    ExpectPoint(edge.end, P(2, 2, 0));
    EXPECT_EQ(edge.bulge, 0.0);
    EXPECT_EQ(PlainLength(edge.arcVector), 0.0);
}

TEST_F(Mover, OddNumbersEnd)
{
    Random random(45);
    for (int i = 0; i < 20000; ++i) {
        TUVect3D a = random.OddPoint();
        TUVect3D b = random.OddPoint();
        TUVect3D c = random.OddPoint();
        switch (random.Below(7)) {
            case 0:
                mover.SetupActionMoveByDirection(a);
                break;
            case 1:
                mover.SetupActionMoveByRotation(a, b, random.OddValue(), random.OddValue());
                break;
            case 2:
                mover.SetupActionMoveByMirror(a, b);
                break;
            case 3:
                mover.SetupActionMoveByStretch(a, b, c, random.Below(2));
                break;
            case 4:
                mover.SetupActionMoveByScale(a, b);
                break;
            case 5:
                mover.SetupActionMoveToPlane(a, b);
                break;
            default:
                mover.SetupActionMoveToPoint(a);
        }
        TSPlaneEdge3D edge = {random.OddPoint(), random.OddPoint(), random.OddPoint(), random.OddValue(),
                              random.Below(3)};
        mover.GetNewEdge3D(edge, 1 + random.Below(3));
        mover.GetNewPoint(c, 2000000000);
    }
}
