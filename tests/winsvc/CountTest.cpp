// The users of the tooltip window: by the thread's own numbers, on two threads at once, and over many lives.
#include "MadeWindows.h"
#include "PlainControl.h"
#include "ServiceTest.h"
#include "ToolTips.h"
#include "input/Button.h"
#include "kit/Errors.h"
#include "kit/Usage.h"

#include <ole2.h>

#include <limits>

namespace quillet::winsvc {
namespace {

class Users : public RoomTest {
protected:
    ThreadState& state = threadState();

    void expectUsers(long users, bool created) const
    {
        EXPECT_EQ(state.toolTipUsers, users);
        EXPECT_EQ(state.toolTipCreated, created);
    }
};

TEST_ON_NEW_THREAD(Users, areCountedFirstThingAndTheWindowIsMadeOnce)
{
    expectUsers(0, false);
    EXPECT_EQ(state.toolTip, nullptr);
    Sited first(true);
    first.createToolTip();
    expectUsers(1, true);
    EXPECT_EQ(state.toolTip, theToolTipWindow());
    HWND const made = state.toolTip;
    Sited second(true);
    second.createToolTip();
    EXPECT_EQ(state.toolTipUsers, 2);
    EXPECT_EQ(state.toolTip, made);
}

TEST_ON_NEW_THREAD(Users, firstHaveTheControlLibraryReadyAndThenAPlainTopmostWindow)
{
    Sited control(true);
    control.control->hWnd();
    MadeWindows const made;
    control.createToolTip();
    ASSERT_EQ(made.windows.size(), 1U);
    MadeWindow const& window = made.windows.front();
    EXPECT_TRUE(window.controlsInitialised);
    EXPECT_EQ(window.extendedStyle, 8U);
    EXPECT_EQ(window.className, "tooltips_class32");
    EXPECT_FALSE(window.hasTitle);
    EXPECT_EQ(window.style, 0U);
    for (int const length : window.place)
        EXPECT_EQ(static_cast<DWORD>(length), 0x80000000U);
    EXPECT_EQ(window.parent, nullptr);
    EXPECT_EQ(window.menu, nullptr);
    EXPECT_EQ(window.instance, moduleInstance());
    EXPECT_EQ(window.data, nullptr);
}

TEST_ON_NEW_THREAD(Users, whoseWindowCannotBeMadeLiveWithoutOneAndItIsNotTriedAgain)
{
    Sited first(true);
    Sited second(true);
    HWND const window = first.control->hWnd();
    second.control->hWnd();
    MadeWindows made;
    made.failing = true;
    first.createToolTip();
    EXPECT_TRUE(state.toolTipCreated);
    EXPECT_EQ(state.toolTip, nullptr);
    made.failing = false;
    second.createToolTip();
    EXPECT_EQ(made.windows.size(), 1U);
    EXPECT_EQ(state.toolTipUsers, 2);
    ::SendMessageA(window, WM_MOUSEMOVE, 0, 0);
    first.end();
    second.end();
    EXPECT_EQ(state.toolTipUsers, 0);
}

TEST_ON_NEW_THREAD(Users, ofDesignTimeAreCountedButMakeNoWindowAndSubclassNothing)
{
    Sited designed(false);
    auto const before = ::GetWindowLongPtrA(designed.control->hWnd(), GWLP_WNDPROC);
    designed.createToolTip();
    expectUsers(1, false);
    EXPECT_EQ(state.toolTip, nullptr);
    EXPECT_EQ(::GetWindowLongPtrA(designed.control->hWnd(), GWLP_WNDPROC), before);
    designed.end();
    EXPECT_EQ(state.toolTipUsers, 0);
}

TEST_ON_NEW_THREAD(Users, thatHaveAllGoneTakeTheWindowAlongButNeitherItsHandleNorItsFlag)
{
    Sited first(true);
    Sited second(true);
    first.createToolTip();
    second.createToolTip();
    HWND const made = state.toolTip;
    first.end();
    EXPECT_EQ(state.toolTipUsers, 1);
    EXPECT_TRUE(::IsWindow(made));
    second.end();
    EXPECT_EQ(state.toolTipUsers, 0);
    EXPECT_FALSE(::IsWindow(made));
    EXPECT_TRUE(state.toolTipCreated);
    EXPECT_EQ(state.toolTip, made);
    Sited third(true);
    third.createToolTip();
    EXPECT_EQ(state.toolTipUsers, 1);
    EXPECT_EQ(state.toolTip, made);
    EXPECT_TRUE(toolTipWindows().empty());
}

TEST_ON_NEW_THREAD(Users, beyondThirtyTwoBitsAreAnOverflow)
{
    Sited control(true);
    state.toolTipUsers = std::numeric_limits<long>::max();
    EXPECT_EQ(thrownBy([&] { control.createToolTip(); }), kOverflow);
    expectUsers(std::numeric_limits<long>::max(), false);
    control.end();
    EXPECT_EQ(state.toolTipUsers, std::numeric_limits<long>::max()) << "who was not counted is not uncounted";
    state.toolTipUsers = 0;
}

TEST_ON_NEW_THREAD(Users, whoseNumberHasNoPredecessorOverflowAtTheirEnd)
{
    Sited control(false);
    control.createToolTip();
    state.toolTipUsers = std::numeric_limits<long>::min();
    EXPECT_EQ(thrownBy([&] { control.control.toolTip().Terminate(); }), kOverflow);
    state.toolTipUsers = 1;
    control.end();
    EXPECT_EQ(state.toolTipUsers, 0);
}

TEST_ON_NEW_THREAD(Users, whoNeverCountedAreNotUncounted)
{
    Sited fresh(true);
    fresh.end();
    EXPECT_EQ(threadState().toolTipUsers, 0);
}

TEST_ON_NEW_THREAD(Users, ofTwoThreadsAreCountedApart)
{
    Sited here(true);
    here.createToolTip();
    EXPECT_EQ(threadState().toolTipUsers, 1);
    onNewThread([] {
        EXPECT_EQ(threadState().toolTipUsers, 0);
        EXPECT_FALSE(threadState().toolTipCreated);
        Sited there(true);
        there.createToolTip();
        EXPECT_EQ(threadState().toolTipUsers, 1);
    });
    EXPECT_EQ(threadState().toolTipUsers, 1);
    EXPECT_TRUE(::IsWindow(threadState().toolTip));
}

/// A running button of one thread, used on that thread alone.
struct OnThread {
    kit::UiThread thread;
    std::unique_ptr<kit::FakeForm> form;
    std::unique_ptr<RunningButton> button;
    HWND toolTip = nullptr;

