// The control by name: what scripts and forms call.
#include "SurfaceTest.h"
#include "kit/ByName.h"
#include "kit/Errors.h"
#include "kit/Fonts.h"

namespace quillet::hosting {
namespace {

constexpr WORD kAssignments[] = {DISPATCH_PROPERTYPUT, DISPATCH_PROPERTYPUTREF};

Variant ofType(VARTYPE type)
{
    Variant value;
    value.address()->vt = type;
    return value;
}

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
        return assign(name, DISPATCH_PROPERTYPUT, value);
    }
    HRESULT assign(wchar_t const* name, WORD how, Variant const& value)
    {
        return kit::invoke(*dispatch.get(), kit::idOf(*dispatch.get(), name), how, {value}).error();
    }
    /// Takes a value and gives it back as it is kept, of its own type.
    void expectKept(wchar_t const* name, Variant const& given, Variant const& kept,
                    WORD how = DISPATCH_PROPERTYPUT)
    {
        EXPECT_EQ(assign(name, how, given), S_OK) << kit::narrow(name);
        EXPECT_EQ(get(name).type(), kept.type()) << kit::narrow(name);
        EXPECT_EQ(get(name).toString().view(), kept.toString().view()) << kit::narrow(name);
    }
    void expectKept(wchar_t const* name, Variant const& value) { expectKept(name, value, value); }
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
    constexpr std::pair<wchar_t const*, DISPID> kNames[] = {
        {L"caption", id::Caption},       {L"CAPTION", id::Caption},
        {L"Font", DISPID_FONT},          {L"Refresh", id::Refresh},
        {L"DrawButton", id::DrawButton}, {L"WindowProc", id::WindowProc},
        {L"ShowAbout", DISPID_ABOUTBOX}, {L"OfficeXPColors", id::OfficeXPColors}};
    for (auto const& [name, known] : kNames)
        EXPECT_EQ(kit::idOf(*dispatch.get(), name), known) << kit::narrow(name);
    EXPECT_EQ(kit::getByName(*dispatch.get(), L"Value").result, DISP_E_UNKNOWNNAME);
}

TEST_F(Automation, takesAndGivesValuesOfEachType)
{
    expectKept(L"Caption", Variant::ofString(L"by name"));
    expectKept(L"BackColor", Variant::ofLong(0x123456));
    expectKept(L"Enabled", Variant::ofBool(false));
    expectKept(L"CaptionIndent", Variant::ofShort(-7));
    expectKept(L"BorderStyle", Variant::ofLong(0));
    expectKept(L"BorderWidth", Variant::ofShort(3));
    EXPECT_EQ(get(L"hwnd").type(), VT_I4);
    EXPECT_EQ(get(L"hwnd").toLong(), static_cast<long>(reinterpret_cast<LONG_PTR>(control.window())));
}

