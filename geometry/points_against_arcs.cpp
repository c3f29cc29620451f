// Points against an arc in space: on it, along it, cast on it, and its tangents from a point.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "geometry/arc_frame.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
bool IsInPlane(ArcFrame const & arc, TUVect3D const & p, double okoli)
{
    return std::fabs(arc.HeightOf(p)) <= okoli;
}

bool IsOnCircle(ArcFrame const & arc, TUVect3D const & p, double okoli)
{
    return IsInPlane(arc, p, okoli) && std::fabs(Length(p - arc.centre) - arc.radius) <= okoli;
}

/// The angle from the arc's start to a point of its plane in the direction of travel, 0 to 2 pi.
double AngleFromStart(ArcFrame const & arc, TUVect3D const & p)
{
    TUVect3D const toStart = Unit(arc.start - arc.centre);
    TUVect3D const toPoint = Unit(p - arc.centre);
    double const angle = std::atan2(Dot(Cross(toStart, toPoint), arc.axis), Dot(toStart, toPoint));
    return angle < 0.0 ? angle + 2.0 * std::numbers::pi : angle;
}

/// The feet or tangent points found on a whole circle.
struct CirclePoints
{
    int found;
    TUVect3D points[2];
};

/// Hands out the points of the circle, those on the arc first, with their classes. Returns how many are on
/// it.
int HandOut(CMathematics & math, ArcFrame const & arc, CirclePoints circle, TUVect3D & first,
            TUVect3D & second, int & class1, int & class2)
{
    int classes[2] = {};
    for (int i = 0; i < circle.found; ++i)
        classes[i] = ArcClass(ArcParameter(math, arc, circle.points[i]));
    if (classes[0] == kOffElement && classes[1] == kOnElement) {
        std::swap(circle.points[0], circle.points[1]);
        std::swap(classes[0], classes[1]);
    }
    class1 = classes[0];
    class2 = classes[1];
    if (circle.found >= 1)
        first = circle.points[0];
    if (circle.found == 2)
        second = circle.points[1];
    return static_cast<int>(std::ranges::count(classes, kOnElement));
}

/// The places where the tangents from a point of the circle's plane touch it.
CirclePoints TangentPoints(ArcFrame const & arc, TUVect3D const & p, double okoli)
{
    TUVect3D const toPoint = p - arc.centre;
    double const distance = Length(toPoint);
    if (std::fabs(distance - arc.radius) <= okoli)
        return {1, {p, p}};
    if (!(distance > arc.radius) || !std::isfinite(distance))
        return {0, {}};
    // The triangle centre, tangent point, p has a right angle at the tangent point.
    TUVect3D const ahead = Unit(toPoint);
    double const cosine = arc.radius / distance;
    TUVect3D const foot = arc.centre + arc.radius * cosine * ahead;
    TUVect3D const across = arc.radius * std::sqrt(1.0 - cosine * cosine) * Cross(arc.axis, ahead);
    return {2, {foot + across, foot - across}};
}
}  // namespace

int CMathematics::IsPointOnExtendedArc(TUVect3D const & start, TUVect3D const & end,
                                       TUVect3D const & arcVector, double const & bulge, TUVect3D const & p)
{
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    if (!IsInPlane(arc, p, m_dOkoli))
        return 0;
    if (arc.isFlat)
        return IsPointOnExtendedLine(start, end, p);
    return IsOnCircle(arc, p, m_dOkoli) ? ArcClass(ArcParameter(*this, arc, p)) : 0;
}

int CMathematics::IsPoint3DInArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                 double const & bulge, TUVect3D const & p, double & distance)
{
    distance = 0.0;
    if (ComparePoints(p, start, 1))
        return 1;
    if (ComparePoints(p, end, 1)) {
        distance = GetArcLength(start, end, bulge);
        return 1;
    }
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    if (arc.isFlat)
        return IsPoint3DInLine(start, end, p, distance);
    if (!IsOnCircle(arc, p, m_dOkoli))
        return 0;
    double const angle = AngleFromStart(arc, p);
    if (!(angle <= AngleFromStart(arc, end)))
        return 0;
    distance = arc.radius * angle;
    return 1;
}

int CMathematics::IsPoint3DInArc(TSPlaneEdge3D & arc, TUVect3D const & p, double & distance)
{
    return IsPoint3DInArc(arc.start, arc.end, arc.arcVector, arc.bulge, p, distance);
}

int CMathematics::PointCastOnArc(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                 double const & bulge, TUVect3D const & p, TUVect3D & foot, TUVect3D & other,
                                 int & class1, int & class2)
{
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    class1 = class2 = 0;
    if (arc.isFlat) {
        int const within = PointCastOnLine(start, end, p, foot);
        class1 = within ? kOnElement : kOffElement;
        return within;
    }
    TUVect3D const inPlane = p - arc.HeightOf(p) * arc.axis;
    TUVect3D const fromCentre = inPlane - arc.centre;
    double const distance = Length(fromCentre);
    if (!(distance > m_dOkoli) || !std::isfinite(distance))
        return 0;
    TUVect3D const toFoot = arc.radius * Unit(fromCentre);
    return HandOut(*this, arc, {2, {arc.centre + toFoot, arc.centre - toFoot}}, foot, other, class1, class2);
}

int CMathematics::Arc3DTangentPoints(TUVect3D const & start, TUVect3D const & end, TUVect3D const & arcVector,
                                     double const & bulge, TUVect3D const & p, TUVect3D & t1, TUVect3D & t2,
                                     int & count, int & class1, int & class2)
{
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    count = class1 = class2 = 0;
    if (arc.isFlat || !IsInPlane(arc, p, m_dOkoli))
        return 0;
    CirclePoints const circle = TangentPoints(arc, p, m_dOkoli);
    count = circle.found;
    return HandOut(*this, arc, circle, t1, t2, class1, class2);
}
