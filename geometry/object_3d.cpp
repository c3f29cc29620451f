// One point, line or arc in space: making it, measuring it, points along it.

#include "geometry/object_3d.h"

#include <algorithm>

#include "geometry/mathematics.h"

namespace {
/// The kind of an object that is no edge yet.
constexpr int kEmpty = -1;

/// The whole length in percent.
constexpr double kWholePercent = 100.0;
}  // namespace

IMPLEMENT_DYNAMIC(CObject3D, CObject)

CObject3D::CObject3D(CMathematics * math)
    : m_pMathematics(math),
      m_iKind(kEmpty),
      m_dViewMatrix{},
      m_dScale(0.0),
      m_Point{},
      m_Start{},
      m_End{},
      m_ArcVector{},
      m_dBulge(0.0)
{
}

CObject3D::CObject3D(CMathematics * math, double (*const m)[3], double scale) : CObject3D(math)
{
    std::copy(&m[0][0], &m[0][0] + 9, &m_dViewMatrix[0][0]);
    m_dScale = scale;
}

CObject3D::~CObject3D() = default;

bool CObject3D::IsEmpty() const
{
    return m_iKind == kEmpty || !m_pMathematics;
}

int CObject3D::CreatePoint(TUVect3D point)
{
    m_iKind = EDGE_POINT;
    m_Point = point;
    return 1;
}

int CObject3D::CreateLine(TUVect3D start, TUVect3D end)
{
    m_iKind = EDGE_LINE;
    m_Start = start;
    m_End = end;
    return 1;
}

int CObject3D::CreateArc(TUVect3D start, TUVect3D end, TUVect3D arcVector, double bulge)
{
    m_iKind = EDGE_ARC;
    m_Start = start;
    m_End = end;
    m_ArcVector = arcVector;
    m_dBulge = bulge;
    return 1;
}

int CObject3D::Create3DEdge(TSPlaneEdge3D edge)
{
    switch (edge.type) {
        case EDGE_POINT:
            return CreatePoint(edge.start);
        case EDGE_LINE:
            return CreateLine(edge.start, edge.end);
        case EDGE_ARC:
            return CreateArc(edge.start, edge.end, edge.arcVector, edge.bulge);
        default:
            return 0;
    }
}

int CObject3D::Make3DEdge(TSPlaneEdge3D & edge)
{
    if (IsEmpty())
        return 0;
    edge = {};
    edge.type = m_iKind;
    edge.start = m_iKind == EDGE_POINT ? m_Point : m_Start;
    edge.end = m_iKind == EDGE_POINT ? m_Point : m_End;
    if (m_iKind == EDGE_ARC) {
        edge.arcVector = m_ArcVector;
        edge.bulge = m_dBulge;
    }
    return 1;
}

int CObject3D::GetLength(double * length)
{
    TSPlaneEdge3D edge;
    if (!Make3DEdge(edge))
        return 0;
    *length = m_pMathematics->GetLengthEdge3D(&edge);
    return 1;
}

int CObject3D::GetPointFromLength(double length, TUVect3D * point)
{
    double whole;
    if (!GetLength(&whole) || !(length <= whole + m_pMathematics->GetOkoli()))
        return 0;
    length = std::min(length, whole);
    if (m_iKind == EDGE_ARC)
        return m_pMathematics->Get3DPointOnArc(m_Start, m_End, m_ArcVector, m_dBulge, length, 0, *point);
    if (m_iKind == EDGE_POINT) {
        *point = m_Point;
        return 1;
    }
    double const share = whole > 0.0 ? length / whole : 0.0;
    for (int i = 0; i < 3; ++i)
        point->a[i] = m_Start.a[i] + share * (m_End.a[i] - m_Start.a[i]);
    return 1;
}

int CObject3D::GetPointFromLengthReverse(double length, TUVect3D * point)
{
    double whole;
    return GetLength(&whole) && length <= whole + m_pMathematics->GetOkoli() &&
           GetPointFromLength(std::max(whole - length, 0.0), point);
}

int CObject3D::GetLengthToPoint(double * length, TUVect3D point)
{
    TSPlaneEdge3D edge;
    if (!Make3DEdge(edge))
        return 0;
    double distance = 0.0;
    int const found = m_pMathematics->IsPoint3DInEdge3D(edge, point, distance);
    *length = found ? distance : 0.0;
    return found;
}

int CObject3D::GetPointFromPercent(double percent, TUVect3D * point)
{
    double whole;
    return GetLength(&whole) && GetPointFromLength(whole * percent / kWholePercent, point);
}

int CObject3D::GetPointFromPercentReverse(double percent, TUVect3D * point)
{
    double whole;
    return GetLength(&whole) && GetPointFromLengthReverse(whole * percent / kWholePercent, point);
}

int CObject3D::GetStartPoint(TUVect3D * point)
{
    TSPlaneEdge3D edge;
    if (!Make3DEdge(edge))
        return 0;
    *point = edge.start;
    return 1;
}

int CObject3D::GetEndPoint(TUVect3D * point)
{
    TSPlaneEdge3D edge;
    if (!Make3DEdge(edge))
        return 0;
    *point = edge.end;
    return 1;
}

int CObject3D::GetVector(TUVect3D * vector)
{
    if (IsEmpty() || m_iKind == EDGE_POINT)
        return 0;
    return m_pMathematics->GetDistance3D(m_Start, m_End, *vector);
}

int CObject3D::GetCenterPoint(TUVect3D * point)
{
    return GetPointFromPercent(kWholePercent / 2.0, point);
}

int CObject3D::GetCenterPointOfArc(TUVect3D * point)
{
    if (IsEmpty() || m_iKind != EDGE_ARC)
        return 0;
    return m_pMathematics->Get3DArcCenter(m_Start, m_End, m_ArcVector, m_dBulge, *point);
}

int CObject3D::PointLiesInObject(TUVect3D point)
{
    double length;
    return GetLengthToPoint(&length, point);
}

int CObject3D::PointIsObjectsVertex(TUVect3D point)
{
    TSPlaneEdge3D edge;
    return Make3DEdge(edge) && (m_pMathematics->ComparePoints(point, edge.start, 1) ||
                                m_pMathematics->ComparePoints(point, edge.end, 1));
}
