#include "platform/base/rect.h"

#include <gtest/gtest.h>

TEST(SizeValue, AddsAndSubtracts)
{
    CSize size(3, 4);
    size += CSize(1, 1);
    EXPECT_EQ(size, CSize(4, 5));
    EXPECT_EQ(size - CSize(5, 5), CSize(-1, 0));
    EXPECT_EQ(-size, CSize(-4, -5));
    EXPECT_EQ(CSize(), CSize(0, 0));
}

TEST(PointValue, MovesBySizesAndDiffersBySizes)
{
    CPoint point(10, 20);
    point.Offset(1, -1);
    EXPECT_EQ(point, CPoint(11, 19));
    EXPECT_EQ(point + CSize(1, 1), CPoint(12, 20));
    EXPECT_EQ(point - CSize(1, 1), CPoint(10, 18));
    EXPECT_EQ(point - CPoint(1, 2), CSize(10, 17));
    EXPECT_EQ(CPoint(), CPoint(0, 0));
}

TEST(RectValue, MeasuresItself)
{
    CRect const rect(1, 2, 11, 32);
    EXPECT_EQ(rect.Width(), 10);
    EXPECT_EQ(rect.Height(), 30);
    EXPECT_EQ(rect.Size(), CSize(10, 30));
    EXPECT_EQ(rect.TopLeft(), CPoint(1, 2));
    EXPECT_EQ(rect.BottomRight(), CPoint(11, 32));
    EXPECT_EQ(rect.CenterPoint(), CPoint(6, 17));
    EXPECT_EQ(CRect(CPoint(1, 2), CSize(10, 30)), rect);
    EXPECT_EQ(CRect(CPoint(1, 2), CPoint(11, 32)), rect);
}

TEST(RectValue, EmptyHasNoInsideAndNullIsAllZero)
{
    EXPECT_TRUE(CRect(1, 1, 1, 5).IsRectEmpty());
    EXPECT_TRUE(CRect(5, 1, 1, 5).IsRectEmpty());
    EXPECT_FALSE(CRect(1, 1, 2, 2).IsRectEmpty());
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_FALSE(CRect(1, 1, 1, 1).IsRectNull());
}

TEST(RectValue, HoldsItsLeftAndTopSidesOnly)
{
    CRect const rect(0, 0, 10, 10);
    EXPECT_TRUE(rect.PtInRect(CPoint(0, 0)));
    EXPECT_TRUE(rect.PtInRect(CPoint(9, 9)));
    EXPECT_FALSE(rect.PtInRect(CPoint(10, 5)));
    EXPECT_FALSE(rect.PtInRect(CPoint(5, 10)));
    EXPECT_FALSE(rect.PtInRect(CPoint(-1, 5)));
}

TEST(RectValue, GrowsShrinksAndMoves)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.DeflateRect(1, 2);
    EXPECT_EQ(rect, CRect(10, 10, 20, 20));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(9, 8, 23, 24));
    rect.DeflateRect(1, 2, 3, 4);
    rect.OffsetRect(5, -5);
    EXPECT_EQ(rect, CRect(15, 5, 25, 15));
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
}

TEST(RectValue, NormalizingSwapsSides)
{
    CRect rect(20, 5, 10, 1);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(10, 1, 20, 5));
}

TEST(RectValue, IntersectionIsTheCommonPart)
{
    CRect common(1, 1, 2, 2);
    EXPECT_TRUE(common.IntersectRect(CRect(0, 0, 10, 10), CRect(5, -5, 20, 5)));
    EXPECT_EQ(common, CRect(5, 0, 10, 5));
    EXPECT_FALSE(common.IntersectRect(CRect(0, 0, 10, 10), CRect(10, 0, 20, 10)));  // they only touch
    EXPECT_TRUE(common.IsRectNull());
}

TEST(RectValue, UnionLeavesEmptyOnesOut)
{
    CRect both;
    EXPECT_TRUE(both.UnionRect(CRect(0, 0, 1, 1), CRect(5, -5, 6, 6)));
    EXPECT_EQ(both, CRect(0, -5, 6, 6));
    EXPECT_TRUE(both.UnionRect(CRect(0, 0, 1, 1), CRect(50, 50, 50, 60)));
    EXPECT_EQ(both, CRect(0, 0, 1, 1));
    EXPECT_FALSE(both.UnionRect(CRect(), CRect(3, 3, 3, 3)));
    EXPECT_TRUE(both.IsRectNull());
}
