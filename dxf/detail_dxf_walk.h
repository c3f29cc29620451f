#ifndef KX7_DXF_DETAIL_DXF_WALK_H
#define KX7_DXF_DETAIL_DXF_WALK_H

// The loops of the DXF reader, over the sections, over the entities of one and over the groups of those, and
// what most entities have in common. For the reader's own sources only.

#include <span>

#include "dxf/dxf_in_basic.h"
#include "dxf/number_scan.h"

namespace detail {
inline constexpr int kBlockNameSize = 81;  // bytes of a block's texts with their NUL

/// The status of an entity that a group 0 line ended, by its hook's status.
inline int StatusAtGroupZero(int status)
{
    return status == DXF_GO_ON ? DXF_AT_GROUP_ZERO : status;
}

inline bool EndsReading(int status)
{
    return status != DXF_GO_ON && status != DXF_AT_GROUP_ZERO;
}

/// Takes a coordinate group (10, 20, 30 with the point's index added) of one of several points; false for any
/// other group.
inline bool TakePoint(int code, std::string_view value, std::span<TUVect3D> points)
{
    if (code < 10 || code >= 40 || static_cast<std::size_t>(code % 10) >= points.size())
        return false;
    ScanDouble(value, points[static_cast<std::size_t>(code % 10)].a[code / 10 - 1]);
    return true;
}
}  // namespace detail

/// The groups that most entities share. `layer` is the reader's shared field.
struct CDXFInBasic::Attributes
{
    std::span<char> layer;
    char linetype[kLayerSize];
    int colour = 0;
    double thickness = 0;
    TUVect3D extrusion = {{0, 0, 1}};

    explicit Attributes(std::span<char> sharedLayer) : layer(sharedLayer)
    {
        layer[0] = '\0';
        linetype[0] = '\0';
    }

    void Take(int code, std::string_view value)
    {
        switch (code) {
            case 6:
                detail::ScanWord(value, linetype);
                break;
            case 8:
                detail::ScanWord(value, layer);
                break;
            case 39:
                detail::ScanDouble(value, thickness);
                break;
            case 62:
                detail::ScanInt(value, colour);
                break;
            case 210:
                detail::ScanDouble(value, extrusion.x);
                break;
            case 220:
                detail::ScanDouble(value, extrusion.y);
                break;
            case 230:
                detail::ScanDouble(value, extrusion.z);
                break;
            default:
                break;
        }
    }
};

/// Reads the groups of an entity until it ends, and returns its status. `take(code, value)` interprets a
/// group; a status that it returns ends the entity. At a group 0 line `finish()` gives the status.
/// PreReadControl is asked with `type`, or not at all without one.
template <class Take, class Finish>
int CDXFInBasic::ReadGroups(std::optional<EDXFEntType> type, Take take, Finish finish)
{
    constexpr int kSkipGroup = 1;
    constexpr int kEndEntity = 2;
    for (;;) {
        if (int const status = ReadDXFLine(); status != DXF_GO_ON)
            return status;
        if (CheckEndOfEntity())
            return detail::StatusAtGroupZero(finish());
        if (type) {
            int status = DXF_GO_ON;
            int const control = PreReadControl(*type, m_code, m_data, status);
            if (control == kSkipGroup)
                continue;
            if (control == kEndEntity || status != DXF_GO_ON)
                return status;
        }
        if (std::optional<int> const status = take(m_code, m_data.View()))
            return *status;
    }
}

/// Walks the file from section to section, handing the name of each to `readSection`, which returns the
/// status of what it read. Groups outside of sections, and sections that are not read, pass by; one of them
/// that says "EOF", whatever its code, ends the drawing with 0.
template <class ReadSection>
int CDXFInBasic::WalkFile(ReadSection readSection)
{
    m_data.Empty();
    m_code = -1;
    for (;;) {
        if (int const status = ReadDXFLine(); status != DXF_GO_ON)
            return status;
        if (m_code != 0 || m_data.View() != "SECTION") {
            if (m_data.View() == "EOF")
                return DXF_GO_ON;
            continue;
        }
        if (int const status = ReadDXFLine(); status != DXF_GO_ON)
            return status;
        if (m_code != 2)
            continue;
        if (int const status = readSection(m_data.View()); status != DXF_GO_ON)
            return status;
    }
}

/// Walks the group 0 lines of a section up to `end`, handing each value to `dispatch`, which returns the
/// status of what it read. With a `status` of 4 at the start the current line is looked at first. The result
/// is 0 at the section's end, otherwise the status that ended the reading.
template <class Dispatch>
int CDXFInBasic::WalkSection(int status, std::string_view end, Dispatch dispatch)
{
    for (;;) {
        if (status != DXF_AT_GROUP_ZERO)
            status = ReadDXFLine();
        if (detail::EndsReading(status))
            return status;
        status = DXF_GO_ON;
        if (m_code != 0)
            continue;
        if (m_data.View() == end)
            return DXF_GO_ON;
        status = dispatch(m_data.View());
        if (detail::EndsReading(status))
            return status;
    }
}

#endif
