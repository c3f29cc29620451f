// The system's own message box, which a timer of this thread looks at and answers.
#include <gtest/gtest.h>

#include <string>

#include "platform/base/message_box.h"

namespace {
std::wstring g_shownText;
int g_answer = 0;

void CALLBACK AnswerBox(HWND, UINT, UINT_PTR timer, DWORD)
{
    HWND const box = FindWindowW(L"#32770", nullptr);
    if (!box)
        return;
    KillTimer(nullptr, timer);
    wchar_t text[200] = {};
    for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (GetWindowTextW(child, text, 200) > 0 && GetDlgCtrlID(child) > IDNO)
            g_shownText = text;
    PostMessageW(box, WM_COMMAND, static_cast<WPARAM>(g_answer), 0);
}

int AskSystem(char const * text, unsigned int type, int answer)
{
    g_shownText.clear();
    g_answer = answer;
    SetTimer(nullptr, 0, 20, AnswerBox);
    return AfxMessageBox(text, type);
}
}  // namespace

TEST(SystemMessageBox, ShowsTheTextAndGivesTheButton)
{
    SetMessageBoxHandler(nullptr);
    EXPECT_EQ(AskSystem("Integr\xE1l?", MB_YESNO | MB_ICONQUESTION, IDNO), IDNO);
    EXPECT_EQ(g_shownText, L"Integrál?");
    EXPECT_EQ(AskSystem("text", MB_OK, IDOK), IDOK);
}
