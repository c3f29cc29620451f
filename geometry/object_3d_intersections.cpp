// What two objects in space have in common, perpendiculars on them and tangents to them.

#include <utility>

#include "geometry/arc_frame.h"
#include "geometry/mathematics.h"
#include "geometry/object_3d.h"

using namespace detail;

namespace {
/// The kind of two lines that are one.
constexpr int kOneLine = 10;
}  // namespace

int CObject3D::CommonWithPoint(TUVect3D const & point, bool limited)
{
    CMathematics & math = *m_pMathematics;
    if (m_iKind == EDGE_POINT)
        return math.ComparePoints(m_Point, point, 1);
    if (m_iKind == EDGE_LINE)
        return limited ? math.PointLiesOnLine(m_Start, m_End, point)
                       : math.IsPointOnExtendedLine(m_Start, m_End, point) != 0;
    return limited ? math.PointOnArc(m_Start, m_End, m_ArcVector, m_dBulge, point)
                   : math.IsPointOnExtendedArc(m_Start, m_End, m_ArcVector, m_dBulge, point) != 0;
}

int CObject3D::CommonOfLines(CObject3D const & line, bool limited, TUVect3D * points)
{
    int kind;
    if (!m_pMathematics->LineIntersection(m_Start, m_End, line.m_Start, line.m_End, limited ? 1 : 0,
                                          points[0], points[1], kind))
        return 0;
    if (kind != kOneLine)
        return 1;
    // Ends in one place tell of one line without a common stretch; a common point has a kind of its own.
    return m_pMathematics->ComparePoints(points[0], points[1], 1) ? 0 : 2;
}

int CObject3D::CommonOfArcAndLine(CObject3D const & line, bool limited, TUVect3D * points)
{
    if (limited)
        return m_pMathematics->ArcLineIntersection(m_Start, m_End, m_ArcVector, m_dBulge, line.m_Start,
                                                   line.m_End, points[0], points[1], 1) &
               kPointCountBits;
    int classes[4];
    return m_pMathematics->ExtendedLineArcIntersection(m_Start, m_End, m_ArcVector, m_dBulge, line.m_Start,
                                                       line.m_End, points[0], points[1], classes[0],
                                                       classes[1], classes[2], classes[3]);
}

int CObject3D::CommonOfArcs(CObject3D const & arc, bool limited, TUVect3D * points)
{
    if (limited)
        return m_pMathematics->ArcIntersection(m_Start, m_End, m_ArcVector, m_dBulge, arc.m_Start, arc.m_End,
                                               arc.m_ArcVector, arc.m_dBulge, points[0], points[1]) &
               kPointCountBits;
    int classes[4];
    return m_pMathematics->ExtendedArcIntersection(m_Start, m_End, m_ArcVector, m_dBulge, arc.m_Start,
                                                   arc.m_End, arc.m_ArcVector, arc.m_dBulge, points[0],
                                                   points[1], classes[0], classes[1], classes[2], classes[3]);
}

int CObject3D::Intersect(CObject3D * other, bool limited, int * count, TUVect3D * points)
{
    *count = 0;
    if (IsEmpty() || !other || other->IsEmpty())
        return 0;
    // The lower kind stands first, but two of one kind keep their order.
    bool const swap = other->m_iKind < m_iKind;
    CObject3D & lower = swap ? *other : *this;
    CObject3D & higher = swap ? *this : *other;
    if (lower.m_iKind == EDGE_POINT) {
        *count = higher.CommonWithPoint(lower.m_Point, limited);
        if (*count)
            points[0] = lower.m_Point;
    } else if (higher.m_iKind == EDGE_LINE)
        *count = lower.CommonOfLines(higher, limited, points);
    else if (lower.m_iKind == EDGE_LINE)
        *count = higher.CommonOfArcAndLine(lower, limited, points);
    else
        *count = lower.CommonOfArcs(higher, limited, points);
    return *count > 0;
}

int CObject3D::IntersectionWithObject3D(CObject3D * other, int * count, TUVect3D * points)
{
    return Intersect(other, true, count, points);
}

int CObject3D::ApparentIntersectionWithObject3D(CObject3D * other, int * count, TUVect3D * points)
{
    return Intersect(other, false, count, points);
}

int CObject3D::VerticalIntersection(TUVect3D point, int * count, TUVect3D * points)
{
    *count = 0;
    if (IsEmpty())
        return 0;
    if (m_iKind == EDGE_POINT) {
        points[0] = m_Point;
        *count = 1;
    } else if (m_iKind == EDGE_LINE)
        *count = m_pMathematics->PointCastOnLine(m_Start, m_End, point, points[0]);
    else {
        int classes[2];
        *count = m_pMathematics->PointCastOnArc(m_Start, m_End, m_ArcVector, m_dBulge, point, points[0],
                                                points[1], classes[0], classes[1]);
    }
    return *count > 0;
}

int CObject3D::GetTangensPoint(TUVect3D point, int * count, TUVect3D * points)
{
    *count = 0;
    if (IsEmpty() || m_iKind != EDGE_ARC)
        return 0;
    int onCircle;
    int classes[2];
    *count = m_pMathematics->Arc3DTangentPoints(m_Start, m_End, m_ArcVector, m_dBulge, point, points[0],
                                                points[1], onCircle, classes[0], classes[1]);
    return *count > 0;
}
