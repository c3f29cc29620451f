#include "geometry/triangle_intersection.h"

#include <algorithm>

#include "geometry/detail_embedded_cut_kernel.h"
#include "geometry/detail_point_class.h"

namespace detail {
namespace {
/// The geometry of cutting a side of the triangle at the polygon.
class PolygonCutKernel : public EmbeddedCutKernel
{
  public:
    PolygonCutKernel(CMathematics & math, TSelem const & e, PolygonIndex const & index)
        : EmbeddedCutKernel(math, e), m_index(index)
    {
    }

    int ClassOf(TUVect2D const & p) { return m_index.ClassOf(Math(), p); }

  private:
    PolygonIndex const & m_index;
};

/// The geometry of cutting an element of the polygon at the triangle.
class TriangleCutKernel : public EmbeddedCutKernel
{
  public:
    TriangleCutKernel(CMathematics & math, TSelem const & e, TriangleSides const & sides)
        : EmbeddedCutKernel(math, e), m_sides(sides)
    {
    }

    int ClassOf(TUVect2D const & p)
    {
        bool onEdge = false;
        int turns = 0;
        for (TriangleSide const & s : m_sides) {
            PointOnSide const found = AgainstStraightSide(p, s.side, s.length, Math().GetOkoli());
            if (found.onVertex)
                return kPointOnVertex;
            onEdge = onEdge || found.onEdge;
            turns += FullTurnsBetween(s.side.from - p, s.side.to - p);
        }
        if (onEdge)
            return kPointOnEdge;
        return turns != 0 ? kPointInside : kPointOutside;
    }

  private:
    TriangleSides const & m_sides;
};
}  // namespace

int TriangleIntersection::Run(Area const & triangle, GeneralSetArray *& result)
{
    ReadTriangle(triangle);
    ContactFlags ofTriangle;
    if (!CutTriangle(ofTriangle))
        return kNoCommonArea;
    // A polygon within the triangle that touches none of its sides isn't looked for.
    if (!ofTriangle.anyContact)
        return IsInside(m_sides[0].side.from) ? kWholeTriangle : kNoCommonArea;
    if (!ofTriangle.someOutside || ofTriangle.allOnBoundary)
        return kWholeTriangle;

    ContactFlags ofPolygon;
    m_work.polygonPieces.Clear();
    if (!(m_index ? CutPolygon(ofPolygon) : CutPolygonPlainly(triangle, ofPolygon)))
        return kNoCommonArea;
    if (!ofPolygon.someOutside)
        return ReturnCopy(m_points, kPartOfTriangle, result);
    return Assemble(result);
}

void TriangleIntersection::ReadTriangle(Area const & triangle)
{
    for (int i = 0; i < 3; ++i) {
        TUVect2D const from = VertexOf(triangle[i]);
        TUVect2D const to = VertexOf(triangle[i + 1]);
        m_sides[static_cast<std::size_t>(i)] = {
            {from, to, 0.0, false}, SegmentFigure({from, to}), std::hypot(to.x - from.x, to.y - from.y)};
    }
}

bool TriangleIntersection::CutTriangle(ContactFlags & flags)
{
    PlainCutter cutter(m_math, m_points);
    TSelem piece{};
    m_work.trianglePieces.Clear();
    for (TriangleSide const & s : m_sides) {
        TSelem const e{EDGE_LINE, kUnsetMark, s.side.from, s.side.to, 0.0};
        int const cut = m_index ? CutSide(e, s.figure) : cutter.Cut(0, e, m_work.intervals);
        flags.Add(cut);
        if (cut != 0 && !AddPieces(cutter, e, m_work.intervals, piece, m_work.trianglePieces))
            return false;
    }
    return true;
}

int TriangleIntersection::CutSide(TSelem const & e, SegmentFigure const & figure)
{
    PolygonCutKernel kernel(m_math, e, *m_index);
    ElementCut<PolygonCutKernel> cut(kernel, e, m_math.GetOkoli(), m_work.contacts, m_work.intervals);
    for (std::size_t const ordinal : m_work.nearSides) {
        AreaSide const & side = m_index->Side(ordinal).side;
        if (m_index->IsClearOf(ordinal, figure) || kernel.Same(side.from, side.to))
            continue;
        if (int const settled = cut.Meet(ElementOf(side), static_cast<int>(ordinal)))
            return settled;
    }
    return cut.Finish();
}

bool TriangleIntersection::CutPolygon(ContactFlags & flags)
{
    // The elements of a clockwise polygon run against its sides.
    if (m_index->IsReversed())
        std::reverse(m_work.nearSides.begin(), m_work.nearSides.end());
    int met = 0;
    for (std::size_t const ordinal : m_work.nearSides) {
        int const element = m_index->Side(ordinal).element;
        if (element < 0)
            continue;
        ++met;
        TSelem const & e = m_elements[element];
        if (!AddPolygonPieces(e, CutElement(e, ordinal), flags))
            return false;
    }
    if (met < m_elements.GetSize())
        flags.Add(0);
    return true;
}

int TriangleIntersection::CutElement(TSelem const & e, std::size_t ordinal)
{
    TriangleCutKernel kernel(m_math, e, m_sides);
    ElementCut<TriangleCutKernel> cut(kernel, e, m_math.GetOkoli(), m_work.contacts, m_work.intervals);
    for (std::size_t i = 0; i < m_sides.size(); ++i) {
        if (m_index->IsClearOf(ordinal, m_sides[i].figure))
            continue;
        if (int const settled = cut.Meet(ElementOf(m_sides[i].side), static_cast<int>(i)))
            return settled;
    }
    return cut.Finish();
}

bool TriangleIntersection::CutPolygonPlainly(Area const & triangle, ContactFlags & flags)
{
    for (TSelem const & e : m_elements)
        if (!AddPolygonPieces(e, m_math.EdgeAreaIntersection(e, triangle, 0, m_work.intervals), flags))
            return false;
    return true;
}

bool TriangleIntersection::AddPolygonPieces(TSelem const & e, int cut, ContactFlags & flags)
{
    PlainCutter cutter(m_math, m_points);
    TSelem piece{};
    flags.Add(cut);
    return cut == 0 || AddPieces(cutter, e, m_work.intervals, piece, m_work.polygonPieces);
}

bool TriangleIntersection::IsInside(TUVect2D const & p) const
{
    if (m_index)
        return m_index->ClassOf(m_math, p) == kPointInside;
    int pointClass = kPointInside;
    m_math.IsPointInArea(p, &m_points, 0, pointClass);
    return pointClass == kPointInside;
}

int TriangleIntersection::Assemble(GeneralSetArray *& result)
{
    PlainPieces & a = m_work.polygonPieces;
    PlainPieces & b = m_work.trianglePieces;
    DropRedundantPoints(a);
    DropRedundantPoints(b);
    {
        GeneralSets unwanted;
        TakeTouchingPoints(a, b, unwanted);
        TakeOppositeEdges(a, b, unwanted);
    }
    if (a.Size() == 0)
        return kNoCommonArea;
    DropSharedEdges(a, b);
    if (a.Size() == 0 || b.Size() == 0)
        return kNoCommonArea;
    GeneralSets outlines;
    ChainOutlines(a, b, FirstOfRun(a), outlines);
    result = outlines.Release();
    return kPartOfTriangle;
}
}  // namespace detail
