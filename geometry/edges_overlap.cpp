// Stretches that two lines or two arcs have in common, and whether an edge lies wholly on another.

#include <cmath>

#include "geometry/arcs_course.h"
#include "geometry/edges_rejection.h"
#include "geometry/edges_set.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// The ends of one segment that lie on another.
struct EndsOnLine
{
    TUVect3D points[2];
    int count = 0;

    EndsOnLine(CMathematics & math, TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1,
               TUVect3D const & b2)
    {
        Collect(math, a1, a2, b1);
        Collect(math, a1, a2, b2);
    }

  private:
    void Collect(CMathematics & math, TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & p)
    {
        double distance;
        if (!PointIsOffLine(math.GetOkoli(), a1, a2, p) && math.IsPoint3DInLine(a1, a2, p, distance))
            points[count++] = p;
    }
};

/// Where the ends of one arc lie on another one.
struct EndsOnArc
{
    bool startOn;
    bool endOn;
    double startAt;
    double endAt;

    EndsOnArc(CMathematics & math, TSPlaneEdge3D & arc, TSPlaneEdge3D const & other)
        : startOn(math.IsPoint3DInArc(arc, other.start, startAt) != 0),
          endOn(math.IsPoint3DInArc(arc, other.end, endAt) != 0)
    {
    }

    bool Both() const { return startOn && endOn; }
    bool Any() const { return startOn || endOn; }
};

/// Whether two arcs lie on one circle; gives its centre.
bool LieOnOneCircle(CMathematics & math, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b, TUVect3D & centre)
{
    TUVect3D centreB;
    if (!math.Get3DArcCenter(a.start, a.end, a.arcVector, a.bulge, centre) ||
        !math.Get3DArcCenter(b.start, b.end, b.arcVector, b.bulge, centreB) ||
        !math.ComparePoints(centre, centreB, 1))
        return false;
    double const radius = Length(a.start - centre);
    if (!math.CompareDouble(radius, Length(b.start - centreB), 1))
        return false;
    // One plane: the circles nowhere part by more than the tolerance.
    TUVect3D const tilt =
        Cross(ArcAxis(a.start, a.end, a.arcVector, a.bulge), ArcAxis(b.start, b.end, b.arcVector, b.bulge));
    return radius * Length(tilt) <= math.GetOkoli();
}

/// Whether `other`, whose ends lie on `arc` as told by `ends`, runs along it between them and not round the
/// rest of the circle. Both ways have the same chord, so that their middles are the same or opposite points.
bool RunsAlong(CMathematics & math, TSPlaneEdge3D const & arc, TSPlaneEdge3D const & other,
               EndsOnArc const & ends, TUVect3D const & centre)
{
    TUVect3D middle;
    TUVect3D otherMiddle;
    return ends.Both() && math.Get3DPointOnEdge3D(arc, (ends.startAt + ends.endAt) / 2.0, 0, middle) &&
           math.Get3DPointOnEdge3D(other, 0.5, 1, otherMiddle) &&
           Dot(middle - centre, otherMiddle - centre) > 0.0;
}

bool AddSection(CMathematics & math, TSPlaneEdge3D const & arc, TUVect3D from, TUVect3D to, EdgeSet & set)
{
    TSPlaneEdge3D section;
    if (!math.GetSectionOfArc(arc, from, to, &section))
        return false;
    set.Add(section);
    return true;
}

/// `b` runs from one end of itself on `a` round the rest of the circle to the other: what they share are the
/// stretches at both ends of `a`.
bool AddBothEnds(CMathematics & math, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b, EndsOnArc const & onA,
                 EdgeSet & set)
{
    bool const startFirst = onA.startAt <= onA.endAt;
    return AddSection(math, a, a.start, startFirst ? b.start : b.end, set) &&
           AddSection(math, a, startFirst ? b.end : b.start, a.end, set);
}

/// One end of `b` lies on `a` and one end of `a` on `b`: the stretch between them.
bool AddOneEnd(CMathematics & math, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b, EndsOnArc const & onA,
               EndsOnArc const & onB, EdgeSet & set)
{
    TUVect3D const & endOfB = onA.startOn ? b.start : b.end;
    return onB.startOn ? AddSection(math, a, a.start, endOfB, set) : AddSection(math, a, endOfB, a.end, set);
}
}  // namespace

