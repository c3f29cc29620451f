#include "views2d/rect2d_object.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

IMPLEMENT_DYNCREATE(CRect2DObject, CObject)

CRect2DObject::CRect2DObject(CMathematics * kernel)
    : m_ownKernel(kernel ? nullptr : std::make_unique<CMathematics>())
{
    m_mapping.SetKernel(kernel ? kernel : m_ownKernel.get());
}

int CRect2DObject::SetModelArea(CRect rectangle, double * x1, double * y1, double * x2, double * y2,
                                int proportional, int margin)
{
    return m_mapping.SetModelArea(rectangle, x1, y1, x2, y2, proportional, margin);
}

void CRect2DObject::CrossXY(CDC * dc, double x, double y, unsigned char halfSize) const
{
    m_mapping.Cross(dc, x, y, halfSize);
}

void CRect2DObject::CircleXY(CDC * dc, double x, double y, double diameter) const
{
    CPoint const centre = PixelOf(x, y);
    int const fromX = PixelOf(0.0, 0.0).x;
    int const toX = PixelOf(std::fabs(diameter / 2), 0.0).x;
    int const radius = std::max(std::abs(toX - fromX), 1);
    dc->Ellipse(centre.x - radius, centre.y - radius, centre.x + radius, centre.y + radius);
}
