// Drives every operation on arcs and edges with numbers from raw bytes: nothing may crash, hang or read out
// of bounds, and what is handed out must hold together.

#include <cstddef>
#include <cstdint>
#include <memory>

#include "byte_input.h"
#include "geometry/mathematics.h"

using namespace fuzz;

namespace {
TSPlaneEdge3D TakeEdge(ByteInput & input)
{
    TSPlaneEdge3D edge;
    edge.type = input.Byte() % 4;
    edge.start = input.Point();
    edge.end = input.Point();
    edge.arcVector = input.Point();
    edge.bulge = input.Number();
    return edge;
}

/// A set of edges handed out by the kernel.
struct Edges
{
    TSPlaneEdge3D * array = nullptr;
    int count = 0;
    int how = 0;

    Edges() = default;
    ~Edges() { delete[] array; }
    Edges(Edges const &) = delete;
    Edges & operator=(Edges const &) = delete;

    void Check(int result, int most) const
    {
        Require(result == 0 || result == 1);
        Require((result == 1) == (array != nullptr) && (result == 1) == (count > 0));
        Require(count <= most);
        for (int i = 0; i < count; ++i)
            Require(array[i].type >= EDGE_POINT && array[i].type <= EDGE_ARC);
    }
};

void DriveArc(CMathematics & math, TSPlaneEdge3D const & edge, TUVect3D const & point, double value)
{
    TUVect3D p1 = point;
    TUVect3D p2 = point;
    TUVect3D vector = edge.arcVector;
    double number;
    math.GetArcCentre(edge.start, edge.end, edge.arcVector, edge.bulge, p1, number);
    math.GetAngleOfArc(edge.start, edge.end, value, number);
    math.GetOrientAngle(edge.start, edge.end, point, number);
    math.CalcBulgeOf3DArc2PtsAndCenter(edge.start, edge.end, p2, &p1, number, 1);
    math.CalcBulgeOf3DArc2PtsAndRadius(edge.start, edge.end, value, number);
    math.CalcBulgeOf3DArc3Points(edge.start, edge.end, point, &p1, number);
    math.GetArcComplement(edge.start, edge.end, edge.arcVector, edge.bulge, p1, number);
    p1 = point;
    math.MovePtTo3DArcCenter(edge.start, edge.end, &p1);
    math.Get3DArcTangentPoints(edge.start, edge.end, point, edge.arcVector, edge.bulge, p1, p2);
    math.MovePointAlongArc(edge.start, edge.end, edge.arcVector, edge.bulge, point, value, p1);
    math.PointOnCircle(edge.start, edge.end, edge.arcVector, edge.bulge, point);
    p1 = point;
    math.RotateVectorAroundAxis(p1, edge.arcVector, value);
    TUVect3D * points = nullptr;
    long count = 0;
    int const made = math.Make3dArc(edge.start, edge.end, vector, edge.bulge, count, points);
    std::unique_ptr<TUVect3D[]> const polyline(points);
    Require(!made || !points || count == 2 || (count >= 6 && count <= 40));
}

void DrivePlaneArc(CMathematics & math, TSPlaneEdge3D const & edge, TSPlaneEdge3D const & other, double value)
{
    TUVect2D const start = {{edge.start.x, edge.start.y}};
    TUVect2D const end = {{edge.end.x, edge.end.y}};
    TUVect2D centre;
    TUVect2D t1;
    TUVect2D t2;
    double radius;
    int big;
    math.GetArcCentre2D(start, end, edge.bulge, centre, radius);
    math.GetArcCentre(start, end, edge.bulge, centre, radius);
    math.GetArcTangentVectors(start, end, edge.bulge, t1, t2);
    math.GetArcTanAngle(start, end, edge.bulge);
    math.CalcBulgeLengthAndRadius(edge.start.x, value, radius, edge.type);
    math.CalcRadiusFromBulgeAndLength(edge.bulge, value, radius, big);
    TSPlaneEdge2D const old = {start, end, edge.bulge};
    TSPlaneEdge2D a = {{{other.start.x, other.start.y}}, {{other.end.x, other.end.y}}, 0.0};
    TSPlaneEdge2D b = {start, a.end, 0.0};
    math.ReduceBulge(old, a, b, value);
}

void DriveEdge(CMathematics & math, TSPlaneEdge3D & edge, TUVect3D & from, TUVect3D & to, double value)
{
    TSPlaneEdge3D result{};
    TS3DBlock box{};
    math.StretchEdge3D(edge, value, result);
    math.GetSectionOfEdge(edge, from, to, &result);
    math.GetSectionOfArc(edge, value, value / 2.0, &result);
    math.GetDerivationVectorOnEdge3D(edge, from);
    math.GetDerivationVectorOnEdge3D(edge, value, edge.type);
    math.GetLengthEdge3D(&edge);
    math.CalcBlock3DFromEdge(edge, &box);
    TUVect3D const points[] = {from, from, to};
    Edges pieces;
    pieces.Check(math.DivideEdge3D(edge, points, 3, pieces.array, pieces.count), 4);
}

void DrivePair(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b)
{
    Edges edges;
    edges.Check(math.EdgeIntersection(&a, &b, edges.array, edges.count, edges.how), 2);
    Require(edges.how >= 0 && edges.how <= 2);
    edges.Check(math.Edge3DLiesOnEdge3D(&a, &b, edges.array, edges.count), 2);
    edges.Check(math.EdgeExtractEdge(&a, &b, edges.array, edges.count), 2);
    TSPlaneEdge3D result{};
    TSPlaneEdge3D turned = b;
    math.CompareEdge(&a, &b);
    math.IsEdgeInEdge(&a, &b);
    math.JointEdge3D(&a, &b, &result);
    math.HarmonyEdge(&a, &turned);
    math.TransformSubArc(a, b, turned, result);
    math.DivideEdgeFromEdge(&a, &b, &turned, &result, 1);
    TS3DBlock boxes[3] = {{a.start, a.end}, {b.start, b.end}, {}};
    math.SumBlock3D(&boxes[0], &boxes[1], &boxes[2]);
    math.CutBlock(&boxes[0], &boxes[1], &boxes[2]);
    math.IsIntersectionOfBlock(&boxes[0], &boxes[1]);
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const * data, std::size_t size)
{
    ByteInput input(data, size);
    CMathematics math;
    if (input.Byte() % 4 == 0)
        math.SetOkoli(input.Number());
    while (!input.IsEmpty()) {
        TSPlaneEdge3D a = TakeEdge(input);
        TSPlaneEdge3D b = input.Byte() % 4 ? TakeEdge(input) : a;
        double const value = input.Number();
        TUVect3D from = input.Byte() % 2 ? b.start : input.Point();
        TUVect3D to = input.Byte() % 2 ? b.end : input.Point();
        DriveArc(math, a, from, value);
        DrivePlaneArc(math, a, b, value);
        DriveEdge(math, a, from, to, value);
        DrivePair(math, a, b);
        DrivePair(math, b, a);
    }
    return 0;
}
