#ifndef KX7_PLATFORM_BASE_SYSTEM_INFORMATION_H
#define KX7_PLATFORM_BASE_SYSTEM_INFORMATION_H

#include "platform/base/export.h"
#include "platform/base/types.h"

// The queries of the system's version, processors and screen. The Windows build takes the records and calls
// from the system's headers; elsewhere the same names are declared here and answered from what the system
// has.
#if !defined(_WIN32)

#include <cstdint>

/// Version of the operating system, as GetVersionExA fills it.
struct OSVERSIONINFOA
{
    DWORD dwOSVersionInfoSize;  ///< Size of the record in bytes, set by the caller.
    DWORD dwMajorVersion;
    DWORD dwMinorVersion;
    DWORD dwBuildNumber;
    DWORD dwPlatformId;
    char szCSDVersion[128];  ///< Further text on the version, ended by a NUL.
};

/// Processors and memory layout, as GetSystemInfo fills it.
struct SYSTEM_INFO
{
    WORD wProcessorArchitecture;
    WORD wReserved;
    DWORD dwPageSize;
    void * lpMinimumApplicationAddress;
    void * lpMaximumApplicationAddress;
    std::uintptr_t dwActiveProcessorMask;
    DWORD dwNumberOfProcessors;
    DWORD dwProcessorType;
    DWORD dwAllocationGranularity;
    WORD wProcessorLevel;
    WORD wProcessorRevision;
};

constexpr int SM_CXSCREEN = 0;  ///< Index of the screen's width in GetSystemMetrics.
constexpr int SM_CYSCREEN = 1;  ///< Index of the screen's height in GetSystemMetrics.

/// Fills the record and returns TRUE if its size word is right; otherwise FALSE, and nothing is filled.
KX7_API BOOL GetVersionExA(OSVERSIONINFOA * version);

/// Fills the page size and the number of processors; all else is zero.
KX7_API void GetSystemInfo(SYSTEM_INFO * information);

// There is no screen; a picture this large stands for one, so that what is cut to the screen's size is drawn.
constexpr int kNominalScreenWidth = 1920;
constexpr int kNominalScreenHeight = 1080;

/// The nominal screen's width or height in pixels; 0 for every other index.
KX7_API int GetSystemMetrics(int index);

#endif

#endif
