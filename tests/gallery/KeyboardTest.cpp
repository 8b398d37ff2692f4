// Tab, arrows, Enter, Esc, access keys, and the active control that follows them.
#include "gallery/host/Keyboard.h"

#include "gallery/FormKit.h"
#include "gallery/host/FormObject.h"
#include "gallery/host/TabOrder.h"
#include "gallery/intrinsic/IntrinsicControl.h"
#include "kit/NotCopied.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::gallery::test {
namespace {

std::map<std::wstring, FakeTraits> classes()
{
    FakeTraits button;
    button.status |= OLEMISC_ACTSLIKEBUTTON;
    FakeTraits save = button;
    save.accessKey = L's';
    FakeTraits unclickable = button;
    unclickable.hasClickMethod = false;
    FakeTraits greedy = button;
    greedy.infoFlags = CTRLINFO_EATS_RETURN | CTRLINFO_EATS_ESCAPE;
    FakeTraits eater;
    eater.usedKey = VK_TAB;
    FakeTraits label;
    label.status |= OLEMISC_ACTSLIKELABEL;
    label.accessKey = L'l';
    return {{L"Button", button}, {L"Save", save},   {L"Unclickable", unclickable},
            {L"Greedy", greedy}, {L"Eater", eater}, {L"Label", label}};
}

/// A key that is held down for one scope, as GetKeyState sees it.
class HeldKey : kit::NotCopied {
public:
    explicit HeldKey(int key) : m_key(key) { set(0x80); }
    ~HeldKey() { set(0); }

private:
    void set(BYTE state) const
    {
        BYTE keys[256] = {};
        ::GetKeyboardState(keys);
        keys[m_key] = state;
        ::SetKeyboardState(keys);
    }

    int m_key;
};

/// A form whose first control has the focus. It stays hidden: on a display without a window manager, showing
/// it takes seconds.
struct Active : FormKit {
    explicit Active(std::string const& inside, UserMode mode = UserMode::Run)
        : FormKit(inside, classes(), mode)
    {
        form().focus().restore();
        form().focus().update();
    }
    /// The form uses the key up, and the control of that name is active then.
    void expectGoes(WPARAM key, wchar_t const* to)
    {
        EXPECT_TRUE(press(key));
        EXPECT_EQ(active(), to);
    }
    void expectAltGoes(wchar_t letter, wchar_t const* to)
    {
        EXPECT_TRUE(pressAlt(letter));
        EXPECT_EQ(active(), to);
    }
    int clicks(wchar_t const* name) { return fake(name).clicks; }
    bool isShownAsDefault(wchar_t const* name)
    {
        return fake(name).ambient(DISPID_AMBIENT_DISPLAYASDEFAULT).toBool();
    }
};

TEST(TabOrder, tabGoesByTabIndexRoundTheForm)
{
    Active kit(node("VB.TextBox", "Third", "TabIndex = 9") + node("Fake.Button", "First", "TabIndex = 1") +
               node("VB.CommandButton", "Second", "TabIndex = 4"));
    EXPECT_EQ(kit.active(), L"First");
    kit.expectGoes(VK_TAB, L"Second");
    kit.expectGoes(VK_TAB, L"Third");
    kit.expectGoes(VK_TAB, L"First");
}

TEST(TabOrder, shiftTabGoesBackwards)
{
    Active kit(node("Fake.Button", "A") + node("Fake.Button", "B") + node("Fake.Button", "C"));
    HeldKey const shift(VK_SHIFT);
    kit.expectGoes(VK_TAB, L"C");
    kit.expectGoes(VK_TAB, L"B");
}

TEST(TabOrder, hiddenDisabledAndSkippedControlsAreNoStops)
{
    Active kit(node("Fake.Button", "A") + node("Fake.Button", "Hidden", "Visible = 0") +
               node("VB.TextBox", "Off", "Enabled = 0") + node("Fake.Button", "Skipped", "TabStop = 0") +
               node("VB.Label", "Label") +
               node("VB.Frame", "Unseen", "Visible = 0", node("VB.TextBox", "Inside")) +
               node("Fake.Button", "Z"));
    kit.expectGoes(VK_TAB, L"Z");
    kit.expectGoes(VK_TAB, L"A");
}

TEST(TabOrder, aFormWithoutStopsLeavesTabAlone)
{
    Active kit(node("VB.Label", "Only"));
    EXPECT_FALSE(kit.press(VK_TAB));
    EXPECT_EQ(kit.active(), L"");
}

TEST(TabOrder, aGroupOfOptionButtonsIsOneStop)
{
    Active kit(node("VB.TextBox", "Text") + node("VB.OptionButton", "O1") +
               node("VB.OptionButton", "O2", "Value = -1") + node("VB.OptionButton", "O3") +
               node("VB.TextBox", "Last"));
    kit.expectGoes(VK_TAB, L"O2");
    kit.expectGoes(VK_TAB, L"Last");
}

TEST(Keyboard, arrowsChooseAmongTheOptionButtonsOfOneContainer)
{
    Active kit(node("VB.OptionButton", "O1", "Value = -1") +
               node("VB.Frame", "Group", "", node("VB.OptionButton", "Other")) +
               node("VB.OptionButton", "O2"));
    EXPECT_EQ(kit.active(), L"O1");
    kit.expectGoes(VK_DOWN, L"O2");
    EXPECT_THAT(kit.events, ElementsAreArray({L"O2.Click"}));
    EXPECT_FALSE(kit.get(L"O1", L"Value").toBool());
    EXPECT_TRUE(kit.get(L"O2", L"Value").toBool());
    kit.expectGoes(VK_RIGHT, L"O1");
    kit.expectGoes(VK_UP, L"O2");
}

TEST(Keyboard, arrowsElsewhereBelongToTheControl)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Button", "B"));
    EXPECT_FALSE(kit.press(VK_LEFT));
    EXPECT_EQ(kit.active(), L"Text");
}

