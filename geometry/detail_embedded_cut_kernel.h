#ifndef KX7_GEOMETRY_DETAIL_EMBEDDED_CUT_KERNEL_H
#define KX7_GEOMETRY_DETAIL_EMBEDDED_CUT_KERNEL_H

#include "geometry/detail_plane_elements.h"
#include "geometry/edges_set.h"
#include "geometry/mathematics.h"
#include "geometry/polygon_sides.h"

namespace detail {
/// The geometry of cutting one element whose ends aren't one place, without allocation; what is missing is
/// the class of a point (see ElementCut).
class EmbeddedCutKernel
{
  public:
    EmbeddedCutKernel(CMathematics & math, TSelem const & e) : m_math(math), m_edge(Embedded(e)) {}

    bool Same(TUVect2D const & p, TUVect2D const & q) { return IsOnePlace(p, q, m_math.GetOkoli()); }

    int Meet(TSelem const & /*e*/, TSelem const & side, TSelem (&parts)[2], int & count, int & kind)
    {
        TSPlaneEdge3D edge = Embedded(side);
        EdgeSet found;
        if (!IntersectEdgesPlainly(m_math, m_edge, edge, found, kind))
            return 0;
        count = found.count;
        for (int i = 0; i < count; ++i)
            Flatten(found.edges[i], parts[i]);
        return 1;
    }

    double PositionOf(TSelem const & /*e*/, TUVect2D const & p)
    {
        double position = 0.0;
        m_math.IsPoint3DInEdge3D(m_edge, Widened(p), position);
        return position;
    }

    TUVect2D PointAt(TSelem const & e, double position)
    {
        TUVect3D point{};
        if (!m_math.Get3DPointOnEdge3D(m_edge, position, 0, point))
            return e.start;
        return {{point.x, point.y}};
    }

  protected:
    CMathematics & Math() { return m_math; }

  private:
    CMathematics & m_math;
    TSPlaneEdge3D m_edge;
};
}  // namespace detail

#endif
