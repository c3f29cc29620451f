#ifndef KX7_FOUNDATION_VARD_SORT_LIST_H
#define KX7_FOUNDATION_VARD_SORT_LIST_H

#include "foundation/vard_list_with_named_object.h"

/// An owning list that is kept in the order of its objects' IsLess.
class KX7_API CVARDSortList : public CVARDListWithNamedObject
{
    DECLARE_DYNCREATE(CVARDSortList)

  public:
    ~CVARDSortList() override;
    using CVARDListWithNamedObject::operator=;

    /// Puts the object, which the list owns from now on, in front of the first one for which the object's
    /// IsLess(that one) holds, else at the tail; equal objects keep their order of arrival. It becomes active
    /// if `makeActive` isn't 0. Null for a null object. Objects in the list that can't be compared are passed
    /// over.
    POSITION AddSortObject(CVARDSortObject * object, int makeActive);

  private:
    POSITION FindFirstBehind(CVARDSortObject & object) const;
};

#endif
