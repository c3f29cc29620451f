// Text: metrics, alignment, rotation and letters of code page 1250.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>

#include "platform/device/picture.h"

namespace {
constexpr COLORREF kWhite = RGB(255, 255, 255);

class Text : public testing::Test
{
  protected:
    void Use(int height, int escapement = 0, char const * face = "Arial", int weight = FW_NORMAL)
    {
        m_image.SelectStockObject(SYSTEM_FONT);
        m_font.DeleteObject();
        ASSERT_TRUE(m_font.CreateFont(height, 0, escapement, escapement, weight, 0, 0, 0, EASTEUROPE_CHARSET,
                                      0, 0, 0, 0, face));
        m_image.SelectObject(&m_font);
        m_image.SetBkMode(TRANSPARENT);
    }

    void TearDown() override { m_image.SelectStockObject(SYSTEM_FONT); }

    /// The smallest rectangle around all that isn't white.
    CRect Inked()
    {
        CRect box(1000, 1000, 0, 0);
        for (int y = 0; y < 200; ++y)
            for (int x = 0; x < 300; ++x)
                if (m_image.GetPixel(x, y) != kWhite)
                    box = CRect(std::min<int>(box.left, x), std::min<int>(box.top, y),
                                std::max<int>(box.right, x + 1), std::max<int>(box.bottom, y + 1));
        return box;
    }

    void ExpectNear(int value, int expected, int tolerance)
    {
        EXPECT_LE(std::abs(value - expected), tolerance) << value;
    }

