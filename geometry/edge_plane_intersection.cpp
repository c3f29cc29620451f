// An edge against a plane.

#include <cmath>
#include <new>

#include "geometry/arc_frame.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
TSPlaneEdge3D PointEdge(TUVect3D const & point)
{
    TSPlaneEdge3D edge = {};
    edge.start = point;
    edge.end = point;
    edge.type = EDGE_POINT;
    return edge;
}

/// Hands out one record. 1, or 0 if memory is out.
int HandOut(TSPlaneEdge3D const & edge, TSPlaneEdge3D *& pieces, int & count)
{
    pieces = new (std::nothrow) TSPlaneEdge3D[1]{edge};
    count = pieces ? 1 : 0;
    return count;
}

int CutLine(CMathematics & math, TSPlaneEdge3D const & line, TSPlane const & plane, TSPlaneEdge3D *& pieces,
            int & count)
{
    TUVect3D crossing = {};
    int const code = math.LineTSPlaneIntersection(line.start, line.end, plane, crossing);
    if (code == 0)
        return 0;
    return HandOut(code == 1 ? PointEdge(crossing) : line, pieces, count) ? code : 0;
}

/// The points of an arc in a plane. A point off the arc is overwritten by the next one.
int CutArc(CMathematics & math, TSPlaneEdge3D const & arc, TSPlane const & plane, TSPlaneEdge3D *& pieces,
           int & count)
{
    TUVect3D points[2] = {};
    int pointCount = 0;
    int const code =
        math.ArcPlaneIntersectionParameters(arc.start, arc.end, arc.arcVector, arc.bulge, plane.origin,
                                            plane.normal, points[0], points[1], pointCount);
    if (code == kArcInPlane)
        return HandOut(arc, pieces, count) ? 2 : 0;
    if ((code & kPointCountBits) == 0)
        return 0;
    pieces = new (std::nothrow) TSPlaneEdge3D[2]{};
    if (!pieces)
        return 0;
    for (int i = 0; i < pointCount; ++i) {
        pieces[count] = PointEdge(points[i]);
        if (math.IsPointOnExtendedArc(arc.start, arc.end, arc.arcVector, arc.bulge, points[i]) == 2)
            ++count;
    }
    return 1;
}
}  // namespace

int CMathematics::EdgeTSPlaneIntersection(TSPlaneEdge3D * const edge, TSPlane const & plane,
                                          TSPlaneEdge3D *& pieces, int & count)
{
    pieces = nullptr;
    count = 0;
    switch (edge->type) {
        case EDGE_POINT:
            if (!(std::fabs(Dot(edge->start - plane.origin, Unit(plane.normal))) <= m_dOkoli))
                return 0;
            return HandOut(*edge, pieces, count);
        case EDGE_LINE:
            return CutLine(*this, *edge, plane, pieces, count);
        case EDGE_ARC:
            return CutArc(*this, *edge, plane, pieces, count);
        default:
            return 0;
    }
}