    void start(kit::Library const& library)
    {
        thread.run([&] {
            form = std::make_unique<kit::FakeForm>();
            button = std::make_unique<RunningButton>(library, *form);
            button->start();
            toolTip = theToolTipWindow();
        });
    }
    void end()
    {
        thread.run([&] {
            button.reset();
            form.reset();
        });
    }
};

class TwoThreads : public ServiceTest {
protected:
    OnThread first;
    OnThread second;
};

TEST_F(TwoThreads, haveAToolTipWindowEachAndOneEndsWithoutTheOther)
{
    first.start(library());
    second.start(library());
    EXPECT_NE(first.toolTip, second.toolTip);
    EXPECT_NE(::GetWindowThreadProcessId(first.toolTip, nullptr),
              ::GetWindowThreadProcessId(second.toolTip, nullptr));
    first.end();
    EXPECT_FALSE(::IsWindow(first.toolTip));
    EXPECT_TRUE(::IsWindow(second.toolTip));
    second.thread.run([&] {
        ToolTipWatch const watch;
        ::SendMessageA(second.button->window(), WM_MOUSEMOVE, 0, 0);
        EXPECT_THAT(watch.relayed(), ElementsAreArray({WM_MOUSEMOVE}));
    });
    second.end();
    EXPECT_FALSE(::IsWindow(second.toolTip));
}

TEST_F(TwoThreads, answerTheirOwnToolTipWindowOnly)
{
    first.start(library());
    second.start(library());
    first.thread.run([&] {
        first.button->extender().offer(L"ToolTipText", Variant::ofString(L"mine"));
        char untouched[] = "untouched";
        for (HWND const from : {first.toolTip, second.toolTip}) {
            NMTTDISPINFOA request{};
            request.hdr = {from, 0, static_cast<UINT>(-520)};
            request.lpszText = untouched;
            ::SendMessageA(first.button->window(), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&request));
            EXPECT_STREQ(request.lpszText, from == first.toolTip ? "mine" : "untouched");
        }
    });
    first.end();
    second.end();
}

TEST_F(TwoThreads, keepTheCreatedFlagApart)
{
    first.start(library());
    first.end();
    first.thread.run([&] {
        kit::FakeForm form;
        RunningButton again(library(), form);
        again.start();
        EXPECT_TRUE(toolTipWindows().empty());
    });
    second.start(library());
    EXPECT_NE(second.toolTip, nullptr) << "this thread never had one";
    second.end();
}

/// Create, load, activate, hover, press, show the way out, destroy.
void liveOnce(kit::Library const& library, kit::FakeForm& form, int number)
{
    RunningButton button(library, form, number);
    button.start();
    button.extender().offer(L"ToolTipText", Variant::ofString(L"Soaked"));
    ASSERT_TRUE(kit::moveCursorTo(button.window(), number % 2 ? 60 : 90, 20));
    ASSERT_TRUE(kit::pumpUntil([&] { return button.count("MouseEnter") > 0; }));
    kit::press(kit::MouseButton::Left);
    kit::release(kit::MouseButton::Left);
    ASSERT_TRUE(kit::pumpUntil([&] { return button.count("Click") > 0; }));
    button.remove();
    ASSERT_EQ(::GetCapture(), nullptr);
}

/// Whether the thread's tooltip window lives throughout, or goes with the first of the controls.
enum class ToolTip { Kept, Gone };

class Soak : public ServiceTest {
protected:
    static void soak(ToolTip toolTip)
    {
        kit::FakeForm form;
        RunningButton keeper(library(), form, 4);
        if (toolTip == ToolTip::Kept)
            keeper.start();
        kit::expectNothingIsLeft(300, [&](int i) {
            liveOnce(library(), form, 1 + i % 2);
            form.record().forget();
            keeper.events().forget();
        });
    }
};

TEST_ON_NEW_THREAD(Soak, ofThreeHundredLivesBesideAControlThatStaysLeavesNothingBehind)
{
    soak(ToolTip::Kept);
}

TEST_ON_NEW_THREAD(Soak, ofThreeHundredLivesOneAtATimeLeavesNothingBehind) { soak(ToolTip::Gone); }

} // namespace
} // namespace quillet::winsvc
