// A container in the manner of real ones: it subclasses the window that a control gave it, forgets that when
// it lets go of the control, and keeps references of its own for longer.
#include "HostileTest.h"
#include "kit/ByName.h"
#include "kit/FakeBag.h"
#include "kit/Hosted.h"
#include "kit/NotCopied.h"
#include "kit/Pump.h"
#include "kit/Sinks.h"

#include <map>

namespace quillet::hostile {
namespace {

constexpr RECT kLarger{20, 30, 160, 80};
constexpr POINT kOutside{300, 250};

class ForgetfulContainer : kit::NotCopied {
public:
    enum class Control { New, Loaded };

    /// Listens before there is a site, initialises or loads, gives a place before activation, shows,
    /// subclasses.
    ForgetfulContainer(kit::FakeForm& form, ControlKind const& kind, Control made = Control::New)
        : control(HostileTest::library(), kind.classId, form, kPlace), m_kind(kind),
          m_events(kit::make<kit::EventRecorder>(kind.eventsId)), m_kept(control.as<IDispatch>())
    {
        advise();
        if (made == Control::New)
            control.initNew();
        control.setSite();
        if (made == Control::Loaded) // and so watches its window itself
            control.load(*kit::make<kit::FakeBag>().get());
        show();
    }
    ~ForgetfulContainer()
    {
        m_events->action = nullptr;
        letGo();
        releaseEverything();
    }

    kit::Hosted control;

    kit::EventRecorder& events() noexcept { return *m_events.get(); }
    IDispatch& kept() const { return *m_kept.get(); }
    HWND window() const noexcept { return m_window; }
    /// The window inside the control's, or the control's own where there is none.
    HWND inputWindow() const noexcept { return m_input; }
    bool sawTheWindowsEnd() const { return !watched().contains(HandleToLong(m_window)); }
    static int lateMessages() { return s_late; }

    void show()
    {
        control.as<IOleInPlaceObject>()->SetObjectRects(&kPlace, &kPlace);
        control.activate();
        control.doVerb(OLEIVERB_SHOW);
        m_window = control.window();
        HWND const inner = ::GetWindow(m_window, GW_CHILD);
        m_input = inner ? inner : m_window;
        subclass();
        kit::pumpPending();
        m_events->forget();
    }
    void deactivate() const { control.ask(&IOleInPlaceObject::InPlaceDeactivate); }
    void close() const { control.ask(&IOleObject::Close, OLECLOSE_NOSAVE); }
    void takeSiteAway() const { control.ask(&IOleObject::SetClientSite, nullptr); }
    /// The window is believed to be gone, and is not restored. The events still have a listener.
    void letGo()
    {
        deactivate();
        control.ask(&IOleInPlaceObject::UIDeactivate);
        control.doVerb(OLEIVERB_HIDE);
        close();
        takeSiteAway();
        forget();
    }
    void forget()
    {
        if (auto const found = watched().find(HandleToLong(m_window)); found != watched().end())
            found->second.forgotten = true;
    }
    void releaseEverything()
    {
        control.form().frame().forgetActiveObject();
        control.release();
        m_kept.reset();
    }

private:
    /// A window of a control's, by the 32 bits of its handle that count.
    struct Watched {
        WNDPROC previous;
        bool forgotten;
    };
    static std::map<LONG, Watched>& watched()
    {
        static std::map<LONG, Watched> all;
        return all;
    }
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto const found = watched().find(HandleToLong(window));
        if (found == watched().end())
            return ::DefWindowProcA(window, message, wParam, lParam);
        Watched const known = found->second;
        if (known.forgotten)
            ++s_late;
        if (message == WM_NCDESTROY)
            watched().erase(found);
        return ::CallWindowProcA(known.previous, window, message, wParam, lParam);
    }
    void subclass()
    {
        s_late = 0;
        auto const previous =
            ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure));
        watched()[HandleToLong(m_window)] = {reinterpret_cast<WNDPROC>(previous), false};
    }
    /// For good: nothing is kept that could end the connection, or keep the control alive.
    void advise()
    {
        ComPtr<IConnectionPoint> point;
        auto const points = control.as<IConnectionPointContainer>();
        DWORD cookie = 0;
        if (SUCCEEDED(points->FindConnectionPoint(m_kind.eventsId, point.put())))
            point->Advise(m_events->unknown(), &cookie);
        EXPECT_NE(cookie, 0U);
    }

    inline static int s_late = 0;
    ControlKind const& m_kind;
    ComPtr<kit::EventRecorder> m_events;
    ComPtr<IDispatch> m_kept;
    HWND m_window = nullptr;
    HWND m_input = nullptr;
};

/// A way to have done with a control, or only to put it away.
struct Way {
    char const* name;
    void (*take)(ForgetfulContainer&);
};

constexpr Way kEnds[] = {
    {"Close", [](ForgetfulContainer& c) { c.close(); }},
    {"the site taken away", [](ForgetfulContainer& c) { c.takeSiteAway(); }},
    {"everything", [](ForgetfulContainer& c) { c.letGo(); }},
};

