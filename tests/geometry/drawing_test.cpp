// The kernel's lines, crosses, arcs and polygons by what a recording tells of them.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>

#include "geometry/mathematics.h"
#include "geometry/object_3d.h"
#include "platform/device/picture.h"
#include "platform/device/recording.h"

namespace {
constexpr COLORREF kRed = RGB(255, 0, 0);

/// A view onto the plane of x and y.
double g_plan[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

class KernelDrawing : public testing::Test
{
  protected:
    std::vector<TSDrawnCall> Recorded(std::function<void(HDC)> const & paint)
    {
        CRecordingDC recording;
        paint(recording);
        return recording.Close();
    }

    /// The two ends of the only line that is drawn; four zeroes if there isn't exactly one.
    CRect OnlyLine(std::function<void(HDC)> const & paint)
    {
        std::vector<TSDrawnCall> const drawn = Recorded(paint);
        if (drawn.size() != 1 || drawn[0].kind != EDrawn::Line)
            return CRect();
        return CRect(drawn[0].points[0], drawn[0].points[1]);
    }

    CRect Line(int x1, int y1, int x2, int y2)
    {
        return OnlyLine([&](HDC hdc) { m_math.Line2D(hdc, x1, y1, x2, y2); });
    }

    CMathematics m_math;
    int const m_right = GetSystemMetrics(SM_CXSCREEN);
    int const m_bottom = GetSystemMetrics(SM_CYSCREEN);
};

TEST_F(KernelDrawing, ScissorIsTheScreenForAScreen)
{
    CRecordingDC recording;
    EXPECT_EQ(m_math.GetScissorRect(recording.GetSafeHdc()), CRect(0, 0, m_right, m_bottom));
    EXPECT_EQ(m_math.GetScissorRect(&recording), CRect(0, 0, m_right, m_bottom));
    EXPECT_EQ(m_math.GetScissorRect(static_cast<CDC *>(nullptr)), CRect(0, 0, m_right, m_bottom));
}

TEST_F(KernelDrawing, ScissorTestCountsAllBorders)
{
    CRecordingDC recording;
    CDC * const dc = &recording;
    HDC const hdc = recording;
    EXPECT_EQ(m_math.ScissorTest(dc, 0, 0), 1);
    EXPECT_EQ(m_math.ScissorTest(hdc, m_right, m_bottom), 1);
    EXPECT_EQ(m_math.ScissorTest(hdc, m_right + 1, 0), 0);
    EXPECT_EQ(m_math.ScissorTest(dc, 0, -1), 0);
    EXPECT_EQ(m_math.ScissorTest(CRect(5, 5, 10, 10), 10, 10), 1);
    EXPECT_EQ(m_math.ScissorTest(CRect(5, 5, 10, 10), 4, 5), 0);
}

#if !defined(_WIN32)
TEST_F(KernelDrawing, ScissorIsThePageForAPage)
{
    CImageDC image(3000, 40);
    EXPECT_EQ(m_math.GetScissorRect(&image), CRect(0, 0, 3000, 40));
}
#endif

TEST_F(KernelDrawing, LineInsideIsDrawnAsGiven)
{
    EXPECT_EQ(Line(10, 20, 30, 40), CRect(10, 20, 30, 40));
    EXPECT_EQ(Line(0, 0, m_right, m_bottom), CRect(0, 0, m_right, m_bottom));
}

TEST_F(KernelDrawing, LineOutsideIsNotDrawn)
{
    EXPECT_TRUE(Recorded([&](HDC hdc) { m_math.Line2D(hdc, -10, -10, -20, 500); }).empty());
    EXPECT_TRUE(Recorded([&](HDC hdc) { m_math.Line2D(hdc, -100, 50, 50, -200); }).empty());
}

TEST_F(KernelDrawing, LineWithOneEndInsideGoesToTheBorder)
{
    EXPECT_EQ(Line(100, 100, -100, 100), CRect(100, 100, 0, 100));
    // With the second end inside the line is drawn from there.
    EXPECT_EQ(Line(-100, 100, 100, 100), CRect(100, 100, 0, 100));
    EXPECT_EQ(Line(100, 100, 100, -300), CRect(100, 100, 100, 0));
    EXPECT_EQ(Line(100, 100, 100, 30000), CRect(100, 100, 100, m_bottom));
    EXPECT_EQ(Line(100, 100, 30000, 100), CRect(100, 100, m_right, 100));
}

TEST_F(KernelDrawing, LineAcrossIsDrawnBetweenTheHits)
{
    EXPECT_EQ(Line(-100, 100, 30000, 100), CRect(0, 100, m_right, 100));
    EXPECT_EQ(Line(200, -100, 200, 30000), CRect(200, 0, 200, m_bottom));
    // From (-50, 100) to (100, -50): x + y = 50 cuts the top at 50 and the left at 50.
    EXPECT_EQ(Line(-50, 100, 100, -50), CRect(50, 0, 0, 50));
}

TEST_F(KernelDrawing, EndOnTheBorderStillShowsTheInside)
{
    EXPECT_EQ(Line(0, 100, 30000, 100), CRect(0, 100, m_right, 100));
}

TEST_F(KernelDrawing, LineThroughACornerIsDrawnAcross)
{
    // Top and left are hit in the same place, which counts once.
    EXPECT_EQ(Line(-100, -100, 30000, 30000), CRect(0, 0, m_bottom, m_bottom));
}

TEST_F(KernelDrawing, PenMovesAlsoWhereNothingIsDrawn)
{
    POINT previous = {-1, -1};
    CRecordingDC recording;
    m_math.Line2D(recording, 10, 10, 7, 8);
    m_math.MoveTo2D(recording, 1, 2, &previous);
    EXPECT_EQ(CPoint(previous), CPoint(7, 8));
    m_math.Line2D(recording, -10, -10, -7, -8);
    m_math.MoveTo2D(recording, 1, 2, &previous);
    EXPECT_EQ(CPoint(previous), CPoint(-7, -8));
    m_math.MoveTo2D(recording, 3, 4, nullptr);
    m_math.MoveTo2D(recording, 5, 6, &previous);
    EXPECT_EQ(CPoint(previous), CPoint(3, 4));
}

TEST_F(KernelDrawing, LineToGoesOnFromThePen)
{
    std::vector<TSDrawnCall> const drawn = Recorded([&](HDC hdc) {
        m_math.MoveTo2D(hdc, 10, 20, nullptr);
        m_math.LineTo2D(hdc, 30, 40);
        m_math.LineTo2D(hdc, 50, 60);
    });
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(CPoint(drawn[0].points[0]), CPoint(10, 20));
    EXPECT_EQ(CPoint(drawn[1].points[0]), CPoint(30, 40));
    EXPECT_EQ(CPoint(drawn[1].points[1]), CPoint(50, 60));
}

TEST_F(KernelDrawing, LineInSpaceIsProjectedWithYUpward)
{
    TUVect3D const a = {{1, 2, 50}};
    TUVect3D const b = {{3.5, 4, -50}};
    // x = 100 + 10 u, y = 200 - 10 v.
    EXPECT_EQ(OnlyLine([&](HDC hdc) { m_math.Line3D(hdc, 100, 200, g_plan, 10, a, b); }),
              CRect(110, 180, 135, 160));
}

TEST_F(KernelDrawing, LineToInSpaceGoesOnFromThePoint)
{
    TUVect3D const a = {{1, 2, 0}};
    TUVect3D const b = {{3, 4, 0}};
    TUVect3D const c = {{5, 0, 0}};
    std::vector<TSDrawnCall> const drawn = Recorded([&](HDC hdc) {
        m_math.MoveTo3D(hdc, 0, 100, g_plan, 10, a);
        m_math.LineTo3D(hdc, 0, 100, g_plan, 10, b);
        m_math.LineTo3D(hdc, 0, 100, g_plan, 10, c);
    });
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(CRect(drawn[0].points[0], drawn[0].points[1]), CRect(10, 80, 30, 60));
    EXPECT_EQ(CRect(drawn[1].points[0], drawn[1].points[1]), CRect(30, 60, 50, 100));
}

TEST_F(KernelDrawing, CrossHasThreeArms)
{
    double tilted[3][3] = {{1, 0, 0.5}, {0, 1, 0.5}, {0, 0, 1}};
    TUVect3D const point = {{10, 10, 0}};
    std::vector<TSDrawnCall> const drawn =
        Recorded([&](HDC hdc) { m_math.Cross3D(hdc, 0, 200, tilted, 10, point, 2.0F); });
    ASSERT_EQ(drawn.size(), 3u);
    EXPECT_EQ(CRect(drawn[0].points[0], drawn[0].points[1]), CRect(80, 100, 120, 100));
    EXPECT_EQ(CRect(drawn[1].points[0], drawn[1].points[1]), CRect(100, 120, 100, 80));
    // Along z: 2 units are 1 along u and v.
    EXPECT_EQ(CRect(drawn[2].points[0], drawn[2].points[1]), CRect(90, 110, 110, 90));
}

TEST_F(KernelDrawing, CrossIsNotClipped)
{
    TUVect3D const point = {{-1000, 0, 0}};
    EXPECT_EQ(Recorded([&](HDC hdc) { m_math.Cross3D(hdc, 0, 0, g_plan, 1, point, 5.0F); }).size(), 3u);
}

TEST_F(KernelDrawing, PolygonIsFilledInItsColour)
{
    POINT points[] = {{10, 10}, {30, 10}, {10, 30}};
    std::vector<TSDrawnCall> const drawn =
        Recorded([&](HDC hdc) { m_math.DrawFillPoly2D(hdc, points, 3, kRed); });
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Polygon);
    EXPECT_EQ(drawn[0].pen.lopnColor, kRed);
    EXPECT_EQ(drawn[0].pen.lopnWidth.x, 0);
    EXPECT_EQ(drawn[0].brush.lbStyle, static_cast<UINT>(BS_SOLID));
    EXPECT_EQ(drawn[0].brush.lbColor, kRed);
}

TEST_F(KernelDrawing, PolygonPutsPenAndBrushBackAndLeavesItsBrushBehind)
{
    CImageDC image(20, 20);
    HGDIOBJ const pen = GetCurrentObject(image, OBJ_PEN);
    HGDIOBJ const brush = GetCurrentObject(image, OBJ_BRUSH);
    int const before = CountLiveGdiObjects();
    POINT points[] = {{1, 1}, {9, 1}, {1, 9}};
    m_math.DrawFillPoly2D(image, points, 3, kRed);
    EXPECT_EQ(GetCurrentObject(image, OBJ_PEN), pen);
    EXPECT_EQ(GetCurrentObject(image, OBJ_BRUSH), brush);
#if !defined(_WIN32)
    EXPECT_EQ(CountLiveGdiObjects(), before + 1);
#else
    static_cast<void>(before);
#endif
}

TEST_F(KernelDrawing, PolygonInSpaceIsProjected)
{
    TUVect3D points[] = {{{1, 1, 5}}, {{3, 1, 6}}, {{1, 3, 7}}};
    std::vector<TSDrawnCall> const drawn =
        Recorded([&](HDC hdc) { m_math.DrawFillPoly3D(hdc, 0, 100, g_plan, 10, points, 3, kRed); });
    ASSERT_EQ(drawn.size(), 1u);
    ASSERT_EQ(drawn[0].points.size(), 3u);
    EXPECT_EQ(CPoint(drawn[0].points[0]), CPoint(10, 90));
    EXPECT_EQ(CPoint(drawn[0].points[1]), CPoint(30, 90));
    EXPECT_EQ(CPoint(drawn[0].points[2]), CPoint(10, 70));
}

TEST_F(KernelDrawing, PolygonOfFewPointsDrawsNothing)
{
    TUVect3D points[] = {{{1, 1, 5}}};
    EXPECT_TRUE(
        Recorded([&](HDC hdc) { m_math.DrawFillPoly3D(hdc, 0, 0, g_plan, 10, points, 1, kRed); }).empty());
    EXPECT_TRUE(
        Recorded([&](HDC hdc) { m_math.DrawFillPoly3D(hdc, 0, 0, g_plan, 10, nullptr, 3, kRed); }).empty());
}

class ArcDrawing : public KernelDrawing
{
  protected:
    int Draw(double bulge, double step, std::vector<TSDrawnCall> & drawn)
    {
        int result = -1;
        TUVect3D const start = {{0, 0, 0}};
        TUVect3D const end = {{20, 0, 0}};
        TUVect3D const up = {{0, 1, 0}};
        drawn = Recorded([&](HDC hdc) {
            result = m_math.Draw3dArc(hdc, 100, 300, g_plan, 10, start, end, up, bulge, step);
        });
        return result;
    }

