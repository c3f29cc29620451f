#ifndef KX7_GEOMETRY_POLYGON_GRID_H
#define KX7_GEOMETRY_POLYGON_GRID_H

#include <cstddef>
#include <cstdint>
#include <vector>

#include "geometry/box_tree.h"
#include "geometry/records.h"

namespace detail {
/// Cells over a polygon, each either near the boundary or wholly inside or outside. Sums of the cells near
/// the boundary tell in four look-ups whether a box is clear of them.
class PolygonGrid
{
  public:
    /// What is known of a box: near the boundary, or clear of it.
    enum class Answer
    {
        kNear,
        kInside,
        kOutside
    };

    PolygonGrid() = default;

    /// No cell near the boundary yet. `count` is the number of cells aimed at.
    PolygonGrid(PlaneBox const & area, std::size_t count);

    /// Marks the cells nearer than `slack` to a segment.
    void MarkSegment(TUVect2D const & a, TUVect2D const & b, double slack);

    /// Marks the cells nearer than `slack` to the part of a circle on the side of `toApex` of the line across
    /// it through `middle`.
    void MarkArc(PlaneBox const & box, TUVect2D const & centre, double radius, TUVect2D const & middle,
                 TUVect2D const & toApex, double slack);

    /// Classes the cells that aren't marked: `isInside` is asked once for a run of them.
    template <class IsInside>
    void Classify(IsInside const & isInside)
    {
        for (std::size_t row = 0; row < m_rows; ++row)
            for (std::size_t column = 0; column < m_columns;)
                column = ClassifyRun(row, column, isInside);
        SumUp();
    }

    /// Only boxes that meet the grid's area may be asked for.
    Answer Ask(PlaneBox const & box) const;

  private:
    static constexpr std::uint8_t kOutside = 0;
    static constexpr std::uint8_t kInside = 1;
    static constexpr std::uint8_t kNear = 2;

    template <class IsInside>
    std::size_t ClassifyRun(std::size_t row, std::size_t column, IsInside const & isInside)
    {
        if (m_cells[row * m_columns + column] == kNear)
            return column + 1;
        std::uint8_t const found = isInside(CentreOf(column, row)) ? kInside : kOutside;
        for (; column < m_columns && m_cells[row * m_columns + column] != kNear; ++column)
            m_cells[row * m_columns + column] = found;
        return column;
    }

    std::size_t ColumnOf(double x) const;
    std::size_t RowOf(double y) const;
    TUVect2D CentreOf(std::size_t column, std::size_t row) const;
    void MarkRow(std::size_t row, double lowX, double highX);
    void SumUp();

    PlaneBox m_area;
    std::size_t m_columns = 0;
    std::size_t m_rows = 0;
    double m_columnsPerUnit = 0.0;
    double m_rowsPerUnit = 0.0;
    std::vector<std::uint8_t> m_cells;  // row by row
    std::vector<std::uint32_t> m_sums;  // near cells below and left of each grid corner
};
}  // namespace detail

#endif
