#include "geometry/polygon_cutter.h"

#include <limits>

#include "geometry/detail_plane_elements.h"
#include "geometry/edges_set.h"
#include "geometry/polygon_clearance.h"
#include "geometry/polygon_line.h"

namespace detail {
namespace {
/// The end of an interval that is the whole of an element, whose length nobody has asked for.
constexpr double kToTheEnd = std::numeric_limits<double>::infinity();

/// Whether both ends of a line lie further than `margin` off another one.
bool HaveEndsApart(TSPlaneEdge3D const & line, TSPlaneEdge3D const & other, double margin)
{
    double const x = other.end.x - other.start.x;
    double const y = other.end.y - other.start.y;
    double const limit = margin * (std::fabs(x) + std::fabs(y));
    auto const distance = [&](TUVect3D const & p) {
        return std::fabs(x * (p.y - other.start.y) - y * (p.x - other.start.x));
    };
    return distance(line.start) > limit && distance(line.end) > limit;
}

/// The geometry of a cut, through the index and without allocation.
class IndexedCutKernel
{
  public:
    IndexedCutKernel(CMathematics & math, CuttingArea const & area, TSelem const & e, KnownClass & known)
        : m_math(math),
          m_area(area),
          m_margin(area.boxes.Margin()),
          m_edge(Embedded(e)),
          m_line(e),
          m_known(known)
    {
    }

    bool Same(TUVect2D const & p, TUVect2D const & q) { return IsOnePlace(p, q, m_math.GetOkoli()); }

    int Meet(TSelem const & /*e*/, TSelem const & side, TSelem (&parts)[2], int & count, int & kind)
    {
        TSPlaneEdge3D edge = Embedded(side);
        EdgeSet found;
        if (!IntersectEdges(edge, found, kind))
            return 0;
        count = found.count;
        for (int i = 0; i < count; ++i)
            Flatten(found.edges[i], parts[i]);
        return 1;
    }

    double PositionOf(TSelem const & e, TUVect2D const & p)
    {
        if (e.type == EDGE_LINE)
            return m_line.PositionOf(p, m_math.GetOkoli());
        double position = 0.0;
        m_math.IsPoint3DInEdge3D(m_edge, Widened(p), position);
        return position;
    }

    TUVect2D PointAt(TSelem const & e, double position)
    {
        TUVect2D p;
        if (e.type == EDGE_LINE)
            return m_line.PointAt(position, m_math.GetOkoli(), p) ? p : e.start;
        TUVect3D point{};
        if (!m_math.Get3DPointOnEdge3D(m_edge, position, 0, point))
            return e.start;
        return {{point.x, point.y}};
    }

    int ClassOf(TUVect2D const & p)
    {
        if (!m_known.IsAt(p))
            m_known = {p, ClassOfPoint(m_math, m_area.sides, m_area.boxes, p)};
        return m_known.pointClass;
    }

  private:
    bool IntersectEdges(TSPlaneEdge3D & side, EdgeSet & found, int & kind)
    {
        if (m_edge.type != EDGE_LINE || side.type != EDGE_LINE || !HaveEndsApart(m_edge, side, m_margin) ||
            !HaveEndsApart(side, m_edge, m_margin))
            return IntersectEdgesPlainly(m_math, m_edge, side, found, kind);
        // Lines that don't share a place at an end have no stretch in common; what is left is their crossing.
        TUVect3D p;
        TUVect3D unused;
        int crossingKind;
        if (!m_math.LineIntersection(m_edge.start, m_edge.end, side.start, side.end, 1, p, unused,
                                     crossingKind))
            return 0;
        found.AddPoint(p);
        kind = kPointsInCommon;
        return 1;
    }

