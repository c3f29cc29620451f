#ifndef KX7_FOUNDATION_STOP_ACTION_H
#define KX7_FOUNDATION_STOP_ACTION_H

#include "platform/base/object.h"

/// The stop key of long computations. A host clears the state before a long action (creating an object clears
/// it too) and the action's loop polls StopAction. The state is shared by the whole process and isn't locked:
/// clear and poll on one thread.
class KX7_API CStopAction : public CObject
{
    DECLARE_DYNAMIC(CStopAction)

  public:
    CStopAction();

    /// Whether the user has asked to stop, 1 or 0. From the third poll after a clearing on, the keys
    /// Ctrl+Break and Esc are read; once one was down the answer stays 1 until the next clearing.
    static int StopAction();

    /// Forgets a stop and the polls so far.
    static void ClearStopAction();

    static int g_nCntStopedAction;   ///< Polls since the last clearing.
    static int g_bStopedActionFlag;  ///< 1 once the user has asked to stop.
};

#endif
