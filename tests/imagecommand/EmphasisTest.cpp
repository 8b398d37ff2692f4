// Which image button is emphasised: the one with the focus, or else the form's default button.
#include "Look.h"
#include "kit/Input.h"
#include "kit/MessageWatch.h"
#include "kit/Pump.h"

namespace quillet::image {
namespace {

constexpr IID kHostButton = {0x33AD4EF1, 0x6699, 0x11CF, {0xB7, 0x0C, 0x00, 0xAA, 0x00, 0x60, 0xD3, 0x93}};

/// A control of the form's own that is known by one interface.
class HostControl final : public kit::Counterpart<IUnknown> {
private:
    void* faceOf(REFIID iid) noexcept override
    {
        return iid == kHostButton ? this : Counterpart::faceOf(iid);
    }
};

class ImageEmphasis : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};
    UniqueWindow edit = kit::newEditBox(form.window(), {200, 30, 300, 60});

    void SetUp() override
    {
        ImageTest::SetUp();
        button.load();
        button->put_ForeColor(kFore);
        button->put_BackColor(kBack);
        button->put_LightBorderColor(kLight);
        button->put_DarkBorderColor(kDark);
        button.setCaption(L"&Default");
        ASSERT_TRUE(kit::focus(edit.get()));
        button.site().extender().offer(L"Default", Variant::ofBool(true));
    }
    void setActive(IUnknown* control) { form.object().offer(L"ActiveControl", Variant::ofUnknown(control)); }
    std::string shows(bool emphasis)
    {
        EXPECT_EQ(button->DrawButton(), S_OK);
        Look look{kFore, kBack, kLight, kDark, emphasis ? 2 : 1};
        look.caption = L"&Default";
        look.captionLeft = look.border + 4;
        return differencesFrom(button, look);
    }
    void checkSibling(CLSID const& classId, bool emphasis)
    {
        kit::Hosted sibling(library(), classId, form, {20, 80, 140, 120}, L"Sibling");
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
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    EXPECT_EQ(shows(false), "");
    button.site().extender().remove(L"Default");
    EXPECT_EQ(shows(false), "");
}

TEST_P(ImageEmphasis, theFocusedButtonHasItAndItShowsWhenTheFocusComesAndGoes)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    ASSERT_TRUE(kit::focus(button.window()));
    kit::pumpPending();
    Look look{kFore, kBack, kLight, kDark, 2};
    look.caption = L"&Default";
    look.captionLeft = 2 + 4;
    EXPECT_EQ(differencesFrom(button, look), "") << "the focus repaints";
    ASSERT_TRUE(kit::focus(edit.get()));
    kit::pumpPending();
    look.border = 1;
    look.captionLeft = 1 + 4;
    EXPECT_EQ(differencesFrom(button, look), "") << "and its loss, too";
}

TEST_P(ImageEmphasis, theFocusedButtonKeepsItWhateverMessagesSay)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
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
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    ASSERT_TRUE(kit::focus(button.window()));
    kit::SwallowedMessage const swallowed(button.window(), WM_KILLFOCUS);
    ASSERT_TRUE(kit::focus(edit.get()));
    EXPECT_EQ(shows(false), "");
}

TEST_P(ImageEmphasis, isThereAtTheFirstPaintThatTheFocusBrings)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    Look look{kFore, kBack, kLight, kDark, 2};
    look.caption = L"&Default";
    look.captionLeft = 2 + 4; // inside the border as drawn
    int paints = 0;
    button.events().action = [&](auto const& event) {
        if (event.id == kPaint && ++paints == 1) {
            EXPECT_EQ(differencesFrom(button, look), "");
        }
    };
    ASSERT_TRUE(kit::focus(button.window()));
    button.events().action = nullptr;
    EXPECT_EQ(paints, 1);
}

// No window service repaints a button that nobody loaded.
TEST_P(ImageEmphasis, ofAButtonThatWasOnlyInitialisedComesAndGoesWithTheFocus)
{
    ImageButton fresh(library(), form, kind(), {20, 80, 140, 120}, L"Fresh");
    fresh.start();
    fresh->put_ForeColor(kFore);
    fresh->put_BackColor(kBack);
    fresh->put_LightBorderColor(kLight);
    fresh->put_DarkBorderColor(kDark);
    fresh.setCaption(L"");
    fresh.forget();
    ASSERT_TRUE(kit::focus(fresh.window()));
    EXPECT_EQ(fresh.paints(), 1);
    EXPECT_EQ(differencesFrom(fresh, {kFore, kBack, kLight, kDark, 2}), "");
    ASSERT_TRUE(kit::focus(edit.get()));
    EXPECT_EQ(fresh.paints(), 2);
    EXPECT_EQ(differencesFrom(fresh, {kFore, kBack, kLight, kDark, 1}), "");
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
    auto const hostButton = kit::make<HostControl>();
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
    COLORREF const edge = ::GetSysColor(kind().isTool ? COLOR_BTNFACE : COLOR_BTNSHADOW);
    Look look{::GetSysColor(COLOR_BTNTEXT), ::GetSysColor(COLOR_BTNFACE), edge, edge, 2};
    look.caption = L"&Default";
    look.captionLeft = 2 + 4;
    EXPECT_EQ(differencesFrom(button, look), "");
    button.makeHot();
    COLORREF const selection = ::GetSysColor(COLOR_HIGHLIGHT);
    look = {::GetSysColor(COLOR_BTNTEXT), taskPaneTint(false), selection, selection, 2};
    look.caption = L"&Default";
    look.captionLeft = 2 + 4;
    EXPECT_EQ(differencesFrom(button, look), "");
}

TEST_P(ImageEmphasis, needsABorder)
{
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(3).get()), S_OK);
    ASSERT_EQ(button->put_BorderStyle(imgCmdBorderStyleConstants::None), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    Look look{kFore, kBack, kLight, kDark, 0};
    look.caption = L"&Default";
    look.captionLeft = 3 + 4; // the look's border counts, drawn or not
    EXPECT_EQ(differencesFrom(button, look), "");
}

TEST_P(ImageEmphasis, movesNoCentredCaptionAndNoneBesideAPicture)
{
    ASSERT_EQ(button->putref_Image(pictureOf(kImage).get()), S_OK);
    Look look{kFore, kBack, kLight, kDark, 2};
    look.caption = L"&Default";
    look.captionLeft = 1 + 4 + kImage.width + 1; // by the border without its emphasis, like the picture
    look.shown = Shown{kImage, 1 + 4, (40 - kImage.height) / 2};
    EXPECT_EQ(differencesFrom(button, look), "");
    ASSERT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
    look.centred = true;
    EXPECT_EQ(differencesFrom(button, look), "");
}

} // namespace
} // namespace quillet::image
