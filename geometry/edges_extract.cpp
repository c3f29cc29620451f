// An edge with a part taken out, and two overlapping lines as one.

#include <initializer_list>

#include "geometry/edges_set.h"
#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// Adds the part of `edge` between two places unless they are one.
bool AddRest(CMathematics & math, TSPlaneEdge3D const & edge, TUVect3D from, TUVect3D to, EdgeSet & set)
{
    if (math.ComparePoints(from, to, 1))
        return true;
    TSPlaneEdge3D rest;
    if (!math.GetSectionOfEdge(edge, from, to, &rest))
        return false;
    set.Add(rest);
    return true;
}

/// What remains of `a` before and behind `b`, which lies wholly on it.
int ExtractContained(CMathematics & math, TSPlaneEdge3D const & a, TSPlaneEdge3D const & b,
                     TSPlaneEdge3D *& result, int & count)
{
    EdgeSet set;
    double startAt;
    double endAt;
    if (math.IsPoint3DInEdge3D(a, b.start, startAt) && math.IsPoint3DInEdge3D(a, b.end, endAt)) {
        TUVect3D const & nearer = startAt <= endAt ? b.start : b.end;
        TUVect3D const & farther = startAt <= endAt ? b.end : b.start;
        if (!AddRest(math, a, a.start, nearer, set) || !AddRest(math, a, farther, a.end, set))
            set.count = 0;
    }
    return HandOut(set, result, count);
}

/// A place by its distance along a direction.
struct PlaceAlong
{
    TUVect3D point;
    double at;
};
}  // namespace

int CMathematics::LineExtractLine(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                  int & count)
{
    if (a->type == EDGE_LINE && b->type == EDGE_LINE && IsLineInLine(a->start, a->end, b->start, b->end))
        return ExtractContained(*this, *a, *b, result, count);
    return HandOut(EdgeSet{}, result, count);
}

int CMathematics::ArcExtractArc(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                int & count)
{
    if (a->type == EDGE_ARC && b->type == EDGE_ARC && IsArcInArc(a, b))
        return ExtractContained(*this, *a, *b, result, count);
    return HandOut(EdgeSet{}, result, count);
}

int CMathematics::EdgeExtractEdge(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                  int & count)
{
    TSPlaneEdge3D * const held = result;
    int extracted = 0;
    if (a && b && a->type == EDGE_LINE)
        extracted = LineExtractLine(a, b, result, count);
    else if (a && b && a->type == EDGE_ARC)
        extracted = ArcExtractArc(a, b, result, count);
    else
        HandOut(EdgeSet{}, result, count);
    // Freed only now, so that the edges may lie in it.
    delete[] held;
    return extracted;
}

int CMathematics::JointEdge3D(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D * result)
{
    if (!a || !b || !result)
        return 0;
    if (a->type == EDGE_LINE)
        return JointLine3D(a, b, result);
    return a->type == EDGE_ARC ? JointArc3D(a, b, result) : 0;
}

int CMathematics::JointLine3D(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D * result)
{
    if (a->type != EDGE_LINE || b->type != EDGE_LINE)
        return 0;
    TUVect3D const along = Unit(a->end - a->start);
    TUVect3D const alongB = Unit(b->end - b->start);
    // The tolerance acts on the unit vectors here, and so on the angle.
    if (!ComparePoints(along, alongB, 1) && !ComparePoints(along, -alongB, 1))
        return 0;
    double distance;
    if (!IsPoint3DInLine(a->start, a->end, b->start, distance) &&
        !IsPoint3DInLine(a->start, a->end, b->end, distance) &&
        !IsPoint3DInLine(b->start, b->end, a->start, distance) &&
        !IsPoint3DInLine(b->start, b->end, a->end, distance))
        return 0;
    PlaceAlong first{a->start, 0.0};
    PlaceAlong last{a->end, Dot(a->end - a->start, along)};
    for (TUVect3D const & end : {b->start, b->end}) {
        PlaceAlong const place{end, Dot(end - a->start, along)};
        if (place.at < first.at)
            first = place;
        if (place.at > last.at)
            last = place;
    }
    *result = *a;
    result->start = first.point;
    result->end = last.point;
    return 1;
}

int CMathematics::JointArc3D(TSPlaneEdge3D * const, TSPlaneEdge3D * const, TSPlaneEdge3D *)
{
    return 0;
}
