// The control by name: what scripts and forms call.
#include "SurfaceTest.h"
#include "kit/ByName.h"
#include "kit/Fonts.h"

namespace quillet::hosting {
namespace {

constexpr HRESULT kOverflow = static_cast<HRESULT>(0x800A0006);

class Automation : public SurfaceTest {
protected:
    ComPtr<IDispatch> dispatch = as<IDispatch>();

    void SetUp() override
    {
        SurfaceTest::SetUp();
        ASSERT_TRUE(dispatch);
        control.start();
    }
    HRESULT put(wchar_t const* name, Variant const& value)
    {
        kit::Called const called = kit::putByName(*dispatch.get(), name, value);
        return called.result == DISP_E_EXCEPTION ? called.code : called.result;
    }
    Variant get(wchar_t const* name)
    {
        kit::Called called = kit::getByName(*dispatch.get(), name);
        EXPECT_EQ(called.result, S_OK) << kit::narrow(name);
        return called.value;
    }
};

TEST_F(Automation, hasOneDescriptionThatIsItsDualInterface)
{
    UINT count = 77;
    EXPECT_EQ(dispatch->GetTypeInfoCount(&count), S_OK);
    EXPECT_EQ(count, 1U);
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, info.put()), S_OK);
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
    EXPECT_EQ(attributes->guid, kQvFlatCommandInterface);
    info->ReleaseTypeAttr(attributes);
    EXPECT_EQ(dispatch->GetTypeInfo(1, LOCALE_USER_DEFAULT, info.put()), DISP_E_BADINDEX);
    EXPECT_TRUE(FAILED(dispatch->GetTypeInfo(0, LOCALE_USER_DEFAULT, nullptr)));
    EXPECT_TRUE(FAILED(dispatch->GetTypeInfoCount(nullptr)));
}

TEST_F(Automation, findsNamesWithoutRegardToCaseAndRefusesOthers)
{
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"caption"), 0x68030008);
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"CAPTION"), 0x68030008);
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"Font"), DISPID_FONT);
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"Refresh"), 0x60030027);
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"DrawButton"), 0x60030030);
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"WindowProc"), 0x6003001C);
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"ShowAbout"), DISPID_ABOUTBOX);
    EXPECT_EQ(kit::idOf(*dispatch.get(), L"OfficeXPColors"), 0x68030031);
    EXPECT_EQ(kit::getByName(*dispatch.get(), L"Value").result, DISP_E_UNKNOWNNAME);
}

TEST_F(Automation, takesAndGivesValuesOfEachType)
{
    EXPECT_EQ(put(L"Caption", Variant::ofString(L"by name")), S_OK);
    EXPECT_EQ(get(L"Caption").type(), VT_BSTR);
    EXPECT_EQ(get(L"Caption").toString().view(), L"by name");
    EXPECT_EQ(put(L"BackColor", Variant::ofLong(0x123456)), S_OK);
    EXPECT_EQ(get(L"BackColor").toLong(), 0x123456);
    EXPECT_EQ(put(L"Enabled", Variant::ofBool(false)), S_OK);
    EXPECT_EQ(get(L"Enabled").type(), VT_BOOL);
    EXPECT_FALSE(get(L"Enabled").toBool());
    EXPECT_EQ(put(L"CaptionIndent", Variant::ofShort(-7)), S_OK);
    EXPECT_EQ(get(L"CaptionIndent").type(), VT_I2);
    EXPECT_EQ(get(L"CaptionIndent").toShort(), -7);
    EXPECT_EQ(put(L"BorderStyle", Variant::ofLong(0)), S_OK);
    EXPECT_EQ(get(L"BorderStyle").toLong(), 0);
    EXPECT_EQ(put(L"BorderWidth", Variant::ofShort(3)), S_OK);
    EXPECT_EQ(get(L"BorderWidth").type(), VT_I2);
    EXPECT_EQ(get(L"hwnd").type(), VT_I4);
    EXPECT_EQ(get(L"hwnd").toLong(), static_cast<long>(reinterpret_cast<LONG_PTR>(control.window())));
}

TEST_F(Automation, convertsWhatConverts)
{
    EXPECT_EQ(put(L"CaptionIndent", Variant::ofString(L"12")), S_OK);
    EXPECT_EQ(get(L"CaptionIndent").toShort(), 12);
    EXPECT_EQ(put(L"Caption", Variant::ofLong(2026)), S_OK);
    EXPECT_EQ(get(L"Caption").toString().view(), L"2026");
    EXPECT_EQ(put(L"Enabled", Variant::ofLong(0)), S_OK);
    EXPECT_FALSE(get(L"Enabled").toBool());
    EXPECT_EQ(put(L"BackColor", Variant::ofString(L"255")), S_OK);
    EXPECT_EQ(get(L"BackColor").toLong(), 255);
}

