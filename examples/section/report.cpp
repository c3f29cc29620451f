#include "report.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "texts.h"

namespace {
// What a value is measured in: a power of the section length, an angle, or a plain ratio.
enum class Measure
{
    kRatio,
    kLength,
    kArea,
    kModulus,
    kInertia,
    kAngle
};

struct Row
{
    ETexts label;
    char const * symbol;
    char const * key;  // in JSON
    Measure measure;
    double value;
};

using Rows = std::vector<Row>;

Rows RowsOf(SectionValues const & v)
{
    return {
        {ETexts::kArea, "A", "area", Measure::kArea, v.exactArea},
        {ETexts::kFlattenedArea, "A'", "flattened_area", Measure::kArea, v.area},
        {ETexts::kPerimeter, "U", "perimeter", Measure::kLength, v.perimeter},
        {ETexts::kStaticX, "Sx", "Sx", Measure::kModulus, v.Sx},
        {ETexts::kStaticY, "Sy", "Sy", Measure::kModulus, v.Sy},
        {ETexts::kCentroidX, "xc", "xc", Measure::kLength, v.xc},
        {ETexts::kCentroidY, "yc", "yc", Measure::kLength, v.yc},
        {ETexts::kInertiaX, "Ix", "Ix", Measure::kInertia, v.Ixc},
        {ETexts::kInertiaY, "Iy", "Iy", Measure::kInertia, v.Iyc},
        {ETexts::kInertiaXY, "Ixy", "Ixy", Measure::kInertia, v.Ixyc},
        {ETexts::kPrincipal1, "I1", "I1", Measure::kInertia, v.I1},
        {ETexts::kPrincipal2, "I2", "I2", Measure::kInertia, v.I2},
        {ETexts::kPrincipalAngle, "alpha", "alpha", Measure::kAngle, v.alpha},
        {ETexts::kGyrationX, "ix", "ix", Measure::kLength, v.ix},
        {ETexts::kGyrationY, "iy", "iy", Measure::kLength, v.iy},
        {ETexts::kGyration1, "i1", "i1", Measure::kLength, v.i1},
        {ETexts::kGyration2, "i2", "i2", Measure::kLength, v.i2},
        {ETexts::kModulusTop, "Wx,t", "Wx_top", Measure::kModulus, v.WxTop},
        {ETexts::kModulusBottom, "Wx,b", "Wx_bottom", Measure::kModulus, v.WxBottom},
        {ETexts::kModulusRight, "Wy,r", "Wy_right", Measure::kModulus, v.WyRight},
        {ETexts::kModulusLeft, "Wy,l", "Wy_left", Measure::kModulus, v.WyLeft},
        {ETexts::kPlasticX, "Wpl,x", "Wpl_x", Measure::kModulus, v.WplX},
        {ETexts::kPlasticY, "Wpl,y", "Wpl_y", Measure::kModulus, v.WplY},
        {ETexts::kShearX, "Avx/A", "shear_x", Measure::kRatio, v.shearX},
        {ETexts::kShearY, "Avy/A", "shear_y", Measure::kRatio, v.shearY},
        {ETexts::kWidth, "b", "width_at_centroid", Measure::kLength, v.widthAtCentroid},
    };
}

double Shown(double value, Measure measure, CVARDUnits const & units)
{
    switch (measure) {
        case Measure::kLength:
            return units.GetProjectToVal(value, UN_SectionLength);
        case Measure::kArea:
            return units.GetProjectToValExt(value, UE_SecArea);
        case Measure::kModulus:
            return units.GetProjectToValExt(value, UE_SecModulus);
        case Measure::kInertia:
            return units.GetProjectToValExt(value, UE_SecInertia);
        case Measure::kAngle:
            return units.GetProjectToVal(value, UN_Angle);
        default:
            return value;
    }
}

std::string Label(Measure measure, CVARDUnits const & units)
{
    switch (measure) {
        case Measure::kLength:
            return static_cast<char const *>(units.GetUnitString(UN_SectionLength));
        case Measure::kArea:
            return static_cast<char const *>(units.GetUnitStringExt(UE_SecArea));
        case Measure::kModulus:
            return static_cast<char const *>(units.GetUnitStringExt(UE_SecModulus));
        case Measure::kInertia:
            return static_cast<char const *>(units.GetUnitStringExt(UE_SecInertia));
        case Measure::kAngle:
            return static_cast<char const *>(units.GetUnitString(UN_Angle));
        default:
            return "";
    }
}

// The suite's number text; what is noise beside the section's size is shown as zero.
std::string NumberText(double shown, double size)
{
    constexpr double kNoise = 1e-12;  // of the largest value of the same measure
    double const clean = std::fabs(shown) <= kNoise * size ? 0.0 : shown;
    return static_cast<char const *>(CVARDString().Str(clean, -1, -1, 0));
}

// The largest value with which a value of this measure can be compared.
double SizeOf(SectionValues const & v, Measure measure, CVARDUnits const & units)
{
    double const length =
        std::hypot(v.box.max.x - v.box.min.x, v.box.max.y - v.box.min.y) + std::hypot(v.xc, v.yc);
    double const powers[] = {
        1.0, length, v.area, v.area * length, v.area * length * length, std::numbers::pi};
    return std::fabs(Shown(powers[static_cast<int>(measure)], measure, units));
}

// Bytes of UTF-8 that continue a letter take no column.
std::string Padded(std::string const & text, std::size_t width, bool toRight)
{
    std::size_t columns = 0;
    for (char c : text)
        columns += (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    std::string const blanks(columns < width ? width - columns : 0, ' ');
    return toRight ? blanks + text : text + blanks;
}

std::string Line(std::string const & label, std::string const & symbol, std::string const & value,
                 std::string const & unit)
{
    std::string line =
        "  " + Padded(label, 44, false) + Padded(symbol, 7, false) + Padded(value, 17, true) + " " + unit;
    line.erase(line.find_last_not_of(' ') + 1);
    return line + "\n";
}

std::string PartText(ReportPart const & part, CVARDUnits const & units, ELanguages language)
{
    std::string text = part.body > 0 ? Text(ETexts::kBody, language) + " " + std::to_string(part.body)
                                     : Text(ETexts::kAllTogether, language);
    text += " (" + Text(ETexts::kOutlines, language) + ": " + std::to_string(part.outlines) + ")\n";
    for (Row const & row : RowsOf(part.values))
        text +=
            Line(Text(row.label, language), row.symbol,
                 NumberText(Shown(row.value, row.measure, units), SizeOf(part.values, row.measure, units)),
                 Label(row.measure, units));
    double const error = (part.values.area - part.values.exactArea) / part.values.exactArea;
    char share[32];
    std::snprintf(share, sizeof(share), "%.1e", error);
    return text + Line(Text(ETexts::kAreaError, language), "dA/A", share, "") + "\n";
}

std::string ExtrasText(Report const & report, CVARDUnits const & units, ELanguages language)
{
    ReportExtras const & extras = report.extras;
    double const size = 1.0;
    std::string const areaUnit = Label(Measure::kArea, units);
    std::string text;
    if (extras.hasCommon)
        text += Line(Text(ETexts::kCommonArea, language) + " " + extras.otherName, "A&B",
                     NumberText(Shown(extras.commonArea, Measure::kArea, units), size), areaUnit);
    if (extras.hasMesh) {
        text += Line(Text(ETexts::kTriangles, language), "n", std::to_string(extras.triangles), "");
        text += Line(Text(ETexts::kMeshArea, language), "sum A",
                     NumberText(Shown(extras.meshArea, Measure::kArea, units), size), areaUnit);
    }
    return text.empty() ? text : text + "\n";
}

std::string JsonString(std::string const & text)
{
    std::string quoted = "\"";
    for (char c : text) {
        if (static_cast<unsigned char>(c) < 0x20) {
            char escape[8];
            std::snprintf(escape, sizeof(escape), "\\u%04x", static_cast<unsigned int>(c));
            quoted += escape;
            continue;
        }
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + "\"";
}

std::string JsonNumber(double value)
{
    if (!std::isfinite(value))
        return "null";
    std::array<char, 32> digits;
    auto const result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), result.ptr};
}

std::string JsonPart(ReportPart const & part, CVARDUnits const & units)
{
    std::string text = "    {\n      \"body\": " + std::to_string(part.body) +
                       ",\n      \"outlines\": " + std::to_string(part.outlines);
    for (Row const & row : RowsOf(part.values))
        text += ",\n      " + JsonString(row.key) + ": " + JsonNumber(Shown(row.value, row.measure, units));
    return text + "\n    }";
}
}  // namespace

