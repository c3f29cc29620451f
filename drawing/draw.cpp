#include "drawing/draw.h"

#include <cstring>

IMPLEMENT_DYNAMIC(CDraw, CObject)

namespace {
constexpr int kTenthsPerDegree = 10;

COLORREF ColourOf(unsigned long crColor)
{
    return static_cast<COLORREF>(crColor);
}

/// An object selected for the length of one primitive, then taken out and deleted. Deleting a stock object
/// does nothing.
class Selected
{
  public:
    Selected(HDC hdc, HGDIOBJ object) : m_hdc(hdc), m_object(object), m_old(::SelectObject(hdc, object)) {}
    ~Selected()
    {
        ::SelectObject(m_hdc, m_old);
        ::DeleteObject(m_object);
    }
    Selected(Selected const &) = delete;
    Selected & operator=(Selected const &) = delete;

  private:
    HDC m_hdc;
    HGDIOBJ m_object;
    HGDIOBJ m_old;
};

Selected SelectPen(HDC hdc, int style, int width, unsigned long crColor)
{
    return Selected(hdc, ::CreatePen(style, width, ColourOf(crColor)));
}

Selected SelectBrush(HDC hdc, unsigned long crColor)
{
    return Selected(hdc, ::CreateSolidBrush(ColourOf(crColor)));
}

Selected SelectStock(HDC hdc, int object)
{
    return Selected(hdc, ::GetStockObject(object));
}

HDC HandleOf(CDC const * dc)
{
    return dc ? dc->GetSafeHdc() : nullptr;
}
}  // namespace

CDraw::CDraw(CDC * dc) : CDraw(HandleOf(dc)) {}

CDraw::CDraw(HDC hdc) : m_hDC(hdc) {}

CDraw::~CDraw()
{
    ResetFont();
}

void CDraw::Line(int x1, int y1, int x2, int y2)
{
    int const oldMode = ::SetBkMode(m_hDC, TRANSPARENT);
    ::MoveToEx(m_hDC, x1, y1, nullptr);
    ::LineTo(m_hDC, x2, y2);
    ::SetBkMode(m_hDC, oldMode);
}

void CDraw::Line(int x1, int y1, int x2, int y2, unsigned long crColor)
{
    Line(x1, y1, x2, y2, PS_SOLID, 0, crColor);
}

void CDraw::Line(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor)
{
    Selected const pen = SelectPen(m_hDC, nStyle, nWidth, crColor);
    Line(x1, y1, x2, y2);
}

void CDraw::Cross(int x, int y, int nSize)
{
    Line(x - nSize, y, x + nSize + 1, y);
    Line(x, y - nSize, x, y + nSize + 1);
}

void CDraw::Cross(int x, int y, int nSize, unsigned long crColor)
{
    Cross(x, y, nSize, PS_SOLID, 0, crColor);
}

void CDraw::Cross(int x, int y, int nSize, int nStyle, int nWidth, unsigned long crColor)
{
    Selected const pen = SelectPen(m_hDC, nStyle, nWidth, crColor);
    Cross(x, y, nSize);
}

void CDraw::Rectangle(int x1, int y1, int x2, int y2, unsigned long crColor)
{
    Rectangle(x1, y1, x2, y2, PS_SOLID, 0, crColor);
}

void CDraw::Rectangle(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor)
{
    Selected const pen = SelectPen(m_hDC, nStyle, nWidth, crColor);
    Selected const brush = SelectStock(m_hDC, HOLLOW_BRUSH);
    ::Rectangle(m_hDC, x1, y1, x2, y2);
}

void CDraw::Ellipse(int x1, int y1, int x2, int y2, unsigned long crColor)
{
    Ellipse(x1, y1, x2, y2, PS_SOLID, 0, crColor);
}

void CDraw::Ellipse(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor)
{
    Selected const pen = SelectPen(m_hDC, nStyle, nWidth, crColor);
    Selected const brush = SelectStock(m_hDC, HOLLOW_BRUSH);
    ::Ellipse(m_hDC, x1, y1, x2, y2);
}

void CDraw::FilledRectangle(int x1, int y1, int x2, int y2, unsigned long crColor)
{
    FilledRectangle(x1, y1, x2, y2, PS_SOLID, 0, crColor);
}

void CDraw::FilledRectangle(int x1, int y1, int x2, int y2, int nStyle, unsigned long crColor)
{
    FilledRectangle(x1, y1, x2, y2, nStyle, 0, crColor);
}

void CDraw::FilledRectangle(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor)
{
    Selected const pen = SelectPen(m_hDC, nStyle, nWidth, crColor);
    Selected const brush = SelectBrush(m_hDC, crColor);
    ::Rectangle(m_hDC, x1, y1, x2, y2);
}

