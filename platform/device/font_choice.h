#ifndef KX7_PLATFORM_DEVICE_FONT_CHOICE_H
#define KX7_PLATFORM_DEVICE_FONT_CHOICE_H

#include "platform/base/export.h"
#include "platform/base/gdi_types.h"

/// Asks the user for a font and a colour, beginning with the given ones. 1 when confirmed, with both changed;
/// 0 when not, with both as they were.
using FontChoiceHandler = int (*)(LOGFONT * font, COLORREF * colour);

/// Replaces the way in which the user is asked, for hosts with a dialog of their own and for tests; null puts
/// the default back, which is the system's font dialog on Windows and no choice (0) elsewhere. The result is
/// the handler before.
KX7_API FontChoiceHandler SetFontChoiceHandler(FontChoiceHandler handler);

/// Asks through the handler that is set.
KX7_API int ChooseFontByUser(LOGFONT * font, COLORREF * colour);

#endif
