// The three border widths, and what they make: border, face and focus frame as rings of pixels.
#include "FlatButton.h"
#include "kit/Errors.h"

namespace quillet::flat {
namespace {

using F = _qvFlatCommand;

struct Width {
    char const* name;
    DISPID id;
    bool repaints;
    HRESULT (STDMETHODCALLTYPE F::*get)(VARIANT*);
    HRESULT (STDMETHODCALLTYPE F::*put)(VARIANT);
};

Width const kWidths[] = {
    {"BorderWidth", id::BorderWidth, true, &F::get_BorderWidth, &F::put_BorderWidth},
    {"HotBorderWidth", id::HotBorderWidth, false, &F::get_HotBorderWidth, &F::put_HotBorderWidth},
    {"PressedBorderWidth", id::PressedBorderWidth, false, &F::get_PressedBorderWidth,
     &F::put_PressedBorderWidth},
};

Variant ofDouble(double value)
{
    Variant result;
    result.address()->vt = VT_R8;
    result.address()->dblVal = value;
    return result;
}

class FlatWidths : public FlatTest, public testing::WithParamInterface<Width> {
protected:
    FlatButton button{library(), form};

    FlatWidths()
    {
        button.start();
        button.forget();
    }
    HRESULT put(Variant const& value) { return (button.dual()->*GetParam().put)(value.get()); }
    short width()
    {
        Variant value = Variant::ofString(L"poison");
        ::VariantClear(value.address());
        EXPECT_EQ((button.dual()->*GetParam().get)(value.address()), S_OK);
        EXPECT_EQ(value.type(), VT_I2);
        return value.get().iVal;
    }
    /// A refused value leaves the old width and tells of nothing but the error.
    void expectRefused(Variant const& value, HRESULT error, wchar_t const* description)
    {
        EXPECT_EQ(put(value), error);
        kit::ErrorTexts const texts = kit::takenError();
        EXPECT_EQ(texts.description, description);
        EXPECT_EQ(texts.source, L"Quillet.qvFlatCommand");
        expectUnchanged();
    }
    void expectUnchanged()
    {
        EXPECT_EQ(width(), 1);
        EXPECT_THAT(button.events().ids(), IsEmpty());
        EXPECT_THAT(button.changes().take(), IsEmpty());
    }
};

TEST_P(FlatWidths, isA16BitIntegerInAVariantAndOneAtFirst)
{
    EXPECT_EQ(width(), 1);
    EXPECT_EQ((button.dual()->*GetParam().get)(nullptr), E_POINTER);
}

TEST_P(FlatWidths, isKeptToldAndRepaintedOnlyForTheRestingLook)
{
    EXPECT_EQ(put(Variant::ofShort(7)), S_OK);
    EXPECT_EQ(width(), 7);
    EXPECT_EQ(button.paints(), GetParam().repaints ? 1 : 0);
    EXPECT_THAT(button.changes().take(), testing::ElementsAreArray({GetParam().id}));
}

TEST_P(FlatWidths, comesInAnyTypeThatConvertsAndGoesOutAs16Bits)
{
    for (auto const& [value, expected] : {std::pair{Variant::ofString(L"12"), 12},
                                          {Variant::ofLong(32767), 32767},
                                          {Variant::ofLong(-32768), -32768},
                                          {ofDouble(2.5), 2}, // halves go to the even neighbour
                                          {ofDouble(3.5), 4},
                                          {Variant::ofBool(true), -1},
                                          {Variant(), 0}}) {
        EXPECT_EQ(put(value), S_OK);
        EXPECT_EQ(width(), expected);
    }
}

TEST_P(FlatWidths, comesByReferenceToo)
{
    short target = 9;
    EXPECT_EQ(put(Variant::ofShortRef(&target)), S_OK);
    EXPECT_EQ(width(), 9);
    Variant inner = Variant::ofString(L"11");
    Variant reference;
    reference.address()->vt = VT_VARIANT | VT_BYREF;
    reference.address()->pvarVal = inner.address();
    EXPECT_EQ(put(reference), S_OK);
    EXPECT_EQ(width(), 11);
}

TEST_P(FlatWidths, beyond16BitsOverflowsAndLeavesTheOldWidth)
{
    for (Variant const& value :
         {Variant::ofLong(40000), Variant::ofLong(-32769), Variant::ofString(L"40000"), ofDouble(1e300)})
        expectRefused(value, kOverflow, L"Overflow");
}

TEST_P(FlatWidths, ofWhatIsNoNumberIsATypeMismatchAndLeavesTheOldWidth)
{
    expectRefused(Variant::ofString(L"abc"), kTypeMismatch, L"Type mismatch");
    Variant array;
    array.address()->vt = VT_ARRAY | VT_I2;
    array.address()->parray = ::SafeArrayCreateVector(VT_I2, 0, 2);
    EXPECT_TRUE(FAILED(put(array)));
    EXPECT_TRUE(FAILED(put(Variant::ofUnknown(form.frame().unknown()))));
    expectUnchanged();
}

TEST_P(FlatWidths, ofNullIsAnInvalidUseOfNullAndLeavesTheOldWidth)
{
    Variant null;
    null.address()->vt = VT_NULL;
    expectRefused(null, kInvalidUseOfNull, L"Invalid use of Null");
    Variant reference;
    reference.address()->vt = VT_VARIANT | VT_BYREF;
    reference.address()->pvarVal = null.address();
    expectRefused(reference, kInvalidUseOfNull, L"Invalid use of Null");
}

TEST_P(FlatWidths, byNameRaisesTheSameErrorAsAnException)
{
    std::wstring const name(GetParam().name, GetParam().name + strlen(GetParam().name));
    kit::Called const called = kit::putByName(*button.dual(), name.c_str(), Variant::ofLong(40000));
    EXPECT_EQ(called.result, DISP_E_EXCEPTION);
    EXPECT_EQ(called.code, kOverflow);
    EXPECT_EQ(called.description, L"Overflow");
    EXPECT_EQ(called.source, L"Quillet.qvFlatCommand");
    EXPECT_EQ(kit::putByName(*button.dual(), name.c_str(), Variant::ofString(L"12")).result, S_OK);
    kit::Called const got = kit::getByName(*button.dual(), name.c_str());
    EXPECT_EQ(got.value.type(), VT_I2);
    EXPECT_EQ(got.value.toShort(), 12);
}

INSTANTIATE_TEST_SUITE_P(Each, FlatWidths, testing::ValuesIn(kWidths),
                         [](testing::TestParamInfo<Width> const& row) {
                             return std::string(row.param.name);
                         });

class FlatWidthEdges : public FlatTest {
protected:
    FlatButton button{library(), form};

