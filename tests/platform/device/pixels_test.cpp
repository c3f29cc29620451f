// Pixels at named places, by the rules that hold on every build.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/device/picture.h"

namespace {
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

/// A small image with the pens and brushes of a test in it.
class Pixels : public testing::Test
{
  protected:
    void Select(CGdiObject & object) { m_image.SelectObject(object.GetSafeHandle()); }

    void TearDown() override
    {
        m_image.SelectStockObject(BLACK_PEN);
        m_image.SelectStockObject(WHITE_BRUSH);
    }

    /// A row of the image as text: '#' for black, 'r' for red, 'b' for blue, '.' for white, '?' for others.
    std::string Row(int y, int count)
    {
        std::string row;
        for (int x = 0; x < count; ++x) {
            COLORREF const colour = m_image.GetPixel(x, y);
            row += colour == kWhite   ? '.'
                   : colour == kBlack ? '#'
                   : colour == kRed   ? 'r'
                   : colour == kBlue  ? 'b'
                                      : '?';
        }
        return row;
    }

    std::string Column(int x, int count)
    {
        std::string column;
        for (int y = 0; y < count; ++y)
            column += m_image.GetPixel(x, y) == kWhite ? '.' : '#';
        return column;
    }

    void Line(int x1, int y1, int x2, int y2)
    {
        m_image.MoveTo(x1, y1);
        m_image.LineTo(x2, y2);
    }

