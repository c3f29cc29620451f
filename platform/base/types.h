#ifndef KX7_PLATFORM_BASE_TYPES_H
#define KX7_PLATFORM_BASE_TYPES_H

// The Win32 scalar types that portable code uses. The Windows build takes them from the system's headers;
// elsewhere the same names are declared here with the same widths and values.
#if defined(_WIN32)

#include <windows.h>

#else

#include <cstdint>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using LONG = std::int32_t;
using LONGLONG = std::int64_t;
using UINT = std::uint32_t;
using ULONGLONG = std::uint64_t;
using BOOL = int;

constexpr BOOL TRUE = 1;
constexpr BOOL FALSE = 0;

#endif

#endif
