#include "foundation/vard_sort_list.h"

IMPLEMENT_DYNCREATE(CVARDSortList, CVARDListWithNamedObject)

CVARDSortList::~CVARDSortList() = default;

/// The position of the first object in front of which the given one must stand; null for none.
POSITION CVARDSortList::FindFirstBehind(CVARDSortObject & object) const
{
    for (POSITION position = GetHeadPosition(); position;) {
        POSITION const current = position;
        auto * const other = dynamic_cast<CVARDSortObject *>(GetNext(position));
        if (other && object.IsLess(other))
            return current;
    }
    return nullptr;
}

POSITION CVARDSortList::AddSortObject(CVARDSortObject * object, int makeActive)
{
    if (!object)
        return nullptr;
    POSITION const behind = FindFirstBehind(*object);
    POSITION const position = behind ? InsertBefore(behind, object) : AddTail(object);
    if (position && makeActive != 0)
        SetActPos(position);
    return position;
}
