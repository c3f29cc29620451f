#ifndef KX7_FOUNDATION_DETAIL_NUMBER_TEXT_H
#define KX7_FOUNDATION_DETAIL_NUMBER_TEXT_H

#include <string_view>

namespace detail {
/// The longest text that a number becomes, in bytes.
inline constexpr int kLongestNumberText = 127;

/// The text of one number, in a buffer of its own so that nothing is allocated.
struct NumberText
{
    char bytes[kLongestNumberText + 1];
    int length = 0;

    std::string_view View() const { return {bytes, static_cast<std::size_t>(length)}; }
};

/// The text of a number as CVARDString::Str describes it.
NumberText FormatNumber(double value, int width, int decimals);
}  // namespace detail

#endif
