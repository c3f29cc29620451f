#ifndef KX7_PLATFORM_BASE_MESSAGE_BOX_H
#define KX7_PLATFORM_BASE_MESSAGE_BOX_H

#include "platform/base/export.h"
#include "platform/base/types.h"

/// Shows a text with the buttons and icon of `type` (MB_...) and answers with the code of the button that was
/// pressed (IDOK, IDYES, ...).
using MessageBoxHandler = int (*)(char const * text, unsigned int type);

/// Replaces the process-wide message box; null puts back the default. The default on Windows is the system's
/// message box, with the exclamation mark if the type has no icon; elsewhere it writes the text to standard
/// error and answers with the default button. The result is the handler that was in force, null for the
/// default.
KX7_API MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler);

/// Shows a text, a null one as an empty one. The result is the
/// code of the button that was pressed.
KX7_API int AfxMessageBox(char const * text, unsigned int type = MB_OK);

/// Shows the string resource of the id; an empty text if there is none.
KX7_API int AfxMessageBox(unsigned int id, unsigned int type = MB_OK);

#endif
