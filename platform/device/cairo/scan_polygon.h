#ifndef KX7_PLATFORM_DEVICE_CAIRO_SCAN_POLYGON_H
#define KX7_PLATFORM_DEVICE_CAIRO_SCAN_POLYGON_H

#include <span>
#include <vector>

#include "platform/base/gdi_types.h"

namespace detail {
/// Pixels `left` up to and without `right` of row `y`.
struct PixelSpan
{
    int y, left, right;
};

/// The pixels inside polygons, row by row from the top. A pixel counts by its middle, which lies on whole
/// coordinates; a middle on a left or top edge is inside, on a right or bottom edge outside. `counts` tells
/// how many of the points belong to each polygon; each closes itself. Rows and columns outside of `clip` are
/// left out. `fillMode` is ALTERNATE or WINDING, over all polygons together.
std::vector<PixelSpan> ScanPolygons(std::span<POINT const> points, std::span<int const> counts, int fillMode,
                                    RECT const & clip);
}  // namespace detail

#endif
