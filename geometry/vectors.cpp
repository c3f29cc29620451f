// The tolerance, rounding, angles, comparing and vector operations of the kernel.

#include <cmath>
#include <numbers>

#include "geometry/int_conversion.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
constexpr double kPi = std::numbers::pi;

/// Squared lengths up to this count as zero where a vector is normalised.
constexpr double kZeroSquare = 1e-14;

/// Lengths up to this count as zero in a vector product.
constexpr double kZeroLength = 1e-7;

/// Vectors with a sine up to this between them count as parallel in a vector product.
constexpr double kParallelSine = 0.0005;

/// Lengths up to this have no sine.
constexpr double kNoDirection = 1e-10;

/// Differences of x up to this make a direction vertical.
constexpr double kVertical = 1e-14;

bool WithinBox(double a, double b, double okoli)
{
    return b - okoli <= a && b + okoli >= a;
}

bool EqualButForNoise(double a, double b)
{
    return SnapNoise(a - b, std::fabs(a) + std::fabs(b)) == 0.0;
}

double PlainDot(TUVect3D const & a, TUVect3D const & b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

TUVect3D PlainCross(TUVect3D const & a, TUVect3D const & b)
{
    return {{a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}};
}

void DivideBy(TUVect3D & vector, double divisor)
{
    for (double & coordinate : vector.a)
        coordinate /= divisor;
}

bool IsAbove(double value, double limit)
{
    return value > limit && std::isfinite(value);
}
}  // namespace

double CMathematics::SetOkoli(double okoli)
{
    double const previous = m_dOkoli;
    m_dOkoli = okoli;
    return previous;
}

double CMathematics::GetOkoli() const
{
    return m_dOkoli;
}

double CMathematics::Round(double const & value)
{
    if (value > 0.0)
        return std::floor(value + 0.5);
    return value < 0.0 ? std::ceil(value - 0.5) : 0.0;
}

int CMathematics::RoundToInt(double value)
{
    return TruncatedToInt(Round(value));
}

double CMathematics::RadiansToDegrees(double radians)
{
    return 180.0 * radians / kPi;
}

double CMathematics::DegreesToRadians(double degrees)
{
    return degrees * kPi / 180.0;
}

double CMathematics::GetValWithPrecision(double value, double precision)
{
    double const quotient = value / precision;
    double const whole = std::floor(quotient);
    return (std::floor(quotient + 0.5) != whole ? std::ceil(quotient) : whole) * precision;
}

double CMathematics::GetOrientedAngle(double const & angle)
{
    return angle < 0.0 ? 2.0 * kPi + angle : angle;
}

double CMathematics::GetAlfa(TUVect2D const & from, TUVect2D const & to)
{
    double const dx = to.x - from.x;
    double const dy = to.y - from.y;
    if (!(std::fabs(dx) > kVertical))
        return dy < 0.0 ? 3.0 * kPi / 2.0 : kPi / 2.0;
    return GetOrientedAngle(std::atan2(dy, dx));
}

void CMathematics::Polar(TUVect2D const & base, double angle, double distance, TUVect2D & result)
{
    result = {{base.x + distance * std::cos(angle), base.y + distance * std::sin(angle)}};
}

TUVect2D CMathematics::rotate(TUVect2D const & vector, double const & angle)
{
    double const cosine = std::cos(angle);
    double const sine = std::sin(angle);
    return {{vector.x * cosine - vector.y * sine, vector.x * sine + vector.y * cosine}};
}

// The five comparisons don't treat `mode` alike, nor do they share one rule; callers depend on that.

int CMathematics::ComparePoints(TUVect3D const & a, TUVect3D const & b, int mode)
{
    if (mode == 0)
        return EqualButForNoise(a.x, b.x) && EqualButForNoise(a.y, b.y) && EqualButForNoise(a.z, b.z);
    if (!WithinBox(a.x, b.x, m_dOkoli) || !WithinBox(a.y, b.y, m_dOkoli) || !WithinBox(a.z, b.z, m_dOkoli))
        return 0;
    TUVect3D const difference = {{a.x - b.x, a.y - b.y, a.z - b.z}};
    return PlainDot(difference, difference) <= m_dOkoli * m_dOkoli;
}

