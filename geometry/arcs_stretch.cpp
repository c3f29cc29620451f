// Edges from the same start with a new length.

#include <cmath>

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Angles from 1.95 pi on are refused: an arc that comes this near to closing has no reliable chord.
constexpr double kWidestAngle = 6.126105674500097;
}  // namespace

int CMathematics::StretchArc3D(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                               double const & bulge, double const & length, TSPlaneEdge3D & result)
{
    TUVect3D centre;
    if (!Get3DArcCenter(start, end, arcVector, bulge, centre))
        return StretchLine3D(start, end, length, result);
    TUVect3D toEnd = start - centre;
    TUVect3D toThrough = toEnd;
    TUVect3D const axis = ArcAxis(start, end, arcVector, bulge);
    double const angle = length / Length(toEnd);
    if (!(angle < kWidestAngle) || !RotateVectorAroundAxis(toEnd, axis, angle) ||
        !RotateVectorAroundAxis(toThrough, axis, angle / 2.0))
        return 0;
    TSPlaneEdge3D arc{};
    arc.start = start;
    arc.end = centre + toEnd;
    arc.type = EDGE_ARC;
    int const made =
        CalcBulgeOf3DArc3Points(arc.start, arc.end, centre + toThrough, &arc.arcVector, arc.bulge);
    if (made)
        result = arc;
    return made;
}

int CMathematics::StretchLine3D(TUVect3D const & start, TUVect3D const & end, double length,
                                TSPlaneEdge3D & result)
{
    TUVect3D const newEnd = start + length * Unit(end - start);
    result.start = start;
    result.end = newEnd;
    result.type = EDGE_LINE;
    return 1;
}

int CMathematics::StretchEdge3D(TSPlaneEdge3D const & edge, double length, TSPlaneEdge3D & result)
{
    switch (edge.type) {
        case EDGE_POINT:
            result = edge;
            return 1;
        case EDGE_LINE:
            return StretchLine3D(edge.start, edge.end, length, result);
        case EDGE_ARC:
            return StretchArc3D(edge.start, edge.end, edge.arcVector, edge.bulge, length, result);
        default:
            return 0;
    }
}
