#include "geometry/polygon_circles.h"

namespace detail {
namespace {
/// Bounds of circles: of their centres and radii, and of the distance beside them that their arcs' boxes
/// cover.
struct CircleBounds
{
    PlaneBox centres;
    double minRadius, maxRadius, minSlack;

    void Add(CircleBounds const & other)
    {
        centres.Add(other.centres);
        minRadius = std::min(minRadius, other.minRadius);
        maxRadius = std::max(maxRadius, other.maxRadius);
        minSlack = std::min(minSlack, other.minSlack);
    }
};

/// The circles of an area's arcs in a tree, but for arcs that may count as lines and those whose boxes cover
/// their circles.
class Circles
{
  public:
    Circles(CMathematics & math, PolygonSides const & sides, PlaneScale const & scale,
            std::pmr::memory_resource & memory)
        : m_arcs(&memory), m_bounds(&memory), m_shape(Collect(math, sides, scale))
    {
        m_bounds.resize(m_shape.Size());
        FillUpward(m_shape, m_bounds);
    }

    bool IsEmpty() const { return m_arcs.empty(); }
    TreeShape const & Shape() const { return m_shape; }
    CircleBounds const & operator[](std::size_t place) const { return m_bounds[place]; }
    std::uint32_t Side(std::uint32_t leaf) const { return m_arcs[leaf]; }

  private:
    std::size_t Collect(CMathematics & math, PolygonSides const & sides, PlaneScale const & scale)
    {
        for (std::uint32_t i = 0; i < sides.Sides().size(); ++i) {
            TSelem const & arc = sides.Sides()[i];
            TUVect2D c;
            double radius;
            if (arc.type != EDGE_ARC || sides.IsPoint(i) || HasCircleBox(arc) || MayBeFlat(arc) ||
                !math.GetArcCentre(arc.start, arc.end, arc.bulge, c, radius))
                continue;
            m_arcs.push_back(i);
            m_bounds.push_back({{c.x, c.y, c.x, c.y}, radius, radius, ArcReach(arc, scale).slack});
        }
        return m_arcs.size();
    }

    std::pmr::vector<std::uint32_t> m_arcs;
    std::pmr::vector<CircleBounds> m_bounds;
    TreeShape m_shape;
};

double Gap(double minA, double maxA, double minB, double maxB)
{
    return std::max({0.0, minA - maxB, minB - maxA});
}

double Span(double minA, double maxA, double minB, double maxB)
{
    return std::max(maxA - minB, maxB - minA);
}

/// Whether circles within the bounds may touch from inside at a point that their arcs' boxes don't cover.
bool MayTouchBesideBoxes(CircleBounds const & a, CircleBounds const & b, PlaneScale const & scale)
{
    PlaneBox const & p = a.centres;
    PlaneBox const & q = b.centres;
    double const least =
        std::hypot(Gap(p.lowX, p.highX, q.lowX, q.highX), Gap(p.lowY, p.highY, q.lowY, q.highY));
    double const radius = std::max(a.maxRadius, b.maxRadius);
    if (least * std::min(a.minSlack, b.minSlack) > 2.0 * radius * scale.tolerance)
        return false;
    double const noise = 1e-12 * (radius + scale.size);
    double const most =
        std::hypot(Span(p.lowX, p.highX, q.lowX, q.highX), Span(p.lowY, p.highY, q.lowY, q.highY));
    if (most + noise < scale.tolerance)  // one centre: told apart by the radii, or one circle
        return false;
    double const margin = 4.0 * scale.tolerance + noise;
    return least <= Span(a.minRadius, a.maxRadius, b.minRadius, b.maxRadius) + margin &&
           most >= Gap(a.minRadius, a.maxRadius, b.minRadius, b.maxRadius) - margin;
}
}  // namespace

void FindNearlyEqualCircles(CMathematics & math, PolygonSides const & a, PolygonSides const & b,
                            PlaneScale const & scale, std::pmr::memory_resource & memory,
                            std::pmr::vector<std::pair<std::uint32_t, std::uint32_t>> & pairs)
{
    Circles const circlesA(math, a, scale, memory);
    if (circlesA.IsEmpty())
        return;
    Circles const circlesB(math, b, scale, memory);
    if (circlesB.IsEmpty())
        return;
    auto const mayMeet = [&](std::size_t i, std::size_t j) {
        return MayTouchBesideBoxes(circlesA[i], circlesB[j], scale);
    };
    auto const found = [&](std::uint32_t i, std::uint32_t j) {
        pairs.emplace_back(circlesA.Side(i), circlesB.Side(j));
    };
    PairSearch(circlesA.Shape(), circlesB.Shape(), mayMeet, found)
        .Search(circlesA.Shape().Root(), circlesB.Shape().Root());
}
}  // namespace detail
