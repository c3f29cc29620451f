#ifndef KX7_GEOMETRY_VO_OUTLINE_BOX_2D_H
#define KX7_GEOMETRY_VO_OUTLINE_BOX_2D_H

#include "geometry/records.h"
#include "platform/base/export.h"

/// An axis-parallel box that grows over what is added to it. Lengths in model units.
class KX7_API CVOutlineBox2D
{
  public:
    /// An empty box.
    CVOutlineBox2D();

    /// Makes the box empty.
    void Reset();

    /// Grows the box over `point` with `margin` on all sides.
    void Add(TUVect2D point, double margin);

    /// Grows the box over both ends of `element` with `margin` on all sides. For an arc the margin grows by
    /// the sagitta with the sign of the bulge, so a negative bulge makes it smaller.
    void Add(TSelem element, double margin);

    /// 1 if the boxes overlap or touch.
    int Intersects(CVOutlineBox2D const & other) const;

    double m_dMaxX;  ///< Largest x; -1e300 in an empty box.
    double m_dMinX;  ///< Smallest x; 1e300 in an empty box.
    double m_dMaxY;  ///< Largest y; -1e300 in an empty box.
    double m_dMinY;  ///< Smallest y; 1e300 in an empty box.
};

#endif
