#ifndef KX7_FOUNDATION_VARD_LIST_WITH_NAMED_OBJECT_H
#define KX7_FOUNDATION_VARD_LIST_WITH_NAMED_OBJECT_H

#include "foundation/vard_ob_list.h"

class CComboBox;

/// An owning list of named objects. Objects without a name may be in it; they are passed over here.
class KX7_API CVARDListWithNamedObject : public CVARDObList
{
    DECLARE_DYNCREATE(CVARDListWithNamedObject)

  public:
    ~CVARDListWithNamedObject() override;
    using CVARDObList::operator=;

    /// The first object, from the head, that isn't at `skip` and whose name equals `name` without regard to
    /// case. Null if there is none. A null `skip` skips nothing.
    POSITION FindName(CString const & name, POSITION skip) const;

    /// A name that no object has: the text of `base` with its trailing number raised by `step`, then by 1 as
    /// long as an object has that name in the same case. A base without a number counts as number 1.
    CString GetNewName(CString const & base, int step) const;

    /// Fills the box with the names, each item's data being the object's list position, and selects the
    /// object at `selected`, or none if it isn't there. Returns 1; if an item can't be added the box is
    /// emptied and the result is 0.
    int NameToComboBox(CComboBox & box, POSITION selected) const;

    /// The same, with the first object of that name (FindName) selected.
    int NameToComboBox(CComboBox & box, CString const & name) const;

    /// The object of the box's current item; null if nothing is selected or the item is no object of this
    /// list.
    CVARDNamedObject * GetObjectFromComboBox(CComboBox & box) const;

  private:
    bool HasName(CString const & name) const;
};

#endif
