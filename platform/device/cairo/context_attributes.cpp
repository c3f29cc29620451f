#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "platform/device/cairo/context.h"
#include "platform/device/gdi.h"

using namespace detail;

namespace {
/// Sets a member of a context within limits and gives the old value; `failure` if the handle or the value is
/// no good.
template <typename Value>
Value Exchange(HDC hdc, Value DeviceContext::*member, Value value, Value low, Value high, Value failure)
{
    DeviceContext * const context = FindContext(hdc);
    return context && value >= low && value <= high ? std::exchange(context->*member, value) : failure;
}

template <typename Value>
Value Get(HDC hdc, Value DeviceContext::*member, Value failure)
{
    DeviceContext const * const context = FindContext(hdc);
    return context ? context->*member : failure;
}

BOOL SetOrigin(HDC hdc, CPoint Mapping::*member, int x, int y, POINT * old)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return FALSE;
    CPoint const before = std::exchange(context->m_mapping.*member, CPoint(x, y));
    if (old)
        *old = before;
    return TRUE;
}

BOOL SetExtent(HDC hdc, CSize Mapping::*member, int cx, int cy, SIZE * old)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return FALSE;
    if (old)
        *old = context->m_mapping.*member;
    // The extents of the text mode are fixed; setting them is no failure.
    if (context->m_mapping.mode == MM_TEXT)
        return TRUE;
    if (cx == 0 || cy == 0)
        return FALSE;
    context->m_mapping.*member = CSize(cx, cy);
    return TRUE;
}

template <typename Record, typename Value>
BOOL Copy(HDC hdc, Value Mapping::*member, Record * target)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context || !target)
        return FALSE;
    *target = context->m_mapping.*member;
    return TRUE;
}
}  // namespace

COLORREF SetTextColor(HDC hdc, COLORREF colour)
{
    return Exchange(hdc, &DeviceContext::m_textColour, colour, COLORREF{0}, CLR_INVALID, CLR_INVALID);
}

COLORREF GetTextColor(HDC hdc)
{
    return Get(hdc, &DeviceContext::m_textColour, CLR_INVALID);
}

COLORREF SetBkColor(HDC hdc, COLORREF colour)
{
    return Exchange(hdc, &DeviceContext::m_backgroundColour, colour, COLORREF{0}, CLR_INVALID, CLR_INVALID);
}

COLORREF GetBkColor(HDC hdc)
{
    return Get(hdc, &DeviceContext::m_backgroundColour, CLR_INVALID);
}

int SetBkMode(HDC hdc, int mode)
{
    return Exchange(hdc, &DeviceContext::m_backgroundMode, mode, TRANSPARENT, OPAQUE, 0);
}

int GetBkMode(HDC hdc)
{
    return Get(hdc, &DeviceContext::m_backgroundMode, 0);
}

UINT SetTextAlign(HDC hdc, UINT align)
{
    return Exchange(hdc, &DeviceContext::m_textAlign, align, UINT{0}, UINT32_MAX, UINT32_MAX);
}

UINT GetTextAlign(HDC hdc)
{
    return Get(hdc, &DeviceContext::m_textAlign, UINT32_MAX);
}

int SetROP2(HDC hdc, int operation)
{
    return Exchange(hdc, &DeviceContext::m_operation, operation, R2_BLACK, R2_WHITE, 0);
}

int GetROP2(HDC hdc)
{
    return Get(hdc, &DeviceContext::m_operation, 0);
}

int SetPolyFillMode(HDC hdc, int mode)
{
    return Exchange(hdc, &DeviceContext::m_fillMode, mode, ALTERNATE, WINDING, 0);
}

int GetPolyFillMode(HDC hdc)
{
    return Get(hdc, &DeviceContext::m_fillMode, 0);
}

int SetMapMode(HDC hdc, int mode)
{
    DeviceContext * const context = FindContext(hdc);
    if (!context)
        return 0;
    int const old = context->m_mapping.mode;
    return context->m_mapping.SetMode(mode) ? old : 0;
}

int GetMapMode(HDC hdc)
{
    DeviceContext const * const context = FindContext(hdc);
    return context ? context->m_mapping.mode : 0;
}

BOOL SetWindowOrgEx(HDC hdc, int x, int y, POINT * old)
{
    return SetOrigin(hdc, &Mapping::windowOrigin, x, y, old);
}

BOOL GetWindowOrgEx(HDC hdc, POINT * origin)
{
    return Copy(hdc, &Mapping::windowOrigin, origin);
}

BOOL SetWindowExtEx(HDC hdc, int cx, int cy, SIZE * old)
{
    return SetExtent(hdc, &Mapping::windowExtent, cx, cy, old);
}

BOOL GetWindowExtEx(HDC hdc, SIZE * extent)
{
    return Copy(hdc, &Mapping::windowExtent, extent);
}

BOOL SetViewportOrgEx(HDC hdc, int x, int y, POINT * old)
{
    return SetOrigin(hdc, &Mapping::viewportOrigin, x, y, old);
}

BOOL GetViewportOrgEx(HDC hdc, POINT * origin)
{
    return Copy(hdc, &Mapping::viewportOrigin, origin);
}

BOOL SetViewportExtEx(HDC hdc, int cx, int cy, SIZE * old)
{
    return SetExtent(hdc, &Mapping::viewportExtent, cx, cy, old);
}

BOOL GetViewportExtEx(HDC hdc, SIZE * extent)
{
    return Copy(hdc, &Mapping::viewportExtent, extent);
}

BOOL LPtoDP(HDC hdc, POINT * points, int count)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context || !points)
        return FALSE;
    std::transform(points, points + std::max(count, 0), points,
                   [&](POINT point) { return context->m_mapping.ToDevice(point); });
    return TRUE;
}

BOOL DPtoLP(HDC hdc, POINT * points, int count)
{
    DeviceContext const * const context = FindContext(hdc);
    if (!context || !points)
        return FALSE;
    std::transform(points, points + std::max(count, 0), points,
                   [&](POINT point) { return context->m_mapping.ToLogical(point); });
    return TRUE;
}

int MulDiv(int a, int b, int c)
{
    if (c == 0)
        return -1;
    std::int64_t const product = std::int64_t{a} * b;
    std::int64_t const half = std::abs(std::int64_t{c}) / 2;
    std::int64_t const result = (product < 0 ? product - half : product + half) / c;
    return result > INT32_MAX || result < INT32_MIN ? -1 : static_cast<int>(result);
}
