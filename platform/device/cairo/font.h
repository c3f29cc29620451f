#ifndef KX7_PLATFORM_DEVICE_CAIRO_FONT_H
#define KX7_PLATFORM_DEVICE_CAIRO_FONT_H

#include <cairo.h>

#include <array>
#include <memory>
#include <string_view>

#include "platform/base/gdi_types.h"

namespace detail {
/// A face of the system's fonts at one size, with whole-pixel metrics as the platform has them: no kerning,
/// and each letter's width rounded.
class SizedFont
{
  public:
    /// The font of a record whose heights are scaled by `scale` to device pixels. Fonts are kept for reuse.
    static std::shared_ptr<SizedFont const> For(LOGFONT const & record, double scale);

    /// Height of the letters (em) in pixels, and how much wider than normal they are.
    SizedFont(cairo_font_face_t * face, int em, double stretch);
    ~SizedFont();
    SizedFont(SizedFont const &) = delete;
    SizedFont & operator=(SizedFont const &) = delete;

    int Em() const { return m_em; }
    double Stretch() const { return m_stretch; }
    int Ascent() const { return m_ascent; }
    int Descent() const { return m_descent; }
    int ExternalLeading() const { return m_externalLeading; }
    int AverageWidth() const { return m_averageWidth; }
    int MaximumWidth() const { return m_maximumWidth; }
    double UnderlineOffset() const { return m_underlineOffset; }  ///< Middle, below the base line.
    double StrikeOutOffset() const { return m_strikeOutOffset; }  ///< Middle, above the base line.
    double LineThickness() const { return m_lineThickness; }
    cairo_font_face_t * Face() const { return m_face; }

    /// The font for level text on pixels; owned by this object.
    cairo_scaled_font_t * LevelFont() const { return m_levelFont; }

    int Advance(char character) const { return m_advances[static_cast<unsigned char>(character)]; }
    unsigned long Glyph(char character) const { return m_glyphs[static_cast<unsigned char>(character)]; }

    /// Sum of the advances of a text.
    int Width(std::string_view text) const;

  private:
    void ReadMetrics();
    void ReadLetters(void * freetypeFace);

    cairo_font_face_t * m_face;
    cairo_scaled_font_t * m_levelFont = nullptr;
    int m_em;
    double m_stretch;
    int m_ascent = 0, m_descent = 0, m_externalLeading = 0;
    int m_averageWidth = 0, m_maximumWidth = 0;
    double m_underlineOffset = 0, m_strikeOutOffset = 0, m_lineThickness = 1;
    std::array<int, 256> m_advances = {};
    std::array<unsigned long, 256> m_glyphs = {};
};

/// A text to draw: where its base line starts and how it runs.
struct TextLine
{
    std::shared_ptr<SizedFont const> font;
    std::string_view text;
    double x = 0, y = 0;  ///< Start of the base line in device units.
    double angle = 0;     ///< Of the base line, in radians, anticlockwise.
    bool underline = false, strikeOut = false;

    /// Device point at a distance along the base line and below it.
    POINT At(double along, double below) const;
};

/// Shows a text in the colour that is set, with underline and strike-out. `asText` keeps the letters as such
/// in files.
void ShowText(cairo_t * cairo, TextLine const & line, bool asText);
}  // namespace detail

#endif
