#include "views2d/rect2d_object.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "platform/device/picture.h"

namespace {
struct Window
{
    double x1, y1, x2, y2;
};

int Set(CRect2DObject & view, CRect rectangle, Window & window, int proportional = 0, int margin = 0)
{
    return view.SetModelArea(rectangle, &window.x1, &window.y1, &window.x2, &window.y2, proportional, margin);
}

Window InForce(CRect2DObject const & view)
{
    Window window{};
    int proportional = 0;
    view.GetModelArea(&window.x1, &window.y1, &window.x2, &window.y2, &proportional);
    return window;
}

void ExpectWindow(Window const & window, double x1, double y1, double x2, double y2)
{
    EXPECT_DOUBLE_EQ(window.x1, x1);
    EXPECT_DOUBLE_EQ(window.y1, y1);
    EXPECT_DOUBLE_EQ(window.x2, x2);
    EXPECT_DOUBLE_EQ(window.y2, y2);
}

CPoint Pixel(CRect2DObject const & view, double x, double y)
{
    int px = 0, py = 0;
    EXPECT_EQ(view.ModelToInt(x, y, &px, &py), 1);
    return CPoint(px, py);
}

TEST(Rect2DMapping, ModelRectangleFillsThePixels)
{
    CRect2DObject view;
    Window window{0, 0, 10, 5};
    ASSERT_EQ(Set(view, CRect(100, 50, 300, 250), window), 1);
    // Scale x 20, y 40; half a pixel goes in before the rounding, so every position is rounded up.
    EXPECT_EQ(Pixel(view, 0, 0), CPoint(101, 51));
    EXPECT_EQ(Pixel(view, 10, 5), CPoint(301, 251));
    EXPECT_EQ(Pixel(view, 5.01, 2.51), CPoint(201, 151));
}

TEST(Rect2DMapping, PixelsGoBackWithoutTheHalf)
{
    CRect2DObject view;
    Window window{0, 0, 10, 5};
    Set(view, CRect(100, 50, 300, 250), window);
    double x = 0, y = 0;
    EXPECT_EQ(view.IntToModel(100, 50, &x, &y), 1);
    EXPECT_DOUBLE_EQ(x, 0);
    EXPECT_DOUBLE_EQ(y, 0);
    view.IntToModel(300, 150, &x, &y);
    EXPECT_DOUBLE_EQ(x, 10);
    EXPECT_DOUBLE_EQ(y, 2.5);
}

TEST(Rect2DMapping, ReversedAxisCountsFromTheOtherSide)
{
    CRect2DObject view;
    Window window{10, 5, 0, 0};
    ASSERT_EQ(Set(view, CRect(0, 0, 100, 100), window), 1);
    // Scale -10, origin 0 - 100; 100 + 10 * x - 100 + 0.5: x1 lands on the right side but for the rounding.
    EXPECT_EQ(Pixel(view, 10, 5), CPoint(101, 101));
    EXPECT_EQ(Pixel(view, 0, 0), CPoint(1, 1));
    double x = 0, y = 0;
    view.IntToModel(100, 0, &x, &y);
    EXPECT_DOUBLE_EQ(x, 10);
    EXPECT_DOUBLE_EQ(y, 0);
    ExpectWindow(InForce(view), 10, 5, 0, 0);
}

TEST(Rect2DMapping, PointAtZeroGetsAWindowOfTwo)
{
    CRect2DObject view;
    Window window{0, 0, 0, 0};
    ASSERT_EQ(Set(view, CRect(0, 0, 100, 100), window), 1);
    ExpectWindow(InForce(view), -1, -1, 1, 1);
    ExpectWindow(window, 0, 0, 0, 0);
}

TEST(Rect2DMapping, PointElsewhereGetsATenthToEachSide)
{
    CRect2DObject view;
    Window window{5, -20, 5, -20};
    Set(view, CRect(0, 0, 100, 100), window);
    ExpectWindow(InForce(view), 4.5, -22, 5.5, -18);
}

TEST(Rect2DMapping, SpanBelowTheLimitIsOpened)
{
    CRect2DObject view;
    Window window{1, 1, 1 + 0.9e-5, 1 + 1.1e-5};
    Set(view, CRect(0, 0, 100, 100), window);
    EXPECT_DOUBLE_EQ(InForce(view).x1, 0.9);
    EXPECT_DOUBLE_EQ(InForce(view).x2, 1.1 + 0.9e-5);
    EXPECT_DOUBLE_EQ(InForce(view).y1, 1);
}

TEST(Rect2DMapping, MarginWidensAboutTheCentre)
{
    CRect2DObject view;
    Window window{0, 0, 10, 20};
    Set(view, CRect(0, 0, 100, 100), window, 0, 10);
    ExpectWindow(InForce(view), -0.5, -1, 10.5, 21);
    ExpectWindow(window, 0, 0, 10, 20);
}

TEST(Rect2DMapping, WideModelKeepsXAndExtendsY)
{
    CRect2DObject view;
    Window window{0, 0, 20, 5};
    Set(view, CRect(0, 0, 100, 100), window, 1);
    ExpectWindow(window, 0, -7.5, 20, 12.5);
    ExpectWindow(InForce(view), 0, -7.5, 20, 12.5);
}

TEST(Rect2DMapping, HighModelKeepsYAndExtendsX)
{
    CRect2DObject view;
    Window window{0, 0, 5, 20};
    Set(view, CRect(0, 0, 200, 100), window, 1);
    ExpectWindow(window, -17.5, 0, 22.5, 20);
}

TEST(Rect2DMapping, BothAxesReversedKeepTheirDirectionInEqualScale)
{
    CRect2DObject view;
    Window window{5, 20, 0, 0};
    Set(view, CRect(0, 0, 100, 100), window, 1);
    ExpectWindow(window, 12.5, 20, -7.5, 0);
}

TEST(Rect2DMapping, OneReversedAxisTakesTheOthersSignInEqualScale)
{
    // The ratio of the spans is negative and so never above that of the pixels: x is widened, to a span with
    // the sign of y's.
    CRect2DObject view;
    Window window{0, 10, 30, 0};
    Set(view, CRect(0, 0, 100, 100), window, 1);
    ExpectWindow(window, 20, 10, 10, 0);
}

TEST(Rect2DMapping, EmptyRectangleFailsAndKeepsTheMapping)
{
    CRect2DObject view;
    Window window{0, 0, 10, 10};
    Set(view, CRect(0, 0, 100, 100), window);
    for (CRect const & empty : {CRect(0, 0, 0, 100), CRect(0, 0, 100, 0), CRect(10, 10, 0, 0)}) {
        Window other{3, 3, 4, 4};
        EXPECT_EQ(Set(view, empty, other, 1, 5), 0);
        ExpectWindow(InForce(view), 0, 0, 10, 10);
        ExpectWindow(other, 3, 3, 4, 4);
    }
}

TEST(Rect2DMapping, HugeAndNonNumericModelsAreHarmless)
{
    double const values[] = {1e300, -1e300, std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::quiet_NaN(), 1e-300};
    for (double a : values)
        for (double b : values) {
            CRect2DObject view;
            Window window{a, b, b, a};
            EXPECT_EQ(Set(view, CRect(-2000000000, 0, 2000000000, 100), window, 1, 2000000000), 1);
            Window again{a, b, b, a};
            EXPECT_EQ(Set(view, CRect(0, 0, 2000000000, 100), again, 1, 2000000000), 1);
            Pixel(view, a, b);
        }
}

TEST(Rect2DMapping, UsesTheHostsKernelOrItsOwn)
{
    CMathematics kernel;
    CRect2DObject onHosts(&kernel), onOwn;
    Window window{0, 0, 10, 10};
    Set(onHosts, CRect(0, 0, 50, 50), window);
    Set(onOwn, CRect(0, 0, 50, 50), window);
    EXPECT_EQ(Pixel(onHosts, 3, 4), Pixel(onOwn, 3, 4));
}

class Rect2DDrawing : public testing::Test
{
  protected:
    void SetUp() override
    {
        Window window{0, 0, 100, 100};
        ASSERT_EQ(Set(m_view, CRect(0, 0, 100, 100), window), 1);
    }

