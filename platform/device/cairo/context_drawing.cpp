#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/device/cairo/context.h"
#include "platform/device/gdi.h"

using namespace detail;

namespace detail {
void Record(DeviceContext & context, EDrawn kind, std::vector<POINT> points)
{
    TSDrawnCall call;
    call.kind = kind;
    call.points = std::move(points);
    call.pen = context.m_pen->m_record;
    call.brush = context.m_brush->m_record;
    call.font = context.m_font->m_record;
    call.textColour = context.m_textColour;
    call.backgroundColour = context.m_backgroundColour;
    call.backgroundMode = context.m_backgroundMode;
    call.textAlign = context.m_textAlign;
    call.rasterOperation = context.m_operation;
    context.m_recording->push_back(std::move(call));
}
}  // namespace detail

namespace {
std::vector<POINT> ToDevice(DeviceContext const & context, std::span<POINT const> points)
{
    std::vector<POINT> device(points.begin(), points.end());
    for (POINT & point : device)
        point = context.m_mapping.ToDevice(point);
    return device;
}

BOOL DrawLines(DeviceContext & context, std::span<POINT const> points, EDrawn kind)
{
    if (context.m_recording)
        Record(context, kind, {points.begin(), points.end()});
    if (context.m_painter)
        context.m_painter->Lines(ToDevice(context, points), context.CurrentInk());
    return TRUE;
}

/// The line from the current position, without any allocation.
void DrawLine(DeviceContext & context, POINT to)
{
    POINT const device[] = {context.m_mapping.ToDevice(context.m_position), context.m_mapping.ToDevice(to)};
    if (context.m_recording)
        Record(context, EDrawn::Line, {context.m_position, to});
    if (context.m_painter)
        context.m_painter->Lines(device, context.CurrentInk());
}

BOOL DrawPolygons(DeviceContext & context, std::span<POINT const> points, std::span<int const> counts,
                  EDrawn kind)
{
    if (context.m_recording)
        Record(context, kind, {points.begin(), points.end()});
    if (context.m_painter)
        context.m_painter->Polygons(ToDevice(context, points), counts, context.CurrentInk());
    return TRUE;
}

/// The rectangle of a corner and a size; a size past the range of coordinates is cut.
RECT RectAt(int x, int y, int width, int height)
{
    auto const sum = [](int start, int size) {
        return static_cast<LONG>(std::clamp<std::int64_t>(std::int64_t{start} + size, INT32_MIN, INT32_MAX));
    };
    return {x, y, sum(x, width), sum(y, height)};
}

void RecordFill(DeviceContext & context, EDrawn kind, RECT const & rect, BrushObject const & brush,
                DWORD operation)
{
    Record(context, kind, {{rect.left, rect.top}, {rect.right, rect.bottom}});
    context.m_recording->back().brush = brush.m_record;
    context.m_recording->back().copyOperation = operation;
}
}  // namespace

BOOL MoveToEx(HDC hdc, int x, int y, POINT * old)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return FALSE;
    POINT const before = std::exchange(context->m_position, POINT{x, y});
    if (old)
        *old = before;
    return TRUE;
}

BOOL GetCurrentPositionEx(HDC hdc, POINT * position)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context || !position)
        return FALSE;
    *position = context->m_position;
    return TRUE;
}

BOOL LineTo(HDC hdc, int x, int y)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return FALSE;
    DrawLine(*context, {x, y});
    context->m_position = {x, y};
    return TRUE;
}

BOOL Polyline(HDC hdc, POINT const * points, int count)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context || !points || count < 2)
        return FALSE;
    return DrawLines(*context, {points, static_cast<std::size_t>(count)}, EDrawn::Polyline);
}

BOOL Polygon(HDC hdc, POINT const * points, int count)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context || !points || count < 2)
        return FALSE;
    return DrawPolygons(*context, {points, static_cast<std::size_t>(count)}, {&count, 1}, EDrawn::Polygon);
}

BOOL PolyPolygon(HDC hdc, POINT const * points, int const * counts, int polygons)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context || !points || !counts || polygons < 1)
        return FALSE;
    std::span<int const> const sizes(counts, static_cast<std::size_t>(polygons));
    std::size_t total = 0;
    for (int const size : sizes) {
        if (size < 2)
            return FALSE;
        total += static_cast<std::size_t>(size);
    }
    return DrawPolygons(*context, {points, total}, sizes, EDrawn::PolyPolygon);
}

BOOL Rectangle(HDC hdc, int left, int top, int right, int bottom)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return FALSE;
    if (context->m_recording)
        Record(*context, EDrawn::Rectangle, {{left, top}, {right, bottom}});
    CRect const device = context->m_mapping.ToDevice(RECT{left, top, right, bottom});
    if (context->m_painter && !device.IsRectEmpty())
        context->m_painter->Rectangle(device, context->CurrentInk());
    return TRUE;
}

