#include "platform/base/array.h"

#include <gmock/gmock.h>

#include "platform/base/string.h"

using testing::ElementsAre;

namespace {
struct Point
{
    double x;
    double y;
};

using IntArray = CArray<int, int>;
using PointArray = CArray<Point, Point &>;  // elements handed over by plain reference

void Fill(IntArray & array, std::initializer_list<int> values)
{
    for (int const value : values)
        array.Add(value);
}
}  // namespace

TEST(ArraySize, StartsEmptyAndFillsWithZeroes)
{
    PointArray array;
    EXPECT_EQ(array.GetSize(), 0);
    EXPECT_EQ(array.GetUpperBound(), -1);
    array.SetSize(2, 100);
    EXPECT_EQ(array.GetUpperBound(), 1);
    EXPECT_EQ(array[1].x, 0.0);
    EXPECT_EQ(array[1].y, 0.0);
    array.SetSize(-1);
    EXPECT_TRUE(array.IsEmpty());
}

TEST(ArraySize, GrowByKeepsRoomSoThatElementsStayInPlace)
{
    IntArray array;
    array.SetSize(1, 50);
    int const * before = array.GetData();
    for (int i = 0; i < 50; ++i)
        array.Add(i);
    EXPECT_EQ(array.GetData(), before);
}

TEST(ArrayElements, AreReadAndWrittenByIndex)
{
    PointArray array;
    Point point = {1.0, 2.0};
    EXPECT_EQ(array.Add(point), 0);
    point.x = 5.0;
    EXPECT_EQ(array.Add(point), 1);
    array.ElementAt(0).y = 7.0;
    array[1].y = 8.0;
    EXPECT_EQ(array.GetAt(0).y, 7.0);
    EXPECT_EQ(array.GetData()[1].y, 8.0);
    array.SetAt(0, point);
    EXPECT_EQ(array.GetAt(0).x, 5.0);
    EXPECT_EQ(array.GetAt(1).x, 5.0);
}

TEST(ArrayElements, SetAtGrowFillsTheGap)
{
    IntArray array;
    array.SetAtGrow(2, 9);
    array.SetAtGrow(0, 1);
    EXPECT_THAT(array.View(), ElementsAre(1, 0, 9));
}

TEST(ArrayElements, OwnElementSurvivesGrowth)
{
    CArray<CString> array;
    array.Add("text of one element that is long enough");
    array.FreeExtra();
    array.SetAtGrow(40, array[0]);
    array.FreeExtra();
    array.Add(array[40]);
    array.InsertAt(0, array[40], 3);
    EXPECT_EQ(array.GetSize(), 45);
    EXPECT_EQ(array[44], "text of one element that is long enough");
    EXPECT_EQ(array[2], "text of one element that is long enough");
}

TEST(ArrayJoin, AppendsAndCopies)
{
    IntArray array;
    IntArray other;
    Fill(array, {1, 2});
    Fill(other, {3, 4});
    EXPECT_EQ(array.Append(other), 2);
    EXPECT_EQ(array.Append(array), 4);
    EXPECT_THAT(array.View(), ElementsAre(1, 2, 3, 4, 1, 2, 3, 4));
    other.Copy(array);
    EXPECT_EQ(other.GetSize(), 8);
    other.Copy(other);
    EXPECT_EQ(other.GetSize(), 8);
}

TEST(ArrayInsert, MovesTheRestUp)
{
    IntArray array;
    Fill(array, {1, 2});
    array.InsertAt(1, 7, 2);
    EXPECT_THAT(array.View(), ElementsAre(1, 7, 7, 2));
    array.InsertAt(6, 5);
    EXPECT_THAT(array.View(), ElementsAre(1, 7, 7, 2, 0, 0, 5));
}

TEST(ArrayInsert, TakesAnotherArrayOrItself)
{
    IntArray array;
    IntArray empty;
    Fill(array, {1, 2});
    array.InsertAt(1, &array);
    EXPECT_THAT(array.View(), ElementsAre(1, 1, 2, 2));
    array.InsertAt(9, &empty);
    array.InsertAt(0, static_cast<IntArray *>(nullptr));
    EXPECT_EQ(array.GetSize(), 4);
}

TEST(ArrayRemove, TakesElementsOut)
{
    IntArray array;
    Fill(array, {1, 2, 3, 4});
    array.RemoveAt(1);
    EXPECT_THAT(array.View(), ElementsAre(1, 3, 4));
    array.RemoveAt(1, 2);
    EXPECT_THAT(array.View(), ElementsAre(1));
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
}

TEST(ArrayLoop, VisitsElementsInOrder)
{
    IntArray array;
    Fill(array, {1, 2, 3});
    int sum = 0;
    for (int & value : array)
        sum += value *= 2;
    EXPECT_EQ(sum, 12);
}
