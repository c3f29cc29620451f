#include "platform/base/file_system.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

#include "platform/base/code_page.h"
#include "platform/base/file.h"

namespace {
namespace fs = std::filesystem;

constexpr std::string_view kWildCards = "?*";

#if defined(_WIN32)

std::vector<TSFoundFile> Matching(CString const & pattern)
{
    std::vector<TSFoundFile> found;
    WIN32_FIND_DATAW entry;
    HANDLE const search = FindFirstFileW(SystemPath(pattern).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return found;
    do {
        std::wstring_view const name = entry.cFileName;
        if (name != L"." && name != L"..")
            found.push_back({TextOfSystemPath(name), entry.dwFileAttributes});
    } while (FindNextFileW(search, &entry));
    FindClose(search);
    return found;
}

#else

std::array<std::string, 26> & DriveFolders()
{
    static std::array<std::string, 26> folders;
    return folders;
}

// Index of a drive letter; 26 for any other character.
std::size_t DriveIndex(char drive)
{
    char const capital = UpperCase1250(drive);
    return capital >= 'A' && capital <= 'Z' ? static_cast<std::size_t>(capital - 'A') : 26;
}

// Whether a name fits a mask with "?" and "*". After a mismatch the last "*" takes one byte more.
bool Fits(std::string_view name, std::string_view mask)
{
    std::size_t n = 0, m = 0, star = std::string_view::npos, taken = 0;
    while (n < name.size()) {
        if (m < mask.size() && mask[m] == '*') {
            star = m++;
            taken = n;
        } else if (m < mask.size() && (mask[m] == '?' || mask[m] == name[n])) {
            ++n;
            ++m;
        } else if (star != std::string_view::npos) {
            m = star + 1;
            n = ++taken;
        } else {
            return false;
        }
    }
    return mask.find_first_not_of('*', m) == std::string_view::npos;
}

DWORD AttributesOf(fs::directory_entry const & entry)
{
    std::error_code error;
    DWORD attributes = entry.is_directory(error) ? FILE_ATTRIBUTE_DIRECTORY : FILE_ATTRIBUTE_ARCHIVE;
    if ((entry.status(error).permissions() & fs::perms::owner_write) == fs::perms::none)
        attributes |= FILE_ATTRIBUTE_READONLY;
    return attributes;
}

std::vector<TSFoundFile> Matching(CString const & pattern)
{
    fs::path const path = SystemPath(pattern);
    CString mask = TextOfSystemPath(path.filename());
    if (mask == "*.*")
        mask = "*";
    std::vector<TSFoundFile> found;
    std::error_code error;
    fs::path const folder = path.has_parent_path() ? path.parent_path() : fs::path(".");
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
        CString const name = TextOfSystemPath(entry->path().filename());
        if (Fits(name.View(), mask.View()))
            found.push_back({name, AttributesOf(*entry)});
    }
    return found;
}

#endif
}  // namespace

#if !defined(_WIN32)

void SetDriveFolder(char drive, std::string const & folder)
{
    if (DriveIndex(drive) < DriveFolders().size())
        DriveFolders()[DriveIndex(drive)] = folder;
}

std::string DriveFolder(char drive)
{
    std::size_t const index = DriveIndex(drive);
    return index < DriveFolders().size() ? DriveFolders()[index] : std::string();
}

CString DriveForm(fs::path const & path)
{
    std::string text = path.string();
    char drive = 'C';
    std::size_t longest = DriveFolder(drive).size();
    for (std::size_t i = 0; i < DriveFolders().size(); ++i) {
        std::string const & folder = DriveFolders()[i];
        if (folder.size() > longest && text.starts_with(folder) &&
            (text.size() == folder.size() || text[folder.size()] == '/')) {
            drive = static_cast<char>('A' + i);
            longest = folder.size();
        }
    }
    if (longest > 0 && text.starts_with(DriveFolder(drive)))
        text.erase(0, longest);
    std::ranges::replace(text, '/', '\\');
    return CString(drive) + ":" + CString(Text1250FromUtf8(text));
}

#else

CString DriveForm(fs::path const & path)
{
    return TextOfSystemPath(path);
}

#endif

std::vector<TSFoundFile> FindFiles(CString const & pattern)
{
    std::vector<TSFoundFile> found = Matching(pattern);
    std::ranges::sort(found, {}, [](TSFoundFile const & file) { return file.name.View(); });
    return found;
}

bool FileExists(CString const & path)
{
    if (path.View().find_first_of(kWildCards) != std::string_view::npos)
        return !FindFiles(path).empty();
    std::error_code ignored;
    return fs::exists(SystemPath(path), ignored);
}
