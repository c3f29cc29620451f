// Axis-aligned boxes of edges.

#include <algorithm>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"

using namespace detail;

namespace {
/// The overlap of two boxes on one axis. False if they miss each other there by more than the tolerance.
bool CutAxis(TS3DBlock const & a, TS3DBlock const & b, int axis, double okoli, TS3DBlock & result)
{
    double const low = std::max(a.min.a[axis], b.min.a[axis]);
    double const high = std::min(a.max.a[axis], b.max.a[axis]);
    result.min.a[axis] = low;
    result.max.a[axis] = high;
    return !(high + okoli < low);
}
}  // namespace

void CMathematics::CalcBlock3D(TUVect3D const & a, TUVect3D const & b, TS3DBlock * result)
{
    for (int i = 0; i < 3; ++i) {
        auto const [low, high] = std::minmax({a.a[i], b.a[i]});
        result->min.a[i] = low;
        result->max.a[i] = high;
    }
}

void CMathematics::CalcBlock3DFromEdge(TSPlaneEdge3D const & edge, TS3DBlock * result)
{
    TUVect3D centre;
    if (edge.type == EDGE_ARC && Get3DArcCenter(edge.start, edge.end, edge.arcVector, edge.bulge, centre)) {
        double const radius = Length(edge.start - centre);
        TUVect3D const reach = {{radius, radius, radius}};
        result->min = centre - reach;
        result->max = centre + reach;
        return;
    }
    CalcBlock3D(edge.start, edge.end, result);
}

void CMathematics::SumBlock3D(TS3DBlock * a, TS3DBlock * b, TS3DBlock * result)
{
    for (int i = 0; i < 3; ++i) {
        result->min.a[i] = std::min(a->min.a[i], b->min.a[i]);
        result->max.a[i] = std::max(a->max.a[i], b->max.a[i]);
    }
}

int CMathematics::CutBlock(TS3DBlock * a, TS3DBlock * b, TS3DBlock * result)
{
    if (!CutAxis(*a, *b, 0, m_dOkoli, *result) || !CutAxis(*a, *b, 1, m_dOkoli, *result))
        return 0;
    // z is cut but not tested: callers take boxes that miss each other only in z for overlapping.
    CutAxis(*a, *b, 2, m_dOkoli, *result);
    return 1;
}

int CMathematics::IsIntersectionOfBlock(TS3DBlock * a, TS3DBlock * b)
{
    TS3DBlock overlap;
    for (int i = 0; i < 3; ++i)
        if (!CutAxis(*a, *b, i, m_dOkoli, overlap))
            return 0;
    return 1;
}
