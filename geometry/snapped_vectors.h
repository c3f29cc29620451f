#ifndef KX7_GEOMETRY_SNAPPED_VECTORS_H
#define KX7_GEOMETRY_SNAPPED_VECTORS_H

// The vector arithmetic of the geometry kernel. A result that is only rounding noise against its operands
// becomes a true zero, so that later tests against 0.0 mean something; results therefore differ from plain
// arithmetic on purpose. Say `using namespace detail;` in a source file to use the operators.

#include <cmath>

#include "geometry/records.h"

namespace detail {
/// Scales up to this are left alone by SnapNoise, and values below this share of their scale are noise.
inline constexpr double kNoise = 1e-14;

/// 0 if `value` is rounding noise against `scale`, the size of the operands it came from; else `value`.
inline double SnapNoise(double value, double scale)
{
    // Spares the division below where the value is clearly no noise: the limit is twice the true one.
    if (!(std::fabs(value) < 2.0 * kNoise * std::fabs(scale)))
        return value;
    return std::fabs(scale) > kNoise && std::fabs(value / scale) < kNoise ? 0.0 : value;
}

/// a + b, snapped against |a| + |b|.
inline double SnappedSum(double a, double b)
{
    return SnapNoise(a + b, std::fabs(a) + std::fabs(b));
}

/// a - b, snapped against |a| + |b|.
inline double SnappedDifference(double a, double b)
{
    return SnappedSum(a, -b);
}

inline TUVect3D operator+(TUVect3D const & a, TUVect3D const & b)
{
    return {{SnappedSum(a.x, b.x), SnappedSum(a.y, b.y), SnappedSum(a.z, b.z)}};
}

inline TUVect3D operator-(TUVect3D const & a, TUVect3D const & b)
{
    return {{SnappedDifference(a.x, b.x), SnappedDifference(a.y, b.y), SnappedDifference(a.z, b.z)}};
}

inline TUVect3D operator*(TUVect3D const & v, double factor)
{
    return {{v.x * factor, v.y * factor, v.z * factor}};
}

inline TUVect3D operator*(double factor, TUVect3D const & v)
{
    return v * factor;
}

inline TUVect3D operator-(TUVect3D const & v)
{
    return v * -1.0;
}

inline TUVect2D operator+(TUVect2D const & a, TUVect2D const & b)
{
    return {{SnappedSum(a.x, b.x), SnappedSum(a.y, b.y)}};
}

inline TUVect2D operator-(TUVect2D const & a, TUVect2D const & b)
{
    return {{SnappedDifference(a.x, b.x), SnappedDifference(a.y, b.y)}};
}

inline TUVect2D operator*(TUVect2D const & v, double factor)
{
    return {{v.x * factor, v.y * factor}};
}

inline TUVect2D operator*(double factor, TUVect2D const & v)
{
    return v * factor;
}

inline TUVect2D operator-(TUVect2D const & v)
{
    return v * -1.0;
}

/// The dot product, snapped against the sum of its products' absolute values.
inline double Dot(TUVect3D const & a, TUVect3D const & b)
{
    double const px = a.x * b.x;
    double const py = a.y * b.y;
    double const pz = a.z * b.z;
    return SnapNoise(px + py + pz, std::fabs(px) + std::fabs(py) + std::fabs(pz));
}

inline double Dot(TUVect2D const & a, TUVect2D const & b)
{
    double const px = a.x * b.x;
    double const py = a.y * b.y;
    return SnapNoise(px + py, std::fabs(px) + std::fabs(py));
}

/// The cross product, each component snapped against the absolute values of its two products.
inline TUVect3D Cross(TUVect3D const & a, TUVect3D const & b)
{
    return {{SnappedDifference(a.y * b.z, a.z * b.y), SnappedDifference(a.z * b.x, a.x * b.z),
             SnappedDifference(a.x * b.y, a.y * b.x)}};
}

/// The length, as the root of the snapped dot product.
inline double Length(TUVect3D const & v)
{
    return std::sqrt(Dot(v, v));
}
inline double Length(TUVect2D const & v)
{
    return std::sqrt(Dot(v, v));
}

/// The unit vector; the zero vector if the dot product of `v` with itself is exactly 0.
inline TUVect3D Unit(TUVect3D const & v)
{
    double const square = Dot(v, v);
    return square == 0.0 ? TUVect3D{} : v * (1.0 / std::sqrt(square));
}

inline TUVect2D Unit(TUVect2D const & v)
{
    double const square = Dot(v, v);
    return square == 0.0 ? TUVect2D{} : v * (1.0 / std::sqrt(square));
}

/// A plane point or vector in space, with z = 0.
inline TUVect3D Widened(TUVect2D const & v)
{
    return {{v.x, v.y, 0.0}};
}
}  // namespace detail

#endif
