#include "platform/device/cairo/mapping.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace detail {
namespace {
/// value * numerator / denominator, rounded to the nearest and away from zero on a tie.
std::int64_t Scale(std::int64_t value, std::int64_t numerator, std::int64_t denominator)
{
    std::int64_t const product = value * numerator;
    std::int64_t const half = std::abs(denominator) / 2;
    return (product < 0 ? product - half : product + half) / denominator;
}

int Limited(std::int64_t value, int limit)
{
    return static_cast<int>(std::clamp<std::int64_t>(value, -limit, limit));
}

int Transform(int value, int from, int fromExtent, int to, int toExtent, int limit)
{
    std::int64_t const distance = std::int64_t{value} - from;
    return Limited((fromExtent == toExtent ? distance : Scale(distance, toExtent, fromExtent)) + to, limit);
}
}  // namespace

POINT Mapping::ToDevice(POINT p) const
{
    return {
        Transform(p.x, windowOrigin.x, windowExtent.cx, viewportOrigin.x, viewportExtent.cx, kDeviceLimit),
        Transform(p.y, windowOrigin.y, windowExtent.cy, viewportOrigin.y, viewportExtent.cy, kDeviceLimit)};
}

POINT Mapping::ToLogical(POINT p) const
{
    return {Transform(p.x, viewportOrigin.x, viewportExtent.cx, windowOrigin.x, windowExtent.cx, INT32_MAX),
            Transform(p.y, viewportOrigin.y, viewportExtent.cy, windowOrigin.y, windowExtent.cy, INT32_MAX)};
}

CRect Mapping::ToDevice(RECT const & r) const
{
    CRect rect(ToDevice(POINT{r.left, r.top}), ToDevice(POINT{r.right, r.bottom}));
    rect.NormalizeRect();
    return rect;
}

double Mapping::ScaleX() const
{
    return std::fabs(static_cast<double>(viewportExtent.cx) / windowExtent.cx);
}

double Mapping::ScaleY() const
{
    return std::fabs(static_cast<double>(viewportExtent.cy) / windowExtent.cy);
}

bool Mapping::SetMode(int newMode)
{
    if (newMode != MM_TEXT && newMode != MM_ANISOTROPIC)
        return false;
    mode = newMode;
    if (mode == MM_TEXT)
        windowExtent = viewportExtent = CSize(1, 1);
    return true;
}
}  // namespace detail
