#ifndef KX7_PLATFORM_WINDOW_DIALOG_H
#define KX7_PLATFORM_WINDOW_DIALOG_H

#include "platform/window/wnd.h"

/// A modal dialog from a template among the resources.
class KX7_API CDialog : public CWnd
{
    DECLARE_DYNAMIC(CDialog)

  public:
    /// The template is the resource of this id; with no parent the active window is the owner.
    explicit CDialog(UINT templateId, CWnd * parent = nullptr) : m_templateId(templateId), m_parent(parent) {}

    /// Shows the dialog until EndDialog; the result is what was given there, -1 if there is no such template.
    virtual int DoModal();

    /// Ends the dialog with a result.
    void EndDialog(int result) { ::EndDialog(m_hWnd, result); }

  protected:
    /// Called when the window and its controls are there and not shown yet. TRUE gives the focus to the first
    /// control, FALSE says that it was given already.
    virtual BOOL OnInitDialog();

    /// The button OK and the Enter key, the button Cancel and the Escape key: end the dialog with IDOK,
    /// IDCANCEL.
    virtual void OnOK();
    virtual void OnCancel();

    DECLARE_MESSAGE_MAP()

  private:
    static INT_PTR CALLBACK DialogProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    UINT m_templateId;
    CWnd * m_parent;
};

#endif
