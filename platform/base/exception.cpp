#include "platform/base/exception.h"

#include <cerrno>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CArchiveException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)

void CException::Delete()
{
    delete this;
}

CArchiveException::CArchiveException(int cause, CString const & fileName)
    : m_cause(cause), m_strFileName(fileName)
{
}

CFileException::CFileException(int cause, LONG systemError, CString const & fileName)
    : m_cause(cause), m_lOsError(systemError), m_strFileName(fileName)
{
}

int CFileException::ErrnoToException(int error)
{
    switch (error) {
        case 0:
            return none;
        case EPERM:
        case EACCES:
        case EEXIST:
        case EROFS:
        case EISDIR:
            return accessDenied;
        case ENOENT:
            return fileNotFound;
        case ENOTDIR:
        case ENAMETOOLONG:
            return badPath;
        case EMFILE:
        case ENFILE:
            return tooManyOpenFiles;
        case EBADF:
            return invalidFile;
        case EINVAL:
        case ESPIPE:
            return badSeek;
        case EIO:
            return hardIO;
        case EDEADLK:
            return lockViolation;
        case ENOSPC:
            return diskFull;
        default:
            return genericException;
    }
}

void AfxThrowMemoryException()
{
    static CMemoryException theOne;
    throw &theOne;
}

void AfxThrowArchiveException(int cause, CString const & fileName)
{
    throw new CArchiveException(cause, fileName);
}

void AfxThrowFileException(int cause, LONG systemError, CString const & fileName)
{
    throw new CFileException(cause, systemError, fileName);
}