TEST_F(Automation, convertsWhatConverts)
{
    expectKept(L"CaptionIndent", Variant::ofString(L"12"), Variant::ofShort(12));
    expectKept(L"Caption", Variant::ofLong(2026), Variant::ofString(L"2026"));
    expectKept(L"Enabled", Variant::ofLong(0), Variant::ofBool(false));
    expectKept(L"BackColor", Variant::ofString(L"255"), Variant::ofLong(255));
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

TEST_F(Automation, givesAColourAsASignedNumberWhichScriptsCanRead)
{
    for (wchar_t const* const name : {L"BackColor", L"ForeColor", L"HotBackColor", L"BorderColor"}) {
        Variant const colour = get(name);
        EXPECT_EQ(colour.type(), VT_I4) << kit::narrow(name);
        EXPECT_LT(colour.get().lVal, 0) << "a system colour has the top bit";
    }
}

TEST_F(Automation, takesAColourWhoseTopBitIsASignOrAValue)
{
    constexpr long kHighlight = static_cast<long>(0x8000000D);
    Variant asUnsigned = Variant::ofLong(kHighlight);
    asUnsigned.address()->vt = VT_UI4;
    Variant asDouble = ofType(VT_R8);
    asDouble.address()->dblVal = 2147483661.0;
    for (Variant const& written : {Variant::ofLong(kHighlight), asUnsigned, asDouble,
                                   Variant::ofString(L"2147483661"), Variant::ofString(L"-2147483635")}) {
        EXPECT_EQ(put(L"BackColor", Variant::ofLong(0)), S_OK);
        EXPECT_EQ(put(L"BackColor", written), S_OK) << written.type();
        EXPECT_EQ(get(L"BackColor").toLong(), kHighlight) << written.type();
    }
    Variant beyond = ofType(VT_R8);
    beyond.address()->dblVal = 4294967296.0;
    EXPECT_EQ(put(L"BackColor", beyond), DISP_E_OVERFLOW);
}

TEST_F(Automation, takesAPlainValueByReferenceAsAnAssignment)
{
    std::pair<wchar_t const*, Variant> const rows[] = {{L"Caption", Variant::ofString(L"by reference")},
                                                       {L"BackColor", Variant::ofLong(255)},
                                                       {L"Enabled", Variant::ofBool(false)},
                                                       {L"BorderWidth", Variant::ofShort(5)}};
    for (auto const& [name, value] : rows)
        expectKept(name, value, value, DISPATCH_PROPERTYPUTREF);
    Variant const indent = Variant::ofShort(9);
    expectKept(L"CaptionIndent", indent, indent, DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    EXPECT_EQ(assign(L"Caption", DISPATCH_PROPERTYPUTREF, Variant::ofDispatch(&form.object())),
              DISP_E_MEMBERNOTFOUND)
        << "an object is no plain value";
}

TEST_F(Automation, takesObjectsByEveryKindOfAssignment)
{
    auto const icon = kit::newIconPicture();
    for (WORD const how : kAssignments) {
        EXPECT_EQ(assign(L"MouseIcon", how, Variant::ofDispatch(icon.get())), S_OK);
        EXPECT_EQ(query<IPictureDisp>(get(L"MouseIcon").toObject().get()).get(), icon.get());
        EXPECT_EQ(assign(L"MouseIcon", how, Variant::ofDispatch(nullptr)), S_OK);
        EXPECT_FALSE(get(L"MouseIcon").toObject());
        EXPECT_TRUE(FAILED(assign(L"MouseIcon", how, Variant::ofDispatch(&form.object()))));
        EXPECT_TRUE(FAILED(assign(L"MouseIcon", how, Variant::ofLong(1))));
    }
}

TEST_F(Automation, refusesNullForAValueAsInvalidUseOfNull)
{
    for (wchar_t const* const name :
         {L"BackColor", L"CaptionIndent", L"BorderWidth", L"BorderStyle", L"Enabled", L"Caption"}) {
        Variant const before = get(name);
        kit::Called const called = kit::putByName(*dispatch.get(), name, ofType(VT_NULL));
        EXPECT_EQ(called.result, DISP_E_EXCEPTION) << kit::narrow(name);
        EXPECT_EQ(called.code, kInvalidUseOfNull) << kit::narrow(name);
        EXPECT_EQ(called.description, L"Invalid use of Null");
        EXPECT_EQ(called.source, L"Quillet.qvFlatCommand");
        EXPECT_EQ(get(name).toString().view(), before.toString().view()) << kit::narrow(name);
    }
}

TEST_F(Automation, doesNotFindAReadOnlyMemberThatIsSet)
{
    for (wchar_t const* const name : {L"hwnd", L"hdc"})
        for (WORD const how : kAssignments)
            EXPECT_EQ(assign(name, how, Variant::ofLong(1)), DISP_E_MEMBERNOTFOUND) << kit::narrow(name);
}

TEST_F(Automation, doesNotTakeAMemberForOneOfAnotherKind)
{
    EXPECT_EQ(assign(L"Refresh", DISPATCH_PROPERTYPUT, Variant::ofLong(1)), DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(kit::getByName(*dispatch.get(), L"Refresh").result, DISP_E_MEMBERNOTFOUND);
    EXPECT_EQ(kit::callByName(*dispatch.get(), L"Caption").result, DISP_E_MEMBERNOTFOUND);
    constexpr WORD kEither = DISPATCH_METHOD | DISPATCH_PROPERTYGET; // hosts that cannot tell them apart
    EXPECT_EQ(kit::invoke(*dispatch.get(), id::Caption, kEither).result, S_OK);
    EXPECT_EQ(kit::invoke(*dispatch.get(), id::Refresh, kEither).result, S_OK);
}

TEST_F(Automation, refusesAWrongNumberOfArguments)
{
    auto const one = Variant::ofLong(1);
    EXPECT_EQ(kit::callByName(*dispatch.get(), L"Refresh", {one}).result, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(kit::callByName(*dispatch.get(), L"WindowProc", {one, one}).result, DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(kit::invoke(*dispatch.get(), id::Caption, DISPATCH_PROPERTYGET, {one}).result,
              DISP_E_BADPARAMCOUNT);
    EXPECT_EQ(kit::invoke(*dispatch.get(), id::Caption, DISPATCH_PROPERTYPUT, {one, one}).result,
              DISP_E_BADPARAMCOUNT);
}

TEST_F(Automation, tellsWhichArgumentDoesNotConvert)
{
    VARIANTARG arguments[4] = {}; // last first
    for (VARIANTARG& each : arguments)
        each.vt = VT_I4;
    Bstr const text{L"many"};
    arguments[2].vt = VT_BSTR;
    arguments[2].bstrVal = text.get();
    DISPPARAMS parameters{arguments, nullptr, 4, 0};
    UINT bad = 77;
    EXPECT_EQ(dispatch->Invoke(id::WindowProc, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                               nullptr, nullptr, &bad),
              DISP_E_TYPEMISMATCH);
    EXPECT_EQ(bad, 2U);
}

TEST_F(Automation, sendsAMessageWhoseArgumentsAreInOrderOrNamed)
{
    wchar_t const* const names[] = {L"WindowProc", L"LPARAM", L"uMsg", L"wParam", L"hwnd"};
    DISPID ids[5] = {};
    ASSERT_EQ(dispatch->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(names), 5, LOCALE_USER_DEFAULT, ids),
              S_OK);
    EXPECT_EQ(std::vector<DISPID>(ids, ids + 5), (std::vector<DISPID>{id::WindowProc, 3, 1, 2, 0}));

    EXPECT_EQ(put(L"Caption", Variant::ofString(L"four")), S_OK);
    ::SetWindowTextA(control.window(), "twelve chars");
    auto const window = static_cast<long>(reinterpret_cast<LONG_PTR>(control.window()));
    std::vector<Variant> const inOrder{Variant::ofLong(window), Variant::ofLong(WM_GETTEXTLENGTH),
                                       Variant::ofLong(0), Variant::ofLong(0)};
    Variant const length = kit::callByName(*dispatch.get(), L"WindowProc", inOrder).value;
    EXPECT_EQ(length.toLong(), 12);

    VARIANTARG named[4] = {inOrder[3].get(), inOrder[1].get(), inOrder[2].get(), inOrder[0].get()};
    DISPPARAMS parameters{named, ids + 1, 4, 4};
    Variant result;
    EXPECT_EQ(dispatch->Invoke(ids[0], IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                               result.put(), nullptr, nullptr),
              S_OK);
    EXPECT_EQ(result.toLong(), 12);

    wchar_t const* const unknown[] = {L"WindowProc", L"color"};
    EXPECT_EQ(dispatch->GetIDsOfNames(IID_NULL, const_cast<LPOLESTR*>(unknown), 2, LOCALE_USER_DEFAULT, ids),
              DISP_E_UNKNOWNNAME);
    EXPECT_EQ(ids[1], DISPID_UNKNOWN);
}

TEST_F(Automation, callsMethods)
{
    kit::Listening const events(control.object(), kQvFlatCommandEvents);
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
    EXPECT_TRUE(FAILED(dispatch->Invoke(id::Caption, __uuidof(IOleObject), LOCALE_USER_DEFAULT,
                                        DISPATCH_PROPERTYGET, &none, nullptr, nullptr, nullptr)))
        << "the reserved interface identifier is not null";
}

TEST_F(Automation, survivesCallsWithoutParametersOrPlaceForAnswers)
{
    EXPECT_TRUE(FAILED(dispatch->Invoke(id::Caption, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                        nullptr, nullptr, nullptr, nullptr)));
    DISPPARAMS none{};
    HRESULT const result = dispatch->Invoke(id::Caption, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET,
                                            &none, nullptr, nullptr, nullptr);
    EXPECT_TRUE(result == S_OK || FAILED(result));
    auto* name = const_cast<wchar_t*>(L"Caption");
    EXPECT_TRUE(FAILED(dispatch->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, nullptr)));
    DISPID id = 0;
    EXPECT_TRUE(FAILED(dispatch->GetIDsOfNames(IID_NULL, nullptr, 1, LOCALE_USER_DEFAULT, &id)));
}

} // namespace
} // namespace quillet::hosting
