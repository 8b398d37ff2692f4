// What screen readers and test tools see of every control, asked for as they ask: from its window.
#include "SurfaceTest.h"
#include "kit/ByName.h"
#include "kit/Controls.h"
#include "kit/Input.h"
#include "kit/NotCopied.h"
#include "kit/Pump.h"

#include <oleacc.h>

#include <vector>

namespace quillet::hosting {
namespace {

struct Kind : kit::ControlKind {
    LONG role;
    wchar_t const* action; ///< of a control that is not checked
};

VARIANT self() { return Variant::ofLong(CHILDID_SELF).get(); }

/// What changed, as somebody who listens to the whole desktop hears it.
class Listener : kit::NotCopied {
public:
    explicit Listener(HWND window)
        : m_hook(::SetWinEventHook(EVENT_OBJECT_STATECHANGE, EVENT_OBJECT_NAMECHANGE, nullptr, &heard,
                                   ::GetCurrentProcessId(), 0, WINEVENT_OUTOFCONTEXT))
    {
        s_window = window;
        s_events.clear();
    }
    ~Listener() { ::UnhookWinEvent(m_hook); }

    bool hears(DWORD event)
    {
        return kit::pumpUntil([&] { return std::erase(s_events, event) > 0; });
    }

private:
    static void CALLBACK heard(HWINEVENTHOOK, DWORD event, HWND window, LONG object, LONG child, DWORD, DWORD)
    {
        if (window == s_window && object == OBJID_CLIENT && child == CHILDID_SELF)
            s_events.push_back(event);
    }

    HWINEVENTHOOK m_hook;
    inline static HWND s_window;
    inline static std::vector<DWORD> s_events;
};

class Accessible : public kit::ControlTest, public testing::WithParamInterface<Kind> {
protected:
    kit::FakeForm form;
    kit::Hosted control{library(), GetParam().classId, form, kPlace};

    void SetUp() override
    {
        ControlTest::SetUp();
        control.start();
        kit::moveCursorAway();
        put(L"Caption", Variant::ofString(L"Save &as"));
        kit::pumpPending();
    }
    HRESULT act() const { return object()->accDoDefaultAction(self()); }
    LONG role() const
    {
        Variant role;
        EXPECT_EQ(object()->get_accRole(self(), role.put()), S_OK);
        return role.toLong();
    }
    void put(wchar_t const* name, Variant const& value) const
    {
        ASSERT_EQ(kit::putByName(*control.as<IDispatch>().get(), name, value).result, S_OK) << name;
    }
    /// The window that the user points at and that has the keyboard: an option's is inside the control's.
    HWND window() const
    {
        auto const answered = kit::getByName(*control.as<IDispatch>().get(), L"hwnd");
        return static_cast<HWND>(LongToHandle(answered.value.toLong()));
    }
    ComPtr<IAccessible> object() const
    {
        ComPtr<IAccessible> found;
        EXPECT_EQ(::AccessibleObjectFromWindow(window(), static_cast<DWORD>(OBJID_CLIENT),
                                               __uuidof(IAccessible), reinterpret_cast<void**>(found.put())),
                  S_OK);
        return found;
    }

