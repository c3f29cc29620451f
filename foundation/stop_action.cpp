#include "foundation/stop_action.h"

#include <limits>

#include "platform/base/keyboard.h"

IMPLEMENT_DYNAMIC(CStopAction, CObject)

int CStopAction::g_nCntStopedAction = 0;
int CStopAction::g_bStopedActionFlag = 0;

namespace {
constexpr int kCancelKey = 3;      // virtual key code of Ctrl+Break
constexpr int kEscapeKey = 27;     // virtual key code of Esc
constexpr int kUnheededPolls = 2;  // polls after a clearing that don't read the keyboard
}  // namespace

CStopAction::CStopAction()
{
    ClearStopAction();
}

int CStopAction::StopAction()
{
    if (g_nCntStopedAction < std::numeric_limits<int>::max())
        ++g_nCntStopedAction;
    if (g_bStopedActionFlag == 0 && g_nCntStopedAction > kUnheededPolls &&
        (QueryKeyState(kCancelKey) < 0 || QueryKeyState(kEscapeKey) < 0))
        g_bStopedActionFlag = 1;
    return g_bStopedActionFlag;
}

void CStopAction::ClearStopAction()
{
    g_nCntStopedAction = 0;
    g_bStopedActionFlag = 0;
}
