#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"
#include "platform/base/rect.h"

using namespace detail;

namespace {
constexpr double kShortestDirection = 1e-10;  // length of a direction that still defines a view
constexpr double kDirectionNoise = 5e-9;      // component of a unit direction that counts as none
constexpr double kVerticalAngle = 1e-10;      // angles nearer than this to a right angle look straight down
constexpr double kSmallestScale = 1e-22;      // pixels per model unit below which nothing can be told
constexpr double kRightAngle = std::numbers::pi / 2.0;

int ClampedToInt(std::int64_t value)
{
    constexpr std::int64_t kLowest = std::numeric_limits<int>::min();
    constexpr std::int64_t kHighest = std::numeric_limits<int>::max();
    return static_cast<int>(value < kLowest ? kLowest : value > kHighest ? kHighest : value);
}

double RowTimesPoint(double const (&row)[3], double x, double y, double z)
{
    return row[0] * x + row[1] * y + row[2] * z;
}

void SetIdentity(double (&m)[3][3])
{
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            m[i][j] = i == j ? 1.0 : 0.0;
}

void CopyMatrix(double const (*from)[3], double (*to)[3])
{
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            to[i][j] = from[i][j];
}

TUVect3D DirectionOfAngles(TUVect3D const & angles)
{
    // The second limit stands on the angle x and with a plus sign; callers rely on the directions it gives.
    bool const slanting = std::fabs(angles.y - kRightAngle) >= kVerticalAngle &&
                          std::fabs(angles.x + kRightAngle) >= kVerticalAngle;
    if (!slanting)
        return {{0.0, 0.0, angles.y / std::fabs(angles.y)}};
    double const tangent = std::tan(angles.y);
    double const square = tangent * tangent;
    double const height = std::sqrt(square / (1.0 + square));
    double const level = std::sqrt(1.0 / (1.0 + square));
    return {{level * std::cos(angles.x), level * std::sin(angles.x), angles.y < 0.0 ? -height : height}};
}

double TurnOfDirection(TUVect3D const & d)
{
    if (d.y > 0.0)
        return std::atan(d.x / d.y);
    if (d.y < 0.0)
        return d.x == 0.0 ? std::numbers::pi : -std::atan(d.y / d.x) + (d.x * kRightAngle) / std::fabs(d.x);
    if (d.x == 0.0)
        return 0.0;
    return d.x > 0.0 ? kRightAngle : -kRightAngle;
}

TUVect3D AnglesOfDirection(TUVect3D const & d)
{
    double const level = std::sqrt(d.x * d.x + d.y * d.y);
    double const rise = level == 0.0 ? (d.z * kRightAngle) / std::fabs(d.z) : std::atan(d.z / level);
    return {{TurnOfDirection(d), rise, 0.0}};
}

TUVect3D CleanDirection(TUVect3D const & direction)
{
    TUVect3D clean = Unit(direction);
    for (double & component : clean.a)
        if (std::fabs(component) < kDirectionNoise)
            component = 0.0;
    return clean;
}
}  // namespace

void CMathematics::ComputeViewMatrix(int handed, double (*const m)[3], double (*const inverse)[3],
                                     TUVect3D angles)
{
    double const s = handed != 0 ? 1.0 : -1.0;
    double const sinA = std::sin(angles.x);
    double const cosA = std::cos(angles.x);
    double const sinB = std::sin(angles.y);
    double const cosB = std::cos(angles.y);
    double const sinC = std::sin(angles.z);
    double const cosC = std::cos(angles.z);
    m[0][0] = cosA * cosC - sinA * sinB * sinC * s;
    m[0][1] = -sinA * cosC - cosA * sinB * sinC * s;
    m[0][2] = cosB * sinC * s;
    m[1][0] = -cosA * sinC - sinA * sinB * cosC * s;
    m[1][1] = sinA * sinC - cosA * sinB * cosC * s;
    m[1][2] = cosB * cosC * s;
    m[2][0] = -sinA * cosB * s;
    m[2][1] = -cosA * cosB * s;
    m[2][2] = -sinB * s;
    CopyMatrix(m, m_dEqA);
    SetIdentity(m_dEqB);
    SolveEqSystem33();
    CopyMatrix(m_dEqX, inverse);
}

void CMathematics::DefineView(double x, double y, double z, int byDirection, int handed, TUVect3D * direction,
                              TUVect3D * angles, double (*const m)[3], double (*const inverse)[3])
{
    TUVect3D const given = {{x, y, z}};
    if (byDirection == 1) {
        if (Length(given) < kShortestDirection)
            return;
        *direction = CleanDirection(given);
        *angles = AnglesOfDirection(*direction);
    } else {
        *angles = given;
        *direction = DirectionOfAngles(given);
    }
    ComputeViewMatrix(handed, m, inverse, *angles);
}