TEST(Keyboard, theActiveControlSeesAKeyBeforeTheForm)
{
    Active kit(node("Fake.Eater", "Eater") + node("Fake.Button", "B"));
    EXPECT_TRUE(kit.press(VK_TAB));
    EXPECT_EQ(kit.active(), L"Eater") << "a key that the control has used up must not move the focus";
    EXPECT_EQ(kit.fake(L"Eater").calls.back(), "TranslateAccelerator 9");
}

TEST(Keyboard, aKeyThatTheControlOffersItsSiteIsTheForms)
{
    Active kit(node("Fake.Button", "A") + node("Fake.Button", "B"));
    auto const site = query<IOleControlSite>(kit.fake(L"A").site());
    MSG tab{kit.fake(L"A").hwnd(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
    EXPECT_EQ(site->TranslateAccelerator(&tab, 0), S_OK);
    EXPECT_EQ(kit.active(), L"B");
    MSG letter{kit.fake(L"A").hwnd(), WM_KEYDOWN, 'Q', 1, 0, {}};
    EXPECT_EQ(site->TranslateAccelerator(&letter, 0), S_FALSE);
    EXPECT_EQ(site->TranslateAccelerator(nullptr, 0), E_POINTER);
}

TEST(Keyboard, enterPressesTheDefaultButtonFromATextBox)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Button", "Ok", "Default = -1") +
               node("Fake.Button", "No"));
    EXPECT_TRUE(kit.press(VK_RETURN));
    EXPECT_EQ(kit.clicks(L"Ok"), 1);
    EXPECT_EQ(kit.clicks(L"No"), 0);
    EXPECT_EQ(kit.active(), L"Text") << "the default button is pressed from afar";
}

TEST(Keyboard, enterPressesTheFocusedButtonInsteadOfTheDefaultOne)
{
    Active kit(node("Fake.Button", "No") + node("Fake.Button", "Ok", "Default = -1"));
    EXPECT_TRUE(kit.press(VK_RETURN));
    EXPECT_EQ(kit.clicks(L"No"), 1);
    EXPECT_EQ(kit.clicks(L"Ok"), 0);
}

TEST(Keyboard, escPressesTheCancelButton)
{
    Active kit(node("Fake.Button", "Ok", "Default = -1") + node("Fake.Button", "No", "Cancel = -1"));
    EXPECT_TRUE(kit.press(VK_ESCAPE));
    EXPECT_EQ(kit.clicks(L"No"), 1);
    EXPECT_EQ(kit.clicks(L"Ok"), 0);
}

