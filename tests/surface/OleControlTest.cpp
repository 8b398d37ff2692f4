// IOleControl: accelerators, ambient properties, frozen events; keys and mnemonics as a container hands them
// over.
#include "SurfaceTest.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"

namespace quillet::hosting {
namespace {

class OleControlFace : public SurfaceTest {
protected:
    ComPtr<IOleControl> face = as<IOleControl>();
    kit::Listening events{control.object(), kQvFlatCommandEvents};

    void SetUp() override
    {
        SurfaceTest::SetUp();
        ASSERT_TRUE(face);
        control.start();
        events->forget();
    }
    void freeze(std::initializer_list<BOOL> calls) const
    {
        for (BOOL const freezes : calls)
            EXPECT_EQ(face->FreezeEvents(freezes), S_OK);
    }
    int paintsOfARepaint()
    {
        events->forget();
        repaint();
        return events->count(kPaint);
    }
};

TEST_F(OleControlFace, refusesNowhereToPutItsAccelerators)
{
    EXPECT_TRUE(FAILED(face->GetControlInfo(nullptr)));
}

TEST_F(OleControlFace, handsOutTheSameAcceleratorsToWhoeverAsks)
{
    EXPECT_EQ(button()->put_Caption(Bstr(L"&Same").get()), S_OK);
    CONTROLINFO first{};
    CONTROLINFO second{};
    first.cb = second.cb = sizeof first;
    EXPECT_EQ(face->GetControlInfo(&first), S_OK);
    EXPECT_EQ(face->GetControlInfo(&second), S_OK);
    EXPECT_NE(first.hAccel, nullptr);
    EXPECT_EQ(first.cAccel, second.cAccel);
    EXPECT_EQ(first.hAccel, second.hAccel) << "the control owns the table, nobody frees a copy";
}

TEST_F(OleControlFace, frozenTwiceIsThawedOnce)
{
    freeze({TRUE, TRUE, FALSE});
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, thawedWithoutHavingBeenFrozenStillFreezes)
{
    freeze({FALSE, FALSE});
    EXPECT_EQ(paintsOfARepaint(), 1);
    freeze({TRUE});
    EXPECT_EQ(paintsOfARepaint(), 0);
    freeze({FALSE});
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, hearsOfAmbientPropertiesOfAnyKind)
{
    for (DISPID const id :
         {DISPID_UNKNOWN, DISPID_AMBIENT_BACKCOLOR, DISPID_AMBIENT_FONT, DISPID_AMBIENT_UIDEAD,
          DISPID_AMBIENT_DISPLAYASDEFAULT, DISPID_AMBIENT_USERMODE, 12345})
        EXPECT_EQ(face->OnAmbientPropertyChange(id), S_OK) << id;
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, aChangeOfUserModeSwitchesItsEventsOffAndOn)
{
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    EXPECT_EQ(face->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 0);
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(true));
    EXPECT_EQ(face->OnAmbientPropertyChange(DISPID_UNKNOWN), S_OK);
    EXPECT_EQ(paintsOfARepaint(), 1);
}

TEST_F(OleControlFace, runsWhereTheContainerDoesNotSayWhetherItDoes)
{
    auto const check = [this](char const* how) {
        ASSERT_EQ(control.setSite(), S_OK);
        face->OnAmbientPropertyChange(DISPID_UNKNOWN);
        EXPECT_EQ(paintsOfARepaint(), 1) << how;
    };
    control.site().removeAmbient(DISPID_AMBIENT_USERMODE);
    check("missing");
    record().answer("Ambient(-709)", E_FAIL);
    check("failing");
    record().answerAsUsual("Ambient(-709)");
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofUnknown(form.frame().unknown()));
    check("of the wrong type");
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant());
    check("empty");
    control.site().hide(IID_IDispatch);
    check("no ambient properties at all");
}

TEST_F(OleControlFace, takesUserModeAsAnyNumber)
{
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofLong(0));
    face->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
    EXPECT_EQ(paintsOfARepaint(), 0);
    control.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofLong(1));
    face->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE);
    EXPECT_EQ(paintsOfARepaint(), 1);
}

