// Loading a qvFlatCommand from a property bag.
#include "FlatButton.h"
#include "SavedRows.h"
#include "kit/ByName.h"
#include "kit/Errors.h"
#include "kit/FakeBag.h"
#include "kit/Fonts.h"

namespace quillet::flat {
namespace {

using testing::AnyOf;
using testing::ElementsAre;
using testing::ElementsAreArray;

class FlatBagRead : public FlatTest {
protected:
    kit::FakeForm form;
    FlatButton button{library(), form};
    ComPtr<kit::FakeBag> bag = kit::make<kit::FakeBag>();

    void SetUp() override
    {
        FlatTest::SetUp();
        ASSERT_EQ(button.setSite(), S_OK);
    }
    Variant got(wchar_t const* name)
    {
        kit::Called called = kit::getByName(*button.dual(), name);
        EXPECT_EQ(called.result, S_OK) << kit::narrow(name);
        return called.value;
    }
    /// Compares as 32 bits: a colour comes as a signed or as an unsigned long.
    void expectValue(SavedRow const& row, Variant const& expected)
    {
        Variant const value = got(row.name);
        if (row.type == VT_BSTR)
            EXPECT_EQ(value.toString().view(), expected.toString().view()) << kit::narrow(row.name);
        else if (value.type() == VT_UI4)
            EXPECT_EQ(value.get().ulVal, static_cast<ULONG>(expected.toLong())) << kit::narrow(row.name);
        else
            EXPECT_EQ(value.toLong(), expected.toLong()) << kit::narrow(row.name);
    }
    void putAllValues()
    {
        for (SavedRow const& row : savedRows())
            if (row.type != VT_UNKNOWN)
                bag->put(row.name, row.other);
    }
    void expectAllValues()
    {
        for (SavedRow const& row : savedRows())
            if (row.type != VT_UNKNOWN)
                expectValue(row, row.other);
    }
};

TEST_F(FlatBagRead, readsEachNameOnceAndInOrder)
{
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_THAT(bag->namesRead(), ElementsAreArray(savedNames()));
}

TEST_F(FlatBagRead, asksForEachValueInItsSavedTypeOrInAny)
{
    putAllValues();
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    ASSERT_EQ(bag->reads.size(), savedRows().size());
    for (size_t i = 0; i < savedRows().size(); ++i) {
        SavedRow const& row = savedRows()[i];
        if (row.type == VT_UNKNOWN)
            EXPECT_THAT(bag->reads[i].type, AnyOf(VT_EMPTY, VT_UNKNOWN, VT_DISPATCH))
                << kit::narrow(row.name);
        else
            EXPECT_THAT(bag->reads[i].type, AnyOf(VT_EMPTY, row.type)) << kit::narrow(row.name);
    }
}

TEST_F(FlatBagRead, takesTheSavedValues)
{
    putAllValues();
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    expectAllValues();
}

TEST_F(FlatBagRead, takesTheDefaultWhereTheBagHasNoEntry)
{
    putAllValues();
    bag->put(L"Font", Variant::ofDispatch(query<IDispatch>(kit::newFont(L"Tahoma", 30).get()).get()));
    bag->put(L"MouseIcon", Variant::ofDispatch(kit::newIconPicture().get()));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    auto const empty = kit::make<kit::FakeBag>();
    ASSERT_EQ(button.load(*empty.get()), S_OK);
    auto const values = std::vector<std::pair<wchar_t const*, long>>{
        {L"Enabled", -1},       {L"BorderStyle", 1},        {L"BorderWidth", 1},
        {L"HotBorderWidth", 1}, {L"PressedBorderWidth", 1}, {L"CentreCaption", 0},
        {L"CaptionIndent", 4},  {L"MousePointer", 0},       {L"ShowFocusRectangle", -1},
        {L"OfficeXPColors", 0},
    };
    for (auto const& [name, value] : values)
        EXPECT_EQ(got(name).toLong(), value) << kit::narrow(name);
    auto const colors = std::vector<std::pair<wchar_t const*, long>>{
        {L"BackColor", 0x0F},         {L"ForeColor", 0x12},        {L"BorderColor", 0x15},
        {L"HotForeColor", 0x14},      {L"PressedForeColor", 0x14}, {L"HotBackColor", 0x10},
        {L"PressedBackColor", 0x15},  {L"HotBorderColor", 0x15},   {L"PressedBorderColor", 0x15},
        {L"DisabledForeColor", 0x11},
    };
    for (auto const& [name, index] : colors)
        expectValue({name, VT_I4, {}}, Variant::ofLong(static_cast<long>(0x80000000U) | index));
    EXPECT_EQ(button.caption(), L"");
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *formFont().get()));
    ComPtr<IPictureDisp> icon;
    EXPECT_EQ(button->get_MouseIcon(icon.put()), S_OK);
    EXPECT_FALSE(icon);
}

