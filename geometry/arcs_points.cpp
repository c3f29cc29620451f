// Points along an arc, and the turn about an axis that gives them.

#include <cmath>

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// `value` as a distance along an arc of this length; false for an unknown mode and a value that is no
/// number.
bool DistanceAlong(double value, int mode, double length, double & distance)
{
    if (mode == 0)
        distance = value;
    else if (mode == 1)
        distance = value * length;
    else if (mode == 2)
        distance = value / 100.0 * length;
    else
        return false;
    return std::isfinite(distance);
}
}  // namespace

int CMathematics::RotateVectorAroundAxis(TUVect3D & vector, TUVect3D const & axis, double const & angle)
{
    double const length = Length(vector);
    if (length < kNoTurn)
        return 1;
    vector = Unit(vector);
    if (!(Length(axis) >= kNoTurn))
        return 0;
    TUVect3D const unitAxis = Unit(axis);
    TUVect3D const ahead = Cross(unitAxis, vector);
    if (!(Length(ahead) < kNoTurn)) {
        TUVect3D const across = Cross(ahead, unitAxis);
        vector = vector - across + std::sin(angle) * ahead + std::cos(angle) * across;
    }
    vector = vector * length;
    return 1;
}

int CMathematics::Get3DPointOnArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                  double const & bulge, double const & value, int const & mode,
                                  TUVect3D & point)
{
    double const length = GetArcLength(start, end, bulge);
    double distance;
    if (!DistanceAlong(value, mode, length, distance) || !(distance <= length + m_dOkoli))
        return 0;
    TUVect3D centre;
    if (!Get3DArcCenter(start, end, arcVector, bulge, centre)) {
        point = start + distance * Unit(end - start);
        return 1;
    }
    TUVect3D toPoint = start - centre;
    double const radius = Length(toPoint);
    if (!RotateVectorAroundAxis(toPoint, ArcAxis(start, end, arcVector, bulge), distance / radius))
        return 0;
    point = centre + radius * Unit(toPoint);
    return 1;
}
