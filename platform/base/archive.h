#ifndef KX7_PLATFORM_BASE_ARCHIVE_H
#define KX7_PLATFORM_BASE_ARCHIVE_H

#include <bit>
#include <concepts>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "platform/base/exception.h"
#include "platform/base/file.h"
#include "platform/base/object.h"
#include "platform/base/string.h"

namespace detail {
// `long` has 32 bits in files on every platform; the other types have the same width everywhere.
template <class Number>
using ArchiveForm =
    std::conditional_t<std::is_same_v<Number, long>, std::int32_t,
                       std::conditional_t<std::is_same_v<Number, unsigned long>, std::uint32_t, Number>>;

// Numbers with a fixed form in archives: 8, 16 and 32 bit integers, float and double.
template <class Number>
concept ArchiveNumber =
    std::is_arithmetic_v<Number> && !std::is_same_v<Number, bool> &&
    (std::is_floating_point_v<Number> ? sizeof(Number) <= 8 : sizeof(ArchiveForm<Number>) <= 4);
}  // namespace detail

/// A stream of values, texts and objects over a file, in one direction. Byte form:
///  - numbers: their bytes, lowest first; `long` has 32 bits;
///  - texts: the length in a byte below 255, else 0xFF and a 16-bit length below 0xFFFE, else 0xFF, 0xFFFF
///  and a
///    32-bit length; then the bytes;
///  - counts: 16 bits below 0xFFFF, else 0xFFFF and 32 bits;
///  - objects: a 16-bit tag, then for a new object what its Serialize writes. Tag 0 is a null pointer; 0xFFFF
///  a new
///    class, followed by its schema number, the length of its name (16 bits each) and the name; 0x8000 | n
///    another object of the class with the number n; n alone the object with the number n. Classes and
///    objects are numbered together from 1 in order of their first sight. A number from 0x7FFF on goes into
///    32 bits behind the tag 0x7FFF, with the highest bit for a class.
///
/// Failures are thrown as CArchiveException, those of the file as CFileException. What was read before a
/// failure stays where it was put; the object under read itself is deleted.
class KX7_API CArchive
{
  public:
    enum Mode
    {
        store = 0,
        load = 1
    };

    /// Makes an archive over an open file, which has to outlive it. The buffer has at least 128 bytes.
    CArchive(CFile * file, UINT mode, int bufferSize = 4096);

    /// Closes the archive if it isn't closed; failures of that are passed over.
    ~CArchive();
    CArchive(CArchive const &) = delete;
    CArchive & operator=(CArchive const &) = delete;

    bool IsLoading() const { return m_isLoading; }
    bool IsStoring() const { return !m_isLoading; }
    CFile * GetFile() const { return m_file; }

    /// Storing: hands all bytes over to the file. Loading: drops the buffer and moves the file to the place
    /// up to which the archive was read.
    void Flush();

    /// Flushes and lets go of the file; the archive can't be used any more.
    void Close();

    /// Reads up to `count` raw bytes. The result is their number, less than `count` only at the file's end.
    UINT Read(void * bytes, UINT count);

    /// Writes raw bytes.
    void Write(void const * bytes, UINT count);

    /// Writes the text's bytes alone, without length or line end.
    void WriteString(char const * text);

    /// Reads a line of text, ended by a line feed with or without a carriage return in front of it, or by the
    /// file's end; the line end isn't part of the result. FALSE, with an empty line, if the file had ended.
    BOOL ReadString(CString & line);

    /// Writes or reads a count.
    void WriteCount(DWORD count);
    DWORD ReadCount();

    /// Writes a pointer to an object: null, the number of one that was written before, or the object with its
    /// class. An object without archive form is refused with the cause badClass.
    void WriteObject(CObject const * object);

    /// Reads a pointer to an object of the class, if one is given, or null. A new object is the caller's.
    CObject * ReadObject(CRuntimeClass const * wanted);

