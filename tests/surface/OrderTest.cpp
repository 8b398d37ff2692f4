// Containers that are not ours: steps in another order or left out, and the system's own host window.
#include "SurfaceTest.h"
#include "kit/Canvas.h"
#include "kit/HostWindow.h"
#include "kit/Pump.h"
#include "kit/Usage.h"

namespace quillet::hosting {
namespace {

class Order : public SurfaceTest {
protected:
    std::wstring caption() const
    {
        Bstr text;
        EXPECT_EQ(button()->get_Caption(text.put()), S_OK);
        return std::wstring(text.view());
    }
};

TEST_F(Order, initNewBeforeTheSite)
{
    ASSERT_EQ(control.initNew(), S_OK);
    ASSERT_EQ(control.setSite(), S_OK);
    ASSERT_EQ(control.setExtent(), S_OK);
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(placeOf(control.window()), kPlace);
}

TEST_F(Order, rectanglesBeforeActivation)
{
    ASSERT_EQ(control.setSite(), S_OK);
    ASSERT_EQ(control.initNew(), S_OK);
    EXPECT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&kPlace, &kPlace), S_OK);
    EXPECT_FALSE(isShown());
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_EQ(placeOf(control.window()), kPlace);
}

TEST_F(Order, rectanglesBeforeActivationAreWhatCountsWhereNobodySaysMore)
{
    RECT const elsewhere{7, 8, 107, 58};
    ASSERT_EQ(control.setSite(), S_OK);
    ASSERT_EQ(control.initNew(), S_OK);
    ASSERT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&elsewhere, nullptr), S_OK);
    record().answer("Site.GetWindowContext", E_NOTIMPL);
    ASSERT_EQ(as<IOleObject>()->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, &control.site(), 0, form.window(),
                                       nullptr),
              S_OK);
    EXPECT_EQ(placeOf(control.window()), elsewhere);
}

TEST_F(Order, rectanglesBeforeEverything)
{
    EXPECT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&kPlace, nullptr), S_OK);
    control.start();
    EXPECT_TRUE(isShown());
}

TEST_F(Order, neitherLoadNorInitNew)
{
    ASSERT_EQ(control.setSite(), S_OK);
    ASSERT_EQ(control.setExtent(), S_OK);
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_TRUE(isShown());
    EXPECT_EQ(button()->put_Caption(Bstr(L"alive").get()), S_OK);
    EXPECT_EQ(button()->Refresh(), S_OK);
    kit::pumpPending();
    EXPECT_EQ(caption(), L"alive");
}

TEST_F(Order, activationWithoutASite)
{
    ASSERT_EQ(control.initNew(), S_OK);
    HRESULT const result =
        as<IOleObject>()->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, nullptr, 0, form.window(), &kPlace);
    EXPECT_TRUE(SUCCEEDED(result) || !isShown());
    EXPECT_EQ(button()->Refresh(), S_OK);
}

TEST_F(Order, activationWithTheSiteOnlyInTheVerb)
{
    ASSERT_EQ(control.initNew(), S_OK);
    HRESULT const result = control.activate();
    EXPECT_EQ(SUCCEEDED(result), isShown());
    EXPECT_EQ(button()->Refresh(), S_OK);
}

TEST_F(Order, aSiteThatHasNoInPlaceSite)
{
    control.site().hide(__uuidof(IOleInPlaceSite));
    control.site().hide(__uuidof(IOleInPlaceSiteEx));
    control.site().hide(__uuidof(IOleWindow));
    ASSERT_EQ(control.setSite(), S_OK);
    ASSERT_EQ(control.initNew(), S_OK);
    EXPECT_EQ(SUCCEEDED(control.activate()), isShown());
    kit::Canvas canvas(40, 20);
    RECTL const bounds{0, 0, 40, 20};
    EXPECT_EQ(as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, canvas.dc(), &bounds,
                                      nullptr, nullptr, 0),
              S_OK);
    EXPECT_EQ(canvas.at(20, 10), ::GetSysColor(COLOR_BTNFACE));
}

TEST_F(Order, aSiteThatHasNothingButItself)
{
    for (IID const& iid : {__uuidof(IOleControlSite), __uuidof(IOleInPlaceSite), __uuidof(IOleInPlaceSiteEx),
                           __uuidof(IOleWindow), IID_IDispatch})
        control.site().hide(iid);
    control.start();
    EXPECT_EQ(button()->put_Caption(Bstr(L"&alone").get()), S_OK);
    EXPECT_EQ(button()->Refresh(), S_OK);
    EXPECT_EQ(caption(), L"&alone");
}