    CImageDC m_image{40, 30};
    CPen m_red{PS_SOLID, 0, kRed};
    CBrush m_blue{kBlue};
};

TEST_F(Pixels, NewImageIsWhite)
{
    EXPECT_EQ(m_image.GetPixel(0, 0), kWhite);
    EXPECT_EQ(m_image.GetPixel(39, 29), kWhite);
}

TEST_F(Pixels, PixelOutsideIsInvalid)
{
    EXPECT_EQ(m_image.GetPixel(40, 0), CLR_INVALID);
}

TEST_F(Pixels, LineIncludesItsStartAndExcludesItsEnd)
{
    Line(2, 1, 6, 1);
    EXPECT_EQ(Row(1, 9), "..####...");
}

TEST_F(Pixels, LineBackwardsExcludesItsOwnEnd)
{
    Line(6, 1, 2, 1);
    EXPECT_EQ(Row(1, 9), "...####..");
}

TEST_F(Pixels, LineOfLengthZeroDrawsNothing)
{
    Line(3, 3, 3, 3);
    EXPECT_EQ(Row(3, 6), "......");
}

TEST_F(Pixels, DiagonalGoesThroughEachCorner)
{
    Line(0, 0, 5, 5);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(m_image.GetPixel(i, i), kBlack);
    EXPECT_EQ(m_image.GetPixel(5, 5), kWhite);
}

TEST_F(Pixels, FlatSlopeStepsEverySecondPixelUpperOnATie)
{
    // dy/dx = 1/2: the exact places are 9, 9.5, 10, 10.5 ...; a tie goes to the upper row.
    Line(5, 9, 11, 12);
    EXPECT_EQ(Row(9, 12), ".....##.....");
    EXPECT_EQ(Row(10, 12), ".......##...");
    EXPECT_EQ(Row(11, 12), ".........##.");
}

TEST_F(Pixels, LineToMovesThePosition)
{
    Line(1, 2, 7, 8);
    EXPECT_EQ(m_image.GetCurrentPosition(), CPoint(7, 8));
}

TEST_F(Pixels, MoveToGivesTheOldPosition)
{
    m_image.MoveTo(4, 5);
    EXPECT_EQ(m_image.MoveTo(6, 7), CPoint(4, 5));
}

TEST_F(Pixels, PolylineKeepsThePosition)
{
    POINT const points[] = {{1, 1}, {5, 1}, {5, 4}};
    m_image.MoveTo(9, 9);
    m_image.Polyline(points, 3);
    EXPECT_EQ(Row(1, 8), ".#####..");
    EXPECT_EQ(Column(5, 6), ".###..");
    EXPECT_EQ(m_image.GetCurrentPosition(), CPoint(9, 9));
}

TEST_F(Pixels, RectangleExcludesRightAndBottom)
{
    Select(m_red);
    Select(m_blue);
    m_image.Rectangle(2, 2, 7, 6);
    EXPECT_EQ(Row(1, 9), ".........");
    EXPECT_EQ(Row(2, 9), "..rrrrr..");
    EXPECT_EQ(Row(3, 9), "..rbbbr..");
    EXPECT_EQ(Row(5, 9), "..rrrrr..");
    EXPECT_EQ(Row(6, 9), ".........");
}

TEST_F(Pixels, RectangleWithCornersExchangedIsTheSame)
{
    Select(m_blue);
    m_image.Rectangle(7, 6, 2, 2);
    EXPECT_EQ(Row(2, 9), "..#####..");
    EXPECT_EQ(Row(3, 9), "..#bbb#..");
    EXPECT_EQ(Row(5, 9), "..#####..");
}

TEST_F(Pixels, RectangleWithoutPenIsSmallerByOne)
{
    Select(m_blue);
    m_image.SelectStockObject(NULL_PEN);
    m_image.Rectangle(2, 2, 7, 6);
    EXPECT_EQ(Row(2, 9), "..bbbb...");
    EXPECT_EQ(Row(4, 9), "..bbbb...");
    EXPECT_EQ(Row(5, 9), ".........");
}

TEST_F(Pixels, RectangleWithHollowBrushLeavesTheInside)
{
    m_image.FillRect(CRect(0, 0, 10, 10), &m_blue);
    m_image.SelectStockObject(HOLLOW_BRUSH);
    m_image.Rectangle(2, 2, 7, 6);
    EXPECT_EQ(Row(3, 10), "bb#bbb#bbb");
}

TEST_F(Pixels, EllipseTouchesItsBoxWithoutRightAndBottom)
{
    Select(m_red);
    Select(m_blue);
    m_image.Ellipse(2, 2, 13, 13);
    EXPECT_EQ(m_image.GetPixel(7, 2), kRed);
    EXPECT_EQ(m_image.GetPixel(7, 12), kRed);
    EXPECT_EQ(m_image.GetPixel(2, 7), kRed);
    EXPECT_EQ(m_image.GetPixel(12, 7), kRed);
    EXPECT_EQ(m_image.GetPixel(7, 7), kBlue);
    EXPECT_EQ(m_image.GetPixel(7, 13), kWhite);
    EXPECT_EQ(m_image.GetPixel(13, 7), kWhite);
    EXPECT_EQ(m_image.GetPixel(2, 2), kWhite);
    EXPECT_EQ(m_image.GetPixel(12, 12), kWhite);
}

TEST_F(Pixels, PolygonFillsByTheEvenOddRule)
{
    // A pentagram-like figure: an outer square and an inner one in a single outline.
    POINT const points[] = {{1, 1}, {21, 1}, {21, 21}, {1, 21}, {1, 1},
                            {6, 6}, {16, 6}, {16, 16}, {6, 16}, {6, 6}};
    m_image.SelectStockObject(NULL_PEN);
    Select(m_blue);
    m_image.Polygon(points, 10);
    EXPECT_EQ(m_image.GetPixel(3, 10), kBlue);
    EXPECT_EQ(m_image.GetPixel(10, 10), kWhite);
    m_image.SetPolyFillMode(WINDING);
    m_image.Polygon(points, 10);
    EXPECT_EQ(m_image.GetPixel(10, 10), kBlue);
}

TEST_F(Pixels, PolyPolygonHasAHole)
{
    POINT const points[] = {{1, 1}, {21, 1}, {21, 21}, {1, 21}, {6, 6}, {16, 6}, {16, 16}, {6, 16}};
    int const counts[] = {4, 4};
    Select(m_red);
    Select(m_blue);
    m_image.PolyPolygon(points, counts, 2);
    EXPECT_EQ(Row(10, 24), ".rbbbbr.........rbbbbr..");
}

TEST_F(Pixels, PolygonWithoutPenExcludesRightAndBottom)
{
    POINT const points[] = {{2, 2}, {6, 2}, {6, 5}, {2, 5}};
    m_image.SelectStockObject(NULL_PEN);
    Select(m_blue);
    m_image.Polygon(points, 4);
    EXPECT_EQ(Row(2, 8), "..bbbb..");
    EXPECT_EQ(Row(4, 8), "..bbbb..");
    EXPECT_EQ(Row(5, 8), "........");
}

TEST_F(Pixels, WidePenIsCentredOnTheLine)
{
    CPen pen(PS_SOLID, 3, kBlack);
    Select(pen);
    Line(5, 10, 20, 10);
    EXPECT_EQ(Column(12, 14), ".........###..");
    m_image.SelectStockObject(BLACK_PEN);
}

TEST_F(Pixels, NullPenDrawsNothing)
{
    m_image.SelectStockObject(NULL_PEN);
    Line(0, 0, 20, 0);
    EXPECT_EQ(Row(0, 6), "......");
}

TEST_F(Pixels, FillRectExcludesRightAndBottom)
{
    m_image.FillRect(CRect(2, 2, 5, 4), &m_blue);
    EXPECT_EQ(Row(1, 7), ".......");
    EXPECT_EQ(Row(2, 7), "..bbb..");
    EXPECT_EQ(Row(3, 7), "..bbb..");
    EXPECT_EQ(Row(4, 7), ".......");
}

TEST_F(Pixels, SetPixelGivesTheColourAndSparesTheRest)
{
    EXPECT_EQ(m_image.SetPixel(3, 3, kRed), kRed);
    EXPECT_EQ(m_image.GetPixel(3, 3), kRed);
    m_image.SetPixel(-1, 3, kRed);
    EXPECT_EQ(m_image.GetPixel(0, 3), kWhite);
}

struct DashCase
{
    int style;
    char const * row;
};

class DashedLine : public testing::TestWithParam<DashCase>
{
};

TEST_P(DashedLine, HasItsPatternOfPixels)
{
    CImageDC image(40, 3);
    CPen pen(GetParam().style, 0, kBlack);
    HGDIOBJ const old = image.SelectObject(pen.GetSafeHandle());
    image.SetBkMode(TRANSPARENT);
    image.MoveTo(0, 1);
    image.LineTo(40, 1);
    image.SelectObject(old);
    std::string row;
    for (int x = 0; x < 40; ++x)
        row += image.GetPixel(x, 1) == kBlack ? '#' : '.';
    EXPECT_EQ(row, GetParam().row);
}

INSTANTIATE_TEST_SUITE_P(AllStyles, DashedLine,
                         testing::Values(DashCase{PS_SOLID, "########################################"},
                                         DashCase{PS_DASH, "##################......################"},
                                         DashCase{PS_DOT, "###...###...###...###...###...###...###."},
                                         DashCase{PS_DASHDOT, "#########......###......#########......#"},
                                         DashCase{PS_DASHDOTDOT,
                                                  "#########...###...###...#########...###."}));

TEST_F(Pixels, GapsOfADashedLineTakeTheBackgroundColour)
{
    CPen pen(PS_DOT, 0, kBlack);
    Select(pen);
    m_image.SetBkMode(OPAQUE);
    m_image.SetBkColor(kRed);
    Line(0, 1, 10, 1);
    EXPECT_EQ(Row(1, 12), "###rrr###r..");
    m_image.SelectStockObject(BLACK_PEN);
}

TEST_F(Pixels, HatchGapsFollowTheBackgroundMode)
{
    CBrush brush(HS_HORIZONTAL, kBlack);
    m_image.SelectStockObject(NULL_PEN);
    Select(brush);
    m_image.SetBkColor(kRed);
    m_image.SetBkMode(TRANSPARENT);
    m_image.Rectangle(0, 0, 9, 17);
    EXPECT_EQ(Column(4, 17), "...#.......#.....");
    m_image.SelectStockObject(WHITE_BRUSH);
    m_image.SetBkMode(OPAQUE);
    Select(brush);
    m_image.Rectangle(0, 0, 9, 17);
    EXPECT_EQ(m_image.GetPixel(4, 3), kBlack);
    EXPECT_EQ(m_image.GetPixel(4, 4), kRed);
}

TEST_F(Pixels, HatchesLieEightPixelsApart)
{
    for (int hatch = HS_HORIZONTAL; hatch <= HS_DIAGCROSS; ++hatch) {
        CBrush brush(hatch, kBlack);
        Select(brush);
        m_image.SetBkMode(OPAQUE);
        m_image.SetBkColor(kWhite);
        m_image.PatBlt(0, 0, 24, 24, PATCOPY);
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                EXPECT_EQ(m_image.GetPixel(x, y), m_image.GetPixel(x + 8, y)) << hatch;
                EXPECT_EQ(m_image.GetPixel(x, y), m_image.GetPixel(x, y + 8)) << hatch;
            }
        m_image.SelectStockObject(WHITE_BRUSH);
    }
}

