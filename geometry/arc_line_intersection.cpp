// An arc against a line or a plane in space.

#include <algorithm>
#include <cmath>

#include "geometry/arc_frame.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
// Flags: what the outputs hold.
constexpr int kFirstParameters = 1;
constexpr int kFirstPoint = 2;
constexpr int kSecondParameters = 4;
constexpr int kSecondPoint = 8;

/// A line within the circle's plane: two points, or one where it touches.
void IntersectInPlane(CMathematics & math, ArcFrame const & arc, TUVect3D const & l1, TUVect3D const & along,
                      ArcHits & hits)
{
    double const okoli = math.GetOkoli();
    TUVect3D const fromCentre = l1 - arc.centre;
    if (!(std::fabs(Dot(fromCentre, arc.axis)) < okoli))
        return;
    double const a = Dot(along, along);
    double const b = Dot(fromCentre, along);
    TUVect3D const foot = l1 + (-b / a) * along;
    double const distance = Length(foot - arc.centre);
    // The squared tolerance stands against a plain difference; kept so.
    if (!(okoli * okoli < arc.radius - distance)) {
        if (!(std::fabs(distance - arc.radius) < okoli))
            return;
        hits.code = kTangent;
        hits.flags = kFirstPoint;
        hits.onOther[0] = hits.onOther[1] = -b / a;
        hits.points[0] = hits.points[1] = foot;
        return;
    }
    double const discriminant = b * b - a * (Dot(fromCentre, fromCentre) - arc.radius * arc.radius);
    double const root = std::sqrt(std::max(discriminant, 0.0));
    hits.code = 2;
    hits.flags = kFirstPoint | kSecondPoint;
    hits.onOther[0] = (-b + root) / a;
    hits.onOther[1] = (-b - root) / a;
    for (int i = 0; i < 2; ++i)
        hits.points[i] = l1 + hits.onOther[i] * along;
}

/// A line through the circle's plane: at most one point. `rise` is its gain of height per parameter.
void IntersectThroughPlane(CMathematics & math, ArcFrame const & arc, TUVect3D const & l1,
                           TUVect3D const & along, double rise, ArcHits & hits)
{
    double const t = Dot(arc.centre - l1, arc.axis) / rise;
    TUVect3D const p = l1 + t * along;
    if (!(std::fabs(Length(p - arc.centre) - arc.radius) < math.GetOkoli()))
        return;
    hits.code = 1;
    hits.flags = kFirstPoint;
    hits.onOther[0] = hits.onOther[1] = t;
    hits.points[0] = hits.points[1] = p;
}

double LineParameter(CMathematics & math, double t, TUVect3D const & p, TUVect3D const & l1,
                     TUVect3D const & l2)
{
    if (math.ComparePoints(p, l2, 1))
        return 1.0;
    return math.ComparePoints(p, l1, 1) ? 0.0 : t;
}

/// A flat arc that meets the line as its chord counts as not meeting it, and one that doesn't goes on as a
/// circle about the coordinate origin. The wrong way round, and kept so: callers see it.
bool EndsFlat(CMathematics & math, ArcFrame const & arc, TUVect3D const & l1, TUVect3D const & l2)
{
    TUVect3D p1;
    TUVect3D p2;
    int kind;
    double onLine;
    double onChord;
    int hit;
    return math.LineIntersectionParameters(l1, l2, arc.start, arc.end, 1, p1, p2, kind, onLine, onChord,
                                           hit) == 1;
}

/// The code of an element without points in a plane, by the side of one of its points.
int SideCode(TUVect3D const & p, TUVect3D const & origin, TUVect3D const & normal)
{
    return Dot(p - origin, normal) > 0.0 ? kPositiveSide : 0;
}

/// A flat arc against a plane, as its chord.
int IntersectChordPlane(ArcFrame const & arc, TUVect3D const & origin, TUVect3D const & normal, TUVect3D & p1,
                        int & count)
{
    double const startHeight = Dot(arc.start - origin, normal);
    double const endHeight = Dot(arc.end - origin, normal);
    if ((startHeight > 0.0) == (endHeight > 0.0))
        return startHeight > 0.0 ? kPositiveSide : 0;
    p1 = arc.start + startHeight / (startHeight - endHeight) * (arc.end - arc.start);
    count = 1;
    return 1;
}
}  // namespace

namespace detail {
ArcHits IntersectCircleLine(CMathematics & math, ArcFrame const & arc, TUVect3D const & l1,
                            TUVect3D const & l2)
{
    ArcHits hits;
    if (arc.isFlat && EndsFlat(math, arc, l1, l2))
        return hits;
    TUVect3D const along = l2 - l1;
    double const rise = Dot(along, arc.axis);
    double const length = Length(along);
    if (!(length > 0.0) || !std::isfinite(length) || Dot(arc.axis, arc.axis) == 0.0)
        return hits;
    if (std::fabs(rise) / length < kDirectionLimit)
        IntersectInPlane(math, arc, l1, along, hits);
    else
        IntersectThroughPlane(math, arc, l1, along, rise, hits);
    if (hits.code == 0)
        return hits;
    hits.found = hits.code & kPointCountBits;
    for (int i = 0; i < hits.found; ++i) {
        hits.onArc[i] = ArcParameter(math, arc, hits.points[i]);
        hits.onOther[i] = LineParameter(math, hits.onOther[i], hits.points[i], l1, l2);
    }
    if (hits.found == 1) {
        hits.onArc[1] = hits.onArc[0];
        hits.onOther[1] = hits.onOther[0];
    }
    // Both are filled for a single point too, twice with the same values.
    hits.flags |= kFirstParameters | kSecondParameters;
    return hits;
}

void LimitToArc(ArcHits & hits, bool limitLine)
{
    auto const counts = [&](int i) {
        return hits.onArc[i] != kOffArc && (!limitLine || IsInUnitRange(hits.onOther[i]));
    };
    if (hits.code != 0)
        hits.Reduce(counts(0), counts(1));
}
}  // namespace detail

