#ifndef KX7_PLATFORM_WINDOW_WND_H
#define KX7_PLATFORM_WINDOW_WND_H

#include "platform/base/object.h"
#include "platform/base/rect.h"
#include "platform/base/string.h"
#include "platform/device/dc.h"
#include "platform/window/message_map.h"

/// A window of the system with the object that handles its messages. Texts are bytes of code page 1250,
/// whatever code page the system has. (Windows build only, like all of platform/window.)
class KX7_API CWnd : public CObject
{
    DECLARE_DYNCREATE(CWnd)

  public:
    CWnd() = default;
    /// Destroys the window if there is one.
    ~CWnd() override;
    CWnd(CWnd const &) = delete;
    CWnd & operator=(CWnd const &) = delete;

    HWND m_hWnd = nullptr;  ///< Null while there is no window.

    HWND GetSafeHwnd() const { return m_hWnd; }

    /// Makes a window of a window class (null: a plain one) and handles its messages from then on; those that
    /// the system sends while it makes it don't come here. FALSE if there is a window already or the system
    /// refuses.
    BOOL Create(char const * windowClass, char const * text, DWORD style, RECT const & place, CWnd * parent,
                UINT id);

    /// Handles the messages of a window that was made elsewhere, until it is destroyed. FALSE for null, for a
    /// window that has an object already, and if this object has one.
    BOOL SubclassWindow(HWND window);

    /// The same for a control of a dialog.
    BOOL SubclassDlgItem(UINT id, CWnd * parent);

    /// Destroys the window; FALSE if there is none.
    BOOL DestroyWindow();

    /// The object that handles the window's messages; null if none does.
    static CWnd * FromHandlePermanent(HWND window);

    void SetWindowText(char const * text);
    void GetWindowText(CString & text) const;

    void GetClientRect(RECT * rect) const { ::GetClientRect(m_hWnd, rect); }
    void MoveWindow(RECT const & place, BOOL repaint = TRUE);
    BOOL ShowWindow(int command) { return ::ShowWindow(m_hWnd, command); }
    BOOL IsWindowVisible() const { return ::IsWindowVisible(m_hWnd); }
    void Invalidate(BOOL erase = TRUE) { ::InvalidateRect(m_hWnd, nullptr, erase); }
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageW(m_hWnd, message, wParam, lParam);
    }

    /// The control's place in its parent's client coordinates.
    CRect GetPlaceInParent() const;

  protected:
    /// Every message comes here: to its handler in the message map, or to DefWindowProc.
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// What the window did with a message before this object came.
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);

    /// Asked of a control before it is painted: sets the context's text and background colours and gives the
    /// brush of its background, which stays the control's. `kind` is CTLCOLOR_.... Null, as here, leaves them
    /// to the system.
    virtual HBRUSH CtlColor(CDC * dc, UINT kind);

    static AFX_MSGMAP const * GetThisMessageMap();
    virtual AFX_MSGMAP const * GetMessageMap() const;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    static HBRUSH ColoursOfControl(UINT message, WPARAM wParam, LPARAM lParam);
    AFX_MSGMAP_ENTRY const * FindEntry(UINT message, WPARAM wParam) const;
    void Leave();

    WNDPROC m_formerProcedure = nullptr;
};

#endif
