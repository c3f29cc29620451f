#include "platform/device/cairo/cairo_path.h"

#include <algorithm>
#include <numbers>

namespace detail {
namespace {
/// Cairo keeps coordinates in 24 bits before the point; beyond this distance nothing can be seen anyway.
constexpr int kPathLimit = 1 << 22;

double MiddleOf(int coordinate)
{
    return std::clamp(coordinate, -kPathLimit, kPathLimit) + 0.5;
}
}  // namespace

void AddLines(cairo_t * cairo, std::span<POINT const> points, bool closed)
{
    for (std::size_t i = 0; i < points.size(); ++i) {
        double const x = MiddleOf(points[i].x);
        double const y = MiddleOf(points[i].y);
        i == 0 ? cairo_move_to(cairo, x, y) : cairo_line_to(cairo, x, y);
    }
    if (closed)
        cairo_close_path(cairo);
}

void AddEllipse(cairo_t * cairo, RECT const & rect)
{
    double const left = MiddleOf(rect.left);
    double const top = MiddleOf(rect.top);
    double const width = std::max(MiddleOf(rect.right - 1) - left, 0.01);
    double const height = std::max(MiddleOf(rect.bottom - 1) - top, 0.01);
    cairo_save(cairo);
    cairo_translate(cairo, left + width / 2, top + height / 2);
    cairo_scale(cairo, width / 2, height / 2);
    cairo_new_sub_path(cairo);
    cairo_arc(cairo, 0, 0, 1, 0, 2 * std::numbers::pi);
    cairo_close_path(cairo);
    cairo_restore(cairo);
}

void SetWidth(cairo_t * cairo, int width)
{
    cairo_set_line_width(cairo, width);
    cairo_set_line_cap(cairo, CAIRO_LINE_CAP_ROUND);
    cairo_set_line_join(cairo, CAIRO_LINE_JOIN_ROUND);
}

void SetColour(cairo_t * cairo, COLORREF colour)
{
    constexpr double kFull = 255;
    cairo_set_source_rgb(cairo, GetRValue(colour) / kFull, GetGValue(colour) / kFull,
                         GetBValue(colour) / kFull);
}
}  // namespace detail
