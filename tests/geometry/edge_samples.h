#ifndef KX7_TESTS_GEOMETRY_EDGE_SAMPLES_H
#define KX7_TESTS_GEOMETRY_EDGE_SAMPLES_H

// Edges for the tests of the edge algebra, and owners of what it hands out.

#include <memory>
#include <vector>

#include "arc_samples.h"

namespace arc_samples {
inline TSPlaneEdge3D Point(TUVect3D const & at)
{
    return {at, at, {}, 0.0, EDGE_POINT};
}

inline TSPlaneEdge3D Line(TUVect3D const & start, TUVect3D const & end)
{
    return {start, end, {}, 0.0, EDGE_LINE};
}

inline TSPlaneEdge3D Arc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & vector, double bulge)
{
    return {start, end, vector, bulge, EDGE_ARC};
}

/// An arc of the unit circle about the origin of the x-y plane, from and to the given degrees, anticlockwise
/// if `to` is above `from`.
inline TSPlaneEdge3D UnitArc(double from, double to)
{
    if (from > to) {
        TSPlaneEdge3D edge = UnitArc(to, from);
        std::swap(edge.start, edge.end);
        return edge;
    }
    return PlaneSample(At(0, 0), 1.0, from * kPi / 180.0, (to - from) * kPi / 180.0).edge;
}

inline TUVect3D OnUnitCircle(double degrees)
{
    return At(std::cos(degrees * kPi / 180.0), std::sin(degrees * kPi / 180.0));
}

/// A set of edges as the kernel hands it out.
struct Edges
{
    TSPlaneEdge3D * array = nullptr;
    int count = -7;
    int how = -7;
    int result = -7;

    Edges() = default;
    ~Edges() { delete[] array; }
    Edges(Edges const &) = delete;
    Edges & operator=(Edges const &) = delete;

    TSPlaneEdge3D & operator[](int i) { return array[i]; }
};

/// Expects an edge of the type between two places, in this direction.
inline void ExpectEdge(TSPlaneEdge3D const & edge, int type, TUVect3D const & start, TUVect3D const & end)
{
    EXPECT_EQ(edge.type, type);
    ExpectNear(edge.start, start, 1e-9);
    ExpectNear(edge.end, end, 1e-9);
}

inline TSPlaneEdge3D Reversed(TSPlaneEdge3D edge)
{
    std::swap(edge.start, edge.end);
    return edge;
}
}  // namespace arc_samples

#endif
