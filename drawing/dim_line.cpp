#include "drawing/dim_line.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>

#include "foundation/vard_string.h"
#include "geometry/snapped_vectors.h"
#include "platform/device/gdi.h"

using namespace detail;

IMPLEMENT_DYNAMIC(CDimLine, CObject)

namespace {
// The layout's fixed proportions, in end mark sizes.
constexpr double kShortTail =
    1.2;  // beyond D1, where there is no room inside; the text begins there beyond D2
constexpr double kLongTail = 3.5;  // beyond D2, where the text stands
constexpr double kArrowHalfWidth = 0.25;
constexpr double kOvershoot = 0.5;  // of the extension lines; also the half size of a tick

constexpr double kLevelSine = 1e-8;  // a direction is level or upright if its other coordinate is below this

// In degrees. Rounding can leave a unit vector's coordinate a bit above 1.
double ArcSineInDegrees(double sine)
{
    return std::asin(std::clamp(sine, -1.0, 1.0)) * 180.0 / std::numbers::pi;
}

// A font's escapement, in tenths of a degree; 0 for an angle that is no number.
LONG Escapement(double degrees)
{
    return std::isfinite(degrees) ? static_cast<LONG>(std::floor(degrees * 10 + 0.5)) : 0;
}

TUVect2D AxisDirection(double x, double y)
{
    return {{x, y}};
}

// Direction of the dimension line from A to B.
TUVect2D Direction(TSDimLine const & dimension)
{
    TUVect2D const & a = dimension.A;
    TUVect2D const & b = dimension.B;
    if (dimension.eAlign == DIM_HORIZONTAL)
        return AxisDirection(b.x > a.x ? 1.0 : -1.0, 0.0);
    if (dimension.eAlign == DIM_VERTICAL)
        return AxisDirection(0.0, b.y > a.y ? 1.0 : -1.0);
    return Unit(b - a);
}

// The text follows the direction, so it can stand on its head.
double FollowingAngle(TUVect2D const & u)
{
    if (std::fabs(u.y) < kLevelSine)
        return u.x >= 0 ? 0.0 : 180.0;
    double const angle = ArcSineInDegrees(u.y);
    return u.x < 0 ? angle - 180.0 : angle;
}

double ReadableAngle(TUVect2D const & u)
{
    if (std::fabs(u.y) < kLevelSine)
        return 0.0;
    if (std::fabs(u.x) < kLevelSine)
        return 90.0;
    double const angle = ArcSineInDegrees(u.y);
    return u.x <= 0 ? -angle : angle;
}
}  // namespace

// Where everything stands. Each measured point keeps its own position along the line, so with points at
// different heights a horizontal dimension's line isn't level.
struct CDimLine::Layout
{
    TUVect2D along, across;                // unit vectors
    TUVect2D extensionStart1, end1, tip1;  // S1, E1, D1: extension line and end of the dimension line at A
    TUVect2D extensionStart2, end2, tip2;  // the same at B
    TUVect2D line;                         // unit vector from tip1 to tip2
    bool roomy;                            // marks and text fit inside
};

void CDimLine::LineDim(TUVect2D from, TUVect2D to)
{
    MoveToDim(from);
    LineToDim(to);
}

void CDimLine::MoveToDim(TUVect2D) {}

void CDimLine::LineToDim(TUVect2D) {}

void * CDimLine::SelectObject(void *)
{
    return nullptr;
}

void CDimLine::OutTextXY(TUVect2D, CString const &, unsigned int) {}

void CDimLine::DestroyData()
{
    if (m_ownText)
        m_dimension.pszText = nullptr;
    m_ownText.reset();
}

void CDimLine::GetDefaultDimStyle(TSDimLineStyle & style, LOGFONT const * font)
{
    style = {};
    style.nNumberWidth = -1;
    style.nNumberDecimals = -1;
    style.dTextGap = 0.005;
    style.dExtensionGap = 0.05;
    style.dEndMarkSize = 0.05;
    style.dMinInsideLength = 0.1;
    if (font) {
        style.Font = *font;
        return;
    }
    style.Font.lfHeight = -12;
    std::strcpy(style.Font.lfFaceName, "Times New Roman");
}

int CDimLine::Create(TSDimLineStyle * style, TSDimLine & dimension)
{
    DestroyData();
    m_style = style;
    if (!style)
        return 0;
    m_dimension = dimension;
    m_dimension.szSuffix[sizeof(m_dimension.szSuffix) - 1] = '\0';
    return 1;
}

int CDimLine::Create(TSDimLineStyle * style, TUVect2D & A, TUVect2D & B, double & dOffset, char * pszText,
                     char * const pszSuffix, EDLDimAlign eAlign, EDLDimType eType)
{
    TSDimLine dimension{};
    dimension.eType = eType;
    dimension.eAlign = eAlign;
    dimension.pszText = pszText;
    if (pszSuffix)
        std::strncpy(dimension.szSuffix, pszSuffix, sizeof(dimension.szSuffix) - 1);
    dimension.dOffset = dOffset;
    dimension.A = A;
    dimension.B = B;
    return Create(style, dimension);
}

