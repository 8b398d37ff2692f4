// The form's automation face, its collections, and the ambients of its sites.
#include "gallery/host/FormObject.h"

#include "gallery/FormKit.h"
#include "gallery/host/Extender.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillet::gallery::test {
namespace {

using ::testing::ElementsAre;

std::string const kObjectForm =
    "Caption = \"A form\"\nBackColor = &H00FF0000&\n"
    "BeginProperty Font\nSize = 18\nItalic = -1\nEndProperty\n" +
    node("VB.Label", "Hint") +
    node("VB.Frame", "Group", "", node("Fake.Button", "Inner") + node("VB.TextBox", "Text")) +
    node("Fake.Button", "Outer");

IDispatch& controls(FormKit& kit, Variant& keeper)
{
    keeper = getByName(kit.form().object(), L"Controls");
    return *keeper.get().pdispVal;
}

Variant itemOf(IDispatch& collection, Variant index)
{
    DISPPARAMS params{index.address(), nullptr, 1, 0};
    Variant item;
    check(collection.Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_PROPERTYGET, &params, item.put(), nullptr,
                            nullptr));
    return item;
}

std::wstring nameOf(Variant const& extender)
{
    return std::wstring(getByName(*extender.toObject().as<IDispatch>().get(), L"Name").toString().view());
}

TEST(FormObject, controlsAreCountedAndFoundByIndexFromZeroAndByName)
{
    FormKit kit(kObjectForm);
    Variant keeper;
    IDispatch& all = controls(kit, keeper);
    EXPECT_EQ(getByName(all, L"Count").toLong(), 5);
    EXPECT_EQ(nameOf(itemOf(all, Variant::ofLong(0))), L"Hint");
    EXPECT_EQ(nameOf(itemOf(all, Variant::ofShort(2))), L"Inner");
    EXPECT_EQ(nameOf(itemOf(all, Variant::ofString(L"outer"))), L"Outer");
    EXPECT_THROW(itemOf(all, Variant::ofLong(5)), RunTimeError);
    EXPECT_THROW(itemOf(all, Variant::ofLong(-1)), RunTimeError);
    EXPECT_THROW(itemOf(all, Variant::ofString(L"frog")), RunTimeError);
}

TEST(FormObject, forEachVisitsEveryControlInTheFormsOrder)
{
    FormKit kit(kObjectForm);
    Variant keeper;
    DISPPARAMS none{};
    Variant made;
    check(
        controls(kit, keeper)
            .Invoke(DISPID_NEWENUM, IID_NULL, 0, DISPATCH_PROPERTYGET, &none, made.put(), nullptr, nullptr));
    auto const all = made.toObject().as<IEnumVARIANT>();
    ASSERT_TRUE(all);
    std::vector<std::wstring> names;
    Variant item;
    while (all->Next(1, item.put(), nullptr) == S_OK)
        names.push_back(nameOf(item));
    EXPECT_THAT(names, ElementsAre(L"Hint", L"Group", L"Inner", L"Text", L"Outer"));
}

TEST(FormObject, aControlIsAMemberOfItsForm)
{
    FormKit kit(kObjectForm);
    EXPECT_EQ(nameOf(getByName(kit.form().object(), L"inner")), L"Inner");
    EXPECT_EQ(getByName(kit.form().object(), L"Caption").toString().view(), L"A form");
    putByName(kit.form().object(), L"Caption", Variant::ofString(L"New"));
    EXPECT_EQ(kit.form().caption(), L"New");
}

std::vector<ComPtr<IUnknown>> enumerated(FormKit& kit, DWORD flags)
{
    ComPtr<IEnumUnknown> all;
    check(kit.form().object().EnumObjects(flags, all.put()));
    std::vector<ComPtr<IUnknown>> objects;
    ComPtr<IUnknown> next;
    ULONG fetched = 0;
    while (all->Next(1, next.put(), &fetched) == S_OK)
        objects.push_back(next);
    return objects;
}

