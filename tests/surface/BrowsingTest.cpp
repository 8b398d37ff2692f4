// What property browsers ask: names of values, headings, pages; and the verb that shows the pages.
#include "SurfaceTest.h"
#include "browse/CategorizeProperties.h"
#include "browse/PageIds.h"
#include "kit/ByName.h"
#include "kit/Controls.h"

#include <array>
#include <string>
#include <vector>

namespace quillet::hosting {
namespace {

using testing::Contains;
using testing::ElementsAreArray;

constexpr DISPID kNoProperty = 0x6803FFFF;

class Browsing : public SurfaceTest {
protected:
    ComPtr<IPerPropertyBrowsing> browsing = as<IPerPropertyBrowsing>();
    ComPtr<ICategorizeProperties> headings =
        query<ICategorizeProperties>(browsing.get(), kCategorizeProperties);
    ComPtr<_qvFlatCommand> button = as<_qvFlatCommand>();

    void SetUp() override
    {
        SurfaceTest::SetUp();
        ASSERT_TRUE(browsing && headings && button);
    }
    std::wstring displayed(DISPID property)
    {
        Bstr text;
        HRESULT const result = browsing->GetDisplayString(property, text.put());
        EXPECT_EQ(result, text.get() ? S_OK : S_FALSE);
        return std::wstring(text.view());
    }
    std::wstring heading(DISPID property)
    {
        PROPCAT category = 0;
        Bstr name;
        EXPECT_EQ(headings->MapPropertyToCategory(property, &category), S_OK);
        EXPECT_EQ(headings->GetCategoryName(category, LOCALE_USER_DEFAULT, name.put()), S_OK);
        return std::wstring(name.view());
    }
    CLSID page(DISPID property)
    {
        CLSID found = IID_IUnknown;
        HRESULT const result = browsing->MapPropertyToPage(property, &found);
        EXPECT_EQ(result, found == CLSID_NULL ? PERPROP_E_NOPAGEAVAILABLE : S_OK);
        return found;
    }
};

/// Takes the texts and numbers over.
std::vector<std::pair<std::wstring, long>> taken(CALPOLESTR& texts, CADWORD& cookies)
{
    EXPECT_EQ(texts.cElems, cookies.cElems);
    std::vector<std::pair<std::wstring, long>> rows;
    for (ULONG i = 0; i < texts.cElems; ++i) {
        rows.emplace_back(texts.pElems[i], static_cast<long>(cookies.pElems[i]));
        ::CoTaskMemFree(texts.pElems[i]);
    }
    ::CoTaskMemFree(texts.pElems);
    ::CoTaskMemFree(cookies.pElems);
    return rows;
}

TEST_F(Browsing, showsAnEnumerationsValueByItsName)
{
    EXPECT_EQ(displayed(id::BorderStyle), L"1 - Fixed");
    button->put_BorderStyle(pdsButtonBorderStyleConstants::None);
    EXPECT_EQ(displayed(id::BorderStyle), L"0 - None");
    button->put_BorderStyle(static_cast<pdsButtonBorderStyleConstants>(7));
    EXPECT_EQ(displayed(id::BorderStyle), L"") << "a number without a name is the browser's to show";
    EXPECT_EQ(displayed(id::MousePointer), L"0 - Default");
    button->put_MousePointer(99);
    EXPECT_EQ(displayed(id::MousePointer), L"99 - Custom");
}

TEST_F(Browsing, leavesOrdinaryValuesToTheBrowser)
{
    EXPECT_EQ(displayed(id::Caption), L"");
    EXPECT_EQ(displayed(id::Enabled), L"");
    EXPECT_EQ(displayed(kNoProperty), L"");
    EXPECT_EQ(browsing->GetDisplayString(id::BorderStyle, nullptr), E_POINTER);
}

TEST_F(Browsing, offersTheNamedValuesAndTheirNumbers)
{
    CALPOLESTR texts{77, nullptr};
    CADWORD cookies{77, nullptr};
    ASSERT_EQ(browsing->GetPredefinedStrings(id::BorderStyle, &texts, &cookies), S_OK);
    EXPECT_THAT(taken(texts, cookies),
                ElementsAreArray({std::pair(L"0 - None", 0), std::pair(L"1 - Fixed", 1)}));
    ASSERT_EQ(browsing->GetPredefinedStrings(id::MousePointer, &texts, &cookies), S_OK);
    auto const pointers = taken(texts, cookies);
    EXPECT_EQ(pointers.size(), 17U);
    EXPECT_THAT(pointers, Contains(std::pair(std::wstring(L"11 - Hourglass"), 11L)));
    EXPECT_EQ(browsing->GetPredefinedStrings(id::Caption, &texts, &cookies), S_FALSE);
    EXPECT_EQ(texts.cElems, 0U);
    EXPECT_EQ(cookies.cElems, 0U);
    EXPECT_EQ(browsing->GetPredefinedStrings(id::BorderStyle, nullptr, &cookies), E_POINTER);
    EXPECT_EQ(browsing->GetPredefinedStrings(id::BorderStyle, &texts, nullptr), E_POINTER);
}

TEST_F(Browsing, handsOutANamedValueThatThePropertyTakes)
{
    Variant value;
    ASSERT_EQ(browsing->GetPredefinedValue(id::BorderStyle, 0, value.put()), S_OK);
    EXPECT_EQ(value.type(), VT_I4);
    EXPECT_EQ(value.toLong(), 0);
    EXPECT_EQ(browsing->GetPredefinedValue(id::BorderStyle, 2, value.put()), E_INVALIDARG);
    EXPECT_EQ(browsing->GetPredefinedValue(id::Caption, 0, value.put()), E_INVALIDARG);
    EXPECT_EQ(browsing->GetPredefinedValue(id::BorderStyle, 0, nullptr), E_POINTER);
}

TEST_F(Browsing, namesAPageForColoursFontsAndPicturesAlone)
{
    EXPECT_EQ(page(id::HotBackColor), kColoursPageClass);
    EXPECT_EQ(page(id::Font), kFontsPageClass);
    EXPECT_EQ(page(id::MouseIcon), kPicturesPageClass);
    EXPECT_EQ(page(id::Caption), CLSID_NULL);
    EXPECT_EQ(page(kNoProperty), CLSID_NULL);
    EXPECT_EQ(browsing->MapPropertyToPage(id::Font, nullptr), E_POINTER);
}

TEST_F(Browsing, listsThePagesThatItsPropertiesNeed)
{
    CAUUID pages{77, nullptr};
    ASSERT_EQ(as<ISpecifyPropertyPages>()->GetPages(&pages), S_OK);
    std::vector<CLSID> const found(pages.pElems, pages.pElems + pages.cElems);
    ::CoTaskMemFree(pages.pElems);
    EXPECT_THAT(
        found, ElementsAreArray({kGeneralPageClass, kColoursPageClass, kFontsPageClass, kPicturesPageClass}));
    EXPECT_EQ(as<ISpecifyPropertyPages>()->GetPages(nullptr), E_POINTER);
}

TEST_F(Browsing, putsEveryPropertyUnderAHeading)
{
    EXPECT_EQ(heading(id::HotBackColor), L"Appearance");
    EXPECT_EQ(heading(id::BorderWidth), L"Appearance");
    EXPECT_EQ(heading(id::Enabled), L"Behavior");
    EXPECT_EQ(heading(id::Font), L"Font");
    EXPECT_EQ(heading(id::Caption), L"Text");
    EXPECT_EQ(heading(id::hwnd), L"Misc");
    PROPCAT category = 77;
    EXPECT_EQ(headings->MapPropertyToCategory(kNoProperty, &category), E_INVALIDARG);
    EXPECT_EQ(headings->MapPropertyToCategory(id::Font, nullptr), E_POINTER);
    Bstr name;
    EXPECT_EQ(headings->GetCategoryName(4711, LOCALE_USER_DEFAULT, name.put()), S_FALSE);
    EXPECT_EQ(headings->GetCategoryName(-2, LOCALE_USER_DEFAULT, nullptr), E_POINTER);
}

constexpr wchar_t const* kAppearance[] = {L"BackColor",
                                          L"ForeColor",
                                          L"BorderColor",
                                          L"HotForeColor",
                                          L"PressedForeColor",
                                          L"HotBackColor",
                                          L"PressedBackColor",
                                          L"HotBorderColor",
                                          L"PressedBorderColor",
                                          L"DisabledForeColor",
                                          L"LightBorderColor",
                                          L"HotLightBorderColor",
                                          L"PressedLightBorderColor",
                                          L"DisabledLightBorderColor",
                                          L"DarkBorderColor",
                                          L"HotDarkBorderColor",
                                          L"PressedDarkBorderColor",
                                          L"DisabledDarkBorderColor",
                                          L"CheckedForeColor",
                                          L"CheckedBackColor",
                                          L"CheckedLightBorderColor",
                                          L"CheckedDarkBorderColor",
                                          L"BorderStyle",
                                          L"BorderWidth",
                                          L"HotBorderWidth",
                                          L"PressedBorderWidth",
                                          L"CentreCaption",
                                          L"CaptionIndent",
                                          L"ShowFocusRectangle",
                                          L"OffsetPressed",
                                          L"OfficeXPColors",
                                          L"Image",
                                          L"DisabledImage",
                                          L"HotImage",
                                          L"PressedImage"};

TEST_F(Browsing, putsEachPropertyOfEachControlUnderItsHeading)
{
    struct Row {
        std::wstring heading;
        std::vector<wchar_t const*> properties;
    };
    Row const rows[] = {
        {L"Appearance", {std::begin(kAppearance), std::end(kAppearance)}},
        {L"Behavior",
         {L"Enabled", L"Active", L"CheckButton", L"Checked", L"Value", L"MousePointer", L"MouseIcon"}},
        {L"Font", {L"Font", L"CheckedFont"}},
        {L"Misc", {L"hwnd", L"hdc"}},
        {L"Position", {L"AutoSizeWidth"}},
        {L"Text", {L"Caption", L"ToolTipText"}},
    };
    int found = 0;
    for (kit::ControlKind const& each : kit::kControls) {
        auto const object = library().create(each.classId);
        headings = query<ICategorizeProperties>(object.get(), kCategorizeProperties);
        for (auto const& [expected, properties] : rows)
            for (wchar_t const* const property : properties) {
                DISPID const known = kit::idOf(*query<IDispatch>(object.get()).get(), property);
                if (known == DISPID_UNKNOWN)
                    continue;
                ++found;
                EXPECT_EQ(heading(known), expected) << kit::narrow(property);
            }
    }
    EXPECT_EQ(found, 26 + 2 * 45 + 2 * 8) << "a property that is in no row, or a name that no control has";
}

TEST_F(Browsing, offersTheVerbForThePagesAndLetsTheContainerShowThem)
{
    ComPtr<IEnumOLEVERB> verbs;
    ASSERT_EQ(as<IOleObject>()->EnumVerbs(verbs.put()), S_OK);
    std::array<OLEVERB, 3> listed{};
    ULONG count = 0;
    EXPECT_EQ(verbs->Next(3, listed.data(), &count), S_FALSE);
    ASSERT_EQ(count, 2U);
    EXPECT_EQ(listed[1].lVerb, OLEIVERB_PROPERTIES);
    EXPECT_STREQ(listed[1].lpszVerbName, L"&Properties...");
    for (ULONG i = 0; i < count; ++i)
        ::CoTaskMemFree(listed[i].lpszVerbName);

    ASSERT_EQ(control.setSite(), S_OK);
    form.record().forget();
    EXPECT_EQ(control.doVerb(OLEIVERB_PROPERTIES), S_OK);
    EXPECT_THAT(form.record().calls(), Contains("Site.ShowPropertyFrame"));
}

} // namespace
} // namespace quillet::hosting
