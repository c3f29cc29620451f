#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <span>
#include <vector>

#include "geometry/mathematics.h"
#include "geometry/snapped_vectors.h"
#include "platform/base/array.h"

using namespace detail;

namespace {
constexpr double kLevelSide = 1e-10;     // sides whose ends differ less in height are passed over
constexpr double kHeightOffset = 1e-10;  // widths are taken this far on both sides of a height
constexpr double kNoWidthYet = 1e100;
constexpr double kWidthFound = 1e99;

// A walk round an outline that adds up the chords of one height.
class WidthWalk
{
  public:
    WidthWalk(double height, TUVect2D const & first) : m_height(height), m_above(first.y - height >= 0.0) {}

    void Step(TUVect2D const & from, TUVect2D const & to)
    {
        TUVect2D const side = to - from;
        if (std::fabs(side.y) <= kLevelSide)
            return;
        double const v = to.y - m_height;
        bool const above = v >= 0.0;
        if (above != m_above) {
            double const x = (to - v / side.y * side).x;
            m_width += above ? x : -x;
        }
        m_above = above;
    }

    /// Whether vertices between the heights `low` and `high` leave the walk as it is.
    bool Ignores(double low, double high) const { return m_above ? low >= m_height : high < m_height; }

    double Width() const { return m_width; }

  private:
    double m_height;
    double m_width = 0.0;
    bool m_above;
};

double WidthAt(std::span<TUVect2D const> outline, double height)
{
    if (outline.empty())
        return 0.0;
    WidthWalk walk(height, outline.front());
    for (std::size_t i = 0; i < outline.size(); ++i)
        walk.Step(outline[i], outline[i + 1 < outline.size() ? i + 1 : 0]);
    return walk.Width();
}

// The lowest and highest vertex of runs of 1, 2, 4 ... sides, as a tree over the sides in their order: a walk
// passes over the runs that it ignores and so takes the crossing sides alone, in the order of the plain walk.
class WidthTree
{
  public:
    explicit WidthTree(std::span<TUVect2D const> outline)
        : m_outline(outline), m_leaves(std::bit_ceil(outline.size())), m_runs(2 * m_leaves)
    {
        for (std::size_t i = 0; i < outline.size(); ++i)
            m_runs[m_leaves + i] = RunOf(Next(i).y);
        for (std::size_t node = m_leaves - 1; node > 0; --node)
            m_runs[node] = {std::min(m_runs[2 * node].low, m_runs[2 * node + 1].low),
                            std::max(m_runs[2 * node].high, m_runs[2 * node + 1].high)};
    }

    double WidthAt(double height) const
    {
        WidthWalk walk(height, m_outline.front());
        Visit(1, walk);
        return walk.Width();
    }

  private:
    struct Run
    {
        double low = std::numeric_limits<double>::infinity();
        double high = -std::numeric_limits<double>::infinity();
    };

    static Run RunOf(double height)
    {
        // A height that isn't a number is never passed over.
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        return std::isnan(height) ? Run{-kInfinity, kInfinity} : Run{height, height};
    }

    TUVect2D const & Next(std::size_t side) const
    {
        return m_outline[side + 1 < m_outline.size() ? side + 1 : 0];
    }

    void Visit(std::size_t node, WidthWalk & walk) const
    {
        if (walk.Ignores(m_runs[node].low, m_runs[node].high))
            return;
        if (node >= m_leaves)
            return walk.Step(m_outline[node - m_leaves], Next(node - m_leaves));
        Visit(2 * node, walk);
        Visit(2 * node + 1, walk);
    }

    std::span<TUVect2D const> m_outline;
    std::size_t m_leaves;
    std::vector<Run> m_runs;  // node i has the children 2 i and 2 i + 1
};

// The heights at which a piecewise linear width can have its least value between two heights.
std::vector<double> CandidateHeights(std::span<TUVect2D const> outline, double lowest, double highest)
{
    std::vector<double> heights = {lowest - kHeightOffset, lowest + kHeightOffset, highest - kHeightOffset,
                                   highest + kHeightOffset};
    for (TUVect2D const & vertex : outline)
        if (vertex.y > lowest && vertex.y < highest)
            heights.insert(heights.end(), {vertex.y + kHeightOffset, vertex.y - kHeightOffset});
    return heights;
}
}  // namespace

void CMathematics::GetWidthInPosition(CArray<TUVect2D, TUVect2D &> & outline, double y, double & width)
{
    width = WidthAt(outline.View(), y);
}

void CMathematics::FindMinimalB0(CArray<TUVect2D, TUVect2D &> & outline, double top, double bottom,
                                 double angle, double & B0)
{
    B0 = 0.0;
    if (outline.IsEmpty())
        return;
    std::vector<TUVect2D> turned;
    for (TUVect2D const & vertex : outline)
        turned.push_back(rotate(vertex, angle));
    auto const [lowest, highest] =
        std::ranges::minmax_element(turned, {}, [](TUVect2D const & vertex) { return vertex.y; });

    WidthTree const tree(turned);
    double best = kNoWidthYet;
    for (double const height : CandidateHeights(turned, lowest->y + bottom, highest->y - top)) {
        double const width = tree.WidthAt(height);
        if (width < best && width > 0.0)
            best = width;
    }
    if (best < kWidthFound)
        B0 = best;
}
