// Which qvFlatCommand is emphasised: the one with the focus, or else the form's default button.
#include "FlatButton.h"
#include "kit/Input.h"
#include "kit/MessageWatch.h"
#include "kit/Pump.h"

namespace quillet::flat {
namespace {

constexpr IID kHostButton = {0x33AD4EF1, 0x6699, 0x11CF, {0xB7, 0x0C, 0x00, 0xAA, 0x00, 0x60, 0xD3, 0x93}};

/// A control of the form's own that is asked for by one interface.
class HostControl final : public kit::Counterpart<IDispatch> {
public:
    explicit HostControl(IID const& known) : m_known(known) {}
    STDMETHODIMP GetTypeInfoCount(UINT* count) override
    {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return DISP_E_UNKNOWNNAME; }
    STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return DISP_E_MEMBERNOTFOUND;
    }

private:
    void* faceOf(REFIID iid) noexcept override
    {
        return iid == m_known ? static_cast<IDispatch*>(this) : Counterpart::faceOf(iid);
    }
    IID m_known;
};

Look emphasised(Look look)
{
    look.emphasis = 1;
    return look;
}

Look focused(Look look)
{
    look.emphasis = 1;
    look.frame = 0x808080;
    return look;
}

class FlatEmphasis : public FlatTest {
protected:
    kit::FakeForm form;
    UniqueWindow edit = kit::newEditBox(form.window(), {200, 30, 300, 60});
    ShownButton button{library(), form};

    void SetUp() override
    {
        FlatTest::SetUp();
        ASSERT_TRUE(kit::focus(edit.get()));
        button.site().extender().offer(L"Default", Variant::ofBool(true));
    }
    void setActive(IDispatch* control)
    {
        form.object().offer(L"ActiveControl", Variant::ofDispatch(control));
    }
    std::string repaintedAgainst(Look const& look)
    {
        EXPECT_EQ(button->Refresh(), S_OK);
        return button.differencesFrom(look);
    }
    /// Focus of a control of this library, as the form's extender of it and as the control itself.
    void checkSibling(CLSID const& classId, bool emphasis)
    {
        kit::Hosted sibling(library(), classId, form, {20, 80, 140, 120}, L"Sibling");
        ASSERT_TRUE(sibling.object());
        sibling.start();
        Look const look = emphasis ? emphasised(normalLook()) : normalLook();
        setActive(sibling.as<IDispatch>().get());
        EXPECT_EQ(repaintedAgainst(look), "") << "as the control itself";
        setActive(&sibling.site().extender());
        EXPECT_EQ(repaintedAgainst(look), "") << "as its extender";
        setActive(nullptr);
    }
};

TEST_F(FlatEmphasis, aButtonThatIsNotDefaultAndHasNoFocusHasNone)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
}

TEST_F(FlatEmphasis, aFocusedButtonsBorderOf1IsOf2AndItsCaptionDoesNotMove)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    button.setCaption(L"F&ocus");
    Look look = normalLook();
    look.caption = L"F&ocus";
    EXPECT_EQ(repaintedAgainst(look), "");
    POINT const before = captionPlace(look, button.size(), *button.font().get());
    ASSERT_TRUE(kit::focus(button.window()));
    look = focused(look);
    EXPECT_EQ(repaintedAgainst(look), "");
    POINT const after = captionPlace(look, button.size(), *button.font().get());
    EXPECT_EQ(before.x, after.x);
    EXPECT_EQ(before.y, after.y);
}

TEST_F(FlatEmphasis, aFocusedButtonLosesItAgainWithTheFocus)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    ASSERT_TRUE(kit::focus(button.window()));
    EXPECT_EQ(repaintedAgainst(focused(normalLook())), "");
    ASSERT_TRUE(kit::focus(edit.get()));
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
}

