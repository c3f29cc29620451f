#include "services/color_text.h"

#include <gtest/gtest.h>

#include <memory>

#include "tests/support/window_picture.h"

namespace {
constexpr DWORD kChild = WS_CHILD | WS_VISIBLE;

class ColouredControls : public testing::Test
{
  protected:
    ColouredControls()
    {
        m_parent.Create(nullptr, "", WS_POPUP | WS_VISIBLE, CRect(0, 0, 200, 100), nullptr, 0);
    }

    CWnd m_parent;
};

TEST_F(ColouredControls, StaticTextHasItsBackground)
{
    CColorStaticText text;
    ASSERT_TRUE(text.Create("x", kChild, CRect(10, 10, 90, 40), &m_parent));
    text.SetColors(RGB(0, 0, 0), RGB(255, 0, 0));
    EXPECT_EQ(TakePicture(text.m_hWnd).At(70, 20), 0xFF0000u);
}

TEST_F(ColouredControls, EachChangeShows)
{
    CColorStaticText text;
    ASSERT_TRUE(text.Create("", kChild, CRect(10, 10, 90, 40), &m_parent));
    text.SetBackgroundColors(RGB(0, 0, 255));
    EXPECT_EQ(TakePicture(text.m_hWnd).At(70, 20), 0x0000FFu);
    text.SetBackgroundColors(RGB(0, 255, 0));
    EXPECT_EQ(TakePicture(text.m_hWnd).At(70, 20), 0x00FF00u);
}

TEST_F(ColouredControls, TextColourLeavesTheBackground)
{
    CColorStaticText text;
    ASSERT_TRUE(text.Create("MMMMMMMM", kChild, CRect(10, 10, 90, 40), &m_parent));
    text.SetColors(RGB(0, 0, 0), RGB(255, 255, 255));
    text.SetTextColor(RGB(255, 0, 0));
    WindowPicture const picture = TakePicture(text.m_hWnd);
    int red = 0, black = 0;
    for (std::uint32_t const pixel : picture.pixels) {
        red += (pixel & 0xFFFFFF) == 0xFF0000;
        black += (pixel & 0xFFFFFF) == 0;
    }
    EXPECT_GT(red, 10);
    EXPECT_EQ(black, 0);
    EXPECT_EQ(picture.At(78, 28), 0xFFFFFFu);
}

TEST_F(ColouredControls, EditTextHasItsBackground)
{
    CColorEditText edit;
    ASSERT_TRUE(edit.Create(kChild, CRect(10, 10, 90, 40), &m_parent, 7));
    edit.SetColors(RGB(0, 0, 0), RGB(0, 255, 255));
    EXPECT_EQ(TakePicture(edit.m_hWnd).At(70, 20), 0x00FFFFu);
}

TEST_F(ColouredControls, ReadOnlyEditTextKeepsItsColours)
{
    CColorEditText edit;
    ASSERT_TRUE(edit.Create(kChild | ES_READONLY, CRect(10, 10, 90, 40), &m_parent, 7));
    edit.SetBackgroundColors(RGB(255, 0, 255));
    EXPECT_EQ(TakePicture(edit.m_hWnd).At(70, 20), 0xFF00FFu);
}

TEST_F(ColouredControls, ColoursMayBeSetBeforeTheWindow)
{
    CColorStaticText text;
    text.SetBackgroundColors(RGB(1, 2, 3));
    ASSERT_TRUE(text.Create("", kChild, CRect(10, 10, 90, 40), &m_parent));
    EXPECT_EQ(TakePicture(text.m_hWnd).At(70, 20), 0x010203u);
}

TEST(ColouredControlClasses, CanBeMadeByTheirRecords)
{
    std::unique_ptr<CObject> const edit(RUNTIME_CLASS(CColorEditText)->CreateObject());
    std::unique_ptr<CObject> const text(RUNTIME_CLASS(CColorStaticText)->CreateObject());
    EXPECT_TRUE(edit->IsKindOf(RUNTIME_CLASS(CEdit)));
    EXPECT_TRUE(text->IsKindOf(RUNTIME_CLASS(CStatic)));
}
}  // namespace
