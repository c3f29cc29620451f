#ifndef KX7_FOUNDATION_VARD_MESSAGE_H
#define KX7_FOUNDATION_VARD_MESSAGE_H

#include <array>
#include <cstdint>
#include <vector>

#include "platform/base/export.h"
#include "platform/base/object.h"
#include "platform/base/string.h"
#include "platform/base/types.h"

// Types of a message: which buttons it has. The values are those of the system's message box.
inline constexpr int MESSAGE_OK = 0;
inline constexpr int MESSAGE_YES_NO_CANCEL = 3;
inline constexpr int MESSAGE_YES_NO = 4;

// Ids of the buttons, which are also the results of a message.
inline constexpr int MESSAGE_BUTTON_OK = 1;
inline constexpr int MESSAGE_BUTTON_CANCEL = 2;
inline constexpr int MESSAGE_BUTTON_YES = 6;
inline constexpr int MESSAGE_BUTTON_NO = 7;
inline constexpr int MESSAGE_BUTTON_YES_TO_ALL = 15400;

// Icons by their resource ids.
inline constexpr int MESSAGE_ICON_PLAIN = 15608;
inline constexpr int MESSAGE_ICON_QUESTION = 15609;
inline constexpr int MESSAGE_ICON_WARNING = 15610;

/// The buttons in the order in which they stand from left to right.
inline constexpr std::array<int, 5> kVardMessageButtons = {MESSAGE_BUTTON_OK, MESSAGE_BUTTON_YES,
                                                           MESSAGE_BUTTON_YES_TO_ALL, MESSAGE_BUTTON_NO,
                                                           MESSAGE_BUTTON_CANCEL};

/// What the dialog of a message is filled with. The text is always shown in the system's colours.
struct KX7_API TSVardMessage
{
    CString text;
    int type = MESSAGE_OK;
    int icon = MESSAGE_ICON_PLAIN;
    int defaultButton = MESSAGE_BUTTON_OK;                     ///< One that is shown; it gets the focus.
    std::array<CString, kVardMessageButtons.size()> captions;  ///< By button; empty for the usual one.

    /// The buttons that are shown, from left to right: those of the type, and "Yes to all" if it has a
    /// caption.
    std::vector<int> ShownButtons() const;

    /// The text with the empty lines in front that bring it to the middle of a box of five lines: 3 for one
    /// line, 2 for two and three, 1 for four.
    CString TextInBox() const;
};

/// Shows a message until the user presses a button; the result is the button's id.
using VardMessageHandler = int (*)(TSVardMessage const & message);

/// Sets what stands for the dialog of messages. Null for none: then AfxMessageBox is asked with the text and
/// the type. The result is the handler that was set before.
KX7_API VardMessageHandler SetVardMessageHandler(VardMessageHandler handler);

/// The suite's message box. The operations exist for a text and for the id of a string resource; one that is
/// missing gives an empty message. Their arguments:
///  - `defaultButton`: the id of the button that the Enter key presses; the first one for any other value;
///  - `mode`: 0 ends the silence of this object, 1 begins it once this message has been shown, any other
///  leaves
///    it. While it lasts nothing is shown. So in a run of messages with mode 1 only the first comes through;
///  - `textColour`, `backColour`, `sound`: have no effect: text comes in the system's colours, the sound goes
///  by
///    the icon.
/// The result is the id of the button pressed, 0 if nothing was shown.
class KX7_API CVardMessage : public CObject
{
    DECLARE_DYNAMIC(CVardMessage)

    /// Does nothing; 1.
    int Create();

    /// The general form. A `type` other than 3 and 4 counts as 0; an `icon` of 0 means the plain one.
    int VardMessageBox(char const * text, unsigned int type, unsigned int defaultButton,
                       unsigned long textColour, unsigned long backColour, int icon, int mode,
                       unsigned int sound);
    int VardMessageBox(unsigned int text, unsigned int type, unsigned int defaultButton,
                       unsigned long textColour, unsigned long backColour, int icon, int mode,
                       unsigned int sound);

    /// A warning to be confirmed.
    int VardWarningBox(char const * text, int mode, unsigned int sound);
    int VardWarningBox(unsigned int text, int mode, unsigned int sound);

    /// A question with yes and no.
    int VardQuestionBox(char const * text, unsigned int defaultButton, int mode, unsigned int sound);
    int VardQuestionBox(unsigned int text, unsigned int defaultButton, int mode, unsigned int sound);

    /// A question with yes, no and cancel.
    int VardQuestionBoxCancel(char const * text, unsigned int defaultButton, int mode, unsigned int sound);
    int VardQuestionBoxCancel(unsigned int text, unsigned int defaultButton, int mode, unsigned int sound);

    /// A question with the caller's captions for yes and no; with a third caption also a cancel button, with
    /// a fourth also "yes to all".
    int VardUserQuestionBox(char const * text, char const * yes, char const * no, unsigned int defaultButton,
                            int mode, unsigned int sound);
    int VardUserQuestionBox(unsigned int text, char const * yes, char const * no, unsigned int defaultButton,
                            int mode, unsigned int sound);
    int VardUserQuestionBox(char const * text, char const * yes, char const * no, char const * cancel,
                            unsigned int defaultButton, int mode, unsigned int sound);
    int VardUserQuestionBox(unsigned int text, char const * yes, char const * no, char const * cancel,
                            unsigned int defaultButton, int mode, unsigned int sound);
    int VardUserQuestionBox(char const * text, char const * yes, char const * no, char const * cancel,
                            char const * yesToAll, unsigned int defaultButton, int mode, unsigned int sound);
    int VardUserQuestionBox(unsigned int text, char const * yes, char const * no, char const * cancel,
                            char const * yesToAll, unsigned int defaultButton, int mode, unsigned int sound);

    /// Plays a sound file, going on at once if `async` isn't 0. The second form takes the file's name from a
    /// string resource and does nothing if that is missing. What can't be played is silent.
    void PlayWav(char const * file, int async);
    void PlayWav(unsigned int id, int async);

  private:
    int Show(TSVardMessage message, unsigned int defaultButton, int mode);

    std::int32_t m_suppressed = 0;
};

#endif
