#include "drawing/dim_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "platform/device/gdi.h"

namespace {
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Stroke
{
    TUVect2D from, to;
};

struct WrittenText
{
    TUVect2D anchor;
    std::string text;
    unsigned int align;
    LONG escapement, orientation;
};

// Records what a dimension draws, and checks that fonts are put back.
class RecordingDimLine : public CDimLine
{
  public:
    void MoveToDim(TUVect2D point) override { m_pen = point; }
    void LineToDim(TUVect2D point) override
    {
        m_strokes.push_back({m_pen, point});
        m_pen = point;
    }
    void * SelectObject(void * font) override
    {
        m_selected.push_back(font);
        void * const old = m_current;
        m_current = font;
        if (m_selected.size() == 1)
            ::GetObject(font, sizeof(m_font), &m_font);
        return old;
    }
    void OutTextXY(TUVect2D anchor, CString const & text, unsigned int align) override
    {
        m_texts.push_back(
            {anchor, static_cast<char const *>(text), align, m_font.lfEscapement, m_font.lfOrientation});
    }

    int m_windowFont = 0;  // stands for the font that the view had before
    void * m_current = &m_windowFont;
    std::vector<void *> m_selected;
    std::vector<Stroke> m_strokes;
    std::vector<WrittenText> m_texts;

  private:
    TUVect2D m_pen{};
    LOGFONT m_font{};
};

MATCHER_P2(Point, x, y, "")
{
    return std::fabs(arg.x - x) < 1e-12 && std::fabs(arg.y - y) < 1e-12;
}

MATCHER_P4(Line, x1, y1, x2, y2, "")
{
    return testing::Matches(Point(x1, y1))(arg.from) && testing::Matches(Point(x2, y2))(arg.to);
}

class DimLineTest : public testing::Test
{
  protected:
    void SetUp() override { m_line.GetDefaultDimStyle(m_style, nullptr); }

    void Paint(TUVect2D a, TUVect2D b, double offset, EDLDimAlign align = DIM_ALONG_POINTS,
               char const * text = "T")
    {
        char suffix[] = " m";
        std::string owned = text ? text : "";
        ASSERT_EQ(
            m_line.Create(&m_style, a, b, offset, text ? owned.data() : nullptr, suffix, align, DIM_LINEAR),
            1);
        ASSERT_EQ(m_line.PaintDimLine(), 1);
    }

