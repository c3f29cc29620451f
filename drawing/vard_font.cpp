#include "drawing/vard_font.h"

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <numbers>
#include <utility>

#include "geometry/mathematics.h"
#include "platform/device/font_choice.h"

IMPLEMENT_DYNAMIC(CVARDFont, CObject)

namespace {
constexpr int kPointsPerInch = 72;

double Dot(TUVect3D const & a, TUVect3D const & b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

TUVect3D Difference(TUVect3D const & a, TUVect3D const & b)
{
    return {{a.x - b.x, a.y - b.y, a.z - b.z}};
}

TUVect3D RowOf(double const (*matrix)[3], int row)
{
    return {{matrix[row][0], matrix[row][1], matrix[row][2]}};
}

TUVect3D Unit(CMathematics & mathematics, TUVect3D vector)
{
    mathematics.NormOfVector(&vector);
    return vector;
}

/// Angle of a projected vector: pi/2 or -pi/2 for an upright one, else atan(v / u), turned by pi on the left.
double ProjectedAngle(CMathematics & mathematics, TUVect3D const & vector, double const (*matrix)[3])
{
    double const u = mathematics.u3D(vector.x, vector.y, vector.z, matrix);
    double const v = mathematics.v3D(vector.x, vector.y, vector.z, matrix);
    if (u == 0)
        return v > 0 ? std::numbers::pi / 2 : -std::numbers::pi / 2;
    return std::atan(v / u) + (u < 0 ? std::numbers::pi : 0);
}
}  // namespace

CVARDFont::CVARDFont(CDC * pDC) : m_pDC(pDC)
{
    CFont const * const font = pDC ? pDC->GetCurrentFont() : nullptr;
    if (font)
        font->GetLogFont(&m_font);
}

CVARDFont::CVARDFont(LOGFONT font, unsigned long crColor, CDC * pDC)
    : m_font(font), m_colour(static_cast<COLORREF>(crColor)), m_pDC(pDC)
{
}

int CVARDFont::ChangeFontByDialog()
{
    return ChooseFontByUser(&m_font, &m_colour);
}

int CVARDFont::DotsPerInch(CDC * pDC)
{
    if (pDC)
        m_pDC = pDC;
    return m_pDC ? m_pDC->GetDeviceCaps(LOGPIXELSY) : 0;
}

long CVARDFont::LogicalUnitsToPoints(long nUnits, CDC * pDC)
{
    int const dots = DotsPerInch(pDC);
    return dots > 0 ? std::abs(::MulDiv(static_cast<int>(nUnits), kPointsPerInch, dots)) : 0;
}

long CVARDFont::PointsToLogicalUnits(long nPoints, CDC * pDC)
{
    int const dots = DotsPerInch(pDC);
    return dots > 0 ? -::MulDiv(static_cast<int>(nPoints), dots, kPointsPerInch) : 0;
}

void CVARDFont::SetFont(long nPoints, long nAngle, char * pszFace)
{
    m_font.lfHeight = static_cast<LONG>(PointsToLogicalUnits(nPoints, nullptr));
    m_font.lfEscapement = m_font.lfOrientation = static_cast<LONG>(nAngle);
    if (!pszFace)
        return;
    std::memset(m_font.lfFaceName, 0, sizeof m_font.lfFaceName);
    std::strncpy(m_font.lfFaceName, pszFace, LF_FACESIZE - 1);
}

int CVARDFont::SetBold(int bBold)
{
    int const wasBold = IsBold();
    m_font.lfWeight = bBold == 1 ? FW_BOLD : FW_NORMAL;
    return wasBold;
}

int CVARDFont::SetItalic(int bItalic)
{
    return std::exchange(m_font.lfItalic, static_cast<BYTE>(bItalic));
}

int CVARDFont::SetUnderline(int bUnderline)
{
    return std::exchange(m_font.lfUnderline, static_cast<BYTE>(bUnderline));
}

int CVARDFont::SetStrikeOut(int bStrikeOut)
{
    return std::exchange(m_font.lfStrikeOut, static_cast<BYTE>(bStrikeOut));
}

int CVARDFont::IsBold() const
{
    return m_font.lfWeight > FW_NORMAL;
}

void CVARDFont::Get3DTextParameters(double (*matrix)[3], TUVect3D P, TUVect3D Pa, TUVect3D Pb,
                                    double & dAngleBase, double & dAngleUp, double & dHeightFactor,
                                    double & dWidthFactor)
{
    CMathematics mathematics;
    TUVect3D const base = Difference(Pa, P);
    TUVect3D const unitBase = Unit(mathematics, base);
    TUVect3D up = Difference(Pb, P);
    double const along = Dot(unitBase, up);
    up = Difference(up, {{unitBase.x * along, unitBase.y * along, unitBase.z * along}});
    dAngleBase = ProjectedAngle(mathematics, base, matrix);
    dAngleUp = ProjectedAngle(mathematics, up, matrix);
    dHeightFactor = std::fabs(Dot(Unit(mathematics, up), Unit(mathematics, RowOf(matrix, 1))));
    dWidthFactor = std::fabs(Dot(unitBase, Unit(mathematics, RowOf(matrix, 0))));
}

LOGFONT CVARDFont::Get3DLogFont(double (*matrix)[3], TUVect3D P, TUVect3D Pa, TUVect3D Pb)
{
    double angleBase, angleUp, heightFactor, widthFactor;
    Get3DTextParameters(matrix, P, Pa, Pb, angleBase, angleUp, heightFactor, widthFactor);
    return m_font;
}