TEST_F(FlatBagRead, takesValuesAsTextFromABagThatKeepsNothingElse)
{
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN)
            bag->put(row.name, Variant::ofString(row.other.toString().view()));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    expectAllValues();
}

TEST_F(FlatBagRead, takesTextFromABagThatConvertsToWhatItIsAskedFor)
{
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN)
            bag->put(row.name, Variant::ofString(row.other.toString().view()));
    bag->values = kit::FakeBag::Values::Converted;
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    expectAllValues();
}

TEST_F(FlatBagRead, takesNumbersOfOtherWidths)
{
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN && row.type != VT_BSTR)
            bag->put(row.name, row.other.convertedTo(VT_R8));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    for (SavedRow const& row : savedRows())
        if (row.type != VT_UNKNOWN && row.type != VT_BSTR)
            expectValue(row, row.other);
}

TEST_F(FlatBagRead, takesASystemColourAsTextAsDoubleAndUnsigned)
{
    bag->put(L"BackColor", Variant::ofString(L"-2147483632"));
    bag->put(L"ForeColor", Variant::ofLong(static_cast<long>(0x80000011U)).convertedTo(VT_R8));
    Variant unsignedColor;
    unsignedColor.address()->vt = VT_UI4;
    unsignedColor.address()->ulVal = 0x80000010U;
    bag->put(L"BorderColor", unsignedColor);
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    OLE_COLOR color = 0;
    button->get_BackColor(&color);
    EXPECT_EQ(color, 0x80000010U);
    button->get_ForeColor(&color);
    EXPECT_EQ(color, 0x80000011U);
    button->get_BorderColor(&color);
    EXPECT_EQ(color, 0x80000010U);
}

TEST_F(FlatBagRead, takesAFontByEitherKindOfObject)
{
    auto const font = kit::newFont(L"Tahoma", 24, true);
    bag->put(L"Font", Variant::ofDispatch(query<IDispatch>(font.get()).get()));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *font.get()));
    auto const other = kit::newFont(L"Tahoma", 26);
    bag->put(L"Font", Variant::ofUnknown(other.get()));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_TRUE(kit::equalFonts(*button.font().get(), *other.get()));
}

TEST_F(FlatBagRead, takesAMouseIconByEitherKindOfObjectAndNothing)
{
    auto const icon = kit::newIconPicture();
    bag->put(L"MouseIcon", Variant::ofUnknown(icon.get()));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    ComPtr<IPictureDisp> kept;
    button->get_MouseIcon(kept.put());
    EXPECT_EQ(kept.get(), icon.get());
    bag->put(L"MouseIcon", Variant::ofDispatch(nullptr));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    button->get_MouseIcon(kept.put());
    EXPECT_FALSE(kept);
}

TEST_F(FlatBagRead, failsWithTheErrorOfAValueThatDoesNotConvert)
{
    bag->put(L"BorderWidth", Variant::ofLong(40000));
    EXPECT_EQ(button.load(*bag.get()), kOverflow);
    bag->put(L"BorderWidth", Variant::ofString(L"wide"));
    EXPECT_EQ(button.load(*bag.get()), kTypeMismatch);
    bag->put(L"BorderWidth", Variant::ofShort(6));
    EXPECT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_EQ(got(L"BorderWidth").toShort(), 6);
}

TEST_F(FlatBagRead, refusesNoBag)
{
    EXPECT_TRUE(FAILED(button.as<IPersistPropertyBag>()->Load(nullptr, nullptr)));
}

TEST_F(FlatBagRead, leavesTheControlClean)
{
    putAllValues();
    bag->put(L"Font", Variant::ofDispatch(query<IDispatch>(kit::newFont(L"Tahoma", 30).get()).get()));
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_EQ(button.as<IPersistStreamInit>()->IsDirty(), S_FALSE);
}

TEST_F(FlatBagRead, writesFieldsWithoutRunningTheirSetters)
{
    putAllValues();
    button.changes().take();
    ASSERT_EQ(button.load(*bag.get()), S_OK);
    EXPECT_THAT(button.changes().take(), ElementsAre(DISPID_FONT, id::MouseIcon)) << "but of the two objects";
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
