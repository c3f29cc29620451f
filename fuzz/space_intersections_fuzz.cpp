// Drives the operations on lines, planes, rectangles and arcs in space, objects and the point mover with
// numbers from raw bytes: nothing may crash, hang or read out of bounds, and codes and counts must stay in
// their ranges.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "byte_input.h"
#include "geometry/mat_point.h"
#include "geometry/mathematics.h"
#include "geometry/object_3d.h"

using namespace fuzz;

namespace {
struct SpaceArc
{
    TUVect3D start;
    TUVect3D end;
    TUVect3D arcVector;
    double bulge;
};

SpaceArc TakeArc(ByteInput & input)
{
    TUVect3D const start = input.Point();
    TUVect3D const end = input.Point();
    TUVect3D const arcVector = input.Point();
    return {start, end, arcVector, input.Number()};
}

bool IsPointCode(int code)
{
    return (code >= 0 && code <= 2) || code == 17;
}

void DriveLines(CMathematics & math, TUVect3D const & a, TUVect3D const & b, TUVect3D const & c,
                TUVect3D const & d, int mode)
{
    TUVect3D p1;
    TUVect3D p2;
    TSPlane plane;
    int kind;
    int hit;
    double t;
    double u;
    Require((math.LineIntersectionParameters(a, b, c, d, mode, p1, p2, kind, t, u, hit) & ~1) == 0);
    Require(kind == 0 || kind == 10 || kind == 11);
    Require((math.LineIntersection(a, b, c, d, mode, p1, p2, kind) & ~1) == 0);
    Require(kind >= 0 && kind <= 10);
    math.DefinePlane(a, b, c, plane);
    math.PointLiesInPlane(plane, d);
    math.GetDistancePointToLine(c, a, b, t, p1, u);
    math.IsPointOnExtendedLine(a, b, c);
    math.PointCastOnLine(a, b, c, p1);
    math.IsPoint3DInLine(a, b, c, t);
    math.GetPoint3DOnLine(a, b, p1, c.x, mode);
    int const code = math.LineTSPlaneIntersection(a, b, {c, d}, p1);
    Require(code >= 0 && code <= 2);
    math.LineRectangleIntersection(a, b, c, d, b, p1);
    int const crossings = math.GetLineQuadIntersection(a, b, c, d, b, d, p1, p2);
    Require((crossings >= 0 && crossings <= 2) || crossings == 16);
}

void DrivePlane(CMathematics & math, TUVect3D const & a, TUVect3D const & b, TUVect3D const & c)
{
    double const matrix[3][3] = {{a.x, a.y, a.z}, {b.x, b.y, b.z}, {0.0, 0.0, 1.0}};
    int const code = math.LineRectIntersection(a, b, c.x, c.y, b.x, a.y, matrix);
    Require(code >= 0 && code <= 2);
    char const letter = math.PointInRectangle(a.x, a.y, b.x, b.y, c.x, c.y);
    Require(letter == 'O' || letter == 'B' || letter == 'I');
    TUVect2D polygon[5] = {{{a.x, a.y}}, {{b.x, b.y}}, {{c.x, c.y}}, {{a.z, b.z}}};
    for (int count = 0; count <= 4; ++count)
        math.PointLiesInPolygon({{c.z, c.y}}, polygon, count, 1);
}

void DriveArcs(CMathematics & math, SpaceArc const & a, SpaceArc const & b, int mode)
{
    TUVect3D p1;
    TUVect3D p2;
    double number[4];
    int n[4];
    int flags;
    Require(IsPointCode(math.ArcLineIntersectionParameters(a.start, a.end, a.arcVector, a.bulge, b.start,
                                                           b.end, p1, p2, mode, number[0], number[1],
                                                           number[2], number[3], flags)));
    Require((flags & ~15) == 0);
    Require(IsPointCode(
        math.ArcLineIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end, p1, p2, mode)));
    int const found = math.ExtendedLineArcIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end,
                                                       p1, p2, n[0], n[1], n[2], n[3]);
    Require(found >= 0 && found <= 2);
    int const code = math.ArcIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end, b.arcVector,
                                          b.bulge, p1, p2);
    Require(IsPointCode(code) || code == 3);
    int const apparent = math.ExtendedArcIntersection(a.start, a.end, a.arcVector, a.bulge, b.start, b.end,
                                                      b.arcVector, b.bulge, p1, p2, n[0], n[1], n[2], n[3]);
    Require(apparent >= 0 && apparent <= 3);
    int const where = math.IsPointOnExtendedArc(a.start, a.end, a.arcVector, a.bulge, b.start);
    Require(where >= -1 && where <= 2);
    math.IsPoint3DInArc(a.start, a.end, a.arcVector, a.bulge, b.start, number[0]);
    int const feet = math.PointCastOnArc(a.start, a.end, a.arcVector, a.bulge, b.start, p1, p2, n[0], n[1]);
    int const tangents =
        math.Arc3DTangentPoints(a.start, a.end, a.arcVector, a.bulge, b.start, p1, p2, n[0], n[1], n[2]);
    Require(feet >= 0 && feet <= 2 && tangents >= 0 && tangents <= 2);
}

