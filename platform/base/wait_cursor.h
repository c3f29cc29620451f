#ifndef KX7_PLATFORM_BASE_WAIT_CURSOR_H
#define KX7_PLATFORM_BASE_WAIT_CURSOR_H

#include "platform/base/export.h"

/// Is told with 1 when a long operation begins and with 0 when it has ended.
using WaitCursorHandler = void (*)(int waiting);

/// Sets who is told of long operations; null for none. The result is the handler that was set before.
KX7_API WaitCursorHandler SetWaitCursorHandler(WaitCursorHandler handler);

/// Shows the system's wait cursor while it lives, where there is one, and the previous cursor afterwards.
class KX7_API CWaitCursor
{
  public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(CWaitCursor const &) = delete;
    CWaitCursor & operator=(CWaitCursor const &) = delete;

  private:
    void * m_previousCursor = nullptr;
};

#endif
