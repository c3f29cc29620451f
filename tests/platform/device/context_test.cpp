// Settings, objects, mapping, clipping and copies of a context.
#include <gtest/gtest.h>

#include "platform/device/picture.h"

namespace {
constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kBlack = RGB(0, 0, 0);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

TEST(Context, StartsWithTheDocumentedSettings)
{
    CImageDC image(10, 10);
    EXPECT_EQ(image.GetTextColor(), kBlack);
    EXPECT_EQ(image.GetBkColor(), kWhite);
    EXPECT_EQ(image.GetBkMode(), OPAQUE);
    EXPECT_EQ(image.GetTextAlign(), 0u);
    EXPECT_EQ(image.GetROP2(), R2_COPYPEN);
    EXPECT_EQ(image.GetPolyFillMode(), ALTERNATE);
    EXPECT_EQ(image.GetMapMode(), MM_TEXT);
    EXPECT_EQ(image.GetCurrentPosition(), CPoint(0, 0));
    EXPECT_EQ(image.GetCurrentPen()->GetSafeHandle(), GetStockObject(BLACK_PEN));
    EXPECT_EQ(image.GetCurrentBrush()->GetSafeHandle(), GetStockObject(WHITE_BRUSH));
}

TEST(Context, SettersGiveTheOldValue)
{
    CImageDC image(10, 10);
    EXPECT_EQ(image.SetTextColor(kRed), kBlack);
    EXPECT_EQ(image.SetTextColor(kBlue), kRed);
    EXPECT_EQ(image.SetBkColor(kBlue), kWhite);
    EXPECT_EQ(image.SetBkMode(TRANSPARENT), OPAQUE);
    EXPECT_EQ(image.SetTextAlign(TA_CENTER), 0u);
    EXPECT_EQ(image.SetROP2(R2_XORPEN), R2_COPYPEN);
    EXPECT_EQ(image.SetPolyFillMode(WINDING), ALTERNATE);
}

TEST(Context, SettersRefuseUnknownValues)
{
    CImageDC image(10, 10);
    EXPECT_EQ(image.SetROP2(17), 0);
    EXPECT_EQ(image.GetROP2(), R2_COPYPEN);
    EXPECT_EQ(image.SetPolyFillMode(3), 0);
}

TEST(Context, EmptyContextFailsQuietly)
{
    CDC dc;
    EXPECT_FALSE(dc.LineTo(3, 3));
    EXPECT_FALSE(dc.Rectangle(0, 0, 5, 5));
    EXPECT_EQ(dc.GetPixel(0, 0), CLR_INVALID);
    EXPECT_FALSE(dc.TextOut(0, 0, "text"));
    EXPECT_EQ(dc.GetDeviceCaps(HORZRES), 0);
    EXPECT_FALSE(dc.DeleteDC());
}

TEST(Context, ImageOfImpossibleSizeIsNone)
{
    EXPECT_EQ(CImageDC(0, 10).GetSafeHdc(), nullptr);
    EXPECT_EQ(CImageDC(10, -1).GetSafeHdc(), nullptr);
    EXPECT_EQ(CImageDC(40000, 1).GetSafeHdc(), nullptr);
}

TEST(GraphicsObject, PenTellsItsRecord)
{
    CPen pen(PS_DASH, 3, kRed);
    LOGPEN record;
    ASSERT_EQ(pen.GetLogPen(&record), static_cast<int>(sizeof record));
    EXPECT_EQ(record.lopnStyle, static_cast<UINT>(PS_DASH));
    EXPECT_EQ(record.lopnWidth.x, 3);
    EXPECT_EQ(record.lopnColor, kRed);
}

TEST(GraphicsObject, UnknownPenStyleIsSolid)
{
    CPen pen(-1, 0, kRed);
    LOGPEN record;
    ASSERT_NE(pen.GetLogPen(&record), 0);
    EXPECT_EQ(record.lopnStyle, static_cast<UINT>(PS_SOLID));
}

TEST(GraphicsObject, HatchBrushTellsItsRecord)
{
    CBrush brush(HS_CROSS, kBlue);
    LOGBRUSH record;
    ASSERT_NE(brush.GetLogBrush(&record), 0);
    EXPECT_EQ(record.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(record.lbColor, kBlue);
    EXPECT_EQ(record.lbHatch, static_cast<decltype(record.lbHatch)>(HS_CROSS));
}

TEST(GraphicsObject, FontTellsItsRecord)
{
    CFont font;
    ASSERT_TRUE(font.CreateFont(-20, 0, 300, 300, FW_BOLD, 1, 0, 0, EASTEUROPE_CHARSET, 0, 0, 0, 0, "Arial"));
    LOGFONT record;
    ASSERT_NE(font.GetLogFont(&record), 0);
    EXPECT_EQ(record.lfHeight, -20);
    EXPECT_EQ(record.lfEscapement, 300);
    EXPECT_EQ(record.lfWeight, FW_BOLD);
    EXPECT_EQ(record.lfItalic, 1);
    EXPECT_STREQ(record.lfFaceName, "Arial");
}

TEST(GraphicsObject, BitmapTellsItsSize)
{
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(9, 4, 1, 1, nullptr));
    BITMAP record;
    ASSERT_NE(bitmap.GetBitmap(&record), 0);
    EXPECT_EQ(record.bmWidth, 9);
    EXPECT_EQ(record.bmHeight, 4);
    EXPECT_EQ(record.bmBitsPixel, 1);
    EXPECT_EQ(record.bmWidthBytes, 2);
}

TEST(GraphicsObject, AttachRefusesASecondHandle)
{
    CPen pen(PS_SOLID, 0, kRed);
    HPEN const other = CreatePen(PS_SOLID, 0, kBlue);
    EXPECT_FALSE(pen.Attach(other));
    EXPECT_FALSE(CPen().Attach(nullptr));
    EXPECT_TRUE(DeleteObject(other));
}

TEST(GraphicsObject, HandleLeadsBackToItsOwner)
{
    CPen pen(PS_SOLID, 0, kRed);
    EXPECT_EQ(CPen::FromHandle(pen), &pen);
    HPEN const handle = static_cast<HPEN>(pen.Detach());
    CPen * const temporary = CPen::FromHandle(handle);
    EXPECT_NE(temporary, &pen);
    EXPECT_EQ(temporary->GetSafeHandle(), handle);
    EXPECT_EQ(CPen::FromHandle(handle), temporary);
    EXPECT_TRUE(DeleteObject(handle));
}

TEST(GraphicsObject, StockObjectSurvivesItsDeletion)
{
    CPen pen;
    ASSERT_TRUE(pen.CreateStockObject(BLACK_PEN));
    EXPECT_TRUE(pen.DeleteObject());
    EXPECT_EQ(GetObjectType(GetStockObject(BLACK_PEN)), static_cast<DWORD>(OBJ_PEN));
}

TEST(GraphicsObject, DeletedHandleIsNone)
{
    HPEN const pen = CreatePen(PS_SOLID, 0, kRed);
    EXPECT_TRUE(DeleteObject(pen));
    EXPECT_EQ(GetObjectType(pen), 0u);
    EXPECT_FALSE(DeleteObject(pen));
    EXPECT_FALSE(DeleteObject(nullptr));
}

TEST(SelectObject, GivesTheOldObjectBack)
{
    CImageDC image(10, 10);
    CPen red(PS_SOLID, 0, kRed);
    CPen blue(PS_SOLID, 0, kBlue);
    CPen * const old = image.SelectObject(&red);
    EXPECT_EQ(old->GetSafeHandle(), GetStockObject(BLACK_PEN));
    EXPECT_EQ(image.SelectObject(&blue), &red);
    EXPECT_EQ(image.GetCurrentPen(), &blue);
    EXPECT_EQ(image.SelectObject(old), &blue);
    EXPECT_EQ(image.SelectObject(static_cast<CPen *>(nullptr)), nullptr);
}

TEST(SelectObject, OldObjectStaysGoodWhenAnOtherTakesItsHandle)
{
    CImageDC image(10, 10);
    CPen red(PS_SOLID, 0, kRed);
    CPen * const old = image.SelectObject(&red);
    {
        CPen black;
        black.CreateStockObject(BLACK_PEN);
        EXPECT_EQ(image.SelectObject(&black), &red);
    }
    image.SelectObject(old);
    EXPECT_EQ(GetCurrentObject(image, OBJ_PEN), GetStockObject(BLACK_PEN));
}

TEST(SelectObject, BitmapGoesIntoOneContextOnly)
{
    CImageDC image(10, 10);
    CDC first;
    CDC second;
    first.CreateCompatibleDC(&image);
    second.CreateCompatibleDC(&image);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&image, 4, 4);
    CBitmap * const old = first.SelectObject(&bitmap);
    EXPECT_NE(old, nullptr);
    EXPECT_EQ(second.SelectObject(&bitmap), nullptr);
    EXPECT_EQ(first.SelectObject(old), &bitmap);
    EXPECT_NE(second.SelectObject(&bitmap), nullptr);
    second.DeleteDC();
}

