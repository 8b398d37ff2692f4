// In the system's own host, which offers nothing; by script's members alone; and in design mode.
#include "Box.h"
#include "kit/Canvas.h"
#include "kit/HostWindow.h"
#include "kit/UiThread.h"
#include "winsvc/ToolTips.h"

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
    ASSERT_TRUE(kit::focus(form.window())); // or keys go to no program at all
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

/// A forged press reaches a window that was asked for and never shown.
TEST_P(Odd, hostThatDeactivatesWhatIsNotActiveGetsTheMouseBack)
{
    Box box(kind(), library(), form);
    EXPECT_EQ(box.hosted().setSite(), S_OK);
    HWND const inner = box.hwnd();
    ::SendMessageW(inner, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ASSERT_EQ(::GetCapture(), inner);
    EXPECT_EQ(box.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(::GetCapture(), nullptr);
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

class Design : public EachBoxTest {
protected:
    Design() : box(kind(), library(), form, kPlace, L"Box1", Mode::Design) { box.start(); }

    Box box;
};

TEST_P(Design, movingRaisesMouseMoveOnceForAnOptionAndNeverForACheckBox)
{
    box.events().forget();
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(61, 10));
    EXPECT_EQ(box.count("MouseMove"), isOption() ? 1 : 0);
}

TEST_P(Design, realMovesTakeNoCaptureAndChangeNoLook)
{
    COLORREF const hot = RGB(255, 0, 0);
    box.setColours(RGB(0, 0, 1), hot);
    box.moveTo(kInside);
    kit::pumpPending();
    box.moveTo(kInsideToo);
    kit::pumpPending();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(box.captionHas(hot));
    box.setColours(RGB(0, 0, 1), RGB(0, 0, 1));
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
}

/// A designer that lets the mouse through gets what a user gets; most keep it for themselves, or freeze
/// events.
TEST_P(Design, pressesAndKeysDoWhatTheyDoAtRunTime)
{
    box.moveTo(kInside);
    kit::pumpPending();
    Names order = box.press();
    for (std::string const& name : box.letGo())
        order.push_back(name);
    std::erase(order, "MouseMove");
    EXPECT_THAT(order, testing::ElementsAre("MouseDown", "MouseUp", "Click"));
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::GetCapture(), nullptr);
    order = box.during([] { kit::typeKey(VK_SPACE); }, "KeyUp");
    std::erase(order, "MouseMove"); // the system tells of the place when a press of space ends
    EXPECT_THAT(order, testing::ElementsAre("KeyDown", "KeyPress", "KeyUp", "Click"));
}

TEST_P(Design, theFocusOnlyPaints)
{
    kit::Canvas before(120, 20);
    kit::readWindow(box.inner(), before);
    ::SetForegroundWindow(form.window());
    for (HWND const window : {box.inner(), box.outer()}) {
        ::SetFocus(form.window());
        ::SetFocus(window);
        EXPECT_TRUE(kit::pumpUntil([&] { return ::GetFocus() == box.inner(); }));
        kit::pumpPending();
        EXPECT_EQ(box.value(), 0);
        EXPECT_EQ(box.count("Click"), 0);
        kit::Canvas focused(120, 20);
        kit::readWindow(box.inner(), focused);
        EXPECT_NE(kit::differences(before, focused), "") << "the focus is not shown";
    }
}

TEST_P(Design, theToolTipTextIsNotAskedFor)
{
    form.record().forget();
    ::SendMessageW(box.inner(), WM_MOUSEMOVE, 0, MAKELPARAM(61, 10));
    EXPECT_EQ(form.record().count("Extender.ToolTipText"), 0);
}

TEST_P(Design, theInnerWindowIsNotSubclassed)
{
    EXPECT_EQ(::GetWindowLongPtrA(box.inner(), GWLP_USERDATA), 0);
}

TEST_P(Design, makesNoToolTipWindow)
{
    kit::onNewThread([this] {
        kit::FakeForm own;
        Box designed(kind(), library(), own, kPlace, L"Box2", Mode::Design);
        designed.start();
        EXPECT_TRUE(winsvc::toolTipWindows().empty());
    });
}

QV_EACH_BOX(Design);

} // namespace
} // namespace quillet::box
