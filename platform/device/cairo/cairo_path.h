#ifndef KX7_PLATFORM_DEVICE_CAIRO_CAIRO_PATH_H
#define KX7_PLATFORM_DEVICE_CAIRO_CAIRO_PATH_H

#include <cairo.h>

#include <memory>
#include <span>

#include "platform/base/gdi_types.h"

namespace detail {
struct SurfaceDeleter
{
    void operator()(cairo_surface_t * surface) const { cairo_surface_destroy(surface); }
};
using SurfacePointer = std::unique_ptr<cairo_surface_t, SurfaceDeleter>;

struct CairoDeleter
{
    void operator()(cairo_t * cairo) const { cairo_destroy(cairo); }
};
using CairoPointer = std::unique_ptr<cairo_t, CairoDeleter>;

/// Adds lines through the middles of pixels to the path.
void AddLines(cairo_t * cairo, std::span<POINT const> points, bool closed);

/// Adds the outline of the ellipse in a rectangle (right and bottom excluded), through the middles of its
/// border pixels.
void AddEllipse(cairo_t * cairo, RECT const & rect);

/// Sets width, round ends and joints for a stroke.
void SetWidth(cairo_t * cairo, int width);

/// Sets an opaque colour to draw with.
void SetColour(cairo_t * cairo, COLORREF colour);
}  // namespace detail

#endif
