#ifndef KX7_TESTS_GEOMETRY_MESH_SHAPES_H
#define KX7_TESTS_GEOMETRY_MESH_SHAPES_H

// Polygons and triangles for the tests of polygons against meshes.

#include <cmath>
#include <numbers>
#include <random>

#include "tests/geometry/outlines.h"

namespace mesh_shapes {
using outlines::Arc;
using outlines::Closed;
using outlines::IsMarker;
using outlines::Outline;
using outlines::V;

inline double Uniform(std::mt19937 & random, double low, double high)
{
    return std::uniform_real_distribution<double>(low, high)(random);
}

/// The outline scaled, then moved; bulges stay.
inline Outline Placed(Outline outline, double scale, double dx, double dy)
{
    for (TSPoint2DPlane & record : outline)
        if (!IsMarker(record))
            record = V(record.x * scale + dx, record.y * scale + dy);
    return outline;
}

/// A star-shaped polygon of `count` sides round the origin, about 2 in radius; with `arcs` about half of its
/// sides are arcs.
inline Outline Star(std::mt19937 & random, int count, bool arcs)
{
    Outline outline;
    for (int i = 0; i < count; ++i) {
        double const angle = 2.0 * std::numbers::pi * i / count;
        double const r = Uniform(random, 1.2, 2.8);
        outline.push_back(V(r * std::cos(angle), r * std::sin(angle)));
        if (arcs && random() % 2 == 0)
            outline.push_back(Arc(Uniform(random, -0.5, 0.5)));
    }
    return Closed(outline);
}

/// Any polygon on a grid of whole numbers from -3 to 3, crossing itself or not, with some half circles.
inline Outline OnGrid(std::mt19937 & random, bool arcs)
{
    Outline outline;
    int const count = static_cast<int>(3 + random() % 8);
    for (int i = 0; i < count; ++i) {
        outline.push_back(
            V(static_cast<double>(random() % 7) - 3.0, static_cast<double>(random() % 7) - 3.0));
        if (arcs && random() % 3 == 0)
            outline.push_back(Arc(random() % 2 == 0 ? 1.0 : -1.0));
    }
    return Closed(outline);
}

/// A gear-like ring of `count` sides, every other one an arc.
inline Outline Gear(int count)
{
    Outline outline;
    for (int i = 0; i < count; ++i) {
        double const angle = 2.0 * std::numbers::pi * i / count;
        double const r = i % 4 < 2 ? 2.0 : 2.4;
        outline.push_back(V(r * std::cos(angle), r * std::sin(angle)));
        if (i % 2 == 0)
            outline.push_back(Arc(-0.2));
    }
    return Closed(outline);
}

/// A square with a square hole, reached by a slit of no width.
inline Outline Slit()
{
    return Closed({V(-2, -2), V(2, -2), V(2, 2), V(-2, 2), V(-2, 0), V(-1, 0), V(-1, 1), V(1, 1), V(1, -1),
                   V(-1, -1), V(-1, 0), V(-2, 0)});
}

/// A spiral corridor of `turns` turns.
inline Outline Spiral(int turns)
{
    Outline outer;
    Outline inner;
    int const steps = 12 * turns;
    for (int i = 0; i <= steps; ++i) {
        double const angle = 2.0 * std::numbers::pi * i / 12.0;
        double const r = 0.5 + 2.0 * i / steps;
        outer.push_back(V((r + 0.1) * std::cos(angle), (r + 0.1) * std::sin(angle)));
        inner.push_back(V(r * std::cos(angle), r * std::sin(angle)));
    }
    outer.insert(outer.end(), inner.rbegin(), inner.rend());
    return Closed(outer);
}

inline Outline TriangleOf(TSPoint2DPlane a, TSPoint2DPlane b, TSPoint2DPlane c)
{
    return Closed({a, b, c});
}

/// A triangle with its first corner at `at` and sides of about `size`, either way round.
inline Outline TriangleAt(std::mt19937 & random, TSPoint2DPlane at, double size)
{
    auto const next = [&] {
        return V(at.x + Uniform(random, -size, size), at.y + Uniform(random, -size, size));
    };
    return TriangleOf(at, next(), next());
}

/// A triangle of whole coordinates from -4 to 4, at times without extent.
inline Outline TriangleOnGrid(std::mt19937 & random)
{
    auto const next = [&] {
        return V(static_cast<double>(random() % 9) - 4.0, static_cast<double>(random() % 9) - 4.0);
    };
    return TriangleOf(next(), next(), next());
}

/// A vertex of the outline.
inline TSPoint2DPlane VertexOf(std::mt19937 & random, Outline const & outline)
{
    for (;;) {
        TSPoint2DPlane const record = outline[random() % outline.size()];
        if (!IsMarker(record))
            return record;
    }
}

/// A place on the chord between two records that follow one another, or a vertex beside a marker.
inline TSPoint2DPlane PlaceOnSide(std::mt19937 & random, Outline const & outline)
{
    std::size_t const i = random() % (outline.size() - 1);
    if (IsMarker(outline[i]) || IsMarker(outline[i + 1]))
        return VertexOf(random, outline);
    double const t = random() % 2 == 0 ? 0.5 : Uniform(random, 0.0, 1.0);
    return V(outline[i].x + t * (outline[i + 1].x - outline[i].x),
             outline[i].y + t * (outline[i + 1].y - outline[i].y));
}
}  // namespace mesh_shapes

#endif
