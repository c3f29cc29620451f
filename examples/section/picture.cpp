#include "picture.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <functional>
#include <numbers>

#include "options.h"

namespace {
using outlines::Outline;

constexpr int kPictureWidth = 1200, kPictureHeight = 900;  // pixels
constexpr int kEdge = 24;                                  // pixels left free around everything
constexpr int kCaptionWidth = 250;                         // pixels for the numbers at the left
constexpr int kSurround = 110;        // pixels around the section for axes and dimensions
constexpr int kAxisOvershoot = 22;    // pixels by which an axis leaves the section
constexpr int kDimensionOffset = 76;  // pixels from the section to a dimension line
constexpr double kFlatness = 0.2;     // pixels by which a chord may leave its arc

constexpr COLORREF kInk = RGB(20, 30, 40);
constexpr COLORREF kBody = RGB(214, 226, 238);
constexpr COLORREF kHole = RGB(150, 160, 170);
constexpr COLORREF kAxis = RGB(190, 40, 40);
constexpr COLORREF kDimension = RGB(70, 80, 90);

// Selects an object while it lives.
class Selected
{
  public:
    Selected(CDC & dc, HGDIOBJ object) : m_dc(dc), m_old(dc.SelectObject(object)) {}
    ~Selected() { m_dc.SelectObject(m_old); }
    Selected(Selected const &) = delete;
    Selected & operator=(Selected const &) = delete;

  private:
    CDC & m_dc;
    HGDIOBJ m_old;
};

// The mapping of the section to the pixels: equal scale, y up.
class View
{
  public:
    View(CDC & dc, CRect const & area, outlines::Box const & box) : m_dc(dc)
    {
        double x1 = box.min.x, x2 = box.max.x;
        // Pixels run downward, so the mapping works with -y.
        double y1 = -box.max.y, y2 = -box.min.y;
        m_mapping.SetModelArea(area, &x1, &y1, &x2, &y2, 1, 0);
        m_pixel = (x2 - x1) / area.Width();
    }

    CDC & Context() const { return m_dc; }

    /// Length of a pixel in metres.
    double PixelSize() const { return m_pixel; }

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
    double m_pixel = 0.0;
};

// The library's dimension line, bound to the view.
class CSectionDimLine : public CDimLine
{
  public:
    explicit CSectionDimLine(View const & view) : m_view(view) {}

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
        CDC & dc = m_view.Context();
        UINT const oldAlign = dc.SetTextAlign(align);
        CPoint const at = m_view(anchor);
        dc.TextOut(at.x, at.y, text);
        dc.SetTextAlign(oldAlign);
    }

  private:
    View const & m_view;
    TUVect2D m_pen{};
};

LOGFONT FontOf(int height, bool bold)
{
    LOGFONT font{};
    font.lfHeight = -height;
    font.lfWeight = bold ? FW_BOLD : FW_NORMAL;
    font.lfCharSet = EASTEUROPE_CHARSET;
    std::snprintf(font.lfFaceName, sizeof(font.lfFaceName), "Arial");
    return font;
}

std::vector<POINT> PixelsOf(View const & view, Outline const & outline)
{
    std::vector<TUVect2D> points = {outline.sides.front().start};
    for (TSPlaneEdge2D const & side : outline.sides)
        outlines::AppendFlattened(side, kFlatness * view.PixelSize(), points);
    std::vector<POINT> pixels;
    for (TUVect2D const & point : points)
        pixels.push_back(view(point));
    return pixels;
}

// Outlines come from the largest to the smallest, so a hole is painted over its body and a body over its
// hole.
void PaintOutlines(View const & view, std::vector<Outline> const & all)
{
    CDC & dc = view.Context();
    CPen pen(PS_SOLID, 2, kInk);
    CBrush body(kBody), white(RGB(255, 255, 255)), hatch(HS_BDIAGONAL, kHole);
    Selected const selectedPen(dc, pen.GetSafeHandle());
    dc.SetBkMode(TRANSPARENT);
    for (Outline const & outline : all) {
        std::vector<POINT> const pixels = PixelsOf(view, outline);
        {
            Selected const fill(dc, (outline.IsHole() ? white : body).GetSafeHandle());
            dc.Polygon(pixels.data(), static_cast<int>(pixels.size()));
        }
        if (outline.IsHole()) {
            Selected const fill(dc, hatch.GetSafeHandle());
            dc.Polygon(pixels.data(), static_cast<int>(pixels.size()));
        }
    }
}