constexpr Way kLeaves[] = {
    {"deactivation", [](ForgetfulContainer& c) { c.deactivate(); }},
    {"the verb that hides", [](ForgetfulContainer& c) { c.control.doVerb(OLEIVERB_HIDE); }},
    {"its window hidden", [](ForgetfulContainer& c) { ::ShowWindow(c.window(), SW_HIDE); }},
    {"deactivation on a hidden form",
     [](ForgetfulContainer& c) {
         ::ShowWindow(::GetParent(c.window()), SW_HIDE);
         c.deactivate();
     }},
    {"Close", [](ForgetfulContainer& c) { c.close(); }},
    {"the site taken away", [](ForgetfulContainer& c) { c.takeSiteAway(); }},
    {"everything", [](ForgetfulContainer& c) { c.letGo(); }},
};

void moveCursorWithin(HWND window, POINT at)
{
    ::ClientToScreen(window, &at);
    ::SetCursorPos(at.x, at.y);
}

void send(ForgetfulContainer const& container, UINT message, WPARAM wParam, POINT at = kInside)
{
    ::SendMessageA(container.inputWindow(), message, wParam, MAKELPARAM(at.x, at.y));
}

void hover(ForgetfulContainer const& container)
{
    moveCursorWithin(container.window(), kInside);
    send(container, WM_MOUSEMOVE, 0);
}

