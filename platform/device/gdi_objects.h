#ifndef KX7_PLATFORM_DEVICE_GDI_OBJECTS_H
#define KX7_PLATFORM_DEVICE_GDI_OBJECTS_H

#include "platform/base/object.h"
#include "platform/device/gdi.h"

/// A graphics object with the handle that it owns: the destructor deletes it. The object must not be selected
/// into a context any more by then.
///
/// `FromHandle` of the derived classes gives the object that owns a handle, or a temporary one that lasts
/// until the handle is deleted and which never deletes it; so code can keep the result of a select and put
/// it back later.
class KX7_API CGdiObject : public CObject
{
    DECLARE_DYNAMIC(CGdiObject)

  public:
    CGdiObject() = default;
    ~CGdiObject() override;
    CGdiObject(CGdiObject const &) = delete;
    CGdiObject & operator=(CGdiObject const &) = delete;

    /// The handle; null while the object has none.
    HGDIOBJ m_hObject = nullptr;

    HGDIOBJ GetSafeHandle() const { return m_hObject; }

    /// Takes over a handle. 0 for a null handle or if this object has one already.
    BOOL Attach(HGDIOBJ object);

    /// Gives the handle away; null if there is none.
    HGDIOBJ Detach();

    /// Deletes the handle; 0 if there is none or it is still selected.
    BOOL DeleteObject();

    /// Copies the record behind the handle (LOGPEN, LOGBRUSH, LOGFONT, BITMAP), at most `size` bytes. The
    /// result is the number of bytes, 0 for a failure.
    int GetObject(int size, void * record) const;

    /// Attaches a stock object; deleting it later does no harm.
    BOOL CreateStockObject(int object) { return Attach(::GetStockObject(object)); }
};

/// A pen for lines and outlines.
class KX7_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

  public:
    CPen() = default;
    CPen(int style, int width, COLORREF colour) { CreatePen(style, width, colour); }

    /// Makes a pen: PS_..., width in logical units (0: one device pixel), colour.
    BOOL CreatePen(int style, int width, COLORREF colour)
    {
        return Attach(::CreatePen(style, width, colour));
    }
    BOOL CreatePenIndirect(LOGPEN * pen) { return Attach(::CreatePenIndirect(pen)); }

    int GetLogPen(LOGPEN * pen) const { return GetObject(sizeof(LOGPEN), pen); }
    operator HPEN() const { return static_cast<HPEN>(GetSafeHandle()); }
    static CPen * FromHandle(HPEN pen);
};

class CBitmap;

/// A brush for the inside of figures.
class KX7_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

  public:
    CBrush() = default;
    explicit CBrush(COLORREF colour) { CreateSolidBrush(colour); }
    CBrush(int hatch, COLORREF colour) { CreateHatchBrush(hatch, colour); }
    explicit CBrush(CBitmap * bitmap) { CreatePatternBrush(bitmap); }

    BOOL CreateSolidBrush(COLORREF colour) { return Attach(::CreateSolidBrush(colour)); }

    /// Lines of HS_..., eight pixels apart; what lies between them follows the background mode and colour.
    BOOL CreateHatchBrush(int hatch, COLORREF colour) { return Attach(::CreateHatchBrush(hatch, colour)); }

    /// Repeats the bitmap. A bitmap of one bit per pixel takes the context's text and background colour.
    BOOL CreatePatternBrush(CBitmap * bitmap);
    BOOL CreateBrushIndirect(LOGBRUSH const * brush) { return Attach(::CreateBrushIndirect(brush)); }

    int GetLogBrush(LOGBRUSH * brush) const { return GetObject(sizeof(LOGBRUSH), brush); }
    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }
    static CBrush * FromHandle(HBRUSH brush);
};

/// A font.
class KX7_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

  public:
    BOOL CreateFontIndirect(LOGFONT const * font) { return Attach(::CreateFontIndirect(font)); }
    BOOL CreateFont(int height, int width, int escapement, int orientation, int weight, BYTE italic,
                    BYTE underline, BYTE strikeOut, BYTE charSet, BYTE outPrecision, BYTE clipPrecision,
                    BYTE quality, BYTE pitchAndFamily, char const * face);

    int GetLogFont(LOGFONT * font) const { return GetObject(sizeof(LOGFONT), font); }
    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }
    static CFont * FromHandle(HFONT font);
};

class CDC;

/// A picture in memory.
class KX7_API CBitmap : public CGdiObject
{
    DECLARE_DYNAMIC(CBitmap)

  public:
    BOOL CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, void const * bits)
    {
        return Attach(::CreateBitmap(width, height, planes, bitsPerPixel, bits));
    }
    /// A bitmap for contexts compatible with `dc`, all black.
    BOOL CreateCompatibleBitmap(CDC * dc, int width, int height);

    int GetBitmap(BITMAP * bitmap) const { return GetObject(sizeof(BITMAP), bitmap); }
    operator HBITMAP() const { return static_cast<HBITMAP>(GetSafeHandle()); }
    static CBitmap * FromHandle(HBITMAP bitmap);
};

/// An area of pixels.
class KX7_API CRgn : public CGdiObject
{
    DECLARE_DYNAMIC(CRgn)

  public:
    BOOL CreateRectRgn(int left, int top, int right, int bottom)
    {
        return Attach(::CreateRectRgn(left, top, right, bottom));
    }
    /// The inside of a polygon, which closes itself; `fillMode` is ALTERNATE or WINDING.
    BOOL CreatePolygonRgn(POINT const * points, int count, int fillMode)
    {
        return Attach(::CreatePolygonRgn(points, count, fillMode));
    }

    /// The smallest rectangle around the area; the result tells its kind (NULLREGION, ...).
    int GetRgnBox(RECT * box) const { return ::GetRgnBox(*this, box); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    operator HRGN() const { return static_cast<HRGN>(GetSafeHandle()); }
    static CRgn * FromHandle(HRGN region);
};

/// Number of graphics objects and contexts of the process that aren't deleted yet, stock objects not counted:
/// what a caller leaks shows as a number that grows. 0 on a system that doesn't count them.
KX7_API int CountLiveGdiObjects();

#endif
