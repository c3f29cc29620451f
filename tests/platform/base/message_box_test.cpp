#include "platform/base/message_box.h"

#include <gtest/gtest.h>

#include <string>

namespace {
std::string g_text;
unsigned int g_type = 0;

int Answer(char const * text, unsigned int type)
{
    g_text = text;
    g_type = type;
    return IDNO;
}

// Puts the handler that was in force back at the end.
class MessageBoxes : public testing::Test
{
  protected:
    ~MessageBoxes() override { SetMessageBoxHandler(m_before); }

    MessageBoxHandler m_before = SetMessageBoxHandler(Answer);
};
}  // namespace

TEST_F(MessageBoxes, GoToTheHandlerAsTheyAre)
{
    EXPECT_EQ(AfxMessageBox("text", MB_YESNO), IDNO);
    EXPECT_EQ(g_text, "text");
    EXPECT_EQ(g_type, MB_YESNO);
    AfxMessageBox(static_cast<char const *>(nullptr));
    EXPECT_EQ(g_text, "");
    EXPECT_EQ(g_type, MB_OK);
}

TEST_F(MessageBoxes, TakeTextsByResourceId)
{
    EXPECT_EQ(AfxMessageBox(55009u), IDNO);
    EXPECT_EQ(g_text, "Integr\xE1l");
    EXPECT_EQ(AfxMessageBox(59999u), IDNO);
    EXPECT_EQ(g_text, "");
}

TEST_F(MessageBoxes, HandlerIsHandedBack)
{
    EXPECT_EQ(SetMessageBoxHandler(nullptr), Answer);
    EXPECT_EQ(SetMessageBoxHandler(Answer), nullptr);
}

#if !defined(_WIN32)

TEST_F(MessageBoxes, WithoutAScreenAnswerWithTheDefaultButton)
{
    SetMessageBoxHandler(nullptr);
    testing::internal::CaptureStderr();
    EXPECT_EQ(AfxMessageBox("Integr\xE1l"), IDOK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Integrál\n");
    struct
    {
        unsigned int type;
        int answer;
    } const cases[] = {{MB_OKCANCEL, IDOK},
                       {MB_OKCANCEL | MB_DEFBUTTON2, IDCANCEL},
                       {MB_ABORTRETRYIGNORE | MB_DEFBUTTON3, IDIGNORE},
                       {MB_YESNOCANCEL | MB_ICONQUESTION, IDYES},
                       {MB_YESNO | MB_DEFBUTTON2, IDNO},
                       {MB_YESNO | MB_DEFBUTTON3, IDYES},  // there is no third
                       {MB_RETRYCANCEL, IDRETRY},
                       {0xF | MB_DEFMASK, IDOK}};  // no such type
    for (auto const & each : cases) {
        testing::internal::CaptureStderr();
        EXPECT_EQ(AfxMessageBox("", each.type), each.answer) << each.type;
        testing::internal::GetCapturedStderr();
    }
}

#endif
