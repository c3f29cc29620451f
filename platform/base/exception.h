#ifndef KX7_PLATFORM_BASE_EXCEPTION_H
#define KX7_PLATFORM_BASE_EXCEPTION_H

#include "platform/base/object.h"
#include "platform/base/string.h"

// Exceptions of the platform layer are thrown as pointers. Who catches one ends its life with Delete:
//     catch (CArchiveException * exception) { ...; exception->Delete(); }

/// Root of the exceptions.
class KX7_API CException : public CObject
{
    DECLARE_DYNAMIC(CException)

    CException() = default;
    CException(CException const &) = delete;
    CException & operator=(CException const &) = delete;

    /// Ends the life of a caught exception.
    virtual void Delete();
};

/// Memory is out. There is one object for all throws, as none can be made then.
class KX7_API CMemoryException : public CException
{
    DECLARE_DYNAMIC(CMemoryException)

    void Delete() override {}
};

/// An archive couldn't be read or written.
class KX7_API CArchiveException : public CException
{
    DECLARE_DYNAMIC(CArchiveException)

    enum
    {
        none,              ///< No error.
        genericException,  ///< None of the other causes.
        readOnly,          ///< Writing to an archive opened for loading.
        endOfFile,         ///< The data ended while more was wanted.
        writeOnly,         ///< Reading from an archive opened for storing.
        badIndex,          ///< A reference to an object or class that isn't there.
        badClass,          ///< An object of another class than wanted, or of a class that isn't known.
        badSchema          ///< An object stored in another version of its class.
    };

    explicit CArchiveException(int cause, CString const & fileName = CString());

    int m_cause;            ///< One of the causes above.
    CString m_strFileName;  ///< Path of the file, empty if there is none.
};

/// A file couldn't be opened, read or written.
class KX7_API CFileException : public CException
{
    DECLARE_DYNAMIC(CFileException)

    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG systemError = -1, CString const & fileName = CString());

    /// The cause that matches an `errno` value.
    static int ErrnoToException(int error);

    int m_cause;            ///< One of the causes above.
    LONG m_lOsError;        ///< The `errno` value, -1 if unknown.
    CString m_strFileName;  ///< Path of the file, empty if there is none.
};

/// Throw a new exception of each sort.
[[noreturn]] KX7_API void AfxThrowMemoryException();
[[noreturn]] KX7_API void AfxThrowArchiveException(int cause, CString const & fileName = CString());
[[noreturn]] KX7_API void AfxThrowFileException(int cause, LONG systemError = -1,
                                                CString const & fileName = CString());

#endif