int CMathematics::DefineProjection(int handed, TUVect3D const &, TUVect3D const & direction,
                                   TUVect3D const & c, TUVect3D * result)
{
    if (Length(direction) < kShortestDirection)
        return 0;
    TUVect3D unitDirection = {};
    TUVect3D angles = {};
    double m[3][3];
    double inverse[3][3];
    DefineView(direction.x, direction.y, direction.z, 1, handed, &unitDirection, &angles, m, inverse);
    CopyMatrix(inverse, m_dEqA);
    for (int i = 0; i < 3; ++i)
        m_dEqA[i][2] = -c.a[i];
    SetIdentity(m_dEqB);
    if (SolveEqSystem33() == 0)
        return 0;
    *result = {{m_dEqX[2][0], m_dEqX[2][1], m_dEqX[2][2]}};
    return 1;
}

void CMathematics::PRtoUS(double const & u, double const & v, TUVect3D * result, double const (*inverse)[3])
{
    for (int i = 0; i < 3; ++i)
        result->a[i] = inverse[i][0] * u + inverse[i][1] * v;
}

void CMathematics::PRtoPR(double const & u, double const & v, TUVect3D * result, double const (*inverse)[3],
                          TUVect3D const & slide, TUVect3D const & origin, TUVect3D const & n)
{
    TUVect3D inPlane;
    PRtoUS(u, v, &inPlane, inverse);
    *result = inPlane + Dot(n, inPlane - origin) * slide;
}

double CMathematics::u3D(double const & x, double const & y, double const & z, double const (*m)[3])
{
    return RowTimesPoint(m[0], x, y, z);
}

double CMathematics::v3D(double const & x, double const & y, double const & z, double const (*m)[3])
{
    return RowTimesPoint(m[1], x, y, z);
}

double CMathematics::u3D(TUVect3D const * point)
{
    return u3D(point->x, point->y, point->z, m_dViewMatrix);
}

double CMathematics::v3D(TUVect3D const * point)
{
    return v3D(point->x, point->y, point->z, m_dViewMatrix);
}

void CMathematics::Get2DCoord(double const (*m)[3], TUVect3D const & point, TUVect2D & result)
{
    result = {{u3D(point.x, point.y, point.z, m), v3D(point.x, point.y, point.z, m)}};
}

void CMathematics::GetInt2DCoord(int const & originX, int const & originY, double const (*m)[3],
                                 double const & scale, TUVect3D const & point, int & x, int & y)
{
    std::int64_t const right = RoundToInt(u3D(point.x, point.y, point.z, m) * scale);
    std::int64_t const up = RoundToInt(v3D(point.x, point.y, point.z, m) * scale);
    x = ClampedToInt(originX + right);
    y = ClampedToInt(originY - up);
}

void CMathematics::Get2DCoord(TUVect3D const * point, TUVect2D * result)
{
    *result = {
        {m_iOriginX + std::trunc(u3D(point) * m_dScale), m_iOriginY - std::trunc(v3D(point) * m_dScale)}};
}

void CMathematics::Point3DToView2D(double const (*m)[3], double const & scale, TUVect3D const & point,
                                   TUVect2D & result)
{
    result = {{std::floor(u3D(point.x, point.y, point.z, m) * scale),
               std::floor(v3D(point.x, point.y, point.z, m) * scale)}};
}

void CMathematics::GetWorld2DCoord(int originX, int originY, double scale, int x, int y, double & u,
                                   double & v)
{
    bool const usable = scale >= kSmallestScale;
    u = usable ? (static_cast<double>(x) - originX) / scale : 0.0;
    v = usable ? (static_cast<double>(originY) - y) / scale : 0.0;
}

void CMathematics::GetWorldWindowCorners(CPoint origin, CRect rect, int originX, int originY, double scale,
                                         double & u1, double & v1, double & u2, double & v2)
{
    std::int64_t const width = std::int64_t{rect.right} - rect.left;
    std::int64_t const height = std::int64_t{rect.bottom} - rect.top;
    GetWorld2DCoord(originX, originY, scale, origin.x, ClampedToInt(origin.y + height), u1, v1);
    GetWorld2DCoord(originX, originY, scale, ClampedToInt(origin.x + width), origin.y, u2, v2);
}

void CMathematics::GetCenterPoint(TUVect3D const & a, TUVect3D const & b, TUVect3D & result)
{
    result = (a + b) * 0.5;
}

void CMathematics::Get2DCenterPoint(double const (*m)[3], TUVect3D const & a, TUVect3D const & b,
                                    TUVect2D & result)
{
    TUVect3D centre;
    GetCenterPoint(a, b, centre);
    Get2DCoord(m, centre, result);
}

void CMathematics::GetInt2DCenterPoint(int const & originX, int const & originY, double const (*m)[3],
                                       double const & scale, TUVect3D & a, TUVect3D & b, int & x, int & y)
{
    TUVect3D centre;
    GetCenterPoint(a, b, centre);
    GetInt2DCoord(originX, originY, m, scale, centre, x, y);
}

void CMathematics::SetViewParams(int originX, int originY, double (*const m)[3], double scale)
{
    m_iOriginX = originX;
    m_iOriginY = originY;
    CopyMatrix(m, m_dViewMatrix);
    m_dScale = scale;
}

int CMathematics::ScissorTest(CRect rect, int x, int y)
{
    return x >= rect.left && x <= rect.right && y >= rect.top && y <= rect.bottom ? 1 : 0;
}
