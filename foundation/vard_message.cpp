#include "foundation/vard_message.h"

#include <algorithm>
#include <string>
#include <utility>

#include "foundation/sound_player.h"
#include "platform/base/message_box.h"

IMPLEMENT_DYNAMIC(CVardMessage, CObject)

namespace {
// String resources with the names of the sound files.
constexpr unsigned int kPlainSound = 55320;
constexpr unsigned int kQuestionSound = 55321;
constexpr unsigned int kWarningSound = 55322;

// Places in kVardMessageButtons.
constexpr std::size_t kYes = 1;
constexpr std::size_t kYesToAll = 2;
constexpr std::size_t kNo = 3;
constexpr std::size_t kCancel = 4;

VardMessageHandler g_messageHandler = nullptr;

// Where there is no dialog, the plain message box with the same buttons.
int AskMessageBox(TSVardMessage const & message)
{
    constexpr unsigned int kDefaultButtonStep = MB_DEFBUTTON2 - MB_DEFBUTTON1;
    std::vector<int> const shown = message.ShownButtons();
    auto const place = std::ranges::find(shown, message.defaultButton) - shown.begin();
    return AfxMessageBox(message.text, static_cast<unsigned int>(message.type) +
                                           kDefaultButtonStep * static_cast<unsigned int>(place));
}

CString Loaded(unsigned int id)
{
    CString text;
    text.LoadString(id);
    return text;
}

int TypeOf(unsigned int type)
{
    return type == MESSAGE_YES_NO || type == MESSAGE_YES_NO_CANCEL ? static_cast<int>(type) : MESSAGE_OK;
}

unsigned int SoundOf(int icon)
{
    return icon == MESSAGE_ICON_WARNING    ? kWarningSound
           : icon == MESSAGE_ICON_QUESTION ? kQuestionSound
                                           : kPlainSound;
}

TSVardMessage Question(char const * text, int type)
{
    return {.text = text, .type = type, .icon = MESSAGE_ICON_QUESTION, .captions = {}};
}
}  // namespace

VardMessageHandler SetVardMessageHandler(VardMessageHandler handler)
{
    return std::exchange(g_messageHandler, handler);
}

std::vector<int> TSVardMessage::ShownButtons() const
{
    std::vector<int> shown;
    for (std::size_t i = 0; i < kVardMessageButtons.size(); ++i) {
        int const button = kVardMessageButtons[i];
        bool const isOfType = button == MESSAGE_BUTTON_OK       ? type == MESSAGE_OK
                              : button == MESSAGE_BUTTON_CANCEL ? type == MESSAGE_YES_NO_CANCEL
                              : i == kYesToAll                  ? !captions[i].IsEmpty()
                                                                : type != MESSAGE_OK;
        if (isOfType)
            shown.push_back(button);
    }
    return shown;
}

CString TSVardMessage::TextInBox() const
{
    // Empty lines by the number of the text's lines, from one to four.
    constexpr std::array<std::size_t, 4> kEmptyLines = {3, 2, 2, 1};
    auto const lineEnds = static_cast<std::size_t>(std::ranges::count(text.View(), '\n'));
    std::size_t const emptyLines = lineEnds < kEmptyLines.size() ? kEmptyLines[lineEnds] : 0;
    return CString(std::string(emptyLines, '\n').c_str()) + text;
}

int CVardMessage::Create()
{
    return 1;
}

int CVardMessage::Show(TSVardMessage message, unsigned int defaultButton, int mode)
{
    constexpr int kSpeakAgain = 0;
    constexpr int kSilentFromNowOn = 1;
    if (mode == kSpeakAgain)
        m_suppressed = 0;
    if (m_suppressed == 1)
        return 0;
    if (mode == kSilentFromNowOn)
        m_suppressed = 1;
    PlayWav(SoundOf(message.icon), 1);
    std::vector<int> const shown = message.ShownButtons();
    auto const found = std::ranges::find(shown, static_cast<int>(defaultButton));
    message.defaultButton = found == shown.end() ? shown.front() : *found;
    return (g_messageHandler ? g_messageHandler : AskMessageBox)(message);
}

