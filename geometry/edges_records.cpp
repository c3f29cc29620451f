// Making, comparing and measuring edges, and places on them.

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

TSPlaneEdge3D CMathematics::GetEdgeFromPoint(TUVect3D * const point)
{
    TSPlaneEdge3D edge{};
    edge.start = *point;
    edge.end = *point;
    edge.type = EDGE_POINT;
    return edge;
}

TSPlaneEdge3D CMathematics::GetEdgeFromLine(TUVect3D * const start, TUVect3D * const end)
{
    TSPlaneEdge3D edge{};
    edge.start = *start;
    edge.end = *end;
    edge.type = EDGE_LINE;
    return edge;
}

TSPlaneEdge3D CMathematics::GetEdgeFromArc(TUVect3D * const start, TUVect3D * const end,
                                           TUVect3D * const arcVector, double const & bulge)
{
    return {*start, *end, *arcVector, bulge, EDGE_ARC};
}

int CMathematics::CompareArc(TSPlaneEdge3D * a, TSPlaneEdge3D * b)
{
    if (a->type != EDGE_ARC || b->type != EDGE_ARC || !CompareLine(a->start, a->end, b->start, b->end, 1))
        return 0;
    TUVect3D middleA;
    TUVect3D middleB;
    if (!Get3DPointOnEdge3D(*a, 0.5, 1, middleA) || !Get3DPointOnEdge3D(*b, 0.5, 1, middleB))
        return 0;
    return ComparePoints(middleA, middleB, 1);
}

int CMathematics::CompareEdge(TSPlaneEdge3D * a, TSPlaneEdge3D * b)
{
    if (a->type != b->type)
        return 0;
    switch (a->type) {
        case EDGE_POINT:
            return ComparePoints(a->start, b->start, 1);
        case EDGE_LINE:
            return CompareLine(a->start, a->end, b->start, b->end, 1);
        case EDGE_ARC:
            return CompareArc(a, b);
        default:
            return 0;
    }
}

int CMathematics::IsPoint3DInEdge3D(TSPlaneEdge3D const & edge, TUVect3D const & point, double & distance)
{
    switch (edge.type) {
        case EDGE_POINT:
            distance = 0.0;
            return ComparePoints(edge.start, point, 1);
        case EDGE_LINE:
            return IsPoint3DInLine(edge.start, edge.end, point, distance);
        case EDGE_ARC:
            return IsPoint3DInArc(edge.start, edge.end, edge.arcVector, edge.bulge, point, distance);
        default:
            return 0;
    }
}

int CMathematics::Get3DPointOnEdge3D(TSPlaneEdge3D const & edge, double const & value, int const & mode,
                                     TUVect3D & point)
{
    switch (edge.type) {
        case EDGE_POINT:
            point = edge.start;
            return 1;
        case EDGE_LINE:
            return GetPoint3DOnLine(edge.start, edge.end, point, value, mode);
        case EDGE_ARC:
            return Get3DPointOnArc(edge.start, edge.end, edge.arcVector, edge.bulge, value, mode, point);
        default:
            return 0;
    }
}

TUVect3D CMathematics::GetDerivationVectorOnEdge3D(TSPlaneEdge3D const & edge, TUVect3D & point)
{
    TUVect3D centre;
    if (edge.type == EDGE_ARC && Get3DArcCenter(edge.start, edge.end, edge.arcVector, edge.bulge, centre))
        return Unit(Cross(ArcAxis(edge.start, edge.end, edge.arcVector, edge.bulge), point - centre));
    return edge.type == EDGE_LINE || edge.type == EDGE_ARC ? Unit(edge.end - edge.start) : TUVect3D{};
}

TUVect3D CMathematics::GetDerivationVectorOnEdge3D(TSPlaneEdge3D const & edge, double const & value,
                                                   int const & mode)
{
    TUVect3D point;
    return Get3DPointOnEdge3D(edge, value, mode, point) ? GetDerivationVectorOnEdge3D(edge, point)
                                                        : TUVect3D{};
}

double CMathematics::GetLengthEdge3D(TSPlaneEdge3D * edge)
{
    if (!edge)
        return 0.0;
    if (edge->type == EDGE_LINE)
        return GetDistance(edge->start, edge->end);
    return edge->type == EDGE_ARC ? GetArcLength(edge->start, edge->end, edge->bulge) : 0.0;
}

int CMathematics::HarmonyEdge(TSPlaneEdge3D * a, TSPlaneEdge3D * b)
{
    if (a->type == EDGE_POINT || b->type == EDGE_POINT)
        return 1;
    if (Length(a->start - b->start) > Length(a->start - b->end)) {
        TUVect3D const start = b->start;
        b->start = b->end;
        b->end = start;
    }
    return 1;
}
