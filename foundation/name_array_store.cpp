// CNameArr: the whole table copied, written and read.
#include <algorithm>
#include <cstring>
#include <vector>

#include "foundation/detail_name_record.h"
#include "foundation/name_array.h"

namespace {
constexpr std::size_t kSectionSize = 13;
constexpr char kSectionName[kSectionSize] = "ARRAYNAMES  ";
constexpr char kEmptySectionName[kSectionSize] = "NOARRAYNAMES";
constexpr std::int32_t kVersionMark = 20;  // says nothing about the size of what follows

/// A CName as it stands in the block.
struct NameField
{
    std::int32_t unused;  // written as 0, read as nothing
    std::int32_t maximumLength;
    TSName name;
};
static_assert(sizeof(NameField) == 24);

constexpr std::int32_t kMaximumLength = 10;

NameField FieldOf(CName const & name)
{
    return {0, kMaximumLength, name.GetName()};
}

template <class Record>
void WriteRecord(CArchive & archive, Record const & record)
{
    archive.Write(&record, sizeof record);
}

template <class Record>
bool ReadRecord(CArchive & archive, Record & record)
{
    return archive.Read(&record, sizeof record) == sizeof record;
}

template <class Record>
void WriteRecords(CArchive & archive, CArray<Record, Record> const & records)
{
    WriteRecord(archive, std::int32_t{records.GetSize()});
    for (Record const & record : records)
        WriteRecord(archive, record);
}

/// Reads that many records, in portions so that a false count allocates no more than there is to read.
template <class Array>
bool ReadRecords(CArchive & archive, std::int32_t count, Array & records)
{
    constexpr std::int32_t kPortion = 1000;
    for (std::int32_t read = 0; read < count;) {
        std::int32_t const portion = std::min(kPortion, count - read);
        records.SetSize(read + portion);
        auto const bytes = static_cast<UINT>(sizeof records[0] * static_cast<std::size_t>(portion));
        if (archive.Read(&records[read], bytes) != bytes)
            return false;
        read += portion;
    }
    return true;
}
}  // namespace

int CNameArr::SetNameArr(void * other)
{
    auto * const from = static_cast<CNameArr *>(other);
    return from ? from->GetNameArr(this) : 0;
}

int CNameArr::GetNameArr(void * other) const
{
    auto * const to = static_cast<CNameArr *>(other);
    if (!to)
        return 0;
    to->m_names.Copy(m_names);
    to->m_handles.Copy(m_handles);
    to->m_isInOrder = m_isInOrder;
    return 1;
}

void CNameArr::SetAtGrow(int, TSName) {}

int CNameArr::WriteElements(CArchive & archive) const
{
    if (m_names.IsEmpty()) {
        WriteRecord(archive, kEmptySectionName);
        return 0;
    }
    WriteRecord(archive, kSectionName);
    WriteRecord(archive, kVersionMark);
    WriteRecord(archive, FieldOf(m_actualName));
    WriteRecord(archive, FieldOf(m_workName));
    WriteRecords(archive, m_names);
    WriteRecords(archive, m_handles);
    return 1;
}

int CNameArr::ReadElements(CArchive & archive)
{
    char section[kSectionSize];
    std::int32_t mark = 0;
    if (!ReadRecord(archive, section))
        return 0;
    if (std::memcmp(section, kEmptySectionName, kSectionSize) == 0)
        return 1;
    if (std::memcmp(section, kSectionName, kSectionSize) != 0 || !ReadRecord(archive, mark) ||
        mark != kVersionMark)
        return 0;
    NameField actualName;
    NameField workName;
    CArray<TSName, TSName> names;
    CArray<std::int32_t, std::int32_t> handles;
    std::int32_t count = 0;
    if (!ReadRecord(archive, actualName) || !ReadRecord(archive, workName) || !ReadRecord(archive, count) ||
        count < 0 || !ReadRecords(archive, count, names))
        return 0;
    if (!ReadRecord(archive, count) || !ReadRecords(archive, count, handles))
        return 0;
    m_actualName.SetName(actualName.name);
    m_workName.SetName(workName.name);
    m_names.Copy(names);
    m_isInOrder = detail::IsInOrder(names.View());
    if (count > 0)
        m_handles.Copy(handles);
    return 1;
}
