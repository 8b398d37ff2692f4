// In the system's own host, which offers no extender, no container and no ambient properties; and by script's
// means.
#include "Box.h"
#include "kit/AtlHost.h"
#include "kit/HostWindow.h"

namespace quillet::box {
namespace {

/// A loaded control in an AtlAxWin window.
class AtlBox {
public:
    AtlBox(Kind const& kind, kit::Library const& library, HWND parent, RECT const& place)
        : m_host(parent, place), m_object(library.create(kind.classId)),
          m_events(kit::make<kit::EventRecorder>(kind.eventsId))
    {
        EXPECT_EQ(query<IPersistPropertyBag>(m_object.get())->Load(newBag().get(), nullptr), S_OK);
        EXPECT_EQ(m_host.attach(m_object.get()), S_OK);
        m_connection.emplace(m_object.get(), kind.eventsId, m_events->unknown());
        kit::pumpPending();
    }
    ~AtlBox()
    {
        m_connection.reset();
        m_host.destroy();
    }
    AtlBox(AtlBox const&) = delete;
    AtlBox& operator=(AtlBox const&) = delete;

    IDispatch& dispatch() const { return *query<IDispatch>(m_object.get()).get(); }
    long value() const { return kit::getByName(dispatch(), L"Value").value.toLong(); }
    HWND inner() const
    {
        return static_cast<HWND>(LongToHandle(kit::getByName(dispatch(), L"hwnd").value.toLong()));
    }
    int count(char const* event) const
    {
        int found = 0;
        for (DISPID const id : m_events->ids())
            found += nameOfEvent(id) == event;
        return found;
    }

private:
    kit::AtlHost m_host;
    ComPtr<IUnknown> m_object;
    ComPtr<kit::EventRecorder> m_events;
    std::optional<kit::Connection> m_connection;
};

using InAtlAxWin = EachBoxTest;

TEST_P(InAtlAxWin, worksByMouseAndKeys)
{
    AtlBox box(kind(), library(), form.window(), kPlace);
    ASSERT_TRUE(kit::moveCursorTo(box.inner(), kInside.x, kInside.y));
    ASSERT_TRUE(kit::pumpUntil([&] { return box.count("MouseMove") > 0; }));
    EXPECT_EQ(::GetCapture(), box.inner());
    kit::press(kit::MouseButton::Left);
    kit::release(kit::MouseButton::Left);
    ASSERT_TRUE(kit::pumpUntil([&] { return box.count("Click") > 0; }));
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::GetFocus(), box.inner());
    kit::typeKey(VK_SPACE);
    ASSERT_TRUE(kit::pumpUntil([&] { return box.count("KeyUp") > 0 && box.count("Click") > 1; }));
    EXPECT_EQ(box.value(), isOption() ? 1 : 0);
}

TEST_P(InAtlAxWin, coversItsPlace)
{
    AtlBox box(kind(), library(), form.window(), kPlace);
    RECT client;
    ::GetClientRect(box.inner(), &client);
    EXPECT_EQ(client.right, kPlace.right - kPlace.left);
    EXPECT_EQ(client.bottom, kPlace.bottom - kPlace.top);
}

TEST_P(InAtlAxWin, setsValuesWithoutAnExtender)
{
    AtlBox box(kind(), library(), form.window(), kPlace);
    AtlBox other(kind(), library(), form.window(), {20, 60, 140, 80});
    kit::putByName(box.dispatch(), L"Value", Variant::ofLong(1));
    kit::putByName(other.dispatch(), L"Value", Variant::ofLong(1));
    EXPECT_EQ(box.value(), 1); // a host that tells of no neighbours leaves each alone
    EXPECT_EQ(other.value(), 1);
    EXPECT_EQ(box.count("Click"), 1);
}

QV_EACH_BOX(InAtlAxWin);

using Odd = EachBoxTest;

TEST_P(Odd, hostWithoutAmbientsRuns)
{
    Box box(kind(), library(), form);
    box.hosted().site().removeAmbient(DISPID_AMBIENT_USERMODE);
    box.start();
    box.enter();
    EXPECT_EQ(::GetCapture(), box.inner());
}

TEST_P(Odd, hostThatLoadsBeforeItGivesASiteGetsAWorkingControl)
{
    Box box(kind(), library(), form);
    auto const bag = newBag();
    bag->put(L"Value", Variant::ofLong(1));
    EXPECT_EQ(box.hosted().load(*bag.get()), S_OK);
    EXPECT_EQ(box.hosted().setSite(), S_OK);
    EXPECT_EQ(box.hosted().activate(), S_OK);
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Odd, hostThatActivatesAgainKeepsTheInnerWindow)
{
    Box box(kind(), library(), form);
    box.start();
    box.as<IOleInPlaceObject>()->InPlaceDeactivate();
    EXPECT_FALSE(::IsWindowVisible(box.inner()));
    box.hosted().activate();
    EXPECT_TRUE(::IsWindowVisible(box.inner()));
    EXPECT_EQ(box.hwnd(), box.inner());
}

TEST_P(Odd, hostThatFreezesEventsHearsNone)
{
    Box box(kind(), library(), form);
    box.start();
    box.as<IOleControl>()->FreezeEvents(TRUE);
    box.setValue(1);
    EXPECT_EQ(box.count("Click"), 0);
    box.as<IOleControl>()->FreezeEvents(FALSE);
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Odd, hostThatAggregatesGetsTheInterfaces)
{
    class Outer final : public kit::Counterpart<IDispatch> {
    public:
        STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
        STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
        STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
        STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
        {
            return E_NOTIMPL;
        }
    };
    auto const outer = kit::make<Outer>();
    ComPtr<IUnknown> inside;
    auto const factory = library().factory(kind().classId);
    ASSERT_EQ(factory->CreateInstance(outer->unknown(), IID_IUnknown, reinterpret_cast<void**>(inside.put())),
              S_OK);
    EXPECT_TRUE(inside.as<IOleObject>());
}

QV_EACH_BOX(Odd);

} // namespace
} // namespace quillet::box
