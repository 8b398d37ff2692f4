// Which qvFlatCommand is emphasised: the one with the focus, or else the form's default button.
#include "FlatButton.h"
#include "kit/HostWindow.h"
#include "kit/MessageWatch.h"

namespace quillet::flat {
namespace {

/// A default button while something else has the focus.
class FlatEmphasis : public ShownTest {
protected:
    UniqueWindow edit = kit::newEditBox(form.window(), {200, 30, 300, 60});

    FlatEmphasis()
    {
        EXPECT_TRUE(kit::focus(edit.get()));
        setDefault(true);
    }
    void setDefault(bool mark) { button.site().extender().offer(L"Default", Variant::ofBool(mark)); }
    void setActive(IDispatch* control)
    {
        form.object().offer(L"ActiveControl", Variant::ofDispatch(control));
    }
    /// Another control is active, and the button shows that look.
    void checkActive(IDispatch* control, Look const& look, char const* what = "")
    {
        setActive(control);
        expect(look, what);
        setActive(nullptr);
    }
    /// A repaint shows that look.
    void expect(Look const& look, char const* what = "")
    {
        EXPECT_EQ(button->Refresh(), S_OK);
        EXPECT_EQ(button.differencesFrom(look), "") << what;
    }
    void expectEmphasis() { expect(emphasised(normalLook())); }
    void expectNone() { expect(normalLook()); }
    /// A control of the form's own.
    ComPtr<kit::NamedObject> hostControl(REFIID knownBy) const
    {
        auto control = kit::make<kit::NamedObject>("Host", form.sharedRecord());
        control->pretend(knownBy);
        return control;
    }
    /// Focus of a control of this library, as the form's extender of it and as the control itself.
    void checkSibling(CLSID const& classId, bool emphasis)
    {
        kit::Hosted sibling(library(), classId, form, kPlaceBelow, L"Sibling");
        ASSERT_TRUE(sibling.object());
        sibling.start();
        Look const look = emphasis ? emphasised(normalLook()) : normalLook();
        checkActive(sibling.as<IDispatch>().get(), look, "as the control itself");
        checkActive(&sibling.site().extender(), look, "as its extender");
    }
};

TEST_F(FlatEmphasis, aButtonThatIsNotDefaultAndHasNoFocusHasNone)
{
    setDefault(false);
    expectNone();
}

TEST_F(FlatEmphasis, aFocusedButtonsBorderOf1IsOf2AndItsCaptionDoesNotMove)
{
    setDefault(false);
    button.setCaption(L"F&ocus");
    Look look = normalLook(L"F&ocus");
    expect(look);
    POINT const before = captionPlace(look, button.size(), *button.font().get());
    ASSERT_TRUE(kit::focus(button.window()));
    look = focused(look);
    expect(look);
    POINT const after = captionPlace(look, button.size(), *button.font().get());
    EXPECT_EQ(before.x, after.x);
    EXPECT_EQ(before.y, after.y);
}

TEST_F(FlatEmphasis, aFocusedButtonLosesItAgainWithTheFocus)
{
    setDefault(false);
    ASSERT_TRUE(kit::focus(button.window()));
    expect(focused(normalLook()));
    ASSERT_TRUE(kit::focus(edit.get()));
    expectNone();
}

TEST_F(FlatEmphasis, aFocusedButtonKeepsItWhateverMessagesSay)
{
    setDefault(false);
    ASSERT_TRUE(kit::focus(button.window()));
    ::SendMessageA(button.window(), WM_KILLFOCUS, 0, 0);
    EXPECT_EQ(button.differencesFrom(focused(normalLook())), "");
    expect(focused(normalLook()));
    LONG result = 0;
    EXPECT_EQ(button->WindowProc(HandleToLong(button.window()), WM_KILLFOCUS, 0, 0, &result), S_OK);
    expect(focused(normalLook()), "published");
}

TEST_F(FlatEmphasis, ofTheButtonThatTheFocusLeavesIsGoneWhoeverSwallowedTheMessage)
{
    setDefault(false);
    ShownButton next(library(), form, kPlaceBelow);
    ASSERT_TRUE(kit::focus(button.window()));
    kit::SwallowedMessage const swallowed(button.window(), WM_KILLFOCUS);
    ASSERT_TRUE(kit::focus(next.window()));
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
    EXPECT_EQ(next.differencesFrom(focused(normalLook())), "");
}

TEST_F(FlatEmphasis, isThereAtTheFirstPaintThatTheFocusBrings)
{
    ShownButton next(library(), form, kPlaceBelow);
    ASSERT_TRUE(kit::focus(button.window()));
    int paints = 0;
    kit::Inside const paint(next, "Paint", [&] {
        if (++paints == 1) {
            EXPECT_EQ(next.differencesFrom(focused(normalLook())), "");
        }
    });
    ASSERT_TRUE(kit::focus(next.window()));
    EXPECT_GT(paints, 0);
}

// Neither a window service nor a sibling repaints a button that nobody loaded and that stands alone.
TEST_F(FlatEmphasis, ofAButtonThatWasOnlyInitialisedComesAndGoesWithTheFocus)
{
    form.record().answer("Site.GetContainer", E_NOTIMPL);
    FlatButton fresh(library(), form, kPlaceBelow, L"Fresh");
    fresh.site().extender().remove(L"Parent");
    fresh.start();
    fresh->put_BorderColor(kBorder);
    auto const inner = [&] { // where the border of a focused button is two pixels wide
        WindowDc const dc(fresh.window());
        return ::GetPixel(dc.get(), 1, 20);
    };
    fresh.events().forget();
    ASSERT_NE(inner(), kBorder);
    ASSERT_TRUE(kit::focus(fresh.window()));
    EXPECT_EQ(inner(), kBorder);
    EXPECT_EQ(fresh.events().count(kPaint), 1);
    ASSERT_TRUE(kit::focus(edit.get()));
    EXPECT_NE(inner(), kBorder);
    EXPECT_EQ(fresh.events().count(kPaint), 2);
}

TEST_F(FlatEmphasis, withoutShowFocusRectangleAFocusedButtonHasTheBorderAndNoFrame)
{
    EXPECT_EQ(button->put_ShowFocusRectangle(VARIANT_FALSE), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    expectEmphasis();
}

// The caption starts where it does without the focus, and from there to the right its face covers the frame.
TEST_F(FlatEmphasis, theFaceOfACaptionWithASmallIndentCoversTheLeftSideOfTheFrame)
{
    button.setCaption(L"&Cover");
    ASSERT_TRUE(kit::focus(button.window()));
    for (SHORT const indent : std::initializer_list<SHORT>{0, 2, 3, 4}) {
        EXPECT_EQ(button->put_CaptionIndent(indent), S_OK);
        Look look = focused(normalLook(L"&Cover"));
        look.indent = indent;
        expect(look, std::to_string(indent).c_str());
    }
}

TEST_F(FlatEmphasis, theFocusFrameOfABackColorOf808080IsE0E0E0)
{
    EXPECT_EQ(button->put_BackColor(0x808080), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    Look look = focused(normalLook());
    look.back = 0x808080;
    look.frame = 0xE0E0E0;
    expect(look);
    EXPECT_EQ(button->put_BackColor(0x808081), S_OK);
    look.back = 0x808081;
    look.frame = 0x808080;
    expect(look);
}

// A system colour counts by what it is on this desktop.
TEST_F(FlatEmphasis, theFrameColourFollowsTheResolvedBackColour)
{
    int grey = 0;
    while (grey <= COLOR_MENUBAR && ::GetSysColor(grey) != 0x808080)
        ++grey;
    ASSERT_LE(grey, COLOR_MENUBAR) << "this desktop has no mid grey";
    EXPECT_EQ(button->put_BackColor(0x80000000U | static_cast<OLE_COLOR>(grey)), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    Look look = focused(normalLook());
    look.back = 0x808080;
    look.frame = 0xE0E0E0;
    expect(look);
}

TEST_F(FlatEmphasis, hotAndFocusedTheHotBorderIsOnePixelThicker)
{
    ASSERT_TRUE(kit::focus(button.window()));
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(3).get()), S_OK);
    button.makeHot();
    expect(focused(withBorder(3, hotLook())));
}

TEST_F(FlatEmphasis, inTheTaskPaneLookAFocusedButtonAtRestHasABlackBorderOnePixelThicker)
{
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    Look look = focused(taskPaneNormalLook());
    look.border = 0;
    expect(look);
}

TEST_F(FlatEmphasis, aFocusedHotButtonOfTheTaskPaneHasTheBorderOfItsState)
{
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(2).get()), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    button.makeHot();
    Look look = withBorder(2, taskPaneHotLook());
    look.frame = 0x808080;
    expect(look);
}

TEST_F(FlatEmphasis, inTheTaskPaneLookTheDefaultButtonAtRestHasABlackBorderOnePixelThicker)
{
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    Look look = emphasised(taskPaneNormalLook());
    look.border = 0;
    expect(look);
    button.makeHot();
    EXPECT_EQ(button.differencesFrom(taskPaneHotLook()), "");
    button.leave();
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button.differencesFrom(taskPaneDisabledLook()), "");
}

TEST_F(FlatEmphasis, theDefaultButtonKeepsItWhileAnotherKindOfControlHasTheFocus)
{
    checkActive(hostControl(IID_IPicture).get(), emphasised(normalLook()));
}

TEST_F(FlatEmphasis, theDefaultButtonLosesItWhileAHostsOwnButtonHasTheFocus)
{
    checkActive(hostControl(kit::kHostButton).get(), normalLook());
}

TEST_F(FlatEmphasis, theDefaultButtonLosesItToAHostsOwnButtonInsideAnExtender)
{
    auto const extender = kit::make<kit::NamedObject>("Active", form.sharedRecord());
    extender->offer(L"Object", Variant::ofDispatch(hostControl(kit::kHostButton).get()));
    checkActive(extender.get(), normalLook());
}

TEST_F(FlatEmphasis, theDefaultButtonLosesItWhileAnotherFlatCommandHasTheFocus)
{
    checkSibling(kQvFlatCommandClass, false);
}

TEST_F(FlatEmphasis, theDefaultButtonLosesItWhileAnImageCommandHasTheFocus)
{
    checkSibling(kQvImageCommandClass, false);
}

TEST_F(FlatEmphasis, theDefaultButtonKeepsItWhileAFlatToolButtonHasTheFocus)
{
    checkSibling(kFlatToolButtonClass, true);
}

TEST_F(FlatEmphasis, theDefaultButtonHasItWhereTheActiveControlIsMissing)
{
    form.object().remove(L"ActiveControl");
    expectEmphasis();
}

TEST_F(FlatEmphasis, theDefaultButtonHasItWhereTheActiveControlCannotBeRead)
{
    form.object().refuse(L"ActiveControl", E_FAIL);
    expectEmphasis();
}

TEST_F(FlatEmphasis, theDefaultButtonHasItWhereThereIsNoActiveControl)
{
    setActive(nullptr);
    expectEmphasis();
    form.object().offer(L"ActiveControl", Variant());
    expectEmphasis();
}

TEST_F(FlatEmphasis, theDefaultButtonHasItWhereTheExtenderHasNoParent)
{
    button.site().extender().remove(L"Parent");
    expectEmphasis();
    button.site().extender().offer(L"Parent", Variant::ofLong(5));
    expectEmphasis();
}

TEST_F(FlatEmphasis, nobodyIsDefaultWhereTheExtenderHasNoSuchMark)
{
    button.site().extender().remove(L"Default");
    expectNone();
}

TEST_F(FlatEmphasis, nobodyIsDefaultWhereTheMarkCannotBeRead)
{
    button.site().extender().refuse(L"Default", E_FAIL);
    expectNone();
}

TEST_F(FlatEmphasis, nobodyIsDefaultWhereThereIsNoExtender)
{
    form.record().answerNothing("Site.GetExtendedControl");
    expectNone();
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    expectNone();
}

TEST_F(FlatEmphasis, theDefaultMarkMayBeAnyNumberThatIsNotZero)
{
    button.site().extender().offer(L"Default", Variant::ofLong(1));
    expectEmphasis();
    button.site().extender().offer(L"Default", Variant::ofLong(0));
    expectNone();
}

TEST_F(FlatEmphasis, atDesignTimeAFocusedButtonHasNoFrame)
{
    setDefault(false);
    button.setUserMode(false);
    ASSERT_TRUE(kit::focus(button.window()));
    expectEmphasis();
}

TEST_F(FlatEmphasis, theDefaultButtonHasNoneAtDesignTime)
{
    button.setUserMode(false);
    expectNone();
}

} // namespace
} // namespace quillet::flat
