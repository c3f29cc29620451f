// The library's entry: when it is loaded it joins the search for resources, so that its texts are found by
// the program and by the library itself; when it is unloaded it leaves. Nothing else happens then.
#include "platform/base/extension_module.h"
#include "platform/base/resource_module.h"

namespace {
AFX_EXTENSION_MODULE g_extension = {};

BOOL Attach(HINSTANCE module)
{
    if (!AfxInitExtensionModule(g_extension, module))
        return FALSE;
    new CDynLinkLibrary(g_extension);  // the search owns it
    return TRUE;
}

void Detach()
{
    AfxTermExtensionModule(g_extension);
}
}  // namespace

#if defined(_WIN32)

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void *)
{
    if (reason == DLL_PROCESS_ATTACH)
        return Attach(module);
    if (reason == DLL_PROCESS_DETACH)
        Detach();
    return TRUE;
}

#else

namespace {
constexpr WORD kCzech = 0x0405;

constexpr detail::StringResource kStrings[] = {
#define KX7_STRING(id, text) {id, text},
#include "resources/strings.inc"
};

HINSTANCE__ g_module = {{kCzech, kStrings}, nullptr};

struct LibraryEntry
{
    LibraryEntry() { Attach(&g_module); }
    ~LibraryEntry() { Detach(); }
};

LibraryEntry const g_entry;
}  // namespace

#endif
