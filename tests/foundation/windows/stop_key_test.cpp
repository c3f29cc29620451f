// CStopAction on the system's own keyboard.
#include <gtest/gtest.h>
#include <windows.h>

#include "foundation/stop_action.h"

namespace {
/// Holds a key down as long as it lives, as a driver would.
class HeldKey
{
  public:
    explicit HeldKey(WORD virtualKey) : m_virtualKey(virtualKey) { Send(0); }
    ~HeldKey() { Send(KEYEVENTF_KEYUP); }
    HeldKey(HeldKey const &) = delete;
    HeldKey & operator=(HeldKey const &) = delete;

  private:
    void Send(DWORD flags) const
    {
        INPUT input{};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = m_virtualKey;
        input.ki.dwFlags = flags;
        SendInput(1, &input, sizeof input);
    }

    WORD m_virtualKey;
};

int ThirdPoll()
{
    CStopAction::ClearStopAction();
    CStopAction::StopAction();
    CStopAction::StopAction();
    return CStopAction::StopAction();
}
}  // namespace

TEST(StopActionKeyboard, EscapeStops)
{
    HeldKey const key(VK_ESCAPE);
    EXPECT_EQ(ThirdPoll(), 1);
}

TEST(StopActionKeyboard, CancelKeyStops)
{
    HeldKey const key(VK_CANCEL);
    EXPECT_EQ(ThirdPoll(), 1);
}

TEST(StopActionKeyboard, NoKeyLetsTheActionGoOn)
{
    EXPECT_EQ(ThirdPoll(), 0);
}
