#include "geometry/object_3d.h"

#include <vector>

#include "circle_arcs.h"
#include "geometry/face_3d.h"

using namespace space;

namespace {
double kFromAbove[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
double kFromFront[3][3] = {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}};

/// A kernel with one object of each kind and room for the answers.
class Objects : public testing::Test
{
  protected:
    Objects()
    {
        point.CreatePoint(P(1, 1, 5));
        line.CreateLine(P(0, 0, 0), P(4, 0, 0));
        arc.CreateArc(kHalf.start, kHalf.end, kHalf.arcVector, kHalf.bulge);
    }

    CMathematics math;
    CObject3D empty{&math, kFromAbove, 1.0};
    CObject3D point{&math, kFromAbove, 1.0};
    CObject3D line{&math, kFromAbove, 1.0};
    CObject3D arc{&math, kFromAbove, 1.0};
    double length = -77.0;
    TUVect3D p = P(-77, -77, -77);
    int count = -77;
    TUVect3D points[2] = {P(-77, -77, -77), P(-77, -77, -77)};
};

/// Every question to an object; the sum of the answers.
int AskEverything(CObject3D & object, CObject3D & other)
{
    TSPlaneEdge3D edge = {};
    double length;
    TUVect3D p;
    int count;
    TUVect3D points[2];
    TUVect2D polygon[] = {Q(-9, -9), Q(9, -9), Q(9, 9), Q(-9, 9), Q(-9, -9), Q(0, 0)};
    int sum = object.Make3DEdge(edge) + object.GetLength(&length) + object.GetPointFromLength(0.0, &p) +
              object.GetPointFromLengthReverse(0.0, &p) + object.GetLengthToPoint(&length, P(0, 0, 0)) +
              object.GetPointFromPercent(0.0, &p) + object.GetPointFromPercentReverse(0.0, &p) +
              object.GetStartPoint(&p) + object.GetEndPoint(&p) + object.GetVector(&p) +
              object.GetCenterPoint(&p) + object.GetCenterPointOfArc(&p) +
              object.PointLiesInObject(P(0, 0, 0)) + object.PointIsObjectsVertex(P(0, 0, 0)) +
              object.ObjectIntersects2DLine(Q(-1, 0), Q(1, 0)) +
              object.ObjectLiesIn2DRectangle(Q(-9, -9), Q(9, 9)) +
              object.ObjectIntersects2DRectangle(Q(-9, -9), Q(9, 9)) +
              object.ObjectLiesIn2DPolygon(5, polygon) + object.ObjectIntersects2DPolygon(5, polygon) +
              object.IntersectionWithObject3D(&other, &count, points) +
              object.ApparentIntersectionWithObject3D(&other, &count, points) +
              object.VerticalIntersection(P(0, 0, 0), &count, points) +
              object.GetTangensPoint(P(0, 0, 0), &count, points);
    for (int question = -1; question <= 6; ++question)
        sum += object.ObjectVersus2DPolygon(5, polygon, question);
    return sum;
}
}  // namespace

TEST_F(Objects, EmptyOnesAnswerNoToEverything)
{
    EXPECT_EQ(AskEverything(empty, line), 0);
    EXPECT_GT(AskEverything(line, arc), 0);
    CObject3D withoutKernel(nullptr);
    withoutKernel.CreateLine(P(0, 0, 0), P(1, 0, 0));
    EXPECT_EQ(AskEverything(withoutKernel, line), 0);
}