    CFont m_font;
    CImageDC m_image{300, 200};
};

TEST_F(Text, NegativeHeightIsTheHeightOfTheLetters)
{
    // Liberation Sans: ascent 1854, descent 434 of 2048 units. 20 pixels give 18.1 and 4.2.
    Use(-20);
    TEXTMETRIC metrics;
    ASSERT_TRUE(m_image.GetTextMetrics(&metrics));
    EXPECT_EQ(metrics.tmAscent, 18);
    EXPECT_EQ(metrics.tmDescent, 4);
    EXPECT_EQ(metrics.tmHeight, 22);
    EXPECT_EQ(metrics.tmInternalLeading, 2);
}

TEST_F(Text, PositiveHeightIsTheHeightOfTheCell)
{
    Use(20);
    TEXTMETRIC metrics;
    ASSERT_TRUE(m_image.GetTextMetrics(&metrics));
    EXPECT_EQ(metrics.tmHeight, 20);
    EXPECT_EQ(metrics.tmAscent, 16);
    EXPECT_EQ(metrics.tmDescent, 4);
}

TEST_F(Text, ExtentIsTheSumOfTheLetters)
{
    // Widths at 20 pixels: H 14, e 11, l 4, l 4, o 11, space 6, W 19, o 11, r 7, l 4, d 11.
    Use(-20);
    EXPECT_EQ(m_image.GetTextExtent("Hello World"), CSize(102, 22));
    EXPECT_EQ(m_image.GetTextExtent("Hello"), CSize(44, 22));
    EXPECT_EQ(m_image.GetTextExtent("").cx, 0);
}

TEST_F(Text, MonospacedFaceHasEqualWidths)
{
    Use(-20, 0, "Courier New");
    EXPECT_EQ(m_image.GetTextExtent("iiii"), m_image.GetTextExtent("MMMM"));
}

TEST_F(Text, CzechLettersHaveTheWidthOfTheirBase)
{
    // c and s with caron, u with ring, in code page 1250.
    Use(-40);
    EXPECT_EQ(m_image.GetTextExtent("\xE8").cx, m_image.GetTextExtent("c").cx);
    EXPECT_EQ(m_image.GetTextExtent("\x9A").cx, m_image.GetTextExtent("s").cx);
    EXPECT_EQ(m_image.GetTextExtent("\xF9").cx, m_image.GetTextExtent("u").cx);
}

TEST_F(Text, CaronStandsAboveTheLetter)
{
    Use(-40);
    m_image.TextOut(10, 10, "c");
    CRect const plain = Inked();
    m_image.TextOut(10, 10, "\xE8");
    CRect const accented = Inked();
    EXPECT_LT(accented.top, plain.top - 4);
    EXPECT_EQ(accented.bottom, plain.bottom);
    ExpectNear(accented.left, plain.left, 1);
}

TEST_F(Text, TopLeftIsTheDefaultReference)
{
    // The capital H is 1409 of 2048 units high: 28 pixels of 40, its foot 36 below the top.
    Use(-40);
    m_image.TextOut(50, 20, "H");
    CRect const box = Inked();
    ExpectNear(box.bottom, 56, 1);
    ExpectNear(box.Height(), 28, 1);
    ExpectNear(box.left, 53, 1);
}

TEST_F(Text, AlignmentMovesTheReference)
{
    Use(-40);
    int const width = m_image.GetTextExtent("H").cx;
    m_image.TextOut(100, 50, "H");
    CRect const plain = Inked();
    auto const drawn = [this](UINT align) {
        m_image.PatBlt(0, 0, 300, 200, WHITENESS);
        m_image.SetTextAlign(align);
        m_image.TextOut(100, 50, "H");
        return Inked();
    };
    EXPECT_EQ(drawn(TA_RIGHT).left, plain.left - width);
    ExpectNear(drawn(TA_CENTER).left, plain.left - width / 2, 1);
    EXPECT_EQ(drawn(TA_BASELINE).bottom, 50);
    EXPECT_EQ(drawn(TA_BOTTOM).top, plain.top - m_image.GetTextExtent("H").cy);
    EXPECT_EQ(drawn(TA_RIGHT | TA_BASELINE).bottom, 50);
}

TEST_F(Text, UpdatedPositionCarriesTheNextText)
{
    Use(-40);
    m_image.SetTextAlign(TA_UPDATECP | TA_BASELINE);
    m_image.MoveTo(20, 60);
    m_image.TextOut(0, 0, "H");
    EXPECT_EQ(m_image.GetCurrentPosition(), CPoint(20 + m_image.GetTextExtent("H").cx, 60));
    EXPECT_GT(Inked().left, 19);
}

TEST_F(Text, QuarterTurnRunsUpward)
{
    Use(-40, 900);
    m_image.SetTextAlign(TA_BASELINE);
    m_image.TextOut(150, 150, "HHH");
    CRect const box = Inked();
    // Base line upward from (150, 150): the letters lie left of it.
    ExpectNear(box.right, 150, 1);
    ExpectNear(box.Width(), 28, 1);
    EXPECT_LE(box.bottom, 150);
    EXPECT_GT(box.Height(), 70);
}

TEST_F(Text, HalfTurnStandsOnItsHead)
{
    Use(-40, 1800);
    m_image.SetTextAlign(TA_BASELINE);
    m_image.TextOut(150, 50, "HHH");
    CRect const box = Inked();
    ExpectNear(box.top, 50, 1);
    EXPECT_LE(box.right, 151);
    EXPECT_GT(box.Width(), 70);
}

TEST_F(Text, TurnedTextHasTheSameExtent)
{
    Use(-20);
    CSize const level = m_image.GetTextExtent("Hello World");
    Use(-20, 900);
    EXPECT_EQ(m_image.GetTextExtent("Hello World"), level);
}

TEST_F(Text, OpaqueBackgroundFillsTheCell)
{
    Use(-20);
    m_image.SetBkMode(OPAQUE);
    m_image.SetBkColor(RGB(255, 0, 0));
    m_image.TextOut(10, 10, "  ");
    CSize const size = m_image.GetTextExtent("  ");
    EXPECT_EQ(Inked(), CRect(10, 10, 10 + size.cx, 10 + size.cy));
}

TEST_F(Text, TextColourIsUsed)
{
    Use(-60, 0, "Arial", FW_BOLD);
    m_image.SetTextColor(RGB(0, 0, 255));
    m_image.TextOut(10, 10, "I");
    CRect const box = Inked();
    EXPECT_EQ(m_image.GetPixel(box.CenterPoint()), RGB(0, 0, 255));
}

TEST_F(Text, BoldIsWider)
{
    Use(-40);
    int const normal = m_image.GetTextExtent("abcdef").cx;
    Use(-40, 0, "Arial", FW_BOLD);
    EXPECT_GT(m_image.GetTextExtent("abcdef").cx, normal);
}

TEST_F(Text, ClipCutsText)
{
    Use(-40);
    m_image.IntersectClipRect(0, 0, 60, 200);
    m_image.TextOut(20, 20, "HHHHHH");
    m_image.SelectClipRgn(nullptr);
    EXPECT_LE(Inked().right, 60);
}

TEST_F(Text, HeightFollowsTheMapping)
{
    Use(-20);
    m_image.SetMapMode(MM_ANISOTROPIC);
    m_image.SetWindowExt(1, 1);
    m_image.SetViewportExt(2, 2);
    m_image.TextOut(10, 10, "H");
    m_image.SetMapMode(MM_TEXT);
    ExpectNear(Inked().Height(), 28, 1);
}
}  // namespace
