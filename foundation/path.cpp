#include "foundation/path.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <vector>

#include "platform/base/file.h"

namespace {
constexpr int kRandomNameLength = 8;

bool IsSeparator(char c)
{
    return c == '\\' || c == '/';
}

CString WithBackslash(CString const & directory)
{
    bool const isClosed = directory.IsEmpty() || IsSeparator(directory[directory.GetLength() - 1]);
    return isClosed ? directory : directory + '\\';
}

// As a part: without the backslash at its end, unless it is the root alone.
CString WithoutBackslash(CString const & directory)
{
    int const length = directory.GetLength();
    return length > 1 && IsSeparator(directory[length - 1]) ? directory.Left(length - 1) : directory;
}

// The pieces of a path as they stand: "C:", "\folder\", "name", ".ext".
struct Pieces
{
    CString drive, directory, name, extension;
};

Pieces Split(CString const & path)
{
    std::string_view const text = path.View();
    std::size_t const driveEnd = text.size() >= 2 && text[1] == ':' ? 2 : 0;
    std::size_t nameStart = text.size();
    while (nameStart > driveEnd && !IsSeparator(text[nameStart - 1]))
        --nameStart;
    std::size_t const point = text.rfind('.');
    std::size_t const nameEnd = point == std::string_view::npos || point < nameStart ? text.size() : point;
    return {CString(text.substr(0, driveEnd)), CString(text.substr(driveEnd, nameStart - driveEnd)),
            CString(text.substr(nameStart, nameEnd - nameStart)), CString(text.substr(nameEnd))};
}

CString RandomText(int length)
{
    char text[5 * 8 + 1];
    std::snprintf(text, sizeof(text), "%.4x%.4x%.4x%.4x%.4x", static_cast<unsigned int>(std::rand()),
                  static_cast<unsigned int>(std::rand()), static_cast<unsigned int>(std::rand()),
                  static_cast<unsigned int>(std::rand()), static_cast<unsigned int>(std::rand()));
    return CString(text).Left(length);
}
}  // namespace

CPath::CPath(CPath const & other) : m_path(other.m_path) {}

CPath::CPath(char const * path) : m_path(path) {}

CPath::CPath(SpecialDirectoryEnum place)
{
    switch (place) {
        case CURRENT_DIRECTORY:
            CurrentDirectory();
            break;
        case WINDOWS_DIRECTORY:
            WindowsDirectory();
            break;
        case SYSTEM_DIRECTORY:
            SystemDirectory();
            break;
        case MODULE_DIRECTORY:
            ModuleDirectory();
            break;
        case TEMP_DIRECTORY:
            TempDirectory();
            break;
        default:
            break;
    }
}

CPath & CPath::operator=(CPath const & other)
{
    m_path = other.m_path;
    return *this;
}

CPath & CPath::operator=(char const * path)
{
    m_path = path;
    return *this;
}

void CPath::GetComponents(CString * drive, CString * directory, CString * name, CString * extension) const
{
    Pieces const pieces = Split(m_path);
    if (drive)
        *drive = pieces.drive.Left(1);
    if (directory)
        *directory = WithoutBackslash(pieces.directory);
    if (name)
        *name = pieces.name;
    if (extension)
        *extension = pieces.extension.Mid(1);
}

void CPath::GetDrive(CString & drive) const
{
    GetComponents(&drive, nullptr, nullptr, nullptr);
}

void CPath::GetDriveDirectory(CString & driveDirectory) const
{
    Pieces const pieces = Split(m_path);
    driveDirectory = pieces.drive + WithoutBackslash(pieces.directory);
}

void CPath::GetDirectory(CString & directory) const
{
    GetComponents(nullptr, &directory, nullptr, nullptr);
}

void CPath::GetNameExtension(CString & nameExtension) const
{
    Pieces const pieces = Split(m_path);
    nameExtension = pieces.name + pieces.extension;
}

void CPath::GetName(CString & name) const
{
    GetComponents(nullptr, nullptr, &name, nullptr);
}

void CPath::GetExtension(CString & extension) const
{
    GetComponents(nullptr, nullptr, nullptr, &extension);
}

