#ifndef KX7_VIEWS2D_DETAIL_PLANE_MAPPING_H
#define KX7_VIEWS2D_DETAIL_PLANE_MAPPING_H

#include <vector>

#include "geometry/mathematics.h"
#include "platform/base/export.h"
#include "platform/base/rect.h"
#include "platform/device/dc.h"

namespace detail {
/// One axis of a mapping of model coordinates to pixels.
struct MappedAxis
{
    double first = 0.0, last = 0.0;  ///< Model coordinates after adjustment.
    int origin = 0;                  ///< Pixel offset of the model origin.
    double scale = 0.0;              ///< Pixels per model unit; negative for a reversed axis.
    int reversed = 0;
    double span = 0.0;  ///< last - first.

    void WidenBy(int percent);
    void WidenTo(double newSpan);
};

/// Maps a rectangle of the model plane to a rectangle of pixels and draws through that mapping, for the
/// classes of rect2d_object.h and rect2d_ctrl.h, which tell the rules. They differ in their rounding: that of
/// a kernel, or the floor where there is none.
class KX7_API PlaneMapping
{
  public:
    void SetKernel(CMathematics * kernel) { m_kernel = kernel; }

    int SetModelArea(CRect const & rectangle, double * x1, double * y1, double * x2, double * y2,
                     int proportional, int margin);
    void GetModelArea(double * x1, double * y1, double * x2, double * y2, int * proportional) const;
    void ToPixel(double x, double y, int * px, int * py) const;
    void ToModel(int px, int py, double * x, double * y) const;

    /// A cross at a model point, `halfSize` pixels to each side.
    void Cross(CDC * dc, double x, double y, int halfSize) const;
    /// Fills the rectangle between two model points; nothing is filled with a null brush.
    void FillRect(CDC * dc, double x1, double y1, double x2, double y2, CBrush * brush) const;
    /// Fills the polygon of `count` model points (members x and y), crossing parts by turns.
    template <class Point>
    void FillRgn(CDC * dc, Point const * points, int count, CBrush * brush) const;

  private:
    int Round(double value) const;
    void SetPixels(MappedAxis & axis, int low, int high, int size) const;
    int AxisToPixel(MappedAxis const & axis, double value, int size) const;
    void FillPixels(CDC * dc, POINT const * points, int count, CBrush * brush) const;

    CMathematics * m_kernel = nullptr;  // null for the floor
    int m_proportional = 0;
    MappedAxis m_x, m_y;
    CRect m_rectangle;
    int m_width = 0, m_height = 0;
};

template <class Point>
void PlaneMapping::FillRgn(CDC * dc, Point const * points, int count, CBrush * brush) const
{
    std::vector<POINT> pixels;
    for (int i = 0; i < count; ++i) {
        int px = 0, py = 0;
        ToPixel(points[i].x, points[i].y, &px, &py);
        pixels.push_back(CPoint(px, py));
    }
    FillPixels(dc, pixels.data(), static_cast<int>(pixels.size()), brush);
}

/// The operations that all the classes of a mapping share, on top of `Base`.
template <class Base>
class Mapped : public Base
{
  public:
    /// The model rectangle in force and the proportional flag.
    void GetModelArea(double * x1, double * y1, double * x2, double * y2, int * proportional) const
    {
        m_mapping.GetModelArea(x1, y1, x2, y2, proportional);
    }

    /// The pixel of a model point. Always 1.
    int ModelToInt(double x, double y, int * px, int * py) const
    {
        m_mapping.ToPixel(x, y, px, py);
        return 1;
    }

    /// The model point of a pixel. Not the exact inverse of ModelToInt, which rounds half a pixel further
    /// and, for a reversed axis, counts from the other side. Always 1.
    int IntToModel(int px, int py, double * x, double * y) const
    {
        m_mapping.ToModel(px, py, x, y);
        return 1;
    }

    /// Moves the context's current position to a model point; 1.
    int MoveTo(CDC * dc, double x, double y) const
    {
        dc->MoveTo(PixelOf(x, y));
        return 1;
    }

    /// Draws a line to a model point; the result is what the drawing gave.
    int LineTo(CDC * dc, double x, double y) const { return dc->LineTo(PixelOf(x, y)); }

    /// The model point of the context's current position.
    void GetCurrentPosition(CDC * dc, double * x, double * y) const
    {
        CPoint const position = dc->GetCurrentPosition();
        IntToModel(position.x, position.y, x, y);
    }

    /// Fills the rectangle between two model points; nothing is filled with a null brush.
    void FillRect(CDC * dc, double x1, double y1, double x2, double y2, CBrush * brush) const
    {
        m_mapping.FillRect(dc, x1, y1, x2, y2, brush);
    }

  protected:
    CPoint PixelOf(double x, double y) const
    {
        int px = 0, py = 0;
        m_mapping.ToPixel(x, y, &px, &py);
        return CPoint(px, py);
    }

    PlaneMapping m_mapping;
};
}  // namespace detail

#endif
