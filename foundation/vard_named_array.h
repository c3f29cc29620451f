#ifndef KX7_FOUNDATION_VARD_NAMED_ARRAY_H
#define KX7_FOUNDATION_VARD_NAMED_ARRAY_H

#include "foundation/vard_object.h"
#include "platform/base/collections.h"

/// A named array that owns its objects. In archives: the name, then the objects.
///
/// CopyObject is that of CVARDNamedObject, so an array that is an item of another one is copied by its name
/// alone.
class KX7_API CVARDNamedArray : public CVARDNamedObject
{
    DECLARE_SERIAL(CVARDNamedArray)

  public:
    CVARDNamedArray() = default;

    /// Copies the name and makes a new object for each item, by its class record and CopyObject. Null items
    /// and items that can't be made are left out.
    CVARDNamedArray(CVARDNamedArray const & from);
    ~CVARDNamedArray() override;

    /// The same in place of the present items. Assigning an array to itself changes nothing.
    CVARDNamedArray & operator=(CVARDNamedArray const & from);

    void Serialize(CArchive & archive) override;

    int GetCount() const { return m_items.GetSize(); }

    /// Puts the object, which the array owns from now on and which may be null, at the end. The result is its
    /// index.
    virtual int AddObject(CVARDObject * object);

    /// The item; null for an index that isn't there.
    CObject * GetAt(int index) const;
    CObject * operator[](int index) const { return GetAt(index); }

    /// Deletes all items.
    void RemoveAll();

  private:
    void AddCopies(CVARDNamedArray const & from);

    CObArray m_items;
};

#endif
