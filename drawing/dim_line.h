#ifndef KX7_DRAWING_DIM_LINE_H
#define KX7_DRAWING_DIM_LINE_H

#include <memory>

#include "geometry/records.h"
#include "platform/base/export.h"
#include "platform/base/gdi_types.h"
#include "platform/base/object.h"
#include "platform/base/string.h"

/// Kind of dimension. Only the linear one is painted.
enum EDLDimType : int
{
    DIM_LINEAR = 0
};

/// Which way a dimension line runs.
enum EDLDimAlign : int
{
    DIM_ALONG_POINTS = 0,              ///< Along the measured points.
    DIM_HORIZONTAL = 1,                ///< Horizontal.
    DIM_VERTICAL = 2,                  ///< Vertical.
    DIM_ALONG_POINTS_TEXT_LEVEL = 3,   ///< Along the points, the text always at 0 degrees.
    DIM_ALONG_POINTS_TEXT_UPRIGHT = 4  ///< Along the points, the text always at 90 degrees.
};

/// How dimensions look. Distances are in the units of the measured points.
struct TSDimLineStyle
{
    int nTextSide;         ///< 1: the text stands below its anchor; 0 and all other values: above.
    int nTextRotation;     ///< 0 with the line's direction, 1 and 2 along the line but readable, 3 level, 4
                           ///< upright.
    int nEndMark;          ///< 0 arrows; any other value oblique ticks.
    int nNumberWidth;      ///< Width of the measure's number text (CVARDString::Str), -1 for a free one.
    int nNumberDecimals;   ///< Its decimals, -1 for the default of 3.
    double dTextGap;       ///< Distance of the text from the dimension line.
    double dExtensionGap;  ///< Gap between a measured point and the start of its extension line.
    double dEndMarkSize;   ///< Length of an arrow or a tick; extension lines overshoot by half of it.
    double dMinInsideLength;  ///< Shortest dimension line that keeps arrows and text inside.
    LOGFONT Font;             ///< Font of the text.
};

/// One dimension.
struct TSDimLine
{
    EDLDimType eType;    ///< Kind of dimension.
    EDLDimAlign eAlign;  ///< Which way the line runs.
    char * pszText;      ///< Text of the measure; null for none.
    char szSuffix[11];   ///< Added behind the text.
    double dOffset;  ///< Distance of the dimension line from the points, to the left of A to B if positive.
    TUVect2D A;      ///< First measured point.
    TUVect2D B;      ///< Second measured point.
};

/// Lays out one dimension of a technical drawing: two extension lines, a dimension line, end marks and a
/// text. It knows no device: everything goes through five virtual operations that a derived class binds to a
/// view.
class KX7_API CDimLine : public CObject
{
    DECLARE_DYNAMIC(CDimLine)

  public:
    CDimLine() = default;
    CDimLine(CDimLine const &) = delete;
    CDimLine & operator=(CDimLine const &) = delete;

    /// From A to B: MoveToDim, then LineToDim.
    virtual void LineDim(TUVect2D from, TUVect2D to);

    /// Moves the pen. Does nothing here.
    virtual void MoveToDim(TUVect2D point);

    /// Draws a line from the pen's place. Does nothing here.
    virtual void LineToDim(TUVect2D point);

    /// Selects a font (HFONT) and returns the one selected before. Null here.
    virtual void * SelectObject(void * font);

    /// Writes `text` at the anchor; `nAlign` is a sum of TA_... flags. Does nothing here.
    virtual void OutTextXY(TUVect2D anchor, CString const & text, unsigned int nAlign);

    /// Frees the text if this object owns it.
    void DestroyData();

    /// Fills in the default style: text above and with the line, arrows, text gap 0.005, extension gap 0.05,
    /// end marks 0.05, room from 0.1, Times New Roman 12 high. A given font replaces the default one as a
    /// whole.
    void GetDefaultDimStyle(TSDimLineStyle & style, LOGFONT const * font);

    /// Takes a style, which stays the host's and must outlive this object, and a copy of a dimension, whose
    /// text stays the host's. 1; 0 for a null style, with the former dimension dropped all the same.
    int Create(TSDimLineStyle * style, TSDimLine & dimension);

    /// The same from single values. Of `pszSuffix` (null for none) the first 10 bytes count.
    int Create(TSDimLineStyle * style, TUVect2D & A, TUVect2D & B, double & dOffset, char * pszText,
               char * const pszSuffix, EDLDimAlign eAlign, EDLDimType eType);

    /// The same with the distance of A and B times `dFactor` as text, in the style's width and decimals.
    int Create(TSDimLineStyle * style, TUVect2D & A, TUVect2D & B, double & dOffset, double dFactor,
               char * const pszSuffix, EDLDimAlign eAlign, EDLDimType eType);

    /// Draws the dimension. 1; 0 with nothing drawn for a kind other than the linear one, and before Create.
    int PaintDimLine();

  private:
    struct Layout;

    Layout FindLayout() const;
    void PaintTails(Layout const & layout);
    void PaintEndMarks(Layout const & layout);
    void PaintArrow(TUVect2D const & tip, TUVect2D const & along, TUVect2D const & across);
    void PaintText(Layout const & layout);
    double TextAngle(TUVect2D const & direction) const;

    TSDimLine m_dimension = {};
    TSDimLineStyle * m_style = nullptr;
    std::unique_ptr<char[]> m_ownText;  // what m_dimension.pszText points to if the text was made here
};

#endif
