#ifndef KX7_PLATFORM_DEVICE_CAIRO_PAINTER_H
#define KX7_PLATFORM_DEVICE_CAIRO_PAINTER_H

#include <span>

#include "platform/device/cairo/objects.h"

namespace detail {
struct TextLine;

/// How lines and outlines are drawn.
struct Stroke
{
    bool visible = false;  ///< False for a null pen.
    COLORREF colour = 0;
    int style = PS_SOLID;
    int width = 1;  ///< Device pixels, at least 1.
};

/// The settings of one drawing call, in device units.
struct Ink
{
    Stroke stroke;
    BrushObject const * brush = nullptr;
    COLORREF textColour = 0;
    COLORREF backgroundColour = 0xFFFFFF;
    bool opaqueBackground = true;
    int operation = R2_COPYPEN;
    int fillMode = ALTERNATE;

    bool Fills() const { return brush && brush->m_record.lbStyle != BS_NULL; }
};

/// A rectangle of a source and where it goes.
struct CopyJob
{
    PixelBuffer const * source;
    CRect from, to;  ///< Normal rectangles; a mirrored copy has a flag.
    bool mirrorX, mirrorY;
};

/// Draws on one kind of surface. All coordinates are device units: pixel middles lie on whole numbers.
class Painter
{
  public:
    virtual ~Painter() = default;

    /// The whole surface.
    virtual CRect Bounds() const = 0;

    /// Keeps drawing inside the region; null for the whole surface.
    virtual void SetClip(Region const * clip) = 0;

    /// Strokes from point to point; the last point itself isn't drawn unless the line is closed.
    virtual void Lines(std::span<POINT const> points, Ink const & ink) = 0;

    /// Fills and outlines closed polygons.
    virtual void Polygons(std::span<POINT const> points, std::span<int const> counts, Ink const & ink) = 0;

    /// Fill and outline of a rectangle or the ellipse in it; right and bottom excluded.
    virtual void Rectangle(CRect const & rect, Ink const & ink) = 0;
    virtual void Ellipse(CRect const & rect, Ink const & ink) = 0;

    /// Brush on rectangles by an operation without source (PATCOPY, ...).
    virtual void Fill(std::span<CRect const> rects, Ink const & ink, DWORD operation) = 0;

    virtual void Text(TextLine const & line, Ink const & ink) = 0;

    virtual void Copy(CopyJob const & job, Ink const & ink, DWORD operation) = 0;

    /// Sets a pixel if it lies in the clip; whether it did.
    virtual bool SetPixel(POINT point, COLORREF colour) = 0;

    /// Colour of a pixel; CLR_INVALID outside of the clip or where there are no pixels.
    virtual COLORREF GetPixel(POINT point) const = 0;

    /// The pixels, for copying from them; null where there are none.
    virtual PixelBuffer const * Pixels() const { return nullptr; }
};
}  // namespace detail

#endif
