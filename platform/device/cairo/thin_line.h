#ifndef KX7_PLATFORM_DEVICE_CAIRO_THIN_LINE_H
#define KX7_PLATFORM_DEVICE_CAIRO_THIN_LINE_H

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/base/rect.h"

namespace detail {
/// The pixels of a line one pixel wide, from its start to just before its end. On its longer axis a pixel
/// stands at each whole coordinate; on the other at the nearest, the upper or left one on a tie, so that a
/// line and its reverse cover the same pixels (but for the end left out).
class ThinLine
{
  public:
    ThinLine(POINT from, POINT to)
    {
        std::int64_t const dx = std::int64_t{to.x} - from.x;
        std::int64_t const dy = std::int64_t{to.y} - from.y;
        m_steep = std::abs(dy) > std::abs(dx);
        m_longStart = m_steep ? from.y : from.x;
        m_shortStart = m_steep ? from.x : from.y;
        m_longStep = (m_steep ? dy : dx) < 0 ? -1 : 1;
        m_shortStep = (m_steep ? dx : dy) < 0 ? -1 : 1;
        m_length = std::max(std::abs(dx), std::abs(dy));
        m_rise = std::min(std::abs(dx), std::abs(dy));
        m_tie = m_shortStep > 0 ? 1 : 0;
    }

    /// Number of pixels.
    std::int64_t Length() const { return m_length; }

    /// Calls `plot(x, y, index)` for each pixel inside the rectangle, in order. Pixels in front of it cost
    /// nothing.
    template <typename Plot>
    void ForEachIn(RECT const & clip, Plot && plot) const
    {
        std::int64_t first = 0;
        std::int64_t last = m_length - 1;
        CutLong(m_steep ? clip.top : clip.left, (m_steep ? clip.bottom : clip.right) - 1, first, last);
        CutShort(m_steep ? clip.left : clip.top, (m_steep ? clip.right : clip.bottom) - 1, first, last);
        if (first > last)
            return;
        std::int64_t const start = 2 * first * m_rise + m_length - m_tie;
        std::int64_t offset = start / (2 * m_length);
        std::int64_t remainder = start % (2 * m_length);
        for (std::int64_t i = first; i <= last; ++i) {
            int const along = static_cast<int>(m_longStart + m_longStep * i);
            int const across = static_cast<int>(m_shortStart + m_shortStep * offset);
            m_steep ? plot(across, along, i) : plot(along, across, i);
            remainder += 2 * m_rise;
            if (remainder >= 2 * m_length) {
                remainder -= 2 * m_length;
                ++offset;
            }
        }
    }

  private:
    static std::int64_t CeilDivide(std::int64_t a, std::int64_t b) { return a / b + (a % b > 0 ? 1 : 0); }

    /// Cuts the range of pixels to those with low <= coordinate <= high on the longer axis.
    void CutLong(std::int64_t low, std::int64_t high, std::int64_t & first, std::int64_t & last) const
    {
        std::int64_t const a = (low - m_longStart) * m_longStep;
        std::int64_t const b = (high - m_longStart) * m_longStep;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
    }

    /// The same on the shorter axis, where the offset grows by 0 or 1 from pixel to pixel.
    void CutShort(std::int64_t low, std::int64_t high, std::int64_t & first, std::int64_t & last) const
    {
        std::int64_t const a = (low - m_shortStart) * m_shortStep;
        std::int64_t const b = (high - m_shortStart) * m_shortStep;
        std::int64_t const least = std::min(a, b);
        std::int64_t const most = std::max(a, b);
        if (most < 0 || (m_rise == 0 && least > 0))
            last = -1;
        else if (m_rise > 0) {
            first = std::max(first, FirstWithOffset(least));
            last = std::min(last, FirstWithOffset(most + 1) - 1);
        }
    }

    /// Index of the first pixel that is moved by at least `offset` on the shorter axis.
    std::int64_t FirstWithOffset(std::int64_t offset) const
    {
        return offset <= 0 ? 0 : CeilDivide(2 * m_length * offset - m_length + m_tie, 2 * m_rise);
    }

    bool m_steep;
    std::int64_t m_longStart, m_shortStart;
    std::int64_t m_longStep, m_shortStep;
    std::int64_t m_length, m_rise;
    std::int64_t m_tie;
};
}  // namespace detail

#endif
