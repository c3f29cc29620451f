#ifndef KX7_PLATFORM_DEVICE_CAIRO_SCAN_ELLIPSE_H
#define KX7_PLATFORM_DEVICE_CAIRO_SCAN_ELLIPSE_H

#include "platform/base/rect.h"

namespace detail {
/// Columns of an ellipse's pixels on one row, first and last. The row is empty if `first` is above `last`.
struct EllipseRow
{
    int first, last;
};

/// The pixels of the ellipse in a rectangle (right and bottom excluded): those with their middle inside or on
/// it. Rows outside of the rectangle are empty.
class ScanEllipse
{
  public:
    explicit ScanEllipse(CRect const & rect);

    EllipseRow Row(int y) const;

    /// How many pixels at each end of a row belong to an outline one pixel wide: all those that the next row
    /// away from the middle doesn't have, and at least one.
    int OutlineWidth(int y) const;

  private:
    CRect m_rect;
    double m_middleX, m_middleY;
};
}  // namespace detail

#endif
