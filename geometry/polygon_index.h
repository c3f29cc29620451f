#ifndef KX7_GEOMETRY_POLYGON_INDEX_H
#define KX7_GEOMETRY_POLYGON_INDEX_H

// What CVOPolygon prepares so that a triangle meets only the sides that matter to it. Nothing here changes a
// result: a side is passed over only where the full computation finds nothing, and the class of a point comes
// from the same sum as in the kernel, taken over the sides that can add to it.
//
// Words: a side's slack is the distance from it beyond which nothing of it can be met: eight tolerances and a
// bound of the rounding. The reach is the box of all sides with their slack. A place is clean if no side is
// nearer to it than its slack.

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "geometry/box_tree.h"
#include "geometry/convex_separation.h"
#include "geometry/detail_areas.h"
#include "geometry/mathematics.h"
#include "geometry/polygon_grid.h"

namespace detail {
/// Where a triangle lies to a polygon.
enum class TrianglePlace
{
    kOutside,
    kInside,
    kUndecided,
    kUnserved
};

/// A side with its ordinal's data.
struct IndexedSide
{
    AreaSide side;
    TUVect2D centre;  ///< Of an arc, as the kernel computes it.
    TUVect2D toApex;  ///< Of an arc: unit vector from the chord to its apex.
    double radius;    ///< Of an arc.
    double length;    ///< Of the side, or of an arc's chord.
    double slack;
    int element;  ///< Index in the oriented elements of the polygon, -1 for a side left out of them.
};

class PolygonIndex
{
  public:
    /// The index of an area; null where the records, the tolerance or the arcs' shapes allow none.
    static std::unique_ptr<PolygonIndex> Make(CMathematics & math, Area const & area);

    bool HasArcs() const { return m_hasArcs; }

    /// Whether the oriented elements run against the sides.
    bool IsReversed() const { return m_isReversed; }

    /// Whether the index holds for the kernel's tolerance of the moment. With one that is rounding against
    /// the coordinates the kernel finds no place on its own sides.
    bool Serves(CMathematics const & math) const
    {
        return math.m_dOkoli <= m_okoli && math.m_dOkoli >= m_smallestOkoli;
    }

    /// Where a triangle lies, if it is clear of all sides. For an undecided one `nearSides` becomes the
    /// ordinals of the sides that may have something in common with it, in order. An unserved one has to be
    /// taken the plain way.
    TrianglePlace PlaceOf(TUVect2D const (&corners)[3], std::vector<std::size_t> & nearSides) const;

    /// Whether a side has nothing in common with a figure that lies in the range served.
    template <class Figure>
    bool IsClearOf(std::size_t ordinal, Figure const & figure) const
    {
        IndexedSide const & s = m_sides[ordinal];
        return IsClearOfHull(ordinal, figure) ||
               (s.side.isArc && figure.IsClearOfRing(s.centre, s.radius - s.slack, s.radius + s.slack));
    }

    /// The class of `p` as by CMathematics::IsPointInArea, within the range served.
    int ClassOf(CMathematics & math, TUVect2D const & p) const;

    /// Whether a polygon without arcs turns round `p`, as the sum of its turns tells it.
    bool TurnsRound(TUVect2D const & p) const { return WindingNumber(p) != 0; }

    IndexedSide const & Side(std::size_t ordinal) const { return m_sides[ordinal]; }

  private:
    PolygonIndex() = default;

    bool ReadSides(CMathematics & math, Area const & area);
    bool AddSlack();
    void BuildTree();
    void BuildGrid(CMathematics & math);
    bool IsNear(PlaneBox const & box) const;
    bool IsClearOfAll(PlaneBox const & box) const;

    /// The same as IsClearOf for a side together with the chord of an arc.
    template <class Figure>
    bool IsClearOfHull(std::size_t ordinal, Figure const & figure) const
    {
        double const slack = m_sides[ordinal].slack;
        return m_hulls[ordinal].SeparatesFrom(figure, slack) || figure.SeparatesFrom(m_hulls[ordinal], slack);
    }

    TrianglePlace PlaceBySides(PlaneBox const & box, TUVect2D const (&corners)[3],
                               std::vector<std::size_t> & nearSides) const;
    std::optional<int> ClassOnBoundary(CMathematics & math, TUVect2D const & p) const;
    int WindingNumber(TUVect2D const & p) const;
    int TurnsOf(std::size_t ordinal, TUVect2D const & p) const;

    std::vector<IndexedSide> m_sides;
    std::vector<RectangleFigure> m_hulls;  // each holds a side, and the chord of an arc
    BoxTree m_tree;
    PolygonGrid m_grid;
    PlaneBox m_reach;
    PlaneBox m_served;     // triangles beyond it aren't served, but for those clear of the reach
    double m_okoli = 0.0;  // the kernel's tolerance when the index was made
    double m_smallestOkoli = 0.0;
    double m_size = 0.0;     // larger extent of the polygon
    double m_largest = 0.0;  // largest coordinate, without sign
    double m_smallestRadius = 0.0;
    bool m_hasArcs = false;
    bool m_isReversed = false;
};
}  // namespace detail

#endif
