// What two edges have in common.

#include <new>

#include "geometry/edges_rejection.h"
#include "geometry/edges_set.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
// Codes of the arc intersections.
constexpr int kOnePoint = 1;
constexpr int kTwoPoints = 2;
constexpr int kOneCircle = 3;
constexpr int kTangentPoint = 17;

int PointWithPoint(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set)
{
    if (!math.ComparePoints(a.start, b.start, 1))
        return 0;
    set.Add(a);
    return 1;
}

int PointWithEdge(CMathematics & math, TSPlaneEdge3D & point, TSPlaneEdge3D & edge, EdgeSet & set, int & how)
{
    double distance;
    if (!math.IsPoint3DInEdge3D(edge, point.start, distance))
        return 0;
    set.Add(point);
    how = kPointsInCommon;
    return 1;
}

int LineWithLine(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set, int & how)
{
    if (math.CompareLine(a.start, a.end, b.start, b.end, 1)) {
        set.Add(a);
        return 1;
    }
    TUVect3D p1{};
    TUVect3D p2{};
    if (math.LineLiesOnLine(a.start, a.end, b.start, b.end, p1, p2)) {
        how = set.AddLine(math, p1, p2) ? kStretchInCommon : kPointsInCommon;
        return 1;
    }
    int kind;
    if (!math.LineIntersection(a.start, a.end, b.start, b.end, 1, p1, p2, kind))
        return 0;
    set.AddPoint(p1);
    how = kPointsInCommon;
    return 1;
}

/// The points that an intersection code announces; 0 for a code that announces none.
int AddPoints(int code, TUVect3D const & p1, TUVect3D const & p2, EdgeSet & set, int & how)
{
    if (code != kOnePoint && code != kTwoPoints && code != kTangentPoint)
        return 0;
    set.AddPoint(p1);
    if (code == kTwoPoints)
        set.AddPoint(p2);
    how = kPointsInCommon;
    return 1;
}

int LineWithArc(CMathematics & math, TSPlaneEdge3D & line, TSPlaneEdge3D & arc, EdgeSet & set, int & how)
{
    TUVect3D p1{};
    TUVect3D p2{};
    int const code = math.ArcLineIntersectionPlus(arc.start, arc.end, arc.arcVector, arc.bulge, line.start,
                                                  line.end, p1, p2, 1);
    return AddPoints(code, p1, p2, set, how);
}

int ArcWithArc(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set, int & how)
{
    if (math.CompareArc(&a, &b)) {
        set.Add(a);
        return 1;
    }
    TUVect3D p1{};
    TUVect3D p2{};
    double a1;
    double a2;
    double b1;
    double b2;
    int flags;
    int const code = math.ArcIntersectionParameters(a.start, a.end, a.arcVector, a.bulge, b.start, b.end,
                                                    b.arcVector, b.bulge, p1, p2, a1, b2, b1, a2, flags);
    if (code == kOneCircle) {
        // Stays so even if the arcs turn out to share no more than points.
        how = kStretchInCommon;
        return FindCommonArcs(math, a, b, set);
    }
    return code == kTangentPoint ? 0 : AddPoints(code, p1, p2, set, how);
}

bool IsKnownType(int type)
{
    return type == EDGE_POINT || type == EDGE_LINE || type == EDGE_ARC;
}

/// Hands out what one case of the intersection finds.
template <typename Intersect>
int HandOutCase(TSPlaneEdge3D *& result, int & count, int & how, Intersect intersect)
{
    EdgeSet set;
    how = kSameEdge;
    if (!intersect(set, how))
        set.count = 0;
    return HandOut(set, result, count);
}
}  // namespace

void detail::EdgeSet::AddPoint(TUVect3D const & point)
{
    Add({point, point, {}, 0.0, EDGE_POINT});
}

bool detail::EdgeSet::AddLine(CMathematics & math, TUVect3D const & start, TUVect3D const & end)
{
    if (math.ComparePoints(start, end, 1)) {
        AddPoint(start);
        return false;
    }
    Add({start, end, {}, 0.0, EDGE_LINE});
    return true;
}

int detail::HandOut(EdgeSet const & set, TSPlaneEdge3D *& result, int & count)
{
    result = nullptr;
    count = 0;
    if (set.count == 0)
        return 0;
    result = new (std::nothrow) TSPlaneEdge3D[static_cast<std::size_t>(set.count)]{};
    if (!result)
        return 0;
    for (int i = 0; i < set.count; ++i)
        result[i] = set.edges[i];
    count = set.count;
    return 1;
}

int detail::IntersectEdgesPlainly(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set,
                                  int & how)
{
    how = kSameEdge;
    set.count = 0;
    if (!IsKnownType(a.type) || !IsKnownType(b.type))
        return 0;
    if (a.type > b.type)
        return IntersectEdgesPlainly(math, b, a, set, how);
    if (b.type == EDGE_POINT)
        return PointWithPoint(math, a, b, set);
    if (a.type == EDGE_POINT)
        return PointWithEdge(math, a, b, set, how);
    if (b.type == EDGE_LINE)
        return LineWithLine(math, a, b, set, how);
    return a.type == EDGE_LINE ? LineWithArc(math, a, b, set, how) : ArcWithArc(math, a, b, set, how);
}

int detail::IntersectEdges(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set,
                           int & how)
{
    if (!EdgesAreApart(math.GetOkoli(), a, b))
        return IntersectEdgesPlainly(math, a, b, set, how);
    how = kSameEdge;
    set.count = 0;
    return 0;
}

int CMathematics::EdgeIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b, TSPlaneEdge3D *& result,
                                   int & count, int & how)
{
    EdgeSet set;
    how = kSameEdge;
    if (!a || !b || !IntersectEdges(*this, *a, *b, set, how))
        set.count = 0;
    // Freed only now, so that the edges may lie in it.
    delete[] result;
    return HandOut(set, result, count);
}

int CMathematics::EdgePointPointIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b,
                                             TSPlaneEdge3D *& result, int & count, int & how)
{
    return HandOutCase(result, count, how,
                       [&](EdgeSet & set, int &) { return PointWithPoint(*this, *a, *b, set); });
}

int CMathematics::EdgePointLineIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b,
                                            TSPlaneEdge3D *& result, int & count, int & how)
{
    return HandOutCase(result, count, how, [&](EdgeSet & set, int & meeting) {
        return PointWithEdge(*this, *a, *b, set, meeting);
    });
}

int CMathematics::EdgePointArcIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b,
                                           TSPlaneEdge3D *& result, int & count, int & how)
{
    return HandOutCase(result, count, how, [&](EdgeSet & set, int & meeting) {
        return PointWithEdge(*this, *a, *b, set, meeting);
    });
}

int CMathematics::EdgeLineLineIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b,
                                           TSPlaneEdge3D *& result, int & count, int & how)
{
    return HandOutCase(result, count, how, [&](EdgeSet & set, int & meeting) {
        return LineWithLine(*this, *a, *b, set, meeting);
    });
}

int CMathematics::EdgeLineArcIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b,
                                          TSPlaneEdge3D *& result, int & count, int & how)
{
    return HandOutCase(result, count, how, [&](EdgeSet & set, int & meeting) {
        return LineWithArc(*this, *a, *b, set, meeting);
    });
}

int CMathematics::EdgeArcArcIntersection(TSPlaneEdge3D * const a, TSPlaneEdge3D * const b,
                                         TSPlaneEdge3D *& result, int & count, int & how)
{
    return HandOutCase(result, count, how,
                       [&](EdgeSet & set, int & meeting) { return ArcWithArc(*this, *a, *b, set, meeting); });
}
