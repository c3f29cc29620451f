// Points against segments and straight polygons in the plane.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory_resource>
#include <vector>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Room on the stack for the crossings of one vertical; a polygon with some hundred of them asks the heap.
constexpr std::size_t kCrossingRoom = 4096;

bool AreApart(TUVect2D const & a, TUVect2D const & b, double okoli)
{
    return std::fabs(a.x - b.x) > okoli || std::fabs(a.y - b.y) > okoli;
}
}  // namespace

int CMathematics::PointLiesOnSegment(TUVect2D const & a, TUVect2D const & b, TUVect2D const & p)
{
    if (ComparePoints(p, a, 1) || ComparePoints(p, b, 1))
        return 1;
    TUVect2D const along = b - a;
    TUVect2D const toPoint = p - a;
    double const distance = Length(toPoint);
    if (ComparePoints(a, b, 1) || distance > Length(along))
        return 0;
    TUVect2D const direction = Unit(along);
    double const offset = direction.x * toPoint.y - direction.y * toPoint.x;
    return Dot(direction, Unit(toPoint)) > 0.0 && std::fabs(offset) < m_dOkoli;
}

int CMathematics::PointLiesAtVertex(TUVect2D const & p, TUVect2D const * points, int const & count)
{
    for (int i = 0; i + 1 < count; ++i)
        if (std::fabs(p.x - points[i].x) < m_dOkoli && std::fabs(p.y - points[i].y) < m_dOkoli)
            return 1;
    return 0;
}

int CMathematics::IntersectsY(TUVect2D const & a, TUVect2D const & b, double x, double & y)
{
    if (a.x == b.x || !(x >= std::min(a.x, b.x) && x <= std::max(a.x, b.x)))
        return 0;
    y = a.y + (x - a.x) / (b.x - a.x) * (b.y - a.y);
    return std::isfinite(y);
}

int CMathematics::PointLiesInPolygon(TUVect2D const & p, TUVect2D * polygon, int count, int boundaryCounts)
{
    if (count < 1)
        return 0;
    if (AreApart(polygon[0], polygon[count - 1], m_dOkoli))
        polygon[count++] = polygon[0];
    for (int i = 0; i + 1 < count; ++i)
        if (PointLiesOnSegment(polygon[i], polygon[i + 1], p))
            return boundaryCounts != 0;

    std::array<std::byte, kCrossingRoom> room;
    std::pmr::monotonic_buffer_resource memory(room.data(), room.size());
    std::pmr::vector<double> crossings(&memory);
    // A crossing at a vertex is held once, also where the outline turns back there.
    auto const isHeld = [&](double y) {
        return std::ranges::any_of(crossings, [&](double held) { return std::fabs(held - y) <= m_dOkoli; });
    };
    for (int i = 0; i + 1 < count; ++i)
        if (double y; IntersectsY(polygon[i], polygon[i + 1], p.x, y) && !isHeld(y))
            crossings.push_back(y);

    // The first crossing above the point, counted from 1, has an even number for a point inside.
    auto const below = std::ranges::count_if(crossings, [&](double y) { return y <= p.y; });
    bool const someAbove = below < std::ssize(crossings);
    return someAbove && (below + 1) % 2 == 0;
}
