#ifndef KX7_PLATFORM_DEVICE_CAIRO_WIDE_STROKE_H
#define KX7_PLATFORM_DEVICE_CAIRO_WIDE_STROKE_H

#include <span>
#include <vector>

#include "platform/device/cairo/scan_polygon.h"

namespace detail {
/// The pixels of a stroke wider than one pixel, with round ends and joints, inside `clip`. Several outlines
/// form one stroke: where they overlap a pixel comes once.
std::vector<PixelSpan> ScanWideLines(std::span<POINT const> points, std::span<int const> counts, bool closed,
                                     int width, RECT const & clip);

/// The same for the outline of an ellipse through the middles of the rectangle's border pixels.
std::vector<PixelSpan> ScanWideEllipse(RECT const & rect, int width, RECT const & clip);
}  // namespace detail

#endif
