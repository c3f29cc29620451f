// The constructors of CVARDFont that take a window.
#include "drawing/vard_font.h"
#include "platform/window/wnd.h"

CVARDFont::CVARDFont(CWnd * pWnd)
{
    auto const font = pWnd ? reinterpret_cast<HFONT>(pWnd->SendMessage(WM_GETFONT)) : nullptr;
    if (font)
        ::GetObject(font, sizeof(m_font), &m_font);
}

CVARDFont::CVARDFont(LOGFONT font, unsigned long crColor, CWnd *)
    : m_font(font), m_colour(static_cast<COLORREF>(crColor))
{
}
