#ifndef KX7_TESTS_GEOMETRY_POLYGON_SHAPES_H
#define KX7_TESTS_GEOMETRY_POLYGON_SHAPES_H

// The named pairs of outlines on which polygon intersections are timed and compared, with n sides each
// (n a multiple of 4, from 8 on).

#include <functional>
#include <numbers>
#include <string>

#include "tests/geometry/outlines.h"

namespace shapes {
using outlines::Arc;
using outlines::Closed;
using outlines::Outline;
using outlines::V;

struct Pair
{
    Outline a;
    Outline b;
};

struct NamedShape
{
    std::string name;
    std::function<Pair(int)> make;
};

inline TSPoint2DPlane Polar(double radius, double angle)
{
    return V(radius * std::cos(angle), radius * std::sin(angle));
}

/// Two circles with five waves of opposite phase, straight sides: ten crossings whatever n.
inline Pair Wavy(int n)
{
    auto const circle = [n](double turn, double sign) {
        Outline outline;
        for (int i = 0; i < n; ++i) {
            double const angle = 2 * std::numbers::pi * (i + turn) / n;
            outline.push_back(Polar(1 + sign * 0.1 * std::sin(5 * angle), angle));
        }
        return Closed(outline);
    };
    return {circle(0.0, 1.0), circle(0.37, -1.0)};
}

/// Two stars of n / 2 points, one turned by half a point, straight sides: n crossings.
inline Pair Star(int n)
{
    auto const star = [n](int turn) {
        Outline outline;
        for (int i = 0; i < n; ++i)
            outline.push_back(Polar(i % 2 == turn ? 1.0 : 0.5, 2 * std::numbers::pi * i / n));
        return Closed(outline);
    };
    return {star(0), star(1)};
}

/// Two rectangles whose sides are rows of arcs bulging outward, one over a corner of the other: two
/// crossings.
inline Pair Rounded(int n)
{
    auto const rectangle = [n](double x, double y) {
        Outline outline;
        int const row = n / 4;
        auto const addSide = [&](double x1, double y1, double x2, double y2) {
            for (int i = 0; i < row; ++i) {
                double const t = static_cast<double>(i) / row;
                outline.push_back(V(x1 + t * (x2 - x1), y1 + t * (y2 - y1)));
                outline.push_back(Arc(-0.3));
            }
        };
        addSide(x, y, x + 4, y);
        addSide(x + 4, y, x + 4, y + 2);
        addSide(x + 4, y + 2, x, y + 2);
        addSide(x, y + 2, x, y);
        return Closed(outline);
    };
    return {rectangle(0.0, 0.0), rectangle(2.123456, 0.987654)};
}

/// Two gears of n / 4 teeth, one turned by half a tooth: half of the sides are arcs (tips and roots), the
/// flanks between them straight; n / 2 crossings.
inline Pair Gear(int n)
{
    auto const gear = [n](double turn) {
        Outline outline;
        int const teeth = n / 4;
        double const pitch = 2 * std::numbers::pi / teeth;
        double const bulge = -std::tan(0.3 * pitch / 4);
        for (int i = 0; i < teeth; ++i) {
            double const angle = (i + turn) * pitch;
            outline.push_back(Polar(1.0, angle));
            outline.push_back(Arc(bulge));
            outline.push_back(Polar(1.0, angle + 0.3 * pitch));
            outline.push_back(Polar(0.8, angle + 0.5 * pitch));
            outline.push_back(Arc(bulge));
            outline.push_back(Polar(0.8, angle + 0.8 * pitch));
        }
        return Closed(outline);
    };
    return {gear(0.0), gear(0.5)};
}

inline std::vector<NamedShape> const & All()
{
    static std::vector<NamedShape> const shapes = {
        {"wavy", Wavy}, {"star", Star}, {"rounded", Rounded}, {"gear", Gear}};
    return shapes;
}
}  // namespace shapes

#endif