    using Text = HRESULT (STDMETHODCALLTYPE IAccessible::*)(VARIANT, BSTR*);
    std::wstring text(Text get, HRESULT expected = S_OK) const
    {
        Bstr text;
        EXPECT_EQ((object().get()->*get)(self(), text.put()), expected);
        return std::wstring(text.view());
    }
    LONG state() const
    {
        Variant state;
        EXPECT_EQ(object()->get_accState(self(), state.put()), S_OK);
        EXPECT_EQ(state.type(), VT_I4);
        return state.get().lVal;
    }
    bool is(LONG flag) const { return (state() & flag) == flag; }
    bool isOption() const { return GetParam().classId == kQvFlatOptionClass; }
    bool isCheck() const { return GetParam().classId == kQvFlatCheckClass; }
    bool isImage() const
    {
        return GetParam().classId == kQvImageCommandClass || GetParam().classId == kFlatToolButtonClass;
    }
};

TEST_P(Accessible, isWhatItLooksLike)
{
    EXPECT_EQ(role(), GetParam().role);
    EXPECT_EQ(text(&IAccessible::get_accDefaultAction), GetParam().action);
    long children = -1;
    EXPECT_EQ(object()->get_accChildCount(&children), S_OK);
    EXPECT_EQ(children, 0);
}

TEST_P(Accessible, isCalledByItsCaptionWithoutTheMark)
{
    EXPECT_EQ(text(&IAccessible::get_accName), L"Save as");
    EXPECT_EQ(text(&IAccessible::get_accKeyboardShortcut), L"Alt+a");
    put(L"Caption", Variant::ofString(L"Plain"));
    EXPECT_EQ(text(&IAccessible::get_accName), L"Plain");
    EXPECT_EQ(text(&IAccessible::get_accKeyboardShortcut, S_FALSE), L"");
}

// An option's mark before another one is an escape; of a command button the first mark counts, whatever it
// is.
TEST_P(Accessible, isCalledAsItsCaptionReads)
{
    put(L"Caption", Variant::ofString(L"Salt && p&epper"));
    bool const escapes = isOption() || isCheck();
    EXPECT_EQ(text(&IAccessible::get_accName), escapes ? L"Salt & pepper" : L"Salt & p&epper");
    EXPECT_EQ(text(&IAccessible::get_accKeyboardShortcut), escapes ? L"Alt+e" : L"Alt+&");
}

TEST_P(Accessible, isDescribedByItsToolTipAndCalledByItWhereItHasNoCaption)
{
    EXPECT_EQ(text(&IAccessible::get_accDescription, S_FALSE), L"");
    control.site().extender().offer(L"ToolTipText", Variant::ofString(L"Under another name"));
    EXPECT_EQ(text(&IAccessible::get_accDescription), L"Under another name");
    EXPECT_EQ(text(&IAccessible::get_accName), L"Save as");
    put(L"Caption", Variant::ofString(L""));
    EXPECT_EQ(text(&IAccessible::get_accName), L"Under another name");
    EXPECT_EQ(text(&IAccessible::get_accDescription, S_FALSE), L"");
    control.site().extender().offer(L"ToolTipText", Variant::ofString(L""));
    EXPECT_EQ(text(&IAccessible::get_accName, S_FALSE), L"");
}

TEST_P(Accessible, tellsWhetherItHasTheFocusAndWhetherItCanHave)
{
    ASSERT_TRUE(kit::focus(form.window()));
    EXPECT_EQ(state(), STATE_SYSTEM_FOCUSABLE);
    Variant focused;
    EXPECT_EQ(object()->get_accFocus(focused.put()), S_FALSE);
    EXPECT_EQ(focused.type(), VT_EMPTY);
    EXPECT_EQ(object()->accSelect(SELFLAG_TAKEFOCUS, self()), S_OK);
    kit::pumpPending();
    EXPECT_EQ(::GetFocus(), window());
    EXPECT_TRUE(is(STATE_SYSTEM_FOCUSABLE | STATE_SYSTEM_FOCUSED));
    EXPECT_EQ(object()->get_accFocus(focused.put()), S_OK);
    EXPECT_EQ(focused.toLong(), CHILDID_SELF);
    put(L"Enabled", Variant::ofBool(false));
    EXPECT_TRUE(is(STATE_SYSTEM_UNAVAILABLE));
    EXPECT_FALSE(is(STATE_SYSTEM_FOCUSABLE));
    EXPECT_EQ(object()->accSelect(SELFLAG_TAKEFOCUS, self()), S_FALSE);
    EXPECT_EQ(object()->accSelect(SELFLAG_EXTENDSELECTION, self()), E_INVALIDARG);
}

TEST_P(Accessible, tellsWhetherItIsSeen)
{
    EXPECT_FALSE(is(STATE_SYSTEM_INVISIBLE));
    EXPECT_EQ(control.doVerb(OLEIVERB_HIDE), S_OK);
    EXPECT_TRUE(is(STATE_SYSTEM_INVISIBLE));
}

TEST_P(Accessible, tellsWhetherItIsPressedOrUnderTheMouse)
{
    if (isOption() || isCheck())
        return;
    ASSERT_TRUE(kit::moveCursorTo(window(), 10, 10));
    kit::pumpPending();
    EXPECT_TRUE(is(STATE_SYSTEM_HOTTRACKED));
    kit::press(kit::MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([&] { return is(STATE_SYSTEM_PRESSED); }));
    kit::release(kit::MouseButton::Left);
    EXPECT_TRUE(kit::pumpUntil([&] { return !is(STATE_SYSTEM_PRESSED); }));
    kit::moveCursorAway();
    EXPECT_TRUE(kit::pumpUntil([&] { return !is(STATE_SYSTEM_HOTTRACKED); }));
}

TEST_P(Accessible, tellsWhetherItIsTheDefaultButton)
{
    control.site().extender().offer(L"Default", Variant::ofBool(true));
    EXPECT_EQ(is(STATE_SYSTEM_DEFAULT), !isOption() && !isCheck());
}

TEST_P(Accessible, tellsWhetherItIsChecked)
{
    if (isImage()) {
        put(L"Checked", Variant::ofBool(true));
        EXPECT_FALSE(is(STATE_SYSTEM_CHECKED)) << "while it is no check button";
        put(L"CheckButton", Variant::ofBool(true));
        EXPECT_EQ(role(), ROLE_SYSTEM_CHECKBUTTON);
        EXPECT_TRUE(is(STATE_SYSTEM_CHECKED));
        put(L"Checked", Variant::ofBool(false));
        EXPECT_FALSE(is(STATE_SYSTEM_CHECKED));
    }
    if (!isOption() && !isCheck())
        return;
    EXPECT_FALSE(is(STATE_SYSTEM_CHECKED));
    put(L"Value", Variant::ofLong(1));
    EXPECT_TRUE(is(STATE_SYSTEM_CHECKED));
    EXPECT_EQ(text(&IAccessible::get_accDefaultAction), isCheck() ? L"Uncheck" : L"Check");
    if (isCheck()) {
        put(L"Value", Variant::ofLong(2));
        EXPECT_TRUE(is(STATE_SYSTEM_MIXED));
        EXPECT_FALSE(is(STATE_SYSTEM_CHECKED));
    }
}

TEST_P(Accessible, isClickedByItsAction)
{
    kit::Listening const events(control.object(), GetParam().eventsId);
    DISPID const click = isOption() || isCheck() ? 1 : kClick;
    EXPECT_EQ(act(), S_OK);
    EXPECT_EQ(events->count(click), 1);
    EXPECT_EQ(is(STATE_SYSTEM_CHECKED), isOption() || isCheck());
    put(L"Enabled", Variant::ofBool(false));
    EXPECT_EQ(act(), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(events->count(click), 1);
}

TEST_P(Accessible, turnsACheckButtonOverByItsActionAsTheMouseDoes)
{
    if (!isImage())
        return;
    kit::Listening const events(control.object(), GetParam().eventsId);
    put(L"CheckButton", Variant::ofBool(true));
    EXPECT_EQ(text(&IAccessible::get_accDefaultAction), L"Check");
    EXPECT_EQ(act(), S_OK);
    EXPECT_TRUE(is(STATE_SYSTEM_CHECKED));
    EXPECT_EQ(text(&IAccessible::get_accDefaultAction), L"Uncheck");
    EXPECT_EQ(events->count(kClick), 1);
    EXPECT_EQ(act(), S_OK);
    EXPECT_FALSE(is(STATE_SYSTEM_CHECKED));
    EXPECT_EQ(events->count(kClick), 2);
    put(L"Active", Variant::ofBool(false));
    EXPECT_EQ(act(), S_OK);
    EXPECT_FALSE(is(STATE_SYSTEM_CHECKED)) << "the mouse does nothing to it either";
    EXPECT_EQ(events->count(kClick), 2);
}

TEST_P(Accessible, knowsItsPlaceOnTheScreenAndItsWindow)
{
    RECT place{};
    ::GetWindowRect(window(), &place);
    long left = 0, top = 0, width = 0, height = 0;
    EXPECT_EQ(object()->accLocation(&left, &top, &width, &height, self()), S_OK);
    EXPECT_EQ((RECT{left, top, left + width, top + height}), place);
    Variant hit;
    EXPECT_EQ(object()->accHitTest(place.right - 1, place.bottom - 1, hit.put()), S_OK);
    EXPECT_EQ(hit.toLong(), CHILDID_SELF);
    EXPECT_EQ(object()->accHitTest(place.right, place.top, hit.put()), S_FALSE);
    EXPECT_EQ(hit.type(), VT_EMPTY);
    HWND found = nullptr;
    EXPECT_EQ(::WindowFromAccessibleObject(object().get(), &found), S_OK);
    EXPECT_EQ(found, window());
    ComPtr<IDispatch> parent;
    EXPECT_EQ(object()->get_accParent(parent.put()), S_OK);
    found = nullptr;
    EXPECT_EQ(::WindowFromAccessibleObject(parent.as<IAccessible>().get(), &found), S_OK);
    EXPECT_EQ(found, window());
}

TEST_P(Accessible, canBeUsedByName)
{
    auto const dispatch = object().as<IDispatch>();
    ASSERT_TRUE(dispatch);
    auto const name =
        kit::invoke(*dispatch.get(), DISPID_ACC_NAME, DISPATCH_PROPERTYGET, {Variant::ofLong(CHILDID_SELF)});
    EXPECT_EQ(name.result, S_OK);
    EXPECT_EQ(name.value.toString().view(), L"Save as");
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"accRole"), DISPID_ACC_ROLE);
}

TEST_P(Accessible, refusesChildrenAndWhatButtonsDoNotHave)
{
    VARIANT const child = Variant::ofLong(1).get();
    VARIANT const odd = Variant::ofShort(0).get();
    Bstr text;
    Variant value;
    EXPECT_EQ(object()->get_accName(child, text.put()), E_INVALIDARG);
    EXPECT_EQ(object()->get_accState(odd, value.put()), E_INVALIDARG);
    EXPECT_EQ(object()->accDoDefaultAction(child), E_INVALIDARG);
    EXPECT_EQ(object()->get_accName(self(), nullptr), E_POINTER);
    EXPECT_EQ(object()->get_accRole(self(), nullptr), E_POINTER);
    EXPECT_EQ(object()->accLocation(nullptr, nullptr, nullptr, nullptr, self()), E_POINTER);
    EXPECT_EQ(object()->get_accValue(self(), text.put()), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object()->get_accHelp(self(), text.put()), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object()->put_accName(self(), nullptr), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(object()->accNavigate(NAVDIR_FIRSTCHILD, self(), value.put()), S_FALSE);
    EXPECT_EQ(object()->get_accSelection(value.put()), S_FALSE);
}

TEST_P(Accessible, leavesEverythingElseThatIsAskedToTheSystem)
{
    auto const answered = [](HWND window, LONG what) {
        return ::SendMessageA(window, WM_GETOBJECT, 0, static_cast<LPARAM>(what));
    };
    constexpr LONG kAutomationRoot = -25;
    for (LONG const what : {OBJID_WINDOW, OBJID_CARET, OBJID_CURSOR, kAutomationRoot, LONG{17}})
        EXPECT_EQ(answered(window(), what), 0) << what;
    // The window round an option or a check box is a plain one, so that it is not found twice.
    HWND const own = control.window();
    EXPECT_EQ(own != window(), isOption() || isCheck());
    if (own != window()) {
        EXPECT_EQ(answered(own, OBJID_CLIENT), 0);
    }
}

TEST_P(Accessible, outlivesItsControlAndSaysSo)
{
    auto const kept = object();
    control.remove();
    Bstr name;
    long children = 0;
    EXPECT_EQ(kept->get_accName(self(), name.put()), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(kept->get_accChildCount(&children), CO_E_OBJNOTCONNECTED);
    EXPECT_EQ(kept->accDoDefaultAction(self()), CO_E_OBJNOTCONNECTED);
    HWND found = nullptr;
    EXPECT_EQ(kept.as<IOleWindow>()->GetWindow(&found), CO_E_OBJNOTCONNECTED);
}

TEST_P(Accessible, tellsTheDesktopWhenNameOrStateChange)
{
    Listener listener(window());
    put(L"Caption", Variant::ofString(L"Other"));
    EXPECT_TRUE(listener.hears(EVENT_OBJECT_NAMECHANGE));
    put(L"Enabled", Variant::ofBool(false));
    EXPECT_TRUE(listener.hears(EVENT_OBJECT_STATECHANGE));
    put(L"Enabled", Variant::ofBool(true));
    EXPECT_TRUE(listener.hears(EVENT_OBJECT_STATECHANGE));
    ASSERT_TRUE(kit::moveCursorTo(window(), 10, 10));
    kit::press(kit::MouseButton::Left);
    kit::release(kit::MouseButton::Left);
    EXPECT_TRUE(listener.hears(EVENT_OBJECT_STATECHANGE)) << "a click";
    kit::moveCursorAway();
    kit::pumpPending();
}

INSTANTIATE_TEST_SUITE_P(Of, Accessible,
                         testing::Values(Kind{kit::kControls[0], ROLE_SYSTEM_PUSHBUTTON, L"Press"},
                                         Kind{kit::kControls[1], ROLE_SYSTEM_PUSHBUTTON, L"Press"},
                                         Kind{kit::kControls[2], ROLE_SYSTEM_PUSHBUTTON, L"Press"},
                                         Kind{kit::kControls[3], ROLE_SYSTEM_RADIOBUTTON, L"Check"},
                                         Kind{kit::kControls[4], ROLE_SYSTEM_CHECKBUTTON, L"Check"}),
                         [](auto const& kind) { return std::string(kind.param.name); });

} // namespace
} // namespace quillet::hosting
