#include "foundation/vard_object.h"

IMPLEMENT_SERIAL(CVARDObject, CObject, 1)
IMPLEMENT_SERIAL(CVARDSortObject, CVARDObject, 1)
IMPLEMENT_SERIAL(CVARDNamedObject, CVARDSortObject, 1)

int CVARDObject::CopyObject(CVARDObject * from)
{
    if (!from)
        return 0;
    *this = *from;
    return 1;
}

CObject * CVARDObject::CreateNewObject()
{
    return GetRuntimeClass()->CreateObject();
}

int CVARDSortObject::IsLess(CVARDSortObject *)
{
    return 0;
}

void CVARDNamedObject::Serialize(CArchive & archive)
{
    CVARDSortObject::Serialize(archive);
    if (archive.IsStoring())
        archive << m_name;
    else
        archive >> m_name;
}

int CVARDNamedObject::CopyObject(CVARDObject * from)
{
    auto const * const named = dynamic_cast<CVARDNamedObject *>(from);
    if (!named)
        return 0;
    *this = *named;
    return 1;
}
