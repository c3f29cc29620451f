#include "platform/base/system_information.h"

#if !defined(_WIN32)

#include <sys/utsname.h>
#include <unistd.h>

#include <cstdio>

BOOL GetVersionExA(OSVERSIONINFOA * version)
{
    utsname name{};
    if (version->dwOSVersionInfoSize != sizeof(OSVERSIONINFOA) || uname(&name) != 0)
        return FALSE;
    *version = {};
    version->dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);
    std::sscanf(name.release, "%u.%u.%u", &version->dwMajorVersion, &version->dwMinorVersion,
                &version->dwBuildNumber);
    std::snprintf(version->szCSDVersion, sizeof version->szCSDVersion, "%s", name.sysname);
    return TRUE;
}

void GetSystemInfo(SYSTEM_INFO * information)
{
    *information = {};
    information->dwPageSize = static_cast<DWORD>(sysconf(_SC_PAGESIZE));
    information->dwNumberOfProcessors = static_cast<DWORD>(sysconf(_SC_NPROCESSORS_ONLN));
    information->dwAllocationGranularity = information->dwPageSize;
}

int GetSystemMetrics(int index)
{
    if (index == SM_CXSCREEN)
        return kNominalScreenWidth;
    return index == SM_CYSCREEN ? kNominalScreenHeight : 0;
}

#endif
