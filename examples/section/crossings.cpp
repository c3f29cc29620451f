// Finds out whether outlines cross themselves or each other.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <memory>

#include "outlines.h"

namespace {
struct BoxedSide
{
    TSelem element;
    outlines::Box box;
};

TSelem ElementOf(TSPlaneEdge2D const & side)
{
    TSelem element{};
    element.type = side.bulge == 0 ? EDGE_LINE : EDGE_ARC;
    element.mark = -1;
    element.start = side.start;
    element.end = side.end;
    element.bulge = side.bulge;
    return element;
}

std::vector<BoxedSide> SidesFromLeftToRight(std::vector<outlines::Outline> const & all)
{
    std::vector<BoxedSide> sides;
    for (outlines::Outline const & outline : all)
        for (TSPlaneEdge2D const & side : outline.sides)
            sides.push_back({ElementOf(side), outlines::BoxOf({side})});
    std::sort(sides.begin(), sides.end(),
              [](BoxedSide const & a, BoxedSide const & b) { return a.box.min.x < b.box.min.x; });
    return sides;
}

bool IsEndOf(CMathematics & kernel, TUVect2D const & point, TSelem const & side)
{
    return kernel.ComparePoints(point, side.start, 1) || kernel.ComparePoints(point, side.end, 1);
}

// Direction of a side in one of its points. An arc's direction turns evenly from the start, where it leaves
// the chord by 2*atan(bulge), to the end.
double DirectionAt(CMathematics & kernel, TSelem const & side, TUVect2D const & point)
{
    double const chord = std::atan2(side.end.y - side.start.y, side.end.x - side.start.x);
    if (side.type != EDGE_ARC)
        return chord;
    double fraction = 0.0, length = 0.0;
    kernel.IsPointOnArcParams(point, side.start, side.end, side.bulge, fraction, length);
    return chord + 2 * std::atan(side.bulge) * (1 - 2 * fraction);
}

bool CrossIn(CMathematics & kernel, TSelem const & a, TSelem const & b, TUVect2D const & point)
{
    constexpr double kTouching = 1e-3;  // sine of the angle below which two sides touch rather than cross
    if (IsEndOf(kernel, point, a) || IsEndOf(kernel, point, b))
        return false;
    return std::fabs(std::sin(DirectionAt(kernel, a, point) - DirectionAt(kernel, b, point))) > kTouching;
}

std::optional<TUVect2D> Crossing(CMathematics & kernel, TSelem const & a, TSelem const & b)
{
    constexpr int kMeetInPoints = 2;
    TSelem * parts = nullptr;
    int count = 0, kind = 0;
    if (kernel.ElemIntersection(a, b, parts, count, kind) == 0)
        return std::nullopt;
    std::unique_ptr<TSelem[]> const owner(parts);
    for (int i = 0; kind == kMeetInPoints && i < count; ++i)
        if (CrossIn(kernel, a, b, parts[i].start))
            return parts[i].start;
    return std::nullopt;
}
}  // namespace

namespace outlines {
std::optional<TUVect2D> FindCrossing(CMathematics & kernel, std::vector<Outline> const & outlines)
{
    std::vector<BoxedSide> const sides = SidesFromLeftToRight(outlines);
    for (std::size_t i = 0; i < sides.size(); ++i)
        for (std::size_t j = i + 1; j < sides.size() && sides[j].box.min.x <= sides[i].box.max.x; ++j) {
            if (sides[j].box.min.y > sides[i].box.max.y || sides[j].box.max.y < sides[i].box.min.y)
                continue;
            if (auto const crossing = Crossing(kernel, sides[i].element, sides[j].element))
                return crossing;
        }
    return std::nullopt;
}
}  // namespace outlines
