#include "platform/base/object.h"

#include <cstring>

namespace {
CRuntimeClass * g_firstSerialClass = nullptr;
}

CRuntimeClass const CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)), 0xFFFF, nullptr,
                                             nullptr};

CObject * CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

bool CRuntimeClass::IsDerivedFrom(CRuntimeClass const * base) const
{
    for (CRuntimeClass const * record = this; record; record = record->m_pBaseClass)
        if (record == base)
            return true;
    return false;
}

CRuntimeClass const * CRuntimeClass::FromName(char const * name)
{
    for (CRuntimeClass const * record = g_firstSerialClass; record; record = record->m_pNextClass)
        if (std::strcmp(record->m_lpszClassName, name) == 0)
            return record;
    return nullptr;
}

CRuntimeClass const * CObject::GetRuntimeClass() const
{
    return &classCObject;
}

void CObject::Serialize(CArchive &) {}

bool CObject::IsKindOf(CRuntimeClass const * record) const
{
    return GetRuntimeClass()->IsDerivedFrom(record);
}

bool CObject::IsSerializable() const
{
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}
