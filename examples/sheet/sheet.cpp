#include "sheet.h"

#include <cmath>
#include <cstdio>
#include <iterator>
#include <numbers>
#include <vector>

namespace {
constexpr COLORREF kInk = RGB(20, 30, 40);
constexpr COLORREF kBlue = RGB(40, 80, 160);
constexpr COLORREF kSteel = RGB(206, 218, 232);
constexpr COLORREF kFrame = RGB(150, 160, 170);

// The section's part of the sheet: millimetres to pixels, y up.
class SectionView
{
  public:
    explicit SectionView(CDC & dc) : m_dc(dc)
    {
        // Pixels run downward, so the mapping works with -y.
        double x1 = -95, y1 = -235, x2 = 235, y2 = 75;
        m_mapping.SetModelArea(CRect(20, 60, 780, 780), &x1, &y1, &x2, &y2, 1, 0);
    }

    CDC & Context() const { return m_dc; }

    CPoint operator()(TUVect2D const & point) const
    {
        int x = 0, y = 0;
        m_mapping.ModelToInt(point.x, -point.y, &x, &y);
        return CPoint(x, y);
    }

    void Line(TUVect2D const & from, TUVect2D const & to) const
    {
        m_mapping.MoveTo(&m_dc, from.x, -from.y);
        m_mapping.LineTo(&m_dc, to.x, -to.y);
    }

  private:
    CDC & m_dc;
    CRect2DObject m_mapping;
};

// The library's dimension line, bound to the view.
class SheetDimension : public CDimLine
{
  public:
    explicit SheetDimension(SectionView const & view) : m_view(view) {}

    void MoveToDim(TUVect2D point) override { m_pen = point; }
    void LineToDim(TUVect2D point) override
    {
        m_view.Line(m_pen, point);
        m_pen = point;
    }
    void * SelectObject(void * font) override
    {
        return m_view.Context().SelectObject(static_cast<HGDIOBJ>(font));
    }
    void OutTextXY(TUVect2D anchor, CString const & text, unsigned int align) override
    {
        UINT const oldAlign = m_view.Context().SetTextAlign(align);
        CPoint const at = m_view(anchor);
        m_view.Context().TextOut(at.x, at.y, text);
        m_view.Context().SetTextAlign(oldAlign);
    }

