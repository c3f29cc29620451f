#include "platform/device/cairo/objects.h"

#include <algorithm>
#include <cstring>

#include "platform/device/cairo/mapping.h"
#include "platform/device/gdi.h"

using namespace detail;

namespace {
constexpr int kLargestBitmap = 32767;  // width and height, in pixels

template <typename Handle, typename Object>
Handle Enter(std::unique_ptr<Object> object)
{
    return static_cast<Handle>(AddObject(std::move(object)));
}

bool IsHatch(unsigned long long hatch)
{
    return hatch <= static_cast<unsigned>(HS_DIAGCROSS);
}

template <typename Record>
int CopyRecord(Record const & source, int size, void * target)
{
    int const count = std::clamp<int>(size, 0, sizeof(Record));
    if (!target)
        return sizeof(Record);
    std::memcpy(target, &source, static_cast<std::size_t>(count));
    return count;
}

BITMAP RecordOf(BitmapObject const & bitmap)
{
    int const bits = bitmap.m_bitsPerPixel;
    int const rowBytes = (bitmap.m_pixels.width * bits + 15) / 16 * 2;
    return {0, bitmap.m_pixels.width, bitmap.m_pixels.height, rowBytes, 1, static_cast<WORD>(bits), nullptr};
}

/// Pixel of a row of one or 32 bits per pixel.
Pixel ReadPixel(BYTE const * row, int x, int bitsPerPixel)
{
    if (bitsPerPixel == 1)
        return row[x / 8] >> (7 - x % 8) & 1 ? kPixelMask : 0;
    Pixel pixel;
    std::memcpy(&pixel, row + std::size_t{4} * static_cast<std::size_t>(x), sizeof pixel);
    return pixel & kPixelMask;
}

void ReadPixels(BitmapObject & bitmap, BYTE const * bits)
{
    std::size_t const rowBytes = static_cast<std::size_t>(RecordOf(bitmap).bmWidthBytes);
    for (int y = 0; y < bitmap.m_pixels.height; ++y)
        for (int x = 0; x < bitmap.m_pixels.width; ++x)
            bitmap.m_pixels.Row(y)[x] =
                ReadPixel(bits + static_cast<std::size_t>(y) * rowBytes, x, bitmap.m_bitsPerPixel);
}
}  // namespace

HPEN CreatePen(int style, int width, COLORREF colour)
{
    LOGPEN const record{static_cast<UINT>(style), {width, 0}, colour};
    return CreatePenIndirect(&record);
}

HPEN CreatePenIndirect(LOGPEN const * pen)
{
    if (!pen)
        return nullptr;
    LOGPEN record = *pen;
    if (record.lopnStyle > static_cast<UINT>(PS_INSIDEFRAME))
        record.lopnStyle = PS_SOLID;
    record.lopnWidth.x =
        record.lopnWidth.x < 0 ? -std::max(record.lopnWidth.x, -INT32_MAX) : record.lopnWidth.x;
    return Enter<HPEN>(std::make_unique<PenObject>(record));
}

HBRUSH CreateSolidBrush(COLORREF colour)
{
    LOGBRUSH const record{BS_SOLID, colour, 0};
    return CreateBrushIndirect(&record);
}

HBRUSH CreateHatchBrush(int hatch, COLORREF colour)
{
    LOGBRUSH const record{BS_HATCHED, colour, static_cast<unsigned>(hatch)};
    return CreateBrushIndirect(&record);
}

HBRUSH CreatePatternBrush(HBITMAP bitmap)
{
    LOGBRUSH const record{BS_PATTERN, 0, reinterpret_cast<std::uintptr_t>(bitmap)};
    return CreateBrushIndirect(&record);
}

HBRUSH CreateBrushIndirect(LOGBRUSH const * brush)
{
    if (!brush || brush->lbStyle > BS_PATTERN || (brush->lbStyle == BS_HATCHED && !IsHatch(brush->lbHatch)))
        return nullptr;
    auto object = std::make_unique<BrushObject>(*brush);
    if (brush->lbStyle == BS_PATTERN) {
        BitmapObject const * const bitmap =
            Find<BitmapObject>(reinterpret_cast<void const *>(brush->lbHatch));
        if (!bitmap)
            return nullptr;
        object->m_pattern = std::make_unique<PixelBuffer>(bitmap->m_pixels);
        object->m_monochrome = bitmap->m_bitsPerPixel == 1;
    }
    return Enter<HBRUSH>(std::move(object));
}

