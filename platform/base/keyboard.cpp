#include "platform/base/keyboard.h"

#include <utility>

#include "platform/base/types.h"

namespace {
KeyStateHandler g_keyStateHandler = nullptr;

short DefaultKeyState([[maybe_unused]] int virtualKey)
{
#if defined(_WIN32)
    return GetAsyncKeyState(virtualKey);
#else
    return 0;
#endif
}
}  // namespace

KeyStateHandler SetKeyStateHandler(KeyStateHandler handler)
{
    return std::exchange(g_keyStateHandler, handler);
}

short QueryKeyState(int virtualKey)
{
    return g_keyStateHandler ? g_keyStateHandler(virtualKey) : DefaultKeyState(virtualKey);
}
