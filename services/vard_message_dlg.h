#ifndef KX7_SERVICES_VARD_MESSAGE_DLG_H
#define KX7_SERVICES_VARD_MESSAGE_DLG_H

#include <array>

#include "foundation/vard_message.h"
#include "platform/window/dialog.h"
#include "services/color_text.h"

/// The dialog of the suite's messages. The library answers CVardMessage with it unless a host sets a handler
/// of its own (vard_message.h). DoModal gives the id of the button pressed. A button that isn't shown can't
/// be pressed by its hot key either; so the Escape key works only where there is a cancel button.
class KX7_API CVardMessageDlg : public CDialog
{
    DECLARE_DYNAMIC(CVardMessageDlg)

  public:
    explicit CVardMessageDlg(CWnd * parent = nullptr);

    // All of these before DoModal.

    /// The text and its colours.
    void SetMessageText(CString text, unsigned long textColour, unsigned long backColour);
    /// The icon by its resource id; none is shown for one that is missing.
    void SetMessageIcon(int id) { m_message.icon = id; }
    /// The buttons, MESSAGE_OK, MESSAGE_YES_NO or MESSAGE_YES_NO_CANCEL.
    void SetMessageType(int type) { m_message.type = type; }
    /// The button that has the focus at the start, by its id; the first one for one that isn't shown.
    void SetDefaultButton(int button) { m_message.defaultButton = button; }
    /// Another caption for a button of kVardMessageButtons; "Yes to all" is shown only with one.
    void SetButtonText(unsigned int button, CString caption);

  protected:
    BOOL OnInitDialog() override;
    void OnOK() override { Press(MESSAGE_BUTTON_OK); }
    void OnCancel() override { Press(MESSAGE_BUTTON_CANCEL); }
    void OnYes() { Press(MESSAGE_BUTTON_YES); }
    void OnYesToAll() { Press(MESSAGE_BUTTON_YES_TO_ALL); }
    void OnNo() { Press(MESSAGE_BUTTON_NO); }

    DECLARE_MESSAGE_MAP()

  private:
    void Press(int button);
    void TakeControls();
    void FitText();
    void PlaceButtons(std::vector<int> const & shown);
    int WidthOf(CButton const & button) const;
    CButton & ButtonOf(int id);

    TSVardMessage m_message;
    unsigned long m_textColour = ::GetSysColor(COLOR_WINDOWTEXT);
    unsigned long m_backColour = ::GetSysColor(COLOR_BTNFACE);
    CColorStaticText m_text;
    CStatic m_icon;
    std::array<CButton, kVardMessageButtons.size()> m_buttons;
};

#endif