HFONT CreateFont(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                 DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision, DWORD clipPrecision,
                 DWORD quality, DWORD pitchAndFamily, char const * face)
{
    auto const byte = [](DWORD value) { return static_cast<BYTE>(value); };
    LOGFONT record{height,
                   width,
                   escapement,
                   orientation,
                   weight,
                   byte(italic),
                   byte(underline),
                   byte(strikeOut),
                   byte(charSet),
                   byte(outPrecision),
                   byte(clipPrecision),
                   byte(quality),
                   byte(pitchAndFamily),
                   {}};
    if (face)
        std::strncpy(record.lfFaceName, face, LF_FACESIZE - 1);
    return CreateFontIndirect(&record);
}

HFONT CreateFontIndirect(LOGFONT const * font)
{
    if (!font)
        return nullptr;
    auto object = std::make_unique<FontObject>(*font);
    object->m_record.lfFaceName[LF_FACESIZE - 1] = '\0';
    return Enter<HFONT>(std::move(object));
}

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, void const * bits)
{
    bool const sizeFits = width >= 1 && width <= kLargestBitmap && height >= 1 && height <= kLargestBitmap;
    if (!sizeFits || planes != 1 || (bitsPerPixel != 1 && bitsPerPixel != 32))
        return nullptr;
    auto bitmap = std::make_unique<BitmapObject>(width, height, static_cast<int>(bitsPerPixel));
    if (bits)
        ReadPixels(*bitmap, static_cast<BYTE const *>(bits));
    return Enter<HBITMAP>(std::move(bitmap));
}

HRGN CreateRectRgn(int left, int top, int right, int bottom)
{
    return Enter<HRGN>(std::make_unique<RegionObject>(Region(CRect(left, top, right, bottom))));
}

HRGN CreatePolygonRgn(POINT const * points, int count, int fillMode)
{
    if (!points || count < 2 || (fillMode != ALTERNATE && fillMode != WINDING))
        return nullptr;
    std::vector<POINT> limited(points, points + count);
    for (POINT & point : limited)
        point = Mapping().ToDevice(point);
    return Enter<HRGN>(std::make_unique<RegionObject>(Region::FromPolygon(limited, fillMode)));
}

int GetRgnBox(HRGN region, RECT * box)
{
    RegionObject const * const object = Find<RegionObject>(region);
    if (!object || !box)
        return 0;
    *box = object->m_region.Box();
    return object->m_region.Complexity();
}

BOOL PtInRegion(HRGN region, int x, int y)
{
    RegionObject const * const object = Find<RegionObject>(region);
    return object && object->m_region.Contains({x, y});
}

int GetObject(HGDIOBJ handle, int size, void * record)
{
    if (PenObject const * const pen = Find<PenObject>(handle))
        return CopyRecord(pen->m_record, size, record);
    if (BrushObject const * const brush = Find<BrushObject>(handle))
        return CopyRecord(brush->m_record, size, record);
    if (FontObject const * const font = Find<FontObject>(handle))
        return CopyRecord(font->m_record, size, record);
    if (BitmapObject const * const bitmap = Find<BitmapObject>(handle))
        return CopyRecord(RecordOf(*bitmap), size, record);
    return 0;
}

DWORD GetObjectType(HGDIOBJ handle)
{
    GraphicsObject const * const object = FindObject(handle);
    if (!object)
        return 0;
    switch (object->Kind()) {
        case ObjectKind::Pen:
            return OBJ_PEN;
        case ObjectKind::Brush:
            return OBJ_BRUSH;
        case ObjectKind::Font:
            return OBJ_FONT;
        case ObjectKind::Bitmap:
            return OBJ_BITMAP;
        case ObjectKind::Region:
            return OBJ_REGION;
        case ObjectKind::Context:
            return OBJ_MEMDC;
    }
    return 0;
}

BOOL DeleteObject(HGDIOBJ handle)
{
    GraphicsObject const * const object = FindObject(handle);
    if (!object || object->m_selections > 0 || object->Kind() == ObjectKind::Context)
        return FALSE;
    if (!object->m_stock)
        RemoveObject(handle);
    return TRUE;
}
