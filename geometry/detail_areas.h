#ifndef KX7_GEOMETRY_DETAIL_AREAS_H
#define KX7_GEOMETRY_DETAIL_AREAS_H

// What the routines on areas share: reading the records of an outline, the angle a side is seen under, and
// the tests of a point against one side.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <span>

#include "geometry/records.h"
#include "geometry/snapped_vectors.h"
#include "platform/base/array.h"

namespace detail {
using Area = CArray<TSPoint2DPlane, TSPoint2DPlane &>;
using AreaRecords = std::span<TSPoint2DPlane const>;
using IntervalArray = CArray<TSInterval, TSInterval &>;
using GeneralSetArray = CArray<TSGeneralSet, TSGeneralSet &>;

inline bool IsArcMarker(TSPoint2DPlane const & record)
{
    return record.x < ARC_MARKER_LIMIT;
}

inline TUVect2D VertexOf(TSPoint2DPlane const & record)
{
    return {{record.x, record.y}};
}

/// One side of an outline: from the vertex before it to its own.
struct AreaSide
{
    TUVect2D from;
    TUVect2D to;
    double bulge;
    bool isArc;
};

inline TSelem ElementOf(AreaSide const & side)
{
    return {side.isArc ? EDGE_ARC : EDGE_LINE, 0, side.from, side.to, side.bulge};
}

/// Walks the sides of an outline in the order of its records, from the end of the array on to its start. Of
/// several markers in a row the last one counts; markers without a vertex behind them give no side.
class SideWalk
{
  public:
    /// Starts from the vertex `start` of the records and reads the `count` records behind it.
    SideWalk(AreaRecords records, std::size_t start, std::size_t count)
        : m_records(records), m_next(start + 1 < records.size() ? start + 1 : 0), m_left(count)
    {
        if (start < records.size())
            m_from = VertexOf(records[start]);
        else
            m_left = 0;
    }

    std::optional<AreaSide> Next()
    {
        AreaSide side{m_from, {}, 0.0, false};
        for (; m_left > 0; --m_left) {
            TSPoint2DPlane const & record = m_records[m_next];
            m_next = m_next + 1 < m_records.size() ? m_next + 1 : 0;
            if (!IsArcMarker(record)) {
                --m_left;
                m_from = side.to = VertexOf(record);
                return side;
            }
            side.isArc = true;
            side.bulge = record.y;
        }
        return std::nullopt;
    }

  private:
    AreaRecords m_records;
    std::size_t m_next;
    std::size_t m_left;
    TUVect2D m_from{};
};

/// The index of the first vertex; the number of records if there is none.
inline std::size_t FirstVertex(AreaRecords records)
{
    return static_cast<std::size_t>(std::find_if_not(records.begin(), records.end(), IsArcMarker) -
                                    records.begin());
}

/// The sides of an outline in closed form, first record to last.
inline SideWalk ClosedSides(AreaRecords records)
{
    std::size_t const first = FirstVertex(records);
    return {records, first, records.size() - first - 1};
}

/// The same with the side from the last record to the first behind them.
inline SideWalk ClosingSideLast(AreaRecords records)
{
    return {records, FirstVertex(records), records.size()};
}

/// The same with the side from the last record to the first in front of them.
inline SideWalk ClosingSideFirst(AreaRecords records)
{
    std::size_t last = records.size();
    while (last > 0 && IsArcMarker(records[last - 1]))
        --last;
    return {records, last > 0 ? last - 1 : records.size(), records.size()};
}

/// Extents of an area's vertices in four directions, and the largest sagitta of its arcs.
struct Extents
{
    static constexpr int kDirections = 4;
    double min[kDirections] = {1e100, 1e100, 1e100, 1e100};
    double max[kDirections] = {-1e100, -1e100, -1e100, -1e100};
    double margin = 0.0;

    void AddVertex(TUVect2D const & v)
    {
        double const values[kDirections] = {v.x, v.y, v.x + v.y, v.y - v.x};
        for (int i = 0; i < kDirections; ++i) {
            min[i] = std::min(min[i], values[i]);
            max[i] = std::max(max[i], values[i]);
        }
    }

    void AddArc(double chord, double bulge) { margin = std::max(margin, std::fabs(chord * bulge / 2.0)); }
};

/// Whether areas of these extents can't touch.
inline bool AreApart(Extents const & a, Extents const & b, double tolerance)
{
    double const margin = tolerance + a.margin + b.margin;  // not widened for the slanted directions
    for (int i = 0; i < Extents::kDirections; ++i)
        if (a.max[i] + margin < b.min[i] || b.max[i] + margin < a.min[i])
            return true;
    return false;
}

/// The z component of the cross product.
inline double Cross(TUVect2D const & a, TUVect2D const & b)
{
    return SnappedDifference(a.x * b.y, a.y * b.x);
}

/// Direction angle of a vector in -pi/2 to 3*pi/2, the downward direction for the zero vector.
inline double DirectionAngle(TUVect2D const & v)
{
    if (v.x == 0.0)
        return v.y > 0.0 ? std::numbers::pi / 2.0 : -std::numbers::pi / 2.0;
    double const angle = std::atan(v.y / v.x);
    return v.x < 0.0 ? angle + std::numbers::pi : angle;
}

/// The turn from one direction angle to another, brought to the range from -pi to pi.
inline double TurnBetween(double from, double to)
{
    double const turn = to - from;
    if (turn > std::numbers::pi)
        return turn - 2.0 * std::numbers::pi;
    return turn < -std::numbers::pi ? turn + 2.0 * std::numbers::pi : turn;
}

/// A point seen from which the outline turns by no more than this lies outside.
inline bool IsOutsideTurn(double turn)
{
    return std::fabs(turn) <= std::numbers::pi;
}

/// The turn of an arc seen from `p`, given that of its chord: it differs for points between chord and arc.
inline double ArcTurn(TUVect2D const & p, AreaSide const & side, TUVect2D const & centre, double radius,
                      TUVect2D const & toApex, double chordTurn)
{
    double const height = Dot(p - side.to, toApex);
    if (!(height >= 0.0 && Length(centre - p) < radius))
        return chordTurn;
    double const turn = height == 0.0 ? std::numbers::pi : 2.0 * std::numbers::pi - std::fabs(chordTurn);
    return side.bulge > 0.0 ? -turn : turn;
}

/// Whether `p` is nearer to a straight side than the tolerance; a side without length has no such points.
inline bool IsPointOnStraightSide(TUVect2D const & p, TUVect2D const & from, TUVect2D const & to,
                                  double tolerance)
{
    TUVect2D const e = to - from;
    TUVect2D const w = p - from;
    double const length = Length(e);
    return length != 0.0 && std::fabs(Cross(e, w)) / length < tolerance &&
           std::fabs(Dot(w, e) / length - length / 2.0) < length / 2.0 + tolerance;
}

/// The side of an interval or piece that lies on none.
inline constexpr int kNoSide = -1;

/// Classes of a point.
inline constexpr int kPointOutside = 0;
inline constexpr int kPointInside = 1;
inline constexpr int kPointOnEdge = 2;
inline constexpr int kPointOnVertex = 3;
}  // namespace detail

#endif
