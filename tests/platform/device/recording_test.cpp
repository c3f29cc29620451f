// What a recording tells of the calls that were made on it.
#include <gtest/gtest.h>

#include "platform/device/recording.h"

namespace {
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

void ExpectPoints(TSDrawnCall const & call, std::vector<POINT> const & expected)
{
    ASSERT_EQ(call.points.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(call.points[i].x, expected[i].x) << i;
        EXPECT_EQ(call.points[i].y, expected[i].y) << i;
    }
}

TEST(Recording, EmptyOneHasNoCalls)
{
    CRecordingDC recording;
    EXPECT_TRUE(recording.Close().empty());
    EXPECT_EQ(recording.GetSafeHdc(), nullptr);
    EXPECT_TRUE(recording.Close().empty());
}

TEST(Recording, LineHasBothEndsAndItsPen)
{
    CRecordingDC recording;
    CPen pen(PS_DOT, 2, kRed);
    CPen * const old = recording.SelectObject(&pen);
    recording.SetROP2(R2_XORPEN);
    recording.MoveTo(1, 2);
    recording.LineTo(30, 40);
    recording.LineTo(5, 6);
    recording.SelectObject(old);
    pen.DeleteObject();
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Line);
    ExpectPoints(drawn[0], {{1, 2}, {30, 40}});
    ExpectPoints(drawn[1], {{30, 40}, {5, 6}});
    EXPECT_EQ(drawn[0].pen.lopnStyle, static_cast<UINT>(PS_DOT));
    EXPECT_EQ(drawn[0].pen.lopnWidth.x, 2);
    EXPECT_EQ(drawn[0].pen.lopnColor, kRed);
    EXPECT_EQ(drawn[0].rasterOperation, R2_XORPEN);
    EXPECT_EQ(recording.GetLeftSelected(), 0);
    EXPECT_EQ(recording.GetLeftUndeleted(), 0);
}

TEST(Recording, StartsWithTheStockObjects)
{
    CRecordingDC recording;
    recording.Rectangle(1, 2, 30, 40);
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].pen.lopnStyle, static_cast<UINT>(PS_SOLID));
    EXPECT_EQ(drawn[0].pen.lopnColor, RGB(0, 0, 0));
    EXPECT_EQ(drawn[0].brush.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(drawn[0].brush.lbColor, RGB(255, 255, 255));
    EXPECT_EQ(drawn[0].backgroundMode, OPAQUE);
}

TEST(Recording, BoxesHaveTheirCorners)
{
    CRecordingDC recording;
    CBrush brush(HS_CROSS, kBlue);
    CBrush * const old = recording.SelectObject(&brush);
    recording.Rectangle(1, 2, 30, 40);
    recording.Ellipse(5, 6, 70, 80);
    recording.SelectObject(old);
    brush.DeleteObject();
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Rectangle);
    ExpectPoints(drawn[0], {{1, 2}, {30, 40}});
    EXPECT_EQ(drawn[1].kind, EDrawn::Ellipse);
    ExpectPoints(drawn[1], {{5, 6}, {70, 80}});
    EXPECT_EQ(drawn[1].brush.lbStyle, static_cast<UINT>(BS_HATCHED));
    EXPECT_EQ(drawn[1].brush.lbColor, kBlue);
    EXPECT_EQ(recording.GetLeftUndeleted(), 0);
}

TEST(Recording, PolygonsAndPolylinesHaveTheirPoints)
{
    std::vector<POINT> const points = {{1, 1}, {20, 1}, {20, 15}, {3, 3}, {9, 3}, {9, 9}};
    int const counts[] = {3, 3};
    CRecordingDC recording;
    recording.Polyline(points.data(), 6);
    recording.Polygon(points.data(), 6);
    recording.PolyPolygon(points.data(), counts, 2);
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 3u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Polyline);
    EXPECT_EQ(drawn[1].kind, EDrawn::Polygon);
    EXPECT_EQ(drawn[2].kind, EDrawn::PolyPolygon);
    for (TSDrawnCall const & call : drawn)
        ExpectPoints(call, points);
}

