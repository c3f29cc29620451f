#include "platform/base/wait_cursor.h"

#include <utility>

#include "platform/base/types.h"

namespace {
WaitCursorHandler g_waitCursorHandler = nullptr;

void Tell(int waiting)
{
    if (g_waitCursorHandler)
        g_waitCursorHandler(waiting);
}
}  // namespace

WaitCursorHandler SetWaitCursorHandler(WaitCursorHandler handler)
{
    return std::exchange(g_waitCursorHandler, handler);
}

CWaitCursor::CWaitCursor()
{
#if defined(_WIN32)
    m_previousCursor = SetCursor(LoadCursor(nullptr, IDC_WAIT));
#endif
    Tell(1);
}

CWaitCursor::~CWaitCursor()
{
#if defined(_WIN32)
    SetCursor(static_cast<HCURSOR>(m_previousCursor));
#endif
    Tell(0);
}
