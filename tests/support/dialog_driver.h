#ifndef KX7_TESTS_SUPPORT_DIALOG_DRIVER_H
#define KX7_TESTS_SUPPORT_DIALOG_DRIVER_H

#include <windows.h>

#include <functional>
#include <string>

/// Acts once on the next dialog of this thread, as soon as it is visible. A dialog that is still there after
/// three seconds is ended with kNeverEnded, so that a test fails instead of waiting.
class DialogDriver
{
  public:
    static constexpr int kNeverEnded = -99;

    explicit DialogDriver(std::function<void(HWND)> action) : m_action(std::move(action))
    {
        g_driver = this;
        m_timer = SetTimer(nullptr, 0, kPeriod, OnTimer);
    }
    ~DialogDriver()
    {
        KillTimer(nullptr, m_timer);
        g_driver = nullptr;
    }
    DialogDriver(DialogDriver const &) = delete;
    DialogDriver & operator=(DialogDriver const &) = delete;

    bool HasActed() const { return m_acted; }

  private:
    static constexpr UINT kPeriod = 20;                    // milliseconds
    static constexpr int kPatience = 3000 / int{kPeriod};  // calls

    static BOOL CALLBACK FindDialog(HWND window, LPARAM found)
    {
        wchar_t className[16] = {};
        GetClassNameW(window, className, 16);
        if (lstrcmpW(className, L"#32770") != 0 || !IsWindowVisible(window))
            return TRUE;
        *reinterpret_cast<HWND *>(found) = window;
        return FALSE;
    }

    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD)
    {
        HWND dialog = nullptr;
        EnumThreadWindows(GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&dialog));
        if (!dialog || !g_driver)
            return;
        if (!g_driver->m_acted) {
            g_driver->m_acted = true;
            g_driver->m_action(dialog);
        } else if (++g_driver->m_calls == kPatience) {
            EndDialog(dialog, kNeverEnded);
        }
    }

    static inline DialogDriver * g_driver = nullptr;

    std::function<void(HWND)> m_action;
    UINT_PTR m_timer = 0;
    bool m_acted = false;
    int m_calls = 0;
};

/// The text of a window, in UTF-8.
inline std::string WindowText(HWND window)
{
    wchar_t wide[400] = {};
    GetWindowTextW(window, wide, 400);
    char text[1200] = {};
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    return text;
}

/// The text of a control of a dialog, in UTF-8.
inline std::string ControlText(HWND dialog, int id)
{
    return WindowText(GetDlgItem(dialog, id));
}

/// Presses and releases a button of a dialog.
inline void Click(HWND dialog, int id)
{
    SendMessageW(GetDlgItem(dialog, id), BM_CLICK, 0, 0);
}

/// Types a key to the control that has the focus.
inline void Type(WPARAM virtualKey)
{
    PostMessageW(GetFocus(), WM_KEYDOWN, virtualKey, 1);
}

#endif
