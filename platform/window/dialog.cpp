#include "platform/window/dialog.h"

#include "platform/base/resource_module.h"

IMPLEMENT_DYNAMIC(CDialog, CWnd)

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

int CDialog::DoModal()
{
    char const * const name = MAKEINTRESOURCEA(m_templateId);
    return static_cast<int>(::DialogBoxParamW(AfxFindResourceHandle(name, RT_DIALOG),
                                              MAKEINTRESOURCEW(m_templateId),
                                              m_parent ? m_parent->m_hWnd : ::GetActiveWindow(),
                                              &CDialog::DialogProcedure, reinterpret_cast<LPARAM>(this)));
}

BOOL CDialog::OnInitDialog()
{
    return TRUE;
}

void CDialog::OnOK()
{
    EndDialog(IDOK);
}

void CDialog::OnCancel()
{
    EndDialog(IDCANCEL);
}

// From its start on the dialog's messages come to CWnd's procedure first, so the start alone is handled here.
INT_PTR CALLBACK CDialog::DialogProcedure(HWND window, UINT message, WPARAM, LPARAM lParam)
{
    if (message != WM_INITDIALOG)
        return FALSE;
    auto * const dialog = reinterpret_cast<CDialog *>(lParam);
    dialog->SubclassWindow(window);
    return dialog->OnInitDialog();
}
