// Keyboard and focus: keys, their events, access keys, and who has the focus.
#include "Box.h"

#include <olectl.h>

namespace quillet::box {
namespace {

constexpr COLORREF kBack = RGB(240, 230, 140);

class Keys : public EachBoxTest {
protected:
    Box box{kind(), library(), form};
    UniqueWindow edit = kit::newEditBox(form.window(), {200, 30, 260, 50});

    Keys() { box.start(*newBag({{L"BackColor", Variant::ofLong(kBack)}}).get()); }

    void focusElsewhere() { EXPECT_TRUE(kit::focus(edit.get())); }
    /// Has the focus and that value; nothing has happened yet.
    void focus(long value = 0)
    {
        EXPECT_TRUE(kit::focus(box.inner()));
        EXPECT_EQ(box.setValue(value), S_OK);
        kit::pumpPending();
        box.events().forget();
    }
    Names typed(BYTE key)
    {
        return box.during([&] { kit::typeKey(key); }, "KeyUp");
    }
};

TEST_P(Keys, spaceClicks)
{
    focus();
    EXPECT_THAT(typed(VK_SPACE), ElementsAreArray({"KeyDown", "KeyPress", "KeyUp", "Click"}));
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Keys, spaceTurnsACheckBoxRoundAndLeavesAChosenOption)
{
    focus(1);
    typed(VK_SPACE);
    EXPECT_EQ(box.value(), isOption() ? 1 : 0);
}

TEST_P(Keys, otherKeysRaiseTheirEventsAlone)
{
    focus();
    EXPECT_THAT(typed('A'), ElementsAreArray({"KeyDown", "KeyPress", "KeyUp"}));
    EXPECT_THAT(typed(VK_F2), ElementsAreArray({"KeyDown", "KeyUp"}));
    EXPECT_EQ(box.value(), 0);
}

TEST_P(Keys, tellTheirCodeAndTheirCharacter)
{
    focus();
    kit::typeKey('A');
    EXPECT_TRUE(kit::pumpUntil([&] { return box.count("KeyUp") > 0; }));
    auto const& events = box.events().events;
    ASSERT_EQ(events.size(), 3U);
    EXPECT_THAT(events[0].types, ElementsAreArray({VT_BYREF | VT_I2, VT_BYREF | VT_I2}));
    EXPECT_EQ(events[0].values[0].toLong(), 'A');
    EXPECT_EQ(events[0].values[1].toLong(), 0);
    EXPECT_THAT(events[1].types, ElementsAreArray({VT_BYREF | VT_I2}));
    EXPECT_EQ(events[1].values[0].toLong(), 'a');
    EXPECT_EQ(events[2].values[0].toLong(), 'A');
}

TEST_P(Keys, tellTheShiftState)
{
    focus();
    ::keybd_event(VK_CONTROL, 0, 0, 0);
    ::keybd_event(VK_SHIFT, 0, 0, 0);
    kit::typeKey(VK_F5);
    kit::pumpUntil([&] { return box.count("KeyUp") > 0; });
    ::keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
    ::keybd_event(VK_CONTROL, 0, KEYEVENTF_KEYUP, 0);
    kit::pumpUntil([&] { return box.count("KeyUp") > 2; });
    bool told = false;
    for (auto const& event : box.events().events)
        if (nameOfEvent(event.id) == "KeyDown" && event.values[0].toLong() == VK_F5) {
            told = true;
            EXPECT_EQ(event.values[1].toLong(), 3);
        }
    EXPECT_TRUE(told);
}

/// A sink sets the key to 0, as hosts do to keep it from the control.
TEST_P(Keys, usedUpByASinkDoNothing)
{
    focus();
    class Eater final : public kit::Counterpart<IDispatch> {
    public:
        STDMETHODIMP GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
        STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
        STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
        STDMETHODIMP Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*,
                            UINT*) override
        {
            if (nameOfEvent(id) == "KeyDown" || nameOfEvent(id) == "KeyUp")
                *arguments->rgvarg[1].piVal = 0;
            return S_OK;
        }
    };
    auto const eater = kit::make<Eater>();
    {
        kit::Connection const connection(box.hosted().object(), kind().eventsId, eater->unknown());
        typed(VK_SPACE);
        EXPECT_EQ(box.value(), 0);
    }
    typed(VK_SPACE);
    EXPECT_EQ(box.value(), 1);
}

TEST_P(Keys, reachNoDisabledBox)
{
    focus();
    box.disable();
    EXPECT_NE(::GetFocus(), box.inner());
    box.events().forget();
    kit::typeKey(VK_SPACE);
    kit::pumpPending();
    EXPECT_THAT(box.happened(), IsEmpty());
}

TEST_P(Keys, focusOnTheControlIsPassedOnToTheInnerButton)
{
    focusElsewhere();
    ::SetFocus(box.outer());
    EXPECT_EQ(::GetFocus(), box.inner());
    focusElsewhere();
    EXPECT_EQ(box.hosted().doVerb(OLEIVERB_UIACTIVATE), S_OK);
    EXPECT_EQ(::GetFocus(), box.inner());
}

TEST_P(Keys, focusIsToldToTheContainerOnceEachWay)
{
    focusElsewhere();
    form.record().forget();
    ::SetFocus(box.outer());
    EXPECT_EQ(form.record().count("Site.OnUIActivate"), 1);
    EXPECT_EQ(form.record().count("Site.OnFocus(gained)"), 1);
    EXPECT_EQ(form.record().count("Site.OnFocus(lost)"), 0);
    focusElsewhere();
    EXPECT_EQ(form.record().count("Site.OnFocus(lost)"), 1);
}

TEST_P(Keys, focusByAPressIsToldToTheContainer)
{
    form.record().forget();
    box.enter();
    box.press();
    EXPECT_EQ(form.record().count("Site.OnUIActivate"), 1);
    EXPECT_EQ(form.record().count("Site.OnFocus(gained)"), 1);
    box.letGo();
}

TEST_P(Keys, focusShowsTheFocusRectangleAndItsLossTakesItAway)
{
    focusElsewhere();
    auto const framed = [&] { // dots on the frame's left edge
        int dots = 0;
        for (int y = 0; y < 20; ++y)
            dots += box.pixel({16, y}) != kBack;
        return dots;
    };
    EXPECT_EQ(framed(), 0);
    EXPECT_TRUE(kit::focus(box.inner()));
    EXPECT_GT(framed(), 3);
    focusElsewhere();
    EXPECT_EQ(framed(), 0);
}

TEST_P(Keys, focusFromTheKeyboardChoosesAnOptionAndNoCheckBox)
{
    focusElsewhere();
    box.events().forget();
    ::SetFocus(box.outer());
    EXPECT_EQ(box.value(), isOption() ? 1 : 0);
    EXPECT_EQ(box.count("Click"), isOption() ? 1 : 0);
    focusElsewhere();
    ::SetFocus(box.outer());
    EXPECT_EQ(box.count("Click"), isOption() ? 1 : 0); // the chosen one just gets the focus
}

TEST_P(Keys, accessKeyOfTheCaptionIsTheControls)
{
    box.put(L"Caption", L"Fish && &Chips");
    auto const keys = kit::accessKeys(box.hosted().object());
    ASSERT_EQ(keys.size(), 2U);
    EXPECT_EQ(keys[0].second, L'c');
    EXPECT_EQ(keys[1].second, L'C');
    box.put(L"Caption", L"None && nobody");
    EXPECT_THAT(kit::accessKeys(box.hosted().object()), IsEmpty());
}

TEST_P(Keys, accessKeyGivesTheFocusAndClicksOnce)
{
    box.put(L"Caption", L"&Yes");
    focusElsewhere();
    box.events().forget();
    EXPECT_EQ(kit::pressAccessKey(box.hosted().object(), L'y'), S_OK);
    EXPECT_EQ(::GetFocus(), box.inner());
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(box.count("Click"), 1);
}

TEST_P(Keys, containersClickIsAUsersClick)
{
    EXPECT_EQ(kit::invoke(box.dispatch(), DISPID_DOCLICK, DISPATCH_METHOD).result, S_OK);
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(box.count("Click"), 1);
}

TEST_P(Keys, tabAndArrowsAreOfferedToTheContainer)
{
    focus();
    for (WPARAM const key : {VK_TAB, VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_RETURN, VK_ESCAPE}) {
        form.record().forget();
        MSG message = {};
        message.hwnd = box.inner();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        EXPECT_EQ(box.as<IOleInPlaceActiveObject>()->TranslateAccelerator(&message), S_FALSE);
        EXPECT_EQ(form.record().countFrom("Site.TranslateAccelerator"), 1) << key;
    }
}

QV_EACH_BOX(Keys);

} // namespace
} // namespace quillet::box
