#ifndef KX7_DXF_NUMBER_SCAN_H
#define KX7_DXF_NUMBER_SCAN_H

#include <cstdint>
#include <span>
#include <string_view>

#include "platform/base/export.h"

// How the value lines of a drawing become numbers and words: the meaning of the C library's scanf with "%lf",
// "%d" and "%s", always with a point as decimal sign, and many times faster. Leading white space is skipped,
// and what stands behind the value doesn't matter. A line that doesn't scan leaves the earlier value alone.
namespace detail {
/// Scans as "%lf": decimal and hexadecimal forms, "inf" and "nan", in any case of letters. A value beyond the
/// range becomes infinity or zero. False, with `value` untouched, if the text doesn't begin with a number.
KX7_API bool ScanDouble(std::string_view text, double & value);

/// Scans as "%d". Of a number beyond 64 bits the nearest 64-bit number is taken, and of that the low 32 bits.
/// False, with `value` untouched, if the text doesn't begin with an integer.
KX7_API bool ScanInt(std::string_view text, std::int32_t & value);

/// The word that "%s" would take: without leading white space, up to the next one or a NUL; empty if there is
/// none.
KX7_API std::string_view FirstWord(std::string_view text);

/// Scans as "%s" into a field with room for its ending NUL; a longer word is cut. False, with the field
/// untouched, if there is no word.
KX7_API bool ScanWord(std::string_view text, std::span<char> field);
}  // namespace detail

#endif
