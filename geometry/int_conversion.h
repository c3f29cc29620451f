#ifndef KX7_GEOMETRY_INT_CONVERSION_H
#define KX7_GEOMETRY_INT_CONVERSION_H

#include <limits>

namespace detail {
/// `value` with its fraction cut off. A value that no int holds gives the nearest int, NaN gives 0.
inline int TruncatedToInt(double value)
{
    constexpr double kSmallest = std::numeric_limits<int>::min();
    constexpr double kLargest = std::numeric_limits<int>::max();
    if (value >= kLargest)
        return std::numeric_limits<int>::max();
    if (value <= kSmallest)
        return std::numeric_limits<int>::min();
    return value == value ? static_cast<int>(value) : 0;
}
}  // namespace detail

#endif