TEST(Mapping, WindowAndViewportOriginsShift)
{
    CImageDC image(40, 40);
    image.SetViewportOrg(10, 5);
    image.SetWindowOrg(3, 2);
    CPoint point(4, 4);
    image.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(11, 7));
    image.DPtoLP(&point);
    EXPECT_EQ(point, CPoint(4, 4));
    image.SetPixel(4, 4, kRed);
    image.SetViewportOrg(0, 0);
    EXPECT_EQ(image.SetWindowOrg(0, 0), CPoint(3, 2));
    EXPECT_EQ(image.GetPixel(11, 7), kRed);
}

TEST(Mapping, AnisotropicScalesEachAxis)
{
    CImageDC image(40, 40);
    EXPECT_EQ(image.SetMapMode(MM_ANISOTROPIC), MM_TEXT);
    image.SetWindowExt(100, 100);
    image.SetViewportExt(20, -40);
    image.SetViewportOrg(0, 40);
    CPoint point(50, 25);
    image.LPtoDP(&point);
    EXPECT_EQ(point, CPoint(10, 30));
    EXPECT_EQ(image.GetViewportExt(), CSize(20, -40));
}

TEST(Mapping, TextModeKeepsItsExtents)
{
    CImageDC image(40, 40);
    image.SetWindowExt(100, 100);
    EXPECT_EQ(image.GetWindowExt(), CSize(1, 1));
}