int CMathematics::LineLiesOnLine(TUVect3D & a1, TUVect3D & a2, TUVect3D & b1, TUVect3D & b2, TUVect3D & p1,
                                 TUVect3D & p2)
{
    if (CompareLine(a1, a2, b1, b2, 1)) {
        p1 = a1;
        p2 = a2;
        return 1;
    }
    EndsOnLine const onA(*this, a1, a2, b1, b2);
    if (onA.count == 2) {
        p1 = onA.points[0];
        p2 = onA.points[1];
        return 1;
    }
    EndsOnLine const onB(*this, b1, b2, a1, a2);
    if (onB.count == 2) {
        p1 = onB.points[0];
        p2 = onB.points[1];
        return 1;
    }
    if (onA.count == 0 || onB.count == 0)
        return 0;
    p1 = onA.points[0];
    p2 = onB.points[0];
    return 1;
}

int detail::FindCommonArcs(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set)
{
    set.count = 0;
    if (a.type != EDGE_ARC || b.type != EDGE_ARC)
        return 0;
    if (math.CompareArc(&a, &b)) {
        set.Add(a);
        return 1;
    }
    TUVect3D centre;
    if (!LieOnOneCircle(math, a, b, centre))
        return 0;
    EndsOnArc const onA(math, a, b);
    EndsOnArc const onB(math, b, a);
    if (RunsAlong(math, a, b, onA, centre))
        return AddSection(math, b, b.start, b.end, set);
    if (RunsAlong(math, b, a, onB, centre))
        return AddSection(math, a, a.start, a.end, set);
    if (onA.Both())
        return AddBothEnds(math, a, b, onA, set);
    return onA.Any() && onB.Any() && AddOneEnd(math, a, b, onA, onB, set);
}

int CMathematics::ArcLiesOnArc(TSPlaneEdge3D * a, TSPlaneEdge3D * b, TSPlaneEdge3D *& result, int & count)
{
    EdgeSet set;
    if (!FindCommonArcs(*this, *a, *b, set))
        set.count = 0;
    return HandOut(set, result, count);
}

int CMathematics::Edge3DLiesOnEdge3D(TSPlaneEdge3D * a, TSPlaneEdge3D * b, TSPlaneEdge3D *& result,
                                     int & count)
{
    EdgeSet set;
    TUVect3D p1;
    TUVect3D p2;
    bool const sameType = a && b && a->type == b->type;
    if (sameType && a->type == EDGE_POINT && ComparePoints(a->start, b->start, 1))
        set.Add(*a);
    else if (sameType && a->type == EDGE_LINE && LineLiesOnLine(a->start, a->end, b->start, b->end, p1, p2))
        set.AddLine(*this, p1, p2);
    else if (sameType && a->type == EDGE_ARC && !FindCommonArcs(*this, *a, *b, set))
        set.count = 0;
    delete[] result;
    return HandOut(set, result, count);
}

int CMathematics::IsLineInLine(TUVect3D const & a1, TUVect3D const & a2, TUVect3D const & b1,
                               TUVect3D const & b2)
{
    double distance;
    return IsPoint3DInLine(a1, a2, b1, distance) && IsPoint3DInLine(a1, a2, b2, distance) ? 1 : 0;
}

int CMathematics::IsArcInArc(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b)
{
    double distance;
    EdgeSet set;
    return IsPoint3DInArc(*a, b->start, distance) && IsPoint3DInArc(*a, b->end, distance) &&
                   FindCommonArcs(*this, *a, *b, set) && set.count == 1 && CompareArc(&set.edges[0], b)
               ? 1
               : 0;
}

int CMathematics::IsEdgeInEdge(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b)
{
    double distance;
    if (b->type == EDGE_POINT)
        return IsPoint3DInEdge3D(*a, b->start, distance);
    if (a->type == EDGE_LINE && b->type == EDGE_LINE)
        return IsLineInLine(a->start, a->end, b->start, b->end);
    return a->type == EDGE_ARC && b->type == EDGE_ARC ? IsArcInArc(a, b) : 0;
}