TEST(Keyboard, enterAndEscWithoutSuchAButtonBelongToTheControl)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Button", "B"));
    EXPECT_FALSE(kit.press(VK_RETURN));
    EXPECT_FALSE(kit.press(VK_ESCAPE));
    EXPECT_EQ(kit.clicks(L"B"), 0);
}

TEST(Keyboard, aHiddenDefaultButtonIsNotPressed)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Button", "Ok", "Default = -1\nVisible = 0"));
    EXPECT_FALSE(kit.press(VK_RETURN));
    EXPECT_EQ(kit.clicks(L"Ok"), 0);
}

TEST(Keyboard, aControlMayKeepEnterAndEscForItself)
{
    Active kit(node("Fake.Greedy", "Greedy") + node("Fake.Button", "Ok", "Default = -1") +
               node("Fake.Button", "No", "Cancel = -1"));
    EXPECT_FALSE(kit.press(VK_RETURN));
    EXPECT_FALSE(kit.press(VK_ESCAPE));
    EXPECT_EQ(kit.clicks(L"Ok") + kit.clicks(L"No") + kit.clicks(L"Greedy"), 0);
}

TEST(Keyboard, aButtonWithoutTheClickMethodIsToldByTheMnemonic)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Unclickable", "Ok", "Default = -1"));
    EXPECT_TRUE(kit.press(VK_RETURN));
    EXPECT_EQ(kit.clicks(L"Ok"), 0);
    EXPECT_EQ(kit.fake(L"Ok").mnemonics, 1);
    EXPECT_EQ(kit.fake(L"Ok").mnemonicMessage, static_cast<UINT>(WM_KEYDOWN));
}

TEST(Keyboard, anAccessKeyFocusesTheControlAndTellsItOnce)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Save", "Save"));
    EXPECT_TRUE(kit.pressAlt(L'S'));
    EXPECT_EQ(kit.fake(L"Save").mnemonics, 1);
    EXPECT_EQ(kit.active(), L"Save");
    EXPECT_TRUE(kit.pressAlt(L's'));
    EXPECT_EQ(kit.fake(L"Save").mnemonics, 2);
    EXPECT_FALSE(kit.pressAlt(L'q'));
}

TEST(Keyboard, aFunctionKeyIsNotTakenForTheLetterOfItsNumber)
{
    static_assert(VK_F4 == 's');
    Active kit(node("VB.TextBox", "Text") + node("Fake.Save", "Save"));
    EXPECT_FALSE(kit.key(WM_SYSKEYDOWN, VK_F4));
    EXPECT_EQ(kit.fake(L"Save").mnemonics, 0);
}

TEST(Keyboard, controlsThatShareAnAccessKeyTakeTurns)
{
    Active kit(node("Fake.Save", "A") + node("Fake.Save", "B"));
    EXPECT_EQ(kit.active(), L"A");
    kit.expectAltGoes(L's', L"B");
    kit.expectAltGoes(L's', L"A");
}

TEST(Keyboard, labelsSpeakForTheControlBehindThem)
{
    Active kit(node("Fake.Button", "First") + node("VB.Label", "Hint", "Caption = \"&Name\"") +
               node("VB.TextBox", "Name") + node("Fake.Label", "Other") + node("VB.TextBox", "Place"));
    kit.expectAltGoes(L'n', L"Name");
    kit.expectAltGoes(L'l', L"Place");
}

TEST(Keyboard, hiddenAndDisabledControlsHaveNoAccessKey)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Save", "Hidden", "Visible = 0") +
               node("VB.CommandButton", "Off", "Caption = \"&Save\"\nEnabled = 0"));
    EXPECT_FALSE(kit.pressAlt(L's'));
    EXPECT_THAT(kit.events, IsEmpty());
}

TEST(Keyboard, nativeButtonsBoxesAndOptionsFollowTheirAccessKeys)
{
    Active kit(node("VB.TextBox", "Text") + node("VB.CommandButton", "Go", "Caption = \"&Go\"") +
               node("VB.CheckBox", "Keep", "Caption = \"&Keep && hold\"") +
               node("VB.OptionButton", "Rich", "Caption = \"&Rich\""));
    kit.pressAlt(L'g');
    kit.pressAlt(L'k');
    kit.pressAlt(L'r');
    EXPECT_THAT(kit.events, ElementsAreArray({L"Go.Click", L"Keep.Click", L"Rich.Click"}));
    EXPECT_EQ(kit.get(L"Keep", L"Value").toLong(), 1);
    EXPECT_TRUE(kit.get(L"Rich", L"Value").toBool());
    EXPECT_FALSE(kit.pressAlt(L'h'));
}

