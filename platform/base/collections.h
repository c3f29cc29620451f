#ifndef KX7_PLATFORM_BASE_COLLECTIONS_H
#define KX7_PLATFORM_BASE_COLLECTIONS_H

#include "platform/base/array.h"
#include "platform/base/object.h"
#include "platform/base/pointer_list.h"
#include "platform/base/string.h"

// None of the collections owns the objects it points to.

/// An array of pointers to objects.
class KX7_API CObArray : public CArray<CObject *, CObject *>
{
    DECLARE_SERIAL(CObArray)

    /// Stores the count and the objects, or replaces the pointers by the stored objects. If reading fails,
    /// the array holds the objects that were read whole.
    void Serialize(CArchive & archive) override;
};

/// An array of texts.
class KX7_API CStringArray : public CArray<CString, CString const &>
{
    DECLARE_SERIAL(CStringArray)

    /// Stores the count and the texts, or replaces the texts by the stored ones.
    void Serialize(CArchive & archive) override;
};

/// An array of bytes.
class KX7_API CByteArray : public CArray<BYTE, BYTE>
{
    DECLARE_SERIAL(CByteArray)

    /// Stores the count and the bytes, or replaces the bytes by the stored ones.
    void Serialize(CArchive & archive) override;
};

/// A list of pointers to objects.
class KX7_API CObList : public detail::PointerList<CObject *>
{
    DECLARE_SERIAL(CObList)

    explicit CObList(int blockSize = 10) : PointerList(blockSize) {}

    /// Stores the count and the objects, or adds the stored objects at the tail. If reading fails, the list
    /// holds the objects that were read whole.
    void Serialize(CArchive & archive) override;
};

/// A list of pointers to anything.
class KX7_API CPtrList : public detail::PointerList<void *>
{
    DECLARE_DYNAMIC(CPtrList)

    explicit CPtrList(int blockSize = 10) : PointerList(blockSize) {}
};

#endif
