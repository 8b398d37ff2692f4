// A new qvFlatCommand: what it asks of its container, in which order, and what it makes of the answers.
#include "FlatButton.h"
#include "drawing/SystemColours.h"
#include "kit/FakeBag.h"

#include <algorithm>

namespace quillet::flat {
namespace {

class FlatInit : public FlatTest {
protected:
    FlatButton button{library(), form};

    /// The place of the first such call in the record; -1 when it never came.
    ptrdiff_t firstOf(std::string const& call)
    {
        auto const& calls = form.record().calls();
        auto const found = std::ranges::find(calls, call);
        return found == calls.end() ? -1 : found - calls.begin();
    }
    void initialise()
    {
        ASSERT_EQ(button.setSite(), S_OK);
        form.record().forget();
        ASSERT_EQ(button.initNew(), S_OK);
    }
    void expectInitialised(wchar_t const* caption)
    {
        initialise();
        EXPECT_EQ(button.caption(), caption);
    }
    void expectFont(char const* where)
    {
        initialise();
        EXPECT_TRUE(button.font()) << where;
    }
};

TEST_F(FlatInit, asksForTheFormsFontBeforeTheExtendersName)
{
    initialise();
    EXPECT_GE(firstOf("Ambient(-703)"), 0);
    EXPECT_GT(firstOf("Extender.Name"), firstOf("Ambient(-703)"));
}

TEST_F(FlatInit, aNewInstancesCaptionEqualsItsExtenderName)
{
    button.site().extender().offer(L"Name", Variant::ofString(L"cmdOpen & Co"));
    expectInitialised(L"cmdOpen & Co");
}

TEST_F(FlatInit, theSameInstanceLoadedFromABagWithoutCaptionShowsAnEmptyCaption)
{
    initialise();
    ASSERT_EQ(button.caption(), L"Button1");
    auto const bag = kit::make<kit::FakeBag>();
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_EQ(button.caption(), L"");
}

TEST_F(FlatInit, theCaptionIsEmptyWhereTheExtenderHasNoName)
{
    button.site().extender().remove(L"Name");
    expectInitialised(L"");
}

TEST_F(FlatInit, theCaptionIsEmptyWhereTheNameCannotBeRead)
{
    button.site().extender().refuse(L"Name", E_ACCESSDENIED);
    expectInitialised(L"");
}

TEST_F(FlatInit, theCaptionIsEmptyWhereTheNameIsNoText)
{
    button.site().extender().offer(L"Name", Variant::ofUnknown(form.frame().unknown()));
    expectInitialised(L"");
}

TEST_F(FlatInit, theCaptionIsEmptyWhereThereIsNoExtender)
{
    form.record().answerNothing("Site.GetExtendedControl");
    expectInitialised(L"");
}

TEST_F(FlatInit, theCaptionIsEmptyWhereTheExtenderIsRefused)
{
    form.record().answer("Site.GetExtendedControl", E_NOTIMPL);
    expectInitialised(L"");
}

TEST_F(FlatInit, theCaptionIsEmptyWhereTheSiteIsNoControlSite)
{
    button.site().hide(__uuidof(IOleControlSite));
    expectInitialised(L"");
}

TEST_F(FlatInit, worksWithoutASite)
{
    EXPECT_EQ(button.initNew(), S_OK);
    EXPECT_EQ(button.caption(), L"");
    EXPECT_TRUE(button.font());
}

TEST_F(FlatInit, takesTheFormsFontByValue)
{
    button.offerFont(kit::newFont(L"Tahoma", 21, true).get());
    initialise();
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *kit::newFont(L"Tahoma", 21, true).get()));
}

TEST_F(FlatInit, hasAFontWhereTheFormOffersNoneFailsHandsOutNothingOrSomethingElse)
{
    button.site().removeAmbient(DISPID_AMBIENT_FONT);
    expectFont("missing");
    button.site().setAmbient(DISPID_AMBIENT_FONT, Variant::ofDispatch(nullptr));
    expectFont("S_OK with nothing");
    button.site().setAmbient(DISPID_AMBIENT_FONT, Variant::ofLong(12));
    expectFont("a number");
    button.site().setAmbient(DISPID_AMBIENT_FONT, Variant::ofDispatch(&form.object()));
    expectFont("an object that is no font");
    form.record().answer("Ambient(-703)", E_UNEXPECTED);
    expectFont("failing");
}

TEST_F(FlatInit, hasAFontWhereTheSiteHasNoAmbientProperties)
{
    button.site().hide(IID_IDispatch);
    initialise();
    EXPECT_TRUE(button.font());
}

TEST_F(FlatInit, leavesBackAndForeColourAloneWhateverTheFormsAre)
{
    button.site().setAmbient(DISPID_AMBIENT_BACKCOLOR, Variant::ofLong(0x0000FF));
    button.site().setAmbient(DISPID_AMBIENT_FORECOLOR, Variant::ofLong(0x00FF00));
    initialise();
    OLE_COLOR color = 0;
    button->get_BackColor(&color);
    EXPECT_EQ(color, colour::kButtonFace);
    button->get_ForeColor(&color);
    EXPECT_EQ(color, colour::kButtonText);
    ASSERT_EQ(button->put_BackColor(0x112233), S_OK);
    ASSERT_EQ(button->put_ForeColor(0x332211), S_OK);
    initialise();
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x112233U);
    button->get_ForeColor(&color);
    EXPECT_EQ(color, 0x332211U);
}

TEST_F(FlatInit, setsEveryOtherSavedPropertyBackToItsInitialValue)
{
    initialise();
    auto const initial = stateOf(button);
    std::wstring const ofTheSurface = L"BackColor ForeColor Enabled MousePointer MouseIcon";
    for (SavedRow const& row : savedRows())
        if (ofTheSurface.find(row.name) == std::wstring::npos)
            button.assign(row);
    EXPECT_NE(stateOf(button), initial);
    initialise();
    EXPECT_EQ(stateOf(button), initial);
}

TEST_F(FlatInit, paintsOnceBecauseTheFontIsAssigned)
{
    ASSERT_EQ(button.setSite(), S_OK);
    button.forget();
    ASSERT_EQ(button.initNew(), S_OK);
    EXPECT_EQ(button.paints(), 1);
    EXPECT_THAT(button.changes().take(), testing::ElementsAreArray({DISPID_FONT}));
}

TEST_F(FlatInit, loadingPaintsOnceBecauseTheFontIsAssigned)
{
    ASSERT_EQ(button.setSite(), S_OK);
    auto const bag = kit::make<kit::FakeBag>();
    button.events().forget();
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_EQ(button.paints(), 1);
}

TEST_F(FlatInit, throughABagIsTheSame)
{
    ASSERT_EQ(button.setSite(), S_OK);
    ASSERT_EQ(button.as<IPersistPropertyBag>()->InitNew(), S_OK);
    EXPECT_EQ(button.caption(), L"Button1");
}

} // namespace
} // namespace quillet::flat