TEST_F(Objects, HaveRunTimeClassInformation)
{
    EXPECT_STREQ(line.GetRuntimeClass()->m_lpszClassName, "CObject3D");
    EXPECT_TRUE(line.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_EQ(RUNTIME_CLASS(CObject3D)->CreateObject(), nullptr);
}

TEST_F(Objects, GoToAnEdgeAndBack)
{
    TSPlaneEdge3D edge = {};
    EXPECT_EQ(arc.Make3DEdge(edge), 1);
    EXPECT_EQ(edge.type, EDGE_ARC);
    EXPECT_EQ(edge.bulge, 1.0);
    ExpectPoint(edge.arcVector, P(0, 1, 0), 0.0);
    EXPECT_EQ(empty.Create3DEdge(edge), 1);
    EXPECT_EQ(empty.GetLength(&length), 1);
    EXPECT_NEAR(length, kPi, 1e-12);
    EXPECT_EQ(line.Make3DEdge(edge), 1);
    EXPECT_EQ(edge.type, EDGE_LINE);
    EXPECT_EQ(edge.bulge, 0.0);
    EXPECT_EQ(point.Make3DEdge(edge), 1);
    EXPECT_EQ(edge.type, EDGE_POINT);
    ExpectPoint(edge.end, P(1, 1, 5), 0.0);
    edge.type = 3;
    CObject3D other(&math);
    EXPECT_EQ(other.Create3DEdge(edge), 0);
    EXPECT_EQ(other.GetLength(&length), 0);
}

TEST_F(Objects, Lengths)
{
    EXPECT_EQ(point.GetLength(&length), 1);
    EXPECT_EQ(length, 0.0);
    EXPECT_EQ(line.GetLength(&length), 1);
    EXPECT_EQ(length, 4.0);
    EXPECT_EQ(arc.GetLength(&length), 1);
    EXPECT_NEAR(length, kPi, 1e-12);
}

TEST_F(Objects, PointsFromALength)
{
    EXPECT_EQ(line.GetPointFromLength(1.0, &p), 1);
    ExpectPoint(p, P(1, 0, 0));
    EXPECT_EQ(arc.GetPointFromLength(kPi / 2.0, &p), 1);
    ExpectPoint(p, P(1, 1, 0));
    EXPECT_EQ(point.GetPointFromLength(0.0, &p), 1);
    ExpectPoint(p, P(1, 1, 5));
}

TEST_F(Objects, LengthWithinTheToleranceBeyondTheEndGivesTheEnd)
{
    EXPECT_EQ(line.GetPointFromLength(4.0 + 0.5e-6, &p), 1);
    ExpectPoint(p, P(4, 0, 0), 0.0);
    EXPECT_EQ(arc.GetPointFromLength(kPi + 0.5e-6, &p), 1);
    ExpectPoint(p, P(2, 0, 0));
    p = P(-77, -77, -77);
    EXPECT_EQ(line.GetPointFromLength(4.0 + 1.5e-6, &p), 0);
    EXPECT_EQ(point.GetPointFromLength(1.0, &p), 0);
    EXPECT_EQ(line.GetPointFromLength(kNan, &p), 0);
    EXPECT_EQ(p.x, -77.0);
}

TEST_F(Objects, PointsFromTheEnd)
{
    EXPECT_EQ(line.GetPointFromLengthReverse(1.0, &p), 1);
    ExpectPoint(p, P(3, 0, 0));
    EXPECT_EQ(arc.GetPointFromLengthReverse(0.0, &p), 1);
    ExpectPoint(p, P(2, 0, 0));
    EXPECT_EQ(line.GetPointFromLengthReverse(4.0 + 0.5e-6, &p), 1);
    ExpectPoint(p, P(0, 0, 0));
    EXPECT_EQ(line.GetPointFromLengthReverse(5.0, &p), 0);
}

TEST_F(Objects, PointsFromAPercentage)
{
    EXPECT_EQ(line.GetPointFromPercent(25.0, &p), 1);
    ExpectPoint(p, P(1, 0, 0));
    EXPECT_EQ(line.GetPointFromPercentReverse(25.0, &p), 1);
    ExpectPoint(p, P(3, 0, 0));
    EXPECT_EQ(arc.GetCenterPoint(&p), 1);
    ExpectPoint(p, P(1, 1, 0));
    EXPECT_EQ(line.GetPointFromPercent(101.0, &p), 0);
}

TEST_F(Objects, LengthToAPoint)
{
    EXPECT_EQ(line.GetLengthToPoint(&length, P(3, 0, 0)), 1);
    EXPECT_EQ(length, 3.0);
    EXPECT_EQ(arc.GetLengthToPoint(&length, P(1, 1, 0)), 1);
    EXPECT_NEAR(length, kPi / 2.0, 1e-9);
    EXPECT_EQ(point.GetLengthToPoint(&length, P(1, 1, 5)), 1);
    EXPECT_EQ(length, 0.0);
    length = -77.0;
    EXPECT_EQ(line.GetLengthToPoint(&length, P(5, 0, 0)), 0);
    EXPECT_EQ(length, 0.0);
}

TEST_F(Objects, EndsVectorAndCentre)
{
    EXPECT_EQ(arc.GetStartPoint(&p), 1);
    ExpectPoint(p, P(0, 0, 0), 0.0);
    EXPECT_EQ(arc.GetEndPoint(&p), 1);
    ExpectPoint(p, P(2, 0, 0), 0.0);
    EXPECT_EQ(arc.GetVector(&p), 1);
    ExpectPoint(p, P(2, 0, 0), 0.0);
    EXPECT_EQ(arc.GetCenterPointOfArc(&p), 1);
    ExpectPoint(p, P(1, 0, 0));
    EXPECT_EQ(line.GetCenterPointOfArc(&p), 0);
    EXPECT_EQ(point.GetVector(&p), 0);
    EXPECT_EQ(point.GetEndPoint(&p), 1);
    ExpectPoint(p, P(1, 1, 5), 0.0);
}

TEST_F(Objects, PointsOnThem)
{
    EXPECT_EQ(line.PointLiesInObject(P(3, 0, 0)), 1);
    EXPECT_EQ(line.PointLiesInObject(P(5, 0, 0)), 0);
    EXPECT_EQ(arc.PointLiesInObject(P(1, 1, 0)), 1);
    EXPECT_EQ(arc.PointLiesInObject(P(1, -1, 0)), 0);
    EXPECT_EQ(line.PointIsObjectsVertex(P(4, 0, 0.5e-6)), 1);
    EXPECT_EQ(line.PointIsObjectsVertex(P(3, 0, 0)), 0);
    EXPECT_EQ(point.PointIsObjectsVertex(P(1, 1, 5)), 1);
    EXPECT_EQ(point.PointIsObjectsVertex(P(1, 1, 4)), 0);
}

TEST_F(Objects, SeenAgainstASegment)
{
    EXPECT_EQ(line.ObjectIntersects2DLine(Q(1, -1), Q(1, 1)), 1);
    EXPECT_EQ(line.ObjectIntersects2DLine(Q(5, -1), Q(5, 1)), 0);
    EXPECT_EQ(arc.ObjectIntersects2DLine(Q(1, 0.5), Q(1, 2)), 1);
    EXPECT_EQ(arc.ObjectIntersects2DLine(Q(1, 0.1), Q(1, 0.9)), 0);
    EXPECT_EQ(point.ObjectIntersects2DLine(Q(0, 0), Q(2, 2)), 1);
    EXPECT_EQ(point.ObjectIntersects2DLine(Q(2, 2), Q(3, 3)), 1);  // the infinite line
    EXPECT_EQ(point.ObjectIntersects2DLine(Q(2, 2), Q(3, 4)), 0);
}

TEST_F(Objects, SeenThroughTheirOwnView)
{
    CObject3D upright(&math, kFromFront, 2.0);
    upright.CreateLine(P(0, 7, 0), P(0, -7, 4));
    EXPECT_EQ(upright.ObjectIntersects2DLine(Q(-1, 2), Q(1, 2)), 1);
    EXPECT_EQ(upright.ObjectLiesIn2DRectangle(Q(-1, -1), Q(1, 5)), 1);
    CObject3D withoutView(&math);
    withoutView.CreateLine(P(5, 5, 5), P(6, 6, 6));
    EXPECT_EQ(withoutView.ObjectLiesIn2DRectangle(Q(-1, -1), Q(1, 1)), 1);
}

TEST_F(Objects, SeenAgainstARectangle)
{
    EXPECT_EQ(point.ObjectLiesIn2DRectangle(Q(0, 0), Q(2, 2)), 1);
    EXPECT_EQ(point.ObjectIntersects2DRectangle(Q(0, 0), Q(2, 2)), 0);
    EXPECT_EQ(point.ObjectIntersects2DRectangle(Q(1, 1), Q(2, 2)), 0);
    EXPECT_EQ(line.ObjectLiesIn2DRectangle(Q(-1, -1), Q(5, 5)), 1);
    EXPECT_EQ(line.ObjectIntersects2DRectangle(Q(-1, -1), Q(5, 5)), 0);
    EXPECT_EQ(line.ObjectLiesIn2DRectangle(Q(-1, -1), Q(2, 5)), 0);
    EXPECT_EQ(line.ObjectIntersects2DRectangle(Q(-1, -1), Q(2, 5)), 1);
    EXPECT_EQ(arc.ObjectLiesIn2DRectangle(Q(-1, -1), Q(3, 3)), 1);
    EXPECT_EQ(arc.ObjectIntersects2DRectangle(Q(-1, -1), Q(3, 0.5)), 1);
    EXPECT_EQ(arc.ObjectIntersects2DRectangle(Q(5, 5), Q(6, 6)), 0);
}

TEST_F(Objects, SeenAgainstAPolygon)
{
    std::vector<TUVect2D> around = {Q(-1, -1), Q(5, -1), Q(5, 5), Q(-1, 5), Q(-1, -1)};
    std::vector<TUVect2D> across = {Q(-1, -1), Q(1.5, -1), Q(1.5, 5), Q(-1, 5), Q(-1, -1)};
    std::vector<TUVect2D> away = {Q(11, 11), Q(15, 11), Q(15, 15), Q(11, 14), Q(11, 11)};
    EXPECT_EQ(line.ObjectLiesIn2DPolygon(5, around.data()), 1);
    EXPECT_EQ(line.ObjectIntersects2DPolygon(5, around.data()), 0);
    EXPECT_EQ(line.ObjectLiesIn2DPolygon(5, across.data()), 0);
    EXPECT_EQ(line.ObjectIntersects2DPolygon(5, across.data()), 1);
    EXPECT_EQ(arc.ObjectLiesIn2DPolygon(5, around.data()), 1);
    EXPECT_EQ(arc.ObjectIntersects2DPolygon(5, across.data()), 1);
    EXPECT_EQ(point.ObjectLiesIn2DPolygon(5, across.data()), 1);
    EXPECT_EQ(point.ObjectLiesIn2DPolygon(5, away.data()), 0);

    // Answers to the questions 0 to 5 and one more.
    struct Row
    {
        std::vector<TUVect2D> & polygon;
        int answers[7];
    };
    Row const rows[] = {
        {around, {1, 1, 0, 0, 0, 1, 0}},  // lies in it
        {across, {0, 1, 0, 1, 1, 0, 0}},  // intersects it
        {away, {0, 0, 1, 1, 0, 1, 0}},    // neither
    };
    for (Row const & row : rows)
        for (int question = 0; question < 7; ++question)
            EXPECT_EQ(line.ObjectVersus2DPolygon(5, row.polygon.data(), question), row.answers[question])
                << question;
    EXPECT_EQ(line.ObjectVersus2DPolygon(5, around.data(), -1), 0);
}

TEST_F(Objects, OpenPolygonHasItsClosingSide)
{
    TUVect2D open[] = {Q(3, 5), Q(-1, 5), Q(-1, -1), Q(3, -1), Q(0, 0)};
    EXPECT_EQ(line.ObjectIntersects2DPolygon(4, open), 1);
}

TEST_F(Objects, IntersectionOfPoints)
{
    CObject3D same(&math);
    same.CreatePoint(P(1, 1, 5 + 0.5e-6));
    EXPECT_EQ(point.IntersectionWithObject3D(&same, &count, points), 1);
    EXPECT_EQ(count, 1);
    ExpectPoint(points[0], P(1, 1, 5), 1e-6);
    CObject3D other(&math);
    other.CreatePoint(P(1, 1, 6));
    EXPECT_EQ(point.IntersectionWithObject3D(&other, &count, points), 0);
    EXPECT_EQ(count, 0);
}

TEST_F(Objects, IntersectionWithNothing)
{
    EXPECT_EQ(line.IntersectionWithObject3D(nullptr, &count, points), 0);
    EXPECT_EQ(count, 0);
    count = 5;
    EXPECT_EQ(line.IntersectionWithObject3D(&empty, &count, points), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(line.ApparentIntersectionWithObject3D(nullptr, &count, points), 0);
}

TEST_F(Objects, IntersectionOfAPointWithALineCountsTheInfiniteLine)
{
    CObject3D behind(&math);
    behind.CreatePoint(P(9, 0, 0));
    for (CObject3D * first : {&behind, &line}) {
        CObject3D * second = first == &line ? &behind : &line;
        EXPECT_EQ(first->IntersectionWithObject3D(second, &count, points), 1);
        EXPECT_EQ(count, 1);
        ExpectPoint(points[0], P(9, 0, 0), 0.0);
        EXPECT_EQ(first->ApparentIntersectionWithObject3D(second, &count, points), 1);
    }
    EXPECT_EQ(point.IntersectionWithObject3D(&line, &count, points), 0);
}

TEST_F(Objects, IntersectionOfAPointWithAnArc)
{
    CObject3D apex(&math);
    apex.CreatePoint(P(1, 1, 0));
    CObject3D opposite(&math);
    opposite.CreatePoint(P(1, -1, 0));
    EXPECT_EQ(apex.IntersectionWithObject3D(&arc, &count, points), 1);
    EXPECT_EQ(arc.IntersectionWithObject3D(&apex, &count, points), 1);
    EXPECT_EQ(arc.IntersectionWithObject3D(&opposite, &count, points), 0);
    EXPECT_EQ(arc.ApparentIntersectionWithObject3D(&opposite, &count, points), 1);
    ExpectPoint(points[0], P(1, -1, 0), 0.0);
}

TEST_F(Objects, IntersectionOfLines)
{
    CObject3D other(&math);
    other.CreateLine(P(1, -1, 0), P(1, 1, 0));
    EXPECT_EQ(line.IntersectionWithObject3D(&other, &count, points), 1);
    EXPECT_EQ(count, 1);
    ExpectPoint(points[0], P(1, 0, 0));
    other.CreateLine(P(5, 1, 0), P(5, 2, 0));
    EXPECT_EQ(line.IntersectionWithObject3D(&other, &count, points), 0);
    EXPECT_EQ(line.ApparentIntersectionWithObject3D(&other, &count, points), 1);
    ExpectPoint(points[0], P(5, 0, 0));
}

TEST_F(Objects, IntersectionOfOverlappingLinesIsTheStretch)
{
    CObject3D other(&math);
    other.CreateLine(P(3, 0, 0), P(9, 0, 0));
    EXPECT_EQ(line.IntersectionWithObject3D(&other, &count, points), 1);
    EXPECT_EQ(count, 2);
    EXPECT_NEAR(points[0].x + points[1].x, 7.0, 1e-12);
    other.CreateLine(P(4, 0, 0), P(9, 0, 0));
    EXPECT_EQ(line.IntersectionWithObject3D(&other, &count, points), 1);
    EXPECT_EQ(count, 1);
    ExpectPoint(points[0], P(4, 0, 0));
    // One line without a common stretch has no point to name.
    other.CreateLine(P(5, 0, 0), P(9, 0, 0));
    EXPECT_EQ(line.ApparentIntersectionWithObject3D(&other, &count, points), 0);
    EXPECT_EQ(count, 0);
}

TEST_F(Objects, IntersectionOfLineAndArc)
{
    CObject3D chord(&math);
    chord.CreateLine(P(-1, 0.6, 0), P(3, 0.6, 0));
    EXPECT_EQ(chord.IntersectionWithObject3D(&arc, &count, points), 1);
    EXPECT_EQ(count, 2);
    EXPECT_EQ(arc.IntersectionWithObject3D(&chord, &count, points), 1);
    EXPECT_EQ(count, 2);
    CObject3D tangent(&math);
    tangent.CreateLine(P(0, 1, 0), P(3, 1, 0));
    EXPECT_EQ(tangent.IntersectionWithObject3D(&arc, &count, points), 1);
    EXPECT_EQ(count, 1);
    ExpectPoint(points[0], P(1, 1, 0));
    CObject3D below(&math);
    below.CreateLine(P(1, -5, 0), P(1, -4, 0));
    EXPECT_EQ(arc.IntersectionWithObject3D(&below, &count, points), 0);
    EXPECT_EQ(arc.ApparentIntersectionWithObject3D(&below, &count, points), 1);
    EXPECT_EQ(count, 2);
}

TEST_F(Objects, IntersectionOfArcs)
{
    CObject3D other(&math);
    other.CreateArc(P(1.2, 0, 0), P(3.2, 0, 0), P(0, 1, 0), 1.0);
    EXPECT_EQ(arc.IntersectionWithObject3D(&other, &count, points), 1);
    EXPECT_EQ(count, 1);
    ExpectPoint(points[0], P(1.6, 0.8, 0));
    EXPECT_EQ(arc.ApparentIntersectionWithObject3D(&other, &count, points), 1);
    EXPECT_EQ(count, 2);
    // On its own circle, over a quarter of it.
    Circle const circle = {P(1, 0, 0), P(1, 0, 0), P(0, 1, 0), 1.0};
    SpaceArc const part = circle.Cut(0.5, 1.0);
    other.CreateArc(part.start, part.end, part.arcVector, part.bulge);
    EXPECT_EQ(arc.IntersectionWithObject3D(&other, &count, points), 1);
    EXPECT_EQ(count, 3);
}

TEST_F(Objects, Perpendiculars)
{
    EXPECT_EQ(point.VerticalIntersection(P(9, 9, 9), &count, points), 1);
    EXPECT_EQ(count, 1);
    ExpectPoint(points[0], P(1, 1, 5), 0.0);
    EXPECT_EQ(line.VerticalIntersection(P(3, 5, 0), &count, points), 1);
    ExpectPoint(points[0], P(3, 0, 0));
    EXPECT_EQ(line.VerticalIntersection(P(5, 5, 0), &count, points), 0);
    EXPECT_EQ(count, 0);
    EXPECT_EQ(arc.VerticalIntersection(P(1, 5, 0), &count, points), 1);
    EXPECT_EQ(count, 1);
    ExpectPoint(points[0], P(1, 1, 0));
}

TEST_F(Objects, TangentsAreForArcs)
{
    EXPECT_EQ(arc.GetTangensPoint(P(1, 2, 0), &count, points), 1);
    EXPECT_EQ(count, 2);
    EXPECT_NEAR(points[0].y, 0.5, 1e-12);
    EXPECT_EQ(line.GetTangensPoint(P(1, 2, 0), &count, points), 0);
    EXPECT_EQ(count, 0);
}

TEST(Face, IsMadeByItsRunTimeClass)
{
    CObject * const face = RUNTIME_CLASS(CFace3D)->CreateObject();
    ASSERT_NE(face, nullptr);
    EXPECT_TRUE(face->IsKindOf(RUNTIME_CLASS(CFace3D)));
    EXPECT_STREQ(face->GetRuntimeClass()->m_lpszClassName, "CFace3D");
    delete face;
}
