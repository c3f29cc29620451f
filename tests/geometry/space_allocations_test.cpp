// The counter reaches the library on these builds only.
#if !defined(_WIN32)

#include "allocation_counter.h"
#include "circle_arcs.h"
#include "geometry/mat_point.h"
#include "geometry/object_3d.h"

using namespace space;

TEST(SpaceAllocations, LinesPlanesAndPolygonsMakeNone)
{
    CMathematics math;
    TUVect3D a = P(0, 0, 0);
    TUVect3D b = P(4, 0, 0);
    TUVect3D p1;
    TUVect3D p2;
    TSPlane plane;
    TUVect2D square[] = {Q(0, 0), Q(4, 0), Q(4, 4), Q(0, 4), Q(0, 0)};
    double number;
    double t;
    int kind;
    long const made = AllocationsOf([&] {
        math.VectorProduct(&a, &b, &p1);
        math.SolveEqSystem33();
        math.DefinePlane(P(0, 0, 0), P(1, 0, 0), P(0, 1, 0), plane);
        math.PointLiesOnLine(a, b, p1);
        math.GetDistancePointToLine(P(1, 1, 1), P(0, 0, 0), P(1, 0, 0), number, p1, t);
        math.LineIntersection(P(0, 0, 0), P(4, 0, 0), P(1, -1, 0), P(1, 1, 0), 1, p1, p2, kind);
        math.LineTSPlaneIntersection(P(0, 0, 1), P(0, 1, -1), plane, p1);
        math.GetLineQuadIntersection(P(0, 0, 0), P(1, 0, 0), P(1, 1, 1), P(0, 1, 0), P(0, 0, 1), P(1, 1, -1),
                                     p1, p2);
        math.LineIntersectsRectangle(0, 0, 1, 1, 0, 0, 2, 2);
        math.PointLiesInPolygon(Q(1, 1), square, 5, 1);
    });
    EXPECT_EQ(made, 0);
}

TEST(SpaceAllocations, ArcIntersectionsMakeNone)
{
    CMathematics math;
    double const above[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    SpaceArc const a = kHalf;
    SpaceArc const b = {P(1.2, 0, 0), P(3.2, 0, 0), P(0, 1, 0), 1.0};
    TUVect3D p1;
    TUVect3D p2;
    double number;
    int n[4];
    long const made = AllocationsOf([&] {
        math.ArcLineIntersection(a.start, a.end, a.arcVector, a.bulge, P(1, 0, 0), P(1, 2, 0), p1, p2, 1);
        math.ArcPlaneIntersectionParameters(a.start, a.end, a.arcVector, a.bulge, P(1, 0, 0), P(1, 0, 0), p1,
                                            p2, n[0]);
        math.ArcIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end, b.arcVector, b.bulge, p1,
                             p2);
        math.ExtendedArcIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end, b.arcVector,
                                     b.bulge, p1, p2, n[0], n[1], n[2], n[3]);
        math.IsPoint3DInArc(a.start, a.end, a.arcVector, a.bulge, P(1, 1, 0), number);
        math.ArcRectIntersection(a.start, a.end, a.arcVector, a.bulge, 0, 0, 1, 1, above);
        math.PointCastOnArc(a.start, a.end, a.arcVector, a.bulge, P(1, 2, 0), p1, p2, n[0], n[1]);
        math.Arc3DTangentPoints(a.start, a.end, a.arcVector, a.bulge, P(1, 2, 0), p1, p2, n[0], n[1], n[2]);
    });
    EXPECT_EQ(made, 0);
}

TEST(SpaceAllocations, ObjectsAndMoversMakeNone)
{
    CMathematics math;
    CObject3D arc(&math);
    CObject3D line(&math);
    CMatPoint mover(&math);
    TUVect3D points[2];
    TUVect3D axis = P(0, 0, 1);
    int count;
    long const made = AllocationsOf([&] {
        arc.CreateArc(kHalf.start, kHalf.end, kHalf.arcVector, kHalf.bulge);
        line.CreateLine(P(1, -1, 0), P(1, 2, 0));
        line.IntersectionWithObject3D(&arc, &count, points);
        arc.GetCenterPoint(points);
        mover.SetupActionMoveByRotation(points[0], axis, 1.0, 0.0);
        mover.GetNewPoint(points[1], 3);
    });
    EXPECT_EQ(made, 0);
}

#endif
