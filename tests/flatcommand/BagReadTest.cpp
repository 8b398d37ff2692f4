// Loading a qvFlatCommand from a property bag.
#include "FlatButton.h"
#include "kit/Errors.h"
#include "kit/FakeBag.h"

namespace quillet::flat {
namespace {

class FlatBagRead : public SitedTest {
protected:
    ComPtr<kit::FakeBag> bag = kit::make<kit::FakeBag>();

    std::string got(wchar_t const* name) const { return kit::textByName(*button.dual(), name); }
    void load() { ASSERT_EQ(button.load(*bag.get()), S_OK); }
    void putAllValues()
    {
        for (SavedRow const& row : savedValues())
            bag->put(row.name, row.other);
    }
    void putAllValuesAsText()
    {
        for (SavedRow const& row : savedValues())
            bag->put(row.name, Variant::ofString(row.other.toString().view()));
    }
    void putObject(wchar_t const* name, IUnknown* object)
    {
        bag->put(name, Variant::ofDispatch(query<IDispatch>(object).get()));
    }
    void expectAllValues()
    {
        for (SavedRow const& row : savedValues())
            EXPECT_EQ(got(row.name), kit::textOf(row.other)) << kit::narrow(row.name);
    }
    void expectFont(IFont& font) const { EXPECT_TRUE(kit::equalFonts(*button.font().get(), font)); }
};

TEST_F(FlatBagRead, readsEachNameOnceAndInOrder)
{
    load();
    EXPECT_THAT(bag->namesRead(), ElementsAreArray(savedNames()));
}

TEST_F(FlatBagRead, asksForEachValueInItsSavedTypeOrInAny)
{
    putAllValues();
    load();
    ASSERT_EQ(bag->reads.size(), savedRows().size());
    for (size_t i = 0; i < savedRows().size(); ++i) {
        SavedRow const& row = savedRows()[i];
        SCOPED_TRACE(kit::narrow(row.name));
        if (row.isObject())
            EXPECT_THAT(bag->reads[i].type, AnyOf(VT_EMPTY, VT_UNKNOWN, VT_DISPATCH));
        else
            EXPECT_THAT(bag->reads[i].type, AnyOf(VT_EMPTY, row.other.type()));
    }
}

TEST_F(FlatBagRead, takesTheSavedValues)
{
    putAllValues();
    load();
    expectAllValues();
}

TEST_F(FlatBagRead, takesTheDefaultWhereTheBagHasNoEntry)
{
    putAllValues();
    putObject(L"Font", kit::newFont(L"Tahoma", 30).get());
    putObject(L"MouseIcon", kit::newIconPicture().get());
    load();
    auto const empty = kit::make<kit::FakeBag>();
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    for (SavedRow const& row : savedValues())
        EXPECT_EQ(got(row.name), row.initial) << kit::narrow(row.name);
    expectFont(*formFont().get());
    EXPECT_FALSE(button.mouseIcon());
}

TEST_F(FlatBagRead, takesValuesAsTextFromABagThatKeepsNothingElse)
{
    putAllValuesAsText();
    load();
    expectAllValues();
}

TEST_F(FlatBagRead, takesTextFromABagThatConvertsToWhatItIsAskedFor)
{
    putAllValuesAsText();
    bag->values = kit::FakeBag::Values::Converted;
    load();
    expectAllValues();
}

TEST_F(FlatBagRead, takesNumbersOfOtherWidths)
{
    putAllValues(); // of which the caption stays
    for (SavedRow const& row : savedValues())
        if (row.other.type() != VT_BSTR)
            bag->put(row.name, row.other.convertedTo(VT_R8));
    load();
    expectAllValues();
}

TEST_F(FlatBagRead, takesASystemColourAsTextAsDoubleAndUnsigned)
{
    bag->put(L"BackColor", Variant::ofString(L"-2147483632"));
    bag->put(L"ForeColor", Variant::ofLong(static_cast<long>(0x80000011U)).convertedTo(VT_R8));
    Variant unsignedColor;
    unsignedColor.address()->vt = VT_UI4;
    unsignedColor.address()->ulVal = 0x80000010U;
    bag->put(L"BorderColor", unsignedColor);
    load();
    for (auto const& [get, expected] : {std::pair{&_qvFlatCommand::get_BackColor, 0x80000010U},
                                        {&_qvFlatCommand::get_ForeColor, 0x80000011U},
                                        {&_qvFlatCommand::get_BorderColor, 0x80000010U}}) {
        OLE_COLOR color = 0;
        EXPECT_EQ((button.dual()->*get)(&color), S_OK);
        EXPECT_EQ(color, expected);
    }
}

TEST_F(FlatBagRead, takesAFontByEitherKindOfObject)
{
    auto const font = kit::newFont(L"Tahoma", 24, true);
    putObject(L"Font", font.get());
    load();
    expectFont(*font.get());
    auto const other = kit::newFont(L"Tahoma", 26);
    bag->put(L"Font", Variant::ofUnknown(other.get()));
    load();
    expectFont(*other.get());
}

TEST_F(FlatBagRead, takesAMouseIconByEitherKindOfObjectAndNothing)
{
    auto const icon = kit::newIconPicture();
    bag->put(L"MouseIcon", Variant::ofUnknown(icon.get()));
    load();
    EXPECT_EQ(button.mouseIcon().get(), icon.get());
    bag->put(L"MouseIcon", Variant::ofDispatch(nullptr));
    load();
    EXPECT_FALSE(button.mouseIcon());
}

TEST_F(FlatBagRead, failsWithTheErrorOfAValueThatDoesNotConvert)
{
    bag->put(L"BorderWidth", Variant::ofLong(40000));
    EXPECT_EQ(button.load(*bag.get()), kOverflow);
    bag->put(L"BorderWidth", Variant::ofString(L"wide"));
    EXPECT_EQ(button.load(*bag.get()), kTypeMismatch);
    bag->put(L"BorderWidth", Variant::ofShort(6));
    EXPECT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_EQ(got(L"BorderWidth"), "6");
}

TEST_F(FlatBagRead, refusesNoBag)
{
    EXPECT_TRUE(FAILED(button.as<IPersistPropertyBag>()->Load(nullptr, nullptr)));
}

TEST_F(FlatBagRead, leavesTheControlClean)
{
    putAllValues();
    putObject(L"Font", kit::newFont(L"Tahoma", 30).get());
    load();
    EXPECT_EQ(button.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST_F(FlatBagRead, writesFieldsWithoutRunningTheirSetters)
{
    putAllValues();
    button.changes().take();
    load();
    EXPECT_THAT(button.changes().take(), ElementsAreArray<DISPID>({DISPID_FONT, id::MouseIcon}))
        << "but of the two objects";
}

// Whatever a document holds, a control loads it or refuses it.
TEST_F(FlatBagRead, survivesValuesOfEveryTypeUnderEveryName)
{
    std::vector<Variant> values;
    for (VARTYPE const type : {VT_EMPTY, VT_NULL, VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_I8, VT_R4,
                               VT_R8, VT_CY, VT_DATE, VT_BOOL, VT_ERROR}) {
        Variant value;
        value.address()->vt = type;
        value.address()->llVal = 0x00000001FFFFFFFFLL;
        values.push_back(value);
    }
    values.push_back(Variant::ofDispatch(nullptr));
    values.push_back(Variant::ofUnknown(nullptr));
    values.push_back(Variant::ofDispatch(&form.object()));
    values.push_back(Variant::ofUnknown(form.frame().unknown()));
    values.push_back(Variant::ofString(std::wstring(5000, L'&')));
    Variant array;
    array.address()->vt = VT_ARRAY | VT_VARIANT;
    array.address()->parray = ::SafeArrayCreateVector(VT_VARIANT, 0, 3);
    values.push_back(array);
    int loaded = 0;
    int refused = 0;
    for (std::wstring const& name : savedNames())
        for (Variant const& value : values) {
            auto const strange = kit::make<kit::FakeBag>();
            strange->put(name, value);
            ++(SUCCEEDED(button.load(*strange.get())) ? loaded : refused);
        }
    EXPECT_GT(loaded, 0);
    EXPECT_GT(refused, 0);
    EXPECT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_EQ(button.caption(), L"");
}

} // namespace
} // namespace quillet::flat
