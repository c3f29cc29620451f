#include "drawing/double_rect.h"

#include <utility>

IMPLEMENT_DYNAMIC(CDRect, CObject)

void CDRect::SwapLeftRight()
{
    std::swap(left, right);
}

void CDRect::SetRect(double dLeft, double dTop, double dRight, double dBottom)
{
    left = dLeft;
    top = dTop;
    right = dRight;
    bottom = dBottom;
}