BOOL Ellipse(HDC hdc, int left, int top, int right, int bottom)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return FALSE;
    if (context->m_recording)
        Record(*context, EDrawn::Ellipse, {{left, top}, {right, bottom}});
    CRect const device = context->m_mapping.ToDevice(RECT{left, top, right, bottom});
    if (context->m_painter && !device.IsRectEmpty())
        context->m_painter->Ellipse(device, context->CurrentInk());
    return TRUE;
}

int FillRect(HDC hdc, RECT const * rect, HBRUSH brush)
{
    DeviceContext * const context = FindContext(hdc);
    BrushObject const * const object = Find<BrushObject>(brush);
    if (!context || !rect || !object)
        return 0;
    if (context->m_recording)
        RecordFill(*context, EDrawn::Fill, *rect, *object, PATCOPY);
    CRect const device = context->m_mapping.ToDevice(*rect);
    if (context->m_painter && context->FillInk(object).Fills())
        context->m_painter->Fill({&device, 1}, context->FillInk(object), PATCOPY);
    return 1;
}

BOOL FillRgn(HDC hdc, HRGN region, HBRUSH brush)
{
    DeviceContext * const context = FindContext(hdc);
    RegionObject const * const area = Find<RegionObject>(region);
    BrushObject const * const object = Find<BrushObject>(brush);
    if (!context || !area || !object)
        return FALSE;
    if (context->m_recording)
        RecordFill(*context, EDrawn::FillRegion, area->m_region.Box(), *object, PATCOPY);
    std::vector<CRect> rects = area->m_region.Rects();
    for (CRect & rect : rects)
        rect = context->m_mapping.ToDevice(rect);
    if (context->m_painter && context->FillInk(object).Fills())
        context->m_painter->Fill(rects, context->FillInk(object), PATCOPY);
    return TRUE;
}

BOOL PatBlt(HDC hdc, int x, int y, int width, int height, DWORD operation)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context || TernaryOperation(operation).UsesSource())
        return FALSE;
    RECT const rect = RectAt(x, y, width, height);
    if (context->m_recording)
        RecordFill(*context, EDrawn::Fill, rect, *context->m_brush.Get(), operation);
    Ink const ink = context->FillInk(context->m_brush.Get());
    CRect const device = context->m_mapping.ToDevice(rect);
    if (context->m_painter && (ink.Fills() || !TernaryOperation(operation).UsesPattern()))
        context->m_painter->Fill({&device, 1}, ink, operation);
    return TRUE;
}

COLORREF SetPixel(HDC hdc, int x, int y, COLORREF colour)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return CLR_INVALID;
    if (context->m_recording) {
        Record(*context, EDrawn::Pixel, {{x, y}});
        context->m_recording->back().textColour = colour;
    }
    bool const drawn =
        context->m_painter && context->m_painter->SetPixel(context->m_mapping.ToDevice(POINT{x, y}), colour);
    return drawn ? colour : CLR_INVALID;
}

COLORREF GetPixel(HDC hdc, int x, int y)
{
    DeviceContext const * const context = FindContext(hdc);
    return context && context->m_painter
               ? context->m_painter->GetPixel(context->m_mapping.ToDevice(POINT{x, y}))
               : CLR_INVALID;
}

BOOL BitBlt(HDC hdc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
            DWORD operation)
{
    if (!TernaryOperation(operation).UsesSource())
        return PatBlt(hdc, x, y, width, height, operation);
    return StretchBlt(hdc, x, y, width, height, source, sourceX, sourceY, width, height, operation);
}

BOOL StretchBlt(HDC hdc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                int sourceWidth, int sourceHeight, DWORD operation)
{
    DeviceContext * const context = FindContext(hdc);
    DeviceContext const * const from = FindContext(source);
    PixelBuffer const * const pixels = from && from->m_painter ? from->m_painter->Pixels() : nullptr;
    if (!context || !pixels)
        return FALSE;
    if (context->m_recording)
        RecordFill(*context, EDrawn::Copy, RectAt(x, y, width, height), *context->m_brush.Get(), operation);
    CRect const target = context->m_mapping.ToDevice(RectAt(x, y, width, height));
    CRect const area = from->m_mapping.ToDevice(RectAt(sourceX, sourceY, sourceWidth, sourceHeight));
    if (!context->m_painter || target.IsRectEmpty() || area.IsRectEmpty())
        return TRUE;
    // Copying a bitmap onto itself reads from a copy, so that the order of pixels doesn't matter.
    PixelBuffer const * image = pixels;
    PixelBuffer const copy = pixels == context->m_painter->Pixels() ? *pixels : PixelBuffer(1, 1, 0);
    if (pixels == context->m_painter->Pixels())
        image = &copy;
    context->m_painter->Copy({image, area, target, width < 0, height < 0},
                             context->FillInk(context->m_brush.Get()), operation);
    return TRUE;
}