TEST(Mapping, PenWidthFollowsTheScale)
{
    CImageDC image(40, 40);
    image.SetMapMode(MM_ANISOTROPIC);
    image.SetWindowExt(1, 1);
    image.SetViewportExt(5, 5);
    CPen pen(PS_SOLID, 1, kBlack);
    CPen * const old = image.SelectObject(&pen);
    image.MoveTo(1, 4);
    image.LineTo(7, 4);
    image.SelectObject(old);
    int dark = 0;
    image.SetMapMode(MM_TEXT);
    for (int y = 0; y < 40; ++y)
        dark += image.GetPixel(20, y) == kBlack;
    EXPECT_EQ(dark, 5);
}

TEST(Mapping, HimetricGoesByTheDotsPerInch)
{
    CImageDC image(10, 10);
    int const dots = image.GetDeviceCaps(LOGPIXELSX);
    CSize size(2540, 5080);  // 1 by 2 inches
    image.HIMETRICtoLP(&size);
    EXPECT_EQ(size, CSize(dots, 2 * dots));
    image.LPtoHIMETRIC(&size);
    EXPECT_EQ(size, CSize(2540, 5080));
}

TEST(Clip, DrawsInsideOnly)
{
    CImageDC image(20, 20);
    EXPECT_EQ(image.IntersectClipRect(5, 5, 10, 10), SIMPLEREGION);
    image.MoveTo(0, 7);
    image.LineTo(20, 7);
    CRgn const * const none = nullptr;
    image.SelectClipRgn(const_cast<CRgn *>(none));
    EXPECT_EQ(image.GetPixel(4, 7), kWhite);
    EXPECT_EQ(image.GetPixel(5, 7), kBlack);
    EXPECT_EQ(image.GetPixel(9, 7), kBlack);
    EXPECT_EQ(image.GetPixel(10, 7), kWhite);
}