TEST_F(Order, theSiteTakenAwayBeforeClosing)
{
    control.start();
    ASSERT_EQ(control.doVerb(OLEIVERB_UIACTIVATE), S_OK);
    HWND const window = control.window();
    EXPECT_EQ(as<IOleObject>()->SetClientSite(nullptr), S_OK);
    EXPECT_FALSE(::IsWindow(window) && ::IsWindowVisible(window));
    EXPECT_EQ(as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_EQ(as<IOleInPlaceObject>()->UIDeactivate(), S_OK);
}

TEST_F(Order, closingThenActivatingAgain)
{
    control.start();
    ASSERT_EQ(as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    EXPECT_FALSE(isShown());
    ASSERT_EQ(control.activate(), S_OK);
    EXPECT_TRUE(isShown());
}

TEST_F(Order, anotherSiteOnAnotherFormWhileActive)
{
    control.start();
    kit::FakeForm other;
    auto const site = kit::make<kit::FakeSite>(other, kPlace, L"Moved");
    ASSERT_EQ(as<IOleObject>()->SetClientSite(site.get()), S_OK);
    ASSERT_EQ(
        as<IOleObject>()->DoVerb(OLEIVERB_INPLACEACTIVATE, nullptr, site.get(), 0, other.window(), &kPlace),
        S_OK);
    EXPECT_EQ(::GetParent(control.window()), other.window());
    EXPECT_TRUE(::IsWindowVisible(control.window()));
    control.remove();
    site->dismantle();
}

TEST_F(Order, eventSinksBeforeAnySite)
{
    kit::Listening events(control.object(), kQvFlatCommandEvents);
    ASSERT_TRUE(events.connection().joined());
    control.start();
    events->forget();
    repaint();
    EXPECT_EQ(events->count(kPaint), 1);
}

TEST_F(Order, aHostThatResizesByHidingAndShowing)
{
    control.start();
    HWND const window = control.window();
    for (long width = 50; width < 150; width += 25) {
        RECT const place{20, 30, 20 + width, 70};
        SIZEL extent = kit::himetricOf({width, 40});
        ASSERT_EQ(control.doVerb(OLEIVERB_HIDE), S_OK);
        ASSERT_EQ(control.ask(&IOleObject::SetExtent, DVASPECT_CONTENT, &extent), S_OK);
        control.site().position = place;
        ASSERT_EQ(control.doVerb(OLEIVERB_SHOW), S_OK);
        ASSERT_EQ(as<IOleInPlaceObject>()->SetObjectRects(&place, &place), S_OK);
        EXPECT_EQ(control.window(), window);
        EXPECT_EQ(placeOf(window), place);
    }
}

TEST_F(Order, manyControlsOneAfterAnotherLeaveNoWindowBehind)
{
    control.start();
    control.remove();
    int const before = kit::windowsOfThread();
    for (int round = 0; round < 50; ++round) {
        kit::Hosted next(library(), kQvFlatCommandClass, form, kPlace);
        next.start();
        EXPECT_GT(kit::windowsOfThread(), before);
    }
    EXPECT_EQ(library().canUnloadNow(), S_OK);
    EXPECT_EQ(kit::windowsOfThread(), before);
}

class SystemHost : public kit::ControlTest {
protected:
    kit::HostWindow parent{100, 100, 300, 200};
    kit::AtlHost host{parent.handle(), {10, 10, 130, 50}};
    ComPtr<IUnknown> object = library().create(kQvFlatCommandClass);

    void TearDown() override { host.destroy(); }
    HWND window() const
    {
        HWND window = nullptr;
        kit::ask(object.get(), &IOleWindow::GetWindow, &window);
        return window;
    }
    RECT clientArea() const
    {
        RECT client{};
        ::GetClientRect(window(), &client);
        return client;
    }
};

TEST_F(SystemHost, showsTheControlAndPaintsIt)
{
    ASSERT_EQ(query<IPersistStreamInit>(object.get())->InitNew(), S_OK);
    ASSERT_EQ(host.attach(object.get()), S_OK);
    auto const button = query<_qvFlatCommand>(object.get());
    ASSERT_TRUE(button);
    EXPECT_EQ(button->put_BackColor(RGB(9, 99, 199)), S_OK);
    kit::pumpPending();
    HWND const made = window();
    ASSERT_TRUE(::IsWindowVisible(made));
    EXPECT_TRUE(::IsChild(parent.handle(), made));
    EXPECT_EQ(clientArea(), (RECT{0, 0, 120, 40}));
    kit::Canvas shown(120, 40);
    kit::readWindow(made, shown);
    EXPECT_EQ(shown.at(60, 20), RGB(9, 99, 199));
    EXPECT_EQ(shown.at(0, 0), ::GetSysColor(COLOR_3DDKSHADOW));
    host.destroy();
    EXPECT_FALSE(::IsWindow(made) && ::IsWindowVisible(made));
}

TEST_F(SystemHost, movesTheControlWithItself)
{
    ASSERT_EQ(host.attach(object.get()), S_OK);
    ::SetWindowPos(host.window(), nullptr, 0, 0, 200, 90, SWP_NOZORDER | SWP_NOMOVE);
    kit::pumpPending();
    EXPECT_EQ(clientArea(), (RECT{0, 0, 200, 90}));
}

TEST_F(SystemHost, raisesEventsToo)
{
    ASSERT_EQ(host.attach(object.get()), S_OK);
    kit::Listening const events(object.get(), kQvFlatCommandEvents);
    EXPECT_EQ(query<_qvFlatCommand>(object.get())->Refresh(), S_OK);
    EXPECT_EQ(events->count(kPaint), 1) << "a host without ambient properties counts as running";
}

} // namespace
} // namespace quillet::hosting
