// Two arcs in space.

#include <algorithm>
#include <cmath>
#include <utility>

#include "geometry/arc_frame.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
// Flags of two arcs: which of the parameters a1, b2, b1, a2 are filled, in this order.
constexpr int kA1 = 1;
constexpr int kB2 = 2;
constexpr int kB1 = 4;
constexpr int kA2 = 8;

/// Two arcs of one circle. The points are the ends of B, with their parameters on A; in place of their
/// parameters on B stand those of A's ends.
ArcHits IntersectOneCircle(CMathematics & math, ArcFrame const & a, ArcFrame const & b)
{
    ArcHits hits;
    hits.points[0] = b.start;
    hits.points[1] = b.end;
    hits.flags = kA1 | kB2 | kB1 | kA2;
    hits.onArc[0] = ArcParameter(math, a, b.start);
    hits.onArc[1] = ArcParameter(math, a, b.end);
    hits.onOther[0] = ArcParameter(math, b, a.start);
    hits.onOther[1] = ArcParameter(math, b, a.end);
    bool const apart = std::ranges::all_of(hits.onArc, [](double t) { return t == kOffArc; }) &&
                       std::ranges::all_of(hits.onOther, [](double t) { return t == kOffArc; });
    if (apart)
        return hits;
    // Both ends of B on A's chord: the arcs have one chord, and are the same or make up the circle.
    bool const oneChord = a.SideOf(b.start) == 0.0 && a.SideOf(b.end) == 0.0;
    hits.code = oneChord && Dot(a.side, b.side) < 0.0 ? 2 : kCommonStretch;
    hits.found = hits.code == 2 ? 2 : 0;
    return hits;
}

void SetParameters(CMathematics & math, ArcFrame const & a, ArcFrame const & b, ArcHits & hits)
{
    for (int i = 0; i < 2; ++i) {
        hits.onArc[i] = ArcParameter(math, a, hits.points[i]);
        hits.onOther[i] = ArcParameter(math, b, hits.points[i]);
    }
}

/// Two circles in one plane with different centres.
ArcHits IntersectInOnePlane(CMathematics & math, ArcFrame const & a, ArcFrame const & b)
{
    ArcHits hits;
    double const okoli = math.GetOkoli();
    double const distance = Length(a.centre - b.centre);
    if (!(std::fabs(a.radius - b.radius) - okoli < distance) || !(a.radius + b.radius + okoli > distance))
        return hits;
    TUVect3D const toOther = Unit(b.centre - a.centre);
    TUVect3D const across = Unit(Cross(a.axis, toOther));
    double const square = a.radius * a.radius;
    double const along = (square - b.radius * b.radius + distance * distance) / (2.0 * distance);
    double const halfChordSquare = square - along * along;
    TUVect3D const foot = a.centre + along * toOther;
    hits.code = 1;
    hits.flags = kA1 | kB1;
    hits.points[0] = hits.points[1] = foot;
    if (halfChordSquare > okoli * okoli) {
        double const halfChord = std::sqrt(SnapNoise(halfChordSquare, square));
        hits.code = 2;
        hits.points[0] = foot + halfChord * across;
        hits.points[1] = foot - halfChord * across;
    }
    hits.found = hits.code;
    SetParameters(math, a, b, hits);
    return hits;
}

/// The points that two circles found on the line in which their planes meet have in common.
ArcHits MatchPoints(CMathematics & math, ArcHits const & onA, ArcHits const & onB)
{
    ArcHits hits;
    for (int i = 0; i < onA.found; ++i) {
        for (int j = 0; j < onB.found; ++j) {
            if (!math.ComparePoints(onA.points[i], onB.points[j], 1))
                continue;
            hits.points[hits.found] = onA.points[i];
            hits.onArc[hits.found] = onA.onArc[i];
            hits.onOther[hits.found] = onB.onArc[j];
            ++hits.found;
            break;
        }
    }
    hits.code = hits.found;
    return hits;
}

/// Takes off the points that don't lie on both arcs.
void LimitToBoth(ArcHits & hits)
{
    auto const counts = [&](int i) { return hits.onArc[i] != kOffArc && hits.onOther[i] != kOffArc; };
    if (hits.code != 0)
        hits.Reduce(counts(0), counts(1));
}

