#include "platform/device/cairo/brush_paint.h"

namespace detail {
namespace {
/// Remainder that isn't negative.
int Modulo(int value, int divisor)
{
    int const rest = value % divisor;
    return rest < 0 ? rest + divisor : rest;
}

bool IsOnHatch(int hatch, int x, int y)
{
    bool const horizontal = Modulo(y, kHatchCell) == kHatchRow;
    bool const vertical = Modulo(x, kHatchCell) == kHatchColumn;
    bool const falling = Modulo(x, kHatchCell) == Modulo(y, kHatchCell);
    bool const rising = Modulo(x, kHatchCell) + Modulo(y, kHatchCell) == kHatchCell - 1;
    switch (hatch) {
        case HS_HORIZONTAL:
            return horizontal;
        case HS_VERTICAL:
            return vertical;
        case HS_FDIAGONAL:
            return falling;
        case HS_BDIAGONAL:
            return rising;
        case HS_CROSS:
            return horizontal || vertical;
        default:
            return falling || rising;
    }
}
}  // namespace

BrushPaint::BrushPaint(Ink const & ink)
    : m_uniform(!ink.brush || ink.brush->m_record.lbStyle == BS_SOLID ||
                ink.brush->m_record.lbStyle == BS_NULL),
      m_monochrome(ink.brush && ink.brush->m_monochrome),
      m_opaque(ink.opaqueBackground),
      m_hatch(ink.brush ? static_cast<int>(ink.brush->m_record.lbHatch & 0xFF) : 0),
      m_pattern(ink.brush ? ink.brush->m_pattern.get() : nullptr),
      m_colour(ink.brush ? PixelOf(ink.brush->m_record.lbColor) : 0),
      m_textColour(PixelOf(ink.textColour)),
      m_backgroundColour(PixelOf(ink.backgroundColour))
{
}

bool BrushPaint::PatternAt(int x, int y, Pixel & colour) const
{
    colour = m_pattern->Row(Modulo(y, m_pattern->height))[Modulo(x, m_pattern->width)];
    if (m_monochrome)
        colour = colour ? m_backgroundColour : m_textColour;
    return true;
}

bool BrushPaint::HatchAt(int x, int y, Pixel & colour) const
{
    if (IsOnHatch(m_hatch, x, y))
        return true;
    colour = m_backgroundColour;
    return m_opaque;
}
}  // namespace detail
