// The standard places of the system as paths.
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "foundation/path.h"
#include "platform/base/file.h"
#include "platform/base/resource_module.h"

namespace {
namespace fs = std::filesystem;

constexpr char const * kProfileExtension = "ini";

CString DirectoryText(fs::path const & directory)
{
    CString const text = DriveForm(directory);
    return text.View().ends_with('\\') ? text : text + '\\';
}

#if defined(_WIN32)

fs::path ModuleFile()
{
    wchar_t path[MAX_PATH] = {};
    GetModuleFileNameW(AfxGetResourceHandle(), path, MAX_PATH);
    return path;
}

fs::path WindowsFolder()
{
    wchar_t path[MAX_PATH] = {};
    GetWindowsDirectoryW(path, MAX_PATH);
    return path;
}

fs::path SystemFolder()
{
    wchar_t path[MAX_PATH] = {};
    GetSystemDirectoryW(path, MAX_PATH);
    return path;
}

#else

fs::path ModuleFile()
{
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored);
}

// Where the user's settings are kept.
fs::path WindowsFolder()
{
    if (char const * settings = std::getenv("XDG_CONFIG_HOME"); settings && *settings)
        return settings;
    char const * home = std::getenv("HOME");
    return fs::path(home && *home ? home : "/") / ".config";
}

fs::path SystemFolder()
{
    return "/usr/lib";
}

#endif
}  // namespace

void CPath::CurrentDirectory()
{
    std::error_code ignored;
    m_path = DirectoryText(fs::current_path(ignored));
}

void CPath::WindowsDirectory()
{
    m_path = DirectoryText(WindowsFolder());
}

void CPath::SystemDirectory()
{
    m_path = DirectoryText(SystemFolder());
}

void CPath::TempDirectory()
{
    std::error_code ignored;
    m_path = DirectoryText(fs::temp_directory_path(ignored));
}

void CPath::ModulePath()
{
    m_path = DriveForm(ModuleFile());
}

void CPath::ModuleDirectory()
{
    ModulePath();
    SetNameExtension("");
}

void CPath::LocalProfile(char const * name, char const * extension)
{
    ModuleDirectory();
    SetName(name);
    SetExtension(extension ? extension : kProfileExtension);
}

void CPath::LocalProfile(unsigned int nameId, unsigned int extensionId)
{
    CString name, extension = kProfileExtension;
    if (!name.LoadString(nameId))
        return;
    if (extensionId != 0)
        extension.LoadString(extensionId);
    LocalProfile(name, extension);
}

void CPath::PrivateProfile()
{
    CString name;
    ModulePath();
    GetName(name);
    WindowsDirectory();
    SetName(name);
    SetExtension(kProfileExtension);
}