    bool IsInk(int x, int y) { return m_image.GetPixel(x, y) != RGB(255, 255, 255); }

    CImageDC m_image{120, 120};
    CRect2DObject m_view;
};

TEST_F(Rect2DDrawing, LineRunsFromPointToPoint)
{
    EXPECT_EQ(m_view.MoveTo(&m_image, 10, 20), 1);
    EXPECT_EQ(m_view.LineTo(&m_image, 30, 20), 1);
    // (10, 20) is the pixel (11, 21); the last pixel isn't drawn.
    EXPECT_FALSE(IsInk(10, 21));
    EXPECT_TRUE(IsInk(11, 21));
    EXPECT_TRUE(IsInk(30, 21));
    EXPECT_FALSE(IsInk(31, 21));
}

TEST_F(Rect2DDrawing, CurrentPositionComesBackInModelUnits)
{
    m_view.MoveTo(&m_image, 10, 20);
    double x = 0, y = 0;
    m_view.GetCurrentPosition(&m_image, &x, &y);
    EXPECT_DOUBLE_EQ(x, 11);
    EXPECT_DOUBLE_EQ(y, 21);
}

TEST_F(Rect2DDrawing, CrossReachesItsHalfSizeToEachSide)
{
    m_view.CrossXY(&m_image, 50, 50, 3);
    for (int d : {-3, 3}) {
        EXPECT_TRUE(IsInk(51 + d, 51));
        EXPECT_TRUE(IsInk(51, 51 + d));
    }
    for (int d : {-4, 4}) {
        EXPECT_FALSE(IsInk(51 + d, 51));
        EXPECT_FALSE(IsInk(51, 51 + d));
    }
}

TEST_F(Rect2DDrawing, CircleHasItsDiameterAlongX)
{
    m_view.CircleXY(&m_image, 50, 50, 20);
    EXPECT_TRUE(IsInk(41, 51));
    EXPECT_TRUE(IsInk(60, 51));
    EXPECT_FALSE(IsInk(39, 51));
    EXPECT_FALSE(IsInk(62, 51));
}

TEST_F(Rect2DDrawing, SmallestCircleHasARadiusOfOnePixel)
{
    m_view.CircleXY(&m_image, 50, 50, 0);
    int ink = 0;
    for (int y = 48; y < 54; ++y)
        for (int x = 48; x < 54; ++x)
            ink += IsInk(x, y);
    EXPECT_GT(ink, 0);
    EXPECT_LE(ink, 4);
}

TEST_F(Rect2DDrawing, RectangleIsFilledBetweenItsCorners)
{
    CBrush red(RGB(255, 0, 0));
    m_view.FillRect(&m_image, 10, 10, 20, 20, &red);
    EXPECT_EQ(m_image.GetPixel(11, 11), RGB(255, 0, 0));
    EXPECT_EQ(m_image.GetPixel(20, 20), RGB(255, 0, 0));
    EXPECT_FALSE(IsInk(21, 21));
    EXPECT_FALSE(IsInk(10, 10));
}

TEST_F(Rect2DDrawing, NullBrushFillsNothing)
{
    m_view.FillRect(&m_image, 10, 10, 20, 20, nullptr);
    EXPECT_FALSE(IsInk(15, 15));
}
}  // namespace
