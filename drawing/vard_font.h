#ifndef KX7_DRAWING_VARD_FONT_H
#define KX7_DRAWING_VARD_FONT_H

#include "geometry/records.h"
#include "platform/device/dc.h"

#if defined(_WIN32)
class CWnd;
#endif

/// A font with a colour. It converts between points (1/72 inch) and the logical heights of a device, and
/// works out how a text in space looks in a projection.
class KX7_API CVARDFont : public CObject
{
    DECLARE_DYNAMIC(CVARDFont)

  public:
    /// The font that is selected in the context, in white; with no context an all-zero record.
    explicit CVARDFont(CDC * pDC);

    /// The given font and colour; the context (may be null) serves conversions and must outlive the object.
    CVARDFont(LOGFONT font, unsigned long crColor, CDC * pDC);

#if defined(_WIN32)
    /// The font of a window, in white; an all-zero record for a window without a font of its own.
    explicit CVARDFont(CWnd * pWnd);

    /// The given font and colour; the window isn't kept.
    CVARDFont(LOGFONT font, unsigned long crColor, CWnd * pWnd);
#endif

    /// Lets the user choose a font and colour, beginning with this one. 1 when confirmed, otherwise 0 and
    /// nothing changes.
    int ChangeFontByDialog();

    /// |value| * 72 / dots per inch, rounded. A context that is given replaces the stored one; 0 without any.
    long LogicalUnitsToPoints(long nUnits, CDC * pDC);

    /// -(value * dots per inch / 72), rounded: a negative height, as LOGFONT wants it. The context as above.
    long PointsToLogicalUnits(long nPoints, CDC * pDC);

    void SetFont(LOGFONT font)
    {
        m_font = font;
    }

    /// Sets the height from points by the stored context (0 without one), escapement and orientation in
    /// tenths of a degree, and the face; a null face stays.
    void SetFont(long nPoints, long nAngle, char * pszFace);

    void SetFontColor(unsigned long crColor)
    {
        m_colour = static_cast<COLORREF>(crColor);
    }

    /// Weight 700 when the value is 1, otherwise 400. The result tells whether it was above 400.
    int SetBold(int bBold);

    /// Each stores the value; the result is the old one.
    int SetItalic(int bItalic);
    int SetUnderline(int bUnderline);
    int SetStrikeOut(int bStrikeOut);

    LOGFONT GetFont() const
    {
        return m_font;
    }
    /// Height in points by the stored context; 0 without one.
    long GetFontPoints()
    {
        return LogicalUnitsToPoints(m_font.lfHeight, nullptr);
    }
    /// Escapement in tenths of a degree.
    long GetFontAngle() const
    {
        return m_font.lfEscapement;
    }
    unsigned long GetFontColor() const
    {
        return m_colour;
    }
    int IsBold() const;
    int IsItalic() const
    {
        return m_font.lfItalic;
    }
    int IsUnderline() const
    {
        return m_font.lfUnderline;
    }
    int IsStrikeOut() const
    {
        return m_font.lfStrikeOut;
    }

    /// How a text in space looks through a view matrix: a text at P with its base line toward Pa and its up
    /// direction toward Pb. Gives the angles of the projected base line and up direction in radians, from
    /// -pi/2 to below 3 pi/2, and the factors by which height and width shrink: the cosines between the up
    /// direction and the view's vertical axis and between the base line and its horizontal one.
    void Get3DTextParameters(double (*matrix)[3], TUVect3D P, TUVect3D Pa, TUVect3D Pb, double & dAngleBase,
                             double & dAngleUp, double & dHeightFactor, double & dWidthFactor);

    /// Works the parameters out and returns the font's record as it stands: they don't enter it.
    LOGFONT Get3DLogFont(double (*matrix)[3], TUVect3D P, TUVect3D Pa, TUVect3D Pb);

  private:
    /// Dots per inch of the stored context, after storing a given one; 0 without a context.
    int DotsPerInch(CDC * pDC);

    LOGFONT m_font = {};
    COLORREF m_colour = 0xFFFFFF;
    CDC * m_pDC = nullptr;
};

#endif