TEST_F(FlatEmphasis, aFocusedButtonKeepsItWhateverMessagesSay)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    ASSERT_TRUE(kit::focus(button.window()));
    ::SendMessageA(button.window(), WM_KILLFOCUS, 0, 0);
    EXPECT_EQ(button.differencesFrom(focused(normalLook())), "");
    EXPECT_EQ(repaintedAgainst(focused(normalLook())), "");
    LONG result = 0;
    EXPECT_EQ(button->WindowProc(HandleToLong(button.window()), WM_KILLFOCUS, 0, 0, &result), S_OK);
    EXPECT_EQ(repaintedAgainst(focused(normalLook())), "") << "published";
}

TEST_F(FlatEmphasis, ofTheButtonThatTheFocusLeavesIsGoneWhoeverSwallowedTheMessage)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    ShownButton next(library(), form, {20, 80, 140, 120});
    ASSERT_TRUE(kit::focus(button.window()));
    kit::SwallowedMessage const swallowed(button.window(), WM_KILLFOCUS);
    ASSERT_TRUE(kit::focus(next.window()));
    EXPECT_EQ(button.differencesFrom(normalLook()), "");
    EXPECT_EQ(next.differencesFrom(focused(normalLook())), "");
}

TEST_F(FlatEmphasis, isThereAtTheFirstPaintThatTheFocusBrings)
{
    ShownButton next(library(), form, {20, 80, 140, 120});
    ASSERT_TRUE(kit::focus(button.window()));
    int paints = 0;
    next.events().action = [&](auto const& event) {
        if (event.id == kPaint && ++paints == 1) {
            EXPECT_EQ(next.differencesFrom(focused(normalLook())), "");
        }
    };
    ASSERT_TRUE(kit::focus(next.window()));
    next.events().action = nullptr;
    EXPECT_GT(paints, 0);
}

// Neither a window service nor a sibling repaints a button that nobody loaded and that stands alone.
TEST_F(FlatEmphasis, ofAButtonThatWasOnlyInitialisedComesAndGoesWithTheFocus)
{
    form.record().answer("Site.GetContainer", E_NOTIMPL);
    FlatButton fresh(library(), form, {20, 80, 140, 120}, L"Fresh");
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
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
}

// The caption starts where it does without the focus, and from there to the right its face covers the frame.
TEST_F(FlatEmphasis, theFaceOfACaptionWithASmallIndentCoversTheLeftSideOfTheFrame)
{
    button.setCaption(L"&Cover");
    ASSERT_TRUE(kit::focus(button.window()));
    for (SHORT const indent : std::initializer_list<SHORT>{0, 2, 3, 4}) {
        EXPECT_EQ(button->put_CaptionIndent(indent), S_OK);
        Look look = focused(normalLook());
        look.caption = L"&Cover";
        look.indent = indent;
        EXPECT_EQ(repaintedAgainst(look), "") << indent;
    }
}

TEST_F(FlatEmphasis, theFocusFrameOfABackColorOf808080IsE0E0E0)
{
    EXPECT_EQ(button->put_BackColor(0x808080), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    Look look = focused(normalLook());
    look.back = 0x808080;
    look.frame = 0xE0E0E0;
    EXPECT_EQ(repaintedAgainst(look), "");
    EXPECT_EQ(button->put_BackColor(0x808081), S_OK);
    look.back = 0x808081;
    look.frame = 0x808080;
    EXPECT_EQ(repaintedAgainst(look), "");
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
    EXPECT_EQ(repaintedAgainst(look), "");
}

TEST_F(FlatEmphasis, hotAndFocusedTheHotBorderIsOnePixelThicker)
{
    ASSERT_TRUE(kit::focus(button.window()));
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(3).get()), S_OK);
    button.makeHot();
    Look look = focused(hotLook());
    look.borderWidth = 3;
    look.frame = hotLook().back == 0x808080 ? 0xE0E0E0 : 0x808080;
    EXPECT_EQ(repaintedAgainst(look), "");
    button.leave();
}

TEST_F(FlatEmphasis, inTheTaskPaneLookAFocusedButtonAtRestHasABlackBorderOnePixelThicker)
{
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    Look look = focused(taskPaneNormalLook());
    look.border = 0;
    EXPECT_EQ(repaintedAgainst(look), "");
}

