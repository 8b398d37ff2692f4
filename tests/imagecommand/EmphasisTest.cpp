// Which image button is emphasised: the one with the focus, or else the form's default button.
#include "Look.h"
#include "kit/HostWindow.h"
#include "kit/MessageWatch.h"

namespace quillet::image {
namespace {

/// A default button while something else has the focus.
class ImageEmphasis : public LoadedTest {
protected:
    UniqueWindow edit = kit::newEditBox(form.window(), {200, 30, 300, 60});

    ImageEmphasis()
    {
        setColors(button);
        button.setCaption(L"&Default");
        EXPECT_TRUE(kit::focus(edit.get()));
        setDefault(true);
    }
    void setDefault(bool mark) { button.site().extender().offer(L"Default", Variant::ofBool(mark)); }
    void setActive(IUnknown* control) { form.object().offer(L"ActiveControl", Variant::ofUnknown(control)); }
    static Look look(int border) { return plainLook(border, L"&Default"); }
    void expect(Look const& expected) const { EXPECT_EQ(differencesFrom(button, expected), ""); }
    std::string shows(bool emphasis)
    {
        EXPECT_EQ(button->DrawButton(), S_OK);
        return differencesFrom(button, look(emphasis ? 2 : 1));
    }
    void checkSibling(CLSID const& classId, bool emphasis)
    {
        kit::Hosted sibling(library(), classId, form, kPlaceBelow, L"Sibling");
        sibling.start();
        setActive(sibling.object());
        EXPECT_EQ(shows(emphasis), "") << "as the control itself";
        setActive(sibling.site().extender().unknown());
        EXPECT_EQ(shows(emphasis), "") << "as its extender";
        setActive(nullptr);
    }
};
QV_BOTH_CLASSES(ImageEmphasis);

TEST_P(ImageEmphasis, theDefaultButtonHasItWhileATextBoxHasTheFocus) { EXPECT_EQ(shows(true), ""); }

TEST_P(ImageEmphasis, aButtonThatIsNotDefaultHasNone)
{
    setDefault(false);
    EXPECT_EQ(shows(false), "");
    button.site().extender().remove(L"Default");
    EXPECT_EQ(shows(false), "");
}

TEST_P(ImageEmphasis, theFocusedButtonHasItAndItShowsWhenTheFocusComesAndGoes)
{
    setDefault(false);
    ASSERT_TRUE(kit::focus(button.window()));
    kit::pumpPending();
    EXPECT_EQ(differencesFrom(button, look(2)), "") << "the focus repaints";
    ASSERT_TRUE(kit::focus(edit.get()));
    kit::pumpPending();
    EXPECT_EQ(differencesFrom(button, look(1)), "") << "and its loss, too";
}

TEST_P(ImageEmphasis, theFocusedButtonKeepsItWhateverMessagesSay)
{
    setDefault(false);
    ASSERT_TRUE(kit::focus(button.window()));
    ::SendMessageA(button.window(), WM_KILLFOCUS, 0, 0);
    EXPECT_EQ(shows(true), "");
    LONG result = 0;
    EXPECT_EQ(button->WindowProc(HandleToLong(button.window()), WM_KILLFOCUS, 0, 0, &result), S_OK);
    EXPECT_EQ(shows(true), "") << "published";
    ASSERT_TRUE(kit::focus(edit.get()));
    ::SendMessageA(button.window(), WM_SETFOCUS, 0, 0);
    if (::GetFocus() == edit.get()) { // a message that says so may bring it
        EXPECT_EQ(shows(false), "");
    }
}

TEST_P(ImageEmphasis, isGoneWithTheFocusWhoeverSwallowedTheMessage)
{
    setDefault(false);
    ASSERT_TRUE(kit::focus(button.window()));
    kit::SwallowedMessage const swallowed(button.window(), WM_KILLFOCUS);
    ASSERT_TRUE(kit::focus(edit.get()));
    EXPECT_EQ(shows(false), "");
}

TEST_P(ImageEmphasis, isThereAtTheFirstPaintThatTheFocusBrings)
{
    setDefault(false);
    int paints = 0;
    kit::Inside const paint(button, "Paint", [&] {
        if (++paints == 1)
            expect(look(2)); // with the caption inside the border as drawn
    });
    ASSERT_TRUE(kit::focus(button.window()));
    EXPECT_EQ(paints, 1);
}

// No window service repaints a button that nobody loaded.
TEST_P(ImageEmphasis, ofAButtonThatWasOnlyInitialisedComesAndGoesWithTheFocus)
{
    ImageButton fresh(library(), form, kind(), kPlaceBelow, L"Fresh");
    fresh.start();
    setColors(fresh);
    fresh.setCaption(L"");
    fresh.forget();
    ASSERT_TRUE(kit::focus(fresh.window()));
    EXPECT_EQ(fresh.paints(), 1);
    EXPECT_EQ(differencesFrom(fresh, plainLook(2)), "");
    ASSERT_TRUE(kit::focus(edit.get()));
    EXPECT_EQ(fresh.paints(), 2);
    EXPECT_EQ(differencesFrom(fresh, plainLook(1)), "");
}

TEST_P(ImageEmphasis, theDefaultButtonLosesItToAFlatCommand) { checkSibling(kQvFlatCommandClass, false); }

TEST_P(ImageEmphasis, theDefaultButtonKeepsItWhileAnotherImageCommandHasTheFocus)
{
    checkSibling(kQvImageCommandClass, true);
}

TEST_P(ImageEmphasis, theDefaultButtonKeepsItWhileAToolButtonHasTheFocus)
{
    checkSibling(kFlatToolButtonClass, true);
}

TEST_P(ImageEmphasis, theDefaultButtonLosesItToAHostsOwnButton)
{
    auto const hostButton = kit::make<kit::NamedObject>("Host", form.sharedRecord());
    hostButton->pretend(kit::kHostButton);
    setActive(hostButton->unknown());
    EXPECT_EQ(shows(false), "");
    auto const extender = kit::make<kit::NamedObject>("Active", form.sharedRecord());
    extender->offer(L"Object", Variant::ofUnknown(hostButton->unknown()));
    setActive(extender->unknown());
    EXPECT_EQ(shows(false), "") << "inside the extender";
    setActive(nullptr);
    extender->removeAll();
}

TEST_P(ImageEmphasis, theDefaultButtonHasItWhereTheActiveControlCannotBeTold)
{
    form.object().refuse(L"ActiveControl", E_FAIL);
    EXPECT_EQ(shows(true), "");
    form.object().remove(L"ActiveControl");
    EXPECT_EQ(shows(true), "");
    button.site().extender().remove(L"Parent");
    EXPECT_EQ(shows(true), "");
}

TEST_P(ImageEmphasis, theDefaultButtonHasNoneAtDesignTime)
{
    button.setUserMode(false);
    EXPECT_EQ(shows(false), "");
}

TEST_P(ImageEmphasis, goesByTheFormsModeAndNotByActive)
{
    ASSERT_EQ(button->put_Active(VARIANT_FALSE), S_OK);
    EXPECT_EQ(shows(true), "");
}

TEST_P(ImageEmphasis, isTheSameInTheTaskPaneLookAndChangesNoColour)
{
    ASSERT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    COLORREF const text = ::GetSysColor(COLOR_BTNTEXT);
    COLORREF const edge = ::GetSysColor(kind().isTool ? COLOR_BTNFACE : COLOR_BTNSHADOW);
    expect(lookOf(text, ::GetSysColor(COLOR_BTNFACE), edge, edge, 2, L"&Default"));
    button.makeHot();
    COLORREF const selection = ::GetSysColor(COLOR_HIGHLIGHT);
    expect(lookOf(text, taskPaneTint(false), selection, selection, 2, L"&Default"));
}

TEST_P(ImageEmphasis, needsABorder)
{
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(3).get()), S_OK);
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::None), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    Look expected = look(0);
    expected.captionLeft = 3 + 4; // the look's border counts, drawn or not
    expect(expected);
}

TEST_P(ImageEmphasis, movesNoCentredCaptionAndNoneBesideAPicture)
{
    ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    Look expected = look(2);
    expected.captionLeft = 1 + 4 + kImage.width + 1; // by the border without its emphasis, like the picture
    expected.shown = Shown{kImage, 1 + 4, (40 - kImage.height) / 2};
    expect(expected);
    ASSERT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
    expected.centred = true;
    expect(expected);
}

} // namespace
} // namespace quillet::image
