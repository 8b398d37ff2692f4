// Both classes in a property bag: names, order, types, defaults.
#include "ImageButton.h"
#include "Pictures.h"
#include "kit/Errors.h"

#include <algorithm>

namespace quillet::image {
namespace {

constexpr wchar_t const* kPictureNames[] = {L"Image", L"DisabledImage", L"HotImage", L"PressedImage"};

class ImageBag : public SitedTest {
protected:
    ComPtr<kit::FakeBag> bag = kit::make<kit::FakeBag>();

    HRESULT load() { return button.load(*bag.get()); }
    /// Every value another one, and every object.
    void loadAll()
    {
        putAll();
        ASSERT_EQ(load(), S_OK);
    }
    void putAllValues()
    {
        for (SavedRow const& row : savedValues())
            bag->put(row.name, row.otherThanDefault(kind()));
    }
    void putAll()
    {
        putAllValues();
        putObject(L"Font", kit::newFont(L"Tahoma", 22).get());
        putObject(L"CheckedFont", kit::newFont(L"Tahoma", 23).get());
        putObject(L"MouseIcon", kit::newIconPicture().get());
        for (wchar_t const* const name : kPictureNames)
            putObject(name, pictureOf(kImage).get());
    }
    void putObject(wchar_t const* name, IUnknown* object)
    {
        bag->put(name, Variant::ofDispatch(query<IDispatch>(object).get()));
    }
    std::string value(wchar_t const* name) const { return valueOf(button, name); }
    static ComPtr<IPictureDisp> pictureIn(Variant const& value)
    {
        return query<IPictureDisp>(value.toObject().get());
    }
    void expectNothingSaved(bool allProperties = false)
    {
        ASSERT_EQ(button.save(*bag.get(), true, allProperties), S_OK);
        EXPECT_THAT(bag->namesWritten(), IsEmpty());
    }
};
QV_BOTH_CLASSES(ImageBag);

TEST_P(ImageBag, hasFortyTwoNames) { EXPECT_EQ(savedRows().size(), 42U); }

TEST_P(ImageBag, isReadByEachNameOnceAndInOrder)
{
    ASSERT_EQ(load(), S_OK);
    EXPECT_THAT(bag->namesRead(), ElementsAreArray(savedNames()));
}

TEST_P(ImageBag, isAskedForEachValueInItsSavedTypeOrInAny)
{
    putAllValues();
    ASSERT_EQ(load(), S_OK);
    ASSERT_EQ(bag->reads.size(), savedRows().size());
    for (size_t i = 0; i < savedRows().size(); ++i) {
        VARTYPE const type = savedRows()[i].type;
        if (type == VT_UNKNOWN)
            EXPECT_THAT(bag->reads[i].type, AnyOf(VT_EMPTY, VT_UNKNOWN, VT_DISPATCH)) << i;
        else
            EXPECT_THAT(bag->reads[i].type, AnyOf(VT_EMPTY, type)) << i;
    }
}

TEST_P(ImageBag, givesEveryValue)
{
    loadAll();
    for (SavedRow const& row : savedValues())
        EXPECT_EQ(value(row.name), kit::textOf(row.otherThanDefault(kind()))) << kit::narrow(row.name);
    for (wchar_t const* const name : kPictureNames)
        EXPECT_EQ(pictureIn(kit::getByName(*button.dual(), name).value).get(),
                  pictureIn(bag->value(name)).get())
            << "the very object";
    EXPECT_EQ(kit::pointsOf(*button.font().get()), 22);
    EXPECT_EQ(kit::pointsOf(*button.checkedFont().get()), 23);
}

TEST_P(ImageBag, givesTheDefaultsOfItsClassWhereItHasNothing)
{
    loadAll();
    auto const empty = kit::make<kit::FakeBag>();
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    for (SavedRow const& row : savedValues())
        EXPECT_EQ(value(row.name), kit::textOf(row.defaultOf(kind()))) << kit::narrow(row.name);
    for (wchar_t const* const name : {L"Image", L"DisabledImage", L"HotImage", L"PressedImage", L"MouseIcon"})
        EXPECT_FALSE(kit::getByName(*button.dual(), name).value.toObject()) << kit::narrow(name);
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get()));
    EXPECT_TRUE(kit::equalFonts(*button.checkedFont().get(), *formFont().get()));
}

