// Lengths and angles of arcs.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Bulges below this are measured by the chord.
constexpr double kStraightBulge = 1e-14;

/// Vectors below this have no angle.
constexpr double kNoDirection = 1e-7;

/// A sine or cosine below this counts as zero.
constexpr double kZeroSine = 1e-9;

/// Angles below this are looked at again for opposite vectors.
constexpr double kZeroAngle = 1e-8;

// The rounded turns of GetOrientAngle differ in their last digits on purpose: angles that callers compare and
// store have always come out this way.
constexpr double kQuarterTurn = 1.5707963;
constexpr double kHalfTurnOfOpposites = 3.1415926;
constexpr double kHalfTurn = 3.1415927;

/// The angle of two unit vectors from sine and cosine, 0 to 2*pi.
double AngleFromSine(double sine, double cosine)
{
    if (std::fabs(cosine) < kZeroSine)
        return sine < 0.0 ? 3.0 * kQuarterTurn : kQuarterTurn;
    if (std::fabs(sine) < kZeroSine)
        return cosine > 0.0 ? 0.0 : kHalfTurnOfOpposites;
    double angle = std::atan(sine / cosine);
    if (angle < 0.0 && std::fabs(angle) > kZeroSine)
        angle += kHalfTurn;
    if (sine < 0.0)
        angle += kHalfTurn;
    return angle;
}

/// Signs by which a vanishing angle is taken for half a turn. The last one looks at b.x alone and not at a
/// product with a.x: callers rely on it as it is.
bool LookOpposite(TUVect3D const & a, TUVect3D const & b)
{
    return a.y * b.y < 0.0 || a.z * b.z < 0.0 || b.x < 0.0;
}
}  // namespace

double CMathematics::GetArcLength(TUVect3D const & start, TUVect3D const & end, double const & bulge)
{
    if (ComparePoints(start, end, 1))
        return 0.0;
    double const length = Length(end - start);
    if (std::fabs(bulge) < kStraightBulge)
        return length;
    double const sagitta = std::fabs(bulge) * length / 2.0;
    double const radius = 0.5 / sagitta * (sagitta * sagitta + length * length / 4.0);
    double angle = 2.0 * std::asin(std::clamp(length / 2.0 / radius, -1.0, 1.0));
    // By the signed bulge: one below -1 stays on the branch of the smaller arc.
    if (bulge > 1.0)
        angle = 2.0 * std::numbers::pi - angle;
    return radius * angle;
}

int CMathematics::GetAngleOfArc(TUVect3D const & start, TUVect3D const & end, double const & radius,
                                double & angle)
{
    angle = 0.0;
    double const length = Length(end - start);
    double const sine = length / 2.0 / radius;
    if (!(length - 2.0 * radius < m_dOkoli) || std::isnan(sine))
        return 0;
    angle = 2.0 * std::asin(std::clamp(sine, -1.0, 1.0));
    return 1;
}

int CMathematics::GetOrientAngle(TUVect3D a, TUVect3D b, TUVect3D const & normal, double & angle)
{
    angle = 0.0;
    if (Length(a) < kNoDirection || Length(b) < kNoDirection)
        return 1;
    a = Unit(a);
    b = Unit(b);
    TUVect3D const cross = Cross(a, b);
    double const size = Length(cross);
    angle = AngleFromSine(Dot(cross, normal) < 0.0 ? -size : size, Dot(a, b));
    if (angle < kZeroAngle && LookOpposite(a, b))
        angle = kHalfTurn;
    return 1;
}
