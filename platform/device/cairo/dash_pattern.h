#ifndef KX7_PLATFORM_DEVICE_CAIRO_DASH_PATTERN_H
#define KX7_PLATFORM_DEVICE_CAIRO_DASH_PATTERN_H

#include <span>

#include "platform/base/gdi_types.h"

namespace detail {
/// Lengths of strokes and gaps in pixels, in turn, of a pen style; empty for a solid line.
inline std::span<double const> DashLengths(int style)
{
    static constexpr double kDash[] = {18, 6};
    static constexpr double kDot[] = {3, 3};
    static constexpr double kDashDot[] = {9, 6, 3, 6};
    static constexpr double kDashDotDot[] = {9, 3, 3, 3, 3, 3};
    switch (style) {
        case PS_DASH:
            return kDash;
        case PS_DOT:
            return kDot;
        case PS_DASHDOT:
            return kDashDot;
        case PS_DASHDOTDOT:
            return kDashDotDot;
        default:
            return {};
    }
}

/// Where a thin dashed line stands in its pattern; goes on from one piece of an outline to the next.
class DashState
{
  public:
    explicit DashState(int style) : m_lengths(DashLengths(style))
    {
        for (double const length : m_lengths)
            m_total += static_cast<int>(length);
    }

    bool IsSolid() const { return m_total == 0; }

    /// Whether the pixel number `index` of the current piece belongs to a stroke.
    bool IsOn(long long index) const
    {
        if (IsSolid())
            return true;
        int rest = static_cast<int>((m_phase + index) % m_total);
        bool on = true;
        for (double const length : m_lengths) {
            rest -= static_cast<int>(length);
            if (rest < 0)
                return on;
            on = !on;
        }
        return on;
    }

    /// Goes on behind a piece of that many pixels.
    void Advance(long long pixels)
    {
        if (!IsSolid())
            m_phase = (m_phase + pixels) % m_total;
    }

  private:
    std::span<double const> m_lengths;
    int m_total = 0;
    long long m_phase = 0;
};
}  // namespace detail

#endif
