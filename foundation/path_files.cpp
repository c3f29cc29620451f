// What CPath asks of the file system: files, directories, searches.
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "foundation/path.h"
#include "platform/base/exception.h"
#include "platform/base/file.h"

namespace {
namespace fs = std::filesystem;

CString DirectoryOf(CPath const & path)
{
    CString directory;
    path.GetDriveDirectory(directory);
    return directory;
}

// The rule by which a search takes an entry.
bool Fits(TSFoundFile const & file, unsigned long attributes)
{
    bool const isDirectory = (file.attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (attributes == 0)
        return !isDirectory;
    bool const wantsDirectory = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if ((file.attributes & attributes) == 0 || isDirectory != wantsDirectory)
        return false;
    return !isDirectory || !file.name.View().starts_with('.');
}
}  // namespace

int CPath::IsValid() const
{
    std::error_code ignored;
    fs::path const path = SystemPath(m_path);
    return !m_path.IsEmpty() && !fs::is_directory(path, ignored) && std::ifstream(path).is_open();
}

int CPath::Exists() const
{
    return !m_path.IsEmpty() && FileExists(m_path);
}

int CPath::DirectoryExists() const
{
    std::error_code ignored;
    CString const directory = DirectoryOf(*this);
    return fs::is_directory(SystemPath(directory.IsEmpty() ? CString(".") : directory), ignored);
}

int CPath::IsDirectoryEmpty() const
{
    CPath pattern(*this);
    pattern.SetNameExtension("*.*");
    return !pattern.FindFirst(0);
}

int CPath::Delete(int force)
{
    std::error_code error;
    fs::path const path = SystemPath(m_path);
    if (force != 0)
        fs::permissions(path, fs::perms::owner_write, fs::perm_options::add, error);
    return !fs::is_directory(path, error) && fs::remove(path, error);
}

int CPath::Rename(char const * newPath)
{
    std::error_code error;
    fs::rename(SystemPath(m_path), SystemPath(newPath), error);
    return !error;
}

long CPath::GetSize() const
{
    std::error_code error;
    std::uintmax_t const size = fs::file_size(SystemPath(m_path), error);
    return error ? -1 : static_cast<long>(std::min<std::uintmax_t>(size, INT_MAX));
}

CTime CPath::GetTime() const
{
#if defined(_WIN32)
    struct _stat64 status = {};
    return _wstat64(SystemPath(m_path).c_str(), &status) == 0 ? CTime(status.st_mtime) : CTime();
#else
    struct stat status = {};
    return stat(SystemPath(m_path).c_str(), &status) == 0 ? CTime(status.st_mtime) : CTime();
#endif
}

int CPath::ChangeDirectory()
{
    std::error_code error;
    fs::current_path(SystemPath(m_path), error);
    return !error;
}

int CPath::RemoveDirectoryA()
{
    std::error_code error;
    fs::path const path = SystemPath(m_path);
    return fs::is_directory(path, error) && fs::remove(path, error);
}

int CPath::CreateDirectoryA(int parents)
{
    CPath directory(*this);
    if (directory.m_path.View().ends_with('\\'))
        directory.m_path = directory.m_path.Left(directory.m_path.GetLength() - 1);
    std::error_code error;
    if (fs::create_directory(SystemPath(directory.m_path), error) && !error)
        return 1;
    // A directory that stands there already counts as made.
    if (directory.ChangeDirectory())
        return 1;
    int const backslash = directory.m_path.ReverseFind('\\');
    if (parents == 0 || backslash < 0)
        return 0;
    CPath above(directory.m_path.Left(backslash));
    return above.CreateDirectoryA(1) && directory.CreateDirectoryA(0);
}

void CPath::CreateDirectoryExcept(int parents)
{
    if (!CreateDirectoryA(parents))
        AfxThrowFileException(CFileException::genericException, errno, m_path);
}

int CPath::FindFirst(unsigned long attributes)
{
    m_attributes = attributes;
    m_found = FindFiles(m_path);
    std::erase_if(m_found, [=](TSFoundFile const & file) { return !Fits(file, attributes); });
    m_nextFound = 0;
    return TakeNextFound();
}

int CPath::FindNext()
{
    if (m_nextFound >= m_found.size())
        return 0;
    if (m_attributes & FILE_ATTRIBUTE_DIRECTORY)
        UpDirectory(nullptr);
    return TakeNextFound();
}

int CPath::TakeNextFound()
{
    if (m_nextFound >= m_found.size())
        return 0;
    CString const name = m_found[m_nextFound++].name;
    if (m_attributes & FILE_ATTRIBUTE_DIRECTORY)
        AppendDirectory(name);
    else
        SetNameExtension(name);
    return 1;
}
