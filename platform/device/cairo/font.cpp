#include "platform/device/cairo/font.h"

#include <cairo-ft.h>
#include <fontconfig/fontconfig.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <mutex>
#include <string>
#include <tuple>
#include <vector>

#include "platform/base/code_page.h"

#include FT_TRUETYPE_TABLES_H

namespace detail {
namespace {
constexpr int kDefaultCellHeight = 16;  // of a font that doesn't say its height, in pixels
constexpr int kLargestEm = 4096;        // letters are held to this height in pixels
constexpr std::size_t kKeptFonts = 256;
constexpr int kBoldFrom = 551;  // weights from here on take the bold face

/// The faces that stand for the platform's usual ones: the same widths under a free licence.
std::string SubstituteFor(std::string const & face)
{
    static std::map<std::string, std::string> const substitutes = {{"arial", "Liberation Sans"},
                                                                   {"helv", "Liberation Sans"},
                                                                   {"ms sans serif", "Liberation Sans"},
                                                                   {"ms shell dlg", "Liberation Sans"},
                                                                   {"times new roman", "Liberation Serif"},
                                                                   {"tms rmn", "Liberation Serif"},
                                                                   {"courier new", "Liberation Mono"},
                                                                   {"courier", "Liberation Mono"}};
    std::string lower = face;
    std::transform(lower.begin(), lower.end(), lower.begin(), LowerCase1250);
    auto const found = substitutes.find(lower);
    if (found != substitutes.end())
        return found->second;
    return face.empty() ? "Liberation Sans" : Utf8From1250(face);
}

using FaceKey = std::tuple<std::string, bool, bool>;  // family, bold, italic

/// Where the system keeps the best match of a face.
struct FontFile
{
    std::string path;
    int index = 0;  // of the face in the file
};

/// Reads the system's list of fonts for this one question and lets it go again: a process has few faces.
FontFile FindFontFile(FaceKey const & key)
{
    auto const & [family, bold, italic] = key;
    FcConfig * const config = FcInitLoadConfigAndFonts();
    FcPattern * const wanted = FcPatternCreate();
    FcPatternAddString(wanted, FC_FAMILY, reinterpret_cast<FcChar8 const *>(family.c_str()));
    FcPatternAddInteger(wanted, FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_REGULAR);
    FcPatternAddInteger(wanted, FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
    FcPatternAddBool(wanted, FC_SCALABLE, FcTrue);
    FcConfigSubstitute(config, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result;
    FontFile file;
    if (FcPattern * const match = FcFontMatch(config, wanted, &result)) {
        FcChar8 * path = nullptr;
        if (FcPatternGetString(match, FC_FILE, 0, &path) == FcResultMatch)
            file.path = reinterpret_cast<char const *>(path);
        FcPatternGetInteger(match, FC_INDEX, 0, &file.index);
        FcPatternDestroy(match);
    }
    FcPatternDestroy(wanted);
    FcConfigDestroy(config);
    return file;
}

/// The process's FreeType, never closed, as the faces live as long as the process.
FT_Library TheFreeType()
{
    static FT_Library const library = [] {
        FT_Library made = nullptr;
        FT_Init_FreeType(&made);
        return made;
    }();
    return library;
}

/// A face of the system; where there is no font at all, the one that Cairo brings along.
cairo_font_face_t * LoadFace(FaceKey const & key)
{
    FontFile const file = FindFontFile(key);
    FT_Face face = nullptr;
    if (FT_New_Face(TheFreeType(), file.path.c_str(), file.index, &face) == 0)
        return cairo_ft_font_face_create_for_ft_face(face, FT_LOAD_DEFAULT);
    return cairo_toy_font_face_create("@cairo:", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
}

cairo_scaled_font_t * ScaledFont(cairo_font_face_t * face, double em, double stretch, double angle,
                                 bool hinted)
{
    cairo_matrix_t size;
    cairo_matrix_init_rotate(&size, -angle);
    cairo_matrix_scale(&size, em * stretch, em);
    cairo_matrix_t identity;
    cairo_matrix_init_identity(&identity);
    cairo_font_options_t * const options = cairo_font_options_create();
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    cairo_font_options_set_hint_style(options, hinted ? CAIRO_HINT_STYLE_FULL : CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_scaled_font_t * const font = cairo_scaled_font_create(face, &size, &identity, options);
    cairo_font_options_destroy(options);
    return font;
}

/// Code point of a text of one character in UTF-8 of at most three bytes.
unsigned long CodePoint(std::string const & text)
{
    auto const byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    if (text.empty())
        return 0;
    if (byte(0) < 0x80)
        return byte(0);
    if (text.size() == 2)
        return (byte(0) & 0x1Fu) << 6 | (byte(1) & 0x3Fu);
    return (byte(0) & 0x0Fu) << 12 | (byte(1) & 0x3Fu) << 6 | (byte(2) & 0x3Fu);
}

int Rounded(double value)
{
    return static_cast<int>(std::lround(value));
}

/// Ratio of the cell's height and of the average width to the em, of a face.
struct FaceRatios
{
    double cell = 1.15;
    double averageWidth = 0.5;
};

FaceRatios RatiosOf(cairo_font_face_t * face)
{
    FaceRatios ratios;
    cairo_scaled_font_t * const font = ScaledFont(face, 16, 1, 0, true);
    if (FT_Face const ft = cairo_ft_scaled_font_lock_face(font)) {
        auto const * const os2 = static_cast<TT_OS2 const *>(FT_Get_Sfnt_Table(ft, FT_SFNT_OS2));
        if (os2 && ft->units_per_EM > 0) {
            ratios.cell = static_cast<double>(os2->usWinAscent + os2->usWinDescent) / ft->units_per_EM;
            ratios.averageWidth = static_cast<double>(os2->xAvgCharWidth) / ft->units_per_EM;
        }
        cairo_ft_scaled_font_unlock_face(font);
    }
    cairo_scaled_font_destroy(font);
    return ratios;
}
struct LoadedFace
{
    cairo_font_face_t * face = nullptr;
    FaceRatios ratios;
};

/// The process's faces and sized fonts, behind one lock.
struct FontStore
{
    using SizeKey = std::tuple<FaceKey, int, double>;  // face, em, stretch

    std::mutex mutex;
    std::map<FaceKey, LoadedFace> faces;
    std::map<SizeKey, std::shared_ptr<SizedFont const>> fonts;

    LoadedFace const & Face(FaceKey const & key)
    {
        LoadedFace & loaded = faces[key];
        if (!loaded.face) {
            loaded.face = LoadFace(key);
            loaded.ratios = RatiosOf(loaded.face);
        }
        return loaded;
    }

    std::shared_ptr<SizedFont const> Font(FaceKey const & key, int em, double stretch)
    {
        if (fonts.size() > kKeptFonts)
            fonts.clear();
        std::shared_ptr<SizedFont const> & font = fonts[{key, em, stretch}];
        if (!font)
            font = std::make_shared<SizedFont>(Face(key).face, em, stretch);
        return font;
    }
};

FontStore & TheFontStore()
{
    static FontStore * const store = new FontStore;  // never destroyed: see the handle table
    return *store;
}

}  // namespace

std::shared_ptr<SizedFont const> SizedFont::For(LOGFONT const & record, double scale)
{
    FontStore & store = TheFontStore();
    std::lock_guard const lock(store.mutex);
    FaceKey const key{SubstituteFor(record.lfFaceName), record.lfWeight >= kBoldFrom, record.lfItalic != 0};
    double height = std::min(std::fabs(static_cast<double>(record.lfHeight)) * scale, 1.0 * kLargestEm);
    if (record.lfHeight == 0)
        height = kDefaultCellHeight;
    FaceRatios const ratios = store.Face(key).ratios;
    int const em = std::max(1, Rounded(record.lfHeight < 0 ? height : height / ratios.cell));
    double stretch = 1;
    if (record.lfWidth != 0)
        stretch = std::clamp(std::fabs(record.lfWidth * scale) / (ratios.averageWidth * em), 0.05, 20.0);
    return store.Font(key, em, stretch);
}

SizedFont::SizedFont(cairo_font_face_t * face, int em, double stretch)
    : m_face(cairo_font_face_reference(face)), m_em(em), m_stretch(stretch)
{
    ReadMetrics();
}

SizedFont::~SizedFont()
{
    cairo_font_face_destroy(m_face);
}

void SizedFont::ReadMetrics()
{
    m_levelFont = ScaledFont(m_face, m_em, m_stretch, 0, true);
    if (FT_Face const face = cairo_ft_scaled_font_lock_face(m_levelFont)) {
        auto const * const os2 = static_cast<TT_OS2 const *>(FT_Get_Sfnt_Table(face, FT_SFNT_OS2));
        auto const * const hhea = static_cast<TT_HoriHeader const *>(FT_Get_Sfnt_Table(face, FT_SFNT_HHEA));
        double const unit = face->units_per_EM > 0 ? static_cast<double>(m_em) / face->units_per_EM : 0;
        if (os2 && hhea) {
            m_ascent = Rounded(os2->usWinAscent * unit);
            m_descent = Rounded(os2->usWinDescent * unit);
            // The part of the typographic line gap that the cell doesn't hold already.
            int const gap =
                hhea->Line_Gap - (os2->usWinAscent + os2->usWinDescent - hhea->Ascender + hhea->Descender);
            m_externalLeading = std::max(0, Rounded(gap * unit));
            m_averageWidth = Rounded(os2->xAvgCharWidth * unit * m_stretch);
            m_maximumWidth = Rounded(hhea->advance_Width_Max * unit * m_stretch);
            m_strikeOutOffset = os2->yStrikeoutPosition * unit;
        }
        m_underlineOffset = -face->underline_position * unit;
        m_lineThickness = std::max(1.0, std::round(face->underline_thickness * unit));
        ReadLetters(face);
        cairo_ft_scaled_font_unlock_face(m_levelFont);
    }
}

void SizedFont::ReadLetters(void * freetypeFace)
{
    constexpr double kFixedPoint = 64;  // units of FreeType's positions in a pixel
    auto const face = static_cast<FT_Face>(freetypeFace);
    for (std::size_t i = 0; i < m_glyphs.size(); ++i) {
        char const character = static_cast<char>(i);
        m_glyphs[i] = FT_Get_Char_Index(face, CodePoint(Utf8From1250({&character, 1})));
        if (FT_Load_Glyph(face, static_cast<FT_UInt>(m_glyphs[i]), FT_LOAD_DEFAULT) == 0)
            m_advances[i] = Rounded(static_cast<double>(face->glyph->advance.x) / kFixedPoint);
    }
}

int SizedFont::Width(std::string_view text) const
{
    long long width = 0;
    for (char const character : text)
        width += Advance(character);
    return static_cast<int>(std::min<long long>(width, INT32_MAX));
}

POINT TextLine::At(double along, double below) const
{
    double const c = std::cos(angle);
    double const s = std::sin(angle);
    return {Rounded(x + along * c + below * s), Rounded(y - along * s + below * c)};
}

namespace {
/// A line along the text, `below` its base line at the line's middle.
void DrawRule(cairo_t * cairo, TextLine const & line, double below)
{
    double const thickness = line.font->LineThickness();
    cairo_save(cairo);
    cairo_translate(cairo, line.x, line.y);
    cairo_rotate(cairo, -line.angle);
    cairo_rectangle(cairo, 0, std::round(below - thickness / 2), line.font->Width(line.text), thickness);
    cairo_fill(cairo);
    cairo_restore(cairo);
}

std::vector<cairo_glyph_t> Glyphs(TextLine const & line)
{
    std::vector<cairo_glyph_t> glyphs;
    glyphs.reserve(line.text.size());
    double along = 0;
    for (char const character : line.text) {
        glyphs.push_back({line.font->Glyph(character), line.x + along * std::cos(line.angle),
                          line.y - along * std::sin(line.angle)});
        along += line.font->Advance(character);
    }
    return glyphs;
}

/// Shows glyphs together with the text that they stand for, one glyph a character.
void ShowGlyphsAsText(cairo_t * cairo, std::string_view text, std::vector<cairo_glyph_t> const & glyphs)
{
    std::string utf8;
    std::vector<cairo_text_cluster_t> clusters;
    for (char const character : text) {
        std::string const letter = Utf8From1250({&character, 1});
        clusters.push_back({static_cast<int>(letter.size()), 1});
        utf8 += letter;
    }
    cairo_show_text_glyphs(cairo, utf8.data(), static_cast<int>(utf8.size()), glyphs.data(),
                           static_cast<int>(glyphs.size()), clusters.data(),
                           static_cast<int>(clusters.size()), static_cast<cairo_text_cluster_flags_t>(0));
}
}  // namespace

void ShowText(cairo_t * cairo, TextLine const & line, bool asText)
{
    bool const isLevel = !asText && line.angle == 0;
    cairo_scaled_font_t * const font =
        isLevel ? cairo_scaled_font_reference(line.font->LevelFont())
                : ScaledFont(line.font->Face(), line.font->Em(), line.font->Stretch(), line.angle, false);
    cairo_set_scaled_font(cairo, font);
    std::vector<cairo_glyph_t> const glyphs = Glyphs(line);
    if (asText)
        ShowGlyphsAsText(cairo, line.text, glyphs);
    else
        cairo_show_glyphs(cairo, glyphs.data(), static_cast<int>(glyphs.size()));
    cairo_scaled_font_destroy(font);
    if (line.underline)
        DrawRule(cairo, line, line.font->UnderlineOffset());
    if (line.strikeOut)
        DrawRule(cairo, line, -line.font->StrikeOutOffset());
}
}  // namespace detail
