#ifndef KX7_FOUNDATION_DETAIL_NAME_MARK_H
#define KX7_FOUNDATION_DETAIL_NAME_MARK_H

#include <cstdint>

namespace detail {
inline constexpr std::int32_t kMarkOffset = 100;  // a mark is -(position + kMarkOffset)
inline constexpr std::int32_t kRemovedNumber =
    -1500000;  // value of a dead handle; number of a name on its way out

/// The value that stands for a position as deleted or in the way, and back.
inline std::int32_t MarkOf(std::int32_t position)
{
    return -(position + kMarkOffset);
}
inline std::int32_t PositionOf(std::int32_t mark)
{
    return -(mark + kMarkOffset);
}

/// Whether a handle's value marks a deleted name that a compression will remove.
inline bool IsMark(std::int32_t value)
{
    return value <= -kMarkOffset && value > kRemovedNumber;
}
}  // namespace detail

#endif
