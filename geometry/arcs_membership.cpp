// Whether a point lies on an arc or its circle, and the walk along the circle from such a point.

#include <cmath>

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

int CMathematics::MovePointAlongArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                    double const & bulge, TUVect3D const & point, double const & distance,
                                    TUVect3D & result)
{
    TUVect3D centre;
    if (!std::isfinite(distance) || !PointOnArc(start, end, arcVector, bulge, point) ||
        !Get3DArcCenter(start, end, arcVector, bulge, centre))
        return 0;
    TUVect3D toPoint = point - centre;
    double const angle = distance / Length(toPoint);
    if (!RotateVectorAroundAxis(toPoint, ArcAxis(start, end, arcVector, bulge), angle))
        return 0;
    result = centre + toPoint;
    return 1;
}

int CMathematics::PointOnArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                             double const & bulge, TUVect3D const & point)
{
    TUVect3D const ahead = point + Unit(Cross(start - end, arcVector));
    TUVect3D p1;
    TUVect3D p2;
    double arcT1;
    double lineT1;
    double arcT2;
    double lineT2;
    int flags;
    // Only the line's own start can be a point of the arc: the line stands upright on the arc's plane.
    int const code = ArcLineIntersectionParameters(start, end, arcVector, bulge, point, ahead, p1, p2, 1,
                                                   arcT1, lineT1, arcT2, lineT2, flags);
    return code != 0 && lineT1 == 0.0 ? 1 : 0;
}

int CMathematics::PointOnCircle(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                double const & bulge, TUVect3D const & point)
{
    if (PointOnArc(start, end, arcVector, bulge, point))
        return 1;
    TUVect3D complementVector;
    double complementBulge;
    if (!GetArcComplement(start, end, arcVector, bulge, complementVector, complementBulge))
        return 0;
    return PointOnArc(start, end, complementVector, complementBulge, point);
}
