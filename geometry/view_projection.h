#ifndef KX7_GEOMETRY_VIEW_PROJECTION_H
#define KX7_GEOMETRY_VIEW_PROJECTION_H

#include "geometry/records.h"

namespace detail {
/// The coordinates u, v of a point in the view plane, by plain sums over rows 0 and 1 of the view matrix.
inline TUVect2D Projected(double const (*matrix)[3], TUVect3D const & point)
{
    return {{matrix[0][0] * point.x + matrix[0][1] * point.y + matrix[0][2] * point.z,
             matrix[1][0] * point.x + matrix[1][1] * point.y + matrix[1][2] * point.z}};
}
}  // namespace detail

#endif
