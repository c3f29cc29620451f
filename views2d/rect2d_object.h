#ifndef KX7_VIEWS2D_RECT2D_OBJECT_H
#define KX7_VIEWS2D_RECT2D_OBJECT_H

#include <memory>

#include "platform/base/object.h"
#include "views2d/detail_plane_mapping.h"

/// Maps a rectangle of the model plane to a rectangle of pixels, and draws through that mapping.
///
/// An axis may be given either way: with x1 above x2 the larger coordinate still goes to the right (counted
/// from the other side, so it rounds the other way), likewise y to the bottom. A host that wants y to point
/// up maps -y. A model rectangle without size gets a window around itself.
class KX7_API CRect2DObject : public detail::Mapped<CObject>
{
    DECLARE_DYNCREATE(CRect2DObject)

  public:
    /// The kernel stays the host's and must outlive this object; with null the object makes its own.
    explicit CRect2DObject(CMathematics * kernel = nullptr);
    CRect2DObject(CRect2DObject const &) = delete;
    CRect2DObject & operator=(CRect2DObject const &) = delete;

    /// Sets the mapping of the model rectangle x1, y1 - x2, y2 to `rectangle` in pixels: x1 to its left and
    /// y1 to its top. A span below 1e-5 is widened first: by a tenth of the coordinate to each side, or to -1
    /// and 1 around 0. `margin` widens both spans about the centre, in per cent. With `proportional` 1 the
    /// scales of x and y are made equal by widening one of the spans about its centre, and the rectangle in
    /// force is written back to the four values.
    ///
    /// 1; 0 for a rectangle without width or height, with the former mapping kept but for the flags of
    /// reversed axes and the pixel rectangle.
    int SetModelArea(CRect rectangle, double * x1, double * y1, double * x2, double * y2, int proportional,
                     int margin);

    /// A cross at a model point, `halfSize` pixels to each side.
    void CrossXY(CDC * dc, double x, double y, unsigned char halfSize) const;

    /// A circle about a model point; the diameter is a model length along x, drawn with at least one pixel
    /// radius.
    void CircleXY(CDC * dc, double x, double y, double diameter) const;

  private:
    std::unique_ptr<CMathematics> m_ownKernel;
};

#endif
