#include "services/vard_message_dlg.h"

#include <algorithm>

#include "platform/base/resource_module.h"
#include "platform/window/detail_wide_text.h"
#include "resources/dialog_ids.h"

IMPLEMENT_DYNAMIC(CVardMessageDlg, CDialog)

BEGIN_MESSAGE_MAP(CVardMessageDlg, CDialog)
ON_BN_CLICKED(IDYES, &CVardMessageDlg::OnYes)
ON_BN_CLICKED(IDC_VARD_MESSAGE_YES_TO_ALL, &CVardMessageDlg::OnYesToAll)
ON_BN_CLICKED(IDNO, &CVardMessageDlg::OnNo)
END_MESSAGE_MAP()

namespace {
constexpr int kButtonGap = 8;       // pixels between two buttons
constexpr int kCaptionMargin = 10;  // pixels between a caption and the side of its button
constexpr int kTextMargin = 8;      // pixels around the text

std::size_t PlaceOfButton(int id)
{
    return static_cast<std::size_t>(std::ranges::find(kVardMessageButtons, id) - kVardMessageButtons.begin());
}

HICON LoadMessageIcon(int id)
{
    HINSTANCE const module = AfxFindResourceHandle(MAKEINTRESOURCEA(id), RT_GROUP_ICON);
    return ::LoadIconW(module, MAKEINTRESOURCEW(id));
}

int ShowDialog(TSVardMessage const & message)
{
    CVardMessageDlg dialog;
    dialog.SetMessageText(message.text, ::GetSysColor(COLOR_WINDOWTEXT), ::GetSysColor(COLOR_BTNFACE));
    dialog.SetMessageType(message.type);
    dialog.SetMessageIcon(message.icon);
    dialog.SetDefaultButton(message.defaultButton);
    for (std::size_t i = 0; i < kVardMessageButtons.size(); ++i)
        dialog.SetButtonText(static_cast<unsigned int>(kVardMessageButtons[i]), message.captions[i]);
    return dialog.DoModal();
}

[[maybe_unused]] VardMessageHandler const g_handlerBefore = SetVardMessageHandler(ShowDialog);
}  // namespace

CVardMessageDlg::CVardMessageDlg(CWnd * parent) : CDialog(IDD_VARD_MESSAGE, parent) {}

void CVardMessageDlg::SetMessageText(CString text, unsigned long textColour, unsigned long backColour)
{
    m_message.text = text;
    m_textColour = textColour;
    m_backColour = backColour;
}

void CVardMessageDlg::SetButtonText(unsigned int button, CString caption)
{
    std::size_t const place = PlaceOfButton(static_cast<int>(button));
    if (place < m_message.captions.size())
        m_message.captions[place] = caption;
}

BOOL CVardMessageDlg::OnInitDialog()
{
    TakeControls();
    m_icon.SetIcon(LoadMessageIcon(m_message.icon));  // gives its control the size that the text minds
    FitText();
    m_text.SetColors(m_textColour, m_backColour);
    m_text.SetWindowText(m_message.TextInBox());

    std::vector<int> const shown = m_message.ShownButtons();
    PlaceButtons(shown);
    bool const isShown = std::ranges::find(shown, m_message.defaultButton) != shown.end();
    CButton const & focused = ButtonOf(isShown ? m_message.defaultButton : shown.front());
    SendMessage(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(focused.m_hWnd), TRUE);
    return FALSE;
}

void CVardMessageDlg::Press(int button)
{
    if (ButtonOf(button).IsWindowVisible())
        EndDialog(button);
}

void CVardMessageDlg::TakeControls()
{
    m_text.SubclassDlgItem(IDC_VARD_MESSAGE_TEXT, this);
    m_icon.SubclassDlgItem(IDC_VARD_MESSAGE_ICON, this);
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        m_buttons[i].SubclassDlgItem(static_cast<UINT>(kVardMessageButtons[i]), this);
        if (!m_message.captions[i].IsEmpty())
            m_buttons[i].SetWindowText(m_message.captions[i]);
    }
}

// The text takes the room right of the icon and above the buttons.
void CVardMessageDlg::FitText()
{
    CRect client;
    GetClientRect(&client);
    m_text.MoveWindow(CRect(m_icon.GetPlaceInParent().right + kTextMargin, kTextMargin,
                            client.right - kTextMargin,
                            m_buttons.front().GetPlaceInParent().top - kTextMargin));
}

// Side by side in the middle of the dialog. The other buttons are hidden by the template.
void CVardMessageDlg::PlaceButtons(std::vector<int> const & shown)
{
    int total = -kButtonGap;
    for (int const id : shown)
        total += WidthOf(ButtonOf(id)) + kButtonGap;
    CRect client;
    GetClientRect(&client);
    int left = (client.Width() - total) / 2;
    for (int const id : shown) {
        CButton & button = ButtonOf(id);
        CRect const former = button.GetPlaceInParent();
        int const width = WidthOf(button);
        button.MoveWindow(CRect(left, former.top, left + width, former.bottom));
        button.ShowWindow(SW_SHOW);
        left += width + kButtonGap;
    }
}

// As wide as the template says, or as its caption wants.
int CVardMessageDlg::WidthOf(CButton const & button) const
{
    CString caption;
    button.GetWindowText(caption);
    std::wstring const wide = detail::WideText(caption);
    HDC const dc = ::GetDC(m_hWnd);
    HGDIOBJ const former = ::SelectObject(dc, reinterpret_cast<HFONT>(SendMessage(WM_GETFONT)));
    CRect extent;
    ::DrawTextW(dc, wide.c_str(), -1, &extent, DT_CALCRECT | DT_SINGLELINE);
    ::SelectObject(dc, former);
    ::ReleaseDC(m_hWnd, dc);
    return std::max(button.GetPlaceInParent().Width(), extent.Width() + 2 * kCaptionMargin);
}

CButton & CVardMessageDlg::ButtonOf(int id)
{
    return m_buttons[PlaceOfButton(id)];
}
