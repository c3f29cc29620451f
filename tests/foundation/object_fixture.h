#ifndef KX7_TESTS_OBJECT_FIXTURE_H
#define KX7_TESTS_OBJECT_FIXTURE_H

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "foundation/vard_object.h"
#include "platform/base/archive.h"
#include "platform/base/collections.h"
#include "platform/base/file.h"

using Bytes = std::vector<unsigned char>;

/// A host's object: a named one with a value, ordered by it. Counts how many live.
class Load : public CVARDNamedObject
{
    DECLARE_SERIAL(Load)

  public:
    Load() { ++g_alive; }
    Load(char const * name, int value) : m_value(value)
    {
        ++g_alive;
        SetName(name);
    }
    Load(Load const & other) : CVARDNamedObject(other), m_value(other.m_value) { ++g_alive; }
    Load & operator=(Load const &) = default;
    ~Load() override { --g_alive; }

    void Serialize(CArchive & archive) override;
    int CopyObject(CVARDObject * from) override;
    int IsLess(CVARDSortObject * other) override;

    int m_value = 0;
    static int g_alive;
};

/// An object whose class record can't make another one.
class Unmakeable : public CVARDNamedObject
{
    DECLARE_DYNAMIC(Unmakeable)
};

/// An object of the platform that isn't one of ours.
class Foreign : public CObject
{
    DECLARE_SERIAL(Foreign)
};

/// What the object's Serialize writes.
Bytes Stored(CObject & object);

/// Lets the object's Serialize read the bytes; archive exceptions pass through.
void LoadFrom(CObject & object, Bytes bytes);

/// The cause of the archive exception that reading the bytes ends in; CArchiveException::none without one.
int CauseOfLoading(CObject & object, Bytes bytes);

/// Names of the items, in order; "-" for null and "?" for those without a name.
std::vector<std::string> NamesOf(CObList const & list);

#endif
