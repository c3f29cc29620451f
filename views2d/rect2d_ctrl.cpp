#include "views2d/rect2d_ctrl.h"

IMPLEMENT_DYNCREATE(CRect2DCtrl, CWnd)
IMPLEMENT_DYNCREATE(CRect2DCtrlBtn, CButton)

namespace {
CRect ClientAreaOf(CWnd const * window)
{
    CRect client;
    if (window)
        window->GetClientRect(&client);
    return client;
}
}  // namespace

int CRect2DCtrl::SetModelArea(CWnd * window, double * x1, double * y1, double * x2, double * y2,
                              int proportional, int margin)
{
    return m_mapping.SetModelArea(ClientAreaOf(window), x1, y1, x2, y2, proportional, margin);
}

void CRect2DCtrl::CrossXY(CDC * dc, double x, double y, unsigned char halfSize) const
{
    m_mapping.Cross(dc, x, y, halfSize);
}

void CRect2DCtrl::FillRgn(CDC * dc, CPointd * const points, int count, CBrush * brush) const
{
    m_mapping.FillRgn(dc, points, count, brush);
}

int CRect2DCtrlBtn::SetModelArea(CWnd * window, double * x1, double * y1, double * x2, double * y2,
                                 int proportional, int margin)
{
    return m_mapping.SetModelArea(ClientAreaOf(window), x1, y1, x2, y2, proportional, margin);
}

void CRect2DCtrlBtn::FillRgn(CDC * dc, TUVect2D * const points, int count, CBrush * brush) const
{
    m_mapping.FillRgn(dc, points, count, brush);
}
