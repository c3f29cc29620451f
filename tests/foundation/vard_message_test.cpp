#include "foundation/vard_message.h"

#include <gmock/gmock.h>

#include "foundation/sound_player.h"
#include "platform/base/message_box.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {
std::vector<TSVardMessage> g_shown;
std::vector<std::pair<std::string, DWORD>> g_sounds;

int PressDefault(TSVardMessage const & message)
{
    g_shown.push_back(message);
    return message.defaultButton;
}

void KeepSound(char const * file, DWORD flags)
{
    g_sounds.emplace_back(file, flags);
}

class Message : public testing::Test
{
  protected:
    Message() : m_handler(SetVardMessageHandler(PressDefault)), m_player(SetSoundPlayer(KeepSound))
    {
        g_shown.clear();
        g_sounds.clear();
    }
    ~Message() override
    {
        SetVardMessageHandler(m_handler);
        SetSoundPlayer(m_player);
    }

    CVardMessage m_message;

  private:
    VardMessageHandler m_handler;
    SoundPlayer m_player;
};

constexpr DWORD kSoundFlags = SND_FILENAME | SND_NOSTOP | SND_NODEFAULT;

TEST_F(Message, WarningHasOneButtonIconAndSound)
{
    EXPECT_EQ(m_message.VardWarningBox("text", 0, 0), 1);
    ASSERT_THAT(g_shown, SizeIs(1));
    EXPECT_EQ(g_shown[0].text, "text");
    EXPECT_EQ(g_shown[0].type, 0);
    EXPECT_EQ(g_shown[0].icon, 15610);
    EXPECT_THAT(g_shown[0].ShownButtons(), ElementsAre(1));
    EXPECT_THAT(g_sounds, ElementsAre(testing::Pair("WAV\\WARNINGBOX.WAV", kSoundFlags | SND_ASYNC)));
}

TEST_F(Message, QuestionHasYesAndNo)
{
    EXPECT_EQ(m_message.VardQuestionBox("text", 7, 0, 0), 7);
    ASSERT_THAT(g_shown, SizeIs(1));
    EXPECT_EQ(g_shown[0].type, 4);
    EXPECT_EQ(g_shown[0].icon, 15609);
    EXPECT_THAT(g_shown[0].ShownButtons(), ElementsAre(6, 7));
    EXPECT_THAT(g_sounds, ElementsAre(testing::Pair("WAV\\QUESTIONBOX.WAV", kSoundFlags | SND_ASYNC)));
}

TEST_F(Message, QuestionWithCancelHasThreeButtons)
{
    EXPECT_EQ(m_message.VardQuestionBoxCancel("text", 2, 0, 0), 2);
    EXPECT_EQ(g_shown.at(0).type, 3);
    EXPECT_EQ(g_shown.at(0).icon, 15609);
    EXPECT_THAT(g_shown.at(0).ShownButtons(), ElementsAre(6, 7, 2));
}

TEST_F(Message, UserQuestionHasTheCallersCaptions)
{
    EXPECT_EQ(m_message.VardUserQuestionBox("text", "Keep", "Drop", 6, 0, 0), 6);
    EXPECT_EQ(g_shown.at(0).type, 4);
    EXPECT_THAT(g_shown.at(0).captions, ElementsAre("", "Keep", "", "Drop", ""));
    EXPECT_EQ(m_message.VardUserQuestionBox("text", "Keep", "Drop", "Back", 2, 0, 0), 2);
    EXPECT_EQ(g_shown.at(1).type, 3);
    EXPECT_THAT(g_shown.at(1).captions, ElementsAre("", "Keep", "", "Drop", "Back"));
    EXPECT_THAT(g_shown.at(1).ShownButtons(), ElementsAre(6, 7, 2));
    EXPECT_EQ(m_message.VardUserQuestionBox("text", "Keep", "Drop", "Back", "Keep all", 15400, 0, 0), 15400);
    EXPECT_THAT(g_shown.at(2).captions, ElementsAre("", "Keep", "Keep all", "Drop", "Back"));
    EXPECT_THAT(g_shown.at(2).ShownButtons(), ElementsAre(6, 15400, 7, 2));
}

TEST_F(Message, GeneralFormTakesTypeAndIcon)
{
    EXPECT_EQ(m_message.VardMessageBox("text", 3, 7, 255, 255, 15610, 0, 0), 7);
    EXPECT_EQ(g_shown.at(0).type, 3);
    EXPECT_EQ(g_shown.at(0).icon, 15610);
    EXPECT_EQ(g_sounds.at(0).first, "WAV\\WARNINGBOX.WAV");
}

TEST_F(Message, OfAnotherTypeCountsAsPlain)
{
    for (unsigned int type : {0U, 1U, 2U, 5U, 0xFFFFFFFFU})
        EXPECT_EQ(m_message.VardMessageBox("text", type, 7, 0, 0, 0, 0, 0), 1);
    for (TSVardMessage const & message : g_shown) {
        EXPECT_EQ(message.type, 0);
        EXPECT_EQ(message.icon, 15608);
    }
    EXPECT_EQ(g_sounds.at(0).first, "WAV\\MESSAGEBOX.WAV");
}