void CDraw::FilledRectangle(int x1, int y1, int x2, int y2, HBITMAP hBitmap)
{
    Selected const pen = SelectStock(m_hDC, NULL_PEN);
    Selected const brush(m_hDC, ::CreatePatternBrush(hBitmap));
    ::Rectangle(m_hDC, x1, y1, x2, y2);
}

void CDraw::FilledEllipse(int x1, int y1, int x2, int y2, unsigned long crColor)
{
    FilledEllipse(x1, y1, x2, y2, PS_SOLID, 0, crColor);
}

void CDraw::FilledEllipse(int x1, int y1, int x2, int y2, int nStyle, unsigned long crColor)
{
    FilledEllipse(x1, y1, x2, y2, nStyle, 0, crColor);
}

void CDraw::FilledEllipse(int x1, int y1, int x2, int y2, int nStyle, int nWidth, unsigned long crColor)
{
    Selected const pen = SelectPen(m_hDC, nStyle, nWidth, crColor);
    Selected const brush = SelectBrush(m_hDC, crColor);
    ::Ellipse(m_hDC, x1, y1, x2, y2);
}

void CDraw::FilledEllipse(int x1, int y1, int x2, int y2, HBITMAP hBitmap)
{
    Selected const pen = SelectStock(m_hDC, NULL_PEN);
    Selected const brush(m_hDC, ::CreatePatternBrush(hBitmap));
    ::Ellipse(m_hDC, x1, y1, x2, y2);
}

void CDraw::Triangle(int x1, int y1, int x2, int y2, int x3, int y3)
{
    ::MoveToEx(m_hDC, x1, y1, nullptr);
    ::LineTo(m_hDC, x2, y2);
    ::LineTo(m_hDC, x3, y3);
    ::LineTo(m_hDC, x1, y1);
}

void CDraw::Triangle(int x1, int y1, int x2, int y2, int x3, int y3, unsigned long crColor)
{
    Triangle(x1, y1, x2, y2, x3, y3, PS_SOLID, 0, crColor);
}

void CDraw::Triangle(int x1, int y1, int x2, int y2, int x3, int y3, int nStyle, int nWidth,
                     unsigned long crColor)
{
    Selected const pen = SelectPen(m_hDC, nStyle, nWidth, crColor);
    Triangle(x1, y1, x2, y2, x3, y3);
}

void CDraw::FillTriangle(POINT const (&points)[3], HBRUSH brush)
{
    HRGN const region = ::CreatePolygonRgn(points, 3, ALTERNATE);
    ::FillRgn(m_hDC, region, brush);
    ::DeleteObject(region);
    ::DeleteObject(brush);
}

void CDraw::FilledTriangle(int x1, int y1, int x2, int y2, int x3, int y3, unsigned long crColor)
{
    FillTriangle({{x1, y1}, {x2, y2}, {x3, y3}}, ::CreateSolidBrush(ColourOf(crColor)));
}

void CDraw::FilledTriangle(int x1, int y1, int x2, int y2, int x3, int y3, int nHatch, unsigned long crColor)
{
    FillTriangle({{x1, y1}, {x2, y2}, {x3, y3}}, ::CreateHatchBrush(nHatch, ColourOf(crColor)));
}

void CDraw::FilledTriangle(int x1, int y1, int x2, int y2, int x3, int y3, HBITMAP hBitmap)
{
    FillTriangle({{x1, y1}, {x2, y2}, {x3, y3}}, ::CreatePatternBrush(hBitmap));
}

void CDraw::SetFont(int nHeight, int nAngle, int nWeight, unsigned char bItalic, unsigned char bUnderline,
                    unsigned char bStrikeOut, char const * pszFace)
{
    ResetFont();
    // The orientation stays 0: the platform turns the letters with the base line.
    int const escapement = nAngle % 360 * kTenthsPerDegree;
    m_hFont = ::CreateFont(nHeight, 0, escapement, 0, nWeight, bItalic, bUnderline, bStrikeOut,
                           DEFAULT_CHARSET, 0, 0, 0, 0, pszFace);
    m_hOldFont = ::SelectObject(m_hDC, m_hFont);
}

void CDraw::ResetFont()
{
    if (!m_hFont)
        return;
    ::SelectObject(m_hDC, m_hOldFont);
    ::DeleteObject(m_hFont);
    m_hFont = nullptr;
    m_hOldFont = nullptr;
}

void CDraw::TextOut(int x, int y, char const * pszText, unsigned long crColor)
{
    if (!pszText)
        return;
    int const oldMode = ::SetBkMode(m_hDC, TRANSPARENT);
    COLORREF const oldColour = ::SetTextColor(m_hDC, ColourOf(crColor));
    ::TextOut(m_hDC, x, y, pszText, static_cast<int>(std::strlen(pszText)));
    ::SetTextColor(m_hDC, oldColour);
    ::SetBkMode(m_hDC, oldMode);
}
