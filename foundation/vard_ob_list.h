#ifndef KX7_FOUNDATION_VARD_OB_LIST_H
#define KX7_FOUNDATION_VARD_OB_LIST_H

#include "foundation/vard_object.h"
#include "platform/base/collections.h"

/// A list that owns its objects and remembers one of them as the active one. In archives: the objects, then
/// the index of the active one as a 32-bit integer, -1 for none.
///
/// The active position is a marker: only the operations that say so move it.
class KX7_API CVARDObList : public CObList
{
    DECLARE_SERIAL(CVARDObList)

  public:
    CVARDObList();
    ~CVARDObList() override;

    /// CopyList.
    CVARDObList & operator=(CVARDObList const & from);

    /// When loading, the stored objects replace the present ones, and the active position is rebuilt from the
    /// stored index; an index that isn't there leaves none.
    void Serialize(CArchive & archive) override;

    /// Puts the object, which the list owns from now on, at the tail and makes it active. Null, and the
    /// object stays the caller's, for a null object and, after a message, if memory is out.
    POSITION AddObject(CVARDObject * object);

    /// Deletes the object at a position of this list and returns 1; 0 for a null position or object. If it
    /// was active, the next one becomes active, or the previous one if there is no next.
    int DeleteObject(POSITION position);

    /// The active position; null for none. SetActPos checks nothing and returns 1.
    POSITION GetActPos() const { return m_activePosition; }
    int SetActPos(POSITION position);

    /// Replaces the objects by copies of those of `from`, made by their class records and CopyObject, in the
    /// same order and with the same active one. Objects that can't be made are left out; one for which memory
    /// is out is left out after a message. Returns 1; 0 for null, which changes nothing. A copy from itself
    /// changes nothing.
    virtual int CopyList(CVARDObList * from);

    /// Deletes all objects; no position is active then.
    void ClearList() { RemoveAllObjects(); }

  protected:
    void RemoveAllObjects();

    /// The index of the active position from 0 at the head; -1 if there is none or it isn't in the list.
    int GetActNumPos() const;

    /// Makes the object at an index active and returns 1. A negative index makes none active and returns 1,
    /// an index beyond the end makes none active and returns 0.
    int SetActNumPos(int index);

  private:
    POSITION AddTailOrReport(CObject * object);

    POSITION m_activePosition = nullptr;
};

#endif
