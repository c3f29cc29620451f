#ifndef KX7_PLATFORM_BASE_FILE_H
#define KX7_PLATFORM_BASE_FILE_H

#include <cstdio>
#include <filesystem>
#include <memory>
#include <span>
#include <vector>

#include "platform/base/exception.h"
#include "platform/base/object.h"
#include "platform/base/string.h"

/// The system's form of a path in code page 1250. A backslash separates directories on every build; where the
/// system has no drives, a drive letter stands for the folder set by SetDriveFolder (file_system.h).
KX7_API std::filesystem::path SystemPath(char const * path);

/// The text of a system path in code page 1250, in the system's own separators.
KX7_API CString TextOfSystemPath(std::filesystem::path const & path);

/// A file of bytes without a buffer of its own. Failures of reading, writing and moving are thrown as
/// CFileException; a file that isn't open fails with the cause invalidFile.
class KX7_API CFile : public CObject
{
    DECLARE_DYNAMIC(CFile)

    /// How a file is opened, combined by `|`. Without modeCreate the file has to exist, and it isn't cut.
    enum OpenFlags
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareDenyWrite = 0x0020,  ///< The sharing flags are accepted; the system's own rule holds.
        shareDenyNone = 0x0040,
        modeCreate = 0x1000,      ///< Makes the file, cutting an existing one to nothing.
        modeNoTruncate = 0x2000,  ///< With modeCreate: an existing file keeps its bytes.
        typeText = 0x4000,        ///< For CStdioFile; nothing in a CFile.
        typeBinary = 0x8000
    };

    /// Where Seek counts from.
    enum SeekPosition
    {
        begin = 0,
        current = 1,
        end = 2
    };

    CFile();

    /// Opens a file; failure throws a CFileException.
    CFile(char const * path, UINT flags);

    /// Closes the file; a failure of that is passed over.
    ~CFile() override;
    CFile(CFile const &) = delete;
    CFile & operator=(CFile const &) = delete;

    /// Opens a file, closing one that was open. FALSE if that fails, with the cause in `error` if it isn't
    /// null.
    virtual BOOL Open(char const * path, UINT flags, CFileException * error = nullptr);

    /// Closes the file; nothing if it isn't open.
    virtual void Close();

    /// Reads up to `count` bytes. The result is their number, less than `count` only at the file's end.
    virtual UINT Read(void * buffer, UINT count);

    /// Writes `count` bytes.
    virtual void Write(void const * buffer, UINT count);

    /// Hands all bytes written over to the system.
    virtual void Flush();

    /// Moves to a byte counted from the given place. The result is the new position from the beginning.
    virtual ULONGLONG Seek(LONGLONG offset, UINT from);

    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;

    void SeekToBegin() { Seek(0, begin); }
    ULONGLONG SeekToEnd() { return Seek(0, end); }

    /// Path as it was given to Open; empty if none is open.
    CString GetFilePath() const { return m_strFilePath; }

  protected:
    struct Closer
    {
        void operator()(std::FILE * stream) const { std::fclose(stream); }
    };
    enum class Use
    {
        nothing,
        reading,
        writing
    };

    std::FILE * Stream(Use use) const;
    [[noreturn]] void ThrowErrno() const;

    std::unique_ptr<std::FILE, Closer> m_stream;
    CString m_strFilePath;
    mutable Use m_lastUse = Use::nothing;  // a stream wants a move between reading and writing
};

/// A file that lives in memory only.
class KX7_API CMemFile : public CFile
{
    DECLARE_DYNAMIC(CMemFile)

    CMemFile() = default;

    /// A file that holds a copy of the bytes, at its beginning.
    CMemFile(void const * bytes, std::size_t count);

    /// All bytes of the file; valid until the next change.
    std::span<BYTE const> View() const { return m_bytes; }

    /// Not for files in memory: FALSE, and nothing changes.
    BOOL Open(char const * path, UINT flags, CFileException * error = nullptr) override;

    /// Empties the file.
    void Close() override;

    UINT Read(void * buffer, UINT count) override;

    /// Writes at the position; bytes between the old end and a position beyond it become zero. Exhausted
    /// memory is thrown as CMemoryException.
    void Write(void const * buffer, UINT count) override;

    void Flush() override {}
    ULONGLONG Seek(LONGLONG offset, UINT from) override;
    ULONGLONG GetPosition() const override { return m_position; }
    ULONGLONG GetLength() const override { return m_bytes.size(); }

  private:
    std::vector<BYTE> m_bytes;
    std::size_t m_position = 0;
};

/// A file of text lines. Opened without typeBinary it is in text mode on every build: a line feed is written
/// as carriage return and line feed, the pair is read as a line feed, and byte 26 ends the text.
class KX7_API CStdioFile : public CFile
{
    DECLARE_DYNAMIC(CStdioFile)

    CStdioFile() = default;

    /// Opens a file; failure throws a CFileException.
    CStdioFile(char const * path, UINT flags);

    BOOL Open(char const * path, UINT flags, CFileException * error = nullptr) override;
    UINT Read(void * buffer, UINT count) override;
    void Write(void const * buffer, UINT count) override;

    /// Reads a line without its line feed. FALSE at the file's end, with `line` empty.
    BOOL ReadString(CString & line);

    /// Writes the text; no line feed is added.
    void WriteString(char const * text);

  private:
    int NextCharacter();

    bool m_isText = true;
};

#endif
