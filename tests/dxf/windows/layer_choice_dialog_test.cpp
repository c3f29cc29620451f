#include "dxf/layer_choice_dialog.h"

#include <commctrl.h>
#include <gmock/gmock.h>

#include "dxf/layer_choice.h"
#include "platform/base/code_page.h"
#include "test_paths.h"
#include "tests/support/dialog_driver.h"
#include "tests/support/window_picture.h"

namespace {
using testing::ElementsAre;

constexpr int kSelectAll = 15763;
constexpr int kList = 15764;
constexpr int kClear = 15766;

bool IsTicked(HWND dialog, int row)
{
    HWND const list = GetDlgItem(dialog, kList);
    return ListView_GetCheckState(list, static_cast<UINT>(row)) == 1;
}

std::string RowText(HWND dialog, int row)
{
    wchar_t wide[80] = {};
    LVITEMW item = {};
    item.pszText = wide;
    item.cchTextMax = 80;
    SendDlgItemMessageW(dialog, kList, LVM_GETITEMTEXTW, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(&item));
    char text[240] = {};
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    return text;
}

void SetTick(HWND dialog, int row, BOOL ticked)
{
    LVITEMW item = {};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(ticked ? 2u : 1u);
    SendDlgItemMessageW(dialog, kList, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                        reinterpret_cast<LPARAM>(&item));
}

class LayerDialog : public testing::Test
{
  protected:
    LayerDialog()
    {
        for (char const * name : {"0", "Zdi", "Otvory-č.1"})
            m_names.Add(Text1250FromUtf8(name).c_str());
        for (int const flag : {1, 0, 1})
            m_flags.Add(static_cast<BYTE>(flag));
    }

    std::vector<int> Flags() const
    {
        std::vector<int> flags;
        for (int i = 0; i < m_flags.GetSize(); ++i)
            flags.push_back(m_flags[i]);
        return flags;
    }

    CStringArray m_names;
    CByteArray m_flags;
};

TEST_F(LayerDialog, ShowsLayersInTableOrderWithTheirTicks)
{
    DialogDriver const driver([](HWND dialog) {
        EXPECT_EQ(WindowText(dialog), "Výběr vrstev (layers) k načtení z DXF souboru");
        EXPECT_EQ(ControlText(dialog, 15765), "Seznam vrstev v DXF souboru:");
        EXPECT_EQ(ControlText(dialog, IDOK), "&Dále  >>");
        EXPECT_EQ(ControlText(dialog, kSelectAll), "Vybrat vš&e");
        EXPECT_EQ(ControlText(dialog, kClear), "&Zrušit výběr");
        ASSERT_EQ(SendDlgItemMessageW(dialog, kList, LVM_GETITEMCOUNT, 0, 0), 3);
        EXPECT_EQ(RowText(dialog, 0), "0");
        EXPECT_EQ(RowText(dialog, 2), "Otvory-č.1");
        EXPECT_TRUE(IsTicked(dialog, 0));
        EXPECT_FALSE(IsTicked(dialog, 1));
        EXPECT_TRUE(IsTicked(dialog, 2));
        SavePicture(TakePicture(dialog), std::string(kBuildDir) + "/test_results/layer_dialog.bmp");
        Click(dialog, IDOK);
    });
    ChooseLayers(m_names, m_flags);
    EXPECT_TRUE(driver.HasActed());
    EXPECT_THAT(Flags(), ElementsAre(1, 0, 1));
}

TEST_F(LayerDialog, ForwardWritesTheTicks)
{
    DialogDriver const driver([](HWND dialog) {
        SetTick(dialog, 0, FALSE);
        SetTick(dialog, 1, TRUE);
        Click(dialog, IDOK);
    });
    ChooseLayers(m_names, m_flags);
    EXPECT_THAT(Flags(), ElementsAre(0, 1, 1));
}

TEST_F(LayerDialog, SelectAllTicksEachRow)
{
    DialogDriver const driver([](HWND dialog) {
        Click(dialog, kSelectAll);
        Click(dialog, IDOK);
    });
    ChooseLayers(m_names, m_flags);
    EXPECT_THAT(Flags(), ElementsAre(1, 1, 1));
}

TEST_F(LayerDialog, ClearTakesEachTickAway)
{
    DialogDriver const driver([](HWND dialog) {
        Click(dialog, kClear);
        Click(dialog, IDOK);
    });
    ChooseLayers(m_names, m_flags);
    EXPECT_THAT(Flags(), ElementsAre(0, 0, 0));
}

TEST_F(LayerDialog, LeavingKeepsTheFlags)
{
    DialogDriver const driver([](HWND dialog) {
        Click(dialog, kClear);
        SendMessageW(dialog, WM_CLOSE, 0, 0);
    });
    EXPECT_EQ(CLayerChoiceDialog(m_names, m_flags).DoModal(), IDCANCEL);
    EXPECT_THAT(Flags(), ElementsAre(1, 0, 1));
}

TEST_F(LayerDialog, ArraysOfUnlikeLengthShowNothing)
{
    m_flags.SetSize(2);
    EXPECT_EQ(CLayerChoiceDialog(m_names, m_flags).DoModal(), -1);
}
}  // namespace
