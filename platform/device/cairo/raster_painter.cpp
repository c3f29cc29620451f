#include "platform/device/cairo/raster_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "platform/device/cairo/brush_paint.h"
#include "platform/device/cairo/font.h"
#include "platform/device/cairo/thin_line.h"
#include "platform/device/cairo/wide_stroke.h"

namespace detail {
namespace {
/// The corners of an outline through the border pixels of a rectangle.
std::array<POINT, 4> Corners(CRect const & rect)
{
    return {POINT{rect.left, rect.top}, POINT{rect.right - 1, rect.top},
            POINT{rect.right - 1, rect.bottom - 1}, POINT{rect.left, rect.bottom - 1}};
}

PixelSpan Clipped(PixelSpan const & span, CRect const & clip)
{
    if (span.y < clip.top || span.y >= clip.bottom)
        return {span.y, 0, 0};
    return {span.y, std::max(span.left, clip.left), std::min(span.right, clip.right)};
}
}  // namespace

RasterPainter::RasterPainter(PixelBuffer & pixels) : m_pixels(pixels)
{
    SetClip(nullptr);
}

void RasterPainter::SetClip(Region const * clip)
{
    Region const visible = clip ? clip->Intersected(Bounds()) : Region(Bounds());
    m_clip = visible.Rects();
    m_clipBox = visible.Box();
    m_cairo.reset();
}

void RasterPainter::StrokeSpan(PixelSpan const & span, Ink const & ink)
{
    BinaryOperation const operation(ink.operation);
    Pixel const colour = PixelOf(ink.stroke.colour);
    for (CRect const & clip : m_clip) {
        PixelSpan const part = Clipped(span, clip);
        for (int x = part.left; x < part.right; ++x) {
            Pixel & pixel = m_pixels.Row(part.y)[x];
            pixel = operation(colour, pixel);
        }
    }
}

void RasterPainter::StrokeSpans(std::span<PixelSpan const> spans, Ink const & ink)
{
    for (PixelSpan const & span : spans)
        StrokeSpan(span, ink);
}

void RasterPainter::FillSpan(PixelSpan const & span, Ink const & ink)
{
    BinaryOperation const operation(ink.operation);
    BrushPaint const paint(ink);
    for (CRect const & clip : m_clip) {
        PixelSpan const part = Clipped(span, clip);
        if (part.left >= part.right)
            continue;
        Pixel * const row = m_pixels.Row(part.y);
        Pixel colour = 0;
        if (paint.IsUniform() && operation.IsCopy() && paint.At(0, 0, colour))
            std::fill(row + part.left, row + part.right, colour);
        else
            for (int x = part.left; x < part.right; ++x)
                if (paint.At(x, part.y, colour))
                    row[x] = operation(colour, row[x]);
    }
}

void RasterPainter::FillSpans(std::span<PixelSpan const> spans, Ink const & ink)
{
    for (PixelSpan const & span : spans)
        FillSpan(span, ink);
}

void RasterPainter::ThinPiece(POINT from, POINT to, DashState & dash, Ink const & ink)
{
    ThinLine const line(from, to);
    BinaryOperation const operation(ink.operation);
    Pixel const colour = PixelOf(ink.stroke.colour);
    Pixel const gapColour = PixelOf(ink.backgroundColour);
    for (CRect const & clip : m_clip) {
        if (dash.IsSolid() && operation.IsCopy())
            line.ForEachIn(clip, [&](int x, int y, std::int64_t) { m_pixels.Row(y)[x] = colour; });
        else
            line.ForEachIn(clip, [&](int x, int y, std::int64_t index) {
                Pixel & pixel = m_pixels.Row(y)[x];
                if (dash.IsOn(index))
                    pixel = operation(colour, pixel);
                else if (ink.opaqueBackground)
                    pixel = operation(gapColour, pixel);
            });
    }
    dash.Advance(line.Length());
}

void RasterPainter::ThinLines(std::span<POINT const> points, bool closed, Ink const & ink)
{
    DashState dash(ink.stroke.style);
    for (std::size_t i = 1; i < points.size(); ++i)
        ThinPiece(points[i - 1], points[i], dash, ink);
    if (closed && points.size() > 1)
        ThinPiece(points.back(), points.front(), dash, ink);
}

void RasterPainter::Outline(std::span<POINT const> points, std::span<int const> counts, bool closed,
                            Ink const & ink)
{
    if (!ink.stroke.visible)
        return;
    if (ink.stroke.width > 1) {
        StrokeSpans(ScanWideLines(points, counts, closed, ink.stroke.width, m_clipBox), ink);
        return;
    }
    std::size_t first = 0;
    for (int const count : counts) {
        ThinLines(points.subspan(first, static_cast<std::size_t>(count)), closed, ink);
        first += static_cast<std::size_t>(count);
    }
}

void RasterPainter::Lines(std::span<POINT const> points, Ink const & ink)
{
    int const count = static_cast<int>(points.size());
    Outline(points, {&count, 1}, false, ink);
}

void RasterPainter::Polygons(std::span<POINT const> points, std::span<int const> counts, Ink const & ink)
{
    if (ink.Fills())
        FillSpans(ScanPolygons(points, counts, ink.fillMode, m_clipBox), ink);
    Outline(points, counts, true, ink);
}

void RasterPainter::Rectangle(CRect const & rect, Ink const & ink)
{
    // Under an outline the inside alone is filled; without one, one row and column less than the rectangle.
    CRect inside = rect;
    ink.stroke.visible ? inside.DeflateRect(1, 1) : inside.DeflateRect(0, 0, 1, 1);
    if (ink.Fills())
        for (int y = std::max(inside.top, m_clipBox.top); y < std::min(inside.bottom, m_clipBox.bottom); ++y)
            FillSpan({y, inside.left, inside.right}, ink);
    std::array<POINT, 4> const corners = Corners(rect);
    int const count = static_cast<int>(corners.size());
    Outline(corners, {&count, 1}, true, ink);
}

void RasterPainter::FillEllipse(CRect const & rect, Ink const & ink)
{
    ScanEllipse const ellipse(rect);
    bool const spareOutline = ink.stroke.visible && ink.stroke.width == 1;
    for (int y = std::max(rect.top, m_clipBox.top); y < std::min(rect.bottom, m_clipBox.bottom); ++y) {
        EllipseRow const row = ellipse.Row(y);
        int const outline = spareOutline ? ellipse.OutlineWidth(y) : 0;
        FillSpan({y, row.first + outline, row.last + 1 - outline}, ink);
    }
}

void RasterPainter::ThinEllipse(CRect const & rect, Ink const & ink)
{
    ScanEllipse const ellipse(rect);
    for (int y = std::max(rect.top, m_clipBox.top); y < std::min(rect.bottom, m_clipBox.bottom); ++y) {
        EllipseRow const row = ellipse.Row(y);
        int const outline = ellipse.OutlineWidth(y);
        StrokeSpan({y, row.first, row.first + outline}, ink);
        StrokeSpan({y, std::max(row.first + outline, row.last + 1 - outline), row.last + 1}, ink);
    }
}

void RasterPainter::DashedEllipse(CRect const & rect, Ink const & ink)
{
    constexpr int kPixelsPerPiece = 4;
    double const radiusX = (static_cast<double>(rect.right) - rect.left - 1) / 2;
    double const radiusY = (static_cast<double>(rect.bottom) - rect.top - 1) / 2;
    int const pieces = static_cast<int>(std::clamp((radiusX + radiusY) * 3 / kPixelsPerPiece, 16.0, 4096.0));
    std::vector<POINT> points;
    for (int i = 0; i < pieces; ++i) {
        double const angle = 2 * std::numbers::pi * i / pieces;
        points.push_back({static_cast<LONG>(std::lround(rect.left + radiusX + radiusX * std::cos(angle))),
                          static_cast<LONG>(std::lround(rect.top + radiusY - radiusY * std::sin(angle)))});
    }
    ThinLines(points, true, ink);
}

void RasterPainter::Ellipse(CRect const & rect, Ink const & ink)
{
    if (ink.Fills())
        FillEllipse(rect, ink);
    if (!ink.stroke.visible)
        return;
    if (ink.stroke.width > 1)
        StrokeSpans(ScanWideEllipse(rect, ink.stroke.width, m_clipBox), ink);
    else if (DashLengths(ink.stroke.style).empty())
        ThinEllipse(rect, ink);
    else
        DashedEllipse(rect, ink);
}

void RasterPainter::Fill(std::span<CRect const> rects, Ink const & ink, DWORD operation)
{
    PixelBuffer const none(1, 1, 0);
    for (CRect const & rect : rects)
        Copy({&none, CRect(0, 0, 1, 1), rect, false, false}, ink, operation);
}

void RasterPainter::Copy(CopyJob const & job, Ink const & ink, DWORD operation)
{
    for (CRect const & clip : m_clip) {
        CRect part;
        if (part.IntersectRect(clip, job.to))
            CopyRect(part, job, ink, operation);
    }
}

void RasterPainter::CopyRect(CRect const & part, CopyJob const & job, Ink const & ink, DWORD operation)
{
    TernaryOperation const combine(operation);
    BrushPaint const paint(ink);
    bool const copies = operation == SRCCOPY;
    auto const sourceAt = [](int target, int start, int size, bool mirror, int from, int fromSize) {
        int const offset = mirror ? size - 1 - (target - start) : target - start;
        return from + static_cast<int>(static_cast<long long>(offset) * fromSize / size);
    };
    for (int y = part.top; y < part.bottom; ++y) {
        int const sourceY =
            sourceAt(y, job.to.top, job.to.Height(), job.mirrorY, job.from.top, job.from.Height());
        for (int x = part.left; x < part.right; ++x) {
            int const sourceX =
                sourceAt(x, job.to.left, job.to.Width(), job.mirrorX, job.from.left, job.from.Width());
            bool const known = job.source->Contains(sourceX, sourceY);
            Pixel const source = known ? job.source->Row(sourceY)[sourceX] : 0;
            Pixel & pixel = m_pixels.Row(y)[x];
            Pixel pattern = 0;
            if (copies)
                pixel = source;
            else if (paint.At(x, y, pattern))
                pixel = combine(pattern, source, pixel);
        }
    }
}

cairo_t * RasterPainter::Cairo()
{
    if (!m_surface)
        m_surface.reset(cairo_image_surface_create_for_data(
            reinterpret_cast<unsigned char *>(m_pixels.pixels.data()), CAIRO_FORMAT_RGB24, m_pixels.width,
            m_pixels.height, m_pixels.width * static_cast<int>(sizeof(Pixel))));
    if (!m_cairo) {
        m_cairo.reset(cairo_create(m_surface.get()));
        for (CRect const & rect : m_clip)
            cairo_rectangle(m_cairo.get(), rect.left, rect.top, rect.Width(), rect.Height());
        cairo_clip(m_cairo.get());
    }
    return m_cairo.get();
}

void RasterPainter::Text(TextLine const & line, Ink const & ink)
{
    cairo_t * const cairo = Cairo();
    cairo_surface_mark_dirty(m_surface.get());
    SetColour(cairo, ink.textColour);
    ShowText(cairo, line, false);
    cairo_surface_flush(m_surface.get());
}

bool RasterPainter::SetPixel(POINT point, COLORREF colour)
{
    for (CRect const & clip : m_clip)
        if (clip.PtInRect(point)) {
            m_pixels.Row(point.y)[point.x] = PixelOf(colour);
            return true;
        }
    return false;
}

COLORREF RasterPainter::GetPixel(POINT point) const
{
    for (CRect const & clip : m_clip)
        if (clip.PtInRect(point))
            return ColourOf(m_pixels.Row(point.y)[point.x] & kPixelMask);
    return CLR_INVALID;
}
}  // namespace detail
