// Measures of single sides: boxes, lengths, flattening.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "outlines.h"

namespace {
using std::numbers::pi;

// The circle of an arc side. Angles run from the start in the arc's direction.
struct ArcCircle
{
    TUVect2D centre;
    double radius;
    double startAngle;
    double sweep;  // signed: positive anticlockwise
};

// A positive bulge has its apex left of the chord, so the arc runs clockwise around its centre. With the half
// chord c and the bulge b: sagitta b*c, radius c*(1 + b*b)/(2*b), included angle 4*atan(b).
ArcCircle CircleOf(TSPlaneEdge2D const & arc)
{
    double const dx = (arc.end.x - arc.start.x) / 2, dy = (arc.end.y - arc.start.y) / 2;
    double const b = arc.bulge;
    // Distance from the chord's middle to the centre, along the left normal, in half chords.
    double const toCentre = (b * b - 1) / (2 * b);
    ArcCircle circle{};
    circle.centre.x = arc.start.x + dx - dy * toCentre;
    circle.centre.y = arc.start.y + dy + dx * toCentre;
    circle.radius = std::hypot(arc.start.x - circle.centre.x, arc.start.y - circle.centre.y);
    circle.startAngle = std::atan2(arc.start.y - circle.centre.y, arc.start.x - circle.centre.x);
    circle.sweep = -4 * std::atan(b);
    return circle;
}

TUVect2D PointAt(ArcCircle const & circle, double fraction)
{
    double const angle = circle.startAngle + fraction * circle.sweep;
    TUVect2D point{};
    point.x = circle.centre.x + circle.radius * std::cos(angle);
    point.y = circle.centre.y + circle.radius * std::sin(angle);
    return point;
}

// Fractions of the sweep at which the arc turns in x or y, in order.
std::vector<double> TurningFractions(ArcCircle const & circle)
{
    std::vector<double> fractions;
    double const end = circle.startAngle + circle.sweep;
    double const low = std::min(circle.startAngle, end), high = std::max(circle.startAngle, end);
    for (int quarter = static_cast<int>(std::ceil(low / (pi / 2))); quarter * (pi / 2) < high; ++quarter)
        fractions.push_back((quarter * (pi / 2) - circle.startAngle) / circle.sweep);
    std::sort(fractions.begin(), fractions.end());
    return fractions;
}

void Widen(outlines::Box & box, TUVect2D const & point)
{
    box.min.x = std::min(box.min.x, point.x);
    box.min.y = std::min(box.min.y, point.y);
    box.max.x = std::max(box.max.x, point.x);
    box.max.y = std::max(box.max.y, point.y);
}
}  // namespace

namespace outlines {
Box BoxOf(Path const & sides)
{
    if (sides.empty())
        return {};
    Box box{sides.front().start, sides.front().start};
    for (TSPlaneEdge2D const & side : sides) {
        Widen(box, side.end);
        if (side.bulge == 0)
            continue;
        ArcCircle const circle = CircleOf(side);
        for (double fraction : TurningFractions(circle))
            Widen(box, PointAt(circle, fraction));
    }
    return box;
}

double LengthOf(TSPlaneEdge2D const & side)
{
    if (side.bulge == 0)
        return std::hypot(side.end.x - side.start.x, side.end.y - side.start.y);
    ArcCircle const circle = CircleOf(side);
    return circle.radius * std::fabs(circle.sweep);
}

void AppendSplit(TSPlaneEdge2D const & side, Path & pieces)
{
    if (side.bulge == 0) {
        pieces.push_back(side);
        return;
    }
    constexpr double kShortest = 1e-9;  // of the arc; a turning point this near to an end is the end
    ArcCircle const circle = CircleOf(side);
    std::vector<double> stops = TurningFractions(circle);
    std::erase_if(stops, [](double stop) { return stop < kShortest || stop > 1 - kShortest; });
    stops.push_back(1.0);
    TUVect2D start = side.start;
    double from = 0.0;
    for (double to : stops) {
        TUVect2D const end = to < 1.0 ? PointAt(circle, to) : side.end;
        pieces.push_back({start, end, std::tan(std::atan(side.bulge) * (to - from))});
        start = end;
        from = to;
    }
}

void AppendFlattened(TSPlaneEdge2D const & side, double bound, std::vector<TUVect2D> & points)
{
    constexpr int kMostChords = 20000;  // between two turning points, however small the bound
    if (side.bulge != 0) {
        ArcCircle const circle = CircleOf(side);
        // A chord of the angle a leaves the arc by radius * (1 - cos(a/2)).
        double const share = std::min(1.0, bound / circle.radius);
        double const chordAngle = 2 * std::acos(1 - share);
        std::vector<double> stops = TurningFractions(circle);
        stops.push_back(1.0);
        double from = 0.0;
        for (double to : stops) {
            double const angle = std::fabs(circle.sweep) * (to - from);
            int const chords =
                static_cast<int>(std::clamp(std::ceil(angle / chordAngle), 1.0, double{kMostChords}));
            for (int i = 1; i <= chords; ++i)
                if (to < 1.0 || i < chords)
                    points.push_back(PointAt(circle, from + (to - from) * i / chords));
            from = to;
        }
    }
    points.push_back(side.end);
}
}  // namespace outlines
