#ifndef KX7_GEOMETRY_CONVEX_SEPARATION_H
#define KX7_GEOMETRY_CONVEX_SEPARATION_H

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "geometry/records.h"

namespace detail {
/// The reach of a figure along an axis.
struct Extent
{
    double low;
    double high;
};

/// A convex figure by its corners, told apart from others along the normals of its sides. A segment has two
/// corners; the first two of a rectangle are a side of it.
template <std::size_t kCorners>
class ConvexFigure
{
  public:
    ConvexFigure() = default;

    explicit ConvexFigure(std::array<TUVect2D, kCorners> const & corners) : m_corners(corners)
    {
        for (std::size_t i = 0; i < kSides; ++i) {
            TUVect2D const & from = corners[i];
            TUVect2D const & to = corners[(i + 1) % kCorners];
            m_axes[i] = {{to.y - from.y, from.x - to.x}};
            m_lengths[i] = std::hypot(m_axes[i].x, m_axes[i].y);
            m_extents[i] = ExtentAlong(m_axes[i]);
        }
    }

    /// Whether `other` is further away than `slack` along one of this figure's normals.
    template <class Other>
    bool SeparatesFrom(Other const & other, double slack) const
    {
        for (std::size_t i = 0; i < kSides; ++i) {
            Extent const extent = other.ExtentAlong(m_axes[i]);
            double const margin = slack * m_lengths[i];
            if (extent.low - m_extents[i].high > margin || m_extents[i].low - extent.high > margin)
                return true;
        }
        return false;
    }

    /// Whether the figure lies within a circle of the radius `inner`, or beyond one of the radius `outer`,
    /// both round `centre`. The second is told along the line to the middle of its corners alone.
    bool IsClearOfRing(TUVect2D const & centre, double inner, double outer) const
    {
        double farthest = 0.0;
        TUVect2D toMiddle{};
        for (TUVect2D const & corner : m_corners) {
            TUVect2D const toCorner = {{corner.x - centre.x, corner.y - centre.y}};
            farthest = std::max(farthest, toCorner.x * toCorner.x + toCorner.y * toCorner.y);
            toMiddle = {{toMiddle.x + toCorner.x, toMiddle.y + toCorner.y}};
        }
        if (inner > 0.0 && farthest < inner * inner)
            return true;
        double const nearest = ExtentAlong(toMiddle).low - (centre.x * toMiddle.x + centre.y * toMiddle.y);
        return nearest > outer * std::hypot(toMiddle.x, toMiddle.y);
    }

    Extent ExtentAlong(TUVect2D const & axis) const
    {
        double const first = m_corners[0].x * axis.x + m_corners[0].y * axis.y;
        Extent extent = {first, first};
        for (std::size_t i = 1; i < kCorners; ++i) {
            double const at = m_corners[i].x * axis.x + m_corners[i].y * axis.y;
            extent.low = std::min(extent.low, at);
            extent.high = std::max(extent.high, at);
        }
        return extent;
    }

  private:
    static constexpr std::size_t kSides = kCorners == 2 ? 1 : kCorners == 4 ? 2 : kCorners;

    std::array<TUVect2D, kCorners> m_corners{};
    std::array<TUVect2D, kSides> m_axes{};
    std::array<double, kSides> m_lengths{};
    std::array<Extent, kSides> m_extents{};
};

using TriangleFigure = ConvexFigure<3>;
using SegmentFigure = ConvexFigure<2>;
using RectangleFigure = ConvexFigure<4>;
}  // namespace detail

#endif