    std::vector<TSDrawnCall> m_drawn;
};

TEST_F(ArcDrawing, FlatArcIsItsChord)
{
    EXPECT_EQ(Draw(1e-6, 0.2, m_drawn), 1);
    ASSERT_EQ(m_drawn.size(), 1u);
    EXPECT_EQ(CRect(m_drawn[0].points[0], m_drawn[0].points[1]), CRect(100, 300, 300, 300));
}

TEST_F(ArcDrawing, HalfCircleHasASegmentPerStep)
{
    // pi / 0.2 = 15.7: 16 segments.
    EXPECT_EQ(Draw(1, 0.2, m_drawn), 1);
    EXPECT_EQ(m_drawn.size(), 16u);
}

TEST_F(ArcDrawing, CoarseStepStillGivesFiveSegments)
{
    EXPECT_EQ(Draw(1, 3, m_drawn), 1);
    EXPECT_EQ(m_drawn.size(), 5u);
}

TEST_F(ArcDrawing, SegmentsJoinFromStartToEndOnTheCircle)
{
    ASSERT_EQ(Draw(1, 0.2, m_drawn), 1);
    EXPECT_EQ(CPoint(m_drawn.front().points[0]), CPoint(100, 300));
    EXPECT_EQ(CPoint(m_drawn.back().points[1]), CPoint(300, 300));
    for (std::size_t i = 1; i < m_drawn.size(); ++i)
        EXPECT_EQ(CPoint(m_drawn[i].points[0]), CPoint(m_drawn[i - 1].points[1]));
    // Centre (200, 300), radius 100 pixels, apex above.
    for (TSDrawnCall const & call : m_drawn) {
        EXPECT_NEAR(std::hypot(call.points[1].x - 200, call.points[1].y - 300), 100, 1);
        EXPECT_LE(call.points[1].y, 300);
    }
}

TEST_F(ArcDrawing, ArcWithoutACentreFails)
{
    TUVect3D const start = {{0, 0, 0}};
    TUVect3D const end = {{20, 0, 0}};
    TUVect3D const along = {{1, 0, 0}};
    CRecordingDC recording;
    EXPECT_EQ(m_math.Draw3dArc(recording, 0, 0, g_plan, 1, start, end, along, 1, 0.2), 0);
    EXPECT_TRUE(recording.Close().empty());
}

TEST_F(KernelDrawing, EmptyObjectDrawsNothing)
{
    CObject3D object(&m_math, g_plan, 10);
    CRecordingDC recording;
    EXPECT_EQ(object.Draw(recording, 0, 0), 0);
    EXPECT_TRUE(recording.Close().empty());
}

TEST_F(KernelDrawing, PointObjectIsACircleOfRadiusThree)
{
    CObject3D object(&m_math, g_plan, 10);
    object.CreatePoint({{2, 3, 4}});
    std::vector<TSDrawnCall> const drawn =
        Recorded([&](HDC hdc) { EXPECT_EQ(object.Draw(hdc, 100, 200), 1); });
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].kind, EDrawn::Ellipse);
    EXPECT_EQ(CRect(drawn[0].points[0], drawn[0].points[1]), CRect(117, 167, 123, 173));
    EXPECT_TRUE(Recorded([&](HDC hdc) { object.Draw(hdc, -100, 200); }).empty());
}

TEST_F(KernelDrawing, LineAndArcObjects)
{
    CObject3D object(&m_math, g_plan, 10);
    object.CreateLine({{1, 2, 0}}, {{3, 4, 0}});
    EXPECT_EQ(OnlyLine([&](HDC hdc) { object.Draw(hdc, 0, 100); }), CRect(10, 80, 30, 60));
    object.CreateArc({{0, 0, 0}}, {{20, 0, 0}}, {{0, 1, 0}}, 1);
    // pi / 0.2067 = 15.2: 16 segments.
    EXPECT_EQ(Recorded([&](HDC hdc) { object.Draw(hdc, 100, 300); }).size(), 16u);
}
}  // namespace
