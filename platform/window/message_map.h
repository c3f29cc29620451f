#ifndef KX7_PLATFORM_WINDOW_MESSAGE_MAP_H
#define KX7_PLATFORM_WINDOW_MESSAGE_MAP_H

#include <span>

#include "platform/base/types.h"

// Message maps: which member of a window class handles which message. A class says DECLARE_MESSAGE_MAP() in
// its body, and in one source file
//
//     BEGIN_MESSAGE_MAP(CMyDialog, CDialog)
//     ON_BN_CLICKED(IDC_START, &CMyDialog::OnStart)
//     ON_MESSAGE(WM_TIMER, &CMyDialog::OnTimer)
//     END_MESSAGE_MAP()
//
// What a class doesn't list is looked for in its base's map, and then left to the system.

class CWnd;

/// One line of a message map. Commands (WM_COMMAND) are also chosen by notification code and control.
struct AFX_MSGMAP_ENTRY
{
    UINT message;
    UINT code;
    UINT id;
    LRESULT (*handler)(CWnd & window, WPARAM wParam, LPARAM lParam);
};

/// The map of one class.
struct AFX_MSGMAP
{
    AFX_MSGMAP const * (*baseMap)();  ///< Gives the base's map; null in CWnd.
    std::span<AFX_MSGMAP_ENTRY const> entries;
};

namespace detail {
template <class Window>
LRESULT CallMember(CWnd & window, void (Window::*member)(), WPARAM, LPARAM)
{
    (static_cast<Window &>(window).*member)();
    return 0;
}

template <class Window>
LRESULT CallMember(CWnd & window, LRESULT (Window::*member)(WPARAM, LPARAM), WPARAM wParam, LPARAM lParam)
{
    return (static_cast<Window &>(window).*member)(wParam, lParam);
}

template <auto member>
LRESULT CallHandler(CWnd & window, WPARAM wParam, LPARAM lParam)
{
    return CallMember(window, member, wParam, lParam);
}
}  // namespace detail

#define DECLARE_MESSAGE_MAP()                      \
  protected:                                       \
    static AFX_MSGMAP const * GetThisMessageMap(); \
    AFX_MSGMAP const * GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(className, baseName)                 \
    AFX_MSGMAP const * className::GetMessageMap() const        \
    {                                                          \
        return GetThisMessageMap();                            \
    }                                                          \
    AFX_MSGMAP const * className::GetThisMessageMap()          \
    {                                                          \
        constexpr auto baseMap = &baseName::GetThisMessageMap; \
        static AFX_MSGMAP_ENTRY const entries[] = {
#define END_MESSAGE_MAP()                             \
    }                                                 \
    ;                                                 \
    static AFX_MSGMAP const map = {baseMap, entries}; \
    return &map;                                      \
    }

/// Any message: LRESULT member(WPARAM, LPARAM).
#define ON_MESSAGE(message_, member) {message_, 0, 0, ::detail::CallHandler<member>},

/// A notification of a control: void member().
#define ON_CONTROL(code_, id_, member) {WM_COMMAND, code_, id_, ::detail::CallHandler<member>},

/// A menu command or a press of a button: void member().
#define ON_COMMAND(id_, member) ON_CONTROL(0, id_, member)
#define ON_BN_CLICKED(id_, member) ON_CONTROL(BN_CLICKED, id_, member)

#endif