  private:
    SectionView const & m_view;
    TUVect2D m_pen{};
};

// Half of a T section with fillets of 30 mm, 120 mm wide web, 200 mm wide flange; vertices with the bulge of
// the side behind each. A fillet of a quarter turn has the bulge tan(pi / 8).
struct Vertex
{
    double x, y, bulge;
};
double const kQuarter = std::tan(std::numbers::pi / 8);
Vertex const kOutline[] = {{20, 0, 0},           {120, 0, 0},   {120, 110, kQuarter}, {150, 140, 0},
                           {170, 140, 0},        {170, 180, 0}, {-30, 180, 0},        {-30, 140, 0},
                           {-10, 140, kQuarter}, {20, 110, 0}};

std::vector<POINT> OutlinePixels(SectionView const & view)
{
    CMathematics kernel;
    std::vector<POINT> pixels;
    for (std::size_t i = 0; i < std::size(kOutline); ++i) {
        Vertex const & a = kOutline[i];
        Vertex const & b = kOutline[(i + 1) % std::size(kOutline)];
        TSelem side{a.bulge == 0 ? EDGE_LINE : EDGE_ARC, -1, {{a.x, a.y}}, {{b.x, b.y}}, a.bulge};
        int const pieces = a.bulge == 0 ? 1 : 24;
        for (int piece = 0; piece < pieces; ++piece) {
            TUVect2D point = side.start;
            constexpr int kFraction = 1;
            if (piece > 0)
                kernel.GetPointOnEelem(side, static_cast<double>(piece) / pieces, kFraction, point);
            pixels.push_back(view(point));
        }
    }
    return pixels;
}

void PaintSection(SectionView const & view)
{
    CDC & dc = view.Context();
    CPen outline(PS_SOLID, 2, kInk), axis(PS_DASHDOT, 1, RGB(190, 40, 40));
    CBrush fill(kSteel), hatch(HS_BDIAGONAL, kBlue);
    std::vector<POINT> const pixels = OutlinePixels(view);
    dc.SetBkMode(TRANSPARENT);
    HGDIOBJ const oldPen = dc.SelectObject(outline.GetSafeHandle());
    HGDIOBJ const oldBrush = dc.SelectObject(fill.GetSafeHandle());
    dc.Polygon(pixels.data(), static_cast<int>(pixels.size()));
    dc.SelectObject(hatch.GetSafeHandle());
    dc.Polygon(pixels.data(), static_cast<int>(pixels.size()));
    dc.SelectObject(axis.GetSafeHandle());
    view.Line({{70, -14}}, {{70, 196}});
    dc.SelectObject(oldBrush);
    dc.SelectObject(oldPen);
}

struct Measure
{
    TUVect2D a, b;
    double offset;
    int endMark;  // 0 arrows, 1 ticks
    EDLDimAlign align;
};

// Chains: the parts near the section, the whole outside; short ones with their text beside the line.
Measure const kMeasures[] = {
    {{{-30, 0}}, {{20, 0}}, -18, 1, DIM_ALONG_POINTS},
    {{{20, 0}}, {{120, 0}}, -18, 1, DIM_ALONG_POINTS},
    {{{120, 0}}, {{170, 0}}, -18, 1, DIM_ALONG_POINTS},
    {{{-30, 0}}, {{170, 0}}, -42, 0, DIM_ALONG_POINTS},
    {{{170, 0}}, {{170, 140}}, -14, 0, DIM_ALONG_POINTS},
    {{{170, 140}}, {{170, 180}}, -14, 0, DIM_ALONG_POINTS},
    {{{170, 0}}, {{170, 180}}, -40, 0, DIM_ALONG_POINTS},
    {{{-30, 140}}, {{-10, 140}}, -14, 0, DIM_ALONG_POINTS},
    {{{-30, 0}}, {{-30, 180}}, 26, 1, DIM_VERTICAL},
    {{{20, 110}}, {{-10, 140}}, 22, 0, DIM_ALONG_POINTS},
    {{{-30, 180}}, {{70, 180}}, 14, 0, DIM_ALONG_POINTS},
    {{{70, 180}}, {{170, 180}}, 14, 0, DIM_HORIZONTAL},
};

void PaintDimensions(SectionView const & view)
{
    CDC & dc = view.Context();
    CPen pen(PS_SOLID, 1, RGB(70, 80, 90));
    HGDIOBJ const oldPen = dc.SelectObject(pen.GetSafeHandle());
    COLORREF const oldColour = dc.SetTextColor(RGB(70, 80, 90));
    TSDimLineStyle style;
    LOGFONT font{};
    font.lfHeight = -14;
    font.lfCharSet = EASTEUROPE_CHARSET;
    std::snprintf(font.lfFaceName, sizeof(font.lfFaceName), "Arial");
    SheetDimension line(view);
    line.GetDefaultDimStyle(style, &font);
    style.nTextRotation = 1;
    style.nNumberDecimals = 0;
    style.dTextGap = -1;
    style.dExtensionGap = 3;
    style.dEndMarkSize = 6;
    style.dMinInsideLength = 28;
    for (Measure measure : kMeasures) {
        style.nEndMark = measure.endMark;
        line.Create(&style, measure.a, measure.b, measure.offset, 1.0, nullptr, measure.align, DIM_LINEAR);
        line.PaintDimLine();
    }
    dc.SetTextColor(oldColour);
    dc.SelectObject(oldPen);
}

void PaintLineStyles(CDraw & draw)
{
    char const * const names[] = {"PS_SOLID", "PS_DASH", "PS_DOT", "PS_DASHDOT", "PS_DASHDOTDOT"};
    draw.SetFont(-14, 0, FW_NORMAL, 0, 0, 0, "Arial");
    for (int style = PS_SOLID; style <= PS_DASHDOTDOT; ++style) {
        int const y = 90 + style * 26;
        draw.TextOut(810, y - 9, names[style], kInk);
        draw.Line(950, y, 1150, y, style, 1, kInk);
    }
    int left = 950;
    for (int width : {1, 2, 3, 5}) {
        draw.Line(left, 222, left + 40, 222, PS_SOLID, width, kBlue);
        left += 53;
    }
    draw.TextOut(810, 213, "width 1, 2, 3, 5", kInk);
}

void PaintHatches(CDC & dc, CDraw & draw)
{
    char const * const names[] = {"HS_HORIZONTAL", "HS_VERTICAL", "HS_FDIAGONAL",
                                  "HS_BDIAGONAL",  "HS_CROSS",    "HS_DIAGCROSS"};
    draw.SetFont(-11, 0, FW_NORMAL, 0, 0, 0, "Arial");
    for (int style = HS_HORIZONTAL; style <= HS_DIAGCROSS; ++style) {
        int const left = 810 + style % 3 * 118, top = 256 + style / 3 * 106;
        CBrush brush(style, kBlue);
        CRect const area(left, top, left + 104, top + 70);
        dc.SetBkMode(TRANSPARENT);
        dc.FillRect(&area, &brush);
        draw.Rectangle(left, top, left + 104, top + 70, kInk);
        draw.TextOut(left, top + 74, names[style], kInk);
    }
}

void PaintShapesAndTexts(CDC & dc, CDraw & draw)
{
    draw.FilledEllipse(815, 486, 885, 536, RGB(240, 200, 120));
    draw.Ellipse(815, 486, 885, 536, kInk);
    draw.FilledTriangle(905, 536, 945, 486, 985, 536, RGB(150, 200, 150));
    draw.Triangle(905, 536, 945, 486, 985, 536, kInk);
    draw.FilledRectangle(1005, 486, 1065, 536, RGB(220, 150, 150));
    draw.Rectangle(1005, 486, 1065, 536, PS_DASH, 1, kInk);
    draw.Cross(1110, 511, 14, PS_SOLID, 2, RGB(190, 40, 40));
    CString const czech(Text1250FromUtf8("Žluťoučký kůň").c_str());
    for (int angle = 0; angle <= 90; angle += 30) {
        draw.SetFont(-16, angle, FW_NORMAL, 0, 0, 0, "Arial");
        double const radians = angle * std::numbers::pi / 180;
        int const x = 830 + static_cast<int>(60 * std::cos(radians));
        int const y = 770 - static_cast<int>(60 * std::sin(radians));
        draw.TextOut(x, y, czech, angle % 60 == 0 ? kInk : kBlue);
    }
    draw.SetFont(-18, 0, FW_BOLD, 1, 1, 0, "Times New Roman");
    UINT const oldAlign = dc.GetTextAlign();
    UINT const alignments[] = {TA_LEFT, TA_CENTER, TA_RIGHT};
    char const * const names[] = {"left", "centre", "right"};
    draw.Line(1080, 590, 1080, 700, PS_DOT, 1, kFrame);
    for (int i = 0; i < 3; ++i) {
        dc.SetTextAlign(alignments[i] | TA_BASELINE);
        draw.TextOut(1080, 615 + 36 * i, names[i], kInk);
        draw.Line(1040, 615 + 36 * i, 1120, 615 + 36 * i, kFrame);
    }
    dc.SetTextAlign(oldAlign);
}
}  // namespace

void DrawSheet(CDC & dc)
{
    CBrush white(RGB(255, 255, 255));
    CRect const page(0, 0, kSheetWidth, kSheetHeight);
    dc.FillRect(&page, &white);
    CDraw draw(&dc);
    draw.Rectangle(8, 8, kSheetWidth - 8, kSheetHeight - 8, kFrame);
    draw.Line(795, 8, 795, kSheetHeight - 9, kFrame);
    draw.SetFont(-22, 0, FW_BOLD, 0, 0, 0, "Arial");
    draw.TextOut(24, 20, CString(Text1250FromUtf8("Průřez T 200/180").c_str()), kInk);
    SectionView const view(dc);
    PaintSection(view);
    PaintDimensions(view);
    PaintLineStyles(draw);
    PaintHatches(dc, draw);
    PaintShapesAndTexts(dc, draw);
}
