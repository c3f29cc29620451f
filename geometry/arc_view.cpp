// An arc in space, seen in the view plane, against segments and rectangles there.

#include <algorithm>
#include <cmath>

#include "geometry/arc_frame.h"
#include "geometry/mathematics.h"
#include "geometry/view_projection.h"

using namespace detail;

namespace {
/// The rays along which a view looks: the view plane point (u, v) is seen of all points u g0 + v g1 + s
/// ahead.
struct ViewRays
{
    TUVect3D g0;
    TUVect3D g1;
    TUVect3D ahead;  // unit vector

    TUVect3D PointOf(TUVect2D const & p) const { return p.x * g0 + p.y * g1; }
};

/// The rays of a view by its rows u and v, which need not be perpendicular or of unit length.
ViewRays RaysOf(double const (*matrix)[3])
{
    TUVect3D const u = {{matrix[0][0], matrix[0][1], matrix[0][2]}};
    TUVect3D const v = {{matrix[1][0], matrix[1][1], matrix[1][2]}};
    TUVect3D const ahead = Cross(u, v);
    double const square = Dot(ahead, ahead);
    return {Cross(v, ahead) * (1.0 / square), Cross(ahead, u) * (1.0 / square), Unit(ahead)};
}

/// The range of the values of some places along a segment.
struct Extent
{
    double low;
    double high;

    void Take(double value)
    {
        low = std::min(low, value);
        high = std::max(high, value);
    }
};

/// An arc seen edge-on, in one line with the segment from `a` of the view plane: whether the two overlap.
bool OverlapsEdgeOn(CMathematics & math, ArcFrame const & arc, double const (*matrix)[3], TUVect2D const & a,
                    TUVect2D const & b)
{
    TUVect2D const direction = Unit(b - a);
    auto const along = [&](TUVect3D const & p) { return Dot(Projected(matrix, p) - a, direction); };
    // The arc reaches furthest along the segment at its ends or where its circle does.
    TUVect3D const inSpace = {{direction.x * matrix[0][0] + direction.y * matrix[1][0],
                               direction.x * matrix[0][1] + direction.y * matrix[1][1],
                               direction.x * matrix[0][2] + direction.y * matrix[1][2]}};
    TUVect3D const reach = arc.radius * Unit(inSpace - Dot(inSpace, arc.axis) * arc.axis);
    Extent extent = {along(arc.start), along(arc.start)};
    extent.Take(along(arc.end));
    for (TUVect3D const & furthest : {arc.centre + reach, arc.centre - reach})
        if (ArcParameter(math, arc, furthest) != kOffArc)
            extent.Take(along(furthest));
    double const okoli = math.GetOkoli();
    return extent.low <= Length(b - a) + okoli && extent.high >= -okoli;
}

/// An arc whose plane is seen edge-on: where it passes the plane in which the segment is seen.
bool CrossesEdgeOn(CMathematics & math, ArcFrame const & arc, TUVect3D const & arcVector,
                   double const (*matrix)[3], ViewRays const & rays, TUVect2D const & a, TUVect2D const & b)
{
    TUVect3D const origin = rays.PointOf(a);
    TUVect3D const normal = Unit(Cross(rays.PointOf(b) - origin, rays.ahead));
    if (Dot(normal, normal) == 0.0)
        return false;
    TUVect3D points[2];
    int count;
    int const code = math.ArcPlaneIntersectionParameters(arc.start, arc.end, arcVector, arc.bulge, origin,
                                                         normal, points[0], points[1], count);
    if (code == kArcInPlane)
        return OverlapsEdgeOn(math, arc, matrix, a, b);
    return std::any_of(points, points + count, [&](TUVect3D const & p) {
        return math.PointLiesOnSegment(a, b, Projected(matrix, p)) == 1;
    });
}

/// A flat arc, seen as its chord.
bool ChordCrosses(CMathematics & math, ArcFrame const & arc, double const (*matrix)[3], TUVect2D const & a,
                  TUVect2D const & b)
{
    TUVect3D p1;
    TUVect3D p2;
    int kind;
    return math.LineIntersection(Widened(Projected(matrix, arc.start)), Widened(Projected(matrix, arc.end)),
                                 Widened(a), Widened(b), 1, p1, p2, kind) == 1;
}
}  // namespace

int CMathematics::ArcRectIntersection(TUVect3D const & start, TUVect3D const & end,
                                      TUVect3D const & arcVector, double const & bulge, double left,
                                      double top, double right, double bottom, double const (*matrix)[3])
{
    TUVect2D const corners[] = {{{left, top}}, {{right, top}}, {{right, bottom}}, {{left, bottom}}};
    for (int i = 0; i < 4; ++i) {
        TUVect2D const & a = corners[i];
        TUVect2D const & b = corners[(i + 1) % 4];
        if (ArcLineIntersection(start, end, arcVector, bulge, a.x, a.y, b.x, b.y, matrix))
            return 2;
    }
    return IsPointInRectangle(start, left, top, right, bottom, matrix);
}

int CMathematics::ArcLineIntersection(TUVect3D const & start, TUVect3D const & end,
                                      TUVect3D const & arcVector, double const & bulge, double const & x1,
                                      double const & y1, double const & x2, double const & y2,
                                      double const (*matrix)[3])
{
    ArcFrame const arc = MakeArcFrame(*this, start, end, arcVector, bulge);
    TUVect2D const a = {{x1, y1}};
    TUVect2D const b = {{x2, y2}};
    if (arc.isFlat)
        return ChordCrosses(*this, arc, matrix, a, b);
    ViewRays const rays = RaysOf(matrix);
    double const rise = Dot(rays.ahead, arc.axis);
    if (!(std::fabs(rise) >= kDirectionLimit))
        return CrossesEdgeOn(*this, arc, arcVector, matrix, rays, a, b);
    // The segment, moved along the rays into the arc's plane.
    auto const lifted = [&](TUVect2D const & p) {
        TUVect3D const onRay = rays.PointOf(p);
        return onRay - arc.HeightOf(onRay) / rise * rays.ahead;
    };
    TUVect3D p1;
    TUVect3D p2;
    return ArcLineIntersection(start, end, arcVector, bulge, lifted(a), lifted(b), p1, p2, 1) != 0;
}
