#include "geometry/mat_point.h"

#include <algorithm>
#include <cmath>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"
#include "platform/base/message_box.h"

using namespace detail;

namespace {
// Values of GetLastError.
constexpr int kShortAxis = 1;
constexpr int kSmallAngle = 2;
constexpr int kShortDirection = 3;
constexpr int kFirstLeg = 4;
constexpr int kSecondLeg = 5;
constexpr int kBadFactor = 6;
constexpr int kNoKernel = 7;
constexpr int kNoActionSetUp = 8;
constexpr int kBadRepeat = 9;

/// A stretch turned by less isn't turned.
constexpr double kNoTurn = 1e-6;
}  // namespace

CMatPoint::CMatPoint(CMathematics * math) : m_pMathematics(math) {}

CMatPoint::~CMatPoint() = default;

bool CMatPoint::Begin()
{
    m_lastError = m_pMathematics ? 0 : kNoKernel;
    return m_lastError == 0;
}

int CMatPoint::Fail(int error)
{
    m_lastError = error;
    return 0;
}

int CMatPoint::SetAxis(TUVect3D const & origin, TUVect3D const & axis, int action)
{
    m_origin = origin;
    m_axis = Unit(axis);
    m_action = action;
    return 1;
}

int CMatPoint::SetupActionMoveByDirection(TUVect3D & direction)
{
    if (!Begin())
        return 0;
    if (!(Length(direction) >= m_tolerance))
        return Fail(kShortDirection);
    m_shift = direction;
    m_action = MOVE_BY_DIRECTION;
    return 1;
}

int CMatPoint::SetupActionMoveByRotation(TUVect3D & origin, TUVect3D & axis, double angle, double shift)
{
    if (!Begin())
        return 0;
    if (!(Length(axis) >= m_tolerance))
        return Fail(kShortAxis);
    if (!(std::fabs(angle) >= m_tolerance))
        return Fail(kSmallAngle);
    m_angle = -angle;
    SetAxis(origin, axis, MOVE_BY_ROTATION);
    m_shift = std::fabs(shift) > m_tolerance ? shift * m_axis : TUVect3D{};
    return 1;
}

int CMatPoint::SetupActionMoveByMirror(TUVect3D & origin, TUVect3D & normal)
{
    if (!Begin())
        return 0;
    return Length(normal) >= m_tolerance ? SetAxis(origin, normal, MOVE_BY_MIRROR) : Fail(kShortAxis);
}

int CMatPoint::SetupActionMoveByStretch(TUVect3D & a, TUVect3D & b, TUVect3D & c, int keepDistance)
{
    if (!Begin())
        return 0;
    if (!(Length(a - b) >= m_tolerance))
        return Fail(kFirstLeg);
    if (!(Length(c - b) >= m_tolerance))
        return Fail(kSecondLeg);
    TUVect3D first = b - a;
    TUVect3D second = c - a;
    m_origin = a;
    m_stretchLeg = second;
    m_lengths[0] = Length(first);
    m_lengths[1] = Length(second);
    double const angle = GetAngle(first, second);
    m_angle = angle < kNoTurn ? 0.0 : -angle;
    m_keepDistance = m_angle == 0.0 ? 1 : keepDistance;
    m_axis = {};
    if (m_angle != 0.0)
        m_pMathematics->VectorProduct(&first, &second, &m_axis);
    m_action = MOVE_BY_STRETCH;
    return 1;
}

int CMatPoint::SetupActionMoveByScale(TUVect3D & origin, TUVect3D & factors)
{
    if (!Begin())
        return 0;
    if (!std::ranges::all_of(factors.a, [this](double factor) { return factor >= m_tolerance; }))
        return Fail(kBadFactor);
    m_origin = origin;
    m_factors = factors;
    m_action = MOVE_BY_SCALE;
    return 1;
}

int CMatPoint::SetupActionMoveToPlane(TUVect3D & origin, TUVect3D & normal)
{
    if (!Begin())
        return 0;
    return Length(normal) >= m_tolerance ? SetAxis(origin, normal, MOVE_TO_PLANE) : Fail(kShortAxis);
}

int CMatPoint::SetupActionMoveToPoint(TUVect3D & point)
{
    if (!Begin())
        return 0;
    m_origin = point;
    m_action = MOVE_TO_POINT;
    return 1;
}

bool CMatPoint::BeginMove(int repeat)
{
    if (!Begin())
        return false;
    if (m_action == NO_ACTION)
        return Fail(kNoActionSetUp);
    if (repeat < 1)
        return Fail(kBadRepeat);
    m_repeat = repeat;
    return true;
}

