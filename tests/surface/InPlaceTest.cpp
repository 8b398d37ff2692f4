// In-place activation: what the site is asked, and where the window is.
#include "SurfaceTest.h"
#include "base/Handles.h"
#include "kit/HostWindow.h"
#include "kit/Input.h"

#include <algorithm>

namespace quillet::hosting {
namespace {

class InPlace : public SurfaceTest {
protected:
    /// Something else in the form that has the focus.
    UniqueWindow otherFocus() const
    {
        auto edit = kit::newEditBox(form.window(), {200, 30, 300, 60});
        EXPECT_TRUE(kit::focus(edit.get()));
        return edit;
    }
    HRESULT deactivate() const { return as<IOleInPlaceObject>()->InPlaceDeactivate(); }
    /// The calls to the site and the frame that concern activation, in order.
    std::vector<std::string> activationCalls()
    {
        std::vector<std::string> calls;
        for (std::string const& call : record().take())
            for (char const* const part :
                 {"CanInPlaceActivate", "OnInPlaceActivate", "OnInPlaceActivateEx", "OnUIActivate",
                  "SetActiveObject", "OnUIDeactivate", "OnInPlaceDeactivate"})
                if (call.substr(call.find('.') + 1, strlen(part)) == part)
                    calls.push_back(call.substr(call.find('.') + 1));
        calls.erase(std::unique(calls.begin(), calls.end()), calls.end());
        return calls;
    }
};

TEST_F(InPlace, activationAsksThenTellsThenShowsTheWindowInTheForm)
{
    activated();
    EXPECT_THAT(activationCalls(), testing::ElementsAreArray({"CanInPlaceActivate", "OnInPlaceActivate"}));
    EXPECT_TRUE(isShown());
    EXPECT_EQ(placeOf(control.window()), kPlace);
}

TEST_F(InPlace, activationUsesTheExtendedSiteWhereThereIsOne)
{
    control.site().show(__uuidof(IOleInPlaceSiteEx));
    activated();
    EXPECT_EQ(record().count("Site.OnInPlaceActivate") + record().count("Site.OnInPlaceActivateEx"), 1);
    EXPECT_TRUE(isShown());
    ASSERT_EQ(deactivate(), S_OK);
    EXPECT_EQ(record().count("Site.OnInPlaceDeactivate") + record().count("Site.OnInPlaceDeactivateEx"), 1);
}

TEST_F(InPlace, activationIsRefusedWhereTheSiteSaysNo)
{
    record().answer("Site.CanInPlaceActivate", S_FALSE);
    begin();
    EXPECT_TRUE(FAILED(control.activate()));
    EXPECT_FALSE(isShown());
    EXPECT_EQ(record().count("Site.OnInPlaceActivate"), 0);
}

TEST_F(InPlace, activationTwiceTellsOnce)
{
    activated();
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_EQ(record().count("Site.OnInPlaceActivate"), 1);
    EXPECT_TRUE(isShown());
}

TEST_F(InPlace, userInterfaceActivationTellsTheSiteAndTheFrame)
{
    activated(OLEIVERB_UIACTIVATE);
    auto const calls = activationCalls();
    EXPECT_THAT(calls, testing::IsSupersetOf({"CanInPlaceActivate", "OnInPlaceActivate", "OnUIActivate",
                                              "SetActiveObject(object)"}));
    EXPECT_LT(std::ranges::find(calls, "OnInPlaceActivate"), std::ranges::find(calls, "OnUIActivate"));
    ASSERT_EQ(as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_THAT(activationCalls(),
                testing::UnorderedElementsAreArray({"SetActiveObject(none)", "OnUIDeactivate"}));
    EXPECT_TRUE(isShown()) << "only its user interface was deactivated";
}

TEST_F(InPlace, theDocumentsWindowHasTheActiveObjectJustAsTheFrame)
{
    auto const document = kit::make<kit::FakeFrame>(form.window(), form.sharedRecord(), "Document");
    control.site().document = document;
    activated(OLEIVERB_UIACTIVATE);
    EXPECT_EQ(document->activeObject(), as<IOleInPlaceActiveObject>().get());
    EXPECT_EQ(form.frame().activeObject(), document->activeObject());
    ASSERT_EQ(as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_EQ(document->activeObject(), nullptr);
    EXPECT_EQ(form.frame().activeObject(), nullptr);
    control.site().document.reset();
}

TEST_F(InPlace, deactivationEndsTheUserInterfaceFirstAndTellsOnce)
{
    activated(OLEIVERB_UIACTIVATE);
    record().forget();
    ASSERT_EQ(deactivate(), S_OK);
    ASSERT_EQ(deactivate(), S_OK);
    auto const calls = activationCalls();
    EXPECT_EQ(std::ranges::count(calls, "OnInPlaceDeactivate"), 1);
    EXPECT_LT(std::ranges::find(calls, "OnUIDeactivate"), std::ranges::find(calls, "OnInPlaceDeactivate"));
    EXPECT_EQ(std::ranges::count(calls, "OnUIDeactivate"), 1);
}

TEST_F(InPlace, deactivationBeforeTheUserInterfacesInEitherOrder)
{
    activated(OLEIVERB_UIACTIVATE);
    auto const object = as<IOleInPlaceObject>();
    EXPECT_EQ(object->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(object->UIDeactivate(), S_OK);
    EXPECT_EQ(control.doVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_FALSE(isShown());
}

TEST_F(InPlace, deactivatedTheWindowIsHiddenUnderAnotherParentAndStaysTheSame)
{
    HWND const window = activated();
    ASSERT_EQ(deactivate(), S_OK);
    EXPECT_EQ(ownWindow(), window);
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_FALSE(::IsWindowVisible(window));
    EXPECT_NE(::GetParent(window), form.window());
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_EQ(control.window(), window);
    EXPECT_TRUE(isShown());
}

TEST_F(InPlace, closedAfterDeactivationTheWindowIsGone)
{
    HWND const window = activated();
    ASSERT_EQ(deactivate(), S_OK);
    ASSERT_EQ(as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(InPlace, neverActiveAndClosedTheWindowIsGone)
{
    begin();
    HWND const window = ownWindow();
    ASSERT_EQ(as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_FALSE(::IsWindow(window));
    HWND const next = ownWindow();
    EXPECT_TRUE(::IsWindow(next)) << "asked for again, it is made anew";
    ASSERT_EQ(as<IOleObject>()->SetClientSite(nullptr), S_OK);
    EXPECT_FALSE(::IsWindow(next));
}

TEST_F(InPlace, anotherSiteKeepsTheWindow)
{
    HWND const window = activated();
    kit::FakeForm other;
    auto const site = kit::make<kit::FakeSite>(other, kPlace, L"Moved");
    ASSERT_EQ(as<IOleObject>()->SetClientSite(site.get()), S_OK);
    EXPECT_EQ(ownWindow(), window);
    control.remove();
    site->dismantle();
}

TEST_F(InPlace, theWindowExistsFromTheSiteOnAndIsNotSeenBeforeActivation)
{
    ASSERT_EQ(control.setSite(), S_OK);
    HWND const window = ownWindow();
    EXPECT_TRUE(::IsWindow(window));
    EXPECT_FALSE(::IsWindowVisible(window));
    ASSERT_EQ(control.initNew(), S_OK);
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_EQ(control.window(), window);
}

TEST_F(InPlace, theWindowExistsWhenAskedForWithoutASite)
{
    EXPECT_TRUE(::IsWindow(ownWindow()));
    EXPECT_FALSE(::IsWindowVisible(ownWindow()));
}

TEST_F(InPlace, theWindowEndsWithTheControl)
{
    HWND const window = activated();
    control.remove();
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(InPlace, releasedWithoutAWordTheControlTakesItsWindowAway)
{
    HWND const window = activated(OLEIVERB_UIACTIVATE);
    form.frame().forgetActiveObject();
    control.release();
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(library().canUnloadNow(), S_OK);
}

// Windows that own their device contexts would make every window of a large form slow to open.
TEST_F(InPlace, theWindowOwnsNoDeviceContextAndTakesDoubleClicks)
{
    DWORD const style = static_cast<DWORD>(::GetClassLongPtrW(ownWindow(), GCL_STYLE));
    EXPECT_FALSE(style & CS_OWNDC);
    EXPECT_TRUE(style & CS_DBLCLKS);
    EXPECT_FALSE(::IsWindowUnicode(ownWindow()));
    DWORD const windowStyle = static_cast<DWORD>(::GetWindowLongW(ownWindow(), GWL_STYLE));
    EXPECT_FALSE(windowStyle & (WS_TABSTOP | WS_GROUP)) << "containers manage the keyboard with these";
}

TEST_F(InPlace, hidingHidesAndShowingShowsTheSameWindowWithoutTakingTheFocus)
{
    auto const edit = otherFocus();
    HWND const window = activated();
    for (int cycle = 0; cycle < 5; ++cycle) {
        EXPECT_EQ(control.doVerb(OLEIVERB_HIDE), S_OK);
        EXPECT_FALSE(::IsWindowVisible(window));
        EXPECT_TRUE(::IsWindow(window));
        EXPECT_EQ(control.doVerb(OLEIVERB_SHOW), S_OK);
        EXPECT_TRUE(::IsWindowVisible(window));
        EXPECT_EQ(control.window(), window);
        EXPECT_EQ(::GetFocus(), edit.get());
    }
}

TEST_F(InPlace, activatingInPlaceDoesNotTakeTheFocus)
{
    auto const edit = otherFocus();
    activated();
    EXPECT_EQ(::GetFocus(), edit.get());
}

TEST_F(InPlace, activatingTheUserInterfaceTakesTheFocus)
{
    auto const edit = otherFocus();
    HWND const window = activated(OLEIVERB_UIACTIVATE);
    EXPECT_EQ(::GetFocus(), window);
}

TEST_F(InPlace, movesToWhereTheContainerSays)
{
    activated();
    RECT const elsewhere{5, 6, 205, 106};
    ASSERT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&elsewhere, &control.site().clip), S_OK);
    EXPECT_EQ(placeOf(control.window()), elsewhere);
    EXPECT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&kPlace, nullptr), S_OK);
    EXPECT_EQ(placeOf(control.window()), kPlace);
    EXPECT_TRUE(FAILED(as<IOleInPlaceObject>()->SetObjectRects(nullptr, nullptr)));
    EXPECT_EQ(placeOf(control.window()), kPlace);
}

TEST_F(InPlace, showsThePartThatTheContainerDoesNotCoverWhereverItMoves)
{
    activated();
    auto const moved = [&](RECT const& place, RECT const& clip) {
        EXPECT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&place, &clip), S_OK);
        UniqueRegion const region(::CreateRectRgn(0, 0, 0, 0));
        RECT shown{};
        if (::GetWindowRgn(control.window(), region.get()) != ERROR)
            ::GetRgnBox(region.get(), &shown);
        return shown; // in the window; all zeros for the whole of it
    };
    constexpr RECT kLeftHalf{0, 0, 100, 60};
    EXPECT_EQ(moved({20, 30, 140, 70}, kLeftHalf), (RECT{0, 0, 80, 30}));
    EXPECT_EQ(moved({50, 10, 170, 50}, kLeftHalf), (RECT{0, 0, 50, 40}));
    EXPECT_EQ(moved({-40, -5, 80, 35}, kLeftHalf), (RECT{40, 5, 120, 40}));
    EXPECT_EQ(moved({20, 30, 140, 70}, control.site().clip), RECT{});
}

TEST_F(InPlace, survivesTheDestructionOfTheFormsWindow)
{
    HWND const window = activated(OLEIVERB_UIACTIVATE);
    ::DestroyWindow(form.window());
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(button()->put_Caption(Bstr(L"after").get()), S_OK);
    EXPECT_EQ(button()->Refresh(), S_OK);
    EXPECT_TRUE(::IsWindow(ownWindow()));
    EXPECT_EQ(deactivate(), S_OK);
    EXPECT_EQ(as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
}

TEST_F(InPlace, theActiveObjectIsThereForWhoAsksAndAnswersTheFrame)
{
    activated(OLEIVERB_UIACTIVATE);
    auto const active = as<IOleInPlaceActiveObject>();
    EXPECT_EQ(form.frame().activeObject(), active.get());
    HWND window = nullptr;
    EXPECT_EQ(active->GetWindow(&window), S_OK);
    EXPECT_EQ(window, control.window());
    EXPECT_EQ(active->GetWindow(nullptr), E_POINTER);
    EXPECT_EQ(active->OnFrameWindowActivate(TRUE), S_OK);
    EXPECT_EQ(active->OnDocWindowActivate(FALSE), S_OK);
    EXPECT_EQ(active->OnDocWindowActivate(TRUE), S_OK);
    EXPECT_EQ(active->ResizeBorder(&kPlace, &form.frame(), TRUE), S_OK);
    for (BOOL const enabled : {FALSE, TRUE})
        EXPECT_EQ(active->EnableModeless(enabled), S_OK);
}

// Whatever a site does not do, the button gets into its form.
class InPlaceWithFaults : public InPlace, public testing::WithParamInterface<char const*> {};

TEST_P(InPlaceWithFaults, activatesWhereTheSiteFailsThisCall)
{
    record().answer(GetParam(), E_NOTIMPL);
    begin();
    EXPECT_EQ(control.activate(), S_OK);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(placeOf(control.window()), kPlace);
    EXPECT_EQ(control.doVerb(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_EQ(::GetFocus(), control.window());
    EXPECT_EQ(as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
    EXPECT_EQ(deactivate(), S_OK);
    EXPECT_FALSE(isShown());
}

TEST_P(InPlaceWithFaults, activatesWhereTheSiteSucceedsWithNothing)
{
    record().answerNothing(GetParam());
    begin();
    EXPECT_EQ(control.activate(), S_OK);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(control.doVerb(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_EQ(deactivate(), S_OK);
}

INSTANTIATE_TEST_SUITE_P(Each, InPlaceWithFaults,
                         testing::Values("Site.CanInPlaceActivate", "Site.OnInPlaceActivate",
                                         "Site.GetWindow", "Site.GetWindowContext", "Site.ShowObject",
                                         "Site.OnUIActivate", "Site.OnUIDeactivate",
                                         "Site.OnInPlaceDeactivate", "Site.OnFocus", "Site.GetContainer",
                                         "Site.GetExtendedControl", "Site.OnControlInfoChanged",
                                         "Site.OnPosRectChange", "Frame.SetActiveObject"),
                         [](testing::TestParamInfo<char const*> const& row) {
                             std::string name(row.param);
                             std::ranges::replace(name, '.', '_');
                             return name;
                         });

} // namespace
} // namespace quillet::hosting
