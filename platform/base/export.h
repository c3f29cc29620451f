#ifndef KX7_PLATFORM_BASE_EXPORT_H
#define KX7_PLATFORM_BASE_EXPORT_H

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

#endif
