#ifndef KX7_GEOMETRY_EDGES_SET_H
#define KX7_GEOMETRY_EDGES_SET_H

// The edge algebra without allocation: what two edges have in common is two records at most.

#include "geometry/records.h"
#include "platform/base/export.h"

class CMathematics;

namespace detail {
// How two edges meet.
inline constexpr int kSameEdge = 0;
inline constexpr int kStretchInCommon = 1;
inline constexpr int kPointsInCommon = 2;

/// Up to two edges; only the first `count` records are filled.
struct EdgeSet
{
    TSPlaneEdge3D edges[2];
    int count = 0;

    void Add(TSPlaneEdge3D const & edge) { edges[count++] = edge; }
    void AddPoint(TUVect3D const & point);
    /// A line edge, or a point edge if the ends are one place. Returns whether it is a line.
    bool AddLine(CMathematics & math, TUVect3D const & start, TUVect3D const & end);
};

/// CMathematics::EdgeIntersection without allocation, for callers in hot loops. 1 with a result, else 0.
int IntersectEdges(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set, int & how);

/// The same without the quick rejections: the definition that IntersectEdges must agree with.
KX7_API int IntersectEdgesPlainly(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set,
                                  int & how);

/// CMathematics::ArcLiesOnArc without allocation.
int FindCommonArcs(CMathematics & math, TSPlaneEdge3D & a, TSPlaneEdge3D & b, EdgeSet & set);

/// The records of the set as an array for the caller, the result 1; null, 0 and the result 0 for an empty set
/// or without memory.
int HandOut(EdgeSet const & set, TSPlaneEdge3D *& result, int & count);
}  // namespace detail

#endif
