#ifndef KX7_TESTS_GEOMETRY_ARC_SAMPLES_H
#define KX7_TESTS_GEOMETRY_ARC_SAMPLES_H

// Arcs in any plane, made from circles by plain trigonometry, so that what the kernel says about them can be
// checked against numbers that it had no part in.

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <random>

#include "geometry/mathematics.h"

namespace arc_samples {
inline constexpr double kPi = std::numbers::pi;

inline TUVect3D At(double x, double y, double z = 0.0)
{
    return {{x, y, z}};
}

inline TUVect2D At2D(double x, double y)
{
    return {{x, y}};
}

inline TUVect3D Combined(TUVect3D const & base, double s, TUVect3D const & u, double t, TUVect3D const & v)
{
    return At(base.x + s * u.x + t * v.x, base.y + s * u.y + t * v.y, base.z + s * u.z + t * v.z);
}

inline double PlainDot(TUVect3D const & a, TUVect3D const & b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline TUVect3D PlainCross(TUVect3D const & a, TUVect3D const & b)
{
    return At(a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x);
}

inline TUVect3D Minus(TUVect3D const & a, TUVect3D const & b)
{
    return Combined(a, -1.0, b, 0.0, b);
}

inline double Size(TUVect3D const & v)
{
    return std::sqrt(PlainDot(v, v));
}

inline double Distance(TUVect3D const & a, TUVect3D const & b)
{
    return Size(Minus(a, b));
}

inline void ExpectNear(TUVect3D const & actual, TUVect3D const & expected, double tolerance)
{
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

inline void ExpectNear(TUVect2D const & actual, TUVect2D const & expected, double tolerance)
{
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
}

/// Two unit vectors at right angles and their common perpendicular.
struct Frame
{
    TUVect3D e1, e2, e3;
};

inline Frame RandomFrame(std::mt19937 & random)
{
    std::normal_distribution<double> normal;
    TUVect3D a = At(normal(random), normal(random), normal(random));
    TUVect3D b = At(normal(random), normal(random), normal(random));
    TUVect3D const zero = At(0, 0, 0);
    a = Combined(zero, 1.0 / Size(a), a, 0.0, a);
    b = Combined(b, -PlainDot(a, b), a, 0.0, a);
    b = Combined(zero, 1.0 / Size(b), b, 0.0, b);
    return {a, b, PlainCross(a, b)};
}

/// An arc with the circle that it was made from: the point at the angle t from the start is
/// centre + radius * (cos(first + t) e1 + sin(first + t) e2), t from 0 to `sweep`.
struct Sample
{
    Frame frame;
    TUVect3D centre;
    double radius;
    double first;
    double sweep;
    TSPlaneEdge3D edge;

    TUVect3D Point(double t) const
    {
        return Combined(centre, radius * std::cos(first + t), frame.e1, radius * std::sin(first + t),
                        frame.e2);
    }
    double Length() const { return radius * sweep; }
    TUVect3D Apex() const { return Point(sweep / 2.0); }
};

/// The sample's edge, its arc vector leaning along the chord by `lean` chords and `size` long across it.
inline TSPlaneEdge3D EdgeOf(Sample const & sample, double size, double lean)
{
    TUVect3D const toApex = Minus(sample.Apex(), sample.centre);
    TUVect3D const start = sample.Point(0.0);
    TUVect3D const end = sample.Point(sample.sweep);
    TUVect3D const vector = Combined(At(0, 0, 0), size / sample.radius, toApex, lean, Minus(end, start));
    return {start, end, vector, std::tan(sample.sweep / 4.0), EDGE_ARC};
}

inline Sample SampleOf(Frame const & frame, TUVect3D const & centre, double radius, double first,
                       double sweep)
{
    Sample sample{frame, centre, radius, first, sweep, {}};
    sample.edge = EdgeOf(sample, 1.0, 0.0);
    return sample;
}

/// A plane arc in the x-y plane about `centre`, anticlockwise from `first` over `sweep`.
inline Sample PlaneSample(TUVect3D const & centre, double radius, double first, double sweep)
{
    return SampleOf({At(1, 0, 0), At(0, 1, 0), At(0, 0, 1)}, centre, radius, first, sweep);
}

/// An arc of the given bulge in a random plane, with a chord of about one unit to ten.
inline Sample RandomSample(std::mt19937 & random, double bulge)
{
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    double const sweep = 4.0 * std::atan(bulge);
    double const chord = 1.0 + 9.0 * unit(random);
    Frame const frame = RandomFrame(random);
    TUVect3D const centre = At(20 * unit(random) - 10, 20 * unit(random) - 10, 20 * unit(random) - 10);
    Sample sample =
        SampleOf(frame, centre, chord / 2.0 / std::sin(sweep / 2.0), 2 * kPi * unit(random), sweep);
    sample.edge = EdgeOf(sample, 0.1 + 5.0 * unit(random), 2.0 * unit(random) - 1.0);
    return sample;
}

/// A random bulge between the limits, spread evenly over their orders of magnitude.
inline double RandomBulge(std::mt19937 & random, double least = 1e-4, double most = 50.0)
{
    std::uniform_real_distribution<double> exponent(std::log(least), std::log(most));
    return std::exp(exponent(random));
}

/// The same arc written with a negative bulge.
inline TSPlaneEdge3D WithNegativeBulge(TSPlaneEdge3D edge)
{
    for (double & coordinate : edge.arcVector.a)
        coordinate = -coordinate;
    edge.bulge = -edge.bulge;
    return edge;
}
}  // namespace arc_samples

#endif
