#include <algorithm>
#include <cstring>
#include <vector>

#include "dxf/detail_dxf_walk.h"

using namespace std::string_view_literals;

namespace {
/// Vertices of an LWPOLYLINE as they arrive. Room is taken as vertices come, never by the count alone.
class LightweightVertices
{
  public:
    /// Starts anew with room for `count` vertices; a count below 2 leaves none.
    /// False for a count that no drawing has.
    bool SetCount(int count);

    /// Group 10, 20 or 42; false if there is no room or no vertex for the value.
    bool TakeX(std::string_view value);
    bool TakeY(std::string_view value);
    bool TakeBulge(std::string_view value);

    /// Whether the vertices are complete behind a group 20: no bulge may follow the last point.
    bool AreComplete() const { return Count() == m_room && (m_bulgeLeads || !m_bulgeSeen); }

    std::size_t Count() const { return m_points.size(); }
    TUVect2D * Points() { return m_points.data(); }
    double * Bulges() { return m_bulges.data(); }

  private:
    bool MoveOn();

    static constexpr int kMostVertices = 1 << 24;
    static constexpr std::size_t kRoomAtOnce = 256;  // vertices

    std::size_t m_room = 0;
    bool m_bulgeLeads = false;  // group 42 came ahead of the first group 10
    bool m_bulgeSeen = false;
    std::vector<TUVect2D> m_points;
    std::vector<double> m_bulges;
};

bool LightweightVertices::SetCount(int count)
{
    *this = LightweightVertices();
    if (count > kMostVertices)
        return false;
    m_room = count > 1 ? static_cast<std::size_t>(count) : 0;
    m_points.reserve(std::min(m_room, kRoomAtOnce));
    m_bulges.reserve(std::min(m_room, kRoomAtOnce));
    return true;
}

bool LightweightVertices::MoveOn()
{
    if (Count() == m_room)
        return false;
    m_points.push_back({});
    m_bulges.push_back(0);
    return true;
}

bool LightweightVertices::TakeX(std::string_view value)
{
    if (!m_bulgeLeads && !MoveOn())
        return false;
    detail::ScanDouble(value, m_points.back().x);
    return true;
}

bool LightweightVertices::TakeY(std::string_view value)
{
    if (m_points.empty())
        return false;
    detail::ScanDouble(value, m_points.back().y);
    return true;
}

bool LightweightVertices::TakeBulge(std::string_view value)
{
    m_bulgeSeen = true;
    m_bulgeLeads = m_bulgeLeads || m_points.empty();
    if (m_bulgeLeads && !MoveOn())
        return false;
    detail::ScanDouble(value, m_bulges.back());
    return true;
}
}  // namespace

int CDXFInBasic::ReadEntLWPOLYLINE()
{
    Attributes common(m_layer);
    LightweightVertices vertices;
    int count = 0;
    int flags = 0;
    double elevation = 0;
    double constantWidth = 0;
    double startWidth = 0;
    double endWidth = 0;
    auto const finish = [&] {
        // Other flags beside the closing one keep the polyline open: hosts rely on it.
        int const closed = flags == 1 ? 1 : 0;
        return SetEntLWPOLYLINE(static_cast<int>(vertices.Count()), vertices.Points(), vertices.Bulges(),
                                closed, common.colour, elevation, common.thickness, m_layer, common.linetype,
                                constantWidth, startWidth, endWidth, common.extrusion);
    };
    return ReadGroups(
        DXF_LWPOLYLINE,
        [&](int code, std::string_view value) -> std::optional<int> {
            bool taken = true;
            switch (code) {
                case 10:
                    taken = vertices.TakeX(value);
                    break;
                case 20:
                    taken = vertices.TakeY(value);
                    if (taken && vertices.AreComplete())
                        return finish();
                    break;
                case 38:
                    detail::ScanDouble(value, elevation);
                    break;
                case 40:
                    detail::ScanDouble(value, startWidth);
                    break;
                case 41:
                    detail::ScanDouble(value, endWidth);
                    break;
                case 42:
                    taken = vertices.TakeBulge(value);
                    break;
                case 43:
                    detail::ScanDouble(value, constantWidth);
                    break;
                case 70:
                    detail::ScanInt(value, flags);
                    break;
                case 90:
                    taken = !detail::ScanInt(value, count) || vertices.SetCount(count);
                    break;
                default:
                    common.Take(code, value);
                    break;
            }
            return taken ? std::nullopt : std::optional(DXF_NO_VERTEX_COUNT);
        },
        finish);
}

int CDXFInBasic::ReadEntVERTEX(int inPolyline)
{
    m_layer[0] = '\0';
    TUVect3D point = {};
    double bulge = 0;
    auto const finish = [&](int hasBulge) {
        return SetEntVERTEX(point, m_layer, bulge, hasBulge, inPolyline);
    };
    return ReadGroups(
        inPolyline == 1 ? std::nullopt : std::optional(DXF_POLYLINE),
        [&](int code, std::string_view value) -> std::optional<int> {
            switch (code) {
                case 8:
                    detail::ScanWord(value, m_layer);
                    break;
                case 42:
                    detail::ScanDouble(value, bulge);
                    return finish(1);
                case 70:
                    return finish(0);
                default:
                    detail::TakePoint(code, value, {&point, 1});
                    break;
            }
            return std::nullopt;
        },
        [&] { return finish(0); });
}

struct CDXFInBasic::PolylineVertices
{
    CArray<TUVect3D, TUVect3D &> points;
    CArray<double, double &> bulges;
};

// Reads the VERTEX records of a POLYLINE, the first of which may be the current line, and leaves the group 0
// line behind them as the current one. The groups that follow an ended vertex are passed over.
int CDXFInBasic::ReadVertices(PolylineVertices & vertices)
{
    int status = DXF_AT_GROUP_ZERO;
    for (;;) {
        if (status != DXF_AT_GROUP_ZERO)
            status = ReadDXFLine();
        if (detail::EndsReading(status))
            return status;
        status = DXF_GO_ON;
        if (!CheckEndOfEntity())
            continue;
        if (m_data.View() != "VERTEX"sv)
            return DXF_GO_ON;
        status = ReadEntVERTEX(1);
        if (detail::EndsReading(status))
            return status;
        vertices.points.Add(m_vertex);
        vertices.bulges.Add(m_vertexBulge);
    }
}

int CDXFInBasic::ReadEntPOLYLINE()
{
    Attributes common(m_layer);
    PolylineVertices vertices;
    int flags = 0;
    double elevation = 0;
    double startWidth = 0;
    double endWidth = 0;
    return ReadGroups(
        DXF_POLYLINE,
        [&](int code, std::string_view value) -> std::optional<int> {
            switch (code) {
                case 30:
                    detail::ScanDouble(value, elevation);
                    break;
                case 40:
                    detail::ScanDouble(value, startWidth);
                    break;
                case 41:
                    detail::ScanDouble(value, endWidth);
                    break;
                case 70:
                    detail::ScanInt(value, flags);
                    break;
                default:
                    common.Take(code, value);
                    break;
            }
            return std::nullopt;
        },
        [&] {
            char layer[kLayerSize];  // the vertices read theirs into the shared field
            std::memcpy(layer, m_layer, sizeof layer);
            if (int const status = ReadVertices(vertices); status != DXF_GO_ON)
                return status;
            std::memcpy(m_layer, layer, sizeof layer);
            int count = vertices.points.GetSize();
            return SetEntPOLYLINE(count, vertices.points, vertices.bulges, flags, common.colour, elevation,
                                  common.thickness, m_layer, common.linetype, startWidth, endWidth,
                                  common.extrusion);
        });
}