    FlatWidthEdges() { button.start(); }
    short width() const
    {
        Variant width;
        EXPECT_EQ(button->get_BorderWidth(width.address()), S_OK);
        return width.toShort();
    }
};

TEST_F(FlatWidthEdges, settingBorderWidthTo0WithBorderStyle1IsAcceptedAndStoredAs0)
{
    ASSERT_EQ(button->put_BorderStyle(pdsButtonBorderStyleConstants::Fixed), S_OK);
    EXPECT_EQ(button->put_BorderWidth(Variant::ofShort(0).get()), S_OK);
    EXPECT_EQ(width(), 0);
}

TEST_F(FlatWidthEdges, settingBorderWidthTo40000FailsWithAnOverflowErrorAndLeavesTheOldWidth)
{
    ASSERT_EQ(button->put_BorderWidth(Variant::ofShort(3).get()), S_OK);
    EXPECT_EQ(button->put_BorderWidth(Variant::ofLong(40000).get()), kOverflow);
    EXPECT_EQ(width(), 3);
}

constexpr RECT kSmall{20, 30, 34, 38}; // 14 x 8

kit::Letters const kLetters{{'.', kBack}, {'#', kBorder}, {'f', kFore}, {'g', RGB(0x80, 0x80, 0x80)}};

class FlatRings : public FlatTest {
protected:
    ShownButton button{library(), form, kSmall};

    FlatRings() { button.setColors(); }
    void expect(char const* rings) const { EXPECT_EQ(kit::Canvas(button.window()).picture(kLetters), rings); }
    void expectAll(COLORREF color) const { EXPECT_EQ(kit::Canvas(button.window()).count(color), 14 * 8); }
};

TEST_F(FlatRings, normalIsABorderOfOnePixelRoundTheLook)
{
    expect("##############\n"
           "#............#\n"
           "#............#\n"
           "#............#\n"
           "#............#\n"
           "#............#\n"
           "#............#\n"
           "##############\n");
}

TEST_F(FlatRings, aBorderWidthOf3IsThreePixelsOnEverySide)
{
    button.setWidth(3);
    expect("##############\n"
           "##############\n"
           "##############\n"
           "###........###\n"
           "###........###\n"
           "##############\n"
           "##############\n"
           "##############\n");
}

TEST_F(FlatRings, aBorderWidthOf0IsAllFace)
{
    button.setWidth(0);
    expectAll(kBack);
}

TEST_F(FlatRings, withTheFocusTheBorderIsOnePixelThickerAndAFrameStandsTwoPixelsInside)
{
    ASSERT_TRUE(kit::focus(button.window()));
    ASSERT_EQ(button->Refresh(), S_OK);
    expect("##############\n"
           "##############\n"
           "##..........##\n"
           "##..........##\n"
           "##..........##\n"
           "##..........##\n"
           "##############\n"
           "##############\n"); // 8 rows leave no room for a frame
    button.place({20, 30, 36, 42});
    ASSERT_EQ(button->Refresh(), S_OK);
    expect("################\n"
           "################\n"
           "##............##\n"
           "##............##\n"
           "##..gggggggg..##\n"
           "##..g......g..##\n"
           "##..g......g..##\n"
           "##..gggggggg..##\n"
           "##............##\n"
           "##............##\n"
           "################\n"
           "################\n");
}

TEST_F(FlatRings, extremeWidthsAndIndentsEndThePaintSilently)
{
    ShownButton wide(library(), form, {20, 80, 140, 120});
    wide.setCaption(L"&Far");
    wide.events().forget();
    int paints = 0;
    for (short const width : std::initializer_list<short>{SHRT_MIN, -1, 0, 60, SHRT_MAX})
        for (short const indent : std::initializer_list<short>{SHRT_MIN, -1, 0, 300, SHRT_MAX}) {
            EXPECT_EQ(wide->put_CaptionIndent(indent), S_OK);
            wide.setWidth(width);
            EXPECT_EQ(wide->DrawButton(), S_OK);
            paints += 2;
        }
    EXPECT_EQ(wide.paints(), paints);
    wide.setWidth(1);
    EXPECT_EQ(wide->put_CaptionIndent(4), S_OK);
    EXPECT_EQ(wide.differencesFrom(normalLook(L"&Far")), "");
}

TEST_F(FlatRings, aBorderWiderThanTheButtonIsAllBorder)
{
    for (short const width : std::initializer_list<short>{4, SHRT_MAX}) {
        button.setWidth(width);
        expectAll(kBorder);
    }
}

} // namespace
} // namespace quillet::flat
