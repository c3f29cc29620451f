#ifndef KX7_GEOMETRY_ARCS_COURSE_H
#define KX7_GEOMETRY_ARCS_COURSE_H

// What the operations on arcs share: limits, the travel axis and the course of an arc seen from its centre.

#include "geometry/records.h"

class CMathematics;

namespace detail {
/// Arcs with a bulge below this count as lines.
inline constexpr double kFlatBulge = 1e-5;

/// Vectors and angles below this have no direction for a turn.
inline constexpr double kNoTurn = 1e-8;

bool IsFinite(TUVect3D const & v);

/// Whether the bulge is too small for an arc; also for a bulge that is no number.
bool IsFlatBulge(double bulge);

/// The radius, not negative, by the angle between chord and radius: (L / 4) / cos(a) / sin(a) with
/// a = atan(1 / |bulge|).
double RadiusByAngle(double chord, double bulge);

/// The radius from sagitta and half chord, with the sagitta's sign: (h^2 + c^2) / 2 / h.
double RadiusBySagitta(double sagitta, double halfChord);

/// The unit vector about which the arc travels from start to end as a positive turn; zero if there is none.
TUVect3D ArcAxis(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector, double bulge);

/// An arc seen from its centre: centre + radius * (cos(t) * toStart + sin(t) * ahead), t from 0 to `angle`.
struct ArcCourse
{
    TUVect3D centre;
    TUVect3D toStart;  ///< Unit vector from the centre to the start.
    TUVect3D ahead;    ///< Unit vector of travel at the start.
    double radius;
    double angle;  ///< Angle travelled, to seven decimals.
};

/// Fills the course of an arc that isn't flat. `arcVector` becomes its unit part perpendicular to the chord.
/// False, as far as `arcVector` was normalised, for an arc without a centre.
bool MakeArcCourse(CMathematics & math, TUVect3D const & start, TUVect3D const & end, TUVect3D & arcVector,
                   double bulge, ArcCourse & course);

/// The number of segments in which the course is walked: none above `step` radians, at least 5.
long CourseSegments(ArcCourse const & course, double step);

/// The point of the course at the angle `t` from the start.
TUVect3D CoursePoint(ArcCourse const & course, double t);
}  // namespace detail

#endif