TEST(Recording, TextHasItsSettings)
{
    CRecordingDC recording;
    CFont font;
    font.CreateFont(-20, 0, 450, 450, FW_BOLD, 0, 0, 0, EASTEUROPE_CHARSET, 0, 0, 0, 0, "Times New Roman");
    CFont * const old = recording.SelectObject(&font);
    recording.SetTextColor(kRed);
    recording.SetBkMode(TRANSPARENT);
    recording.SetTextAlign(TA_CENTER | TA_BASELINE);
    recording.TextOut(12, 34, "d\xE9lka \xE8.");
    recording.SelectObject(old);
    font.DeleteObject();
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Text);
    ExpectPoints(drawn[0], {{12, 34}});
    EXPECT_EQ(drawn[0].text, "d\xE9lka \xE8.");
    EXPECT_EQ(drawn[0].textColour, kRed);
    EXPECT_EQ(drawn[0].backgroundMode, TRANSPARENT);
    EXPECT_EQ(drawn[0].textAlign, static_cast<UINT>(TA_CENTER | TA_BASELINE));
    EXPECT_EQ(drawn[0].font.lfHeight, -20);
    EXPECT_EQ(drawn[0].font.lfEscapement, 450);
    EXPECT_STREQ(drawn[0].font.lfFaceName, "Times New Roman");
    EXPECT_EQ(recording.GetLeftUndeleted(), 0);
}

TEST(Recording, FillsHaveTheirBrush)
{
    CRecordingDC recording;
    CBrush brush(kBlue);
    recording.FillRect(CRect(1, 2, 30, 40), &brush);
    CRgn region;
    POINT const points[] = {{10, 10}, {20, 10}, {10, 20}};
    region.CreatePolygonRgn(points, 3, ALTERNATE);
    recording.FillRgn(&region, &brush);
    brush.DeleteObject();
    region.DeleteObject();
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Fill);
    ExpectPoints(drawn[0], {{1, 2}, {30, 40}});
    EXPECT_EQ(drawn[0].brush.lbColor, kBlue);
    EXPECT_EQ(drawn[0].copyOperation, static_cast<DWORD>(PATCOPY));
    EXPECT_EQ(drawn[1].kind, EDrawn::FillRegion);
    ExpectPoints(drawn[1], {{10, 10}, {20, 20}});
    EXPECT_EQ(drawn[1].brush.lbColor, kBlue);
}

TEST(Recording, PixelHasItsColour)
{
    CRecordingDC recording;
    recording.SetPixel(7, 8, kRed);
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Pixel);
    ExpectPoints(drawn[0], {{7, 8}});
    EXPECT_EQ(drawn[0].textColour, kRed);
}

TEST(Recording, CopyHasItsTarget)
{
    CRecordingDC recording;
    CDC memory;
    memory.CreateCompatibleDC(nullptr);
    CBitmap bitmap;
    bitmap.CreateBitmap(8, 8, 1, 32, nullptr);
    CBitmap * const old = memory.SelectObject(&bitmap);
    recording.BitBlt(3, 4, 8, 8, &memory, 0, 0, SRCCOPY);
    memory.SelectObject(old);
    std::vector<TSDrawnCall> const drawn = recording.Close();
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Copy);
    ExpectPoints(drawn[0], {{3, 4}, {11, 12}});
    EXPECT_EQ(drawn[0].copyOperation, static_cast<DWORD>(SRCCOPY));
}

TEST(Recording, TellsWhatIsLeftSelected)
{
    CPen pen(PS_SOLID, 0, kRed);
    {
        CRecordingDC recording;
        recording.SelectObject(&pen);
        recording.MoveTo(0, 0);
        recording.LineTo(5, 5);
        recording.Close();
        EXPECT_EQ(recording.GetLeftSelected(), 1);
    }
    EXPECT_TRUE(pen.DeleteObject());
}

TEST(Recording, TellsWhatIsLeftUndeleted)
{
    CRecordingDC recording;
    HGDIOBJ const pen = CreatePen(PS_SOLID, 0, kRed);
    HGDIOBJ const old = recording.SelectObject(pen);
    recording.MoveTo(0, 0);
    recording.LineTo(5, 5);
    recording.SelectObject(old);
    recording.Close();
    EXPECT_EQ(recording.GetLeftSelected(), 0);
    EXPECT_EQ(recording.GetLeftUndeleted(), 1);
    DeleteObject(pen);
}

TEST(Recording, IsLikeTheScreen)
{
    CRecordingDC recording;
    EXPECT_EQ(recording.GetDeviceCaps(TECHNOLOGY), DT_RASDISPLAY);
    EXPECT_EQ(recording.GetDeviceCaps(HORZRES), GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(recording.GetDeviceCaps(VERTRES), GetSystemMetrics(SM_CYSCREEN));
}
}  // namespace