TEST(Clip, BoxIsInLogicalUnits)
{
    CImageDC image(20, 20);
    CRect box;
    image.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 20, 20));
    image.SetViewportOrg(5, 5);
    image.IntersectClipRect(0, 0, 4, 4);
    image.GetClipBox(&box);
    EXPECT_EQ(box, CRect(0, 0, 4, 4));
}

TEST(Clip, RegionOfATriangleCutsALine)
{
    CImageDC image(20, 20);
    POINT const points[] = {{0, 0}, {10, 0}, {0, 10}};
    CRgn region;
    ASSERT_TRUE(region.CreatePolygonRgn(points, 3, ALTERNATE));
    image.SelectClipRgn(&region);
    image.MoveTo(0, 4);
    image.LineTo(20, 4);
    image.SelectClipRgn(nullptr);
    EXPECT_EQ(image.GetPixel(4, 4), kBlack);
    EXPECT_EQ(image.GetPixel(8, 4), kWhite);
}

TEST(Clip, ClippedLineHasThePixelsOfTheWholeOne)
{
    CImageDC whole(60, 40);
    CImageDC cut(60, 40);
    cut.IntersectClipRect(13, 7, 44, 31);
    for (int i = 0; i < 60; i += 7)
        for (CImageDC * image : {&whole, &cut}) {
            image->MoveTo(i - 20, -15);
            image->LineTo(75 - i, 55);
            image->MoveTo(-30, i);
            image->LineTo(90, 40 - i);
        }
    cut.SelectClipRgn(nullptr);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 60; ++x) {
            bool const inside = x >= 13 && x < 44 && y >= 7 && y < 31;
            EXPECT_EQ(cut.GetPixel(x, y), inside ? whole.GetPixel(x, y) : kWhite) << x << ' ' << y;
        }
}

TEST(Region, BoxAndPoints)
{
    POINT const points[] = {{2, 2}, {12, 2}, {2, 12}};
    CRgn region;
    ASSERT_TRUE(region.CreatePolygonRgn(points, 3, ALTERNATE));
    CRect box;
    EXPECT_EQ(region.GetRgnBox(&box), COMPLEXREGION);
    EXPECT_EQ(box, CRect(2, 2, 12, 12));
    EXPECT_TRUE(region.PtInRegion(3, 3));
    EXPECT_FALSE(region.PtInRegion(11, 11));
}

TEST(Region, EmptyRectangleIsNullRegion)
{
    CRgn region;
    ASSERT_TRUE(region.CreateRectRgn(5, 5, 5, 9));
    CRect box;
    EXPECT_EQ(region.GetRgnBox(&box), NULLREGION);
}

TEST(RasterOperation, XorTwiceRestores)
{
    CImageDC image(20, 20);
    CPen pen(PS_SOLID, 0, kRed);
    CPen * const old = image.SelectObject(&pen);
    EXPECT_EQ(image.SetROP2(R2_XORPEN), R2_COPYPEN);
    image.MoveTo(0, 3);
    image.LineTo(20, 17);
    EXPECT_EQ(image.GetPixel(0, 3), RGB(0, 255, 255));
    image.MoveTo(0, 3);
    image.LineTo(20, 17);
    image.SelectObject(old);
    for (int y = 0; y < 20; ++y)
        for (int x = 0; x < 20; ++x)
            EXPECT_EQ(image.GetPixel(x, y), kWhite);
}

