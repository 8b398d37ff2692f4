// Both classes in a property bag: names, order, types, defaults.
#include "Pictures.h"
#include "SavedRows.h"
#include "kit/ByName.h"
#include "kit/Errors.h"
#include "kit/Fonts.h"
#include "kit/Pump.h"

#include <algorithm>

namespace quillet::image {
namespace {

using testing::AnyOf;
using testing::ElementsAreArray;
using testing::IsEmpty;

class ImageBag : public ImageTest {
protected:
    ImageButton button{library(), form, kind()};
    ComPtr<kit::FakeBag> bag = kit::make<kit::FakeBag>();

    void SetUp() override
    {
        ImageTest::SetUp();
        ASSERT_EQ(button.setSite(), S_OK);
    }
    HRESULT load() { return button.Hosted::load(*bag.get()); }
    void putAllValues()
    {
        for (SavedRow const& row : savedRows())
            if (row.type != VT_UNKNOWN)
                bag->put(row.name, row.otherThanDefault(kind()));
    }
    static void putObject(kit::FakeBag& bag, wchar_t const* name, IUnknown* object)
    {
        bag.put(name, Variant::ofDispatch(query<IDispatch>(object).get()));
    }
    ComPtr<IFont> checkedFont()
    {
        ComPtr<IFontDisp> font;
        EXPECT_EQ(button->get_CheckedFont(font.put()), S_OK);
        return query<IFont>(font.get());
    }
    void putAllObjects()
    {
        putObject(*bag.get(), L"Font", kit::newFont(L"Tahoma", 22).get());
        putObject(*bag.get(), L"CheckedFont", kit::newFont(L"Tahoma", 23).get());
        putObject(*bag.get(), L"MouseIcon", kit::newIconPicture().get());
        putObject(*bag.get(), L"Image", pictureOf(kImage).get());
        putObject(*bag.get(), L"DisabledImage", pictureOf(kDisabled).get());
        putObject(*bag.get(), L"HotImage", pictureOf(kHot).get());
        putObject(*bag.get(), L"PressedImage", pictureOf(kPressed).get());
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
    putAllValues();
    putAllObjects();
    ASSERT_EQ(load(), S_OK);
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN) {
            EXPECT_EQ(valueOf(button, row.name), textOf(row.otherThanDefault(kind())))
                << kit::narrow(row.name);
        }
    for (wchar_t const* const name : {L"Image", L"DisabledImage", L"HotImage", L"PressedImage"}) {
        ComPtr<IUnknown> const kept = kit::getByName(*button.dual(), name).value.toObject();
        EXPECT_EQ(query<IPictureDisp>(kept.get()).get(),
                  query<IPictureDisp>(bag->value(name).toObject().get()).get())
            << "the very object";
    }
    EXPECT_EQ(kit::pointsOf(*button.font().get()), 22);
    EXPECT_EQ(kit::pointsOf(*checkedFont().get()), 23);
}

TEST_P(ImageBag, givesTheDefaultsOfItsClassWhereItHasNothing)
{
    putAllValues();
    putAllObjects();
    ASSERT_EQ(load(), S_OK);
    auto const empty = kit::make<kit::FakeBag>();
    ASSERT_EQ(button.Hosted::load(*empty.get()), S_OK);
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN) {
            EXPECT_EQ(valueOf(button, row.name), textOf(row.defaultOf(kind()))) << kit::narrow(row.name);
        }
    for (wchar_t const* const name : {L"Image", L"DisabledImage", L"HotImage", L"PressedImage", L"MouseIcon"})
        EXPECT_FALSE(kit::getByName(*button.dual(), name).value.toObject()) << kit::narrow(name);
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get()));
    EXPECT_TRUE(kit::equalFonts(*checkedFont().get(), *formFont().get()));
}