TEST_F(Automation, refusesWhatDoesNotConvertAndKeepsTheOldValue)
{
    EXPECT_EQ(put(L"CaptionIndent", Variant::ofString(L"far")), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(put(L"CaptionIndent", Variant::ofLong(40000)), DISP_E_OVERFLOW);
    EXPECT_EQ(get(L"CaptionIndent").toShort(), 4);
    EXPECT_EQ(put(L"BackColor", Variant::ofString(L"red")), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(put(L"Caption", Variant::ofUnknown(form.frame().unknown())), DISP_E_TYPEMISMATCH);
    EXPECT_EQ(put(L"BorderWidth", Variant::ofLong(40000)), kOverflow);
    EXPECT_EQ(get(L"BorderWidth").toShort(), 1);
}

TEST_F(Automation, namesTheHelpFileWithItsFolderAndTheControlsTopicInAnError)
{
    struct Row {
        CLSID const& control;
        DWORD topic;
    };
    for (Row const& row :
         {Row{kQvFlatCommandClass, 10}, Row{kQvImageCommandClass, 20}, Row{kFlatToolButtonClass, 30},
          Row{kQvFlatOptionClass, 40}, Row{kQvFlatCheckClass, 50}}) {
        auto const failing = query<IDispatch>(library().create(row.control).get());
        ASSERT_TRUE(failing);
        kit::Called const called = kit::setByName(*failing.get(), L"Font", nullptr);
        EXPECT_EQ(called.result, DISP_E_EXCEPTION);
        EXPECT_EQ(called.helpFile, kit::Library::folder() + L"quillet.chm");
        EXPECT_EQ(called.helpContext, row.topic);
    }
}

TEST_F(Automation, takesObjectsByReferenceAssignment)
{
    EXPECT_EQ(kit::setByName(*dispatch.get(), L"Font", kit::newFont(L"Tahoma", 19).get()).result, S_OK);
    auto const font = query<IFont>(get(L"Font").toObject().get());
    ASSERT_TRUE(font);
    EXPECT_NEAR(kit::pointsOf(*font.get()), 19, 1); // fonts take the nearest size that the screen has
    auto const icon = kit::newIconPicture();
    EXPECT_EQ(kit::setByName(*dispatch.get(), L"MouseIcon", icon.get()).result, S_OK);
    EXPECT_EQ(query<IPictureDisp>(get(L"MouseIcon").toObject().get()).get(), icon.get());
    EXPECT_EQ(kit::setByName(*dispatch.get(), L"MouseIcon", nullptr).result, S_OK);
    EXPECT_FALSE(get(L"MouseIcon").toObject());
}

TEST_F(Automation, callsMethods)
{
    auto const events = kit::make<kit::EventRecorder>(kQvFlatCommandEvents);
    kit::Connection const connection(control.object(), kQvFlatCommandEvents, events->unknown());
    EXPECT_EQ(kit::callByName(*dispatch.get(), L"Refresh").result, S_OK);
    EXPECT_EQ(events->count(kPaint), 1);
    EXPECT_EQ(kit::callByName(*dispatch.get(), L"DrawButton").result, S_OK);
    EXPECT_EQ(events->count(kPaint), 1);
}

TEST_F(Automation, refusesCallsThatDoNotFit)
{
    EXPECT_EQ(kit::invoke(*dispatch.get(), 0x12345678, DISPATCH_METHOD).result, DISP_E_MEMBERNOTFOUND);
    EXPECT_TRUE(FAILED(kit::putByName(*dispatch.get(), L"hwnd", Variant::ofLong(1)).result));
    DISPPARAMS none{};
    EXPECT_TRUE(FAILED(dispatch->Invoke(0x68030008, __uuidof(IOleObject), LOCALE_USER_DEFAULT,
                                        DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr)))
        << "the reserved interface identifier is not null";
}

TEST_F(Automation, survivesCallsWithoutParametersOrPlaceForAnswers)
{
    EXPECT_TRUE(FAILED(dispatch->Invoke(0x68030008, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                        nullptr, nullptr, nullptr, nullptr)));
    DISPPARAMS none{};
    HRESULT const result = dispatch->Invoke(0x68030008, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                            &none, nullptr, nullptr, nullptr);
    EXPECT_TRUE(result == S_OK || FAILED(result));
    auto* name = const_cast<wchar_t*>(L"Caption");
    EXPECT_TRUE(FAILED(dispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, nullptr)));
    DISPID id = 0;
    EXPECT_TRUE(FAILED(dispatch->GetIDsOfNames(IID_NULL, nullptr, 1, LOCALE_USER_DEFAULT, &id)));
}

} // namespace
} // namespace quillet::hosting
