#include "platform/base/resource_module.h"

#include <algorithm>
#include <memory>
#include <string>

#include "platform/base/code_page.h"
#include "platform/base/extension_module.h"
#include "platform/base/file.h"
#include "platform/base/string.h"

#if !defined(_WIN32)
#include <dlfcn.h>
#endif

namespace {
HINSTANCE g_resourceModule = nullptr;

// The first module, in the order of search, for which `accepts(module)` holds; null if there is none.
template <class Accepts>
HINSTANCE FindModule(Accepts accepts)
{
    if (HINSTANCE const current = AfxGetResourceHandle(); current && accepts(current))
        return current;
    for (CDynLinkLibrary const * each = CDynLinkLibrary::First(); each; each = each->Next())
        if (accepts(each->Record().hResource))
            return each->Record().hResource;
    return nullptr;
}

#if defined(_WIN32)

constexpr UINT kStringsPerBlock = 16;  // the system keeps string resources in blocks of this many

bool LoadText(HINSTANCE module, UINT id, CString & text)
{
    // With a size of 0 the call gives the place of the text inside the module.
    wchar_t const * wide = nullptr;
    int const length = LoadStringW(module, id, reinterpret_cast<wchar_t *>(&wide), 0);
    if (length <= 0)
        return false;
    text = CString(
        Text1250FromUtf16({reinterpret_cast<char16_t const *>(wide), static_cast<std::size_t>(length)}));
    return true;
}

// The block of strings with the id's in the given language; empty if there is none.
std::u16string_view StringBlock(HINSTANCE module, UINT id, WORD language)
{
    HRSRC const place =
        FindResourceExW(module, MAKEINTRESOURCEW(6), MAKEINTRESOURCEW(id / kStringsPerBlock + 1), language);
    HGLOBAL const block = place ? LoadResource(module, place) : nullptr;
    if (!block)
        return {};
    return {static_cast<char16_t const *>(LockResource(block)),
            SizeofResource(module, place) / sizeof(char16_t)};
}

bool LoadTextOfLanguage(HINSTANCE module, UINT id, WORD language, CString & text)
{
    // Each text of the block has its length in front of it.
    std::u16string_view block = StringBlock(module, id, language);
    for (UINT before = id % kStringsPerBlock; before > 0 && !block.empty(); --before)
        block.remove_prefix(std::min<std::size_t>(block.size(), 1u + block[0]));
    if (block.empty() || block[0] == 0)
        return false;
    text = CString(Text1250FromUtf16(block.substr(1, block[0])));
    return true;
}

#else

bool LoadText(HINSTANCE module, UINT id, CString & text)
{
    auto const & strings = module->strings.strings;
    auto const found = std::ranges::find(strings, id, &detail::StringResource::id);
    if (found == strings.end() || !*found->text)
        return false;
    text = CString(Text1250FromUtf8(found->text));
    return true;
}

bool LoadTextOfLanguage(HINSTANCE module, UINT id, WORD language, CString & text)
{
    return module->strings.language == language && LoadText(module, id, text);
}

// The strings of a native library; none if it doesn't tell.
detail::StringTable StringsOf(void * library)
{
    using TellStrings = detail::StringTable const * (*)();
    auto const tell = reinterpret_cast<TellStrings>(dlsym(library, "kx7_string_resources"));
    return tell ? *tell() : detail::StringTable{};
}

#endif
}  // namespace

BOOL CString::LoadString(UINT id)
{
    CString text;
    bool const isFound = FindModule([&](HINSTANCE module) { return LoadText(module, id, text); }) != nullptr;
    *this = text;
    return isFound ? TRUE : FALSE;
}

BOOL CString::LoadString(HINSTANCE module, UINT id)
{
    CString text;
    bool const isFound = module && LoadText(module, id, text);
    *this = text;
    return isFound ? TRUE : FALSE;
}

BOOL CString::LoadString(HINSTANCE module, UINT id, WORD language)
{
    CString text;
    bool const isFound = module && LoadTextOfLanguage(module, id, language, text);
    *this = text;
    return isFound ? TRUE : FALSE;
}

void AfxSetResourceHandle(HINSTANCE module)
{
    g_resourceModule = module;
}

#if defined(_WIN32)

HINSTANCE AfxGetResourceHandle()
{
    return g_resourceModule ? g_resourceModule : GetModuleHandleW(nullptr);
}

HINSTANCE AfxFindResourceHandle(char const * name, char const * type)
{
    HINSTANCE const found =
        FindModule([=](HINSTANCE module) { return FindResourceA(module, name, type) != nullptr; });
    return found ? found : AfxGetResourceHandle();
}

HINSTANCE AfxLoadLibrary(char const * path)
{
    return LoadLibraryW(SystemPath(path).c_str());
}

BOOL AfxFreeLibrary(HINSTANCE module)
{
    return module ? FreeLibrary(module) : FALSE;
}

void * FindLibraryEntry(HINSTANCE module, char const * name)
{
    return module ? reinterpret_cast<void *>(GetProcAddress(module, name)) : nullptr;
}

#else

HINSTANCE AfxGetResourceHandle()
{
    static HINSTANCE__ program{};
    return g_resourceModule ? g_resourceModule : &program;
}

HINSTANCE AfxLoadLibrary(char const * path)
{
    // An empty path would stand for the program itself.
    void * library = path && *path ? dlopen(SystemPath(path).c_str(), RTLD_NOW | RTLD_LOCAL) : nullptr;
    return library ? new HINSTANCE__{StringsOf(library), library} : nullptr;
}

BOOL AfxFreeLibrary(HINSTANCE module)
{
    if (!module || !module->library || dlclose(module->library) != 0)
        return FALSE;
    delete module;
    return TRUE;
}

void * FindLibraryEntry(HINSTANCE module, char const * name)
{
    return module && module->library ? dlsym(module->library, name) : nullptr;
}

#endif