TEST(RasterOperation, EachCodeFollowsItsTruthTable)
{
    COLORREF const destination = RGB(0x0F, 0x33, 0x55);
    COLORREF const colour = RGB(0xF0, 0x5A, 0x00);
    COLORREF const mask = 0xFFFFFF;
    COLORREF const d = destination;
    COLORREF const p = colour;
    // In the order of the codes from R2_BLACK to R2_WHITE.
    COLORREF const expected[] = {0,     ~(d | p), d & ~p, ~p,     p & ~d, ~d,     d ^ p, ~(d & p),
                                 d & p, ~(d ^ p), d,      d | ~p, p,      p | ~d, d | p, mask};
    for (int code = R2_BLACK; code <= R2_WHITE; ++code) {
        CImageDC image(4, 4);
        image.SetPixel(1, 1, destination);
        CPen pen(PS_SOLID, 0, colour);
        CPen * const old = image.SelectObject(&pen);
        image.SetROP2(code);
        image.MoveTo(1, 1);
        image.LineTo(2, 1);
        image.SelectObject(old);
        EXPECT_EQ(image.GetPixel(1, 1), expected[code - 1] & mask) << code;
    }
}

class Copies : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_source.SetPixel(1, 1, kRed);
        m_source.SetPixel(2, 1, kBlue);
    }

    CImageDC m_source{4, 4};
    CImageDC m_target{20, 20};
};

TEST_F(Copies, BitBltMovesPixels)
{
    EXPECT_TRUE(m_target.BitBlt(10, 10, 4, 4, &m_source, 0, 0, SRCCOPY));
    EXPECT_EQ(m_target.GetPixel(11, 11), kRed);
    EXPECT_EQ(m_target.GetPixel(12, 11), kBlue);
    EXPECT_EQ(m_target.GetPixel(13, 11), kWhite);
}

TEST_F(Copies, StretchBltEnlarges)
{
    EXPECT_TRUE(m_target.StretchBlt(0, 0, 12, 12, &m_source, 0, 0, 4, 4, SRCCOPY));
    EXPECT_EQ(m_target.GetPixel(3, 3), kRed);
    EXPECT_EQ(m_target.GetPixel(5, 5), kRed);
    EXPECT_EQ(m_target.GetPixel(6, 3), kBlue);
    EXPECT_EQ(m_target.GetPixel(9, 3), kWhite);
}

TEST_F(Copies, InvertTwiceRestores)
{
    m_target.BitBlt(0, 0, 4, 4, &m_source, 0, 0, SRCINVERT);
    m_target.BitBlt(0, 0, 4, 4, &m_source, 0, 0, SRCINVERT);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(m_target.GetPixel(i, i), kWhite);
}

TEST_F(Copies, OverlappingCopyOntoItself)
{
    m_target.SetPixel(0, 0, kRed);
    m_target.SetPixel(1, 0, kBlue);
    m_target.BitBlt(1, 0, 10, 1, &m_target, 0, 0, SRCCOPY);
    EXPECT_EQ(m_target.GetPixel(1, 0), kRed);
    EXPECT_EQ(m_target.GetPixel(2, 0), kBlue);
    EXPECT_EQ(m_target.GetPixel(3, 0), kWhite);
}

TEST_F(Copies, PatBltKnowsBlackWhiteAndInvert)
{
    m_target.PatBlt(0, 0, 5, 5, BLACKNESS);
    EXPECT_EQ(m_target.GetPixel(4, 4), kBlack);
    EXPECT_EQ(m_target.GetPixel(5, 5), kWhite);
    m_target.PatBlt(0, 0, 20, 20, DSTINVERT);
    EXPECT_EQ(m_target.GetPixel(4, 4), kWhite);
    EXPECT_EQ(m_target.GetPixel(5, 5), kBlack);
}

TEST(MulDiv, RoundsToTheNearest)
{
    EXPECT_EQ(MulDiv(12, 96, 72), 16);
    EXPECT_EQ(MulDiv(1, 1, 2), 1);
    EXPECT_EQ(MulDiv(-1, 1, 2), -1);
    EXPECT_EQ(MulDiv(5, 1, 0), -1);
    EXPECT_EQ(MulDiv(2000000000, 4, 1), -1);
}
}  // namespace
