// Parts of edges: between two places, cut at points, and moved onto another edge.

#include <cmath>
#include <memory>
#include <new>
#include <numbers>

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// The same arc with a bulge that isn't negative.
TSPlaneEdge3D WithPositiveBulge(TSPlaneEdge3D arc)
{
    if (arc.bulge < 0.0) {
        arc.bulge = -arc.bulge;
        arc.arcVector = -arc.arcVector;
    }
    return arc;
}

/// The angle from `from` to `to` about the unit vector `axis`, 0 to 2*pi.
double AngleAbout(TUVect3D const & axis, TUVect3D const & from, TUVect3D const & to)
{
    double const angle = std::atan2(Dot(Cross(from, to), axis), Dot(from, to));
    return angle < 0.0 ? angle + 2.0 * std::numbers::pi : angle;
}

/// Makes `section`, whose ends lie on the round arc, a part of it; `forward` if it runs as the arc does.
void ShapeRoundSection(CMathematics & math, TSPlaneEdge3D const & arc, TUVect3D const & centre, bool forward,
                       TSPlaneEdge3D & section)
{
    TUVect3D const axis = ArcAxis(arc.start, arc.end, arc.arcVector, forward ? 1.0 : -1.0);
    TUVect3D toHalfway = section.start - centre;
    double const angle = AngleAbout(axis, toHalfway, section.end - centre);
    // The same as by CalcBulgeOf3DArc2PtsAndCenter, for the smaller or the larger arc as the angle says. The
    // root there loses half of the digits near a half circle, and all sense for ends a little off the circle.
    section.bulge = std::tan(angle / 4.0);
    // From the centre and not from the chord: for flat sections the chord is too near to give a direction.
    math.RotateVectorAroundAxis(toHalfway, axis, angle / 2.0);
    section.arcVector = Unit(toHalfway);
}

/// Makes `section`, a copy of the arc with its ends moved to other places on it, a part of it.
void ShapeSection(CMathematics & math, TSPlaneEdge3D const & arc, bool forward, TSPlaneEdge3D & section)
{
    TUVect3D centre;
    if (math.Get3DArcCenter(arc.start, arc.end, arc.arcVector, arc.bulge, centre))
        ShapeRoundSection(math, arc, centre, forward, section);
    else
        // A flat arc counts as its chord: the section is as much flatter as it is shorter.
        section.bulge *= math.GetDistance(section.start, section.end) / math.GetDistance(arc.start, arc.end);
}

/// The pieces of an edge cut at points that lie on it in order.
class Division
{
  public:
    Division(CMathematics & math, TSPlaneEdge3D const & edge, TUVect3D const * points, int count)
        : m_math(math), m_edge(edge), m_points(points), m_count(count)
    {
    }

    /// The number of spans whose ends are not one place.
    int CountPieces() const
    {
        int pieces = 0;
        for (int span = 0; span <= m_count; ++span)
            pieces += IsReal(span) ? 1 : 0;
        return pieces;
    }

    bool Fill(TSPlaneEdge3D * pieces) const
    {
        for (int span = 0; span <= m_count; ++span)
            if (IsReal(span) && !MakePiece(Place(span - 1), Place(span), *pieces++))
                return false;
        return true;
    }

  private:
    /// The end of a span; -1 is the start of the edge.
    TUVect3D const & Place(int span) const
    {
        if (span < 0)
            return m_edge.start;
        return span < m_count ? m_points[span] : m_edge.end;
    }

    bool IsReal(int span) const { return !m_math.ComparePoints(Place(span - 1), Place(span), 1); }

    bool MakePiece(TUVect3D from, TUVect3D to, TSPlaneEdge3D & piece) const
    {
        if (m_edge.type == EDGE_ARC)
            return m_math.GetSectionOfArc(m_edge, from, to, &piece) != 0;
        piece.type = EDGE_LINE;
        return PutOnLine(from, piece.start) && PutOnLine(to, piece.end);
    }

    bool PutOnLine(TUVect3D const & place, TUVect3D & point) const
    {
        double distance;
        return m_math.IsPoint3DInLine(m_edge.start, m_edge.end, place, distance) &&
               m_math.GetPoint3DOnLine(m_edge.start, m_edge.end, point, distance, 0);
    }

    CMathematics & m_math;
    TSPlaneEdge3D const & m_edge;
    TUVect3D const * m_points;
    int m_count;
};
}  // namespace