int CDimLine::Create(TSDimLineStyle * style, TUVect2D & A, TUVect2D & B, double & dOffset, double dFactor,
                     char * const pszSuffix, EDLDimAlign eAlign, EDLDimType eType)
{
    if (!Create(style, A, B, dOffset, static_cast<char *>(nullptr), pszSuffix, eAlign, eType))
        return 0;
    double const measure = Length(B - A) * dFactor;
    CString const text = CVARDString().Str(measure, style->nNumberWidth, style->nNumberDecimals, 0).GetCS();
    auto const size = static_cast<std::size_t>(text.GetLength()) + 1;
    m_ownText = std::make_unique<char[]>(size);
    std::memcpy(m_ownText.get(), static_cast<char const *>(text), size);
    m_dimension.pszText = m_ownText.get();
    return 1;
}

int CDimLine::PaintDimLine()
{
    if (!m_style || m_dimension.eType != DIM_LINEAR)
        return 0;
    Layout const layout = FindLayout();
    LineDim(layout.extensionStart1, layout.end1);
    LineDim(layout.extensionStart2, layout.end2);
    LineDim(layout.tip1, layout.tip2);
    if (!layout.roomy)
        PaintTails(layout);
    PaintEndMarks(layout);
    if (m_dimension.pszText)
        PaintText(layout);
    return 1;
}

CDimLine::Layout CDimLine::FindLayout() const
{
    Layout layout{};
    layout.along = Direction(m_dimension);
    layout.across = {{-layout.along.y, layout.along.x}};
    double const side = m_dimension.dOffset < 0 ? -1.0 : 1.0;
    double const start = side * m_style->dExtensionGap;
    double const line = start + m_dimension.dOffset;
    double const end = line + side * kOvershoot * m_style->dEndMarkSize;
    TUVect2D const & a = m_dimension.A;
    TUVect2D const & b = m_dimension.B;
    layout.extensionStart1 = a + start * layout.across;
    layout.tip1 = a + line * layout.across;
    layout.end1 = a + end * layout.across;
    layout.extensionStart2 = b + start * layout.across;
    layout.tip2 = b + line * layout.across;
    layout.end2 = b + end * layout.across;
    TUVect2D const between = layout.tip2 - layout.tip1;
    layout.roomy = m_style->dMinInsideLength <= Length(between);
    layout.line = Unit(between);
    return layout;
}

void CDimLine::PaintTails(Layout const & layout)
{
    double const size = m_style->dEndMarkSize;
    LineDim(layout.tip1 - kShortTail * size * layout.line, layout.tip1);
    LineDim(layout.tip2 + kLongTail * size * layout.line, layout.tip2);
}

void CDimLine::PaintEndMarks(Layout const & layout)
{
    double const size = m_style->dEndMarkSize;
    if (m_style->nEndMark == 0) {
        TUVect2D const inward = (layout.roomy ? size : -size) * layout.along;
        TUVect2D const halfWidth = kArrowHalfWidth * size * layout.across;
        PaintArrow(layout.tip1, inward, halfWidth);
        PaintArrow(layout.tip2, -inward, halfWidth);
        return;
    }
    TUVect2D const half = kOvershoot * size * layout.along + kOvershoot * size * layout.across;
    LineDim(layout.tip1 - half, layout.tip1 + half);
    LineDim(layout.tip2 - half, layout.tip2 + half);
}

void CDimLine::PaintArrow(TUVect2D const & tip, TUVect2D const & along, TUVect2D const & across)
{
    LineDim(tip, tip + along + across);
    LineDim(tip, tip + along - across);
}

void CDimLine::PaintText(Layout const & layout)
{
    LOGFONT logFont = m_style->Font;
    logFont.lfEscapement = Escapement(TextAngle(layout.along));
    logFont.lfOrientation = logFont.lfEscapement;
    HFONT const font = ::CreateFontIndirect(&logFont);
    void * const oldFont = SelectObject(font);

    TUVect2D anchor = layout.tip1 + 0.5 * (layout.tip2 - layout.tip1);
    unsigned int align = TA_CENTER;
    if (!layout.roomy) {
        anchor = layout.tip2 + kShortTail * m_style->dEndMarkSize * layout.line;
        align = TA_LEFT;
    }
    anchor = anchor - m_style->dTextGap * layout.across;
    if (m_style->nTextSide != 1)
        align ^= TA_BOTTOM;
    OutTextXY(anchor, CString(m_dimension.pszText) + m_dimension.szSuffix, align);

    SelectObject(oldFont);
    ::DeleteObject(font);
}

// In degrees.
double CDimLine::TextAngle(TUVect2D const & direction) const
{
    if (m_dimension.eAlign == DIM_ALONG_POINTS_TEXT_LEVEL)
        return 0.0;
    if (m_dimension.eAlign == DIM_ALONG_POINTS_TEXT_UPRIGHT)
        return 90.0;
    switch (m_style->nTextRotation) {
        case 0:
            return FollowingAngle(direction);
        case 1:
        case 2:
            return ReadableAngle(direction);
        case 4:
            return 90.0;
        default:
            return 0.0;
    }
}
