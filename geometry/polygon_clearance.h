#ifndef KX7_GEOMETRY_POLYGON_CLEARANCE_H
#define KX7_GEOMETRY_POLYGON_CLEARANCE_H

#include "geometry/polygon_sides.h"

namespace detail {
/// Whether two sides are certain not to meet and not to come near each other; false if that isn't plain at a
/// glance. Then the plain method finds nothing in common, neither side passes through the other, and an end
/// of one has no class against the other's area that hangs on rounding.
bool AreClear(CMathematics & math, TSelem const & a, TSelem const & b, PlaneScale const & scale);
}  // namespace detail

#endif
