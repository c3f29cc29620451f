#ifndef KX7_GEOMETRY_DETAIL_POINT_CLASS_H
#define KX7_GEOMETRY_DETAIL_POINT_CLASS_H

// The class of a point side by side, without the direction angles that nobody needs. The sum of the turns of
// a closed outline seen from a point is a whole number of full turns, and only a side whose direction angles
// lie more than half a turn apart adds to that number.

#include <cmath>
#include <numbers>

#include "geometry/detail_areas.h"

namespace detail {
/// What is known of a point against one side.
struct PointOnSide
{
    bool onVertex;
    bool onEdge;
};

/// The full turns by which the turn between two directions, brought to the range from -pi to pi, differs from
/// the difference of their direction angles: -1, 0 or 1.
inline int FullTurnsBetween(TUVect2D const & from, TUVect2D const & to)
{
    constexpr double kClearSineSquare = 1e-24;  // rounding of the angles can't turn such a sine round
    double const cross = from.x * to.y - from.y * to.x;
    double const squares = (from.x * from.x + from.y * from.y) * (to.x * to.x + to.y * to.y);
    if (cross * cross > kClearSineSquare * squares) {
        if ((from.x < 0.0) == (to.x < 0.0))
            return 0;
        // The angles run once round from straight down: the turn passes there if it goes below.
        return from.x < 0.0 ? static_cast<int>(cross > 0.0) : -static_cast<int>(cross < 0.0);
    }
    double const difference = DirectionAngle(to) - DirectionAngle(from);
    return difference > std::numbers::pi ? -1 : difference < -std::numbers::pi ? 1 : 0;
}

/// Whether a point is further from the line of a side of the given length than twice the tolerance, and so on
/// neither the side nor its ends.
inline bool IsOffLine(TUVect2D const & p, AreaSide const & side, double length, double tolerance)
{
    double const cross =
        (side.to.x - side.from.x) * (p.y - side.from.y) - (side.to.y - side.from.y) * (p.x - side.from.x);
    return std::fabs(cross) > 2.0 * tolerance * length;
}

/// A point against a straight side and its ends.
inline PointOnSide AgainstStraightSide(TUVect2D const & p, AreaSide const & side, double length,
                                       double tolerance)
{
    if (IsOffLine(p, side, length, tolerance))
        return {false, false};
    return {Length(p - side.from) < tolerance || Length(p - side.to) < tolerance,
            IsPointOnStraightSide(p, side.from, side.to, tolerance)};
}
}  // namespace detail

#endif
