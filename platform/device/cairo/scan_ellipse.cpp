#include "platform/device/cairo/scan_ellipse.h"

#include <algorithm>
#include <cmath>

namespace detail {
namespace {
constexpr EllipseRow kEmptyRow = {0, -1};
}

ScanEllipse::ScanEllipse(CRect const & rect)
    : m_rect(rect),
      m_middleX((static_cast<double>(rect.left) + rect.right - 1) / 2),
      m_middleY((static_cast<double>(rect.top) + rect.bottom - 1) / 2)
{
}

EllipseRow ScanEllipse::Row(int y) const
{
    if (y < m_rect.top || y >= m_rect.bottom)
        return kEmptyRow;
    double const height = (static_cast<double>(m_rect.bottom) - m_rect.top) / 2;
    double const width = (static_cast<double>(m_rect.right) - m_rect.left) / 2;
    double const v = (y - m_middleY) / height;
    double const half = width * std::sqrt(std::max(0.0, 1 - v * v));
    EllipseRow row{static_cast<int>(std::ceil(m_middleX - half)),
                   static_cast<int>(std::floor(m_middleX + half))};
    if (row.first > row.last)  // a slim ellipse between two columns still has its tips
        row = {static_cast<int>(std::floor(m_middleX)), static_cast<int>(std::ceil(m_middleX))};
    return row;
}

int ScanEllipse::OutlineWidth(int y) const
{
    EllipseRow const row = Row(y);
    EllipseRow const outer = Row(y < m_middleY ? y - 1 : y + 1);
    int const whole = row.last - row.first + 1;
    return outer.first > outer.last ? whole : std::clamp(outer.first - row.first, 1, whole);
}
}  // namespace detail
