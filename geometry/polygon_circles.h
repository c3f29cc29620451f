#ifndef KX7_GEOMETRY_POLYGON_CIRCLES_H
#define KX7_GEOMETRY_POLYGON_CIRCLES_H

// Arcs whose circles nearly fall together. Where one circle touches another from inside within the tolerance,
// with centres not far from each other, the plain method takes them to meet at a point that may lie well
// beside both, by up to radius times tolerance over distance of the centres. The boxes of such arcs needn't
// overlap where both arcs are shallow, so these pairs are found by their circles; the box of an arc that
// isn't shallow covers its circle, and with it the other arc.

#include "geometry/polygon_boxes.h"

namespace detail {
/// Calls `found(i, j)` for the sides of a and b whose circles nearly fall together.
void FindNearlyEqualCircles(CMathematics & math, PolygonSides const & a, PolygonSides const & b,
                            PlaneScale const & scale, std::pmr::memory_resource & memory,
                            std::pmr::vector<std::pair<std::uint32_t, std::uint32_t>> & pairs);
}  // namespace detail

#endif
