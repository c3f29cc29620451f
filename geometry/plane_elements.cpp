// Plane elements (point, line, arc): comparing, points on them, sections and intersections. What the edge
// algebra in space does already is done there, through the embedding.

#include <memory>

#include "geometry/detail_plane_elements.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
/// Two bulges this close are one.
constexpr double kBulgeMargin = 1e-10;

/// The position of a point of the arc's circle as a fraction of the arc, from its angle to the apex.
double FractionOfArc(TUVect2D const & p, TUVect2D const & a, TUVect2D const & b, TUVect2D const & centre,
                     TUVect2D const & toApex, double halfAngle)
{
    double const fromApex = ClampedArcCosine(Dot(Unit(p - centre), toApex));
    TUVect2D const middle = (a + b) * 0.5;
    bool const nearerToStart = Dot(p - middle, b - middle) <= 0.0;
    return (nearerToStart ? halfAngle - fromApex : halfAngle + fromApex) / (2.0 * halfAngle);
}
}  // namespace

double CMathematics::GetPointOnLineParam(TUVect2D const & p, TUVect2D const & a, TUVect2D const & b)
{
    double const square = m_dOkoli * m_dOkoli;
    if (Dot(p - a, p - a) < square)
        return 0.0;
    if (Dot(p - b, p - b) < square)
        return 1.0;
    TUVect2D const d = b - a;
    return Dot(d, p - a) / Dot(d, d);
}

int CMathematics::IsPointOnArc(TUVect2D const & p, TUVect2D const & a, TUVect2D const & b, double bulge)
{
    double fraction = 0.0;
    double arcLength = 0.0;
    return IsPointOnArcParams(p, a, b, bulge, fraction, arcLength);
}

int CMathematics::IsPointOnArcParams(TUVect2D const & p, TUVect2D const & a, TUVect2D const & b, double bulge,
                                     double & fraction, double & arcLength)
{
    fraction = -1.0;
    arcLength = 0.0;
    TUVect2D centre{};
    TUVect2D toApex{};
    double radius = 0.0;
    double absBulge = 0.0;
    if (!GetArcCentreVectorBulge(a, b, bulge, centre, radius, toApex, absBulge))
        return 0;
    double const halfAngle = ClampedArcCosine(Dot(Unit(a - centre), toApex));
    arcLength = 2.0 * halfAngle * radius;
    if (std::fabs(Length(p - centre) - radius) > m_dOkoli)
        return 0;
    if (Length(p - a) < m_dOkoli)
        fraction = 0.0;
    else if (Length(p - b) < m_dOkoli)
        fraction = 1.0;
    else if (Dot(p - a, toApex) < 0.0)
        return 0;
    else
        fraction = FractionOfArc(p, a, b, centre, toApex, halfAngle);
    return 1;
}

int CMathematics::CompareElem(TSelem const & e1, TSelem const & e2)
{
    if (e1.type != e2.type || !ComparePoints(e1.start, e2.start, 1) || !ComparePoints(e1.end, e2.end, 1))
        return 0;
    return e1.type != EDGE_ARC || std::fabs(e1.bulge - e2.bulge) <= kBulgeMargin;
}

int CMathematics::CompareAntiElem(TSelem const & e1, TSelem const & e2)
{
    if (e1.type != e2.type || !ComparePoints(e1.start, e2.end, 1) || !ComparePoints(e1.end, e2.start, 1))
        return 0;
    return e1.type != EDGE_ARC || std::fabs(e1.bulge + e2.bulge) <= kBulgeMargin;
}

int CMathematics::ElemIntersection(TSelem const & e1, TSelem const & e2, TSelem *& parts, int & count,
                                   int & kind)
{
    count = 0;
    kind = 0;
    TSPlaneEdge3D edge1 = Embedded(e1);
    TSPlaneEdge3D edge2 = Embedded(e2);
    TSPlaneEdge3D * found = nullptr;
    int foundCount = 0;
    int const met = EdgeIntersection(&edge1, &edge2, found, foundCount, kind);
    std::unique_ptr<TSPlaneEdge3D[]> const edges(found);
    if (!met)
        return 0;
    constexpr int kRecords = 2;
    count = std::min(foundCount, kRecords);
    parts = new TSelem[kRecords]{};
    for (int i = 0; i < count; ++i)
        Flatten(found[i], parts[i]);
    return 1;
}

int CMathematics::GetSectionOfElem(TSelem const & e, double from, double to, TSelem * part)
{
    TSPlaneEdge3D section{};
    if (!GetSectionOfEdge(Embedded(e), from, to, &section))
        return 0;
    Flatten(section, *part);
    return 1;
}

int CMathematics::IsPointInEelem(TSelem const & e, TUVect2D p, double & position)
{
    position = 0.0;
    return IsPoint3DInEdge3D(Embedded(e), Widened(p), position);
}

int CMathematics::GetPointOnEelem(TSelem const & e, double position, int mode, TUVect2D & p)
{
    TSPlaneEdge3D edge = Embedded(e);
    if (ComparePoints(e.start, e.end, 1))
        edge.type = EDGE_POINT;
    TUVect3D point{};
    if (!Get3DPointOnEdge3D(edge, position, mode, point))
        return 0;
    p = {{point.x, point.y}};
    return 1;
}