    CMathematics & m_math;
    CuttingArea const & m_area;
    double m_margin;
    TSPlaneEdge3D m_edge;
    PlaneLine m_line;
    KnownClass & m_known;
};

/// Whether a section of the arc from 0 to its length is certain to be taken for the whole arc: the points
/// computed there, by way of the centre and the length, must come out in one place with the arc's ends.
bool IsWholeSection(TSelem const & arc, PlaneScale const & scale)
{
    double const b = std::fabs(arc.bulge);
    double const chord = std::fabs(arc.end.x - arc.start.x) + std::fabs(arc.end.y - arc.start.y);
    double const radius = chord * (b + 1.0 / b) / 4.0;
    // The length comes from an arc sine, which loses half of its digits near a half circle.
    double const angleError = std::min(1e-7, 1e-14 * (1.0 + b * b) / std::fabs(1.0 - b * b));
    return b >= 1e-4 && radius * angleError + 1e-12 * (radius + scale.size) < scale.tolerance / 4.0;
}
}  // namespace

IndexedCutter::IndexedCutter(CMathematics & math, CuttingArea const & other, ContactTable const & contacts,
                             PlaneScale const & scale)
    : m_math(math), m_other(other), m_contacts(contacts), m_scale(scale)
{
}

int IndexedCutter::Cut(std::uint32_t side, TSelem const & e, IntervalArray & intervals)
{
    m_partners.clear();
    bool nearPoint = false;
    for (std::uint32_t const partner : m_contacts.Of(side)) {
        if (m_other.sides.IsPoint(partner))
            nearPoint = true;
        else
            m_partners.push_back(partner);
    }
    if (m_partners.empty())
        return CutClear(e, !nearPoint, intervals);

    IndexedCutKernel kernel(m_math, m_other, e, m_known);
    ElementCut<IndexedCutKernel> cut(kernel, e, m_scale.tolerance, m_intervals, intervals);
    int flags = 0;
    for (std::size_t i = 0; i < m_partners.size() && flags == 0; ++i)
        flags = cut.Meet(m_other.sides.Sides()[m_partners[i]], static_cast<int>(m_partners[i]));
    if (flags != 0)
        return flags;
    flags = cut.Finish();
    if (!nearPoint)
        CarryClassToEnd(e);
    return flags;
}

void IndexedCutter::CarryClassToEnd(TSelem const & e)
{
    TSelem const rest{EDGE_LINE, 0, m_known.at, e.end, 0.0};
    bool const isClear =
        e.type == EDGE_LINE && std::all_of(m_partners.begin(), m_partners.end(), [&](std::uint32_t partner) {
            return AreClear(m_math, rest, m_other.sides.Sides()[partner], m_scale);
        });
    if (isClear)
        m_known.at = e.end;
}

int IndexedCutter::CutClear(TSelem const & e, bool isOneClass, IntervalArray & intervals)
{
    if (!m_known.IsAt(e.start))
        m_known = {e.start, ClassOfPoint(m_math, m_other.sides, m_other.boxes, e.start)};
    int const pointClass = m_known.pointClass;
    if (isOneClass)
        m_known.at = e.end;
    intervals.SetSize(0);
    if (pointClass == kPointOutside)
        return 0;
    TSInterval whole{0.0, kToTheEnd, kNoSide, kIntervalInside};
    intervals.Add(whole);
    return kCutInside;
}

int IndexedCutter::SectionOf(TSelem const & e, TSInterval const & stretch, TSelem & piece)
{
    bool const isWhole = stretch.t2 == kToTheEnd;
    if (e.type == EDGE_LINE) {
        PlaneLine const line(e);
        piece = {EDGE_LINE, 0, {}, {}, 0.0};
        if (!isWhole)
            return line.PointAt(stretch.t1, m_scale.tolerance, piece.start) &&
                   line.PointAt(stretch.t2, m_scale.tolerance, piece.end);
        piece.start = line.At(0.0);
        piece.end = line.At(line.GetLength());
        return 1;
    }
    if (isWhole && IsWholeSection(e, m_scale)) {
        piece = e;
        return 1;
    }
    double length = stretch.t2;
    if (isWhole)
        m_math.IsPointInEelem(e, e.end, length);
    return m_math.GetSectionOfElem(e, stretch.t1, length, &piece);
}

void IndexedCutter::PointOf(TSelem const & e, double position, TUVect2D & p)
{
    m_math.GetPointOnEelem(e, position, 0, p);
}
}  // namespace detail
