#ifndef KX7_PLATFORM_WINDOW_DETAIL_WIDE_TEXT_H
#define KX7_PLATFORM_WINDOW_DETAIL_WIDE_TEXT_H

#include <string>

#include "platform/base/code_page.h"
#include "platform/base/string.h"

namespace detail {
/// A text of code page 1250 as the system's wide text; a null one as an empty one.
inline std::wstring WideText(char const * text)
{
    std::u16string const wide = Utf16From1250(text ? text : "");
    return {wide.begin(), wide.end()};
}

/// The system's wide text in code page 1250.
inline CString NarrowText(std::wstring const & text)
{
    return Text1250FromUtf16(std::u16string(text.begin(), text.end())).c_str();
}
}  // namespace detail

#endif
