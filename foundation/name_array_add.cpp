// CNameArr: entering names and looking for free ones.
#include <algorithm>
#include <limits>

#include "foundation/detail_name_record.h"
#include "foundation/name_array.h"

namespace {
constexpr int kRefused = -1;

}  // namespace

/// Enters a name at a position of the table and gives out its handle.
int CNameArr::InsertName(TSName const & name, int position)
{
    m_names.InsertAt(position, name);
    int const first = std::max(position - 1, 0);
    int const end = std::min(position + 2, m_names.GetSize());
    m_isInOrder = m_isInOrder && detail::IsInOrder({m_names.begin() + first, m_names.begin() + end});
    for (std::int32_t & value : m_handles)
        value += value >= position && value != detail::kHighestNumber ? 1 : 0;
    return m_handles.Add(position);
}

/// From the position of a name that the table has, moves on behind the last name of its text and gives `name`
/// the number behind that one's. False if there is no such number.
bool CNameArr::MoveBehindLast(TSName & name, int & position) const
{
    std::string_view const text = detail::TextOf(name);
    ++position;
    while (position < m_names.GetSize() && detail::TextOf(m_names[position]) == text)
        ++position;
    std::int32_t const last = m_names[position - 1].number;
    name.number = detail::NextNumber(last);
    return last != detail::kHighestNumber;
}

int CNameArr::AddName(TSName & name, int count)
{
    int position = 0;
    int const found = FindName(name, position, count);
    TSName entered = m_workName.GetName();
    if (found >= 0) {
        position = found;
        if (!MoveBehindLast(entered, position))
            return kRefused;
    }
    if (position < 0)
        return kRefused;
    name = entered;
    m_actualName.SetName(entered);
    m_nextPosition = position + 1;
    return InsertName(entered, position);
}

int CNameArr::AddName(CString & text, int count)
{
    CName name;
    if (!name.SetNameStr(text, 1))
        return kRefused;
    TSName record = name.GetName();
    int const handle = AddName(record, count);
    if (handle >= 0)
        text = m_actualName.GetNameStr();
    return handle;
}

int CNameArr::AddNameDirect()
{
    if (m_nextPosition < 0 || m_nextPosition > m_names.GetSize())
        return kRefused;
    TSName const name = m_actualName.GetName();
    m_actualName.GetNextName();
    return InsertName(name, m_nextPosition++);
}

int CNameArr::IsFeeName(TSName name, int count)
{
    int position = 0;
    FindName(name, position, count);
    if (position < 0)
        return position;
    m_actualName.SetName(name);
    m_nextPosition = position;
    return position;
}

int CNameArr::GetFirstFreeNameStr(CString & text, int count)
{
    if (m_names.IsEmpty() || !m_workName.SetNameStr(text, 1))
        return 1;
    TSName const sought = m_workName.GetName();
    std::string_view const textPart = detail::TextOf(sought);
    int position = CountBefore(textPart, std::numeric_limits<std::int32_t>::min());
    while (position < m_names.GetSize() && detail::TextOf(m_names[position]) < textPart)
        ++position;
    if (position == m_names.GetSize() || detail::TextOf(m_names[position]) != textPart)
        return 1;
    std::int64_t number = sought.number;
    std::int64_t const room = std::max(count, 1) - 1;
    for (; position < m_names.GetSize() && detail::TextOf(m_names[position]) == textPart; ++position) {
        std::int64_t const taken = m_names[position].number;
        if (taken > number + room)
            break;
        number = std::max(number, taken + 1);
    }
    text = detail::NameText(textPart, number);
    return 1;
}
