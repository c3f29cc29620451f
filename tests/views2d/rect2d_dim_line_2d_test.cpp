#include "views2d/rect2d_dim_line_2d.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "platform/device/recording.h"

namespace {
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

// Keeps what it is asked for as text.
class KeepingView : public CDimLineView2D
{
  public:
    int MoveTo2D(CDC * dc, TUVect2D point) override { return Keep("move", dc, point.x, point.y); }
    int LineTo2D(CDC * dc, TUVect2D point) override { return Keep("line", dc, point.x, point.y); }
    int Text2D(CDC * dc, CString const & text, double x, double y, unsigned int align,
               LOGFONT const & font) override
    {
        m_texts.emplace_back(text);
        m_align = align;
        m_font = font;
        return Keep("text", dc, x, y);
    }

    std::vector<std::string> m_calls;
    std::vector<std::string> m_texts;
    std::vector<CDC *> m_contexts;
    unsigned int m_align = 0;
    LOGFONT m_font = {};

  private:
    int Keep(char const * what, CDC * dc, double x, double y)
    {
        CString call;
        call.Format("%s %.3f %.3f", what, x, y);
        m_calls.emplace_back(call);
        m_contexts.push_back(dc);
        return 1;
    }
};

// The dimension of (0, 0) - (1, 0) at 0.1, in ticks, which are one stroke each.
class DimensionInView : public testing::Test
{
  protected:
    DimensionInView()
    {
        m_dimension.GetDefaultDimStyle(m_style, nullptr);
        m_style.nEndMark = 1;
    }

    int Create(char * text)
    {
        return m_dimension.Create(&m_view, &m_style, m_a, m_b, m_offset, text, nullptr, DIM_ALONG_POINTS,
                                  DIM_LINEAR);
    }

    KeepingView m_view;
    CRect2DDimLine2D m_dimension;
    TSDimLineStyle m_style = {};
    TUVect2D m_a = {{0.0, 0.0}}, m_b = {{1.0, 0.0}};
    double m_offset = 0.1;
    char m_text[4] = "1 m";
};

TEST_F(DimensionInView, StrokesGoToTheViewInModelCoordinates)
{
    ASSERT_EQ(Create(nullptr), 1);
    EXPECT_EQ(m_dimension.PaintDimLine(), 1);
    // Gap 0.05, so the line stands at 0.15; overshoot and ticks are half of 0.05.
    EXPECT_THAT(m_view.m_calls,
                ElementsAre("move 0.000 0.050", "line 0.000 0.175", "move 1.000 0.050", "line 1.000 0.175",
                            "move 0.000 0.150", "line 1.000 0.150", "move -0.025 0.125", "line 0.025 0.175",
                            "move 0.975 0.125", "line 1.025 0.175"));
}

TEST_F(DimensionInView, TextComesInTheContextsFontWithItsAlignment)
{
    CRecordingDC recording;
    m_dimension.SetCDC(&recording);
    m_style.nTextRotation = 4;
    ASSERT_EQ(Create(m_text), 1);
    m_dimension.PaintDimLine();
    // In the middle of the line, a text gap of 0.005 below it.
    EXPECT_EQ(m_view.m_calls.back(), "text 0.500 0.145");
    EXPECT_THAT(m_view.m_texts, ElementsAre("1 m"));
    EXPECT_EQ(m_view.m_align, static_cast<unsigned int>(TA_CENTER ^ TA_BOTTOM));
    EXPECT_STREQ(m_view.m_font.lfFaceName, "Times New Roman");
    EXPECT_EQ(m_view.m_font.lfEscapement, 900);
    for (CDC const * context : m_view.m_contexts)
        EXPECT_EQ(context, &recording);
    recording.Close();
    EXPECT_EQ(recording.GetLeftSelected(), 0);
}

TEST_F(DimensionInView, MeasureTimesFactorIsTheText)
{
    m_style.nNumberDecimals = 0;
    ASSERT_EQ(m_dimension.Create(&m_view, &m_style, m_a, m_b, m_offset, 1000.0, nullptr, DIM_ALONG_POINTS,
                                 DIM_LINEAR),
              1);
    m_dimension.PaintDimLine();
    EXPECT_THAT(m_view.m_texts, ElementsAre("1000"));
}

TEST_F(DimensionInView, WithoutAContextTheViewMeasures)
{
    ASSERT_EQ(Create(m_text), 1);
    m_dimension.PaintDimLine();
    EXPECT_THAT(m_view.m_calls, SizeIs(11));
    for (CDC const * context : m_view.m_contexts)
        EXPECT_EQ(context, nullptr);
    int font = 0;
    EXPECT_EQ(m_dimension.SelectObject(&font), nullptr);
}

TEST_F(DimensionInView, PenPositionFollows)
{
    Create(nullptr);
    m_dimension.MoveToDim({{1.0, 2.0}});
    EXPECT_EQ(m_dimension.GetPenPosition().y, 2.0);
    m_dimension.LineToDim({{3.0, 4.0}});
    EXPECT_EQ(m_dimension.GetPenPosition().x, 3.0);
}

TEST_F(DimensionInView, WithoutAViewNothingIsDrawn)
{
    CRecordingDC recording;
    m_dimension.SetCDC(&recording);
    ASSERT_EQ(m_dimension.Create(nullptr, &m_style, m_a, m_b, m_offset, m_text, nullptr, DIM_ALONG_POINTS,
                                 DIM_LINEAR),
              1);
    EXPECT_EQ(m_dimension.PaintDimLine(), 1);
    EXPECT_THAT(recording.Close(), IsEmpty());
}

TEST_F(DimensionInView, NullStyleIsRefused)
{
    EXPECT_EQ(m_dimension.Create(&m_view, nullptr, m_a, m_b, m_offset, m_text, nullptr, DIM_ALONG_POINTS,
                                 DIM_LINEAR),
              0);
}
}  // namespace
