// The frame classes: stop key, run-time parameters, base of language libraries.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "foundation/basic_dll_storage.h"
#include "foundation/runtime_parameters.h"
#include "foundation/stop_action.h"
#include "platform/base/keyboard.h"

namespace {
int g_keyDown = 0;             // virtual key code of the key that is held down
std::vector<int> g_keysAsked;  // virtual key codes in the order of asking

short FakeKeyState(int virtualKey)
{
    g_keysAsked.push_back(virtualKey);
    return virtualKey == g_keyDown ? static_cast<short>(-0x8000) : static_cast<short>(0);
}

/// Puts a keyboard of the test's own in place.
class StopAction : public testing::Test
{
  protected:
    void SetUp() override
    {
        SetKeyStateHandler(&FakeKeyState);
        g_keyDown = 0;
        g_keysAsked.clear();
        CStopAction::ClearStopAction();
    }
    void TearDown() override
    {
        SetKeyStateHandler(nullptr);
        CStopAction::ClearStopAction();
    }
};

constexpr int kCancel = 3;
constexpr int kEscape = 27;
}  // namespace

TEST_F(StopAction, ThirdPollWithEscapeDownStops)
{
    g_keyDown = kEscape;
    EXPECT_EQ(CStopAction::StopAction(), 0);
    EXPECT_EQ(CStopAction::StopAction(), 0);
    EXPECT_EQ(CStopAction::StopAction(), 1);
}

TEST_F(StopAction, CancelKeyStopsToo)
{
    g_keyDown = kCancel;
    CStopAction::StopAction();
    CStopAction::StopAction();
    EXPECT_EQ(CStopAction::StopAction(), 1);
    EXPECT_EQ(g_keysAsked, std::vector<int>{kCancel});
}

TEST_F(StopAction, FirstTwoPollsDontReadTheKeyboard)
{
    CStopAction::StopAction();
    CStopAction::StopAction();
    EXPECT_TRUE(g_keysAsked.empty());
    EXPECT_EQ(CStopAction::g_nCntStopedAction, 2);
}

TEST_F(StopAction, AsksForCancelThenEscape)
{
    for (int poll = 0; poll < 3; ++poll)
        EXPECT_EQ(CStopAction::StopAction(), 0);
    EXPECT_EQ(g_keysAsked, (std::vector<int>{kCancel, kEscape}));
}

TEST_F(StopAction, OtherKeysDontStop)
{
    g_keyDown = 'A';
    for (int poll = 0; poll < 5; ++poll)
        EXPECT_EQ(CStopAction::StopAction(), 0);
}

TEST_F(StopAction, FlagStaysWithoutReadingTheKeyboard)
{
    CStopAction::g_bStopedActionFlag = 1;
    EXPECT_EQ(CStopAction::StopAction(), 1);
    CStopAction::StopAction();
    CStopAction::StopAction();
    EXPECT_EQ(CStopAction::StopAction(), 1);
    EXPECT_TRUE(g_keysAsked.empty());
    EXPECT_EQ(CStopAction::g_nCntStopedAction, 4);
}

TEST_F(StopAction, ClearingStartsAnew)
{
    g_keyDown = kEscape;
    for (int poll = 0; poll < 3; ++poll)
        CStopAction::StopAction();
    CStopAction::ClearStopAction();
    EXPECT_EQ(CStopAction::g_nCntStopedAction, 0);
    EXPECT_EQ(CStopAction::g_bStopedActionFlag, 0);
    EXPECT_EQ(CStopAction::StopAction(), 0);
}

TEST_F(StopAction, CreatingAnObjectClears)
{
    CStopAction::g_nCntStopedAction = 5;
    CStopAction::g_bStopedActionFlag = 1;
    CStopAction const action;
    EXPECT_EQ(CStopAction::g_nCntStopedAction, 0);
    EXPECT_EQ(CStopAction::g_bStopedActionFlag, 0);
}

TEST(KeyState, HandlerIsHandedBackAndForth)
{
    EXPECT_EQ(SetKeyStateHandler(&FakeKeyState), nullptr);
    EXPECT_EQ(SetKeyStateHandler(nullptr), &FakeKeyState);
}

TEST(KeyState, NoKeyIsDownByDefault)
{
    EXPECT_GE(QueryKeyState(kEscape), 0);
}

TEST(BasicDllStorage, CreateOfTheBaseDoesNothing)
{
    CBasicDLLStorage storage;
    int anything = 0;
    EXPECT_EQ(storage.Create(nullptr), -1);
    EXPECT_EQ(storage.Create(reinterpret_cast<CLALanguageConnects *>(&anything)), -1);
}

TEST(BasicDllStorage, FieldsStartUnset)
{
    class OpenStorage : public CBasicDLLStorage
    {
      public:
        using CBasicDLLStorage::m_first;
        using CBasicDLLStorage::m_second;
        using CBasicDLLStorage::m_state;
        using CBasicDLLStorage::m_third;
    };
    OpenStorage const storage;
    EXPECT_EQ(storage.m_state, -1);
    EXPECT_EQ(storage.m_first, nullptr);
    EXPECT_EQ(storage.m_second, nullptr);
    EXPECT_EQ(storage.m_third, nullptr);
}

TEST(RuntimeParameters, StartAsZeroes)
{
    CRuntimeParameters parameters;
    tagRUNTIMEPARAMETERS const * const data = parameters.GetData();
    auto const * const bytes = reinterpret_cast<unsigned char const *>(data);
    for (std::size_t i = 0; i < sizeof *data; ++i)
        ASSERT_EQ(bytes[i], 0) << i;
}

TEST(RuntimeParameters, VersionStaysEmptyWithoutItsSizeWord)
{
    CRuntimeParameters parameters;
    parameters.Load();
    EXPECT_EQ(parameters.GetData()->osVersion.dwMajorVersion, 0U);
    EXPECT_EQ(parameters.GetData()->osVersion.dwOSVersionInfoSize, 0U);
}

TEST(RuntimeParameters, VersionComesWithItsSizeWord)
{
    CRuntimeParameters parameters;
    parameters.GetData()->osVersion.dwOSVersionInfoSize = sizeof(OSVERSIONINFOA);
    parameters.Load();
    EXPECT_GT(parameters.GetData()->osVersion.dwMajorVersion, 0U);
}

TEST(RuntimeParameters, SystemInformationIsFilled)
{
    CRuntimeParameters parameters;
    parameters.Load();
    EXPECT_GT(parameters.GetData()->systemInfo.dwNumberOfProcessors, 0U);
    EXPECT_GE(parameters.GetData()->systemInfo.dwPageSize, 4096U);
}

TEST(RuntimeParameters, ScreenIsWhatTheSystemSays)
{
    CRuntimeParameters parameters;
    parameters.Load();
    EXPECT_EQ(parameters.GetData()->screenWidth, GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(parameters.GetData()->screenHeight, GetSystemMetrics(SM_CYSCREEN));
}

TEST(RuntimeParameters, HasAClassRecord)
{
    CRuntimeParameters const parameters;
    EXPECT_EQ(parameters.GetRuntimeClass(), &CRuntimeParameters::classCRuntimeParameters);
    EXPECT_STREQ(parameters.GetRuntimeClass()->m_lpszClassName, "CRuntimeParameters");
    EXPECT_TRUE(parameters.IsKindOf(RUNTIME_CLASS(CObject)));
}
