#ifndef KX7_GEOMETRY_EDGES_REJECTION_H
#define KX7_GEOMETRY_EDGES_REJECTION_H

// Cheap tests in front of the edge algebra. Each answers true only where the full computation finds nothing,
// so that they can't change a result; numbers that aren't finite answer false. The margins: every common
// place found by the full computation lies within four tolerances of both elements, and rounding stays far
// below the share `kRoundingShare` of the coordinates.

#include "geometry/records.h"

namespace detail {
/// Whether two edges that aren't points are so far apart that they have nothing in common.
bool EdgesAreApart(double okoli, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b);

/// Whether `p` is so far from the infinite line a-b that it can't lie on the segment.
bool PointIsOffLine(double okoli, TUVect3D const & a, TUVect3D const & b, TUVect3D const & p);
}  // namespace detail

#endif
