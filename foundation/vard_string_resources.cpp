// The operations of CVARDString that load texts in a given language.
#include <algorithm>
#include <cstring>

#include "foundation/vard_string.h"
#include "platform/base/extension_module.h"
#include "platform/base/resource_module.h"

namespace {
constexpr int kBufferSize = 5000;  // bytes of a loaded text with its NUL

// Looks in the current resource module, then in the extension modules.
CString FindText(unsigned int id, WORD language)
{
    CString text;
    if (text.LoadString(AfxGetResourceHandle(), id, language))
        return text;
    for (CDynLinkLibrary const * each = CDynLinkLibrary::First(); each; each = each->Next())
        if (text.LoadString(each->Record().hResource, id, language))
            return text;
    return CString();
}
}  // namespace

int CVARDString::LoadStringLangA(unsigned int id, unsigned long language, char * buffer, int size) const
{
    if (!buffer || size < 1)
        return 0;
    CString const text = FindText(id, static_cast<WORD>(language));
    int const length = std::min(text.GetLength(), size - 1);
    std::memcpy(buffer, static_cast<char const *>(text), static_cast<std::size_t>(length));
    buffer[length] = '\0';
    return length;
}

CString CVARDString::LoadStringLang(unsigned int id, unsigned long language)
{
    char buffer[kBufferSize];
    LoadStringLangA(id, language != 0 ? language : m_localeLanguage, buffer, kBufferSize);
    m_text = buffer;
    return m_text;
}
