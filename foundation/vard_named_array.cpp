#include "foundation/vard_named_array.h"

#include "foundation/detail_copy_of_item.h"

IMPLEMENT_SERIAL(CVARDNamedArray, CVARDNamedObject, 1)

CVARDNamedArray::CVARDNamedArray(CVARDNamedArray const & from) : CVARDNamedObject(from)
{
    AddCopies(from);
}

CVARDNamedArray::~CVARDNamedArray()
{
    RemoveAll();
}

CVARDNamedArray & CVARDNamedArray::operator=(CVARDNamedArray const & from)
{
    if (this == &from)
        return *this;
    RemoveAll();
    CVARDNamedObject::operator=(from);
    AddCopies(from);
    return *this;
}

void CVARDNamedArray::Serialize(CArchive & archive)
{
    if (archive.IsLoading())
        RemoveAll();
    CVARDNamedObject::Serialize(archive);
    if (archive.IsLoading()) {
        CArchive::OwnedReading const owned(archive, RUNTIME_CLASS(CVARDObject));
        m_items.Serialize(archive);
    } else
        m_items.Serialize(archive);
}

int CVARDNamedArray::AddObject(CVARDObject * object)
{
    return m_items.Add(object);
}

CObject * CVARDNamedArray::GetAt(int index) const
{
    return index >= 0 && index < m_items.GetSize() ? m_items.GetAt(index) : nullptr;
}

void CVARDNamedArray::RemoveAll()
{
    for (CObject * const item : m_items)
        delete item;
    m_items.RemoveAll();
}

void CVARDNamedArray::AddCopies(CVARDNamedArray const & from)
{
    for (CObject * const item : from.m_items)
        if (auto copy = detail::CopyOfItem(item))
            AddObject(copy.release());
}
