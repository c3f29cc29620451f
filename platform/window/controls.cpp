#include "platform/window/controls.h"

IMPLEMENT_DYNCREATE(CStatic, CWnd)
IMPLEMENT_DYNCREATE(CEdit, CWnd)
IMPLEMENT_DYNCREATE(CButton, CWnd)

BOOL CStatic::Create(char const * text, DWORD style, RECT const & place, CWnd * parent, UINT id)
{
    return CWnd::Create("STATIC", text, style, place, parent, id);
}

HICON CStatic::SetIcon(HICON icon)
{
    return reinterpret_cast<HICON>(SendMessage(STM_SETICON, reinterpret_cast<WPARAM>(icon)));
}

BOOL CEdit::Create(DWORD style, RECT const & place, CWnd * parent, UINT id)
{
    return CWnd::Create("EDIT", "", style, place, parent, id);
}

BOOL CButton::Create(char const * caption, DWORD style, RECT const & place, CWnd * parent, UINT id)
{
    return CWnd::Create("BUTTON", caption, style, place, parent, id);
}
