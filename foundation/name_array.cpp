// CNameArr: construction, looking up, filling boxes.
#include "foundation/name_array.h"

#include <algorithm>

#include "foundation/detail_name_mark.h"
#include "foundation/detail_name_record.h"
#include "platform/base/combo_box.h"

namespace {
constexpr char const * kFirstActualName = "name";
constexpr int kNotFound = -1;

bool IsSameName(TSName const & a, TSName const & b)
{
    return a.number == b.number && detail::TextOf(a) == detail::TextOf(b);
}
}  // namespace

bool detail::IsInOrder(std::span<TSName const> names)
{
    for (std::size_t i = 1; i < names.size(); ++i)
        if (IsBefore(TextOf(names[i]), names[i].number, names[i - 1]))
            return false;
    return true;
}

CNameArr::CNameArr()
{
    m_actualName.SetNameStr(kFirstActualName, 1);
    m_workName = m_actualName;
}

/// How many names at the start of the table are known to stand before the given one: a walk from there on
/// finds what a walk from the start finds. 0 for a table that isn't in order.
int CNameArr::CountBefore(std::string_view text, std::int32_t number) const
{
    if (!m_isInOrder)
        return 0;
    auto const isBefore = [&](TSName const & entry) { return detail::IsBefore(entry, text, number); };
    return static_cast<int>(std::partition_point(m_names.begin(), m_names.end(), isBefore) - m_names.begin());
}

int CNameArr::FindName(TSName name) const
{
    int const first = CountBefore(detail::TextOf(name), name.number);
    int const end = m_isInOrder ? std::min(first + 1, m_names.GetSize()) : m_names.GetSize();
    for (int i = first; i < end; ++i)
        if (IsSameName(m_names[i], name))
            return i;
    return kNotFound;
}

int CNameArr::FindName(CString text) const
{
    CName name;
    return name.SetNameStr(text, 1) ? FindName(name.GetName()) : kNotFound;
}

int CNameArr::FindName(TSName name, int & position, int count)
{
    position = kNotFound;
    m_workName.SetName(name);
    TSName const sought = m_workName.GetName();
    std::string_view const text = detail::TextOf(sought);
    for (int i = CountBefore(text, sought.number); i < m_names.GetSize(); ++i) {
        TSName const & entry = m_names[i];
        int const order = text.compare(detail::TextOf(entry));
        if (order == 0 && sought.number == entry.number)
            return i;
        bool const isBeforeEntry = order < 0 || (order == 0 && sought.number < entry.number);
        if (!isBeforeEntry)
            continue;
        bool const runReachesEntry = order == 0 && std::int64_t{sought.number} + count - 1 >= entry.number;
        position = runReachesEntry ? detail::MarkOf(i) : i;
        return kNotFound;
    }
    position = m_names.GetSize();
    return kNotFound;
}

int CNameArr::GetNameBySort(int handle, int & position) const
{
    if (handle < 0 || handle >= m_handles.GetSize() || !IsInTable(m_handles[handle]))
        return 0;
    position = m_handles[handle];
    return 1;
}

int CNameArr::GetNameBySort(int handle, TSName & name) const
{
    int position = 0;
    if (GetNameBySort(handle, position))
        return GetNameByPos(position, name);
    name = {{}, detail::kNoNumber};
    return 0;
}

CString CNameArr::GetNameStrBySort(int handle) const
{
    int position = 0;
    return GetNameBySort(handle, position) ? GetNameStrByPos(position) : CString();
}

int CNameArr::GetNameByPos(int position, TSName & name) const
{
    if (!IsInTable(position))
        return 0;
    name = m_names[position];
    return 1;
}

CString CNameArr::GetNameStrByPos(int position) const
{
    if (!IsInTable(position))
        return CString();
    TSName const & name = m_names[position];
    return detail::NameText(detail::TextOf(name), name.number);
}

int CNameArr::SetListBox(CListBox & box) const
{
    box.ResetContent();
    for (int i = 0; i < m_names.GetSize(); ++i)
        box.AddString(GetNameStrByPos(i));
    return m_names.IsEmpty() ? 0 : 1;
}

int CNameArr::SetComboBox(CComboBox & box) const
{
    box.ResetContent();
    for (int i = 0; i < m_names.GetSize(); ++i)
        box.AddString(GetNameStrByPos(i));
    for (int handle = 0; handle < m_names.GetSize(); ++handle) {
        int position = 0;
        if (GetNameBySort(handle, position))
            box.SetItemData(position, static_cast<std::uintptr_t>(handle));
    }
    return m_names.IsEmpty() ? 0 : 1;
}