TEST_F(FlatEmphasis, aFocusedHotButtonOfTheTaskPaneHasTheBorderOfItsState)
{
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_HotBorderWidth(Variant::ofShort(2).get()), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    button.makeHot();
    Look look = taskPaneHotLook();
    look.borderWidth = 2;
    look.frame = 0x808080;
    EXPECT_EQ(repaintedAgainst(look), "");
    button.leave();
}

TEST_F(FlatEmphasis, inTheTaskPaneLookTheDefaultButtonAtRestHasABlackBorderOnePixelThicker)
{
    EXPECT_EQ(button->put_OfficeXPColors(VARIANT_TRUE), S_OK);
    Look look = emphasised(taskPaneNormalLook());
    look.border = 0;
    EXPECT_EQ(repaintedAgainst(look), "");
    button.makeHot();
    EXPECT_EQ(button.differencesFrom(taskPaneHotLook()), "");
    button.leave();
    EXPECT_EQ(button->put_Enabled(VARIANT_FALSE), S_OK);
    EXPECT_EQ(button.differencesFrom(taskPaneDisabledLook()), "");
}

TEST_F(FlatEmphasis, theDefaultButtonKeepsItWhileAnotherKindOfControlHasTheFocus)
{
    auto const textBox = kit::make<HostControl>(IID_IPicture);
    setActive(textBox.get());
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
    setActive(nullptr);
}

TEST_F(FlatEmphasis, theDefaultButtonLosesItWhileAHostsOwnButtonHasTheFocus)
{
    auto const hostButton = kit::make<HostControl>(kHostButton);
    setActive(hostButton.get());
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
    setActive(nullptr);
}

TEST_F(FlatEmphasis, theDefaultButtonLosesItToAHostsOwnButtonInsideAnExtender)
{
    auto const hostButton = kit::make<HostControl>(kHostButton);
    auto const extender = kit::make<kit::NamedObject>("Active", form.sharedRecord());
    extender->offer(L"Object", Variant::ofDispatch(hostButton.get()));
    setActive(extender.get());
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
    setActive(nullptr);
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
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
}

TEST_F(FlatEmphasis, theDefaultButtonHasItWhereTheActiveControlCannotBeRead)
{
    form.object().refuse(L"ActiveControl", E_FAIL);
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
}

TEST_F(FlatEmphasis, theDefaultButtonHasItWhereThereIsNoActiveControl)
{
    setActive(nullptr);
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
    form.object().offer(L"ActiveControl", Variant());
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
}

TEST_F(FlatEmphasis, theDefaultButtonHasItWhereTheExtenderHasNoParent)
{
    button.site().extender().remove(L"Parent");
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
    button.site().extender().offer(L"Parent", Variant::ofLong(5));
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
}

TEST_F(FlatEmphasis, nobodyIsDefaultWhereTheExtenderHasNoSuchMark)
{
    button.site().extender().remove(L"Default");
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
}

TEST_F(FlatEmphasis, nobodyIsDefaultWhereTheMarkCannotBeRead)
{
    button.site().extender().refuse(L"Default", E_FAIL);
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
}

TEST_F(FlatEmphasis, nobodyIsDefaultWhereThereIsNoExtender)
{
    form.record().answerNothing("Site.GetExtendedControl");
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
}

TEST_F(FlatEmphasis, theDefaultMarkMayBeAnyNumberThatIsNotZero)
{
    button.site().extender().offer(L"Default", Variant::ofLong(1));
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
    button.site().extender().offer(L"Default", Variant::ofLong(0));
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
}

TEST_F(FlatEmphasis, atDesignTimeAFocusedButtonHasNoFrame)
{
    button.site().extender().offer(L"Default", Variant::ofBool(false));
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(button.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    ASSERT_TRUE(kit::focus(button.window()));
    EXPECT_EQ(repaintedAgainst(emphasised(normalLook())), "");
}

TEST_F(FlatEmphasis, theDefaultButtonHasNoneAtDesignTime)
{
    button.site().setAmbient(DISPID_AMBIENT_USERMODE, Variant::ofBool(false));
    ASSERT_EQ(button.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_USERMODE), S_OK);
    EXPECT_EQ(repaintedAgainst(normalLook()), "");
}

} // namespace
} // namespace quillet::flat
