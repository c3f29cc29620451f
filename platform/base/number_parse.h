#ifndef KX7_PLATFORM_BASE_NUMBER_PARSE_H
#define KX7_PLATFORM_BASE_NUMBER_PARSE_H

#include "platform/base/export.h"

/// The number at the start of a text, read as the C library's strtod reads it in the "C" locale: the decimal
/// sign is the point whatever locale the process has set. `end`, if not null, gets the first byte that isn't
/// part of the number, or the text's start (and the result is 0) if there is no number.
KX7_API double ParseDouble(char const * text, char const ** end = nullptr);

#endif
