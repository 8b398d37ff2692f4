// The extended control: the form's members, the control's members, and identity.
#include "gallery/host/Extender.h"

#include "gallery/FormKit.h"
#include "gallery/host/FormObject.h"

#include <gtest/gtest.h>

namespace quillet::gallery::test {
namespace {

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
