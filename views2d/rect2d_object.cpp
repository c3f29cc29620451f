#include "views2d/rect2d_object.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>

IMPLEMENT_DYNCREATE(CRect2DObject, CObject)

namespace {
constexpr double kSmallestSpan = 1e-5;

// A model without size in one direction gets a window around itself.
void OpenWindow(double & first, double & last)
{
    if (std::fabs(last - first) >= kSmallestSpan)
        return;
    if (std::fabs(first) < kSmallestSpan) {
        last = 1.0;
        first = -1.0;
        return;
    }
    double const step = std::fabs(first) / 10;
    last += step;
    first -= step;
}

// The difference of two pixel positions, as far as an int goes.
int PixelDifference(int a, int b)
{
    long long const difference = static_cast<long long>(a) - b;
    return static_cast<int>(std::clamp<long long>(difference, INT_MIN, INT_MAX));
}
}  // namespace

CRect2DObject::CRect2DObject(CMathematics * kernel)
    : m_ownKernel(kernel ? nullptr : std::make_unique<CMathematics>()),
      m_kernel(kernel ? kernel : m_ownKernel.get())
{
}

void CRect2DObject::Axis::WidenTo(double newSpan)
{
    if (reversed == 0) {
        first += span / 2;
        span = newSpan;
        first -= span / 2;
        last = first + span;
        return;
    }
    last -= span / 2;
    span = newSpan;
    last += span / 2;
    first = last - span;
}

void CRect2DObject::Axis::SetPixels(CMathematics & kernel, int low, int high, int size)
{
    scale = size / span;
    origin = reversed == 0 ? PixelDifference(low, kernel.RoundToInt(first * scale))
                           : PixelDifference(kernel.RoundToInt(last * scale), high);
}

// The half goes in before the rounding and stays: it is part of what every view shows.
int CRect2DObject::Axis::ToPixel(CMathematics & kernel, double value, int size) const
{
    return kernel.RoundToInt(reversed == 0 ? value * scale + origin + 0.5
                                           : size - value * scale + origin + 0.5);
}

double CRect2DObject::Axis::ToModel(int pixel) const
{
    double const value = (static_cast<double>(pixel) - origin) / scale;
    return reversed == 0 ? value : span - value;
}

int CRect2DObject::SetModelArea(CRect rectangle, double * x1, double * y1, double * x2, double * y2,
                                int proportional, int margin)
{
    Axis x, y;
    x.first = *x1, x.last = *x2;
    y.first = *y1, y.last = *y2;
    m_proportional = proportional;
    m_x.reversed = x.reversed = *x1 > *x2;
    m_y.reversed = y.reversed = *y1 > *y2;
    OpenWindow(y.first, y.last);
    OpenWindow(x.first, x.last);
    m_rectangle = rectangle;
    m_width = PixelDifference(rectangle.right, rectangle.left);
    m_height = PixelDifference(rectangle.bottom, rectangle.top);
    if (m_width <= 0 || m_height <= 0)
        return 0;
    for (Axis * axis : {&x, &y}) {
        axis->span = axis->last - axis->first;
        if (margin == 0)
            continue;
        axis->first += axis->span / 2;
        axis->span = (static_cast<double>(margin) + 100) * axis->span / 100;
        axis->first -= axis->span / 2;
        axis->last = axis->first + axis->span;
    }
    if (proportional == 1) {
        double const pixelRatio = static_cast<double>(m_width) / m_height;
        if (x.span / y.span <= pixelRatio)
            x.WidenTo(pixelRatio * y.span);
        else
            y.WidenTo(x.span / pixelRatio);
    }
    x.SetPixels(*m_kernel, rectangle.left, rectangle.right, m_width);
    y.SetPixels(*m_kernel, rectangle.top, rectangle.bottom, m_height);
    m_x = x;
    m_y = y;
    if (proportional == 1)
        GetModelArea(x1, y1, x2, y2, &proportional);
    return 1;
}

void CRect2DObject::GetModelArea(double * x1, double * y1, double * x2, double * y2, int * proportional) const
{
    *x1 = m_x.first;
    *y1 = m_y.first;
    *x2 = m_x.last;
    *y2 = m_y.last;
    *proportional = m_proportional;
}

int CRect2DObject::ModelToInt(double x, double y, int * px, int * py) const
{
    *px = m_x.ToPixel(*m_kernel, x, m_width);
    *py = m_y.ToPixel(*m_kernel, y, m_height);
    return 1;
}

int CRect2DObject::IntToModel(int px, int py, double * x, double * y) const
{
    *x = m_x.ToModel(px);
    *y = m_y.ToModel(py);
    return 1;
}

int CRect2DObject::MoveTo(CDC * dc, double x, double y) const
{
    int px = 0, py = 0;
    ModelToInt(x, y, &px, &py);
    dc->MoveTo(px, py);
    return 1;
}

int CRect2DObject::LineTo(CDC * dc, double x, double y) const
{
    int px = 0, py = 0;
    ModelToInt(x, y, &px, &py);
    return dc->LineTo(px, py);
}

void CRect2DObject::CrossXY(CDC * dc, double x, double y, unsigned char halfSize) const
{
    int px = 0, py = 0;
    ModelToInt(x, y, &px, &py);
    dc->MoveTo(px - halfSize, py);
    dc->LineTo(px + halfSize + 1, py);
    dc->MoveTo(px, py - halfSize);
    dc->LineTo(px, py + halfSize + 1);
}

void CRect2DObject::CircleXY(CDC * dc, double x, double y, double diameter) const
{
    int px = 0, py = 0, fromX = 0, toX = 0, unused = 0;
    ModelToInt(x, y, &px, &py);
    ModelToInt(0.0, 0.0, &fromX, &unused);
    ModelToInt(std::fabs(diameter / 2), 0.0, &toX, &unused);
    int const radius = std::max(std::abs(toX - fromX), 1);
    dc->Ellipse(px - radius, py - radius, px + radius, py + radius);
}

void CRect2DObject::GetCurrentPosition(CDC * dc, double * x, double * y) const
{
    CPoint const position = dc->GetCurrentPosition();
    IntToModel(position.x, position.y, x, y);
}

void CRect2DObject::FillRect(CDC * dc, double x1, double y1, double x2, double y2, CBrush * brush) const
{
    int left = 0, top = 0, right = 0, bottom = 0;
    ModelToInt(x1, y1, &left, &top);
    ModelToInt(x2, y2, &right, &bottom);
    CRect const rectangle(left, top, right, bottom);
    ::FillRect(dc->GetSafeHdc(), &rectangle, brush ? static_cast<HBRUSH>(brush->GetSafeHandle()) : nullptr);
}
