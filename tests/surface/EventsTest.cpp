// Connection points, and events to sinks of every behaviour.
#include "SurfaceTest.h"
#include "kit/ByName.h"
#include "kit/Pump.h"

namespace quillet::hosting {
namespace {

class Points : public SurfaceTest {
protected:
    ComPtr<IConnectionPointContainer> container = as<IConnectionPointContainer>();
    ComPtr<kit::EventRecorder> sink = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    DWORD cookie = 0;

    ComPtr<IEnumConnectionPoints> enumerated()
    {
        ComPtr<IEnumConnectionPoints> points;
        EXPECT_EQ(container->EnumConnectionPoints(points.put()), S_OK);
        return points;
    }

    ComPtr<IConnectionPoint> point(IID const& iid = kQvFlatCommandEvents)
    {
        ComPtr<IConnectionPoint> found;
        EXPECT_EQ(container->FindConnectionPoint(iid, found.put()), S_OK);
        return found;
    }
};

TEST_F(Points, areThoseOfItsEventsAndOfChangedProperties)
{
    auto const points = enumerated();
    ASSERT_TRUE(points);
    std::vector<IID> found;
    ComPtr<IConnectionPoint> next;
    while (points->Next(1, next.put(), nullptr) == S_OK) {
        IID iid{};
        EXPECT_EQ(next->GetConnectionInterface(&iid), S_OK);
        found.push_back(iid);
    }
    ASSERT_EQ(found.size(), 2U);
    EXPECT_TRUE(found[0] == kQvFlatCommandEvents || found[1] == kQvFlatCommandEvents);
    EXPECT_TRUE(found[0] == __uuidof(IPropertyNotifySink) || found[1] == __uuidof(IPropertyNotifySink));
}

TEST_F(Points, areEnumeratedSeveralAtATimeSkippedAgainAndInCopies)
{
    auto const points = enumerated();
    ASSERT_TRUE(points);
    IConnectionPoint* several[3] = {};
    ULONG count = 77;
    EXPECT_EQ(points->Next(3, several, &count), S_FALSE);
    ASSERT_EQ(count, 2U);
    auto const first = ComPtr<IConnectionPoint>::adopt(several[0]);
    auto const second = ComPtr<IConnectionPoint>::adopt(several[1]);
    EXPECT_EQ(points->Reset(), S_OK);
    EXPECT_EQ(points->Skip(1), S_OK);
    ComPtr<IEnumConnectionPoints> copy;
    EXPECT_EQ(points->Clone(copy.put()), S_OK);
    ComPtr<IConnectionPoint> again;
    EXPECT_EQ(points->Clone(nullptr), E_POINTER);
    EXPECT_EQ(copy->Next(1, again.put(), &count), S_OK);
    EXPECT_EQ(again.get(), second.get());
    EXPECT_EQ(points->Skip(5), S_FALSE);
    EXPECT_TRUE(FAILED(points->Next(2, several, nullptr))) << "a count must be asked for with more than one";
}

TEST_F(Points, areRefusedForOtherInterfaces)
{
    auto* poison = reinterpret_cast<IConnectionPoint*>(&form);
    EXPECT_EQ(container->FindConnectionPoint(__uuidof(IAdviseSink), &poison), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(poison, nullptr);
    EXPECT_EQ(container->FindConnectionPoint(kQvFlatCommandEvents, nullptr), E_POINTER);
    EXPECT_EQ(container->EnumConnectionPoints(nullptr), E_POINTER);
}

TEST_F(Points, belongToTheControlAndKeepItAlive)
{
    auto const events = point();
    ComPtr<IConnectionPointContainer> owner;
    EXPECT_EQ(events->GetConnectionPointContainer(owner.put()), S_OK);
    EXPECT_EQ(query<IUnknown>(owner.get()).get(), query<IUnknown>(control.object()).get());
    EXPECT_EQ(events->GetConnectionPointContainer(nullptr), E_POINTER);
    EXPECT_EQ(events->GetConnectionInterface(nullptr), E_POINTER);
}

TEST_F(Points, acceptSinksOfTheirInterfaceAndOfPlainAutomation)
{
    auto const events = point();
    auto const named = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    auto const plain = kit::make<kit::EventRecorder>(IID_IDispatch);
    DWORD first = 0;
    DWORD second = 0;
    EXPECT_EQ(events->Advise(named->unknown(), &first), S_OK);
    EXPECT_EQ(events->Advise(plain->unknown(), &second), S_OK);
    EXPECT_NE(first, 0U);
    EXPECT_NE(first, second);
    control.start();
    named->forget();
    plain->forget();
    repaint();
    EXPECT_EQ(named->count(kPaint), 1);
    EXPECT_EQ(plain->count(kPaint), 1);
    EXPECT_EQ(events->Unadvise(first), S_OK);
    repaint();
    EXPECT_EQ(named->count(kPaint), 1);
    EXPECT_EQ(plain->count(kPaint), 2);
    EXPECT_EQ(events->Unadvise(second), S_OK);
}

TEST_F(Points, refuseSinksThatCannotServeAndCookiesThatNobodyHas)
{
    auto const events = point();
    auto const wrong = kit::make<kit::ViewRecorder>();
    cookie = 77;
    EXPECT_EQ(events->Advise(wrong->unknown(), &cookie), CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(cookie, 0U);
    EXPECT_EQ(point(__uuidof(IPropertyNotifySink))->Advise(wrong->unknown(), &cookie),
              CONNECT_E_CANNOTCONNECT);
    EXPECT_EQ(events->Advise(nullptr, &cookie), E_POINTER);
    EXPECT_EQ(events->Advise(sink->unknown(), nullptr), E_POINTER);
    EXPECT_EQ(sink->references(), 1U);
    EXPECT_EQ(events->Unadvise(4711), CONNECT_E_NOCONNECTION);
    EXPECT_EQ(events->Unadvise(0), CONNECT_E_NOCONNECTION);
}

TEST_F(Points, enumerateTheirConnections)
{
    auto const events = point();
    ASSERT_EQ(events->Advise(sink->unknown(), &cookie), S_OK);
    ComPtr<IEnumConnections> connections;
    ASSERT_EQ(events->EnumConnections(connections.put()), S_OK);
    CONNECTDATA found{};
    ULONG count = 0;
    EXPECT_EQ(connections->Next(1, &found, &count), S_OK);
    EXPECT_EQ(found.dwCookie, cookie);
    auto const who = ComPtr<IUnknown>::adopt(found.pUnk);
    EXPECT_EQ(query<IUnknown>(who.get()).get(), sink->unknown());
    EXPECT_EQ(connections->Next(1, &found, &count), S_FALSE);
    EXPECT_EQ(events->EnumConnections(nullptr), E_POINTER);
    EXPECT_EQ(events->Unadvise(cookie), S_OK);
}

TEST_F(Points, letGoOfTheirSinksWithTheControl)
{
    ASSERT_EQ(point()->Advise(sink->unknown(), &cookie), S_OK);
    EXPECT_GT(sink->references(), 1U);
    container.reset();
    control.remove();
    EXPECT_EQ(sink->references(), 1U);
}

// Scripts make controls that no container ever shows.
TEST_F(Points, raiseTheEventsOfAControlThatNeverHadASite)
{
    kit::Listening const heard(control.object(), kQvFlatCommandEvents);
    repaint();
    EXPECT_EQ(heard->count(kPaint), 1);
    EXPECT_EQ(control.as<IOleObject>()->SetClientSite(nullptr), S_OK);
    repaint();
    EXPECT_EQ(heard->count(kPaint), 2) << "a site that was never there cannot go";
}

/// Events to several sinks of which one misbehaves.
class Sinks : public SurfaceTest {
protected:
    ComPtr<kit::EventRecorder> first = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    ComPtr<kit::EventRecorder> second = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    kit::Connection firstJoined{control.object(), kQvFlatCommandEvents, first->unknown()};
    kit::Connection secondJoined{control.object(), kQvFlatCommandEvents, second->unknown()};

    void SetUp() override
    {
        SurfaceTest::SetUp();
        control.start();
        first->forget();
        second->forget();
    }
    void TearDown() override
    {
        first->action = nullptr;
        second->action = nullptr;
        SurfaceTest::TearDown();
    }
    void leaveAndRemove()
    {
        firstJoined.cut();
        secondJoined.cut();
        control.remove();
    }
    /// Runs once, inside the first event of the first sink.
    void inEvent(std::function<void()> action)
    {
        first->action = [this, action](kit::EventRecorder::Event const&) {
            first->action = nullptr;
            action();
        };
    }
};

TEST_F(Sinks, failingDoNotKeepTheEventFromTheOthersNorFailTheCall)
{
    first->answer = E_UNEXPECTED;
    repaint();
    EXPECT_EQ(second->count(kPaint), 1);
}

TEST_F(Sinks, mayLeaveInsideAnEvent)
{
    inEvent([this] { firstJoined.cut(); });
    repaint();
    EXPECT_EQ(second->count(kPaint), 1);
    repaint();
    EXPECT_EQ(first->count(kPaint), 1);
    EXPECT_EQ(second->count(kPaint), 2);
}

TEST_F(Sinks, maySendEachOtherAwayInsideAnEvent)
{
    inEvent([this] { secondJoined.cut(); });
    repaint();
    second->forget();
    repaint();
    EXPECT_EQ(second->count(kPaint), 0);
    EXPECT_EQ(first->count(kPaint), 2);
}

TEST_F(Sinks, mayJoinInsideAnEvent)
{
    auto const late = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    std::optional<kit::Connection> joined;
    inEvent([&] { joined.emplace(control.object(), kQvFlatCommandEvents, late->unknown()); });
    repaint();
    late->forget();
    repaint();
    EXPECT_EQ(late->count(kPaint), 1);
}

TEST_F(Sinks, mayDeactivateTheControlInsideAnEvent)
{
    inEvent([this] { control.as<IOleInPlaceObject>()->InPlaceDeactivate(); });
    repaint();
    EXPECT_FALSE(isShown());
    EXPECT_EQ(second->count(kPaint), 1);
}

TEST_F(Sinks, mayCloseTheControlInsideAnEvent)
{
    inEvent([this] {
        control.ask(&IOleObject::Close, OLECLOSE_NOSAVE);
        control.ask(&IOleObject::SetClientSite, nullptr);
    });
    repaint();
    EXPECT_FALSE(isShown());
}

TEST_F(Sinks, hearNothingOfAControlThatOneOfThemClosed)
{
    inEvent([this] { control.as<IOleObject>()->Close(OLECLOSE_NOSAVE); });
    repaint();
    EXPECT_EQ(first->count(kPaint), 1);
    EXPECT_EQ(second->count(kPaint), 0);
}

TEST_F(Sinks, hearNothingOfAClosedControlUntilItIsActivatedAgain)
{
    EXPECT_EQ(control.as<IOleObject>()->Close(OLECLOSE_NOSAVE), S_OK);
    first->forget();
    repaint();
    EXPECT_EQ(kit::invoke(*as<IDispatch>().get(), DISPID_DOCLICK, DISPATCH_METHOD).result, S_OK);
    EXPECT_THAT(first->ids(), testing::IsEmpty());
    EXPECT_EQ(control.activate(), S_OK);
    first->forget();
    repaint();
    EXPECT_EQ(first->count(kPaint), 1);
}

TEST_F(Sinks, hearNothingOfAControlWithoutItsSiteUntilItHasOne)
{
    EXPECT_EQ(control.as<IOleObject>()->SetClientSite(nullptr), S_OK);
    first->forget();
    repaint();
    EXPECT_THAT(first->ids(), testing::IsEmpty());
    EXPECT_EQ(control.setSite(), S_OK);
    repaint();
    EXPECT_EQ(first->count(kPaint), 1);
}

TEST_F(Sinks, mayReleaseTheControlInsideAnEventOfACallByTheHost)
{
    auto const called = button();
    inEvent([this] { leaveAndRemove(); });
    EXPECT_EQ(called->Refresh(), S_OK);
    EXPECT_FALSE(control.object());
}

// The last reference goes while the window paints itself: nobody but the control keeps it alive.
TEST_F(Sinks, mayReleaseTheControlInsideAnEventOfItsWindow)
{
    HWND const window = control.window();
    inEvent([this] { leaveAndRemove(); });
    ::InvalidateRect(window, nullptr, TRUE);
    ::UpdateWindow(window);
    EXPECT_FALSE(control.object()) << "the event did not come";
    EXPECT_FALSE(::IsWindow(window));
}

TEST_F(Sinks, mayDestroyTheControlsWindowInsideAnEvent)
{
    inEvent([this] { ::DestroyWindow(control.window()); });
    repaint();
    repaint();
    EXPECT_EQ(button()->put_Caption(Bstr(L"still here").get()), S_OK);
    EXPECT_TRUE(::IsWindow(ownWindow()));
}

TEST_F(Sinks, mayReleaseTheControlInsideAPropertyNotification)
{
    auto const changes = kit::make<kit::ChangeRecorder>();
    kit::Connection joined(control.object(), __uuidof(IPropertyNotifySink), changes->unknown());
    auto const called = button();
    changes->action = [&](DISPID) {
        changes->action = nullptr;
        joined.cut();
        leaveAndRemove();
    };
    EXPECT_EQ(called->put_Caption(Bstr(L"last").get()), S_OK);
    EXPECT_FALSE(control.object());
}

TEST_F(Sinks, mayAssignAPropertyInsideAPropertyNotification)
{
    auto const changes = kit::make<kit::ChangeRecorder>();
    kit::Connection const joined(control.object(), __uuidof(IPropertyNotifySink), changes->unknown());
    changes->action = [&](DISPID) {
        changes->action = nullptr;
        button()->put_CaptionIndent(9);
    };
    EXPECT_EQ(button()->put_Caption(Bstr(L"x").get()), S_OK);
    EXPECT_THAT(changes->take(), testing::UnorderedElementsAreArray({id::Caption, id::CaptionIndent}));
}

} // namespace
} // namespace quillet::hosting