void CPath::GetFullyQualified(CString & path) const
{
    CPath current(CURRENT_DIRECTORY);
    Pieces const own = Split(m_path), base = Split(current.m_path);
    bool const isRooted = !own.directory.IsEmpty() && IsSeparator(own.directory[0]);
    CString const directory = isRooted ? own.directory : base.directory + own.directory;
    std::vector<CString> levels;
    CString rest = directory + own.name + own.extension;
    while (!rest.IsEmpty()) {
        int const end = rest.FindOneOf("\\/");
        CString const level = end < 0 ? rest : rest.Left(end);
        rest = end < 0 ? CString() : rest.Mid(end + 1);
        if (level == ".." && !levels.empty())
            levels.pop_back();
        else if (!level.IsEmpty() && level != "." && level != "..")
            levels.push_back(level);
    }
    bool const isDirectory = own.name.IsEmpty() && own.extension.IsEmpty();
    CString full = own.drive.IsEmpty() ? base.drive : own.drive;
    for (CString const & level : levels)
        full += CString("\\") + level;
    path = isDirectory || levels.empty() ? WithBackslash(full) : full;
}

void CPath::SetComponents(char const * drive, char const * directory, char const * name,
                          char const * extension)
{
    CString const driveText(drive), extensionText(extension);
    CString path;
    if (!driveText.IsEmpty())
        path = CString(driveText[0]) + ":";
    path += WithBackslash(CString(directory));
    path += CString(name);
    if (!extensionText.IsEmpty() && extensionText[0] != '.')
        path += '.';
    m_path = path + extensionText;
}

void CPath::SetDrive(char drive)
{
    Pieces const pieces = Split(m_path);
    SetComponents(CString(drive), pieces.directory, pieces.name, pieces.extension);
}

void CPath::SetDirectory(char const * directory, int rooted)
{
    Pieces const pieces = Split(m_path);
    CString text(directory);
    if (rooted != 0 && (text.IsEmpty() || !IsSeparator(text[0])))
        text = CString("\\") + text;
    SetComponents(pieces.drive, text, pieces.name, pieces.extension);
}

void CPath::SetDriveDirectory(char const * driveDirectory)
{
    Pieces const pieces = Split(m_path);
    m_path = WithBackslash(CString(driveDirectory)) + pieces.name + pieces.extension;
}

void CPath::SetName(char const * name)
{
    Pieces const pieces = Split(m_path);
    SetComponents(pieces.drive, pieces.directory, name, pieces.extension);
}

void CPath::SetExtension(char const * extension)
{
    Pieces const pieces = Split(m_path);
    SetComponents(pieces.drive, pieces.directory, pieces.name, extension);
}

void CPath::SetNameExtension(char const * nameExtension)
{
    Pieces const pieces = Split(m_path);
    m_path = pieces.drive + pieces.directory + nameExtension;
}

void CPath::AppendDirectory(char const * level)
{
    CString text(level);
    if (text.IsEmpty())
        return;
    if (text.GetLength() > 1 && IsSeparator(text[0]))
        text = text.Mid(1);
    Pieces const pieces = Split(m_path);
    SetComponents(pieces.drive, WithBackslash(pieces.directory) + text, pieces.name, pieces.extension);
}

void CPath::UpDirectory(CString * last)
{
    Pieces const pieces = Split(m_path);
    CString const directory = WithoutBackslash(pieces.directory);
    int end = directory.GetLength();
    while (end > 0 && !IsSeparator(directory[end - 1]))
        --end;
    if (last)
        *last = directory.Mid(end);
    SetComponents(pieces.drive, directory.Left(end), pieces.name, pieces.extension);
}

void CPath::MakeRoot()
{
    m_path = DriveRoot();
}

int CPath::CreateRandomName(int mustBeFree, unsigned int tries)
{
    return CreateName(CString(), mustBeFree, tries);
}

int CPath::CreateSimilarName(int mustBeFree, unsigned int tries)
{
    CString name;
    GetName(name);
    return CreateName(name, mustBeFree, tries);
}

int CPath::CreateName(CString const & kept, int mustBeFree, unsigned int tries)
{
    for (unsigned int attempt = 0; attempt < tries; ++attempt) {
        SetName(kept + RandomText(kRandomNameLength - kept.GetLength()));
        if (mustBeFree == 0 || !Exists())
            return 1;
    }
    return 0;
}

int CPath::IsWild() const
{
    return m_path.FindOneOf("?*") >= 0;
}

CString CPath::DriveRoot() const
{
    CString drive;
    GetDrive(drive);
    return drive.IsEmpty() ? CString("\\") : drive + ":\\";
}
