#include "foundation/vard_ob_list.h"

#include <cstdint>
#include <memory>
#include <new>

#include "foundation/detail_copy_of_item.h"
#include "platform/base/message_box.h"

IMPLEMENT_SERIAL(CVARDObList, CObList, 1)

namespace {
constexpr int kBlockSize = 10;             // nodes that are made at a time
constexpr UINT kInsertFailedText = 55040;  // message: the object couldn't be put into the list
constexpr int kNoIndex = -1;
}  // namespace

CVARDObList::CVARDObList() : CObList(kBlockSize) {}

CVARDObList::~CVARDObList()
{
    RemoveAllObjects();
}

CVARDObList & CVARDObList::operator=(CVARDObList const & from)
{
    CopyList(const_cast<CVARDObList *>(&from));  // only reads it
    return *this;
}

void CVARDObList::Serialize(CArchive & archive)
{
    if (archive.IsStoring()) {
        CObList::Serialize(archive);
        archive << std::int32_t{GetActNumPos()};
        return;
    }
    ClearList();
    {
        CArchive::OwnedReading const owned(archive, RUNTIME_CLASS(CVARDObject));
        CObList::Serialize(archive);
    }
    std::int32_t active = kNoIndex;
    archive >> active;
    SetActNumPos(active);
}

POSITION CVARDObList::AddTailOrReport(CObject * object)
{
    try {
        return AddTail(object);
    } catch (std::bad_alloc const &) {
        AfxMessageBox(kInsertFailedText);
        return nullptr;
    }
}

POSITION CVARDObList::AddObject(CVARDObject * object)
{
    if (!object)
        return nullptr;
    POSITION const position = AddTailOrReport(object);
    if (position)
        m_activePosition = position;
    return position;
}

int CVARDObList::DeleteObject(POSITION position)
{
    CObject const * const object = position ? GetAt(position) : nullptr;
    if (!object)
        return 0;
    if (position == m_activePosition) {
        POSITION next = position;
        POSITION previous = position;
        GetNext(next);
        GetPrev(previous);
        m_activePosition = next ? next : previous;
    }
    RemoveAt(position);
    delete object;
    return 1;
}

int CVARDObList::SetActPos(POSITION position)
{
    m_activePosition = position;
    return 1;
}

int CVARDObList::CopyList(CVARDObList * from)
{
    if (!from)
        return 0;
    if (from == this)
        return 1;
    RemoveAllObjects();
    for (POSITION position = from->GetHeadPosition(); position;) {
        bool const isActive = position == from->m_activePosition;
        std::unique_ptr<CVARDObject> copy = detail::CopyOfItem(from->GetNext(position));
        POSITION const added = copy ? AddTailOrReport(copy.get()) : nullptr;
        if (!added)
            continue;
        static_cast<void>(copy.release());
        if (isActive)
            m_activePosition = added;
    }
    return 1;
}

void CVARDObList::RemoveAllObjects()
{
    for (POSITION position = GetHeadPosition(); position;)
        delete GetNext(position);
    RemoveAll();
    m_activePosition = nullptr;
}

int CVARDObList::GetActNumPos() const
{
    int index = 0;
    for (POSITION position = GetHeadPosition(); position; GetNext(position), ++index)
        if (position == m_activePosition)
            return index;
    return kNoIndex;
}

int CVARDObList::SetActNumPos(int index)
{
    m_activePosition = FindIndex(index);
    return index < 0 || m_activePosition ? 1 : 0;
}
