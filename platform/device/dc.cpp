#include "platform/device/dc.h"

#include <cstdlib>

IMPLEMENT_DYNCREATE(CDC, CObject)

namespace {
constexpr int kHimetricPerInch = 2540;  // hundredths of a millimetre

HGDIOBJ HandleOf(CGdiObject const * object)
{
    return object ? object->GetSafeHandle() : nullptr;
}

HDC HandleOf(CDC const * dc)
{
    return dc ? dc->GetSafeHdc() : nullptr;
}

/// Converts the corners of a rectangle by `convert(points, count)`.
template <typename Convert>
void ConvertRect(RECT * rect, Convert && convert)
{
    POINT corners[] = {{rect->left, rect->top}, {rect->right, rect->bottom}};
    convert(corners, 2);
    *rect = CRect(corners[0], corners[1]);
}

/// Converts a size as the distance of two points; the result isn't negative.
template <typename Convert>
void ConvertSize(SIZE * size, Convert && convert)
{
    POINT corners[] = {{0, 0}, {size->cx, size->cy}};
    convert(corners, 2);
    *size = {std::abs(corners[1].x - corners[0].x), std::abs(corners[1].y - corners[0].y)};
}
}  // namespace

CDC::~CDC()
{
    DeleteDC();
}

BOOL CDC::Attach(HDC hdc)
{
    if (!hdc || m_hDC)
        return FALSE;
    m_hDC = hdc;
    return TRUE;
}

HDC CDC::Detach()
{
    HDC const hdc = m_hDC;
    m_hDC = nullptr;
    return hdc;
}

BOOL CDC::CreateCompatibleDC(CDC * dc)
{
    return Attach(::CreateCompatibleDC(HandleOf(dc)));
}

BOOL CDC::DeleteDC()
{
    return m_hDC ? ::DeleteDC(Detach()) : FALSE;
}

CPen * CDC::SelectObject(CPen * pen)
{
    return CPen::FromHandle(static_cast<HPEN>(SelectObject(HandleOf(pen))));
}

CBrush * CDC::SelectObject(CBrush * brush)
{
    return CBrush::FromHandle(static_cast<HBRUSH>(SelectObject(HandleOf(brush))));
}

CFont * CDC::SelectObject(CFont * font)
{
    return CFont::FromHandle(static_cast<HFONT>(SelectObject(HandleOf(font))));
}

CBitmap * CDC::SelectObject(CBitmap * bitmap)
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(SelectObject(HandleOf(bitmap))));
}

int CDC::SelectObject(CRgn * region)
{
    return SelectClipRgn(region);
}

CGdiObject * CDC::SelectStockObject(int object)
{
    HGDIOBJ const old = SelectObject(::GetStockObject(object));
    switch (::GetObjectType(old)) {
        case OBJ_PEN:
            return CPen::FromHandle(static_cast<HPEN>(old));
        case OBJ_BRUSH:
            return CBrush::FromHandle(static_cast<HBRUSH>(old));
        case OBJ_FONT:
            return CFont::FromHandle(static_cast<HFONT>(old));
        default:
            return nullptr;
    }
}

CPen * CDC::GetCurrentPen() const
{
    return CPen::FromHandle(static_cast<HPEN>(::GetCurrentObject(m_hDC, OBJ_PEN)));
}

CBrush * CDC::GetCurrentBrush() const
{
    return CBrush::FromHandle(static_cast<HBRUSH>(::GetCurrentObject(m_hDC, OBJ_BRUSH)));
}

CFont * CDC::GetCurrentFont() const
{
    return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hDC, OBJ_FONT)));
}

CBitmap * CDC::GetCurrentBitmap() const
{
    return CBitmap::FromHandle(static_cast<HBITMAP>(::GetCurrentObject(m_hDC, OBJ_BITMAP)));
}