int CMathematics::ComparePoints(TUVect2D const & a, TUVect2D const & b, int mode)
{
    if (mode == 0)
        return EqualButForNoise(a.x, b.x) && EqualButForNoise(a.y, b.y);
    return WithinBox(a.x, b.x, m_dOkoli) && WithinBox(a.y, b.y, m_dOkoli);
}

int CMathematics::CompareVectors(TUVect3D const & a, TUVect3D const & b, int mode)
{
    if (mode == 0)
        return a.x == b.x && a.y == b.y && a.z == b.z;
    return std::fabs(a.x - b.x) <= m_dOkoli && std::fabs(a.y - b.y) <= m_dOkoli &&
           std::fabs(a.z - b.z) <= m_dOkoli;
}

int CMathematics::CompareVectors(TUVect2D const & a, TUVect2D const & b, int mode)
{
    return CompareDouble(a.x, b.x, mode) && CompareDouble(a.y, b.y, mode);
}

int CMathematics::CompareDouble(double a, double b, int mode)
{
    return mode == 1 ? std::fabs(a - b) <= m_dOkoli : EqualButForNoise(a, b);
}

int CMathematics::CompareLine(TUVect3D & a1, TUVect3D & a2, TUVect3D & b1, TUVect3D & b2, int mode)
{
    return (ComparePoints(a1, b1, mode) && ComparePoints(a2, b2, mode)) ||
           (ComparePoints(a1, b2, mode) && ComparePoints(a2, b1, mode));
}

double CMathematics::GetSizeOfVector(TUVect3D const * vector)
{
    return std::sqrt(PlainDot(*vector, *vector));
}

int CMathematics::NormOfVector(TUVect3D * vector)
{
    double const square = PlainDot(*vector, *vector);
    if (!IsAbove(square, kZeroSquare))
        return 0;
    DivideBy(*vector, std::sqrt(square));
    return 1;
}

int CMathematics::NormOfVector(TUVect2D * vector)
{
    double const square = vector->x * vector->x + vector->y * vector->y;
    if (!IsAbove(square, kZeroSquare))
        return 0;
    double const length = std::sqrt(square);
    for (double & coordinate : vector->a)
        coordinate = SnapNoise(coordinate / length, length);
    return 1;
}

int CMathematics::VectorProduct(TUVect3D * a, TUVect3D * b, TUVect3D * result)
{
    *result = {};
    double const lengthA = GetSizeOfVector(a);
    double const lengthB = GetSizeOfVector(b);
    if (!IsAbove(lengthA, kZeroLength) || !IsAbove(lengthB, kZeroLength))
        return 0;
    DivideBy(*a, lengthA);
    DivideBy(*b, lengthB);
    TUVect3D const product = PlainCross(*a, *b);
    double const sine = GetSizeOfVector(&product);
    if (!(sine > kParallelSine))
        return 0;
    *result = product;
    DivideBy(*result, sine);
    return 1;
}

int CMathematics::ScalarProduct(TUVect3D * a, TUVect3D * b, double & result)
{
    result = PlainDot(*a, *b);
    return 1;
}

void CMathematics::SinOfVectors(TUVect3D * a, TUVect3D * b, double * result)
{
    double const lengthA = GetSizeOfVector(a);
    double const lengthB = GetSizeOfVector(b);
    TUVect3D const product = PlainCross(*a, *b);
    bool const defined = IsAbove(lengthA, kNoDirection) && IsAbove(lengthB, kNoDirection);
    *result = defined ? GetSizeOfVector(&product) / lengthA / lengthB : 0.0;
}

double CMathematics::GetDistance(TUVect2D const & a, TUVect2D const & b)
{
    double const dx = b.x - a.x;
    double const dy = b.y - a.y;
    return std::sqrt(dx * dx + dy * dy);
}

double CMathematics::GetDistance(TUVect3D const & a, TUVect3D const & b)
{
    TUVect3D const difference = {{b.x - a.x, b.y - a.y, b.z - a.z}};
    return GetSizeOfVector(&difference);
}

int CMathematics::GetDistance3D(TUVect3D const & a, TUVect3D const & b, TUVect3D & result)
{
    result = b - a;
    return 1;
}

TUVect3D CMathematics::SetPoint3D(double const & x, double const & y, double const & z)
{
    return {{x, y, z}};
}
