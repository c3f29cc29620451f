#ifndef KX7_PLATFORM_BASE_EXPORT_H
#define KX7_PLATFORM_BASE_EXPORT_H

#include <cstdio>  // declares __MINGW_PRINTF_FORMAT where the toolchain has one

// KX7_API marks what the library exports; everything else stays hidden inside it.
#if defined(_WIN32)
#if defined(KX7_BUILDING_LIBRARY)
#define KX7_API __declspec(dllexport)
#else
#define KX7_API __declspec(dllimport)
#endif
#else
#define KX7_API __attribute__((visibility("default")))
#endif

// KX7_PRINTF(format, first) lets the compiler check the arguments of a printf-like function: the positions of
// the format and of the first argument after it, counted from 1 (the object itself is 1 in a member
// function).
#if defined(__MINGW_PRINTF_FORMAT)
#define KX7_PRINTF(format_, first_) __attribute__((format(__MINGW_PRINTF_FORMAT, format_, first_)))
#else
#define KX7_PRINTF(format_, first_) __attribute__((format(printf, format_, first_)))
#endif

#endif
