// The primitives by their recorded calls and by pixels; nothing may stay selected or undeleted.
#include "drawing/draw.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/device/picture.h"
#include "platform/device/recording.h"

namespace {
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);

/// Records what `paint` draws and checks that it leaves nothing behind.
std::vector<TSDrawnCall> Recorded(std::function<void(CDraw &)> const & paint)
{
    CRecordingDC recording;
    {
        CDraw draw(&recording);
        paint(draw);
    }
    std::vector<TSDrawnCall> drawn = recording.Close();
    EXPECT_EQ(recording.GetLeftSelected(), 0);
    EXPECT_EQ(recording.GetLeftUndeleted(), 0);
    return drawn;
}

void ExpectCall(TSDrawnCall const & call, EDrawn kind, std::vector<POINT> const & points)
{
    EXPECT_EQ(call.kind, kind);
    ASSERT_EQ(call.points.size(), points.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_EQ(CPoint(call.points[i]), CPoint(points[i])) << i;
}

void ExpectPen(TSDrawnCall const & call, int style, int width, COLORREF colour)
{
    EXPECT_EQ(call.pen.lopnStyle, static_cast<UINT>(style));
    EXPECT_EQ(call.pen.lopnWidth.x, width);
    EXPECT_EQ(call.pen.lopnColor, colour);
}

TEST(DrawLine, TakesTheCurrentPen)
{
    auto const drawn = Recorded([](CDraw & draw) { draw.Line(1, 2, 30, 40); });
    ASSERT_EQ(drawn.size(), 1u);
    ExpectCall(drawn[0], EDrawn::Line, {{1, 2}, {30, 40}});
    ExpectPen(drawn[0], PS_SOLID, 0, kBlack);
    EXPECT_EQ(drawn[0].backgroundMode, TRANSPARENT);
}

TEST(DrawLine, WithColourIsSolidOfWidthZero)
{
    auto const drawn = Recorded([](CDraw & draw) { draw.Line(1, 2, 30, 40, kRed); });
    ASSERT_EQ(drawn.size(), 1u);
    ExpectPen(drawn[0], PS_SOLID, 0, kRed);
}

TEST(DrawLine, WithStyleAndWidth)
{
    auto const drawn = Recorded([](CDraw & draw) { draw.Line(1, 2, 30, 40, PS_DOT, 3, kRed); });
    ASSERT_EQ(drawn.size(), 1u);
    ExpectPen(drawn[0], PS_DOT, 3, kRed);
    EXPECT_EQ(drawn[0].backgroundMode, TRANSPARENT);
}

TEST(DrawLine, PutsTheBackgroundModeBack)
{
    CImageDC image(10, 10);
    CDraw draw(&image);
    draw.Line(0, 0, 5, 5, PS_DASH, 0, kRed);
    EXPECT_EQ(image.GetBkMode(), OPAQUE);
    image.SetBkMode(TRANSPARENT);
    draw.Line(0, 0, 5, 5);
    EXPECT_EQ(image.GetBkMode(), TRANSPARENT);
}

TEST(DrawLine, GapsOfADashedLineStay)
{
    CImageDC image(10, 3);
    image.SetBkColor(kRed);
    CDraw(&image).Line(0, 1, 10, 1, PS_DOT, 0, kBlack);
    EXPECT_EQ(image.GetPixel(0, 1), kBlack);
    EXPECT_EQ(image.GetPixel(3, 1), kWhite);
    EXPECT_EQ(image.GetPixel(6, 1), kBlack);
}

TEST(DrawCross, ReachesOnePastItsSizeInEachDirection)
{
    // The ends at 13 are excluded: pixels 8 to 12.
    auto const drawn = Recorded([](CDraw & draw) { draw.Cross(10, 10, 2); });
    ASSERT_EQ(drawn.size(), 2u);
    ExpectCall(drawn[0], EDrawn::Line, {{8, 10}, {13, 10}});
    ExpectCall(drawn[1], EDrawn::Line, {{10, 8}, {10, 13}});
}

TEST(DrawCross, CoversASymmetricalPlus)
{
    CImageDC image(20, 20);
    CDraw(&image).Cross(10, 10, 2);
    EXPECT_EQ(image.GetPixel(7, 10), kWhite);
    EXPECT_EQ(image.GetPixel(8, 10), kBlack);
    EXPECT_EQ(image.GetPixel(12, 10), kBlack);
    EXPECT_EQ(image.GetPixel(13, 10), kWhite);
    EXPECT_EQ(image.GetPixel(10, 8), kBlack);
    EXPECT_EQ(image.GetPixel(10, 12), kBlack);
    EXPECT_EQ(image.GetPixel(10, 13), kWhite);
}

TEST(DrawCross, FormsDifferInThePen)
{
    auto const coloured = Recorded([](CDraw & draw) { draw.Cross(10, 10, 2, kRed); });
    auto const styled = Recorded([](CDraw & draw) { draw.Cross(10, 10, 2, PS_DASH, 1, kRed); });
    ASSERT_EQ(coloured.size(), 2u);
    ASSERT_EQ(styled.size(), 2u);
    ExpectPen(coloured[1], PS_SOLID, 0, kRed);
    ExpectPen(styled[1], PS_DASH, 1, kRed);
}

TEST(DrawOutline, RectangleIsHollow)
{
    auto const drawn = Recorded([](CDraw & draw) {
        draw.Rectangle(1, 2, 30, 40, kRed);
        draw.Rectangle(1, 2, 30, 40, PS_DASHDOT, 0, kRed);
    });
    ASSERT_EQ(drawn.size(), 2u);
    ExpectCall(drawn[0], EDrawn::Rectangle, {{1, 2}, {30, 40}});
    ExpectPen(drawn[0], PS_SOLID, 0, kRed);
    EXPECT_EQ(drawn[0].brush.lbStyle, static_cast<UINT>(BS_NULL));
    ExpectPen(drawn[1], PS_DASHDOT, 0, kRed);
    EXPECT_EQ(drawn[1].brush.lbStyle, static_cast<UINT>(BS_NULL));
}

TEST(DrawOutline, EllipseIsHollow)
{
    auto const drawn = Recorded([](CDraw & draw) {
        draw.Ellipse(1, 2, 30, 40, kRed);
        draw.Ellipse(1, 2, 30, 40, PS_DOT, 0, kRed);
    });
    ASSERT_EQ(drawn.size(), 2u);
    ExpectCall(drawn[0], EDrawn::Ellipse, {{1, 2}, {30, 40}});
    EXPECT_EQ(drawn[0].brush.lbStyle, static_cast<UINT>(BS_NULL));
    ExpectPen(drawn[1], PS_DOT, 0, kRed);
}

TEST(DrawFilled, RectangleHasPenAndBrushOfItsColour)
{
    auto const drawn = Recorded([](CDraw & draw) {
        draw.FilledRectangle(1, 2, 30, 40, kRed);
        draw.FilledRectangle(1, 2, 30, 40, PS_DASH, kRed);
        draw.FilledRectangle(1, 2, 30, 40, PS_SOLID, 4, kRed);
    });
    ASSERT_EQ(drawn.size(), 3u);
    for (TSDrawnCall const & call : drawn) {
        ExpectCall(call, EDrawn::Rectangle, {{1, 2}, {30, 40}});
        EXPECT_EQ(call.brush.lbStyle, static_cast<UINT>(BS_SOLID));
        EXPECT_EQ(call.brush.lbColor, kRed);
    }
    ExpectPen(drawn[0], PS_SOLID, 0, kRed);
    ExpectPen(drawn[1], PS_DASH, 0, kRed);
    ExpectPen(drawn[2], PS_SOLID, 4, kRed);
}

TEST(DrawFilled, EllipseHasPenAndBrushOfItsColour)
{
    auto const drawn = Recorded([](CDraw & draw) {
        draw.FilledEllipse(1, 2, 30, 40, kRed);
        draw.FilledEllipse(1, 2, 30, 40, PS_DASH, kRed);
        draw.FilledEllipse(1, 2, 30, 40, PS_SOLID, 4, kRed);
    });
    ASSERT_EQ(drawn.size(), 3u);
    for (TSDrawnCall const & call : drawn) {
        ExpectCall(call, EDrawn::Ellipse, {{1, 2}, {30, 40}});
        EXPECT_EQ(call.brush.lbColor, kRed);
    }
    ExpectPen(drawn[0], PS_SOLID, 0, kRed);
    ExpectPen(drawn[1], PS_DASH, 0, kRed);
    ExpectPen(drawn[2], PS_SOLID, 4, kRed);
}

/// A checkered bitmap of one bit per pixel.
class DrawPattern : public testing::Test
{
  protected:
    void SetUp() override
    {
        unsigned char const bits[] = {0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0};
        ASSERT_TRUE(m_bitmap.CreateBitmap(8, 8, 1, 1, bits));
    }

    CBitmap m_bitmap;
};

TEST_F(DrawPattern, FiguresHaveNoOutline)
{
    auto const drawn = Recorded([this](CDraw & draw) {
        draw.FilledRectangle(1, 2, 30, 40, m_bitmap);
        draw.FilledEllipse(1, 2, 30, 40, m_bitmap);
    });
    ASSERT_EQ(drawn.size(), 2u);
    for (TSDrawnCall const & call : drawn) {
        EXPECT_EQ(call.pen.lopnStyle, static_cast<UINT>(PS_NULL));
        EXPECT_EQ(call.brush.lbStyle, static_cast<UINT>(BS_PATTERN));
    }
}

TEST_F(DrawPattern, FillsTriangleAndRectangle)
{
    CImageDC image(40, 40);
    CDraw draw(&image);
    draw.FilledRectangle(0, 0, 9, 9, m_bitmap);
    EXPECT_EQ(image.GetPixel(0, 0), kBlack);
    EXPECT_EQ(image.GetPixel(1, 0), kWhite);
    EXPECT_EQ(image.GetPixel(1, 1), kBlack);
    draw.FilledTriangle(20, 20, 38, 20, 20, 38, m_bitmap);
    EXPECT_EQ(image.GetPixel(22, 22), kBlack);
    EXPECT_EQ(image.GetPixel(23, 22), kWhite);
}

TEST(DrawTriangle, IsThreeStrokesBackToTheStart)
{
    auto const drawn = Recorded([](CDraw & draw) { draw.Triangle(1, 2, 30, 4, 5, 60); });
    ASSERT_EQ(drawn.size(), 3u);
    ExpectCall(drawn[0], EDrawn::Line, {{1, 2}, {30, 4}});
    ExpectCall(drawn[1], EDrawn::Line, {{30, 4}, {5, 60}});
    ExpectCall(drawn[2], EDrawn::Line, {{5, 60}, {1, 2}});
}

TEST(DrawTriangle, FormsDifferInThePen)
{
    auto const coloured = Recorded([](CDraw & draw) { draw.Triangle(1, 2, 30, 4, 5, 60, kRed); });
    auto const styled = Recorded([](CDraw & draw) { draw.Triangle(1, 2, 30, 4, 5, 60, PS_DASH, 2, kRed); });
    ASSERT_EQ(coloured.size(), 3u);
    ASSERT_EQ(styled.size(), 3u);
    ExpectPen(coloured[2], PS_SOLID, 0, kRed);
    ExpectPen(styled[2], PS_DASH, 2, kRed);
}

TEST(DrawTriangle, FilledIsARegionWithItsBrush)
{
    auto const drawn = Recorded([](CDraw & draw) {
        draw.FilledTriangle(10, 10, 20, 10, 10, 20, kRed);
        draw.FilledTriangle(10, 10, 20, 10, 10, 20, HS_CROSS, kRed);
    });
    ASSERT_EQ(drawn.size(), 2u);
    ExpectCall(drawn[0], EDrawn::FillRegion, {{10, 10}, {20, 20}});
    EXPECT_EQ(drawn[0].brush.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(drawn[0].brush.lbColor, kRed);
    EXPECT_EQ(drawn[1].brush.lbStyle, static_cast<UINT>(BS_HATCHED));
}

TEST(DrawTriangle, FilledCoversItsInside)
{
    CImageDC image(30, 30);
    CDraw(&image).FilledTriangle(10, 10, 20, 10, 10, 20, kRed);
    EXPECT_EQ(image.GetPixel(10, 10), kRed);
    EXPECT_EQ(image.GetPixel(13, 13), kRed);
    EXPECT_EQ(image.GetPixel(19, 19), kWhite);
    EXPECT_EQ(image.GetPixel(20, 10), kWhite);
}

TEST(DrawText, HasItsFontColourAndTransparentBackground)
{
    auto const drawn = Recorded([](CDraw & draw) {
        draw.SetFont(-20, 45, 700, 1, 0, 0, "Arial");
        draw.TextOut(12, 34, "text", kRed);
    });
    ASSERT_EQ(drawn.size(), 1u);
    ExpectCall(drawn[0], EDrawn::Text, {{12, 34}});
    EXPECT_EQ(drawn[0].text, "text");
    EXPECT_EQ(drawn[0].textColour, kRed);
    EXPECT_EQ(drawn[0].backgroundMode, TRANSPARENT);
    EXPECT_EQ(drawn[0].font.lfHeight, -20);
    EXPECT_EQ(drawn[0].font.lfEscapement, 450);
    EXPECT_EQ(drawn[0].font.lfOrientation, 0);
    EXPECT_EQ(drawn[0].font.lfWeight, 700);
    EXPECT_EQ(drawn[0].font.lfItalic, 1);
    EXPECT_EQ(drawn[0].font.lfCharSet, DEFAULT_CHARSET);
    EXPECT_STREQ(drawn[0].font.lfFaceName, "Arial");
}

TEST(DrawText, PutsColourAndModeBack)
{
    CImageDC image(30, 30);
    image.SetTextColor(RGB(1, 2, 3));
    CDraw(&image).TextOut(2, 2, "text", kRed);
    EXPECT_EQ(image.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(image.GetBkMode(), OPAQUE);
}

TEST(DrawText, SecondFontReplacesTheFirst)
{
    CImageDC image(30, 30);
    HGDIOBJ const before = GetCurrentObject(image, OBJ_FONT);
    {
        CDraw draw(&image);
        draw.SetFont(-20, 0, 400, 0, 0, 0, "Arial");
        draw.SetFont(-30, 0, 400, 0, 0, 0, "Arial");
        LOGFONT font;
        image.GetCurrentFont()->GetLogFont(&font);
        EXPECT_EQ(font.lfHeight, -30);
        draw.ResetFont();
        EXPECT_EQ(GetCurrentObject(image, OBJ_FONT), before);
        draw.ResetFont();
        draw.SetFont(-10, 0, 400, 0, 0, 0, "Arial");
    }
    EXPECT_EQ(GetCurrentObject(image, OBJ_FONT), before);
}

TEST(Draw, WithoutAContextDoesNothing)
{
    CDraw draw(static_cast<CDC *>(nullptr));
    draw.Line(1, 2, 3, 4, kRed);
    draw.FilledTriangle(1, 2, 3, 4, 5, 6, kRed);
    draw.SetFont(-10, 0, 400, 0, 0, 0, "Arial");
    draw.TextOut(0, 0, "x", kRed);
    draw.TextOut(0, 0, nullptr, kRed);
    draw.ResetFont();
}

TEST_F(DrawPattern, PrimitivesKeepTheCountOfObjects)
{
    // Where the system doesn't count, a leak of one object a round would use up its table of 65536.
    constexpr int kRounds = 10000;
    CImageDC image(40, 40);
    CDraw draw(&image);
    int const before = CountLiveGdiObjects();
    for (int i = 0; i < kRounds; ++i) {
        draw.Line(1, 2, 9, 4, kRed);
        draw.Cross(5, 5, 2, kRed);
        draw.Rectangle(1, 1, 9, 9, kRed);
        draw.Ellipse(1, 1, 9, 9, kRed);
        draw.FilledRectangle(1, 1, 9, 9, kRed);
        draw.FilledRectangle(1, 1, 9, 9, m_bitmap);
        draw.FilledEllipse(1, 1, 9, 9, PS_DOT, 1, kRed);
        draw.Triangle(1, 1, 9, 1, 1, 9, kRed);
        draw.FilledTriangle(1, 1, 9, 1, 1, 9, kRed);
        draw.FilledTriangle(1, 1, 9, 1, 1, 9, HS_CROSS, kRed);
        draw.SetFont(-10, 0, 400, 0, 0, 0, "Arial");
    }
    draw.ResetFont();
    EXPECT_EQ(CountLiveGdiObjects(), before);
    EXPECT_NE(CPen(PS_SOLID, 0, kRed).GetSafeHandle(), nullptr);
}
}  // namespace
