// Two arcs in space, told apart from arcs that only touch at their ends.

#include <algorithm>
#include <memory>

#include "geometry/arc_frame.h"
#include "geometry/mathematics.h"

using namespace detail;

namespace {
/// Whether two arcs of one circle share more than points.
bool ShareStretch(CMathematics & math, TSPlaneEdge3D a, TSPlaneEdge3D b)
{
    TSPlaneEdge3D * handedOut = nullptr;
    int count = 0;
    int const found = math.ArcLiesOnArc(&a, &b, handedOut, count);
    std::unique_ptr<TSPlaneEdge3D[]> const pieces(handedOut);
    return found && std::any_of(handedOut, handedOut + count,
                                [](TSPlaneEdge3D const & piece) { return piece.type != EDGE_POINT; });
}
}  // namespace

int CMathematics::ArcIntersection(TUVect3D const & startA, TUVect3D const & endA, TUVect3D const & arcVectorA,
                                  double const & bulgeA, TUVect3D const & startB, TUVect3D const & endB,
                                  TUVect3D const & arcVectorB, double const & bulgeB, TUVect3D & p1,
                                  TUVect3D & p2)
{
    double a1;
    double a2;
    double b1;
    double b2;
    int flags;
    int const code = ArcIntersectionParameters(startA, endA, arcVectorA, bulgeA, startB, endB, arcVectorB,
                                               bulgeB, p1, p2, a1, b2, b1, a2, flags);
    if (code == kCommonStretch) {
        bool const shared = ShareStretch(*this, {startA, endA, arcVectorA, bulgeA, EDGE_ARC},
                                         {startB, endB, arcVectorB, bulgeB, EDGE_ARC});
        return shared ? code : 0;
    }
    return code == 1 && ShareAnEnd(*this, startA, endA, startB, endB) ? 0 : code;
}
