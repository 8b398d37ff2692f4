// The shared tooltip window: who makes it, who shares it, and when it goes.
#include "ServiceTest.h"
#include "kit/Memory.h"

namespace quillet::winsvc {
namespace {

class ToolTipWindow : public ServiceTest {};

TEST_ON_NEW_THREAD(ToolTipWindow, isMadeByTheFirstRunningControlThatLoads)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
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
    kit::FakeForm form;
    RunningButton button(library(), form);
    button.startNew();
    EXPECT_TRUE(toolTipWindows().empty());
}

TEST_ON_NEW_THREAD(ToolTipWindow, isMadeByAControlThatLoadsFromAStream)
{
    kit::FakeForm form;
    auto const stream = kit::streamOf();
    {
        RunningButton saved(library(), form);
        saved.startNew();
        ASSERT_EQ(saved.as<IPersistStreamInit>()->Save(stream.get(), TRUE), S_OK);
    }
    ASSERT_EQ(stream->Seek({}, STREAM_SEEK_SET, nullptr), S_OK);
    RunningButton button(library(), form);
    ASSERT_EQ(button.hosted().setSite(), S_OK);
    ASSERT_EQ(button.as<IPersistStreamInit>()->Load(stream.get()), S_OK);
    HWND const toolTip = theToolTipWindow();
    button.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
}

TEST_ON_NEW_THREAD(ToolTipWindow, isNotMadeByALoadThatFails)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
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
    kit::FakeForm form;
    RunningButton first(library(), form, 1);
    RunningButton second(library(), form, 2);
    first.start();
    HWND const toolTip = theToolTipWindow();
    second.start();
    EXPECT_EQ(theToolTipWindow(), toolTip);
    first.remove();
    EXPECT_TRUE(::IsWindow(toolTip));
    second.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
    EXPECT_TRUE(toolTipWindows().empty());
}

TEST_ON_NEW_THREAD(ToolTipWindow, ofControlsOnTwoFormsIsSharedToo)
{
    kit::FakeForm form;
    kit::FakeForm other;
    RunningButton first(library(), form);
    RunningButton second(library(), other);
    first.start();
    HWND const toolTip = theToolTipWindow();
    second.start();
    EXPECT_EQ(theToolTipWindow(), toolTip);
}

TEST_ON_NEW_THREAD(ToolTipWindow, isCountedButNotMadeByAControlCreatedAtDesignTimeWhichSubclassesNothing)
{
    kit::FakeForm form;
    RunningButton designed(library(), form, 1);
    designed.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(designed.hosted().setSite(), S_OK);
    WNDPROC const before = procedureOf(windowOf(designed));
    LONG_PTR const slot = ::GetWindowLongPtrA(windowOf(designed), GWLP_USERDATA);
    designed.start();
    EXPECT_TRUE(toolTipWindows().empty());
    EXPECT_EQ(procedureOf(designed.window()), before);
    EXPECT_EQ(::GetWindowLongPtrA(designed.window(), GWLP_USERDATA), slot);

    RunningButton running(library(), form, 2);
    running.start();
    HWND const toolTip = theToolTipWindow();
    running.remove();
    EXPECT_TRUE(::IsWindow(toolTip)) << "the designed control is still a user";
    designed.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
}

TEST_ON_NEW_THREAD(ToolTipWindow, isNotMadeAnewAfterAllEarlierControlsHaveGone)
{
    kit::FakeForm form;
    {
        RunningButton first(library(), form);
        first.start();
        ASSERT_NE(theToolTipWindow(), nullptr);
    }
    RunningButton second(library(), form);
    ToolTipWatch const watch;
    second.start();
    EXPECT_TRUE(toolTipWindows().empty());
    EXPECT_THAT(watch.numbers(), ElementsAre());
    ASSERT_TRUE(kit::moveCursorTo(second.window(), 60, 20));
    EXPECT_TRUE(kit::pumpUntil([&] { return second.count("MouseEnter") > 0; })) << "the rest works";
    EXPECT_TRUE(kit::moveCursorAway());
}

TEST_ON_NEW_THREAD(ToolTipWindow, goesWithoutHarmToControlsThatComeAfterIt)
{
    kit::FakeForm form;
    for (int i = 0; i < 3; ++i) {
        RunningButton button(library(), form);
        button.start();
        EXPECT_EQ(toolTipWindows().empty(), i > 0);
    }
}

TEST_ON_NEW_THREAD(ToolTipWindow, isMadeForTheFirstRunningControlAfterDesignedOnesHaveGone)
{
    kit::FakeForm form;
    {
        RunningButton designed(library(), form);
        designed.startDesigned();
    }
    RunningButton running(library(), form);
    running.start();
    EXPECT_NE(theToolTipWindow(), nullptr);
}

TEST_ON_NEW_THREAD(ToolTipWindow, outlivesANewControlThatNeverCounted)
{
    kit::FakeForm form;
    RunningButton loaded(library(), form, 1);
    loaded.start();
    HWND const toolTip = theToolTipWindow();
    {
        RunningButton fresh(library(), form, 2);
        fresh.startNew();
    }
    EXPECT_TRUE(::IsWindow(toolTip));
    loaded.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
}

TEST_ON_NEW_THREAD(ToolTipWindow, countsAControlThatLoadsTwiceOnce)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
    button.start();
    HWND const toolTip = theToolTipWindow();
    ASSERT_EQ(button.hosted().load(*looksBag().get()), S_OK);
    EXPECT_EQ(theToolTipWindow(), toolTip);
    button.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
}

TEST_ON_NEW_THREAD(ToolTipWindow, staysWhenOnlyTheFormGoes)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
    button.start();
    HWND const toolTip = theToolTipWindow();
    ::DestroyWindow(form.window());
    EXPECT_TRUE(::IsWindow(toolTip));
    button.remove();
    EXPECT_FALSE(::IsWindow(toolTip));
}

TEST_ON_NEW_THREAD(ToolTipWindow, destroyedBySomebodyElseIsMissedByNobody)
{
    kit::FakeForm form;
    RunningButton button(library(), form);
    button.start();
    ::DestroyWindow(theToolTipWindow());
    ASSERT_TRUE(kit::moveCursorTo(button.window(), 60, 20));
    EXPECT_TRUE(kit::pumpUntil([&] { return button.count("MouseEnter") > 0; }));
    EXPECT_TRUE(kit::moveCursorAway());
}

} // namespace
} // namespace quillet::winsvc
