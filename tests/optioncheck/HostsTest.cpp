// In the system's own host, which offers nothing; by script's members alone; and in design mode.
#include "Box.h"
#include "kit/HostWindow.h"
#include "kit/UiThread.h"
#include "winsvc/ToolTips.h"

namespace quillet::box {
namespace {

/// A loaded control in an AtlAxWin window.
class AtlBox : public kit::Listener {
public:
    AtlBox(Kind const& kind, kit::Library const& library, HWND parent, RECT const& place = kPlace)
        : Listener(kit::kOptionCheckEvents), m_host(parent, place), m_object(library.create(kind.classId))
    {
        EXPECT_EQ(query<IPersistPropertyBag>(m_object.get())->Load(newBag().get(), nullptr), S_OK);
        EXPECT_EQ(m_host.attach(m_object.get()), S_OK);
        join(m_object.get(), kind.eventsId);
        kit::pumpPending();
    }
    ~AtlBox()
    {
        stopListening();
        m_host.destroy();
    }

    IDispatch& dispatch() const { return *query<IDispatch>(m_object.get()).get(); }
    long number(wchar_t const* name) const { return kit::getByName(dispatch(), name).value.toLong(); }
    long value() const { return number(L"Value"); }
    HWND inner() const { return static_cast<HWND>(LongToHandle(number(L"hwnd"))); }

private:
    kit::AtlHost m_host;
    ComPtr<IUnknown> m_object;
};

using InAtlAxWin = EachBoxTest;

TEST_P(InAtlAxWin, worksByMouseAndKeys)
{
    AtlBox box(kind(), library(), form.window());
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
    AtlBox box(kind(), library(), form.window());
    kit::Canvas const shown(box.inner());
    EXPECT_EQ(shown.width(), kPlace.right - kPlace.left);
    EXPECT_EQ(shown.height(), kPlace.bottom - kPlace.top);
}

TEST_P(InAtlAxWin, setsValuesWithoutAnExtender)
{
    AtlBox box(kind(), library(), form.window());
    AtlBox other(kind(), library(), form.window(), {20, 60, 140, 80});
    kit::putByName(box.dispatch(), L"Value", Variant::ofLong(1));
    kit::putByName(other.dispatch(), L"Value", Variant::ofLong(1));
    EXPECT_EQ(box.value(), 1); // a host that tells of no neighbours leaves each alone
    EXPECT_EQ(other.value(), 1);
    EXPECT_EQ(box.count("Click"), 1);
}

QV_EACH_BOX(InAtlAxWin);

class Odd : public EachBoxTest {
protected:
    Box box{kind(), library(), form};
};

TEST_P(Odd, hostWithoutAmbientsRuns)
{
    box.hosted().site().removeAmbient(DISPID_AMBIENT_USERMODE);
    box.start();
    box.enter();
    EXPECT_EQ(::GetCapture(), box.inner());
}

TEST_P(Odd, hostThatLoadsBeforeItGivesASiteGetsAWorkingControl)
{
    EXPECT_EQ(box.hosted().load(*newBag({{L"Value", Variant::ofLong(1)}}).get()), S_OK);
    EXPECT_EQ(box.hosted().setSite(), S_OK);
    EXPECT_EQ(box.hosted().activate(), S_OK);
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Odd, hostThatActivatesAgainKeepsTheInnerWindow)
{
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
    EXPECT_EQ(box.hosted().setSite(), S_OK);
    HWND const inner = box.hwnd();
    ::SendMessageW(inner, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
    ASSERT_EQ(::GetCapture(), inner);
    EXPECT_EQ(box.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_P(Odd, hostThatFreezesEventsHearsNone)
{
    box.start();
    box.as<IOleControl>()->FreezeEvents(TRUE);
    box.setValue(1);
    EXPECT_EQ(box.count("Click"), 0);
    box.as<IOleControl>()->FreezeEvents(FALSE);
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Odd, hostThatAggregatesGetsTheInterfaces)
{
    auto const outer = kit::make<kit::NamedObject>("Outer", form.sharedRecord());
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
    box.send(WM_MOUSEMOVE, {61, 10});
    EXPECT_EQ(box.count("MouseMove"), isOption() ? 1 : 0);
}

TEST_P(Design, realMovesTakeNoCaptureAndChangeNoLook)
{
    box.setColours(kFore, kHot);
    box.moveTo(kInside);
    kit::pumpPending();
    box.moveTo(kInsideToo);
    kit::pumpPending();
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_FALSE(box.captionHas(kHot));
    box.setColours(kFore, kFore);
    EXPECT_EQ(box.pixel(kInGlyph), kWhite);
}

/// A designer that lets the mouse through gets what a user gets; most keep it for themselves, or freeze
/// events.
TEST_P(Design, pressesAndKeysDoWhatTheyDoAtRunTime)
{
    box.moveTo(kInside);
    kit::pumpPending();
    EXPECT_THAT(box.pressAndLetGo(), testing::ElementsAreArray({"MouseDown", "MouseUp", "Click"}));
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(::GetCapture(), nullptr);
    Names order = box.during([] { kit::typeKey(VK_SPACE); }, "KeyUp");
    std::erase(order, "MouseMove"); // the system tells of the place when a press of space ends
    EXPECT_THAT(order, testing::ElementsAreArray({"KeyDown", "KeyPress", "KeyUp", "Click"}));
}

TEST_P(Design, theFocusOnlyPaints)
{
    kit::Canvas const before(box.inner());
    ::SetForegroundWindow(form.window());
    for (HWND const window : {box.inner(), box.outer()}) {
        ::SetFocus(form.window());
        ::SetFocus(window);
        EXPECT_TRUE(kit::pumpUntil([&] { return ::GetFocus() == box.inner(); }));
        kit::pumpPending();
        EXPECT_EQ(box.value(), 0);
        EXPECT_EQ(box.count("Click"), 0);
        EXPECT_NE(kit::differences(before, kit::Canvas(box.inner())), "") << "the focus is not shown";
    }
}

TEST_P(Design, theToolTipTextIsNotAskedFor)
{
    form.record().forget();
    box.send(WM_MOUSEMOVE, {61, 10});
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