int CVardMessage::VardMessageBox(char const * text, unsigned int type, unsigned int defaultButton,
                                 unsigned long, unsigned long, int icon, int mode, unsigned int)
{
    return Show(
        {.text = text, .type = TypeOf(type), .icon = icon ? icon : MESSAGE_ICON_PLAIN, .captions = {}},
        defaultButton, mode);
}

int CVardMessage::VardMessageBox(unsigned int text, unsigned int type, unsigned int defaultButton,
                                 unsigned long textColour, unsigned long backColour, int icon, int mode,
                                 unsigned int sound)
{
    return VardMessageBox(Loaded(text), type, defaultButton, textColour, backColour, icon, mode, sound);
}

int CVardMessage::VardWarningBox(char const * text, int mode, unsigned int)
{
    return Show({.text = text, .icon = MESSAGE_ICON_WARNING, .captions = {}}, MESSAGE_BUTTON_OK, mode);
}

int CVardMessage::VardWarningBox(unsigned int text, int mode, unsigned int sound)
{
    return VardWarningBox(Loaded(text), mode, sound);
}

int CVardMessage::VardQuestionBox(char const * text, unsigned int defaultButton, int mode, unsigned int)
{
    return Show(Question(text, MESSAGE_YES_NO), defaultButton, mode);
}

int CVardMessage::VardQuestionBox(unsigned int text, unsigned int defaultButton, int mode, unsigned int sound)
{
    return VardQuestionBox(Loaded(text), defaultButton, mode, sound);
}

int CVardMessage::VardQuestionBoxCancel(char const * text, unsigned int defaultButton, int mode, unsigned int)
{
    return Show(Question(text, MESSAGE_YES_NO_CANCEL), defaultButton, mode);
}

int CVardMessage::VardQuestionBoxCancel(unsigned int text, unsigned int defaultButton, int mode,
                                        unsigned int sound)
{
    return VardQuestionBoxCancel(Loaded(text), defaultButton, mode, sound);
}

int CVardMessage::VardUserQuestionBox(char const * text, char const * yes, char const * no,
                                      unsigned int defaultButton, int mode, unsigned int sound)
{
    return VardUserQuestionBox(text, yes, no, nullptr, defaultButton, mode, sound);
}

int CVardMessage::VardUserQuestionBox(unsigned int text, char const * yes, char const * no,
                                      unsigned int defaultButton, int mode, unsigned int sound)
{
    return VardUserQuestionBox(Loaded(text), yes, no, nullptr, defaultButton, mode, sound);
}

int CVardMessage::VardUserQuestionBox(char const * text, char const * yes, char const * no,
                                      char const * cancel, unsigned int defaultButton, int mode,
                                      unsigned int sound)
{
    return VardUserQuestionBox(text, yes, no, cancel, nullptr, defaultButton, mode, sound);
}

int CVardMessage::VardUserQuestionBox(unsigned int text, char const * yes, char const * no,
                                      char const * cancel, unsigned int defaultButton, int mode,
                                      unsigned int sound)
{
    return VardUserQuestionBox(Loaded(text), yes, no, cancel, nullptr, defaultButton, mode, sound);
}

int CVardMessage::VardUserQuestionBox(char const * text, char const * yes, char const * no,
                                      char const * cancel, char const * yesToAll, unsigned int defaultButton,
                                      int mode, unsigned int)
{
    TSVardMessage message = Question(text, cancel ? MESSAGE_YES_NO_CANCEL : MESSAGE_YES_NO);
    message.captions[kYes] = yes;
    message.captions[kNo] = no;
    message.captions[kCancel] = cancel;
    message.captions[kYesToAll] = yesToAll;
    return Show(std::move(message), defaultButton, mode);
}

int CVardMessage::VardUserQuestionBox(unsigned int text, char const * yes, char const * no,
                                      char const * cancel, char const * yesToAll, unsigned int defaultButton,
                                      int mode, unsigned int sound)
{
    return VardUserQuestionBox(Loaded(text), yes, no, cancel, yesToAll, defaultButton, mode, sound);
}

void CVardMessage::PlayWav(char const * file, int async)
{
    PlaySoundFile(file, SND_FILENAME | SND_NOSTOP | SND_NODEFAULT | (async ? SND_ASYNC : SND_NOWAIT));
}

void CVardMessage::PlayWav(unsigned int id, int async)
{
    CString const file = Loaded(id);
    if (!file.IsEmpty())
        PlayWav(file, async);
}
