#include "platform/device/cairo/wide_stroke.h"

#include "platform/base/rect.h"
#include "platform/device/cairo/cairo_path.h"

namespace detail {
namespace {
/// Draws by `draw` on a mask as large as the clip and collects the covered pixels.
template <typename Draw>
std::vector<PixelSpan> ScanMask(CRect const & clip, Draw && draw)
{
    std::vector<PixelSpan> spans;
    if (clip.IsRectEmpty())
        return spans;
    SurfacePointer const mask(cairo_image_surface_create(CAIRO_FORMAT_A8, clip.Width(), clip.Height()));
    CairoPointer const cairo(cairo_create(mask.get()));
    cairo_set_antialias(cairo.get(), CAIRO_ANTIALIAS_NONE);
    cairo_translate(cairo.get(), -clip.left, -clip.top);
    draw(cairo.get());
    cairo_stroke(cairo.get());
    cairo_surface_flush(mask.get());
    if (cairo_status(cairo.get()) != CAIRO_STATUS_SUCCESS)
        return spans;
    unsigned char const * const data = cairo_image_surface_get_data(mask.get());
    int const stride = cairo_image_surface_get_stride(mask.get());
    for (int y = 0; y < clip.Height(); ++y) {
        unsigned char const * const row = data + static_cast<std::ptrdiff_t>(stride) * y;
        for (int x = 0; x < clip.Width(); ++x) {
            if (!row[x])
                continue;
            int const start = x;
            while (x < clip.Width() && row[x])
                ++x;
            spans.push_back({clip.top + y, clip.left + start, clip.left + x});
        }
    }
    return spans;
}

/// The part of the clip that a stroke around the rectangle can reach.
CRect Reach(CRect box, int width, CRect const & clip)
{
    box.InflateRect(width, width, width + 1, width + 1);
    CRect reach;
    reach.IntersectRect(box, clip);
    return reach;
}

CRect BoxOf(std::span<POINT const> points)
{
    CRect box(points.front(), points.front());
    for (POINT const point : points)
        box = CRect(point.x < box.left ? point.x : box.left, point.y < box.top ? point.y : box.top,
                    point.x > box.right ? point.x : box.right, point.y > box.bottom ? point.y : box.bottom);
    return box;
}
}  // namespace

std::vector<PixelSpan> ScanWideLines(std::span<POINT const> points, std::span<int const> counts, bool closed,
                                     int width, RECT const & clip)
{
    if (points.empty())
        return {};
    return ScanMask(Reach(BoxOf(points), width, clip), [&](cairo_t * cairo) {
        std::size_t first = 0;
        for (int const count : counts) {
            AddLines(cairo, points.subspan(first, static_cast<std::size_t>(count)), closed);
            first += static_cast<std::size_t>(count);
        }
        SetWidth(cairo, width);
    });
}

std::vector<PixelSpan> ScanWideEllipse(RECT const & rect, int width, RECT const & clip)
{
    return ScanMask(Reach(rect, width, clip), [&](cairo_t * cairo) {
        AddEllipse(cairo, rect);
        SetWidth(cairo, width);
    });
}
}  // namespace detail
