// Tangents of arcs, and a point over the middle of a chord.

#include <cmath>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// The unit tangent at `end` of a plane arc about `centre`, on the side of `direction`.
TUVect2D TangentToward(TUVect2D const & direction, TUVect2D const & end, TUVect2D const & centre)
{
    TUVect2D const radius = end - centre;
    TUVect2D const tangent = Unit(TUVect2D{{-radius.y, radius.x}});
    return Unit(Dot(direction, tangent) * tangent);
}
}  // namespace

int CMathematics::Get3DArcTangentPoints(TUVect3D const & start, TUVect3D const & end, TUVect3D const & axis,
                                        TUVect3D const & arcVector, double bulge, TUVect3D & p1,
                                        TUVect3D & p2)
{
    TUVect3D centre;
    if (!Get3DArcCenter(start, end, arcVector, bulge, centre))
        return 0;
    double const handle = Length(end - start) / 2.0;
    p1 = start + Unit(Cross(axis, start - centre)) * handle;
    p2 = end + Unit(Cross(end - centre, axis)) * handle;
    return 1;
}

int CMathematics::GetArcTangentVectors(TUVect2D const & start, TUVect2D const & end, double bulge,
                                       TUVect2D & t1, TUVect2D & t2)
{
    TUVect2D centre;
    TUVect2D direction;
    double radius;
    double absBulge;
    if (!GetArcCentreVectorBulge(start, end, bulge, centre, radius, direction, absBulge))
        return 0;
    t1 = TangentToward(direction, start, centre);
    t2 = TangentToward(direction, end, centre);
    return 1;
}

double CMathematics::GetArcTanAngle(TUVect2D const & start, TUVect2D const & end, double const & bulge)
{
    return GetAlfa(start, end) + 2.0 * std::atan(bulge);
}

int CMathematics::MovePtTo3DArcCenter(TUVect3D const & start, TUVect3D const & end, TUVect3D * point)
{
    TUVect3D chord = end - start;
    TUVect3D toPoint = *point - start;
    TUVect3D normal;
    TUVect3D across;
    if (!VectorProduct(&chord, &toPoint, &normal) || !VectorProduct(&normal, &chord, &across))
        return 0;
    *point = (start + end) * 0.5 - Dot(start - *point, across) * across;
    return 1;
}
