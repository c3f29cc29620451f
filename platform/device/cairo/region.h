#ifndef KX7_PLATFORM_DEVICE_CAIRO_REGION_H
#define KX7_PLATFORM_DEVICE_CAIRO_REGION_H

#include <span>
#include <vector>

#include "platform/base/rect.h"

namespace detail {
/// Areas lie within this distance of the origin; what a caller gives beyond it is cut off.
constexpr int kRegionLimit = 32767;

/// A set of pixels as rectangles that don't overlap.
class Region
{
  public:
    Region() = default;
    explicit Region(CRect const & rect);

    /// The inside of polygons by the rule of ScanPolygons.
    static Region FromPolygon(std::span<POINT const> points, int fillMode);

    std::vector<CRect> const & Rects() const { return m_rects; }

    /// The smallest rectangle around all; all zero for an empty region.
    CRect Box() const;

    /// NULLREGION, SIMPLEREGION or COMPLEXREGION.
    int Complexity() const;

    bool Contains(POINT point) const;
    Region Intersected(CRect const & rect) const;

  private:
    std::vector<CRect> m_rects;
};
}  // namespace detail

#endif