    TSDimLineStyle m_style;
    RecordingDimLine m_line;
};

TEST(DimLineStyle, DefaultsAreFilledIn)
{
    TSDimLineStyle style;
    CDimLine().GetDefaultDimStyle(style, nullptr);
    EXPECT_EQ(style.nTextSide, 0);
    EXPECT_EQ(style.nTextRotation, 0);
    EXPECT_EQ(style.nEndMark, 0);
    EXPECT_EQ(style.nNumberWidth, -1);
    EXPECT_EQ(style.nNumberDecimals, -1);
    EXPECT_EQ(style.dTextGap, 0.005);
    EXPECT_EQ(style.dExtensionGap, 0.05);
    EXPECT_EQ(style.dEndMarkSize, 0.05);
    EXPECT_EQ(style.dMinInsideLength, 0.1);
    EXPECT_EQ(style.Font.lfHeight, -12);
    EXPECT_EQ(style.Font.lfWeight, 0);
    EXPECT_EQ(style.Font.lfCharSet, 0);
    EXPECT_STREQ(style.Font.lfFaceName, "Times New Roman");
    EXPECT_EQ(sizeof(style.Font), 60U);
}

TEST(DimLineStyle, GivenFontReplacesTheDefaultAsAWhole)
{
    LOGFONT font{};
    font.lfHeight = -30;
    font.lfWeight = 700;
    TSDimLineStyle style;
    CDimLine().GetDefaultDimStyle(style, &font);
    EXPECT_EQ(style.Font.lfHeight, -30);
    EXPECT_EQ(style.Font.lfWeight, 700);
    EXPECT_STREQ(style.Font.lfFaceName, "");
}

TEST_F(DimLineTest, ExtensionLinesComeBeforeTheDimensionLine)
{
    Paint({{0, 0}}, {{1, 0}}, 0.1);
    // e = 0.05, L = 0.15, t = 0.15 + 0.05 / 2; then two arrows of two strokes inside, 0.05 long, 0.0125 half
    // wide.
    EXPECT_THAT(m_line.m_strokes, ElementsAre(Line(0.0, 0.05, 0.0, 0.175), Line(1.0, 0.05, 1.0, 0.175),
                                              Line(0.0, 0.15, 1.0, 0.15), Line(0.0, 0.15, 0.05, 0.1625),
                                              Line(0.0, 0.15, 0.05, 0.1375), Line(1.0, 0.15, 0.95, 0.1625),
                                              Line(1.0, 0.15, 0.95, 0.1375)));
}

TEST_F(DimLineTest, NegativeOffsetMirrorsToTheOtherSide)
{
    Paint({{0, 0}}, {{1, 0}}, -0.1);
    EXPECT_THAT(m_line.m_strokes[0], Line(0.0, -0.05, 0.0, -0.175));
    EXPECT_THAT(m_line.m_strokes[1], Line(1.0, -0.05, 1.0, -0.175));
    EXPECT_THAT(m_line.m_strokes[2], Line(0.0, -0.15, 1.0, -0.15));
}

TEST_F(DimLineTest, ZeroOffsetCountsAsPositive)
{
    Paint({{0, 0}}, {{1, 0}}, 0.0);
    EXPECT_THAT(m_line.m_strokes[2], Line(0.0, 0.05, 1.0, 0.05));
}

TEST_F(DimLineTest, ShortLineGoesOnOutsideWithArrowsPointingInward)
{
    Paint({{0, 0}}, {{0.08, 0}}, 0.1);
    // Tails: 1.2 * 0.05 = 0.06 before D1 and 3.5 * 0.05 = 0.175 behind D2; arrow strokes point outward from
    // the tips.
    EXPECT_THAT(m_line.m_strokes, ElementsAre(Line(0.0, 0.05, 0.0, 0.175), Line(0.08, 0.05, 0.08, 0.175),
                                              Line(0.0, 0.15, 0.08, 0.15), Line(-0.06, 0.15, 0.0, 0.15),
                                              Line(0.255, 0.15, 0.08, 0.15), Line(0.0, 0.15, -0.05, 0.1625),
                                              Line(0.0, 0.15, -0.05, 0.1375), Line(0.08, 0.15, 0.13, 0.1625),
                                              Line(0.08, 0.15, 0.13, 0.1375)));
    ASSERT_THAT(m_line.m_texts, SizeIs(1));
    // 1.2 * 0.05 behind D2, moved by -0.005 across; left aligned, bottom.
    EXPECT_THAT(m_line.m_texts[0].anchor, Point(0.14, 0.145));
    EXPECT_EQ(m_line.m_texts[0].align, 8U);
}

TEST_F(DimLineTest, LengthOfExactlyTheRoomIsRoomy)
{
    Paint({{0, 0}}, {{0.1, 0}}, 0.1);
    EXPECT_THAT(m_line.m_strokes, SizeIs(7));
    Paint({{0, 0}}, {{0.0999, 0}}, 0.1);
    EXPECT_THAT(m_line.m_strokes, SizeIs(7 + 9));
}

TEST_F(DimLineTest, TicksReplaceArrowsRoomyOrNot)
{
    m_style.nEndMark = 5;
    Paint({{0, 0}}, {{1, 0}}, 0.1);
    ASSERT_THAT(m_line.m_strokes, SizeIs(5));
    EXPECT_THAT(m_line.m_strokes[3], Line(-0.025, 0.125, 0.025, 0.175));
    EXPECT_THAT(m_line.m_strokes[4], Line(0.975, 0.125, 1.025, 0.175));
    m_line.m_strokes.clear();
    Paint({{0, 0}}, {{0.05, 0}}, 0.1);
    ASSERT_THAT(m_line.m_strokes, SizeIs(7));
    EXPECT_THAT(m_line.m_strokes[5], Line(-0.025, 0.125, 0.025, 0.175));
    EXPECT_THAT(m_line.m_strokes[6], Line(0.025, 0.125, 0.075, 0.175));
}

TEST_F(DimLineTest, HorizontalLineKeepsEachPointsHeight)
{
    Paint({{0, 0}}, {{1, 0.5}}, 0.1, DIM_HORIZONTAL);
    EXPECT_THAT(m_line.m_strokes[0], Line(0.0, 0.05, 0.0, 0.175));
    EXPECT_THAT(m_line.m_strokes[1], Line(1.0, 0.55, 1.0, 0.675));
    EXPECT_THAT(m_line.m_strokes[2], Line(0.0, 0.15, 1.0, 0.65));
}

TEST_F(DimLineTest, HorizontalLineWithBLeftOfAFallsOnTheOtherSide)
{
    Paint({{1, 0}}, {{0, 0}}, 0.1, DIM_HORIZONTAL);
    EXPECT_THAT(m_line.m_strokes[2], Line(1.0, -0.15, 0.0, -0.15));
    m_line.m_strokes.clear();
    // B straight above A counts as left of it.
    Paint({{0, 0}}, {{0, 1}}, 0.1, DIM_HORIZONTAL);
    EXPECT_THAT(m_line.m_strokes[2], Line(0.0, -0.15, 0.0, 0.85));
}

TEST_F(DimLineTest, VerticalLineFollowsTheHeights)
{
    Paint({{0, 0}}, {{0.5, 1}}, 0.1, DIM_VERTICAL);
    EXPECT_THAT(m_line.m_strokes[2], Line(-0.15, 0.0, 0.35, 1.0));
    m_line.m_strokes.clear();
    Paint({{0, 1}}, {{0, 0}}, 0.1, DIM_VERTICAL);
    EXPECT_THAT(m_line.m_strokes[2], Line(0.15, 1.0, 0.15, 0.0));
}

TEST_F(DimLineTest, RoomyTextStandsCentredInTheMiddle)
{
    Paint({{0, 0}}, {{1, 0}}, 0.1);
    ASSERT_THAT(m_line.m_texts, SizeIs(1));
    EXPECT_THAT(m_line.m_texts[0].anchor, Point(0.5, 0.145));
    EXPECT_EQ(m_line.m_texts[0].text, "T m");
    EXPECT_EQ(m_line.m_texts[0].align, 6U ^ 8U);
}

TEST_F(DimLineTest, TextSideOneLeavesTheBottomFlagOff)
{
    m_style.nTextSide = 1;
    Paint({{0, 0}}, {{1, 0}}, 0.1);
    Paint({{0, 0}}, {{0.05, 0}}, 0.1);
    EXPECT_EQ(m_line.m_texts[0].align, 6U);
    EXPECT_EQ(m_line.m_texts[1].align, 0U);
}

struct AngleRow
{
    int rotation;
    EDLDimAlign align;
    TUVect2D b;
    LONG tenths;
};

TEST_F(DimLineTest, TextAngleFollowsTheStyle)
{
    double const s = std::sqrt(0.5);
    AngleRow const rows[] = {
        {0, DIM_ALONG_POINTS, {{1, 0}}, 0},
        {0, DIM_ALONG_POINTS, {{-1, 0}}, 1800},
        {0, DIM_ALONG_POINTS, {{0, 1}}, 900},
        {0, DIM_ALONG_POINTS, {{0, -1}}, -900},
        {0, DIM_ALONG_POINTS, {{s, s}}, 450},
        {0, DIM_ALONG_POINTS, {{-s, s}}, -1350},
        {0, DIM_ALONG_POINTS, {{-s, -s}}, -2250},
        {1, DIM_ALONG_POINTS, {{-1, 0}}, 0},
        {1, DIM_ALONG_POINTS, {{0, -1}}, 900},
        {1, DIM_ALONG_POINTS, {{s, s}}, 450},
        {1, DIM_ALONG_POINTS, {{-s, -s}}, 450},
        {2, DIM_ALONG_POINTS, {{-s, s}}, -450},
        {2, DIM_ALONG_POINTS, {{s, -s}}, -450},
        {3, DIM_ALONG_POINTS, {{s, s}}, 0},
        {4, DIM_ALONG_POINTS, {{s, s}}, 900},
        {0, DIM_ALONG_POINTS_TEXT_LEVEL, {{s, s}}, 0},
        {4, DIM_ALONG_POINTS_TEXT_LEVEL, {{s, s}}, 0},
        {0, DIM_ALONG_POINTS_TEXT_UPRIGHT, {{s, s}}, 900},
    };
    for (AngleRow const & row : rows) {
        RecordingDimLine line;
        m_style.nTextRotation = row.rotation;
        TUVect2D a{}, b = row.b;
        double offset = 0.1;
        char text[] = "T";
        line.Create(&m_style, a, b, offset, text, nullptr, row.align, DIM_LINEAR);
        line.PaintDimLine();
        ASSERT_THAT(line.m_texts, SizeIs(1));
        EXPECT_EQ(line.m_texts[0].escapement, row.tenths) << row.rotation << " " << row.b.x << " " << row.b.y;
        EXPECT_EQ(line.m_texts[0].orientation, row.tenths);
    }
}

TEST_F(DimLineTest, FontIsPutBack)
{
    Paint({{0, 0}}, {{1, 0}}, 0.1);
    EXPECT_THAT(m_line.m_selected, SizeIs(2));
    EXPECT_EQ(m_line.m_current, &m_line.m_windowFont);
}

TEST_F(DimLineTest, WithoutTextNoFontIsMade)
{
    Paint({{0, 0}}, {{1, 0}}, 0.1, DIM_ALONG_POINTS, nullptr);
    EXPECT_THAT(m_line.m_strokes, SizeIs(7));
    EXPECT_THAT(m_line.m_texts, IsEmpty());
    EXPECT_THAT(m_line.m_selected, IsEmpty());
}

TEST_F(DimLineTest, OtherKindsAreNotPainted)
{
    TUVect2D a{}, b{{1, 0}};
    double offset = 0.1;
    char text[] = "T";
    ASSERT_EQ(
        m_line.Create(&m_style, a, b, offset, text, nullptr, DIM_ALONG_POINTS, static_cast<EDLDimType>(1)),
        1);
    EXPECT_EQ(m_line.PaintDimLine(), 0);
    EXPECT_THAT(m_line.m_strokes, IsEmpty());
    EXPECT_THAT(m_line.m_texts, IsEmpty());
}

TEST_F(DimLineTest, NullStyleIsRefused)
{
    TSDimLine dimension{};
    EXPECT_EQ(m_line.Create(nullptr, dimension), 0);
    EXPECT_EQ(m_line.PaintDimLine(), 0);
    EXPECT_EQ(CDimLine().PaintDimLine(), 0);
}

TEST_F(DimLineTest, RecordIsCopiedAndItsTextStaysTheHosts)
{
    char text[] = "own";
    TSDimLine dimension{};
    dimension.pszText = text;
    dimension.B = {{1, 0}};
    ASSERT_EQ(m_line.Create(&m_style, dimension), 1);
    dimension.B = {{9, 9}};
    text[0] = 'O';
    m_line.PaintDimLine();
    EXPECT_THAT(m_line.m_strokes[2], Line(0.0, 0.05, 1.0, 0.05));
    EXPECT_EQ(m_line.m_texts[0].text, "Own");
    m_line.DestroyData();
    m_line.PaintDimLine();
    EXPECT_EQ(m_line.m_texts.back().text, "Own");
}

TEST_F(DimLineTest, MeasureTimesFactorBecomesTheText)
{
    TUVect2D a{{1, 1}}, b{{4, 5}};
    double offset = 0.1;
    char suffix[] = " mm";
    m_style.nNumberDecimals = 1;
    ASSERT_EQ(m_line.Create(&m_style, a, b, offset, 1000.0, suffix, DIM_ALONG_POINTS, DIM_LINEAR), 1);
    m_line.PaintDimLine();
    EXPECT_EQ(m_line.m_texts[0].text, "5000.0 mm");
    m_line.DestroyData();
    m_line.m_texts.clear();
    m_line.PaintDimLine();
    EXPECT_THAT(m_line.m_texts, IsEmpty());
}

TEST_F(DimLineTest, LongSuffixIsCut)
{
    char suffix[] = "0123456789ABC";
    TUVect2D a{}, b{{1, 0}};
    double offset = 0.1;
    char text[] = "T";
    m_line.Create(&m_style, a, b, offset, text, suffix, DIM_ALONG_POINTS, DIM_LINEAR);
    m_line.PaintDimLine();
    EXPECT_EQ(m_line.m_texts[0].text, "T0123456789");
    TSDimLine record{};
    record.pszText = text;
    std::fill(std::begin(record.szSuffix), std::end(record.szSuffix), 'x');
    m_line.Create(&m_style, record);
    m_line.PaintDimLine();
    EXPECT_EQ(m_line.m_texts[1].text, "Txxxxxxxxxx");
}

TEST_F(DimLineTest, EqualPointsHaveNoDirectionAndNoRoom)
{
    Paint({{2, 3}}, {{2, 3}}, 0.1);
    for (Stroke const & stroke : m_line.m_strokes) {
        EXPECT_THAT(stroke.from, Point(2.0, 3.0));
        EXPECT_THAT(stroke.to, Point(2.0, 3.0));
    }
    EXPECT_EQ(m_line.m_texts[0].align, 8U);
}

TEST_F(DimLineTest, PointsThatAreNoNumbersAreHarmless)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const infinity = std::numeric_limits<double>::infinity();
    Paint({{nan, 0}}, {{1, 0}}, 0.1);
    Paint({{infinity, 0}}, {{1, nan}}, infinity);
    EXPECT_THAT(m_line.m_texts, SizeIs(2));
}

TEST(DimLine, BaseClassDrawsNothingButSucceeds)
{
    CDimLine line;
    TSDimLineStyle style;
    line.GetDefaultDimStyle(style, nullptr);
    TUVect2D a{}, b{{1, 0}};
    double offset = 0.1;
    line.Create(&style, a, b, offset, 1.0, nullptr, DIM_ALONG_POINTS, DIM_LINEAR);
    EXPECT_EQ(line.PaintDimLine(), 1);
    EXPECT_EQ(line.SelectObject(&style), nullptr);
}
}  // namespace