TEST_F(Pixels, HatchDirections)
{
    auto const drawn = [this](int hatch) {
        CBrush brush(hatch, kBlack);
        Select(brush);
        m_image.PatBlt(0, 0, 40, 30, PATCOPY);
        m_image.SelectStockObject(WHITE_BRUSH);
        return std::pair(m_image.GetPixel(9, 9), m_image.GetPixel(8, 15));
    };
    // "\" passes through (8, 8) and (9, 9), "/" through (8, 15) and (9, 14).
    EXPECT_EQ(drawn(HS_FDIAGONAL), std::pair(kBlack, kWhite));
    EXPECT_EQ(drawn(HS_BDIAGONAL), std::pair(kWhite, kBlack));
    EXPECT_EQ(drawn(HS_DIAGCROSS), std::pair(kBlack, kBlack));
}

TEST_F(Pixels, PatternBrushRepeatsItsBitmap)
{
    CDC memory;
    memory.CreateCompatibleDC(&m_image);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&m_image, 2, 1);
    CBitmap * const old = memory.SelectObject(&bitmap);
    memory.SetPixel(0, 0, kRed);
    memory.SetPixel(1, 0, kBlue);
    memory.SelectObject(old);
    CBrush brush(&bitmap);
    m_image.FillRect(CRect(0, 0, 7, 2), &brush);
    EXPECT_EQ(Row(0, 8), "rbrbrbr.");
}

TEST_F(Pixels, MonochromePatternTakesTextAndBackgroundColour)
{
    unsigned char const bits[] = {0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0, 0x55, 0, 0xAA, 0};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(8, 8, 1, 1, bits));
    CBrush brush(&bitmap);
    m_image.SetTextColor(kRed);
    m_image.SetBkColor(kBlue);
    m_image.FillRect(CRect(0, 0, 4, 2), &brush);
    EXPECT_EQ(Row(0, 5), "rbrb.");
    EXPECT_EQ(Row(1, 5), "brbr.");
}
}  // namespace
