// One point, line or arc in space, as it is seen, against segments, rectangles and polygons of the view
// plane.

#include "geometry/mathematics.h"
#include "geometry/object_3d.h"
#include "geometry/snapped_vectors.h"
#include "geometry/view_projection.h"

using namespace detail;

namespace {
// Codes of an element against a rectangle.
constexpr int kInside = 1;
constexpr int kCrossing = 2;
}  // namespace

int CObject3D::ObjectIntersects2DLine(TUVect2D a, TUVect2D b)
{
    if (IsEmpty())
        return 0;
    if (m_iKind == EDGE_POINT)
        return m_pMathematics->PointLiesOnLine(Widened(a), Widened(b),
                                               Widened(Projected(m_dViewMatrix, m_Point)));
    if (m_iKind == EDGE_ARC)
        return m_pMathematics->ArcLineIntersection(m_Start, m_End, m_ArcVector, m_dBulge, a.x, a.y, b.x, b.y,
                                                   m_dViewMatrix);
    TUVect3D p1;
    TUVect3D p2;
    int kind;
    return m_pMathematics->LineIntersection(Widened(Projected(m_dViewMatrix, m_Start)),
                                            Widened(Projected(m_dViewMatrix, m_End)), Widened(a), Widened(b),
                                            1, p1, p2, kind);
}

int CObject3D::AgainstRectangle(TUVect2D const & c1, TUVect2D const & c2)
{
    if (IsEmpty())
        return 0;
    if (m_iKind == EDGE_POINT)
        return m_pMathematics->IsPointInRectangle(m_Point, c1.x, c1.y, c2.x, c2.y, m_dViewMatrix);
    if (m_iKind == EDGE_LINE)
        return m_pMathematics->LineRectIntersection(m_Start, m_End, c1.x, c1.y, c2.x, c2.y, m_dViewMatrix);
    return m_pMathematics->ArcRectIntersection(m_Start, m_End, m_ArcVector, m_dBulge, c1.x, c1.y, c2.x, c2.y,
                                               m_dViewMatrix);
}

int CObject3D::ObjectLiesIn2DRectangle(TUVect2D c1, TUVect2D c2)
{
    return AgainstRectangle(c1, c2) == kInside;
}

int CObject3D::ObjectIntersects2DRectangle(TUVect2D c1, TUVect2D c2)
{
    return AgainstRectangle(c1, c2) == kCrossing;
}

int CObject3D::ObjectLiesIn2DPolygon(int count, TUVect2D * polygon)
{
    TSPlaneEdge3D edge;
    if (!Make3DEdge(edge))
        return 0;
    auto const isInside = [&](TUVect3D const & end) {
        return m_pMathematics->PointLiesInPolygon(Projected(m_dViewMatrix, end), polygon, count, 0) == 1;
    };
    return isInside(edge.start) && isInside(edge.end);
}

int CObject3D::ObjectIntersects2DPolygon(int count, TUVect2D * polygon)
{
    for (int i = 0; i < count; ++i)
        if (ObjectIntersects2DLine(polygon[i], polygon[(i + 1) % count]))
            return 1;
    return 0;
}

int CObject3D::ObjectVersus2DPolygon(int count, TUVect2D * polygon, int question)
{
    if (IsEmpty())
        return 0;
    bool const lies = ObjectLiesIn2DPolygon(count, polygon) == 1;
    bool const intersects = ObjectIntersects2DPolygon(count, polygon) == 1;
    switch (question) {
        case 0:
            return lies;
        case 1:
            return lies || intersects;
        case 2:
            return !lies && !intersects;
        case 3:
            return !lies;
        case 4:
            return intersects;
        case 5:
            return !intersects;
        default:
            return 0;
    }
}