int CMathematics::GetSectionOfArc(TSPlaneEdge3D const & arc, TUVect3D & from, TUVect3D & to,
                                  TSPlaneEdge3D * result)
{
    TSPlaneEdge3D section = WithPositiveBulge(arc);
    TSPlaneEdge3D const turned = section;
    double fromAt;
    double toAt;
    if (arc.type != EDGE_ARC || !IsPoint3DInEdge3D(turned, from, fromAt) ||
        !IsPoint3DInEdge3D(turned, to, toAt))
        return 0;
    if (ComparePoints(from, to, 1)) {
        *result = GetEdgeFromPoint(&from);
        return 1;
    }
    section.start = from;
    section.end = to;
    if (ComparePoints(from, arc.start, 1) && ComparePoints(to, arc.end, 1))
        section = arc;
    else if (!ComparePoints(from, arc.end, 1) || !ComparePoints(to, arc.start, 1))
        ShapeSection(*this, turned, fromAt <= toAt, section);
    *result = section;
    return 1;
}

int CMathematics::GetSectionOfArc(TSPlaneEdge3D const & arc, double from, double to, TSPlaneEdge3D * result)
{
    TUVect3D start;
    TUVect3D end;
    if (!Get3DPointOnEdge3D(arc, from, 0, start) || !Get3DPointOnEdge3D(arc, to, 0, end))
        return 0;
    return GetSectionOfArc(arc, start, end, result);
}

int CMathematics::GetSectionOfEdge(TSPlaneEdge3D const & edge, TUVect3D & from, TUVect3D & to,
                                   TSPlaneEdge3D * result)
{
    if (edge.type == EDGE_ARC)
        return GetSectionOfArc(edge, from, to, result);
    if (edge.type != EDGE_LINE)
        return 0;
    *result = GetEdgeFromLine(&from, &to);
    return 1;
}

int CMathematics::GetSectionOfEdge(TSPlaneEdge3D const & edge, double from, double to, TSPlaneEdge3D * result)
{
    TUVect3D start;
    TUVect3D end;
    if (!Get3DPointOnEdge3D(edge, from, 0, start) || !Get3DPointOnEdge3D(edge, to, 0, end))
        return 0;
    return GetSectionOfEdge(edge, start, end, result);
}

int CMathematics::DivideEdge3D(TSPlaneEdge3D const & edge, TUVect3D const * const points, int const & count,
                               TSPlaneEdge3D *& pieces, int & pieceCount)
{
    TSPlaneEdge3D * const held = pieces;
    pieces = nullptr;
    pieceCount = 0;
    std::unique_ptr<TSPlaneEdge3D[]> const freed(held);
    if ((edge.type != EDGE_LINE && edge.type != EDGE_ARC) || !points || count < 1)
        return 0;
    Division const division(*this, edge, points, count);
    int const made = division.CountPieces();
    if (made < 2)
        return 0;
    std::unique_ptr<TSPlaneEdge3D[]> array(new (std::nothrow)
                                               TSPlaneEdge3D[static_cast<std::size_t>(made)]{});
    if (!array || !division.Fill(array.get()))
        return 0;
    pieces = array.release();
    pieceCount = made;
    return 1;
}

int CMathematics::TransformSubArc(TSPlaneEdge3D const & a, TSPlaneEdge3D const & sub, TSPlaneEdge3D & b,
                                  TSPlaneEdge3D & result)
{
    TSPlaneEdge3D whole = a;
    double const length = GetLengthEdge3D(&whole);
    double from;
    double to;
    if (!(length > 0.0) || !IsPoint3DInEdge3D(a, sub.start, from) || !IsPoint3DInEdge3D(a, sub.end, to))
        return 0;
    double const ratio = GetLengthEdge3D(&b) / length;
    return GetSectionOfEdge(b, from * ratio, to * ratio, &result);
}

int CMathematics::DivideEdgeFromEdge(TSPlaneEdge3D * a, TSPlaneEdge3D * subs, TSPlaneEdge3D * b,
                                     TSPlaneEdge3D * results, int count)
{
    if (count < 1 || !(GetLengthEdge3D(a) > 0.0) || !(GetLengthEdge3D(b) > 0.0))
        return 0;
    for (int i = 0; i < count; ++i)
        if (!TransformSubArc(*a, subs[i], *b, results[i]))
            return 0;
    return 1;
}