TEST_P(ImageBag, paintsOnceAndChangesNothingWhenItIsLoaded)
{
    putAll();
    bag->put(L"Active", Variant::ofBool(true));
    button.forget();
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(button.paints(), 1);
    EXPECT_EQ(button.widths(), 0) << "loading does not measure";
    EXPECT_THAT(button.changes().take(), IsEmpty());
    EXPECT_EQ(button.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST_P(ImageBag, isFollowedByTheToolTipAndThenByThePaint)
{
    HWND const window = button.window();
    ASSERT_EQ(::GetWindowLongPtrA(window, GWLP_USERDATA), 0);
    bool subclassed = false;
    kit::Inside const any(button, "", [&] { subclassed = ::GetWindowLongPtrA(window, GWLP_USERDATA) != 0; });
    ASSERT_EQ(load(), S_OK);
    EXPECT_TRUE(subclassed);
}

TEST_P(ImageBag, givesTheAccessKeyBeforeAnybodyShowsTheButton)
{
    bag->put(L"Caption", Variant::ofString(L"&Save"));
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(kit::accessKeys(button.object()).size(), 2U);
}

TEST_P(ImageBag, leavesTheBackColourOfATaskPaneButtonAsItWasSaved)
{
    bag->put(L"BackColor", Variant::ofLong(0x123456));
    bag->put(L"OfficeXPColors", Variant::ofShort(-1));
    ASSERT_EQ(load(), S_OK);
    OLE_COLOR color = 0;
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x123456U);
}

TEST_P(ImageBag, takesOfficeXPColorsAsNumberAndAsBoolean)
{
    for (Variant const& given :
         {Variant::ofShort(-1), Variant::ofShort(1), Variant::ofBool(true), Variant::ofLong(2)}) {
        bag->put(L"OfficeXPColors", given);
        ASSERT_EQ(load(), S_OK);
        EXPECT_EQ(value(L"OfficeXPColors"), "-1");
    }
    bag->put(L"OfficeXPColors", Variant::ofShort(0));
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(value(L"OfficeXPColors"), "0");
}

TEST_P(ImageBag, takesAPictureOfAnyKindWithoutATest)
{
    putObject(L"Image", metafilePicture().get());
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(value(L"Image").substr(0, 9), "picture 4");
}

TEST_P(ImageBag, getsNothingOfANewButton)
{
    ASSERT_EQ(button.initNew(), S_OK);
    expectNothingSaved();
    expectNothingSaved(true);
}

TEST_P(ImageBag, getsNothingOfAButtonThatWasLoadedFromNothing)
{
    ASSERT_EQ(load(), S_OK);
    expectNothingSaved();
}

TEST_P(ImageBag, getsEveryOtherValueInOrderAndInItsType)
{
    loadAll();
    auto const saved = kit::make<kit::FakeBag>();
    ASSERT_EQ(button.save(*saved.get()), S_OK);
    EXPECT_THAT(saved->namesWritten(), ElementsAreArray(savedNames()));
    ASSERT_EQ(saved->writes.size(), savedRows().size());
    for (size_t i = 0; i < savedRows().size(); ++i) {
        SavedRow const& row = savedRows()[i];
        EXPECT_EQ(saved->writes[i].type, row.type) << kit::narrow(row.name);
        if (row.type != VT_UNKNOWN) {
            EXPECT_EQ(kit::textOf(saved->writes[i].value), kit::textOf(row.otherThanDefault(kind())));
        }
    }
}

TEST_P(ImageBag, getsADefaultOfTheOtherClassOnlyWhereItIsNotTheOwn)
{
    Kind const& other = kind().isTool ? imageCommand() : toolButton();
    ASSERT_EQ(load(), S_OK);
    std::vector<std::wstring> expected;
    for (SavedRow const& row : savedValues()) {
        if (row.type == VT_BSTR)
            continue;
        ASSERT_EQ(kit::putByName(*button.dual(), row.name, row.defaultOf(other)).result, S_OK);
        if (kit::textOf(row.imageDefault) != kit::textOf(row.toolDefault))
            expected.push_back(row.name);
    }
    ASSERT_EQ(expected.size(), 14U);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), ElementsAreArray(expected));
}

TEST_P(ImageBag, getsNoStyleThatDoesNotFitItsTypeLost)
{
    ASSERT_EQ(load(), S_OK);
    ASSERT_EQ(kit::putByName(*button.dual(), L"BorderStyle", Variant::ofLong(100000)).result, S_OK);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_EQ(bag->value(L"BorderStyle").toLong(), 100000);
}

TEST_P(ImageBag, thatCannotGiveAPictureCostsNothingElse)
{
    putAll();
    bag->fail(L"HotImage", E_FAIL);
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(value(L"HotImage"), "none");
    EXPECT_NE(value(L"PressedImage"), "none");
    EXPECT_EQ(value(L"OfficeXPColors"), "-1");
}

TEST_P(ImageBag, withAValueThatDoesNotConvertIsRefusedAndChangesNothing)
{
    ASSERT_EQ(load(), S_OK);
    auto const before = stateOf(button);
    putAllValues();
    bag->put(L"OfficeXPColors", Variant::ofString(L"perhaps"));
    EXPECT_EQ(load(), kTypeMismatch);
    EXPECT_EQ(stateOf(button), before);
    bag->put(L"OfficeXPColors", Variant::ofShort(0));
    bag->put(L"BorderWidth", Variant::ofLong(40000));
    EXPECT_EQ(load(), kOverflow);
    EXPECT_EQ(stateOf(button), before);
}

} // namespace
} // namespace quillet::image
