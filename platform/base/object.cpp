#include "platform/base/object.h"

#include <cstring>
#include <new>

#include "platform/base/archive.h"

namespace {
detail::ClassRegistration * g_firstSerialClass = nullptr;
}

CRuntimeClass const CObject::classCObject = {"CObject", static_cast<int>(sizeof(CObject)),
                                             CRuntimeClass::kNoSchema, nullptr, nullptr};

CObject * CRuntimeClass::CreateObject() const
{
    try {
        return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
    } catch (std::bad_alloc const &) {
        return nullptr;
    }
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
    for (detail::ClassRegistration const * each = g_firstSerialClass; each; each = each->Next())
        if (std::strcmp(each->Record().m_lpszClassName, name) == 0)
            return &each->Record();
    return nullptr;
}

namespace detail {
ClassRegistration::ClassRegistration(CRuntimeClass const & record)
    : m_record(record), m_next(g_firstSerialClass)
{
    g_firstSerialClass = this;
}

ClassRegistration::~ClassRegistration()
{
    ClassRegistration ** link = &g_firstSerialClass;
    while (*link && *link != this)
        link = &(*link)->m_next;
    if (*link)
        *link = m_next;
}

CObject * ReadObjectOfClass(CArchive & archive, CRuntimeClass const * record)
{
    return archive.ReadObject(record);
}
}  // namespace detail

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
    return GetRuntimeClass()->m_wSchema != CRuntimeClass::kNoSchema;
}
