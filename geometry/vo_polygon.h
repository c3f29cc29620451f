#ifndef KX7_GEOMETRY_VO_POLYGON_H
#define KX7_GEOMETRY_VO_POLYGON_H

#include <memory>

#include "geometry/mathematics.h"
#include "geometry/records.h"
#include "geometry/vo_outline_box_2d.h"
#include "platform/base/array.h"

namespace detail {
class PolygonIndex;
struct TriangleWork;
}  // namespace detail

/// A fixed polygon with arcs, prepared once, that tells of each triangle of a finite-element mesh which part
/// of it lies in the polygon, as for a load on the polygon that is spread over the elements.
///
/// Call Create once, then LoadPolygonFEMTriangleIntersection for each triangle. The kernel has to outlive the
/// object. An object works for one thread at a time.
class KX7_API CVOPolygon
{
  public:
    /// A polygon without a kernel; it can't be created.
    CVOPolygon();

    /// `kernel` is the `CMathematics` used for all geometry, not owned.
    explicit CVOPolygon(void * kernel);

    virtual ~CVOPolygon();
    CVOPolygon(CVOPolygon const &) = delete;
    CVOPolygon & operator=(CVOPolygon const &) = delete;

    /// Prepares a copy of `polygon`, an area in closed form, with the kernel's tolerance of the moment; with
    /// a larger one later the triangles take longer. `testConvexity` not 0 looks whether a counter-clockwise
    /// polygon without arcs is convex, but for its first corner; with 0 it doesn't count as convex. Always 1.
    int Create(CArray<TSPoint2DPlane, TSPoint2DPlane &> & polygon, int testConvexity);

    /// Sets the margin of the box that Create makes; 1e-6 at first.
    void SetOkoli(double okoli);

    /// 1 if the polygon counts as convex.
    int IsConvex() const;

    /// Box of the polygon's records with the margin. An arc marker stretches it to -1e100 in x.
    CVOutlineBox2D & GetOutlineBox();

    /// 1 if the polygon, which is to have no arcs, turns round `point`.
    int IsPointInside(TUVect2D point) const;

    /// Adds area and static moments (Sx the integral of y) of a closed outline without arcs, signed, positive
    /// for a counter-clockwise one; `reset` not 0 zeroes the sums first.
    void ComputeLinePolygonAreaMoments(CArray<TSPoint2DPlane, TSPoint2DPlane &> & outline, double & area,
                                       double & Sx, double & Sy, int reset) const;

    /// Always 0: it never says apart.
    int ArePolygonsSeparated(CArray<TSPoint2DPlane, TSPoint2DPlane &> * a,
                             CArray<TSPoint2DPlane, TSPoint2DPlane &> * b) const;

    /// The part of a triangle (four vertices, the last repeats the first) in the polygon. The triangle has to
    /// run counter-clockwise: of a clockwise one the outlines mean nothing, since its sides aren't turned
    /// round.
    ///
    /// 0  no common area, `result` untouched; also for a polygon inside the triangle that doesn't touch its
    ///    sides, and where a piece can't be made.
    /// 1  `result` is a new array of members of `kind` 2, the outlines of the common part, for the caller to
    ///    free with delete, like the `points` of each. The last outline may be open where the pieces can't be
    ///    chained. Memory exceptions pass through, everything released.
    /// 2  the whole triangle lies in the polygon, `result` untouched.
    int LoadPolygonFEMTriangleIntersection(CArray<TSPoint2DPlane, TSPoint2DPlane &> & triangle,
                                           CArray<TSGeneralSet, TSGeneralSet &> *& result);

    /// The same without the index that Create prepares, side by side: the definition of the result.
    int IntersectTrianglePlainly(CArray<TSPoint2DPlane, TSPoint2DPlane &> & triangle,
                                 CArray<TSGeneralSet, TSGeneralSet &> *& result);

  private:
    void FindOutlineBox();
    void FindConvexity();
    int IntersectPieces(CArray<TSPoint2DPlane, TSPoint2DPlane &> & triangle,
                        detail::PolygonIndex const * index, CArray<TSGeneralSet, TSGeneralSet &> *& result);

    CMathematics * m_pMathematics;
    CVOutlineBox2D m_OutlineBox;
    double m_dOkoli = 1e-6;
    CArray<TSelem, TSelem &> m_Elements;  // the interior on their left
    CArray<TSPoint2DPlane, TSPoint2DPlane &> m_Points;
    int m_iConvex = 0;
    std::unique_ptr<detail::PolygonIndex> m_index;  // null where nothing may be skipped
    std::unique_ptr<detail::TriangleWork> m_work;   // memory of one triangle's intersection
};

#endif
