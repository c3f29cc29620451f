#ifndef KX7_DRAWING_DRAW_H
#define KX7_DRAWING_DRAW_H

#include "platform/device/dc.h"

/// Primitives on a device context. Each call has a pen and a brush of its own, so that callers keep no state:
/// nothing stays selected or undeleted between calls. All coordinates and sizes are device units; right and
/// bottom edges and the ends of lines are excluded, as the platform does. Pen styles are PS_..., colours
/// COLORREF values, widths logical units (0: one device pixel).
///
/// One object is made per drawing job and is not used across devices.
class KX7_API CDraw : public CObject
{
    DECLARE_DYNAMIC(CDraw)

  public:
    explicit CDraw(CDC * dc);
    explicit CDraw(HDC hdc);
    /// Takes a font of its own out of the context, as ResetFont does.
    ~CDraw() override;
    CDraw(CDraw const &) = delete;
    CDraw & operator=(CDraw const &) = delete;

    /// A line, with the pen that is selected, or a solid pen of width 0, or the given pen. Gaps of a dashed
    /// line stay transparent.
    void Line(int x1, int y1, int x2, int y2);
    void Line(int x1, int y1, int x2, int y2, unsigned long crColor);
    void Line(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor);

    /// A horizontal stroke from x - nSize to x + nSize + 1 and a vertical one from y - nSize to y + nSize +
    /// 1, ends excluded.
    void Cross(int x, int y, int nSize);
    void Cross(int x, int y, int nSize, unsigned long crColor);
    void Cross(int x, int y, int nSize, int nStyle, int nWidth, unsigned long crColor);

    /// Outlines; the inside stays.
    void Rectangle(int x1, int y1, int x2, int y2, unsigned long crColor);
    void Rectangle(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor);
    void Ellipse(int x1, int y1, int x2, int y2, unsigned long crColor);
    void Ellipse(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor);

    /// Filled figures: with pen and brush of one colour (the pen solid, or of the given style, of width 0 or
    /// the given width), or with the bitmap's pattern and no outline.
    void FilledRectangle(int x1, int y1, int x2, int y2, unsigned long crColor);
    void FilledRectangle(int x1, int y1, int x2, int y2, int nStyle, unsigned long crColor);
    void FilledRectangle(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor);
    void FilledRectangle(int x1, int y1, int x2, int y2, HBITMAP hBitmap);
    void FilledEllipse(int x1, int y1, int x2, int y2, unsigned long crColor);
    void FilledEllipse(int x1, int y1, int x2, int y2, int nStyle, unsigned long crColor);
    void FilledEllipse(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor);
    void FilledEllipse(int x1, int y1, int x2, int y2, HBITMAP hBitmap);

    /// Three strokes, back to the start.
    void Triangle(int x1, int y1, int x2, int y2, int x3, int y3);
    void Triangle(int x1, int y1, int x2, int y2, int x3, int y3, unsigned long crColor);
    void Triangle(int x1, int y1, int x2, int y2, int x3, int y3, int nStyle, int nWidth,
                  unsigned long crColor);

    /// The region of the three points without outline, in a colour, hatched (HS_...) or with the bitmap's
    /// pattern. An unknown hatch draws nothing.
    void FilledTriangle(int x1, int y1, int x2, int y2, int x3, int y3, unsigned long crColor);
    void FilledTriangle(int x1, int y1, int x2, int y2, int x3, int y3, int nHatch, unsigned long crColor);
    void FilledTriangle(int x1, int y1, int x2, int y2, int x3, int y3, HBITMAP hBitmap);

    /// Selects a font of the object's own in place of the one before: height as in LOGFONT, angle of the base
    /// line in degrees anticlockwise, weight (400 normal, 700 bold), flags and face.
    void SetFont(int nHeight, int nAngle, int nWeight, unsigned char bItalic, unsigned char bUnderline,
                 unsigned char bStrikeOut, char const * pszFace);

    /// Puts the context's font back and deletes the object's own, if there is one.
    void ResetFont();

    /// A text in a colour, its background transparent; colour and mode are put back.
    void TextOut(int x, int y, char const * pszText, unsigned long crColor);

  private:
    void FillTriangle(POINT const (&points)[3], HBRUSH brush);

    HDC m_hDC;
    HFONT m_hFont = nullptr;       ///< The object's own font while it is selected.
    HGDIOBJ m_hOldFont = nullptr;  ///< The font it stands in for.
};

#endif
