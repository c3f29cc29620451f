// Points against lines and planes in space.

#include <cmath>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Lines with a squared length below this have no direction for a distance.
constexpr double kZeroSquare = 1e-20;

/// Segments shorter than this have no points along them.
constexpr double kZeroLength = 1e-14;
}  // namespace

int CMathematics::DefinePlane(TUVect3D * const points, TSPlane & plane)
{
    if (PointLiesOnLine(points[0], points[1], points[2]) == 1)
        return 0;
    TUVect3D side1 = points[1] - points[0];
    TUVect3D side2 = points[2] - points[0];
    plane.origin = points[0];
    // Nearly parallel sides leave a zero normal; callers are told, the result doesn't say it.
    VectorProduct(&side1, &side2, &plane.normal);
    return 1;
}

int CMathematics::DefinePlane(TUVect3D const & a, TUVect3D const & b, TUVect3D const & c, TSPlane & plane)
{
    TUVect3D points[] = {a, b, c};
    return DefinePlane(points, plane);
}

int CMathematics::PointLiesOnLine(TUVect3D a, TUVect3D b, TUVect3D p)
{
    if (ComparePoints(a, b, 1))
        return 0;
    if (ComparePoints(a, p, 1) || ComparePoints(b, p, 1))
        return 1;
    TUVect3D const toPoint = p - a;
    TUVect3D const sine = Cross(Unit(b - a), Unit(toPoint));
    // The square of the sine, not the sine: points off the line by more than the tolerance may pass.
    return Dot(sine, sine) * Length(toPoint) < m_dOkoli;
}

int CMathematics::PointLiesInPlane(TSPlane const & plane, TUVect3D const & p)
{
    return PointLiesInPlane(plane.origin, plane.normal, p);
}

int CMathematics::PointLiesInPlane(TUVect3D const & origin, TUVect3D const & normal, TUVect3D const & p)
{
    TUVect3D const toPoint = p - origin;
    double const length = Length(toPoint);
    return length <= m_dOkoli || std::fabs(Dot(toPoint, normal) / length) <= m_dOkoli;
}

int CMathematics::GetDistancePointToLine(TUVect3D const & p, TUVect3D const & a, TUVect3D const & b,
                                         double & distance, TUVect3D & foot, double & t)
{
    double square = 0.0;
    double projection = 0.0;
    for (int i = 0; i < 3; ++i) {
        double const d = b.a[i] - a.a[i];
        square += d * d;
        projection += (p.a[i] - a.a[i]) * d;
    }
    if (!(square >= kZeroSquare) || !std::isfinite(square))
        return 0;
    t = projection / square;
    for (int i = 0; i < 3; ++i)
        foot.a[i] = a.a[i] + t * (b.a[i] - a.a[i]);
    distance = GetDistance(p, foot);
    return std::isfinite(distance);
}

int CMathematics::IsPointOnExtendedLine(TUVect3D const & a, TUVect3D const & b, TUVect3D const & p)
{
    TUVect3D const direction = b - a;
    TUVect3D const toPoint = p - a;
    double const share = Dot(toPoint, direction) / Dot(direction, direction);
    if (!(Length(toPoint - share * direction) <= m_dOkoli))
        return 0;
    double const length = Length(direction);
    double const distance = share * length;
    if (distance < -m_dOkoli)
        return -1;
    return distance > length + m_dOkoli ? 2 : 1;
}

int CMathematics::PointCastOnLine(TUVect3D const & a, TUVect3D const & b, TUVect3D const & p, TUVect3D & foot)
{
    TUVect3D const direction = Unit(b - a);
    double const distance = Dot(p - a, direction);
    double const length = Length(a - b);
    foot = a + distance * direction;
    return distance >= -m_dOkoli && distance <= length + m_dOkoli;
}

int CMathematics::IsPoint3DInLine(TUVect3D const & a, TUVect3D const & b, TUVect3D const & p,
                                  double & distance)
{
    distance = 0.0;
    if (ComparePoints(p, a, 1))
        return 1;
    double const length = Length(b - a);
    if (ComparePoints(p, b, 1)) {
        distance = length;
        return 1;
    }
    TUVect3D const trial = a + Length(a - p) * Unit(b - a);
    if (!ComparePoints(trial, p, 1))
        return 0;
    distance = Length(a - trial);
    return distance < length;
}

int CMathematics::GetPoint3DOnLine(TUVect3D const & a, TUVect3D const & b, TUVect3D & point,
                                   double const & value, int const & mode)
{
    TUVect3D const along = b - a;
    double const length = Length(along);
    if (!(length >= kZeroLength))
        return 0;
    TUVect3D const direction = Unit(along);
    switch (mode) {
        case 0:
            point = a + value * direction;
            break;
        case 1:
            point = a + value * along;
            break;
        case 2:
            point = a + value / 100.0 * along;
            break;
        default:
            return 0;
    }
    double const distance = Dot(point - a, direction);
    return distance >= -m_dOkoli && distance <= length + m_dOkoli;
}
