#ifndef KX7_PLATFORM_DEVICE_GDI_H
#define KX7_PLATFORM_DEVICE_GDI_H

// The graphics functions on plain handles, for code that works below CDC. The Windows build calls the
// system's; elsewhere the library has its own under the same names and with the same behaviour, which draw
// on memory bitmaps (pixel for pixel by the system's rules) and on SVG and PDF pages.
//
// Common rules: coordinates are logical units of the context; a line includes its start and excludes its
// end; rectangles and ellipses exclude their right and bottom edges. A null or stale handle, or one of a
// wrong kind, makes a call fail with 0, null or CLR_INVALID and changes nothing.
#include "platform/base/export.h"
#include "platform/base/gdi_types.h"
#include "platform/base/system_information.h"

#if !defined(_WIN32)

// Making, asking and deleting objects. Who makes an object deletes it; one that is selected into a context
// can't be deleted (result 0). Deleting a stock object does nothing and gives 1.
KX7_API HPEN CreatePen(int style, int width, COLORREF colour);
KX7_API HPEN CreatePenIndirect(LOGPEN const * pen);
KX7_API HBRUSH CreateSolidBrush(COLORREF colour);
KX7_API HBRUSH CreateHatchBrush(int hatch, COLORREF colour);
KX7_API HBRUSH CreatePatternBrush(HBITMAP bitmap);  ///< Copies the pixels; the bitmap may go at once.
KX7_API HBRUSH CreateBrushIndirect(LOGBRUSH const * brush);
KX7_API HFONT CreateFont(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                         DWORD underline, DWORD strikeOut, DWORD charSet, DWORD outPrecision,
                         DWORD clipPrecision, DWORD quality, DWORD pitchAndFamily, char const * face);
KX7_API HFONT CreateFontIndirect(LOGFONT const * font);

/// A bitmap of 1 or 32 bits per pixel in one plane; `bits` holds its rows from the top, each padded to two
/// bytes, or is null for black.
KX7_API HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, void const * bits);
KX7_API HBITMAP CreateCompatibleBitmap(HDC hdc, int width, int height);
KX7_API HRGN CreateRectRgn(int left, int top, int right, int bottom);
KX7_API HRGN CreatePolygonRgn(POINT const * points, int count, int fillMode);
KX7_API int GetRgnBox(HRGN region, RECT * box);
KX7_API BOOL PtInRegion(HRGN region, int x, int y);
KX7_API HGDIOBJ GetStockObject(int object);
KX7_API int GetObject(HGDIOBJ object, int size, void * record);
KX7_API DWORD GetObjectType(HGDIOBJ object);
KX7_API BOOL DeleteObject(HGDIOBJ object);

// Contexts. A memory context holds a bitmap of one black pixel until one is selected into it.
KX7_API HDC CreateCompatibleDC(HDC hdc);
KX7_API BOOL DeleteDC(HDC hdc);
KX7_API int GetDeviceCaps(HDC hdc, int index);
KX7_API HGDIOBJ SelectObject(HDC hdc, HGDIOBJ object);
KX7_API HGDIOBJ GetCurrentObject(HDC hdc, UINT kind);

// Attributes; each setter gives the old value back.
KX7_API COLORREF SetTextColor(HDC hdc, COLORREF colour);
KX7_API COLORREF GetTextColor(HDC hdc);
KX7_API COLORREF SetBkColor(HDC hdc, COLORREF colour);
KX7_API COLORREF GetBkColor(HDC hdc);
KX7_API int SetBkMode(HDC hdc, int mode);
KX7_API int GetBkMode(HDC hdc);
KX7_API UINT SetTextAlign(HDC hdc, UINT align);
KX7_API UINT GetTextAlign(HDC hdc);
KX7_API int SetROP2(HDC hdc, int operation);
KX7_API int GetROP2(HDC hdc);
KX7_API int SetPolyFillMode(HDC hdc, int mode);
KX7_API int GetPolyFillMode(HDC hdc);

// Mapping of logical to device units: device = (logical - window origin) * viewport extent / window extent
// + viewport origin, rounded to the nearest. MM_TEXT keeps both extents at 1.
KX7_API int SetMapMode(HDC hdc, int mode);
KX7_API int GetMapMode(HDC hdc);
KX7_API BOOL SetWindowOrgEx(HDC hdc, int x, int y, POINT * old);
KX7_API BOOL GetWindowOrgEx(HDC hdc, POINT * origin);
KX7_API BOOL SetWindowExtEx(HDC hdc, int cx, int cy, SIZE * old);
KX7_API BOOL GetWindowExtEx(HDC hdc, SIZE * extent);
KX7_API BOOL SetViewportOrgEx(HDC hdc, int x, int y, POINT * old);
KX7_API BOOL GetViewportOrgEx(HDC hdc, POINT * origin);
KX7_API BOOL SetViewportExtEx(HDC hdc, int cx, int cy, SIZE * old);
KX7_API BOOL GetViewportExtEx(HDC hdc, SIZE * extent);
KX7_API BOOL LPtoDP(HDC hdc, POINT * points, int count);
KX7_API BOOL DPtoLP(HDC hdc, POINT * points, int count);

// Clipping. Results are NULLREGION, SIMPLEREGION, COMPLEXREGION or 0 for a failure.
KX7_API int SelectClipRgn(HDC hdc, HRGN region);  ///< Region in device units; null takes the clip away.
KX7_API int IntersectClipRect(HDC hdc, int left, int top, int right, int bottom);
KX7_API int GetClipBox(HDC hdc, RECT * box);

// Drawing.
KX7_API BOOL MoveToEx(HDC hdc, int x, int y, POINT * old);
KX7_API BOOL GetCurrentPositionEx(HDC hdc, POINT * position);
KX7_API BOOL LineTo(HDC hdc, int x, int y);
KX7_API BOOL Polyline(HDC hdc, POINT const * points, int count);
KX7_API BOOL Polygon(HDC hdc, POINT const * points, int count);
KX7_API BOOL PolyPolygon(HDC hdc, POINT const * points, int const * counts, int polygons);
KX7_API BOOL Rectangle(HDC hdc, int left, int top, int right, int bottom);
KX7_API BOOL Ellipse(HDC hdc, int left, int top, int right, int bottom);
KX7_API int FillRect(HDC hdc, RECT const * rect, HBRUSH brush);
KX7_API BOOL FillRgn(HDC hdc, HRGN region, HBRUSH brush);
KX7_API BOOL PatBlt(HDC hdc, int x, int y, int width, int height, DWORD operation);
KX7_API COLORREF SetPixel(HDC hdc, int x, int y, COLORREF colour);
KX7_API COLORREF GetPixel(HDC hdc, int x, int y);

/// Copies from a memory context. The operations PATCOPY, BLACKNESS and the like that need no source work too.
KX7_API BOOL BitBlt(HDC hdc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                    DWORD operation);
KX7_API BOOL StretchBlt(HDC hdc, int x, int y, int width, int height, HDC source, int sourceX, int sourceY,
                        int sourceWidth, int sourceHeight, DWORD operation);

// Text: bytes in code page 1250, `length` of them.
KX7_API BOOL TextOut(HDC hdc, int x, int y, char const * text, int length);
KX7_API BOOL GetTextExtentPoint32(HDC hdc, char const * text, int length, SIZE * size);
KX7_API BOOL GetTextMetrics(HDC hdc, TEXTMETRIC * metrics);

/// a * b / c, rounded to the nearest and away from zero on a tie; -1 if c is 0 or the result doesn't fit.
KX7_API int MulDiv(int a, int b, int c);

#endif

#endif
