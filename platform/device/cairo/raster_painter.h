#ifndef KX7_PLATFORM_DEVICE_CAIRO_RASTER_PAINTER_H
#define KX7_PLATFORM_DEVICE_CAIRO_RASTER_PAINTER_H

#include "platform/device/cairo/cairo_path.h"
#include "platform/device/cairo/dash_pattern.h"
#include "platform/device/cairo/painter.h"
#include "platform/device/cairo/scan_ellipse.h"
#include "platform/device/cairo/scan_polygon.h"

namespace detail {
/// Draws pixel by pixel on a bitmap, by the platform's rules: nothing is smoothed but text, and all raster
/// operations work. Thin lines and fills are made here; Cairo forms wide strokes and text.
class RasterPainter final : public Painter
{
  public:
    /// The buffer must outlive the painter.
    explicit RasterPainter(PixelBuffer & pixels);

    CRect Bounds() const override { return CRect(0, 0, m_pixels.width, m_pixels.height); }
    void SetClip(Region const * clip) override;
    void Lines(std::span<POINT const> points, Ink const & ink) override;
    void Polygons(std::span<POINT const> points, std::span<int const> counts, Ink const & ink) override;
    void Rectangle(CRect const & rect, Ink const & ink) override;
    void Ellipse(CRect const & rect, Ink const & ink) override;
    void Fill(std::span<CRect const> rects, Ink const & ink, DWORD operation) override;
    void Text(TextLine const & line, Ink const & ink) override;
    void Copy(CopyJob const & job, Ink const & ink, DWORD operation) override;
    bool SetPixel(POINT point, COLORREF colour) override;
    COLORREF GetPixel(POINT point) const override;
    PixelBuffer const * Pixels() const override { return &m_pixels; }

  private:
    void ThinLines(std::span<POINT const> points, bool closed, Ink const & ink);
    void ThinPiece(POINT from, POINT to, DashState & dash, Ink const & ink);
    void Outline(std::span<POINT const> points, std::span<int const> counts, bool closed, Ink const & ink);
    void ThinEllipse(CRect const & rect, Ink const & ink);
    void DashedEllipse(CRect const & rect, Ink const & ink);
    void FillEllipse(CRect const & rect, Ink const & ink);
    void StrokeSpans(std::span<PixelSpan const> spans, Ink const & ink);
    void FillSpans(std::span<PixelSpan const> spans, Ink const & ink);
    void StrokeSpan(PixelSpan const & span, Ink const & ink);
    void FillSpan(PixelSpan const & span, Ink const & ink);
    cairo_t * Cairo();
    void CopyRect(CRect const & part, CopyJob const & job, Ink const & ink, DWORD operation);

    PixelBuffer & m_pixels;
    std::vector<CRect> m_clip;  ///< Where drawing is let through, inside the bounds.
    CRect m_clipBox;
    SurfacePointer m_surface;  ///< Cairo's view of the pixels, made for the first text.
    CairoPointer m_cairo;      ///< On that surface with the clip set; made anew for a new clip.
};
}  // namespace detail

#endif