int CMathematics::ArcLineIntersectionParameters(TUVect3D const & start, TUVect3D const & end,
                                                TUVect3D const & arcVector, double const & bulge,
                                                TUVect3D const & l1, TUVect3D const & l2, TUVect3D & p1,
                                                TUVect3D & p2, int mode, double & arcT1, double & lineT1,
                                                double & arcT2, double & lineT2, int & flags)
{
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    ArcHits hits = IntersectCircleLine(*this, arc, l1, l2);
    LimitToArc(hits, mode == 1);
    p1 = hits.points[0];
    p2 = hits.points[1];
    arcT1 = hits.onArc[0];
    arcT2 = hits.onArc[1];
    lineT1 = hits.onOther[0];
    lineT2 = hits.onOther[1];
    flags = hits.flags;
    return hits.code;
}

int CMathematics::ArcLineIntersection(TUVect3D const & start, TUVect3D const & end,
                                      TUVect3D const & arcVector, double const & bulge, TUVect3D const & l1,
                                      TUVect3D const & l2, TUVect3D & p1, TUVect3D & p2, int mode)
{
    int const code = ArcLineIntersectionPlus(start, end, arcVector, bulge, l1, l2, p1, p2, mode);
    bool const single = (code & kPointCountBits) == 1;
    return single && ShareAnEnd(*this, start, end, l1, l2) ? 0 : code;
}

int CMathematics::ArcLineIntersectionPlus(TUVect3D const & start, TUVect3D const & end,
                                          TUVect3D const & arcVector, double const & bulge,
                                          TUVect3D const & l1, TUVect3D const & l2, TUVect3D & p1,
                                          TUVect3D & p2, int mode)
{
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    ArcHits hits = IntersectCircleLine(*this, arc, l1, l2);
    LimitToArc(hits, mode == 1);
    p1 = hits.points[0];
    p2 = hits.points[1];
    return hits.code;
}

int CMathematics::ArcPlaneIntersectionParameters(TUVect3D const & start, TUVect3D const & end,
                                                 TUVect3D const & arcVector, double const & bulge,
                                                 TUVect3D const & origin, TUVect3D const & normal,
                                                 TUVect3D & p1, TUVect3D & p2, int & count)
{
    count = 0;
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    if (arc.isFlat)
        return IntersectChordPlane(arc, origin, normal, p1, count);
    Line line;
    if (!MeetingLine(arc, origin, Unit(normal), line))
        return std::fabs(Dot(start - origin, normal)) < m_dOkoli ? kArcInPlane
                                                                 : SideCode(start, origin, normal);
    ArcHits hits = IntersectCircleLine(*this, arc, line.point, line.point + line.direction);
    LimitToArc(hits, false);
    if (hits.code == 0)
        return SideCode(start, origin, normal);
    p1 = hits.points[0];
    p2 = hits.points[1];
    count = hits.code & kPointCountBits;
    return hits.code;
}

int CMathematics::ArcPlaneIntersection(TUVect3D const & start, TUVect3D const & end,
                                       TUVect3D const & arcVector, double const & bulge,
                                       TUVect3D const & origin, TUVect3D const & normal)
{
    TUVect3D p1;
    TUVect3D p2;
    int count;
    return ArcPlaneIntersectionParameters(start, end, arcVector, bulge, origin, normal, p1, p2, count);
}

int CMathematics::ExtendedLineArcIntersection(TUVect3D const & start, TUVect3D const & end,
                                              TUVect3D const & arcVector, double const & bulge,
                                              TUVect3D const & l1, TUVect3D const & l2, TUVect3D & p1,
                                              TUVect3D & p2, int & arcClass1, int & lineClass1,
                                              int & arcClass2, int & lineClass2)
{
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    ArcHits hits = IntersectCircleLine(*this, arc, l1, l2);
    LimitToArc(hits, false);  // for its order: points on the arc first
    auto const lineClass = [](double t) {
        if (IsInUnitRange(t))
            return kOnElement;
        return t > 1.0 ? kOffElement : kBeforeLine;
    };
    if (hits.found >= 1) {
        p1 = hits.points[0];
        arcClass1 = ArcClass(hits.onArc[0]);
        lineClass1 = lineClass(hits.onOther[0]);
    }
    if (hits.found == 2) {
        p2 = hits.points[1];
        arcClass2 = ArcClass(hits.onArc[1]);
        lineClass2 = lineClass(hits.onOther[1]);
    }
    return hits.found;
}
