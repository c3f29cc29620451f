#ifndef KX7_PLATFORM_BASE_RECT_H
#define KX7_PLATFORM_BASE_RECT_H

#include "platform/base/gdi_types.h"

class CPoint;
class CRect;

/// A width and a height.
class CSize : public tagSIZE
{
  public:
    CSize() : tagSIZE{0, 0} {}
    CSize(int width, int height) : tagSIZE{width, height} {}
    CSize(SIZE size) : tagSIZE(size) {}

    friend bool operator==(CSize a, CSize b) { return a.cx == b.cx && a.cy == b.cy; }
    CSize & operator+=(SIZE size);
    CSize & operator-=(SIZE size);
    friend CSize operator+(CSize a, SIZE b) { return a += b; }
    friend CSize operator-(CSize a, SIZE b) { return a -= b; }
    CSize operator-() const { return CSize(-cx, -cy); }
};

/// A place in pixels or logical units.
class CPoint : public tagPOINT
{
  public:
    CPoint() : tagPOINT{0, 0} {}
    CPoint(int px, int py) : tagPOINT{px, py} {}
    CPoint(POINT point) : tagPOINT(point) {}

    /// Moves the point.
    void Offset(int dx, int dy) { *this += CSize(dx, dy); }

    friend bool operator==(CPoint a, CPoint b) { return a.x == b.x && a.y == b.y; }
    CPoint & operator+=(SIZE size);
    CPoint & operator-=(SIZE size);
    friend CPoint operator+(CPoint a, SIZE b) { return a += b; }
    friend CPoint operator-(CPoint a, SIZE b) { return a -= b; }
    friend CSize operator-(CPoint a, POINT b) { return CSize(a.x - b.x, a.y - b.y); }
};

/// A rectangle; right and bottom lie just outside of it. Operations on two rectangles take them as normal
/// ones (left up to right, top up to bottom).
class CRect : public tagRECT
{
  public:
    CRect() : tagRECT{0, 0, 0, 0} {}
    CRect(int l, int t, int r, int b) : tagRECT{l, t, r, b} {}
    CRect(RECT const & rect) : tagRECT(rect) {}
    CRect(RECT const * rect) : tagRECT(*rect) {}
    CRect(POINT topLeft, SIZE size) : tagRECT{topLeft.x, topLeft.y, topLeft.x + size.cx, topLeft.y + size.cy}
    {
    }
    CRect(POINT topLeft, POINT bottomRight) : tagRECT{topLeft.x, topLeft.y, bottomRight.x, bottomRight.y} {}

    int Width() const { return right - left; }
    int Height() const { return bottom - top; }
    CSize Size() const { return CSize(Width(), Height()); }
    CPoint TopLeft() const { return CPoint(left, top); }
    CPoint BottomRight() const { return CPoint(right, bottom); }
    CPoint CenterPoint() const { return CPoint((left + right) / 2, (top + bottom) / 2); }

    operator RECT *() { return this; }
    operator RECT const *() const { return this; }

    /// Whether width or height isn't above 0.
    bool IsRectEmpty() const { return left >= right || top >= bottom; }
    /// Whether all four are 0.
    bool IsRectNull() const { return left == 0 && right == 0 && top == 0 && bottom == 0; }
    /// Whether the point lies inside; left and top count, right and bottom don't.
    bool PtInRect(POINT point) const
    {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    bool EqualRect(RECT const * other) const { return *this == *other; }

    void SetRect(int l, int t, int r, int b) { *this = CRect(l, t, r, b); }
    void SetRectEmpty() { *this = CRect(); }
    void CopyRect(RECT const * source) { *this = CRect(source); }

    /// Moves all sides outward; negative values move them inward.
    void InflateRect(int dx, int dy) { InflateRect(dx, dy, dx, dy); }
    void InflateRect(int l, int t, int r, int b) { *this = CRect(left - l, top - t, right + r, bottom + b); }
    void DeflateRect(int dx, int dy) { InflateRect(-dx, -dy); }
    void DeflateRect(int l, int t, int r, int b) { InflateRect(-l, -t, -r, -b); }
    void OffsetRect(int dx, int dy) { *this = CRect(left + dx, top + dy, right + dx, bottom + dy); }
    void OffsetRect(SIZE size) { OffsetRect(size.cx, size.cy); }
    void OffsetRect(POINT point) { OffsetRect(point.x, point.y); }

    /// Swaps sides so that width and height aren't negative.
    void NormalizeRect();

    /// The common part of two rectangles, all zero if there is none. The result tells whether there is one.
    bool IntersectRect(RECT const * a, RECT const * b);

    /// The smallest rectangle around both; an empty one counts for nothing. The result tells whether it has
    /// an inside.
    bool UnionRect(RECT const * a, RECT const * b);

    friend bool operator==(CRect const & a, RECT const & b)
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};

inline CSize & CSize::operator+=(SIZE size)
{
    cx += size.cx;
    cy += size.cy;
    return *this;
}

inline CSize & CSize::operator-=(SIZE size)
{
    cx -= size.cx;
    cy -= size.cy;
    return *this;
}

inline CPoint & CPoint::operator+=(SIZE size)
{
    x += size.cx;
    y += size.cy;
    return *this;
}

inline CPoint & CPoint::operator-=(SIZE size)
{
    x -= size.cx;
    y -= size.cy;
    return *this;
}

inline void CRect::NormalizeRect()
{
    *this = CRect(left < right ? left : right, top < bottom ? top : bottom, left < right ? right : left,
                  top < bottom ? bottom : top);
}

inline bool CRect::IntersectRect(RECT const * a, RECT const * b)
{
    CRect const common(a->left > b->left ? a->left : b->left, a->top > b->top ? a->top : b->top,
                       a->right < b->right ? a->right : b->right,
                       a->bottom < b->bottom ? a->bottom : b->bottom);
    *this = common.IsRectEmpty() ? CRect() : common;
    return !IsRectEmpty();
}

inline bool CRect::UnionRect(RECT const * a, RECT const * b)
{
    CRect const first(a);
    CRect const second(b);
    if (first.IsRectEmpty() || second.IsRectEmpty())
        *this = first.IsRectEmpty() ? second.IsRectEmpty() ? CRect() : second : first;
    else
        *this = CRect(first.left < second.left ? first.left : second.left,
                      first.top < second.top ? first.top : second.top,
                      first.right > second.right ? first.right : second.right,
                      first.bottom > second.bottom ? first.bottom : second.bottom);
    return !IsRectEmpty();
}

#endif
