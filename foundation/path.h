#ifndef KX7_FOUNDATION_PATH_H
#define KX7_FOUNDATION_PATH_H

#include <cstddef>
#include <vector>

#include "platform/base/export.h"
#include "platform/base/file_system.h"
#include "platform/base/string.h"
#include "platform/base/time.h"

/// A file or directory path as a value with parts: drive, directory, name, extension. Its text has the form
/// "C:\folder\name.ext" on every build; where the system has no drives, file_system.h tells how it is mapped.
///
/// Of the parts a drive is a letter without its colon, a directory has no backslash at its end unless it is
/// the root alone, a name no extension and an extension no leading point. Results are 1 for success and 0 for
/// failure.
class KX7_API CPath
{
  public:
    /// The standard places of the system. A value above these gives an empty path.
    enum SpecialDirectoryEnum : unsigned int
    {
        CURRENT_DIRECTORY = 0,
        WINDOWS_DIRECTORY = 1,
        SYSTEM_DIRECTORY = 2,
        MODULE_DIRECTORY = 3,
        TEMP_DIRECTORY = 4
    };

    CPath() = default;
    CPath(CPath const & other);  ///< Copies the text; a search isn't copied.
    CPath(char const * path);    ///< The text; empty for null.
    CPath(SpecialDirectoryEnum place);
    ~CPath() = default;

    CPath & operator=(CPath const & other);
    CPath & operator=(char const * path);

    /// Compares the texts without regard to case.
    bool operator==(CPath const & other) const { return m_path.CompareNoCase(other.m_path) == 0; }
    bool operator!=(CPath const & other) const { return !(*this == other); }

    operator char const *() const { return m_path; }
    operator CString &() { return m_path; }
    bool IsEmpty() const { return m_path.IsEmpty(); }
    void Empty() { m_path.Empty(); }

    // The parts. A null pointer skips its part.
    void GetComponents(CString * drive, CString * directory, CString * name, CString * extension) const;
    void GetDrive(CString & drive) const;
    void GetDriveDirectory(CString & driveDirectory) const;
    void GetDirectory(CString & directory) const;
    void GetNameExtension(CString & nameExtension) const;
    void GetName(CString & name) const;
    void GetExtension(CString & extension) const;

    /// The absolute path: from the current directory, without levels "." and "..".
    void GetFullyQualified(CString & path) const;

    /// Rebuilds the text from its parts; a missing colon, backslash or point is added, an empty part left
    /// out.
    void SetComponents(char const * drive, char const * directory, char const * name, char const * extension);

    // Each replaces a part and keeps the rest.
    void SetDrive(char drive);
    void SetDirectory(char const * directory, int rooted);  ///< `rooted` not 0: with a backslash in front.
    void SetDriveDirectory(char const * driveDirectory);
    void SetName(char const * name);
    void SetExtension(char const * extension);  ///< An empty one goes with its point.
    void SetNameExtension(char const * nameExtension);

    /// Adds a level at the end of the directory; a leading backslash of it is dropped. Nothing for an empty
    /// one.
    void AppendDirectory(char const * level);

    /// Removes the last level of the directory; `last`, if not null, gets it.
    void UpDirectory(CString * last);

    /// Leaves the root of the drive alone.
    void MakeRoot();

    // The path becomes a standard place: a directory with its backslash and no name.
    void CurrentDirectory();
    void WindowsDirectory();  ///< On other systems the user's folder of settings.
    void SystemDirectory();   ///< On other systems /usr/lib.
    void TempDirectory();
    void ModuleDirectory();

    /// The path becomes the file of the running program.
    void ModulePath();

    /// The module directory with a name and an extension, "ini" for null.
    void LocalProfile(char const * name, char const * extension);

    /// The same from string resources; "ini" for an `extensionId` 0. A name that can't be loaded leaves the
    /// path.
    void LocalProfile(unsigned int nameId, unsigned int extensionId);

    /// The module's name in the Windows directory, with the extension "ini".
    void PrivateProfile();

    /// Sets a name of 8 random characters, or fills the present name up with such to 8, at most `tries`
    /// times, until it is one that doesn't exist; with `mustBeFree` 0 the first is final. 0 if all tries
    /// existed.
    int CreateRandomName(int mustBeFree, unsigned int tries);
    int CreateSimilarName(int mustBeFree, unsigned int tries);

    /// 1 if the file can be opened.
    int IsValid() const;

    /// 1 if the text holds a wild card.
    int IsWild() const;

    /// 1 if the path finds something; wild cards are allowed.
    int Exists() const;

    /// 1 if the path's directory is there.
    int DirectoryExists() const;

    /// 1 if the path's directory holds no files; directories in it don't count.
    int IsDirectoryEmpty() const;

    /// Removes the file; with `force` not 0 also one that is protected against writing.
    int Delete(int force);

    /// Renames the file; the path itself stays.
    int Rename(char const * newPath);

    /// Size of the file in bytes, at most 2147483647; -1 if it isn't there.
    long GetSize() const;

    /// When the file was last changed; 0 if it isn't there.
    CTime GetTime() const;

    // Directories: make this the current one, remove it, make it.
    int ChangeDirectory();
    int RemoveDirectoryA();

    /// 1 also for a directory that is there already, which then deliberately becomes the current one. With
    /// `parents` not 0 missing levels above it are made as well.
    int CreateDirectoryA(int parents);

    /// The same; failure throws a CFileException with the system's error.
    void CreateDirectoryExcept(int parents);

    /// Finds the first file of a path with wild cards in its name, and the next ones; each replaces the name
    /// and extension. With `attributes` 0 every file fits; otherwise entries that share a bit with it,
    /// directories if it has the bit 16 and files if not. A directory, if its name doesn't begin with a
    /// point, becomes a new last level of the path, and the search for the next one goes up again.
    int FindFirst(unsigned long attributes);
    int FindNext();

    // The drive.
    int IsRemovableDrive() const;
    int IsNetworkDrive() const;
    int IsCDRomDrive() const;
    int IsRAMDrive() const;
    unsigned int GetDriveTypeA() const;  ///< The system's code; a fixed drive is 3, none 1.

    // Sizes in bytes, at most 2147483647; 0 for a drive that isn't there.
    long DriveFreeSpaceBytes() const;
    long DriveTotalSpaceBytes() const;
    long GetDriveClusterSize() const;

    /// The system's figures of the drive. 0 for a drive that isn't there, with the results untouched.
    int GetDiskFreeSpaceA(unsigned long * sectorsPerCluster, unsigned long * bytesPerSector,
                          unsigned long * freeClusters, unsigned long * clusters) const;

    /// Start and end of the class's data; nothing is left to do.
    static void Init() {}
    static void Exit() {}

  private:
    CString DriveRoot() const;
    int CreateName(CString const & kept, int mustBeFree, unsigned int tries);
    int TakeNextFound();

    CString m_path;
    unsigned long m_attributes = 0;    // of the running search
    std::vector<TSFoundFile> m_found;  // what it found
    std::size_t m_nextFound = 0;
};

#endif
