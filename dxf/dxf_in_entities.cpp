#include <array>

#include "dxf/detail_dxf_walk.h"

int CDXFInBasic::ReadEntLINE()
{
    Attributes common(m_layer);
    std::array<TUVect3D, 2> ends = {};
    auto const finish = [&] {
        return SetEntLINE(ends[0], ends[1], common.colour, common.thickness, m_layer, common.linetype,
                          common.extrusion);
    };
    return ReadGroups(
        DXF_SIMPLE_ENTITY,
        [&](int code, std::string_view value) -> std::optional<int> {
            if (!detail::TakePoint(code, value, ends))
                common.Take(code, value);
            return code == 31 ? std::optional(finish()) : std::nullopt;
        },
        finish);
}

int CDXFInBasic::ReadEntARC()
{
    Attributes common(m_layer);
    TUVect3D centre = {};
    double radius = 0;
    double startAngle = 0;
    double endAngle = 0;
    auto const finish = [&] {
        return SetEntARC(centre, radius, startAngle, endAngle, common.colour, common.thickness, m_layer,
                         common.linetype, common.extrusion);
    };
    return ReadGroups(
        DXF_ARC_OR_INSERT,
        [&](int code, std::string_view value) -> std::optional<int> {
            switch (code) {
                case 40:
                    detail::ScanDouble(value, radius);
                    break;
                case 50:
                    detail::ScanDouble(value, startAngle);
                    break;
                case 51:
                    detail::ScanDouble(value, endAngle);
                    return finish();
                default:
                    if (!detail::TakePoint(code, value, {&centre, 1}))
                        common.Take(code, value);
            }
            return std::nullopt;
        },
        finish);
}

int CDXFInBasic::ReadEntCIRCLE()
{
    Attributes common(m_layer);
    TUVect3D centre = {};
    double radius = 0;
    return ReadGroups(
        DXF_SIMPLE_ENTITY,
        [&](int code, std::string_view value) -> std::optional<int> {
            if (code == 40)
                detail::ScanDouble(value, radius);
            else if (!detail::TakePoint(code, value, {&centre, 1}))
                common.Take(code, value);
            return std::nullopt;
        },
        [&] {
            return SetEntCIRCLE(centre, radius, common.colour, common.thickness, m_layer, common.linetype,
                                common.extrusion);
        });
}

int CDXFInBasic::ReadEntSOLID()
{
    Attributes common(m_layer);
    std::array<TUVect3D, 4> corners = {};
    return ReadGroups(
        DXF_SIMPLE_ENTITY,
        [&](int code, std::string_view value) -> std::optional<int> {
            if (!detail::TakePoint(code, value, corners))
                common.Take(code, value);
            return std::nullopt;
        },
        [&] {
            return SetEntSOLID(corners[0], corners[1], corners[2], corners[3], common.colour,
                               common.thickness, m_layer, common.linetype, common.extrusion);
        });
}

int CDXFInBasic::ReadEnt3DFACE()
{
    Attributes common(m_layer);
    std::array<TUVect3D, 4> corners = {};
    CString owner;
    int edges = 0;
    auto const finish = [&] {
        auto const edge = [&](int bit) { return edges & bit ? 1 : 0; };
        return SetEnt3DFACE(corners[0], corners[1], corners[2], corners[3], common.colour, common.thickness,
                            m_layer, common.linetype, edge(1), edge(2), edge(4), edge(8), owner);
    };
    return ReadGroups(
        DXF_SIMPLE_ENTITY,
        [&](int code, std::string_view value) -> std::optional<int> {
            if (code == 70) {
                detail::ScanInt(value, edges);
                return finish();
            }
            if (code == 330)
                owner = CString(detail::FirstWord(value));
            else if (!detail::TakePoint(code, value, corners))
                common.Take(code, value);
            return std::nullopt;
        },
        finish);
}

int CDXFInBasic::InsertBlock()
{
    Attributes common(m_layer);
    char name[detail::kBlockNameSize] = {};
    TUVect3D point = {};
    TUVect3D scales = {{1, 1, 1}};
    double rotation = 0;
    double columnSpacing = 0;
    double rowSpacing = 0;
    int columns = 1;
    int rows = 1;
    return ReadGroups(
        DXF_ARC_OR_INSERT,
        [&](int code, std::string_view value) -> std::optional<int> {
            switch (code) {
                case 2:
                    detail::ScanWord(value, name);
                    break;
                case 41:
                    detail::ScanDouble(value, scales.x);
                    break;
                case 42:
                    detail::ScanDouble(value, scales.y);
                    break;
                case 43:
                    detail::ScanDouble(value, scales.z);
                    break;
                case 44:
                    detail::ScanDouble(value, columnSpacing);
                    break;
                case 45:
                    detail::ScanDouble(value, rowSpacing);
                    break;
                case 50:
                    detail::ScanDouble(value, rotation);
                    break;
                case 70:
                    detail::ScanInt(value, columns);
                    break;
                case 71:
                    detail::ScanInt(value, rows);
                    break;
                case 210:
                case 220:
                case 230:
                    common.Take(code, value);
                    break;
                default:
                    detail::TakePoint(code, value, {&point, 1});
                    break;
            }
            return std::nullopt;
        },
        [&] {
            return SetInsertedBlock(name, point, scales, rotation, columns, rows, columnSpacing, rowSpacing,
                                    common.extrusion);
        });
}
