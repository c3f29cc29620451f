#include <array>
#include <cmath>
#include <numbers>

#include "dxf/detail_dxf_walk.h"

namespace {
// What the hooks of both kinds of text are called with. Layer, line type, colour and width factor aren't
// read.
struct TextValues
{
    std::array<TUVect3D, 2> points = {};  // the place, and for an MTEXT its direction
    double height = 0;
    CString text;
    int colour = 0;
    CString layer;
    CString linetype;
    double rotation = 0;
    double widthFactor = 0;
    int horizontal = 0;
    int vertical = 0;
    TUVect3D extrusion = {{0, 0, 1}};
};

// Degrees of a direction. The quadrant is added to the acute angle without mirroring it, so 120 degrees come
// out as 150, and 180 as 0: hosts know these values and expect them.
double RotationOfDirection(TUVect3D const & direction)
{
    constexpr double kThreshold = 0.0001;
    double const dx = direction.x;
    double const dy = direction.y;
    if (std::abs(dx) >= kThreshold) {
        double const acute = 180 * std::atan(std::abs(dy) / std::abs(dx)) / std::numbers::pi;
        if (dx < 0)
            return acute + (dy > 0 ? 90 : dy < 0 ? 180 : 0);
        return acute + (dy < 0 ? 270 : 0);
    }
    if (std::abs(dy) >= kThreshold)
        return dy < kThreshold ? 270 : 90;
    return 0;
}

// Attachment points 1 to 9 run by rows from the top left; the bottom row has the number 3.
void SetAlignment(int attachment, int & horizontal, int & vertical)
{
    constexpr std::array kVerticalOfRow = {0, 1, 3};
    if (attachment < 1 || attachment > 9)
        return;
    horizontal = (attachment - 1) % 3;
    vertical = kVerticalOfRow[static_cast<std::size_t>((attachment - 1) / 3)];
}
}  // namespace

int CDXFInBasic::ReadEntTEXT()
{
    constexpr int kVerticalOfText = 3;
    m_layer[0] = '\0';
    TextValues values;
    values.vertical = kVerticalOfText;
    return ReadGroups(
        DXF_SIMPLE_ENTITY,
        [&](int code, std::string_view value) -> std::optional<int> {
            switch (code) {
                case 1:
                    values.text = m_data;
                    break;
                case 40:
                    detail::ScanDouble(value, values.height);
                    break;
                case 50:
                    detail::ScanDouble(value, values.rotation);
                    break;
                default:
                    detail::TakePoint(code, value, std::span(values.points).first(1));
                    break;
            }
            return std::nullopt;
        },
        [&] {
            return SetEntTEXT(values.points[0], values.height, values.text, values.colour, values.layer,
                              values.linetype, values.rotation, values.widthFactor, values.horizontal,
                              values.vertical, values.extrusion);
        });
}

int CDXFInBasic::ReadEntMTEXT()
{
    m_layer[0] = '\0';
    TextValues values;
    int attachment = 0;
    return ReadGroups(
        DXF_SIMPLE_ENTITY,
        [&](int code, std::string_view value) -> std::optional<int> {
            switch (code) {
                case 1:
                    values.text = m_data;
                    break;
                case 40:
                    detail::ScanDouble(value, values.height);
                    break;
                case 71:
                    detail::ScanInt(value, attachment);
                    break;
                default:
                    detail::TakePoint(code, value, values.points);
                    break;
            }
            return std::nullopt;
        },
        [&] {
            values.rotation = RotationOfDirection(values.points[1]);
            SetAlignment(attachment, values.horizontal, values.vertical);
            return SetEntMTEXT(values.points[0], values.height, values.text, values.colour, values.layer,
                               values.linetype, values.rotation, values.widthFactor, values.horizontal,
                               values.vertical, values.extrusion);
        });
}
