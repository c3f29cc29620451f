#ifndef KX7_PLATFORM_DEVICE_CAIRO_OBJECTS_H
#define KX7_PLATFORM_DEVICE_CAIRO_OBJECTS_H

// The objects behind the handles of pens, brushes, fonts, bitmaps and regions.
#include "platform/device/cairo/handle_table.h"
#include "platform/device/cairo/pixel_buffer.h"
#include "platform/device/cairo/region.h"

namespace detail {
class SizedFont;

class PenObject final : public GraphicsObject
{
  public:
    static constexpr ObjectKind kKind = ObjectKind::Pen;
    explicit PenObject(LOGPEN const & record) : GraphicsObject(kKind), m_record(record) {}

    LOGPEN m_record;
};

class BrushObject final : public GraphicsObject
{
  public:
    static constexpr ObjectKind kKind = ObjectKind::Brush;
    explicit BrushObject(LOGBRUSH const & record) : GraphicsObject(kKind), m_record(record) {}

    LOGBRUSH m_record;
    std::unique_ptr<PixelBuffer> m_pattern;  ///< Pixels of a pattern brush.
    bool m_monochrome = false;               ///< The pattern takes the context's two colours.
};

class FontObject final : public GraphicsObject
{
  public:
    static constexpr ObjectKind kKind = ObjectKind::Font;
    explicit FontObject(LOGFONT const & record) : GraphicsObject(kKind), m_record(record) {}

    LOGFONT m_record;
    mutable std::shared_ptr<SizedFont const> m_sized;  ///< The font at the scale that it was used with last.
    mutable double m_sizedScale = 0;
};

class BitmapObject final : public GraphicsObject
{
  public:
    static constexpr ObjectKind kKind = ObjectKind::Bitmap;
    BitmapObject(int width, int height, int bitsPerPixel)
        : GraphicsObject(kKind), m_pixels(width, height, 0), m_bitsPerPixel(bitsPerPixel)
    {
    }

    PixelBuffer m_pixels;
    int m_bitsPerPixel;
};

class RegionObject final : public GraphicsObject
{
  public:
    static constexpr ObjectKind kKind = ObjectKind::Region;
    explicit RegionObject(Region region) : GraphicsObject(kKind), m_region(std::move(region)) {}

    Region m_region;
};

/// The bitmap that every memory context starts with; it can be selected into any number of them.
HBITMAP GetStockBitmap();
}  // namespace detail

#endif
