#include "geometry/arc_frame.h"

#include <utility>

#include "geometry/mathematics.h"

namespace detail {
ArcFrame MakeArcFrame(CMathematics & math, TUVect3D const & start, TUVect3D const & end,
                      TUVect3D const & arcVector, double bulge)
{
    ArcFrame arc = {};
    arc.start = start;
    arc.end = end;
    arc.bulge = bulge;
    arc.middle = (start + end) * 0.5;
    arc.chord = Unit(end - start);
    TUVect3D const side = Unit(arcVector - Dot(arcVector, arc.chord) * arc.chord);
    arc.side = bulge < 0.0 ? -side : side;
    arc.axis = Cross(arc.side, arc.chord);
    arc.isFlat = !math.Get3DArcCenter(start, end, arcVector, bulge, arc.centre);
    if (arc.isFlat)
        arc.centre = {};
    arc.radius = Length(start - arc.centre);
    return arc;
}

double ArcParameter(CMathematics & math, ArcFrame const & arc, TUVect3D const & p)
{
    if (math.ComparePoints(p, arc.end, 1))
        return 1.0;
    if (math.ComparePoints(p, arc.start, 1))
        return 0.0;
    if (!(arc.SideOf(p) >= 0.0))
        return kOffArc;
    return (1.0 + Dot(Unit(p - arc.middle), arc.chord)) / 2.0;
}

bool ShareAnEnd(CMathematics & math, TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1,
                TUVect3D const & b2)
{
    return math.ComparePoints(a1, b1, 1) || math.ComparePoints(a1, b2, 1) || math.ComparePoints(a2, b1, 1) ||
           math.ComparePoints(a2, b2, 1);
}

bool MeetingLine(ArcFrame const & arc, TUVect3D const & origin, TUVect3D const & unitNormal, Line & line)
{
    TUVect3D const cross = Cross(arc.axis, unitNormal);
    if (!(Length(cross) >= kDirectionLimit))
        return false;
    line.direction = Unit(cross);
    TUVect3D const across = Cross(line.direction, arc.axis);
    double const distance = Dot(origin - arc.centre, unitNormal) / Dot(across, unitNormal);
    line.point = arc.centre + distance * across;
    return true;
}

void ArcHits::Reduce(bool firstCounts, bool secondCounts)
{
    if ((code & kPointCountBits) == 1) {
        code = firstCounts ? code : 0;
        return;
    }
    code = static_cast<int>(firstCounts) + static_cast<int>(secondCounts);
    if (firstCounts || !secondCounts)
        return;
    std::swap(points[0], points[1]);
    std::swap(onArc[0], onArc[1]);
    std::swap(onOther[0], onOther[1]);
}
}  // namespace detail
