#ifndef KX7_PLATFORM_DEVICE_CAIRO_BRUSH_PAINT_H
#define KX7_PLATFORM_DEVICE_CAIRO_BRUSH_PAINT_H

#include "platform/device/cairo/painter.h"

namespace detail {
/// Distance of hatch lines in pixels. The lines stand at fixed places of the device: horizontal ones on rows
/// 3, 11, 19 ..., vertical ones on columns 4, 12, 20 ...
constexpr int kHatchCell = 8;
constexpr int kHatchRow = 3;
constexpr int kHatchColumn = 4;

/// The colour that a brush gives to each pixel.
class BrushPaint
{
  public:
    explicit BrushPaint(Ink const & ink);

    /// Whether all pixels get the same colour.
    bool IsUniform() const { return m_uniform; }

    /// Sets the pixel's colour; false where the brush leaves the pixel alone.
    bool At(int x, int y, Pixel & colour) const
    {
        colour = m_colour;
        if (m_uniform)
            return true;
        return m_pattern ? PatternAt(x, y, colour) : HatchAt(x, y, colour);
    }

  private:
    bool PatternAt(int x, int y, Pixel & colour) const;
    bool HatchAt(int x, int y, Pixel & colour) const;

    bool m_uniform;
    bool m_monochrome;
    bool m_opaque;
    int m_hatch;
    PixelBuffer const * m_pattern;
    Pixel m_colour, m_textColour, m_backgroundColour;
};
}  // namespace detail

#endif
