// The form's automation face, its collections, the ambients of its sites, and the extended controls in it.
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

std::map<std::wstring, FakeTraits> buttons()
{
    FakeTraits button;
    button.status |= OLEMISC_ACTSLIKEBUTTON;
    return {{L"Button", button}};
}

std::string const kLines =
    "Left = 150\nTop = 300\nWidth = 1500\nHeight = 450\nCaption = \"Go\"\nTabIndex = 4\n"
    "ToolTipText = \"tip\"\nTag = \"label\"\nDefault = -1 'True";
std::string const kForm =
    node("Fake.Button", "One", kLines) +
    node("VB.Frame", "Group", "Caption = \"A group\"", node("Fake.Plain", "Two", "Index = 3\nTabStop = 0"));

DISPID idOf(IDispatch& object, wchar_t const* name)
{
    DISPID id = 0;
    auto* written = const_cast<LPOLESTR>(name);
    HRESULT const found = object.GetIDsOfNames(IID_NULL, &written, 1, 0, &id);
    EXPECT_EQ(id == DISPID_UNKNOWN, found == DISP_E_UNKNOWNNAME);
    return id;
}

HRESULT resultOf(IDispatch& object, wchar_t const* name)
{
    try {
        getByName(object, name);
        return S_OK;
    } catch (RunTimeError const& error) {
        return error.result();
    }
}

TEST(Extender, theFormsLinesAreItsMembers)
{
    FormKit kit(kForm, buttons());
    IDispatch& one = kit.extender(L"One");
    EXPECT_EQ(getByName(one, L"Name").toString().view(), L"One");
    EXPECT_EQ(getByName(one, L"ToolTipText").toString().view(), L"tip");
    EXPECT_EQ(getByName(one, L"Tag").toString().view(), L"label");
    EXPECT_EQ(getByName(one, L"Left").toLong(), 150);
    EXPECT_EQ(getByName(one, L"Top").toLong(), 300);
    EXPECT_EQ(getByName(one, L"Width").toLong(), 1500);
    EXPECT_EQ(getByName(one, L"Height").toLong(), 450);
    EXPECT_EQ(getByName(one, L"TabIndex").toLong(), 4);
    EXPECT_EQ(getByName(one, L"TabStop").type(), VT_BOOL);
    EXPECT_TRUE(getByName(one, L"TabStop").toBool());
    EXPECT_TRUE(getByName(one, L"Visible").toBool());
    EXPECT_TRUE(getByName(one, L"Default").toBool());
    EXPECT_FALSE(getByName(one, L"Cancel").toBool());
    EXPECT_FALSE(getByName(kit.extender(L"Two"), L"TabStop").toBool());
    EXPECT_EQ(getByName(kit.extender(L"Two"), L"Index").toLong(), 3);
    EXPECT_EQ(resultOf(one, L"Index"), DISP_E_MEMBERNOTFOUND)
        << "only members of a control array have an index";
}

TEST(Extender, namesAreFoundWhateverTheirCase)
{
    FormKit kit(kForm, buttons());
    EXPECT_EQ(getByName(kit.extender(L"One"), L"tooltiptext").toString().view(), L"tip");
}

