#include "platform/device/cairo/page_painter.h"

#include <algorithm>
#include <cmath>

#include "platform/device/cairo/brush_paint.h"
#include "platform/device/cairo/dash_pattern.h"
#include "platform/device/cairo/font.h"

namespace detail {
namespace {
SurfacePointer ImageOf(PixelBuffer const & pixels)
{
    SurfacePointer image(cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixels.width, pixels.height));
    if (cairo_surface_status(image.get()) != CAIRO_STATUS_SUCCESS)
        return image;
    unsigned char * const data = cairo_image_surface_get_data(image.get());
    int const stride = cairo_image_surface_get_stride(image.get());
    cairo_surface_flush(image.get());
    for (int y = 0; y < pixels.height; ++y)
        std::copy_n(pixels.Row(y), pixels.width,
                    reinterpret_cast<Pixel *>(data + static_cast<std::ptrdiff_t>(stride) * y));
    cairo_surface_mark_dirty(image.get());
    return image;
}

/// The pattern with the colours that the brush has in this drawing call.
PixelBuffer ColouredPattern(Ink const & ink)
{
    PixelBuffer result = *ink.brush->m_pattern;
    BrushPaint const paint(ink);
    for (int y = 0; y < result.height; ++y)
        for (int x = 0; x < result.width; ++x)
            paint.At(x, y, result.Row(y)[x]);
    return result;
}

/// Adds the hatch lines that cross a box, at the places where they stand on a bitmap.
void AddHatch(cairo_t * cairo, int hatch, CRect const & box)
{
    auto const firstFrom = [](int low, int phase) {
        return low - ((low - phase) % kHatchCell + kHatchCell) % kHatchCell;
    };
    auto const line = [cairo](double x1, double y1, double x2, double y2) {
        cairo_move_to(cairo, x1 + 0.5, y1 + 0.5);
        cairo_line_to(cairo, x2 + 0.5, y2 + 0.5);
    };
    int const height = box.Height();
    if (hatch == HS_HORIZONTAL || hatch == HS_CROSS)
        for (int y = firstFrom(box.top, kHatchRow); y <= box.bottom; y += kHatchCell)
            line(box.left, y, box.right, y);
    if (hatch == HS_VERTICAL || hatch == HS_CROSS)
        for (int x = firstFrom(box.left, kHatchColumn); x <= box.right; x += kHatchCell)
            line(x, box.top, x, box.bottom);
    if (hatch == HS_FDIAGONAL || hatch == HS_DIAGCROSS)
        for (int x = firstFrom(box.left - height, box.top); x <= box.right; x += kHatchCell)
            line(x, box.top, x + height, box.bottom);
    if (hatch == HS_BDIAGONAL || hatch == HS_DIAGCROSS)
        for (int x = firstFrom(box.left, kHatchCell - 1 - box.top); x <= box.right + height; x += kHatchCell)
            line(x, box.top, x - height, box.bottom);
}
}  // namespace

PagePainter::PagePainter(SurfacePointer surface, int width, int height, double scale)
    : m_surface(std::move(surface)), m_cairo(cairo_create(m_surface.get())), m_width(width), m_height(height)
{
    cairo_scale(m_cairo.get(), scale, scale);
}

void PagePainter::SetClip(Region const * clip)
{
    cairo_reset_clip(m_cairo.get());
    if (!clip)
        return;
    for (CRect const & rect : clip->Rects())
        cairo_rectangle(m_cairo.get(), rect.left, rect.top, rect.Width(), rect.Height());
    cairo_clip(m_cairo.get());
}

bool PagePainter::Applied(int operation, COLORREF & colour)
{
    if (operation == R2_BLACK)
        colour = RGB(0, 0, 0);
    if (operation == R2_WHITE)
        colour = RGB(255, 255, 255);
    return operation != R2_NOP;
}

void PagePainter::StrokePath(Ink const & ink)
{
    cairo_t * const cairo = m_cairo.get();
    COLORREF colour = ink.stroke.colour;
    std::span<double const> const dashes =
        ink.stroke.width > 1 ? std::span<double const>() : DashLengths(ink.stroke.style);
    if (ink.stroke.visible && Applied(ink.operation, colour)) {
        SetWidth(cairo, ink.stroke.width);
        if (!dashes.empty()) {
            cairo_set_line_cap(cairo, CAIRO_LINE_CAP_BUTT);
            if (ink.opaqueBackground) {
                SetColour(cairo, ink.backgroundColour);
                cairo_stroke_preserve(cairo);
            }
        }
        cairo_set_dash(cairo, dashes.data(), static_cast<int>(dashes.size()), 0);
        SetColour(cairo, colour);
        cairo_stroke_preserve(cairo);
        cairo_set_dash(cairo, nullptr, 0, 0);
    }
    cairo_new_path(cairo);
}

