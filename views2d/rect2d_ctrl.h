#ifndef KX7_VIEWS2D_RECT2D_CTRL_H
#define KX7_VIEWS2D_RECT2D_CTRL_H

#include "geometry/records.h"
#include "platform/window/controls.h"
#include "views2d/detail_plane_mapping.h"

/// A point in model coordinates.
class CPointd
{
  public:
    double x = 0.0, y = 0.0;

    CPointd() = default;
    CPointd(double px, double py) : x(px), y(py) {}
};

/// A window with the mapping of CRect2DObject built in, but for the rounding: pixels are the floor of the
/// same sums. (Windows build only.)
class KX7_API CRect2DCtrl : public detail::Mapped<CWnd>
{
    DECLARE_DYNCREATE(CRect2DCtrl)

  public:
    /// CRect2DObject::SetModelArea for the client area of a window; 0 also for a null one.
    int SetModelArea(CWnd * window, double * x1, double * y1, double * x2, double * y2, int proportional,
                     int margin);

    /// A cross at a model point, `halfSize` pixels to each side.
    void CrossXY(CDC * dc, double x, double y, unsigned char halfSize) const;

    /// Fills a polygon of model points, crossing parts by turns.
    void FillRgn(CDC * dc, CPointd * const points, int count, CBrush * brush) const;
};

/// A button with the same mapping.
class KX7_API CRect2DCtrlBtn : public detail::Mapped<CButton>
{
    DECLARE_DYNCREATE(CRect2DCtrlBtn)

  public:
    /// CRect2DObject::SetModelArea for the client area of a window; 0 also for a null one.
    int SetModelArea(CWnd * window, double * x1, double * y1, double * x2, double * y2, int proportional,
                     int margin);

    /// Fills a polygon of model points, crossing parts by turns.
    void FillRgn(CDC * dc, TUVect2D * const points, int count, CBrush * brush) const;
};

#endif
