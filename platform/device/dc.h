#ifndef KX7_PLATFORM_DEVICE_DC_H
#define KX7_PLATFORM_DEVICE_DC_H

#include "platform/base/rect.h"
#include "platform/base/string.h"
#include "platform/device/gdi_objects.h"

/// A device context: something to draw on, with the pen, brush, font and other settings of drawing. The rules
/// of the functions of gdi.h hold for the members of the same name.
///
/// Ways to get one: an image or page (picture.h), a memory context (`CreateCompatibleDC`), a handle made
/// elsewhere (`Attach`), or a context of a window on the Windows build.
class KX7_API CDC : public CObject
{
    DECLARE_DYNCREATE(CDC)

  public:
    CDC() = default;
    /// Deletes the context, as DeleteDC does.
    ~CDC() override;
    CDC(CDC const &) = delete;
    CDC & operator=(CDC const &) = delete;

    HDC m_hDC = nullptr;       ///< The handle; null while there is no context.
    BOOL m_bPrinting = FALSE;  ///< Set by a host that draws on paper; IsPrinting tells it.

    operator HDC() const { return m_hDC; }
    HDC GetSafeHdc() const { return m_hDC; }
    BOOL IsPrinting() const { return m_bPrinting; }

    /// Takes over a handle; 0 for a null handle or if there is one already.
    BOOL Attach(HDC hdc);
    /// Gives the handle away.
    HDC Detach();
    /// Makes a memory context like `dc`, or like the screen for null.
    BOOL CreateCompatibleDC(CDC * dc);
    BOOL DeleteDC();

    int GetDeviceCaps(int index) const { return ::GetDeviceCaps(m_hDC, index); }

    // Objects. Each select gives the object back that was selected before, null for a failure.
    CPen * SelectObject(CPen * pen);
    CBrush * SelectObject(CBrush * brush);
    virtual CFont * SelectObject(CFont * font);
    CBitmap * SelectObject(CBitmap * bitmap);
    /// Makes the region the clip; the result is its kind. The region itself isn't kept.
    int SelectObject(CRgn * region);
    HGDIOBJ SelectObject(HGDIOBJ object) { return ::SelectObject(m_hDC, object); }
    virtual CGdiObject * SelectStockObject(int object);
    CPen * GetCurrentPen() const;
    CBrush * GetCurrentBrush() const;
    CFont * GetCurrentFont() const;
    CBitmap * GetCurrentBitmap() const;

    // Attributes. Each setter gives the old value back.
    virtual COLORREF SetTextColor(COLORREF colour) { return ::SetTextColor(m_hDC, colour); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hDC); }
    virtual COLORREF SetBkColor(COLORREF colour) { return ::SetBkColor(m_hDC, colour); }
    COLORREF GetBkColor() const { return ::GetBkColor(m_hDC); }
    int SetBkMode(int mode) { return ::SetBkMode(m_hDC, mode); }
    int GetBkMode() const { return ::GetBkMode(m_hDC); }
    UINT SetTextAlign(UINT align) { return ::SetTextAlign(m_hDC, align); }
    UINT GetTextAlign() const { return ::GetTextAlign(m_hDC); }
    int SetROP2(int operation) { return ::SetROP2(m_hDC, operation); }
    int GetROP2() const { return ::GetROP2(m_hDC); }
    int SetPolyFillMode(int mode) { return ::SetPolyFillMode(m_hDC, mode); }
    int GetPolyFillMode() const { return ::GetPolyFillMode(m_hDC); }

    // Mapping.
    virtual int SetMapMode(int mode) { return ::SetMapMode(m_hDC, mode); }
    int GetMapMode() const { return ::GetMapMode(m_hDC); }
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    CPoint GetWindowOrg() const;
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    CSize GetWindowExt() const;
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    CPoint GetViewportOrg() const;
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CSize GetViewportExt() const;
    void LPtoDP(POINT * points, int count = 1) const { ::LPtoDP(m_hDC, points, count); }
    void LPtoDP(RECT * rect) const;
    void LPtoDP(SIZE * size) const;
    void DPtoLP(POINT * points, int count = 1) const { ::DPtoLP(m_hDC, points, count); }
    void DPtoLP(RECT * rect) const;
    void DPtoLP(SIZE * size) const;

    /// Converts a size between logical units and hundredths of a millimetre, by the device's dots per inch.
    void LPtoHIMETRIC(SIZE * size) const;
    void HIMETRICtoLP(SIZE * size) const;

    // Clipping.
    virtual int SelectClipRgn(CRgn * region);
    int IntersectClipRect(int left, int top, int right, int bottom)
    {
        return ::IntersectClipRect(m_hDC, left, top, right, bottom);
    }
    int IntersectClipRect(RECT const * rect)
    {
        return IntersectClipRect(rect->left, rect->top, rect->right, rect->bottom);
    }
    virtual int GetClipBox(RECT * box) const { return ::GetClipBox(m_hDC, box); }

    // Drawing.
    CPoint GetCurrentPosition() const;
    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y) { return ::LineTo(m_hDC, x, y); }
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(POINT const * points, int count) { return ::Polyline(m_hDC, points, count); }
    BOOL Polygon(POINT const * points, int count) { return ::Polygon(m_hDC, points, count); }
    BOOL PolyPolygon(POINT const * points, int const * counts, int polygons)
    {
        return ::PolyPolygon(m_hDC, points, counts, polygons);
    }
    BOOL Rectangle(int left, int top, int right, int bottom)
    {
        return ::Rectangle(m_hDC, left, top, right, bottom);
    }
    BOOL Rectangle(RECT const * rect) { return Rectangle(rect->left, rect->top, rect->right, rect->bottom); }
    BOOL Ellipse(int left, int top, int right, int bottom)
    {
        return ::Ellipse(m_hDC, left, top, right, bottom);
    }
    BOOL Ellipse(RECT const * rect) { return Ellipse(rect->left, rect->top, rect->right, rect->bottom); }
    void FillRect(RECT const * rect, CBrush * brush);
    BOOL FillRgn(CRgn * region, CBrush * brush);
    BOOL PatBlt(int x, int y, int width, int height, DWORD operation)
    {
        return ::PatBlt(m_hDC, x, y, width, height, operation);
    }
    COLORREF SetPixel(int x, int y, COLORREF colour) { return ::SetPixel(m_hDC, x, y, colour); }
    COLORREF SetPixel(POINT point, COLORREF colour) { return SetPixel(point.x, point.y, colour); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return GetPixel(point.x, point.y); }
    BOOL BitBlt(int x, int y, int width, int height, CDC * source, int sourceX, int sourceY, DWORD operation);
    BOOL StretchBlt(int x, int y, int width, int height, CDC * source, int sourceX, int sourceY,
                    int sourceWidth, int sourceHeight, DWORD operation);

    // Text.
    virtual BOOL TextOut(int x, int y, char const * text, int length)
    {
        return ::TextOut(m_hDC, x, y, text, length);
    }
    BOOL TextOut(int x, int y, CString const & text) { return TextOut(x, y, text, text.GetLength()); }
    CSize GetTextExtent(char const * text, int length) const;
    CSize GetTextExtent(CString const & text) const { return GetTextExtent(text, text.GetLength()); }
    BOOL GetTextMetrics(TEXTMETRIC * metrics) const { return ::GetTextMetrics(m_hDC, metrics); }
};

#endif
