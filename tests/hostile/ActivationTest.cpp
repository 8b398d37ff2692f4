// Activation that the container begins again, ends or moves elsewhere in the middle of it.
#include "HostileTest.h"
#include "kit/Hosted.h"
#include "kit/Pump.h"

namespace quillet::hostile {
namespace {

class HostileActivation : public HostileControlTest {
protected:
    kit::FakeForm form;
    kit::Hosted control{library(), kind().classId, form, kPlace};
    kit::FakeForm otherForm;
    ComPtr<kit::FakeSite> otherSite = kit::make<kit::FakeSite>(otherForm, kPlace, L"Other");

    void SetUp() override
    {
        HostileControlTest::SetUp();
        control.setSite();
        control.initNew();
        control.setExtent();
    }
    void TearDown() override
    {
        form.record().whenNoted = nullptr;
        control.remove();
        otherSite->dismantle();
        HostileControlTest::TearDown();
    }
    /// The container does something the first time that the control asks or tells it that.
    void once(std::string const& call, std::function<void()> const& deed)
    {
        form.record().whenNoted = [this, call, deed](std::string const& noted) {
            if (!noted.starts_with(call))
                return;
            form.record().whenNoted = nullptr;
            deed();
        };
    }
    int told(char const* call) { return form.record().count(call); }
    void moveToOtherForm()
    {
        control.ask(&IOleObject::SetClientSite, otherSite.get());
        EXPECT_EQ(control.ask(&IOleObject::DoVerb, OLEIVERB_INPLACEACTIVATE, nullptr, otherSite.get(), 0,
                              otherForm.window(), &kPlace),
                  S_OK);
    }
};
QV_ALL_CONTROLS(HostileActivation);

TEST_P(HostileActivation, thatTheSiteBeginsFromInsideAQuestionIsToldOnce)
{
    for (char const* const question : {"Site.CanInPlaceActivate", "Site.GetWindow"}) {
        form.record().forget();
        once(question, [&] { EXPECT_EQ(control.activate(), S_OK); });
        EXPECT_EQ(control.activate(), S_OK);
        EXPECT_EQ(told("Site.OnInPlaceActivate"), 1) << question;
        EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
        EXPECT_EQ(told("Site.OnInPlaceDeactivate"), 1) << question;
    }
}

TEST_P(HostileActivation, isRefusedWhenTheSiteIsTakenAwayInAQuestion)
{
    for (char const* const question : {"Site.CanInPlaceActivate", "Site.GetWindow"}) {
        form.record().forget();
        control.setSite();
        once(question, [&] { control.as<IOleObject>()->SetClientSite(nullptr); });
        EXPECT_TRUE(FAILED(control.activate())) << question;
        EXPECT_EQ(told("Site.OnInPlaceActivate"), 0) << question;
        EXPECT_EQ(surfaceIn(form.window()), nullptr) << question;
    }
}

TEST_P(HostileActivation, staysOnTheFormThatTheControlWasMovedToInTheMiddleOfIt)
{
    for (char const* const call : {"Site.CanInPlaceActivate", "Site.GetWindow", "Site.OnInPlaceActivate",
                                   "Site.GetWindowContext", "Site.ShowObject"}) {
        form.record().forget();
        control.setSite();
        once(call, [&] { moveToOtherForm(); });
        control.activate();
        EXPECT_EQ(surfaceIn(form.window()), nullptr) << call;
        HWND const moved = surfaceIn(otherForm.window());
        EXPECT_TRUE(moved && ::IsWindowVisible(moved)) << call;
        EXPECT_EQ(told("Site.OnInPlaceActivate"), told("Site.OnInPlaceDeactivate")) << call;
    }
}

TEST_P(HostileActivation, thatClosesTheControlLeavesNoWindow)
{
    for (char const* const call : {"Site.OnInPlaceActivate", "Site.GetWindowContext", "Site.ShowObject"}) {
        once(call, [&] { control.as<IOleObject>()->Close(OLECLOSE_NOSAVE); });
        control.activate();
        EXPECT_THAT(ownWindows(), testing::IsEmpty()) << call;
    }
}

/// Somebody who sees the window's messages activates the control again while it is being put away.
struct Reactivation {
    kit::Hosted* control;
    WNDPROC previous;
};
Reactivation g_again;

LRESULT CALLBACK activatingAgain(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_SHOWWINDOW && !wParam && g_again.control)
        std::exchange(g_again.control, nullptr)->doVerb(OLEIVERB_UIACTIVATE);
    return ::CallWindowProcA(g_again.previous, window, message, wParam, lParam);
}

TEST_P(HostileActivation, thatBeginsAgainWhileTheLastOneEndsIsWhole)
{
    control.start();
    HWND const window = surfaceIn(form.window());
    ASSERT_NE(window, nullptr);
    g_again = {&control, reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(window, GWLP_WNDPROC))};
    ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&activatingAgain));
    EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(g_again.control, nullptr) << "nobody was seen to hide the window";
    EXPECT_EQ(surfaceIn(form.window()), window) << "an active control's window is put away";

    EXPECT_EQ(control.doVerb(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(told("Site.OnInPlaceActivate"), 2);
    EXPECT_EQ(told("Site.OnInPlaceDeactivate"), 2);
    EXPECT_EQ(told("Site.OnUIActivate"), told("Site.OnUIDeactivate"));
}

TEST_P(HostileActivation, thatEndsDoesNotTakeTheKeyboardAgain)
{
    control.start();
    ASSERT_EQ(control.doVerb(OLEIVERB_UIACTIVATE), S_OK);
    once("Frame.SetActiveObject(none)", [&] { control.doVerb(OLEIVERB_UIACTIVATE); });
    EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(surfaceIn(form.window()), nullptr);
    EXPECT_EQ(told("Site.OnUIActivate"), told("Site.OnUIDeactivate"));
}

TEST_P(HostileActivation, thatIsBegunWhileTheLastOneLosesTheKeyboardStays)
{
    control.start();
    ASSERT_EQ(control.doVerb(OLEIVERB_UIACTIVATE), S_OK);
    once("Frame.SetActiveObject(none)", [&] {
        control.as<IOleObject>()->Close(OLECLOSE_NOSAVE);
        control.doVerb(OLEIVERB_UIACTIVATE);
    });
    EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_NE(surfaceIn(form.window()), nullptr);
    EXPECT_EQ(told("Site.OnUIActivate"), 2);
    EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(surfaceIn(form.window()), nullptr);
    EXPECT_EQ(told("Site.OnUIDeactivate"), 2);
    EXPECT_EQ(told("Site.OnInPlaceActivate"), told("Site.OnInPlaceDeactivate"));
}

TEST_P(HostileActivation, ofTheNextControlSurvivesSomebodyWhoDestroysTheWindowWhereWindowsWait)
{
    control.start();
    kit::Hosted waiting(library(), kind().classId, form, kPlace);
    waiting.setSite();
    HWND const own = waiting.window(); // made, and not in the form
    ASSERT_NE(own, nullptr);
    ASSERT_NE(::GetParent(own), form.window());
    ::DestroyWindow(::GetAncestor(own, GA_PARENT));
    EXPECT_TRUE(::IsWindow(waiting.window())) << "no window of its own any more";
    EXPECT_EQ(waiting.activate(), S_OK);
    EXPECT_EQ(control.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_FALSE(::IsWindowVisible(control.window()));
    EXPECT_NE(::GetParent(control.window()), form.window());
}

} // namespace
} // namespace quillet::hostile
