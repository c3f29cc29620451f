#include "services/vard_message_dlg.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "foundation/sound_player.h"
#include "platform/base/code_page.h"
#include "test_paths.h"
#include "tests/support/dialog_driver.h"
#include "tests/support/window_picture.h"

namespace {
using testing::ElementsAre;

constexpr int kTextId = 15769;
constexpr int kIconId = 15768;

CString Text(char const * utf8)
{
    return Text1250FromUtf8(utf8).c_str();
}

std::vector<std::string> ShownCaptions(HWND dialog)
{
    std::vector<std::string> captions;
    for (int const id : kVardMessageButtons) {
        if (IsWindowVisible(GetDlgItem(dialog, id)))
            captions.push_back(ControlText(dialog, id));
    }
    return captions;
}

RECT PlaceOf(HWND dialog, int id)
{
    RECT place;
    GetWindowRect(GetDlgItem(dialog, id), &place);
    MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT *>(&place), 2);
    return place;
}

class MessageDialog : public testing::Test
{
  protected:
    MessageDialog() : m_player(SetSoundPlayer([](char const *, DWORD) {})) {}
    ~MessageDialog() override { SetSoundPlayer(m_player); }

    CVardMessage m_message;

  private:
    SoundPlayer m_player;
};

TEST_F(MessageDialog, WarningShowsTextTitleAndOneButton)
{
    DialogDriver const driver([](HWND dialog) {
        EXPECT_EQ(WindowText(dialog), "Hlášení programu");
        EXPECT_EQ(ControlText(dialog, kTextId), "\n\n\nPříliš žluťoučký kůň");
        EXPECT_THAT(ShownCaptions(dialog), ElementsAre("&OK"));
        Click(dialog, IDOK);
    });
    EXPECT_EQ(m_message.VardWarningBox(Text("Příliš žluťoučký kůň"), 0, 0), IDOK);
    EXPECT_TRUE(driver.HasActed());
}

TEST_F(MessageDialog, QuestionOffersYesAndNo)
{
    DialogDriver const driver([](HWND dialog) {
        EXPECT_THAT(ShownCaptions(dialog), ElementsAre("&Ano", "&Ne"));
        Click(dialog, IDNO);
    });
    EXPECT_EQ(m_message.VardQuestionBox("text", IDYES, 0, 0), IDNO);
}

TEST_F(MessageDialog, QuestionWithCancelOffersThree)
{
    DialogDriver const driver([](HWND dialog) {
        EXPECT_THAT(ShownCaptions(dialog), ElementsAre("&Ano", "&Ne", "&Storno"));
        Click(dialog, IDYES);
    });
    EXPECT_EQ(m_message.VardQuestionBoxCancel("text", IDYES, 0, 0), IDYES);
}

TEST_F(MessageDialog, CaptionsOfTheCallerAndYesToAll)
{
    DialogDriver const driver([](HWND dialog) {
        EXPECT_THAT(ShownCaptions(dialog), ElementsAre("&Přepsat", "Vš&e", "Pře&skočit", "&Konec"));
        Click(dialog, 15400);
    });
    EXPECT_EQ(m_message.VardUserQuestionBox("text", Text("&Přepsat"), Text("Pře&skočit"), "&Konec",
                                            Text("Vš&e"), IDYES, 0, 0),
              15400);
}

TEST_F(MessageDialog, DefaultButtonHasTheFocus)
{
    DialogDriver const driver([](HWND dialog) {
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, IDNO));
        Click(dialog, IDNO);
    });
    m_message.VardQuestionBox("text", IDNO, 0, 0);
}

TEST_F(MessageDialog, EnterPressesTheDefaultButton)
{
    for (int const button : {IDYES, IDNO, IDCANCEL}) {
        DialogDriver const driver([](HWND) { Type(VK_RETURN); });
        EXPECT_EQ(m_message.VardQuestionBoxCancel("text", static_cast<unsigned int>(button), 0, 0), button);
    }
}

TEST_F(MessageDialog, EscapeCancelsWhereThereIsACancelButton)
{
    DialogDriver const driver([](HWND) { Type(VK_ESCAPE); });
    EXPECT_EQ(m_message.VardQuestionBoxCancel("text", IDYES, 0, 0), IDCANCEL);
}

TEST_F(MessageDialog, HiddenButtonsCannotBePressed)
{
    DialogDriver const driver([](HWND dialog) {
        for (int const hidden : {IDOK, IDCANCEL, 15400})
            SendMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(hidden), 0);
        EXPECT_TRUE(IsWindowVisible(dialog));
        Click(dialog, IDYES);
    });
    EXPECT_EQ(m_message.VardQuestionBox("text", IDNO, 0, 0), IDYES);
}

