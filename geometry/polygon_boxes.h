#ifndef KX7_GEOMETRY_POLYGON_BOXES_H
#define KX7_GEOMETRY_POLYGON_BOXES_H

// Boxes round the sides of an outline, in a tree over their order: neighbours in the outline are neighbours
// in the plane, so that no sorting is needed.
//
// What a box promises: a side meets nothing that lies outside of its box, and decides about no point there
// except by where its two ends lie. For that the boxes are widened by the tolerance, by rounding, and round
// arcs by the places beside the circle at which the plain method still counts a point as on the arc. Flat
// arcs, which meet what they don't meet, have boxes without end. Pairs of shallow arcs whose circles
// nearly fall together are left out of the promise; see polygon_circles.h.

#include "geometry/box_tree.h"
#include "geometry/polygon_sides.h"

namespace detail {
/// A node of a tree: level 0 are the leaves.
struct TreeNode
{
    std::uint32_t level;
    std::uint32_t index;
};

/// The shape of a tree over n leaves, with kFanOut runs of leaves to a node; level by level in one array.
class TreeShape
{
  public:
    static constexpr std::uint32_t kFanOutBits = 2;
    static constexpr std::uint32_t kFanOut = 1u << kFanOutBits;

    explicit TreeShape(std::size_t leaves);

    TreeNode Root() const { return {m_levels - 1, 0}; }
    std::size_t Place(TreeNode node) const { return m_first[node.level] + node.index; }
    std::size_t Size() const { return m_first[m_levels]; }
    std::uint32_t Levels() const { return m_levels; }
    std::uint32_t CountAt(std::uint32_t level) const
    {
        return static_cast<std::uint32_t>(m_first[level + 1] - m_first[level]);
    }

    /// The children of a node that isn't a leaf: indices [first, second) one level below.
    std::pair<std::uint32_t, std::uint32_t> Children(TreeNode node) const
    {
        std::uint32_t const first = node.index << kFanOutBits;
        return {first, std::min(first + kFanOut, CountAt(node.level - 1))};
    }

    /// The leaves under a node: indices [first, second).
    std::pair<std::uint32_t, std::uint32_t> Leaves(TreeNode node) const
    {
        std::uint32_t const bits = node.level * kFanOutBits;
        std::uint64_t const end = (static_cast<std::uint64_t>(node.index) + 1) << bits;
        return {node.index << bits, static_cast<std::uint32_t>(std::min<std::uint64_t>(end, CountAt(0)))};
    }

  private:
    static constexpr int kMostLevels = 18;  // 4^16 leaves and more than an int counts

    std::size_t m_first[kMostLevels + 1];
    std::uint32_t m_levels;
};

/// Fills the upper levels of an array of node values from its leaves. `Value` has Add(Value).
template <class Values>
void FillUpward(TreeShape const & shape, Values & values)
{
    for (std::uint32_t level = 1; level < shape.Levels(); ++level) {
        for (std::uint32_t i = 0; i < shape.CountAt(level); ++i) {
            auto const [first, end] = shape.Children({level, i});
            auto value = values[shape.Place({level - 1, first})];
            for (std::uint32_t child = first + 1; child < end; ++child)
                value.Add(values[shape.Place({level - 1, child})]);
            values[shape.Place({level, i})] = value;
        }
    }
}

/// Calls `found(i, j)` for all pairs of leaves that `mayMeet(placeInA, placeInB)` doesn't rule out, neither
/// itself nor for nodes above them.
template <class MayMeet, class Found>
class PairSearch
{
  public:
    PairSearch(TreeShape const & a, TreeShape const & b, MayMeet const & mayMeet, Found const & found)
        : m_a(a), m_b(b), m_mayMeet(mayMeet), m_found(found)
    {
    }

    void Search(TreeNode a, TreeNode b) const
    {
        if (!m_mayMeet(m_a.Place(a), m_b.Place(b)))
            return;
        if (a.level == 0 && b.level == 0) {
            m_found(a.index, b.index);
        } else if (a.level >= b.level) {
            auto const [first, end] = m_a.Children(a);
            for (std::uint32_t i = first; i < end; ++i)
                Search({a.level - 1, i}, b);
        } else {
            auto const [first, end] = m_b.Children(b);
            for (std::uint32_t i = first; i < end; ++i)
                Search(a, {b.level - 1, i});
        }
    }

  private:
    TreeShape const & m_a;
    TreeShape const & m_b;
    MayMeet const & m_mayMeet;
    Found const & m_found;
};

/// Whether the space routines take an arc side for its chord, or may.
bool MayBeFlat(TSelem const & arc);

/// Whether an arc's box covers its whole circle.
bool HasCircleBox(TSelem const & arc);

/// How far the counted points of an arc reach: those on the apex side of its chord that lie no further than
/// `slack` beside its circle. With half chord h and radius R they lie no further from the chord's middle than
/// sqrt(h^2 + 2 R slack + slack^2), for more than a half circle than sagitta + slack.
struct ArcReach
{
    TUVect2D middle;
    double halfChord;
    double radius;
    double slack;
    double reach;  ///< From the chord's middle, with all margins.

    ArcReach(TSelem const & arc, PlaneScale const & scale);
};

class SideBoxes
{
  public:
    SideBoxes(PolygonSides const & sides, PlaneScale const & scale, std::pmr::memory_resource & memory);

    TreeShape const & Shape() const { return m_shape; }
    PlaneBox const & operator[](std::size_t place) const { return m_boxes[place]; }
    double Margin() const { return m_margin; }

  private:
    TreeShape m_shape;
    std::pmr::vector<PlaneBox> m_boxes;
    double m_margin;
};

/// The class of a point, as by CMathematics::IsPointInArea; but a vertex counts as an edge.
int ClassOfPoint(CMathematics & math, PolygonSides const & sides, SideBoxes const & boxes,
                 TUVect2D const & p);
}  // namespace detail

#endif
