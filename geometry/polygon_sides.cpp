#include "geometry/polygon_sides.h"

namespace detail {
namespace {
/// Shallower arcs add to a surface what rounding makes of them.
constexpr double kShallowBulge = 1e-4;

/// A surface between bounds, gathered side by side without the arcs' trigonometry.
struct SurfaceBounds
{
    double low = 0.0;
    double high = 0.0;
    double length = 0.0;
    bool hasShallowArcs = false;

    void AddSide(TSelem const & side, TUVect2D const & origin)
    {
        double const x = side.end.x - side.start.x;
        double const y = side.end.y - side.start.y;
        double const chord = ((side.start.x - origin.x) * y - (side.start.y - origin.y) * x) / 2.0;
        low += chord;
        high += chord;
        length += std::fabs(x) + std::fabs(y);
        if (side.type == EDGE_ARC)
            AddArc((x * x + y * y) / 4.0, side.bulge);
    }

    /// Between the triangle under the apex and the rectangle (for more than a half circle, two squares) round
    /// the segment.
    void AddArc(double quarterSquare, double bulge)
    {
        double const b = std::fabs(bulge);
        hasShallowArcs = hasShallowArcs || (b > 0.0 && b < kShallowBulge);
        double const least = quarterSquare * b;
        double const most = 2.0 * least * std::max(1.0, b);
        low += bulge > 0.0 ? -most : least;
        high += bulge > 0.0 ? -least : most;
    }
};

/// Whether the end is a vertex and all numbers are fit for the index; NaN passes no comparison.
bool IsInRange(TSelem const & side)
{
    return std::fabs(side.end.x) < -ARC_MARKER_LIMIT && std::fabs(side.end.y) < -ARC_MARKER_LIMIT &&
           std::fabs(side.bulge) <= kMostBulge;
}
}  // namespace

PolygonSides::PolygonSides(CMathematics & math, Area const & area, std::pmr::memory_resource & memory)
    : m_area(area), m_sides(&memory), m_isUsable(Read(area.View(), math.GetOkoli()))
{
}

bool PolygonSides::Read(AreaRecords records, double tolerance)
{
    if (records.size() < 2 || IsArcMarker(records.front()) || IsArcMarker(records.back()) ||
        !IsSamePoint(VertexOf(records.front()), VertexOf(records.back())))
        return false;
    m_sides.reserve(records.size() - 1);
    Extents extents;  // apart from the object, so that the loop may keep it in registers
    TUVect2D from = VertexOf(records.front());
    extents.AddVertex(from);
    for (std::size_t i = 1; i < records.size(); ++i) {
        TSelem & side = m_sides.emplace_back();
        side.type = EDGE_LINE;
        side.start = from;
        if (IsArcMarker(records[i])) {
            side.type = EDGE_ARC;
            side.bulge = records[i++].y;
            m_hasArcs = true;
        }
        side.end = VertexOf(records[i]);
        if (!IsInRange(side))
            return false;
        extents.AddVertex(side.end);
        if (side.type == EDGE_ARC)
            extents.AddArc(Length(side.end - side.start), side.bulge);
        if (IsOnePlace(side.start, side.end, tolerance)) {
            side.mark = kPointMark;
            ++m_points;
        }
        from = side.end;
    }
    m_extents = extents;
    m_size = std::max({-extents.min[0], extents.max[0], -extents.min[1], extents.max[1]});
    return tolerance >= kLeastTolerance && m_size <= kMostTolerances * tolerance;
}

TSelem PolygonSides::ElementOf(std::uint32_t side) const
{
    TSelem const & s = m_sides[side];
    if (!m_isReversed)
        return s;
    return {s.type, 0, s.end, s.start, s.type == EDGE_ARC ? -s.bulge : 0.0};
}

int PolygonSides::PlainClassOf(CMathematics & math, TUVect2D const & p) const
{
    int pointClass = kPointInside;  // asks for the full test
    math.IsPointInArea(p, &m_area, 0, pointClass);
    return std::min(pointClass, kPointOnEdge);
}

void PolygonSides::Orient(CMathematics & math)
{
    SurfaceBounds bounds;
    for (TSelem const & side : m_sides)
        bounds.AddSide(side, m_sides.front().start);
    // What rounding may do to the exact sum, which works with the coordinates as they are.
    double const doubt = (1e-13 + 1e-15 * static_cast<double>(m_sides.size())) * m_size * bounds.length +
                         1e-6 * (bounds.high - bounds.low);
    if (!bounds.hasShallowArcs && bounds.low > doubt)
        m_isReversed = false;
    else if (!bounds.hasShallowArcs && bounds.high < -doubt)
        m_isReversed = true;
    else
        m_isReversed = !(math.GetAreaSurface(&m_area) > 0.0);
}
}  // namespace detail
