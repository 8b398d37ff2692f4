// The shared tooltip window: who makes it, who shares it, and when it goes.
#include "ServiceTest.h"
#include "kit/Memory.h"

namespace quillet::winsvc {
namespace {

class ToolTipWindow : public ButtonTest {
protected:
    void expectHover()
    {
        ASSERT_TRUE(kit::moveCursorTo(button.window(), 60, 20));
        EXPECT_TRUE(kit::pumpUntil([&] { return button.count("MouseEnter") > 0; })) << "the rest works";
        EXPECT_TRUE(kit::moveCursorAway());
    }
    /// With the button's end the window goes.
    void expectEndWith(HWND toolTip)
    {
        EXPECT_TRUE(::IsWindow(toolTip));
        button.remove();
        EXPECT_FALSE(::IsWindow(toolTip));
    }
};

TEST_ON_NEW_THREAD(ToolTipWindow, isMadeByTheFirstRunningControlThatLoads)
{
    ASSERT_EQ(button.hosted().setSite(), S_OK);
    EXPECT_NE(windowOf(button), nullptr);
    EXPECT_TRUE(toolTipWindows().empty());
    button.load(*looksBag().get());
    HWND const toolTip = theToolTipWindow();
    EXPECT_TRUE(::GetWindowLongPtrW(toolTip, GWL_EXSTYLE) & WS_EX_TOPMOST);
    EXPECT_EQ(::GetWindow(toolTip, GW_OWNER), nullptr);
    EXPECT_EQ(::GetAncestor(toolTip, GA_PARENT), ::GetDesktopWindow());
    EXPECT_EQ(reinterpret_cast<HMODULE>(::GetWindowLongPtrW(toolTip, GWLP_HINSTANCE)), library().module());
    EXPECT_FALSE(::IsWindowVisible(toolTip));
    EXPECT_EQ(::GetWindowTextLengthW(toolTip), 0);
}

TEST_ON_NEW_THREAD(ToolTipWindow, isNotMadeByANewControl)
{
    button.startNew();
    EXPECT_TRUE(toolTipWindows().empty());
}

TEST_ON_NEW_THREAD(ToolTipWindow, isMadeByAControlThatLoadsFromAStream)
{
    auto const stream = kit::streamOf();
    {
        RunningButton saved(library(), form);
        saved.startNew();
        ASSERT_EQ(saved.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    }
    ASSERT_EQ(stream->Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
    ASSERT_EQ(button.hosted().setSite(), S_OK);
    ASSERT_EQ(button.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    expectEndWith(theToolTipWindow());
}

TEST_ON_NEW_THREAD(ToolTipWindow, isNotMadeByALoadThatFails)
{
    auto const bag = looksBag();
    bag->put(L"BorderWidth", Variant::ofLong(40000));
    ASSERT_EQ(button.hosted().setSite(), S_OK);
    WNDPROC const before = procedureOf(windowOf(button));
    EXPECT_TRUE(FAILED(button.hosted().load(*bag.get())));
    EXPECT_TRUE(toolTipWindows().empty());
    EXPECT_EQ(procedureOf(windowOf(button)), before);
}

TEST_ON_NEW_THREAD(ToolTipWindow, ofTwoControlsIsSharedAndGoesWithTheSecondOfThem)
{
    RunningButton second(library(), form, 2);
    button.start();
    HWND const toolTip = theToolTipWindow();
    second.start();
    EXPECT_EQ(theToolTipWindow(), toolTip);
    button.remove();
    EXPECT_TRUE(::IsWindow(toolTip));
    second.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
    EXPECT_TRUE(toolTipWindows().empty());
}

TEST_ON_NEW_THREAD(ToolTipWindow, ofControlsOnTwoFormsIsSharedToo)
{
    kit::FakeForm other;
    RunningButton second(library(), other);
    button.start();
    HWND const toolTip = theToolTipWindow();
    second.start();
    EXPECT_EQ(theToolTipWindow(), toolTip);
}

TEST_ON_NEW_THREAD(ToolTipWindow, isCountedButNotMadeByAControlCreatedAtDesignTimeWhichSubclassesNothing)
{
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(button.hosted().setSite(), S_OK);
    WNDPROC const before = procedureOf(windowOf(button));
    LONG_PTR const slot = ::GetWindowLongPtrA(windowOf(button), GWLP_USERDATA);
    button.start();
    EXPECT_TRUE(toolTipWindows().empty());
    EXPECT_EQ(procedureOf(button.window()), before);
    EXPECT_EQ(::GetWindowLongPtrA(button.window(), GWLP_USERDATA), slot);

    RunningButton running(library(), form, 2);
    running.start();
    HWND const toolTip = theToolTipWindow();
    running.remove();
    expectEndWith(toolTip); // of which the designed control is still a user
}

TEST_ON_NEW_THREAD(ToolTipWindow, isNotMadeAnewAfterAllEarlierControlsHaveGone)
{
    {
        RunningButton first(library(), form);
        first.start();
        ASSERT_NE(theToolTipWindow(), nullptr);
    }
    ToolTipWatch const watch;
    button.start();
    EXPECT_TRUE(toolTipWindows().empty());
    EXPECT_THAT(watch.numbers(), IsEmpty());
    expectHover();
}

TEST_ON_NEW_THREAD(ToolTipWindow, goesWithoutHarmToControlsThatComeAfterIt)
{
    for (int i = 0; i < 3; ++i) {
        RunningButton next(library(), form);
        next.start();
        EXPECT_EQ(toolTipWindows().empty(), i > 0);
    }
}

TEST_ON_NEW_THREAD(ToolTipWindow, isMadeForTheFirstRunningControlAfterDesignedOnesHaveGone)
{
    {
        RunningButton designed(library(), form);
        designed.startDesigned();
    }
    button.start();
    EXPECT_NE(theToolTipWindow(), nullptr);
}

TEST_ON_NEW_THREAD(ToolTipWindow, outlivesANewControlThatNeverCounted)
{
    button.start();
    HWND const toolTip = theToolTipWindow();
    {
        RunningButton fresh(library(), form, 2);
        fresh.startNew();
    }
    expectEndWith(toolTip);
}

TEST_ON_NEW_THREAD(ToolTipWindow, countsAControlThatLoadsTwiceOnce)
{
    button.start();
    HWND const toolTip = theToolTipWindow();
    ASSERT_EQ(button.hosted().load(*looksBag().get()), S_OK);
    EXPECT_EQ(theToolTipWindow(), toolTip);
    expectEndWith(toolTip);
}

TEST_ON_NEW_THREAD(ToolTipWindow, staysWhenOnlyTheFormGoes)
{
    button.start();
    HWND const toolTip = theToolTipWindow();
    ::DestroyWindow(form.window());
    expectEndWith(toolTip);
}

TEST_ON_NEW_THREAD(ToolTipWindow, destroyedBySomebodyElseIsMissedByNobody)
{
    button.start();
    ::DestroyWindow(theToolTipWindow());
    expectHover();
}

} // namespace
} // namespace quillet::winsvc
