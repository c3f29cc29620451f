#ifndef KX7_PLATFORM_WINDOW_CONTROLS_H
#define KX7_PLATFORM_WINDOW_CONTROLS_H

#include "platform/window/wnd.h"

/// A text or picture that takes no input.
class KX7_API CStatic : public CWnd
{
    DECLARE_DYNCREATE(CStatic)

  public:
    /// Makes the control, SS_... in the style.
    BOOL Create(char const * text, DWORD style, RECT const & place, CWnd * parent, UINT id = 0xFFFF);

    /// Shows an icon, which stays the caller's, and returns the one shown before.
    HICON SetIcon(HICON icon);
};

/// A text that the user edits.
class KX7_API CEdit : public CWnd
{
    DECLARE_DYNCREATE(CEdit)

  public:
    /// Makes the control, ES_... in the style.
    BOOL Create(DWORD style, RECT const & place, CWnd * parent, UINT id);
};

/// A button.
class KX7_API CButton : public CWnd
{
    DECLARE_DYNCREATE(CButton)

  public:
    /// Makes the control, BS_... in the style.
    BOOL Create(char const * caption, DWORD style, RECT const & place, CWnd * parent, UINT id);
};

#endif
