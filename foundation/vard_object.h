#ifndef KX7_FOUNDATION_VARD_OBJECT_H
#define KX7_FOUNDATION_VARD_OBJECT_H

#include "platform/base/archive.h"
#include "platform/base/object.h"

/// Root of everything that a project stores as an object. A derived class overrides CopyObject together with
/// its operator=, and Serialize if it has fields: base class first, then its own fields in their order.
class KX7_API CVARDObject : public CObject
{
    DECLARE_SERIAL(CVARDObject)

  public:
    CVARDObject() = default;
    CVARDObject(CVARDObject const &) = default;
    ~CVARDObject() override = default;

    /// Copies nothing: there are no fields at this level.
    CVARDObject & operator=(CVARDObject const &) = default;

    /// Assigns the fields of `from` at this class's own level and returns 1. A null `from`, and one that
    /// isn't of this class, returns 0 and changes nothing.
    virtual int CopyObject(CVARDObject * from);

    /// Makes a new object of this object's own class through its class record, owned by the caller. Null if
    /// the class can't be made by record or memory is out.
    CObject * CreateNewObject();
};

/// An object that knows its order among others.
class KX7_API CVARDSortObject : public CVARDObject
{
    DECLARE_SERIAL(CVARDSortObject)

  public:
    /// Whether this object must stand in front of `other`, 1 or 0; 0 here.
    virtual int IsLess(CVARDSortObject * other);
};

/// An object with a name. In archives: the name.
class KX7_API CVARDNamedObject : public CVARDSortObject
{
    DECLARE_SERIAL(CVARDNamedObject)

  public:
    void Serialize(CArchive & archive) override;
    int CopyObject(CVARDObject * from) override;

    CString GetName() const { return m_name; }
    void SetName(CString const & name) { m_name = name; }

  private:
    CString m_name;
};

#endif
