#include "drawing/double_rect.h"

#include <gtest/gtest.h>

namespace {
TEST(DoubleRect, StartsAtZero)
{
    CDRect const rect;
    EXPECT_EQ(rect.IsRectNull(), 1);
    EXPECT_EQ(rect.IsRectEmpty(), 1);
}

TEST(DoubleRect, OrderIsLeftTopRightBottom)
{
    CDRect const rect(1, 2, 4, 8);
    EXPECT_EQ(rect.left, 1);
    EXPECT_EQ(rect.top, 2);
    EXPECT_EQ(rect.right, 4);
    EXPECT_EQ(rect.bottom, 8);
    EXPECT_EQ(rect.Width(), 3);
    EXPECT_EQ(rect.Height(), 6);
}

TEST(DoubleRect, SizeMayBeNegative)
{
    CDRect rect(4, 8, 1, 2);
    EXPECT_EQ(rect.Width(), -3);
    rect.SwapLeftRight();
    EXPECT_EQ(rect, CDRect(1, 8, 4, 2));
}

TEST(DoubleRect, IsEmptyWhenAllFourAreEqualAlone)
{
    EXPECT_EQ(CDRect(5, 5, 5, 5).IsRectEmpty(), 1);
    EXPECT_EQ(CDRect(5, 5, 5, 5).IsRectNull(), 0);
    EXPECT_EQ(CDRect(5, 1, 5, 9).IsRectEmpty(), 0);
    EXPECT_EQ(CDRect(5, 5, 9, 5).IsRectEmpty(), 0);
}

TEST(DoubleRect, ComparesExactly)
{
    CDRect const rect(1, 2, 3, 4);
    CDRect const close(1, 2, 3, 4 + 1e-15);
    EXPECT_TRUE(rect != close);
    EXPECT_EQ(rect.EqualRect(&close), 0);
    EXPECT_EQ(rect.EqualRect(&rect), 1);
    EXPECT_TRUE(rect == CDRect(1, 2, 3, 4));
}

TEST(DoubleRect, SetAndCopy)
{
    CDRect rect;
    rect.SetRect(1, 2, 3, 4);
    CDRect copy;
    copy.CopyRect(&rect);
    EXPECT_EQ(copy, rect);
    rect.SetRectEmpty();
    EXPECT_EQ(rect.IsRectNull(), 1);
    copy = rect;
    EXPECT_EQ(copy.IsRectNull(), 1);
    EXPECT_STREQ(copy.GetRuntimeClass()->m_lpszClassName, "CDRect");
}
}  // namespace