TEST_F(MessageDialog, ButtonsStandSideBySideInTheMiddle)
{
    DialogDriver const driver([](HWND dialog) {
        RECT client;
        GetClientRect(dialog, &client);
        RECT const yes = PlaceOf(dialog, IDYES), no = PlaceOf(dialog, IDNO),
                   cancel = PlaceOf(dialog, IDCANCEL);
        EXPECT_LT(yes.right, no.left);
        EXPECT_EQ(no.left - yes.right, cancel.left - no.right);
        EXPECT_NEAR(yes.left, client.right - cancel.right, 1);
        EXPECT_EQ(yes.top, cancel.top);
        Click(dialog, IDYES);
    });
    m_message.VardQuestionBoxCancel("text", IDYES, 0, 0);
}

TEST_F(MessageDialog, ButtonsGrowWithTheirCaptions)
{
    DialogDriver const driver([](HWND dialog) {
        RECT const yes = PlaceOf(dialog, IDYES), no = PlaceOf(dialog, IDNO);
        EXPECT_GT(yes.right - yes.left, no.right - no.left);
        EXPECT_LT(yes.right, no.left);
        Click(dialog, IDYES);
    });
    m_message.VardUserQuestionBox("text", "A caption that wants much room", "No", IDYES, 0, 0);
}

TEST_F(MessageDialog, TextTakesTheRoomBesideIconAndButtons)
{
    DialogDriver const driver([](HWND dialog) {
        RECT client;
        GetClientRect(dialog, &client);
        RECT const text = PlaceOf(dialog, kTextId);
        EXPECT_GT(text.left, PlaceOf(dialog, kIconId).right);
        EXPECT_LT(text.bottom, PlaceOf(dialog, IDOK).top);
        EXPECT_GT(text.right, client.right - 20);
        Click(dialog, IDOK);
    });
    m_message.VardWarningBox("text", 0, 0);
}

TEST_F(MessageDialog, EachKindHasItsIcon)
{
    std::vector<HICON> icons;
    for (int const icon : {MESSAGE_ICON_PLAIN, MESSAGE_ICON_QUESTION, MESSAGE_ICON_WARNING}) {
        DialogDriver const driver([&icons](HWND dialog) {
            icons.push_back(reinterpret_cast<HICON>(SendDlgItemMessageW(dialog, kIconId, STM_GETICON, 0, 0)));
            Click(dialog, IDOK);
        });
        m_message.VardMessageBox("text", 0, IDOK, 0, 0, icon, 0, 0);
    }
    ASSERT_EQ(icons.size(), 3u);
    for (HICON const icon : icons)
        EXPECT_NE(icon, nullptr);
    EXPECT_NE(icons[0], icons[1]);
    EXPECT_NE(icons[1], icons[2]);
}

TEST_F(MessageDialog, MissingIconLeavesThePlaceEmpty)
{
    DialogDriver const driver([](HWND dialog) {
        EXPECT_EQ(SendDlgItemMessageW(dialog, kIconId, STM_GETICON, 0, 0), 0);
        Click(dialog, IDOK);
    });
    EXPECT_EQ(m_message.VardMessageBox("text", 0, IDOK, 0, 0, 15699, 0, 0), IDOK);
}

TEST_F(MessageDialog, SilenceAfterTheFirstShowsNoDialog)
{
    DialogDriver const first([](HWND dialog) { Click(dialog, IDOK); });
    EXPECT_EQ(m_message.VardWarningBox("text", 1, 0), IDOK);
    EXPECT_EQ(m_message.VardWarningBox("text", 1, 0), 0);
}

TEST_F(MessageDialog, ColoursGivenToTheDialogAreShown)
{
    CVardMessageDlg dialog;
    dialog.SetMessageText("text", RGB(0, 0, 0), RGB(10, 200, 30));
    DialogDriver const driver([](HWND window) {
        WindowPicture const picture = TakePicture(GetDlgItem(window, kTextId));
        EXPECT_EQ(picture.At(2, 2), 0x0AC81Eu);
        Click(window, IDOK);
    });
    EXPECT_EQ(dialog.DoModal(), IDOK);
}

// Leaves test_results/message_dialog.bmp in the build folder to be looked at.
TEST_F(MessageDialog, PictureHasLettersIconAndButtons)
{
    DialogDriver const driver([](HWND dialog) {
        WindowPicture const picture = TakePicture(dialog);
        SavePicture(picture, std::string(kBuildDir) + "/test_results/message_dialog.bmp");
        int dark = 0, green = 0;
        for (std::uint32_t const pixel : picture.pixels) {
            dark += (pixel & 0xFFFFFF) == 0;
            green += (pixel & 0xFFFFFF) == 0x2F855A;
        }
        EXPECT_GT(dark, 300);   // letters
        EXPECT_GT(green, 300);  // the disc of the question's icon: about half of 32 x 32
        Click(dialog, IDYES);
    });
    m_message.VardUserQuestionBox(Text("Příliš žluťoučký kůň úpěl ďábelské ódy.\nSoubor „Nosník č. 7“ už "
                                       "existuje.\nChcete jej přepsat?"),
                                  Text("&Přepsat"), Text("&Ne"), Text("&Storno"), Text("Přepsat &všechny"),
                                  IDYES, 0, 0);
}
}  // namespace
