// 10,000 dimension lines with their texts on an image of 1000 by 800 pixels. One item is one dimension: two
// extension lines, the dimension line, two arrows and a text in a font of its own.
#include <benchmark/benchmark.h>

#include "drawing/dim_line.h"
#include "platform/device/picture.h"

namespace {
constexpr int kDimensions = 10000;

/// Dimensions drawn straight on a context, one unit a pixel.
class PixelDimLine : public CDimLine
{
  public:
    explicit PixelDimLine(CDC * dc) : m_dc(dc) {}

    void MoveToDim(TUVect2D p) override { m_dc->MoveTo(static_cast<int>(p.x), static_cast<int>(p.y)); }
    void LineToDim(TUVect2D p) override { m_dc->LineTo(static_cast<int>(p.x), static_cast<int>(p.y)); }
    void * SelectObject(void * font) override { return m_dc->SelectObject(static_cast<HGDIOBJ>(font)); }
    void OutTextXY(TUVect2D p, CString const & text, unsigned int nAlign) override
    {
        m_dc->SetTextAlign(nAlign);
        m_dc->TextOut(static_cast<int>(p.x), static_cast<int>(p.y), text);
    }

  private:
    CDC * m_dc;
};

void DimensionLines(benchmark::State & state)
{
    CImageDC image(1000, 800);
    image.SetBkMode(TRANSPARENT);
    TSDimLineStyle style;
    CDimLine().GetDefaultDimStyle(style, nullptr);
    style.dTextGap = 2;
    style.dExtensionGap = style.dEndMarkSize = 8;
    style.dMinInsideLength = 40;
    char suffix[] = " m";
    for (auto _ : state)
        for (int i = 0; i < kDimensions; ++i) {
            TUVect2D a = {{static_cast<double>(i % 700), static_cast<double>(i * 7 % 600)}};
            TUVect2D b = {{a.x + 150, a.y + i % 100}};
            double offset = 20;
            PixelDimLine dimension(&image);
            dimension.Create(&style, a, b, offset, 0.01, suffix, DIM_ALONG_POINTS, DIM_LINEAR);
            benchmark::DoNotOptimize(dimension.PaintDimLine());
        }
    state.SetItemsProcessed(state.iterations() * kDimensions);
}
BENCHMARK(DimensionLines)->Unit(benchmark::kMillisecond);
}  // namespace