// How far the section reaches from its centroid along a direction.
double ReachOf(SectionValues const & values, double angle)
{
    double reach = 0.0;
    for (double x : {values.box.min.x, values.box.max.x})
        for (double y : {values.box.min.y, values.box.max.y})
            reach = std::max(
                reach, std::fabs((x - values.xc) * std::cos(angle) + (y - values.yc) * std::sin(angle)));
    return reach;
}

void PaintAxes(View const & view, SectionValues const & values)
{
    CDC & dc = view.Context();
    CPen pen(PS_DASHDOT, 1, kAxis), thin(PS_SOLID, 1, kAxis);
    CFont font;
    LOGFONT const logFont = FontOf(16, true);
    font.CreateFontIndirect(&logFont);
    Selected const selectedFont(dc, font.GetSafeHandle());
    COLORREF const oldColour = dc.SetTextColor(kAxis);
    UINT const oldAlign = dc.SetTextAlign(TA_CENTER | TA_BASELINE);
    dc.SetBkMode(TRANSPARENT);
    char const * const names[] = {"1", "2"};
    for (int axis = 0; axis < 2; ++axis) {
        double const angle = values.alpha + axis * std::numbers::pi / 2;
        double const reach = ReachOf(values, angle) + kAxisOvershoot * view.PixelSize();
        double const dx = reach * std::cos(angle), dy = reach * std::sin(angle);
        double const toLabel = 1 + 14 * view.PixelSize() / reach;
        {
            Selected const selectedPen(dc, pen.GetSafeHandle());
            view.Line({{values.xc - dx, values.yc - dy}}, {{values.xc + dx, values.yc + dy}});
        }
        CPoint const label = view({{values.xc + toLabel * dx, values.yc + toLabel * dy}});
        dc.TextOut(label.x, label.y + 6, names[axis]);
    }
    Selected const selectedPen(dc, thin.GetSafeHandle());
    Selected const hollow(dc, ::GetStockObject(HOLLOW_BRUSH));
    CPoint const centroid = view({{values.xc, values.yc}});
    dc.Ellipse(centroid.x - 5, centroid.y - 5, centroid.x + 6, centroid.y + 6);
    dc.SetTextAlign(oldAlign);
    dc.SetTextColor(oldColour);
}

TSDimLineStyle DimensionStyle(View const & view)
{
    LOGFONT const font = FontOf(15, false);
    TSDimLineStyle style;
    CDimLine().GetDefaultDimStyle(style, &font);
    double const pixel = view.PixelSize();
    style.nTextRotation = 1;
    style.dTextGap = -3 * pixel;
    style.dExtensionGap = 6 * pixel;
    style.dEndMarkSize = 12 * pixel;
    style.dMinInsideLength = 60 * pixel;
    return style;
}

// Overall width below the section, overall height at its right.
void PaintDimensions(View const & view, SectionPicture const & picture)
{
    CDC & dc = view.Context();
    CPen pen(PS_SOLID, 1, kDimension);
    Selected const selectedPen(dc, pen.GetSafeHandle());
    COLORREF const oldColour = dc.SetTextColor(kDimension);
    dc.SetBkMode(TRANSPARENT);
    TSDimLineStyle style = DimensionStyle(view);
    outlines::Box const & box = picture.values.box;
    TUVect2D lowerLeft = box.min, lowerRight{{box.max.x, box.min.y}}, upperRight = box.max;
    double offset = -kDimensionOffset * view.PixelSize();
    char suffix[11];
    std::snprintf(suffix, sizeof(suffix), " %s", static_cast<char const *>(picture.unitLabel));
    CSectionDimLine width(view), height(view);
    width.Create(&style, lowerLeft, lowerRight, offset, 1 / picture.shownUnit, suffix, DIM_ALONG_POINTS,
                 DIM_LINEAR);
    width.PaintDimLine();
    height.Create(&style, lowerRight, upperRight, offset, 1 / picture.shownUnit, suffix, DIM_ALONG_POINTS,
                  DIM_LINEAR);
    height.PaintDimLine();
    dc.SetTextColor(oldColour);
}