void DriveEdges(CMathematics & math, SpaceArc const & a, SpaceArc const & b, int type)
{
    double const matrix[3][3] = {
        {b.start.x, b.start.y, b.start.z}, {b.end.x, b.end.y, b.end.z}, {0.0, 0.0, 1.0}};
    int const seen = math.ArcRectIntersection(a.start, a.end, a.arcVector, a.bulge, b.end.x, b.end.y, b.bulge,
                                              a.bulge, matrix);
    Require(seen >= 0 && seen <= 2);
    TSPlaneEdge3D edge = {a.start, a.end, a.arcVector, a.bulge, type};
    TSPlaneEdge3D * handedOut = nullptr;
    int count = 0;
    int const code = math.EdgeTSPlaneIntersection(&edge, {b.start, b.arcVector}, handedOut, count);
    std::unique_ptr<TSPlaneEdge3D[]> const pieces(handedOut);
    Require(code >= 0 && code <= 2 && (code == 0) == !pieces && count >= 0 && count <= 2);

    CObject3D object(&math);
    CObject3D other(&math);
    object.Create3DEdge(edge);
    other.CreateArc(b.start, b.end, b.arcVector, b.bulge);
    TUVect3D points[2];
    int const common = object.IntersectionWithObject3D(&other, &count, points);
    Require((common == 1) == (count > 0) && count <= 3);
    object.ApparentIntersectionWithObject3D(&other, &count, points);
    object.VerticalIntersection(b.start, &count, points);
    object.GetPointFromPercent(b.bulge, points);
    double length;
    object.GetLengthToPoint(&length, b.start);
}

void DriveMover(CMathematics & math, SpaceArc a, SpaceArc b, int action)
{
    CMatPoint mover(&math);
    TSPlaneEdge3D edge = {a.start, a.end, a.arcVector, a.bulge, EDGE_ARC};
    switch (action % 4) {
        case 0:
            mover.SetupActionMoveByRotation(b.start, b.arcVector, b.bulge, a.bulge);
            break;
        case 1:
            mover.SetupActionMoveByMirror(b.start, b.arcVector);
            break;
        case 2:
            mover.SetupActionMoveByStretch(b.start, b.end, b.arcVector, action % 3);
            break;
        default:
            mover.SetupActionMoveByScale(b.start, b.arcVector);
            break;
    }
    Require(mover.GetLastError() <= 9);
    mover.GetNewEdge3D(edge, action % 5);
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    ByteInput input(data, size);
    CMathematics math;
    if (input.Byte() % 4 == 0)
        math.SetOkoli(input.Number());
    while (!input.IsEmpty()) {
        int const mode = input.Byte() % 3;
        int const choice = input.Byte();
        SpaceArc const a = TakeArc(input);
        SpaceArc const b = choice % 4 ? TakeArc(input) : a;
        DriveLines(math, a.start, a.end, b.start, b.end, mode);
        DrivePlane(math, a.start, a.end, b.start);
        DriveArcs(math, a, b, mode);
        DriveEdges(math, a, b, choice % 5);
        DriveMover(math, a, b, choice);
    }
    return 0;
}
