#ifndef KX7_GEOMETRY_BOX_TREE_H
#define KX7_GEOMETRY_BOX_TREE_H

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>
#include <vector>

namespace detail {
/// A rectangle along the axes; empty at first.
struct PlaneBox
{
    double lowX = std::numeric_limits<double>::infinity();
    double lowY = std::numeric_limits<double>::infinity();
    double highX = -std::numeric_limits<double>::infinity();
    double highY = -std::numeric_limits<double>::infinity();

    void Add(double x, double y)
    {
        lowX = std::min(lowX, x);
        lowY = std::min(lowY, y);
        highX = std::max(highX, x);
        highY = std::max(highY, y);
    }

    void Add(PlaneBox const & other)
    {
        lowX = std::min(lowX, other.lowX);
        lowY = std::min(lowY, other.lowY);
        highX = std::max(highX, other.highX);
        highY = std::max(highY, other.highY);
    }

    PlaneBox Grown(double margin) const
    {
        return {lowX - margin, lowY - margin, highX + margin, highY + margin};
    }

    bool Meets(PlaneBox const & other) const
    {
        return lowX <= other.highX && other.lowX <= highX && lowY <= other.highY && other.lowY <= highY;
    }

    bool Holds(double x, double y) const { return lowX <= x && x <= highX && lowY <= y && y <= highY; }
};

/// Boxes in a given order under a binary tree of the boxes of runs of 2, 4, 8 ... of them. A search finds the
/// wanted ones in their order.
class BoxTree
{
  public:
    BoxTree() = default;

    explicit BoxTree(std::vector<PlaneBox> const & boxes) : m_leaves(std::bit_ceil(boxes.size()))
    {
        m_nodes.resize(2 * m_leaves);
        std::copy(boxes.begin(), boxes.end(), m_nodes.begin() + static_cast<std::ptrdiff_t>(m_leaves));
        for (std::size_t node = m_leaves - 1; node > 0; --node) {
            m_nodes[node] = m_nodes[2 * node];
            m_nodes[node].Add(m_nodes[2 * node + 1]);
        }
    }

    /// Calls `visit` with the index of each box for which `isWanted` holds, in order, until it gives false.
    /// `isWanted` has to hold for a box if it holds for one inside of it.
    template <class IsWanted, class Visit>
    void ForEach(IsWanted const & isWanted, Visit const & visit) const
    {
        std::size_t node = 1;
        while (node > 0) {
            bool const wanted = isWanted(m_nodes[node]);
            if (wanted && node < m_leaves) {
                node = 2 * node;
                continue;
            }
            if (wanted && !visit(node - m_leaves))
                return;
            // On to the next subtree: up over the right children, then to the right.
            node >>= std::countr_one(node);
            node += node > 0 ? 1 : 0;
        }
    }

    PlaneBox const & operator[](std::size_t index) const { return m_nodes[m_leaves + index]; }

  private:
    std::size_t m_leaves = 1;
    std::vector<PlaneBox> m_nodes = std::vector<PlaneBox>(2);  // node i has the children 2 i and 2 i + 1
};
}  // namespace detail

#endif
