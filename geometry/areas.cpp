// One area: its surface, the class of a point, and the cheap test whether two areas are apart.

#include "geometry/detail_areas.h"

#include "geometry/detail_plane_elements.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
/// The shoelace term of the side between two vertices.
double ChordTerm(TUVect2D const & from, TUVect2D const & to)
{
    TUVect2D const d = to - from;
    return SnappedDifference(to.x * d.y, to.y * d.x) / 2.0;
}

bool IsOnVertex(TUVect2D const & p, TUVect2D const & vertex, double tolerance)
{
    return Length(p - vertex) < tolerance;
}

Extents ExtentsOf(AreaRecords records)
{
    Extents extents;
    std::size_t const first = FirstVertex(records);
    if (first < records.size())
        extents.AddVertex(VertexOf(records[first]));
    SideWalk sides = ClosedSides(records);
    while (auto const side = sides.Next()) {
        extents.AddVertex(side->to);
        if (side->isArc)
            extents.AddArc(Length(side->to - side->from), side->bulge);
    }
    return extents;
}
}  // namespace

double CMathematics::GetArea(CArray<TUVect2D, TUVect2D &> const & polygon)
{
    double sum = 0.0;
    if (polygon.IsEmpty())
        return sum;
    TUVect2D previous = polygon[polygon.GetUpperBound()];
    for (TUVect2D const & vertex : polygon) {
        sum += ChordTerm(previous, vertex);
        previous = vertex;
    }
    return sum;
}

double CMathematics::GetAreaSurface(CArray<TSPoint2DPlane, TSPoint2DPlane &> const * area)
{
    double sum = 0.0;
    SideWalk sides = ClosingSideFirst(area->View());
    while (auto const side = sides.Next()) {
        sum += ChordTerm(side->from, side->to);
        TUVect2D centre{};
        TUVect2D toApex{};
        double radius = 0.0;
        double absBulge = 0.0;
        if (!side->isArc ||
            !GetArcCentreVectorBulge(side->from, side->to, side->bulge, centre, radius, toApex, absBulge))
            continue;
        double const alpha = ClampedArcCosine(Dot(Unit(side->from - centre), toApex));
        double const segment = (alpha - std::cos(alpha) * std::sin(alpha)) * (radius * radius);
        sum += side->bulge > 0.0 ? -segment : segment;
    }
    return sum;
}

int CMathematics::IsPointInPolygon(TUVect2D p, TUVect2D * vertices, unsigned int count, int & pointClass)
{
    pointClass = kPointOutside;
    if (count == 0)
        return 0;
    std::span<TUVect2D const> const polygon(vertices, count);
    for (TUVect2D const & vertex : polygon) {
        if (IsOnVertex(p, vertex, m_dOkoli)) {
            pointClass = kPointOnVertex;
            return 1;
        }
    }
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        if (IsPointOnStraightSide(p, polygon[i], polygon[(i + 1) % polygon.size()], m_dOkoli)) {
            pointClass = kPointOnEdge;
            return 1;
        }
    }
    double turn = 0.0;
    double angle = DirectionAngle(polygon.front() - p);
    for (std::size_t i = 1; i <= polygon.size(); ++i) {
        double const next = DirectionAngle(polygon[i % polygon.size()] - p);
        turn += TurnBetween(angle, next);
        angle = next;
    }
    pointClass = IsOutsideTurn(turn) ? kPointOutside : kPointInside;
    return pointClass;
}

int CMathematics::IsPointInArea(TUVect2D p, CArray<TSPoint2DPlane, TSPoint2DPlane &> const * area,
                                unsigned int /*unused*/, int & pointClass)
{
    AreaRecords const records = area->View();
    for (TSPoint2DPlane const & record : records) {
        if (!IsArcMarker(record) && IsOnVertex(p, VertexOf(record), m_dOkoli)) {
            pointClass = kPointOnVertex;
            return 1;
        }
    }
    SideWalk boundary = ClosedSides(records);
    while (auto const side = boundary.Next()) {
        bool const on = side->isArc ? IsPointOnArc(p, side->from, side->to, side->bulge) == 1
                                    : IsPointOnStraightSide(p, side->from, side->to, m_dOkoli);
        if (on) {
            pointClass = kPointOnEdge;
            return 1;
        }
    }
    std::size_t const first = FirstVertex(records);
    if (pointClass == kPointOutside || first == records.size())
        return pointClass = kPointOutside;

    double sum = 0.0;
    double angle = DirectionAngle(VertexOf(records[first]) - p);
    SideWalk sides = ClosedSides(records);
    while (auto const side = sides.Next()) {
        double const next = DirectionAngle(side->to - p);
        double turn = TurnBetween(angle, next);
        TUVect2D centre{};
        TUVect2D toApex{};
        double radius = 0.0;
        double absBulge = 0.0;
        if (side->isArc &&
            GetArcCentreVectorBulge(side->from, side->to, side->bulge, centre, radius, toApex, absBulge))
            turn = ArcTurn(p, *side, centre, radius, toApex, turn);
        sum += turn;
        angle = next;
    }
    pointClass = IsOutsideTurn(sum) ? kPointOutside : kPointInside;
    return pointClass;
}

int CMathematics::ArePolygonsSeparated(CArray<TSPoint2DPlane, TSPoint2DPlane &> const * a,
                                       CArray<TSPoint2DPlane, TSPoint2DPlane &> const * b)
{
    return AreApart(ExtentsOf(a->View()), ExtentsOf(b->View()), m_dOkoli);
}
