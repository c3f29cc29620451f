#include "geometry/polygon_sides.h"

namespace detail {
namespace {
/// A surface between bounds, gathered side by side without the arcs' trigonometry.
struct SurfaceBounds
{
    double low = 0.0;
    double high = 0.0;
    double length = 0.0;

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
        double const least = quarterSquare * b;
        double const most = 2.0 * least * std::max(1.0, b);
        low += bulge > 0.0 ? -most : least;
        high += bulge > 0.0 ? -least : most;
    }
};
}  // namespace

PolygonSides::PolygonSides(CMathematics & math, Area const & area, std::pmr::memory_resource & memory)
    : m_sides(&memory), m_isUsable(Read(area.View(), math.GetOkoli()))
{
}

bool PolygonSides::Read(AreaRecords records, double tolerance)
{
    if (records.size() < 2 || IsArcMarker(records.front()) || IsArcMarker(records.back()) ||
        !IsSamePoint(VertexOf(records.front()), VertexOf(records.back())))
        return false;
    m_sides.reserve(records.size() - 1);
    m_extents.AddVertex(VertexOf(records.front()));
    TUVect2D from = VertexOf(records.front());
    for (std::size_t i = 1; i < records.size(); ++i) {
        TSPoint2DPlane const * const marker = IsArcMarker(records[i]) ? &records[i++] : nullptr;
        if (IsArcMarker(records[i]))
            return false;
        TUVect2D const to = VertexOf(records[i]);
        if (!AddSide(from, to, marker, tolerance))
            return false;
        from = to;
    }
    return m_size <= kMostTolerances * tolerance;
}

bool PolygonSides::AddSide(TUVect2D const & from, TUVect2D const & to, TSPoint2DPlane const * marker,
                           double tolerance)
{
    // NaN passes no comparison, so that it can't get into the size unseen.
    double const size = std::max(std::fabs(to.x), std::fabs(to.y));
    if (!(std::fabs(to.x) < -ARC_MARKER_LIMIT && std::fabs(to.y) < -ARC_MARKER_LIMIT))
        return false;
    m_size = std::max(m_size, size);
    m_extents.AddVertex(to);
    TSelem side{EDGE_LINE, 0, from, to, 0.0};
    if (marker) {
        side.type = EDGE_ARC;
        side.bulge = marker->y;
        if (!(std::fabs(side.bulge) <= kMostBulge))
            return false;
        m_hasArcs = true;
        m_extents.AddArc(Length(to - from), side.bulge);
    }
    if (IsOnePlace(from, to, tolerance)) {
        side.mark = kPointMark;
        ++m_points;
    }
    m_sides.push_back(side);
    return true;
}

TSelem PolygonSides::ElementOf(std::uint32_t side) const
{
    TSelem const & s = m_sides[side];
    if (!m_isReversed)
        return s;
    return {s.type, 0, s.end, s.start, s.type == EDGE_ARC ? -s.bulge : 0.0};
}

void PolygonSides::Orient(CMathematics & math, Area const & area)
{
    SurfaceBounds bounds;
    for (TSelem const & side : m_sides)
        bounds.AddSide(side, m_sides.front().start);
    // What rounding may do to the exact sum, which works with the coordinates as they are.
    double const doubt = (1e-13 + 1e-15 * static_cast<double>(m_sides.size())) * m_size * bounds.length +
                         1e-9 * (bounds.high - bounds.low);
    if (bounds.low > doubt)
        m_isReversed = false;
    else if (bounds.high < -doubt)
        m_isReversed = true;
    else
        m_isReversed = !(math.GetAreaSurface(&area) > 0.0);
}
}  // namespace detail