CPoint CDC::SetWindowOrg(int x, int y)
{
    CPoint old;
    ::SetWindowOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::GetWindowOrg() const
{
    CPoint origin;
    ::GetWindowOrgEx(m_hDC, &origin);
    return origin;
}

CSize CDC::SetWindowExt(int cx, int cy)
{
    CSize old;
    ::SetWindowExtEx(m_hDC, cx, cy, &old);
    return old;
}

CSize CDC::GetWindowExt() const
{
    CSize extent;
    ::GetWindowExtEx(m_hDC, &extent);
    return extent;
}

CPoint CDC::SetViewportOrg(int x, int y)
{
    CPoint old;
    ::SetViewportOrgEx(m_hDC, x, y, &old);
    return old;
}

CPoint CDC::GetViewportOrg() const
{
    CPoint origin;
    ::GetViewportOrgEx(m_hDC, &origin);
    return origin;
}

CSize CDC::SetViewportExt(int cx, int cy)
{
    CSize old;
    ::SetViewportExtEx(m_hDC, cx, cy, &old);
    return old;
}

CSize CDC::GetViewportExt() const
{
    CSize extent;
    ::GetViewportExtEx(m_hDC, &extent);
    return extent;
}

void CDC::LPtoDP(RECT * rect) const
{
    ConvertRect(rect, [this](POINT * points, int count) { LPtoDP(points, count); });
}

void CDC::LPtoDP(SIZE * size) const
{
    ConvertSize(size, [this](POINT * points, int count) { LPtoDP(points, count); });
}

void CDC::DPtoLP(RECT * rect) const
{
    ConvertRect(rect, [this](POINT * points, int count) { DPtoLP(points, count); });
}

void CDC::DPtoLP(SIZE * size) const
{
    ConvertSize(size, [this](POINT * points, int count) { DPtoLP(points, count); });
}

void CDC::LPtoHIMETRIC(SIZE * size) const
{
    LPtoDP(size);
    size->cx = ::MulDiv(size->cx, kHimetricPerInch, GetDeviceCaps(LOGPIXELSX));
    size->cy = ::MulDiv(size->cy, kHimetricPerInch, GetDeviceCaps(LOGPIXELSY));
}

void CDC::HIMETRICtoLP(SIZE * size) const
{
    size->cx = ::MulDiv(size->cx, GetDeviceCaps(LOGPIXELSX), kHimetricPerInch);
    size->cy = ::MulDiv(size->cy, GetDeviceCaps(LOGPIXELSY), kHimetricPerInch);
    DPtoLP(size);
}

int CDC::SelectClipRgn(CRgn * region)
{
    return ::SelectClipRgn(m_hDC, static_cast<HRGN>(HandleOf(region)));
}

CPoint CDC::GetCurrentPosition() const
{
    CPoint position;
    ::GetCurrentPositionEx(m_hDC, &position);
    return position;
}

CPoint CDC::MoveTo(int x, int y)
{
    CPoint old;
    ::MoveToEx(m_hDC, x, y, &old);
    return old;
}

void CDC::FillRect(RECT const * rect, CBrush * brush)
{
    ::FillRect(m_hDC, rect, static_cast<HBRUSH>(HandleOf(brush)));
}

BOOL CDC::FillRgn(CRgn * region, CBrush * brush)
{
    return ::FillRgn(m_hDC, static_cast<HRGN>(HandleOf(region)), static_cast<HBRUSH>(HandleOf(brush)));
}

BOOL CDC::BitBlt(int x, int y, int width, int height, CDC * source, int sourceX, int sourceY, DWORD operation)
{
    return ::BitBlt(m_hDC, x, y, width, height, HandleOf(source), sourceX, sourceY, operation);
}

BOOL CDC::StretchBlt(int x, int y, int width, int height, CDC * source, int sourceX, int sourceY,
                     int sourceWidth, int sourceHeight, DWORD operation)
{
    return ::StretchBlt(m_hDC, x, y, width, height, HandleOf(source), sourceX, sourceY, sourceWidth,
                        sourceHeight, operation);
}

CSize CDC::GetTextExtent(char const * text, int length) const
{
    CSize size;
    ::GetTextExtentPoint32(m_hDC, text, length, &size);
    return size;
}