void PaintCaption(CDC & dc, SectionPicture const & picture)
{
    COLORREF const oldColour = dc.SetTextColor(kInk);
    UINT const oldAlign = dc.SetTextAlign(TA_LEFT | TA_TOP);
    int y = kEdge;
    for (bool isTitle : {true, false}) {
        CFont font;
        LOGFONT const logFont = FontOf(isTitle ? 20 : 16, isTitle);
        font.CreateFontIndirect(&logFont);
        Selected const selected(dc, font.GetSafeHandle());
        std::vector<CString> const lines =
            isTitle ? std::vector<CString>{picture.title} : picture.captionLines;
        for (CString const & line : lines) {
            dc.TextOut(kEdge, y, line);
            y += isTitle ? 36 : 24;
        }
    }
    dc.SetTextAlign(oldAlign);
    dc.SetTextColor(oldColour);
}

void Remove(std::vector<std::string> const & files)
{
    for (std::string const & file : files) {
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
    }
}

int SaveImage(std::string const & file, SectionPicture const & picture)
{
    CImageDC image(kPictureWidth, kPictureHeight);
    if (!image.GetSafeHdc())
        return 0;
    DrawSection(image, image.GetSize(), picture);
#if defined(_WIN32)
    return image.SaveBMP(file.c_str());
#else
    return image.SavePNG(file.c_str());
#endif
}

#if !defined(_WIN32)
int SavePage(std::string const & file, EPageForm form, SectionPicture const & picture)
{
    CPageDC page(file.c_str(), form, kPictureWidth, kPictureHeight);
    if (!page.GetSafeHdc())
        return 0;
    DrawSection(page, CSize(kPictureWidth, kPictureHeight), picture);
    return page.Close();
}
#endif
}  // namespace

SectionPicture PictureOf(std::vector<Outline> const & outlines, SectionValues const & values,
                         std::string const & title, CVARDUnits const & units)
{
    SectionPicture picture{outlines,
                           values,
                           units.m_units[UN_SectionLength].factor,
                           units.GetUnitString(UN_SectionLength),
                           CString(title.c_str()),
                           {}};
    auto const add = [&](char const * symbol, double value, TEUnitExt unit) {
        picture.captionLines.push_back(CString(symbol) + " = " +
                                       units.GetFormatedString(value, unit, 1, -1, -1));
    };
    add("A", values.exactArea, UE_SecArea);
    add("Ix", values.Ixc, UE_SecInertia);
    add("Iy", values.Iyc, UE_SecInertia);
    add("I1", values.I1, UE_SecInertia);
    add("I2", values.I2, UE_SecInertia);
    add("Wx", std::min(values.WxTop, values.WxBottom), UE_SecModulus);
    add("Wy", std::min(values.WyLeft, values.WyRight), UE_SecModulus);
    add("Wpl,x", values.WplX, UE_SecModulus);
    add("Wpl,y", values.WplY, UE_SecModulus);
    constexpr double kLevel = 1e-9;  // radians; an angle below this is rounding
    double const alpha = std::fabs(values.alpha) < kLevel ? 0.0 : values.alpha;
    picture.captionLines.push_back(CString("alpha = ") + units.GetFormatedString(alpha, UN_Angle, 1, -1, 2));
    return picture;
}

void DrawSection(CDC & dc, CSize size, SectionPicture const & picture)
{
    CBrush white(RGB(255, 255, 255));
    CRect const page(0, 0, size.cx, size.cy);
    dc.FillRect(&page, &white);
    CRect const area(kCaptionWidth + kSurround, kSurround, size.cx - kSurround, size.cy - kSurround);
    View const view(dc, area, picture.values.box);
    PaintOutlines(view, picture.outlines);
    PaintAxes(view, picture.values);
    PaintDimensions(view, picture);
    PaintCaption(dc, picture);
}

std::vector<std::string> WritePictures(std::string const & stem, SectionPicture const & picture)
{
    using Writer = std::function<int(std::string const &)>;
    std::vector<std::pair<std::string, Writer>> const forms = {
#if defined(_WIN32)
        {".bmp", [&](std::string const & file) { return SaveImage(file, picture); }},
#else
        {".png", [&](std::string const & file) { return SaveImage(file, picture); }},
        {".svg", [&](std::string const & file) { return SavePage(file, EPageForm::Svg, picture); }},
        {".pdf", [&](std::string const & file) { return SavePage(file, EPageForm::Pdf, picture); }},
#endif
    };
    std::vector<std::string> files;
    for (auto const & [extension, write] : forms) {
        files.push_back(stem + extension);
        if (write(files.back()) == 0) {
            Remove(files);
            throw Failure(files.back() + ": can't be written");
        }
    }
    return files;
}
