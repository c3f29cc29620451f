#ifndef KX7_GEOMETRY_POLYGON_SIDES_H
#define KX7_GEOMETRY_POLYGON_SIDES_H

// An area read once for a polygon intersection: its sides, and whether an index may be put in front of them.

#include <cstdint>
#include <memory_resource>
#include <vector>

#include "geometry/detail_areas.h"
#include "geometry/mathematics.h"

namespace detail {
/// Areas with larger coordinates, in tolerances, are left to the plain method: rounding comes near the
/// tolerance there.
inline constexpr double kMostTolerances = 1e13;

/// The same for smaller tolerances: they come near the fixed limits of the plain method.
inline constexpr double kLeastTolerance = 1e-12;

/// The same for arcs that are nearly whole circles.
inline constexpr double kMostBulge = 1e4;

/// What two areas that are intersected have in common for all margins.
struct PlaneScale
{
    double tolerance;
    double size;  ///< The largest coordinate, without its sign.

    /// Beyond this distance nothing is one place: four times the reach of any rule of the plain method, plus
    /// rounding.
    double Margin() const { return 8.0 * tolerance + 1e-12 * size; }
};

class PolygonSides
{
  public:
    PolygonSides(CMathematics & math, Area const & area, std::pmr::memory_resource & memory);

    /// False if the records aren't a closed outline of finite numbers in a range that suits an index; nothing
    /// else may be asked then.
    bool IsUsable() const { return m_isUsable; }

    Extents const & GetExtents() const { return m_extents; }
    double Size() const { return m_size; }
    bool HasArcs() const { return m_hasArcs; }

    /// The sides in the order of the outline.
    std::pmr::vector<TSelem> const & Sides() const { return m_sides; }

    /// Whether a side's ends are one place. Such a side counts in the order and meets nothing.
    bool IsPoint(std::uint32_t side) const { return m_sides[side].mark == kPointMark; }

    /// The elements: the sides that aren't points, with the interior on their left.
    std::size_t ElementCount() const { return m_sides.size() - m_points; }
    bool IsReversed() const { return m_isReversed; }
    TSelem ElementOf(std::uint32_t side) const;

    /// The class of a point by CMathematics::IsPointInArea; but a vertex counts as an edge.
    int PlainClassOf(CMathematics & math, TUVect2D const & p) const;

    /// Finds out in which direction the outline runs; before that the elements run as the sides do.
    void Orient(CMathematics & math);

  private:
    static constexpr int kPointMark = 1;

    bool Read(AreaRecords records, double tolerance);

    Area const & m_area;
    std::pmr::vector<TSelem> m_sides;
    Extents m_extents;
    double m_size = 0.0;
    std::size_t m_points = 0;
    bool m_hasArcs = false;
    bool m_isReversed = false;
    bool m_isUsable;
};

/// One place, as CMathematics::ComparePoints in the plane with `mode` 1.
inline bool IsOnePlace(TUVect2D const & a, TUVect2D const & b, double tolerance)
{
    return b.x - tolerance <= a.x && b.x + tolerance >= a.x && b.y - tolerance <= a.y &&
           b.y + tolerance >= a.y;
}

inline bool IsSamePoint(TUVect2D const & a, TUVect2D const & b)
{
    return a.x == b.x && a.y == b.y;
}
}  // namespace detail

#endif
