#include "views2d/rect2d_ctrl.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>

#include "platform/device/recording.h"
#include "views2d/rect2d_object.h"

namespace {
// A window of 200 x 100 pixels without a frame.
class MappedWindow : public testing::Test
{
  protected:
    MappedWindow() { m_view.Create(nullptr, "", WS_POPUP, CRect(0, 0, 200, 100), nullptr, 0); }

    int Set(double x1, double y1, double x2, double y2, int proportional = 0)
    {
        return m_view.SetModelArea(&m_view, &x1, &y1, &x2, &y2, proportional, 0);
    }

    CPoint Pixel(double x, double y) const
    {
        int px = 0, py = 0;
        EXPECT_EQ(m_view.ModelToInt(x, y, &px, &py), 1);
        return CPoint(px, py);
    }

    CRect2DCtrl m_view;
};

TEST_F(MappedWindow, ClientAreaTakesTheModelRectangle)
{
    ASSERT_EQ(Set(0, 0, 10, 10), 1);
    EXPECT_EQ(Pixel(0, 0), CPoint(0, 0));
    EXPECT_EQ(Pixel(10, 10), CPoint(200, 100));
}

TEST_F(MappedWindow, PixelsAreTheFloorOfTheSum)
{
    ASSERT_EQ(Set(0, 0, 10, 10), 1);
    // x: 20 a unit, y: 10 a unit; 0.024 * 20 + 0.5 = 0.98 and 0.026 * 20 + 0.5 = 1.02.
    EXPECT_EQ(Pixel(0.024, 0), CPoint(0, 0));
    EXPECT_EQ(Pixel(0.026, 0), CPoint(1, 0));
    EXPECT_EQ(Pixel(-0.026, -0.051), CPoint(-1, -1));
}

TEST_F(MappedWindow, ObjectRoundsTheSameSumFurther)
{
    double x1 = 0, y1 = 0, x2 = 10, y2 = 10;
    CRect2DObject object;
    ASSERT_EQ(object.SetModelArea(CRect(0, 0, 200, 100), &x1, &y1, &x2, &y2, 0, 0), 1);
    int px = 0, py = 0;
    object.ModelToInt(0.024, 0, &px, &py);
    EXPECT_EQ(px, 1);
}

TEST_F(MappedWindow, HugeValuesEndAtTheLimits)
{
    ASSERT_EQ(Set(0, 0, 10, 10), 1);
    EXPECT_EQ(Pixel(1e300, -1e300), CPoint(INT_MAX, INT_MIN));
}

TEST_F(MappedWindow, EqualScaleIsWrittenBack)
{
    double x1 = 0, y1 = 0, x2 = 10, y2 = 10;
    ASSERT_EQ(m_view.SetModelArea(&m_view, &x1, &y1, &x2, &y2, 1, 0), 1);
    EXPECT_DOUBLE_EQ(x1, -5);
    EXPECT_DOUBLE_EQ(x2, 15);
}

TEST_F(MappedWindow, NullWindowIsRefused)
{
    double x1 = 0, y1 = 0, x2 = 10, y2 = 10;
    EXPECT_EQ(m_view.SetModelArea(nullptr, &x1, &y1, &x2, &y2, 0, 0), 0);
}

TEST_F(MappedWindow, CrossReachesItsHalfSizeToEachSide)
{
    Set(0, 0, 10, 10);
    CRecordingDC recording;
    m_view.CrossXY(&recording, 5, 5, 3);
    auto const calls = recording.Close();
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(CPoint(calls[0].points[0]), CPoint(97, 50));
    EXPECT_EQ(CPoint(calls[0].points[1]), CPoint(104, 50));
    EXPECT_EQ(CPoint(calls[1].points[0]), CPoint(100, 47));
    EXPECT_EQ(CPoint(calls[1].points[1]), CPoint(100, 54));
}

TEST_F(MappedWindow, PolygonIsFilledAndItsRegionDeleted)
{
    Set(0, 0, 10, 10);
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    HDC const screen = ::GetDC(nullptr);
    CBitmap bitmap;
    bitmap.Attach(::CreateCompatibleBitmap(screen, 200, 100));
    ::ReleaseDC(nullptr, screen);
    CBitmap * const former = memory.SelectObject(&bitmap);
    CBrush brush(RGB(255, 0, 0));
    CPointd points[] = {{1, 1}, {9, 1}, {9, 9}, {1, 9}};
    int const objects = CountLiveGdiObjects();
    m_view.FillRgn(&memory, points, 4, &brush);
    EXPECT_EQ(CountLiveGdiObjects(), objects);
    EXPECT_EQ(memory.GetPixel(100, 50), RGB(255, 0, 0));
    EXPECT_EQ(memory.GetPixel(10, 50), RGB(0, 0, 0));
    memory.SelectObject(former);
}

TEST(MappedButton, MapsItsOwnClientArea)
{
    CWnd parent;
    ASSERT_TRUE(parent.Create(nullptr, "", WS_POPUP, CRect(0, 0, 300, 200), nullptr, 0));
    CRect2DCtrlBtn button;
    ASSERT_TRUE(button.Create("", WS_CHILD | BS_OWNERDRAW, CRect(10, 10, 110, 60), &parent, 5));
    double x1 = 0, y1 = 0, x2 = 1, y2 = 1;
    ASSERT_EQ(button.SetModelArea(&button, &x1, &y1, &x2, &y2, 0, 0), 1);
    int px = 0, py = 0;
    button.ModelToInt(1, 1, &px, &py);
    EXPECT_EQ(CPoint(px, py), CPoint(100, 50));

    CRecordingDC recording;
    CBrush brush(RGB(0, 0, 255));
    TUVect2D points[] = {{{0, 0}}, {{1, 0}}, {{1, 1}}};
    button.FillRgn(&recording, points, 3, &brush);
    EXPECT_EQ(recording.Close().size(), 1u);
}

TEST(MappedControls, CanBeMadeByTheirRecords)
{
    std::unique_ptr<CObject> const view(RUNTIME_CLASS(CRect2DCtrl)->CreateObject());
    std::unique_ptr<CObject> const button(RUNTIME_CLASS(CRect2DCtrlBtn)->CreateObject());
    EXPECT_TRUE(view->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(button->IsKindOf(RUNTIME_CLASS(CButton)));
}
}  // namespace
