#include "geometry/polygon_grid.h"

#include <cmath>

namespace detail {
namespace {
constexpr double kMostCellsAlong = 1024.0;

std::size_t CellsAlong(double cells)
{
    return static_cast<std::size_t>(std::clamp(std::round(cells), 1.0, kMostCellsAlong));
}

std::size_t CellOf(double offset, double cellsPerUnit, std::size_t cells)
{
    double const at = offset * cellsPerUnit;
    return at > 0.0 ? std::min(static_cast<std::size_t>(at), cells - 1) : 0;
}
}  // namespace

PolygonGrid::PolygonGrid(PlaneBox const & area, std::size_t count) : m_area(area)
{
    double const width = area.highX - area.lowX;
    double const height = area.highY - area.lowY;
    double const cells = static_cast<double>(count);
    m_columns = CellsAlong(std::sqrt(cells * width / height));
    m_rows = CellsAlong(cells / static_cast<double>(m_columns));
    m_columnsPerUnit = static_cast<double>(m_columns) / width;
    m_rowsPerUnit = static_cast<double>(m_rows) / height;
    m_cells.resize(m_columns * m_rows);
}

std::size_t PolygonGrid::ColumnOf(double x) const
{
    return CellOf(x - m_area.lowX, m_columnsPerUnit, m_columns);
}

std::size_t PolygonGrid::RowOf(double y) const
{
    return CellOf(y - m_area.lowY, m_rowsPerUnit, m_rows);
}

TUVect2D PolygonGrid::CentreOf(std::size_t column, std::size_t row) const
{
    return {{m_area.lowX + (static_cast<double>(column) + 0.5) / m_columnsPerUnit,
             m_area.lowY + (static_cast<double>(row) + 0.5) / m_rowsPerUnit}};
}

void PolygonGrid::MarkRow(std::size_t row, double lowX, double highX)
{
    std::size_t const last = ColumnOf(highX);
    for (std::size_t column = ColumnOf(lowX); column <= last; ++column)
        m_cells[row * m_columns + column] = kNear;
}

void PolygonGrid::MarkSegment(TUVect2D const & a, TUVect2D const & b, double slack)
{
    auto const [lowY, highY] = std::minmax(a.y, b.y);
    // A nearly level segment takes its whole width in each of its few rows.
    double const slope = highY - lowY > slack ? (b.x - a.x) / (b.y - a.y) : 0.0;
    auto const [leftmost, rightmost] = std::minmax(a.x, b.x);
    std::size_t const last = RowOf(highY + slack);
    for (std::size_t row = RowOf(lowY - slack); row <= last; ++row) {
        // Twice the slack covers the rounding of the row's borders and of the slope.
        double const below = m_area.lowY + static_cast<double>(row) / m_rowsPerUnit - 2.0 * slack;
        double const above = m_area.lowY + static_cast<double>(row + 1) / m_rowsPerUnit + 2.0 * slack;
        double low = leftmost;
        double high = rightmost;
        if (slope != 0.0) {
            double const x1 = a.x + (below - a.y) * slope;
            double const x2 = a.x + (above - a.y) * slope;
            low = std::clamp(std::min(x1, x2), leftmost, rightmost);
            high = std::clamp(std::max(x1, x2), leftmost, rightmost);
        }
        MarkRow(row, low - 2.0 * slack, high + 2.0 * slack);
    }
}

void PolygonGrid::MarkArc(PlaneBox const & box, TUVect2D const & centre, double radius,
                          TUVect2D const & middle, TUVect2D const & toApex, double slack)
{
    double const margin = std::hypot(0.5 / m_columnsPerUnit, 0.5 / m_rowsPerUnit) + 2.0 * slack;
    std::size_t const lastRow = RowOf(box.highY);
    std::size_t const lastColumn = ColumnOf(box.highX);
    for (std::size_t row = RowOf(box.lowY); row <= lastRow; ++row)
        for (std::size_t column = ColumnOf(box.lowX); column <= lastColumn; ++column) {
            TUVect2D const cell = CentreOf(column, row);
            double const off = std::hypot(cell.x - centre.x, cell.y - centre.y) - radius;
            double const height = (cell.x - middle.x) * toApex.x + (cell.y - middle.y) * toApex.y;
            if (std::fabs(off) <= margin && height >= -margin)
                m_cells[row * m_columns + column] = kNear;
        }
}

void PolygonGrid::SumUp()
{
    std::size_t const width = m_columns + 1;
    m_sums.assign(width * (m_rows + 1), 0);
    for (std::size_t row = 0; row < m_rows; ++row) {
        std::uint32_t inRow = 0;
        for (std::size_t column = 0; column < m_columns; ++column) {
            inRow += m_cells[row * m_columns + column] == kNear ? 1 : 0;
            m_sums[(row + 1) * width + column + 1] = m_sums[row * width + column + 1] + inRow;
        }
    }
}

PolygonGrid::Answer PolygonGrid::Ask(PlaneBox const & box) const
{
    std::size_t const left = ColumnOf(box.lowX);
    std::size_t const right = ColumnOf(box.highX) + 1;
    std::size_t const bottom = RowOf(box.lowY) * (m_columns + 1);
    std::size_t const top = (RowOf(box.highY) + 1) * (m_columns + 1);
    if (m_sums[top + right] + m_sums[bottom + left] != m_sums[top + left] + m_sums[bottom + right])
        return Answer::kNear;
    // What reaches beyond the grid is outside there, so all of it is.
    bool const isWithin = box.lowX >= m_area.lowX && box.highX <= m_area.highX && box.lowY >= m_area.lowY &&
                          box.highY <= m_area.highY;
    bool const isInside = isWithin && m_cells[RowOf(box.lowY) * m_columns + left] == kInside;
    return isInside ? Answer::kInside : Answer::kOutside;
}
}  // namespace detail
