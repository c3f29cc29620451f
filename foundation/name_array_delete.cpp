// CNameArr: marking names as deleted and removing them.
#include <algorithm>
#include <vector>

#include "foundation/detail_name_mark.h"
#include "foundation/detail_name_record.h"
#include "foundation/name_array.h"

namespace {
bool IsOnItsWayOut(TSName const & name)
{
    return name.number == detail::kRemovedNumber && detail::TextOf(name).empty();
}

/// For each position and the end: how many names in front of it go.
std::vector<std::int32_t> CountRemovedBefore(CArray<TSName, TSName> const & names)
{
    std::vector<std::int32_t> counts{0};
    counts.reserve(static_cast<std::size_t>(names.GetSize()) + 1);
    for (TSName const & name : names)
        counts.push_back(counts.back() + (IsOnItsWayOut(name) ? 1 : 0));
    return counts;
}
}  // namespace

int CNameArr::DeleteNameBySort(int handle)
{
    int position = 0;
    if (!GetNameBySort(handle, position))
        return 0;
    m_handles[handle] = detail::MarkOf(position);
    return 1;
}

int CNameArr::UnDeleteNameBySort(int handle)
{
    if (handle < 0 || handle >= m_handles.GetSize() || !detail::IsMark(m_handles[handle]))
        return 0;
    std::int32_t const position = detail::PositionOf(m_handles[handle]);
    if (!IsInTable(position))
        return 0;
    m_handles[handle] = position;
    return 1;
}

int CNameArr::DeleteNameByPos(int position)
{
    if (!IsInTable(position))
        return 0;
    m_names.RemoveAt(position);
    return 1;
}

/// Turns the marked handles dead and their names into ones that go; the result is the number of handles.
int CNameArr::MarkDeletedNames()
{
    int count = 0;
    for (std::int32_t & value : m_handles) {
        if (!detail::IsMark(value))
            continue;
        std::int32_t const position = detail::PositionOf(value);
        if (IsInTable(position))
            m_names[position] = {{}, detail::kRemovedNumber};
        value = detail::kRemovedNumber;
        ++count;
    }
    return count;
}

int CNameArr::NameArrayCompress()
{
    if (m_names.IsEmpty() || MarkDeletedNames() == 0)
        return 1;
    // Each handle falls by one for each name removed in front of its position.
    std::vector<std::int32_t> const removedBefore = CountRemovedBefore(m_names);
    std::int32_t const end = m_names.GetSize();
    for (std::int32_t & value : m_handles)
        if (value > 0)
            value -= removedBefore[static_cast<std::size_t>(std::min(value, end))];
    auto const kept = std::remove_if(m_names.begin(), m_names.end(), IsOnItsWayOut);
    m_names.SetSize(static_cast<int>(kept - m_names.begin()));
    return 1;
}

int CNameArr::NameFullCompress()
{
    m_handles.RemoveAll();
    m_names.RemoveAll();
    m_isInOrder = true;
    return 1;
}
