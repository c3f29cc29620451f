#ifndef KX7_TESTS_GEOMETRY_SECTION_SHAPES_H
#define KX7_TESTS_GEOMETRY_SECTION_SHAPES_H

// Cross-sections for the tests: outlines as plain vectors, counter-clockwise and closed by their first
// vertex.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>
#include <vector>

#include "geometry/records.h"
#include "platform/base/array.h"

namespace shapes {
using Outline = std::vector<TUVect2D>;
using OutlineArray = CArray<TUVect2D, TUVect2D &>;

inline TUVect2D Point(double x, double y)
{
    return {{x, y}};
}

inline Outline Closed(Outline outline)
{
    outline.push_back(outline.front());
    return outline;
}

inline Outline Rectangle(double left, double bottom, double width, double height)
{
    return Closed({Point(left, bottom), Point(left + width, bottom), Point(left + width, bottom + height),
                   Point(left, bottom + height)});
}

inline Outline CentredRectangle(double width, double height)
{
    return Rectangle(-width / 2.0, -height / 2.0, width, height);
}

inline Outline Ellipse(double a, double b, int sides)
{
    Outline outline;
    for (int i = 0; i < sides; ++i) {
        double const angle = 2.0 * std::numbers::pi * i / sides;
        outline.push_back(Point(a * std::cos(angle), b * std::sin(angle)));
    }
    return Closed(outline);
}

/// A doubly symmetric I centred at the origin.
inline Outline CentredI(double width, double height, double flange, double web)
{
    double const x = width / 2.0;
    double const w = web / 2.0;
    double const y = height / 2.0;
    double const f = y - flange;
    return Closed({Point(-x, -y), Point(x, -y), Point(x, -f), Point(w, -f), Point(w, f), Point(x, f),
                   Point(x, y), Point(-x, y), Point(-x, f), Point(-w, f), Point(-w, -f), Point(-x, -f)});
}

/// A T with its flange on top and its centroid at the height 0.
inline Outline CentredT(double width, double height, double flange, double web)
{
    double const areaFlange = width * flange;
    double const areaWeb = web * (height - flange);
    double const centroid =
        (areaFlange * (height - flange / 2.0) + areaWeb * (height - flange) / 2.0) / (areaFlange + areaWeb);
    double const x = width / 2.0;
    double const w = web / 2.0;
    double const bottom = -centroid;
    double const under = height - flange - centroid;
    double const top = height - centroid;
    return Closed({Point(-w, bottom), Point(w, bottom), Point(w, under), Point(x, under), Point(x, top),
                   Point(-x, top), Point(-x, under), Point(-w, under)});
}

/// A hollow box centred at the origin as one outline, its hole reached by a slit of no width.
inline Outline CentredBox(double width, double height, double wall)
{
    double const x = width / 2.0;
    double const y = height / 2.0;
    double const ix = x - wall;
    double const iy = y - wall;
    return Closed({Point(-x, -y), Point(x, -y), Point(x, y), Point(-x, y), Point(-x, 0.0), Point(-ix, 0.0),
                   Point(-ix, iy), Point(ix, iy), Point(ix, -iy), Point(-ix, -iy), Point(-ix, 0.0),
                   Point(-x, 0.0)});
}

inline Outline Reversed(Outline outline)
{
    std::reverse(outline.begin(), outline.end());
    return outline;
}

inline Outline Moved(Outline outline, double dx, double dy)
{
    for (TUVect2D & vertex : outline)
        vertex = Point(vertex.x + dx, vertex.y + dy);
    return outline;
}

inline Outline Scaled(Outline outline, double factor)
{
    for (TUVect2D & vertex : outline)
        vertex = Point(vertex.x * factor, vertex.y * factor);
    return outline;
}

inline Outline Turned(Outline outline, double angle)
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    for (TUVect2D & vertex : outline)
        vertex = Point(vertex.x * c - vertex.y * s, vertex.x * s + vertex.y * c);
    return outline;
}

/// Any outline at all, crossing itself or not; every third one has its heights on a coarse grid.
inline Outline Random(std::mt19937 & random)
{
    std::uniform_real_distribution<double> coordinate(-10.0, 10.0);
    bool const onGrid = random() % 3 == 0;
    std::size_t const count = 3 + random() % 40;
    Outline outline;
    for (std::size_t i = 0; i < count; ++i) {
        double const y = coordinate(random);
        outline.push_back(Point(coordinate(random), onGrid ? std::round(y) : y));
    }
    return random() % 4 == 0 ? outline : Closed(outline);
}

/// A star-shaped outline round the origin.
inline Outline RandomStar(std::mt19937 & random)
{
    std::uniform_real_distribution<double> radius(1.0, 3.0);
    int const count = static_cast<int>(3 + random() % 20);
    Outline outline;
    for (int i = 0; i < count; ++i) {
        double const angle = 2.0 * std::numbers::pi * i / count;
        double const r = radius(random);
        outline.push_back(Point(r * std::cos(angle), r * std::sin(angle)));
    }
    return Closed(outline);
}

inline void Fill(OutlineArray & array, Outline outline)
{
    array.RemoveAll();
    for (TUVect2D & vertex : outline)
        array.Add(vertex);
}
}  // namespace shapes

#endif
