#ifndef KX7_FOUNDATION_DETAIL_NAME_RECORD_H
#define KX7_FOUNDATION_DETAIL_NAME_RECORD_H

#include <cstring>
#include <limits>
#include <span>
#include <string_view>

#include "foundation/name.h"

namespace detail {
inline constexpr std::int32_t kNoNumber = -1;
inline constexpr std::int32_t kNumberBehindNone = 2;  // the name behind "A" is "A2"
inline constexpr std::int32_t kHighestNumber = std::numeric_limits<std::int32_t>::max();

/// The text of a record, also of one from a file whose text has no NUL.
inline std::string_view TextOf(TSName const & name)
{
    return {name.text, ::strnlen(name.text, sizeof name.text)};
}

/// Whether a text and number stand before a record in a table.
inline bool IsBefore(std::string_view text, std::int32_t number, TSName const & other)
{
    int const order = text.compare(TextOf(other));
    return order < 0 || (order == 0 && number < other.number);
}

/// The same the other way round.
inline bool IsBefore(TSName const & name, std::string_view text, std::int32_t number)
{
    int const order = TextOf(name).compare(text);
    return order < 0 || (order == 0 && name.number < number);
}

/// Whether no record stands before the one in front of it.
bool IsInOrder(std::span<TSName const> names);

/// The number behind a number.
inline std::int32_t NextNumber(std::int32_t number)
{
    if (number < 0)
        return kNumberBehindNone;
    return number == kHighestNumber ? number : number + 1;
}

/// The text and number as one text.
CString NameText(std::string_view text, std::int64_t number);
}  // namespace detail

#endif
