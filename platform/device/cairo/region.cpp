#include "platform/device/cairo/region.h"

#include <algorithm>

#include "platform/device/cairo/scan_polygon.h"

namespace detail {
Region::Region(CRect const & rect)
{
    CRect clipped;
    CRect normal = rect;
    normal.NormalizeRect();
    if (clipped.IntersectRect(normal, CRect(-kRegionLimit, -kRegionLimit, kRegionLimit, kRegionLimit)))
        m_rects.push_back(clipped);
}

Region Region::FromPolygon(std::span<POINT const> points, int fillMode)
{
    int const count = static_cast<int>(points.size());
    CRect const limits(-kRegionLimit, -kRegionLimit, kRegionLimit, kRegionLimit);
    Region region;
    for (PixelSpan const & span : ScanPolygons(points, {&count, 1}, fillMode, limits)) {
        // A span under an equal one of the row above makes that rectangle grow.
        CRect * const last = region.m_rects.empty() ? nullptr : &region.m_rects.back();
        if (last && last->bottom == span.y && last->left == span.left && last->right == span.right)
            ++last->bottom;
        else
            region.m_rects.emplace_back(span.left, span.y, span.right, span.y + 1);
    }
    return region;
}

CRect Region::Box() const
{
    CRect box;
    for (CRect const & rect : m_rects)
        box.UnionRect(box, rect);
    return box;
}

int Region::Complexity() const
{
    if (m_rects.size() > 1)
        return COMPLEXREGION;
    return m_rects.empty() ? NULLREGION : SIMPLEREGION;
}

bool Region::Contains(POINT point) const
{
    return std::any_of(m_rects.begin(), m_rects.end(),
                       [point](CRect const & rect) { return rect.PtInRect(point); });
}

Region Region::Intersected(CRect const & rect) const
{
    Region result;
    for (CRect const & part : m_rects) {
        CRect common;
        if (common.IntersectRect(part, rect))
            result.m_rects.push_back(common);
    }
    return result;
}
}  // namespace detail
