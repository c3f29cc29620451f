#include "views2d/detail_plane_mapping.h"

#include <algorithm>
#include <climits>
#include <cmath>

namespace detail {
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

// The largest int that isn't above the value, as far as an int goes.
int FloorToInt(double value)
{
    double const floor = std::floor(value);
    if (!(floor > INT_MIN))
        return INT_MIN;
    return floor >= INT_MAX ? INT_MAX : static_cast<int>(floor);
}

double ToModelOnAxis(MappedAxis const & axis, int pixel)
{
    double const value = (static_cast<double>(pixel) - axis.origin) / axis.scale;
    return axis.reversed == 0 ? value : axis.span - value;
}

// The axis whose pixels are larger gives way.
void MakeScalesEqual(MappedAxis & x, MappedAxis & y, double pixelRatio)
{
    if (x.span / y.span <= pixelRatio)
        x.WidenTo(pixelRatio * y.span);
    else
        y.WidenTo(x.span / pixelRatio);
}
}  // namespace

void MappedAxis::WidenBy(int percent)
{
    first += span / 2;
    span = (static_cast<double>(percent) + 100) * span / 100;
    first -= span / 2;
    last = first + span;
}

void MappedAxis::WidenTo(double newSpan)
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

int PlaneMapping::Round(double value) const
{
    return m_kernel ? m_kernel->RoundToInt(value) : FloorToInt(value);
}

void PlaneMapping::SetPixels(MappedAxis & axis, int low, int high, int size) const
{
    axis.scale = size / axis.span;
    axis.origin = axis.reversed == 0 ? PixelDifference(low, Round(axis.first * axis.scale))
                                     : PixelDifference(Round(axis.last * axis.scale), high);
}

// The half goes in before the rounding and stays: it is part of what every view shows.
int PlaneMapping::AxisToPixel(MappedAxis const & axis, double value, int size) const
{
    return Round(axis.reversed == 0 ? value * axis.scale + axis.origin + 0.5
                                    : size - value * axis.scale + axis.origin + 0.5);
}

int PlaneMapping::SetModelArea(CRect const & rectangle, double * x1, double * y1, double * x2, double * y2,
                               int proportional, int margin)
{
    MappedAxis x, y;
    x.first = *x1, x.last = *x2;
    y.first = *y1, y.last = *y2;
    m_proportional = proportional;
    m_x.reversed = x.reversed = *x1 > *x2;
    m_y.reversed = y.reversed = *y1 > *y2;
    m_rectangle = rectangle;
    m_width = PixelDifference(rectangle.right, rectangle.left);
    m_height = PixelDifference(rectangle.bottom, rectangle.top);
    if (m_width <= 0 || m_height <= 0)
        return 0;
    for (MappedAxis * axis : {&x, &y}) {
        OpenWindow(axis->first, axis->last);
        axis->span = axis->last - axis->first;
        if (margin != 0)
            axis->WidenBy(margin);
    }
    if (proportional == 1)
        MakeScalesEqual(x, y, static_cast<double>(m_width) / m_height);
    SetPixels(x, rectangle.left, rectangle.right, m_width);
    SetPixels(y, rectangle.top, rectangle.bottom, m_height);
    m_x = x;
    m_y = y;
    if (proportional == 1)
        GetModelArea(x1, y1, x2, y2, &proportional);
    return 1;
}

void PlaneMapping::GetModelArea(double * x1, double * y1, double * x2, double * y2, int * proportional) const
{
    *x1 = m_x.first;
    *y1 = m_y.first;
    *x2 = m_x.last;
    *y2 = m_y.last;
    *proportional = m_proportional;
}

void PlaneMapping::ToPixel(double x, double y, int * px, int * py) const
{
    *px = AxisToPixel(m_x, x, m_width);
    *py = AxisToPixel(m_y, y, m_height);
}

void PlaneMapping::ToModel(int px, int py, double * x, double * y) const
{
    *x = ToModelOnAxis(m_x, px);
    *y = ToModelOnAxis(m_y, py);
}

void PlaneMapping::Cross(CDC * dc, double x, double y, int halfSize) const
{
    int px = 0, py = 0;
    ToPixel(x, y, &px, &py);
    dc->MoveTo(px - halfSize, py);
    dc->LineTo(px + halfSize + 1, py);
    dc->MoveTo(px, py - halfSize);
    dc->LineTo(px, py + halfSize + 1);
}

void PlaneMapping::FillRect(CDC * dc, double x1, double y1, double x2, double y2, CBrush * brush) const
{
    int left = 0, top = 0, right = 0, bottom = 0;
    ToPixel(x1, y1, &left, &top);
    ToPixel(x2, y2, &right, &bottom);
    CRect const rectangle(left, top, right, bottom);
    ::FillRect(dc->GetSafeHdc(), &rectangle, brush ? static_cast<HBRUSH>(brush->GetSafeHandle()) : nullptr);
}

void PlaneMapping::FillPixels(CDC * dc, POINT const * points, int count, CBrush * brush) const
{
    CRgn region;
    if (region.CreatePolygonRgn(points, count, ALTERNATE))
        dc->FillRgn(&region, brush);
}
}  // namespace detail
