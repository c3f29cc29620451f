// Drawing on an image of 1000 by 800 pixels through the device layer, beside plain Cairo calls that draw the
// same without smoothing. Each benchmark draws its whole set once an iteration and counts its items.
#include <benchmark/benchmark.h>
#include <cairo.h>

#include <random>
#include <vector>

#include "drawing/draw.h"
#include "platform/device/picture.h"

namespace {
constexpr int kWidth = 1000;
constexpr int kHeight = 800;
CRect ClipBounds()
{
    return CRect(100, 100, 900, 700);
}
constexpr int kLines = 100000;
constexpr int kTexts = 10000;
constexpr int kTriangles = 10000;
constexpr unsigned kSeed = 20240611;
constexpr char kText[] = "12.345 m";

/// Points in and around the image; about half of the lines between them leave it.
std::vector<POINT> RandomPoints(int count)
{
    std::mt19937 random(kSeed);
    std::vector<POINT> points;
    for (int i = 0; i < count; ++i)
        points.push_back({static_cast<LONG>(random() % (2 * kWidth)) - kWidth / 2,
                          static_cast<LONG>(random() % (2 * kHeight)) - kHeight / 2});
    return points;
}

/// A plain Cairo image with the same clip.
class CairoImage
{
  public:
    CairoImage()
    {
        cairo_set_antialias(m_cairo, CAIRO_ANTIALIAS_NONE);
        cairo_rectangle(m_cairo, 0, 0, kWidth, kHeight);
        cairo_set_source_rgb(m_cairo, 1, 1, 1);
        cairo_fill(m_cairo);
        CRect const clip = ClipBounds();
        cairo_rectangle(m_cairo, clip.left, clip.top, clip.Width(), clip.Height());
        cairo_clip(m_cairo);
        cairo_set_source_rgb(m_cairo, 1, 0, 0);
        cairo_set_line_width(m_cairo, 1);
    }
    ~CairoImage()
    {
        cairo_destroy(m_cairo);
        cairo_surface_destroy(m_surface);
    }
    CairoImage(CairoImage const &) = delete;
    CairoImage & operator=(CairoImage const &) = delete;

    operator cairo_t *() { return m_cairo; }

  private:
    cairo_surface_t * m_surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, kWidth, kHeight);
    cairo_t * m_cairo = cairo_create(m_surface);
};

void LinesWithOnePen(benchmark::State & state)
{
    std::vector<POINT> const points = RandomPoints(2 * kLines);
    CImageDC image(kWidth, kHeight);
    image.IntersectClipRect(ClipBounds());
    CPen pen(PS_SOLID, 0, RGB(255, 0, 0));
    CPen * const old = image.SelectObject(&pen);
    for (auto _ : state)
        for (std::size_t i = 0; i < points.size(); i += 2) {
            image.MoveTo(points[i]);
            image.LineTo(points[i + 1]);
        }
    image.SelectObject(old);
    state.SetItemsProcessed(state.iterations() * kLines);
}
BENCHMARK(LinesWithOnePen)->Unit(benchmark::kMillisecond);

void LinesWithAPenEach(benchmark::State & state)
{
    std::vector<POINT> const points = RandomPoints(2 * kLines);
    CImageDC image(kWidth, kHeight);
    image.IntersectClipRect(ClipBounds());
    CDraw draw(&image);
    for (auto _ : state)
        for (std::size_t i = 0; i < points.size(); i += 2)
            draw.Line(points[i].x, points[i].y, points[i + 1].x, points[i + 1].y, RGB(255, 0, 0));
    state.SetItemsProcessed(state.iterations() * kLines);
}
BENCHMARK(LinesWithAPenEach)->Unit(benchmark::kMillisecond);

void LinesPlainCairo(benchmark::State & state)
{
    std::vector<POINT> const points = RandomPoints(2 * kLines);
    CairoImage cairo;
    for (auto _ : state)
        for (std::size_t i = 0; i < points.size(); i += 2) {
            cairo_move_to(cairo, points[i].x + 0.5, points[i].y + 0.5);
            cairo_line_to(cairo, points[i + 1].x + 0.5, points[i + 1].y + 0.5);
            cairo_stroke(cairo);
        }
    state.SetItemsProcessed(state.iterations() * kLines);
}
BENCHMARK(LinesPlainCairo)->Unit(benchmark::kMillisecond);

void Triangles(benchmark::State & state)
{
    std::vector<POINT> const points = RandomPoints(3 * kTriangles);
    CImageDC image(kWidth, kHeight);
    image.IntersectClipRect(ClipBounds());
    CBrush brush(RGB(255, 0, 0));
    CBrush * const old = image.SelectObject(&brush);
    image.SelectStockObject(NULL_PEN);
    for (auto _ : state)
        for (std::size_t i = 0; i < points.size(); i += 3)
            image.Polygon(&points[i], 3);
    image.SelectObject(old);
    state.SetItemsProcessed(state.iterations() * kTriangles);
}
BENCHMARK(Triangles)->Unit(benchmark::kMillisecond);

void TrianglesPlainCairo(benchmark::State & state)
{
    std::vector<POINT> const points = RandomPoints(3 * kTriangles);
    CairoImage cairo;
    for (auto _ : state)
        for (std::size_t i = 0; i < points.size(); i += 3) {
            cairo_move_to(cairo, points[i].x, points[i].y);
            cairo_line_to(cairo, points[i + 1].x, points[i + 1].y);
            cairo_line_to(cairo, points[i + 2].x, points[i + 2].y);
            cairo_close_path(cairo);
            cairo_fill(cairo);
        }
    state.SetItemsProcessed(state.iterations() * kTriangles);
}
BENCHMARK(TrianglesPlainCairo)->Unit(benchmark::kMillisecond);

void Texts(benchmark::State & state)
{
    std::vector<POINT> const points = RandomPoints(kTexts);
    CImageDC image(kWidth, kHeight);
    image.IntersectClipRect(ClipBounds());
    CDraw draw(&image);
    draw.SetFont(-12, 0, FW_NORMAL, 0, 0, 0, "Arial");
    for (auto _ : state)
        for (POINT const & point : points)
            draw.TextOut(point.x, point.y, kText, RGB(255, 0, 0));
    state.SetItemsProcessed(state.iterations() * kTexts);
}
BENCHMARK(Texts)->Unit(benchmark::kMillisecond);

void TextsPlainCairo(benchmark::State & state)
{
    std::vector<POINT> const points = RandomPoints(kTexts);
    CairoImage cairo;
    cairo_select_font_face(cairo, "Liberation Sans", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(cairo, 12);
    for (auto _ : state)
        for (POINT const & point : points) {
            cairo_move_to(cairo, point.x, point.y + 11);
            cairo_show_text(cairo, kText);
        }
    state.SetItemsProcessed(state.iterations() * kTexts);
}
BENCHMARK(TextsPlainCairo)->Unit(benchmark::kMillisecond);
}  // namespace
