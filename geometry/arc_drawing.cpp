// Arcs and objects in space on a device.

#include <cmath>

#include "geometry/arcs_course.h"
#include "geometry/mathematics.h"
#include "geometry/object_3d.h"
#include "platform/device/dc.h"

using namespace detail;

namespace {
constexpr int kPointRadius = 3;                      // circle of a point object, in pixels
constexpr double kObjectStep = 0.20666666666666667;  // angle of a segment of an arc object, in radians
}  // namespace

int CMathematics::Draw3dArc(HDC hdc, int const & originX, int const & originY, double const (*matrix)[3],
                            double const & scale, TUVect3D const & start, TUVect3D const & end,
                            TUVect3D const & arcVector, double const & bulge, double step)
{
    if (IsFlatBulge(bulge)) {
        Line3D(hdc, originX, originY, matrix, scale, start, end);
        return 1;
    }
    TUVect3D side = arcVector;
    ArcCourse course;
    if (!MakeArcCourse(*this, start, end, side, bulge, course))
        return 0;
    if (std::fabs(course.angle) < kNoTurn)
        return 1;
    long const segments = CourseSegments(course, step);
    double const segmentAngle = course.angle / static_cast<double>(segments);
    TUVect3D from = start;
    for (long i = 1; i <= segments; ++i) {
        TUVect3D const to = CoursePoint(course, static_cast<double>(i) * segmentAngle);
        Line3D(hdc, originX, originY, matrix, scale, from, to);
        from = to;
    }
    return 1;
}

int CObject3D::Draw(HDC hdc, int originX, int originY)
{
    if (IsEmpty())
        return 0;
    if (m_iKind == EDGE_ARC)
        return m_pMathematics->Draw3dArc(hdc, originX, originY, m_dViewMatrix, m_dScale, m_Start, m_End,
                                         m_ArcVector, m_dBulge, kObjectStep);
    if (m_iKind == EDGE_LINE) {
        m_pMathematics->Line3D(hdc, originX, originY, m_dViewMatrix, m_dScale, m_Start, m_End);
        return 1;
    }
    int x, y;
    m_pMathematics->GetInt2DCoord(originX, originY, m_dViewMatrix, m_dScale, m_Point, x, y);
    if (m_pMathematics->ScissorTest(hdc, x, y))
        ::Ellipse(hdc, x - kPointRadius, y - kPointRadius, x + kPointRadius, y + kPointRadius);
    return 1;
}
