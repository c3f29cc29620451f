#ifndef KX7_PLATFORM_BASE_RESOURCE_MODULE_H
#define KX7_PLATFORM_BASE_RESOURCE_MODULE_H

#include "platform/base/export.h"
#include "platform/base/types.h"

// Modules that carry string resources: the program, this library, and the language libraries. A text is
// looked for in the current resource module first, then in the extension modules (extension_module.h), the
// latest first. CString::LoadString reads them.

#if !defined(_WIN32)

#include <span>

namespace detail {
/// One string resource of a native module.
struct StringResource
{
    unsigned int id;
    char const * text;  ///< UTF-8.
};

/// The string resources of a native module.
struct StringTable
{
    WORD language;  ///< The system's language id, 0x0405 for Czech.
    std::span<StringResource const> strings;
};
}  // namespace detail

/// A native module.
struct HINSTANCE__
{
    detail::StringTable strings;
    void * library;  ///< The system's handle of a loaded library; null for others.
};

#endif

/// The module in which resources are looked for first. By default the program's.
KX7_API HINSTANCE AfxGetResourceHandle();

/// Sets that module; null puts back the default.
KX7_API void AfxSetResourceHandle(HINSTANCE module);

/// Loads a library by its path in code page 1250; null if that fails. Each success wants an AfxFreeLibrary.
/// The string resources of a native one are what its function kx7_string_resources says
/// (resources/language.cpp).
KX7_API HINSTANCE AfxLoadLibrary(char const * path);

/// Gives a loaded library back; FALSE for null, for a module that wasn't loaded, and if the system refuses.
KX7_API BOOL AfxFreeLibrary(HINSTANCE module);

/// The address of what a loaded library exports under the name; null if there is none.
KX7_API void * FindLibraryEntry(HINSTANCE module, char const * name);

#if defined(_WIN32)

/// The module, of those in which resources are looked for, that has a resource of this name and type (in the
/// system's form); the current resource module if none has.
KX7_API HINSTANCE AfxFindResourceHandle(char const * name, char const * type);

#endif

#endif
