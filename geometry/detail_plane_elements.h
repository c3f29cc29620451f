#ifndef KX7_GEOMETRY_DETAIL_PLANE_ELEMENTS_H
#define KX7_GEOMETRY_DETAIL_PLANE_ELEMENTS_H

// Plane elements handed to the edge algebra in space and back, and the small helpers that the plane routines
// share.

#include <algorithm>
#include <cmath>

#include "geometry/records.h"
#include "geometry/snapped_vectors.h"

namespace detail {
/// The vector turned a quarter of a circle to the left.
inline TUVect2D LeftNormal(TUVect2D const & v)
{
    return {{-v.y, v.x}};
}

/// The arc cosine of a value that rounding may have carried past -1 or 1.
inline double ClampedArcCosine(double cosine)
{
    return std::acos(std::clamp(cosine, -1.0, 1.0));
}

/// The element as an edge in the plane z = 0; an arc's side goes into its vector.
inline TSPlaneEdge3D Embedded(TSelem const & e)
{
    TSPlaneEdge3D edge{};
    edge.start = Widened(e.start);
    edge.end = Widened(e.end);
    edge.type = e.type;
    if (e.type != EDGE_ARC)
        return edge;
    TUVect3D const chord = edge.end - edge.start;
    edge.arcVector = e.bulge * Unit(TUVect3D{{-chord.y, chord.x, 0.0}});
    edge.bulge = std::fabs(e.bulge);
    return edge;
}

/// Writes type, start, end and signed bulge of an edge in the plane z = 0 to an element; its mark stays.
inline void Flatten(TSPlaneEdge3D const & edge, TSelem & e)
{
    e.type = edge.type;
    e.start = {{edge.start.x, edge.start.y}};
    e.end = {{edge.end.x, edge.end.y}};
    TUVect3D const chord = edge.end - edge.start;
    bool const apexOnRight = Dot(edge.arcVector, TUVect3D{{-chord.y, chord.x, 0.0}}) < 0.0;
    e.bulge = apexOnRight ? -edge.bulge : edge.bulge;
}
}  // namespace detail

#endif
