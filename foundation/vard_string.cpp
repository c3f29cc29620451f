#include "foundation/vard_string.h"

#include <cstdint>
#include <string>

#include "platform/base/code_page.h"

namespace {
constexpr std::uintptr_t kFirstPointer = 0x10000;  // a smaller value in place of a pointer is a resource id

bool IsResourceId(char const * text)
{
    return text && reinterpret_cast<std::uintptr_t>(text) < kFirstPointer;
}

std::u16string CopyWide(unsigned short const * text)
{
    std::u16string copy;
    for (; *text; ++text)
        copy.push_back(static_cast<char16_t>(*text));
    return copy;
}
}  // namespace

// The time stays unset on purpose: it has no value until it is set.
CVARDString::CVARDString(CVARDString const & other) : m_text(other.m_text) {}

CVARDString::CVARDString(char const * text)
{
    if (IsResourceId(text))
        m_text.LoadString(static_cast<UINT>(reinterpret_cast<std::uintptr_t>(text)));
    else
        m_text = text;
}

CVARDString::CVARDString(unsigned short const * text)
{
    if (text)
        m_text = CString(Text1250FromUtf16(CopyWide(text)));
}

CVARDString & CVARDString::operator=(CVARDString const & other)
{
    m_text = other.m_text;
    return *this;
}

CVARDString & CVARDString::operator=(char character)
{
    m_text = character;
    return *this;
}

CVARDString & CVARDString::operator=(unsigned char const * text)
{
    return *this = reinterpret_cast<char const *>(text);
}

CVARDString & CVARDString::operator=(char const * text)
{
    m_text = text;
    return *this;
}

CVARDString CVARDString::Finish(CString const & result, int inPlace)
{
    if (inPlace == 1)
        m_text = result;
    CVARDString text;
    text.m_text = result;
    return text;
}
