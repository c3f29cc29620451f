#ifndef KX7_TESTS_GEOMETRY_SPACE_SAMPLES_H
#define KX7_TESTS_GEOMETRY_SPACE_SAMPLES_H

// Points, random samples and rigid motions for the tests in space. Plain arithmetic only, none of the
// kernel's.

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>
#include <random>

#include "geometry/records.h"

namespace space {
constexpr double kPi = std::numbers::pi;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Coordinates that break careless arithmetic.
constexpr double kOddValues[] = {0.0,    -0.0, 1.0,   -1.0,   1e-7, 1e-14,     1e-160,
                                 5e-324, 1e17, 1e160, -1e308, kNan, kInfinity, -kInfinity};

inline TUVect3D P(double x, double y, double z = 0.0)
{
    return {{x, y, z}};
}

inline TUVect2D Q(double x, double y)
{
    return {{x, y}};
}

inline TUVect3D Plus(TUVect3D const & a, TUVect3D const & b)
{
    return P(a.x + b.x, a.y + b.y, a.z + b.z);
}

inline TUVect3D Times(double factor, TUVect3D const & v)
{
    return P(factor * v.x, factor * v.y, factor * v.z);
}

inline TUVect3D Minus(TUVect3D const & a, TUVect3D const & b)
{
    return Plus(a, Times(-1.0, b));
}

inline double PlainDot(TUVect3D const & a, TUVect3D const & b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline double PlainLength(TUVect3D const & v)
{
    return std::sqrt(PlainDot(v, v));
}

inline double Apart(TUVect3D const & a, TUVect3D const & b)
{
    return PlainLength(Minus(a, b));
}

inline TUVect3D PlainCross(TUVect3D const & a, TUVect3D const & b)
{
    return P(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}

inline TUVect3D PlainUnit(TUVect3D const & v)
{
    return Times(1.0 / PlainLength(v), v);
}

inline void ExpectPoint(TUVect3D const & actual, TUVect3D const & expected, double margin = 1e-12)
{
    EXPECT_NEAR(actual.x, expected.x, margin);
    EXPECT_NEAR(actual.y, expected.y, margin);
    EXPECT_NEAR(actual.z, expected.z, margin);
}

inline void ExpectPoint(TUVect2D const & actual, TUVect2D const & expected, double margin = 1e-12)
{
    EXPECT_NEAR(actual.x, expected.x, margin);
    EXPECT_NEAR(actual.y, expected.y, margin);
}

/// Random values from a fixed seed.
class Random
{
  public:
    explicit Random(unsigned seed) : m_engine(seed) {}

    double Between(double low, double high) { return low + (high - low) * m_share(m_engine); }
    int Below(int limit) { return static_cast<int>(m_engine() % static_cast<unsigned>(limit)); }
    TUVect3D Point(double size = 10.0)
    {
        double const x = Between(-size, size);
        double const y = Between(-size, size);
        return P(x, y, Between(-size, size));
    }
    TUVect3D Direction()
    {
        for (;;) {
            TUVect3D const v = Point(1.0);
            if (PlainLength(v) > 0.1 && PlainLength(v) <= 1.0)
                return PlainUnit(v);
        }
    }
    /// A unit vector perpendicular to `v`, in a random direction around it.
    TUVect3D Across(TUVect3D const & v)
    {
        for (;;) {
            TUVect3D const c = PlainCross(v, Direction());
            if (PlainLength(c) > 0.1 * PlainLength(v))
                return PlainUnit(c);
        }
    }
    double OddValue() { return kOddValues[Below(static_cast<int>(std::size(kOddValues)))]; }
    TUVect3D OddPoint()
    {
        double const x = OddValue();
        double const y = OddValue();
        return P(x, y, OddValue());
    }

  private:
    std::mt19937_64 m_engine;
    std::uniform_real_distribution<double> m_share{0.0, 1.0};
};

/// A turn about an axis through the coordinate origin, followed by a shift.
class RigidMotion
{
  public:
    explicit RigidMotion(Random & random)
        : m_axis(random.Direction()), m_angle(random.Between(-kPi, kPi)), m_shift(random.Point(20.0))
    {
    }

    TUVect3D Turned(TUVect3D const & v) const
    {
        // v cos + (axis x v) sin + axis (axis . v) (1 - cos)
        double const cosine = std::cos(m_angle);
        TUVect3D const turned = Plus(Times(cosine, v), Times(std::sin(m_angle), PlainCross(m_axis, v)));
        return Plus(turned, Times(PlainDot(m_axis, v) * (1.0 - cosine), m_axis));
    }
    TUVect3D operator()(TUVect3D const & p) const { return Plus(Turned(p), m_shift); }

  private:
    TUVect3D m_axis;
    double m_angle;
    TUVect3D m_shift;
};
}  // namespace space

#endif
