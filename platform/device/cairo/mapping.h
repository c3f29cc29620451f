#ifndef KX7_PLATFORM_DEVICE_CAIRO_MAPPING_H
#define KX7_PLATFORM_DEVICE_CAIRO_MAPPING_H

#include "platform/base/rect.h"

namespace detail {
/// Device coordinates are held within this distance of the origin (27 bits), as the system does.
constexpr int kDeviceLimit = (1 << 27) - 1;

/// The way from logical units to device units of a context.
struct Mapping
{
    int mode = MM_TEXT;
    CPoint windowOrigin, viewportOrigin;
    CSize windowExtent{1, 1}, viewportExtent{1, 1};

    POINT ToDevice(POINT logical) const;
    POINT ToLogical(POINT device) const;
    CRect ToDevice(RECT const & logical) const;

    /// Device units per logical unit, without sign.
    double ScaleX() const;
    double ScaleY() const;

    /// Sets the mode; MM_TEXT puts the extents back to 1. False for a mode that isn't known.
    bool SetMode(int newMode);
};
}  // namespace detail

#endif