ArcHits IntersectAcrossPlanes(CMathematics & math, ArcFrame const & a, ArcFrame const & b)
{
    constexpr int kFlags[] = {0, kA1 | kB1, kA1 | kB1 | kB2 | kA2};
    Line line;
    if (!MeetingLine(a, b.centre, b.axis, line))
        return {};
    TUVect3D const ahead = line.point + line.direction;
    ArcHits hits = MatchPoints(math, IntersectCircleLine(math, a, line.point, ahead),
                               IntersectCircleLine(math, b, line.point, ahead));
    LimitToBoth(hits);
    hits.flags = kFlags[hits.code];
    return hits;
}

/// A flat arc as the line of the other one, limited to its chord.
ArcHits IntersectWithChord(CMathematics & math, ArcFrame const & arc, ArcFrame const & chord)
{
    ArcHits hits = IntersectCircleLine(math, arc, chord.start, chord.end);
    LimitToArc(hits, true);
    return hits;
}

ArcHits IntersectArcs(CMathematics & math, ArcFrame const & a, ArcFrame const & b)
{
    if (a.isFlat) {
        ArcHits hits = IntersectWithChord(math, b, a);
        std::swap(hits.onArc, hits.onOther);
        return hits;
    }
    if (b.isFlat)
        return IntersectWithChord(math, a, b);
    if (!(Length(Cross(a.axis, b.axis)) < kDirectionLimit))
        return IntersectAcrossPlanes(math, a, b);
    double const okoli = math.GetOkoli();
    if (!(std::fabs(Dot(a.centre - b.centre, a.axis)) < okoli))
        return {};
    if (Length(a.centre - b.centre) < okoli)
        return std::fabs(a.radius - b.radius) < okoli ? IntersectOneCircle(math, a, b) : ArcHits{};
    ArcHits hits = IntersectInOnePlane(math, a, b);
    LimitToBoth(hits);
    return hits;
}
}  // namespace

int CMathematics::ArcIntersectionParameters(TUVect3D const & startA, TUVect3D const & endA,
                                            TUVect3D const & arcVectorA, double const & bulgeA,
                                            TUVect3D const & startB, TUVect3D const & endB,
                                            TUVect3D const & arcVectorB, double const & bulgeB, TUVect3D & p1,
                                            TUVect3D & p2, double & a1, double & b2, double & b1, double & a2,
                                            int & flags)
{
    ArcFrame const arcA = MakeArcFrame(*this, startA, endA, arcVectorA, bulgeA);
    ArcFrame const arcB = MakeArcFrame(*this, startB, endB, arcVectorB, bulgeB);
    ArcHits const hits = IntersectArcs(*this, arcA, arcB);
    p1 = hits.points[0];
    p2 = hits.points[1];
    a1 = hits.onArc[0];
    a2 = hits.onArc[1];
    b1 = hits.onOther[0];
    b2 = hits.onOther[1];
    flags = hits.flags;
    return hits.code;
}

int CMathematics::ExtendedArcIntersection(TUVect3D const & startA, TUVect3D const & endA,
                                          TUVect3D const & arcVectorA, double const & bulgeA,
                                          TUVect3D const & startB, TUVect3D const & endB,
                                          TUVect3D const & arcVectorB, double const & bulgeB, TUVect3D & p1,
                                          TUVect3D & p2, int & classA1, int & classB1, int & classA2,
                                          int & classB2)
{
    ArcFrame const arcA = MakeArcFrame(*this, startA, endA, arcVectorA, bulgeA);
    ArcFrame const arcB = MakeArcFrame(*this, startB, endB, arcVectorB, bulgeB);
    ArcHits const hits = IntersectArcs(*this, arcA, arcB);
    if (hits.code == kCommonStretch)
        return kCommonStretch;
    if (hits.found >= 1) {
        p1 = hits.points[0];
        classA1 = ArcClass(hits.onArc[0]);
        classB1 = ArcClass(hits.onOther[0]);
    }
    if (hits.found == 2) {
        p2 = hits.points[1];
        classA2 = ArcClass(hits.onArc[1]);
        classB2 = ArcClass(hits.onOther[1]);
    }
    return hits.found;
}
