// Objects in archives: the tags, the shared numbering of classes and objects, and the checks on what is read.
#include <array>
#include <cstring>
#include <memory>

#include "platform/base/archive.h"

namespace {
constexpr WORD kNullTag = 0x0000;
constexpr WORD kNewClassTag = 0xFFFF;
constexpr WORD kClassTag = 0x8000;      // with the number of a known class
constexpr WORD kBigNumberTag = 0x7FFF;  // a number of 32 bits follows
constexpr DWORD kBigClassTag = 0x80000000;
constexpr DWORD kLargestNumber = 0x3FFFFFFE;

// Room for the name of a class with its NUL; a longer name is no class of ours.
constexpr std::size_t kClassNameRoom = 64;

// Objects inside each other's Serialize, so that neither a forged nor a careless archive exhausts the stack.
constexpr int kDeepestNesting = 1000;

struct ObjectTag
{
    bool isNewClass;
    bool isClass;
    DWORD number;
};

ObjectTag ReadTag(CArchive & archive)
{
    WORD small = 0;
    archive >> small;
    if (small == kNewClassTag)
        return {true, true, 0};
    if (small != kBigNumberTag)
        return {false, (small & kClassTag) != 0, static_cast<DWORD>(small & ~kClassTag)};
    DWORD big = 0;
    archive >> big;
    return {false, (big & kBigClassTag) != 0, big & ~kBigClassTag};
}
}  // namespace

// One level of object nesting. What an object reads inside its Serialize isn't owned by the collection
// outside.
class CArchive::NestingGuard
{
  public:
    explicit NestingGuard(CArchive & archive) : m_archive(archive), m_ownedClass(archive.m_ownedClass)
    {
        if (archive.m_nesting >= kDeepestNesting)
            archive.Throw(CArchiveException::genericException);
        ++archive.m_nesting;
        archive.m_ownedClass = nullptr;
    }
    ~NestingGuard()
    {
        --m_archive.m_nesting;
        m_archive.m_ownedClass = m_ownedClass;
    }
    NestingGuard(NestingGuard const &) = delete;
    NestingGuard & operator=(NestingGuard const &) = delete;

  private:
    CArchive & m_archive;
    CRuntimeClass const * m_ownedClass;
};

DWORD CArchive::NextStoreNumber()
{
    if (m_storedNumbers.size() >= kLargestNumber)
        Throw(CArchiveException::badIndex);
    return static_cast<DWORD>(m_storedNumbers.size()) + 1;
}

void CArchive::WriteNumber(DWORD number, DWORD classBit)
{
    if (number < kBigNumberTag)
        *this << static_cast<WORD>(number | (classBit ? kClassTag : 0));
    else
        *this << kBigNumberTag << (number | classBit);
}

void CArchive::WriteClass(CRuntimeClass const & record)
{
    if (auto const known = m_storedNumbers.find(&record); known != m_storedNumbers.end())
        return WriteNumber(known->second, kBigClassTag);
    std::size_t const nameLength = std::strlen(record.m_lpszClassName);
    if (record.m_wSchema == CRuntimeClass::kNoSchema || nameLength >= kClassNameRoom)
        Throw(CArchiveException::badClass);
    *this << kNewClassTag << static_cast<WORD>(record.m_wSchema) << static_cast<WORD>(nameLength);
    Write(record.m_lpszClassName, static_cast<UINT>(nameLength));
    m_storedNumbers.emplace(&record, NextStoreNumber());
}

void CArchive::WriteObject(CObject const * object)
{
    RequireStoring();
    if (!object) {
        *this << kNullTag;
        return;
    }
    if (auto const known = m_storedNumbers.find(object); known != m_storedNumbers.end())
        return WriteNumber(known->second, 0);
    NestingGuard const guard(*this);
    WriteClass(*object->GetRuntimeClass());
    m_storedNumbers.emplace(object, NextStoreNumber());
    // Serialize serves both directions, so it isn't a const operation; storing doesn't change the object.
    const_cast<CObject *>(object)->Serialize(*this);
}

CObject * CArchive::ReadObject(CRuntimeClass const * wanted)
{
    RequireLoading();
    ObjectTag const tag = ReadTag(*this);
    if (!tag.isClass && tag.number == kNullTag)
        return nullptr;
    if (!tag.isClass) {
        CObject * object = KnownObject(tag.number);
        RequireClass(*object->GetRuntimeClass(), wanted);
        return object;
    }
    CRuntimeClass const & record = tag.isNewClass ? ReadNewClass() : KnownClass(tag.number);
    RequireClass(record, wanted);
    return ReadNewObject(record);
}

void CArchive::RequireClass(CRuntimeClass const & record, CRuntimeClass const * wanted) const
{
    for (CRuntimeClass const * each : {wanted, m_ownedClass})
        if (each && !record.IsDerivedFrom(each))
            Throw(CArchiveException::badClass);
}

CRuntimeClass const & CArchive::ReadNewClass()
{
    WORD schema = 0;
    WORD nameLength = 0;
    *this >> schema >> nameLength;
    if (nameLength >= kClassNameRoom)
        Throw(CArchiveException::badClass);
    std::array<char, kClassNameRoom> name{};
    LoadBytes(name.data(), nameLength);
    CRuntimeClass const * record = CRuntimeClass::FromName(name.data());
    if (!record)
        Throw(CArchiveException::badClass);
    if (record->m_wSchema != schema)
        Throw(CArchiveException::badSchema);
    m_loadedItems.push_back({record, nullptr});
    return *record;
}

CRuntimeClass const & CArchive::KnownClass(DWORD number) const
{
    if (number == 0 || number > m_loadedItems.size() || !m_loadedItems[number - 1].record)
        Throw(CArchiveException::badIndex);
    return *m_loadedItems[number - 1].record;
}

CObject * CArchive::KnownObject(DWORD number) const
{
    if (m_ownedClass || number > m_loadedItems.size() || !m_loadedItems[number - 1].object)
        Throw(CArchiveException::badIndex);
    return m_loadedItems[number - 1].object;
}

CObject * CArchive::ReadNewObject(CRuntimeClass const & record)
{
    NestingGuard const guard(*this);
    std::unique_ptr<CObject> object(record.CreateObject());
    if (!object)
        AfxThrowMemoryException();
    std::size_t const index = m_loadedItems.size();
    m_loadedItems.push_back({nullptr, object.get()});
    try {
        object->Serialize(*this);
    } catch (...) {
        // It is deleted on the way out, and so may be what it owns: none of them can be referred to any more.
        m_loadedItems.resize(index);
        throw;
    }
    return object.release();
}
