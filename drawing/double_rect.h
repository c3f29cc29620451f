#ifndef KX7_DRAWING_DOUBLE_RECT_H
#define KX7_DRAWING_DOUBLE_RECT_H

#include "platform/base/object.h"

/// A rectangle in floating point. Comparisons are exact.
class KX7_API CDRect : public CObject
{
    DECLARE_DYNAMIC(CDRect)

  public:
    double left = 0, top = 0, right = 0, bottom = 0;

    CDRect() = default;
    CDRect(double dLeft, double dTop, double dRight, double dBottom)
        : left(dLeft), top(dTop), right(dRight), bottom(dBottom)
    {
    }

    double Width() const { return right - left; }
    double Height() const { return bottom - top; }

    /// Exchanges left and right.
    void SwapLeftRight();

    /// Whether all four values are equal: 1 or 0. A rectangle without width alone isn't empty in this sense.
    int IsRectEmpty() const { return left == top && top == right && right == bottom; }

    /// Whether all four values are 0: 1 or 0.
    int IsRectNull() const { return left == 0 && top == 0 && right == 0 && bottom == 0; }

    void SetRect(double dLeft, double dTop, double dRight, double dBottom);
    void SetRectEmpty() { SetRect(0, 0, 0, 0); }
    void CopyRect(CDRect const * source) { *this = *source; }

    /// Whether all four values are the same: 1 or 0.
    int EqualRect(CDRect const * other) const { return *this == *other; }

    friend bool operator==(CDRect const & a, CDRect const & b)
    {
        return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
    }
};

#endif
