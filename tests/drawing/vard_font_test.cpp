#include "drawing/vard_font.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "platform/device/font_choice.h"
#include "platform/device/picture.h"

namespace {
constexpr double kPi = std::numbers::pi;

LOGFONT Times(int height, int weight)
{
    LOGFONT font = {};
    font.lfHeight = height;
    font.lfWeight = weight;
    std::string("Times New Roman").copy(font.lfFaceName, LF_FACESIZE - 1);
    return font;
}

class Font : public testing::Test
{
  protected:
    void SetUp() override { ASSERT_EQ(m_image.GetDeviceCaps(LOGPIXELSY), 96); }

    CImageDC m_image{10, 10};
    CVARDFont m_font{Times(-16, FW_NORMAL), 0x0000FF, &m_image};
};

TEST_F(Font, ReadsTheFontOfAContextInWhite)
{
    CFont selected;
    LOGFONT const record = Times(-33, FW_BOLD);
    selected.CreateFontIndirect(&record);
    CFont * const old = m_image.SelectObject(&selected);
    CVARDFont font(&m_image);
    m_image.SelectObject(old);
    EXPECT_EQ(font.GetFont().lfHeight, -33);
    EXPECT_STREQ(font.GetFont().lfFaceName, "Times New Roman");
    EXPECT_EQ(font.GetFontColor(), 0xFFFFFFu);
}

TEST_F(Font, WithoutAContextIsAllZero)
{
    CVARDFont font(static_cast<CDC *>(nullptr));
    EXPECT_EQ(font.GetFont().lfHeight, 0);
    EXPECT_EQ(font.GetFontPoints(), 0);
    EXPECT_EQ(font.LogicalUnitsToPoints(-16, nullptr), 0);
    EXPECT_EQ(font.PointsToLogicalUnits(12, nullptr), 0);
}

TEST_F(Font, PointsAndLogicalUnits)
{
    // 96 dots and 72 points per inch.
    EXPECT_EQ(m_font.PointsToLogicalUnits(12, nullptr), -16);
    EXPECT_EQ(m_font.PointsToLogicalUnits(10, nullptr), -13);
    EXPECT_EQ(m_font.LogicalUnitsToPoints(-16, nullptr), 12);
    EXPECT_EQ(m_font.LogicalUnitsToPoints(16, nullptr), 12);
    EXPECT_EQ(m_font.LogicalUnitsToPoints(-13, nullptr), 10);
    EXPECT_EQ(m_font.GetFontPoints(), 12);
}

TEST_F(Font, GivenContextReplacesTheStoredOne)
{
    CVARDFont font(Times(-16, FW_NORMAL), 0, static_cast<CDC *>(nullptr));
    EXPECT_EQ(font.GetFontPoints(), 0);
    EXPECT_EQ(font.LogicalUnitsToPoints(-16, &m_image), 12);
    EXPECT_EQ(font.GetFontPoints(), 12);
}

TEST_F(Font, SetFontByPointsAngleAndFace)
{
    char face[] = "Courier New";
    m_font.SetFont(24, 450, face);
    EXPECT_EQ(m_font.GetFont().lfHeight, -32);
    EXPECT_EQ(m_font.GetFont().lfEscapement, 450);
    EXPECT_EQ(m_font.GetFont().lfOrientation, 450);
    EXPECT_EQ(m_font.GetFontAngle(), 450);
    EXPECT_STREQ(m_font.GetFont().lfFaceName, "Courier New");
    m_font.SetFont(12, 0, nullptr);
    EXPECT_STREQ(m_font.GetFont().lfFaceName, "Courier New");
}

TEST_F(Font, FaceThatIsTooLongIsCut)
{
    char face[] = "A face with a name of many more than thirty-one letters";
    m_font.SetFont(12, 0, face);
    EXPECT_EQ(std::string(m_font.GetFont().lfFaceName), "A face with a name of many more");
}

TEST_F(Font, SetFontByRecord)
{
    m_font.SetFont(Times(-5, FW_BOLD));
    EXPECT_EQ(m_font.GetFont().lfHeight, -5);
    EXPECT_EQ(m_font.IsBold(), 1);
}

TEST_F(Font, SetBoldTellsTheOldState)
{
    EXPECT_EQ(m_font.SetBold(1), 0);
    EXPECT_EQ(m_font.GetFont().lfWeight, 700);
    EXPECT_EQ(m_font.SetBold(2), 1);  // any value but 1 takes the weight back
    EXPECT_EQ(m_font.GetFont().lfWeight, 400);
    EXPECT_EQ(m_font.IsBold(), 0);
}

TEST_F(Font, FlagsTellTheOldState)
{
    EXPECT_EQ(m_font.SetItalic(1), 0);
    EXPECT_EQ(m_font.SetItalic(0), 1);
    EXPECT_EQ(m_font.SetUnderline(1), 0);
    EXPECT_EQ(m_font.IsUnderline(), 1);
    EXPECT_EQ(m_font.SetStrikeOut(1), 0);
    EXPECT_EQ(m_font.IsStrikeOut(), 1);
    EXPECT_EQ(m_font.IsItalic(), 0);
}

TEST_F(Font, ColourIsKept)
{
    EXPECT_EQ(m_font.GetFontColor(), 0x0000FFu);
    m_font.SetFontColor(0x123456);
    EXPECT_EQ(m_font.GetFontColor(), 0x123456u);
}

int ChooseBold(LOGFONT * font, COLORREF * colour)
{
    font->lfWeight = FW_BOLD;
    *colour = 0x00FF00;
    return 1;
}

int Refuse(LOGFONT *, COLORREF *)
{
    return 0;
}

TEST_F(Font, DialogChangesFontAndColourWhenConfirmed)
{
    FontChoiceHandler const old = SetFontChoiceHandler(&ChooseBold);
    EXPECT_EQ(m_font.ChangeFontByDialog(), 1);
    EXPECT_EQ(m_font.IsBold(), 1);
    EXPECT_EQ(m_font.GetFontColor(), 0x00FF00u);
    EXPECT_EQ(SetFontChoiceHandler(old), &ChooseBold);
}

TEST_F(Font, RefusedDialogChangesNothing)
{
    FontChoiceHandler const old = SetFontChoiceHandler(&Refuse);
    EXPECT_EQ(m_font.ChangeFontByDialog(), 0);
    EXPECT_EQ(m_font.IsBold(), 0);
    EXPECT_EQ(m_font.GetFontColor(), 0x0000FFu);
    SetFontChoiceHandler(old);
}

/// What Get3DTextParameters gives.
struct TextParameters
{
    double angleBase, angleUp, heightFactor, widthFactor;
};

TextParameters Parameters(double (*matrix)[3], TUVect3D base, TUVect3D up)
{
    CVARDFont font(static_cast<CDC *>(nullptr));
    TUVect3D const origin = {{2, 3, 4}};
    auto const moved = [&origin](TUVect3D v) {
        return TUVect3D{{v.x + origin.x, v.y + origin.y, v.z + origin.z}};
    };
    TextParameters result;
    font.Get3DTextParameters(matrix, origin, moved(base), moved(up), result.angleBase, result.angleUp,
                             result.heightFactor, result.widthFactor);
    return result;
}

class TextInSpace : public testing::Test
{
  protected:
    double m_plan[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};  // u = x, v = y
};

TEST_F(TextInSpace, LevelTextInThePlane)
{
    TextParameters const text = Parameters(m_plan, {{5, 0, 0}}, {{0, 2, 0}});
    EXPECT_DOUBLE_EQ(text.angleBase, 0);
    EXPECT_DOUBLE_EQ(text.angleUp, kPi / 2);
    EXPECT_DOUBLE_EQ(text.heightFactor, 1);
    EXPECT_DOUBLE_EQ(text.widthFactor, 1);
}

TEST_F(TextInSpace, UprightVectorsGiveARightAngle)
{
    EXPECT_DOUBLE_EQ(Parameters(m_plan, {{0, 5, 0}}, {{-1, 0, 0}}).angleBase, kPi / 2);
    EXPECT_DOUBLE_EQ(Parameters(m_plan, {{0, -5, 0}}, {{1, 0, 0}}).angleBase, -kPi / 2);
    // A base line along the view projects to nothing: neither above nor right, so -pi/2.
    EXPECT_DOUBLE_EQ(Parameters(m_plan, {{0, 0, 5}}, {{1, 0, 0}}).angleBase, -kPi / 2);
}

TEST_F(TextInSpace, LeftwardVectorsTurnByHalf)
{
    EXPECT_DOUBLE_EQ(Parameters(m_plan, {{-5, 0, 0}}, {{0, 1, 0}}).angleBase, kPi);
    EXPECT_DOUBLE_EQ(Parameters(m_plan, {{-5, 5, 0}}, {{0, 0, 1}}).angleBase, kPi - kPi / 4);
    EXPECT_DOUBLE_EQ(Parameters(m_plan, {{-5, -5, 0}}, {{0, 0, 1}}).angleBase, kPi + kPi / 4);
}

TEST_F(TextInSpace, UpDirectionLosesItsPartAlongTheBase)
{
    // (3, 1, 0) less its part along x is (0, 1, 0).
    TextParameters const text = Parameters(m_plan, {{5, 0, 0}}, {{3, 1, 0}});
    EXPECT_DOUBLE_EQ(text.angleUp, kPi / 2);
    EXPECT_DOUBLE_EQ(text.heightFactor, 1);
}

TEST_F(TextInSpace, SlantedDirectionsShrink)
{
    // A base line at 60 degrees to the plane shows half its length; an up direction at 45 degrees sqrt(1/2).
    TextParameters const base = Parameters(m_plan, {{1, 0, std::sqrt(3.0)}}, {{0, 1, 0}});
    EXPECT_NEAR(base.widthFactor, 0.5, 1e-15);
    TextParameters const up = Parameters(m_plan, {{1, 0, 0}}, {{0, 1, -1}});
    EXPECT_NEAR(up.heightFactor, std::sqrt(0.5), 1e-15);
}

TEST_F(TextInSpace, LogFontStaysAsItStands)
{
    CVARDFont font(Times(-16, FW_NORMAL), 0, static_cast<CDC *>(nullptr));
    LOGFONT const record = font.Get3DLogFont(m_plan, {{0, 0, 0}}, {{0, 1, 0}}, {{-1, 0, 0}});
    EXPECT_EQ(record.lfEscapement, 0);
    EXPECT_EQ(record.lfHeight, -16);
}
}  // namespace
