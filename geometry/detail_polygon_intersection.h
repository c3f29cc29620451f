#ifndef KX7_GEOMETRY_DETAIL_POLYGON_INTERSECTION_H
#define KX7_GEOMETRY_DETAIL_POLYGON_INTERSECTION_H

#include "geometry/detail_areas.h"
#include "geometry/mathematics.h"
#include "platform/base/export.h"

namespace detail {
/// CMathematics::PolygonIntersection by the plain method: each element of one area is put to each side of the
/// other. The definition of the result, and the way for areas that no index may be put in front of.
KX7_API int PolygonIntersectionPlain(CMathematics & math, Area const & a, Area const & b,
                                     GeneralSetArray *& result);

/// Releases a result of PolygonIntersection with all its members; null is allowed.
KX7_API void FreeGeneralSets(GeneralSetArray * sets);
}  // namespace detail

#endif
