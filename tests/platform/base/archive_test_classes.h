#ifndef KX7_TESTS_ARCHIVE_TEST_CLASSES_H
#define KX7_TESTS_ARCHIVE_TEST_CLASSES_H

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/archive.h"
#include "platform/base/collections.h"

// Persisted classes and helpers for the tests of archives.

/// An object with a number; counts the living ones.
class Leaf : public CObject
{
    DECLARE_SERIAL(Leaf)

    explicit Leaf(int value = 0) : m_value(value) { ++g_living; }
    ~Leaf() override { --g_living; }

    void Serialize(CArchive & archive) override;

    static inline int g_living = 0;
    int m_value;
};

/// A second class, derived from the first.
class BigLeaf : public Leaf
{
    DECLARE_SERIAL(BigLeaf)
};

/// Owns its items.
class Branch : public CObject
{
    DECLARE_SERIAL(Branch)

    ~Branch() override;
    void Serialize(CArchive & archive) override;

    CObArray m_items;
};

/// Points to an object that somebody else owns.
class Reference : public CObject
{
    DECLARE_SERIAL(Reference)

    void Serialize(CArchive & archive) override;

    CObject * m_target = nullptr;
};

/// The bytes as text, so that failures show them.
inline std::string BytesOf(CMemFile const & file)
{
    auto const bytes = file.View();
    return {bytes.begin(), bytes.end()};
}

/// What `write(archive)` puts through a storing archive.
template <class Write>
std::string Stored(Write write)
{
    CMemFile file;
    CArchive archive(&file, CArchive::store);
    write(archive);
    archive.Close();
    return BytesOf(file);
}

/// Runs `read(archive)` over the bytes. The result is the cause of the archive's exception, 0 without one.
template <class Read>
int CauseOfLoading(std::string_view bytes, Read read)
{
    CMemFile file(bytes.data(), bytes.size());
    CArchive archive(&file, CArchive::load);
    try {
        read(archive);
        return CArchiveException::none;
    } catch (CArchiveException * exception) {
        int const cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
}

/// Bytes of a literal with all NULs inside.
template <std::size_t Size>
std::string Bytes(char const (&literal)[Size])
{
    return {literal, Size - 1};
}

#endif