/// The point turned about the axis through the origin. The stored angle is negative for a positive turn, so
/// the second direction of the plane of rotation is radius x axis.
TUVect3D CMatPoint::Turned(TUVect3D const & source) const
{
    TUVect3D const fromOrigin = source - m_origin;
    TUVect3D axis = m_axis;
    TUVect3D direction = fromOrigin;
    TUVect3D across;
    TUVect3D radial;
    if (!m_pMathematics->VectorProduct(&direction, &axis, &across) ||
        !m_pMathematics->VectorProduct(&axis, &across, &radial))
        return source;
    double sine;
    m_pMathematics->SinOfVectors(&axis, &direction, &sine);
    double const radius = Length(fromOrigin) * sine;
    double const angle = m_repeat * m_angle;
    return source + radius * ((std::cos(angle) - 1.0) * radial + std::sin(angle) * across);
}

int CMatPoint::Stretched(TUVect3D & point) const
{
    if (!(Length(point - m_origin) > m_tolerance))
        return 1;
    bool const turns = Dot(m_axis, m_axis) != 0.0;
    if (!turns && !(m_lengths[0] > m_tolerance))
        return 0;
    if (turns)
        point = Turned(point);
    if (turns && m_keepDistance)
        return 1;
    TUVect3D const direction = Unit(m_stretchLeg);
    double const share = Dot(point - m_origin, direction);
    point = point + (share * (m_lengths[1] / m_lengths[0]) - share) * direction;
    return 1;
}

int CMatPoint::Moved(TUVect3D & point) const
{
    TUVect3D const toOrigin = m_origin - point;
    bool const isAway = Length(toOrigin) > m_tolerance;
    switch (m_action) {
        case MOVE_BY_DIRECTION:
            point = point + static_cast<double>(m_repeat) * m_shift;
            return 1;
        case MOVE_BY_ROTATION:
            if (isAway)
                point = Turned(point);
            point = point + static_cast<double>(m_repeat) * m_shift;
            return 1;
        case MOVE_BY_MIRROR:
            if (isAway)
                point = point + 2.0 * Dot(toOrigin, m_axis) * m_axis;
            return 1;
        case MOVE_BY_STRETCH:
            return Stretched(point);
        case MOVE_BY_SCALE:
            for (int i = 0; i < 3; ++i)
                point.a[i] = (point.a[i] - m_origin.a[i]) * m_factors.a[i] + m_origin.a[i];
            return 1;
        case MOVE_TO_PLANE:
            if (isAway)
                point = point + Dot(toOrigin, m_axis) * m_axis;
            return 1;
        case MOVE_TO_POINT:
            point = m_origin;
            return 1;
        default:
            AfxMessageBox("EMPTY_BODY:\n\nCMatPoint::GetNewPoint");
            return 0;
    }
}

int CMatPoint::GetNewPoint(TUVect3D & point, int repeat)
{
    return BeginMove(repeat) && Moved(point);
}

int CMatPoint::GetNewPoint(TUVect3D source, TUVect3D & result, int repeat)
{
    result = source;
    return GetNewPoint(result, repeat);
}

int CMatPoint::GetNewEdge3D(TSPlaneEdge3D & edge, int repeat)
{
    if (edge.type < EDGE_POINT || edge.type > EDGE_ARC || !BeginMove(repeat))
        return 0;
    TSPlaneEdge3D moved = edge;
    if (!Moved(moved.start) || !Moved(moved.end))
        return 0;
    TUVect3D middle;
    if (edge.type == EDGE_ARC &&
        m_pMathematics->Get3DPointOnArc(edge.start, edge.end, edge.arcVector, edge.bulge, 0.5, 1, middle)) {
        if (!Moved(middle))
            return 0;
        m_pMathematics->CalcBulgeOf3DArc3Points(moved.start, moved.end, middle, &moved.arcVector,
                                                moved.bulge);
    }
    edge = moved;
    return 1;
}

double CMatPoint::GetAngle(TUVect3D & a, TUVect3D & b)
{
    if (!Begin())
        return 0.0;
    double sine;
    m_pMathematics->SinOfVectors(&a, &b, &sine);
    return std::asin(std::clamp(sine, -1.0, 1.0));
}

int CMatPoint::RotateVectorAroundAxis(TUVect3D & vector, int repeat)
{
    if (!BeginMove(repeat) || m_action != MOVE_BY_ROTATION)
        return 0;
    return m_pMathematics->RotateVectorAroundAxis(vector, m_axis, -m_repeat * m_angle);
}

int CMatPoint::GetAxis(TUVect3D & axis, int & action)
{
    action = m_action;
    if (m_action != MOVE_BY_ROTATION && m_action != MOVE_BY_MIRROR && m_action != MOVE_TO_PLANE)
        return 0;
    axis = m_axis;
    return 1;
}
