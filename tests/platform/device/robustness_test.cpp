// Wild coordinates, stale handles, random calls and the count of objects.
#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <random>

#include "platform/device/picture.h"

namespace {
TEST(ObjectCount, StaysThroughManyObjects)
{
    // On a system without a count the loop itself is the test: it makes more objects than the system has room
    // for, so a leak would make the last ones fail.
    CImageDC image(10, 10);
    int const before = CountLiveGdiObjects();
    for (int i = 0; i < 70000; ++i) {
        CPen pen(PS_SOLID, 0, RGB(i & 0xFF, 0, 0));
        ASSERT_NE(pen.GetSafeHandle(), nullptr) << i;
        CPen * const old = image.SelectObject(&pen);
        image.LineTo(i % 10, 5);
        image.SelectObject(old);
    }
    EXPECT_EQ(CountLiveGdiObjects(), before);
}

#if !defined(_WIN32)

constexpr int kWild[] = {INT_MIN, INT_MIN + 1, -134217729, -40000, -1, 0, 1, 17, 40000, 134217728, INT_MAX};

TEST(WildCoordinates, DrawNothingWrong)
{
    CImageDC image(20, 20);
    for (int const a : kWild)
        for (int const b : kWild) {
            image.MoveTo(a, b);
            image.LineTo(b, 5);
            image.Rectangle(a, 2, b, 9);
            image.Ellipse(a, b, 7, 8);
            POINT const points[] = {{a, b}, {b, a}, {10, 10}};
            image.Polygon(points, 3);
            image.FillRect(CRect(a, 0, b, 1), nullptr);
            image.PatBlt(a, b, b, a, PATCOPY);
            image.SetPixel(a, b, 0);
            image.TextOut(a, b, "x");
        }
    EXPECT_NE(image.GetSafeHdc(), nullptr);
}

TEST(WildCoordinates, WidePensStayWithinTheImage)
{
    CImageDC image(20, 20);
    for (int const width : {2, 100, 40000, INT_MAX}) {
        CPen pen(PS_SOLID, width, RGB(255, 0, 0));
        CPen * const old = image.SelectObject(&pen);
        for (int const a : kWild) {
            image.MoveTo(a, 5);
            image.LineTo(7, a);
            image.Ellipse(a, 0, 30, a);
        }
        image.SelectObject(old);
    }
    EXPECT_NE(image.GetSafeHdc(), nullptr);
}

TEST(WildCoordinates, LongLineCrossesTheImage)
{
    CImageDC image(20, 20);
    image.MoveTo(-100000000, 7);
    image.LineTo(100000000, 7);
    EXPECT_EQ(image.GetPixel(0, 7), RGB(0, 0, 0));
    EXPECT_EQ(image.GetPixel(19, 7), RGB(0, 0, 0));
    EXPECT_EQ(image.GetPixel(10, 8), RGB(255, 255, 255));
}

TEST(ObjectCount, CountsEachKind)
{
    int const before = CountLiveGdiObjects();
    HGDIOBJ const objects[] = {CreatePen(PS_SOLID, 0, 0), CreateSolidBrush(0), CreateRectRgn(0, 0, 1, 1),
                               CreateBitmap(1, 1, 1, 32, nullptr),
                               CreateFont(-10, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial")};
    HDC const dc = CreateCompatibleDC(nullptr);
    EXPECT_EQ(CountLiveGdiObjects(), before + 6);
    for (HGDIOBJ const object : objects)
        EXPECT_TRUE(DeleteObject(object));
    EXPECT_TRUE(DeleteDC(dc));
    EXPECT_EQ(CountLiveGdiObjects(), before);
}

TEST(Handles, TableThatIsFullGivesNull)
{
    std::vector<HGDIOBJ> pens;
    while (HGDIOBJ const pen = CreatePen(PS_SOLID, 0, 0))
        pens.push_back(pen);
    EXPECT_GT(pens.size(), 60000u);
    EXPECT_EQ(CPen(PS_SOLID, 0, 0).GetSafeHandle(), nullptr);
    for (HGDIOBJ const pen : pens)
        EXPECT_TRUE(DeleteObject(pen));
    EXPECT_NE(CPen(PS_SOLID, 0, 0).GetSafeHandle(), nullptr);
}

TEST(Handles, StaleHandleNeverReachesAnotherObject)
{
    HPEN const stale = CreatePen(PS_SOLID, 0, 1);
    DeleteObject(stale);
    HPEN const fresh = CreatePen(PS_SOLID, 0, 2);
    CImageDC image(5, 5);
    LOGPEN record;
    EXPECT_EQ(GetObject(stale, sizeof record, &record), 0);
    EXPECT_EQ(image.SelectObject(static_cast<HGDIOBJ>(stale)), nullptr);
    EXPECT_FALSE(DeleteObject(stale));
    EXPECT_TRUE(DeleteObject(fresh));
}

TEST(Handles, SelectedObjectCannotBeDeleted)
{
    CImageDC image(5, 5);
    CPen pen(PS_SOLID, 0, 1);
    CPen * const old = image.SelectObject(&pen);
    EXPECT_FALSE(DeleteObject(pen));
    image.SelectObject(old);
    EXPECT_TRUE(pen.DeleteObject());
}

TEST(Handles, DeletedContextLetsItsObjectsGo)
{
    CPen pen(PS_SOLID, 0, 1);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    dc.SelectObject(&pen);
    EXPECT_TRUE(dc.DeleteDC());
    EXPECT_TRUE(pen.DeleteObject());
}

TEST(RandomCalls, NeverLeaveTheClip)
{
    std::mt19937 random(20240611);
    auto const number = [&random](int low, int high) {
        return static_cast<int>(random() % static_cast<unsigned>(high - low + 1)) + low;
    };
    CRect const clip(11, 7, 33, 26);
    CImageDC image(40, 30);
    image.IntersectClipRect(clip);
    for (int i = 0; i < 3000; ++i) {
        CPen pen(number(0, 6), number(0, 4), RGB(0, 0, number(0, 200)));
        CBrush brush(number(0, 5), RGB(number(0, 200), 0, 0));
        CPen * const oldPen = image.SelectObject(&pen);
        CBrush * const oldBrush = image.SelectObject(&brush);
        image.SetROP2(number(R2_BLACK, R2_WHITE));
        image.SetBkMode(number(TRANSPARENT, OPAQUE));
        std::array<POINT, 5> points;
        for (POINT & point : points)
            point = {number(-50, 90), number(-50, 80)};
        switch (number(0, 5)) {
            case 0:
                image.LineTo(points[0]);
                break;
            case 1:
                image.Polygon(points.data(), 5);
                break;
            case 2:
                image.Ellipse(points[0].x, points[0].y, points[1].x, points[1].y);
                break;
            case 3:
                image.Rectangle(points[0].x, points[0].y, points[1].x, points[1].y);
                break;
            case 4:
                image.TextOut(points[0].x, points[0].y, "text");
                break;
            default:
                image.PatBlt(points[0].x, points[0].y, points[1].x, points[1].y, PATINVERT);
                break;
        }
        image.SelectObject(oldBrush);
        image.SelectObject(oldPen);
    }
    image.SelectClipRgn(nullptr);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 40; ++x) {
            if (!clip.PtInRect({x, y})) {
                EXPECT_EQ(image.GetPixel(x, y), RGB(255, 255, 255)) << x << ' ' << y;
            }
        }
}

#endif
}  // namespace