/// Everything that raises an event, message by message. The windows may end within it.
void useEverything(ForgetfulContainer& container)
{
    constexpr std::pair<UINT, WPARAM> kSent[] = {
        {WM_MOUSEMOVE, 0},   {WM_LBUTTONDOWN, MK_LBUTTON}, {WM_LBUTTONUP, 0}, {WM_LBUTTONDBLCLK, MK_LBUTTON},
        {WM_LBUTTONUP, 0},   {WM_RBUTTONDOWN, MK_RBUTTON}, {WM_RBUTTONUP, 0}, {WM_KEYDOWN, VK_SPACE},
        {WM_CHAR, VK_SPACE}, {WM_KEYUP, VK_SPACE}};
    hover(container);
    for (auto const& [message, wParam] : kSent)
        send(container, message, wParam);
    ::RedrawWindow(container.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    container.control.ask(&IOleInPlaceObject::SetObjectRects, &kLarger, &kLarger);
    if (container.inputWindow() == container.window())
        moveCursorWithin(container.control.form().window(), kOutside);
    send(container, WM_MOUSEMOVE, 0, kOutside);
}

class HostileForgetful : public HostileControlTest {
protected:
    kit::FakeForm form;
};
QV_ALL_CONTROLS(HostileForgetful);

TEST_P(HostileForgetful, containerFindsTheWindowGoneHoweverItEndedTheControl)
{
    for (Way const& end : kEnds)
        for (bool const isParked : {false, true}) {
            ForgetfulContainer container(form, kind());
            if (isParked) {
                container.deactivate();
                EXPECT_TRUE(::IsWindow(container.window())) << "deactivation alone keeps it";
            }
            end.take(container);
            EXPECT_FALSE(::IsWindow(container.window())) << end.name << (isParked ? " of a parked one" : "");
            EXPECT_FALSE(::IsWindow(container.inputWindow())) << end.name;
            EXPECT_TRUE(container.sawTheWindowsEnd()) << end.name;
        }
}

TEST_P(HostileForgetful, containerSeesTheEndOfAWindowThatOnlyAReleaseEnds)
{
    for (bool const isParked : {false, true}) {
        ForgetfulContainer container(form, kind(), ForgetfulContainer::Control::Loaded);
        if (isParked)
            container.deactivate();
        container.releaseEverything();
        EXPECT_FALSE(::IsWindow(container.window()));
        EXPECT_TRUE(container.sawTheWindowsEnd()) << (isParked ? "a parked one" : "an active one");
    }
}

TEST_P(HostileForgetful, containerIsNotCalledByAWindowThatItForgot)
{
    ForgetfulContainer container(form, kind());
    container.letGo();
    for (wchar_t const* const name : {L"hwnd", L"Caption", L"BackColor"})
        EXPECT_EQ(kit::getByName(container.kept(), name).result, S_OK);
    EXPECT_EQ(kit::callByName(container.kept(), L"Refresh").result, S_OK);
    kit::putByName(container.kept(), L"Caption", Variant::ofString(L"&Late"));
    kit::putByName(container.kept(), L"Enabled", Variant::ofBool(false));
    container.control.doVerb(OLEIVERB_UIACTIVATE);
    hover(container);
    kit::pumpPending();
    container.releaseEverything();
    EXPECT_EQ(ForgetfulContainer::lateMessages(), 0);
}

TEST_P(HostileForgetful, containerCanGoOnWithWhatItKept)
{
    ForgetfulContainer container(form, kind());
    container.letGo();
    EXPECT_TRUE(FAILED(container.control.activate())) << "there is no site to be in";
    EXPECT_EQ(kit::callByName(container.kept(), L"Refresh").result, S_OK);
    EXPECT_EQ(kit::putByName(container.kept(), L"Caption", Variant::ofString(L"Later")).result, S_OK);
    EXPECT_EQ(kit::getByName(container.kept(), L"Caption").value.toString().view(), L"Later");
    auto const anew =
        static_cast<HWND>(LongToHandle(kit::getByName(container.kept(), L"hwnd").value.toLong()));
    EXPECT_TRUE(::IsWindow(anew));
    EXPECT_FALSE(::IsWindowVisible(anew));
    EXPECT_EQ(surfaceIn(form.window()), nullptr);

    EXPECT_EQ(container.control.setSite(), S_OK);
    EXPECT_EQ(container.control.activate(), S_OK);
    HWND const shown = surfaceIn(form.window());
    RECT place{};
    ::GetWindowRect(shown, &place);
    EXPECT_EQ(place.right - place.left, kPlace.right - kPlace.left);
    EXPECT_EQ(place.bottom - place.top, kPlace.bottom - kPlace.top);
    EXPECT_TRUE(::IsWindowVisible(shown));
    container.letGo();
    EXPECT_FALSE(::IsWindow(shown));
    EXPECT_FALSE(::IsWindow(anew));
}

TEST_P(HostileForgetful, containerThatPutsTheControlAwayHasTheMouseAtOnce)
{
    for (Way const& way : kLeaves)
        for (bool const isPressed : {false, true}) {
            ForgetfulContainer container(form, kind());
            ASSERT_TRUE(kit::pumpUntil([&] { // where the cursor is shows a little later
                hover(container);
                return ::GetCapture() == container.inputWindow();
            })) << way.name;
            if (isPressed)
                send(container, WM_LBUTTONDOWN, MK_LBUTTON);
            ::SetFocus(form.window());
            container.events().forget();
            way.take(container);
            EXPECT_EQ(::GetCapture(), nullptr) << way.name << (isPressed ? ", pressed" : "");
            moveCursorWithin(form.window(), kOutside);
            kit::pumpPending();
            EXPECT_THAT(container.events().ids(), testing::IsEmpty()) << way.name;
            ::ReleaseCapture();
            ::ShowWindow(form.window(), SW_SHOWNOACTIVATE);
        }
}

TEST_P(HostileForgetful, containerThatPutsTheControlAwayInAPressKeepsMouseAndFocus)
{
    constexpr UINT kPresses[] = {WM_LBUTTONDOWN, WM_KEYDOWN};
    for (Way const& way : kLeaves)
        for (UINT const press : kPresses) {
            ForgetfulContainer container(form, kind());
            ::SetFocus(container.inputWindow());
            container.events().forget();
            container.events().action = [&](kit::EventRecorder::Event const&) {
                container.events().action = nullptr;
                ::SetFocus(form.window());
                way.take(container);
            };
            send(container, press, press == WM_KEYDOWN ? VK_SPACE : MK_LBUTTON);
            if (container.events().action) {
                EXPECT_EQ(press, UINT{WM_KEYDOWN}) << "no event came";
                continue; // a command button tells nothing of a key that goes down
            }
            EXPECT_EQ(::GetCapture(), nullptr) << way.name << ' ' << press;
            EXPECT_NE(::GetFocus(), container.inputWindow()) << way.name << ' ' << press;
            ::ReleaseCapture();
            ::ShowWindow(form.window(), SW_SHOWNOACTIVATE);
        }
}

/// Every event by itself is the one in which the container has done with the control.
TEST_P(HostileForgetful, containerHearsNothingAfterTheEventInWhichItLetGo)
{
    size_t count = 0;
    {
        ForgetfulContainer container(form, kind());
        useEverything(container);
        count = container.events().events.size();
    }
    EXPECT_GT(count, 12U);
    constexpr Way kAll[] = {kEnds[0], kEnds[1], kEnds[2], {"every reference", [](ForgetfulContainer& c) {
                                                               c.letGo();
                                                               c.releaseEverything();
                                                           }}};
    for (Way const& end : kAll)
        for (size_t last = 1; last <= count; ++last) {
            ForgetfulContainer container(form, kind());
            size_t heard = 0;
            container.events().action = [&](kit::EventRecorder::Event const&) {
                if (container.events().events.size() != last)
                    return;
                end.take(container);
                heard = container.events().events.size(); // deactivation may have raised one more
            };
            useEverything(container);
            kit::pumpPending();
            if (heard == 0) // the cursor was seen a little later this time, and there was an event less
                continue;
            EXPECT_EQ(container.events().events.size(), heard)
                << end.name << " in event " << container.events().events[last - 1].id;
            EXPECT_FALSE(::IsWindow(container.window())) << end.name;
            EXPECT_EQ(::GetCapture(), nullptr);
        }
}

} // namespace
} // namespace quillet::hostile