TEST(Keyboard, aDesignFormLeavesEveryKeyAlone)
{
    Active kit(node("Fake.Save", "A", "Default = -1") + node("Fake.Button", "B"), UserMode::Design);
    EXPECT_FALSE(kit.press(VK_TAB));
    EXPECT_FALSE(kit.press(VK_RETURN));
    EXPECT_FALSE(kit.pressAlt(L's'));
    EXPECT_EQ(kit.clicks(L"A") + kit.fake(L"A").mnemonics, 0);
}

TEST(Focus, theActiveControlIsTheOneWithTheFocus)
{
    Active kit(node("Fake.Button", "A") + node("VB.TextBox", "Text"));
    EXPECT_EQ(
        getByName(*getByName(kit.form().object(), L"ActiveControl").toObject().as<IDispatch>().get(), L"Name")
            .toString()
            .view(),
        L"A");
    ::SetFocus(kit.control(L"Text").window());
    EXPECT_EQ(kit.active(), L"Text");
    EXPECT_EQ(kit.fake(L"A").calls.back(), "UIDeactivate");
}

TEST(Focus, aFormThatIsShownGivesItsFirstControlTheFocus)
{
    FormKit kit(node("VB.TextBox", "Second", "TabIndex = 2") + node("Fake.Button", "First", "TabIndex = 1"),
                classes());
    kit.form().show();
    EXPECT_TRUE(::IsWindowVisible(kit.form().window()));
    EXPECT_EQ(::GetFocus(), kit.fake(L"First").hwnd());
}

TEST(Focus, aFormWithoutFocusHasNoActiveControl)
{
    FormKit kit(node("Fake.Button", "A"), classes());
    Variant const none = getByName(kit.form().object(), L"ActiveControl");
    EXPECT_EQ(none.type(), VT_DISPATCH);
    EXPECT_EQ(none.get().pdispVal, nullptr);
}

TEST(Focus, theDefaultButtonIsShownUntilAnotherButtonHasTheFocus)
{
    Active kit(node("VB.TextBox", "Text") + node("Fake.Button", "Ok", "Default = -1") +
               node("Fake.Button", "No"));
    FakeControl& ok = kit.fake(L"Ok");
    FakeControl& no = kit.fake(L"No");
    EXPECT_TRUE(kit.isShownAsDefault(L"Ok"));
    ok.ambientChanges.clear();
    kit.control(L"No").focus();
    EXPECT_FALSE(kit.isShownAsDefault(L"Ok"));
    EXPECT_TRUE(kit.isShownAsDefault(L"No"));
    EXPECT_THAT(ok.ambientChanges, ElementsAreArray({DISPID_AMBIENT_DISPLAYASDEFAULT}));
    EXPECT_THAT(no.ambientChanges, ElementsAreArray({DISPID_AMBIENT_DISPLAYASDEFAULT}));
    kit.control(L"Text").focus();
    EXPECT_TRUE(kit.isShownAsDefault(L"Ok"));
    EXPECT_FALSE(kit.isShownAsDefault(L"No"));
}

TEST(Focus, onlyTheFirstOfSeveralDefaultButtonsIsOne)
{
    FormKit kit(node("Fake.Button", "A", "Default = -1\nCancel = -1") +
                    node("Fake.Button", "B", "Default = -1\nCancel = -1"),
                classes());
    EXPECT_FALSE(kit.control(L"B").state().isDefault);
    EXPECT_FALSE(kit.control(L"B").state().isCancel);
    EXPECT_EQ(kit.form().focus().cancelButton(), &kit.control(L"A"));
}

TEST(Focus, theFormGivesTheFocusBackToTheControlThatHadIt)
{
    Active kit(node("Fake.Button", "A") + node("VB.TextBox", "Text"));
    ::SetFocus(kit.control(L"Text").window());
    ::SetFocus(nullptr);
    EXPECT_EQ(kit.active(), L"Text");
    ::SetFocus(kit.form().window());
    EXPECT_EQ(::GetFocus(), kit.control(L"Text").window());
}

} // namespace
} // namespace quillet::gallery::test
