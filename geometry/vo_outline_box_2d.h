#ifndef KX7_GEOMETRY_VO_OUTLINE_BOX_2D_H
#define KX7_GEOMETRY_VO_OUTLINE_BOX_2D_H

#include <algorithm>

#include "geometry/records.h"
#include "platform/base/export.h"

/// An axis-parallel box that grows over what is added to it. Lengths in model units.
class KX7_API CVOutlineBox2D
{
  public:
    /// An empty box.
    CVOutlineBox2D() { Reset(); }

    /// Makes the box empty.
    void Reset()
    {
        constexpr double kEmpty = 1e300;  // beyond every coordinate
        m_dMaxX = m_dMaxY = -kEmpty;
        m_dMinX = m_dMinY = kEmpty;
    }

    /// Grows the box over `point` with `margin` on all sides.
    void Add(TUVect2D point, double margin)
    {
        m_dMaxX = std::max(m_dMaxX, point.x + margin);
        m_dMinX = std::min(m_dMinX, point.x - margin);
        m_dMaxY = std::max(m_dMaxY, point.y + margin);
        m_dMinY = std::min(m_dMinY, point.y - margin);
    }

    /// Grows the box over both ends of `element` with `margin` on all sides. For an arc the margin grows by
    /// the sagitta with the sign of the bulge, so a negative bulge makes it smaller.
    void Add(TSelem element, double margin);

    /// 1 if the boxes overlap or touch.
    int Intersects(CVOutlineBox2D const & other) const
    {
        bool const apart = other.m_dMaxX < m_dMinX || other.m_dMinX > m_dMaxX || other.m_dMaxY < m_dMinY ||
                           other.m_dMinY > m_dMaxY;
        return apart ? 0 : 1;
    }

    double m_dMaxX;  ///< Largest x; -1e300 in an empty box.
    double m_dMinX;  ///< Smallest x; 1e300 in an empty box.
    double m_dMaxY;  ///< Largest y; -1e300 in an empty box.
    double m_dMinY;  ///< Smallest y; 1e300 in an empty box.
};

#endif