class Keyboard : public SurfaceTest {
protected:
    void SetUp() override
    {
        SurfaceTest::SetUp();
        control.start();
        ASSERT_EQ(control.doVerb(OLEIVERB_UIACTIVATE), S_OK);
        record().forget();
    }
    HRESULT translate(UINT message, WPARAM wParam)
    {
        MSG given{control.window(), message, wParam, 0, 0, {}};
        return as<IOleInPlaceActiveObject>()->TranslateAccelerator(&given);
    }
    int offered() { return record().countFrom("Site.TranslateAccelerator"); }
};

TEST_F(Keyboard, mouseMessagesAreNotTranslatedAndNotOffered)
{
    record().answer("Site.TranslateAccelerator", S_OK);
    for (UINT message = WM_MOUSEFIRST; message <= WM_MOUSELAST; ++message)
        EXPECT_EQ(translate(message, 0), S_FALSE) << message;
    EXPECT_EQ(offered(), 0);
}

// Some containers take every key that they are offered: the click would be lost.
TEST_F(Keyboard, spaceIsNotTranslatedAndNotOffered)
{
    record().answer("Site.TranslateAccelerator", S_OK);
    EXPECT_EQ(translate(WM_KEYDOWN, VK_SPACE), S_FALSE);
    EXPECT_EQ(translate(WM_CHAR, L' '), S_FALSE);
    EXPECT_EQ(translate(WM_KEYUP, VK_SPACE), S_FALSE);
    EXPECT_EQ(offered(), 0);
}

TEST_F(Keyboard, navigationIsOfferedAndTakenWhenTheContainerTakesIt)
{
    for (WPARAM const key : {VK_TAB, VK_ESCAPE, VK_RETURN, VK_LEFT, VK_UP, VK_RIGHT, VK_DOWN}) {
        record().forget();
        record().answer("Site.TranslateAccelerator", S_OK);
        EXPECT_EQ(translate(WM_KEYDOWN, key), S_OK) << key;
        EXPECT_EQ(offered(), 1) << key;
        record().answer("Site.TranslateAccelerator", S_FALSE);
        EXPECT_EQ(translate(WM_KEYDOWN, key), S_FALSE) << key;
        record().answer("Site.TranslateAccelerator", E_NOTIMPL);
        EXPECT_EQ(translate(WM_KEYDOWN, key), S_FALSE) << key;
    }
}

TEST_F(Keyboard, nothingIsOfferedWhereTheSiteTakesNoKeys)
{
    control.site().hide(__uuidof(IOleControlSite));
    ASSERT_EQ(control.setSite(), S_OK);
    EXPECT_EQ(translate(WM_KEYDOWN, VK_TAB), S_FALSE);
    EXPECT_EQ(offered(), 0);
}

TEST_F(Keyboard, noMessageAtAllIsRefused)
{
    EXPECT_TRUE(FAILED(as<IOleInPlaceActiveObject>()->TranslateAccelerator(nullptr)));
}

TEST_F(Keyboard, dialogsHearThatItIsAButton)
{
    LRESULT const code = ::SendMessageW(control.window(), WM_GETDLGCODE, 0, 0);
    EXPECT_TRUE(code & DLGC_BUTTON);
    EXPECT_TRUE(code & (DLGC_UNDEFPUSHBUTTON | DLGC_DEFPUSHBUTTON));
    EXPECT_FALSE(code & (DLGC_WANTALLKEYS | DLGC_WANTTAB | DLGC_WANTARROWS));
}

TEST_F(Keyboard, theDoClickMemberClicks)
{
    kit::Listening const events(control.object(), kQvFlatCommandEvents);
    EXPECT_EQ(kit::invoke(*as<IDispatch>().get(), DISPID_DOCLICK, DISPATCH_METHOD).result, S_OK);
    EXPECT_EQ(events->count(kClick), 1);
}

TEST_F(Keyboard, aMnemonicClicks)
{
    EXPECT_EQ(button()->put_Caption(Bstr(L"&Click").get()), S_OK);
    kit::Listening const events(control.object(), kQvFlatCommandEvents);
    MSG message{form.window(), WM_SYSCHAR, L'c', 0, 0, {}};
    EXPECT_EQ(as<IOleControl>()->OnMnemonic(&message), S_OK);
    EXPECT_EQ(events->count(kClick), 1);
}

} // namespace
} // namespace quillet::hosting