TEST_F(Message, WithAForeignIconHasThePlainSound)
{
    m_message.VardMessageBox("text", 0, 0, 0, 0, 99, 0, 0);
    EXPECT_EQ(g_shown.at(0).icon, 99);
    EXPECT_EQ(g_sounds.at(0).first, "WAV\\MESSAGEBOX.WAV");
}

TEST_F(Message, HasItsFirstButtonForADefaultThatIsNotShown)
{
    EXPECT_EQ(m_message.VardQuestionBox("text", 2, 0, 0), 6);
    EXPECT_EQ(m_message.VardQuestionBox("text", 0, 0, 0), 6);
}

TEST_F(Message, WithModeOneComesThroughOnce)
{
    EXPECT_EQ(m_message.VardWarningBox("first", 1, 0), 1);
    EXPECT_EQ(m_message.VardWarningBox("second", 1, 0), 0);
    EXPECT_THAT(g_shown, SizeIs(1));
    EXPECT_THAT(g_sounds, SizeIs(1));
}

TEST_F(Message, SpeaksAgainAfterModeZero)
{
    m_message.VardWarningBox("first", 1, 0);
    EXPECT_EQ(m_message.VardWarningBox("other mode", 2, 0), 0);
    EXPECT_EQ(m_message.VardWarningBox("again", 0, 0), 1);
    EXPECT_EQ(m_message.VardWarningBox("other mode", 2, 0), 1);
    EXPECT_THAT(g_shown, SizeIs(3));
}

TEST_F(Message, TakesItsTextFromTheResources)
{
    m_message.VardWarningBox(55322U, 0, 0);
    m_message.VardQuestionBox(55322U, 6, 0, 0);
    m_message.VardQuestionBoxCancel(55322U, 6, 0, 0);
    m_message.VardMessageBox(55322U, 0, 0, 0, 0, 0, 0, 0);
    m_message.VardUserQuestionBox(55322U, "a", "b", 6, 0, 0);
    m_message.VardUserQuestionBox(55322U, "a", "b", "c", 6, 0, 0);
    m_message.VardUserQuestionBox(55322U, "a", "b", "c", "d", 6, 0, 0);
    ASSERT_THAT(g_shown, SizeIs(7));
    for (TSVardMessage const & message : g_shown)
        EXPECT_EQ(message.text, "WAV\\WARNINGBOX.WAV");
}

TEST_F(Message, OfAMissingTextIsEmpty)
{
    EXPECT_EQ(m_message.VardWarningBox(1U, 0, 0), 1);
    EXPECT_EQ(m_message.VardWarningBox(static_cast<char const *>(nullptr), 0, 0), 1);
    EXPECT_TRUE(g_shown.at(0).text.IsEmpty());
    EXPECT_TRUE(g_shown.at(1).text.IsEmpty());
}

TEST_F(Message, CreatesWithoutDoingAnything)
{
    EXPECT_EQ(m_message.Create(), 1);
    EXPECT_THAT(g_shown, IsEmpty());
}

std::vector<std::pair<std::string, unsigned int>> g_boxes;

TEST_F(Message, WithoutADialogAsksThePlainMessageBox)
{
    SetVardMessageHandler(nullptr);
    MessageBoxHandler const before = SetMessageBoxHandler([](char const * text, unsigned int type) {
        g_boxes.emplace_back(text, type);
        return 7;
    });
    EXPECT_EQ(m_message.VardQuestionBox("text", 6, 0, 0), 7);
    EXPECT_EQ(m_message.VardQuestionBoxCancel("text", 2, 0, 0), 7);
    SetMessageBoxHandler(before);
    EXPECT_THAT(g_boxes, ElementsAre(testing::Pair("text", 4U), testing::Pair("text", 3U + 0x200U)));
}

TEST_F(Message, PlaysSoundsWaitingOrNot)
{
    m_message.PlayWav("a.wav", 0);
    m_message.PlayWav("b.wav", 5);
    m_message.PlayWav(55320U, 0);
    m_message.PlayWav(1U, 0);
    EXPECT_THAT(g_sounds, ElementsAre(testing::Pair("a.wav", kSoundFlags | SND_NOWAIT),
                                      testing::Pair("b.wav", kSoundFlags | SND_ASYNC),
                                      testing::Pair("WAV\\MESSAGEBOX.WAV", kSoundFlags | SND_NOWAIT)));
}

std::string InBox(char const * text)
{
    TSVardMessage message;
    message.text = text;
    return std::string(message.TextInBox());
}

TEST(MessageText, StandsInTheMiddleOfFiveLines)
{
    EXPECT_EQ(InBox("1"), "\n\n\n1");
    EXPECT_EQ(InBox(""), "\n\n\n");
    EXPECT_EQ(InBox("1\n2"), "\n\n1\n2");
    EXPECT_EQ(InBox("1\r\n2\r\n3"), "\n\n1\r\n2\r\n3");
    EXPECT_EQ(InBox("1\n2\n3\n4"), "\n1\n2\n3\n4");
    EXPECT_EQ(InBox("1\n2\n3\n4\n5"), "1\n2\n3\n4\n5");
    EXPECT_EQ(InBox("1\n2\n3\n4\n5\n6"), "1\n2\n3\n4\n5\n6");
}

TEST(MessageClass, HasRunTimeInformation)
{
    CVardMessage message;
    EXPECT_STREQ(message.GetRuntimeClass()->m_lpszClassName, "CVardMessage");
}
}  // namespace
