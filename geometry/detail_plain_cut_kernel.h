#ifndef KX7_GEOMETRY_DETAIL_PLAIN_CUT_KERNEL_H
#define KX7_GEOMETRY_DETAIL_PLAIN_CUT_KERNEL_H

#include "geometry/detail_element_cut.h"
#include "geometry/detail_plane_elements.h"
#include "geometry/edges_set.h"
#include "geometry/mathematics.h"

namespace detail {
/// The geometry of a cut, by the operations of the kernel themselves.
class PlainCutKernel
{
  public:
    PlainCutKernel(CMathematics & math, Area const & area) : m_math(math), m_area(area) {}

    bool Same(TUVect2D const & p, TUVect2D const & q) { return m_math.ComparePoints(p, q, 1) != 0; }

    /// As CMathematics::ElemIntersection, but without an allocation that could fail unseen.
    int Meet(TSelem const & e, TSelem const & side, TSelem (&parts)[2], int & count, int & kind)
    {
        TSPlaneEdge3D edge1 = Embedded(e);
        TSPlaneEdge3D edge2 = Embedded(side);
        EdgeSet found;
        if (!IntersectEdges(m_math, edge1, edge2, found, kind))
            return 0;
        count = found.count;
        for (int i = 0; i < count; ++i)
            Flatten(found.edges[i], parts[i]);
        return 1;
    }

    double PositionOf(TSelem const & e, TUVect2D const & p)
    {
        double position = 0.0;
        m_math.IsPointInEelem(e, p, position);
        return position;
    }

    TUVect2D PointAt(TSelem const & e, double position)
    {
        TUVect2D p = e.start;
        m_math.GetPointOnEelem(e, position, 0, p);
        return p;
    }

    int ClassOf(TUVect2D const & p)
    {
        int pointClass = 1;  // asks for the full test
        m_math.IsPointInArea(p, &m_area, 0, pointClass);
        return pointClass;
    }

  private:
    CMathematics & m_math;
    Area const & m_area;
};
}  // namespace detail

#endif
