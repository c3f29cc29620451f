#include "geometry/vo_polygon.h"

#include <cmath>

#include "geometry/detail_areas.h"
#include "geometry/polygon_index.h"
#include "geometry/triangle_intersection.h"

using namespace detail;

namespace {
constexpr double kConcave = -1e-10;  // product of two sides below which a corner is concave
constexpr double kNoTurn = 1e-10;    // sum of turns, in radians, up to which a point lies outside

bool HasCorners(Area const & triangle)
{
    return triangle.GetSize() >= 4;
}

CVOutlineBox2D BoxOf(Area const & triangle)
{
    CVOutlineBox2D box;
    for (int i = 0; i < 3; ++i)
        box.Add(VertexOf(triangle[i]), 0.0);
    return box;
}

bool IsClosed(Area const & triangle)
{
    return triangle[3].x == triangle[0].x && triangle[3].y == triangle[0].y;
}
}  // namespace

CVOPolygon::CVOPolygon() : CVOPolygon(nullptr) {}

CVOPolygon::CVOPolygon(void * kernel) : m_pMathematics(static_cast<CMathematics *>(kernel)) {}

CVOPolygon::~CVOPolygon() = default;

int CVOPolygon::Create(CArray<TSPoint2DPlane, TSPoint2DPlane &> & polygon, int testConvexity)
{
    m_index.reset();
    m_Points.Copy(polygon);
    m_Elements.RemoveAll();
    for (TSelem element : OrientedElements(*m_pMathematics, m_Points))
        m_Elements.Add(element);
    FindOutlineBox();
    m_iConvex = 0;
    if (testConvexity != 0)
        FindConvexity();

    m_work = std::make_unique<TriangleWork>(*m_pMathematics);
    m_index = PolygonIndex::Make(*m_pMathematics, m_Points);
    // The test of points against a convex polygon takes arc markers for vertices.
    if (m_index && m_index->HasArcs() && m_iConvex != 0)
        m_index.reset();
    return 1;
}

void CVOPolygon::FindOutlineBox()
{
    m_OutlineBox.Reset();
    // Arc markers too: they make the box of a polygon with arcs endless on the left, and hosts rely on the
    // box.
    for (TSPoint2DPlane const & record : m_Points)
        m_OutlineBox.Add(VertexOf(record), m_dOkoli);
}

void CVOPolygon::FindConvexity()
{
    m_iConvex = 1;
    int const last = m_Points.GetUpperBound();
    for (int i = 0; i < last && m_iConvex; ++i) {
        // Before the first two entries stands the last one, which repeats the first: the first corner isn't
        // looked at.
        TUVect2D const corner = VertexOf(m_Points[i]);
        TUVect2D const next = VertexOf(m_Points[i + 1]) - corner;
        TUVect2D const previous = VertexOf(m_Points[i - 1 < 1 ? last : i - 1]) - corner;
        if (Dot(next, TUVect2D{{previous.y, -previous.x}}) < kConcave)
            m_iConvex = 0;
    }
}

void CVOPolygon::SetOkoli(double okoli)
{
    m_dOkoli = okoli;
}

int CVOPolygon::IsConvex() const
{
    return m_iConvex;
}

CVOutlineBox2D & CVOPolygon::GetOutlineBox()
{
    return m_OutlineBox;
}

int CVOPolygon::IsPointInside(TUVect2D point) const
{
    if (m_Points.IsEmpty())
        return 0;
    double sum = 0.0;
    double angle = DirectionAngle(VertexOf(m_Points[0]) - point);
    for (int i = 1; i < m_Points.GetSize(); ++i) {
        double const next = DirectionAngle(VertexOf(m_Points[i]) - point);
        sum += TurnBetween(angle, next);
        angle = next;
    }
    return std::fabs(sum) > kNoTurn ? 1 : 0;
}

void CVOPolygon::ComputeLinePolygonAreaMoments(CArray<TSPoint2DPlane, TSPoint2DPlane &> & outline,
                                               double & area, double & Sx, double & Sy, int reset) const
{
    if (reset != 0)
        area = Sx = Sy = 0.0;
    double areaSum = 0.0;
    double sumX = 0.0;
    double sumY = 0.0;
    for (int i = 0; i < outline.GetSize(); ++i) {
        TSPoint2DPlane const & to = outline[i + 1 < outline.GetSize() ? i + 1 : 0];
        double const x = outline[i].x;
        double const y = outline[i].y;
        double const dx = to.x - x;
        double const dy = to.y - y;
        areaSum += x * dy - y * dx;
        sumX -= (3.0 * y * y + 3.0 * y * dy + dy * dy) * dx;
        sumY += (3.0 * x * x + 3.0 * x * dx + dx * dx) * dy;
    }
    area += areaSum / 2.0;
    Sx += sumX / 6.0;
    Sy += sumY / 6.0;
}

int CVOPolygon::ArePolygonsSeparated(CArray<TSPoint2DPlane, TSPoint2DPlane &> *,
                                     CArray<TSPoint2DPlane, TSPoint2DPlane &> *) const
{
    return 0;
}

int CVOPolygon::LoadPolygonFEMTriangleIntersection(CArray<TSPoint2DPlane, TSPoint2DPlane &> & triangle,
                                                   CArray<TSGeneralSet, TSGeneralSet &> *& result)
{
    if (!HasCorners(triangle) || !m_OutlineBox.Intersects(BoxOf(triangle)))
        return kNoCommonArea;
    if (!m_index || !m_index->Serves(*m_pMathematics) || !IsClosed(triangle))
        return IntersectPieces(triangle, nullptr, result);
    switch (m_index->PlaceOf({VertexOf(triangle[0]), VertexOf(triangle[1]), VertexOf(triangle[2])},
                             m_work->nearSides)) {
        case TrianglePlace::kOutside:
            return kNoCommonArea;
        case TrianglePlace::kInside:
            return kWholeTriangle;
        case TrianglePlace::kUndecided:
            return IntersectPieces(triangle, m_index.get(), result);
        default:
            return IntersectPieces(triangle, nullptr, result);
    }
}

int CVOPolygon::IntersectTrianglePlainly(CArray<TSPoint2DPlane, TSPoint2DPlane &> & triangle,
                                         CArray<TSGeneralSet, TSGeneralSet &> *& result)
{
    if (!HasCorners(triangle) || !m_OutlineBox.Intersects(BoxOf(triangle)))
        return kNoCommonArea;
    return IntersectPieces(triangle, nullptr, result);
}

int CVOPolygon::IntersectPieces(CArray<TSPoint2DPlane, TSPoint2DPlane &> & triangle,
                                PolygonIndex const * index, CArray<TSGeneralSet, TSGeneralSet &> *& result)
{
    auto const isInside = [&](int corner) {
        TUVect2D const p = VertexOf(triangle[corner]);
        return index ? index->TurnsRound(p) : IsPointInside(p) != 0;
    };
    if (m_iConvex && isInside(0) && isInside(1) && isInside(2))
        return kWholeTriangle;
    return TriangleIntersection(*m_pMathematics, m_Points, m_Elements, index, *m_work).Run(triangle, result);
}