std::string TableText(Report const & report, CVARDUnits const & units, ELanguages language)
{
    std::string text = report.drawing + "\n\n";
    for (ReportPart const & part : report.parts)
        text += PartText(part, units, language);
    return text + ExtrasText(report, units, language);
}

std::string JsonText(Report const & report, CVARDUnits const & units)
{
    std::string text = "{\n  \"drawing\": " + JsonString(report.drawing) +
                       ",\n  \"length_unit\": " + JsonString(Label(Measure::kLength, units)) +
                       ",\n  \"angle_unit\": " + JsonString(Label(Measure::kAngle, units)) +
                       ",\n  \"bound\": " + JsonNumber(Shown(report.bound, Measure::kLength, units));
    ReportExtras const & extras = report.extras;
    if (extras.hasCommon)
        text += ",\n  \"common_area\": " + JsonNumber(Shown(extras.commonArea, Measure::kArea, units));
    if (extras.hasMesh)
        text += ",\n  \"mesh_triangles\": " + std::to_string(extras.triangles) +
                ",\n  \"mesh_area\": " + JsonNumber(Shown(extras.meshArea, Measure::kArea, units));
    text += ",\n  \"sections\": [\n";
    for (std::size_t i = 0; i < report.parts.size(); ++i)
        text += JsonPart(report.parts[i], units) + (i + 1 < report.parts.size() ? ",\n" : "\n");
    return text + "  ]\n}\n";
}
