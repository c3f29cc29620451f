#include "geometry/polygon_cutter.h"

#include <limits>

#include "geometry/detail_plane_elements.h"
#include "geometry/edges_set.h"

namespace detail {
namespace {
/// The end of an interval that is the whole of an element, whose length nobody has asked for.
constexpr double kToTheEnd = std::numeric_limits<double>::infinity();

/// Twice the area between a line and a point; positive on the left.
double SideOf(TSelem const & line, TUVect2D const & p)
{
    return (line.end.x - line.start.x) * (p.y - line.start.y) -
           (line.end.y - line.start.y) * (p.x - line.start.x);
}

/// Whether both ends of a line lie further than `margin` on one side of another.
bool IsBeside(TSelem const & line, TSelem const & other, double margin)
{
    double const limit =
        margin * (std::fabs(line.end.x - line.start.x) + std::fabs(line.end.y - line.start.y));
    double const start = SideOf(line, other.start);
    double const end = SideOf(line, other.end);
    return (start > limit && end > limit) || (start < -limit && end < -limit);
}

/// Whether two elements are so far apart that they don't meet; false if that isn't plain at a glance.
bool AreClear(TSelem const & a, TSelem const & b, double margin)
{
    return a.type == EDGE_LINE && b.type == EDGE_LINE && (IsBeside(a, b, margin) || IsBeside(b, a, margin));
}

/// The geometry of a cut, through the index and without allocation.
class IndexedCutKernel
{
  public:
    IndexedCutKernel(CMathematics & math, CuttingArea const & area, TSelem const & e)
        : m_math(math), m_area(area), m_edge(Embedded(e))
    {
    }

    bool Same(TUVect2D const & p, TUVect2D const & q) { return IsOnePlace(p, q, m_math.GetOkoli()); }

    int Meet(TSelem const & /*e*/, TSelem const & side, TSelem (&parts)[2], int & count, int & kind)
    {
        TSPlaneEdge3D edge = Embedded(side);
        EdgeSet found;
        if (!IntersectEdgesPlainly(m_math, m_edge, edge, found, kind))
            return 0;
        count = found.count;
        for (int i = 0; i < count; ++i)
            Flatten(found.edges[i], parts[i]);
        return 1;
    }

    double PositionOf(TSelem const & /*e*/, TUVect2D const & p)
    {
        double position = 0.0;
        m_math.IsPoint3DInEdge3D(m_edge, Widened(p), position);
        return position;
    }

    TUVect2D PointAt(TSelem const & e, double position)
    {
        TUVect3D point{};
        if (!m_math.Get3DPointOnEdge3D(m_edge, position, 0, point))
            return e.start;
        return {{point.x, point.y}};
    }

    int ClassOf(TUVect2D const & p) { return ClassOfPoint(m_math, m_area.sides, m_area.boxes, p); }

  private:
    CMathematics & m_math;
    CuttingArea const & m_area;
    TSPlaneEdge3D m_edge;
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
        else if (!AreClear(e, m_other.sides.Sides()[partner], m_scale.Margin()))
            m_partners.push_back(partner);
    }
    if (m_partners.empty())
        return CutClear(e, !nearPoint, intervals);

    IndexedCutKernel kernel(m_math, m_other, e);
    ElementCut<IndexedCutKernel> cut(kernel, e, m_scale.tolerance, m_intervals, intervals);
    for (std::uint32_t const partner : m_partners)
        if (int const flags = cut.Meet(m_other.sides.Sides()[partner], static_cast<int>(partner)))
            return flags;
    return cut.Finish();
}

int IndexedCutter::CutClear(TSelem const & e, bool isOneClass, IntervalArray & intervals)
{
    int pointClass = m_knownClass;
    if (m_knownClass < 0 || !IsSamePoint(e.start, m_known))
        pointClass = ClassOfPoint(m_math, m_other.sides, m_other.boxes, e.start);
    m_knownClass = isOneClass ? pointClass : -1;
    m_known = e.end;
    intervals.SetSize(0);
    if (pointClass == kPointOutside)
        return 0;
    TSInterval whole{0.0, kToTheEnd, kNoSide, kIntervalInside};
    intervals.Add(whole);
    return kCutInside;
}

int IndexedCutter::SectionOf(TSelem const & e, TSInterval const & stretch, TSelem & piece)
{
    if (stretch.t2 != kToTheEnd)
        return m_math.GetSectionOfElem(e, stretch.t1, stretch.t2, &piece);
    if (e.type == EDGE_ARC && IsWholeSection(e, m_scale)) {
        piece = e;
        return 1;
    }
    double length = 0.0;
    m_math.IsPointInEelem(e, e.end, length);
    return m_math.GetSectionOfElem(e, 0.0, length, &piece);
}

void IndexedCutter::PointOf(TSelem const & e, double position, TUVect2D & p)
{
    m_math.GetPointOnEelem(e, position, 0, p);
}
}  // namespace detail
