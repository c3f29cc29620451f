#ifndef KX7_PLATFORM_BASE_KEYBOARD_H
#define KX7_PLATFORM_BASE_KEYBOARD_H

#include "platform/base/export.h"

/// Answers whether the key of a virtual key code is down now: a negative result if it is.
using KeyStateHandler = short (*)(int virtualKey);

/// Replaces the process-wide answer to key queries; null puts back the default, which on Windows reads the
/// keyboard and elsewhere reports no key. The result is the handler that was in force, null for the default.
KX7_API KeyStateHandler SetKeyStateHandler(KeyStateHandler handler);

/// Whether a key is down now, asked without a message loop; see KeyStateHandler.
KX7_API short QueryKeyState(int virtualKey);

#endif
