// What the tooltip window is told: its activation, its tools, and the mouse messages of their windows.
#include "ServiceTest.h"
#include "input/Button.h"

namespace quillet::winsvc {
namespace {

using kit::MouseButton;

constexpr UINT kActivate = 1025;
constexpr UINT kAddTool = 1028;
constexpr UINT kDeleteTool = 1029;
constexpr UINT kRelayEvent = 1031;

class Tool : public ButtonTest {};

TEST_ON_NEW_THREAD(Tool, isAddedOnceTheWindowIsActiveAndActivatesItAgain)
{
    RunningButton second(library(), form, 2);
    ToolTipWatch watch;
    button.start();
    EXPECT_THAT(watch.numbers(), ElementsAreArray({kActivate, kAddTool, kActivate}));
    EXPECT_EQ(watch.messages.at(0).wParam, TRUE);
    EXPECT_EQ(watch.messages.at(0).lParam, 0);
    EXPECT_EQ(watch.messages.at(1).wParam, 0U);
    EXPECT_EQ(watch.messages.at(2).wParam, TRUE);
    EXPECT_EQ(watch.messages.at(2).lParam, reinterpret_cast<LPARAM>(button.window()));
    watch.messages.clear();
    second.start();
    EXPECT_THAT(watch.numbers(), ElementsAreArray({kAddTool, kActivate}));
    EXPECT_EQ(watch.messages.at(1).lParam, reinterpret_cast<LPARAM>(second.window()));
}

TEST_ON_NEW_THREAD(Tool, isTheWindowThatAnActivationMakesAfterTheLoad)
{
    ToolTipWatch const watch;
    ASSERT_EQ(button.hosted().setSite(), S_OK);
    button.load(*looksBag().get());
    EXPECT_THAT(watch.numbers(), ElementsAreArray({kActivate})) << "nothing needs a window yet";
    ASSERT_EQ(button.hosted().activate(), S_OK);
    EXPECT_THAT(watch.numbers(), ElementsAreArray({kActivate, kAddTool, kActivate}));
    EXPECT_EQ(watch.messages.at(1).tool.hwnd, windowOf(button));
}

TEST_ON_NEW_THREAD(Tool, isTheNewWindowOfAControlThatIsShownAgainAfterItWasClosed)
{
    button.start();
    HWND const first = windowOf(button);
    ASSERT_EQ(button.as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_FALSE(::IsWindow(first));
    ToolTipWatch const watch;
    ASSERT_EQ(button.hosted().activate(), S_OK);
    EXPECT_THAT(watch.numbers(), ElementsAreArray({kDeleteTool, kAddTool, kActivate}));
    EXPECT_EQ(watch.messages.at(1).tool.hwnd, windowOf(button));
    EXPECT_TRUE(::IsWindowVisible(windowOf(button)));
}

TEST_ON_NEW_THREAD(Tool, isTheNewWindowOfAControlWhoseContainerDestroyedTheLastOne)
{
    button.start();
    ::DestroyWindow(windowOf(button));
    ToolTipWatch const watch;
    HWND const made = windowOf(button);
    ASSERT_NE(made, nullptr);
    EXPECT_THAT(watch.numbers(), ElementsAreArray({kDeleteTool, kAddTool, kActivate}));
    EXPECT_EQ(watch.messages.at(1).tool.hwnd, made);
}

TEST_ON_NEW_THREAD(Tool, isTheControlsWindowByItsHandleWithTextOnDemand)
{
    ToolTipWatch const watch;
    button.start();
    ASSERT_EQ(watch.numbers().at(1), kAddTool);
    TTTOOLINFOA const& tool = watch.messages[1].tool;
    // Everything up to and with the text.
    constexpr UINT kKnownSize = sizeof(void*) == 4 ? 40 : 56;
    EXPECT_EQ(tool.cbSize, kKnownSize);
    EXPECT_EQ(tool.uFlags, 1U);
    EXPECT_EQ(tool.hwnd, button.window());
    EXPECT_EQ(tool.uId, reinterpret_cast<UINT_PTR>(button.window()));
    RECT const none{0, 0, 0, 0};
    EXPECT_TRUE(::EqualRect(&tool.rect, &none));
    EXPECT_EQ(tool.hinst, library().module());
    EXPECT_EQ(reinterpret_cast<LONG_PTR>(tool.lpszText), -1);
}

// A form may make and give up controls for as long as it runs.
TEST_ON_NEW_THREAD(Tool, goesWithItsControlAndWithAWindowThatIsMadeAnew)
{
    button.start();
    HWND const toolTip = theToolTipWindow();
    auto const tools = [toolTip] { return ::SendMessageA(toolTip, TTM_GETTOOLCOUNT, 0, 0); };
    {
        RunningButton second(library(), form, 2);
        second.start();
        EXPECT_EQ(tools(), 2);
        ASSERT_EQ(second.as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
        ASSERT_EQ(second.hosted().activate(), S_OK);
        EXPECT_EQ(tools(), 2);
    }
    EXPECT_EQ(tools(), 1);
}

TEST_ON_NEW_THREAD(Tool, isKnownToTheToolTipWindow)
{
    RunningButton second(library(), form, 2);
    button.start();
    second.start();
    HWND const toolTip = theToolTipWindow();
    EXPECT_EQ(::SendMessageA(toolTip, TTM_GETTOOLCOUNT, 0, 0), 2);
    for (HWND const window : {button.window(), second.window()}) {
        TTTOOLINFOA tool{};
        tool.cbSize = TTTOOLINFOA_V1_SIZE;
        tool.hwnd = window;
        tool.uId = reinterpret_cast<UINT_PTR>(window);
        EXPECT_TRUE(::SendMessageA(toolTip, TTM_GETTOOLINFOA, 0, reinterpret_cast<LPARAM>(&tool)));
        EXPECT_EQ(tool.uFlags, 1U);
    }
}

TEST_ON_NEW_THREAD(Tool, ofADesignedControlIsNone)
{
    button.start();
    ToolTipWatch const watch;
    RunningButton designed(library(), form, 2);
    designed.startDesigned();
    EXPECT_THAT(watch.numbers(), IsEmpty());
}

class Relay : public ButtonTest {
protected:
    void SetUp() override
    {
        ButtonTest::SetUp();
        button.start();
    }
};

TEST_ON_NEW_THREAD(Relay, takesTheSevenMouseMessagesWithNeitherTimeNorPoint)
{
    HWND const toolTip = theToolTipWindow();
    LPARAM const where = MAKELPARAM(11, 7);
    for (UINT const message : {512U, 513U, 514U, 516U, 517U, 519U, 520U}) {
        ToolTipWatch const watch;
        ::SendMessageA(button.window(), message, MK_SHIFT, where);
        ASSERT_THAT(watch.numbers(), ElementsAreArray({kRelayEvent})) << message;
        ToolTipMessage const& passed = watch.messages.front();
        EXPECT_EQ(passed.to, toolTip);
        EXPECT_EQ(passed.wParam, 0U);
        EXPECT_EQ(passed.relayed.hwnd, button.window());
        EXPECT_EQ(passed.relayed.message, message);
        EXPECT_EQ(passed.relayed.wParam, WPARAM{MK_SHIFT});
        EXPECT_EQ(passed.relayed.lParam, where);
        EXPECT_EQ(passed.relayed.time, 0U);
        EXPECT_EQ(passed.relayed.pt.x, 0);
        EXPECT_EQ(passed.relayed.pt.y, 0);
    }
    ::ReleaseCapture();
}

TEST_ON_NEW_THREAD(Relay, leavesOutEveryOtherMessage)
{
    ToolTipWatch const watch;
    for (UINT const message : {515U, 518U, 521U, 522U, 523U, 524U, 525U, 526U, UINT{WM_NCMOUSEMOVE},
                               UINT{WM_SETFOCUS}, UINT{WM_KILLFOCUS}, UINT{WM_KEYUP}, UINT{WM_TIMER},
                               UINT{WM_MOUSELEAVE}, UINT{WM_MOUSEHOVER}, UINT{WM_APP + 7}})
        ::SendMessageA(button.window(), message, 0, 0);
    EXPECT_THAT(watch.numbers(), IsEmpty());
}

// WM_LBUTTONDBLCLK (515) and its sisters are passed on but not relayed: here made by a real mouse.
TEST_ON_NEW_THREAD(Relay, ofADoubleClickLeavesOutTheSecondPress)
{
    input::enter(button);
    for (auto const& [which, down, up] :
         {std::tuple{MouseButton::Left, 513U, 514U}, std::tuple{MouseButton::Right, 516U, 517U},
          std::tuple{MouseButton::Middle, 519U, 520U}}) {
        ToolTipWatch const watch;
        for (int i = 0; i < 2; ++i)
            EXPECT_TRUE(input::actUntilHandled(up, [which = which] {
                kit::press(which);
                kit::release(which);
            }));
        std::vector<UINT> relayed = watch.relayed();
        std::erase(relayed, 512U);
        EXPECT_THAT(relayed, ElementsAreArray({down, up, up}));
    }
    EXPECT_TRUE(kit::moveCursorAway());
    kit::pumpPending();
}

TEST_ON_NEW_THREAD(Relay, happensBeforeTheControlHandlesTheMessage)
{
    ToolTipWatch const watch;
    size_t relayedBefore = 0;
    button.events().action = [&](auto const&) {
        if (button.lastEvent() == "MouseDown")
            relayedBefore = watch.relayed().size();
    };
    ::SendMessageA(button.window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(60, 20));
    EXPECT_EQ(relayedBefore, 1U);
}

TEST_ON_NEW_THREAD(Relay, fromANewControlIsNone)
{
    RunningButton fresh(library(), form, 2);
    fresh.startNew();
    ToolTipWatch const watch;
    input::enter(fresh);
    input::leave(fresh);
    EXPECT_THAT(watch.numbers(), IsEmpty());
}

} // namespace
} // namespace quillet::winsvc
