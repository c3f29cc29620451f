#ifndef KX7_SERVICES_COLOR_TEXT_H
#define KX7_SERVICES_COLOR_TEXT_H

#include "platform/window/controls.h"

namespace detail {
/// A control with colours of its own. Each change drops the brush of the background and repaints.
template <class Control>
class ColouredControl : public Control
{
  public:
    void SetColors(unsigned long crText, unsigned long crBackground)
    {
        m_crText = crText;
        m_crBackground = crBackground;
        m_Brush.DeleteObject();
        if (this->m_hWnd)
            this->Invalidate();
    }
    void SetTextColor(unsigned long crText) { SetColors(crText, m_crBackground); }
    void SetBackgroundColors(unsigned long crBackground) { SetColors(m_crText, crBackground); }

  protected:
    HBRUSH CtlColor(CDC * dc, UINT) override
    {
        dc->SetTextColor(m_crText);
        dc->SetBkColor(m_crBackground);
        if (!m_Brush.GetSafeHandle())
            m_Brush.CreateSolidBrush(m_crBackground);
        return m_Brush;
    }

    COLORREF m_crText = ::GetSysColor(COLOR_WINDOWTEXT);
    COLORREF m_crBackground = ::GetSysColor(COLOR_BTNFACE);
    CBrush m_Brush;  ///< Made when it is first asked for.
};
}  // namespace detail

/// An edit control with its own colours, the system's for text and button faces at first.
class KX7_API CColorEditText : public detail::ColouredControl<CEdit>
{
    DECLARE_DYNCREATE(CColorEditText)
};

/// A static text with its own colours, the same at first.
class KX7_API CColorStaticText : public detail::ColouredControl<CStatic>
{
    DECLARE_DYNCREATE(CColorStaticText)
};

#endif
