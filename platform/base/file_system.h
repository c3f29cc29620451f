#ifndef KX7_PLATFORM_BASE_FILE_SYSTEM_H
#define KX7_PLATFORM_BASE_FILE_SYSTEM_H

#include <filesystem>
#include <string>
#include <vector>

#include "platform/base/export.h"
#include "platform/base/string.h"
#include "platform/base/types.h"

// Files and folders by paths in the form "C:\folder\name" and code page 1250. The Windows build asks the
// system. On other systems the same form is mapped: a drive letter stands for a folder, by default the root
// of all folders, and a backslash for the system's separator. So "C:\tmp\x" is the file /tmp/x.

#if !defined(_WIN32)

/// Lets a drive letter, in either case, stand for a folder in the system's form, UTF-8, without a separator
/// at its end; "" for the root.
KX7_API void SetDriveFolder(char drive, std::string const & folder);

/// The folder of a drive letter; "" unless it was set.
KX7_API std::string DriveFolder(char drive);

// File attributes, with the system's values.
constexpr DWORD FILE_ATTRIBUTE_READONLY = 1;
constexpr DWORD FILE_ATTRIBUTE_DIRECTORY = 16;
constexpr DWORD FILE_ATTRIBUTE_ARCHIVE = 32;  ///< Every file that isn't a directory has it.

#endif

/// A system path in the form with drive and backslashes; where the system has no drives, on drive C, or the
/// drive whose folder it lies in.
KX7_API CString DriveForm(std::filesystem::path const & path);

/// An entry of a folder.
struct TSFoundFile
{
    CString name;      ///< Name with extension.
    DWORD attributes;  ///< FILE_ATTRIBUTE_... bits.
};

/// The entries that a path with wild cards ("?" one byte, "*" any run, "*.*" every name) in its last level
/// finds, without "." and "..", by name. None if the folder can't be read.
KX7_API std::vector<TSFoundFile> FindFiles(CString const & pattern);

/// Whether there is a file or folder of that path; wild cards are allowed in its last level.
KX7_API bool FileExists(CString const & path);

#endif
