// Subclassing by itself: one window, one user, the procedures before and between, and the user-data slot.
#include "PlainControl.h"
#include "ServiceTest.h"
#include "kit/ByName.h"
#include "kit/Controls.h"
#include "kit/HostWindow.h"

#include <gmock/gmock.h>

namespace quillet::winsvc {
namespace {

constexpr UINT kMessage = WM_APP + 3;

/// A window that is nobody's control, with a procedure that keeps what reaches it.
struct Window {
    kit::HostWindow host{100, 100, 60, 40};
    PreviousProcedure previous{host.handle()};

    HWND handle() const { return host.handle(); }
    WNDPROC procedure() const { return procedureOf(handle()); }
    LONG_PTR slot() const { return ::GetWindowLongPtrA(handle(), GWLP_USERDATA); }
    LRESULT send(UINT message = kMessage, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageA(handle(), message, wParam, lParam);
    }
};

class Subclassing : public RoomTest {
protected:
    Window window;
    PlainOwner control;

    void subclass() { control.toolTip().Subclass(window.handle()); }
    void expectOnePassedOn()
    {
        EXPECT_EQ(window.procedure(), &SubclassWndProc);
        window.previous.answer = 5;
        EXPECT_EQ(window.send(), 5);
        EXPECT_EQ(window.previous.count(kMessage), 1);
    }
    void expectGivenBack() { EXPECT_EQ(window.procedure(), window.previous.address()); }
};

TEST_ON_NEW_THREAD(Subclassing, putsTheDispatcherBeforeThePreviousProcedureAndTheUserIntoTheSlot)
{
    subclass();
    EXPECT_NE(window.slot(), 0);
    expectOnePassedOn();
}

TEST_ON_NEW_THREAD(Subclassing, twiceInstallsTheDispatchProcedureOnceSoTheChainNeverPointsAtItself)
{
    subclass();
    subclass();
    expectOnePassedOn();
    control.toolTip().Unsubclass();
    expectGivenBack(); // one step back is all the way back
}

TEST_ON_NEW_THREAD(Subclassing, passesAMessageOnWhoseHandlingFails)
{
    control->failing = true;
    subclass();
    for (UINT const message : {WM_SETFOCUS, WM_KILLFOCUS}) {
        window.send(message);
        EXPECT_EQ(window.previous.count(message), 1) << message;
    }
}

TEST_ON_NEW_THREAD(Subclassing, anotherWindowFirstGivesTheFormerOneBack)
{
    kit::HostWindow const former(100, 100, 60, 40);
    WNDPROC const own = procedureOf(former.handle());
    control.toolTip().Subclass(former.handle());
    ASSERT_NE(procedureOf(former.handle()), own);
    subclass();
    EXPECT_EQ(procedureOf(former.handle()), own);
    EXPECT_EQ(window.procedure(), &SubclassWndProc);
}

TEST_ON_NEW_THREAD(Subclassing, onceEndedLetsMessagesGoStraightToThePreviousProcedure)
{
    LONG_PTR const emptySlot = window.slot();
    subclass();
    LONG_PTR const slot = window.slot();
    control.toolTip().Unsubclass();
    expectGivenBack();
    EXPECT_NE(slot, emptySlot);
    EXPECT_EQ(window.slot(), slot) << "the slot is left as it is";
    std::vector<std::string> log;
    control->log = &log;
    window.previous.answer = 6;
    EXPECT_EQ(window.send(), 6);
    window.send(WM_SETFOCUS);
    EXPECT_TRUE(log.empty());
    control.toolTip().Unsubclass();
    expectGivenBack(); // ending twice is ending once
}

TEST_ON_NEW_THREAD(Subclassing, thatWindowsRefusesLeavesTheUserUnsubclassed)
{
    HWND dead = nullptr;
    {
        Window const gone;
        dead = gone.handle();
    }
    control.toolTip().Subclass(dead);
    control.toolTip().Subclass(nullptr);
    control.toolTip().Unsubclass();
    subclass();
    EXPECT_EQ(window.procedure(), &SubclassWndProc) << "the next one may work";
}

TEST_ON_NEW_THREAD(Subclassing, ofARefusedWindowEndsTheFormerOneAllTheSame)
{
    subclass();
    control.toolTip().Subclass(nullptr);
    expectGivenBack();
}

TEST_ON_NEW_THREAD(Subclassing, endsWithItsControl)
{
    subclass();
    control.release();
    expectGivenBack();
    window.previous.answer = 7;
    EXPECT_EQ(window.send(), 7);
}

TEST_ON_NEW_THREAD(Subclassing, doesNotKeepTheControlAlive)
{
    long const before = liveObjects();
    subclass();
    control.release();
    EXPECT_LT(liveObjects(), before);
}

TEST_ON_NEW_THREAD(Subclassing, keepsTheControlAliveForTheLengthOfOneMessage)
{
    subclass();
    long alive = 0;
    window.previous.answer = 8;
    window.previous.action = [&](MSG const& seen) {
        if (seen.message != kMessage)
            return;
        control.release();
        alive = liveObjects();
    };
    long const before = liveObjects();
    EXPECT_EQ(window.send(), 8);
    EXPECT_EQ(alive, before) << "the message's own reference";
    EXPECT_LT(liveObjects(), before);
}

TEST_ON_NEW_THREAD(Subclassing, dispatchAnswersZeroAndPassesNothingOnWhereTheSlotHoldsNoControl)
{
    window.previous.answer = 9;
    ASSERT_EQ(window.slot(), 0);
    EXPECT_EQ(SubclassWndProc(window.handle(), kMessage, 1, 2), 0);
    EXPECT_EQ(SubclassWndProc(nullptr, kMessage, 1, 2), 0);
    EXPECT_EQ(window.previous.count(kMessage), 0);
}

TEST_ON_NEW_THREAD(Subclassing, ofAUserWhoseWindowIsGoneEndsWithoutTouchingAnotherWindow)
{
    {
        Window const gone;
        control.toolTip().Subclass(gone.handle());
    }
    std::vector<std::unique_ptr<Window>> later;
    for (int i = 0; i < 8; ++i)
        later.push_back(std::make_unique<Window>());
    std::vector<WNDPROC> before;
    for (auto const& each : later)
        before.push_back(each->procedure());
    control.release();
    for (size_t i = 0; i < later.size(); ++i)
        EXPECT_EQ(later[i]->procedure(), before[i]);
}

/// What a program gets that copies the slot into an object variable.
ComPtr<IDispatch> objectIn(HWND window)
{
    return {reinterpret_cast<IDispatch*>(::GetWindowLongPtrA(window, GWLP_USERDATA))};
}

HWND windowOf(IDispatch& control)
{
    return static_cast<HWND>(LongToHandle(kit::getByName(control, L"hwnd").value.toLong()));
}

class Slot : public ServiceTest, public testing::WithParamInterface<kit::ControlKind> {
protected:
    /// On a new thread, with a control that has loaded.
    static void with(std::function<void(kit::Hosted& hosted, HWND window)> const& use)
    {
        onNewThread([&] {
            kit::FakeForm form;
            kit::Hosted hosted(library(), GetParam().classId, form, {20, 30, 140, 70});
            hosted.start(*kit::make<kit::FakeBag>().get());
            use(hosted, windowOf(*hosted.as<IDispatch>().get()));
        });
    }
    static void expectRelay(HWND window)
    {
        ToolTipWatch const watch;
        ::SendMessageA(window, WM_RBUTTONUP, 0, 0);
        EXPECT_THAT(watch.relayed(), ElementsAreArray({WM_RBUTTONUP}));
    }
};
QV_EACH_CONTROL(Of, Slot);

TEST_P(Slot, copiedIntoAnObjectVariableIsTheControl)
{
    with([](kit::Hosted& hosted, HWND window) {
        auto const control = hosted.as<IDispatch>();
        ComPtr<IDispatch> const object = objectIn(window);
        ASSERT_TRUE(object);
        EXPECT_EQ(query<IUnknown>(object.get()).get(), query<IUnknown>(hosted.object()).get());
        EXPECT_EQ(query<IUnknown>(object.get(), GetParam().interfaceId).get(),
                  static_cast<IUnknown*>(object.get()))
            << "its own interface, as variables of the control's type have it";
        kit::putByName(*object.get(), L"Caption", Variant::ofString(L"by the slot"));
        EXPECT_EQ(kit::getByName(*control.get(), L"Caption").value.toString().view(), L"by the slot");
    });
}

TEST_P(Slot, stillLeadsMessagesToTheControlAndNoLongerThanItLives)
{
    with([](kit::Hosted& hosted, HWND window) {
        expectRelay(window);
        hosted.remove();
        EXPECT_FALSE(::IsWindow(window));
    });
}

/// An object around a control that knows none of its interfaces.
class Shell final : public kit::Counterpart<IUnknown> {
public:
    ComPtr<IUnknown> inner;
};

TEST_P(Slot, leadsMessagesToAControlInsideAnObjectThatKnowsNothingOfIt)
{
    onNewThread([] {
        auto const shell = kit::make<Shell>();
        auto const factory = library().factory(GetParam().classId);
        ASSERT_EQ(factory->CreateInstance(shell->unknown(), IID_IUnknown,
                                          reinterpret_cast<void**>(shell->inner.put())),
                  S_OK);
        kit::FakeForm form;
        IUnknown* const control = shell->inner.get();
        ASSERT_EQ(query<IPersistPropertyBag>(control)->Load(kit::make<kit::FakeBag>().get(), nullptr), S_OK);
        HWND const window = windowOf(*query<IDispatch>(control).get());
        EXPECT_EQ(query<IUnknown>(objectIn(window).get()).get(), shell->unknown());
        expectRelay(window);
        EXPECT_NE(::SendMessageA(window, WM_GETDLGCODE, 0, 0), 0)
            << "the message goes on to the window's own";
    });
}

// Nothing of it is the control's any more, and there is nobody to pass the message on.
TEST_P(Slot, withAnotherObjectAnswersNothing)
{
    with([](kit::Hosted&, HWND window) {
        LONG_PTR const own = ::GetWindowLongPtrA(window, GWLP_USERDATA);
        auto const other = kit::make<Shell>();
        for (LONG_PTR const foreign : {reinterpret_cast<LONG_PTR>(other->unknown()), LONG_PTR{0}}) {
            ::SetWindowLongPtrA(window, GWLP_USERDATA, foreign);
            EXPECT_EQ(::SendMessageA(window, WM_GETDLGCODE, 0, 0), 0);
        }
        ::SetWindowLongPtrA(window, GWLP_USERDATA, own);
        EXPECT_NE(::SendMessageA(window, WM_GETDLGCODE, 0, 0), 0);
    });
}

} // namespace
} // namespace quillet::winsvc
