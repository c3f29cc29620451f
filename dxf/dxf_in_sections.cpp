#include <array>

#include "dxf/detail_dxf_walk.h"

using namespace std::string_view_literals;

namespace {
constexpr int kSectionNone = 0;
constexpr int kSectionTables = 3;
constexpr int kSectionBlocks = 4;
constexpr int kSectionEntities = 5;

struct EntityReader
{
    std::string_view name;
    int (*read)(CDXFInBasic & reader);
};

// What may stand in a block as well as in the drawing itself.
constexpr std::array kEntityReaders = {
    EntityReader{"LINE", [](CDXFInBasic & reader) { return reader.ReadEntLINE(); }},
    EntityReader{"3DLINE", [](CDXFInBasic & reader) { return reader.ReadEntLINE(); }},
    EntityReader{"ARC", [](CDXFInBasic & reader) { return reader.ReadEntARC(); }},
    EntityReader{"LWPOLYLINE", [](CDXFInBasic & reader) { return reader.ReadEntLWPOLYLINE(); }},
    EntityReader{"VERTEX", [](CDXFInBasic & reader) { return reader.ReadEntVERTEX(0); }},
    EntityReader{"POLYLINE", [](CDXFInBasic & reader) { return reader.ReadEntPOLYLINE(); }},
    EntityReader{"TEXT", [](CDXFInBasic & reader) { return reader.ReadEntTEXT(); }},
    EntityReader{"MTEXT", [](CDXFInBasic & reader) { return reader.ReadEntMTEXT(); }},
    EntityReader{"SOLID", [](CDXFInBasic & reader) { return reader.ReadEntSOLID(); }},
    EntityReader{"CIRCLE", [](CDXFInBasic & reader) { return reader.ReadEntCIRCLE(); }},
    EntityReader{"3DFACE", [](CDXFInBasic & reader) { return reader.ReadEnt3DFACE(); }},
};
}  // namespace

int CDXFInBasic::ReadEntity(std::string_view name)
{
    for (EntityReader const & entity : kEntityReaders)
        if (entity.name == name)
            return entity.read(*this);
    return DXF_GO_ON;
}

int CDXFInBasic::ReadUnknownSection()
{
    while (ReadLine() && m_data.View() != "ENDSEC"sv)
        continue;
    return DXF_GO_ON;
}

int CDXFInBasic::ReadTables()
{
    m_section = kSectionTables;
    int const status = WalkSection(DXF_GO_ON, "ENDSEC", [this](std::string_view name) {
        return name == "LAYER"sv ? ReadTableLayer() : DXF_GO_ON;
    });
    if (status != DXF_GO_ON)
        return status;
    SetupLayersOn();
    m_section = kSectionNone;
    return DXF_GO_ON;
}

int CDXFInBasic::ReadTableLayer()
{
    char name[kLayerSize] = {};
    return ReadGroups(
        std::nullopt,
        [&](int code, std::string_view value) -> std::optional<int> {
            if (code != 2)
                return std::nullopt;
            detail::ScanWord(value, name);
            return SetTableLayer(name);
        },
        [&] { return SetTableLayer(name); });
}

int CDXFInBasic::ReadEntities()
{
    m_section = kSectionEntities;
    int const status = WalkSection(DXF_GO_ON, "ENDSEC", [this](std::string_view name) {
        return name == "INSERT"sv ? InsertBlock() : ReadEntity(name);
    });
    if (status == DXF_GO_ON)
        m_section = kSectionNone;
    return status;
}

int CDXFInBasic::ReadBlocks()
{
    m_section = kSectionBlocks;
    int const status = WalkSection(DXF_GO_ON, "ENDSEC", [this](std::string_view name) {
        return name == "BLOCK"sv ? ReadBlock() : DXF_GO_ON;
    });
    if (status == DXF_GO_ON)
        m_section = kSectionNone;
    return status;
}

int CDXFInBasic::ReadBlock()
{
    char name[detail::kBlockNameSize] = {};
    char secondName[detail::kBlockNameSize] = {};
    TUVect3D basePoint = {};
    int flags = 0;
    // The block's texts are those of a block header, so the layer gets no more room here than there.
    std::span<char> const layer = std::span(m_layer).first(detail::kBlockNameSize);
    layer[0] = '\0';
    auto const readContent = [&] {
        int const status = SetBeginBlock(m_layer, basePoint, name, secondName, flags);
        return detail::EndsReading(status) ? status : ReadBlockEntities();
    };
    return ReadGroups(
        std::nullopt,
        [&](int code, std::string_view value) -> std::optional<int> {
            switch (code) {
                case 1:
                    return readContent();  // the path of a drawing outside, which nobody wants
                case 2:
                    detail::ScanWord(value, name);
                    break;
                case 3:
                    detail::ScanWord(value, secondName);
                    return readContent();
                case 8:
                    detail::ScanWord(value, layer);
                    break;
                case 70:
                    detail::ScanInt(value, flags);
                    break;
                default:
                    detail::TakePoint(code, value, {&basePoint, 1});
                    break;
            }
            return std::nullopt;
        },
        readContent);
}

int CDXFInBasic::ReadBlockEntities()
{
    m_section = kSectionBlocks;
    // A block's header that ended at a group 0 line leaves that line to be looked at.
    int const header = CheckEndOfEntity() ? DXF_AT_GROUP_ZERO : DXF_GO_ON;
    int const status =
        WalkSection(header, "ENDBLK", [this](std::string_view name) { return ReadEntity(name); });
    if (status != DXF_GO_ON)
        return status;
    int const end = SetEndBlock();
    m_section = kSectionNone;
    return end;
}