TEST_P(ImageBag, paintsOnceAndChangesNothingWhenItIsLoaded)
{
    putAllValues();
    bag->put(L"Active", Variant::ofBool(true));
    putAllObjects();
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
    button.events().action = [&](auto const&) {
        subclassed = ::GetWindowLongPtrA(window, GWLP_USERDATA) != 0;
    };
    ASSERT_EQ(load(), S_OK);
    button.events().action = nullptr;
    EXPECT_TRUE(subclassed);
}

TEST_P(ImageBag, givesTheAccessKeyBeforeAnybodyShowsTheButton)
{
    bag->put(L"Caption", Variant::ofString(L"&Save"));
    ASSERT_EQ(load(), S_OK);
    CONTROLINFO info{};
    info.cb = sizeof info;
    ASSERT_EQ(button.as<IOleControl>()->GetControlInfo(&info), S_OK);
    EXPECT_EQ(info.cAccel, 2);
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
    for (Variant const& value :
         {Variant::ofShort(-1), Variant::ofShort(1), Variant::ofBool(true), Variant::ofLong(2)}) {
        bag->put(L"OfficeXPColors", value);
        ASSERT_EQ(load(), S_OK);
        EXPECT_EQ(valueOf(button, L"OfficeXPColors"), "-1");
    }
    bag->put(L"OfficeXPColors", Variant::ofShort(0));
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(valueOf(button, L"OfficeXPColors"), "0");
}

TEST_P(ImageBag, takesAPictureOfAnyKindWithoutATest)
{
    putObject(*bag.get(), L"Image", metafilePicture().get());
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(valueOf(button, L"Image").substr(0, 9), "picture 4");
}

TEST_P(ImageBag, getsNothingOfANewButton)
{
    ASSERT_EQ(button.initNew(), S_OK);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
    ASSERT_EQ(button.save(*bag.get(), true, true), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
}

TEST_P(ImageBag, getsNothingOfAButtonThatWasLoadedFromNothing)
{
    ASSERT_EQ(load(), S_OK);
    ASSERT_EQ(button.save(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesWritten(), IsEmpty());
}

TEST_P(ImageBag, getsEveryOtherValueInOrderAndInItsType)
{
    putAllValues();
    putAllObjects();
    ASSERT_EQ(load(), S_OK);
    auto const saved = kit::make<kit::FakeBag>();
    ASSERT_EQ(button.save(*saved.get()), S_OK);
    EXPECT_THAT(saved->namesWritten(), ElementsAreArray(savedNames()));
    ASSERT_EQ(saved->writes.size(), savedRows().size());
    for (size_t i = 0; i < savedRows().size(); ++i) {
        SavedRow const& row = savedRows()[i];
        EXPECT_EQ(saved->writes[i].type, row.type) << kit::narrow(row.name);
        if (row.type != VT_UNKNOWN) {
            EXPECT_EQ(textOf(saved->writes[i].value), textOf(row.otherThanDefault(kind())));
        }
    }
}

TEST_P(ImageBag, getsADefaultOfTheOtherClassOnlyWhereItIsNotTheOwn)
{
    Kind const& other = kind().isTool ? imageCommand() : toolButton();
    ASSERT_EQ(load(), S_OK);
    std::vector<std::wstring> expected;
    for (SavedRow const& row : savedRows()) {
        if (row.type == VT_UNKNOWN || row.type == VT_BSTR)
            continue;
        ASSERT_EQ(kit::putByName(*button.dual(), row.name, row.defaultOf(other)).result, S_OK);
        if (textOf(row.imageDefault) != textOf(row.toolDefault))
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
    putAllValues();
    putAllObjects();
    bag->fail(L"HotImage", E_FAIL);
    ASSERT_EQ(load(), S_OK);
    EXPECT_EQ(valueOf(button, L"HotImage"), "none");
    EXPECT_NE(valueOf(button, L"PressedImage"), "none");
    EXPECT_EQ(valueOf(button, L"OfficeXPColors"), "-1");
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
