// What CPath asks of its drive.
#include <algorithm>
#include <climits>
#include <filesystem>
#include <system_error>

#include "foundation/path.h"
#include "platform/base/file.h"

namespace {
// The system's codes of drive types.
constexpr unsigned int kNoRoot = 1, kRemovable = 2, kFixed = 3, kRemote = 4, kCdRom = 5, kRamDisk = 6;

#if defined(_WIN32)

unsigned int TypeOf(CString const & root)
{
    return GetDriveTypeW(SystemPath(root).c_str());
}

int SpaceOf(CString const & root, unsigned long & sectorsPerCluster, unsigned long & bytesPerSector,
            unsigned long & freeClusters, unsigned long & clusters)
{
    return GetDiskFreeSpaceW(SystemPath(root).c_str(), &sectorsPerCluster, &bytesPerSector, &freeClusters,
                             &clusters) != 0;
}

#else

unsigned int TypeOf(CString const & root)
{
    std::error_code ignored;
    return std::filesystem::is_directory(SystemPath(root), ignored) ? kFixed : kNoRoot;
}

// The system tells bytes alone; they are counted in clusters of eight sectors.
int SpaceOf(CString const & root, unsigned long & sectorsPerCluster, unsigned long & bytesPerSector,
            unsigned long & freeClusters, unsigned long & clusters)
{
    constexpr unsigned long kSectors = 8, kBytes = 512;
    std::error_code error;
    std::filesystem::space_info const space = std::filesystem::space(SystemPath(root), error);
    if (error)
        return 0;
    sectorsPerCluster = kSectors;
    bytesPerSector = kBytes;
    freeClusters = static_cast<unsigned long>(space.available / (kSectors * kBytes));
    clusters = static_cast<unsigned long>(space.capacity / (kSectors * kBytes));
    return 1;
}

#endif

long Limited(unsigned long long bytes)
{
    return static_cast<long>(std::min<unsigned long long>(bytes, INT_MAX));
}

struct DriveSpace
{
    unsigned long sectorsPerCluster = 0, bytesPerSector = 0, freeClusters = 0, clusters = 0;

    explicit DriveSpace(CPath const & path)
    {
        path.GetDiskFreeSpaceA(&sectorsPerCluster, &bytesPerSector, &freeClusters, &clusters);
    }

    unsigned long long ClusterSize() const
    {
        return static_cast<unsigned long long>(sectorsPerCluster) * bytesPerSector;
    }
};
}  // namespace

unsigned int CPath::GetDriveTypeA() const
{
    return TypeOf(DriveRoot());
}

int CPath::IsRemovableDrive() const
{
    return GetDriveTypeA() == kRemovable;
}

int CPath::IsNetworkDrive() const
{
    return GetDriveTypeA() == kRemote;
}

int CPath::IsCDRomDrive() const
{
    return GetDriveTypeA() == kCdRom;
}

int CPath::IsRAMDrive() const
{
    return GetDriveTypeA() == kRamDisk;
}

int CPath::GetDiskFreeSpaceA(unsigned long * sectorsPerCluster, unsigned long * bytesPerSector,
                             unsigned long * freeClusters, unsigned long * clusters) const
{
    return SpaceOf(DriveRoot(), *sectorsPerCluster, *bytesPerSector, *freeClusters, *clusters);
}

long CPath::DriveFreeSpaceBytes() const
{
    DriveSpace const space(*this);
    return Limited(space.freeClusters * space.ClusterSize());
}

long CPath::DriveTotalSpaceBytes() const
{
    DriveSpace const space(*this);
    return Limited(space.clusters * space.ClusterSize());
}

long CPath::GetDriveClusterSize() const
{
    return Limited(DriveSpace(*this).ClusterSize());
}
