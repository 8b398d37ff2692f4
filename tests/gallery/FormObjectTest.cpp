// The form's automation face, its collections, the ambients of its sites, and the extended controls in it.
#include "gallery/host/FormObject.h"

#include "gallery/FormKit.h"
#include "gallery/host/Extender.h"
#include "kit/ByName.h"
#include "kit/Hosted.h"

namespace quillet::gallery::test {
namespace {

std::string const kObjectForm =
    "Caption = \"A form\"\nBackColor = &H00FF0000&\n"
    "BeginProperty Font\nSize = 18\nItalic = -1\nEndProperty\n" +
    node("VB.Label", "Hint") +
    node("VB.Frame", "Group", "", node("Fake.Button", "Inner") + node("VB.TextBox", "Text")) +
    node("Fake.Button", "Outer");

/// What the collection of controls answers.
Variant ofControls(FormKit& kit, DISPID member, std::vector<Variant> const& arguments = {})
{
    auto const controls = getByName(kit.form().object(), L"Controls").toObject().as<IDispatch>();
    kit::Called const called = kit::invoke(*controls.get(), member, DISPATCH_PROPERTYGET, arguments);
    check(called.result);
    return called.value;
}
Variant itemOf(FormKit& kit, Variant const& index) { return ofControls(kit, DISPID_VALUE, {index}); }

std::wstring nameOf(Variant const& extender)
{
    return std::wstring(getByName(*extender.toObject().as<IDispatch>().get(), L"Name").toString().view());
}

TEST(FormObject, controlsAreCountedAndFoundByIndexFromZeroAndByName)
{
    FormKit kit(kObjectForm);
    ComPtr<IDispatch> const all = getByName(kit.form().object(), L"Controls").toObject().as<IDispatch>();
    EXPECT_EQ(getByName(*all.get(), L"Count").toLong(), 5);
    EXPECT_EQ(nameOf(itemOf(kit, Variant::ofLong(0))), L"Hint");
    EXPECT_EQ(nameOf(itemOf(kit, Variant::ofShort(2))), L"Inner");
    EXPECT_EQ(nameOf(itemOf(kit, Variant::ofString(L"outer"))), L"Outer");
    EXPECT_THROW(itemOf(kit, Variant::ofLong(5)), RunTimeError);
    EXPECT_THROW(itemOf(kit, Variant::ofLong(-1)), RunTimeError);
    EXPECT_THROW(itemOf(kit, Variant::ofString(L"frog")), RunTimeError);
}

TEST(FormObject, forEachVisitsEveryControlInTheFormsOrder)
{
    FormKit kit(kObjectForm);
    auto const all = ofControls(kit, DISPID_NEWENUM).toObject().as<IEnumVARIANT>();
    ASSERT_TRUE(all);
    std::vector<std::wstring> names;
    Variant item;
    while (all->Next(1, item.put(), nullptr) == S_OK)
        names.push_back(nameOf(item));
    EXPECT_THAT(names, ElementsAreArray({L"Hint", L"Group", L"Inner", L"Text", L"Outer"}));
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

class Ambients : public testing::Test {
protected:
    FormKit kit{kObjectForm};
    FakeControl& fake = kit.fake(L"Inner");
};

TEST_F(Ambients, theFormsLookAndModeReachTheControl)
{
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

TEST_F(Ambients, flagsHaveTheirRunTimeValues)
{
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

TEST_F(Ambients, theyAreFoundByNameToo)
{
    auto const ambients = query<IDispatch>(fake.site());
    EXPECT_TRUE(getByName(*ambients.get(), L"UserMode").toBool());
    EXPECT_THROW(putByName(*ambients.get(), L"UserMode", Variant::ofBool(false)), RunTimeError);
}

TEST_F(Ambients, aDesignFormIsNotInUserMode)
{
    FormKit designed(kObjectForm, {}, UserMode::Design);
    EXPECT_FALSE(designed.fake(L"Inner").ambient(DISPID_AMBIENT_USERMODE).toBool());
    EXPECT_FALSE(designed.fake(L"Inner").ambient(DISPID_AMBIENT_DISPLAYASDEFAULT).toBool());
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

class Extender : public testing::Test {
protected:
    FormKit kit{kForm, buttons()};
    IDispatch& one = kit.extender(L"One");
    FakeControl& fake = kit.fake(L"One");
};

TEST_F(Extender, theFormsLinesAreItsMembers)
{
    for (auto const& [name, text] :
         {std::pair{L"Name", L"One"}, {L"ToolTipText", L"tip"}, {L"Tag", L"label"}})
        EXPECT_EQ(getByName(one, name).toString().view(), text);
    for (auto const& [name, number] : {std::pair{L"Left", 150L},
                                       {L"Top", 300L},
                                       {L"Width", 1500L},
                                       {L"Height", 450L},
                                       {L"TabIndex", 4L},
                                       {L"TabStop", -1L},
                                       {L"Visible", -1L},
                                       {L"Default", -1L},
                                       {L"Cancel", 0L}})
        EXPECT_EQ(getByName(one, name).toLong(), number) << narrow(name);
    EXPECT_EQ(getByName(one, L"TabStop").type(), VT_BOOL);
    EXPECT_FALSE(kit.get(L"Two", L"TabStop").toBool());
    EXPECT_EQ(kit.get(L"Two", L"Index").toLong(), 3);
    EXPECT_EQ(resultOf(one, L"Index"), DISP_E_MEMBERNOTFOUND)
        << "only members of a control array have an index";
}

TEST_F(Extender, namesAreFoundWhateverTheirCase)
{
    EXPECT_EQ(getByName(one, L"tooltiptext").toString().view(), L"tip");
}

TEST_F(Extender, defaultAndCancelAreThereForButtonsOnly)
{
    EXPECT_NE(idOf(one, L"Default"), DISPID_UNKNOWN);
    EXPECT_NE(idOf(one, L"Cancel"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(kit.extender(L"Two"), L"Default"), DISPID_UNKNOWN);
    EXPECT_EQ(idOf(kit.extender(L"Two"), L"Cancel"), DISPID_UNKNOWN);
    EXPECT_EQ(resultOf(kit.extender(L"Two"), L"Default"), DISP_E_UNKNOWNNAME);
}

TEST_F(Extender, unknownNamesAreTheControlsOwn)
{
    EXPECT_EQ(idOf(one, L"Caption"), kCaptionId);
    EXPECT_EQ(getByName(one, L"Caption").toString().view(), L"Go");
    putByName(one, L"Caption", Variant::ofString(L"Stop"));
    EXPECT_EQ(fake.caption.view(), L"Stop");
    EXPECT_EQ(idOf(one, L"Frog"), DISPID_UNKNOWN);
}

TEST_F(Extender, writingMovesTheControl)
{
    fake.calls.clear();
    putByName(one, L"Width", Variant::ofLong(3000));
    EXPECT_EQ(fake.calls, (std::vector<std::string>{"SetExtent", "SetObjectRects"}));
    EXPECT_EQ(fake.extent.cx, 5292);
    EXPECT_EQ(fake.place.right - fake.place.left, screenResolution().pixelsX(3000));
    fake.calls.clear();
    putByName(one, L"Width", Variant::ofString(L"3000"));
    EXPECT_TRUE(fake.calls.empty()) << "the same width again is no move";
}

TEST_F(Extender, moveTakesFromOneToFourPlaces)
{
    EXPECT_EQ(kit::callByName(one, L"Move", {Variant::ofLong(450), Variant::ofLong(600)}).result, S_OK);
    EXPECT_EQ(kit.control(L"One").state().place, (Place{450, 600, 1500, 450}));
}

TEST_F(Extender, settingDefaultTakesItFromTheOther)
{
    FormKit more(kForm + node("Fake.Button", "Three"), buttons());
    putByName(more.extender(L"Three"), L"Default", Variant::ofBool(true));
    EXPECT_FALSE(more.get(L"One", L"Default").toBool());
    EXPECT_TRUE(more.get(L"Three", L"Default").toBool());
}

TEST_F(Extender, readOnlyMembersRefuseToBeWritten)
{
    EXPECT_THROW(putByName(one, L"Name", Variant::ofString(L"x")), RunTimeError);
    EXPECT_EQ(getByName(one, L"Name").toString().view(), L"One");
}

TEST_F(Extender, parentIsTheFormAndContainerWhatTheControlStandsIn)
{
    ComPtr<IUnknown> const form = query<IUnknown>(static_cast<IDispatch*>(&kit.form().object()));
    EXPECT_EQ(getByName(one, L"Parent").toObject().as<IUnknown>().get(), form.get());
    EXPECT_EQ(kit.get(L"Two", L"Parent").toObject().as<IUnknown>().get(), form.get());
    EXPECT_EQ(getByName(one, L"Container").toObject().as<IUnknown>().get(), form.get());
    auto const group = kit.get(L"Two", L"Container").toObject().as<IDispatch>();
    EXPECT_EQ(getByName(*group.get(), L"Name").toString().view(), L"Group");
    auto const expected = static_cast<long>(reinterpret_cast<LONG_PTR>(kit.control(L"Group").window()));
    EXPECT_EQ(getByName(*group.get(), L"hwnd").toLong(), expected);
    auto const formWindow = static_cast<long>(reinterpret_cast<LONG_PTR>(kit.form().window()));
    EXPECT_EQ(getByName(kit.form().object(), L"hWnd").toLong(), formWindow);
}

TEST_F(Extender, objectIsTheControlWithoutTheFormsAdditions)
{
    auto const inner = getByName(one, L"Object").toObject();
    EXPECT_EQ(inner.as<IUnknown>().get(), query<IUnknown>(kit.control(L"One").object()).get());
}

TEST_F(Extender, theSiteHandsOutTheSameExtenderEachTime)
{
    EXPECT_EQ(fake.extender().get(), &one);
    EXPECT_EQ(fake.extender().get(), fake.extender().get());
}

TEST_F(Extender, itsIdentityIsItsOwnWhileOtherInterfacesAreTheControls)
{
    EXPECT_EQ(query<IUnknown>(&one).get(), query<IDispatch>(&one).as<IUnknown>().get());
    EXPECT_NE(query<IUnknown>(&one).get(), query<IUnknown>(kit.control(L"One").object()).get());
    EXPECT_TRUE(query<IUnknown>(&one, kFakeFace)) << "a type check of a control by its extender must work";
    EXPECT_FALSE(query<IPersistFile>(&one));
}

TEST_F(Extender, theEnvironmentsOwnButtonIsRecognisedByItsInterface)
{
    FormKit more(node("VB.CommandButton", "Native") + node("VB.CheckBox", "Check") + kForm, buttons());
    EXPECT_TRUE(query<IUnknown>(&more.extender(L"Native"), kit::kHostButton));
    EXPECT_FALSE(query<IUnknown>(&more.extender(L"Check"), kit::kHostButton));
    EXPECT_FALSE(query<IUnknown>(&more.extender(L"One"), kit::kHostButton));
}

TEST_F(Extender, itOutlivesTheFormHarmlessly)
{
    ComPtr<IDispatch> held;
    ComPtr<IDispatch> form;
    {
        FormKit closing(kForm, buttons());
        held = &closing.extender(L"One");
        form = &closing.form().object();
    }
    EXPECT_EQ(resultOf(*held.get(), L"Name"), RPC_E_DISCONNECTED);
    EXPECT_EQ(resultOf(*held.get(), L"Caption"), RPC_E_DISCONNECTED);
    EXPECT_EQ(resultOf(*form.get(), L"Caption"), RPC_E_DISCONNECTED);
    EXPECT_FALSE(held.as<IUnknown>(kFakeFace));
}

} // namespace
} // namespace quillet::gallery::test
