#ifndef KX7_PLATFORM_BASE_OBJECT_H
#define KX7_PLATFORM_BASE_OBJECT_H

#include <cstddef>

#include "platform/base/export.h"
#include "platform/base/types.h"

class CArchive;
class CObject;

/// The record of one class: its name, its base and how to make an object of it. One exists per class that
/// uses a DECLARE_DYNAMIC, DECLARE_DYNCREATE or DECLARE_SERIAL macro, as the static member `class<Name>`.
struct KX7_API CRuntimeClass
{
    char const * m_lpszClassName;        ///< Name as written in the source; goes into archives.
    int m_nObjectSize;                   ///< Size of an object in bytes.
    UINT m_wSchema;                      ///< Schema number in archives; kNoSchema if it isn't serial.
    CObject * (*m_pfnCreateObject)();    ///< Makes an object; null for a class that can't be made.
    CRuntimeClass const * m_pBaseClass;  ///< Record of the base class; null for CObject.

    /// Schema number of a class that has no archive form.
    static constexpr UINT kNoSchema = 0xFFFF;

    /// Makes a new object of the class, owned by the caller; null if the class can't be made by record or
    /// memory is out.
    CObject * CreateObject() const;

    /// Whether the class is `base` or derives from it, directly or over others.
    bool IsDerivedFrom(CRuntimeClass const * base) const;

    /// The record of a serial class by its name; null if no class of that name was registered.
    static CRuntimeClass const * FromName(char const * name);
};

namespace detail {
/// Puts the record of a serial class into the process-wide list while its module is loaded.
class KX7_API ClassRegistration
{
  public:
    explicit ClassRegistration(CRuntimeClass const & record);
    ~ClassRegistration();
    ClassRegistration(ClassRegistration const &) = delete;
    ClassRegistration & operator=(ClassRegistration const &) = delete;

    CRuntimeClass const & Record() const { return m_record; }
    ClassRegistration const * Next() const { return m_next; }

  private:
    CRuntimeClass const & m_record;
    ClassRegistration * m_next;
};

/// Reads an object that must be of the class or null; behind the `>>` of each serial class.
KX7_API CObject * ReadObjectOfClass(CArchive & archive, CRuntimeClass const * record);
}  // namespace detail

/// Root of all classes with run-time class information and archive form.
class KX7_API CObject
{
  public:
    CObject() = default;
    CObject(CObject const &) = default;
    CObject & operator=(CObject const &) = default;

    /// The record of the object's own class.
    virtual CRuntimeClass const * GetRuntimeClass() const;
    virtual ~CObject() = default;

    /// Writes the object to the archive or reads it from it; CObject itself stores nothing.
    virtual void Serialize(CArchive & archive);

    /// Diagnostic hooks; nothing here.
    virtual void AssertValid() const {}
    virtual void Dump() const {}

    /// Whether the object's class is the record's class or derives from it.
    bool IsKindOf(CRuntimeClass const * record) const;

    /// Whether the class can be written to and read from archives as an object.
    bool IsSerializable() const;

    static CRuntimeClass const classCObject;
};

/// The record of a class.
#define RUNTIME_CLASS(className) (&className::class##className)

// Each DECLARE_ macro stands inside the class and leaves it `public`; the IMPLEMENT_ macro of the same name
// stands in one source file. DYNAMIC gives a record, DYNCREATE also lets the record make objects (the class
// needs a constructor without arguments), SERIAL also gives the class its identity in archives: name and
// schema number.

#define DECLARE_DYNAMIC(className)               \
  public:                                        \
    static CRuntimeClass const class##className; \
    CRuntimeClass const * GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(className) \
    DECLARE_DYNAMIC(className)       \
    static CObject * CreateObject();

#define DECLARE_SERIAL(className)                                                                         \
    DECLARE_DYNCREATE(className)                                                                          \
    [[maybe_unused]] friend CArchive & operator>>(CArchive & archive, className *& object)                \
    {                                                                                                     \
        object =                                                                                          \
            static_cast<className *>(::detail::ReadObjectOfClass(archive, &className::class##className)); \
        return archive;                                                                                   \
    }

#define KX7_IMPLEMENT_RECORD(className, baseName, schema, create)                                       \
    CRuntimeClass const className::class##className = {#className, static_cast<int>(sizeof(className)), \
                                                       schema, create, RUNTIME_CLASS(baseName)};        \
    CRuntimeClass const * className::GetRuntimeClass() const                                            \
    {                                                                                                   \
        return RUNTIME_CLASS(className);                                                                \
    }

#define IMPLEMENT_DYNAMIC(className, baseName) \
    KX7_IMPLEMENT_RECORD(className, baseName, CRuntimeClass::kNoSchema, nullptr)

#define IMPLEMENT_DYNCREATE(className, baseName) \
    CObject * className::CreateObject()          \
    {                                            \
        return new className;                    \
    }                                            \
    KX7_IMPLEMENT_RECORD(className, baseName, CRuntimeClass::kNoSchema, &className::CreateObject)

#define IMPLEMENT_SERIAL(className, baseName, schema)                           \
    CObject * className::CreateObject()                                         \
    {                                                                           \
        return new className;                                                   \
    }                                                                           \
    KX7_IMPLEMENT_RECORD(className, baseName, schema, &className::CreateObject) \
    static ::detail::ClassRegistration const g_registrationOf##className(className::class##className);

#endif