    template <detail::ArchiveNumber Number>
    CArchive & operator<<(Number number)
    {
        auto const form = static_cast<detail::ArchiveForm<Number>>(number);
        StoreBytes(&form, sizeof form);
        return *this;
    }

    template <detail::ArchiveNumber Number>
    CArchive & operator>>(Number & number)
    {
        detail::ArchiveForm<Number> form;
        LoadBytes(&form, sizeof form);
        number = form;
        return *this;
    }

    friend CArchive & operator<<(CArchive & archive, CObject const * object)
    {
        archive.WriteObject(object);
        return archive;
    }

    friend CArchive & operator>>(CArchive & archive, CObject *& object)
    {
        object = archive.ReadObject(nullptr);
        return archive;
    }

    friend KX7_API CArchive & operator<<(CArchive & archive, CString const & text);
    friend KX7_API CArchive & operator>>(CArchive & archive, CString & text);

    /// While one lives, objects are read for an owner that will delete them: each has to be of the given
    /// class (badClass), and a reference to an object that was read before is refused (badIndex), as that one
    /// has an owner already. It doesn't hold for what the objects read inside their own Serialize. For
    /// collections that own their items.
    class KX7_API OwnedReading
    {
      public:
        OwnedReading(CArchive & archive, CRuntimeClass const * itemClass)
            : m_archive(archive), m_before(archive.m_ownedClass)
        {
            archive.m_ownedClass = itemClass;
        }
        ~OwnedReading() { m_archive.m_ownedClass = m_before; }
        OwnedReading(OwnedReading const &) = delete;
        OwnedReading & operator=(OwnedReading const &) = delete;

      private:
        CArchive & m_archive;
        CRuntimeClass const * m_before;
    };

  private:
    static_assert(std::endian::native == std::endian::little, "numbers are copied as they stand in memory");

    // What a number of the shared numbering stands for: a class or an object, or nothing any more.
    struct LoadedItem
    {
        CRuntimeClass const * record;
        CObject * object;
    };

    class NestingGuard;

    void StoreBytes(void const * bytes, std::size_t count)
    {
        if (m_isLoading || m_buffer.size() - m_position < count)
            return Write(bytes, static_cast<UINT>(count));
        std::memcpy(m_buffer.data() + m_position, bytes, count);
        m_position += count;
    }

    void LoadBytes(void * bytes, std::size_t count)
    {
        if (m_end - m_position < count || !m_isLoading)
            return LoadBytesSlowly(bytes, count);
        std::memcpy(bytes, m_buffer.data() + m_position, count);
        m_position += count;
    }

    void LoadBytesSlowly(void * bytes, std::size_t count);
    BOOL ReadStringInPieces(CString & line);
    bool FillBuffer();
    void RequireLoading() const;
    void RequireStoring() const;
    [[noreturn]] void Throw(int cause) const;

    void WriteClass(CRuntimeClass const & record);
    void WriteNumber(DWORD number, DWORD classBit);
    DWORD NextStoreNumber();
    CRuntimeClass const & ReadNewClass();
    CRuntimeClass const & KnownClass(DWORD number) const;
    CObject * KnownObject(DWORD number) const;
    void RequireClass(CRuntimeClass const & record, CRuntimeClass const * wanted) const;
    CObject * ReadNewObject(CRuntimeClass const & record);

    CFile * m_file;
    bool m_isLoading;
    CRuntimeClass const * m_ownedClass = nullptr;  // class of the items that are read for an owner
    int m_nesting = 0;
    std::vector<BYTE> m_buffer;
    std::size_t m_position = 0;  // next byte of the buffer to read or write
    std::size_t m_end = 0;       // loading: end of the bytes in the buffer
    std::unordered_map<void const *, DWORD> m_storedNumbers;
    std::vector<LoadedItem> m_loadedItems;  // item n has the number n + 1
};

#endif
