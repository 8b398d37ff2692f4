// The caption of qvFlatCommand: where it stands, and its access key.
#include "FlatButton.h"

namespace quillet::flat {
namespace {

using testing::UnorderedElementsAreArray;

using Key = kit::AccessKey;

class FlatCaption : public ShownTest {
protected:
    void expect(Look const& look) const { EXPECT_EQ(button.differencesFrom(look), ""); }
    /// The caption is set and shown as the expectation says.
    void expectShown(wchar_t const* caption)
    {
        SCOPED_TRACE(kit::narrow(caption));
        button.setCaption(caption);
        expect(normalLook(caption));
    }
    std::vector<Key> accelerators() const { return kit::accessKeys(button.object()); }
};

// Were there no font, empty pictures would be equal.
TEST_F(FlatCaption, isVisibleInTheExpectationItselfAndSoIsTheUnderline)
{
    kit::Canvas without(120, 40);
    kit::Canvas plain(120, 40);
    kit::Canvas marked(120, 40);
    paint(without, normalLook(), *formFont().get());
    paint(plain, normalLook(L"Save"), *formFont().get());
    paint(marked, normalLook(L"&Save"), *formFont().get());
    EXPECT_NE(kit::differences(without, plain), "");
    EXPECT_NE(kit::differences(plain, marked), "");
}

TEST_F(FlatCaption, hasTheCharacterBehindTheAmpersandUnderlined)
{
    expectShown(L"&Save");
    EXPECT_THAT(accelerators(), UnorderedElementsAreArray({Key{FALT, L's'}, Key{FALT, L'S'}}));
}

TEST_F(FlatCaption, holdingTwoAmpersandsInARowHasOnlyTheFirstRemovedAndTheSecondUnderlined)
{
    expectShown(L"Left && right");
    for (Key const& key : accelerators())
        EXPECT_EQ(key, (Key{FALT, L'&'}));
    EXPECT_FALSE(accelerators().empty());
}

TEST_F(FlatCaption, withoutAmpersandClearsAccessKeys)
{
    expectShown(L"&Keys");
    ASSERT_FALSE(accelerators().empty());
    expectShown(L"No keys");
    EXPECT_THAT(accelerators(), IsEmpty());
}

TEST_F(FlatCaption, hasItsMarkerAnywhere)
{
    expectShown(L"Sa&ve");
    EXPECT_THAT(accelerators(), UnorderedElementsAreArray({Key{FALT, L'v'}, Key{FALT, L'V'}}));
    expectShown(L"Save&!");
    expectShown(L"\x00C4nd&ern");
    expectShown(L"S&ave && &close");
    EXPECT_THAT(accelerators(), UnorderedElementsAreArray({Key{FALT, L'a'}, Key{FALT, L'A'}}));
}

TEST_F(FlatCaption, withTheMarkerAtItsEndHasNoAccessKey)
{
    expectShown(L"Save&");
    EXPECT_THAT(accelerators(), IsEmpty());
    expectShown(L"&");
    EXPECT_THAT(accelerators(), IsEmpty());
    expectShown(L"");
    EXPECT_THAT(accelerators(), IsEmpty());
}

// The mark's place is a 16-bit number.
TEST_F(FlatCaption, hasItsMarkAtThe32767thCharacterAtMost)
{
    std::wstring const before(32766, L' ');
    button.setCaption((before + L"&k").c_str());
    EXPECT_THAT(accelerators(), UnorderedElementsAreArray({Key{FALT, L'k'}, Key{FALT, L'K'}}));
}

TEST_F(FlatCaption, withAMarkBeyond16BitsEndsThePaintSilently)
{
    expectShown(L"&Old");
    std::wstring const before(32767, L' ');
    button.events().forget();
    EXPECT_EQ(button->put_Caption(Bstr(before + L"&k").get()), S_OK);
    EXPECT_EQ(button.events().count(kPaint), 1);
    EXPECT_EQ(button->DrawButton(), S_OK);
    expect(normalLook(L"&Old")); // a paint that ends early shows nothing
    EXPECT_THAT(accelerators(), UnorderedElementsAreArray({Key{FALT, L'o'}, Key{FALT, L'O'}}));
    expectShown(L"&New");
}

TEST_F(FlatCaption, longerThanTheButtonIsCutAtTheBorder)
{
    expectShown(L"A rather &long caption that goes on and on and on");
    EXPECT_EQ(button->put_CaptionIndent(100), S_OK);
    Look look = normalLook(button.caption());
    look.indent = 100;
    expect(look);
}

TEST_F(FlatCaption, startsItsIndentInsideTheBorderOfTheState)
{
    button.setCaption(L"&Indented");
    for (short const indent : std::initializer_list<short>{0, 1, 25, -3}) {
        SCOPED_TRACE(indent);
        EXPECT_EQ(button->put_CaptionIndent(indent), S_OK);
        button.setWidth(3);
        Look look = withBorder(3, normalLook(L"&Indented"));
        look.indent = indent;
        expect(look);
    }
}

// Both halves of a pixel: one size of each kind is odd against the text's.
TEST_F(FlatCaption, isCentredBothWaysAndRoundedToTheEvenPixel)
{
    button.setCaption(L"Cen&tre");
    EXPECT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
    Look look = normalLook(L"Cen&tre");
    look.centred = true;
    for (int extra = 0; extra < 4; ++extra) {
        SCOPED_TRACE(extra);
        button.place({20, 30, 140 + extra, 70 + extra});
        ASSERT_EQ(button->Refresh(), S_OK);
        expect(look);
    }
}

TEST_F(FlatCaption, centredIgnoresTheIndent)
{
    button.setCaption(L"Centre");
    EXPECT_EQ(button->put_CentreCaption(VARIANT_TRUE), S_OK);
    EXPECT_EQ(button->put_CaptionIndent(40), S_OK);
    Look look = normalLook(L"Centre");
    look.centred = true;
    expect(look);
}

// What the code page has no place for is drawn as something else, which has another width.
TEST_F(FlatCaption, standsWhereItStandsWhenItIsWrittenInTheCodePage)
{
    for (wchar_t const* const caption : {L"\x4E2D\x0E01 &Save", L"S&\x4E2D\x0E01ve", L"\x4E2D\x0416\x4E2D"})
        for (bool const centred : {false, true}) {
            SCOPED_TRACE(kit::narrow(caption) + (centred ? " centred" : ""));
            button.setCaption(caption);
            EXPECT_EQ(button->put_CentreCaption(centred ? VARIANT_TRUE : VARIANT_FALSE), S_OK);
            Look look = normalLook(kit::inCodePage(caption));
            look.centred = centred;
            expect(look);
        }
}

TEST_F(FlatCaption, followsTheFont)
{
    button.setFont(kit::newFont(L"Tahoma", 16, true).get());
    expectShown(L"B&ig");
}

TEST_F(FlatCaption, isUnderlinedInTheFontOfNow)
{
    expectShown(L"&Old");
    button.setFont(kit::newFont(L"Tahoma", 16, true).get());
    expectShown(L"&Old");
    ASSERT_EQ(button.font()->put_Bold(FALSE), S_OK); // no setter of the button's own
    expectShown(L"&Old");
}

TEST_F(FlatCaption, leavesTheFontWithoutUnderline)
{
    expectShown(L"Und&er");
    EXPECT_FALSE(kit::isUnderlined(*button.font().get()));
    auto const underlined = kit::copyOf(*formFont().get(), true);
    button.setFont(underlined.get());
    EXPECT_TRUE(kit::isUnderlined(*underlined.get())) << "the font of whoever gave it was changed";
    EXPECT_FALSE(kit::isUnderlined(*button.font().get()));
    expectShown(L"Plain now");
}

TEST_F(FlatCaption, takesTheUnderlineOffWithoutTellingOfAChange)
{
    button.changes().take();
    button.setFont(kit::copyOf(*formFont().get(), true).get());
    EXPECT_FALSE(kit::isUnderlined(*button.font().get()));
    EXPECT_THAT(button.changes().take(), ElementsAreArray({DISPID_FONT})) << "the setter's own, and no other";
}

TEST_F(FlatCaption, doesNotUnderlineTheFormsOwnFontNorTheFontOfASibling)
{
    auto const shared = formFont();
    button.offerFont(shared.get());
    ShownButton sibling(library(), form, kPlaceBelow);
    button.setFont(shared.get());
    sibling.setFont(shared.get());
    button.setCaption(L"&One");
    sibling.setCaption(L"T&wo");
    EXPECT_FALSE(kit::isUnderlined(*shared.get()));
    expect(normalLook(L"&One"));
}

TEST_F(FlatCaption, tellsTheContainerOfAccessKeysOnlyWhenTheyChange)
{
    form.record().forget();
    auto const told = [&] { return form.record().count("Site.OnControlInfoChanged"); };
    button.setCaption(L"&Save");
    EXPECT_EQ(told(), 1);
    ASSERT_EQ(button->Refresh(), S_OK);
    for (auto const& [caption, times] : {std::pair{L"&Store", 1}, {L"S&tore", 2}, {L"Store", 3}}) {
        button.setCaption(caption);
        EXPECT_EQ(told(), times);
    }
    kit::pumpPending();
    EXPECT_EQ(told(), 3);
}

} // namespace
} // namespace quillet::flat