TEST(FormObject, theContainerEnumeratesControlsThemselvesByTheirKind)
{
    FormKit kit(kObjectForm);
    auto const embedded = enumerated(kit, OLECONTF_EMBEDDINGS);
    ASSERT_EQ(embedded.size(), 2u);
    EXPECT_EQ(embedded[0].get(), kit.control(L"Inner").object());
    EXPECT_EQ(embedded[1].get(), kit.control(L"Outer").object());
    EXPECT_EQ(enumerated(kit, OLECONTF_OTHERS).size(), 3u);
    EXPECT_EQ(enumerated(kit, OLECONTF_EMBEDDINGS | OLECONTF_OTHERS).size(), 5u);
    EXPECT_TRUE(enumerated(kit, OLECONTF_LINKS).empty());
    EXPECT_EQ(kit.form().object().EnumObjects(OLECONTF_EMBEDDINGS, nullptr), E_POINTER);
}

TEST(FormObject, aSitesContainerIsTheForm)
{
    FormKit kit(kObjectForm);
    ComPtr<IOleContainer> container;
    ASSERT_EQ(kit.fake(L"Inner").site()->GetContainer(container.put()), S_OK);
    EXPECT_EQ(container.as<IDispatch>().get(), static_cast<IDispatch*>(&kit.form().object()));
}

TEST(Ambients, theFormsLookAndModeReachTheControl)
{
    FormKit kit(kObjectForm);
    FakeControl& fake = kit.fake(L"Inner");
    EXPECT_EQ(fake.ambient(DISPID_AMBIENT_BACKCOLOR).toLong(), 0xFF0000);
    EXPECT_EQ(fake.ambient(DISPID_AMBIENT_FORECOLOR).toLong(), static_cast<long>(0x80000012));
    EXPECT_EQ(fake.ambient(DISPID_AMBIENT_DISPLAYNAME).toString().view(), L"Inner");
    EXPECT_EQ(fake.ambient(DISPID_AMBIENT_SCALEUNITS).toString().view(), L"Twip");
    EXPECT_EQ(fake.ambient(DISPID_AMBIENT_LOCALEID).toLong(), static_cast<long>(::GetUserDefaultLCID()));
    EXPECT_EQ(fake.ambient(DISPID_AMBIENT_APPEARANCE).toShort(), 1);
    EXPECT_EQ(fake.ambient(DISPID_AMBIENT_TEXTALIGN).toShort(), 0);
    auto const font = fake.ambient(DISPID_AMBIENT_FONT).toObject().as<IFont>();
    ASSERT_TRUE(font);
    CY size{};
    font->get_Size(&size);
    EXPECT_NEAR(static_cast<double>(size.int64), 180000, 7500); // the system rounds to whole pixels
    BOOL isItalic = FALSE;
    font->get_Italic(&isItalic);
    EXPECT_TRUE(isItalic);
}

TEST(Ambients, flagsHaveTheirRunTimeValues)
{
    FormKit kit(kObjectForm);
    FakeControl& fake = kit.fake(L"Inner");
    for (DISPID const on : {DISPID_AMBIENT_USERMODE, DISPID_AMBIENT_SUPPORTSMNEMONICS})
        EXPECT_TRUE(fake.ambient(on).toBool()) << on;
    for (DISPID const off :
         {DISPID_AMBIENT_UIDEAD, DISPID_AMBIENT_DISPLAYASDEFAULT, DISPID_AMBIENT_MESSAGEREFLECT,
          DISPID_AMBIENT_SHOWGRABHANDLES, DISPID_AMBIENT_SHOWHATCHING, DISPID_AMBIENT_RIGHTTOLEFT}) {
        EXPECT_EQ(fake.ambient(off).type(), VT_BOOL) << off;
        EXPECT_FALSE(fake.ambient(off).toBool()) << off;
    }
    EXPECT_THROW(fake.ambient(DISPID_AMBIENT_PALETTE), RunTimeError);
}

TEST(Ambients, theyAreFoundByNameToo)
{
    FormKit kit(kObjectForm);
    auto const ambients = query<IDispatch>(kit.fake(L"Inner").site());
    EXPECT_TRUE(getByName(*ambients.get(), L"UserMode").toBool());
    EXPECT_THROW(putByName(*ambients.get(), L"UserMode", Variant::ofBool(false)), RunTimeError);
}

TEST(Ambients, aDesignFormIsNotInUserMode)
{
    FormKit kit(kObjectForm, {}, UserMode::Design);
    EXPECT_FALSE(kit.fake(L"Inner").ambient(DISPID_AMBIENT_USERMODE).toBool());
    EXPECT_FALSE(kit.fake(L"Inner").ambient(DISPID_AMBIENT_DISPLAYASDEFAULT).toBool());
}

} // namespace
} // namespace quillet::gallery::test
