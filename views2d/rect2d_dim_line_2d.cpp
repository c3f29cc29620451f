#include "views2d/rect2d_dim_line_2d.h"

IMPLEMENT_DYNCREATE(CRect2DDimLine2D, CDimLine)

int CRect2DDimLine2D::Create(CDimLineView2D * view, TSDimLineStyle * style, TUVect2D & A, TUVect2D & B,
                             double & dOffset, char * pszText, char * const pszSuffix, EDLDimAlign eAlign,
                             EDLDimType eType)
{
    m_view = view;
    return CDimLine::Create(style, A, B, dOffset, pszText, pszSuffix, eAlign, eType);
}

int CRect2DDimLine2D::Create(CDimLineView2D * view, TSDimLineStyle * style, TUVect2D & A, TUVect2D & B,
                             double & dOffset, double dFactor, char * const pszSuffix, EDLDimAlign eAlign,
                             EDLDimType eType)
{
    m_view = view;
    return CDimLine::Create(style, A, B, dOffset, dFactor, pszSuffix, eAlign, eType);
}

void CRect2DDimLine2D::MoveToDim(TUVect2D point)
{
    m_pen = point;
    if (m_view)
        m_view->MoveTo2D(m_dc, point);
}

void CRect2DDimLine2D::LineToDim(TUVect2D point)
{
    m_pen = point;
    if (m_view)
        m_view->LineTo2D(m_dc, point);
}

void * CRect2DDimLine2D::SelectObject(void * font)
{
    return m_view && m_dc ? m_dc->SelectObject(static_cast<HGDIOBJ>(font)) : nullptr;
}

void CRect2DDimLine2D::OutTextXY(TUVect2D anchor, CString const & text, unsigned int nAlign)
{
    if (!m_view)
        return;
    LOGFONT font = {};
    if (CFont const * current = m_dc ? m_dc->GetCurrentFont() : nullptr)
        current->GetLogFont(&font);
    m_view->Text2D(m_dc, text, anchor.x, anchor.y, nAlign, font);
}