TEST(Extender, defaultAndCancelAreThereForButtonsOnly)
{
    FormKit kit(kForm, buttons());
    EXPECT_NE(idOf(kit.extender(L"One"), L"Default"), DISPID_UNKNOWN);
    EXPECT_NE(idOf(kit.extender(L"One"), L"Cancel"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(kit.extender(L"Two"), L"Default"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(kit.extender(L"Two"), L"Cancel"), DISPID_UNKNOWN);
    EXPECT_EQ(resultOf(kit.extender(L"Two"), L"Default"), DISP_E_UNKNOWNNAME);
}

TEST(Extender, unknownNamesAreTheControlsOwn)
{
    FormKit kit(kForm, buttons());
    IDispatch& one = kit.extender(L"One");
    EXPECT_EQ(idOf(one, L"Caption"), kCaptionId);
    EXPECT_EQ(getByName(one, L"Caption").toString().view(), L"Go");
    putByName(one, L"Caption", Variant::ofString(L"Stop"));
    EXPECT_EQ(kit.fake(L"One").caption.view(), L"Stop");
    EXPECT_EQ(idOf(one, L"Frog"), DISPID_UNKNOWN);
}

TEST(Extender, writingMovesTheControl)
{
    FormKit kit(kForm, buttons());
    FakeControl& fake = kit.fake(L"One");
    fake.calls.clear();
    putByName(kit.extender(L"One"), L"Width", Variant::ofLong(3000));
    EXPECT_EQ(fake.calls, (std::vector<std::string>{"SetExtent", "SetObjectRects"}));
    EXPECT_EQ(fake.extent.cx, 5292);
    EXPECT_EQ(fake.place.right - fake.place.left, screenResolution().pixelsX(3000));
    fake.calls.clear();
    putByName(kit.extender(L"One"), L"Width", Variant::ofString(L"3000"));
    EXPECT_TRUE(fake.calls.empty()) << "the same width again is no move";
}

TEST(Extender, moveTakesFromOneToFourPlaces)
{
    FormKit kit(kForm, buttons());
    IDispatch& one = kit.extender(L"One");
    Variant arguments[] = {Variant::ofLong(600), Variant::ofLong(450)}; // last argument first
    DISPPARAMS params{reinterpret_cast<VARIANTARG*>(arguments), nullptr, 2, 0};
    static_assert(sizeof(Variant) == sizeof(VARIANTARG));
    EXPECT_EQ(
        one.Invoke(idOf(one, L"Move"), IID_NULL, 0, DISPATCH_METHOD, &params, nullptr, nullptr, nullptr),
        S_OK);
    EXPECT_EQ(kit.control(L"One").state().place, (Place{450, 600, 1500, 450}));
}

TEST(Extender, settingDefaultTakesItFromTheOther)
{
    FormKit kit(kForm + node("Fake.Button", "Three"), buttons());
    putByName(kit.extender(L"Three"), L"Default", Variant::ofBool(true));
    EXPECT_FALSE(getByName(kit.extender(L"One"), L"Default").toBool());
    EXPECT_TRUE(getByName(kit.extender(L"Three"), L"Default").toBool());
}

TEST(Extender, readOnlyMembersRefuseToBeWritten)
{
    FormKit kit(kForm, buttons());
    EXPECT_THROW(putByName(kit.extender(L"One"), L"Name", Variant::ofString(L"x")), RunTimeError);
    EXPECT_EQ(getByName(kit.extender(L"One"), L"Name").toString().view(), L"One");
}

TEST(Extender, parentIsTheFormAndContainerWhatTheControlStandsIn)
{
    FormKit kit(kForm, buttons());
    ComPtr<IUnknown> const form = query<IUnknown>(static_cast<IDispatch*>(&kit.form().object()));
    EXPECT_EQ(getByName(kit.extender(L"One"), L"Parent").toObject().as<IUnknown>().get(), form.get());
    EXPECT_EQ(getByName(kit.extender(L"Two"), L"Parent").toObject().as<IUnknown>().get(), form.get());
    EXPECT_EQ(getByName(kit.extender(L"One"), L"Container").toObject().as<IUnknown>().get(), form.get());
    auto const group = getByName(kit.extender(L"Two"), L"Container").toObject().as<IDispatch>();
    EXPECT_EQ(getByName(*group.get(), L"Name").toString().view(), L"Group");
    auto const expected = static_cast<long>(reinterpret_cast<LONG_PTR>(kit.control(L"Group").window()));
    EXPECT_EQ(getByName(*group.get(), L"hwnd").toLong(), expected);
    auto const formWindow = static_cast<long>(reinterpret_cast<LONG_PTR>(kit.form().window()));
    EXPECT_EQ(getByName(kit.form().object(), L"hWnd").toLong(), formWindow);
}

TEST(Extender, objectIsTheControlWithoutTheFormsAdditions)
{
    FormKit kit(kForm, buttons());
    auto const inner = getByName(kit.extender(L"One"), L"Object").toObject();
    EXPECT_EQ(inner.as<IUnknown>().get(), query<IUnknown>(kit.control(L"One").object()).get());
}

TEST(Extender, theSiteHandsOutTheSameExtenderEachTime)
{
    FormKit kit(kForm, buttons());
    EXPECT_EQ(kit.fake(L"One").extender().get(), &kit.extender(L"One"));
    EXPECT_EQ(kit.fake(L"One").extender().get(), kit.fake(L"One").extender().get());
}

TEST(Extender, itsIdentityIsItsOwnWhileOtherInterfacesAreTheControls)
{
    FormKit kit(kForm, buttons());
    ComPtr<IDispatch> const one = &kit.extender(L"One");
    EXPECT_EQ(one.as<IUnknown>().get(), one.as<IDispatch>().as<IUnknown>().get());
    EXPECT_NE(one.as<IUnknown>().get(), query<IUnknown>(kit.control(L"One").object()).get());
    EXPECT_TRUE(one.as<IUnknown>(kFakeFace)) << "a type check of a control by its extender must work";
    EXPECT_FALSE(one.as<IPersistFile>());
}

TEST(Extender, theEnvironmentsOwnButtonIsRecognisedByItsInterface)
{
    constexpr IID kCommandButton = {
        0x33AD4EF1, 0x6699, 0x11CF, {0xB7, 0x0C, 0x00, 0xAA, 0x00, 0x60, 0xD3, 0x93}};
    FormKit kit(node("VB.CommandButton", "Native") + node("VB.CheckBox", "Check") + kForm, buttons());
    EXPECT_TRUE(query<IUnknown>(&kit.extender(L"Native"), kCommandButton));
    EXPECT_FALSE(query<IUnknown>(&kit.extender(L"Check"), kCommandButton));
    EXPECT_FALSE(query<IUnknown>(&kit.extender(L"One"), kCommandButton));
}

TEST(Extender, itOutlivesTheFormHarmlessly)
{
    ComPtr<IDispatch> one;
    ComPtr<IDispatch> form;
    {
        FormKit kit(kForm, buttons());
        one = &kit.extender(L"One");
        form = &kit.form().object();
    }
    EXPECT_EQ(resultOf(*one.get(), L"Name"), RPC_E_DISCONNECTED);
    EXPECT_EQ(resultOf(*one.get(), L"Caption"), RPC_E_DISCONNECTED);
    EXPECT_EQ(resultOf(*form.get(), L"Caption"), RPC_E_DISCONNECTED);
    EXPECT_FALSE(one.as<IUnknown>(kFakeFace));
}

} // namespace
} // namespace quillet::gallery::test