void PagePainter::FillHatched(Ink const & ink)
{
    cairo_t * const cairo = m_cairo.get();
    if (ink.opaqueBackground) {
        SetColour(cairo, ink.backgroundColour);
        cairo_fill_preserve(cairo);
    }
    double left, top, right, bottom;
    cairo_fill_extents(cairo, &left, &top, &right, &bottom);
    CRect box(static_cast<int>(left) - 1, static_cast<int>(top) - 1, static_cast<int>(right) + 1,
              static_cast<int>(bottom) + 1);
    box.IntersectRect(CRect(box), Bounds());
    cairo_path_t * const path = cairo_copy_path(cairo);
    cairo_save(cairo);
    cairo_clip(cairo);
    AddHatch(cairo, static_cast<int>(ink.brush->m_record.lbHatch), box);
    SetColour(cairo, ink.brush->m_record.lbColor);
    cairo_set_line_width(cairo, 1);
    cairo_stroke(cairo);
    cairo_restore(cairo);
    cairo_append_path(cairo, path);
    cairo_path_destroy(path);
}

void PagePainter::FillPattern(Ink const & ink)
{
    SurfacePointer const image = ImageOf(ColouredPattern(ink));
    cairo_set_source_surface(m_cairo.get(), image.get(), 0, 0);
    cairo_pattern_set_extend(cairo_get_source(m_cairo.get()), CAIRO_EXTEND_REPEAT);
    cairo_fill_preserve(m_cairo.get());
}

void PagePainter::FillPath(Ink const & ink)
{
    COLORREF colour = ink.brush ? ink.brush->m_record.lbColor : 0;
    if (!ink.Fills() || !Applied(ink.operation, colour))
        return;
    cairo_set_fill_rule(m_cairo.get(),
                        ink.fillMode == WINDING ? CAIRO_FILL_RULE_WINDING : CAIRO_FILL_RULE_EVEN_ODD);
    if (ink.brush->m_record.lbStyle == BS_HATCHED)
        FillHatched(ink);
    else if (ink.brush->m_pattern)
        FillPattern(ink);
    else {
        SetColour(m_cairo.get(), colour);
        cairo_fill_preserve(m_cairo.get());
    }
}

void PagePainter::Lines(std::span<POINT const> points, Ink const & ink)
{
    AddLines(m_cairo.get(), points, false);
    StrokePath(ink);
}

void PagePainter::Polygons(std::span<POINT const> points, std::span<int const> counts, Ink const & ink)
{
    std::size_t first = 0;
    for (int const count : counts) {
        AddLines(m_cairo.get(), points.subspan(first, static_cast<std::size_t>(count)), true);
        first += static_cast<std::size_t>(count);
    }
    FillPath(ink);
    StrokePath(ink);
}

void PagePainter::Rectangle(CRect const & rect, Ink const & ink)
{
    POINT const corners[] = {{rect.left, rect.top},
                             {rect.right - 1, rect.top},
                             {rect.right - 1, rect.bottom - 1},
                             {rect.left, rect.bottom - 1}};
    int const count = 4;
    Polygons(corners, {&count, 1}, ink);
}

void PagePainter::Ellipse(CRect const & rect, Ink const & ink)
{
    AddEllipse(m_cairo.get(), rect);
    FillPath(ink);
    StrokePath(ink);
}

void PagePainter::Fill(std::span<CRect const> rects, Ink const & ink, DWORD operation)
{
    Ink copy = ink;
    copy.operation = operation == BLACKNESS ? R2_BLACK : operation == WHITENESS ? R2_WHITE : R2_COPYPEN;
    for (CRect const & rect : rects)
        cairo_rectangle(m_cairo.get(), rect.left, rect.top, rect.Width(), rect.Height());
    FillPath(copy);
    cairo_new_path(m_cairo.get());
}

void PagePainter::Text(TextLine const & line, Ink const & ink)
{
    SetColour(m_cairo.get(), ink.textColour);
    ShowText(m_cairo.get(), line, true);
    cairo_new_path(m_cairo.get());
}

void PagePainter::Copy(CopyJob const & job, Ink const & ink, DWORD operation)
{
    static_cast<void>(ink);
    static_cast<void>(operation);
    cairo_t * const cairo = m_cairo.get();
    SurfacePointer const image = ImageOf(*job.source);
    cairo_save(cairo);
    cairo_rectangle(cairo, job.to.left, job.to.top, job.to.Width(), job.to.Height());
    cairo_clip(cairo);
    cairo_translate(cairo, job.mirrorX ? job.to.right : job.to.left,
                    job.mirrorY ? job.to.bottom : job.to.top);
    cairo_scale(cairo, (job.mirrorX ? -1.0 : 1.0) * job.to.Width() / job.from.Width(),
                (job.mirrorY ? -1.0 : 1.0) * job.to.Height() / job.from.Height());
    cairo_set_source_surface(cairo, image.get(), -job.from.left, -job.from.top);
    cairo_pattern_set_filter(cairo_get_source(cairo), CAIRO_FILTER_NEAREST);
    cairo_paint(cairo);
    cairo_restore(cairo);
}

bool PagePainter::SetPixel(POINT point, COLORREF colour)
{
    SetColour(m_cairo.get(), colour);
    cairo_rectangle(m_cairo.get(), point.x, point.y, 1, 1);
    cairo_fill(m_cairo.get());
    return true;
}

bool PagePainter::Finish()
{
    cairo_show_page(m_cairo.get());
    bool const drawn = cairo_status(m_cairo.get()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_finish(m_surface.get());
    return drawn && cairo_surface_status(m_surface.get()) == CAIRO_STATUS_SUCCESS;
}
}  // namespace detail
