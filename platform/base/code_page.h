#ifndef KX7_PLATFORM_BASE_CODE_PAGE_H
#define KX7_PLATFORM_BASE_CODE_PAGE_H

#include <string>
#include <string_view>

#include "platform/base/export.h"

// Run-time text is bytes in code page 1250 (Central European). These helpers know its letters whatever the
// system's own code page and locale are.

/// The capital letter of a letter of code page 1250; any other byte unchanged.
KX7_API char UpperCase1250(char character);

/// The small letter of a letter of code page 1250; any other byte unchanged.
KX7_API char LowerCase1250(char character);

/// The text of code page 1250 as UTF-8. The five unassigned bytes become the control characters of their
/// number.
KX7_API std::string Utf8From1250(std::string_view text);

/// The text of code page 1250 as UTF-16, with the same rule.
KX7_API std::u16string Utf16From1250(std::string_view text);

/// UTF-8 text as code page 1250. What the code page can't say, and what isn't UTF-8, becomes a question mark.
KX7_API std::string Text1250FromUtf8(std::string_view text);

/// UTF-16 text as code page 1250. What the code page can't say becomes a question mark, one for each unit.
KX7_API std::string Text1250FromUtf16(std::u16string_view text);

#endif
