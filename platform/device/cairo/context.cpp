#include "platform/device/cairo/context.h"

#include <algorithm>
#include <cmath>

#include "platform/device/cairo/raster_painter.h"
#include "platform/device/gdi.h"

namespace detail {
namespace {
Stroke StrokeOf(LOGPEN const & pen, Mapping const & mapping)
{
    int const width = static_cast<int>(std::lround(pen.lopnWidth.x * mapping.ScaleX()));
    return {pen.lopnStyle != static_cast<UINT>(PS_NULL), pen.lopnColor, static_cast<int>(pen.lopnStyle),
            std::clamp(width, 1, kRegionLimit)};
}
}  // namespace

DeviceContext::DeviceContext(DeviceTraits const & traits, std::unique_ptr<Painter> painter)
    : GraphicsObject(kKind), m_traits(traits), m_painter(std::move(painter))
{
    m_pen.Put(GetStockObject(BLACK_PEN));
    m_brush.Put(GetStockObject(WHITE_BRUSH));
    m_font.Put(GetStockObject(SYSTEM_FONT));
}

DeviceContext::~DeviceContext()
{
    m_pen.Put(nullptr);
    m_brush.Put(nullptr);
    m_font.Put(nullptr);
    m_bitmap.Put(nullptr);
}

Ink DeviceContext::CurrentInk() const
{
    Ink ink = FillInk(m_brush.Get());
    ink.stroke = StrokeOf(m_pen->m_record, m_mapping);
    ink.operation = m_operation;
    return ink;
}

Ink DeviceContext::FillInk(BrushObject const * brush) const
{
    Ink ink;
    ink.brush = brush;
    ink.textColour = m_textColour;
    ink.backgroundColour = m_backgroundColour;
    ink.opaqueBackground = m_backgroundMode == OPAQUE;
    ink.fillMode = m_fillMode;
    return ink;
}

HGDIOBJ DeviceContext::SelectBitmap(HGDIOBJ handle, BitmapObject & bitmap)
{
    if (!m_isMemory || (!bitmap.m_stock && bitmap.m_selections > 0 && m_bitmap.Get() != &bitmap))
        return nullptr;
    m_painter = bitmap.m_stock ? nullptr : std::make_unique<RasterPainter>(bitmap.m_pixels);
    if (m_painter)
        m_painter->SetClip(m_clip ? &*m_clip : nullptr);
    return m_bitmap.Put(handle);
}

void DeviceContext::SetClip(std::optional<Region> clip)
{
    m_clip = std::move(clip);
    if (m_painter)
        m_painter->SetClip(m_clip ? &*m_clip : nullptr);
}

Region DeviceContext::VisibleClip() const
{
    CRect const bounds = m_painter ? m_painter->Bounds() : CRect(0, 0, m_traits.width, m_traits.height);
    return m_clip ? m_clip->Intersected(bounds) : Region(bounds);
}

HDC EnterContext(std::unique_ptr<DeviceContext> context)
{
    return static_cast<HDC>(AddObject(std::move(context)));
}
}  // namespace detail

using namespace detail;

HDC CreateCompatibleDC(HDC hdc)
{
    DeviceContext const * const model = FindContext(hdc);
    if (hdc && !model)
        return nullptr;
    auto context = std::make_unique<DeviceContext>(model ? model->m_traits : kScreen, nullptr);
    context->m_isMemory = true;
    context->m_bitmap.Put(GetStockBitmap());
    return EnterContext(std::move(context));
}

HBITMAP CreateCompatibleBitmap(HDC hdc, int width, int height)
{
    return FindContext(hdc) ? CreateBitmap(width, height, 1, 32, nullptr) : nullptr;
}

BOOL DeleteDC(HDC hdc)
{
    if (!FindContext(hdc))
        return FALSE;
    RemoveObject(hdc);
    return TRUE;
}

HGDIOBJ SelectObject(HDC hdc, HGDIOBJ object)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return nullptr;
    if (Find<PenObject>(object))
        return context->m_pen.Put(object);
    if (Find<BrushObject>(object))
        return context->m_brush.Put(object);
    if (Find<FontObject>(object))
        return context->m_font.Put(object);
    if (BitmapObject * const bitmap = Find<BitmapObject>(object))
        return context->SelectBitmap(object, *bitmap);
    if (Find<RegionObject>(object))
        return reinterpret_cast<HGDIOBJ>(
            static_cast<std::intptr_t>(SelectClipRgn(hdc, static_cast<HRGN>(object))));
    return nullptr;
}

HGDIOBJ GetCurrentObject(HDC hdc, UINT kind)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context)
        return nullptr;
    switch (kind) {
        case OBJ_PEN:
            return context->m_pen.Handle();
        case OBJ_BRUSH:
            return context->m_brush.Handle();
        case OBJ_FONT:
            return context->m_font.Handle();
        case OBJ_BITMAP:
            return context->m_bitmap.Handle();
        default:
            return nullptr;
    }
}

int GetDeviceCaps(HDC hdc, int index)
{
    constexpr double kMillimetresPerInch = 25.4;
    DeviceContext const * const context = FindContext(hdc);
    if (!context)
        return 0;
    DeviceTraits const & traits = context->m_traits;
    auto const millimetres = [&](int pixels) {
        return static_cast<int>(std::lround(pixels * kMillimetresPerInch / traits.dotsPerInch));
    };
    switch (index) {
        case TECHNOLOGY:
            return traits.technology;
        case HORZSIZE:
            return millimetres(traits.width);
        case VERTSIZE:
            return millimetres(traits.height);
        case HORZRES:
            return traits.width;
        case VERTRES:
            return traits.height;
        case BITSPIXEL:
            return 32;
        case PLANES:
            return 1;
        case LOGPIXELSX:
        case LOGPIXELSY:
            return traits.dotsPerInch;
        default:
            return 0;
    }
}

int SelectClipRgn(HDC hdc, HRGN region)
{
    DeviceContext * const context = FindContext(hdc);
    RegionObject const * const object = Find<RegionObject>(region);
    if (!context || (region && !object))
        return 0;
    context->SetClip(object ? std::optional<Region>(object->m_region) : std::nullopt);
    return context->VisibleClip().Complexity();
}

int IntersectClipRect(HDC hdc, int left, int top, int right, int bottom)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return 0;
    CRect const rect = context->m_mapping.ToDevice(RECT{left, top, right, bottom});
    context->SetClip(context->m_clip ? context->m_clip->Intersected(rect) : Region(rect));
    return context->VisibleClip().Complexity();
}

int GetClipBox(HDC hdc, RECT * box)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context || !box)
        return 0;
    Region const visible = context->VisibleClip();
    CRect const device = visible.Box();
    *box = CRect(context->m_mapping.ToLogical(device.TopLeft()),
                 context->m_mapping.ToLogical(device.BottomRight()));
    return visible.Complexity();
}
