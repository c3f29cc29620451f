#include <gtest/gtest.h>

#include <cstdio>

#include "drawing/vard_font.h"
#include "platform/device/gdi_objects.h"
#include "platform/window/wnd.h"

namespace {
LOGFONT SomeFont()
{
    LOGFONT font{};
    font.lfHeight = -21;
    font.lfWeight = 700;
    std::snprintf(font.lfFaceName, sizeof(font.lfFaceName), "Arial");
    return font;
}

TEST(VardFontOfAWindow, IsWhatTheWindowAnswersInWhite)
{
    CFont font;
    LOGFONT const logFont = SomeFont();
    ASSERT_TRUE(font.CreateFontIndirect(&logFont));
    CWnd edit;
    ASSERT_TRUE(edit.Create("EDIT", "", WS_POPUP, CRect(0, 0, 50, 20), nullptr, 0));
    edit.SendMessage(WM_SETFONT, reinterpret_cast<WPARAM>(font.GetSafeHandle()));
    CVARDFont taken(&edit);
    EXPECT_EQ(taken.GetFont().lfHeight, -21);
    EXPECT_EQ(taken.IsBold(), 1);
    EXPECT_EQ(taken.GetFontColor(), 0xFFFFFFU);
}

TEST(VardFontOfAWindow, NoWindowGivesAnEmptyRecord)
{
    CVARDFont font(static_cast<CWnd *>(nullptr));
    EXPECT_EQ(font.GetFont().lfHeight, 0);
    EXPECT_EQ(font.GetFontPoints(), 0);
}

TEST(VardFontOfAWindow, GivenFontAndColourStay)
{
    CVARDFont const font(SomeFont(), 0x123456, static_cast<CWnd *>(nullptr));
    EXPECT_EQ(font.GetFont().lfHeight, -21);
    EXPECT_EQ(font.GetFontColor(), 0x123456U);
}
}  // namespace
