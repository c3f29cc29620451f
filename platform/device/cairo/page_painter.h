#ifndef KX7_PLATFORM_DEVICE_CAIRO_PAGE_PAINTER_H
#define KX7_PLATFORM_DEVICE_CAIRO_PAGE_PAINTER_H

#include "platform/device/cairo/cairo_path.h"
#include "platform/device/cairo/painter.h"

namespace detail {
/// Draws scalable graphics on a Cairo surface of a file.
class PagePainter final : public Painter
{
  public:
    /// `scale` is the surface's units per device unit.
    PagePainter(SurfacePointer surface, int width, int height, double scale);

    CRect Bounds() const override { return CRect(0, 0, m_width, m_height); }
    void SetClip(Region const * clip) override;
    void Lines(std::span<POINT const> points, Ink const & ink) override;
    void Polygons(std::span<POINT const> points, std::span<int const> counts, Ink const & ink) override;
    void Rectangle(CRect const & rect, Ink const & ink) override;
    void Ellipse(CRect const & rect, Ink const & ink) override;
    void Fill(std::span<CRect const> rects, Ink const & ink, DWORD operation) override;
    void Text(TextLine const & line, Ink const & ink) override;
    void Copy(CopyJob const & job, Ink const & ink, DWORD operation) override;
    bool SetPixel(POINT point, COLORREF colour) override;
    COLORREF GetPixel(POINT) const override { return CLR_INVALID; }

    /// Ends the page and writes the file; whether all went well.
    bool Finish();

  private:
    /// Strokes the current path and clears it.
    void StrokePath(Ink const & ink);

    /// Fills the current path and keeps it.
    void FillPath(Ink const & ink);
    void FillHatched(Ink const & ink);
    void FillPattern(Ink const & ink);

    /// Colour of a pen or brush under the raster operation; false for one that draws nothing.
    static bool Applied(int operation, COLORREF & colour);

    SurfacePointer m_surface;
    CairoPointer m_cairo;
    int m_width, m_height;
};
}  // namespace detail

#endif
