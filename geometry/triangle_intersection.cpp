#include "geometry/triangle_intersection.h"

#include <algorithm>
#include <numeric>

#include "geometry/detail_plain_cut_kernel.h"

namespace detail {
namespace {
/// The geometry of a cut where the class of a point comes from the index.
class IndexedCutKernel : public PlainCutKernel
{
  public:
    IndexedCutKernel(CMathematics & math, Area const & area, PolygonIndex const & index)
        : PlainCutKernel(math, area), m_math(math), m_index(index)
    {
    }

    int ClassOf(TUVect2D const & p) { return m_index.ClassOf(m_math, p); }

  private:
    CMathematics & m_math;
    PolygonIndex const & m_index;
};

PlaneBox BoxOf(TSelem const & side)
{
    PlaneBox box;
    box.Add(side.start.x, side.start.y);
    box.Add(side.end.x, side.end.y);
    return box;
}
}  // namespace

int TriangleIntersection::Run(Area const & triangle, GeneralSetArray *& result)
{
    m_triangle = &triangle;
    ContactFlags ofTriangle;
    if (!CutTriangle(ofTriangle))
        return kNoCommonArea;
    // A polygon within the triangle that touches none of its sides isn't looked for.
    if (!ofTriangle.anyContact)
        return IsInside(VertexOf(triangle[0])) ? kWholeTriangle : kNoCommonArea;
    if (!ofTriangle.someOutside || ofTriangle.allOnBoundary)
        return kWholeTriangle;

    ContactFlags ofPolygon;
    if (!CutPolygon(ofPolygon))
        return kNoCommonArea;
    if (!ofPolygon.someOutside)
        return ReturnCopy(m_points, kPartOfTriangle, result);
    return Assemble(result);
}

bool TriangleIntersection::CutTriangle(ContactFlags & flags)
{
    PlainCutter cutter(m_math, m_points);
    TSelem piece{};
    m_work.trianglePieces.Clear();
    for (int i = 0; i < 3; ++i) {
        TSelem const side{EDGE_LINE, kUnsetMark, VertexOf((*m_triangle)[i]), VertexOf((*m_triangle)[i + 1]),
                          0.0};
        int const cut = CutSide(side);
        flags.Add(cut);
        if (cut != 0 && !AddPieces(cutter, side, m_work.intervals, piece, m_work.trianglePieces))
            return false;
    }
    return true;
}

int TriangleIntersection::CutSide(TSelem const & side)
{
    if (!m_index)
        return m_math.EdgeAreaIntersection(side, m_points, 0, m_work.intervals);
    IndexedCutKernel kernel(m_math, m_points, *m_index);
    ElementCut<IndexedCutKernel> cut(kernel, side, m_math.GetOkoli(), m_work.contacts, m_work.intervals);
    int settled = 0;
    m_index->ForEachNear(BoxOf(side), SegmentFigure({side.start, side.end}), [&](std::size_t ordinal) {
        AreaSide const & other = m_index->Side(ordinal).side;
        if (!kernel.Same(other.from, other.to))
            settled = cut.Meet(ElementOf(other), static_cast<int>(ordinal));
        return settled == 0;
    });
    return settled != 0 ? settled : cut.Finish();
}

bool TriangleIntersection::CutPolygon(ContactFlags & flags)
{
    PlainCutter cutter(m_math, *m_triangle);
    TSelem piece{};
    m_work.polygonPieces.Clear();
    FindNearElements();
    if (m_work.nearElements.size() < static_cast<std::size_t>(m_elements.GetSize()))
        flags.Add(0);
    for (std::size_t const i : m_work.nearElements) {
        TSelem const & element = m_elements[static_cast<int>(i)];
        int const cut = cutter.Cut(i, element, m_work.intervals);
        flags.Add(cut);
        if (cut != 0 && !AddPieces(cutter, element, m_work.intervals, piece, m_work.polygonPieces))
            return false;
    }
    return true;
}

void TriangleIntersection::FindNearElements()
{
    m_work.nearElements.clear();
    if (!m_index) {
        m_work.nearElements.resize(static_cast<std::size_t>(m_elements.GetSize()));
        std::iota(m_work.nearElements.begin(), m_work.nearElements.end(), std::size_t{0});
        return;
    }
    std::array<TUVect2D, 3> corners;
    PlaneBox box;
    for (int i = 0; i < 3; ++i) {
        TUVect2D const & corner = corners[static_cast<std::size_t>(i)] = VertexOf((*m_triangle)[i]);
        box.Add(corner.x, corner.y);
    }
    m_index->ForEachNear(box, TriangleFigure(corners), [&](std::size_t ordinal) {
        int const element = m_index->Side(ordinal).element;
        if (element >= 0)
            m_work.nearElements.push_back(static_cast<std::size_t>(element));
        return true;
    });
    // The elements of a clockwise polygon stand the other way round.
    if (m_work.nearElements.size() > 1 && m_work.nearElements.front() > m_work.nearElements.back())
        std::reverse(m_work.nearElements.begin(), m_work.nearElements.end());
}

bool TriangleIntersection::IsInside(TUVect2D const & p) const
{
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
