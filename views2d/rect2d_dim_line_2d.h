#ifndef KX7_VIEWS2D_RECT2D_DIM_LINE_2D_H
#define KX7_VIEWS2D_RECT2D_DIM_LINE_2D_H

#include "drawing/dim_line.h"
#include "platform/device/dc.h"

/// What a dimension needs of the view that it stands in: three primitives in model coordinates. With a null
/// context a view draws nothing and only measures what it is given. Each gives 1, or 0 if the point can't be
/// shown.
class KX7_API CDimLineView2D
{
  public:
    virtual int MoveTo2D(CDC * dc, TUVect2D point) = 0;
    virtual int LineTo2D(CDC * dc, TUVect2D point) = 0;

    /// Writes a text with its reference point at x, y, aligned by a sum of TA_... flags. The height of the
    /// font is the context's.
    virtual int Text2D(CDC * dc, CString const & text, double x, double y, unsigned int align,
                       LOGFONT const & font) = 0;

  protected:
    ~CDimLineView2D() = default;
};

/// A dimension in a 2D view. Neither the view nor the context is owned.
class KX7_API CRect2DDimLine2D : public CDimLine
{
    DECLARE_DYNCREATE(CRect2DDimLine2D)

  public:
    /// Sets what is drawn on; null to let the view measure only.
    void SetCDC(CDC * dc) { m_dc = dc; }

    /// Takes the view and a dimension from single values, with a text or with the distance times `dFactor`
    /// (CDimLine::Create).
    int Create(CDimLineView2D * view, TSDimLineStyle * style, TUVect2D & A, TUVect2D & B, double & dOffset,
               char * pszText, char * const pszSuffix, EDLDimAlign eAlign, EDLDimType eType);
    int Create(CDimLineView2D * view, TSDimLineStyle * style, TUVect2D & A, TUVect2D & B, double & dOffset,
               double dFactor, char * const pszSuffix, EDLDimAlign eAlign, EDLDimType eType);

    /// Without a view nothing is drawn, and the pen goes to the point all the same.
    void MoveToDim(TUVect2D point) override;
    void LineToDim(TUVect2D point) override;

    /// Null without a view or without a context.
    void * SelectObject(void * font) override;

    /// Writes in the font that the context has.
    void OutTextXY(TUVect2D anchor, CString const & text, unsigned int nAlign) override;

    /// Where the pen stands, in model coordinates.
    TUVect2D GetPenPosition() const { return m_pen; }

  private:
    CDimLineView2D * m_view = nullptr;
    CDC * m_dc = nullptr;
    TUVect2D m_pen = {};
};

#endif
